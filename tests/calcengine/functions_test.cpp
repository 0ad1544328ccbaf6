// Function keys, constants, toggles and angle modes, checked against the standard library's
// long-double functions and exact values.
#include "CalcKeyDriver.h"
#include "QORKITCalcEngine.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace qorkit::test {
namespace {

struct FunctionCase {
    const char* Name;
    const char* Keys;
    long double Expected;
    TQORAngleMode Mode = amRadians;
    bool Prefix = false;
};

void PrintTo(const FunctionCase& c, std::ostream* os) { *os << c.Keys; }

class FunctionTable : public CalcEngineTest, public ::testing::WithParamInterface<FunctionCase> { };

TEST_P(FunctionTable, GivesTheIndependentValue)
{
    const auto& row = GetParam();
    CalcKeyDriver calc;
    calc.Engine().SetAngleMode(row.Mode);
    calc.Engine().SetPrefixFunctions(row.Prefix);
    calc.Press(row.Keys);
    ASSERT_EQ(calc.Count("error"), 0) << calc.Engine().GetLastError();
    EXPECT_TRUE(NearExtended(calc.Engine().GetDisplayValue(), row.Expected));
    EXPECT_FALSE(calc.Engine().GetIsInv() || calc.Engine().GetIsHyp());
}

const long double Pi = std::numbers::pi_v<long double>;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Functions, FunctionTable, ::testing::Values(
    FunctionCase{"SineOf30Degrees", "3 0 [sin]", 0.5L, amDegrees},
    FunctionCase{"ArcsineInDegrees", ". 5 [inv] [sin]", 30.0L, amDegrees},
    FunctionCase{"SineOf100Gradians", "1 0 0 [sin]", 1.0L, amGradians},
    FunctionCase{"ArccosineInGradians", "0 [inv] [cos]", 100.0L, amGradians},
    FunctionCase{"TangentOf45Degrees", "4 5 [tan]", 1.0L, amDegrees},
    FunctionCase{"ArctangentInDegrees", "1 [inv] [tan]", 45.0L, amDegrees},
    FunctionCase{"SineInRadians", "1 [sin]", std::sin(1.0L)},
    FunctionCase{"CosineInRadians", "2 [cos]", std::cos(2.0L)},
    FunctionCase{"ArctangentInRadians", "1 [inv] [tan]", Pi / 4},
    FunctionCase{"HyperbolicCosineIgnoresDegrees", "0 [hyp] [cos]", 1.0L, amDegrees},
    FunctionCase{"HyperbolicCosineIgnoresGradians", "0 [hyp] [cos]", 1.0L, amGradians},
    FunctionCase{"HyperbolicSine", "1 [hyp] [sin]", std::sinh(1.0L), amDegrees},
    FunctionCase{"HyperbolicTangent", ". 5 [hyp] [tan]", std::tanh(0.5L)},
    FunctionCase{"AreaSine", "1 [inv] [hyp] [sin]", std::asinh(1.0L), amDegrees},
    FunctionCase{"AreaCosine", "2 [hyp] [inv] [cos]", std::acosh(2.0L)},
    FunctionCase{"AreaTangent", ". 5 [inv] [hyp] [tan]", std::atanh(0.5L)},
    FunctionCase{"CommonLog", "1 0 0 0 [log]", 3.0L},
    FunctionCase{"TenToTheX", "2 [inv] [log]", 100.0L},
    FunctionCase{"NaturalLog", "1 0 [ln]", std::log(10.0L)},
    FunctionCase{"EToTheX", "1 [inv] [ln]", std::numbers::e_v<long double>},
    FunctionCase{"BinaryLog", "8 [lg2]", 3.0L},
    FunctionCase{"TwoToTheX", "3 [inv] [lg2]", 8.0L},
    FunctionCase{"SquareRoot", "2 [sqrt]", std::sqrt(2.0L)},
    FunctionCase{"InvSquareRootSquares", "3 [inv] [sqrt]", 9.0L},
    FunctionCase{"Square", "1 2 [sqr]", 144.0L},
    FunctionCase{"InvSquareIsSquareRoot", "8 1 [inv] [sqr]", 9.0L},
    FunctionCase{"Abs", "- 4 [abs]", 4.0L},
    FunctionCase{"FloorOfNegative", "- 2 . 5 [floor]", -3.0L},
    FunctionCase{"CeilingOfNegative", "- 2 . 5 [ceil]", -2.0L},
    FunctionCase{"SignOfNegative", "- 4 [sign]", -1.0L},
    FunctionCase{"SignOfZero", "0 [sign]", 0.0L},
    FunctionCase{"GammaOfFive", "5 [gamma]", 24.0L},
    FunctionCase{"GammaOfHalf", ". 5 [gamma]", std::sqrt(Pi)},
    FunctionCase{"LnGamma", "1 0 [lngamma]", std::log(362880.0L)},
    FunctionCase{"Reciprocal", "4 [1/x]", 0.25L},
    FunctionCase{"RoundHalfAwayFromZero", "- 2 . 5 [round]", -3.0L},
    FunctionCase{"RoundToTwoPlaces", "2 . 3 4 6 [round2]", 2.35L},
    FunctionCase{"FunctionOfPendingResult", "2 + 7 = [sqrt]", 3.0L},
    FunctionCase{"FunctionOfOperandInsideSum", "2 + 9 [sqrt] =", 5.0L},
    FunctionCase{"NestedFunctionsInSum", "2 * 4 [sqrt] [sqrt] + 1 =", 2 * std::sqrt(2.0L) + 1},
    FunctionCase{"PrefixCosine", "[cos] 0 =", 1.0L, amRadians, true},
    FunctionCase{"PrefixInsideSum", "2 + [sqrt] 9 =", 5.0L, amRadians, true},
    FunctionCase{"PrefixWithBrackets", "[sin] ( 1 5 + 1 5 ) =", 0.5L, amDegrees, true},
    FunctionCase{"PrefixInverse", "[inv] [sin] . 5 =", 30.0L, amDegrees, true},
    FunctionCase{"PrefixBindsTighterThanPower", "[sqrt] 4 ^ 3 =", 8.0L, amRadians, true},
    FunctionCase{"PrefixInverseOfNestedFunction", "[inv] [ln] ( [ln] 5 ) =", 5.0L, amRadians, true},
    FunctionCase{"PrefixInverseThenPower", "[inv] [ln] 1 ^ 2 =", std::exp(2.0L), amRadians, true},
    FunctionCase{"Pi", "[pi]", Pi},
    FunctionCase{"NaturalConstant", "e", std::numbers::e_v<long double>},
    FunctionCase{"EulersConstant", "[euler]", std::numbers::egamma_v<long double>},
    FunctionCase{"GoldenRatio", "[phi]", std::numbers::phi_v<long double>},
    FunctionCase{"SpeedOfLight", "[light]", 299792458.0L},
    FunctionCase{"Gravity", "g", 9.80665L},
    FunctionCase{"ConstantInSum", "2 * [pi] =", 2 * Pi}),
    RowName<FunctionCase>);
// clang-format on

TEST_F(CalcEngineTest, FunctionResultGoesOnTopOfTheOldOperand)
{
    CalcKeyDriver calc;
    calc.Press("4 [sqrt] [sqrt]");
    EXPECT_EQ(calc.Engine().GetOperandCount(), 2);
    EXPECT_EQ(calc.Tape(), "4.0000 | sqrt | sqrt");
    calc.Press("=");
    EXPECT_EQ(calc.Engine().GetOperandCount(), 1);
    EXPECT_EQ(calc.Display(), "1.4142");
}

TEST_F(CalcEngineTest, TapeLabelsFollowTheToggles)
{
    CalcKeyDriver calc;
    calc.Press("1 [inv] [hyp] [sin] [hyp] [cos] [inv] [tan] [inv] [ln] 2 [round2] 3 [round]");
    EXPECT_EQ(calc.Tape(),
              "1.0000 | arsinh | cosh | arctan | e^x | 2.0000 | round 2 | 3.0000 | round");
    calc.Engine().DoInv();
    calc.Engine().ReportLog2();
    EXPECT_EQ(calc.Engine().GetLastHistoryEntry(), "2^x");
}

TEST_F(CalcEngineTest, ToggleEventsFireOnChangeOnly)
{
    CalcKeyDriver calc;
    calc.Press("[inv] [inv]");
    EXPECT_EQ(calc.Events(), (std::vector<std::string> {"toggles-set", "toggles-clear"}));
    calc.ClearEvents();
    calc.Engine().ClearToggles();
    EXPECT_TRUE(calc.Events().empty());
    calc.Press("[hyp] 5");
    EXPECT_FALSE(calc.Engine().GetIsHyp()) << "an entry key clears the toggles";
    EXPECT_EQ(calc.Count("toggles-clear"), 1);
}

TEST_F(CalcEngineTest, AngleModeCycle)
{
    CalcKeyDriver calc;
    calc.Press("[drg]");
    EXPECT_EQ(calc.Engine().GetAngleMode(), amDegrees);
    calc.Press("[drg]");
    EXPECT_EQ(calc.Engine().GetAngleMode(), amRadians);
    calc.Engine().SetEnableGrads(true);
    calc.Press("[drg]");
    EXPECT_EQ(calc.Engine().GetAngleMode(), amGradians);
    EXPECT_EQ(calc.Engine().GetAngleModeStr(), "gra");
    calc.Press("[drg]");
    EXPECT_EQ(calc.Tape(), "deg | rad | gra | deg");
    EXPECT_EQ(calc.Count("angle"), 4);

    calc.ClearEvents();
    calc.Engine().SetAngleMode(amDegrees);
    EXPECT_EQ(calc.Count("angle"), 0) << "setting the same mode does nothing";
    calc.Engine().SetAngleMode(amRadians);
    EXPECT_EQ(calc.Count("angle"), 1);
    EXPECT_EQ(calc.Engine().GetHistoryLength(), 4) << "SetAngleMode writes no tape line";
}

TEST_F(CalcEngineTest, RandomValuesLieInTheUnitInterval)
{
    CalcKeyDriver calc;
    for (int i = 0; i < 20; ++i) {
        calc.Press("[rnd]");
        const auto value = calc.Engine().GetDisplayValue();
        EXPECT_GE(value, 0.0L);
        EXPECT_LT(value, 1.0L);
    }
}

} // namespace
} // namespace qorkit::test
