#include "QORKITConstants.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace qorkit {
namespace {

// Each row holds a constant and its value as published by its source, to as many digits as the
// source gives (or 36 digits for the mathematical constants), with the relative difference
// allowed: 0 for values that are exact by definition.
struct ConstantRow {
    const char* Name;
    Extended Value;
    Extended Published;
    Extended RelativeTolerance;
};

class ConstantsAgainstSources : public ::testing::TestWithParam<ConstantRow> { };

TEST_P(ConstantsAgainstSources, HoldThePublishedValue)
{
    const ConstantRow& r = GetParam();
    if (r.RelativeTolerance == 0) {
        EXPECT_EQ(r.Value, r.Published);
    } else {
        EXPECT_LE(std::fabs(r.Value / r.Published - 1), r.RelativeTolerance)
            << static_cast<double>(r.Value) << " vs " << static_cast<double>(r.Published);
    }
}

// The extended spacing near 1 is 1.08e-19; a digit slip anywhere in the first 18 shows.
constexpr Extended kUlps = 2e-19L;

INSTANTIATE_TEST_SUITE_P(
    Mathematics, ConstantsAgainstSources,
    ::testing::Values(
        ConstantRow {"Pi", QORPi, 3.14159265358979323846264338327950288L, 0},
        ConstantRow {"TwoPi", TwoPi, 6.28318530717958647692528676655900577L, 0},
        ConstantRow {"E", QORe, 2.71828182845904523536028747135266250L, 0},
        ConstantRow {"EulerGamma", QORGamma, 0.577215664901532860606512090082402431L, 0},
        ConstantRow {"GoldenRatio", GoldenRatio, 1.61803398874989484820458683436563812L, 0},
        ConstantRow {"OneDegree", OneDegree, 0.0174532925199432957692369076848861271L, kUlps},
        ConstantRow {"OneMinute", OneMinute, 0.000290888208665721596153948461414768785L, kUlps},
        ConstantRow {"OneRadian", OneRadian, 57.2957795130823208767981548141051703L, kUlps}),
    [](const auto& row) { return std::string(row.param.Name); });

INSTANTIATE_TEST_SUITE_P(
    Physics, ConstantsAgainstSources,
    ::testing::Values(
        // SI 2019 exact values (CODATA).
        ConstantRow {"SpeedOfLight", SpeedOfLight, 299792458.0L, 0},
        ConstantRow {"ElemCharge", ElemCharge, 1.602176634e-19L, 0},
        ConstantRow {"Avogadro", Avogadro, 6.02214076e23L, 0},
        // CODATA 2018, with its standard uncertainty of 1.1e-5.
        ConstantRow {"PlanckLength", PlanckLength, 1.616255e-35L, 0},
        // IAU 2012 B2 (exact) and the parsec of IAU 2015 B2, 3.085677581491367e16 m.
        ConstantRow {"AstroUnit", AstroUnit, 149597870700.0L, 0},
        ConstantRow {"Parsec", Parsec, 30856775814913672.7891L, kUlps},
        // Light distances: c times whole seconds, exact in extended.
        ConstantRow {"LightYear", LightYear, 9460730472580800.0L, 0},
        ConstantRow {"LightYear365", LightYear365, 9454254955488000.0L, 0},
        ConstantRow {"LightDay", LightDay, 25902068371200.0L, 0},
        ConstantRow {"LightHour", LightHour, 1079252848800.0L, 0},
        ConstantRow {"LightMinute", LightMinute, 17987547480.0L, 0},
        ConstantRow {"LightSecond", LightSecond, 299792458.0L, 0},
        ConstantRow {"LightMillisecond", LightMillisecond, 299792.458L, kUlps},
        ConstantRow {"LightMicrosecond", LightMicrosecond, 299.792458L, kUlps},
        // ICAO Standard Atmosphere sea-level speed of sound.
        ConstantRow {"MachOne", MachOne, 340.294L, 0},
        ConstantRow {"AbsoluteZeroC", AbsoluteZeroC, -273.15L, 0},
        ConstantRow {"AbsoluteZeroF", AbsoluteZeroF, -459.67L, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

INSTANTIATE_TEST_SUITE_P(
    UnitAnchors, ConstantsAgainstSources,
    ::testing::Values(
        // NIST SP 811 / Handbook 44: the survey foot is 1200/3937 m.
        ConstantRow {"FootUSSurvey", OneFootUSSurvey, 0.304800609601219202438404876809753620L,
                     kUlps},
        ConstantRow {"InchUSSurvey", OneInchUSSurvey, 0.0254000508001016002032004064008128017L,
                     kUlps},
        ConstantRow {"MileUSSurvey", OneMileUSSurvey, 1609.34721869443738887477774955549950L,
                     kUlps},
        // Weights and Measures Act 1985: the gallon is 4.54609 litres, the pint an eighth.
        ConstantRow {"PintInLitres", OnePint, 0.56826125L, 0},
        // NIST SP 811: the International Table calorie is 4.1868 J exactly.
        ConstantRow {"CalorieInJoules", OneCalorie, 4.1868L, 0},
        ConstantRow {"Becquerel", OneBecquerel, 1.0L, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(ConstantsRelations, DerivedValuesAgreeWithTheirDefinitions)
{
    // The ISA speed of sound from its definition, sqrt(gamma R T0).
    EXPECT_NEAR(static_cast<double>(MachOne), std::sqrt(1.4 * 287.05287 * 288.15), 1e-4);
    // Fahrenheit and Celsius absolute zero are the same temperature.
    EXPECT_NEAR(static_cast<double>(AbsoluteZeroC * 9 / 5 + 32), static_cast<double>(AbsoluteZeroF),
                1e-12);
    EXPECT_EQ(OnePint * 8, 4.54609L);
    EXPECT_NEAR(static_cast<double>(Sun_Refraction * 60), 34.0, 1e-12);
    EXPECT_NEAR(static_cast<double>(Sun_Parallax * 3600), 8.794148, 1e-12);
    EXPECT_NEAR(static_cast<double>(OneMileUSSurvey / OneFootUSSurvey), 5280.0, 1e-9);
}

} // namespace
} // namespace qorkit
