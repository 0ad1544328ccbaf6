// The calculator dialogs as Qt dialogs: children of the window that opens them, centred on its
// screen or on it as their position says, retranslated while open, and followed through their
// engine objects by any number of listeners.
#include "CalcDialogTest.h"
#include "QORKITCalculator.h"
#include "QORKITEngineObjects.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"
#include "QORKITTranslation.h"

#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <cstdlib>

namespace qorkit {
namespace {

using test::CalcDialogTest;
using test::WhenModal;

class QtDialogTest : public CalcDialogTest {
protected:
    void SetUp() override
    {
        CalcDialogTest::SetUp();
        host_.setGeometry(300, 200, 800, 600);
        host_.show();
        host_.activateWindow();
    }
    // The dialog is centred on the host window (within a pixel of rounding).
    void ExpectCentredOnHost(const QWidget& dialog) const
    {
        const QPoint offset = dialog.frameGeometry().center() - host_.frameGeometry().center();
        EXPECT_LE(offset.manhattanLength(), 2) << offset.x() << "," << offset.y();
    }
    QWidget host_;
};

// The free functions open the dialog as the host's child, but centred on the screen (a host
// near the top edge must not push the dialog off it); the component's own Position may still
// centre it on the host.
TEST_F(QtDialogTest, FreeFunctionsOpenAsChildOfTheirParentCentredOnTheScreen)
{
    host_.setGeometry(20, 20, 200, 100);
    const QRect screen = host_.screen()->availableGeometry();
    const auto expectCentredOnScreen = [&](const QWidget& form) {
        EXPECT_EQ(form.parentWidget(), &host_);
        const QPoint offset = form.frameGeometry().center() - screen.center();
        EXPECT_LE(offset.manhattanLength(), 2) << offset.x() << "," << offset.y();
    };
    int shown = 0;
    WhenModal<TQORSciCalcForm>([&](TQORSciCalcForm& form) {
        ++shown;
        expectCentredOnScreen(form);
        form.ExitClick();
    });
    Extended value = 2;
    EXPECT_TRUE(DisplaySciCalc("Parent", value, 2, false, &host_));
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        ++shown;
        expectCentredOnScreen(form);
        form.ExitClick();
    });
    EXPECT_TRUE(DisplayCalc("Parent", value, 2, false, &host_));
    WhenModal<TQORProgCalcForm>([&](TQORProgCalcForm& form) {
        ++shown;
        expectCentredOnScreen(form);
        form.ExitClick();
    });
    std::int64_t integer = 5;
    EXPECT_TRUE(DisplayProgCalc("Parent", integer, false, &host_));
    // A position given for one coordinate keeps the other one centred.
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        ++shown;
        EXPECT_EQ(form.y(), 200);
        EXPECT_LE(std::abs(form.frameGeometry().center().x() - screen.center().x()), 2);
        form.ExitClick();
    });
    EXPECT_TRUE(DisplayCalcPos("Parent", value, -1, 200, 2, false, &host_));
    EXPECT_EQ(shown, 4);
}

TEST_F(QtDialogTest, ComponentOpensOverItsOwnersWindow)
{
    auto* panel = new QWidget(&host_); // the owner is a widget inside the window
    TQORProgCalculator calculator(panel);
    calculator.SetPosition(poMainFormCenter);
    QSignalSpy started(&calculator, &TQORCalcComponent::startCalculator);
    int shown = 0;
    WhenModal<TQORProgCalcForm>([&](TQORProgCalcForm& form) {
        ++shown;
        EXPECT_EQ(form.parentWidget(), &host_);
        ExpectCentredOnHost(form);
        form.ExitClick();
    });
    EXPECT_TRUE(calculator.Execute());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(started.count(), 1); // OnStartCalculator's signal, before the dialog ran
}

TEST_F(QtDialogTest, TwoListenersFollowTheEngineOfAnOpenDialog)
{
    int first = 0;
    int second = 0;
    QString lastText;
    QPointer<QObject> gone = new QObject;
    WhenModal<TQORCalcForm>([&](TQORCalcForm& form) {
        TQORCalcEngineObject* front = form.GetEngineObject();
        ASSERT_NE(front, nullptr);
        QObject keeper;
        QObject::connect(front, &TQORCalcEngineObject::displayChange, &keeper, [&] {
            ++first;
            lastText = front->GetDisplayText();
        });
        QObject::connect(front, &TQORCalcEngineObject::displayChange, gone.data(),
                         [&] { ++second; });
        QTest::keyClicks(form.KeyPanel, QStringLiteral("12+"));
        EXPECT_GT(first, 0);
        EXPECT_EQ(first, second);
        delete gone.data(); // disconnects itself
        const int before = second;
        QTest::keyClicks(form.KeyPanel, QStringLiteral("3="));
        EXPECT_EQ(second, before);
        EXPECT_GT(first, before);
        // The dialog's own panel still follows the engine.
        EXPECT_EQ(form.ValueDisplay->text(), lastText);
        EXPECT_EQ(lastText, front->GetDisplayText());
        form.ExitClick();
    });
    Extended value = 0;
    EXPECT_TRUE(DisplayCalc("Sum", value, 2, false, &host_));
    EXPECT_EQ(value, 15);
    EXPECT_TRUE(gone.isNull());
}

// Translates two of the calculator's texts, as a Linguist file would.
class TestTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* = nullptr,
                      int = -1) const override
    {
        if (qstrcmp(context, "QORKIT_RS_Calc") != 0)
            return {};
        if (qstrcmp(source, "Calculator") == 0)
            return QStringLiteral("Rechner");
        if (qstrcmp(source, "MC") == 0)
            return QStringLiteral("SL");
        return {};
    }
};

TEST_F(QtDialogTest, SwitchingTheTranslatorRetranslatesAnOpenDialog)
{
    InstallQtTranslationHook();
    TQORCalcForm form(&host_);
    TQORProgCalcForm titled(&host_);
    titled.setWindowTitle(QStringLiteral("Bits"));
    form.show();
    titled.show();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Calculator"));
    TestTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange); // Qt posts the change
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Rechner"));
    EXPECT_EQ(form.MemoryClearBtn->text(), QStringLiteral("SL"));
    EXPECT_EQ(titled.MemoryClearBtn->text(), QStringLiteral("SL"));
    EXPECT_EQ(titled.windowTitle(), QStringLiteral("Bits")) << "the host's caption stays";
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Calculator"));
    EXPECT_EQ(form.MemoryClearBtn->text(), QStringLiteral("MC"));
}

TEST_F(CalcDialogTest, EngineObjectsPressNamedKeys)
{
    TQORCalcEngineObject calc;
    QSignalSpy tape(&calc, &TQORCalcEngineObject::historyChange);
    for (const char* key : {"2", "+", "3", "="})
        EXPECT_TRUE(calc.PressKey(QString::fromLatin1(key))) << key;
    EXPECT_FALSE(calc.PressKey(QStringLiteral("nosuchkey")));
    EXPECT_EQ(static_cast<double>(calc.GetEngine().GetDisplayValue()), 5.0);
    EXPECT_GT(tape.count(), 0);
    EXPECT_EQ(calc.GetTape().size(), calc.GetEngine().GetHistoryLength());

    TQORProgCalcEngineObject prog;
    QSignalSpy errors(&prog, &TQORProgCalcEngineObject::error);
    for (const char* key : {"DEC", "BITS16", "3", "SHL 4"})
        EXPECT_TRUE(prog.PressKey(QString::fromLatin1(key))) << key;
    EXPECT_FALSE(prog.PressKey(QStringLiteral("SHL x")));
    EXPECT_FALSE(prog.PressKey(QStringLiteral("G")));
    EXPECT_EQ(prog.GetEngine().GetDisplayValue(), 48);
    EXPECT_EQ(prog.GetBitSize(), bs16Bits);
    for (const char* key : {"/", "0", "="})
        prog.PressKey(QString::fromLatin1(key));
    EXPECT_EQ(errors.count(), 1);
    EXPECT_FALSE(prog.GetLastError().isEmpty());
}

TEST_F(CalcDialogTest, EngineObjectOfAHostsEngineGivesTheSlotsBack)
{
    TQORCalcEngine engine;
    {
        TQORCalcEngineObject front(engine);
        QSignalSpy display(&front, &TQORCalcEngineObject::displayChange);
        engine.InputDigit(4);
        EXPECT_EQ(display.count(), 1);
    }
    EXPECT_FALSE(engine.GetOnDisplayChange());
    engine.InputDigit(2); // no front to call any more
    EXPECT_EQ(engine.GetDisplayStr().substr(0, 2), "42");
}

TEST_F(CalcDialogTest, AnEnumPropertyIsStoredAsItsNumber)
{
    UseIniSettings();
    const QString file = dir_.filePath(QStringLiteral("component.ini"));
    TQORStoreCtrl store;
    store.SetIniFileName(file);
    store.SetRegIniType(ritIniFile);
    TQORCalculator saved;
    saved.SetStoreCtrl(&store);
    saved.SetPosition(poMainFormCenter);
    saved.SaveToStore();
    QSettings ini(file, QSettings::IniFormat);
    EXPECT_EQ(ini.value(QStringLiteral("Settings/Position")).toInt(), int {poMainFormCenter});
    TQORCalculator loaded;
    loaded.SetStoreCtrl(&store);
    QSignalSpy moved(&loaded, &TQORCalculator::positionChanged);
    loaded.LoadFromStore();
    EXPECT_EQ(loaded.GetPosition(), poMainFormCenter);
    EXPECT_EQ(moved.count(), 1);
}

} // namespace
} // namespace qorkit
