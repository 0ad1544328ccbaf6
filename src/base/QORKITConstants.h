// Mathematical and physical constants, to full extended precision.
//
// Each constant names its source. Lengths are in metres, speeds in metres per second,
// angles in radians unless the name says otherwise.
#pragma once

#include "QORKITTypes.h"

namespace qorkit {

// ---- Mathematics -----------------------------------------------------------------------------
inline constexpr Extended QORPi = 3.14159265358979323846264338327950288L;
inline constexpr Extended TwoPi = 6.28318530717958647692528676655900577L;
inline constexpr Extended QORe = 2.71828182845904523536028747135266250L;
// Euler-Mascheroni constant.
inline constexpr Extended QORGamma = 0.57721566490153286060651209008240243L;
// (1 + sqrt 5) / 2.
inline constexpr Extended GoldenRatio = 1.61803398874989484820458683436563812L;
// One degree, one minute of arc, in radians; one radian in degrees.
inline constexpr Extended OneDegree = QORPi / 180.0L;
inline constexpr Extended OneMinute = QORPi / 10800.0L;
inline constexpr Extended OneRadian = 180.0L / QORPi;

// ---- Physics ---------------------------------------------------------------------------------
// Speed of light in vacuum, exact by the SI definition of the metre (m/s).
inline constexpr Extended SpeedOfLight = 299792458.0L;
// Astronomical unit, exact by IAU 2012 Resolution B2 (m).
inline constexpr Extended AstroUnit = 149597870700.0L;
// Parsec: one astronomical unit subtending one second of arc, IAU 2015 Resolution B2 (m):
// AU * 648000 / pi.
inline constexpr Extended Parsec = AstroUnit * 648000.0L / QORPi;
// Light year: light travel in a Julian year (365.25 days of 86400 s), IAU Style Manual (m).
inline constexpr Extended LightYear = SpeedOfLight * 365.25L * 86400.0L;
// Light travel in a 365-day year, and in a day, hour, minute, second, millisecond and
// microsecond (m).
inline constexpr Extended LightYear365 = SpeedOfLight * 365.0L * 86400.0L;
inline constexpr Extended LightDay = SpeedOfLight * 86400.0L;
inline constexpr Extended LightHour = SpeedOfLight * 3600.0L;
inline constexpr Extended LightMinute = SpeedOfLight * 60.0L;
inline constexpr Extended LightSecond = SpeedOfLight;
inline constexpr Extended LightMillisecond = SpeedOfLight / 1000.0L;
inline constexpr Extended LightMicrosecond = SpeedOfLight / 1000000.0L;
// Planck length, CODATA 2018 recommended value (m).
inline constexpr Extended PlanckLength = 1.616255e-35L;
// Elementary charge, exact in the 2019 SI (C).
inline constexpr Extended ElemCharge = 1.602176634e-19L;
// Avogadro constant, exact in the 2019 SI (1/mol).
inline constexpr Extended Avogadro = 6.02214076e23L;
// Speed of sound in dry air at sea level (15 degrees C) in the ICAO Standard Atmosphere,
// Doc 7488: sqrt(1.4 * 287.05287 J/(kg K) * 288.15 K), tabulated as 340.294 (m/s).
inline constexpr Extended MachOne = 340.294L;
// Absolute zero in degrees Celsius and Fahrenheit (exact by definition).
inline constexpr Extended AbsoluteZeroC = -273.15L;
inline constexpr Extended AbsoluteZeroF = -459.67L;

// ---- Unit anchors ----------------------------------------------------------------------------
// US survey foot 1200/3937 m, inch 1/12 of it, mile 5280 of it (NIST SP 811, appendix B).
inline constexpr Extended OneFootUSSurvey = 1200.0L / 3937.0L;
inline constexpr Extended OneInchUSSurvey = OneFootUSSurvey / 12.0L;
inline constexpr Extended OneMileUSSurvey = OneFootUSSurvey * 5280.0L;
// UK (imperial) pint in litres: 4.54609 L / 8, exact by the Weights and Measures Act 1985.
inline constexpr Extended OnePint = 0.56826125L;
// International Table calorie in joules, exact (NIST SP 811).
inline constexpr Extended OneCalorie = 4.1868L;
// Decays per second of one becquerel.
inline constexpr Extended OneBecquerel = 1.0L;

// ---- The sun, for rising and setting (degrees) -------------------------------------------------
// Atmospheric refraction at the horizon, 34 minutes of arc (Explanatory Supplement to the
// Astronomical Almanac).
inline constexpr Extended Sun_Refraction = 34.0L / 60.0L;
// Horizontal parallax of the sun, 8.794148 seconds of arc (IAU 1976 system of constants).
inline constexpr Extended Sun_Parallax = 8.794148L / 3600.0L;

} // namespace qorkit
