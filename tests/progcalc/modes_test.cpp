// Base, word-size and spacing changes, their notifications and history lines, and the texts
// of the modes.
#include "ProgCase.h"

#include <limits>

namespace qorkit::test {
namespace {

const ProgCase kModeRows[] = {
    {.name = "DecMinusOneToHex",
     .base = bdDecimal,
     .keys = "-1[HEX]",
     .display = "FFFFFFFFFFFFFFFF",
     .value = -1},
    {.name = "Hex8ToDecIsUnsigned",
     .size = bs8Bits,
     .keys = "FF[DEC]",
     .display = "255",
     .value = 255},
    {.name = "Hex8NegativeResultToDec",
     .size = bs8Bits,
     .keys = "0-1=[DEC]",
     .display = "255",
     .value = 255},
    {.name = "Bin8ToOctToHex",
     .base = bdBinary,
     .size = bs8Bits,
     .keys = "11111111[OCT]",
     .display = "377",
     .value = 255},
    {.name = "Oct64ToDec", .base = bdOctal, .keys = "0-1=[DEC]", .display = "-1", .value = -1},
    {.name = "Hex16ToBin",
     .size = bs16Bits,
     .keys = "A5[BIN]",
     .display = "0000000010100101",
     .value = 0xA5},
    {.name = "BaseChangeKeepsEntryGoing",
     .base = bdDecimal,
     .keys = "15[HEX]1",
     .display = "F1",
     .value = 0xF1},
    {.name = "BaseChangeWithPendingOperator", .keys = "5+[DEC]3=", .display = "8", .value = 8},
    {.name = "PendingOperatorShowsZero",
     .keys = "5*[BIN]",
     .display = "0000000000000000000000000000000000000000000000000000000000000000",
     .value = 5},
    {.name = "ClearOnSizeChange", .size = bs8Bits, .keys = "80[16]", .display = "0000", .value = 0},
    {.name = "ExtendMovesSignBit",
     .size = bs8Bits,
     .keys = "80[16]",
     .display = "8000",
     .value = 0x8000,
     .change = pscExtend},
    {.name = "ExtendAllOnes",
     .size = bs8Bits,
     .keys = "FF[16]",
     .display = "807F",
     .value = 0x807F,
     .change = pscExtend},
    {.name = "ExtendShrinks",
     .size = bs16Bits,
     .keys = "8001[8]",
     .display = "81",
     .value = 0x81,
     .change = pscExtend},
    {.name = "ExtendPositiveLikeTruncate",
     .size = bs8Bits,
     .keys = "7F[16]",
     .display = "007F",
     .value = 0x7F,
     .change = pscExtend},
    {.name = "ExtendResult",
     .size = bs8Bits,
     .keys = "7F+1=[16]",
     .display = "8000",
     .value = 0x8000,
     .change = pscExtend},
    {.name = "ExtendTo64",
     .size = bs32Bits,
     .keys = "80000000[64]",
     .display = "8000000000000000",
     .value = std::numeric_limits<std::int64_t>::min(),
     .change = pscExtend},
    {.name = "TruncateEntry",
     .size = bs16Bits,
     .keys = "1234[8]",
     .display = "34",
     .value = 0x34,
     .change = pscTruncate},
    {.name = "TruncateResultKeepsValue",
     .size = bs16Bits,
     .keys = "1234+0=[8]",
     .display = "34",
     .value = 0x1234,
     .change = pscTruncate},
    {.name = "SizeChangeCompletesExpression",
     .keys = "5+3[32]",
     .display = "00000008",
     .value = 8,
     .change = pscTruncate},
};

class ModesKeys : public ProgKeysTest { };
TEST_P(ModesKeys, Row) { RunRow(); }
INSTANTIATE_TEST_SUITE_P(Prog, ModesKeys, ::testing::ValuesIn(kModeRows), ProgCaseName);

class ProgModesTest : public GlobalStateTest {
protected:
    ProgKeyDriver d;
};

TEST_F(ProgModesTest, DecimalForces64BitsAndNotifies)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("FF[DEC]");
    EXPECT_EQ(d.Engine().GetBitSize(), bs64Bits);
    EXPECT_EQ(d.Count("Base"), 1);
    EXPECT_EQ(d.Count("BitSize"), 1);
    EXPECT_EQ(d.Count("Memory"), 1);
    EXPECT_EQ(d.Engine().GetLastHistoryEntry(), "Dec");
    d.Press("[OCT]");
    EXPECT_EQ(d.Engine().GetBaseDisplayStr(), "Hex"); // octal answers "Hex"
    EXPECT_EQ(d.Engine().GetLastHistoryEntry(), "Oct");
    d.Press("[BIN]");
    EXPECT_EQ(d.Engine().GetBaseDisplayStr(), "Bin");
    d.ClearEvents();
    d.Press("[BIN]"); // unchanged: nothing happens
    EXPECT_TRUE(d.Events().empty());
}

TEST_F(ProgModesTest, QuietSettersNeitherNotifyNorWriteHistory)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("FF");
    d.ClearEvents();
    const auto lines = d.History();
    d.Engine().SetBaseDisplay2(bdDecimal);
    EXPECT_EQ(d.Engine().GetBitSize(), bs8Bits); // no forced 64 bits
    d.Engine().SetBitSize2(bs16Bits);
    EXPECT_EQ(d.Count("Base") + d.Count("BitSize") + d.Count("Memory"), 0);
    EXPECT_EQ(d.History().size(), lines.size() + 2); // the completed entries "FF" and "255"
    EXPECT_EQ(d.Display(), "255");
}

TEST_F(ProgModesTest, SizeChangeNotificationsAndHistory)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Press("80[16]");
    EXPECT_EQ(d.History(), std::vector<std::string> {"16 bits"});
    EXPECT_EQ(d.Count("BitSize"), 1);
    EXPECT_EQ(d.Count("Memory"), 1);
    d.Engine().SetSizeChange(pscExtend);
    EXPECT_EQ(d.Count("SizeChange"), 0); // storing the mode notifies nobody
    EXPECT_EQ(d.Engine().GetSizeChangeStr(), "Extend");
}

TEST_F(ProgModesTest, ModeTexts)
{
    IQORProgCalcEngine& e = d.Engine();
    const std::pair<TQORBitSize, const char*> sizes[] = {
        {bs8Bits, "8 bits"}, {bs16Bits, "16 bits"}, {bs32Bits, "32 bits"}, {bs64Bits, "64 bits"}};
    for (const auto& [size, text] : sizes) {
        e.SetBitSize2(size);
        EXPECT_EQ(e.GetBitSizeStr(), text);
    }
    const std::pair<TQORProgSpacing, const char*> spacings[] = {{psByte, "Byte Spacing"},
                                                                {psWord, "Word Spacing"},
                                                                {psDWord, "DWord Spacing"},
                                                                {psNoSpacing, "No Spacing"}};
    for (const auto& [spacing, text] : spacings) {
        e.SetSpacing(spacing);
        EXPECT_EQ(e.GetSpacingStr(), text);
    }
    e.SetSizeChange(pscTruncate);
    EXPECT_EQ(e.GetSizeChangeStr(), "Truncate");
    e.SetSizeChange(pscClear);
    EXPECT_EQ(e.GetSizeChangeStr(), "Clear");
}

TEST_F(ProgModesTest, DisplayValueTextsInEveryBase)
{
    d.Setup(bdHexadecimal, bs8Bits);
    d.Engine().SetSpacing(psByte);
    d.Press("FF"); // during entry the binary getter gives the octal text (kept)
    EXPECT_EQ(d.Engine().GetDisplayValueHex(), "FF");
    EXPECT_EQ(d.Engine().GetDisplayValueOct(), "377");
    EXPECT_EQ(d.Engine().GetDisplayValueBin(), "377");
    d.Setup(bdHexadecimal, bs64Bits);
    d.Engine().SetSpacing(psByte);
    d.Press("0-1=");
    EXPECT_EQ(d.Engine().GetDisplayValueHex(), "FF FF FF FF FF FF FF FF");
    EXPECT_EQ(d.Engine().GetDisplayValueOct(), "1 777 777 777 777 777 777 777");
    EXPECT_EQ(d.Engine().GetDisplayValueBin(),
              "11111111 11111111 11111111 11111111 11111111 11111111 "
              "11111111 11111111");
    d.Engine().AllClear();
    EXPECT_EQ(d.Engine().GetDisplayValueHex(), "");
}

TEST_F(ProgModesTest, SpacingNotifiesAndRegroups)
{
    d.Setup(bdBinary, bs16Bits);
    d.Press("1010101111001101");
    d.Engine().SetSpacing(psByte);
    EXPECT_EQ(d.Count("Spacing"), 1);
    EXPECT_EQ(d.Count("Memory"), 1);
    EXPECT_EQ(d.Display(), "10101011 11001101");
    d.Engine().SetSpacing(psWord);
    EXPECT_EQ(d.Display(), "1010101111001101");
}

} // namespace
} // namespace qorkit::test
