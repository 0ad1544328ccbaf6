// Positions on the earth's surface: construction with range checks, the caller's sign
// convention, text forms, and great-circle navigation (initial bearing, distance, and the
// position reached along a bearing) in nautical miles, kilometres or statute miles.
//
// A TQORPosition always stores north- and east-positive degrees. QORNorthPositive and
// QOREastPositive (QORKITSettings.h) say how callers give and receive latitudes and longitudes.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <cstdint>
#include <string>

namespace qorkit {

// Raises EConvertError with rsInvalidLatitude when |Latitude| > 90 (checked first), with
// rsInvalidLongitude when |Longitude| > 180.
QORKIT_CORE_EXPORT TQORPosition MakePosition(Extended Latitude, Extended Longitude);
QORKIT_CORE_EXPORT Extended GetLatitude(const TQORPosition& Position);
QORKIT_CORE_EXPORT Extended GetLongitude(const TQORPosition& Position);

// "51.48N 0.00W": degrees of the stored values with hemisphere letters (none for exactly 0).
QORKIT_CORE_EXPORT std::string Position2Str(const TQORPosition& Position, std::uint8_t Decimals);
// The same with degrees, minutes and seconds.
QORKIT_CORE_EXPORT std::string Position2DMSStr(const TQORPosition& Position, std::uint8_t Decimals);

// Initial great-circle bearing in degrees, 0 up to 360.
QORKIT_CORE_EXPORT Extended GetBearing(const TQORPosition& From, const TQORPosition& To);
QORKIT_CORE_EXPORT Extended GetDistanceNM(const TQORPosition& From, const TQORPosition& To);
// Radius is the earth's radius in metres.
QORKIT_CORE_EXPORT Extended GetDistanceKm(const TQORPosition& From, const TQORPosition& To,
                                          double Radius);
QORKIT_CORE_EXPORT Extended GetDistanceMiles(const TQORPosition& From, const TQORPosition& To,
                                             double Radius);

// The position reached from From along the initial Bearing (degrees) over Distance. The
// change of longitude uses the short-distance (dead-reckoning) form: exact along meridians and
// the equator, close for steps of a few hundred miles, and an EInvalidOp when a long step off
// the equator leaves that form's range (|sin(bearing) sin(distance)| > cos(start latitude)).
QORKIT_CORE_EXPORT TQORPosition GetPositionNM(const TQORPosition& From, Extended Distance,
                                              Extended Bearing);
QORKIT_CORE_EXPORT TQORPosition GetPositionKm(const TQORPosition& From, Extended Distance,
                                              Extended Bearing, double Radius);
QORKIT_CORE_EXPORT TQORPosition GetPositionMiles(const TQORPosition& From, Extended Distance,
                                                 Extended Bearing, double Radius);

} // namespace qorkit
