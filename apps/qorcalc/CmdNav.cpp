// qorcalc nav: great-circle bearing and distance between two positions, or the position
// reached from one along a bearing.
#include "QORKITPositions.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <ostream>
#include <string>
#include <vector>

namespace {

using qorkit::Extended;
using qorkit::TQORPosition;

constexpr double kEarthRadius = 6371000; // mean radius, metres

int RunNav(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    std::string unit = "nm", radiusText, bearingText, distanceText;
    qorcalc::TakeOption(args, "--unit", unit);
    const double radius = qorcalc::TakeOption(args, "--radius", radiusText)
        ? static_cast<double>(qorkit::Str2Float(radiusText))
        : kEarthRadius;
    const bool toward = qorcalc::TakeOption(args, "--bearing", bearingText);
    const bool far = qorcalc::TakeOption(args, "--distance", distanceText);
    if (unit != "nm" && unit != "km" && unit != "mi") {
        err << "qorcalc nav: --unit is nm, km or mi\n";
        return 2;
    }
    if (args.size() != (toward ? 2u : 4u) || toward != far) {
        err << "qorcalc nav: expected LAT1 LON1 LAT2 LON2, or LAT LON --bearing B --distance D\n";
        return 2;
    }
    const TQORPosition from
        = qorkit::MakePosition(qorkit::Str2Float(args[0]), qorkit::Str2Float(args[1]));
    out << "from      " << qorkit::Position2Str(from, 4) << '\n';
    if (toward) {
        const Extended bearing = qorkit::Str2Float(bearingText);
        const Extended distance = qorkit::Str2Float(distanceText);
        const TQORPosition to = unit == "nm" ? qorkit::GetPositionNM(from, distance, bearing)
            : unit == "km" ? qorkit::GetPositionKm(from, distance, bearing, radius)
                           : qorkit::GetPositionMiles(from, distance, bearing, radius);
        out << "reaches   " << qorkit::Position2Str(to, 4) << "   "
            << qorkit::Position2DMSStr(to, 1) << '\n';
        return 0;
    }
    const TQORPosition to
        = qorkit::MakePosition(qorkit::Str2Float(args[2]), qorkit::Str2Float(args[3]));
    const Extended distance = unit == "nm" ? qorkit::GetDistanceNM(from, to)
        : unit == "km"                     ? qorkit::GetDistanceKm(from, to, radius)
                                           : qorkit::GetDistanceMiles(from, to, radius);
    out << "to        " << qorkit::Position2Str(to, 4) << '\n'
        << "bearing   " << qorkit::Float2EStr(qorkit::GetBearing(from, to), 2) << " deg\n"
        << "distance  " << qorkit::Float2EStr(distance, 2) << ' ' << unit << '\n';
    return 0;
}

const bool registered = qorcalc::RegisterCommand(
    {"nav",
     "LAT1 LON1 LAT2 LON2 | LAT LON --bearing DEG --distance D  [--unit nm|km|mi] [--radius M]",
     "great-circle bearing and distance, or the destination along a bearing (north, east "
     "positive)",
     RunNav});

} // namespace
