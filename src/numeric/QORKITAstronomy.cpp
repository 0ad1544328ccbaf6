#include "QORKITAstronomy.h"

#include "QORKITConstants.h"
#include "QORKITDateTime.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"

#include <algorithm>
#include <cmath>

namespace qorkit {

namespace {

// Truncation toward zero and the remainder it leaves, as the date algorithms use them.
Extended Int(Extended x) { return std::trunc(x); }
Extended Frac(Extended x) { return x - std::trunc(x); }

// Sidereal hours per solar hour, and back.
constexpr Extended kSiderealRate = 1.002737909L;
constexpr Extended kSolarRate = 0.9972695663L;
// Sidereal hours that pass in one solar day, as the rising-and-setting interpolation uses it.
constexpr Extended kSiderealDayHours = 24.07L;
// Modified Julian dates count from this Julian date.
constexpr Extended kMjdOrigin = 2400000.5L;
// Julian date of 2000-01-01 12:00 and of 1900-01-00 12:00, the epochs of the models below.
constexpr Extended kJ2000 = 2451545.0L;
constexpr Extended kJ1900 = 2415020.0L;

// The day number of a date-time; dates outside the int32 day range are not dates.
std::int32_t DayOf(TDateTime dt)
{
    if (!std::isfinite(dt) || std::fabs(dt) >= 2.0e9)
        throw EConvertError(rsInvalidDate());
    return static_cast<std::int32_t>(std::trunc(dt));
}

std::int32_t CheckedDay(std::int64_t day)
{
    if (day < INT32_MIN || day > INT32_MAX)
        throw EOverflow(rsOverflow());
    return static_cast<std::int32_t>(day);
}

// Hours wrapped into 0 .. 24 (24 itself stays), with the count of 24 h taken off (additions
// count negative). A loop would do; the count is computed first so far-off values stay cheap.
struct WrappedHours {
    Extended Hours;
    std::int64_t Turns;
};

WrappedHours Wrap24(Extended h)
{
    CheckFloat(h);
    if (std::fabs(h) > 1.0e15L)
        throw EOverflow(rsOverflow());
    std::int64_t turns = 0;
    if (h > 24) {
        const auto n = static_cast<std::int64_t>(std::ceil(h / 24) - 1);
        h -= 24 * static_cast<Extended>(n);
        turns += n;
        for (; h > 24; ++turns)
            h -= 24;
    } else if (h < 0) {
        const auto n = static_cast<std::int64_t>(std::ceil(-h / 24));
        h += 24 * static_cast<Extended>(n);
        turns -= n;
        for (; h < 0; --turns)
            h += 24;
    }
    return {h, turns};
}

// A time record from hours that are wrapped first. With dayChange the day number follows the
// wrap the reversed way: one day less for every 24 h taken off, one more for every 24 h added.
// This is how these records have always counted; it is kept.
TQORTime MakeTime(std::int32_t day, Extended hours, TQORTimeTypes type, double longitude,
                  bool dayChange)
{
    const WrappedHours w = Wrap24(hours);
    TQORTime t;
    t.Day = dayChange ? CheckedDay(std::int64_t {day} - w.Turns) : day;
    t.Hours = static_cast<std::int32_t>(Int(w.Hours));
    const Extended minutes = Frac(w.Hours) * 60;
    t.Minutes = static_cast<std::int32_t>(Int(minutes));
    t.Seconds = static_cast<double>(Frac(minutes) * 60);
    t.Longitude = longitude;
    t.TimeType = type;
    return t;
}

// Greenwich sidereal time at 0 h universal time of a day, in hours. The T^2 term is divided by
// 3600 twice; that is how this model is defined (the term is below 0.1 s in any case).
Extended GstAtMidnight(std::int32_t day)
{
    const Extended t = (DateTime2Julian(static_cast<TDateTime>(day)) - kJ2000) / 36525;
    const Extended s = t * t * 0.093104L / 3600 + (8640184.812866L * t + 50.54841L);
    return Wrap24((s - 0.0000062L * t * t * t) / 3600 + 6.683333333333334L).Hours;
}

Extended SiderealToSolar(std::int32_t day, Extended gstHours)
{
    return Wrap24(gstHours - GstAtMidnight(day)).Hours * kSolarRate;
}

// Rounding errors may push a sine or cosine a hair past +-1; such values are the bound itself.
Extended ClampUnit(Extended x)
{
    if (std::fabs(x) > 1 && std::fabs(x) - 1 < 1.0e-12L)
        return std::copysign(Extended {1}, x);
    return x;
}

// A quotient whose divisor vanishes (the zenith, a pole) has no direction to give.
Extended Ratio(Extended num, Extended den)
{
    const Extended q = num / den;
    if (den == 0 || !std::isfinite(q))
        throw EInvalidOp(rsNotDefinedForValue());
    return q;
}

Extended ArcSinDeg(Extended x) { return QORArcSinDeg(ClampUnit(x)); }
Extended ArcCosDeg(Extended x) { return QORArcCosDeg(ClampUnit(x)); }

// Julian dates beyond any calendar the routines can count are rejected as invalid dates.
void CheckJulian(double jd)
{
    if (!std::isfinite(jd) || std::fabs(jd) >= 1.0e12)
        throw EConvertError(rsInvalidDate());
}

// Rotation of spherical coordinates (lon, lat) by the angle `tilt` about the x axis: the
// common core of the ecliptic and equatorial transforms. Returns the latitude and the y, x
// pair of the new longitude.
struct Rotated {
    Extended Latitude;
    Extended Y;
    Extended X;
};

Rotated Rotate(Extended lon, Extended lat, Extended tilt, Extended sign)
{
    Extended sinTilt = 0, cosTilt = 0, sinLon = 0, cosLon = 0;
    QORSinCosDeg(tilt, sinTilt, cosTilt);
    QORSinCosDeg(lon, sinLon, cosLon);
    const Extended sinLat = QORSinDeg(lat);
    const Extended cosLat = QORCosDeg(lat);
    const Extended latitude = ArcSinDeg(sinLat * cosTilt + sign * cosLat * sinTilt * sinLon);
    return {latitude, sinLon * cosTilt - sign * QORTanDeg(lat) * sinTilt, cosLon};
}

// ---- Rising and setting ---------------------------------------------------------------------

// Hour angle in degrees at which the sun's centre reaches the zenith distance z: cos H =
// (cos z - sin lat sin dec) / (cos lat cos dec). Out of range means it never gets there.
struct HourAngle {
    TQORSunDay Day;
    Extended Degrees;
};

HourAngle HourAngleAt(Extended cosZenith, Extended latitude, Extended declination)
{
    const Extended num = cosZenith - QORSinDeg(latitude) * QORSinDeg(declination);
    const Extended den = QORCosDeg(latitude) * QORCosDeg(declination);
    if (num - den > 1.0e-12L)
        return {sdAlwaysDown, 0};
    if (-den - num > 1.0e-12L)
        return {sdAlwaysUp, 180};
    if (den == 0) // on the horizon all day at a pole: the limb stays visible
        return {sdAlwaysUp, 180};
    return {sdRiseAndSet, QORArcCosDeg(std::clamp(num / den, Extended {-1}, Extended {1}))};
}

// The sun's coordinates on the day N and the next, the input of both rising methods.
struct SunTwoDays {
    std::int32_t N;
    Extended RA[2];
    Extended Dec[2];
    Extended Correction; // semidiameter + refraction - parallax, degrees
};

SunTwoDays SunOnDays(TDateTime dt)
{
    SunTwoDays s {};
    s.N = DayOf(dt);
    for (int i = 0; i < 2; ++i)
        Sun_Position(static_cast<TDateTime>(std::int64_t {s.N} + i), s.RA[i], s.Dec[i]);
    s.Correction
        = Sun_AngularDiameter(static_cast<TDateTime>(s.N)) / 2 + Sun_Refraction - Sun_Parallax;
    return s;
}

// Local sidereal times (hours) of rising (event 0) and setting (event 1) for each of the two
// days, at the zenith distance whose cosine is given; Day says whether they exist.
struct EventTimes {
    TQORSunDay Day;
    Extended LST[2][2]; // [event][day]
};

EventTimes SiderealEvents(const SunTwoDays& sun, Extended cosZenith, Extended latitude)
{
    EventTimes e {};
    e.Day = sdRiseAndSet;
    for (int i = 0; i < 2; ++i) {
        const HourAngle h = HourAngleAt(cosZenith, latitude, sun.Dec[i]);
        if (h.Day != sdRiseAndSet) {
            e.Day = h.Day;
            return e;
        }
        e.LST[0][i] = QORMod(sun.RA[i] - h.Degrees / 15, 24);
        e.LST[1][i] = QORMod(sun.RA[i] + h.Degrees / 15, 24);
    }
    return e;
}

// The shift of an event along the sun's path for the correction angle, in hours, or a negative
// value where the path meets the horizon at so flat an angle psi that the small-angle step does
// not hold (near the polar circles).
Extended PathShiftHours(Extended correction, Extended latitude, Extended declination)
{
    const Extended cosDec = QORCosDeg(declination);
    const Extended cosPsi = QORSinDeg(latitude) / cosDec;
    if (!std::isfinite(cosPsi) || std::fabs(cosPsi) >= 1)
        return -1;
    const Extended sinPsi = std::sqrt(1 - cosPsi * cosPsi);
    // Beyond this the step along the path is off by more than about 20 seconds (from about
    // 60 degrees of latitude in winter); the zenith-distance method takes over.
    const Extended s = QORSinDeg(correction) / sinPsi;
    if (s > 0.045L)
        return -1;
    const Extended x = QORArcSinDeg(s);
    return 240 * x / cosDec / 3600;
}

struct RiseSetRequest {
    Extended Latitude;
    Extended Longitude; // east-positive
    Extended HourOffset;
};

// Turns the sidereal events of the two days into date-times of the day N. The events are found
// on the universal-time day N (0 to 24 hours UT): each event's sidereal time is interpolated
// linearly between the two days and met by the sidereal clock inside that day. Only then is
// HourOffset added and the result wrapped once into the day, so times of places far from
// Greenwich belong to the UT day, not to the civil one. shift (hours) is taken off the rising
// and added to the setting.
void ClockTimes(const RiseSetRequest& r, const SunTwoDays& sun, const EventTimes& events,
                Extended shift, TDateTime& rise, TDateTime& set)
{
    const auto dayStart = static_cast<TDateTime>(sun.N);
    const Extended gst0 = QORTime2Hrs(UT2GST(dayStart));
    const Extended lstWindow = gst0 + r.Longitude / 15;
    TDateTime* results[2] = {&rise, &set};
    for (int event = 0; event < 2; ++event) {
        const Extended s1 = events.LST[event][0];
        Extended s2 = events.LST[event][1];
        s2 += 24 * std::nearbyint((s1 - s2) / 24); // the day-to-day step, across 0 h too
        const Extended d = s2 - s1;
        const Extended atStart = lstWindow + QORMod(s1 - lstWindow, 24);
        Extended lst = (kSiderealDayHours * atStart - lstWindow * d) / (kSiderealDayHours - d);
        lst += event == 0 ? -shift : shift;
        // Universal time of that sidereal time; it repeats every sidereal day, so take the
        // occurrence nearest the estimate from the interpolation.
        const Extended estimate = (lst - lstWindow) / 1.002738L;
        Extended hours = GST2UTHrs(dayStart, lst - r.Longitude / 15);
        const Extended siderealDay = 24 * kSolarRate;
        hours += siderealDay * std::nearbyint((estimate - hours) / siderealDay);
        hours += r.HourOffset;
        // One wrap each way, not a loop: an offset beyond a day stays outside it.
        if (hours > 24)
            hours -= 24;
        else if (hours < 0)
            hours += 24;
        *results[event] = static_cast<TDateTime>(dayStart + hours / 24);
    }
}

TQORSunDay PolarTimes(TQORSunDay day, std::int32_t n, TDateTime& rise, TDateTime& set)
{
    rise = static_cast<TDateTime>(n);
    set = day == sdAlwaysUp ? rise + 1 : rise;
    return day;
}

TQORSunDay RiseSetAtZenith(const RiseSetRequest& r, const SunTwoDays& sun, Extended zenith,
                           TDateTime& rise, TDateTime& set)
{
    const EventTimes events = SiderealEvents(sun, QORCosDeg(zenith), r.Latitude);
    if (events.Day != sdRiseAndSet)
        return PolarTimes(events.Day, sun.N, rise, set);
    ClockTimes(r, sun, events, 0, rise, set);
    return sdRiseAndSet;
}

RiseSetRequest MakeRequest(TDateTime dt, const TQORPosition& position, Extended hourOffset)
{
    DayOf(dt);
    return {CheckFloat(position.Latitude), CheckFloat(position.Longitude), CheckFloat(hourOffset)};
}

} // namespace

// ---- Dates -----------------------------------------------------------------------------------

double DateTime2Julian(std::int32_t Year, std::int32_t Month, double Day)
{
    Extended y = Year;
    Extended m = Month;
    if (Month < 3) {
        y = static_cast<Extended>(Year) - 1;
        m = static_cast<Extended>(Month) + 12;
    }
    Extended b = 0;
    // The Gregorian reform: 1582-10-15 follows 1582-10-04.
    if (Year > 1582 || (Year == 1582 && Month > 10) || (Year == 1582 && Month == 10 && Day >= 15)) {
        const Extended a = Int(y / 100);
        b = 2 - a + Int(a / 4);
    }
    const Extended c = y >= 0 ? Int(365.25L * y) : Int(365.25L * y - 0.75L);
    const Extended d = Int(30.6001L * (m + 1));
    return static_cast<double>(CheckFloat(b + c + d + Extended {Day} + 1720994.5L));
}

double DateTime2Julian(TDateTime DT)
{
    DayOf(DT);
    std::int32_t year = 0, month = 0, day = 0;
    OptDecodeDateI(DT, year, month, day);
    return DateTime2Julian(year, month, day + static_cast<double>(Frac(DT)));
}

void Julian2DateTime(double JD, std::int32_t& Year, std::int32_t& Month, double& Day)
{
    CheckJulian(JD);
    const Extended j = Extended {JD} + 0.5L;
    const Extended i = Int(j);
    const Extended f = Frac(j);
    Extended b = i;
    if (i > 2299160) {
        const Extended a = Int((i - 1867216.25L) / 36524.25L);
        b = i + 1 + a - Int(a / 4);
    }
    const Extended c = b + 1524;
    const Extended d = Int((c - 122.1L) / 365.25L);
    const Extended e = Int(365.25L * d);
    const Extended g = Int((c - e) / 30.6001L);
    Day = static_cast<double>(c - e + f - Int(30.6001L * g));
    const Extended month = g >= 13.5L ? g - 13 : g - 1;
    Month = static_cast<std::int32_t>(month);
    Year = static_cast<std::int32_t>(d - 4716 + (month < 3 ? 1 : 0));
}

void Julian2DateTime(double JD, TDateTime& DT)
{
    std::int32_t year = 0, month = 0;
    double day = 0;
    Julian2DateTime(JD, year, month, day);
    if (year < 1) {
        DT = 0;
        throw EConvertError(rsInvalidDate());
    }
    DT = EncodeDate(year, month, static_cast<int>(Int(day))) + static_cast<double>(Frac(day));
}

double Julian2ModifiedJulian(double JD) { return static_cast<double>(JD - kMjdOrigin); }
double ModifiedJulian2Julian(double MJD) { return static_cast<double>(MJD + kMjdOrigin); }

double DateTime2ModifiedJulian(std::int32_t Year, std::int32_t Month, double Day)
{
    return Julian2ModifiedJulian(DateTime2Julian(Year, Month, Day));
}

double DateTime2ModifiedJulian(TDateTime DT) { return Julian2ModifiedJulian(DateTime2Julian(DT)); }

void ModifiedJulian2DateTime(double MJD, std::int32_t& Year, std::int32_t& Month, double& Day)
{
    Julian2DateTime(ModifiedJulian2Julian(MJD), Year, Month, Day);
}

void ModifiedJulian2DateTime(double MJD, TDateTime& DT)
{
    Julian2DateTime(ModifiedJulian2Julian(MJD), DT);
}

int Julian2QORDayOfWeek(double JD)
{
    CheckJulian(JD);
    // FRAC((JD + 1.5) / 7) * 7 is the remainder of JD + 1.5 by 7; fmod gives it exactly, so the
    // noon values are true halves and round to the even neighbour as they should.
    Extended r = std::fmod(Extended {JD} + 1.5L, Extended {7});
    if (r < 0)
        r += 7;
    // Past 6.5 the rounding reaches the following Sunday.
    return static_cast<int>(std::nearbyint(r)) % 7;
}

int Julian2DOW(double JD) { return Julian2QORDayOfWeek(JD) + 1; }
int Julian2ISODOW(double JD) { return DOW2ISODOWFast(Julian2DOW(JD)); }

// ---- Time records ----------------------------------------------------------------------------

TQORTime DateTime2QORTime(TDateTime DT, TQORTimeTypes TimeType, double Longitude)
{
    TQORTime t;
    t.Day = DayOf(DT);
    int hour = 0, minute = 0, second = 0, millisecond = 0;
    DecodeTime(DT, hour, minute, second, millisecond);
    t.Hours = hour;
    t.Minutes = minute;
    t.Seconds = second + millisecond / 1000.0;
    t.Longitude = 0;
    t.TimeType = TimeType;
    if (TimeType == ttLocalSidereal)
        t.Longitude = Longitude;
    return t;
}

TDateTime QORTime2DateTime(const TQORTime& T)
{
    // Fields beyond a clock's range are left to EncodeTime to reject.
    const auto clockField = [](Extended v) {
        if (!std::isfinite(v) || std::fabs(v) > 1.0e6L)
            throw EConvertError(rsInvalidDate());
        return static_cast<int>(v);
    };
    const Extended seconds = T.Seconds;
    return EncodeTime(clockField(std::fabs(static_cast<Extended>(T.Hours))),
                      clockField(std::fabs(static_cast<Extended>(T.Minutes))),
                      clockField(Int(seconds)), clockField(std::nearbyint(Frac(seconds) * 1000)))
        + T.Day;
}

Extended QORTime2Hrs(const TQORTime& T)
{
    return CheckFloat(static_cast<Extended>(T.Hours) + static_cast<Extended>(T.Minutes) / 60
                      + Extended {T.Seconds} / 3600);
}

// ---- Sidereal time ---------------------------------------------------------------------------

TQORTime UT2GST(TDateTime DT)
{
    const std::int32_t day = DayOf(DT);
    return MakeTime(day, Frac(DT) * 24 * kSiderealRate + GstAtMidnight(day), ttGreenwichSidereal, 0,
                    false);
}

TQORTime GST2UT(TDateTime DT)
{
    const std::int32_t day = DayOf(DT);
    return MakeTime(day, SiderealToSolar(day, Frac(DT) * 24), ttUniversal, 0, false);
}

Extended GST2UTHrs(TDateTime DT, Extended GSTHours) { return SiderealToSolar(DayOf(DT), GSTHours); }

TQORTime LST2GST(TDateTime DT, double Longitude)
{
    return MakeTime(DayOf(DT), Frac(DT) * 24 - Extended {Longitude} / 15, ttGreenwichSidereal, 0,
                    true);
}

TQORTime GST2LST(TDateTime DT, double Longitude)
{
    return MakeTime(DayOf(DT), Frac(DT) * 24 + Extended {Longitude} / 15, ttLocalSidereal,
                    Longitude, true);
}

TQORTime QORTime2GST(const TQORTime& T)
{
    switch (T.TimeType) {
    case ttUniversal:
        return MakeTime(T.Day, QORTime2Hrs(T) * kSiderealRate + GstAtMidnight(T.Day),
                        ttGreenwichSidereal, 0, false);
    case ttLocalSidereal:
        return MakeTime(T.Day, QORTime2Hrs(T) - Extended {T.Longitude} / 15, ttGreenwichSidereal, 0,
                        true);
    default:
        return T;
    }
}

TQORTime QORTime2UT(const TQORTime& T)
{
    if (T.TimeType == ttUniversal)
        return T;
    const TQORTime gst = QORTime2GST(T);
    return MakeTime(gst.Day, SiderealToSolar(gst.Day, QORTime2Hrs(gst)), ttUniversal, 0, false);
}

TQORTime QORTime2LST(const TQORTime& T, double Longitude)
{
    const Extended shift = Extended {Longitude} / 15;
    switch (T.TimeType) {
    case ttGreenwichSidereal:
        return MakeTime(T.Day, QORTime2Hrs(T) + shift, ttLocalSidereal, Longitude, true);
    case ttLocalSidereal:
        return MakeTime(T.Day, shift + QORTime2Hrs(T) - Extended {T.Longitude} / 15,
                        ttLocalSidereal, Longitude, true);
    default: {
        const TQORTime gst = QORTime2GST(T);
        return MakeTime(gst.Day, QORTime2Hrs(gst) + shift, ttLocalSidereal, Longitude, true);
    }
    }
}

namespace {
Extended LocalSiderealHours(const TQORTime& T, double Longitude)
{
    return QORTime2Hrs(T.TimeType == ttLocalSidereal ? T : QORTime2LST(T, Longitude));
}

// Both directions add 24 h to any result below 24, so ordinary results lie in 24 .. 48 h. This
// is the established behaviour of these two routines and is kept; callers reduce as needed.
Extended AddDay(Extended hours)
{
    CheckFloat(hours);
    return hours < 24 ? hours + 24 : hours;
}
} // namespace

Extended Ascension2HourAngle(Extended RA, const TQORTime& T, double Longitude)
{
    return AddDay(LocalSiderealHours(T, Longitude) - RA);
}

Extended Ascension2HourAngle(Extended RA, TDateTime DT, double Longitude)
{
    return Ascension2HourAngle(RA, DateTime2QORTime(DT, ttUniversal, 0), Longitude);
}

Extended HourAngle2Ascension(Extended HourAngle, const TQORTime& T, double Longitude)
{
    return AddDay(LocalSiderealHours(T, Longitude) - HourAngle);
}

Extended HourAngle2Ascension(Extended HourAngle, TDateTime DT, double Longitude)
{
    return HourAngle2Ascension(HourAngle, DateTime2QORTime(DT, ttUniversal, 0), Longitude);
}

// ---- Coordinates -----------------------------------------------------------------------------

namespace {
// The horizon and the hour-angle systems are mirror images about the meridian: the same
// rotation by the latitude turns (angle, elevation) of one into (elevation, angle) of the
// other. Angles are measured so that sin(angle) >= 0 maps to 360 - arccos.
void SwapHorizon(Extended angle, Extended elevation, Extended latitude, Extended& outElevation,
                 Extended& outAngle)
{
    const Extended sinEl = QORSinDeg(elevation);
    const Extended sinLat = QORSinDeg(latitude);
    const Extended cosLat = QORCosDeg(latitude);
    const Extended sinOut = sinEl * sinLat + QORCosDeg(elevation) * cosLat * QORCosDeg(angle);
    const Extended out = ArcSinDeg(sinOut);
    Extended a = ArcCosDeg(Ratio(sinEl - sinLat * sinOut, QORCosDeg(out) * cosLat));
    if (QORSinDeg(angle) >= 0)
        a = 360 - a;
    outElevation = out;
    outAngle = a;
}
} // namespace

void Equatorial2Horizon(Extended HourAngle, Extended Declination, Extended Latitude,
                        Extended& Altitude, Extended& Azimuth)
{
    SwapHorizon(HourAngle * 15, Declination, Latitude, Altitude, Azimuth);
}

void Horizon2Equatorial(Extended Altitude, Extended Azimuth, Extended Latitude, Extended& HourAngle,
                        Extended& Declination)
{
    Extended h = 0;
    SwapHorizon(Azimuth, Altitude, Latitude, Declination, h);
    HourAngle = h / 15;
}

Extended MeanObliquity(TDateTime DT)
{
    const Extended t = (DateTime2Julian(DT) - kJ2000) / 36525;
    return 23.439292L - (46.815L * t + 0.0006L * t * t - 0.00181L * t * t * t) / 3600;
}

void Ecliptic2Equatorial(Extended Longitude, Extended Latitude, Extended Obliquity, Extended& RA,
                         Extended& Declination)
{
    const Rotated r = Rotate(Longitude, Latitude, Obliquity, 1);
    RA = AdjustAngleDegree(QORArcTanDeg(r.Y, r.X)) / 15;
    Declination = r.Latitude;
}

void Ecliptic2Equatorial(Extended Longitude, Extended Latitude, TQORDateTimeValue DT, Extended& RA,
                         Extended& Declination)
{
    Ecliptic2Equatorial(Longitude, Latitude, MeanObliquity(DT.Value), RA, Declination);
}

void Equatorial2Ecliptic(Extended RA, Extended Declination, Extended Obliquity, Extended& Longitude,
                         Extended& Latitude)
{
    const Rotated r = Rotate(RA * 15, Declination, Obliquity, -1);
    Longitude = AdjustAngleDegree(QORArcTanDeg(r.Y, r.X));
    Latitude = r.Latitude;
}

void Equatorial2Ecliptic(Extended RA, Extended Declination, TQORDateTimeValue DT,
                         Extended& Longitude, Extended& Latitude)
{
    Equatorial2Ecliptic(RA, Declination, MeanObliquity(DT.Value), Longitude, Latitude);
}

// The galactic pole lies at RA 192.25, declination 27.4 (B1950); the ascending node of the
// galactic plane at galactic longitude 33.
void Equatorial2Galactic(Extended RA, Extended Declination, Extended& GalLongitude,
                         Extended& GalLatitude)
{
    Extended sinA = 0, cosA = 0, sinP = 0, cosP = 0;
    QORSinCosDeg(RA * 15 - 192.25L, sinA, cosA);
    QORSinCosDeg(27.4L, sinP, cosP);
    const Extended sinDec = QORSinDeg(Declination);
    const Extended cosDec = QORCosDeg(Declination);
    const Extended sinB = cosDec * cosP * cosA + sinDec * sinP;
    const Extended b = ArcSinDeg(sinB);
    const Extended y = sinDec - sinB * sinP;
    const Extended x = cosDec * sinA * cosP;
    GalLongitude = AdjustAngleDegree(QORArcTanDeg(y, x) + 33);
    GalLatitude = b;
}

void Galactic2Equatorial(Extended GalLongitude, Extended GalLatitude, Extended& RA,
                         Extended& Declination)
{
    Extended sinA = 0, cosA = 0, sinP = 0, cosP = 0;
    QORSinCosDeg(GalLongitude - 33, sinA, cosA);
    QORSinCosDeg(27.4L, sinP, cosP);
    const Extended sinB = QORSinDeg(GalLatitude);
    const Extended cosB = QORCosDeg(GalLatitude);
    const Extended dec = ArcSinDeg(cosB * cosP * sinA + sinB * sinP);
    const Extended y = cosB * cosA;
    const Extended x = sinB * cosP - cosB * sinP * sinA;
    RA = AdjustAngleDegree(QORArcTanDeg(y, x) + 192.25L) / 15;
    Declination = dec;
}

// ---- The sun ---------------------------------------------------------------------------------

namespace {
// Julian centuries from 1900-01-00 12:00 to 0 h of the day of DT: the sun's elements change
// once a day, whatever the time.
Extended SunCenturies(TDateTime dt)
{
    return (DateTime2Julian(static_cast<TDateTime>(DayOf(dt))) - kJ1900) / 36525;
}

// Kepler's equation E - e sin E = M by Newton steps from E = M. The loop stops as soon as the
// signed residual is at most 1e-6, so a negative first residual leaves E = M: this is the
// published behaviour of the sun model here and is kept.
Extended SolveKepler(Extended e, Extended m)
{
    Extended ea = m;
    for (int pass = 0; pass < 101; ++pass) {
        const Extended d = ea - e * QORSin(ea) - m;
        if (d <= 0.000001L)
            break;
        ea -= d / (1 - e * QORCos(ea));
    }
    return ea;
}

// (1 + e cos v) / (1 - e^2): the inverse of the sun's distance in semi-major axes.
Extended DistanceFactor(TDateTime dt)
{
    const Extended e = Sun_OrbitEccentricity(dt);
    return (1 + e * QORCosDeg(Sun_TrueAnomaly(dt))) / (1 - e * e);
}
} // namespace

Extended Sun_EclipticLongitudeEpoch(TDateTime DT)
{
    const Extended t = SunCenturies(DT);
    return AdjustAngleDegree(279.6966778L + 36000.76892L * t + 0.0003025L * t * t);
}

Extended Sun_EclipticLongitudePerigee(TDateTime DT)
{
    const Extended t = SunCenturies(DT);
    return AdjustAngleDegree(281.2208444L + 1.719175L * t + 0.000452778L * t * t);
}

Extended Sun_OrbitEccentricity(TDateTime DT)
{
    const Extended t = SunCenturies(DT);
    return 0.01675104L - 0.0000418L * t - 0.000000126L * t * t;
}

void Sun_EpochValues(TDateTime DT, Extended& EpochLongitude, Extended& PerigeeLongitude,
                     Extended& Eccentricity)
{
    EpochLongitude = Sun_EclipticLongitudeEpoch(DT);
    PerigeeLongitude = Sun_EclipticLongitudePerigee(DT);
    Eccentricity = Sun_OrbitEccentricity(DT);
}

Extended Sun_TrueAnomaly(TDateTime DT)
{
    Extended epoch = 0, perigee = 0, e = 0;
    Sun_EpochValues(DT, epoch, perigee, e);
    const Extended m = Deg2Rad(AdjustAngleDegree(epoch - perigee));
    const Extended ea = SolveKepler(e, m);
    const Extended tanHalf = std::sqrt((1 + e) / (1 - e)) * QORTan(ea / 2);
    return Rad2Deg(2 * QORArcTan(tanHalf));
}

void Sun_Position(TDateTime DT, Extended& RA, Extended& Declination)
{
    const Extended longitude
        = AdjustAngleDegree(Sun_TrueAnomaly(DT) + Sun_EclipticLongitudePerigee(DT));
    Ecliptic2Equatorial(longitude, Extended {0}, MeanObliquity(DT), RA, Declination);
}

Extended Sun_AngularDiameter(TDateTime DT) { return 0.533128L * DistanceFactor(DT); }
Extended Sun_Distance(TDateTime DT) { return 149598500 / DistanceFactor(DT); }
Extended Sun_DistanceAU(TDateTime DT) { return Sun_Distance(DT) * 1000 / AstroUnit; }

TQORSunDay Sun_RiseSet(TDateTime DT, const TQORPosition& Position, Extended HourOffset,
                       TDateTime& RiseTime, TDateTime& SetTime)
{
    const RiseSetRequest r = MakeRequest(DT, Position, HourOffset);
    const SunTwoDays sun = SunOnDays(DT);
    // The geometric rising and setting of the centre first, then the shift along the path.
    const EventTimes events = SiderealEvents(sun, 0, r.Latitude);
    if (events.Day == sdRiseAndSet) {
        const Extended shift
            = PathShiftHours(sun.Correction, r.Latitude, (sun.Dec[0] + sun.Dec[1]) / 2);
        if (shift >= 0) {
            ClockTimes(r, sun, events, shift, RiseTime, SetTime);
            return sdRiseAndSet;
        }
    }
    // Near the polar circles: the same correction as a zenith distance.
    return RiseSetAtZenith(r, sun, 90 + sun.Correction, RiseTime, SetTime);
}

TQORSunDay Sun_RiseSet2(TDateTime DT, const TQORPosition& Position, Extended HourOffset,
                        TDateTime& RiseTime, TDateTime& SetTime)
{
    return RiseSetAtZenith(MakeRequest(DT, Position, HourOffset), SunOnDays(DT), 90.833L, RiseTime,
                           SetTime);
}

} // namespace qorkit
