// The standard and scientific calculator dialogs driven through real clicks and key presses:
// results through the component and the display functions, Exit / Cancel / close box, the
// keyboard maps, the small layout, clipboard, focus, placement, relabelled function keys and
// the component's stored settings.
#include "CalcDialogTest.h"
#include "QORKITCalculator.h"
#include "QORKITProgCalculator.h"
#include "QORKITRegIni.h"
#include "QORKITSciCalculator.h"
#include "QORKITStoreCtrl.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScreen>
#include <QSpinBox>
#include <QTest>

#include <cmath>
#include <numbers>

namespace qorkit {
namespace {

using test::CalcDialogTest;
using test::WhenModal;

using CalculatorTest = CalcDialogTest;

void ClickAll(std::initializer_list<QToolButton*> keys)
{
    for (auto* key : keys)
        QTest::mouseClick(key, Qt::LeftButton);
}

TEST_F(CalculatorTest, ClickedSumWithPrecedenceShowsAndReturns14)
{
    TQORCalculator calculator;
    calculator.SetValue(99);
    QString shown;
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        ClickAll({form.AllClearBtn, form.TwoBtn, form.AddBtn, form.ThreeBtn, form.MultiplyBtn,
                  form.FourBtn, form.EqualsBtn});
        shown = form.ValueDisplay->text();
        form.ExitBtn->click();
    });
    EXPECT_TRUE(calculator.Execute());
    EXPECT_EQ(shown, QStringLiteral("14.0000"));
    EXPECT_EQ(calculator.GetValue(), 14);
    EXPECT_EQ(calculator.GetDisplayText(), QStringLiteral("14.0000"));
    EXPECT_TRUE(calculator.GetLastError().isEmpty());
}

TEST_F(CalculatorTest, CancelKeepsValueAndMemoryEvenAfterMemoryAdd)
{
    TQORSciCalculator calculator;
    calculator.SetValue(5);
    calculator.SetMemory(7);
    calculator.SetRadians(true);
    WhenModal<TQORSciCalcForm>([](TQORSciCalcForm& form) {
        ClickAll({form.NineBtn, form.MemoryAddBtn, form.RadBtn});
        EXPECT_EQ(form.GetCalcEngine().GetMemoryValue(), 16);
        form.CancelBtn->click();
    });
    EXPECT_FALSE(calculator.Execute());
    EXPECT_EQ(calculator.GetValue(), 5);
    EXPECT_EQ(calculator.GetMemory(), 7);
    EXPECT_TRUE(calculator.GetRadians());
}

TEST_F(CalculatorTest, EscapeCancelsAndTheCloseBoxTransfers)
{
    TQORCalculator calculator;
    calculator.SetValue(1);
    WhenModal<TQORCalcForm>(
        [](TQORCalcForm& form) { QTest::keyClicks(form.KeyPanel, QStringLiteral("8\x1b")); });
    EXPECT_FALSE(calculator.Execute());
    EXPECT_EQ(calculator.GetValue(), 1);

    Extended shown = 0;
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        QTest::keyClicks(form.KeyPanel, QStringLiteral("A8"));
        shown = form.GetCalcEngine().GetDisplayValue();
        form.close();
    });
    EXPECT_TRUE(calculator.Execute());
    EXPECT_EQ(shown, 8);
    EXPECT_EQ(calculator.GetValue(), 8);
}

TEST_F(CalculatorTest, EngineErrorReachesLastErrorNotTheValue)
{
    TQORCalculator calculator;
    calculator.SetValue(3);
    WhenModal<TQORCalcForm>([](TQORCalcForm& form) {
        QTest::keyClicks(form.KeyPanel, QStringLiteral("A1/0="));
        EXPECT_EQ(form.ValueDisplay->text(), QStringLiteral("Error!"));
        form.ExitBtn->click();
    });
    EXPECT_TRUE(calculator.Execute());
    EXPECT_FALSE(calculator.GetLastError().isEmpty());
    EXPECT_TRUE(std::isfinite(calculator.GetValue()));
}

TEST_F(CalculatorTest, OnExecuteEventsReplaceTheDialog)
{
    TQORCalculator calculator;
    int seenLeft = 0;
    int seenTop = 0;
    calculator.SetOnExecute([](TQORCalculator*) { return false; });
    calculator.SetOnExecutePos([&](TQORCalculator*, std::int32_t left, std::int32_t top) {
        seenLeft = left;
        seenTop = top;
        return true;
    });
    EXPECT_FALSE(calculator.Execute());
    EXPECT_TRUE(calculator.ExecutePos(12, 34));
    EXPECT_EQ(seenLeft, 12);
    EXPECT_EQ(seenTop, 34);
}

TEST_F(CalculatorTest, StartEventSeesTheFormAtItsExplicitPosition)
{
    TQORCalculator calculator;
    calculator.SetSmallCalc(true);
    calculator.SetTitle(QStringLiteral("Totals"));
    bool started = false;
    calculator.SetOnStartCalculator([&](TQORCalculator* sender, TQORCalcForm* form) {
        started = sender == &calculator && form->GetHideFnBtns()
            && form->windowTitle() == QStringLiteral("Totals");
    });
    QPoint where;
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        where = form.pos();
        form.ExitBtn->click();
    });
    EXPECT_TRUE(calculator.ExecutePos(40, 60));
    EXPECT_TRUE(started);
    EXPECT_EQ(where, QPoint(40, 60));
}

// ---- Display functions and the settings round trip -------------------------------------------

TEST_F(CalculatorTest, DisplayCalcAcceptsTypedResult)
{
    UseIniSettings();
    Extended value = 2.5L;
    WhenModal<TQORCalcForm>([](TQORCalcForm& form) {
        EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 2.5L);
        QTest::keyClicks(form.KeyPanel, QStringLiteral("*4="));
        form.ExitBtn->click();
    });
    EXPECT_TRUE(DisplayCalc("Sum", value, 2, false));
    EXPECT_EQ(value, 10);
}

TEST_F(CalculatorTest, CancelledDisplayCalcStillSavesMemoryAndAngleMode)
{
    UseIniSettings();
    QORCalcRadians = true;
    QORCalcMemory = 0;
    Extended value = 4;
    WhenModal<TQORCalcForm>([](TQORCalcForm& form) {
        EXPECT_EQ(form.RadBtn->text(), QStringLiteral("rad"));
        QTest::keyClicks(form.KeyPanel, QStringLiteral("A6"));
        ClickAll({form.MemoryAddBtn, form.RadBtn});
        EXPECT_EQ(form.RadBtn->text(), QStringLiteral("deg"));
        form.CancelBtn->click();
    });
    EXPECT_FALSE(DisplayCalc("Cancelled", value, 2, false));
    EXPECT_EQ(value, 4);
    EXPECT_EQ(QORCalcMemory, 6);
    EXPECT_FALSE(QORCalcRadians);

    QORCalcMemory = 0;
    QORCalcRadians = true;
    LoadCalculatorSettings();
    EXPECT_EQ(QORCalcMemory, 6);
    EXPECT_FALSE(QORCalcRadians);
}

TEST_F(CalculatorTest, DisplayCalcPosWithOnlyTopMovesOnlyTheTop)
{
    QPoint where;
    QSize size;
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        where = form.pos();
        size = form.frameGeometry().size(); // the window with its frame is centred
        form.ExitBtn->click();
    });
    Extended value = 0;
    EXPECT_TRUE(DisplayCalcPos("Placed", value, -1, 200, 2, false));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(where.y(), 200);
    EXPECT_NEAR(where.x(), screen.x() + (screen.width() - size.width()) / 2, 1);
}

TEST_F(CalculatorTest, DisplayFontArgumentHoldsOnlyForTheDialog)
{
    QORCalcDispFont = "Serif";
    QString family;
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        family = form.ValueDisplay->font().family();
        form.ExitBtn->click();
    });
    Extended value = 0;
    DisplayCalc("Font", value, "Monospace", 2, false);
    EXPECT_EQ(family, QStringLiteral("Monospace"));
    EXPECT_EQ(QORCalcDispFont, "Serif");
}

// ---- Keyboard -------------------------------------------------------------------------------

struct KeyRow {
    const char* Name;
    bool Scientific;
    bool CommaDecimals;
    const char* Keys;
    long double Expected;
};

class CalculatorKeys : public CalcDialogTest, public ::testing::WithParamInterface<KeyRow> { };

TEST_P(CalculatorKeys, TypedKeysGiveTheValue)
{
    const KeyRow& row = GetParam();
    std::unique_ptr<test::CommaDecimals> comma;
    if (row.CommaDecimals)
        comma = std::make_unique<test::CommaDecimals>();
    std::unique_ptr<TQORFloatCalcForm> form;
    if (row.Scientific)
        form = std::make_unique<TQORSciCalcForm>();
    else
        form = std::make_unique<TQORCalcForm>();
    form->GetCalcEngine().SetDecimalPlaces(10);
    QTest::keyClicks(form->KeyPanel, row.Keys);
    EXPECT_NEAR(static_cast<double>(form->GetCalcEngine().GetDisplayValue()),
                static_cast<double>(row.Expected), 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CalculatorKeys,
    ::testing::Values(KeyRow {"PrecedenceAndEquals", false, false, "2+3*4=", 14},
                      KeyRow {"EnterIsEquals", false, false, "7-2*3\r", 1},
                      KeyRow {"Brackets", false, false, "(1+2)*3=", 9},
                      KeyRow {"LetterXMultiplies", false, false, "3X4=", 12},
                      KeyRow {"LowerCaseIsFolded", false, false, "3x4=", 12},
                      KeyRow {"AtSignIsXToTheOneOverY", false, false, "2@3=", std::cbrt(2.0L)},
                      KeyRow {"CaretIsPower", false, false, "2^10=", 1024},
                      KeyRow {"RIsSquareRoot", false, false, "81R", 9},
                      KeyRow {"IInverts", false, false, "4I", 0.25L},
                      KeyRow {"PIsPi", false, false, "P", std::numbers::pi_v<long double>},
                      KeyRow {"UnderscoreChangesSign", false, false, "12_", -12},
                      KeyRow {"BackspaceRemovesADigit", false, false, "123\b", 12},
                      KeyRow {"CClearsTheDisplayOnly", false, false, "5+7C2=", 7},
                      KeyRow {"AClearsEverything", false, false, "5+7A2", 2},
                      KeyRow {"PointIsTheDecimalSeparator", false, false, "1.5*2=", 3},
                      KeyRow {"CommaDoesNothingWithPointDecimals", false, false, "1,5*2=", 30},
                      KeyRow {"CommaIsTheSeparatorWhenTheLocaleSaysSo", false, true, "1,5*2=", 3},
                      KeyRow {"PointDoesNothingWithCommaDecimals", false, true, "1.5*2=", 30},
                      KeyRow {"SciEStartsTheExponent", true, false, "1E3+1=", 1001},
                      KeyRow {"SciSharesTheFloatLetters", true, false, "9R+1_=", 2},
                      KeyRow {"SciCommaDecimals", true, true, "2,5*2=", 5}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(CalculatorTest, ShortcutKeysClearCopyAndPaste)
{
    TQORCalcForm form;
    QTest::keyClicks(form.KeyPanel, QStringLiteral("12+34"));
    QTest::keyClick(form.KeyPanel, Qt::Key_Delete);
    QTest::keyClicks(form.KeyPanel, QStringLiteral("5="));
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 17); // the pending "12 +" survived

    QTest::keyClick(form.KeyPanel, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), form.ValueDisplay->text());

    QGuiApplication::clipboard()->setText(QStringLiteral("2.25"));
    QTest::keyClick(form.KeyPanel, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 2.25L);

    // The numeric pad's decimal key enters the separator even where the locale's is ",".
    const test::CommaDecimals comma;
    QTest::keyClicks(form.KeyPanel, QStringLiteral("A1"));
    QTest::keyClick(form.KeyPanel, Qt::Key_Period, Qt::KeypadModifier);
    QTest::keyClicks(form.KeyPanel, QStringLiteral("5"));
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 1.5L);
}

// F10 and the numeric pad's decimal key are shortcuts of the standard calculator only; the
// scientific one reads the pad's key as the character it types.
TEST_F(CalculatorTest, F10AndThePadDecimalKeyBelongToTheStandardCalculator)
{
    TQORCalcForm calc;
    TQORSciCalcForm sci;
    TQORProgCalcForm prog;
    for (TQORCalcFormBase* form : std::initializer_list<TQORCalcFormBase*> {&calc, &sci, &prog}) {
        form->show();
        QTest::keyClick(form->KeyPanel, Qt::Key_F10);
    }
    EXPECT_FALSE(calc.isVisible());
    EXPECT_EQ(calc.result(), QDialog::Accepted);
    EXPECT_TRUE(sci.isVisible());
    EXPECT_TRUE(prog.isVisible());

    const test::CommaDecimals comma;
    const auto padDecimal = [](TQORFloatCalcForm& form, const QString& typed) {
        QTest::keyClicks(form.KeyPanel, QStringLiteral("A1"));
        QTest::sendKeyEvent(QTest::Click, form.KeyPanel, Qt::Key_Period, typed, Qt::KeypadModifier);
        QTest::keyClicks(form.KeyPanel, QStringLiteral("5"));
        return form.GetCalcEngine().GetDisplayValue();
    };
    EXPECT_EQ(padDecimal(calc, QStringLiteral(".")), 1.5L);
    EXPECT_EQ(padDecimal(sci, QStringLiteral(".")), 15);
    EXPECT_EQ(padDecimal(sci, QStringLiteral(",")), 1.5L);
}

TEST_F(CalculatorTest, PastedTextGoesToTheEngineAndBadTextShowsError)
{
    TQORCalcForm form;
    QGuiApplication::clipboard()->setText(QStringLiteral("-1234.5"));
    form.PasteBtn->click();
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), -1234.5L);
    QTest::keyClicks(form.KeyPanel, QStringLiteral("+1="));
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), -1233.5L);

    QGuiApplication::clipboard()->setText(QStringLiteral("twelve"));
    form.PasteBtn->click();
    EXPECT_EQ(form.ValueDisplay->text(), QStringLiteral("Error!"));
    EXPECT_TRUE(std::isfinite(form.GetCalcEngine().GetDisplayValue()));
}

TEST_F(CalculatorTest, MousePressOnAKeyGivesTheFocusBackToTheKeyPanel)
{
    TQORCalcForm form;
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    form.DPSpin->setFocus();
    ASSERT_TRUE(form.DPSpin->hasFocus());
    QTest::mouseClick(form.FiveBtn, Qt::LeftButton);
    EXPECT_TRUE(form.KeyPanel->hasFocus());
    QTest::keyClicks(form.KeyPanel, QStringLiteral("5"));
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 55);
}

// A typed character clicks its key on both forms; the standard one also lets the focused
// control have it, the scientific one swallows it.
TEST_F(CalculatorTest, OnlyTheStandardCalculatorPassesTypedCharactersOn)
{
    TQORCalcForm calc;
    TQORSciCalcForm sci;
    for (TQORFloatCalcForm* form : std::initializer_list<TQORFloatCalcForm*> {&calc, &sci}) {
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
        form->DPSpin->setFocus();
        form->DPSpin->selectAll();
        QTest::sendKeyEvent(QTest::Click, form->DPSpin, Qt::Key_7, QStringLiteral("7"),
                            Qt::NoModifier);
        EXPECT_EQ(form->GetCalcEngine().GetDisplayValue(), 7);
    }
    EXPECT_EQ(calc.DPSpin->value(), 7);
    EXPECT_EQ(sci.DPSpin->value(), 4);
}

// ---- Layout ---------------------------------------------------------------------------------

TEST_F(CalculatorTest, SmallCalculatorHidesThirteenKeysAndMovesPercent)
{
    QORCalcHelpContext = 10;
    QORSmallCalcHelpContext = 11;
    TQORCalcForm form;
    EXPECT_EQ(form.GetHelpContext(), QORCalcHelpContext);
    EXPECT_EQ(form.size(), QSize(190, 2 * 30 + 8 * 22 + 5));
    const char* const functionKeys[]
        = {"PiBtn",    "EBtn",      "SinBtn",    "CosBtn",    "TanBtn", "RadBtn", "InvBtn",
           "PowerBtn", "SquareBtn", "SqRootBtn", "InvertBtn", "LogBtn", "LNBtn"};
    form.SetHideFnBtns(true);
    for (const char* name : functionKeys)
        EXPECT_TRUE(form.findChild<QToolButton*>(QString::fromLatin1(name))->isHidden()) << name;
    EXPECT_FALSE(form.PercentBtn->isHidden());
    EXPECT_EQ(form.PercentBtn->x(), form.ClearBtn->x());
    EXPECT_EQ(form.PercentBtn->y(), form.AddBtn->y());
    EXPECT_EQ(form.size(), QSize(190, 2 * (30 + 3 * 22) + 3));
    EXPECT_EQ(form.GetHelpContext(), QORSmallCalcHelpContext);
    form.SetStayOnTop(true);
    EXPECT_TRUE(form.windowFlags() & Qt::WindowStaysOnTopHint);

    // The moved percent key still works: 50 + 10 % gives the same as on the full calculator.
    ClickAll({form.FiveBtn, form.ZeroBtn, form.AddBtn, form.OneBtn, form.ZeroBtn, form.PercentBtn,
              form.EqualsBtn});
    TQORCalcForm full;
    QTest::keyClicks(full.KeyPanel, QStringLiteral("50+10"));
    full.PercentBtn->click();
    full.EqualsBtn->click();
    EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), full.GetCalcEngine().GetDisplayValue());
    EXPECT_NE(form.GetCalcEngine().GetDisplayValue(), 60);

    form.SetHideFnBtns(false);
    for (const char* name : functionKeys)
        EXPECT_FALSE(form.findChild<QToolButton*>(QString::fromLatin1(name))->isHidden()) << name;
}

TEST_F(CalculatorTest, EveryControlIsReachableByName)
{
    TQORCalcForm calc;
    TQORSciCalcForm sci;
    const char* const shared[] = {"ZeroBtn",
                                  "NineBtn",
                                  "PointBtn",
                                  "ChangeSignBtn",
                                  "AddBtn",
                                  "SubtractBtn",
                                  "MultiplyBtn",
                                  "DivideBtn",
                                  "EqualsBtn",
                                  "LeftBracketBtn",
                                  "RightBracketBtn",
                                  "BackSpaceBtn",
                                  "AllClearBtn",
                                  "ClearBtn",
                                  "MemoryClearBtn",
                                  "MemoryAddBtn",
                                  "MemorySubtractBtn",
                                  "MemoryRecallBtn",
                                  "PowerBtn",
                                  "PiBtn",
                                  "EBtn",
                                  "SquareBtn",
                                  "SqRootBtn",
                                  "InvertBtn",
                                  "LogBtn",
                                  "LNBtn",
                                  "SinBtn",
                                  "CosBtn",
                                  "TanBtn",
                                  "InvBtn",
                                  "PercentBtn",
                                  "RadBtn",
                                  "ExitBtn",
                                  "CancelBtn",
                                  "CopyBtn",
                                  "PasteBtn"};
    for (const char* name : shared) {
        EXPECT_NE(calc.findChild<QToolButton*>(QString::fromLatin1(name)), nullptr) << name;
        EXPECT_NE(sci.findChild<QToolButton*>(QString::fromLatin1(name)), nullptr) << name;
    }
    for (const char* name : {"Lg2btn", "ExpBtn", "HypBtn"})
        EXPECT_NE(sci.findChild<QToolButton*>(QString::fromLatin1(name)), nullptr) << name;
    EXPECT_EQ(sci.findChild<QSpinBox*>(QStringLiteral("DPSpin")), sci.DPSpin);
    EXPECT_EQ(calc.findChild<QWidget*>(QStringLiteral("ValueDisplay")), calc.ValueDisplay);
    EXPECT_EQ(calc.PercentBtn->toolTip(), QStringLiteral("x Percent of y"));
    EXPECT_EQ(calc.ClearBtn->text(), QStringLiteral("C"));
    EXPECT_EQ(sci.size(), QSize(220, 244));
}

TEST_F(CalculatorTest, DecimalPlacesSpinReformatsTheDisplay)
{
    TQORCalcForm form;
    QTest::keyClicks(form.KeyPanel, QStringLiteral("2@2="));
    form.DPSpin->setValue(2);
    EXPECT_EQ(form.ValueDisplay->text(), QStringLiteral("1.41"));
    form.GetCalcEngine().SetDecimalPlaces(6);
    EXPECT_EQ(form.DPSpin->value(), 6);
    EXPECT_EQ(form.ValueDisplay->text(), QStringLiteral("1.414214"));
}

TEST_F(CalculatorTest, ScientificFunctionKeysShowInvAndHyp)
{
    TQORSciCalcForm form;
    form.InvBtn->click();
    EXPECT_EQ(form.SinBtn->text(), QStringLiteral("asin"));
    EXPECT_EQ(form.LogBtn->text(), QStringLiteral("10^x"));
    EXPECT_TRUE(form.InvBtn->isChecked());
    form.HypBtn->click();
    EXPECT_EQ(form.CosBtn->text(), QStringLiteral("acosh"));
    form.InvBtn->click();
    EXPECT_EQ(form.TanBtn->text(), QStringLiteral("tanh"));
    EXPECT_EQ(form.Lg2btn->text(), QStringLiteral("lg2"));
    // Typing a number clears the toggles.
    QTest::keyClicks(form.KeyPanel, QStringLiteral("1"));
    EXPECT_EQ(form.SinBtn->text(), QStringLiteral("sin"));
    // So does using a function, and the keys read plainly again.
    form.HypBtn->click();
    EXPECT_EQ(form.SinBtn->text(), QStringLiteral("sinh"));
    form.SinBtn->click();
    EXPECT_EQ(form.SinBtn->text(), QStringLiteral("sin"));
    EXPECT_FALSE(form.HypBtn->isChecked());
    EXPECT_NEAR(static_cast<double>(form.GetCalcEngine().GetDisplayValue()), std::sinh(1.0), 1e-4);
}

// ---- Component properties ---------------------------------------------------------------------

TEST_F(CalculatorTest, StoreRoundTripUsesTheNamedKeys)
{
    TQORStoreCtrl store;
    store.SetRegIniType(ritIniFile);
    store.SetIniFileName(dir_.filePath(QStringLiteral("component.ini")));
    TQORCalculator saved;
    saved.SetStoreCtrl(&store);
    saved.SetStoreSection(QStringLiteral("Calc"));
    saved.SetDecimalPlaces(7);
    saved.SetRadians(false);
    saved.SetMemory(1.0L / 3.0L);
    saved.SetLakhFormatting(true);
    saved.SetStayOnTop(true);
    saved.SetPosition(poDesigned);
    saved.SaveToStore();

    QSettings file(store.GetIniFileName(), QSettings::IniFormat);
    EXPECT_EQ(file.value(QStringLiteral("Calc/Decimal Places")).toInt(), 7);
    EXPECT_TRUE(file.value(QStringLiteral("Calc/Lakh Formatting")).toBool());
    EXPECT_TRUE(file.contains(QStringLiteral("Calc/Show Thousands Separators")));
    EXPECT_TRUE(file.contains(QStringLiteral("Calc/Use Memory")));

    TQORCalculator loaded;
    loaded.SetStoreCtrl(&store);
    loaded.SetStoreSection(QStringLiteral("Calc"));
    loaded.LoadFromStore();
    EXPECT_EQ(loaded.GetDecimalPlaces(), 7);
    EXPECT_FALSE(loaded.GetRadians());
    EXPECT_EQ(loaded.GetMemory(), 1.0L / 3.0L);
    EXPECT_TRUE(loaded.GetLakhFormatting());
    EXPECT_TRUE(loaded.GetStayOnTop());
    EXPECT_EQ(loaded.GetPosition(), poDesigned);
    EXPECT_EQ(loaded.GetRegIni(), ritIniFile);

    saved.SetLoadMemoryAtStart(false);
    saved.SaveToStore();
    TQORCalculator noMemory;
    noMemory.SetStoreCtrl(&store);
    noMemory.SetStoreSection(QStringLiteral("Calc"));
    noMemory.LoadFromStore();
    EXPECT_EQ(noMemory.GetMemory(), 0);
}

TEST_F(CalculatorTest, ScientificAndProgrammersComponentsStartWithThePackageFont)
{
    EXPECT_EQ(QORCalcDispFont, QORDefaultCalcDispFont);
    QORCalcDispFont = "DejaVu Sans Mono";
    TQORSciCalculator sci;
    TQORProgCalculator prog;
    EXPECT_EQ(sci.GetDispFont(), QStringLiteral("DejaVu Sans Mono"));
    EXPECT_EQ(prog.GetDispFont(), QStringLiteral("DejaVu Sans Mono"));

    // And that is the font name a store keeps for them.
    TQORStoreCtrl store;
    store.SetRegIniType(ritIniFile);
    store.SetIniFileName(dir_.filePath(QStringLiteral("fonts.ini")));
    for (TQORCalcComponent* component : std::initializer_list<TQORCalcComponent*> {&sci, &prog}) {
        const QString section = QString::fromLatin1(component->metaObject()->className());
        component->SetStoreCtrl(&store);
        component->SetStoreSection(section);
        component->SaveToStore();
        ASSERT_TRUE(store.OpenStorage(section));
        EXPECT_EQ(store.ReadString(QStringLiteral("DispFont"), QString()),
                  QStringLiteral("DejaVu Sans Mono"));
        store.CloseStorage();
    }
}

class GlyphWatcher : public QObject, public IQORGlyphClient {
public:
    void GlyphChanged(QObject*) override { ++count; }
    int count = 0;
};

TEST_F(CalculatorTest, GlyphChangesReachRegisteredClientsOnly)
{
    TQORCalculator calculator;
    GlyphWatcher watcher;
    GlyphWatcher stranger;
    calculator.AddToNotifyGlyphChanges(&watcher);
    calculator.SetCloseGlyph(QORGlyphIcon(glCalc1));
    calculator.SetHiColorOnly(true);
    calculator.SetHiColorOnly(true); // unchanged: no notice
    EXPECT_EQ(watcher.count, 2);
    EXPECT_EQ(stranger.count, 0);
    calculator.RemoveFromNotifyGlyphChanges(&watcher);
    calculator.SetCalcEditGlyph(QORGlyphIcon(glCalc2));
    EXPECT_EQ(watcher.count, 2);
}

TEST_F(CalculatorTest, ComponentDefaultsAndEngine)
{
    TQORCalculator calculator;
    EXPECT_EQ(calculator.GetTitle(), QStringLiteral("Calculator"));
    EXPECT_EQ(calculator.GetExitHint(), QStringLiteral("Exit and Transfer Result"));
    EXPECT_EQ(calculator.property("DecimalPlaces").toInt(), 4);
    EXPECT_TRUE(calculator.property("ShowThousandsSeparators").toBool());
    calculator.setProperty("Version", QStringLiteral("9.9"));
    EXPECT_EQ(calculator.GetVersion(), QString::fromLatin1(QORCalcVersion));
    calculator.SetValue(12345.5L);
    calculator.SetMemory(2);
    calculator.SetRadians(false);
    TQORCalcEngine& engine = calculator.GetCalcEngine();
    EXPECT_EQ(engine.GetDisplayValue(), 12345.5L);
    EXPECT_EQ(engine.GetMemoryValue(), 2);
    EXPECT_EQ(engine.GetAngleMode(), amDegrees);
    EXPECT_EQ(engine.GetDisplayStr(), "12,345.5000");
    calculator.SetValue(std::nanl(""));
    EXPECT_EQ(calculator.GetValue(), 12345.5L);
}

} // namespace
} // namespace qorkit
