// Keys per second of the programmer's engine for typical key sequences, next to the same
// sequence worked in plain uint64 arithmetic (digits accumulated, operators applied), which
// is the floor that an engine with texts, stacks and history is measured against.
#include "QORKITProgCalcEngine.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace qorkit;

struct Sequence {
    TQORBaseDisplay base;
    TQORBitSize size;
    std::string_view keys; // digits and + - * & < ( ) =
};

constexpr Sequence kHex8 {bdHexadecimal, bs8Bits, "7F+1="};
constexpr Sequence kDecimal {bdDecimal, bs64Bits, "1234*5678-9=12+34*56="};
constexpr Sequence kBinary32 {bdBinary, bs32Bits, "11110000&10101010<=1011+(110*11)="};

void Press(TQORProgCalcEngine& e, char key)
{
    switch (key) {
    case '+':
        e.DoAdd();
        break;
    case '-':
        e.DoSubtract();
        break;
    case '*':
        e.DoMultiply();
        break;
    case '&':
        e.DoAnd();
        break;
    case '<':
        e.DoShl(1);
        break;
    case '(':
        e.InputLeftBracket();
        break;
    case ')':
        e.InputRightBracket();
        break;
    case '=':
        e.DoEquals();
        break;
    default:
        e.InputDigit(key);
        break;
    }
}

void BM_Engine(benchmark::State& state, Sequence seq)
{
    TQORProgCalcEngine e;
    e.SetBaseDisplay2(seq.base);
    e.SetBitSize2(seq.size);
    for (auto _ : state) {
        e.AllClear();
        for (char key : seq.keys)
            Press(e, key);
        benchmark::DoNotOptimize(e.GetDisplayValue());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(seq.keys.size()));
}

// The peer: the same keys with a digit accumulator, a one-level pending operator and a
// bracket register, in uint64 without texts or history. With `format`, the shown value is
// written in hexadecimal and binary with std::to_chars after every key, as a bare display
// would.
struct PlainUint64 {
    std::uint64_t radix;
    std::uint64_t mask;
    char hex[24] {};
    char bin[72] {};

    explicit PlainUint64(const Sequence& seq)
        : radix(seq.base == bdBinary        ? 2
                    : seq.base == bdDecimal ? 10
                                            : 16),
          mask(seq.size == bs64Bits ? ~0ULL : (1ULL << (8 << seq.size)) - 1)
    { }

    static std::uint64_t Apply(char op, std::uint64_t b, std::uint64_t a)
    {
        switch (op) {
        case '+':
            return b + a;
        case '-':
            return b - a;
        case '*':
            return b * a;
        case '&':
            return b & a;
        default:
            return a;
        }
    }

    std::string hexText;
    std::string binText;

    void Show(std::uint64_t v)
    {
        benchmark::DoNotOptimize(std::to_chars(hex, hex + sizeof hex, v, 16).ptr);
        benchmark::DoNotOptimize(std::to_chars(bin, bin + sizeof bin, v, 2).ptr);
    }

    // As Show, and the digits kept as the display's texts.
    void ShowTexts(std::uint64_t v)
    {
        const auto hexEnd = std::to_chars(hex, hex + sizeof hex, v, 16).ptr;
        const auto binEnd = std::to_chars(bin, bin + sizeof bin, v, 2).ptr;
        hexText = std::string(hex, hexEnd);
        binText = std::string(bin, binEnd);
        benchmark::DoNotOptimize(hexText.data());
        benchmark::DoNotOptimize(binText.data());
    }

    enum Display { None, Chars, Texts };

    std::uint64_t Run(std::string_view keys, Display display)
    {
        std::uint64_t acc = 0;
        std::uint64_t entry = 0;
        std::uint64_t saved = 0;
        char op = ' ';
        char savedOp = ' ';
        for (char key : keys) {
            if (key >= '0' && key <= '9') {
                entry = entry * radix + static_cast<std::uint64_t>(key - '0');
            } else if (key >= 'A' && key <= 'F') {
                entry = entry * radix + static_cast<std::uint64_t>(key - 'A' + 10);
            } else if (key == '<') {
                entry = (entry << 1) & mask;
            } else if (key == '(') {
                saved = acc;
                savedOp = op;
                op = ' ';
            } else if (key == ')') {
                entry = Apply(op, acc, entry) & mask;
                acc = saved;
                op = savedOp;
            } else {
                acc = Apply(op, acc, entry) & mask;
                op = key == '=' ? ' ' : key;
                entry = key == '=' ? acc : 0;
            }
            if (display == Chars)
                Show(entry);
            else if (display == Texts)
                ShowTexts(entry);
            benchmark::DoNotOptimize(entry);
        }
        return acc;
    }
};

void BM_PlainUint64(benchmark::State& state, Sequence seq)
{
    PlainUint64 plain(seq);
    for (auto _ : state)
        benchmark::DoNotOptimize(plain.Run(seq.keys, PlainUint64::None));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(seq.keys.size()));
}

constexpr Sequence kAllSequences[] = {kHex8, kDecimal, kBinary32};

std::int64_t KeyCount()
{
    std::int64_t n = 0;
    for (const auto& seq : kAllSequences)
        n += static_cast<std::int64_t>(seq.keys.size());
    return n;
}

// Every sequence, the display text read after every key as a host showing it does.
void BM_EngineShown(benchmark::State& state)
{
    TQORProgCalcEngine engines[std::size(kAllSequences)];
    for (std::size_t i = 0; i < std::size(kAllSequences); ++i) {
        engines[i].SetBaseDisplay2(kAllSequences[i].base);
        engines[i].SetBitSize2(kAllSequences[i].size);
    }
    for (auto _ : state) {
        for (std::size_t i = 0; i < std::size(kAllSequences); ++i) {
            auto& e = engines[i];
            e.AllClear();
            for (char key : kAllSequences[i].keys) {
                Press(e, key);
                benchmark::DoNotOptimize(e.GetDisplayStr().data());
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * KeyCount());
}
BENCHMARK(BM_EngineShown);

// Peers of BM_EngineShown: bare uint64 reformatting hexadecimal and binary after every key,
// into character buffers only, or into the display's two texts.
void BM_PeerUint64(benchmark::State& state, PlainUint64::Display display)
{
    PlainUint64 plain[] = {PlainUint64(kHex8), PlainUint64(kDecimal), PlainUint64(kBinary32)};
    for (auto _ : state)
        for (std::size_t i = 0; i < std::size(kAllSequences); ++i)
            benchmark::DoNotOptimize(plain[i].Run(kAllSequences[i].keys, display));
    state.SetItemsProcessed(state.iterations() * KeyCount());
}
BENCHMARK_CAPTURE(BM_PeerUint64, ToChars, PlainUint64::Chars);
BENCHMARK_CAPTURE(BM_PeerUint64, ToCharsTexts, PlainUint64::Texts);

BENCHMARK_CAPTURE(BM_Engine, Hex8, kHex8);
BENCHMARK_CAPTURE(BM_PlainUint64, Hex8, kHex8);
BENCHMARK_CAPTURE(BM_Engine, Decimal64, kDecimal);
BENCHMARK_CAPTURE(BM_PlainUint64, Decimal64, kDecimal);
BENCHMARK_CAPTURE(BM_Engine, Binary32, kBinary32);
BENCHMARK_CAPTURE(BM_PlainUint64, Binary32, kBinary32);

// Key paths beyond the three sequences, each a short routine pressed over and over with the
// display read after every key: the time per key shows a path that has fallen behind.
struct KeyRoutine {
    const char* name;
    TQORBaseDisplay base;
    TQORBitSize size;
    std::int64_t keys; // per call of run
    void (*run)(TQORProgCalcEngine& e);
};

template<class... Members> void Keys(TQORProgCalcEngine& e, Members... keys)
{
    (((e.*keys)(), benchmark::DoNotOptimize(e.GetDisplayStr().data())), ...);
}

constexpr KeyRoutine kRoutines[] = {
    {"DigitsOctal16", bdOctal, bs16Bits, 7,
     [](TQORProgCalcEngine& e) {
         for (char c : std::string_view("1234567")) {
             e.InputDigit(c);
             benchmark::DoNotOptimize(e.GetDisplayStr().data());
         }
         e.ClearDisplay();
     }},
    {"DigitsHex64", bdHexadecimal, bs64Bits, 17,
     [](TQORProgCalcEngine& e) {
         for (char c : std::string_view("FEDCBA9876543210")) {
             e.InputDigit(c);
             benchmark::DoNotOptimize(e.GetDisplayStr().data());
         }
         e.ClearDisplay();
     }},
    {"NegNotShiftRotate", bdHexadecimal, bs32Bits, 6,
     [](TQORProgCalcEngine& e) {
         e.InputDigit('5');
         Keys(e, &TQORProgCalcEngine::DoNeg, &TQORProgCalcEngine::DoNot);
         e.DoShl(3);
         e.DoRol(5);
         e.DoRor(2);
         benchmark::DoNotOptimize(e.GetDisplayStr().data());
     }},
    {"MemoryKeys", bdDecimal, bs64Bits, 6,
     [](TQORProgCalcEngine& e) {
         e.InputDigit('7');
         Keys(e, &TQORProgCalcEngine::MemoryAdd, &TQORProgCalcEngine::MemoryRecall,
              &TQORProgCalcEngine::MemorySubtract, &TQORProgCalcEngine::MemoryClear,
              &TQORProgCalcEngine::AllClear);
         benchmark::DoNotOptimize(e.GetMemoryContents().data());
     }},
    {"BracketsAndMod", bdBinary, bs16Bits, 9,
     [](TQORProgCalcEngine& e) {
         e.InputLeftBracket();
         e.InputDigit('1');
         e.InputDigit('1');
         Keys(e, &TQORProgCalcEngine::DoXor);
         e.InputDigit('1');
         Keys(e, &TQORProgCalcEngine::InputRightBracket, &TQORProgCalcEngine::DoMod);
         e.InputDigit('1');
         Keys(e, &TQORProgCalcEngine::DoEquals);
     }},
    {"BackspaceClear", bdHexadecimal, bs64Bits, 5,
     [](TQORProgCalcEngine& e) {
         e.InputDigit('A');
         e.InputDigit('B');
         Keys(e, &TQORProgCalcEngine::InputBackspace, &TQORProgCalcEngine::InputBackspace,
              &TQORProgCalcEngine::ClearDisplay);
     }},
    {"BaseAndSizeSwitch", bdHexadecimal, bs64Bits, 6,
     [](TQORProgCalcEngine& e) {
         e.InputDigit('7');
         e.SetBaseDisplay(bdBinary);
         e.SetBitSize(bs16Bits);
         e.SetBaseDisplay(bdOctal);
         e.SetBaseDisplay(bdHexadecimal);
         e.SetBitSize(bs64Bits);
         benchmark::DoNotOptimize(e.GetDisplayStr().data());
     }},
    // The host's reads after a key: every value text, the value, memory and the last line.
    {"ReadsAfterKey", bdBinary, bs32Bits, 2,
     [](TQORProgCalcEngine& e) {
         e.InputDigit('1');
         e.DoAdd();
         benchmark::DoNotOptimize(e.GetDisplayStr().data());
         benchmark::DoNotOptimize(e.GetDisplayValue());
         benchmark::DoNotOptimize(e.GetDisplayValueHex().data());
         benchmark::DoNotOptimize(e.GetDisplayValueOct().data());
         benchmark::DoNotOptimize(e.GetDisplayValueBin().data());
         benchmark::DoNotOptimize(e.GetMemoryContents().data());
         benchmark::DoNotOptimize(e.GetLastHistoryEntry().data());
         if (e.GetHistoryLength() > 64)
             e.ClearHistory();
     }},
};

void BM_KeyRoutine(benchmark::State& state, const KeyRoutine& routine)
{
    TQORProgCalcEngine e;
    e.SetBaseDisplay2(routine.base);
    e.SetBitSize2(routine.size);
    e.SetSpacing(psWord);
    for (auto _ : state) {
        routine.run(e);
        if (e.GetHistoryLength() > 256)
            e.ClearHistory();
    }
    state.SetItemsProcessed(state.iterations() * routine.keys);
}

[[maybe_unused]] const bool kRoutinesRegistered = [] {
    for (const auto& routine : kRoutines)
        benchmark::RegisterBenchmark((std::string("BM_KeyRoutine/") + routine.name).c_str(),
                                     BM_KeyRoutine, routine);
    return true;
}();

} // namespace
