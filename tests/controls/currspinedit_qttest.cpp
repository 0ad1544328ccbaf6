// The currency spin edits: the clamp of SetValue, the two-click wrap at either end, bounds
// that keep each other and the value consistent, and stepping as a user does it (held arrow,
// Up/Down and Page keys, the mouse wheel), for each of the three amount classes.
#include "QORKITCurrSpinEdit.h"
#include "QorkitTestSupport.h"

#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace qorkit {
namespace {

struct SpinKind {
    const char* Name;
    std::function<TQORBaseCurrSpinEdit*(QWidget*)> Make;
    // The class's amount property, read through the meta-object.
    const char* Amount;
};

const SpinKind Kinds[] = {
    {"Cents", [](QWidget* p) -> TQORBaseCurrSpinEdit* { return new TQORCurrSpinEdit(p); },
     "AsQORCurrency"},
    {"LongCents", [](QWidget* p) -> TQORBaseCurrSpinEdit* { return new TQORLongCurrSpinEdit(p); },
     "AsQORLongCurrency"},
    {"Currency", [](QWidget* p) -> TQORBaseCurrSpinEdit* { return new TQORCurrencySpinEdit(p); },
     "AsCurrency"},
};

class CurrSpinTest : public test::GlobalStateTest, public ::testing::WithParamInterface<SpinKind> {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        window_ = std::make_unique<QWidget>();
        spin_ = GetParam().Make(window_.get());
        spin_->setGeometry(10, 10, 160, spin_->sizeHint().height());
        window_->show();
        spin_->SetMin(0);
        spin_->SetMax(10);
        spin_->SetStep(3);
        spin_->SetWrap(true);
    }
    double Amount() const { return spin_->property(GetParam().Amount).toDouble(); }
    QToolButton* Arrow(const char* name) const
    {
        return spin_->findChild<QToolButton*>(QString::fromLatin1(name));
    }
    std::unique_ptr<QWidget> window_;
    TQORBaseCurrSpinEdit* spin_ = nullptr;
};

TEST_P(CurrSpinTest, UpWrapsOnlyOnTheClickMadeAtMax)
{
    spin_->SetValue(9);
    QTest::mouseClick(Arrow("UpBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 10);
    EXPECT_EQ(Amount(), 10);
    QTest::mouseClick(Arrow("UpBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 0);
}

TEST_P(CurrSpinTest, DownWrapsOnlyOnTheClickMadeAtMin)
{
    spin_->SetValue(1);
    QTest::mouseClick(Arrow("DownBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 0);
    QTest::mouseClick(Arrow("DownBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 10);
}

TEST_P(CurrSpinTest, WithoutWrapClicksStayAtMax)
{
    spin_->SetWrap(false);
    spin_->SetValue(9);
    for (int i = 0; i < 3; ++i)
        QTest::mouseClick(Arrow("UpBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 10);
}

// Unbounded is a stored setting of the currency spin edits; it does not lift the clamp of
// SetValue nor the stop and two-click wrap of the arrows.
TEST_P(CurrSpinTest, UnboundedLeavesTheClampAndTheArrowsAlone)
{
    spin_->SetUnbounded(true);
    ASSERT_TRUE(spin_->GetUnbounded());
    spin_->SetValue(50);
    EXPECT_EQ(spin_->GetValue(), 10);
    spin_->SetValue(9);
    QTest::mouseClick(Arrow("UpBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 10);
    QTest::mouseClick(Arrow("UpBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 0);
    QTest::mouseClick(Arrow("DownBtn"), Qt::LeftButton);
    EXPECT_EQ(spin_->GetValue(), 10);
}

TEST_P(CurrSpinTest, SetValueClampsAndBoundsFollowEachOther)
{
    spin_->SetValue(25);
    EXPECT_EQ(spin_->GetValue(), 10);
    spin_->SetValue(-4);
    EXPECT_EQ(spin_->GetValue(), 0);
    spin_->SetValue(7);
    spin_->SetMax(5); // the value is clamped into the new range
    EXPECT_EQ(spin_->GetValue(), 5);
    spin_->SetMin(8); // Max is pulled along, the value follows
    EXPECT_EQ(spin_->GetMax(), 8);
    EXPECT_EQ(spin_->GetValue(), 8);
    spin_->SetUnbounded(true);
    spin_->SetMax(20); // setting a bound bounds the edit again
    EXPECT_FALSE(spin_->GetUnbounded());
}

TEST_P(CurrSpinTest, EventsAroundAClickCarryTheValues)
{
    spin_->SetValue(4);
    Extended before = -1;
    Extended after = -1;
    spin_->SetOnUpClick([&](QObject*) { before = spin_->GetValue(); });
    spin_->SetOnAfterUpClick([&](QObject*) { after = spin_->GetValue(); });
    QSignalSpy ups(spin_, &TQORBaseSpinEdit::afterUpClick);
    spin_->UpClick(spin_);
    EXPECT_EQ(before, 4);
    EXPECT_EQ(after, 7);
    EXPECT_EQ(ups.count(), 1);
    spin_->SetReadOnly(true);
    spin_->UpClick(spin_);
    EXPECT_EQ(spin_->GetValue(), 7);
    EXPECT_EQ(ups.count(), 1);
}

TEST_P(CurrSpinTest, HeldArrowRepeats)
{
    spin_->SetMax(1000);
    spin_->SetInterval(20);
    QToolButton* up = Arrow("UpBtn");
    EXPECT_EQ(up->autoRepeatInterval(), 20);
    up->setAutoRepeatDelay(20);
    QSignalSpy ups(spin_, &TQORBaseSpinEdit::upClick);
    QTest::mousePress(up, Qt::LeftButton);
    QTest::qWait(300);
    QTest::mouseRelease(up, Qt::LeftButton);
    EXPECT_GE(ups.count(), 2);
    EXPECT_EQ(spin_->GetValue(), 3 * ups.count());
}

TEST_P(CurrSpinTest, KeysAndWheelStep)
{
    spin_->SetMax(100);
    spin_->SetPageStep(20);
    spin_->SetValue(50);
    QWidget* edit = spin_->GetCurrEdit();
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(spin_->GetValue(), 53);
    QTest::keyClick(edit, Qt::Key_PageDown);
    EXPECT_EQ(spin_->GetValue(), 33);
    QTest::keyClick(edit, Qt::Key_Down);
    EXPECT_EQ(spin_->GetValue(), 30);
    const QPointF at(5, 5);
    QWheelEvent up(at, edit->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(edit, &up);
    EXPECT_EQ(spin_->GetValue(), 33);
    QWheelEvent half(at, edit->mapToGlobal(at), QPoint(), QPoint(0, -60), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(edit, &half);
    EXPECT_EQ(spin_->GetValue(), 33); // half a notch
    QApplication::sendEvent(edit, &half);
    EXPECT_EQ(spin_->GetValue(), 30);
}

INSTANTIATE_TEST_SUITE_P(Amounts, CurrSpinTest, ::testing::ValuesIn(Kinds),
                         test::RowName<SpinKind>);

class CurrSpinAmounts : public test::GlobalStateTest { };

TEST_F(CurrSpinAmounts, CentClassesStepWholeUnitsAndTypedProperties)
{
    TQORCurrSpinEdit spin;
    spin.SetValue(250);
    spin.UpClick(&spin);
    EXPECT_EQ(spin.GetAsQORCurrency(), 350);
    EXPECT_TRUE(spin.GetCurrEdit()->text().contains(QStringLiteral("3.50")));
    EXPECT_EQ(spin.property("Max").userType(), QMetaType::Int);
    EXPECT_EQ(spin.property("Max").toInt(), 10000);
    TQORLongCurrSpinEdit longSpin;
    EXPECT_EQ(longSpin.property("Value").userType(), QMetaType::UInt);
}

} // namespace
} // namespace qorkit
