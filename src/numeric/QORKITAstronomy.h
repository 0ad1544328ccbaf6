// Positional astronomy: Julian dates, days of the week, universal and sidereal time records,
// hour angle and right ascension, coordinate transforms, and the sun (orbit, position, distance,
// angular diameter, rising and setting).
//
// Angles are degrees, right ascension and hour angle hours, dates the host date-time (days since
// 1899-12-30). Julian dates are doubles. The sun model takes only the day of a date-time into
// account. Invalid dates raise EConvertError with rsInvalidDate; trigonometric domain faults
// raise the base EMathError kinds. No function returns NaN or infinity.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <cstdint>

namespace qorkit {

// ---- Dates ---------------------------------------------------------------------------------

// Julian date of a calendar date; Day may carry the time of day as a fraction. Dates up to
// 1582-10-04 are Julian-calendar dates, from 1582-10-15 on Gregorian ones.
QORKIT_CORE_EXPORT double DateTime2Julian(std::int32_t Year, std::int32_t Month, double Day);
QORKIT_CORE_EXPORT double DateTime2Julian(TDateTime DT);
// Calendar date of a Julian date.
QORKIT_CORE_EXPORT void Julian2DateTime(double JD, std::int32_t& Year, std::int32_t& Month,
                                        double& Day);
// As a host date-time; a year below 1 sets DT to 0 and raises EConvertError (rsInvalidDate).
QORKIT_CORE_EXPORT void Julian2DateTime(double JD, TDateTime& DT);

QORKIT_CORE_EXPORT double Julian2ModifiedJulian(double JD);
QORKIT_CORE_EXPORT double ModifiedJulian2Julian(double MJD);
QORKIT_CORE_EXPORT double DateTime2ModifiedJulian(std::int32_t Year, std::int32_t Month,
                                                  double Day);
QORKIT_CORE_EXPORT double DateTime2ModifiedJulian(TDateTime DT);
QORKIT_CORE_EXPORT void ModifiedJulian2DateTime(double MJD, std::int32_t& Year, std::int32_t& Month,
                                                double& Day);
QORKIT_CORE_EXPORT void ModifiedJulian2DateTime(double MJD, TDateTime& DT);

// Day of the week of a Julian date: 1 Sunday .. 7 Saturday. The day part is rounded, halves to
// even, so noon itself belongs to the day before or after depending on the day.
QORKIT_CORE_EXPORT int Julian2DOW(double JD);
// 0 Sunday .. 6 Saturday, by the same rule.
QORKIT_CORE_EXPORT int Julian2QORDayOfWeek(double JD);
// 1 Monday .. 7 Sunday.
QORKIT_CORE_EXPORT int Julian2ISODOW(double JD);

// ---- Time records --------------------------------------------------------------------------

// A record of the given type from a date-time; the longitude is kept for local sidereal time.
QORKIT_CORE_EXPORT TQORTime DateTime2QORTime(TDateTime DT, TQORTimeTypes TimeType,
                                             double Longitude);
// Raises EConvertError for fields outside a clock's range (a sidereal 24 h, for example).
QORKIT_CORE_EXPORT TDateTime QORTime2DateTime(const TQORTime& T);
// Hours, minutes and seconds as hours.
QORKIT_CORE_EXPORT Extended QORTime2Hrs(const TQORTime& T);

// ---- Sidereal time -------------------------------------------------------------------------
// Hour values are wrapped into the range 0 .. 24 with 24 itself kept. Where the day number
// follows the wrap, it moves opposite to the hours (one day less for each 24 h taken off):
// that bookkeeping is intended.

QORKIT_CORE_EXPORT TQORTime UT2GST(TDateTime DT);
QORKIT_CORE_EXPORT TQORTime GST2UT(TDateTime DT);
// Universal time, in hours, of a Greenwich sidereal time on the day of DT.
QORKIT_CORE_EXPORT Extended GST2UTHrs(TDateTime DT, Extended GSTHours);
QORKIT_CORE_EXPORT TQORTime LST2GST(TDateTime DT, double Longitude);
QORKIT_CORE_EXPORT TQORTime GST2LST(TDateTime DT, double Longitude);
QORKIT_CORE_EXPORT TQORTime QORTime2GST(const TQORTime& T);
QORKIT_CORE_EXPORT TQORTime QORTime2UT(const TQORTime& T);
QORKIT_CORE_EXPORT TQORTime QORTime2LST(const TQORTime& T, double Longitude);

// Hour angle of a right ascension, and back. Both add 24 h to any result below 24, so ordinary
// results lie in 24 .. 48 and RA = LST gives 24: intended, callers reduce as they need.
QORKIT_CORE_EXPORT Extended Ascension2HourAngle(Extended RA, const TQORTime& T, double Longitude);
QORKIT_CORE_EXPORT Extended Ascension2HourAngle(Extended RA, TDateTime DT, double Longitude);
QORKIT_CORE_EXPORT Extended HourAngle2Ascension(Extended HourAngle, const TQORTime& T,
                                                double Longitude);
QORKIT_CORE_EXPORT Extended HourAngle2Ascension(Extended HourAngle, TDateTime DT, double Longitude);

// ---- Coordinates ---------------------------------------------------------------------------

QORKIT_CORE_EXPORT void Equatorial2Horizon(Extended HourAngle, Extended Declination,
                                           Extended Latitude, Extended& Altitude,
                                           Extended& Azimuth);
QORKIT_CORE_EXPORT void Horizon2Equatorial(Extended Altitude, Extended Azimuth, Extended Latitude,
                                           Extended& HourAngle, Extended& Declination);
// Mean obliquity of the ecliptic on a date.
QORKIT_CORE_EXPORT Extended MeanObliquity(TDateTime DT);
// A date-time as a type of its own, for the date forms below. A date-time is a bare double, so
// with a plain TDateTime parameter the call Ecliptic2Equatorial(lon, lat, 23.44, ...) would read
// the obliquity as a date in January 1900; the date is asked for by name instead:
// Ecliptic2Equatorial(lon, lat, TQORDateTimeValue {dt}, ra, dec).
struct QORKIT_CORE_EXPORT TQORDateTimeValue {
    TDateTime Value;
};

// The forms with a number as third argument take the obliquity in degrees; those with a
// TQORDateTimeValue use the mean obliquity of that date.
QORKIT_CORE_EXPORT void Ecliptic2Equatorial(Extended Longitude, Extended Latitude,
                                            Extended Obliquity, Extended& RA,
                                            Extended& Declination);
QORKIT_CORE_EXPORT void Ecliptic2Equatorial(Extended Longitude, Extended Latitude,
                                            TQORDateTimeValue DT, Extended& RA,
                                            Extended& Declination);
QORKIT_CORE_EXPORT void Equatorial2Ecliptic(Extended RA, Extended Declination, Extended Obliquity,
                                            Extended& Longitude, Extended& Latitude);
QORKIT_CORE_EXPORT void Equatorial2Ecliptic(Extended RA, Extended Declination, TQORDateTimeValue DT,
                                            Extended& Longitude, Extended& Latitude);
QORKIT_CORE_EXPORT void Equatorial2Galactic(Extended RA, Extended Declination,
                                            Extended& GalLongitude, Extended& GalLatitude);
QORKIT_CORE_EXPORT void Galactic2Equatorial(Extended GalLongitude, Extended GalLatitude,
                                            Extended& RA, Extended& Declination);

// ---- The sun -------------------------------------------------------------------------------

QORKIT_CORE_EXPORT Extended Sun_EclipticLongitudeEpoch(TDateTime DT);
QORKIT_CORE_EXPORT Extended Sun_EclipticLongitudePerigee(TDateTime DT);
QORKIT_CORE_EXPORT Extended Sun_OrbitEccentricity(TDateTime DT);
QORKIT_CORE_EXPORT void Sun_EpochValues(TDateTime DT, Extended& EpochLongitude,
                                        Extended& PerigeeLongitude, Extended& Eccentricity);
// True anomaly in degrees, (-180, 180].
QORKIT_CORE_EXPORT Extended Sun_TrueAnomaly(TDateTime DT);
// Right ascension (hours) and declination (degrees), mean equinox of the date.
QORKIT_CORE_EXPORT void Sun_Position(TDateTime DT, Extended& RA, Extended& Declination);
QORKIT_CORE_EXPORT Extended Sun_AngularDiameter(TDateTime DT); // degrees
QORKIT_CORE_EXPORT Extended Sun_Distance(TDateTime DT); // kilometres
QORKIT_CORE_EXPORT Extended Sun_DistanceAU(TDateTime DT); // astronomical units

// What the sun does on a day at a place.
enum TQORSunDay : std::uint8_t {
    sdRiseAndSet = 0, // it rises and sets
    sdAlwaysUp = 1, // polar day: RiseTime is the start of the day, SetTime its end
    sdAlwaysDown = 2 // polar night: RiseTime and SetTime are both the start of the day
};

// Rising and setting of the sun's upper limb at Position, found on the universal-time day of DT;
// each time then has HourOffset hours added and is wrapped once into that day, so it reads as
// the caller's clock time (for places far from Greenwich it may be the event of the next or
// previous civil day). Sun_RiseSet corrects the
// geometric rising for semidiameter, refraction and parallax along the sun's path; near the
// polar circles, where the path grazes the horizon and that correction no longer holds, it
// falls back to the zenith-distance method. Sun_RiseSet2 uses the zenith distance 90.833
// degrees throughout. For a polar day or night the times are set as TQORSunDay describes.
QORKIT_CORE_EXPORT TQORSunDay Sun_RiseSet(TDateTime DT, const TQORPosition& Position,
                                          Extended HourOffset, TDateTime& RiseTime,
                                          TDateTime& SetTime);
QORKIT_CORE_EXPORT TQORSunDay Sun_RiseSet2(TDateTime DT, const TQORPosition& Position,
                                           Extended HourOffset, TDateTime& RiseTime,
                                           TDateTime& SetTime);

} // namespace qorkit
