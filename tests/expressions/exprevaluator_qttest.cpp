// TQORExprEvaluator: variables written into the expression, the angle mode, errors reported
// through GetLastError, OnError and the error() signal, a fresh memory per evaluation, and the
// change signals of its properties.
#include "QORKITExprEvaluator.h"
#include "QORKITResource.h"
#include "QORKIT_RS_Calc.h"
#include "QorkitTestSupport.h"

#include <QMetaProperty>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

namespace qorkit {
namespace {

class ExprEvaluatorTest : public test::GlobalStateTest {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        eval_.SetOnError([this](QObject* sender) {
            EXPECT_EQ(sender, &eval_);
            ++errors_;
        });
    }
    Extended Evaluate(const char* expression)
    {
        eval_.SetExpression(QString::fromUtf8(expression));
        return eval_.Evaluate();
    }

    TQORExprEvaluator eval_;
    int errors_ = 0;
};

struct VarRow {
    const char* Name;
    const char* Expression;
    Extended Expected;
};

void PrintTo(const VarRow& row, std::ostream* os) { *os << row.Name; }

class ExprEvaluatorVars : public ExprEvaluatorTest,
                          public ::testing::WithParamInterface<VarRow> { };

// Var1 = 2 and Var2 = 5, Var0 = 100 ... every variable name takes Var1.
TEST_P(ExprEvaluatorVars, EveryNameTakesVar1)
{
    for (int i = 0; i < TQORExprEvaluator::VarCount; ++i)
        eval_.SetVar(i, 100 + i);
    eval_.SetVar1(2);
    eval_.SetVar2(5);
    EXPECT_NEAR(static_cast<double>(Evaluate(GetParam().Expression)),
                static_cast<double>(GetParam().Expected), 1e-12);
    EXPECT_TRUE(eval_.GetLastError().isEmpty()) << eval_.GetLastError().toStdString();
    EXPECT_EQ(errors_, 0);
}

INSTANTIATE_TEST_SUITE_P(Expressions, ExprEvaluatorVars,
                         ::testing::Values(VarRow {"Var2TimesTen", "var2 * 10", 20},
                                           VarRow {"UpperCase", "VAR1+1", 3},
                                           VarRow {"Var0AndVar9", "var0 + Var9", 4},
                                           VarRow {"FunctionNamesLowered", "SQRT(var7 * 8)", 4},
                                           VarRow {"RepeatedName", "var1*var1*var1", 8}),
                         test::RowName<VarRow>);

TEST_F(ExprEvaluatorTest, ReplaceVarsLowersTheTextAndWritesVar1)
{
    eval_.SetVar1(-1.5L);
    eval_.SetVar3(7);
    const QString text = eval_.ReplaceVars(QStringLiteral("Var3+COS(VAR1)"));
    // Each value is right-aligned in 19 characters with 4 decimals.
    const std::string value = std::string(12, ' ') + "-1.5000";
    EXPECT_EQ(text.toStdString(), value + "+cos(" + value + ")");
}

TEST_F(ExprEvaluatorTest, BinaryPercentIsKeptButNotApplied)
{
    const Extended withDefault = Evaluate("200+10%");
    eval_.SetBinaryPercent(true);
    EXPECT_EQ(Evaluate("200+10%"), withDefault);
    eval_.SetBinaryPercent(false);
    EXPECT_EQ(Evaluate("200+10%"), withDefault);
    EXPECT_FALSE(eval_.GetBinaryPercent());
    // The component's engine keeps binary percent: not the 220 of unary percent.
    EXPECT_NE(withDefault, 220);
}

TEST_F(ExprEvaluatorTest, PrefixFunctionsOffStillReadsFunctionsFirst)
{
    eval_.SetPrefixFunctions(false);
    EXPECT_NEAR(static_cast<double>(Evaluate("sqrt 9 + 1")), 4, 1e-15);
}

TEST_F(ExprEvaluatorTest, AngleModeReachesTheEvaluation)
{
    EXPECT_EQ(eval_.GetAngleMode(), amRadians);
    eval_.SetAngleMode(amDegrees);
    EXPECT_NEAR(static_cast<double>(Evaluate("sin 30")), 0.5, 1e-15);
    eval_.SetAngleMode(amRadians);
    EXPECT_NEAR(static_cast<double>(Evaluate("sin(pi/2)")), 1, 1e-15);
}

TEST_F(ExprEvaluatorTest, EachEvaluationStartsWithAnEmptyMemory)
{
    Evaluate("7 madd");
    EXPECT_EQ(Evaluate("mr + 1"), 1);
}

struct ErrorRow {
    const char* Name;
    const char* Expression;
    std::string (*Message)();
};

void PrintTo(const ErrorRow& row, std::ostream* os) { *os << row.Name; }

class ExprEvaluatorErrors : public ExprEvaluatorTest,
                            public ::testing::WithParamInterface<ErrorRow> { };

TEST_P(ExprEvaluatorErrors, ResultZeroMessageAndOneNotice)
{
    QSignalSpy spy(&eval_, &TQORExprEvaluator::error);
    EXPECT_EQ(Evaluate(GetParam().Expression), 0);
    EXPECT_EQ(eval_.GetLastError().toStdString(), GetParam().Message());
    EXPECT_EQ(errors_, 1);
    EXPECT_EQ(spy.count(), 1);

    // A good evaluation clears the message and raises nothing.
    EXPECT_EQ(Evaluate("1+1"), 2);
    EXPECT_TRUE(eval_.GetLastError().isEmpty());
    EXPECT_EQ(errors_, 1);
    EXPECT_EQ(spy.count(), 1);
}

INSTANTIATE_TEST_SUITE_P(Expressions, ExprEvaluatorErrors,
                         ::testing::Values(ErrorRow {"DivideByZero", "var1/0", &rsDivideByZero},
                                           ErrorRow {
                                               "UnknownWord", "foo(1)",
                                               [] { return rsUnknownFunction() + " - foo"; }}),
                         test::RowName<ErrorRow>);

TEST_F(ExprEvaluatorTest, SettersSignalRealChangesOnly)
{
    QSignalSpy var3(&eval_, &TQORExprEvaluator::var3Changed);
    QSignalSpy var1(&eval_, &TQORExprEvaluator::var1Changed);
    QSignalSpy expression(&eval_, &TQORExprEvaluator::expressionChanged);
    QSignalSpy angle(&eval_, &TQORExprEvaluator::angleModeChanged);
    eval_.SetVar3(1);
    eval_.SetVar3(1);
    eval_.SetExpression(QStringLiteral("var1"));
    eval_.SetExpression(QStringLiteral("var1"));
    eval_.SetAngleMode(amRadians); // the default
    eval_.SetAngleMode(amGradians);
    eval_.SetVar1(std::numeric_limits<Extended>::quiet_NaN());
    eval_.SetVar1(std::numeric_limits<Extended>::infinity());
    EXPECT_EQ(var3.count(), 1);
    EXPECT_EQ(expression.count(), 1);
    EXPECT_EQ(angle.count(), 1);
    EXPECT_EQ(var1.count(), 0);
    EXPECT_EQ(eval_.GetVar1(), 0);
    EXPECT_EQ(eval_.GetVar(10), 0);
}

TEST_F(ExprEvaluatorTest, PropertiesAreWritableThroughTheMetaObject)
{
    const QMetaObject* meta = eval_.metaObject();
    const QMetaProperty angle = meta->property(meta->indexOfProperty("AngleMode"));
    ASSERT_TRUE(angle.isValid());
    EXPECT_TRUE(angle.isEnumType());
    EXPECT_TRUE(eval_.setProperty("AngleMode", QStringLiteral("amDegrees")));
    EXPECT_EQ(eval_.GetAngleMode(), amDegrees);
    EXPECT_TRUE(eval_.setProperty("Var2", 4.5));
    EXPECT_EQ(eval_.GetVar2(), 4.5);
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        EXPECT_TRUE(meta->property(i).hasNotifySignal()) << meta->property(i).name();
}

} // namespace
} // namespace qorkit
