// Memory keys, history lines and their regrouping getters, and the notifications.
#include "ProgCase.h"

#include <limits>

namespace qorkit::test {
namespace {

using Lines = std::vector<std::string>;

class ProgMemoryTest : public GlobalStateTest {
protected:
    ProgKeyDriver d;
};

TEST_F(ProgMemoryTest, RecallIsAnExtraOperand)
{
    d.Setup(bdDecimal, bs64Bits);
    d.Engine().SetMemory(3);
    d.ClearEvents();
    d.Press("5+[MR]=");
    EXPECT_EQ(d.Display(), "8");
    EXPECT_EQ(d.Count("Memory"), 0);
    EXPECT_EQ(d.History(), (Lines {"5", "+", "MR", "=", "8"}));
}

TEST_F(ProgMemoryTest, AddAndSubtractCompleteFirst)
{
    d.Setup(bdDecimal, bs64Bits);
    d.Press("2*3[M+]4[M-]");
    EXPECT_EQ(d.Engine().GetMemoryValue(), 2);
    EXPECT_EQ(d.Count("Memory"), 2);
    d.Press("[AC]"); // all clear keeps the memory
    EXPECT_EQ(d.Engine().GetMemoryValue(), 2);
    d.Press("[M+]"); // nothing to add
    EXPECT_EQ(d.Engine().GetMemoryValue(), 2);
    d.Press("[MC]");
    EXPECT_EQ(d.Engine().GetMemoryValue(), 0);
}

TEST_F(ProgMemoryTest, MemoryIsNotCutAndWraps)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("FF[M+]FF[M+]");
    EXPECT_EQ(d.Engine().GetMemoryValue(), 510);
    EXPECT_EQ(d.Engine().GetMemoryContents(), "FE");
    d.Engine().SetMemory(std::numeric_limits<std::int64_t>::max());
    d.Press("1[M+]");
    EXPECT_EQ(d.Engine().GetMemoryValue(), std::numeric_limits<std::int64_t>::min());
}

TEST_F(ProgMemoryTest, MemoryHistoryLines)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Engine().SetMemoryHistory(true);
    d.Press("2A[M+][MR][MC]");
    const std::string prefix = rsMemoryHistoryPrefix();
    EXPECT_EQ(d.History(),
              (Lines {"2A", "M+", "[" + prefix + "2A ]", "MR", "[" + prefix + "2A ]", "MC",
                      "[" + prefix + "00 ]"}));
}

TEST_F(ProgMemoryTest, HistoryOfKeys)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("7F+1=");
    EXPECT_EQ(d.History(), (Lines {"7F", "+", "01", "=", "80"}));
    d.Setup(bdDecimal, bs64Bits);
    d.Press("(2&3)|4%5#[SHL 4]");
    EXPECT_EQ(d.History(),
              (Lines {"(", "2", "AND", "3", ")", "OR", "4", "MOD", "5", "NAND", "SHL 4"}));
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("~0F=_{}");
    d.Engine().PaperLine();
    EXPECT_EQ(d.History(),
              (Lines {"NOT", "0F", "=", "F0", "NEG", "ROL 1", "ROR 1", "- - - - - - - - - - -"}));
}

TEST_F(ProgMemoryTest, HistoryEntriesRegroupInCurrentSpacing)
{
    d.Setup(bdHexadecimal, bs32Bits);
    d.Press("12345678&1[16]"); // truncate is not set: the size change clears first
    d.Engine().SetSizeChange(pscTruncate);
    d.Press("ABCD[SHL 4]");
    d.Engine().SetSpacing(psByte);
    IQORProgCalcEngine& e = d.Engine();
    EXPECT_EQ(d.History(), (Lines {"16 bits", "ABCD", "SHL 4"}));
    EXPECT_EQ(e.GetHistoryEntry(0), "16 bi ts"); // every line is regrouped, words too
    EXPECT_EQ(e.GetHistoryEntry(1), "AB CD");
    EXPECT_EQ(e.GetHistoryEntry(2), "SH L4");
    EXPECT_EQ(e.GetHistoryEntry(3), "");
    EXPECT_EQ(e.GetLastHistoryEntry(), "SHL 4"); // does not begin with a digit
    d.Press("[32]");
    EXPECT_EQ(e.GetLastHistoryEntry(), "32 bits"); // size lines stay as written
    d.Press("[AC]&");
    EXPECT_EQ(e.GetLastHistoryEntry(), "A ND"); // "A" is a hexadecimal digit
    d.Press("[AC]");
    e.InputValue(0x1234567);
    EXPECT_EQ(e.GetLastHistoryEntry(), "01 23 45 67");
}

TEST_F(ProgMemoryTest, HistoryReading)
{
    IQORProgCalcEngine& e = d.Engine();
    EXPECT_EQ(e.GetNextHistoryEntry(), "");
    d.Press("1+2");
    ASSERT_EQ(e.GetHistoryLength(), 2);
    e.HistoryStart();
    EXPECT_EQ(e.GetNextHistoryEntry(), "0000000000000001");
    EXPECT_EQ(e.GetHistoryPosition(), 0);
    EXPECT_EQ(e.GetNextHistoryEntry(), "+");
    EXPECT_EQ(e.GetNextHistoryEntry(), ""); // stays on the last line
    EXPECT_EQ(e.GetHistoryPosition(), 1);
    e.SetHistoryPosition(0);
    EXPECT_EQ(e.GetNextHistoryEntry(), "+");
    e.ClearHistory();
    EXPECT_EQ(e.GetHistoryLength(), 0);
    EXPECT_EQ(e.GetHistoryPosition(), -1);
}

TEST_F(ProgMemoryTest, AnyReadPositionIsSafe)
{
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    IQORProgCalcEngine& e = d.Engine();
    for (std::int32_t position : {kMax, kMin, -7, 5}) {
        e.SetHistoryPosition(position);
        EXPECT_EQ(e.GetNextHistoryEntry(), "") << "empty history at " << position;
    }
    d.Press("1+2");
    for (std::int32_t position : {kMax, 1, 2}) {
        e.SetHistoryPosition(position);
        EXPECT_EQ(e.GetNextHistoryEntry(), "") << position;
        EXPECT_EQ(e.GetHistoryPosition(), position);
    }
    for (std::int32_t position : {kMin, -7}) {
        e.SetHistoryPosition(position);
        EXPECT_EQ(e.GetNextHistoryEntry(), "0000000000000001") << position;
        EXPECT_EQ(e.GetHistoryPosition(), 0);
    }
}

TEST_F(ProgMemoryTest, EveryChangeNotifiesOnlyItsOwnHandler)
{
    d.Press("5");
    EXPECT_EQ(d.Events(), Lines {"Display"});
    d.ClearEvents();
    d.Press("+");
    EXPECT_EQ(d.Events(), (Lines {"History", "Display", "History"}));
    d.ClearEvents();
    d.Engine().SetMemory(1);
    EXPECT_EQ(d.Events(), Lines {"Memory"});

    // Without handlers nothing is called and nothing breaks.
    TQORProgCalcEngine bare;
    bare.SetOnDisplayChange(nullptr);
    bare.InputDigit('1');
    bare.DoDivide();
    bare.InputDigit('0');
    bare.DoEquals();
    EXPECT_EQ(bare.GetDisplayStr(), "Error!");
}

} // namespace
} // namespace qorkit::test
