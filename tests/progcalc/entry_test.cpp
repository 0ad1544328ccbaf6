// Digit entry per base and size, display texts and grouping, and a new engine's state.
#include "ProgCase.h"

namespace qorkit::test {
namespace {

constexpr std::int64_t kDecimalWrap = -6101065172474983726; // 12345678901234567890 - 2^64

const ProgCase kEntryRows[] = {
    {.name = "Hex8TwoDigitsAreUnsigned",
     .size = bs8Bits,
     .keys = "FF",
     .display = "FF",
     .value = 255},
    {.name = "Hex8ThirdDigitSwallowed",
     .size = bs8Bits,
     .keys = "123",
     .display = "12",
     .value = 0x12},
    {.name = "Hex16LowerCaseLetters",
     .size = bs16Bits,
     .keys = "abcd",
     .display = "ABCD",
     .value = 0xABCD},
    {.name = "Hex64SixteenDigitsSigned",
     .keys = "FFFFFFFFFFFFFFFF0",
     .display = "FFFFFFFFFFFFFFFF",
     .value = -1},
    {.name = "Hex32LeadingZerosDropped",
     .size = bs32Bits,
     .keys = "0007",
     .display = "7",
     .value = 7},
    {.name = "Bin8NinthDigitSwallowed",
     .base = bdBinary,
     .size = bs8Bits,
     .keys = "101010101",
     .display = "10101010",
     .value = 170},
    {.name = "Bin8IgnoresOtherDigits",
     .base = bdBinary,
     .size = bs8Bits,
     .keys = "12A1",
     .display = "11",
     .value = 3},
    {.name = "Bin16FullWord",
     .base = bdBinary,
     .size = bs16Bits,
     .keys = "1000000000000001",
     .display = "1000000000000001",
     .value = 0x8001},
    {.name = "Oct8ThreeDigitsCutToByte",
     .base = bdOctal,
     .size = bs8Bits,
     .keys = "777",
     .display = "777",
     .value = 255},
    {.name = "Oct16SeventhDigitSwallowed",
     .base = bdOctal,
     .size = bs16Bits,
     .keys = "1777777",
     .display = "177777",
     .value = 0xFFFF},
    {.name = "Oct32CarryAboveSizeIsZero",
     .base = bdOctal,
     .size = bs32Bits,
     .keys = "40000000000",
     .display = "40000000000",
     .value = 0},
    {.name = "Oct8IgnoresEightAndNine",
     .base = bdOctal,
     .size = bs8Bits,
     .keys = "1892",
     .display = "12",
     .value = 10},
    {.name = "Dec20CharactersWrap",
     .base = bdDecimal,
     .keys = "123456789012345678901",
     .display = "12345678901234567890",
     .value = kDecimalWrap},
    {.name = "DecIgnoresHexLetters",
     .base = bdDecimal,
     .keys = "1A2",
     .display = "12",
     .value = 12},
    {.name = "DecMinusSign", .base = bdDecimal, .keys = "-5", .display = "-5", .value = -5},
    {.name = "DecZeroAfterSignKept",
     .base = bdDecimal,
     .keys = "-05",
     .display = "-05",
     .value = -5},
    {.name = "DecMinusMinusCancels", .base = bdDecimal, .keys = "--", .display = "0", .value = 0},
    // The second sign goes in front of the first: "-" then "+" reads "+-", a minus.
    {.name = "DecPlusInFrontOfMinus", .base = bdDecimal, .keys = "-+", .display = "-", .value = 0},
    {.name = "DecMinusInFrontOfPlus", .base = bdDecimal, .keys = "+-", .display = "0", .value = 0},
    {.name = "DecRepeatedPlusKept", .base = bdDecimal, .keys = "++5", .display = "++5", .value = 5},
    {.name = "DecSignedEntryUsed",
     .base = bdDecimal,
     .keys = "-12+5=",
     .display = "-7",
     .value = -7},
    {.name = "BackspaceRemovesLastDigit",
     .size = bs16Bits,
     .keys = "ABC[BS]",
     .display = "AB",
     .value = 0xAB},
    {.name = "BackspaceOnEmptyEntry",
     .size = bs16Bits,
     .keys = "[BS][BS]",
     .display = "0000",
     .value = 0},
    {.name = "ClearDisplayKeepsPending",
     .base = bdDecimal,
     .keys = "5+7[CL]3=",
     .display = "8",
     .value = 8},
    {.name = "AllClearDropsPending",
     .base = bdDecimal,
     .keys = "5+7[AC]3=",
     .display = "3",
     .value = 3},
    // Grouping with spacing: from the right, one blank between groups.
    {.name = "Hex32WordSpacingZero", .size = bs32Bits, .display = "0000 0000", .spacing = psWord},
    {.name = "Bin32ByteSpacingZero",
     .base = bdBinary,
     .size = bs32Bits,
     .display = "00000000 00000000 00000000 00000000",
     .spacing = psByte},
    {.name = "Oct32ByteSpacingEntry",
     .base = bdOctal,
     .size = bs32Bits,
     .keys = "37777777777",
     .display = "37 777 777 777",
     .value = 0xFFFFFFFF,
     .spacing = psByte},
    {.name = "Oct64WordSpacingResult",
     .base = bdOctal,
     .keys = "1234567=",
     .display = "0000 000000 000001 234567",
     .value = 01234567,
     .spacing = psWord},
    {.name = "Hex64DWordSpacingResult",
     .keys = "0-1=",
     .display = "FFFFFFFF FFFFFFFF",
     .value = -1,
     .spacing = psDWord},
    {.name = "DecimalNeverGrouped",
     .base = bdDecimal,
     .keys = "1234567=",
     .display = "1234567",
     .value = 1234567,
     .spacing = psDWord},
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
