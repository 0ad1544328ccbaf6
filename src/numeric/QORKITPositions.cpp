#include "QORKITPositions.h"

#include "QORKITConstants.h"
#include "QORKITConversion.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"

#include <cmath>

namespace qorkit {

namespace {

// Latitude and longitude in radians with the longitude taken west-positive, the form the
// navigation formulas are written in.
struct Radians {
    Extended Lat;
    Extended Lon;
};

Radians ToRadians(const TQORPosition& p) { return {Deg2Rad(p.Latitude), Deg2Rad(-p.Longitude)}; }

TQORPosition FromRadians(Extended lat, Extended lon)
{
    TQORPosition p;
    p.Latitude = Rad2Deg(lat);
    p.Longitude = Rad2Deg(-lon);
    return p;
}

// One coordinate as text with its hemisphere letter: positive, negative or none for zero.
std::string Coordinate(Extended value, std::string (*format)(Extended, std::uint8_t),
                       std::uint8_t decimals, std::string (*positive)(), std::string (*negative)())
{
    std::string text = format(std::fabs(value), decimals);
    if (value > 0)
        text += positive();
    else if (value < 0)
        text += negative();
    return text;
}

std::string PositionText(const TQORPosition& p, std::string (*format)(Extended, std::uint8_t),
                         std::uint8_t decimals)
{
    return Coordinate(p.Latitude, format, decimals, rsNorthAbbr, rsSouthAbbr) + " "
        + Coordinate(p.Longitude, format, decimals, rsEastAbbr, rsWestAbbr);
}

// Central angle between two positions, radians.
Extended CentralAngle(const TQORPosition& from, const TQORPosition& to)
{
    const Radians a = ToRadians(from);
    const Radians b = ToRadians(to);
    return QORArcCos(QORSin(a.Lat) * QORSin(b.Lat)
                     + QORCos(a.Lat) * QORCos(b.Lat) * QORCos(a.Lon - b.Lon));
}

// The position reached over the central angle d (radians) along the initial bearing.
TQORPosition Destination(const TQORPosition& from, Extended d, Extended bearing)
{
    const Radians a = ToRadians(from);
    const Extended tc = Deg2Rad(bearing);
    const Extended lat
        = QORArcSin(QORSin(a.Lat) * QORCos(d) + QORCos(a.Lat) * QORSin(d) * QORCos(tc));
    // From a pole every way leads along the start meridian. Elsewhere the change of longitude
    // comes from the start latitude: sin(dlon) = sin(tc) sin(d) / cos(lat1). This is the
    // short-distance form kept on purpose: exact along meridians and the equator, and within
    // metres over the distances a dead-reckoning step covers.
    Extended lon = a.Lon;
    if (!FloatIsZero(QORCos(a.Lat)))
        lon = QORMod(a.Lon - QORArcSin(QORSin(tc) * QORSin(d) / QORCos(a.Lat)) + QORPi, TwoPi)
            - QORPi;
    return FromRadians(lat, lon);
}

} // namespace

TQORPosition MakePosition(Extended Latitude, Extended Longitude)
{
    if (!std::isfinite(Latitude) || std::fabs(Latitude) > 90)
        throw EConvertError(rsInvalidLatitude());
    if (!std::isfinite(Longitude) || std::fabs(Longitude) > 180)
        throw EConvertError(rsInvalidLongitude());
    TQORPosition p;
    p.Latitude = QORNorthPositive ? Latitude : -Latitude;
    p.Longitude = QOREastPositive ? Longitude : -Longitude;
    return p;
}

Extended GetLatitude(const TQORPosition& Position)
{
    return QORNorthPositive ? Position.Latitude : -Position.Latitude;
}

Extended GetLongitude(const TQORPosition& Position)
{
    return QOREastPositive ? Position.Longitude : -Position.Longitude;
}

std::string Position2Str(const TQORPosition& Position, std::uint8_t Decimals)
{
    return PositionText(Position, Float2EStr, Decimals);
}

std::string Position2DMSStr(const TQORPosition& Position, std::uint8_t Decimals)
{
    return PositionText(Position, Angle2Str, Decimals);
}

Extended GetBearing(const TQORPosition& From, const TQORPosition& To)
{
    const Radians a = ToRadians(From);
    const Radians b = ToRadians(To);
    const Extended y = QORSin(a.Lon - b.Lon) * QORCos(b.Lat);
    const Extended x
        = QORCos(a.Lat) * QORSin(b.Lat) - QORSin(a.Lat) * QORCos(b.Lat) * QORCos(a.Lon - b.Lon);
    return Rad2Deg(QORMod(QORArcTan(y, x), TwoPi));
}

Extended GetDistanceNM(const TQORPosition& From, const TQORPosition& To)
{
    // One nautical mile is one minute of arc of a great circle.
    return CentralAngle(From, To) / OneMinute;
}

Extended GetDistanceKm(const TQORPosition& From, const TQORPosition& To, double Radius)
{
    return CheckFloat(CentralAngle(From, To) * Radius * 0.001L);
}

Extended GetDistanceMiles(const TQORPosition& From, const TQORPosition& To, double Radius)
{
    return DistKm2Miles(GetDistanceKm(From, To, Radius));
}

TQORPosition GetPositionNM(const TQORPosition& From, Extended Distance, Extended Bearing)
{
    if (FloatIsZero(Distance))
        return From;
    return Destination(From, Distance * OneMinute, Bearing);
}

TQORPosition GetPositionKm(const TQORPosition& From, Extended Distance, Extended Bearing,
                           double Radius)
{
    if (FloatIsZero(Distance))
        return From;
    if (Radius == 0)
        throw EZeroDivide(rsDivideByZero());
    return Destination(From, CheckFloat(Distance * 1000 / Radius), Bearing);
}

TQORPosition GetPositionMiles(const TQORPosition& From, Extended Distance, Extended Bearing,
                              double Radius)
{
    return GetPositionKm(From, DistMiles2Km(Distance), Bearing, Radius);
}

} // namespace qorkit
