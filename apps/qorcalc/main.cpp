// qorcalc: the library's calculators, conversions and numeric routines from a shell.
#include "QORKITExceptions.h"
#include "QorcalcCommands.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

void PrintHelp(std::ostream& out)
{
    out << "Usage: qorcalc COMMAND [ARGS...]\n"
           "       qorcalc --help | --version\n\n"
           "The calculators, unit conversions and numeric routines of the qorkit library.\n\n"
           "Commands:\n";
    for (const auto* command : qorcalc::AllCommands())
        out << "  " << command->Name << ' ' << command->Usage << "\n      " << command->Summary
            << '\n';
    out << "\nqorcalc COMMAND --help shows the help of one command.\n";
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty() || args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
        PrintHelp(std::cout);
        return args.empty() ? 2 : 0;
    }
    if (args[0] == "--version") {
        std::cout << "qorcalc " << QORKIT_VERSION_TEXT << '\n';
        return 0;
    }
    const auto* command = qorcalc::FindCommand(args[0]);
    if (!command) {
        std::cerr << "qorcalc: unknown command '" << args[0] << "' (see qorcalc --help)\n";
        return 2;
    }
    args.erase(args.begin());
    if (!args.empty() && (args[0] == "--help" || args[0] == "-h")) {
        std::cout << "Usage: qorcalc " << command->Name << ' ' << command->Usage << "\n  "
                  << command->Summary << '\n';
        return 0;
    }
    try {
        return command->Run(args, std::cout, std::cerr);
    } catch (const qorcalc::UsageError& e) {
        std::cerr << "qorcalc " << command->Name << ": " << e.what() << '\n';
        return 2;
    } catch (const std::exception& e) {
        std::cerr << "qorcalc " << command->Name << ": " << e.what() << '\n';
        return 1;
    }
}
