// The currency edits driven through the keyboard: live grouping and where the caret stays,
// taking typed text over (symbol, sign positions, FullAccuracy, OnConvert), refused text and
// settings, custom separators that are always put back, and the three amount classes.
#include "QORKITCurrEdit.h"
#include "QORKITSettings.h"
#include "QORKIT_RS_Calc.h"
#include "QorkitTestSupport.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>

namespace qorkit {
namespace {

class CurrEditTest : public test::GlobalStateTest {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        window_ = std::make_unique<QWidget>();
        window_->resize(300, 80);
        other_ = new QLineEdit(window_.get());
        other_->setGeometry(10, 45, 100, 22);
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        Use(new TQORBaseCurrEdit(window_.get()));
    }
    void Use(TQORBaseCurrEdit* edit)
    {
        delete edit_;
        edit_ = edit;
        edit_->setGeometry(10, 10, 200, 24);
        edit_->show();
        edit_->SetOnValidationError([this](QObject*, const QString& m) { errors_ << m; });
        other_->setFocus(Qt::TabFocusReason);
    }
    // Tabs into the edit (selecting its text) and types `keys`: "<" is the Left arrow, "#"
    // Delete, "\b" Backspace.
    void Type(const QString& keys)
    {
        edit_->setFocus(Qt::TabFocusReason);
        for (const QChar c : keys) {
            if (c == QLatin1Char('<'))
                QTest::keyClick(edit_, Qt::Key_Left);
            else if (c == QLatin1Char('#'))
                QTest::keyClick(edit_, Qt::Key_Delete);
            else if (c.unicode() > 0x7f) // no key of its own: the keyboard sends the text alone
                QTest::sendKeyEvent(QTest::Click, edit_, Qt::Key_unknown, QString(c),
                                    Qt::NoModifier);
            else
                QTest::keyClick(edit_, c.toLatin1());
        }
    }
    void Leave() { other_->setFocus(Qt::TabFocusReason); }
    void Enter(const QString& keys)
    {
        Type(keys);
        Leave();
    }
    void ExpectNoNonFinite() const
    {
        const QString shown = edit_->text().toLower();
        EXPECT_FALSE(shown.contains(QStringLiteral("nan")) || shown.contains(QStringLiteral("inf")))
            << shown.toStdString();
    }

    std::unique_ptr<QWidget> window_;
    QLineEdit* other_ = nullptr;
    TQORBaseCurrEdit* edit_ = nullptr;
    QStringList errors_;
};

// ---- Grouping while typing -------------------------------------------------------------------

struct GroupingCase {
    const char* Name;
    const char* Keys;
    const char* Text; // while still typing
    int Caret;
    std::function<void(TQORBaseCurrEdit&)> Setup = {};
};

class CurrEditGrouping : public CurrEditTest,
                         public ::testing::WithParamInterface<GroupingCase> { };

TEST_P(CurrEditGrouping, GroupsAndKeepsTheCaret)
{
    const GroupingCase& c = GetParam();
    if (c.Setup)
        c.Setup(*edit_);
    Type(QString::fromUtf8(c.Keys));
    EXPECT_EQ(edit_->text(), QString::fromUtf8(c.Text));
    EXPECT_EQ(edit_->cursorPosition(), c.Caret);
    EXPECT_FALSE(edit_->hasSelectedText());
}

const GroupingCase GroupingCases[] = {
    {"DecimalsNeverGrouped", "1234567.891", "1,234,567.891", 13},
    {"MinusInFront", "-1234", "-1,234", 6},
    {"SymbolBetweenDigitsResetsTheCount", "12$3456", "12$3,456", 8},
    // The caret moves by the change in length, so a new separator left of it moves it too.
    {"DigitTypedInTheMiddle", "123456<<<0", "1,230,456", 6},
    {"DigitTypedInFront", "123456<<<<<<<7", "7,123,456", 2},
    {"BackspaceOverSeparatorRemovesTheDigit", "1234<<<\b", "234", 0},
    {"DeleteOverSeparatorRemovesTheDigit", "1234<<<<#", "134", 1},
    {"NoGroupingWhenSwitchedOff", "1234567", "1234567", 7,
     [](TQORBaseCurrEdit& e) { e.SetShowThousandSeparators(false); }},
    {"CustomSeparators", "1234567,5", "1.234.567,5", 11,
     [](TQORBaseCurrEdit& e) {
         e.SetCustomThousands('.');
         e.SetCustomDecimal(',');
         e.SetCustomSeparators(true);
     }},
    {"BlankGroupingStyle", "1234567", "1 234 567", 9,
     [](TQORBaseCurrEdit& e) { e.SetThousandSeparators(tsSpace); }},
};

INSTANTIATE_TEST_SUITE_P(Typing, CurrEditGrouping, ::testing::ValuesIn(GroupingCases),
                         test::RowName<GroupingCase>);

// ---- Taking text over ------------------------------------------------------------------------

TEST_F(CurrEditTest, LeavingTakesTheAmountOverAndShowsItWithTheSymbol)
{
    QSignalSpy changes(edit_, &TQORBaseCurrEdit::asFloatChanged);
    std::vector<int> signs;
    edit_->SetOnSignChange([&](QObject*, int sign) { signs.push_back(sign); });
    Enter(QStringLiteral("1234.5"));
    EXPECT_EQ(edit_->GetAsFloat(), 1234.5L);
    EXPECT_EQ(edit_->text(), QStringLiteral("$1,234.50"));
    EXPECT_EQ(changes.count(), 1);
    Enter(QStringLiteral("-$7"));
    EXPECT_EQ(edit_->GetAsFloat(), -7);
    EXPECT_EQ(edit_->text(), QStringLiteral("-$7.00"));
    EXPECT_EQ(signs, (std::vector<int> {1, -1}));
    EXPECT_TRUE(errors_.isEmpty());
}

TEST_F(CurrEditTest, FullAccuracyKeepsHiddenDigitsWhenTheTextIsUnchanged)
{
    edit_->SetDecimals(2);
    edit_->SetAsFloat(1.23456L);
    EXPECT_EQ(edit_->text(), QStringLiteral("$1.23"));
    edit_->SetFullAccuracy(true);
    Enter(QString());
    EXPECT_EQ(edit_->GetAsFloat(), 1.23456L);
    // Without it the edit holds what it shows.
    edit_->SetFullAccuracy(false);
    Enter(QString());
    EXPECT_EQ(edit_->GetAsFloat(), 1.23L);
}

TEST_F(CurrEditTest, OwnSymbolAndFormatsOnlyWithTheCustomFormatType)
{
    QSignalSpy symbolChanges(edit_, &TQORBaseCurrEdit::currencyStrChanged);
    edit_->SetCurrencyStr(QStringLiteral("EUR"));
    EXPECT_EQ(edit_->GetCurrencyStr(), QStringLiteral("$")); // refused: regional formats
    EXPECT_EQ(symbolChanges.count(), 0);
    EXPECT_TRUE(errors_.isEmpty()); // silently at run time

    edit_->SetFormatType(cftCustom);
    edit_->SetCurrencyStr(QStringLiteral("  \u20AC "));
    edit_->SetCurrencyFormat(cfNumberSpaceSymbol);
    edit_->SetNegativeFormat(nfMinusNumberSpaceSymbol);
    EXPECT_EQ(edit_->GetCurrencyStr(), QStringLiteral("\u20AC"));
    EXPECT_EQ(symbolChanges.count(), 1);
    edit_->SetAsFloat(-1234.5L);
    EXPECT_EQ(edit_->text(), QStringLiteral("-1,234.50 \u20AC"));
    Enter(QStringLiteral("99 \u20AC"));
    EXPECT_EQ(edit_->GetAsFloat(), 99);
    EXPECT_EQ(edit_->text(), QStringLiteral("99.00 \u20AC"));
    EXPECT_EQ(FormatSettings.CurrencyString, "$"); // the process-wide symbol is back

    edit_->SetDesignMode(true);
    edit_->SetFormatType(cftRegional);
    edit_->SetNegativeFormat(nfParenSymbolNumber);
    ASSERT_EQ(errors_.size(), 1);
    EXPECT_EQ(errors_[0].toStdString(), rsCurrencyFormat3());
}

TEST_F(CurrEditTest, OnConvertReplacesTheParseAndSeesTheTextWithoutSymbol)
{
    QString seen;
    edit_->SetOnConvert([&](QObject*, const QString& text) -> Extended {
        seen = text;
        return 42;
    });
    Enter(QStringLiteral("$5"));
    EXPECT_EQ(seen.trimmed(), QStringLiteral("5"));
    EXPECT_EQ(edit_->GetAsFloat(), 42);
}

// ---- Refusals --------------------------------------------------------------------------------

struct BadInputCase {
    const char* Name;
    std::function<TQORBaseCurrEdit*(QWidget*)> Make;
    const char* Keys;
    std::function<void(TQORBaseCurrEdit&)> Setup = {};
};

class CurrEditBadInput : public CurrEditTest,
                         public ::testing::WithParamInterface<BadInputCase> { };

TEST_P(CurrEditBadInput, KeepsTheOldValueAndReportsOnce)
{
    const BadInputCase& c = GetParam();
    Use(c.Make(window_.get()));
    if (c.Setup)
        c.Setup(*edit_);
    edit_->SetScaledFloat(7);
    const Extended old = edit_->GetAsFloat();
    const QString shown = edit_->text();
    QSignalSpy changes(edit_, &TQORBaseCurrEdit::asFloatChanged);
    Enter(QString::fromUtf8(c.Keys));
    EXPECT_EQ(edit_->GetAsFloat(), old);
    EXPECT_EQ(edit_->text(), shown);
    EXPECT_EQ(errors_.size(), 1) << errors_.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(changes.count(), 0);
    ExpectNoNonFinite();
    EXPECT_EQ(FormatSettings.DecimalSeparator, '.');
    EXPECT_EQ(FormatSettings.ThousandSeparator, ',');
}

TQORBaseCurrEdit* MakeBase(QWidget* p) { return new TQORBaseCurrEdit(p); }

const BadInputCase BadInputCases[] = {
    {"TwoDecimalSeparators", MakeBase, "1.2.3"},
    {"AboveBoundUpper", MakeBase, "500",
     [](TQORBaseCurrEdit& e) {
         e.SetBoundLower(0);
         e.SetBoundUpper(100);
     }},
    {"BelowBoundLower", MakeBase, "-1",
     [](TQORBaseCurrEdit& e) {
         e.SetBoundLower(0);
         e.SetBoundUpper(100);
     }},
    {"OnlyASign", MakeBase, "-"},
    {"CustomSeparatorsWithATextThatFails", MakeBase, "1,2,3",
     [](TQORBaseCurrEdit& e) {
         e.SetCustomThousands('.');
         e.SetCustomDecimal(',');
         e.SetCustomSeparators(true);
     }},
    {"ConversionThatThrows", MakeBase, "5",
     [](TQORBaseCurrEdit& e) {
         e.SetCustomSeparators(true);
         e.SetCustomDecimal(',');
         e.SetCustomThousands(' ');
         e.SetOnConvert([](QObject*, const QString&) -> Extended {
             throw std::runtime_error("no rate for this currency");
         });
     }},
    {"ConversionGivingNaN", MakeBase, "5",
     [](TQORBaseCurrEdit& e) {
         e.SetOnConvert(
             [](QObject*, const QString&) { return std::numeric_limits<Extended>::quiet_NaN(); });
     }},
    {"TooLargeFor32BitCents", [](QWidget* p) -> TQORBaseCurrEdit* { return new TQORCurrEdit(p); },
     "30000000"},
    {"TooLargeForUnsigned32BitCents",
     [](QWidget* p) -> TQORBaseCurrEdit* { return new TQORLongCurrEdit(p); }, "50000000"},
    {"TooLargeForCurrency", [](QWidget* p) -> TQORBaseCurrEdit* { return new TQORCurrencyEdit(p); },
     "1000000000000000"},
};

INSTANTIATE_TEST_SUITE_P(Refused, CurrEditBadInput, ::testing::ValuesIn(BadInputCases),
                         test::RowName<BadInputCase>);

TEST_F(CurrEditTest, ValuesThatAreNotFiniteAreRefused)
{
    edit_->SetAsFloat(3);
    edit_->SetAsFloat(std::numeric_limits<Extended>::infinity());
    edit_->SetScaledFloat(std::numeric_limits<Extended>::quiet_NaN());
    EXPECT_EQ(edit_->GetAsFloat(), 3);
    EXPECT_EQ(errors_.size(), 2);
    ExpectNoNonFinite();
}

TEST_F(CurrEditTest, TooManyDecimalsAreRefusedWithTheComposedMessage)
{
    Use(new TQORCurrencyEdit(window_.get()));
    QSignalSpy changes(edit_, &TQORBaseCurrEdit::decimalPlacesChanged);
    edit_->SetDecimals(5);
    EXPECT_EQ(edit_->GetDecimalPlaces(), 2);
    ASSERT_EQ(errors_.size(), 1);
    EXPECT_EQ(errors_[0], QStringLiteral("Cannot show more than 4 decimal places"));
    edit_->SetDecimals(4);
    EXPECT_EQ(edit_->GetDecimalPlaces(), 4);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(CurrEditTest, LongCurrencyCannotTypeASign)
{
    Use(new TQORLongCurrEdit(window_.get()));
    Enter(QStringLiteral("-12"));
    EXPECT_EQ(static_cast<TQORLongCurrEdit*>(edit_)->GetAsQORLongCurrency(), 1200u);
}

// ---- The amount classes ----------------------------------------------------------------------

TEST_F(CurrEditTest, AmountClassesScaleTheirTypes)
{
    auto* cents = new TQORCurrEdit(window_.get());
    Use(cents);
    QSignalSpy centsChanged(cents, &TQORCurrEdit::asQORCurrencyChanged);
    cents->SetAsQORCurrency(123456);
    EXPECT_EQ(cents->text(), QStringLiteral("$1,234.56"));
    EXPECT_EQ(cents->GetAsScaledCurrency(), Currency::FromScaled(12345600));
    Enter(QStringLiteral("-0.015"));
    EXPECT_EQ(cents->GetAsQORCurrency(), -2); // halves away from zero
    EXPECT_EQ(centsChanged.count(), 2);

    auto* currency = new TQORCurrencyEdit(window_.get());
    Use(currency);
    currency->SetDecimals(4);
    Enter(QStringLiteral("12.3456"));
    EXPECT_EQ(currency->GetAsCurrency(), Currency::FromScaled(123456));
    EXPECT_EQ(currency->text(), QStringLiteral("$12.3456"));
}

TEST_F(CurrEditTest, WritablePropertiesNotifyAndEnumsAreRegistered)
{
    const QMetaObject* metas[]
        = {&TQORBaseCurrEdit::staticMetaObject, &TQORCurrEdit::staticMetaObject,
           &TQORLongCurrEdit::staticMetaObject, &TQORCurrencyEdit::staticMetaObject};
    for (const QMetaObject* meta : metas) {
        for (int i = TQORBaseCurrEdit::staticMetaObject.propertyOffset(); i < meta->propertyCount();
             ++i) {
            const QMetaProperty p = meta->property(i);
            if (p.isWritable()) {
                EXPECT_TRUE(p.hasNotifySignal()) << meta->className() << "::" << p.name();
            }
        }
        for (const char* name :
             {"FormatType", "CurrencyFormat", "NegativeFormat", "ThousandSeparators"})
            EXPECT_TRUE(meta->property(meta->indexOfProperty(name)).isEnumType()) << name;
    }
}

} // namespace
} // namespace qorkit
