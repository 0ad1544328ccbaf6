// TQORExpressEdit driven through the keyboard: typed expressions and their values, the two
// expression languages, what is shown while editing and afterwards, the null string, refused
// expressions and the change signals.
#include "EditWindowTest.h"
#include "QORKITExprEdit.h"
#include "QORKITResource.h"
#include "QORKIT_RS_Calc.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>
#include <ostream>

namespace qorkit {
namespace {

class ExprEditTest : public test::EditWindowTest<TQORExpressEdit, test::Area::Random> {
protected:
    void SetUp() override
    {
        EditWindowTest::SetUp();
        changes_.emplace(edit_, &TQORExpressEdit::change);
        edit_->SetOnValidationError([this](QObject*, const QString& m) { errors_ << m; });
    }
    void Type(const QString& keys) { TypeInto(edit_, keys); }

    std::optional<QSignalSpy> changes_;
    QStringList errors_;
};

struct TypedRow {
    const char* Name;
    TQORExpressionType Type;
    const char* Keys;
    Extended Value;
    const char* Shown; // the text once the edit is left
};

void PrintTo(const TypedRow& row, std::ostream* os) { *os << row.Name; }

class ExprEditTyping : public ExprEditTest, public ::testing::WithParamInterface<TypedRow> { };

TEST_P(ExprEditTyping, ValueAndTextAfterLeaving)
{
    const TypedRow& row = GetParam();
    edit_->SetExpressionType(row.Type);
    Type(QString::fromUtf8(row.Keys));
    EXPECT_TRUE(errors_.isEmpty()) << errors_.join(QLatin1Char('\n')).toStdString();
    EXPECT_NEAR(static_cast<double>(edit_->GetFloatValue()), static_cast<double>(row.Value), 1e-15);
    EXPECT_EQ(edit_->text(), QString::fromUtf8(row.Shown));
    EXPECT_EQ(edit_->GetExpression(), QString::fromUtf8(row.Keys));
    EXPECT_EQ(changes_->count(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Expressions, ExprEditTyping,
    ::testing::Values(TypedRow {"Precedence", etSimple, "2+3*4", 14, "14.0000"},
                      TypedRow {"Pi", etSimple, "2*pi", 2 * 3.14159265358979323846L, "6.2832"},
                      TypedRow {"UnaryPercent", etSimple, "200+10%", 220, "220.0000"},
                      TypedRow {"FullSine", etFull, "sin(pi/2)", 1, "1.0000"},
                      TypedRow {"FullUpperCase", etFull, "SQRT(16)+2e3", 2004, "2004.0000"},
                      TypedRow {"FullRadians", etFull, "cos(pi)", -1, "-1.0000"}),
    test::RowName<TypedRow>);

TEST_F(ExprEditTest, TheExpressionComesBackWhileEditing)
{
    Type(QStringLiteral("1/4"));
    EXPECT_EQ(edit_->text(), QStringLiteral("0.2500"));
    edit_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit_->text(), QStringLiteral("1/4"));
    QTest::keyClick(edit_, Qt::Key_End);
    QTest::keyClicks(edit_, QStringLiteral("+1"));
    QTest::keyClick(edit_, Qt::Key_Return); // taken over without leaving
    EXPECT_EQ(edit_->GetFloatValue(), 1.25L);
    EXPECT_EQ(edit_->text(), QStringLiteral("1/4+1"));
}

struct DisplayRow {
    const char* Name;
    TQORExpressionDisplay Display;
    const char* Editing;
    const char* Left;
};

void PrintTo(const DisplayRow& row, std::ostream* os) { *os << row.Name; }

class ExprEditDisplay : public ExprEditTest, public ::testing::WithParamInterface<DisplayRow> { };

TEST_P(ExprEditDisplay, WhatEachFormShows)
{
    edit_->SetExpressionDisplay(GetParam().Display);
    edit_->SetDecimals(2);
    edit_->SetExpression(QStringLiteral("10/4"));
    EXPECT_EQ(edit_->text(), QString::fromUtf8(GetParam().Left));
    edit_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit_->text(), QString::fromUtf8(GetParam().Editing));
    other_->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit_->text(), QString::fromUtf8(GetParam().Left));
    EXPECT_EQ(edit_->GetFloatValue(), 2.5L);
}

INSTANTIATE_TEST_SUITE_P(Forms, ExprEditDisplay,
                         ::testing::Values(DisplayRow {"ExpressionWhileEditing",
                                                       edExpressionWhileEditing, "10/4", "2.50"},
                                           DisplayRow {"ValueAlways", edValue, "2.50", "2.50"},
                                           DisplayRow {"ExpressionAlways", edExpression, "10/4",
                                                       "10/4"}),
                         test::RowName<DisplayRow>);

TEST_F(ExprEditTest, ChangingTheLanguageEvaluatesAgain)
{
    edit_->SetExpression(QStringLiteral("2e3+1"));
    // The simple language has no exponent: "e" starts a word that swallows the rest.
    EXPECT_NE(edit_->GetFloatValue(), 2001);
    QSignalSpy value(edit_, &TQORExpressEdit::asFloatChanged);
    edit_->SetExpressionType(etFull);
    EXPECT_EQ(edit_->GetFloatValue(), 2001);
    EXPECT_EQ(value.count(), 1);
}

TEST_F(ExprEditTest, NullStringInAnyLetterCase)
{
    edit_->SetNullStr(QStringLiteral("None"));
    edit_->SetExpression(QStringLiteral("5"));
    Type(QStringLiteral("  nONe "));
    EXPECT_TRUE(edit_->GetNull());
    EXPECT_EQ(edit_->GetFloatValue(), 0);
    EXPECT_EQ(edit_->text(), QStringLiteral("None"));
    EXPECT_TRUE(errors_.isEmpty());
    // Typing an expression leaves the null state again.
    Type(QStringLiteral("3*3"));
    EXPECT_FALSE(edit_->GetNull());
    EXPECT_EQ(edit_->GetFloatValue(), 9);
}

struct RefusedRow {
    const char* Name;
    TQORExpressionType Type;
    const char* Keys;
    const char* MessagePart;
};

void PrintTo(const RefusedRow& row, std::ostream* os) { *os << row.Name; }

class ExprEditRefused : public ExprEditTest, public ::testing::WithParamInterface<RefusedRow> { };

TEST_P(ExprEditRefused, ClearMessageAndTheOldValueKept)
{
    const RefusedRow& row = GetParam();
    edit_->SetExpressionType(row.Type);
    edit_->SetBoundLower(-10);
    edit_->SetBoundUpper(10);
    Type(QStringLiteral("2+3"));
    changes_->clear();
    Type(QString::fromUtf8(row.Keys));
    ASSERT_EQ(errors_.size(), 1);
    EXPECT_TRUE(errors_[0].contains(QString::fromUtf8(row.MessagePart)))
        << errors_[0].toStdString();
    EXPECT_TRUE(errors_[0].contains(QString::fromUtf8(row.Keys))) << errors_[0].toStdString();
    EXPECT_EQ(edit_->GetFloatValue(), 5);
    EXPECT_EQ(edit_->GetExpression(), QStringLiteral("2+3"));
    EXPECT_EQ(edit_->text(), QStringLiteral("5.0000"));
    EXPECT_EQ(changes_->count(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Expressions, ExprEditRefused,
    ::testing::Values(RefusedRow {"SimpleDivideByZero", etSimple, "1/0", "Division by zero"},
                      RefusedRow {"FullDivideByZero", etFull, "7/(2-2)", "Division by zero"},
                      RefusedRow {"UnknownFunction", etFull, "foo(2)", "Unknown Function - foo"},
                      RefusedRow {"AboveBound", etSimple, "5*5", "outside the allowed range"},
                      RefusedRow {"BelowBound", etFull, "0-sqrt(400)",
                                  "outside the allowed range"}),
    test::RowName<RefusedRow>);

TEST_F(ExprEditTest, SetFloatValueRefusesWhatItCannotHold)
{
    edit_->SetFloatValue(3);
    edit_->SetBoundLower(0);
    edit_->SetBoundUpper(5);
    edit_->SetFloatValue(std::numeric_limits<Extended>::infinity());
    edit_->SetFloatValue(std::numeric_limits<Extended>::quiet_NaN());
    edit_->SetFloatValue(6);
    EXPECT_EQ(errors_.size(), 3);
    EXPECT_EQ(edit_->GetFloatValue(), 3);
    EXPECT_EQ(edit_->text(), QStringLiteral("3.0000"));
}

TEST_F(ExprEditTest, EqualValuesFireNothing)
{
    edit_->SetFloatValue(1.5L);
    changes_->clear();
    QSignalSpy value(edit_, &TQORExpressEdit::asFloatChanged);
    QSignalSpy expression(edit_, &TQORExpressEdit::asExpressionChanged);
    QSignalSpy decimals(edit_, &TQORExpressEdit::decimalPlacesChanged);
    edit_->SetFloatValue(1.5L);
    edit_->SetExpression(edit_->GetExpression());
    edit_->SetDecimals(4); // the default
    EXPECT_EQ(changes_->count(), 0);
    EXPECT_EQ(value.count(), 0);
    EXPECT_EQ(expression.count(), 0);
    EXPECT_EQ(decimals.count(), 0);
    // The same value written as another expression is a change of the expression only.
    edit_->SetExpression(QStringLiteral("3/2"));
    EXPECT_EQ(value.count(), 0);
    EXPECT_EQ(expression.count(), 1);
    EXPECT_EQ(changes_->count(), 1);
}

TEST_F(ExprEditTest, EnumPropertiesThroughTheMetaObject)
{
    EXPECT_TRUE(edit_->setProperty("ExpressionType", QStringLiteral("etFull")));
    EXPECT_EQ(edit_->GetExpressionType(), etFull);
    EXPECT_TRUE(edit_->setProperty("ExpressionDisplay", QStringLiteral("edExpression")));
    EXPECT_EQ(edit_->GetExpressionDisplay(), edExpression);
    const QMetaObject* meta = edit_->metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        EXPECT_TRUE(meta->property(i).hasNotifySignal()) << meta->property(i).name();
    EXPECT_TRUE(meta->property(meta->indexOfProperty("ExpressionType")).isEnumType());
    EXPECT_TRUE(meta->property(meta->indexOfProperty("ExpressionDisplay")).isEnumType());
}

} // namespace
} // namespace qorkit
