// The command table of qorcalc. A subcommand is one Cmd*.cpp file that registers itself:
//
//   static const bool registered = qorcalc::RegisterCommand(
//       {"eval", "EXPR", "evaluate an expression", RunEval, HelpEval});
#pragma once

#include "QORKITTypes.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <stdexcept>
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

// A mistake on the command line (an unknown option, a value out of its range, a number that
// does not read): main prints "qorcalc COMMAND: message" and exits with status 2.
class UsageError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

// Small argument helpers shared by the commands. Options are looked for only before a "--"
// argument; everything after it is an operand, so "eval -- -5" reads -5.
bool TakeFlag(std::vector<std::string>& args, std::string_view flag);
// Removes "--name VALUE" or "--name=VALUE"; returns false when absent. Throws UsageError when
// the value is missing.
bool TakeOption(std::vector<std::string>& args, std::string_view name, std::string& value);
// Called by every command once it has taken its own options: any "--name" argument left before
// the "--" marker is an unknown option (UsageError); the marker itself is removed.
void EndOptions(std::vector<std::string>& args);

// Numbers typed by a user: an optional sign, digits with the locale decimal separator, an
// optional exponent ("1.5e-3"). A thousands separator is accepted only between groups of three
// digits of the whole part ("1,234,567.5"), and not at all when `grouping` is false (complex
// operands use the comma between their parts). A number beyond the range of an extended float,
// or one so small that it would read as zero, is out of range. `what` names the argument in
// the message of the UsageError raised for anything else.
qorkit::Extended ParseNumber(std::string_view text, std::string_view what, bool grouping = true);
// As ParseNumber, and within [low, high].
qorkit::Extended ParseNumberIn(std::string_view text, std::string_view what, qorkit::Extended low,
                               qorkit::Extended high);
// A whole number within [low, high].
std::int64_t ParseWhole(std::string_view text, std::string_view what, std::int64_t low,
                        std::int64_t high);
// Checks every number written in an expression text as ParseNumber does (the engine itself
// would take "1,5" as 15 and drop an exponent it cannot hold).
void CheckExpressionNumbers(std::string_view text);

} // namespace qorcalc
