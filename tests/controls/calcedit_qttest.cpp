// The calculator edits driven as a user would: the button (mouse click or Alt+Down) opens
// the calculator with the edit's value, Exit hands the result back, Cancel keeps the value;
// the calculator component path, placement against the screen edges, and the settings of
// the composite.
#include "CalcDialogTest.h"
#include "QORKITCalcEdit.h"
#include "QORKITSciCalcEdit.h"

#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <cmath>
#include <functional>
#include <memory>

namespace qorkit {
namespace {

using test::WhenModal;

// One kind of calculator edit: how to make it and the room its calculator takes.
struct EditKind {
    const char* Name;
    std::function<TQORFloatCalcEdit*(QWidget*)> Make;
    std::function<TQORFloatCalcComponent*(QObject*)> MakeCalculator;
    // Sets the calculator on the edit.
    std::function<void(TQORFloatCalcEdit*, TQORFloatCalcComponent*)> Attach;
    // Makes the calculator report ExecutePos instead of showing itself.
    std::function<void(TQORFloatCalcComponent*, QPoint*)> CapturePos;
    QSize CalcSize;
    const QMetaObject* Form;
};

const EditKind Kinds[] = {
    {"Standard", [](QWidget* p) -> TQORFloatCalcEdit* { return new TQORCalcEdit(p); },
     [](QObject* o) -> TQORFloatCalcComponent* { return new TQORCalculator(o); },
     [](TQORFloatCalcEdit* e, TQORFloatCalcComponent* c) {
         static_cast<TQORCalcEdit*>(e)->SetCalculatorControl(static_cast<TQORCalculator*>(c));
     },
     [](TQORFloatCalcComponent* c, QPoint* at) {
         static_cast<TQORCalculator*>(c)->SetOnExecutePos([at](TQORCalculator*, int x, int y) {
             *at = QPoint(x, y);
             return false;
         });
     },
     QSize(216, 289), &TQORCalcForm::staticMetaObject},
    {"Scientific", [](QWidget* p) -> TQORFloatCalcEdit* { return new TQORSciCalcEdit(p); },
     [](QObject* o) -> TQORFloatCalcComponent* { return new TQORSciCalculator(o); },
     [](TQORFloatCalcEdit* e, TQORFloatCalcComponent* c) {
         static_cast<TQORSciCalcEdit*>(e)->SetCalculatorControl(static_cast<TQORSciCalculator*>(c));
     },
     [](TQORFloatCalcComponent* c, QPoint* at) {
         static_cast<TQORSciCalculator*>(c)->SetOnExecutePos(
             [at](TQORSciCalculator*, int x, int y) {
                 *at = QPoint(x, y);
                 return false;
             });
     },
     QSize(246, 293), &TQORSciCalcForm::staticMetaObject},
};

class CalcEditTest : public test::CalcDialogTest, public ::testing::WithParamInterface<EditKind> {
protected:
    void SetUp() override
    {
        CalcDialogTest::SetUp();
        UseIniSettings();
        window_ = std::make_unique<QWidget>();
        window_->resize(300, 120);
        edit_ = GetParam().Make(window_.get());
        edit_->setGeometry(10, 10, 200, edit_->sizeHint().height());
        other_ = new QLineEdit(window_.get());
        other_->setGeometry(10, 60, 100, 22);
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        edit_->SetDecimalPlaces(2);
        edit_->SetValue(12.5L);
    }
    // Opens the calculator with a click on the button and runs `body` on it.
    void ClickButton(std::function<void(TQORFloatCalcForm&)> body)
    {
        const QMetaObject* expected = GetParam().Form;
        WhenModal<TQORFloatCalcForm>([body, expected](TQORFloatCalcForm& form) {
            EXPECT_STREQ(form.metaObject()->className(), expected->className());
            body(form);
        });
        QTest::mouseClick(edit_->GetButton(), Qt::LeftButton);
    }
    // Moves the window so the edit's bottom-left corner is `offset` from the screen's
    // bottom-right corner of its available area.
    void PlaceNearCorner(QPoint offset)
    {
        const QRect area = edit_->screen()->availableGeometry();
        window_->move(area.right() + 1 - offset.x() - 10,
                      area.bottom() + 1 - offset.y() - 10 - edit_->height());
        QApplication::processEvents();
    }

    std::unique_ptr<QWidget> window_;
    TQORFloatCalcEdit* edit_ = nullptr;
    QLineEdit* other_ = nullptr;
};

TEST_P(CalcEditTest, ButtonOpensPreloadedCalculatorAndExitHandsBack)
{
    QSignalSpy changes(edit_, &TQORCalcEditBase::change);
    QSignalSpy ends(edit_, &TQORCalcEditBase::calcClickEnd);
    QWidget* parentOfForm = nullptr;
    ClickButton([&](TQORFloatCalcForm& form) {
        parentOfForm = form.parentWidget();
        EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 12.5L);
        EXPECT_EQ(form.GetCalcEngine().GetDecimalPlaces(), 2);
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Calculator"));
        QTest::keyClicks(form.KeyPanel, QStringLiteral("*4="));
        form.ExitClick();
    });
    EXPECT_EQ(edit_->GetValue(), 50);
    EXPECT_TRUE(edit_->GetAccepted());
    EXPECT_EQ(parentOfForm, window_.get()); // a child of the edit's window
    EXPECT_EQ(changes.count(), 1);
    ASSERT_EQ(ends.count(), 1);
    EXPECT_TRUE(ends.at(0).at(1).toBool());
    EXPECT_EQ(edit_->GetEdit()->text(), QStringLiteral("50.00"));
}

TEST_P(CalcEditTest, CancelKeepsTheValue)
{
    QSignalSpy changes(edit_, &TQORCalcEditBase::change);
    ClickButton([](TQORFloatCalcForm& form) {
        QTest::keyClicks(form.KeyPanel, QStringLiteral("999"));
        form.CancelClick();
    });
    EXPECT_EQ(edit_->GetValue(), 12.5L);
    EXPECT_FALSE(edit_->GetAccepted());
    EXPECT_EQ(changes.count(), 0);
}

TEST_P(CalcEditTest, AltDownOpensTheCalculator)
{
    QSignalSpy clicks(edit_, &TQORCalcEditBase::calcClick);
    edit_->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(edit_->GetEdit()->hasFocus()); // the focus goes on to the inner edit
    bool opened = false;
    WhenModal<TQORFloatCalcForm>([&](TQORFloatCalcForm& form) {
        opened = true;
        QTest::keyClicks(form.KeyPanel, QStringLiteral("A7"));
        form.ExitClick();
    });
    QTest::keyClick(edit_->GetEdit(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(opened);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(edit_->GetValue(), 7);
}

TEST_P(CalcEditTest, ReadOnlyEditIgnoresTheButtonAndAltDown)
{
    QSignalSpy clicks(edit_, &TQORCalcEditBase::calcClick);
    edit_->SetReadOnly(true);
    EXPECT_FALSE(edit_->GetButton()->isEnabled());
    EXPECT_TRUE(edit_->GetEdit()->GetReadOnly());
    // Should a calculator open anyway, it is cancelled so the test ends.
    bool opened = false;
    QTimer::singleShot(0, [&opened] {
        if (auto* form = qobject_cast<TQORCalcFormBase*>(QApplication::activeModalWidget())) {
            opened = true;
            form->CancelClick();
        }
    });
    edit_->CalcClick();
    QTest::keyClick(edit_->GetEdit(), Qt::Key_Down, Qt::AltModifier);
    QApplication::processEvents();
    EXPECT_FALSE(opened);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(edit_->GetValue(), 12.5L);
}

TEST_P(CalcEditTest, CalculatorControlGetsDecimalsAndTrimmingAndReturnsDecimals)
{
    auto* calculator = GetParam().MakeCalculator(window_.get());
    calculator->SetReturnDecimalPlaces(true);
    calculator->SetDecimalPlaces(7);
    GetParam().Attach(edit_, calculator);
    edit_->SetTrimTrailingZeroes(true);
    edit_->SetCalcCenter(true);
    ClickButton([](TQORFloatCalcForm& form) {
        EXPECT_EQ(form.GetCalcEngine().GetDecimalPlaces(), 2);
        EXPECT_TRUE(form.GetCalcEngine().GetTrimTrailingZeroes());
        EXPECT_EQ(form.GetCalcEngine().GetDisplayValue(), 12.5L);
        form.DPSpin->setValue(3);
        QTest::keyClicks(form.KeyPanel, QStringLiteral("+1="));
        form.ExitClick();
    });
    EXPECT_EQ(edit_->GetValue(), 13.5L);
    EXPECT_EQ(edit_->GetDecimalPlaces(), 3);
    EXPECT_TRUE(edit_->GetAccepted());
}

TEST_P(CalcEditTest, DeletedCalculatorControlIsForgotten)
{
    auto* calculator = GetParam().MakeCalculator(window_.get());
    GetParam().Attach(edit_, calculator);
    EXPECT_EQ(edit_->GetCalculatorComponent(), calculator);
    QSignalSpy changed(edit_, &TQORCalcEditBase::calculatorControlChanged);
    delete calculator;
    EXPECT_EQ(edit_->GetCalculatorComponent(), nullptr);
    EXPECT_EQ(changed.count(), 1);
    // The next click falls back to the dialog, with the edit's own title.
    edit_->SetCalcTitle(QStringLiteral("Amount"));
    ClickButton([](TQORFloatCalcForm& form) {
        EXPECT_EQ(form.windowTitle(), QStringLiteral("Amount"));
        form.ExitClick();
    });
    EXPECT_TRUE(edit_->GetAccepted());
}

struct PlacementCase {
    const char* Name;
    QPoint Offset; // of the edit's bottom-left corner from the screen's bottom-right corner
    bool Above;
    bool FlushRight;
};

class CalcEditPlacement
    : public test::CalcDialogTest,
      public ::testing::WithParamInterface<std::tuple<EditKind, PlacementCase>> { };

TEST_P(CalcEditPlacement, OpensBelowAboveOrFlushRight)
{
    const auto& [kind, c] = GetParam();
    QWidget window;
    auto* edit = kind.Make(&window);
    edit->setGeometry(10, 10, 150, edit->sizeHint().height());
    window.resize(200, 60);
    const QRect area = window.screen()->availableGeometry();
    QPoint corner(area.x() + area.width() - c.Offset.x(), area.y() + area.height() - c.Offset.y());
    if (c.Offset.x() > area.width() / 2)
        corner.setX(area.x() + 20); // plenty of room to the right
    if (c.Offset.y() > area.height() / 2)
        corner.setY(area.y() + 40); // plenty of room below
    window.move(corner - QPoint(10, 10 + edit->height()));
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* calculator = kind.MakeCalculator(&window);
    QPoint at(-1, -1);
    kind.CapturePos(calculator, &at);
    kind.Attach(edit, calculator);
    edit->CalcClick();

    const QPoint under = edit->mapToGlobal(QPoint(0, edit->height()));
    const int expectedX
        = c.FlushRight ? area.x() + area.width() - kind.CalcSize.width() : under.x();
    const int expectedY = c.Above ? under.y() - edit->height() - kind.CalcSize.height() : under.y();
    EXPECT_EQ(at, QPoint(expectedX, expectedY));
}

const PlacementCase PlacementCases[] = {
    {"Below", {5000, 5000}, false, false},
    {"AboveNearTheBottom", {5000, 100}, true, false},
    {"FlushRightNearTheRightEdge", {150, 5000}, false, true},
    {"AboveAndFlushRightInTheCorner", {150, 100}, true, true},
};

std::string PlacementName(const ::testing::TestParamInfo<std::tuple<EditKind, PlacementCase>>& row)
{
    return std::string(std::get<0>(row.param).Name) + std::get<1>(row.param).Name;
}

INSTANTIATE_TEST_SUITE_P(Edits, CalcEditTest, ::testing::ValuesIn(Kinds), test::RowName<EditKind>);
INSTANTIATE_TEST_SUITE_P(Edits, CalcEditPlacement,
                         ::testing::Combine(::testing::ValuesIn(Kinds),
                                            ::testing::ValuesIn(PlacementCases)),
                         PlacementName);

// ---- The composite's own settings ------------------------------------------------------------

class CalcEditSettings : public test::CalcDialogTest {
protected:
    QWidget window_;
    TQORCalcEdit* edit_ = new TQORCalcEdit(&window_);
};

TEST_F(CalcEditSettings, PopupEventCanTakeOverTheClick)
{
    edit_->SetOnPopupCalc([](QObject*, Extended& value, bool& show) {
        value = value + 40;
        show = false;
    });
    edit_->SetValue(2);
    edit_->CalcClick(); // no calculator: a dialog here would never close
    EXPECT_EQ(edit_->GetValue(), 42);
    EXPECT_TRUE(edit_->GetAccepted());
}

TEST_F(CalcEditSettings, EndEventValueIsStored)
{
    int ends = 0;
    edit_->SetOnCalcClickEnd([&](QObject* sender, Extended& value, bool accepted) {
        ++ends;
        EXPECT_EQ(sender, edit_);
        EXPECT_TRUE(accepted);
        value *= 10;
    });
    edit_->SetOnPopupCalc([](QObject*, Extended& value, bool& show) {
        value = 3;
        show = false;
    });
    edit_->CalcClick();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(edit_->GetValue(), 30);
}

TEST_F(CalcEditSettings, GlyphIsLoadedOnlyWhenTheTypeChanges)
{
    QSignalSpy changed(edit_, &TQORCalcEditBase::calcGlyphTypeChanged);
    const qint64 first = edit_->GetButton()->icon().cacheKey();
    edit_->SetCalcGlyphType(cgtCalculator);
    EXPECT_EQ(edit_->GetButton()->icon().cacheKey(), first);
    edit_->SetCalcGlyphType(cgtEllipsis);
    const qint64 second = edit_->GetButton()->icon().cacheKey();
    EXPECT_NE(second, first);
    edit_->SetCalcGlyphType(static_cast<TQORCalcGlyphType>(7)); // no such glyph: kept
    EXPECT_EQ(edit_->GetButton()->icon().cacheKey(), second);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(CalcEditSettings, TitleIsStoredOnlyWhenItDiffersFromTheDefault)
{
    EXPECT_EQ(edit_->GetCalcTitle(), QStringLiteral("Calculator"));
    EXPECT_FALSE(edit_->StoreCalcTitle());
    edit_->SetCalcTitle(QStringLiteral("Price"));
    EXPECT_TRUE(edit_->StoreCalcTitle());
    edit_->SetCalcTitle(QStringLiteral("Calculator"));
    EXPECT_FALSE(edit_->StoreCalcTitle());
    edit_->setProperty("CalcTitle", QStringLiteral("Price"));
    const QMetaProperty title
        = edit_->metaObject()->property(edit_->metaObject()->indexOfProperty("CalcTitle"));
    ASSERT_TRUE(title.isResettable());
    title.reset(edit_);
    EXPECT_FALSE(edit_->StoreCalcTitle());
}

TEST_F(CalcEditSettings, ResizeRuleAndHiddenButton)
{
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    edit_->SetAutoSize(false);
    edit_->setGeometry(0, 0, 200, 40);
    EXPECT_EQ(edit_->GetEdit()->geometry(), QRect(0, 0, 200 - 22, 40));
    EXPECT_EQ(edit_->GetButton()->geometry(), QRect(200 - 22, 0, 22, 40));
    edit_->SetHideButton(true);
    EXPECT_TRUE(edit_->GetButton()->isHidden());
    EXPECT_EQ(edit_->GetEdit()->width(), 200);
    edit_->SetAutoSize(true);
    EXPECT_EQ(edit_->height(), edit_->GetEdit()->sizeHint().height());
}

TEST_F(CalcEditSettings, PropertiesForwardAndNotifyOnce)
{
    struct Row {
        const char* Name;
        QVariant Value;
    };
    const Row rows[] = {
        {"DecimalPlaces", 4},
        {"ThousandSeparators", QStringLiteral("tsApostrophe")},
        {"CalcGlyphType", QStringLiteral("cgtSmallCalculator")},
        {"ReadOnly", true},
        {"MaxLength", 12},
        {"NullStr", QStringLiteral("n/a")},
        {"FullAccuracy", true},
        {"LakhFormatting", true},
        {"CustomDecimal", QChar(QLatin1Char(';'))},
        {"FlatCalc", true},
    };
    const QMetaObject* meta = edit_->metaObject();
    for (const Row& row : rows) {
        const QMetaProperty p = meta->property(meta->indexOfProperty(row.Name));
        ASSERT_TRUE(p.isValid()) << row.Name;
        QSignalSpy spy(edit_, p.notifySignal());
        ASSERT_TRUE(p.write(edit_, row.Value)) << row.Name;
        ASSERT_TRUE(p.write(edit_, row.Value)) << row.Name; // the same value again: no signal
        EXPECT_EQ(spy.count(), 1) << row.Name;
        const QVariant read = p.read(edit_);
        if (p.isEnumType())
            EXPECT_EQ(QString::fromLatin1(p.enumerator().valueToKey(read.toInt())),
                      row.Value.toString())
                << row.Name;
        else
            EXPECT_EQ(read, row.Value) << row.Name;
    }
    EXPECT_EQ(edit_->GetFloatEdit()->GetThousandSeparators(), tsApostrophe);
    EXPECT_EQ(edit_->GetFloatEdit()->GetMaxLength(), 12);
}

TEST_F(CalcEditSettings, InnerEditEventsComeFromTheComposite)
{
    window_.resize(220, 40);
    edit_->setGeometry(0, 0, 200, edit_->sizeHint().height());
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    QObject* changeSender = nullptr;
    int signs = 0;
    edit_->SetOnChange([&](QObject* sender) { changeSender = sender; });
    QSignalSpy signSpy(edit_, &TQORCalcEditBase::signChange);
    edit_->SetOnSignChange([&](QObject*, int) { ++signs; });
    edit_->setFocus(Qt::TabFocusReason);
    edit_->SelectAll();
    QTest::keyClicks(edit_->GetEdit(), QStringLiteral("-8"));
    QTest::keyClick(edit_->GetEdit(), Qt::Key_Return);
    EXPECT_EQ(edit_->GetValue(), -8);
    EXPECT_EQ(changeSender, edit_);
    EXPECT_EQ(signs, 1);
    EXPECT_EQ(signSpy.count(), 1);
}

TEST_F(CalcEditSettings, RefusedTextKeepsTheValueAndIsReportedOnceByTheComposite)
{
    window_.resize(220, 40);
    edit_->setGeometry(0, 0, 200, edit_->sizeHint().height());
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    edit_->GetFloatEdit()->SetBoundLower(0);
    edit_->GetFloatEdit()->SetBoundUpper(10);
    edit_->SetValue(5);
    QStringList messages;
    edit_->SetOnValidationError([&](QObject* sender, const QString& message) {
        EXPECT_EQ(sender, edit_);
        messages << message;
    });
    QSignalSpy reported(edit_, &TQORCalcEditBase::validationError);
    edit_->setFocus(Qt::TabFocusReason);
    edit_->SelectAll();
    QTest::keyClicks(edit_->GetEdit(), QStringLiteral("50"));
    QTest::keyClick(edit_->GetEdit(), Qt::Key_Return);
    EXPECT_EQ(edit_->GetValue(), 5);
    EXPECT_EQ(messages.size(), 1);
    EXPECT_EQ(reported.count(), 1);
    EXPECT_FALSE(edit_->GetText().contains(QStringLiteral("nan"), Qt::CaseInsensitive));
}

} // namespace
} // namespace qorkit
