// Once an engine has been through a routine of keys, pressing it again allocates nothing: the
// display, the value texts, the history lines and the texts the getters hand out all reuse
// their storage. Counted with a replacement of the global allocation functions.
#include "QORKITProgCalcEngine.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <new>
#include <string_view>
#include <utility>

namespace {

long g_allocations = 0; // counted while g_counting is set
bool g_counting = false;

// Out of line, so the compiler does not pair a free with the new of the caller's container.
[[gnu::noinline]] void Release(void* p) noexcept { std::free(p); }

} // namespace

void* operator new(std::size_t size)
{
    if (g_counting)
        ++g_allocations;
    if (void* p = std::malloc(size == 0 ? 1 : size))
        return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { Release(p); }
void operator delete(void* p, std::size_t) noexcept { Release(p); }

namespace qorkit::test {
namespace {

// The keys of a routine, one character each: digits, "+-*/%&|^" operators, "()" brackets,
// "=" equals, "n" NEG, "t" NOT, "<" SHL 3, "r" ROL 5, "M" M+, "R" MR, "m" M-, "c" MC,
// "b" backspace, "C" clear, "A" all clear; "s" switches to
// 16 bits and "S" back to 64, "H" reads the value texts, memory and last history line.
void PressRoutine(TQORProgCalcEngine& e, std::string_view keys)
{
    using Engine = TQORProgCalcEngine;
    static constexpr std::pair<char, void (Engine::*)()> kKeys[] = {
        {'+', &Engine::DoAdd},
        {'-', &Engine::DoSubtract},
        {'*', &Engine::DoMultiply},
        {'/', &Engine::DoDivide},
        {'%', &Engine::DoMod},
        {'&', &Engine::DoAnd},
        {'|', &Engine::DoOr},
        {'^', &Engine::DoXor},
        {'(', &Engine::InputLeftBracket},
        {')', &Engine::InputRightBracket},
        {'=', &Engine::DoEquals},
        {'n', &Engine::DoNeg},
        {'t', &Engine::DoNot},
        {'M', &Engine::MemoryAdd},
        {'R', &Engine::MemoryRecall},
        {'m', &Engine::MemorySubtract},
        {'c', &Engine::MemoryClear},
        {'b', &Engine::InputBackspace},
        {'C', &Engine::ClearDisplay},
        {'A', &Engine::AllClear},
    };
    for (const char k : keys) {
        const auto* key = std::find_if(std::begin(kKeys), std::end(kKeys),
                                       [k](const auto& entry) { return entry.first == k; });
        if (key != std::end(kKeys)) {
            (e.*(key->second))();
        } else if (k == '<') {
            e.DoShl(3);
        } else if (k == 'r') {
            e.DoRol(5);
        } else if (k == 's' || k == 'S') {
            e.SetBitSize(k == 's' ? bs16Bits : bs64Bits);
        } else if (k == 'H') {
            (void)e.GetDisplayValue();
            (void)e.GetDisplayValueHex().size();
            (void)e.GetDisplayValueOct().size();
            (void)e.GetDisplayValueBin().size();
            (void)e.GetMemoryContents().size();
            (void)e.GetLastHistoryEntry().size();
        } else {
            e.InputDigit(k);
        }
        (void)e.GetDisplayStr().size();
    }
}

struct AllocationRow {
    const char* Name;
    TQORBaseDisplay base;
    TQORBitSize size;
    TQORProgSpacing spacing;
    const char* keys;
};

class SteadyStateAllocations : public GlobalStateTest,
                               public ::testing::WithParamInterface<AllocationRow> { };

TEST_P(SteadyStateAllocations, RepeatingARoutineAllocatesNothing)
{
    const AllocationRow& row = GetParam();
    TQORProgCalcEngine e;
    e.SetBaseDisplay2(row.base);
    e.SetBitSize2(row.size);
    e.SetSpacing(row.spacing);
    e.SetMemoryHistory(false);
    for (int i = 0; i < 3; ++i) { // the first rounds size every buffer
        PressRoutine(e, row.keys);
        e.AllClear();
    }
    g_allocations = 0;
    g_counting = true;
    for (int i = 0; i < 20; ++i) {
        PressRoutine(e, row.keys);
        e.AllClear();
    }
    g_counting = false;
    EXPECT_EQ(g_allocations, 0) << "keys " << row.keys;
}

INSTANTIATE_TEST_SUITE_P(
    Routines, SteadyStateAllocations,
    ::testing::Values(
        AllocationRow {"BinaryDigitsAndOperators", bdBinary, bs64Bits, psNoSpacing,
                       "1011011101111011111011111101111111+1111111111111111111111111111111=H"},
        AllocationRow {"OctalWithSpacing", bdOctal, bs32Bits, psWord, "7654321*(12-3)%5=H"},
        AllocationRow {"DecimalSignsAndMemory", bdDecimal, bs64Bits, psNoSpacing,
                       "-12345678901234567*9=MR+1=mRcHn=H"},
        AllocationRow {"HexOneOperandKeys", bdHexadecimal, bs64Bits, psDWord,
                       "FEDCBA9876543210nt<r&F0F0|1^2=H"},
        AllocationRow {"BackspaceClearAndSizes", bdHexadecimal, bs64Bits, psByte,
                       "ABCDEFbbC12s34S56=H"}),
    RowName<AllocationRow>);

} // namespace
} // namespace qorkit::test
