// Astronomy routines against ERFA (Julian dates, sidereal time, coordinates, the sun) and
// against a direct altitude-crossing search for rising and setting.
#include "QORKITAstronomy.h"
#include "QORKITConstants.h"
#include "QORKITDateTime.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QorkitTestSupport.h"

#include <array>
#include <cmath>
#include <erfa.h>
#include <numbers>
#include <string>
#include <type_traits>

namespace qorkit {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kDeg = kPi / 180;

double Wrap(double x, double period) { return x - period * std::floor(x / period); }
// Signed difference of two angles (or hours) on a circle of the given period.
double CircleDiff(double a, double b, double period) { return std::remainder(a - b, period); }

// ---- Julian dates ----------------------------------------------------------------------------

struct CalendarRow {
    const char* name;
    int year, month;
    double day;
};

class JulianDates : public test::GlobalStateTest,
                    public ::testing::WithParamInterface<CalendarRow> { };

TEST_P(JulianDates, MatchErfaAndRoundTrip)
{
    const auto& row = GetParam();
    double djm0 = 0, djm = 0;
    ASSERT_EQ(eraCal2jd(row.year, row.month, static_cast<int>(row.day), &djm0, &djm), 0);
    const double expected = djm0 + djm + (row.day - std::floor(row.day));
    EXPECT_NEAR(DateTime2Julian(row.year, row.month, row.day), expected, 1e-9);
    EXPECT_NEAR(DateTime2ModifiedJulian(row.year, row.month, row.day),
                djm + row.day - std::floor(row.day), 1e-9);

    std::int32_t y = 0, m = 0;
    double d = 0;
    Julian2DateTime(expected, y, m, d);
    EXPECT_EQ(y, row.year);
    EXPECT_EQ(m, row.month);
    EXPECT_NEAR(d, row.day, 1e-8);
}

INSTANTIATE_TEST_SUITE_P(Gregorian, JulianDates,
                         ::testing::Values(CalendarRow {"FirstGregorianDay", 1582, 10, 15.0},
                                           CalendarRow {"Eighteen00", 1800, 2, 28.25},
                                           CalendarRow {"Leap1900Not", 1900, 3, 1.0},
                                           CalendarRow {"J2000Noon", 2000, 1, 1.5},
                                           CalendarRow {"LeapDay2000", 2000, 2, 29.75},
                                           CalendarRow {"EndOf2099", 2099, 12, 31.999},
                                           CalendarRow {"Year2100", 2100, 3, 1.5},
                                           CalendarRow {"FarFuture", 9999, 12, 31.0}),
                         [](const auto& p) { return std::string(p.param.name); });

TEST(JulianDateSwitch, JulianCalendarBeforeTheReform)
{
    EXPECT_DOUBLE_EQ(DateTime2Julian(1582, 10, 15.0), 2299160.5);
    EXPECT_DOUBLE_EQ(DateTime2Julian(1582, 10, 4.0), 2299159.5);
    // The epoch of the count, and 1 January 1 AD (Julian calendar), worked by hand.
    EXPECT_DOUBLE_EQ(DateTime2Julian(-4712, 1, 1.5), 0.0);
    EXPECT_DOUBLE_EQ(DateTime2Julian(1, 1, 1.0), 1721423.5);

    std::int32_t y = 0, m = 0;
    double d = 0;
    Julian2DateTime(2299159.5, y, m, d);
    EXPECT_EQ((std::array {y, m}), (std::array {1582, 10}));
    EXPECT_DOUBLE_EQ(d, 4.0);
    Julian2DateTime(2451545.0, y, m, d);
    EXPECT_EQ((std::array {y, m}), (std::array {2000, 1}));
    EXPECT_DOUBLE_EQ(d, 1.5);
}

TEST(JulianDateTime, HostDateTimesAndTheYearOneLimit)
{
    const TDateTime dt = EncodeDate(2024, 2, 29) + 0.75;
    EXPECT_NEAR(DateTime2Julian(dt), 2460370.25, 1e-9);
    EXPECT_NEAR(DateTime2ModifiedJulian(dt), 60369.75, 1e-9);
    TDateTime back = 0;
    Julian2DateTime(2460370.25, back);
    EXPECT_NEAR(back, dt, 1e-9);
    ModifiedJulian2DateTime(60369.75, back);
    EXPECT_NEAR(back, dt, 1e-9);

    back = 123;
    EXPECT_THROW(Julian2DateTime(1721000.0, back), EConvertError); // 0 AD
    EXPECT_EQ(back, 0);
    EXPECT_THROW(DateTime2Julian(std::nan("")), EConvertError);
}

TEST(DayOfWeek, MidnightsAndTheHalfToEvenNoonRule)
{
    // 2024-03-10 was a Sunday: its midnight and those of the following week.
    const double sundayMidnight = 2460379.5;
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(Julian2DOW(sundayMidnight + i), i + 1) << i;
        EXPECT_EQ(Julian2QORDayOfWeek(sundayMidnight + i), i) << i;
        EXPECT_EQ(Julian2ISODOW(sundayMidnight + i), i == 0 ? 7 : i) << i;
    }
    // At noon the remainder is an exact half and rounds to the even neighbour: Saturday noon
    // stays Saturday, Sunday noon stays Sunday, Monday noon reads as Tuesday.
    EXPECT_EQ(Julian2DOW(2451545.0), 7);
    EXPECT_EQ(Julian2QORDayOfWeek(2451545.0), 6);
    EXPECT_EQ(Julian2DOW(2451546.0), 1);
    EXPECT_EQ(Julian2DOW(2451547.0), 3);
    // Late on a Saturday the rounding reaches Sunday, never an eighth day.
    EXPECT_EQ(Julian2DOW(2451545.3), 1);
}

// ---- Time records and sidereal time -----------------------------------------------------------

double ErfaGmstHours(TDateTime dt) { return eraGmst82(DateTime2Julian(dt), 0) * 12 / kPi; }

TEST(SiderealTime, GreenwichSiderealTimeMatchesErfa)
{
    for (int year = 1900; year <= 2100; year += 10) {
        const TDateTime dt = EncodeDate(year, 5, 17) + 0.3712;
        const double t = (DateTime2Julian(std::floor(dt)) - 2451545.0) / 36525;
        // The T^2 term is divided by 3600 twice in this model, which removes it.
        const double expected = ErfaGmstHours(dt) - 0.093104 * t * t / 3600;
        const TQORTime gst = UT2GST(dt);
        EXPECT_EQ(gst.TimeType, ttGreenwichSidereal);
        EXPECT_EQ(gst.Day, static_cast<std::int32_t>(std::floor(dt)));
        EXPECT_NEAR(CircleDiff(static_cast<double>(QORTime2Hrs(gst)), expected, 24), 0, 2e-6)
            << year;

        // Back to universal time, from the record, from a date-time and from bare hours.
        const double ut = (dt - std::floor(dt)) * 24;
        EXPECT_NEAR(static_cast<double>(QORTime2Hrs(QORTime2UT(gst))), ut, 1e-5);
        const TDateTime gstAsTime = std::floor(dt) + static_cast<double>(QORTime2Hrs(gst)) / 24;
        EXPECT_NEAR(static_cast<double>(QORTime2Hrs(GST2UT(gstAsTime))), ut, 1e-5);
        EXPECT_NEAR(static_cast<double>(GST2UTHrs(dt, QORTime2Hrs(gst))), ut, 1e-5);
    }
}

TEST(SiderealTime, LocalTimesShiftByLongitudeWithReversedDayCount)
{
    const TDateTime day = EncodeDate(2024, 4, 1);
    // 18:00 GST at 105 degrees east is 25 h: wrapped to 1 h, and the day number goes back one.
    TQORTime lst = GST2LST(day + 0.75, 105);
    EXPECT_EQ(lst.TimeType, ttLocalSidereal);
    EXPECT_EQ(lst.Longitude, 105);
    EXPECT_EQ(lst.Hours, 1);
    EXPECT_EQ(lst.Day, static_cast<std::int32_t>(day) - 1);
    // 12:00 + 12 h is exactly 24 and stays 24, on the same day.
    lst = GST2LST(day + 0.5, 180);
    EXPECT_EQ(lst.Hours, 24);
    EXPECT_EQ(lst.Day, static_cast<std::int32_t>(day));
    // 6:00 LST at 105 degrees east is -1 h GST: 23 h, and the day number goes forward one.
    const TQORTime gst = LST2GST(day + 0.25, 105);
    EXPECT_EQ(gst.Hours, 23);
    EXPECT_EQ(gst.Day, static_cast<std::int32_t>(day) + 1);
    EXPECT_EQ(QORTime2GST(lst).TimeType, ttGreenwichSidereal);

    // Universal time to local sidereal time agrees with ERFA plus the longitude.
    const TDateTime dt = day + 0.6;
    const TQORTime local = QORTime2LST(DateTime2QORTime(dt, ttUniversal, 0), -75);
    const double expected = Wrap(ErfaGmstHours(dt) - 5, 24);
    EXPECT_NEAR(CircleDiff(static_cast<double>(QORTime2Hrs(local)), expected, 24), 0, 1e-5);
    // From one local time to another only the longitudes count.
    const double localHours = static_cast<double>(QORTime2Hrs(local));
    const TQORTime moved = QORTime2LST(local, 15);
    EXPECT_NEAR(CircleDiff(static_cast<double>(QORTime2Hrs(moved)), localHours + 6, 24), 0, 1e-9);
    EXPECT_NEAR(
        CircleDiff(static_cast<double>(QORTime2Hrs(QORTime2GST(moved))), localHours + 5, 24), 0,
        1e-9);
}

TEST(TimeRecords, DateTimeRoundTripAndClockLimits)
{
    const TDateTime dt = EncodeDate(2010, 7, 4) + EncodeTime(13, 45, 30, 250);
    const TQORTime t = DateTime2QORTime(dt, ttLocalSidereal, 12.5);
    EXPECT_EQ((std::array {t.Hours, t.Minutes}), (std::array {13, 45}));
    EXPECT_DOUBLE_EQ(t.Seconds, 30.25);
    EXPECT_EQ(t.Longitude, 12.5);
    EXPECT_EQ(DateTime2QORTime(dt, ttUniversal, 12.5).Longitude, 0);
    EXPECT_NEAR(QORTime2DateTime(t), dt, 1e-8);
    EXPECT_NEAR(static_cast<double>(QORTime2Hrs(t)), 13 + 45.0 / 60 + 30.25 / 3600, 1e-12);

    TQORTime full = t;
    full.Hours = 24;
    EXPECT_THROW(QORTime2DateTime(full), EConvertError);
}

TEST(HourAngle, TwentyFourIsAddedBelowTwentyFour)
{
    TQORTime lst;
    lst.TimeType = ttLocalSidereal;
    lst.Hours = 6;
    lst.Minutes = 30;
    EXPECT_DOUBLE_EQ(static_cast<double>(Ascension2HourAngle(6.5L, lst, 0)), 24.0);
    EXPECT_DOUBLE_EQ(static_cast<double>(Ascension2HourAngle(2.5L, lst, 0)), 28.0);
    EXPECT_DOUBLE_EQ(static_cast<double>(Ascension2HourAngle(10.5L, lst, 0)), 20.0);
    EXPECT_DOUBLE_EQ(static_cast<double>(HourAngle2Ascension(4.0L, lst, 0)), 26.5);

    // The date-time form goes through the local sidereal time of the longitude.
    const TDateTime dt = EncodeDate(2024, 4, 1) + 0.25;
    const double lstHours = Wrap(ErfaGmstHours(dt) + 2, 24);
    EXPECT_NEAR(static_cast<double>(Ascension2HourAngle(Extended {0}, dt, 30)), lstHours + 24,
                1e-5);
    EXPECT_NEAR(static_cast<double>(HourAngle2Ascension(Extended {0}, dt, 30)), lstHours + 24,
                1e-5);
}

// ---- Coordinates -------------------------------------------------------------------------------

struct HorizonRow {
    const char* name;
    double hourAngle, declination, latitude;
};

class HorizonCoordinates : public ::testing::TestWithParam<HorizonRow> { };

TEST_P(HorizonCoordinates, MatchErfaBothWays)
{
    const auto& row = GetParam();
    double az = 0, el = 0;
    eraHd2ae(row.hourAngle * 15 * kDeg, row.declination * kDeg, row.latitude * kDeg, &az, &el);
    Extended alt = 0, azimuth = 0;
    Equatorial2Horizon(row.hourAngle, row.declination, row.latitude, alt, azimuth);
    EXPECT_NEAR(static_cast<double>(alt), el / kDeg, 1e-9);
    EXPECT_NEAR(CircleDiff(static_cast<double>(azimuth), az / kDeg, 360), 0, 1e-8);

    Extended h = 0, dec = 0;
    Horizon2Equatorial(alt, azimuth, row.latitude, h, dec);
    EXPECT_NEAR(static_cast<double>(dec), row.declination, 1e-8);
    EXPECT_NEAR(CircleDiff(static_cast<double>(h), row.hourAngle, 24), 0, 1e-8);
}

INSTANTIATE_TEST_SUITE_P(Places, HorizonCoordinates,
                         ::testing::Values(HorizonRow {"MorningEast", 20.5, 10, 51.5},
                                           HorizonRow {"EveningWest", 3.2, -5, 51.5},
                                           HorizonRow {"SouthernSky", 22.0, -60, -33.9},
                                           HorizonRow {"BelowHorizon", 11.0, 20, 40},
                                           HorizonRow {"NearEquator", 5.9, 1, 0.3}),
                         [](const auto& p) { return std::string(p.param.name); });

TEST(EclipticCoordinates, RotationByTheObliquityMatchesErfa)
{
    const double obliquity = 23.4392911;
    for (double lon : {0.0, 45.0, 135.0, 200.0, 300.0})
        for (double lat : {-60.0, -5.0, 0.0, 12.0, 80.0}) {
            double v[3], w[3], r[3][3];
            eraS2c(lon * kDeg, lat * kDeg, v);
            eraIr(r);
            eraRx(-obliquity * kDeg, r);
            eraRxp(r, v, w);
            double ra = 0, dec = 0;
            eraC2s(w, &ra, &dec);
            Extended mRa = 0, mDec = 0;
            Ecliptic2Equatorial(lon, lat, Extended {obliquity}, mRa, mDec);
            EXPECT_NEAR(static_cast<double>(mRa), Wrap(ra, 2 * kPi) * 12 / kPi, 1e-9);
            EXPECT_NEAR(static_cast<double>(mDec), dec / kDeg, 1e-9);
            Extended backLon = 0, backLat = 0;
            Equatorial2Ecliptic(mRa, mDec, Extended {obliquity}, backLon, backLat);
            EXPECT_NEAR(CircleDiff(static_cast<double>(backLon), lon, 360), 0, 1e-9);
            EXPECT_NEAR(static_cast<double>(backLat), lat, 1e-9);
        }
}

TEST(EclipticCoordinates, MeanObliquityAndDateForms)
{
    const TDateTime j2000 = EncodeDate(2000, 1, 1) + 0.5;
    EXPECT_NEAR(static_cast<double>(MeanObliquity(j2000)), 23.439292, 1e-9);
    // IAU 1980 obliquity, within the rounding of the model's constant.
    const TDateTime dt = EncodeDate(2080, 6, 1);
    EXPECT_NEAR(static_cast<double>(MeanObliquity(dt)), eraObl80(DateTime2Julian(dt), 0) / kDeg,
                2e-6);
    Extended ra1 = 0, dec1 = 0, ra2 = 0, dec2 = 0;
    Ecliptic2Equatorial(100, 3, TQORDateTimeValue {dt}, ra1, dec1);
    Ecliptic2Equatorial(100, 3, MeanObliquity(dt), ra2, dec2);
    EXPECT_EQ((std::array {ra1, dec1}), (std::array {ra2, dec2}));
    Extended lon = 0, lat = 0;
    Equatorial2Ecliptic(ra1, dec1, TQORDateTimeValue {dt}, lon, lat);
    EXPECT_NEAR(static_cast<double>(lon), 100, 1e-9);
}

// A plain number is an obliquity, whatever its type; a date has to be given as one.
TEST(EclipticCoordinates, ANumberIsTheObliquity)
{
    Extended ra = 0, dec = 0;
    Ecliptic2Equatorial(90, 3, 0.0, ra, dec); // no tilt: the ecliptic is the equator
    EXPECT_NEAR(static_cast<double>(ra), 6, 1e-15);
    EXPECT_NEAR(static_cast<double>(dec), 3, 1e-15);
    Ecliptic2Equatorial(90, 0, 23.44, ra, dec);
    EXPECT_NEAR(static_cast<double>(dec), 23.44, 1e-12);
    Ecliptic2Equatorial(90, 0, 23.44f, ra, dec);
    EXPECT_NEAR(static_cast<double>(dec), 23.44, 1e-5);
    Ecliptic2Equatorial(90, 0, 23, ra, dec);
    EXPECT_NEAR(static_cast<double>(dec), 23, 1e-12);
    Extended lon = 0, lat = 0;
    Equatorial2Ecliptic(6, 23.44, 23.44, lon, lat);
    EXPECT_NEAR(static_cast<double>(lon), 90, 1e-12);
    EXPECT_NEAR(static_cast<double>(lat), 0, 1e-12);
    Equatorial2Ecliptic(6, 0, 0.0, lon, lat);
    EXPECT_NEAR(static_cast<double>(lon), 90, 1e-12);
    static_assert(!std::is_convertible_v<double, TQORDateTimeValue>);
}

TEST(GalacticCoordinates, PoleCentreAndRoundTrip)
{
    Extended l = 0, b = 0;
    // The north galactic pole (B1950) and the galactic centre, 17h 42.4m, -28 deg 55'.
    Equatorial2Galactic(192.25L / 15, 27.4L, l, b);
    EXPECT_NEAR(static_cast<double>(b), 90, 1e-6);
    Equatorial2Galactic((17 + 42.4L / 60), -(28 + 55.0L / 60), l, b);
    EXPECT_NEAR(CircleDiff(static_cast<double>(l), 0, 360), 0, 0.05);
    EXPECT_NEAR(static_cast<double>(b), 0, 0.05);
    for (double ra : {0.5, 7.0, 13.0, 21.0}) {
        Extended ra2 = 0, dec2 = 0;
        Equatorial2Galactic(ra, -20, l, b);
        Galactic2Equatorial(l, b, ra2, dec2);
        EXPECT_NEAR(static_cast<double>(ra2), ra, 1e-9);
        EXPECT_NEAR(static_cast<double>(dec2), -20, 1e-9);
    }
}

// ---- The sun -----------------------------------------------------------------------------------

// Geometric sun referred to the mean equator and equinox of the date, from ERFA's ephemeris,
// as a unit vector and a distance in astronomical units.
struct ErfaSun {
    double ra, dec, distance, longitude;
};

ErfaSun SunFromErfa(double jd)
{
    const double tt = 69.0 / 86400; // TT - UT, close enough at this precision
    double pvh[2][3], pvb[2][3];
    eraEpv00(jd, tt, pvh, pvb);
    double v[3] = {-pvh[0][0], -pvh[0][1], -pvh[0][2]};
    double r[3][3], w[3], e[3];
    eraPmat06(jd, tt, r);
    eraRxp(r, v, w);
    ErfaSun s {};
    eraC2s(w, &s.ra, &s.dec);
    s.ra = Wrap(s.ra, 2 * kPi) * 12 / kPi;
    s.dec /= kDeg;
    s.distance = eraPm(w);
    double rm[3][3], lon = 0, lat = 0;
    eraEcm06(jd, tt, rm);
    eraRxp(rm, v, e);
    eraC2s(e, &lon, &lat);
    s.longitude = Wrap(lon, 2 * kPi) / kDeg;
    return s;
}

// Degrees of true anomaly the model leaves out where its Newton loop stops at E = M (first
// residual negative, mean anomaly below 180 degrees): v(E) - v(M) for the solved E.
double KeplerDeficit(double e, double m)
{
    if (Wrap(m, 2 * kPi) >= kPi)
        return 0;
    double ea = m;
    for (int i = 0; i < 50; ++i)
        ea -= (ea - e * std::sin(ea) - m) / (1 - e * std::cos(ea));
    const auto anomaly
        = [e](double x) { return 2 * std::atan(std::sqrt((1 + e) / (1 - e)) * std::tan(x / 2)); };
    return (anomaly(ea) - anomaly(m)) / kDeg;
}

TEST(Sun, PositionWithinAHundredthOfADegreeOfErfa1900To2100)
{
    int newtonDays = 0;
    for (int year = 1900; year <= 2100; year += 5)
        for (int month = 1; month <= 12; ++month) {
            const TDateTime dt = EncodeDate(year, month, 1 + (year + month * 3) % 27);
            const ErfaSun s = SunFromErfa(DateTime2Julian(dt));
            const double e = static_cast<double>(Sun_OrbitEccentricity(dt));
            const double m = static_cast<double>(
                Deg2Rad(Sun_EclipticLongitudeEpoch(dt) - Sun_EclipticLongitudePerigee(dt)));
            const double deficit = KeplerDeficit(e, m);
            const double longitude = static_cast<double>(
                AdjustAngleDegree(Sun_TrueAnomaly(dt) + Sun_EclipticLongitudePerigee(dt)));
            EXPECT_NEAR(CircleDiff(longitude + deficit, s.longitude, 360), 0, 0.01)
                << year << "-" << month;
            if (deficit != 0)
                continue;
            ++newtonDays;
            Extended ra = 0, dec = 0;
            Sun_Position(dt, ra, dec);
            double a[3], b[3];
            eraS2c(static_cast<double>(ra) * kPi / 12, static_cast<double>(dec) * kDeg, a);
            eraS2c(s.ra * kPi / 12, s.dec * kDeg, b);
            EXPECT_LT(eraSepp(a, b) / kDeg, 0.01) << year << "-" << month;
            EXPECT_NEAR(static_cast<double>(Sun_DistanceAU(dt)), s.distance, 1e-4);
        }
    EXPECT_GT(newtonDays, 100);
}

TEST(Sun, StoppedKeplerLoopIsKept)
{
    // Mid-April the mean anomaly is about 100 degrees: the first residual is negative and the
    // eccentric anomaly stays the mean anomaly.
    const TDateTime dt = EncodeDate(2021, 4, 15);
    const Extended e = Sun_OrbitEccentricity(dt);
    const Extended m = Deg2Rad(
        AdjustAngleDegree(Sun_EclipticLongitudeEpoch(dt) - Sun_EclipticLongitudePerigee(dt)));
    ASSERT_LT(m, std::numbers::pi_v<Extended>);
    const Extended expected = 2 * std::atan(std::sqrt((1 + e) / (1 - e)) * std::tan(m / 2)) * 180
        / std::numbers::pi_v<Extended>;
    EXPECT_NEAR(static_cast<double>(Sun_TrueAnomaly(dt)), static_cast<double>(expected), 1e-12);
    // Only the day counts.
    EXPECT_EQ(Sun_TrueAnomaly(dt + 0.1), Sun_TrueAnomaly(dt + 0.9));
}

TEST(Sun, EpochValuesDiameterAndDistance)
{
    // 1900-01-00 12:00 is the epoch of the elements: T = 0 on 1899-12-31.
    const TDateTime epoch = EncodeDate(1899, 12, 31);
    Extended lon = 0, perigee = 0, e = 0;
    Sun_EpochValues(epoch + 0.7, lon, perigee, e);
    EXPECT_NEAR(static_cast<double>(lon), 279.6966778 - 0.5 * 36000.76892 / 36525, 1e-9);
    EXPECT_NEAR(static_cast<double>(perigee), 281.2208444 - 0.5 * 1.719175 / 36525, 1e-9);
    EXPECT_NEAR(static_cast<double>(e), 0.01675104 + 0.5 * 0.0000418 / 36525, 1e-12);

    // Near perihelion (early January) the sun is largest and nearest.
    const TDateTime jan = EncodeDate(2023, 1, 4);
    const TDateTime jul = EncodeDate(2023, 7, 6);
    EXPECT_NEAR(static_cast<double>(Sun_DistanceAU(jan)), 0.98330, 2e-4);
    EXPECT_NEAR(static_cast<double>(Sun_DistanceAU(jul)), 1.01670, 2e-4);
    EXPECT_NEAR(static_cast<double>(Sun_AngularDiameter(jan)), 0.533128 / 0.98329, 1e-4);
    EXPECT_NEAR(static_cast<double>(Sun_Distance(jul) * 1000 / AstroUnit), 1.0167, 2e-4);
}

} // namespace
} // namespace qorkit
