// Base, word-size and spacing changes, their notifications and history lines, and the texts
// of the modes.
#include "ProgCase.h"

#include <limits>

namespace qorkit::test {
namespace {

const ProgCase kModeRows[] = {
    {"DecMinusOneToHex", bdDecimal, bs64Bits, "-1[HEX]", "FFFFFFFFFFFFFFFF", -1},
    {"Hex8ToDecIsUnsigned", bdHexadecimal, bs8Bits, "FF[DEC]", "255", 255},
    {"Hex8NegativeResultToDec", bdHexadecimal, bs8Bits, "0-1=[DEC]", "255", 255},
    {"Bin8ToOctToHex", bdBinary, bs8Bits, "11111111[OCT]", "377", 255},
    {"Oct64ToDec", bdOctal, bs64Bits, "0-1=[DEC]", "-1", -1},
    {"Hex16ToBin", bdHexadecimal, bs16Bits, "A5[BIN]", "0000000010100101", 0xA5},
    {"BaseChangeKeepsEntryGoing", bdDecimal, bs64Bits, "15[HEX]1", "F1", 0xF1},
    // A decimal value becomes an entry of just its own digits: 255 is "FF", 8 is octal "10",
    // 5 is binary "0101"; a backspace then leaves one digit fewer.
    {"DecToHexThenBackspace", bdDecimal, bs64Bits, "255[HEX][BS]", "F", 15},
    {"DecToOctThenBackspace", bdDecimal, bs64Bits, "8[OCT][BS]", "1", 1},
    {"DecToBinThenBackspace", bdDecimal, bs64Bits, "5[BIN][BS]", "010", 2},
    {"BaseChangeWithPendingOperator", bdHexadecimal, bs64Bits, "5+[DEC]3=", "8", 8},
    {"PendingOperatorShowsZero", bdHexadecimal, bs64Bits, "5*[BIN]",
     "0000000000000000000000000000000000000000000000000000000000000000", 5},
    {"ClearOnSizeChange", bdHexadecimal, bs8Bits, "80[16]", "0000", 0},
    {"ExtendMovesSignBit", bdHexadecimal, bs8Bits, "80[16]", "8000", 0x8000, "extend"},
    {"ExtendAllOnes", bdHexadecimal, bs8Bits, "FF[16]", "807F", 0x807F, "extend"},
    {"ExtendShrinks", bdHexadecimal, bs16Bits, "8001[8]", "81", 0x81, "extend"},
    {"ExtendPositiveLikeTruncate", bdHexadecimal, bs8Bits, "7F[16]", "007F", 0x7F, "extend"},
    {"ExtendResult", bdHexadecimal, bs8Bits, "7F+1=[16]", "8000", 0x8000, "extend"},
    {"ExtendTo64", bdHexadecimal, bs32Bits, "80000000[64]", "8000000000000000",
     std::numeric_limits<std::int64_t>::min(), "extend"},
    // -1 at 64 bits: the sign bit moves from bit 63 to bit 31 over 31 one bits.
    {"ExtendDecimalEntryTo32", bdDecimal, bs64Bits, "-1[32]", "4294967295", 0xFFFFFFFF, "extend"},
    {"TruncateEntry", bdHexadecimal, bs16Bits, "1234[8]", "34", 0x34, "truncate"},
    {"TruncateResultKeepsValue", bdHexadecimal, bs16Bits, "1234+0=[8]", "34", 0x1234, "truncate"},
    {"SizeChangeCompletesExpression", bdHexadecimal, bs64Bits, "5+3[32]", "00000008", 8,
     "truncate"},
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

// A size outside the four (a cast, a corrupt stored setting) works as 64 bits, the size its
// text already names; shifts and rotates never see a width beyond the word.
TEST_F(ProgModesTest, SizeOutsideTheFourWorksAs64Bits)
{
    using Setter = void (IQORProgCalcEngine::*)(TQORBitSize);
    for (Setter set : {&IQORProgCalcEngine::SetBitSize, &IQORProgCalcEngine::SetBitSize2}) {
        for (unsigned raw : {4U, 7U, 255U}) {
            SCOPED_TRACE(raw);
            d.Setup(bdHexadecimal, bs8Bits);
            IQORProgCalcEngine& e = d.Engine();
            (e.*set)(static_cast<TQORBitSize>(raw));
            EXPECT_EQ(e.GetBitSize(), bs64Bits);
            EXPECT_EQ(e.GetBitSizeStr(), "64 bits");
            d.Press("1[SHL 1]");
            EXPECT_EQ(d.Value(), 2);
            d.Press("[AC]8000000000000001[ROL 1]");
            EXPECT_EQ(d.Display(), "0000000000000003");
            d.Press("[AC]8000000000000000[SHR 63]");
            EXPECT_EQ(d.Value(), 1);
        }
    }
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
