#include "QORKITConstants.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>

namespace qorkit {
namespace {

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();
constexpr Extended kInf = std::numeric_limits<Extended>::infinity();
// pi and sqrt(pi) to 36 digits, as published.
constexpr Extended kPi = 3.14159265358979323846264338327950288L;
constexpr Extended kSqrtPi = 1.77245385090551602729816748334114518L;

// EXPECT_NEAR works in double; these comparisons need the extended digits.
::testing::AssertionResult Near(Extended actual, Extended expected, Extended tolerance)
{
    if (std::fabs(actual - expected) <= tolerance)
        return ::testing::AssertionSuccess();
    std::ostringstream text;
    text << std::setprecision(21) << actual << " is not within " << tolerance << " of " << expected;
    return ::testing::AssertionFailure() << text.str();
}

template<typename Row> std::string RowName(const ::testing::TestParamInfo<Row>& info)
{
    return info.param.Name;
}

// ---- Tolerant comparisons
// ------------------------------------------------------------------------

TEST(MathTolerance, ZeroSignAndSameness)
{
    EXPECT_TRUE(FloatIsZero(1e-16L));
    EXPECT_TRUE(FloatIsZero(-1e-15L));
    EXPECT_FALSE(FloatIsZero(1e-14L));
    EXPECT_TRUE(FloatIsNegative(-1e-14L));
    EXPECT_FALSE(FloatIsNegative(-1e-16L));
    EXPECT_TRUE(FloatIsPositive(1e-14L));
    EXPECT_FALSE(FloatIsPositive(1e-16L));
    // Relative for large values, absolute near zero.
    EXPECT_TRUE(SameFloat(1e20L, 1e20L + 1e4L));
    EXPECT_FALSE(SameFloat(1.0L, 1.0L + 1e-14L));
    EXPECT_TRUE(SameFloat(1e-17L, -1e-17L));
    EXPECT_FALSE(SameFloat(kNaN, kNaN));
}

// ---- Modulus, remainder and the two divisions
// ------------------------------------------------------

struct DivisionRow {
    const char* Name;
    Extended X, Y, Mod, Rem, Div, IntDiv;
};

class MathDivision : public ::testing::TestWithParam<DivisionRow> { };

TEST_P(MathDivision, MatchesHandWorkedValues)
{
    const DivisionRow& r = GetParam();
    EXPECT_EQ(QORMod(r.X, r.Y), r.Mod);
    EXPECT_EQ(QORRem(r.X, r.Y), r.Rem);
    EXPECT_EQ(QORDiv(r.X, r.Y), r.Div);
    EXPECT_EQ(QORIntDiv(r.X, r.Y), r.IntDiv);
    EXPECT_FALSE(std::signbit(QORMod(r.X, r.Y)) && QORMod(r.X, r.Y) == 0) << "negative zero";
    EXPECT_EQ(r.Y * QORDiv(r.X, r.Y) + QORMod(r.X, r.Y), r.X);
    EXPECT_EQ(r.Y * QORIntDiv(r.X, r.Y) + QORRem(r.X, r.Y), r.X);
}

INSTANTIATE_TEST_SUITE_P(Signs, MathDivision,
                         ::testing::Values(DivisionRow {"BothPositive", 7, 3, 1, 1, 2, 2},
                                           DivisionRow {"NegativeDividend", -7, 3, 2, -1, -3, -2},
                                           DivisionRow {"NegativeDivisor", 7, -3, -2, 1, -3, -2},
                                           DivisionRow {"BothNegative", -7, -3, -1, -1, 2, 2},
                                           DivisionRow {"Fractional", 7.5L, 2, 1.5L, 1.5L, 3, 3},
                                           DivisionRow {"NegativeFractional", -7.5L, 2, 0.5L, -1.5L,
                                                        -4, -3},
                                           DivisionRow {"ExactNegative", -6, 3, 0, 0, -2, -2},
                                           DivisionRow {"SmallerDividend", -2, 5, 3, -2, -1, 0}),
                         RowName<DivisionRow>);

TEST(MathDivisionEdges, ZeroDivisorAndRoundingAtTheTop)
{
    const std::function<Extended(Extended, Extended)> routines[]
        = {QORMod, QORRem, QORDiv, QORIntDiv};
    for (const auto& f : routines) {
        EXPECT_THROW(f(1, 0), EZeroDivide);
        EXPECT_THROW(f(0, 0), EZeroDivide);
    }
    // -1e-30 mod 2 pi is 2 pi minus a hair, which rounds to 2 pi: the result must stay in [0, 2
    // pi).
    EXPECT_EQ(QORMod(-1e-30L, 2 * kPi), 0);
    EXPECT_EQ(QORMod(1e-30L, -2 * kPi), 0);
    EXPECT_THROW(QORDiv(1e4000L, 1e-4000L), EOverflow);
}

// ---- Powers, logarithms, roots
// -------------------------------------------------------------------------

TEST(MathPowers, XtoYConventions)
{
    EXPECT_EQ(XtoY(2, 10), 1024);
    EXPECT_EQ(XtoY(-2, 3), -8);
    EXPECT_EQ(XtoY(-2, 2), 4);
    EXPECT_EQ(XtoY(0, 0), 1);
    EXPECT_EQ(XtoY(0, 5), 0);
    EXPECT_EQ(XtoY(10, -2), 0.01L);
    EXPECT_EQ(XtoY(10, -17), 1e-17L);
    EXPECT_EQ(XtoY(-10, -3), -0.001L);
    EXPECT_TRUE(Near(XtoY(-8, 1.0L / 3), -2, 1e-18L));
    EXPECT_TRUE(Near(XtoY(-32, 1.0L / 5), -2, 1e-18L));
    EXPECT_TRUE(Near(XtoY(27, 1.0L / 3), 3, 1e-18L));
    EXPECT_THROW(XtoY(0, -1), EZeroDivide);
    EXPECT_THROW(XtoY(-8, 0.5L), EInvalidOp); // even root
    EXPECT_THROW(XtoY(-8, 2.0L / 3), EInvalidOp); // reciprocal 1.5 is not an integer
    EXPECT_THROW(XtoY(10, 5000), EOverflow);
    EXPECT_EQ(XtoY(10, -5000), 0); // underflow is zero, not an error
}

TEST(MathPowers, LogarithmsExponentialsAndRoots)
{
    EXPECT_EQ(QORLog10(1000), 3);
    EXPECT_EQ(QORLog10(0.001L), -3);
    EXPECT_EQ(QORLog10(1e27L), 27);
    EXPECT_EQ(QORLog10(1e-27L), -27);
    EXPECT_TRUE(Near(QORLog10(2), 0.301029995663981195214L, 1e-19L));
    EXPECT_EQ(QORLog2(8), 3);
    EXPECT_EQ(QORLn(1), 0);
    EXPECT_TRUE(Near(QORLn(QORe), 1, 1e-18L));
    EXPECT_EQ(Pow2(10), 1024);
    EXPECT_EQ(Pow2(-1), 0.5L);
    EXPECT_TRUE(Near(QORExp(1), QORe, 1e-18L));
    EXPECT_EQ(QORSqrt(2.25L), 1.5L);
    EXPECT_FALSE(std::signbit(QORSqrt(-0.0L)));
    EXPECT_TRUE(Near(AbsXY(3, 4), 5, 0));
    EXPECT_EQ(AbsXY(3e4000L, 4e4000L), 5e4000L); // no overflow in the squares
    for (Extended bad : {0.0L, -1.0L}) {
        EXPECT_THROW(QORLog10(bad), EInvalidOp);
        EXPECT_THROW(QORLog2(bad), EInvalidOp);
        EXPECT_THROW(QORLn(bad), EInvalidOp);
    }
    EXPECT_THROW(QORExp(12000), EOverflow);
    EXPECT_THROW(Pow2(17000), EOverflow);
    EXPECT_THROW(AbsXY(1e4932L, 1e4932L), EOverflow);
}

TEST(MathPowers, MessagesComeFromTheResourceTexts)
{
    try {
        QORSqrt(-9);
        FAIL() << "no exception";
    } catch (const EInvalidOp& e) {
        EXPECT_EQ(e.what(), rsSqRootNeg());
    }
    try {
        QORMod(7, 0);
        FAIL() << "no exception";
    } catch (const EZeroDivide& e) {
        EXPECT_EQ(e.what(), rsDivideByZero());
    }
    try {
        QORLog10(0);
        FAIL() << "no exception";
    } catch (const EInvalidOp& e) {
        EXPECT_EQ(e.what(), rsLogNonPositive());
    }
}

TEST(MathNonFinite, NaNIsInvalidAndInfinityIsOverflow)
{
    const std::function<Extended(Extended)> unary[] = {QORSin,
                                                       QORCosDeg,
                                                       QORLog10,
                                                       QORSqrt,
                                                       QORFloor,
                                                       QORSign,
                                                       Gamma,
                                                       LnGamma,
                                                       Deg2Rad,
                                                       AdjustAngleDegree,
                                                       [](Extended x) { return QORArcTan(x); },
                                                       QORTanh,
                                                       [](Extended x) { return XtoY(x, 0); },
                                                       [](Extended x) { return RoundDP(x, 2); },
                                                       [](Extended x) { return AbsXY(x, 1); }};
    for (const auto& f : unary) {
        EXPECT_THROW(f(kNaN), EInvalidOp);
        EXPECT_THROW(f(kInf), EOverflow);
        EXPECT_THROW(f(-kInf), EOverflow);
    }
    EXPECT_THROW(CheckFloat(kNaN), EInvalidOp);
    EXPECT_EQ(CheckFloat(-2.5L), -2.5L);
}

// ---- Gamma
// ------------------------------------------------------------------------------------------

TEST(MathGamma, SmallIntegersAreExactFactorials)
{
    std::uint64_t factorial = 1;
    for (int n = 1; n <= 21; ++n) {
        EXPECT_EQ(Gamma(n), static_cast<Extended>(factorial)) << "Gamma(" << n << ")";
        factorial *= static_cast<std::uint64_t>(n);
    }
    EXPECT_EQ(Gamma(5), 24);
    // 25! = 15511210043330985984000000 is exact in extended (its odd part fits 64 bits).
    EXPECT_EQ(Gamma(26), 15511210043330985984000000.0L);
}

struct GammaRow {
    const char* Name;
    Extended X;
};

class MathGammaReference : public ::testing::TestWithParam<GammaRow> { };

TEST_P(MathGammaReference, AgreesWithTheStandardLibrary)
{
    const Extended x = GetParam().X;
    const double reference = std::tgamma(static_cast<double>(x));
    EXPECT_TRUE(Near(Gamma(x) / reference, 1, 1e-14L));
    EXPECT_TRUE(Near(LnGamma(x), std::lgamma(static_cast<double>(x)),
                     1e-13L * (1 + std::fabs(LnGamma(x)))));
}

INSTANTIATE_TEST_SUITE_P(Arguments, MathGammaReference,
                         ::testing::Values(GammaRow {"Half", 0.5L}, GammaRow {"Tiny", 1e-5L},
                                           GammaRow {"Pi", kPi}, GammaRow {"Thirty", 30},
                                           GammaRow {"Large", 170.5L},
                                           GammaRow {"NegativeHalf", -0.5L},
                                           GammaRow {"NegativeNonInteger", -3.7L},
                                           GammaRow {"NegativeNearPole", -4.9990234375L}),
                         RowName<GammaRow>);

TEST(MathGamma, HalfIntegersPolesAndOverflow)
{
    EXPECT_TRUE(Near(Gamma(0.5L), kSqrtPi, 1e-18L));
    EXPECT_TRUE(Near(Gamma(-0.5L), -2 * kSqrtPi, 4e-18L));
    EXPECT_TRUE(Near(LnGamma(-0.5L), std::log(2 * kSqrtPi), 1e-18L));
    EXPECT_EQ(LnGamma(1), 0);
    EXPECT_EQ(LnGamma(2), 0);
    for (Extended pole : {0.0L, -1.0L, -2.0L, -100.0L}) {
        EXPECT_THROW(Gamma(pole), EInvalidOp) << pole;
        EXPECT_THROW(LnGamma(pole), EInvalidOp) << pole;
    }
    EXPECT_THROW(Gamma(1800), EOverflow);
    EXPECT_GT(LnGamma(1800), 11000); // ln Gamma stays finite far beyond Gamma
}

// ---- RoundDP
// ------------------------------------------------------------------------------------------

struct RoundRow {
    const char* Name;
    Extended X;
    std::int32_t Places;
    Extended Expected;
};

class MathRoundDP : public ::testing::TestWithParam<RoundRow> { };

TEST_P(MathRoundDP, RoundsTheDecimalValueHalfAwayFromZero)
{
    const RoundRow& r = GetParam();
    const Extended result = RoundDP(r.X, r.Places);
    EXPECT_EQ(result, r.Expected);
    EXPECT_FALSE(result == 0 && std::signbit(result)) << "negative zero";
}

INSTANTIATE_TEST_SUITE_P(
    Halves, MathRoundDP,
    ::testing::Values(
        RoundRow {"TwoPointFiveUp", 2.5L, 0, 3}, RoundRow {"MinusTwoPointFiveDown", -2.5L, 0, -3},
        RoundRow {"OnePointFiveUp", 1.5L, 0, 2}, RoundRow {"TypedDecimalHalf", 1.005L, 2, 1.01L},
        RoundRow {"NegativeTypedDecimalHalf", -1.005L, 2, -1.01L},
        RoundRow {"BinaryBelowHalf", 2.675L, 2, 2.68L}, RoundRow {"BelowHalf", 1.2344L, 3, 1.234L},
        RoundRow {"CarryIntoNewDigit", 9.995L, 2, 10}, RoundRow {"Tens", 1235, -1, 1240},
        RoundRow {"TensDown", 1234.9L, -1, 1230}, RoundRow {"FiveToTen", 5, -1, 10},
        RoundRow {"FourToZero", 4, -1, 0}, RoundRow {"FarBelowPosition", 0.0004L, 2, 0},
        RoundRow {"SmallHalf", 0.005L, 2, 0.01L}, RoundRow {"NegativeToZero", -0.4L, 0, 0},
        RoundRow {"NothingToRound", 123.456L, 10, 123.456L},
        RoundRow {"HugeUnchanged", 1e300L, 2, 1e300L}, RoundRow {"Zero", 0, 3, 0}),
    RowName<RoundRow>);

TEST(MathRoundDPEdges, ExtremePlacesAndOverflow)
{
    EXPECT_THROW(RoundDP(1.18e4932L, -4931), EOverflow); // 1.2e4932 is beyond the range
    EXPECT_EQ(RoundDP(1.25L, std::numeric_limits<std::int32_t>::max()), 1.25L);
    EXPECT_EQ(RoundDP(1.25L, std::numeric_limits<std::int32_t>::min()), 0);
}

// ---- Trigonometry
// ------------------------------------------------------------------------------------

struct DegreeRow {
    const char* Name;
    Extended Degrees, Sin, Cos;
};

class MathDegreesExact : public ::testing::TestWithParam<DegreeRow> { };

TEST_P(MathDegreesExact, QuadrantsAndTextbookAnglesAreExact)
{
    const DegreeRow& r = GetParam();
    EXPECT_EQ(QORSinDeg(r.Degrees), r.Sin);
    EXPECT_EQ(QORCosDeg(r.Degrees), r.Cos);
    Extended s = 9, c = 9;
    QORSinCosDeg(r.Degrees, s, c);
    EXPECT_EQ(s, r.Sin);
    EXPECT_EQ(c, r.Cos);
}

constexpr Extended kHalfRoot2 = 0.707106781186547524400844362104849039L;
constexpr Extended kHalfRoot3 = 0.866025403784438646763723170752936183L;

INSTANTIATE_TEST_SUITE_P(
    Angles, MathDegreesExact,
    ::testing::Values(DegreeRow {"Zero", 0, 0, 1}, DegreeRow {"Thirty", 30, 0.5L, kHalfRoot3},
                      DegreeRow {"FortyFive", 45, kHalfRoot2, kHalfRoot2},
                      DegreeRow {"Sixty", 60, kHalfRoot3, 0.5L}, DegreeRow {"Ninety", 90, 1, 0},
                      DegreeRow {"OneFifty", 150, 0.5L, -kHalfRoot3},
                      DegreeRow {"OneEighty", 180, 0, -1}, DegreeRow {"TwoSeventy", 270, -1, 0},
                      DegreeRow {"ThreeSixty", 360, 0, 1}, DegreeRow {"MinusNinety", -90, -1, 0},
                      DegreeRow {"MinusThirty", -30, -0.5L, kHalfRoot3},
                      DegreeRow {"TwoTurnsAndAHalf", 900, 0, -1},
                      DegreeRow {"ManyTurns", 3600000090.0L, 1, 0}),
    RowName<DegreeRow>);

TEST(MathDegrees, GeneralAnglesAgreeWithRadians)
{
    for (Extended deg : {1.0L, 17.25L, 89.999L, 123.4L, 200.0L, 271.5L, -1000.0L, 1e6L}) {
        // Reduced before the conversion, so that the double reference keeps its digits.
        const double rad
            = std::fmod(static_cast<double>(deg), 360.0) * 3.14159265358979323846 / 180;
        EXPECT_TRUE(Near(QORSinDeg(deg), std::sin(rad), 1e-12L)) << deg;
        EXPECT_TRUE(Near(QORCosDeg(deg), std::cos(rad), 1e-12L)) << deg;
        if (std::fabs(std::cos(rad)) > 1e-3) {
            EXPECT_TRUE(Near(QORTanDeg(deg), std::tan(rad), 1e-9L)) << deg;
        }
    }
    EXPECT_EQ(QORTanDeg(45), 1);
    EXPECT_EQ(QORTanDeg(135), -1);
    EXPECT_EQ(QORTanDeg(180), 0);
    EXPECT_THROW(QORTanDeg(90), EInvalidOp);
    EXPECT_THROW(QORTanDeg(-270), EInvalidOp);
}

TEST(MathDegrees, InverseFunctions)
{
    EXPECT_EQ(QORArcSinDeg(0.5L), 30);
    EXPECT_EQ(QORArcSinDeg(-1), -90);
    EXPECT_EQ(QORArcCosDeg(-1), 180);
    EXPECT_EQ(QORArcCosDeg(0.5L), 60);
    EXPECT_EQ(QORArcTanDeg(1), 45);
    EXPECT_TRUE(Near(QORArcSinDeg(0.25L), 14.4775121859299238788L, 1e-16L));
    EXPECT_TRUE(Near(QORArcTanDeg(2), 63.4349488229220106484L, 1e-16L));
    // Two arguments: the full circle, (-180, 180].
    EXPECT_EQ(QORArcTanDeg(1, -1), 135);
    EXPECT_EQ(QORArcTanDeg(-1, -1), -135);
    EXPECT_EQ(QORArcTanDeg(0, -1), 180);
    EXPECT_EQ(QORArcTanDeg(-0.0L, -1), 180);
    EXPECT_EQ(QORArcTanDeg(-1, 0), -90);
    EXPECT_EQ(QORArcTanDeg(0, 0), 0);
    EXPECT_TRUE(Near(QORArcTanDeg(1, 2), 26.5650511770779893516L, 1e-16L));
    // Rounding just past 1 is accepted, a real excess is not.
    EXPECT_EQ(QORArcSinDeg(1 + 1e-17L), 90);
    EXPECT_THROW(QORArcSinDeg(1.001L), EInvalidOp);
    EXPECT_THROW(QORArcCosDeg(-1.001L), EInvalidOp);
}

TEST(MathRadians, InverseAndTwoArgumentArcTangent)
{
    EXPECT_EQ(QORArcTan(-0.0L, -1), kPi);
    EXPECT_EQ(QORArcTan(0, 0), 0);
    EXPECT_TRUE(Near(QORArcTan(-1, -1), -3 * kPi / 4, 1e-18L));
    EXPECT_TRUE(Near(QORArcTan(1), kPi / 4, 1e-18L));
    EXPECT_TRUE(Near(QORArcSin(0.5L), kPi / 6, 1e-18L));
    EXPECT_TRUE(Near(QORArcCos(-1 - 1e-17L), kPi, 1e-18L));
    EXPECT_THROW(QORArcSin(1.5L), EInvalidOp);
    EXPECT_THROW(QORArcCos(-2), EInvalidOp);
    Extended s = 0, c = 0;
    QORSinCos(1.25L, s, c);
    EXPECT_TRUE(Near(s, std::sin(1.25), 1e-15L));
    EXPECT_TRUE(Near(c, std::cos(1.25), 1e-15L));
    EXPECT_TRUE(Near(QORTan(1.25L), std::tan(1.25), 1e-14L));
}

TEST(MathHyperbolic, ValuesDomainsAndOverflow)
{
    EXPECT_EQ(QORCosh(0), 1);
    EXPECT_TRUE(Near(QORSinh(1), (QORe - 1 / QORe) / 2, 1e-18L));
    EXPECT_TRUE(Near(QORTanh(0.5L), std::tanh(0.5), 1e-15L));
    EXPECT_TRUE(Near(QORArSinh(QORSinh(1.5L)), 1.5L, 1e-18L));
    EXPECT_TRUE(Near(QORArCosh(QORCosh(2)), 2, 1e-17L));
    EXPECT_TRUE(Near(QORArTanh(0.5L), std::atanh(0.5), 1e-15L));
    EXPECT_EQ(QORArCosh(1), 0);
    EXPECT_THROW(QORArCosh(0.5L), EInvalidOp);
    EXPECT_THROW(QORArTanh(1), EInvalidOp);
    EXPECT_THROW(QORArTanh(-1.5L), EInvalidOp);
    EXPECT_THROW(QORSinh(20000), EOverflow);
    EXPECT_THROW(QORCosh(-20000), EOverflow);
    EXPECT_EQ(QORTanh(20000), 1);
}

TEST(MathAngles, UnitConversionsAndReduction)
{
    EXPECT_TRUE(Near(Deg2Rad(180), kPi, 1e-18L));
    EXPECT_TRUE(Near(Rad2Deg(kPi / 2), 90, 1e-16L));
    EXPECT_TRUE(Near(Grad2Rad(200), kPi, 1e-18L));
    EXPECT_TRUE(Near(Rad2Grad(kPi), 200, 1e-16L));
    EXPECT_EQ(AdjustAngleDegree(-30), 330);
    EXPECT_EQ(AdjustAngleDegree(720), 0);
    EXPECT_EQ(AdjustAngleDegree(359.5L), 359.5L);
    EXPECT_EQ(AdjustAngleDegree(-720.25L), 359.75L);
    EXPECT_EQ(AdjustAngleDegree(-1e-30L), 0);
    EXPECT_THROW(Rad2Deg(1e4932L), EOverflow);
}

TEST(MathSign, FloorCeilSign)
{
    EXPECT_EQ(QORFloor(-2.5L), -3);
    EXPECT_EQ(QORCeil(-2.5L), -2);
    EXPECT_FALSE(std::signbit(QORCeil(-0.5L)));
    EXPECT_EQ(QORSign(-1e-300L), -1);
    EXPECT_EQ(QORSign(0), 0);
    EXPECT_EQ(QORSign(7), 1);
}

// ---- Rotations
// ---------------------------------------------------------------------------------------

// Reference: rotate one bit at a time, count times.
template<typename T> T RotateLeftBitwise(T value, unsigned count)
{
    constexpr unsigned width = std::numeric_limits<T>::digits;
    for (unsigned i = 0; i < count; ++i)
        value = static_cast<T>(static_cast<T>(value << 1) | static_cast<T>(value >> (width - 1)));
    return value;
}

template<typename T> void CheckRotations(T (*rol)(T, unsigned), T (*ror)(T, unsigned), T pattern)
{
    constexpr unsigned width = std::numeric_limits<T>::digits;
    for (unsigned count = 0; count <= 2 * width + 1; ++count) {
        EXPECT_EQ(rol(pattern, count), RotateLeftBitwise(pattern, count)) << width << "/" << count;
        EXPECT_EQ(ror(rol(pattern, count), count), pattern) << width << "/" << count;
    }
    EXPECT_EQ(rol(pattern, 0xFFFFFFFFu), RotateLeftBitwise(pattern, 0xFFFFFFFFu % width));
}

TEST(MathRotations, EveryWidthAndCountMatchesBitByBitRotation)
{
    CheckRotations<std::uint8_t>(ROL8, ROR8, 0xB4);
    CheckRotations<std::uint16_t>(ROL16, ROR16, 0xB40F);
    CheckRotations<std::uint32_t>(ROL32, ROR32, 0xB40F0001u);
    CheckRotations<std::uint64_t>(ROL64, ROR64, 0xB40F00018000C3A5ull);
    EXPECT_EQ(ROL8(0x81, 1), 0x03);
    EXPECT_EQ(ROR8(0x81, 1), 0xC0);
    EXPECT_EQ(ROR16(0x0001, 17), 0x8000);
    EXPECT_EQ(ROL32(0x80000000u, 33), 1u);
    EXPECT_EQ(ROR64(1, 64), 1u);
}

// ---- Currency amounts
// --------------------------------------------------------------------------------

TEST(MathCurrency, RoundsHalvesToEvenAndChecksRange)
{
    EXPECT_EQ(MultiplyCurrencyByValue(TQORCurrency {1000}, 1.5L), 1500);
    EXPECT_EQ(MultiplyCurrencyByValue(TQORCurrency {5}, 0.5L), 2); // 2.5
    EXPECT_EQ(MultiplyCurrencyByValue(TQORCurrency {7}, 0.5L), 4); // 3.5
    EXPECT_EQ(MultiplyCurrencyByValue(TQORCurrency {-5}, 0.5L), -2); // -2.5
    EXPECT_EQ(DivideCurrencyByValue(TQORCurrency {100}, 3), 33);
    EXPECT_EQ(DivideCurrencyByValue(TQORCurrency {-200}, 3), -67);
    EXPECT_EQ(MultiplyCurrencyByValue(TQORLongCurrency {4000000000u}, 1), 4000000000u);
    EXPECT_EQ(DivideCurrencyByValue(TQORLongCurrency {7}, 2), 4u);
    EXPECT_THROW(MultiplyCurrencyByValue(TQORCurrency {0x7FFFFFFF}, 2), EOverflow);
    EXPECT_THROW(MultiplyCurrencyByValue(TQORLongCurrency {1}, -1), EOverflow);
    EXPECT_THROW(DivideCurrencyByValue(TQORCurrency {1}, 0), EZeroDivide);
    EXPECT_THROW(DivideCurrencyByValue(TQORLongCurrency {1}, 0), EZeroDivide);
    EXPECT_THROW(MultiplyCurrencyByValue(TQORCurrency {1}, kNaN), EInvalidOp);

    // The fixed-point amount rounds to 1/10000.
    const Currency one = Currency::FromScaled(10000);
    EXPECT_EQ(MultiplyCurrencyByValue(one, 1.23456789L).Scaled(), 12346);
    EXPECT_EQ(MultiplyCurrencyByValue(Currency::FromScaled(5), 0.5L).Scaled(), 2); // 2.5
    EXPECT_EQ(MultiplyCurrencyByValue(Currency::FromScaled(3), 0.5L).Scaled(), 2); // 1.5
    EXPECT_EQ(DivideCurrencyByValue(one, 3).Scaled(), 3333);
    EXPECT_EQ(DivideCurrencyByValue(one, -8).Scaled(), -1250);
    EXPECT_THROW(MultiplyCurrencyByValue(Currency::FromScaled(INT64_MAX), 2), EOverflow);
    EXPECT_THROW(DivideCurrencyByValue(one, 0), EZeroDivide);
}

} // namespace
} // namespace qorkit
