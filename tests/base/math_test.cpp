#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"
#include "QorkitTestSupport.h"

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
// Published digits, independent of the library's constants.
constexpr Extended kPi = 3.14159265358979323846264338327950288L;
constexpr Extended kSqrtPi = 1.77245385090551602729816748334114518L;
constexpr Extended kHalfRoot2 = 0.707106781186547524400844362104849039L;
constexpr Extended kHalfRoot3 = 0.866025403784438646763723170752936183L;

// EXPECT_NEAR works in double; these comparisons need the extended digits.
::testing::AssertionResult Near(Extended actual, Extended expected, Extended tolerance)
{
    if (std::fabs(actual - expected) <= tolerance)
        return ::testing::AssertionSuccess();
    std::ostringstream text;
    text << std::setprecision(21) << actual << " is not within " << tolerance << " of " << expected;
    return ::testing::AssertionFailure() << text.str();
}

TEST(MathTolerance, ZeroSignAndSameness)
{
    EXPECT_TRUE(FloatIsZero(-1e-15L));
    EXPECT_FALSE(FloatIsZero(1e-14L));
    EXPECT_TRUE(FloatIsNegative(-1e-14L) && !FloatIsNegative(-1e-16L));
    EXPECT_TRUE(FloatIsPositive(1e-14L) && !FloatIsPositive(1e-16L));
    EXPECT_TRUE(SameFloat(1e20L, 1e20L + 1e4L)); // relative for large values
    EXPECT_FALSE(SameFloat(1.0L, 1.0L + 1e-14L));
    EXPECT_FALSE(SameFloat(kNaN, kNaN));
}

// ---- Modulus, remainder and the two divisions: hand-worked
// ---------------------------------------

struct DivisionRow {
    const char* Name;
    Extended X, Y, Mod, Rem, Div, IntDiv;
};

class MathDivision : public ::testing::TestWithParam<DivisionRow> { };

TEST_P(MathDivision, SignConventions)
{
    const DivisionRow& r = GetParam();
    EXPECT_EQ(QORMod(r.X, r.Y), r.Mod);
    EXPECT_EQ(QORRem(r.X, r.Y), r.Rem);
    EXPECT_EQ(QORDiv(r.X, r.Y), r.Div);
    EXPECT_EQ(QORIntDiv(r.X, r.Y), r.IntDiv);
    EXPECT_FALSE(std::signbit(QORMod(r.X, r.Y)) && r.Mod == 0) << "negative zero";
}

INSTANTIATE_TEST_SUITE_P(Signs, MathDivision,
                         ::testing::Values(DivisionRow {"BothPositive", 7, 3, 1, 1, 2, 2},
                                           DivisionRow {"NegativeDividend", -7, 3, 2, -1, -3, -2},
                                           DivisionRow {"NegativeDivisor", 7, -3, -2, 1, -3, -2},
                                           DivisionRow {"BothNegative", -7, -3, -1, -1, 2, 2},
                                           DivisionRow {"Fraction", -7.5L, 2, 0.5L, -1.5L, -4, -3},
                                           DivisionRow {"ExactNegative", -6, 3, 0, 0, -2, -2}),
                         test::RowName<DivisionRow>);

TEST(MathDivision, ZeroDivisorAndTheTopOfTheRange)
{
    for (const auto& f : {QORMod, QORRem, QORDiv, QORIntDiv})
        EXPECT_THROW(f(1, 0), EZeroDivide);
    // 2 pi minus a hair rounds to 2 pi; the result must stay in [0, 2 pi).
    EXPECT_EQ(QORMod(-1e-30L, 2 * kPi), 0);
    EXPECT_EQ(AdjustAngleDegree(-1e-30L), 0);
    EXPECT_EQ(AdjustAngleDegree(-720.25L), 359.75L);
    EXPECT_THROW(QORDiv(1e4000L, 1e-4000L), EOverflow);
}

// ---- Powers, logarithms, roots, non-finite values
// -----------------------------------------------------

TEST(MathPowers, XtoYConventions)
{
    EXPECT_EQ(XtoY(-2, 3), -8);
    EXPECT_EQ(XtoY(0, 0), 1);
    EXPECT_EQ(XtoY(10, -2), 0.01L); // the value a typed 0.01 has
    EXPECT_EQ(XtoY(-10, -3), -0.001L);
    EXPECT_TRUE(Near(XtoY(-8, 1.0L / 3), -2, 1e-18L));
    EXPECT_TRUE(Near(XtoY(-32, 0.2L), -2, 1e-18L));
    EXPECT_THROW(XtoY(0, -1), EZeroDivide);
    EXPECT_THROW(XtoY(-8, 0.5L), EInvalidOp); // even root
    EXPECT_THROW(XtoY(-8, 2.0L / 3), EInvalidOp); // reciprocal 1.5
    EXPECT_THROW(XtoY(10, 5000), EOverflow);
    EXPECT_EQ(XtoY(10, -5000), 0); // underflow is zero, not an error
}

TEST(MathPowers, LogarithmsExponentialsRoots)
{
    EXPECT_EQ(QORLog10(1000), 3);
    EXPECT_EQ(QORLog10(1e-27L), -27);
    EXPECT_TRUE(Near(QORLog10(2), 0.301029995663981195214L, 1e-19L));
    EXPECT_EQ(QORLog2(8), 3);
    EXPECT_EQ(Pow2(-1), 0.5L);
    EXPECT_EQ(AbsXY(3e4000L, 4e4000L), 5e4000L); // no overflow in the squares
    EXPECT_FALSE(std::signbit(QORSqrt(-0.0L)));
    for (const auto& f : {QORLog10, QORLog2, QORLn}) {
        EXPECT_THROW(f(0), EInvalidOp);
        EXPECT_THROW(f(-1), EInvalidOp);
    }
    EXPECT_THROW(QORExp(12000), EOverflow);
    EXPECT_THROW(AbsXY(1e4932L, 1e4932L), EOverflow);
    try {
        QORSqrt(-9);
        FAIL();
    } catch (const EInvalidOp& e) {
        EXPECT_EQ(e.what(), rsSqRootNeg());
    }
}

TEST(MathNonFinite, NaNIsInvalidAndInfinityIsOverflow)
{
    const std::function<Extended(Extended)> routines[] = {QORSin,
                                                          QORCosDeg,
                                                          QORLog10,
                                                          QORSqrt,
                                                          QORFloor,
                                                          QORSign,
                                                          Gamma,
                                                          LnGamma,
                                                          Deg2Rad,
                                                          [](Extended x) { return QORArcTan(x); },
                                                          [](Extended x) { return RoundDP(x, 2); },
                                                          [](Extended x) { return XtoY(x, 0); },
                                                          [](Extended x) { return AbsXY(x, 1); }};
    for (const auto& f : routines) {
        EXPECT_THROW(f(kNaN), EInvalidOp);
        EXPECT_THROW(f(-kInf), EOverflow);
    }
}

// ---- Gamma
// ------------------------------------------------------------------------------------------

TEST(MathGamma, FactorialsHalfIntegersAndPoles)
{
    std::uint64_t factorial = 1;
    for (int n = 1; n <= 21; ++n, factorial *= static_cast<std::uint64_t>(n - 1))
        EXPECT_EQ(Gamma(n), static_cast<Extended>(factorial)) << n;
    EXPECT_EQ(Gamma(26), 15511210043330985984000000.0L); // 25!, exact in extended
    EXPECT_TRUE(Near(Gamma(-0.5L), -2 * kSqrtPi, 4e-18L));
    EXPECT_TRUE(Near(LnGamma(-0.5L), std::log(2 * kSqrtPi), 1e-18L));
    for (Extended pole : {0.0L, -1.0L, -100.0L}) {
        EXPECT_THROW(Gamma(pole), EInvalidOp);
        EXPECT_THROW(LnGamma(pole), EInvalidOp);
    }
    EXPECT_THROW(Gamma(1800), EOverflow);
    EXPECT_GT(LnGamma(1800), 11000);
    // Against the standard library at arguments exact in double.
    for (double x : {0.5, 1e-5, 3.25, 30.0, 170.5, -3.75, -4.9990234375}) {
        EXPECT_TRUE(Near(Gamma(x) / std::tgamma(x), 1, 1e-14L)) << x;
        EXPECT_TRUE(Near(LnGamma(x), std::lgamma(x), 1e-13L * (1 + std::fabs(std::lgamma(x)))));
    }
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

TEST_P(MathRoundDP, HalvesAwayFromZeroOnTheDecimalValue)
{
    const RoundRow& r = GetParam();
    const Extended result = RoundDP(r.X, r.Places);
    EXPECT_EQ(result, r.Expected);
    EXPECT_FALSE(result == 0 && std::signbit(result)) << "negative zero";
}

INSTANTIATE_TEST_SUITE_P(
    Halves, MathRoundDP,
    ::testing::Values(
        RoundRow {"TwoPointFive", 2.5L, 0, 3}, RoundRow {"MinusTwoPointFive", -2.5L, 0, -3},
        RoundRow {"TypedDecimalHalf", 1.005L, 2, 1.01L},
        RoundRow {"NegativeTypedHalf", -1.005L, 2, -1.01L},
        RoundRow {"BelowHalf", 1.2344L, 3, 1.234L}, RoundRow {"CarryIntoNewDigit", 9.995L, 2, 10},
        RoundRow {"Tens", 1235, -1, 1240}, RoundRow {"FiveToTen", 5, -1, 10},
        RoundRow {"FarBelow", 0.0004L, 2, 0}, RoundRow {"NegativeToZero", -0.4L, 0, 0},
        RoundRow {"NothingToRound", 123.456L, 10, 123.456L},
        RoundRow {"AllPlacesAway", 1.25L, std::numeric_limits<std::int32_t>::min(), 0}),
    test::RowName<RoundRow>);

TEST(MathRoundDP, OverflowWhenRoundingUpPastTheRange)
{
    EXPECT_THROW(RoundDP(1.18e4932L, -4931), EOverflow); // 1.2e4932
}

// ---- Trigonometry
// ------------------------------------------------------------------------------------

struct DegreeRow {
    const char* Name;
    Extended Degrees, Sin, Cos;
};

class MathDegrees : public ::testing::TestWithParam<DegreeRow> { };

TEST_P(MathDegrees, QuadrantsAndTextbookAnglesAreExact)
{
    const DegreeRow& r = GetParam();
    Extended s = 9, c = 9;
    QORSinCosDeg(r.Degrees, s, c);
    EXPECT_EQ(QORSinDeg(r.Degrees), r.Sin);
    EXPECT_EQ(QORCosDeg(r.Degrees), r.Cos);
    EXPECT_EQ(s, r.Sin);
    EXPECT_EQ(c, r.Cos);
}

INSTANTIATE_TEST_SUITE_P(Angles, MathDegrees,
                         ::testing::Values(DegreeRow {"Thirty", 30, 0.5L, kHalfRoot3},
                                           DegreeRow {"FortyFive", 45, kHalfRoot2, kHalfRoot2},
                                           DegreeRow {"Ninety", 90, 1, 0},
                                           DegreeRow {"OneFifty", 150, 0.5L, -kHalfRoot3},
                                           DegreeRow {"OneEighty", 180, 0, -1},
                                           DegreeRow {"MinusNinety", -90, -1, 0},
                                           DegreeRow {"ManyTurns", 3600000090.0L, 1, 0}),
                         test::RowName<DegreeRow>);

TEST(MathDegrees, GeneralAnglesTangentAndInverses)
{
    for (double deg : {17.25, 123.4, 271.5, -1000.0, 1e6}) {
        const double rad = std::fmod(deg, 360.0) * 3.14159265358979323846 / 180;
        EXPECT_TRUE(Near(QORSinDeg(deg), std::sin(rad), 1e-15L)) << deg;
        EXPECT_TRUE(Near(QORTanDeg(deg), std::tan(rad), 1e-13L * (1 + std::fabs(std::tan(rad)))));
    }
    EXPECT_EQ(QORTanDeg(135), -1);
    EXPECT_THROW(QORTanDeg(-270), EInvalidOp);
    EXPECT_EQ(QORArcSinDeg(0.5L), 30);
    EXPECT_EQ(QORArcCosDeg(-1), 180);
    EXPECT_TRUE(Near(QORArcSinDeg(0.25L), 14.4775121859299238788L, 1e-16L));
    EXPECT_TRUE(Near(QORArcTanDeg(2), 63.4349488229220106484L, 1e-16L));
    EXPECT_EQ(QORArcTanDeg(1, -1), 135);
    EXPECT_EQ(QORArcTanDeg(-0.0L, -1), 180); // (-180, 180]
    EXPECT_EQ(QORArcTanDeg(-1, 0), -90);
    EXPECT_EQ(QORArcSinDeg(1 + 1e-17L), 90); // rounding past 1 is accepted
    EXPECT_THROW(QORArcCosDeg(-1.001L), EInvalidOp);
}

TEST(MathRadians, InversesHyperbolicAndAngleUnits)
{
    EXPECT_EQ(QORArcTan(-0.0L, -1), kPi);
    EXPECT_EQ(QORArcTan(0, -0.0L), 0); // no direction at all
    EXPECT_TRUE(Near(QORArcCos(-1 - 1e-17L), kPi, 1e-18L));
    EXPECT_THROW(QORArcSin(1.5L), EInvalidOp);
    EXPECT_TRUE(Near(QORArSinh(QORSinh(1.5L)), 1.5L, 1e-18L));
    EXPECT_TRUE(Near(QORArTanh(0.5L), 0.549306144334054845697622618461262852L, 1e-18L));
    EXPECT_THROW(QORArCosh(0.5L), EInvalidOp);
    EXPECT_THROW(QORArTanh(1), EInvalidOp);
    EXPECT_THROW(QORCosh(-20000), EOverflow);
    EXPECT_TRUE(Near(Grad2Rad(200), kPi, 1e-18L));
    EXPECT_TRUE(Near(Rad2Grad(kPi), 200, 1e-16L));
    EXPECT_THROW(Rad2Deg(1e4932L), EOverflow);
    EXPECT_FALSE(std::signbit(QORCeil(-0.5L)));
    EXPECT_EQ(QORSign(-1e-300L), -1);
}

// ---- Rotations: every width and count against a bit-by-bit rotation
// --------------------------------

template<typename T> void CheckRotations(T (*rol)(T, unsigned), T (*ror)(T, unsigned), T pattern)
{
    constexpr unsigned width = std::numeric_limits<T>::digits;
    T expected = pattern;
    for (unsigned count = 0; count <= 2 * width + 1; ++count) {
        EXPECT_EQ(rol(pattern, count), expected) << width << "/" << count;
        EXPECT_EQ(ror(expected, count), pattern) << width << "/" << count;
        expected = static_cast<T>(static_cast<T>(expected << 1)
                                  | static_cast<T>(expected >> (width - 1)));
    }
}

TEST(MathRotations, EveryWidthAndCount)
{
    CheckRotations<std::uint8_t>(ROL8, ROR8, 0xB4);
    CheckRotations<std::uint16_t>(ROL16, ROR16, 0xB40F);
    CheckRotations<std::uint32_t>(ROL32, ROR32, 0xB40F0001u);
    CheckRotations<std::uint64_t>(ROL64, ROR64, 0xB40F00018000C3A5ull);
    EXPECT_EQ(ROR8(0x81, 1), 0xC0);
    EXPECT_EQ(ROL32(0x80000000u, 0xFFFFFFE1u), 1u); // count 2^32 - 31 is 1 modulo 32
}

// ---- Currency amounts
// --------------------------------------------------------------------------------

TEST(MathCurrency, HalvesToEvenAndRangeChecks)
{
    EXPECT_EQ(MultiplyCurrencyByValue(TQORCurrency {5}, 0.5L), 2); // 2.5
    EXPECT_EQ(MultiplyCurrencyByValue(TQORCurrency {7}, 0.5L), 4); // 3.5
    EXPECT_EQ(DivideCurrencyByValue(TQORCurrency {-200}, 3), -67);
    EXPECT_EQ(DivideCurrencyByValue(TQORLongCurrency {7}, 2), 4u);
    EXPECT_EQ(MultiplyCurrencyByValue(Currency::FromScaled(10000), 1.23456789L).Scaled(), 12346);
    EXPECT_EQ(DivideCurrencyByValue(Currency::FromScaled(10000), -8).Scaled(), -1250);
    EXPECT_THROW(MultiplyCurrencyByValue(TQORCurrency {0x7FFFFFFF}, 2), EOverflow);
    EXPECT_THROW(MultiplyCurrencyByValue(TQORLongCurrency {1}, -1), EOverflow);
    EXPECT_THROW(MultiplyCurrencyByValue(Currency::FromScaled(INT64_MAX), 2), EOverflow);
    EXPECT_THROW(DivideCurrencyByValue(TQORCurrency {1}, 0), EZeroDivide);
    EXPECT_THROW(MultiplyCurrencyByValue(TQORCurrency {1}, kNaN), EInvalidOp);
}

} // namespace
} // namespace qorkit
