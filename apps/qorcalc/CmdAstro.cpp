// qorcalc astro: Julian date, sidereal time, the sun's position and its rising and setting for a
// date and a place.
#include "QORKITAstronomy.h"
#include "QORKITDateTime.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <cmath>
#include <cstdio>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using qorkit::Extended;
using qorkit::TDateTime;

// "YYYY-MM-DD" or "YYYY-MM-DDTHH:MM", universal time.
TDateTime ParseDate(const std::string& text)
{
    int y = 0, mo = 0, d = 0, h = 0, mi = 0;
    char tail = 0;
    const int n = std::sscanf(text.c_str(), "%d-%d-%dT%d:%d%c", &y, &mo, &d, &h, &mi, &tail);
    if (n != 3 && n != 5)
        throw std::invalid_argument("expected a date YYYY-MM-DD[THH:MM], got " + text);
    return qorkit::EncodeDate(y, mo, d) + qorkit::EncodeTime(h, mi, 0, 0);
}

std::string Clock(TDateTime dt)
{
    int h = 0, m = 0, s = 0, ms = 0;
    qorkit::DecodeTime(dt, h, m, s, ms);
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", h, m, s);
    return text;
}

std::string Hours(const qorkit::TQORTime& t)
{
    char text[24];
    std::snprintf(text, sizeof text, "%02dh %02dm %05.2fs", t.Hours, t.Minutes, t.Seconds);
    return text;
}

const char* const kDays[]
    = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

int RunAstro(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    std::string latText = "0", lonText = "0", offsetText = "0";
    const bool place
        = qorcalc::TakeOption(args, "--lat", latText) | qorcalc::TakeOption(args, "--lon", lonText);
    qorcalc::TakeOption(args, "--offset", offsetText);
    if (args.size() != 1) {
        err << "qorcalc astro: expected one DATE (see qorcalc astro --help)\n";
        return 2;
    }
    const TDateTime dt = ParseDate(args[0]);
    const Extended lat = qorkit::Str2Float(latText);
    const Extended lon = qorkit::Str2Float(lonText);
    const Extended offset = qorkit::Str2Float(offsetText);
    const double jd = qorkit::DateTime2Julian(dt);
    out << "julian date     " << qorkit::Float2EStr(jd, 5) << "   MJD "
        << qorkit::Float2EStr(qorkit::Julian2ModifiedJulian(jd), 5) << "   "
        << kDays[qorkit::Julian2QORDayOfWeek(qorkit::DateTime2Julian(std::floor(dt)))] << '\n';
    out << "sidereal time   GST " << Hours(qorkit::UT2GST(dt));
    if (place)
        out << "   LST "
            << Hours(qorkit::QORTime2LST(qorkit::DateTime2QORTime(dt, qorkit::ttUniversal, 0),
                                         static_cast<double>(lon)));
    out << '\n';
    Extended ra = 0, dec = 0;
    qorkit::Sun_Position(dt, ra, dec);
    out << "sun             RA " << qorkit::Float2EStr(ra, 4) << " h   dec "
        << qorkit::Float2EStr(dec, 4) << " deg   "
        << qorkit::Float2EStr(qorkit::Sun_DistanceAU(dt), 6) << " AU   diameter "
        << qorkit::Float2EStr(qorkit::Sun_AngularDiameter(dt), 4) << " deg\n";
    if (!place)
        return 0;
    const qorkit::TQORPosition where {lat, lon};
    TDateTime rise = 0, set = 0;
    switch (qorkit::Sun_RiseSet(dt, where, offset, rise, set)) {
    case qorkit::sdAlwaysUp:
        out << "sun rise/set    above the horizon all day\n";
        break;
    case qorkit::sdAlwaysDown:
        out << "sun rise/set    below the horizon all day\n";
        break;
    default:
        out << "sun rise/set    " << Clock(rise) << " / " << Clock(set) << "  (UT"
            << (offset < 0 ? "" : "+") << qorkit::Float2EStr2(offset, 2) << ")\n";
    }
    return 0;
}

const bool registered = qorcalc::RegisterCommand(
    {"astro", "DATE[THH:MM] [--lat DEG --lon DEG] [--offset HOURS]",
     "Julian date, sidereal time, the sun's position, and sunrise and sunset at a place "
     "(north, east positive; times in UT + offset)",
     RunAstro});

} // namespace
