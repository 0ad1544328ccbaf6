// qorcalc format: a number through the display formatters, or an integer in the programmer's
// bases.
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <ostream>
#include <string>
#include <vector>

namespace {

using qorkit::Extended;

// The full 64-bit patterns of an integer, as the programmer's calculator shows them.
int RunHex(const std::string& text, std::ostream& out)
{
    std::int64_t number = 0;
    try {
        number = qorkit::Str2Int64(text);
    } catch (const std::exception&) {
        throw qorcalc::UsageError("--hex: '" + text + "' is not a 64-bit integer");
    }
    const std::string hex = qorkit::Int2EHex(number, 16);
    struct Row {
        const char* label;
        std::string digits;
        int group;
    };
    const Row rows[] = {
        {"dec", qorkit::Int2EStr(qorkit::Hex2Int64(hex)), 0},
        {"hex", hex, 4},
        {"oct", qorkit::Hex2Oct(hex), 3},
        {"bin", qorkit::Hex2Bin(hex), 8},
    };
    for (const auto& row : rows)
        out << row.label << "  " << qorkit::GroupSpacing(row.digits, row.group, ' ') << '\n';
    return 0;
}

int RunFormat(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    std::string hexValue;
    if (qorcalc::TakeOption(args, "--hex", hexValue)) {
        qorcalc::EndOptions(args);
        if (!args.empty()) {
            err << "qorcalc format: --hex takes one integer and nothing else\n";
            return 2;
        }
        return RunHex(hexValue, out);
    }

    std::string decimalsText = "4";
    qorcalc::TakeOption(args, "--decimals", decimalsText);
    const bool lakh = qorcalc::TakeFlag(args, "--lakh");
    const bool sci = qorcalc::TakeFlag(args, "--sci");
    const bool trim = qorcalc::TakeFlag(args, "--trim");
    qorcalc::EndOptions(args);
    if (args.size() != 1) {
        err << "qorcalc format: expected one NUMBER (see qorcalc format --help)\n";
        return 2;
    }
    const auto places
        = static_cast<std::uint8_t>(qorcalc::ParseWhole(decimalsText, "--decimals", 0, 255));
    const Extended value = qorcalc::ParseNumber(args[0], "NUMBER");
    if (sci)
        out << qorkit::SciFloat2EStr(value, places) << '\n';
    else if (trim)
        out << qorkit::Float2CEStr2(value, places, lakh) << '\n';
    else
        out << qorkit::Float2CEStr(value, places, lakh) << '\n';
    return 0;
}

const bool registered = qorcalc::RegisterCommand(
    {"format", "NUMBER [--decimals N] [--lakh] [--sci] [--trim] | --hex INT",
     "show a number as the calculator display does (grouped, 4 decimals unless told "
     "otherwise), or an integer in decimal, hexadecimal, octal and binary",
     RunFormat});

} // namespace
