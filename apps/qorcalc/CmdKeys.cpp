// qorcalc keys: replays key names into a calculator engine and shows the display after each
// key and the paper tape at the end (as the engine wrote it, or with --tape as the tape export
// writes it: operators and numbers in columns, or only the tape as CSV with --csv).
#include "QORKITCalcEngine.h"
#include "QORKITTape.h"
#include "QorcalcCommands.h"

#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

namespace qorcalc {
// Defined with `qorcalc eval`.
void ApplyEngineOptions(std::vector<std::string>& args, qorkit::TQORCalcEngine& engine);
} // namespace qorcalc

namespace {

// The key names, wrapped, for the usage text; the digits are shown as one range.
std::string KeyNames()
{
    std::string text = "\n  keys:  0-9";
    std::size_t lineLength = text.size() - 1;
    for (const auto& key : qorkit::CalcEngineKeys()) {
        if (key.Name.size() == 1 && key.Name[0] >= '0' && key.Name[0] <= '9')
            continue;
        if (lineLength + key.Name.size() + 1 > 92) {
            text += "\n        ";
            lineLength = 8;
        }
        text += ' ';
        text += key.Name;
        lineLength += key.Name.size() + 1;
    }
    text += " roundN\n         a number such as 12.5 types its digits; --list describes every key";
    return text;
}

void ListKeys(std::ostream& out)
{
    for (const auto& key : qorkit::CalcEngineKeys())
        out << "  " << std::left << std::setw(9) << key.Name << key.Description << '\n';
    out << "  " << std::left << std::setw(9) << "roundN"
        << "round to N decimals\n";
}

int RunKeys(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    if (qorcalc::TakeFlag(args, "--list")) {
        ListKeys(out);
        return 0;
    }
    qorkit::TQORCalcEngine engine;
    engine.SetPrefixFunctions(qorcalc::TakeFlag(args, "--prefix"));
    engine.SetPrecedence(!qorcalc::TakeFlag(args, "--no-precedence"));
    engine.SetOperatorSameLine(qorcalc::TakeFlag(args, "--same-line"));
    engine.SetBinaryPercent(!qorcalc::TakeFlag(args, "--unary-percent"));
    const bool csv = qorcalc::TakeFlag(args, "--csv");
    const bool tape = qorcalc::TakeFlag(args, "--tape") || csv;
    qorcalc::ApplyEngineOptions(args, engine);
    qorcalc::EndOptions(args);
    std::vector<std::string> keys;
    for (const auto& arg : args) {
        std::istringstream words(arg);
        for (std::string word; words >> word;)
            keys.push_back(word);
    }
    if (keys.empty()) {
        err << "qorcalc keys: no keys given (qorcalc keys --list names them)\n";
        return 2;
    }
    // A number typed as one word ("1,234.5") must read as that number: a thousands separator
    // only between groups of three digits.
    for (const auto& key : keys)
        if (key.size() > 1 && key.find_first_not_of("0123456789.,") == std::string::npos)
            qorcalc::ParseNumber(key, "key");
    for (const auto& key : keys) {
        if (!qorkit::PressCalcKey(engine, key)) {
            err << "qorcalc keys: unknown key '" << key << "' (qorcalc keys --list names them)\n";
            return 2;
        }
        if (!csv) // CSV alone, for spreadsheets and pipes
            out << std::left << std::setw(9) << key << engine.GetDisplayStr() << '\n';
    }
    if (!csv)
        out << "tape:\n";
    if (tape) {
        const auto rows = qorkit::ReadTape(engine.GetHistory());
        out << (csv ? qorkit::TapeToCsv(rows) : qorkit::TapeToText(rows));
    } else {
        for (const auto& line : engine.GetHistory())
            out << "  " << line << '\n';
    }
    if (!engine.GetLastError().empty()) {
        err << engine.GetLastError() << '\n';
        return 1;
    }
    return 0;
}

const bool registered = qorcalc::RegisterCommand(
    {"keys",
     "[--deg|--rad|--grad] [--decimals N] [--prefix] [--no-precedence] [--same-line] "
     "[--unary-percent] [--tape [--csv]] KEYS... | --list"
         + KeyNames(),
     "replay calculator keys such as \"2 + 3 * 4 =\" or \"30 sin\", showing the display after "
     "each key and the paper tape at the end (--tape: operators and numbers in columns, --csv: "
     "as CSV)",
     RunKeys});

} // namespace
