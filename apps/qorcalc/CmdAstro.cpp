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

// Reads exactly `count` digits at `pos` into `value`.
bool Digits(const std::string& text, std::size_t pos, std::size_t count, int& value)
{
    if (pos + count > text.size())
        return false;
    value = 0;
    for (std::size_t i = pos; i < pos + count; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return false;
        value = value * 10 + (text[i] - '0');
    }
    return true;
}

// "YYYY-MM-DD" or "YYYY-MM-DDTHH:MM", universal time; the date and the time are checked here
// so that a mistake is named ("invalid time 25:00") rather than met deep inside.
TDateTime ParseDate(const std::string& text)
{
    int y = 0, mo = 0, d = 0, h = 0, mi = 0;
    const bool dateShape = Digits(text, 0, 4, y) && text.size() >= 10 && text[4] == '-'
        && Digits(text, 5, 2, mo) && text[7] == '-' && Digits(text, 8, 2, d);
    const bool timeShape = text.size() == 16 && text[10] == 'T' && Digits(text, 11, 2, h)
        && text[13] == ':' && Digits(text, 14, 2, mi);
    if (!dateShape || (text.size() != 10 && !timeShape))
        throw qorcalc::UsageError("expected a date YYYY-MM-DD[THH:MM], got " + text);
    static constexpr int kDaysIn[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
    if (y < 1 || mo < 1 || mo > 12 || d < 1 || d > kDaysIn[mo - 1] || (mo == 2 && d == 29 && !leap))
        throw qorcalc::UsageError("invalid date " + text.substr(0, 10));
    if (h > 23 || mi > 59)
        throw qorcalc::UsageError("invalid time " + text.substr(11));
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
    std::string latText, lonText, offsetText = "0";
    const bool hasLat = qorcalc::TakeOption(args, "--lat", latText);
    const bool hasLon = qorcalc::TakeOption(args, "--lon", lonText);
    qorcalc::TakeOption(args, "--offset", offsetText);
    qorcalc::EndOptions(args);
    if (args.size() != 1) {
        err << "qorcalc astro: expected one DATE (see qorcalc astro --help)\n";
        return 2;
    }
    if (hasLat != hasLon)
        throw qorcalc::UsageError("--lat and --lon name a place together; give both");
    const bool place = hasLat;
    const TDateTime dt = ParseDate(args[0]);
    const Extended lat = place ? qorcalc::ParseNumberIn(latText, "--lat", -90, 90) : 0;
    const Extended lon = place ? qorcalc::ParseNumberIn(lonText, "--lon", -180, 180) : 0;
    const Extended offset = qorcalc::ParseNumberIn(offsetText, "--offset", -24, 24);
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
     "(north, east positive: --lat -90..90 and --lon -180..180 go together; times in UT + "
     "offset, -24..24 hours)",
     RunAstro});

} // namespace
