// The pieces both keystroke engines share: the guarded error path, the evaluation stack, the
// tape store's cursor, the sign clean-up and the operation code helpers.
#include "QORKITEngineToolkit.h"

#include <gtest/gtest.h>

#include <climits>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit::engine_internal {
namespace {

TEST(ErrorGuard, OnlyTheOutermostCallHandlesAFault)
{
    TQORErrorGuard guard;
    std::vector<std::string> handled;
    bool restOfOuterRan = false;
    guard.Run(
        [&] {
            guard.Run([] { throw std::runtime_error("inner"); },
                      [&](const std::string& m) { handled.push_back("inner handler: " + m); });
            restOfOuterRan = true;
        },
        [&](const std::string& m) { handled.push_back(m); });
    EXPECT_EQ(handled, std::vector<std::string> {"inner"});
    EXPECT_FALSE(restOfOuterRan);
    // The guard is usable again after a fault.
    guard.Run([] { throw std::runtime_error("again"); },
              [&](const std::string& m) { handled.push_back(m); });
    EXPECT_EQ(handled.back(), "again");
}

TEST(ErrorGuard, OutOfMemoryAlwaysPropagates)
{
    TQORErrorGuard guard;
    bool handled = false;
    EXPECT_THROW(
        guard.Run([] { throw std::bad_alloc(); }, [&](const std::string&) { handled = true; }),
        std::bad_alloc);
    EXPECT_FALSE(handled);
    // The nesting count was unwound: a later fault is handled again.
    guard.Run([] { throw std::runtime_error("x"); }, [&](const std::string&) { handled = true; });
    EXPECT_TRUE(handled);
}

TEST(EvalStack, GrowsPastItsFirstSlotsAndKeepsOrder)
{
    TQOREvalStack<int> stack;
    for (int i = 0; i < 40; ++i)
        stack.Push(i);
    EXPECT_EQ(stack.Count(), 40);
    EXPECT_EQ(stack.Below(1), 38);
    EXPECT_EQ(stack.Pop(), 39);
    stack.KeepTopOnly();
    EXPECT_EQ(stack.Count(), 1);
    EXPECT_EQ(stack.Top(), 38);
    stack.Clear();
    EXPECT_TRUE(stack.Empty());
}

struct CursorCase {
    const char* name;
    std::int32_t position;
    std::string expected;
    std::int32_t positionAfter;
};

class TapeCursor : public testing::TestWithParam<CursorCase> { };

TEST_P(TapeCursor, NextReadsFromASafePosition)
{
    TQORTapeStore<> tape;
    for (const char* line : {"a", "b", "c"})
        tape.Add(line);
    tape.SetPosition(GetParam().position);
    const std::string* next = tape.Next();
    EXPECT_EQ(next != nullptr ? *next : std::string(), GetParam().expected);
    EXPECT_EQ(tape.Position(), GetParam().positionAfter);
}

// A cleared tape keeps its slots for reuse, but none of the old lines is read again.
TEST(TapeStore, ClearedTapeShowsOnlyItsNewLines)
{
    TQORTapeStore<> tape;
    for (const char* line : {"a", "b", "c"})
        tape.Add(line);
    tape.Clear();
    tape.Add("d");
    ASSERT_EQ(tape.Lines().size(), 1U);
    EXPECT_EQ(tape.Lines()[0], "d");
    EXPECT_EQ(*tape.Last(), "d");
    EXPECT_EQ(tape.At(1), nullptr);
    EXPECT_EQ(*tape.Next(), "d");
    EXPECT_EQ(tape.Next(), nullptr);
    EXPECT_EQ(tape.Length(), 1);
}

INSTANTIATE_TEST_SUITE_P(Positions, TapeCursor,
                         testing::Values(CursorCase {"Start", -1, "a", 0},
                                         CursorCase {"Middle", 1, "c", 2},
                                         CursorCase {"AtLastLine", 2, "", 2},
                                         CursorCase {"Int32Max", INT32_MAX, "", INT32_MAX},
                                         CursorCase {"FarBelowStart", INT32_MIN, "a", 0}),
                         [](const testing::TestParamInfo<CursorCase>& row) {
                             return std::string(row.param.name);
                         });

struct SignCase {
    const char* name;
    const char* typed;
    const char* cleaned;
};

class SignCleanUp : public testing::TestWithParam<SignCase> { };

TEST_P(SignCleanUp, FoldsSignPairs)
{
    std::string text = GetParam().typed;
    CleanSigns(text);
    EXPECT_EQ(text, GetParam().cleaned);
}

INSTANTIATE_TEST_SUITE_P(
    Pairs, SignCleanUp,
    testing::Values(SignCase {"MinusMinus", "--5", "5"}, SignCase {"MinusPlus", "-+5", "5"},
                    SignCase {"PlusMinus", "+-5", "-5"}, SignCase {"ThreeMinus", "---5", "-5"},
                    SignCase {"ExponentSign", "1E+-5", "1E-5"}, SignCase {"NoSigns", "12", "12"}),
    [](const testing::TestParamInfo<SignCase>& row) { return std::string(row.param.name); });

TEST(OpCodes, SetsHoldTheirCodesAndNoOthers)
{
    constexpr TQORCodeSet set {{ocAdd, ocDiv}, "\xE9x"};
    for (int c = 0; c < 256; ++c) {
        const char code = static_cast<char>(c);
        const bool member = code == '+' || code == '\\' || code == 'x' || code == '\xE9';
        EXPECT_EQ(set.Contains(code), member) << c;
    }
    EXPECT_TRUE(kFunctionCodeSet.Contains('S'));
    EXPECT_FALSE(kFunctionCodeSet.Contains(ocAdd));
}

TEST(OpCodes, FindCodeReturnsTheRowOrNull)
{
    struct Row {
        char Code;
        int Value;
    };
    constexpr Row rows[] = {{ocAdd, 1}, {ocMultiply, 2}};
    ASSERT_NE(FindCode(rows, '*'), nullptr);
    EXPECT_EQ(FindCode(rows, '*')->Value, 2);
    EXPECT_EQ(FindCode(rows, ocNone), nullptr);
}

TEST(OpCodes, TightOperatorsWaitOnlyForAddAndMultiplyLevels)
{
    constexpr TQORCodeSet multiplicative {ocMultiply, ocModulus};
    constexpr TQORCodeSet tight {ocPower};
    EXPECT_TRUE(BindsTighter(ocMultiply, ocAdd, multiplicative, tight));
    EXPECT_FALSE(BindsTighter(ocModulus, ocMultiply, multiplicative, tight));
    EXPECT_TRUE(BindsTighter(ocPower, ocDivide, multiplicative, tight));
    // A tight operator does not bind above a multiplicative one outside + - * /.
    EXPECT_FALSE(BindsTighter(ocPower, ocModulus, multiplicative, tight));
    EXPECT_FALSE(BindsTighter(ocPower, ocPower, multiplicative, tight));
    EXPECT_FALSE(BindsTighter(ocAdd, ocMultiply, multiplicative, tight));
}

struct CountCase {
    const char* name;
    const char* text;
    std::size_t maxDigits;
    bool accepted;
    std::int32_t count; // 7 stays when the text is refused
};

class KeyCount : public testing::TestWithParam<CountCase> { };

TEST_P(KeyCount, AcceptsOnlyPlainDigitsUpToTheLimit)
{
    std::int32_t count = 7;
    EXPECT_EQ(ReadCount(GetParam().text, GetParam().maxDigits, count), GetParam().accepted);
    EXPECT_EQ(count, GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(Texts, KeyCount,
                         testing::Values(CountCase {"OneDigit", "4", 2, true, 4},
                                         CountCase {"AtTheLimit", "123456789", 9, true, 123456789},
                                         CountCase {"LeadingZeros", "007", 3, true, 7},
                                         CountCase {"PastTheLimit", "123", 2, false, 7},
                                         CountCase {"Empty", "", 2, false, 7},
                                         CountCase {"Signed", "-4", 2, false, 7},
                                         CountCase {"PlusSign", "+4", 2, false, 7},
                                         CountCase {"TrailingBlank", "4 ", 2, false, 7},
                                         CountCase {"Letter", "4x", 2, false, 7}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(NamedRows, FindNameReturnsTheRowOrNull)
{
    struct Row {
        std::string_view Name;
        int Value;
    };
    constexpr Row rows[] = {{"SHL", 1}, {"SHR", 2}};
    ASSERT_NE(FindName(rows, "SHR"), nullptr);
    EXPECT_EQ(FindName(rows, "SHR")->Value, 2);
    EXPECT_EQ(FindName(rows, "shr"), nullptr);
    EXPECT_EQ(FindName(rows, "SH"), nullptr);
}

} // namespace
} // namespace qorkit::engine_internal
