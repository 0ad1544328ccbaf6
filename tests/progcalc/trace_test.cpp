// Long seeded random key sequences through the programmer's engine, every observable result
// folded into one hash per sequence and compared with the hashes recorded in
// data/prog_trace_golden.inc. Any change of a display text, value text, value, memory, error,
// history line or event order under any key, base, size, spacing or mode shows up here.
//
// The sequences differ in how the host reads the engine, since reads have effects of their
// own (a read of the value takes the entry): everything after every key, the display only,
// or reads mixed in as random steps; and in whether handlers are assigned (some of which read
// the engine from inside the event).
//
// To record the hashes anew after an intended change of behaviour, run the test with
// QORKIT_PROG_TRACE_OUT=<file> and replace data/prog_trace_golden.inc with that file.
#include "QORKITProgCalcEngine.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iomanip>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit::test {
namespace {

constexpr std::uint64_t kGolden[] = {
#include "data/prog_trace_golden.inc"
};
constexpr std::size_t kSequences = std::size(kGolden);

// 64-bit FNV-1a over everything the engine shows.
class TraceHash {
public:
    void Add(std::string_view s)
    {
        for (char c : s)
            Byte(static_cast<unsigned char>(c));
        Byte(0xFF); // separator: "ab","c" differs from "a","bc"
    }
    void Add(std::int64_t v)
    {
        auto u = static_cast<std::uint64_t>(v);
        for (int i = 0; i < 8; ++i, u >>= 8)
            Byte(static_cast<unsigned char>(u & 0xFFU));
    }
    std::uint64_t Value() const { return h_; }

private:
    void Byte(unsigned char b)
    {
        h_ ^= b;
        h_ *= 0x100000001B3ULL;
    }
    std::uint64_t h_ = 0xCBF29CE484222325ULL;
};

// One random sequence: its own generator (portable: raw mt19937_64 outputs only), engine,
// reading style and handlers.
class TraceRun {
public:
    explicit TraceRun(std::uint64_t seed) : rng_(seed)
    {
        readStyle_ = Pick(3);
        if (Pick(2) == 0)
            AssignHandlers();
        e_.SetBaseDisplay2(static_cast<TQORBaseDisplay>(Pick(4)));
        e_.SetBitSize2(static_cast<TQORBitSize>(Pick(4)));
    }

    std::uint64_t Run(int keys)
    {
        for (int i = 0; i < keys; ++i) {
            Guard([&] { Step(); });
            if (readStyle_ == 0)
                Guard([&] { ReadAll(); });
            else if (readStyle_ == 1)
                hash_.Add(e_.GetDisplayStr());
        }
        Guard([&] { ReadAll(); });
        Guard([&] { ReadTape(); });
        return hash_.Value();
    }

private:
    unsigned Pick(unsigned n) { return static_cast<unsigned>(rng_() % n); }

    // A failure that escapes a call is part of the trace (none is expected to).
    template<class F> void Guard(F&& f)
    {
        try {
            f();
        } catch (const std::exception& ex) {
            hash_.Add("escaped");
            hash_.Add(ex.what());
        }
    }

    void AssignHandlers()
    {
        // The display and history handlers read the engine from inside the event.
        e_.SetOnDisplayChange([this](IQORProgCalcEngine* s) {
            hash_.Add("display");
            hash_.Add(s->GetDisplayStr());
        });
        e_.SetOnHistoryChange([this](IQORProgCalcEngine* s) {
            hash_.Add("history");
            hash_.Add(s->GetLastHistoryEntry());
            hash_.Add(s->GetHistoryLength());
        });
        e_.SetOnError([this](IQORProgCalcEngine* s) {
            hash_.Add("error");
            hash_.Add(s->GetLastError());
        });
        e_.SetOnMemoryChange([this](IQORProgCalcEngine* s) {
            hash_.Add("memory");
            hash_.Add(s->GetMemoryContents());
        });
        e_.SetOnBaseDisplayChange([this](IQORProgCalcEngine*) { hash_.Add("base"); });
        e_.SetOnBitSizeChange([this](IQORProgCalcEngine*) { hash_.Add("size"); });
        e_.SetOnSpacingChange([this](IQORProgCalcEngine*) { hash_.Add("spacing"); });
    }

    void ReadAll()
    {
        hash_.Add(e_.GetDisplayStr());
        hash_.Add(e_.GetDisplayValueHex());
        hash_.Add(e_.GetDisplayValueOct());
        hash_.Add(e_.GetDisplayValueBin());
        hash_.Add(e_.GetDisplayValue());
        hash_.Add(e_.GetDisplayStr()); // after the value read took the entry
        hash_.Add(e_.GetLastError());
        hash_.Add(e_.GetMemoryContents());
        hash_.Add(e_.GetMemoryValue());
        hash_.Add(e_.GetHistoryLength());
        hash_.Add(e_.GetHistoryPosition());
        hash_.Add(e_.GetLastHistoryEntry());
        hash_.Add(e_.GetHistoryEntry(static_cast<std::uint16_t>(e_.GetHistoryLength() - 1)));
        hash_.Add(e_.GetBaseDisplayStr());
        hash_.Add(e_.GetBitSizeStr());
        hash_.Add(e_.GetSpacingStr());
        hash_.Add(e_.GetSizeChangeStr());
    }

    void ReadTape()
    {
        const std::int32_t n = e_.GetHistoryLength();
        for (std::int32_t i = 0; i < n; ++i)
            hash_.Add(e_.GetHistoryEntry(static_cast<std::uint16_t>(i)));
        e_.HistoryStart();
        for (std::int32_t i = 0; i <= n; ++i)
            hash_.Add(e_.GetNextHistoryEntry());
    }

    // One random read, for the style that mixes reads into the keys.
    void ReadOne()
    {
        switch (Pick(8)) {
        case 0:
            hash_.Add(e_.GetDisplayValue());
            break;
        case 1:
            hash_.Add(e_.GetDisplayValueHex());
            break;
        case 2:
            hash_.Add(e_.GetDisplayValueOct());
            break;
        case 3:
            hash_.Add(e_.GetDisplayValueBin());
            break;
        case 4:
            hash_.Add(e_.GetNextHistoryEntry());
            break;
        case 5:
            hash_.Add(e_.GetHistoryEntry(static_cast<std::uint16_t>(Pick(40))));
            break;
        case 6:
            hash_.Add(e_.GetLastHistoryEntry());
            break;
        default:
            hash_.Add(e_.GetDisplayStr());
            break;
        }
    }

    void Step()
    {
        static constexpr std::string_view kDigits = "0123456789ABCDEFabcdef-+G ";
        static constexpr void (IQORProgCalcEngine::*kPlain[])() = {
            &IQORProgCalcEngine::DoAdd,
            &IQORProgCalcEngine::DoSubtract,
            &IQORProgCalcEngine::DoMultiply,
            &IQORProgCalcEngine::DoDivide,
            &IQORProgCalcEngine::DoMod,
            &IQORProgCalcEngine::DoAnd,
            &IQORProgCalcEngine::DoOr,
            &IQORProgCalcEngine::DoXor,
            &IQORProgCalcEngine::DoXnor,
            &IQORProgCalcEngine::DoNor,
            &IQORProgCalcEngine::DoNand,
            &IQORProgCalcEngine::DoNeg,
            &IQORProgCalcEngine::DoNot,
            &IQORProgCalcEngine::InputLeftBracket,
            &IQORProgCalcEngine::InputRightBracket,
            &IQORProgCalcEngine::DoEquals,
            &IQORProgCalcEngine::DoResult,
            &IQORProgCalcEngine::InputBackspace,
            &IQORProgCalcEngine::ClearDisplay,
            &IQORProgCalcEngine::MemoryAdd,
            &IQORProgCalcEngine::MemorySubtract,
            &IQORProgCalcEngine::MemoryRecall,
            &IQORProgCalcEngine::MemoryClear,
            &IQORProgCalcEngine::PaperLine,
            &IQORProgCalcEngine::HistoryStart,
        };
        static constexpr void (IQORProgCalcEngine::*kCounted[])(std::int32_t)
            = {&IQORProgCalcEngine::DoShl, &IQORProgCalcEngine::DoShr, &IQORProgCalcEngine::DoRol,
               &IQORProgCalcEngine::DoRor};

        const unsigned kind = Pick(100);
        hash_.Add(static_cast<std::int64_t>(kind));
        if (kind < 50) { // digits, mostly valid ones of the base
            const unsigned limit = Pick(4) == 0    ? static_cast<unsigned>(kDigits.size())
                : e_.GetBaseDisplay() == bdBinary  ? 2U
                : e_.GetBaseDisplay() == bdOctal   ? 8U
                : e_.GetBaseDisplay() == bdDecimal ? 10U
                                                   : 16U;
            e_.InputDigit(kDigits[Pick(limit)]);
        } else if (kind < 82) {
            (e_.*kPlain[Pick(static_cast<unsigned>(std::size(kPlain)))])();
        } else if (kind < 86) {
            // Mostly small counts; sometimes out of range either way.
            const auto count = Pick(5) == 0 ? static_cast<std::int32_t>(Pick(140)) - 70
                                            : static_cast<std::int32_t>(Pick(9));
            (e_.*kCounted[Pick(4)])(count);
        } else if (kind < 89) {
            e_.SetBaseDisplay(static_cast<TQORBaseDisplay>(Pick(4)));
        } else if (kind < 91) {
            e_.SetBitSize(static_cast<TQORBitSize>(Pick(4)));
        } else if (kind < 92) {
            e_.SetSpacing(static_cast<TQORProgSpacing>(Pick(4)));
        } else {
            Rare();
        }
    }

    // Modes, values typed in as a whole, and clears: each rarely.
    void Rare()
    {
        switch (Pick(15)) {
        case 0:
            e_.AllClear();
            break;
        case 1:
            e_.SetSizeChange(static_cast<TQORProgSizeChange>(Pick(3)));
            break;
        case 2:
            e_.SetPrecedence(Pick(2) == 0);
            break;
        case 3:
            e_.SetPrefixFunctions(Pick(2) == 0);
            break;
        case 4:
            e_.SetMemoryHistory(Pick(2) == 0);
            break;
        case 5:
            e_.SetMaxDisplayLength(static_cast<std::uint8_t>(Pick(4) == 0 ? Pick(30) : 26));
            break;
        case 6:
            e_.InputValue(static_cast<std::int64_t>(rng_() >> Pick(64)));
            break;
        case 7: {
            static constexpr std::string_view kTexts[]
                = {"FF", "-12", "1010", "777", "G1", "", "7FFFFFFFFFFFFFFF", "1 0"};
            e_.InputString(std::string(kTexts[Pick(8)]));
            break;
        }
        case 8:
            e_.SetMemory(static_cast<std::int64_t>(rng_()));
            break;
        case 9:
            e_.SetBaseDisplay2(static_cast<TQORBaseDisplay>(Pick(4)));
            break;
        case 10:
            e_.SetBitSize2(static_cast<TQORBitSize>(Pick(4)));
            break;
        case 11:
            e_.ClearHistory();
            break;
        case 12:
            e_.SetHistoryPosition(static_cast<std::int32_t>(Pick(12)) - 2);
            break;
        default:
            if (readStyle_ == 2)
                ReadOne();
            else
                e_.InputDigit('0');
            break;
        }
        if (readStyle_ == 2 && Pick(3) == 0)
            ReadOne();
    }

    std::mt19937_64 rng_;
    unsigned readStyle_ = 0;
    TQORProgCalcEngine e_;
    TraceHash hash_;
};

class ProgTrace : public GlobalStateTest { };

TEST_F(ProgTrace, RandomSequencesMatchTheRecordedTraces)
{
    constexpr int kKeysPerSequence = 400;
    std::vector<std::uint64_t> hashes;
    for (std::size_t i = 0; i < kSequences; ++i)
        hashes.push_back(TraceRun(0x9E3779B97F4A7C15ULL * (i + 1)).Run(kKeysPerSequence));

    if (const char* out = std::getenv("QORKIT_PROG_TRACE_OUT")) {
        std::ofstream file(out);
        for (std::size_t i = 0; i < hashes.size(); ++i)
            file << "0x" << std::hex << std::uppercase << std::setw(16) << std::setfill('0')
                 << hashes[i] << "ULL," << ((i % 4 == 3) ? "\n" : " ");
    }
    int mismatches = 0;
    for (std::size_t i = 0; i < kSequences; ++i) {
        if (hashes[i] != kGolden[i] && ++mismatches <= 10)
            ADD_FAILURE() << "sequence " << i << " differs from its recorded trace";
    }
    EXPECT_EQ(mismatches, 0);
}

} // namespace
} // namespace qorkit::test
