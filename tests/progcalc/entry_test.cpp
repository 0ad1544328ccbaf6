// Digit entry per base and size, display texts and grouping, and a new engine's state.
#include "ProgCase.h"

namespace qorkit::test {
namespace {

constexpr std::int64_t kDecimalWrap = -6101065172474983726; // 12345678901234567890 - 2^64

const ProgCase kEntryRows[] = {
    {"Hex8TwoDigitsAreUnsigned", bdHexadecimal, bs8Bits, "FF", "FF", 255},
    {"Hex8ThirdDigitSwallowed", bdHexadecimal, bs8Bits, "123", "12", 0x12},
    {"Hex16LowerCaseLetters", bdHexadecimal, bs16Bits, "abcd", "ABCD", 0xABCD},
    {"Hex64SixteenDigitsSigned", bdHexadecimal, bs64Bits, "FFFFFFFFFFFFFFFF0", "FFFFFFFFFFFFFFFF",
     -1},
    {"Hex32LeadingZerosDropped", bdHexadecimal, bs32Bits, "0007", "7", 7},
    {"Bin8NinthDigitSwallowed", bdBinary, bs8Bits, "101010101", "10101010", 170},
    {"Bin8IgnoresOtherDigits", bdBinary, bs8Bits, "12A1", "11", 3},
    {"Bin16FullWord", bdBinary, bs16Bits, "1000000000000001", "1000000000000001", 0x8001},
    {"Oct8ThreeDigitsCutToByte", bdOctal, bs8Bits, "777", "777", 255},
    {"Oct16SeventhDigitSwallowed", bdOctal, bs16Bits, "1777777", "177777", 0xFFFF},
    {"Oct32CarryAboveSizeIsZero", bdOctal, bs32Bits, "40000000000", "40000000000", 0},
    {"Oct8IgnoresEightAndNine", bdOctal, bs8Bits, "1892", "12", 10},
    {"Dec20CharactersWrap", bdDecimal, bs64Bits, "123456789012345678901", "12345678901234567890",
     kDecimalWrap},
    {"DecIgnoresHexLetters", bdDecimal, bs64Bits, "1A2", "12", 12},
    {"DecMinusSign", bdDecimal, bs64Bits, "-5", "-5", -5},
    {"DecZeroAfterSignKept", bdDecimal, bs64Bits, "-05", "-05", -5},
    {"DecMinusMinusCancels", bdDecimal, bs64Bits, "--", "0", 0},
    // The second sign goes in front of the first: "-" then "+" reads "+-", a minus.
    {"DecPlusInFrontOfMinus", bdDecimal, bs64Bits, "-+", "-", 0},
    {"DecMinusInFrontOfPlus", bdDecimal, bs64Bits, "+-", "0", 0},
    {"DecRepeatedPlusKept", bdDecimal, bs64Bits, "++5", "++5", 5},
    {"DecSignedEntryUsed", bdDecimal, bs64Bits, "-12+5=", "-7", -7},
    {"BackspaceRemovesLastDigit", bdHexadecimal, bs16Bits, "ABC[BS]", "AB", 0xAB},
    {"BackspaceOnEmptyEntry", bdHexadecimal, bs16Bits, "[BS][BS]", "0000", 0},
    {"ClearDisplayKeepsPending", bdDecimal, bs64Bits, "5+7[CL]3=", "8", 8},
    {"AllClearDropsPending", bdDecimal, bs64Bits, "5+7[AC]3=", "3", 3},
    // Grouping with spacing: from the right, one blank between groups.
    {"Hex32WordSpacingZero", bdHexadecimal, bs32Bits, "", "0000 0000", 0, "word"},
    {"Bin32ByteSpacingZero", bdBinary, bs32Bits, "", "00000000 00000000 00000000 00000000", 0,
     "byte"},
    {"Oct32ByteSpacingEntry", bdOctal, bs32Bits, "37777777777", "37 777 777 777", 0xFFFFFFFF,
     "byte"},
    {"Oct64WordSpacingResult", bdOctal, bs64Bits, "1234567=", "0000 000000 000001 234567", 01234567,
     "word"},
    {"Hex64DWordSpacingResult", bdHexadecimal, bs64Bits, "0-1=", "FFFFFFFF FFFFFFFF", -1, "dword"},
    {"DecimalNeverGrouped", bdDecimal, bs64Bits, "1234567=", "1234567", 1234567, "dword"},
};

class EntryKeys : public ProgKeysTest { };
TEST_P(EntryKeys, Row) { RunRow(); }
INSTANTIATE_TEST_SUITE_P(Prog, EntryKeys, ::testing::ValuesIn(kEntryRows), ProgCaseName);

class ProgEngineTest : public GlobalStateTest { };

TEST_F(ProgEngineTest, NewEngineShowsBinaryZerosUntilRefreshed)
{
    TQORProgCalcEngine e;
    EXPECT_EQ(e.GetDisplayStr(), "00000000");
    EXPECT_EQ(e.GetBaseDisplay(), bdHexadecimal);
    EXPECT_EQ(e.GetBitSize(), bs64Bits);
    EXPECT_EQ(e.GetSpacing(), psNoSpacing);
    EXPECT_EQ(e.GetSizeChange(), pscClear);
    EXPECT_EQ(e.GetMaxDisplayLength(), 26);
    EXPECT_EQ(e.GetMemoryValue(), 0);
    EXPECT_TRUE(e.GetPrecedence());
    EXPECT_TRUE(e.GetPrefixFunctions());
    EXPECT_FALSE(e.GetMemoryHistory());
    EXPECT_EQ(e.GetHistoryLength(), 0);
    EXPECT_EQ(e.GetHistoryPosition(), -1);
    EXPECT_EQ(e.GetLastError(), "");
    e.ClearDisplay();
    EXPECT_EQ(e.GetDisplayStr(), "0000000000000000");
}

TEST_F(ProgEngineTest, DirectSignDigitLeavesMinusZeroEntry)
{
    ProgKeyDriver d;
    d.Setup(bdDecimal, bs64Bits);
    d.Engine().InputDigit('-');
    EXPECT_EQ(d.Display(), "-");
    d.Press("5"); // the entry was "-0"; only leading zeros at the very front are stripped
    EXPECT_EQ(d.Display(), "-05");
    EXPECT_EQ(d.Value(), -5);
    d.Setup(bdDecimal, bs64Bits);
    d.Press("12");
    d.Engine().InputDigit('-'); // a sign goes in front of the digits typed so far
    EXPECT_EQ(d.Display(), "-12");
    d.Engine().InputDigit('-');
    EXPECT_EQ(d.Display(), "12");
    EXPECT_EQ(d.Value(), 12);
}

TEST_F(ProgEngineTest, OctalShowsBitsAboveSmallSizes)
{
    ProgKeyDriver d;
    d.Setup(bdOctal, bs8Bits);
    d.Engine().SetMemory(-1);
    EXPECT_EQ(d.Engine().GetMemoryContents(), "777");
    d.Press("0-1="); // a result shows the cut pattern
    EXPECT_EQ(d.Display(), "377");
    EXPECT_EQ(d.History().at(2), "001");
}

TEST_F(ProgEngineTest, DecimalDisplayCutToMaxLength)
{
    ProgKeyDriver d;
    d.Setup(bdDecimal, bs64Bits);
    d.Engine().SetMaxDisplayLength(4);
    d.Engine().InputValue(-123456);
    EXPECT_EQ(d.Display(), "-123");
    EXPECT_EQ(d.Value(), -123456);
    EXPECT_EQ(d.History(), std::vector<std::string> {"-123"});
}

TEST_F(ProgEngineTest, InputStringParsesInCurrentBase)
{
    ProgKeyDriver d;
    d.Setup(bdHexadecimal, bs16Bits);
    d.Engine().InputString("1ffff"); // cut to the size
    EXPECT_EQ(d.Value(), 0xFFFF);
    EXPECT_EQ(d.History().size(), 0U);
    d.Press("+1=");
    EXPECT_EQ(d.Display(), "0000");
    EXPECT_EQ(d.Value(), 0);
    d.Setup(bdDecimal, bs64Bits);
    d.Engine().InputString("-42");
    d.Press("*2=");
    EXPECT_EQ(d.Value(), -84);
}

} // namespace
} // namespace qorkit::test
