// qorcalc eval: expression strings through the calculator engine, one argument or one line of
// standard input at a time.
#include "QORKITCalcEngine.h"
#include "QORKITExpressions.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <iostream>
#include <string>
#include <vector>

namespace qorcalc {

// Options shared with `qorcalc keys`: the angle mode and the decimals of the display. Raises
// UsageError for a bad value.
void ApplyEngineOptions(std::vector<std::string>& args, qorkit::TQORCalcEngine& engine)
{
    static constexpr std::pair<const char*, qorkit::TQORAngleMode> modes[] = {
        {"--deg", qorkit::amDegrees}, {"--rad", qorkit::amRadians}, {"--grad", qorkit::amGradians}};
    for (const auto& [flag, mode] : modes)
        if (TakeFlag(args, flag))
            engine.SetAngleMode(mode);
    engine.SetEnableGrads(true);
    engine.SetThousandsSeparators(false);
    engine.SetMaxDisplayLength(255);
    // Scientific notation outside a generous fixed range.
    engine.SetSciUsage(true);
    engine.SetSciRange(true);
    engine.SetSciMin(1e-6L);
    engine.SetSciMax(1e15L);
    std::string decimals;
    if (!TakeOption(args, "--decimals", decimals)) {
        engine.SetTrimTrailingZeroes(true);
        engine.SetDecimalPlaces(12);
        return;
    }
    engine.SetDecimalPlaces(static_cast<std::uint8_t>(ParseWhole(decimals, "--decimals", 0, 30)));
}

} // namespace qorcalc

namespace {

using qorkit::Extended;

// Evaluates one expression; prints the value, or the error text on err. Returns whether it
// succeeded. The engine and memory carry over from line to line.
bool EvaluateOne(const std::string& text, bool simple, qorkit::TQORCalcEngine& engine,
                 Extended& memory, std::ostream& out, std::ostream& err)
{
    // The engine would take "1,5" as 15 and drop an exponent it cannot hold (1e99999 shows
    // 9): numbers are checked before it sees them.
    qorcalc::CheckExpressionNumbers(text);
    std::string error;
    Extended value = 0;
    if (simple) {
        value = qorkit::SimpleEvaluateStr(text, engine);
        error = engine.GetLastError();
    } else {
        value = qorkit::EvaluateStr(text, engine, memory, error, engine.GetAngleMode());
    }
    if (!error.empty()) {
        err << error << '\n';
        return false;
    }
    out << engine.DisplayValue(value) << '\n';
    return true;
}

int RunEval(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    qorkit::TQORCalcEngine engine;
    engine.SetBinaryPercent(false); // 200+10% is 220, as in the engine-less evaluators
    const bool simple = qorcalc::TakeFlag(args, "--simple");
    qorcalc::ApplyEngineOptions(args, engine);
    qorcalc::EndOptions(args);
    Extended memory = 0;
    if (!args.empty()) {
        std::string text;
        for (const auto& arg : args)
            text += (text.empty() ? "" : " ") + arg;
        return EvaluateOne(text, simple, engine, memory, out, err) ? 0 : 1;
    }
    // One expression per line; memory words work across lines.
    bool allGood = true;
    for (std::string line; std::getline(std::cin, line);) {
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        try {
            allGood = EvaluateOne(line, simple, engine, memory, out, err) && allGood;
        } catch (const qorcalc::UsageError& e) {
            err << e.what() << '\n';
            allGood = false;
        }
    }
    return allGood ? 0 : 1;
}

const bool registered = qorcalc::RegisterCommand(
    {"eval", "[--simple] [--deg|--rad|--grad] [--decimals N] [EXPR...]",
     "evaluate an expression such as \"2+3*4\", \"sin 30\" or \"sqrt(2)*pi\" (radians unless "
     "told otherwise; --simple knows only numbers, operators and pi); without EXPR, one "
     "expression per line of standard input, memory words (madd, msub, mr, mc) carrying over. "
     "Exit code 1 and the error text on stderr for a bad expression; 2 for a number that does "
     "not read (a thousands separator must group three digits) or is out of range",
     RunEval});

} // namespace
