// qorcalc prog: keys through the programmer's calculator engine, the display after each key,
// the value in the four bases at the end, and the history.
//
//   qorcalc prog --base hex --bits 8 "7F + 1 ="
#include "QORKITProgCalcEngine.h"
#include "QorcalcCommands.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using qorkit::IQORProgCalcEngine;
using Key = std::function<void(IQORProgCalcEngine&)>;

// A named key of the engine's table, or null.
const qorkit::TQORProgKey* NamedKey(std::string_view name)
{
    for (const auto& key : qorkit::ProgEngineKeys())
        if (key.Name == name)
            return &key;
    return nullptr;
}

// A key that takes a count (SHL:4), or null.
const qorkit::TQORProgCountedKey* CountedKey(std::string_view name)
{
    for (const auto& key : qorkit::ProgEngineCountedKeys())
        if (key.Name == name)
            return &key;
    return nullptr;
}

std::string Upper(std::string s)
{
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return s;
}

// Index of `text` in `names` (case-insensitive), or -1.
template<std::size_t N> int Choice(const std::string& text, const char* const (&names)[N])
{
    for (std::size_t i = 0; i < N; ++i)
        if (Upper(text) == Upper(names[i]))
            return static_cast<int>(i);
    return -1;
}

struct PressedKey {
    std::string Label;
    Key Action;
};

// Splits the key text into keys: named keys are whole words; anything else is a run of digits,
// each digit one key, so "7F+1=" and "7F + 1 =" both work.
bool ParseKeys(const std::string& text, std::vector<PressedKey>& keys, std::string& bad)
{
    std::istringstream words(text);
    std::string word;
    while (words >> word) {
        const std::string upper = Upper(word);
        if (const auto* named = NamedKey(upper)) {
            keys.push_back({upper, named->Press});
            continue;
        }
        const std::size_t colon = upper.find(':');
        if (const auto* counted = CountedKey(std::string_view(upper).substr(0, colon))) {
            int count = 1;
            if (colon != std::string::npos) {
                try {
                    count = std::stoi(upper.substr(colon + 1));
                } catch (const std::exception&) {
                    bad = word;
                    return false;
                }
            }
            const auto member = counted->Press;
            keys.push_back({upper, [member, count](IQORProgCalcEngine& e) { (e.*member)(count); }});
            continue;
        }
        for (char ch : upper) {
            const std::string single(1, ch);
            if (const auto* op = NamedKey(single))
                keys.push_back({single, op->Press});
            else if (std::isxdigit(static_cast<unsigned char>(ch)))
                keys.push_back({single, [ch](IQORProgCalcEngine& e) { e.InputDigit(ch); }});
            else {
                bad = word;
                return false;
            }
        }
    }
    return true;
}

int RunProg(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    static const char* const kBases[] = {"bin", "dec", "hex", "oct"};
    static const char* const kBits[] = {"8", "16", "32", "64"};
    static const char* const kSpacings[] = {"none", "byte", "word", "dword"};
    static const char* const kChanges[] = {"clear", "truncate", "extend"};

    auto args = arguments;
    std::string base = "hex";
    std::string bits = "64";
    std::string spacing = "none";
    std::string change = "clear";
    qorcalc::TakeOption(args, "--base", base);
    qorcalc::TakeOption(args, "--bits", bits);
    qorcalc::TakeOption(args, "--spacing", spacing);
    qorcalc::TakeOption(args, "--size-change", change);
    const bool noPrecedence = qorcalc::TakeFlag(args, "--no-precedence");
    const bool postfixNot = qorcalc::TakeFlag(args, "--postfix-not");
    qorcalc::EndOptions(args);
    const int baseIndex = Choice(base, kBases);
    const int bitsIndex = Choice(bits, kBits);
    const int spacingIndex = Choice(spacing, kSpacings);
    const int changeIndex = Choice(change, kChanges);
    if (baseIndex < 0 || bitsIndex < 0 || spacingIndex < 0 || changeIndex < 0) {
        err << "qorcalc prog: --base bin|dec|hex|oct, --bits 8|16|32|64, --spacing "
               "none|byte|word|dword, --size-change clear|truncate|extend\n";
        return 2;
    }
    std::string text;
    for (const auto& arg : args)
        text += arg + ' ';
    std::vector<PressedKey> keys;
    std::string bad;
    if (!ParseKeys(text, keys, bad) || keys.empty()) {
        err << "qorcalc prog: " << (bad.empty() ? "no keys given" : "unknown key '" + bad + "'")
            << " (see qorcalc prog --help)\n";
        return 2;
    }

    qorkit::TQORProgCalcEngine engine;
    engine.SetBaseDisplay2(static_cast<qorkit::TQORBaseDisplay>(baseIndex));
    engine.SetBitSize2(static_cast<qorkit::TQORBitSize>(bitsIndex));
    engine.SetSpacing(static_cast<qorkit::TQORProgSpacing>(spacingIndex));
    engine.SetSizeChange(static_cast<qorkit::TQORProgSizeChange>(changeIndex));
    engine.SetPrecedence(!noPrecedence);
    engine.SetPrefixFunctions(!postfixNot);
    engine.AllClear();

    // The base's own name: the engine's base text answers "Hex" for octal.
    out << kBases[baseIndex] << ", " << engine.GetBitSizeStr() << '\n';
    for (const auto& key : keys) {
        key.Action(engine);
        out << "  " << std::left << std::setw(8) << key.Label << engine.GetDisplayStr() << '\n';
    }
    if (!engine.GetLastError().empty())
        out << "error: " << engine.GetLastError() << '\n';

    // The final value as each base shows it at the engine's word size.
    const std::int64_t value = engine.GetDisplayValue();
    out << "value (" << engine.GetBitSizeStr() << "):\n";
    for (int b = 0; b < 4; ++b) {
        qorkit::TQORProgCalcEngine view;
        view.SetBaseDisplay2(static_cast<qorkit::TQORBaseDisplay>(b));
        view.SetBitSize2(engine.GetBitSize());
        view.SetSpacing(engine.GetSpacing());
        view.InputValue(value);
        out << "  " << kBases[b] << "  " << view.GetDisplayStr() << '\n';
    }
    if (engine.GetMemoryValue() != 0)
        out << "memory: " << engine.GetMemoryContents() << '\n';

    out << "history:\n";
    engine.HistoryStart();
    for (std::int32_t i = 0; i < engine.GetHistoryLength(); ++i)
        out << "  " << engine.GetNextHistoryEntry() << '\n';
    return 0;
}

const bool registered = qorcalc::RegisterCommand(
    {"prog",
     "[--base bin|dec|hex|oct] [--bits 8|16|32|64] [--spacing none|byte|word|dword] "
     "[--size-change clear|truncate|extend] [--no-precedence] [--postfix-not] KEYS",
     "programmer's calculator: digits, + - * / ( ) =, MOD AND OR XOR NAND NOR XNOR NOT NEG, "
     "SHL SHR ROL ROR (SHL:4 shifts by 4), MC M+ M- MR, AC (all clear) CL BS, BIN DEC HEX OCT, "
     "BITS8..BITS64",
     RunProg});

} // namespace
