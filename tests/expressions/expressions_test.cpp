// Expression strings through both evaluators: values, words, memory, angle modes and errors.
#include "CalcKeyDriver.h"
#include "QORKITCalcEngine.h"
#include "QORKITExceptions.h"
#include "QORKITExpressions.h"
#include "QORKITResource.h"
#include "QORKIT_RS_Calc.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace qorkit::test {
namespace {

const long double Pi = std::numbers::pi_v<long double>;

struct ExprCase {
    const char* Name;
    const char* Text;
    long double Expected;
    TQORAngleMode Mode = amRadians;
};

void PrintTo(const ExprCase& c, std::ostream* os) { *os << c.Text; }

class EvaluateTable : public CalcEngineTest, public ::testing::WithParamInterface<ExprCase> { };

TEST_P(EvaluateTable, GivesTheValue)
{
    const auto& row = GetParam();
    TQORCalcEngine engine;
    Extended memory = 0;
    std::string error;
    const Extended result = EvaluateStr(row.Text, engine, memory, error, row.Mode);
    EXPECT_EQ(error, "");
    EXPECT_TRUE(NearExtended(result, row.Expected));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Expressions, EvaluateTable, ::testing::Values(
    ExprCase{"Precedence", "2+3*4", 14},
    ExprCase{"Brackets", "(2+3)*4", 20},
    ExprCase{"LetterXMultiplies", "2x3", 6},
    ExprCase{"UpperCaseAndBlanks", "  2 X 3  ", 6},
    ExprCase{"CosineRadians", "cos(0)", 1},
    ExprCase{"CosineDegrees", "cos(0)", 1, amDegrees},
    ExprCase{"CosineGradians", "cos(0)", 1, amGradians},
    ExprCase{"SineDegrees", "sin 30", 0.5L, amDegrees},
    ExprCase{"SineGradians", "sin(100)", 1, amGradians},
    ExprCase{"ArcsineDegrees", "arcsin 1", 90, amDegrees},
    ExprCase{"InvTangentWord", "invtan(1)*4", Pi},
    ExprCase{"Exponent", "2e3+1", 2001},
    ExprCase{"NegativeExponent", "5e-3*2", 0.01L},
    ExprCase{"ExpWord", "exp(1)", std::numbers::e_v<long double>},
    ExprCase{"ExpOfLn", "exp(ln(5))", 5},
    ExprCase{"ArcsineOfSine", "arcsin sin 0.5", 0.5L},
    ExprCase{"ExpThenPower", "exp 1^2", std::exp(2.0L)},
    ExprCase{"SquareRootBindsToItsArgument", "sqrt 16 + 2", 6},
    ExprCase{"Lg2EndsInADigit", "lg2 8", 3},
    ExprCase{"LogAndLn", "log 1000 + ln(1)", 3},
    ExprCase{"Hyperbolic", "cosh 0 + hypsin 0 + invhyptan 0", 1},
    ExprCase{"AreaSineWords", "arsinh(1) - hypinvsin(1)", 0},
    ExprCase{"AbsFloorCeilSign", "abs(-3) + floor 2.7 + ceiling 2.2 + sgn(-5)", 7},
    ExprCase{"Gamma", "gamma 5 + lngamma 1", 24},
    ExprCase{"Power", "2^10", 1024},
    ExprCase{"Root", "27@3", 3},
    ExprCase{"ModWord", "10 mod 4", 2},
    ExprCase{"DivWords", "-7 div 2 + -7 intdiv 2", -7},
    ExprCase{"RemCharacter", "-7&3", -1},
    ExprCase{"PercentIsBinaryOnADefaultEngine", "200%10", 20},
    ExprCase{"ThousandsSeparator", "1,234.5+1", 1235.5L},
    ExprCase{"PiWord", "pi*2", 2 * Pi},
    ExprCase{"TrailingEqualsIsHarmless", "1+1=", 2},
    ExprCase{"UnmatchedBracket", "(1+2", 3},
    ExprCase{"Empty", "", 0}),
    RowName<ExprCase>);
// clang-format on

class Expressions : public CalcEngineTest { };

TEST_F(Expressions, EngineStateIsRestored)
{
    TQORCalcEngine engine;
    engine.SetMemory(7);
    Extended memory = 4;
    std::string error;
    EXPECT_EQ(EvaluateStr("mr*2 madd", engine, memory, error, amDegrees), 8);
    EXPECT_EQ(memory, 12) << "the memory the expression left comes back out";
    EXPECT_EQ(engine.GetMemoryValue(), 7) << "the engine's own memory is restored";
    EXPECT_EQ(engine.GetAngleMode(), amRadians);
    EXPECT_FALSE(engine.GetPrefixFunctions());

    memory = 0;
    EvaluateStr("2+3 madd 10 msub", engine, memory, amRadians);
    EXPECT_EQ(memory, -5);
    EvaluateStr("mc", engine, memory, amRadians);
    EXPECT_EQ(memory, 0);
}

TEST_F(Expressions, Errors)
{
    TQORCalcEngine engine;
    Extended memory = 0;
    std::string error;
    EXPECT_EQ(EvaluateStr("foo(1)", engine, memory, error, amRadians), 0);
    EXPECT_EQ(error, rsUnknownFunction() + " - foo");
    EXPECT_EQ(EvaluateStr("sin30 + sïn 3", engine, memory, error, amRadians), 0);
    EXPECT_EQ(error, rsUnknownFunction() + " - s\xC3\xAFn");
    EXPECT_EQ(EvaluateStr("1/0+5", engine, memory, error, amRadians), 0);
    EXPECT_EQ(error, rsDivideByZero());
    EXPECT_EQ(engine.GetDisplayStr(), rsErrorMsg());
    EXPECT_EQ(EvaluateStr("sqrt(-4)", engine, amRadians), 0);
    EXPECT_EQ(engine.GetLastError(), rsSqRootNeg());
    EXPECT_EQ(EvaluateStr("1+1", engine, memory, error, amRadians), 2);
    EXPECT_EQ(error, "");
}

TEST_F(Expressions, EngineLessForms)
{
    EXPECT_EQ(EvaluateStr("200+10%", amRadians), 220);
    Extended memory = 1;
    EXPECT_EQ(EvaluateStr("mr+1 madd", memory, amRadians), 2);
    EXPECT_EQ(memory, 3);
    EXPECT_EQ(EvaluateStr("nope", amRadians), 0) << "this form never raises";
    EXPECT_TRUE(NearExtended(EvaluateStr("sin 90", true, amDegrees), 1));
    try {
        EvaluateStr("1/0", false, amDegrees);
        FAIL() << "expected an exception";
    } catch (const EMathError& e) {
        EXPECT_STREQ(e.what(), "1/0") << "the message is the expression itself";
    }
    EXPECT_THROW(EvaluateStr("bar", false, amDegrees), EMathError);
}

TEST_F(Expressions, CommaDecimals)
{
    CommaDecimals comma;
    EXPECT_EQ(EvaluateStr("1,5*2", amRadians), 3);
    EXPECT_EQ(EvaluateStr("1.000,5*2", amRadians), 2001);
    EXPECT_EQ(SimpleEvaluateStr("2,5+1"), 3.5L);
}

TEST_F(Expressions, SimpleEvaluator)
{
    EXPECT_EQ(SimpleEvaluateStr("2 + 3 * 4"), 14);
    EXPECT_EQ(SimpleEvaluateStr("(1+2)x3"), 9);
    EXPECT_EQ(SimpleEvaluateStr("200+10%"), 220);
    EXPECT_TRUE(NearExtended(SimpleEvaluateStr("2^3@3"), 2));
    EXPECT_TRUE(NearExtended(SimpleEvaluateStr("2*PI"), 2 * Pi));
    EXPECT_EQ(SimpleEvaluateStr("2 + 3 abc 4"), 5) << "a word swallows the rest";

    TQORCalcEngine engine;
    EXPECT_EQ(SimpleEvaluateStr("200%10", engine), 20)
        << "the caller's engine keeps binary percent";
    EXPECT_EQ(SimpleEvaluateStr("2*e", engine), 0);
    EXPECT_EQ(engine.GetLastError(), rsInvalidEquation());
    EXPECT_EQ(SimpleEvaluateStr("7 # 0", engine), 0);
    EXPECT_EQ(engine.GetLastError(), rsDivideByZero());
}

} // namespace
} // namespace qorkit::test
