// Positions: range checks and sign conventions, text, and navigation against GeographicLib on a
// sphere (flattening 0).
#include "QORKITExceptions.h"
#include "QORKITPositions.h"
#include "QORKITResource.h"
#include "QORKITSettings.h"
#include "QorkitTestSupport.h"

#include <GeographicLib/Geodesic.hpp>
#include <cmath>
#include <numbers>
#include <string>

namespace qorkit {
namespace {

constexpr double kEarthRadius = 6371000;
// The sphere on which one minute of arc is one nautical mile (1852 m).
constexpr double kNauticalRadius = 1852 * 10800 / std::numbers::pi;
constexpr double kKmPerMile = 1.609344;

class Positions : public test::GlobalStateTest { };

TEST_F(Positions, RangeChecksLatitudeFirst)
{
    EXPECT_NO_THROW(MakePosition(90, 180));
    EXPECT_NO_THROW(MakePosition(-90, -180));
    const struct {
        Extended lat, lon;
        std::string message;
    } bad[] = {{90.0001L, 0, rsInvalidLatitude()}, {-91, 0, rsInvalidLatitude()},
               {91, 181, rsInvalidLatitude()},     {0, 180.5L, rsInvalidLongitude()},
               {0, -181, rsInvalidLongitude()},    {std::nanl(""), 0, rsInvalidLatitude()}};
    for (const auto& row : bad) {
        try {
            MakePosition(row.lat, row.lon);
            ADD_FAILURE() << row.lat << " " << row.lon;
        } catch (const EConvertError& e) {
            EXPECT_EQ(e.what(), row.message) << row.lat << " " << row.lon;
        }
    }
}

TEST_F(Positions, SignConventionsApplyInAndOutButNotToText)
{
    QORNorthPositive = false;
    QOREastPositive = false;
    const TQORPosition p = MakePosition(10, 20); // 10 S, 20 W
    EXPECT_EQ(p.Latitude, -10);
    EXPECT_EQ(p.Longitude, -20);
    EXPECT_EQ(GetLatitude(p), 10);
    EXPECT_EQ(GetLongitude(p), 20);
    EXPECT_EQ(Position2Str(p, 2), "10.00S 20.00W");
    QORNorthPositive = true;
    QOREastPositive = true;
    EXPECT_EQ(GetLatitude(p), -10);
    EXPECT_EQ(Position2Str(MakePosition(0, -0.5L), 1), "0.0 0.5W");
    EXPECT_EQ(Position2Str(MakePosition(51.5L, 0), 1), "51.5N 0.0");
    EXPECT_EQ(Position2DMSStr(MakePosition(12.5125L, -0.25L), 0),
              "12\xC2\xB0 30' 45\"N 0\xC2\xB0 15' 00\"W");
}

struct RouteRow {
    const char* name;
    double lat1, lon1, lat2, lon2;
};

class Routes : public test::GlobalStateTest, public ::testing::WithParamInterface<RouteRow> { };

TEST_P(Routes, BearingAndDistanceMatchGeographicLib)
{
    const auto& r = GetParam();
    const TQORPosition from = MakePosition(r.lat1, r.lon1);
    const TQORPosition to = MakePosition(r.lat2, r.lon2);
    const GeographicLib::Geodesic sphere(kEarthRadius, 0);
    double s12 = 0, azi1 = 0, azi2 = 0;
    sphere.Inverse(r.lat1, r.lon1, r.lat2, r.lon2, s12, azi1, azi2);
    const double bearing = azi1 < 0 ? azi1 + 360 : azi1;
    EXPECT_NEAR(static_cast<double>(GetBearing(from, to)), bearing, 1e-9);
    EXPECT_NEAR(static_cast<double>(GetDistanceKm(from, to, kEarthRadius)), s12 / 1000, 1e-6);
    EXPECT_NEAR(static_cast<double>(GetDistanceMiles(from, to, kEarthRadius)),
                s12 / 1000 / kKmPerMile, 1e-6);
    double nm = 0;
    GeographicLib::Geodesic(kNauticalRadius, 0)
        .Inverse(r.lat1, r.lon1, r.lat2, r.lon2, nm, azi1, azi2);
    EXPECT_NEAR(static_cast<double>(GetDistanceNM(from, to)), nm / 1852, 1e-6);
}

// The latitude reached is exact at any distance. The longitude uses the short-distance form,
// so it agrees with the exact sphere to about the square of the central angle: checked at 1 km
// (central angle 1.6e-4 rad) to 1e-5 degrees, that is about a metre.
TEST_P(Routes, DestinationMatchesGeographicLib)
{
    const auto& r = GetParam();
    const TQORPosition from = MakePosition(r.lat1, r.lon1);
    const double bearing = static_cast<double>(GetBearing(from, MakePosition(r.lat2, r.lon2)));
    const GeographicLib::Geodesic sphere(kEarthRadius, 0);
    const GeographicLib::Geodesic nauticalSphere(kNauticalRadius, 0);
    for (double km : {1.0, 250.0, 1500.0}) {
        const double lonTolerance = km == 1.0 ? 1e-5 : 360.0;
        double lat2 = 0, lon2 = 0;
        sphere.Direct(r.lat1, r.lon1, bearing, km * 1000, lat2, lon2);
        const TQORPosition byKm = GetPositionKm(from, km, bearing, kEarthRadius);
        EXPECT_NEAR(static_cast<double>(byKm.Latitude), lat2, 1e-9) << km;
        EXPECT_NEAR(std::remainder(static_cast<double>(byKm.Longitude) - lon2, 360.0), 0,
                    lonTolerance)
            << km;
        const TQORPosition byMiles = GetPositionMiles(from, km / kKmPerMile, bearing, kEarthRadius);
        EXPECT_NEAR(static_cast<double>(byMiles.Latitude), lat2, 1e-9);
        nauticalSphere.Direct(r.lat1, r.lon1, bearing, km * 1000, lat2, lon2);
        const TQORPosition byNM = GetPositionNM(from, km * 1000 / 1852, bearing);
        EXPECT_NEAR(static_cast<double>(byNM.Latitude), lat2, 1e-9);
        EXPECT_NEAR(std::remainder(static_cast<double>(byNM.Longitude) - lon2, 360.0), 0,
                    lonTolerance);
    }
}

// Along the equator and along meridians the short-distance form is exact at any distance;
// off them it divides by the start latitude's cosine (worked by hand: from 60 N due east over
// 600 nm, sin(dlon) = sin(10 deg) / cos(60 deg), so dlon = asin(0.347296...) = 20.32204 deg).
TEST_F(Positions, DestinationLongitudeUsesTheStartLatitude)
{
    const TQORPosition equator = GetPositionNM(MakePosition(0, 10), 1800, 90);
    EXPECT_NEAR(static_cast<double>(equator.Latitude), 0, 1e-12);
    EXPECT_NEAR(static_cast<double>(equator.Longitude), 40, 1e-12);
    const TQORPosition meridian = GetPositionNM(MakePosition(10, 20), 1200, 0);
    EXPECT_NEAR(static_cast<double>(meridian.Longitude), 20, 1e-12);
    const TQORPosition north = GetPositionNM(MakePosition(60, 0), 600, 90);
    EXPECT_NEAR(static_cast<double>(north.Longitude), 20.32203702, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(
    CityPairs, Routes,
    ::testing::Values(RouteRow {"LondonToNewYork", 51.5074, -0.1278, 40.7128, -74.0060},
                      RouteRow {"SydneyToAuckland", -33.8688, 151.2093, -36.8485, 174.7633},
                      RouteRow {"AcrossTheDateLine", 21.3069, -157.8583, 13.4443, 144.7937},
                      RouteRow {"CapeTownToRio", -33.9249, 18.4241, -22.9068, -43.1729},
                      RouteRow {"QuitoToNairobi", -0.1807, -78.4678, -1.2921, 36.8219},
                      RouteRow {"DueSouth", 48.0, 11.0, 30.0, 11.0}),
    [](const auto& p) { return std::string(p.param.name); });

TEST_F(Positions, EquatorPolesAndZeroDistance)
{
    const TQORPosition origin = MakePosition(0, 0);
    EXPECT_DOUBLE_EQ(static_cast<double>(GetBearing(origin, MakePosition(0, 1))), 90);
    EXPECT_DOUBLE_EQ(static_cast<double>(GetBearing(origin, MakePosition(0, -1))), 270);
    EXPECT_NEAR(static_cast<double>(GetDistanceNM(origin, MakePosition(0, 1))), 60, 1e-12);
    EXPECT_NEAR(static_cast<double>(GetDistanceNM(origin, origin)), 0, 1e-6);

    const TQORPosition start = MakePosition(12.34L, 56.78L);
    EXPECT_EQ(GetPositionNM(start, 0, 123), start);
    EXPECT_EQ(GetPositionKm(start, 0, 45, kEarthRadius), start);
    const TQORPosition pole = MakePosition(90, 40);
    const TQORPosition fromPole = GetPositionNM(pole, 600, 180);
    EXPECT_NEAR(static_cast<double>(fromPole.Latitude), 80, 1e-9);
    EXPECT_NEAR(static_cast<double>(fromPole.Longitude), 40, 1e-9);
    EXPECT_THROW(GetPositionKm(start, 10, 0, 0), EMathError);
}

} // namespace
} // namespace qorkit
