// The command table of qorcalc. A subcommand is one Cmd*.cpp file that registers itself:
//
//   static const bool registered = qorcalc::RegisterCommand(
//       {"eval", "EXPR", "evaluate an expression", RunEval, HelpEval});
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace qorcalc {

struct Command {
    std::string Name; // the word after "qorcalc"
    std::string Usage; // argument summary, e.g. "EXPR [--deg|--rad|--grad]"
    std::string Summary; // one line for the overview
    // Runs with the arguments after the command name; returns the process exit code.
    std::function<int(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)>
        Run;
};

bool RegisterCommand(Command command);
const Command* FindCommand(std::string_view name);
// Registered commands, sorted by name.
std::vector<const Command*> AllCommands();

// Small argument helpers shared by the commands.
bool TakeFlag(std::vector<std::string>& args, std::string_view flag);
// Removes "--name VALUE" or "--name=VALUE"; returns false when absent. Throws
// std::invalid_argument when the value is missing.
bool TakeOption(std::vector<std::string>& args, std::string_view name, std::string& value);

} // namespace qorcalc
