// TQORFloatEdit driven through the keyboard the way a user types: which keys are accepted,
// what value and text result, null handling, bounds, grouping and custom separators.
#include "QORKITFloatEdit.h"
#include "QORKITSettings.h"
#include "QorkitTestSupport.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <optional>

namespace qorkit {
namespace {

class FloatEditTest : public test::GlobalStateTest {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        auto* layout = new QVBoxLayout(&window_);
        edit_ = new TQORFloatEdit(&window_);
        other_ = new QLineEdit(&window_);
        layout->addWidget(edit_);
        layout->addWidget(other_);
        window_.show();
        window_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
        other_->setFocus(Qt::TabFocusReason); // the edit starts unfocused
        changes_.emplace(edit_, &TQORFloatEdit::change);
        nulls_.emplace(edit_, &TQORFloatEdit::null);
        edit_->SetOnSignChange([this](QObject*, int sign) { signs_.push_back(sign); });
        edit_->SetOnValidationError([this](QObject*, const QString& m) { errors_ << m; });
    }
    // Tabs into the edit, types `keys` and tabs out again.
    void Type(const QString& keys)
    {
        edit_->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(edit_, keys);
        typed_ = edit_->text();
        other_->setFocus(Qt::TabFocusReason);
    }

    QWidget window_;
    TQORFloatEdit* edit_ = nullptr;
    QLineEdit* other_ = nullptr;
    QString typed_;
    std::optional<QSignalSpy> changes_;
    std::optional<QSignalSpy> nulls_;
    std::vector<int> signs_;
    QStringList errors_;
};

struct TypingCase {
    const char* name;
    bool commaDecimals;
    const char* keys;
    const char* typed; // what the edit holds once every key was offered
    Extended value;
    const char* shown; // the text after leaving
    std::function<void(TQORFloatEdit&)> setup = {};
};

class FloatEditTyping : public FloatEditTest, public ::testing::WithParamInterface<TypingCase> { };

TEST_P(FloatEditTyping, KeysValueAndText)
{
    const TypingCase& c = GetParam();
    std::optional<test::CommaDecimals> comma;
    if (c.commaDecimals)
        comma.emplace();
    if (c.setup)
        c.setup(*edit_);
    edit_->Redisplay();
    Type(QString::fromUtf8(c.keys));
    EXPECT_EQ(typed_, QString::fromUtf8(c.typed));
    EXPECT_EQ(edit_->GetValue(), c.value);
    EXPECT_EQ(edit_->text(), QString::fromUtf8(c.shown));
    EXPECT_TRUE(errors_.isEmpty()) << errors_.join(QLatin1Char('|')).toStdString();
}

const TypingCase typingCases[] = {
    {"PointDecimals", false, "1234.5", "1234.5", 1234.5L, "1,234.50"},
    {"CommaDecimals", true, "1234,5", "1234,5", 1234.5L, "1.234,50"},
    {"LetterRefused", false, "12a3", "123", 123, "123.00"},
    {"SecondPointRefused", false, "1.2.3", "1.23", 1.23L, "1.23"},
    {"SecondCommaRefused", true, "1,2,3", "1,23", 1.23L, "1,23"},
    {"GroupingAfterDecimalsRefused", true, "1.234,5.6", "1.234,56", 1234.56L, "1.234,56"},
    {"MinusOnlyAtTheStart", false, "4-2-", "42", 42, "42.00"},
    {"Negative", false, "-0.5", "-0.5", -0.5L, "-0.50"},
    {"Exponent", false, "1.5e3", "1.5e3", 1500, "1,500.00"},
    {"NegativeInputSwitchedOff", false, "-7", "7", 7, "7.00",
     [](TQORFloatEdit& e) { e.SetAllowNegInput(false); }},
    {"Brackets", false, "(12)", "(12)", -12, "(12.00)",
     [](TQORFloatEdit& e) { e.SetNegAsBrackets(true); }},
    {"BlankRefused", false, "1 000", "1000", 1000, "1,000.00"},
    {"TypedDigitsKeptShownRounded", false, "2.375", "2.375", 2.375L, "2.38"},
};

INSTANTIATE_TEST_SUITE_P(Typing, FloatEditTyping, ::testing::ValuesIn(typingCases),
                         [](const auto& row) { return std::string(row.param.name); });

struct DisplayCase {
    const char* name;
    Extended value;
    const char* shown;
    std::function<void(TQORFloatEdit&)> setup;
};

class FloatEditDisplay : public FloatEditTest,
                         public ::testing::WithParamInterface<DisplayCase> { };

TEST_P(FloatEditDisplay, ShowsTheValue)
{
    const DisplayCase& c = GetParam();
    c.setup(*edit_);
    edit_->SetValue(c.value);
    EXPECT_EQ(edit_->text(), QString::fromUtf8(c.shown));
    // The edit's own separators never leak into the rest of the program.
    EXPECT_EQ(FormatSettings.DecimalSeparator, '.');
    EXPECT_EQ(FormatSettings.ThousandSeparator, ',');
}

const auto lakh = [](TQORFloatEdit& e) { e.SetLakhFormatting(true); };
const DisplayCase displayCases[] = {
    {"LakhSeven", 1234567.891L, "12,34,567.89", lakh},
    {"LakhOneLakh", 100000, "1,00,000.00", lakh},
    {"LakhBelowThousand", 999, "999.00", lakh},
    {"LakhNegativeCrore", -12345678, "-1,23,45,678.00", lakh},
    {"CustomBlankAndComma", 1234567.5L, "1 234 567,50",
     [](TQORFloatEdit& e) {
         e.SetCustomDecimal(',');
         e.SetCustomThousands(' ');
         e.SetCustomSeparators(true);
     }},
    {"Apostrophes", 1234567.5L, "1'234'567.50",
     [](TQORFloatEdit& e) { e.SetThousandSeparators(tsApostrophe); }},
    {"NoGrouping", 1234567.5L, "1234567.50",
     [](TQORFloatEdit& e) { e.SetShowThousandSeparators(false); }},
    {"TrimmedZeroes", 2.5L, "2.5",
     [](TQORFloatEdit& e) {
         e.SetDecimalPlaces(4);
         e.SetTrimTrailingZeroes(true);
     }},
    {"ZeroPadToMaxLength", -12.5L, "-0012.50",
     [](TQORFloatEdit& e) {
         e.SetMaxLength(8);
         e.SetZeroPad(true);
     }},
    {"NegativeInBrackets", -1234.5L, "(1,234.50)",
     [](TQORFloatEdit& e) { e.SetNegAsBrackets(true); }},
    {"BlankWhenZero", 0, "",
     [](TQORFloatEdit& e) {
         e.SetValue(3);
         e.SetBlankWhenZero(true);
     }},
};

INSTANTIATE_TEST_SUITE_P(Display, FloatEditDisplay, ::testing::ValuesIn(displayCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(FloatEditTest, CustomSeparatorsAreTypedToo)
{
    edit_->SetCustomDecimal(',');
    edit_->SetCustomThousands(' ');
    edit_->SetCustomSeparators(true);
    Type(QStringLiteral("9 876,25.1"));
    EXPECT_EQ(edit_->GetValue(), 9876.251L);
    EXPECT_EQ(edit_->text(), QStringLiteral("9 876,25"));
}

TEST_F(FloatEditTest, KeyboardNullWithTheNullString)
{
    edit_->SetNullStr(QStringLiteral("n/a"));
    edit_->SetValue(5);
    Type(QStringLiteral("n/x")); // letters outside the null string are refused
    EXPECT_FALSE(edit_->GetNull());
    EXPECT_EQ(edit_->GetValue(), 5);

    edit_->SetAllowKbdNull(true);
    Type(QStringLiteral("N/A"));
    EXPECT_TRUE(edit_->GetNull());
    EXPECT_EQ(nulls_->count(), 1);
    EXPECT_EQ(edit_->GetValue(), 0);
    EXPECT_EQ(edit_->text(), QStringLiteral("n/a"));

    // Entering and leaving a null edit keeps it null.
    Type(QString());
    EXPECT_TRUE(edit_->GetNull());
    EXPECT_EQ(nulls_->count(), 1);

    edit_->SetValue(0); // an equal value still leaves the null state
    EXPECT_FALSE(edit_->GetNull());
    EXPECT_EQ(edit_->text(), QStringLiteral("0.00"));
}

TEST_F(FloatEditTest, BlankTextIsNullOnlyWhenAllowed)
{
    edit_->SetValue(8);
    edit_->SetBlankIsNull(true);
    Type(QStringLiteral("\b\b\b\b"));
    EXPECT_FALSE(edit_->GetNull()); // AllowKbdNull is off: blank is zero
    EXPECT_EQ(edit_->GetValue(), 0);

    edit_->SetValue(8);
    edit_->SetAllowKbdNull(true);
    edit_->SetBlankWhenNull(true);
    edit_->SetNullStr(QStringLiteral("none"));
    Type(QStringLiteral("\b\b\b\b"));
    EXPECT_TRUE(edit_->GetNull());
    EXPECT_EQ(edit_->text(), QString());
}

TEST_F(FloatEditTest, ValuesOutsideTheBoundsAreReportedNotStored)
{
    edit_->SetBoundLower(0);
    edit_->SetBoundUpper(100);
    edit_->SetValue(5);
    changes_->clear();
    Type(QStringLiteral("150"));
    EXPECT_EQ(edit_->GetValue(), 5);
    EXPECT_EQ(edit_->text(), QStringLiteral("5.00"));
    EXPECT_TRUE(edit_->GetValidationFailed());
    ASSERT_EQ(errors_.size(), 1);
    EXPECT_TRUE(errors_[0].contains(QStringLiteral("150")));
    EXPECT_EQ(changes_->count(), 0);

    edit_->SetValue(-1);
    EXPECT_EQ(edit_->GetValue(), 5);
    EXPECT_EQ(errors_.size(), 2);
    Type(QStringLiteral("100"));
    EXPECT_EQ(edit_->GetValue(), 100);
    EXPECT_FALSE(edit_->GetValidationFailed());
    EXPECT_EQ(changes_->count(), 1);
}

TEST_F(FloatEditTest, NonNumbersNeverReachTheValueOrTheText)
{
    edit_->SetValue(3);
    edit_->SetAsString(QStringLiteral("abc"));
    edit_->SetValue(std::numeric_limits<Extended>::quiet_NaN());
    edit_->SetValue(std::numeric_limits<Extended>::infinity());
    edit_->SetAsString(QStringLiteral("1e99999"));
    EXPECT_EQ(errors_.size(), 4);
    EXPECT_EQ(edit_->GetValue(), 3);
    EXPECT_EQ(edit_->text(), QStringLiteral("3.00"));
}

TEST_F(FloatEditTest, FullAccuracyKeepsDigitsThatAreNotShown)
{
    edit_->SetValue(1.23456L);
    Type(QString());
    EXPECT_EQ(edit_->GetValue(), 1.23L); // leaving rounds to what was shown

    edit_->SetFullAccuracy(true);
    edit_->SetValue(1.23456L);
    Type(QString());
    EXPECT_EQ(edit_->GetValue(), 1.23456L);
    Type(QStringLiteral("1.24"));
    EXPECT_EQ(edit_->GetValue(), 1.24L);

    edit_->SetFullAccuracyEdit(true);
    edit_->SetValue(2.0L / 3.0L);
    edit_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit_->text(), QStringLiteral("0.666666666666666667"));
    other_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit_->text(), QStringLiteral("0.67"));
    EXPECT_EQ(edit_->GetValue(), 2.0L / 3.0L);
}

TEST_F(FloatEditTest, ChangeAndSignEvents)
{
    edit_->SetValue(2);
    edit_->SetValue(2);
    EXPECT_EQ(changes_->count(), 1);
    EXPECT_EQ(signs_, std::vector<int> {1});
    Type(QStringLiteral("-3"));
    Type(QStringLiteral("-4")); // each conversion reports its sign, changed or not
    EXPECT_EQ(changes_->count(), 3);
    EXPECT_EQ(signs_, (std::vector<int> {1, -1, -1}));
    EXPECT_EQ(edit_->GetEditState(), esNormal);
    EXPECT_EQ(edit_->palette().color(QPalette::Text), edit_->GetColorSet()->NegativeText());
}

TEST_F(FloatEditTest, LookFollowsTheUIControlUntilItGoes)
{
    auto* ui = new TQORUICtrl;
    ui->GetColorSet()->SetNormalBack(QColor(Qt::yellow));
    edit_->SetUICtrl(ui);
    EXPECT_EQ(edit_->palette().color(QPalette::Base), QColor(Qt::yellow));
    ui->GetColorSet()->SetNormalBack(QColor(Qt::cyan));
    EXPECT_EQ(edit_->palette().color(QPalette::Base), QColor(Qt::cyan));
    delete ui;
    EXPECT_EQ(edit_->GetUICtrl(), nullptr);
    EXPECT_EQ(edit_->EffectiveColorSet(), edit_->GetColorSet());
    EXPECT_NE(edit_->palette().color(QPalette::Base), QColor(Qt::cyan));
}

} // namespace
} // namespace qorkit

namespace qorkit {
namespace {

TEST_F(FloatEditTest, KeyHandlersMaySwallowKeysAndEditOperationsWork)
{
    std::string seen;
    edit_->SetOnKeyDown([&](QObject*, QKeyEvent* e) {
        seen += e->text().toStdString();
        if (e->text() == QLatin1String("5"))
            e->ignore(); // the host takes this key away from the edit
    });
    Type(QStringLiteral("152"));
    EXPECT_EQ(seen, "152");
    EXPECT_EQ(edit_->GetValue(), 12);

    edit_->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(edit_, QStringLiteral("98.765")); // the handler still drops the "5"
    edit_->SetSelStart(1);
    edit_->SetSelLength(3);
    EXPECT_EQ(edit_->GetSelText(), QStringLiteral("8.7"));
    char buffer[3];
    EXPECT_EQ(edit_->GetSelTextBuf(buffer, sizeof buffer), 2);
    EXPECT_STREQ(buffer, "8.");
    edit_->SetSelTextBuf("1");
    EXPECT_EQ(edit_->text(), QStringLiteral("916"));
    edit_->ClearUndo();
    edit_->Undo();
    EXPECT_EQ(edit_->text(), QStringLiteral("916"));
    EXPECT_TRUE(edit_->isModified());
}

} // namespace
} // namespace qorkit

namespace qorkit {
namespace {

TEST_F(FloatEditTest, ExpressionsAreEvaluatedWhenAllowed)
{
    Touches(test::Area::Random); // the expressions run on a calculator engine
    Type(QStringLiteral("2+3*4"));
    EXPECT_EQ(edit_->GetValue(), 234); // operators are refused keys without expressions
    edit_->SetAllowExpressions(true);
    Type(QStringLiteral("2+3*4"));
    EXPECT_EQ(edit_->GetValue(), 14);
    Type(QStringLiteral("1/0"));
    EXPECT_EQ(edit_->GetValue(), 14);
    EXPECT_EQ(errors_.size(), 1);
}

} // namespace
} // namespace qorkit
