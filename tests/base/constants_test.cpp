#include "QORKITConstants.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace qorkit {
namespace {

// Each constant against the value its source publishes (36 digits for the mathematical ones),
// with the relative difference allowed: 0 where the value is exact by definition. The extended
// spacing near 1 is 1.08e-19, so kUlps catches a slip in any of the first 18 digits.
struct ConstantRow {
    const char* Name;
    Extended Value;
    Extended Published;
    Extended RelativeTolerance;
};

constexpr Extended kUlps = 2e-19L;

class ConstantsAgainstSources : public ::testing::TestWithParam<ConstantRow> { };

TEST_P(ConstantsAgainstSources, HoldThePublishedValue)
{
    const ConstantRow& r = GetParam();
    EXPECT_LE(std::fabs(r.Value / r.Published - 1), r.RelativeTolerance)
        << static_cast<double>(r.Value) << " vs " << static_cast<double>(r.Published);
}

INSTANTIATE_TEST_SUITE_P(
    Sources, ConstantsAgainstSources,
    ::testing::Values(
        ConstantRow {"Pi", QORPi, 3.14159265358979323846264338327950288L, 0},
        ConstantRow {"TwoPi", TwoPi, 6.28318530717958647692528676655900577L, 0},
        ConstantRow {"E", QORe, 2.71828182845904523536028747135266250L, 0},
        ConstantRow {"EulerGamma", QORGamma, 0.577215664901532860606512090082402431L, 0},
        ConstantRow {"GoldenRatio", GoldenRatio, 1.61803398874989484820458683436563812L, 0},
        ConstantRow {"OneDegree", OneDegree, 0.0174532925199432957692369076848861271L, kUlps},
        ConstantRow {"OneMinute", OneMinute, 0.000290888208665721596153948461414768786L, kUlps},
        ConstantRow {"OneRadian", OneRadian, 57.2957795130823208767981548141051703L, kUlps},
        // SI 2019 exact values; Planck length CODATA 2018.
        ConstantRow {"ElemCharge", ElemCharge, 1.602176634e-19L, 0},
        ConstantRow {"Avogadro", Avogadro, 6.02214076e23L, 0},
        ConstantRow {"PlanckLength", PlanckLength, 1.616255e-35L, 0},
        // IAU 2012 B2 astronomical unit; IAU 2015 B2 parsec, 648000/pi au.
        ConstantRow {"AstroUnit", AstroUnit, 149597870700.0L, 0},
        ConstantRow {"Parsec", Parsec, 30856775814913672.7891L, kUlps},
        // Light distances: 299792458 m/s times whole seconds.
        ConstantRow {"LightYear", LightYear, 9460730472580800.0L, 0},
        ConstantRow {"LightYear365", LightYear365, 9454254955488000.0L, 0},
        ConstantRow {"LightDay", LightDay, 25902068371200.0L, 0},
        ConstantRow {"LightMinute", LightMinute, 17987547480.0L, 0},
        ConstantRow {"LightMicrosecond", LightMicrosecond, 299.792458L, kUlps},
        // ICAO Standard Atmosphere sea-level speed of sound.
        ConstantRow {"MachOne", MachOne, 340.294L, 0},
        ConstantRow {"AbsoluteZeroF", AbsoluteZeroF, -459.67L, 0},
        // NIST SP 811: survey foot 1200/3937 m; IT calorie 4.1868 J. UK Weights and Measures
        // Act 1985: gallon 4.54609 L, pint an eighth of it.
        ConstantRow {"FootUSSurvey", OneFootUSSurvey, 0.304800609601219202438404876809753620L,
                     kUlps},
        ConstantRow {"MileUSSurvey", OneMileUSSurvey, 1609.34721869443738887477774955549911L,
                     kUlps},
        ConstantRow {"PintInLitres", OnePint, 0.56826125L, 0},
        ConstantRow {"CalorieInJoules", OneCalorie, 4.1868L, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(ConstantsRelations, DerivedValuesAgreeWithTheirDefinitions)
{
    EXPECT_NEAR(static_cast<double>(MachOne), std::sqrt(1.4 * 287.05287 * 288.15), 1e-4);
    EXPECT_NEAR(static_cast<double>(AbsoluteZeroC * 9 / 5 + 32), static_cast<double>(AbsoluteZeroF),
                1e-12);
    EXPECT_NEAR(static_cast<double>(Sun_Refraction * 60), 34.0, 1e-12);
    EXPECT_NEAR(static_cast<double>(Sun_Parallax * 3600), 8.794148, 1e-12);
}

} // namespace
} // namespace qorkit
