// Rising and setting of the sun against a direct search for the moment the sun's centre
// crosses the altitude of the upper limb on the horizon, with the sidereal time from ERFA.
#include "QORKITAstronomy.h"
#include "QORKITConstants.h"
#include "QORKITDateTime.h"
#include "QorkitTestSupport.h"

#include <cmath>
#include <erfa.h>
#include <numbers>
#include <optional>
#include <string>

namespace qorkit {
namespace {

constexpr double kDeg = std::numbers::pi / 180;

struct Place {
    double latitude, longitude, hourOffset;
};

// Altitude of the sun's centre, degrees, u hours after 0 h UT of day n, with the sun's
// coordinates of days n and n + 1 interpolated linearly.
double SunAltitude(std::int32_t n, const Place& p, double u)
{
    Extended ra1 = 0, dec1 = 0, ra2 = 0, dec2 = 0;
    Sun_Position(n, ra1, dec1);
    Sun_Position(n + 1, ra2, dec2);
    const double dra = std::remainder(static_cast<double>(ra2 - ra1), 24.0);
    const double ra = static_cast<double>(ra1) + dra * u / 24;
    const double dec = static_cast<double>(dec1 + (dec2 - dec1) * u / 24);
    const double jd = DateTime2Julian(static_cast<TDateTime>(n)) + u / 24;
    const double h = eraGmst82(jd, 0) / kDeg + p.longitude - ra * 15;
    const double lat = p.latitude * kDeg;
    return std::asin(std::sin(lat) * std::sin(dec * kDeg)
                     + std::cos(lat) * std::cos(dec * kDeg) * std::cos(h * kDeg))
        / kDeg;
}

// Clock hour at which the altitude passes `target` upwards (rising) or downwards within the
// universal-time day n, by bisection between five-minute samples; the hour offset is added
// afterwards and the result wrapped once into 0..24, as the routine's contract says.
std::optional<double> Crossing(std::int32_t n, const Place& p, double target, bool rising)
{
    const auto f = [&](double u) { return SunAltitude(n, p, u) - target; };
    const double step = 5.0 / 60;
    for (double u = 0; u < 24; u += step) {
        const double a = f(u), b = f(u + step);
        if (rising ? (a < 0 && b >= 0) : (a >= 0 && b < 0)) {
            double lo = u, hi = u + step;
            for (int i = 0; i < 40; ++i) {
                const double mid = (lo + hi) / 2;
                ((f(mid) < 0) == rising ? lo : hi) = mid;
            }
            const double clock = (lo + hi) / 2 + p.hourOffset;
            return clock > 24 ? clock - 24 : clock < 0 ? clock + 24 : clock;
        }
    }
    return std::nullopt;
}

struct RiseSetRow {
    const char* name;
    Place place;
    int year, month, day;
};

class SunRiseSet : public test::GlobalStateTest, public ::testing::WithParamInterface<RiseSetRow> {
protected:
    void Check(bool second)
    {
        const auto& row = GetParam();
        const TDateTime dt = EncodeDate(row.year, row.month, row.day) + 0.4;
        const auto n = static_cast<std::int32_t>(std::floor(dt));
        const TQORPosition where {row.place.latitude, row.place.longitude};
        TDateTime rise = 0, set = 0;
        const TQORSunDay day = second ? Sun_RiseSet2(dt, where, row.place.hourOffset, rise, set)
                                      : Sun_RiseSet(dt, where, row.place.hourOffset, rise, set);
        ASSERT_EQ(day, sdRiseAndSet);
        // Upper limb on the horizon: semidiameter and refraction below, less the parallax.
        const double limb = second
            ? 0.833
            : static_cast<double>(Sun_AngularDiameter(n) / 2 + Sun_Refraction - Sun_Parallax);
        const auto expectedRise = Crossing(n, row.place, -limb, true);
        const auto expectedSet = Crossing(n, row.place, -limb, false);
        ASSERT_TRUE(expectedRise && expectedSet);
        EXPECT_NEAR((rise - n) * 24, *expectedRise, 1.0 / 60) << "rising";
        EXPECT_NEAR((set - n) * 24, *expectedSet, 1.0 / 60) << "setting";
    }
};

TEST_P(SunRiseSet, CorrectedAlongThePathWithinAMinute) { Check(false); }
TEST_P(SunRiseSet, ZenithDistanceMethodWithinAMinute) { Check(true); }

constexpr Place kGreenwich {51.4779, -0.0015, 0};
constexpr Place kNewYork {40.7128, -74.0060, -5};
constexpr Place kSydney {-33.8688, 151.2093, 10};
constexpr Place kQuito {-0.1807, -78.4678, -5};
constexpr Place kReykjavik {64.1466, -21.9426, 0};
constexpr Place kTromso {69.6492, 18.9553, 1};
constexpr Place kTokyo {35.6762, 139.6503, 9};
constexpr Place kCapeTown {-33.9249, 18.4241, 2};
// Near the date line the UT day and the civil day are most apart.
constexpr Place kAuckland {-36.8485, 174.7633, 13};
constexpr Place kHonolulu {21.3069, -157.8583, -10};
constexpr Place kGreenwichAtPlus5 {51.4779, -0.0015, 5};

INSTANTIATE_TEST_SUITE_P(
    PlacesAndSeasons, SunRiseSet,
    ::testing::Values(RiseSetRow {"GreenwichMarchEquinox", kGreenwich, 2024, 3, 20},
                      RiseSetRow {"GreenwichMidsummer", kGreenwich, 2024, 6, 21},
                      RiseSetRow {"GreenwichMidwinter", kGreenwich, 1950, 12, 21},
                      RiseSetRow {"NewYorkAutumn", kNewYork, 2031, 10, 12},
                      RiseSetRow {"NewYorkSpring", kNewYork, 2024, 4, 15},
                      RiseSetRow {"SydneyJanuary", kSydney, 2024, 1, 15},
                      RiseSetRow {"SydneyJuly", kSydney, 2075, 7, 1},
                      RiseSetRow {"QuitoEquinox", kQuito, 2024, 9, 22},
                      RiseSetRow {"ReykjavikWinter", kReykjavik, 2024, 12, 21},
                      RiseSetRow {"ReykjavikMay", kReykjavik, 2024, 5, 20},
                      RiseSetRow {"TromsoFebruary", kTromso, 2024, 2, 10},
                      RiseSetRow {"TromsoApril", kTromso, 2024, 4, 20},
                      RiseSetRow {"TokyoNovember", kTokyo, 1999, 11, 30},
                      RiseSetRow {"CapeTownJune", kCapeTown, 2024, 6, 21},
                      RiseSetRow {"AucklandDecember", kAuckland, 2024, 12, 1},
                      RiseSetRow {"HonoluluMarch", kHonolulu, 2024, 3, 3},
                      RiseSetRow {"GreenwichAtPlus5", kGreenwichAtPlus5, 2024, 1, 10}),
    [](const auto& p) { return std::string(p.param.name); });

// The offset is added to universal times of one and the same UT day: offsets apart by two hours
// give times apart by two hours (modulo the one wrap), for both methods and places on either
// side of the date line.
TEST(SunRiseSetOffset, ShiftsTheSameUniversalTimes)
{
    const TDateTime dt = EncodeDate(2024, 7, 4) + 0.25;
    for (const TQORPosition where : {TQORPosition {35.68, 139.65}, TQORPosition {-33.87, 151.21},
                                     TQORPosition {51.48, 0}, TQORPosition {21.31, -157.86}}) {
        for (auto method : {Sun_RiseSet, Sun_RiseSet2}) {
            for (const Extended offset : {-11.0L, -5.5L, 0.0L, 8.0L, 9.0L, 10.0L}) {
                TDateTime rise1 = 0, set1 = 0, rise2 = 0, set2 = 0;
                ASSERT_EQ(method(dt, where, offset, rise1, set1), sdRiseAndSet);
                ASSERT_EQ(method(dt, where, offset + 2, rise2, set2), sdRiseAndSet);
                for (const double step : {(rise2 - rise1) * 24, (set2 - set1) * 24})
                    EXPECT_NEAR(std::remainder(step - 2, 24.0), 0, 1e-6)
                        << static_cast<double>(where.Latitude) << " offset "
                        << static_cast<double>(offset);
            }
        }
    }
}

TEST(SunRiseSetOffset, GreenwichAheadOfUniversalTimeShowsThatEvening)
{
    // Sunset at Greenwich on 10 January is near 16:10 UT; at UT+5 it reads 21:10 on that day.
    const TDateTime day = EncodeDate(2024, 1, 10);
    TDateTime rise = 0, set = 0;
    ASSERT_EQ(Sun_RiseSet(day + 0.5, TQORPosition {51.4779, 0}, 5, rise, set), sdRiseAndSet);
    EXPECT_NEAR((set - day) * 24, 21.17, 0.1);
    EXPECT_NEAR((rise - day) * 24, 13.1, 0.1);
}

TEST(SunRiseSetPolar, PolarDayAndNightAreReportedNotRaised)
{
    const TQORPosition tromso {69.6492, 18.9553};
    const TQORPosition southPole {-90, 0};
    const TDateTime june = EncodeDate(2024, 6, 21) + 0.5;
    const TDateTime december = EncodeDate(2024, 12, 21);
    for (auto method : {Sun_RiseSet, Sun_RiseSet2}) {
        TDateTime rise = -1, set = -1;
        EXPECT_EQ(method(june, tromso, 1, rise, set), sdAlwaysUp);
        EXPECT_EQ(rise, std::floor(june));
        EXPECT_EQ(set, std::floor(june) + 1);
        EXPECT_EQ(method(december, tromso, 1, rise, set), sdAlwaysDown);
        EXPECT_EQ(rise, december);
        EXPECT_EQ(set, december);
        EXPECT_EQ(method(june, southPole, 0, rise, set), sdAlwaysDown);
        EXPECT_EQ(method(december, southPole, 0, rise, set), sdAlwaysUp);
    }
}

TEST(SunRiseSetPolar, RefractionLiftsTheSunAboveTheHorizonNearThePolarCircle)
{
    // At 67 N on the winter solstice the centre stays below the geometric horizon, but the
    // upper limb, lifted by refraction, shows for a short while around noon.
    const TQORPosition where {67.0, 25.0};
    const TDateTime dt = EncodeDate(2024, 12, 21);
    TDateTime rise = 0, set = 0;
    ASSERT_EQ(Sun_RiseSet(dt, where, 2, rise, set), sdRiseAndSet);
    EXPECT_LT(rise, set);
    EXPECT_LT((set - rise) * 24, 2.0);
}

} // namespace
} // namespace qorkit
