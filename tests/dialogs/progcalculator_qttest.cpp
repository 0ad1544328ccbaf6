// The programmer's calculator dialog: base and size lists, digit keys per base, keyboard,
// Exit / Cancel through the component and the display functions.
#include "CalcDialogTest.h"
#include "QORKITProgCalculator.h"
#include "QORKITRegIni.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

namespace qorkit {
namespace {

using test::CalcDialogTest;
using test::WhenModal;

using ProgCalculatorTest = CalcDialogTest;

// The user picks item `index` of a list.
void Choose(TQORBaseComboBox* combo, int index)
{
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
}

TEST_F(ProgCalculatorTest, DecimalForcesSixtyFourBitsWhileTheSizeListKeepsItsChoice)
{
    TQORProgCalculator calculator;
    int baseAtStart = -1;
    int sizeAfter = -1;
    TQORBitSize engineSize = bs8Bits;
    WhenModal<TQORProgCalcForm>([&](TQORProgCalcForm& form) {
        baseAtStart = form.BaseCombo->currentIndex();
        Choose(form.BitsCombo, bs16Bits);
        EXPECT_EQ(form.GetCalcEngine().GetBitSize(), bs16Bits);
        Choose(form.BaseCombo, bdDecimal);
        engineSize = form.GetCalcEngine().GetBitSize();
        sizeAfter = form.BitsCombo->currentIndex();
        form.ExitBtn->click();
    });
    EXPECT_TRUE(calculator.Execute());
    EXPECT_EQ(baseAtStart, bdHexadecimal);
    EXPECT_EQ(engineSize, bs64Bits);
    EXPECT_EQ(sizeAfter, bs16Bits);
}

struct BaseRow {
    const char* Name;
    TQORBaseDisplay Base;
    const char* Enabled;
    const char* Disabled;
};

class ProgDigitKeys : public CalcDialogTest, public ::testing::WithParamInterface<BaseRow> { };

TEST_P(ProgDigitKeys, OnlyTheDigitsOfTheBaseAreEnabled)
{
    const BaseRow& row = GetParam();
    TQORProgCalcForm form;
    Choose(form.BaseCombo, row.Base);
    ASSERT_EQ(form.GetCalcEngine().GetBaseDisplay(), row.Base);
    const auto key = [&form](char digit) {
        static const char* const names[] = {
            "ZeroBtn",  "OneBtn",  "TwoBtn", "ThreeBtn", "FourBtn", "FiveBtn", "SixBtn", "SevenBtn",
            "EightBtn", "NineBtn", "ABtn",   "BBtn",     "CBtn",    "DBtn",    "EBtn",   "FBtn"};
        const int index = digit <= '9' ? digit - '0' : digit - 'A' + 10;
        return form.findChild<QToolButton*>(QString::fromLatin1(names[index]));
    };
    for (const char* d = row.Enabled; *d != 0; ++d)
        EXPECT_TRUE(key(*d)->isEnabled()) << *d;
    for (const char* d = row.Disabled; *d != 0; ++d)
        EXPECT_FALSE(key(*d)->isEnabled()) << *d;
    // A typed digit the base cannot take does nothing.
    if (*row.Disabled != 0) {
        const std::string before = form.GetCalcEngine().GetDisplayStr();
        QTest::keyClicks(form.KeyPanel, QString(QLatin1Char(*row.Disabled)));
        EXPECT_EQ(form.GetCalcEngine().GetDisplayStr(), before);
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, ProgDigitKeys,
                         ::testing::Values(BaseRow {"Binary", bdBinary, "01", "23456789ABCDEF"},
                                           BaseRow {"Octal", bdOctal, "01234567", "89ABCDEF"},
                                           BaseRow {"Decimal", bdDecimal, "0123456789", "ABCDEF"},
                                           BaseRow {"Hexadecimal", bdHexadecimal,
                                                    "0123456789ABCDEF", ""}),
                         [](const auto& row) { return std::string(row.param.Name); });

struct ProgKeyRow {
    const char* Name;
    const char* Keys;
    std::int64_t Expected;
};

class ProgKeys : public CalcDialogTest, public ::testing::WithParamInterface<ProgKeyRow> { };

TEST_P(ProgKeys, TypedKeysGiveTheValue)
{
    TQORProgCalcForm form; // hexadecimal, 64 bits
    form.GetCalcEngine().SetPrefixFunctions(false); // one-operand keys act on the shown value
    QTest::keyClicks(form.KeyPanel, GetParam().Keys);
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ProgKeys,
    ::testing::Values(
        ProgKeyRow {"HexDigits", "A+1=", 0xB}, ProgKeyRow {"LowerCaseHexDigits", "ff+1\r", 0x100},
        ProgKeyRow {"And", "FF&F0=", 0xF0}, ProgKeyRow {"Or", "F0|0F=", 0xFF},
        ProgKeyRow {"Xor", "6^3=", 5}, ProgKeyRow {"Nand", "F#F=", ~std::int64_t {0xF}},
        ProgKeyRow {"Nor", "1?2=", ~std::int64_t {3}},
        ProgKeyRow {"Xnor", "5!3=", ~std::int64_t {6}}, ProgKeyRow {"Mod", "11%4=", 1},
        ProgKeyRow {"ShiftLeftByOneEachTime", "1<<<", 8}, ProgKeyRow {"ShiftRight", "10>", 8},
        ProgKeyRow {"RotateRightWraps", "1}", std::numeric_limits<std::int64_t>::min()},
        ProgKeyRow {"RotateLeft", "1{", 2}, ProgKeyRow {"Not", "0~", -1},
        ProgKeyRow {"Negate", "5_", -5}, ProgKeyRow {"Brackets", "(1+2)*3=", 9},
        ProgKeyRow {"Backspace", "123\b", 0x12}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(ProgCalculatorTest, CancelKeepsValueAndMemoryEvenAfterMemoryAdd)
{
    TQORProgCalculator calculator;
    calculator.SetValue(5);
    calculator.SetMemory(7);
    EXPECT_EQ(QORProgCalcMemory, 7);
    WhenModal<TQORProgCalcForm>([](TQORProgCalcForm& form) {
        EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 5);
        form.MemoryAddBtn->click();
        EXPECT_EQ(form.GetCalcEngine().GetMemoryValue(), 12);
        form.CancelBtn->click();
    });
    EXPECT_FALSE(calculator.Execute());
    EXPECT_EQ(calculator.GetValue(), 5);
    EXPECT_EQ(calculator.GetMemory(), 7);

    WhenModal<TQORProgCalcForm>([](TQORProgCalcForm& form) {
        QTest::keyClicks(form.KeyPanel, QStringLiteral("*3="));
        form.MemoryAddBtn->click();
        form.ExitBtn->click();
    });
    EXPECT_TRUE(calculator.Execute());
    EXPECT_EQ(calculator.GetValue(), 15);
    EXPECT_EQ(calculator.GetMemory(), 22);
    EXPECT_EQ(QORProgCalcMemory, 7); // the read-back leaves the process-wide memory alone
}

TEST_F(ProgCalculatorTest, ClipboardCopiesThePanelAndPastesIntoTheEngine)
{
    TQORProgCalcForm form;
    QTest::keyClicks(form.KeyPanel, QStringLiteral("1F"));
    QTest::keyClick(form.KeyPanel, Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), form.ValueDisplay->text());
    QGuiApplication::clipboard()->setText(QStringLiteral("ABC"));
    QTest::keyClick(form.KeyPanel, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 0xABC);
    // Delete clears only the number being typed: the pending sum goes on.
    QTest::keyClicks(form.KeyPanel, QStringLiteral("+77"));
    QTest::keyClick(form.KeyPanel, Qt::Key_Delete);
    QTest::keyClicks(form.KeyPanel, QStringLiteral("2="));
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 0xABE);
}

TEST_F(ProgCalculatorTest, DisplayProgCalcKeepsMemoryWhenCancelled)
{
    UseIniSettings();
    QORProgCalcMemory = 3;
    std::int64_t value = 0x10;
    WhenModal<TQORProgCalcForm>([](TQORProgCalcForm& form) {
        EXPECT_EQ(form.GetCalcEngine().GetMemoryValue(), 3);
        form.MemoryAddBtn->click();
        form.CancelBtn->click();
    });
    EXPECT_FALSE(DisplayProgCalc("Bits", value, false));
    EXPECT_EQ(value, 0x10);
    EXPECT_EQ(QORProgCalcMemory, 0x13);

    QPoint where;
    WhenModal<TQORProgCalcForm>([&](TQORProgCalcForm& form) {
        where = form.pos();
        QTest::keyClicks(form.KeyPanel, QStringLiteral("*2="));
        form.ExitBtn->click();
    });
    EXPECT_TRUE(DisplayProgCalcPos("Bits", value, 30, 200, false));
    EXPECT_EQ(value, 0x20);
    EXPECT_EQ(where, QPoint(30, 200));
}

TEST_F(ProgCalculatorTest, ControlsCarryTheirNamesTextsAndSize)
{
    TQORProgCalcForm form;
    const char* const names[]
        = {"ABtn",      "FBtn",        "ModBtn",   "ANDBtn",       "ORBtn",
           "XORBtn",    "NANDBtn",     "NORBtn",   "XNORBtn",      "NotBtn",
           "NEGBtn",    "SHLBtn",      "SHRBtn",   "ROLBtn",       "RORBtn",
           "EqualsBtn", "AllClearBtn", "ClearBtn", "BackSpaceBtn", "MemoryRecallBtn",
           "CopyBtn",   "PasteBtn",    "ExitBtn",  "CancelBtn"};
    for (const char* name : names)
        EXPECT_NE(form.findChild<QToolButton*>(QString::fromLatin1(name)), nullptr) << name;
    EXPECT_EQ(form.ClearBtn->text(), QStringLiteral("Cl"));
    EXPECT_EQ(form.XORBtn->toolTip(), QStringLiteral("exclusive or"));
    EXPECT_EQ(form.DivideBtn->toolTip(), QStringLiteral("Divide"));
    EXPECT_EQ(form.BaseCombo->itemText(bdOctal), QStringLiteral("Oct"));
    EXPECT_EQ(form.BitsCombo->itemText(bs32Bits), QStringLiteral("32 bits"));
    EXPECT_EQ(form.size(), QSize(417, 152));
}

} // namespace
} // namespace qorkit
