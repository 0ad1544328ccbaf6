// qorcalc nav: great-circle bearing and distance between two positions, or the position
// reached from one along a bearing.
#include "QORKITConstants.h"
#include "QORKITConversion.h"
#include "QORKITExceptions.h"
#include "QORKITPositions.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

namespace {

using qorkit::Extended;
using qorkit::TQORPosition;

constexpr double kEarthRadius = 6371000; // mean radius, metres

struct Place {
    Extended Latitude;
    Extended Longitude;
};

Place ParsePlace(const std::string& lat, const std::string& lon, const char* which)
{
    return {qorcalc::ParseNumberIn(lat, std::string(which) + " latitude", -90, 90),
            qorcalc::ParseNumberIn(lon, std::string(which) + " longitude", -180, 180)};
}

// Half the circumference of the sphere, in the unit of the distances.
Extended AntipodeDistance(const std::string& unit, double radius)
{
    const Extended km = qorkit::QORPi * radius / 1000;
    return unit == "nm" ? 10800 : unit == "km" ? km : qorkit::DistKm2Miles(km);
}

int RunNav(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    std::string unit = "nm", radiusText, bearingText, distanceText;
    qorcalc::TakeOption(args, "--unit", unit);
    const bool hasRadius = qorcalc::TakeOption(args, "--radius", radiusText);
    const bool toward = qorcalc::TakeOption(args, "--bearing", bearingText);
    const bool far = qorcalc::TakeOption(args, "--distance", distanceText);
    qorcalc::EndOptions(args);
    if (unit != "nm" && unit != "km" && unit != "mi") {
        err << "qorcalc nav: --unit is nm, km or mi\n";
        return 2;
    }
    if (args.size() != (toward ? 2u : 4u) || toward != far) {
        err << "qorcalc nav: expected LAT1 LON1 LAT2 LON2, or LAT LON --bearing B --distance D\n";
        return 2;
    }
    double radius = kEarthRadius;
    if (hasRadius) {
        const Extended r = qorcalc::ParseNumber(radiusText, "--radius");
        if (!(r > 0))
            throw qorcalc::UsageError("--radius must be greater than 0 metres, got " + radiusText);
        radius = static_cast<double>(r);
    }
    const Place start = ParsePlace(args[0], args[1], toward ? "start" : "first");
    const TQORPosition from = qorkit::MakePosition(start.Latitude, start.Longitude);
    if (toward) {
        const Extended bearing = qorcalc::ParseNumber(bearingText, "--bearing");
        const Extended distance = qorcalc::ParseNumber(distanceText, "--distance");
        const Extended antipode = AntipodeDistance(unit, radius);
        if (std::fabs(distance) > antipode * (1 + 1e-12L))
            throw qorcalc::UsageError("destination beyond the antipode: --distance is at most "
                                      + qorkit::Float2EStr(antipode, 2) + " " + unit + ", got "
                                      + distanceText);
        TQORPosition to {};
        try {
            to = unit == "nm"  ? qorkit::GetPositionNM(from, distance, bearing)
                : unit == "km" ? qorkit::GetPositionKm(from, distance, bearing, radius)
                               : qorkit::GetPositionMiles(from, distance, bearing, radius);
        } catch (const qorkit::EMathError&) {
            // The longitude step takes an arcsine of sin(bearing) sin(distance) / cos(latitude).
            throw qorcalc::UsageError(
                "no destination for this course: from latitude "
                + qorkit::Float2EStr2(start.Latitude, 4) + " a bearing of " + bearingText + " over "
                + distanceText + " " + unit
                + " leaves the range of the great-circle step (too close to a pole)");
        }
        out << "from      " << qorkit::Position2Str(from, 4) << '\n';
        out << "reaches   " << qorkit::Position2Str(to, 4) << "   "
            << qorkit::Position2DMSStr(to, 1) << '\n';
        return 0;
    }
    const Place end = ParsePlace(args[2], args[3], "second");
    const TQORPosition to = qorkit::MakePosition(end.Latitude, end.Longitude);
    const Extended distance = unit == "nm" ? qorkit::GetDistanceNM(from, to)
        : unit == "km"                     ? qorkit::GetDistanceKm(from, to, radius)
                                           : qorkit::GetDistanceMiles(from, to, radius);
    out << "from      " << qorkit::Position2Str(from, 4) << '\n'
        << "to        " << qorkit::Position2Str(to, 4) << '\n'
        << "bearing   " << qorkit::Float2EStr(qorkit::GetBearing(from, to), 2) << " deg\n"
        << "distance  " << qorkit::Float2EStr(distance, 2) << ' ' << unit << '\n';
    return 0;
}

const bool registered = qorcalc::RegisterCommand(
    {"nav",
     "LAT1 LON1 LAT2 LON2 | LAT LON --bearing DEG --distance D  [--unit nm|km|mi] [--radius M]",
     "great-circle bearing and distance, or the destination along a bearing (north, east "
     "positive; latitudes -90..90, longitudes -180..180, --radius in metres above 0, the "
     "destination no farther than the antipode)",
     RunNav});

} // namespace
