#include "QORKITExpressions.h"

#include "QORKITExceptions.h"
#include "QORKITSettings.h"
#include "QORKIT_RS_Calc.h"

#include <array>
#include <optional>

namespace qorkit {

namespace {

using Engine = TQORCalcEngine;
using KeyStep = void (Engine::*)();

// One code of the replayed text and the engine keys it presses, in order.
struct ReplayCode {
    char Code;
    std::array<KeyStep, 3> Steps;
};

constexpr ReplayCode ReplayTable[] = {
    {'(', {&Engine::InputLeftBracket}},
    {')', {&Engine::InputRightBracket}},
    {'=', {&Engine::DoEquals}},
    {'+', {&Engine::DoAdd}},
    {'-', {&Engine::DoSubtract}},
    {'*', {&Engine::DoMultiply}},
    {'/', {&Engine::DoDivide}},
    {'&', {&Engine::DoRemainder}},
    {'#', {&Engine::DoModulus}},
    {'\\', {&Engine::DoDiv}},
    {'|', {&Engine::DoIntDiv}},
    {'%', {&Engine::DoPercent}},
    {'^', {&Engine::DoPower}},
    {'@', {&Engine::DoInv, &Engine::DoPower}},
    {'P', {&Engine::InputPi}},
    {'Q', {&Engine::DoSqRoot}},
    {'L', {&Engine::DoLog}},
    {'l', {&Engine::DoInv, &Engine::DoLog}},
    {'E', {&Engine::DoInv, &Engine::DoLN}},
    {'n', {&Engine::DoInv, &Engine::DoLN}},
    {'e', {&Engine::DoExp}},
    {'N', {&Engine::DoLN}},
    {'W', {&Engine::DoLg2}},
    {'w', {&Engine::DoInv, &Engine::DoLg2}},
    {'C', {&Engine::DoCos}},
    {'S', {&Engine::DoSin}},
    {'T', {&Engine::DoTan}},
    {'c', {&Engine::DoInv, &Engine::DoCos}},
    {'s', {&Engine::DoInv, &Engine::DoSin}},
    {'t', {&Engine::DoInv, &Engine::DoTan}},
    {'D', {&Engine::DoHyp, &Engine::DoCos}},
    {'R', {&Engine::DoHyp, &Engine::DoSin}},
    {'U', {&Engine::DoHyp, &Engine::DoTan}},
    {'d', {&Engine::DoInv, &Engine::DoHyp, &Engine::DoCos}},
    {'r', {&Engine::DoInv, &Engine::DoHyp, &Engine::DoSin}},
    {'u', {&Engine::DoInv, &Engine::DoHyp, &Engine::DoTan}},
    {'a', {&Engine::DoAbs}},
    {'f', {&Engine::DoFloor}},
    {'i', {&Engine::DoCeiling}},
    {'g', {&Engine::DoSign}},
    {'G', {&Engine::DoGamma}},
    {'A', {&Engine::DoLnGamma}},
    {'K', {&Engine::MemoryClear}},
    {'k', {&Engine::MemoryRecall}},
    {'M', {&Engine::MemoryAdd}},
    {'m', {&Engine::MemorySubtract}},
    {'Z', {&Engine::InputRandom}},
};

struct Word {
    std::string_view Text;
    char Code;
};

constexpr Word WordTable[] = {
    {"x", '*'},         {"pi", 'P'},        {"sqrt", 'Q'},      {"log", 'L'},
    {"exp", 'E'},       {"e", 'e'},         {"ln", 'N'},        {"lg2", 'W'},
    {"cos", 'C'},       {"sin", 'S'},       {"tan", 'T'},       {"arccos", 'c'},
    {"invcos", 'c'},    {"arcsin", 's'},    {"invsin", 's'},    {"arctan", 't'},
    {"invtan", 't'},    {"cosh", 'D'},      {"hypcos", 'D'},    {"sinh", 'R'},
    {"hypsin", 'R'},    {"tanh", 'U'},      {"hyptan", 'U'},    {"arcosh", 'd'},
    {"invhypcos", 'd'}, {"hypinvcos", 'd'}, {"arsinh", 'r'},    {"invhypsin", 'r'},
    {"hypinvsin", 'r'}, {"artanh", 'u'},    {"invhyptan", 'u'}, {"hypinvtan", 'u'},
    {"abs", 'a'},       {"rem", '&'},       {"mod", '#'},       {"div", '\\'},
    {"intdiv", '|'},    {"floor", 'f'},     {"ceil", 'i'},      {"ceiling", 'i'},
    {"sgn", 'g'},       {"sign", 'g'},      {"gamma", 'G'},     {"lngamma", 'A'},
    {"mc", 'K'},        {"mr", 'k'},        {"madd", 'M'},      {"msub", 'm'},
    {"rnd", 'Z'},
};

// Operator characters of the simple evaluator ('x' multiplies).
constexpr std::string_view SimpleOperators = "()=+-*x/&#\\|%^@";

std::optional<char> FindWord(std::string_view word)
{
    for (const auto& w : WordTable)
        if (w.Text == word)
            return w.Code;
    return std::nullopt;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsLetter(char c)
{
    // Bytes of multi-byte characters count as letters, so "sïn" is an unknown word.
    const auto u = static_cast<unsigned char>(c);
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || u >= 0x80;
}

std::string TrimmedLower(std::string_view s)
{
    const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (!s.empty() && isBlank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back()))
        s.remove_suffix(1);
    std::string result(s);
    for (auto& c : result)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return result;
}

// Presses the keys of one code: a digit, a separator or a code of the replay table. Other
// codes are ignored.
void Replay(Engine& engine, char code, char decimalSeparator, char thousandSeparator)
{
    if (IsDigit(code)) {
        engine.InputDigit(static_cast<std::int8_t>(code - '0'));
    } else if (code == decimalSeparator) {
        engine.InputDecimalSeparator();
    } else if (code == thousandSeparator) {
        engine.InputThousandsSeparator();
    } else {
        for (const auto& entry : ReplayTable)
            if (entry.Code == code) {
                for (const auto step : entry.Steps)
                    if (step)
                        (engine.*step)();
                return;
            }
    }
}

// Replays the codes, stopping at the first error (the engine then shows "Error!" and its
// result is 0), and completes the calculation.
Extended ReplayAll(Engine& engine, std::string_view codes)
{
    const char decimalSeparator = FormatSettings.DecimalSeparator;
    const char thousandSeparator = FormatSettings.ThousandSeparator;
    engine.AllClear();
    for (const char code : codes) {
        Replay(engine, code, decimalSeparator, thousandSeparator);
        if (!engine.GetLastError().empty())
            return engine.GetDisplayValue();
    }
    engine.DoEquals();
    return engine.GetDisplayValue();
}

// Turns the text into one-character codes: every word becomes its code, everything else
// passes through. Returns the first unknown word in `unknown`.
std::string Translate(std::string_view text, std::string& unknown)
{
    std::string codes;
    std::size_t i = 0;
    while (i < text.size()) {
        if (!IsLetter(text[i])) {
            codes += text[i++];
            continue;
        }
        std::size_t end = i;
        while (end < text.size() && IsLetter(text[end]))
            ++end;
        // Digits end a word, unless they complete a known one ("lg2").
        for (std::size_t k = end; k < text.size() && IsDigit(text[k]); ++k)
            if (FindWord(text.substr(i, k + 1 - i)))
                end = k + 1;
        const auto word = text.substr(i, end - i);
        const auto code = FindWord(word);
        if (!code) {
            unknown = std::string(word);
            return {};
        }
        codes += *code;
        i = end;
    }
    return codes;
}

// The engine-less forms: a private engine whose percent is unary. Nobody sees its display or
// its tape, so it keeps neither.
struct PrivateEngine {
    Engine engine;
    PrivateEngine()
    {
        engine.SetBinaryPercent(false);
        engine.SetQuiet(true);
    }
};

} // namespace

Extended SimpleEvaluateStr(std::string_view S, TQORCalcEngine& Engine)
{
    const std::string text = TrimmedLower(S);
    const char decimalSeparator = FormatSettings.DecimalSeparator;
    const char thousandSeparator = FormatSettings.ThousandSeparator;
    // Intended: a word other than "pi" swallows the rest of the text.
    std::string codes;
    std::string word;
    for (const char c : text) {
        if (!word.empty())
            word += c;
        else if (IsDigit(c) || SimpleOperators.find(c) != std::string_view::npos)
            codes += c == 'x' ? '*' : c;
        else if (c == decimalSeparator || c == thousandSeparator)
            codes += c;
        else if (static_cast<unsigned char>(c) >= '!')
            word += c;
        if (word == "pi") {
            codes += 'P';
            word.clear();
        }
    }
    return ReplayAll(Engine, codes);
}

Extended SimpleEvaluateStr(std::string_view S)
{
    PrivateEngine calc;
    return SimpleEvaluateStr(S, calc.engine);
}

Extended EvaluateStr(std::string_view S, TQORCalcEngine& Engine, Extended& Memory,
                     std::string& ErrorStr, TQORAngleMode AngleMode)
{
    ErrorStr.clear();
    const bool savedPrefix = Engine.GetPrefixFunctions();
    const TQORAngleMode savedMode = Engine.GetAngleMode();
    const Extended savedMemory = Engine.GetMemoryValue();
    Engine.SetMemory(Memory);
    Engine.SetAngleMode(AngleMode);
    Engine.SetPrefixFunctions(true); // function names come before their argument

    Extended result = 0;
    std::string unknown;
    const std::string codes = Translate(TrimmedLower(S), unknown);
    if (!unknown.empty()) {
        ErrorStr = rsUnknownFunction() + " - " + unknown;
    } else {
        result = ReplayAll(Engine, codes);
        ErrorStr = Engine.GetLastError();
    }

    Engine.SetPrefixFunctions(savedPrefix);
    Engine.SetAngleMode(savedMode);
    Memory = Engine.GetMemoryValue();
    Engine.SetMemory(savedMemory);
    return result;
}

Extended EvaluateStr(std::string_view S, bool /*Unused*/, TQORAngleMode AngleMode)
{
    PrivateEngine calc;
    Extended memory = 0;
    std::string errorStr;
    const Extended result = EvaluateStr(S, calc.engine, memory, errorStr, AngleMode);
    // Intended: the message is the expression itself, not the error text.
    if (!errorStr.empty())
        throw EMathError(std::string(S));
    return result;
}

Extended EvaluateStr(std::string_view S, TQORCalcEngine& Engine, Extended& Memory,
                     TQORAngleMode AngleMode)
{
    std::string errorStr;
    return EvaluateStr(S, Engine, Memory, errorStr, AngleMode);
}

Extended EvaluateStr(std::string_view S, TQORCalcEngine& Engine, TQORAngleMode AngleMode)
{
    Extended memory = 0;
    return EvaluateStr(S, Engine, memory, AngleMode);
}

Extended EvaluateStr(std::string_view S, Extended& Memory, TQORAngleMode AngleMode)
{
    PrivateEngine calc;
    return EvaluateStr(S, calc.engine, Memory, AngleMode);
}

Extended EvaluateStr(std::string_view S, TQORAngleMode AngleMode)
{
    Extended memory = 0;
    return EvaluateStr(S, memory, AngleMode);
}

} // namespace qorkit
