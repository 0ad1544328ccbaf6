// The currency calculator edits: the calculator opens with the amount shown, Exit hands the
// result back rounded to the edit's decimals (halves away from zero) as the class's amount,
// Cancel keeps it, and a result the amount type cannot hold is refused.
#include "CalcDialogTest.h"
#include "QORKITCurrCalcEdit.h"

#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <functional>
#include <memory>

namespace qorkit {
namespace {

using test::WhenModal;

struct CurrCalcKind {
    const char* Name;
    std::function<TQORCurrCalcEditBase*(QWidget*)> Make;
    const char* Amount;
    // The amount property's value for an amount shown of 1.
    double Unit;
};

const CurrCalcKind Kinds[] = {
    {"Cents", [](QWidget* p) -> TQORCurrCalcEditBase* { return new TQORCurrCalcEdit(p); },
     "AsQORCurrency", 100},
    {"LongCents", [](QWidget* p) -> TQORCurrCalcEditBase* { return new TQORLongCurrCalcEdit(p); },
     "AsQORLongCurrency", 100},
    {"Currency", [](QWidget* p) -> TQORCurrCalcEditBase* { return new TQORCurrencyCalcEdit(p); },
     "AsCurrency", 1},
};

class CurrCalcEditTest : public test::CalcDialogTest,
                         public ::testing::WithParamInterface<CurrCalcKind> {
protected:
    void SetUp() override
    {
        CalcDialogTest::SetUp();
        UseIniSettings();
        window_ = std::make_unique<QWidget>();
        window_->resize(300, 80);
        edit_ = GetParam().Make(window_.get());
        edit_->setGeometry(10, 10, 200, edit_->sizeHint().height());
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        edit_->SetDecimalPlaces(2);
        edit_->setProperty(GetParam().Amount, 12.5 * GetParam().Unit);
    }
    double Amount() const { return edit_->property(GetParam().Amount).toDouble(); }
    // Clicks the button; `keys` are typed into the calculator, which is then left with Exit
    // (or Cancel).
    Extended Calculate(const std::string& keys, bool exit = true)
    {
        Extended opened = -1;
        WhenModal<TQORFloatCalcForm>([&](TQORFloatCalcForm& form) {
            opened = form.GetCalcEngine().GetDisplayValue();
            QTest::keyClicks(form.KeyPanel, QString::fromStdString(keys));
            if (exit)
                form.ExitClick();
            else
                form.CancelClick();
        });
        QTest::mouseClick(edit_->GetButton(), Qt::LeftButton);
        return opened;
    }
    std::unique_ptr<QWidget> window_;
    TQORCurrCalcEditBase* edit_ = nullptr;
};

TEST_P(CurrCalcEditTest, OpensWithTheAmountAndExitHandsBackTheResult)
{
    QSignalSpy changes(edit_, &TQORCalcEditBase::change);
    QSignalSpy ends(edit_, &TQORCurrCalcEditBase::endPopup);
    EXPECT_EQ(Calculate("*4="), 12.5L);
    EXPECT_EQ(Amount(), 50 * GetParam().Unit);
    EXPECT_TRUE(edit_->GetAccepted());
    EXPECT_TRUE(edit_->GetEdit()->text().contains(QStringLiteral("50.00")));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(ends.count(), 1);
}

TEST_P(CurrCalcEditTest, ResultIsRoundedToTheDecimalsHalvesAwayFromZero)
{
    Calculate("/8="); // 1.5625
    EXPECT_EQ(Amount(), 1.56 * GetParam().Unit);
    edit_->SetValue(0.125L);
    EXPECT_DOUBLE_EQ(Amount(), 0.13 * GetParam().Unit);
    edit_->SetDecimalPlaces(0);
    edit_->SetValue(2.5L);
    EXPECT_EQ(Amount(), 3 * GetParam().Unit);
}

TEST_P(CurrCalcEditTest, CancelKeepsTheAmount)
{
    Calculate("*4=", false);
    EXPECT_EQ(Amount(), 12.5 * GetParam().Unit);
    EXPECT_FALSE(edit_->GetAccepted());
}

INSTANTIATE_TEST_SUITE_P(Amounts, CurrCalcEditTest, ::testing::ValuesIn(Kinds),
                         test::RowName<CurrCalcKind>);

class CurrCalcEditRefusal : public test::CalcDialogTest { };

TEST_F(CurrCalcEditRefusal, NegativeResultOfAnUnsignedAmountKeepsTheOldValue)
{
    UseIniSettings();
    QWidget window;
    auto* edit = new TQORLongCurrCalcEdit(&window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    edit->SetAsQORLongCurrency(1250);
    QSignalSpy errors(edit, &TQORCalcEditBase::validationError);
    WhenModal<TQORFloatCalcForm>([](TQORFloatCalcForm& form) {
        QTest::keyClicks(form.KeyPanel, QStringLiteral("-20="));
        form.ExitClick();
    });
    QTest::mouseClick(edit->GetButton(), Qt::LeftButton);
    EXPECT_EQ(edit->GetAsQORLongCurrency(), 1250u);
    EXPECT_EQ(errors.count(), 1);
}

} // namespace
} // namespace qorkit
