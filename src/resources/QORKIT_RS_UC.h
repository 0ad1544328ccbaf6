// Texts of unit conversion: the names of the quantities and of their units, the unused names of
// the thermal-conductivity units, and the messages of the conversion routines.
//
// The unit names are kept as one list per quantity, X(member, "name"), in ordinal order. The
// conversion module builds its enumerations and names arrays from the same lists, so a member and
// its name cannot drift apart. Every name is a resource string: rsName_<member>() returns the
// current translation.
#pragma once

#include "QORKITResource.h"
#include "qorkit_core_export.h"

#include <span>
#include <string>

namespace qorkit {

// clang-format off
// TQORConvType, in ordinal order.
#define QORKIT_UC_CONV_NAMES(X) \
    X(ectTemperature, "Temperature") \
    X(ectDistance, "Distance (Length)") \
    X(ectMass, "Mass") \
    X(ectArea, "Area") \
    X(ectVolume, "Volume") \
    X(ectPressure, "Pressure") \
    X(ectVelocity, "Velocity") \
    X(ectAcceleration, "Acceleration") \
    X(ectForce, "Force") \
    X(ectEnergy, "Energy") \
    X(ectPowerConv, "Power") \
    X(ectFuelConsumption, "Fuel Consumption") \
    X(ectFlow, "Flow (Liquid)") \
    X(ectFlowMass, "Flow (Mass)") \
    X(ectTorque, "Torque") \
    X(ectRadioactivity, "Radioactivity") \
    X(ectAngles, "Angle") \
    X(ectIllumination, "Illumination (Brightness)") \
    X(ectLuminous, "Luminous Intensity") \
    X(ectLuminance, "Luminance") \
    X(ectLumFlux, "Luminous Flux") \
    X(ectAngVel, "Angular Velocity") \
    X(ectDensity, "Density") \
    X(ectTime, "Time") \
    X(ectComputer, "Computer Storage") \
    X(ectDataRate, "Data Rate") \
    X(ectAngAccel, "Angular Acceleration") \
    X(ectVisDyn, "Viscosity (Dynamic)") \
    X(ectVisKin, "Viscosity (Kinematic)") \
    X(ectElCharge, "Electric Charge") \
    X(ectCurrent, "Electric Current") \
    X(ectQuantity, "Quantity") \
    X(ectMagneticFlux, "Magnetic Flux") \
    X(ectMagneticFluxDensity, "Magnetic Flux Density") \
    X(ectRadiationAbsorption, "Radiation Absorption") \
    X(ectRadiationDose, "Radiation Dose") \
    X(ectThermalConductivity, "Thermal Conductivity") \
    X(ectMagneticFieldStrength, "Magnetic Field Strength")

// TQORQuantityType, in ordinal order.
#define QORKIT_UC_QUANTITY_NAMES(X) \
    X(eqtUnits, "Units") \
    X(eqtPairs, "Pairs") \
    X(eqtCouples, "Couples") \
    X(eqtDozens, "Dozens") \
    X(eqtDozensBakers, "Dozens (Baker's)") \
    X(eqtDozensMetric, "Dozens (Metric)") \
    X(eqtScores, "Scores") \
    X(eqtGross, "Gross") \
    X(eqtGreatGross, "Great Gross") \
    X(eqtBraces, "Braces") \
    X(eqtDoubles, "Doubles") \
    X(eqtTriples, "Triples") \
    X(eqtTrebles, "Trebles") \
    X(eqtCenturies, "Centuries") \
    X(eqtHalfCenturies, "Half Centuries") \
    X(eqtSmallGross, "Small Gross") \
    X(eqtGreatHundred, "Great Hundreds") \
    X(eqtHundreds, "Hundreds") \
    X(eqtThousands, "Thousands") \
    X(eqtMillions, "Millions") \
    X(eqtBillions, "Billions") \
    X(eqtTrillions, "Trillions") \
    X(eqtQuadrillions, "Quadrillions") \
    X(eqtMyriads, "Myriads") \
    X(eqtLakh, "Lakh") \
    X(eqtCrore, "Crore") \
    X(eqtHalves, "Halves") \
    X(eqtThirds, "Thirds") \
    X(eqtQuarters, "Quarters")

// TQORComputerType, in ordinal order.
#define QORKIT_UC_COMPUTER_NAMES(X) \
    X(ectBytes, "Bytes") \
    X(ectOctets, "Octets") \
    X(ectBits, "Bits") \
    X(ectNibbles, "Nibbles") \
    X(ectBlocks, "Blocks") \
    X(ectKiloBytes, "Kilobytes (2)") \
    X(ectMegaBytes, "Megabytes (2)") \
    X(ectGigaBytes, "Gigabytes (2)") \
    X(ectTeraBytes, "Terabytes (2)") \
    X(ectPetaBytes, "Petabytes (2)") \
    X(ectExaBytes, "Exabytes (2)") \
    X(ectKibiBytes, "Kibibytes") \
    X(ectMebiBytes, "Mebibytes") \
    X(ectGibiBytes, "Gibibytes") \
    X(ectTebiBytes, "Tebibytes") \
    X(ectPebiBytes, "Pebibytes") \
    X(ectExbiBytes, "Exbibytes") \
    X(ectKiloBytes10, "Kilobytes (10)") \
    X(ectMegaBytes10, "Megabytes (10)") \
    X(ectGigaBytes10, "Gigabytes (10)") \
    X(ectTeraBytes10, "Terabytes (10)") \
    X(ectPetaBytes10, "Petabytes (10)") \
    X(ectExaBytes10, "Exabytes (10)") \
    X(ectKilobits, "Kilobits (2)") \
    X(ectMegabits, "Megabits (2)") \
    X(ectGigabits, "Gigabits (2)") \
    X(ectTerabits, "Terabits (2)") \
    X(ectPetabits, "Petabits (2)") \
    X(ectExabits, "Exabits (2)") \
    X(ectKibibits, "Kibibits") \
    X(ectMebibits, "Mebibits") \
    X(ectGibibits, "Gibibits") \
    X(ectTebibits, "Tebibits") \
    X(ectPebibits, "Pebibits") \
    X(ectExbibits, "Exbibits") \
    X(ectKilobits10, "Kilobits (10)") \
    X(ectMegabits10, "Megabits (10)") \
    X(ectGigabits10, "Gigabits (10)") \
    X(ectTerabits10, "Terabits (10)") \
    X(ectPetabits10, "Petabits (10)") \
    X(ectExabits10, "Exabits (10)") \
    X(ectAudioMinutes, "Minutes (Audio CD)")

// TQORDataRateType, in ordinal order.
#define QORKIT_UC_DATARATE_NAMES(X) \
    X(edrBitsPS, "Bits per Second") \
    X(edrKilobitsPS, "Kilobits per Second") \
    X(edrMegabitsPS, "Megabits per Second") \
    X(edrGigabitsPS, "Gigabits per Second") \
    X(edrTerabitsPS, "Terabits per Second") \
    X(edrBytesPS, "Bytes per Second") \
    X(edrKilobytesPS, "Kilobytes per Second") \
    X(edrMegabytesPS, "Megabytes per Second") \
    X(edrGigabytesPS, "Gigabytes per Second") \
    X(edrTerabytesPS, "Terabytes per Second") \
    X(edrBaud, "Baud") \
    X(edrBitsPM, "Bits per Minute") \
    X(edrKilobitsPM, "Kilobits per Minute") \
    X(edrMegabitsPM, "Megabits per Minute") \
    X(edrGigabitsPM, "Gigabits per Minute") \
    X(edrTerabitsPM, "Terabits per Minute") \
    X(edrBytesPM, "Bytes per Minute") \
    X(edrKilobytesPM, "Kilobytes per Minute") \
    X(edrMegabytesPM, "Megabytes per Minute") \
    X(edrGigabytesPM, "Gigabytes per Minute") \
    X(edrTerabytesPM, "Terabytes per Minute") \
    X(edrBitsPH, "Bits per Hour") \
    X(edrKilobitsPH, "Kilobits per Hour") \
    X(edrMegabitsPH, "Megabits per Hour") \
    X(edrGigabitsPH, "Gigabits per Hour") \
    X(edrTerabitsPH, "Terabits per Hour") \
    X(edrBytesPH, "Bytes per Hour") \
    X(edrKilobytesPH, "Kilobytes per Hour") \
    X(edrMegabytesPH, "Megabytes per Hour") \
    X(edrGigabytesPH, "Gigabytes per Hour") \
    X(edrTerabytesPH, "Terabytes per Hour")

// TQORAngleType, in ordinal order.
#define QORKIT_UC_ANGLE_NAMES(X) \
    X(eatRadians, "Radians") \
    X(eatMilliradians, "Milliradians") \
    X(eatMicroradians, "Microradians") \
    X(eatNanoradians, "Nanoradians") \
    X(eatDegrees, "Degrees") \
    X(eatGrads, "Grads") \
    X(eatMinutes, "Minutes") \
    X(eatSeconds, "Seconds") \
    X(eatMillidegrees, "Millidegrees") \
    X(eatMicrodegrees, "Microdegrees") \
    X(eatBinaryDegrees, "Binary Degrees") \
    X(eatBinaryRadians, "Binary Radians (Brads)") \
    X(eatPointsAngle, "Points") \
    X(eatGrade, "Grade (%)") \
    X(eatGradePerMil, "Grade (per mil)") \
    X(eatRiseRatio, "Rise Ratio") \
    X(eatCircles, "Circles") \
    X(eatSemicircles, "Semicircles") \
    X(eatQuadrants, "Quadrants") \
    X(eatAngularMils, "Angular Mils")

// TQORTimeType, in ordinal order.
#define QORKIT_UC_TIME_NAMES(X) \
    X(ettSeconds, "Seconds") \
    X(ettDays, "Days") \
    X(ettHours, "Hours") \
    X(ettMinutes, "Minutes") \
    X(ettWeeks, "Weeks") \
    X(ettFortnights, "Fortnights") \
    X(ettMonths, "Months (Synodic)") \
    X(ettMonths28, "Months (28 days)") \
    X(ettMonths30, "Months (30 days)") \
    X(ettSiderealDays, "Days (Sidereal)") \
    X(ettSiderealMonths, "Months (Sidereal)") \
    X(ettYears, "Years (Tropical)") \
    X(ettYears360, "Years (360 days)") \
    X(ettYears365, "Years (365 days)") \
    X(ettYearsGregorian, "Years (Gregorian)") \
    X(ettYearsJulian, "Years (Julian)") \
    X(ettYearsSidereal, "Years (Sidereal)") \
    X(ettDecades, "Decades (Tropical)") \
    X(ettDecades360, "Decades (3600 days)") \
    X(ettDecades365, "Decades (3650 days)") \
    X(ettDecadesGregorian, "Decades (Gregorian)") \
    X(ettDecadesJulian, "Decades (Julian)") \
    X(ettCenturies, "Centuries (Tropical)") \
    X(ettCenturies360, "Centuries (36000 days)") \
    X(ettCenturies365, "Centuries (36500 days)") \
    X(ettCenturiesGregorian, "Centuries (Gregorian)") \
    X(ettCenturiesJulian, "Centuries (Julian)") \
    X(ettMicroseconds, "Microseconds") \
    X(ettMilliseconds, "Milliseconds") \
    X(ettKiloseconds, "Kiloseconds") \
    X(ettMegaseconds, "Megaseconds") \
    X(ettGigaseconds, "Gigaseconds") \
    X(ettMarsYears, "Years (Sidereal - Mars)") \
    X(ettMarsSolarDays, "Days (Solar - Mars)(Sols)") \
    X(ettMarsSiderealDays, "Days (Sidereal - Mars)") \
    X(ettVenusYears, "Years (Sidereal - Venus)") \
    X(ettVenusSolarDays, "Days (Solar - Venus)") \
    X(ettVenusSiderealDays, "Days (Sidereal - Venus)") \
    X(ettNanoseconds, "Nanoseconds") \
    X(ettPicoseconds, "Picoseconds") \
    X(ettFemtoseconds, "Femtoesconds") \
    X(ettLunaDaysSolar, "Days (Solar - Luna)") \
    X(ettLunaDaysSidereal, "Days (Solar - Luna)") \
    X(ettMercuryYears, "Years (Sidereal - Mercury)") \
    X(ettMercurySolarDays, "Days (Solar - Mercury)") \
    X(ettMercurySiderealDays, "Days (Sidereal - Mercury)") \
    X(ettJupiterYears, "Years (Sidereal - Jupiter)") \
    X(ettJupiterSolarDays, "Days (Solar - Jupiter)") \
    X(ettJupiterSiderealDays, "Days (Sidereal - Jupiter)") \
    X(ettSaturnYears, "Years (Sidereal - Saturn)") \
    X(ettSaturnSolarDays, "Days (Solar - Saturn)") \
    X(ettSaturnSiderealDays, "Days (Sidereal - Saturn)") \
    X(ettUranusYears, "Years (Sidereal - Uranus)") \
    X(ettUranusSolarDays, "Days (Solar - Uranus)") \
    X(ettUranusSiderealDays, "Days (Sidereal - Uranus)") \
    X(ettNeptuneYears, "Years (Sidereal - Neptune)") \
    X(ettNeptuneSolarDays, "Days (Solar - Neptune)") \
    X(ettNeptuneSiderealDays, "Days (Sidereal - Neptune)") \
    X(ettYears364, "Years (364 days)") \
    X(ettDecades364, "Decades (3640 days)") \
    X(ettCenturies364, "Centuries (36400 days)") \
    X(ettMonthsLunar, "Months (Lunar)") \
    X(ettLunations, "Lunations") \
    X(ettYearsLunar, "Years (Lunar)") \
    X(ettSunDaysSidereal, "")

// TQORTempType, in ordinal order.
#define QORKIT_UC_TEMP_NAMES(X) \
    X(ettKelvin, "Kelvin") \
    X(ettFahrenheit, "Fahrenheit") \
    X(ettCelsius, "Celsius") \
    X(ettReaumur, "Réaumur") \
    X(ettRankine, "Rankine") \
    X(ettRomer, "Rømer") \
    X(ettDelisle, "Delisle") \
    X(ettNewton, "Newton")

// TQORDistType, in ordinal order.
#define QORKIT_UC_DIST_NAMES(X) \
    X(edtMetres, "Metres") \
    X(edtCentimetres, "Centimetres") \
    X(edtMillimetres, "Millimetres") \
    X(edtMicrons, "Microns") \
    X(edtMicrometres, "Micrometres") \
    X(edtNanometres, "Nanometres") \
    X(edtAngstroms, "Angstroms") \
    X(edtKilometres, "Kilometres") \
    X(edtFeet, "Feet") \
    X(edtMils, "Mils") \
    X(edtInches, "Inches") \
    X(edtYards, "Yards") \
    X(edtMiles, "Miles") \
    X(edtFathoms, "Fathoms") \
    X(edtShackles12, "Shackles (12.5 Fathoms)") \
    X(edtShackles15, "Shackles (15 Fathoms)") \
    X(edtNauticalMilesUK, "Nautical Miles (UK)") \
    X(edtNauticalMilesUS, "Nautical Miles (US)") \
    X(edtNauticalMilesInt, "Nautical Miles (International)") \
    X(edtNauticalMilesTelegraph, "Nautical Miles (Telegraphic)") \
    X(edtGeographicalMiles, "Geographical Miles") \
    X(edtAdmiraltyMiles, "Admiralty Miles") \
    X(edtRomanMiles, "Roman Miles") \
    X(edtRomanFeet, "Roman Feet") \
    X(edtUnciae, "Unciae (Roman Inches)") \
    X(edtScottishMiles, "Scottish Miles") \
    X(edtIrishMiles, "Irish Miles") \
    X(edtChains, "Chains") \
    X(edtEngChains, "Chains (Engineer)") \
    X(edtRods, "Rods") \
    X(edtLinks, "Links") \
    X(edtEngLinks, "Links (Engineer)") \
    X(edtHands, "Hands") \
    X(edtFeetUSSurvey, "Feet (US Survey)") \
    X(edtInchesUSSurvey, "Inches (US Survey)") \
    X(edtThous, "Thous") \
    X(edtPoles, "Poles") \
    X(edtPerches, "Perches") \
    X(edtFurlongs, "Furlongs") \
    X(edtLeaguesUKLand, "Leagues (UK Land)") \
    X(edtLeaguesUKSea, "Leagues (UK Sea)") \
    X(edtLeaguesUS, "Leagues (US)") \
    X(edtAstronomicalUnits, "Astronomical Units") \
    X(edtLightYears, "Light Years") \
    X(edtLightYears365, "Light Years (365 Days)") \
    X(edtParsecs, "Parsecs") \
    X(edtPoints, "Points") \
    X(edtPicas, "Picas") \
    X(edtLightSeconds, "Light Seconds") \
    X(edtLightMinutes, "Light Minutes") \
    X(edtLightHours, "Light Hours") \
    X(edtLightDays, "Light Days") \
    X(edtPouces, "Pouces") \
    X(edtPieds, "Pieds de roi") \
    X(edtBarleycorn, "Barleycorns") \
    X(edtParisPoint, "Paris Points") \
    X(edtCubitsCommon, "Cubits (Common)") \
    X(edtCubitsRoman, "Cubits (Roman)") \
    X(edtCubitsGreek, "Cubits (Greek)") \
    X(edtCubitsShort, "Cubits (Short)") \
    X(edtSpans, "Spans") \
    X(edtSmoots, "Smoots") \
    X(edtInchTenth, "Inch (Tenths of)") \
    X(edtInchSixteenth, "Inch (Sixteenths of)") \
    X(edtInchThirtySecond, "Inch (Thirty-Seconds of)") \
    X(edtInchSixtyFourth, "Inch (Sixty-Fourths of)") \
    X(edtDecimetres, "Decimetres") \
    X(edtDecametres, "Decametres") \
    X(edtMicroinches, "Microinches") \
    X(edtPicometres, "Picometres") \
    X(edtFemtometres, "Femtometres") \
    X(edtFermi, "Fermi") \
    X(edtBohrRadius, "Bohr Radii") \
    X(edtLightMilliseconds, "Light Milliseconds") \
    X(edtLightMicroseconds, "Light Microseconds") \
    X(edtMilesUSSurvey, "Miles (US Survey)") \
    X(edtMegaparsecs, "Megaparsecs") \
    X(edtGigaparsecs, "Gigaparsecs") \
    X(edtFootballLensCan, "Football Field lengths (CAN)") \
    X(edtFootballWidthsCan, "Football Field Widths (CAN)") \
    X(edtCricketPitches, "Cricket Pitches") \
    X(edtEarthRadii, "Earth Radii") \
    X(edtEmpireStateBuildings, "Empire State Buildings") \
    X(edtGolfBallDiameters, "Golf Balls") \
    X(edtOlympicSoccerLens, "Olympic Soccer Field Lengths") \
    X(edtOlympicSoccerWidths, "Olympic Soccer Field Widths") \
    X(edtOlympicPools, "Olympic Pools") \
    X(edtPingPongBallDiameters, "Ping Pong Balls") \
    X(edtFootballLensUS, "Football Field Lengths (US)") \
    X(edtFootbalWidthsUS, "Football Field Widths (US)") \
    X(edtPlanckLengths, "Planck Lengths") \
    X(edtEarthRadiiEquatorial, "Earth Radii (Equatorial)") \
    X(edtEarthRadiiPolar, "Earth Radii (Polar)") \
    X(edtLunaRadiiEquatorial, "Luna Radii (Equatorial)") \
    X(edtLunaRadiiPolar, "Luna Radii (Polar)") \
    X(edtMarsRadiiEquatorial, "Mars Radii (Equatorial)") \
    X(edtMarsRadiiPolar, "Mars Radii (Polar)") \
    X(edtSunToMars, "Sun to Mars") \
    X(edtVenusRadiiEquatorial, "Venus Radii (Equatorial)") \
    X(edtVenusRadiiPolar, "Venus Radii (Polar)") \
    X(edtSunToVenus, "Sun to Venus") \
    X(edtLiDist1930, "Lí (1930)") \
    X(edtChiDist1930, "Chi (1930)") \
    X(edtCunDist1930, "Cùn (1930)") \
    X(edtMercuryRadiiEquatorial, "Mercury Radii (Equatorial)") \
    X(edtMercuryRadiiPolar, "Mercury Radii (Polar)") \
    X(edtSunToMercury, "Sun to Mercury") \
    X(edtJupiterRadiiEquatorial, "Jupiter Radii (Equatorial)") \
    X(edtJupiterRadiiPolar, "Jupiter Radii (Polar)") \
    X(edtSunToJupiter, "Sun to Jupiter") \
    X(edtSaturnRadiiEquatorial, "Saturn Radii (Equatorial)") \
    X(edtSaturnRadiiPolar, "Saturn Radii (Polar)") \
    X(edtSunToSaturn, "Sun to Saturn") \
    X(edtUranusRadiiEquatorial, "Uranus Radii (Equatorial)") \
    X(edtUranusRadiiPolar, "Uranus Radii (Polar)") \
    X(edtSunToUranus, "Sun to Uranus") \
    X(edtNeptuneRadiiEquatorial, "Neptune Radii (Equatorial)") \
    X(edtNeptuneRadiiPolar, "Neptune Radii (Polar)") \
    X(edtSunToNeptune, "Sun to Neptune") \
    X(edtInchEighth, "Inch (Eighths of)") \
    X(edtInchThousandth, "Inch (Thousandths of)") \
    X(edtSolarRadii, "Solar Radii")

// TQORMassType, in ordinal order.
#define QORKIT_UC_MASS_NAMES(X) \
    X(emtKilograms, "Kilograms") \
    X(emtGrams, "Grams") \
    X(emtMilligrams, "Milligrams") \
    X(emtTonnes, "Tonnes") \
    X(emtPounds, "Pounds") \
    X(emtOunces, "Ounces") \
    X(emtStones, "Stones") \
    X(emtQuarters, "Quarters") \
    X(emtShortQuarters, "Quarters (Short)") \
    X(emtTons, "Tons (Long)") \
    X(emtShortTons, "Tons (Short)") \
    X(emtHundredWeights, "Hundredweights") \
    X(emtShortHundredWeights, "Hundredweights (Short)") \
    X(emtDrams, "Drams") \
    X(emtGrains, "Grains") \
    X(emtScruples, "Scruples") \
    X(emtMetricGrains, "Grains (Metric)") \
    X(emtCarats, "Carats") \
    X(emtPoints, "Points") \
    X(emtTroyPounds, "Pounds (Troy)") \
    X(emtTroyOunces, "Ounces (Troy)") \
    X(emtRomanOunces, "Roman Ounces") \
    X(emtRomanPounds, "Roman Pounds") \
    X(emtPennyweights, "Pennyweights") \
    X(emtSlugs, "Slugs") \
    X(emtZentners, "Zentners") \
    X(emtPfund, "Pfund") \
    X(emtLivre, "Livre") \
    X(emtMicrograms, "Micrograms") \
    X(emtNanograms, "Nanograms") \
    X(emtPicograms, "Picograms") \
    X(emtKilopounds, "Kilopounds") \
    X(emtKips, "Kips") \
    X(emtTolas, "Tolas") \
    X(emtTaelsChina, "Taels (Chinese)") \
    X(emtTaelsJap, "Taels (Japanese)") \
    X(emtMomme, "Momme") \
    X(emtBerkovets, "Berkovets") \
    X(emtPood, "Pood") \
    X(emtFunt, "Funt") \
    X(emtLot, "Lot (Russian)") \
    X(emtZolotnik, "Zolotnik") \
    X(emtDolya, "Dolya") \
    X(emtQuintals, "Quintals") \
    X(emtQuintalsMetric, "Quintals (Metric)") \
    X(emtCentners, "Centners") \
    X(emtCentnersMetric, "Centners (Metric)") \
    X(emtCentnersShortMetric, "Centners (Short Metric)") \
    X(emtLibras, "Libras (Roman)") \
    X(emtLibrasMetric, "Libras (Metric)") \
    X(emtKilotonnes, "Kilotonnes") \
    X(emtMegatonnes, "Megatonnes") \
    X(emtGigatonnes, "Gigatonnes") \
    X(emtFemtograms, "Femtograms") \
    X(emtEarthMasses, "Earth Masses") \
    X(emtGolfBallMasses, "Golf Balls") \
    X(emtPingPongBallMasses, "Ping Pong Ball") \
    X(emtProtonMassUnits, "Proton Mass Units") \
    X(emtElectronMassUnits, "Electron Mass Units") \
    X(emtNeutronMassUnits, "Neutron Mass Units") \
    X(emtAtomicMassUnits, "Atomic Mass Units") \
    X(emtPlanckMasses, "Planck Masses") \
    X(emtLunaMasses, "Luna Masses") \
    X(emtMarsMasses, "Mars Masses") \
    X(emtVenusMasses, "Venus Masses") \
    X(emtDanMass1930, "Dàn (1930)") \
    X(emtJinMass1930, "Jin (1930)") \
    X(emtLiangMass1930, "Liang (1930)") \
    X(emtMercuryMasses, "Mercury Masses") \
    X(emtJupiterMasses, "Jupiter Masses") \
    X(emtSaturnMasses, "Saturn Masses") \
    X(emtUranusMasses, "Uranus Masses") \
    X(emtNeptuneMasses, "Neptune Masses") \
    X(emtOuncesMetric25, "Ounces, Metric (25g)") \
    X(emtOuncesMetric30, "Ounces, Metric (30g)") \
    X(emtSolarMasses, "Solar Masses")

// TQORVolType, in ordinal order.
#define QORKIT_UC_VOL_NAMES(X) \
    X(evtCubicMetres, "Cubic Metres") \
    X(evtLitres, "Litres") \
    X(evtMillilitres, "Millilitres") \
    X(evtKilolitres, "Kilolitres") \
    X(evtDeciLitres, "Decilitres") \
    X(evtCentilitres, "Centilitres") \
    X(evtHectolitres, "Hectolitres") \
    X(evtMicrolitres, "Microlitres") \
    X(evtPintsUK, "Pints (UK)") \
    X(evtPintsUS, "Pints (US)") \
    X(evtQuartsUK, "Quarts (UK)") \
    X(evtQuartsUS, "Quarts (US)") \
    X(evtGallonsUK, "Gallons (UK)") \
    X(evtGallonsUS, "Gallons (US)") \
    X(evtGillsUK, "Gills (UK)") \
    X(evtGillsUS, "Gills (US)") \
    X(evtFluidOuncesUK, "Fluid Ounces (UK)") \
    X(evtFluidOuncesUS, "Fluid Ounces (US)") \
    X(evtFluidDramsUK, "Fluid Drams (UK)") \
    X(evtFluidDramsUS, "Fluid Drams (US)") \
    X(evtTeaspoonUS, "Teaspoons (US)") \
    X(evtTeaspoonUK, "Teaspoons (UK)") \
    X(evtTeaspoonMetric, "Teaspoons (Metric)") \
    X(evtDessertspoonUS, "Dessertspoons (US)") \
    X(evtDessertspoonUK, "Dessertspoons (UK)") \
    X(evtDessertspoonMetric, "Dessertspoons (Metric)") \
    X(evtTablespoonUS, "Tablespoons (US)") \
    X(evtTablespoonUK, "Tablespoons (UK)") \
    X(evtTablespoonMetricAus, "Tablespoons (Metric Australia)") \
    X(evtTablespoonMetricOther, "Tablespoons (Metric Other)") \
    X(evtCubicCentimetres, "Cubic Centimetres") \
    X(evtCubicMillimetres, "Cubic Millimetres") \
    X(evtCubicDecimetres, "Cubic Decimetres") \
    X(evtPintsUKDry, "Pints (UK Dry)") \
    X(evtPintsUSDry, "Pints (US Dry)") \
    X(evtQuartsUKDry, "Quarts (UK Dry)") \
    X(evtQuartsUSDry, "Quarts (US Dry)") \
    X(evtGallonsUKdry, "Gallons (UK Dry)") \
    X(evtGallonsUSDry, "Gallons (US Dry)") \
    X(evtPecksUK, "Pecks (UK)") \
    X(evtPecksUS, "Pecks (US)") \
    X(evtBushellsUK, "Bushels (UK)") \
    X(evtBushellsUS, "Bushels (US)") \
    X(evtBarrelsOil, "Barrels (Oil)") \
    X(evtBarrelsDry, "Barrels (Dry)") \
    X(evtBarrelsLiquid, "Barrels (Liquid)") \
    X(evtCubicInches, "Cubic Inches") \
    X(evtCubicFathoms, "Cubic Fathoms") \
    X(evtCubicFeet, "Cubic Feet") \
    X(evtCubicYards, "Cubic Yards") \
    X(evtCupsMetric, "Cups (Metric)") \
    X(evtCupsUS, "Cups (US)") \
    X(evtMegaGallonsUK, "MegaGallons (UK)") \
    X(evtMegaGallonsUS, "Megagallons (US)") \
    X(evtAcreFeet, "Acre-Feet") \
    X(evtAcreInches, "Acre-Inches") \
    X(evtCubicMicrons, "Cubic Microns") \
    X(evtCongiiUK, "Congii (UK)") \
    X(evtAcetabula, "Acetabula") \
    X(evtHeminae, "Heminae") \
    X(evtSextarii, "Sextarii") \
    X(evtCongii, "Congii (Roman)") \
    X(evtLigulae, "Ligulae") \
    X(evtUrnae, "Urnae") \
    X(evtRomanAmphorae, "Amphorae (Roman)") \
    X(evtModii, "Modii") \
    X(evtSuperFeet, "Super Feet") \
    X(evtBoardFeet, "Board Feet") \
    X(evtCupsUS12, "Cups (US 12 Oz)") \
    X(evtCupsCanada, "Cups (Canada)") \
    X(evtCupsUK, "Cups (UK)") \
    X(evtBarrelsBeerUS, "Barrels (US Beer)") \
    X(evtBarrelsBeerUK, "Barrels (UK Beer)") \
    X(evtBarrelsWineUK, "Barrels (UK Wine)") \
    X(evtKegsBeerUS, "Kegs (US Beer)") \
    X(evtKegsWineUS, "Kegs (US Wine)") \
    X(evtKegsBeerUK, "Kegs (UK Beer)") \
    X(evtKegs25, "Kegs (25 Litre)") \
    X(evtKegs50, "Kegs (50 Litre)") \
    X(evtFirkinsBeer, "Firkins (Beer)") \
    X(evtKilderkinsBeer, "Kilderkins (Beer)") \
    X(evtHogsheadsBeer, "Hogsheads (Beer)") \
    X(evtDropsWater, "Drops (Water)") \
    X(evtDropsThick, "Drops (Thick Fluid)") \
    X(evtDecalitres, "Decalitres") \
    X(evtGolfBalls, "Golf Balls") \
    X(evtOlympicPools, "Olympic Pools") \
    X(evtPingPongBalls, "Ping Pong Balls") \
    X(evtCubicKilometres, "Cubic Kilometres") \
    X(evtCubicMiles, "Cubic Miles") \
    X(evtEarthVolumes, "Earth Volumes") \
    X(evtLunaVolumes, "Luna Volumes") \
    X(evtMarsVolumes, "Mars Volumes") \
    X(evtVenusVolumes, "Venus Volumes") \
    X(evtShengVol1930, "Sheng (1930)") \
    X(evtMercuryVolumes, "Mercury Volumes") \
    X(evtJupiterVolumes, "Jupiter Volumes") \
    X(evtSaturnVolumes, "Saturn Volumes") \
    X(evtUranusVolumes, "Uranus Volumes") \
    X(evtNeptuneVolumes, "Neptune Volumes") \
    X(evtFluidOuncesMetric25, "Fluid Ounces, Mertic (25ml)") \
    X(evtFluidOuncesMetric30, "Fluid Ounces, Mertic (30ml)") \
    X(evtSolarVolumes, "Solar Volumes")

// TQORAreaType, in ordinal order.
#define QORKIT_UC_AREA_NAMES(X) \
    X(eatSqMetres, "Square Metres") \
    X(eatSqCentimetres, "Square Centimetres") \
    X(eatSqMillimetres, "Square Millimetres") \
    X(eatSqKilometres, "Square Kilometres") \
    X(eatSqInches, "Square Inches") \
    X(eatSqFeet, "Square Feet") \
    X(eatSqYards, "Square Yards") \
    X(eatSqMiles, "Square Miles") \
    X(eatHectares, "Hectares") \
    X(eatAres, "Ares") \
    X(eatAcres, "Acres") \
    X(eatRoods, "Roods") \
    X(eatDunams, "Dunams") \
    X(eatTsubo, "Tsubo") \
    X(eatTatami, "Tatami") \
    X(eatPerches, "Perches") \
    X(eatSqMicrons, "Square Microns") \
    X(eatSqChains, "Square Chains") \
    X(eatSqLinks, "Square Links") \
    X(eatSqRods, "Square Rods") \
    X(eatSqPoles, "Square Poles") \
    X(eatSqPerches, "Square Perches") \
    X(eatSqFurlongs, "Square Furlongs") \
    X(eatSqFathoms, "Square Fathoms") \
    X(eatSections, "Sections") \
    X(eatTownships, "Townships") \
    X(eatPyong, "Pyong (Korea)") \
    X(eatPing, "Ping (Taiwan)") \
    X(eatWah, "Wah (Thai)") \
    X(eatNgan, "Ngan (Thai)") \
    X(eatRai, "Rai (Thai)") \
    X(eatCents, "Cents (India)") \
    X(eatSqMils, "Square Mils") \
    X(eatCircularMils, "Circular Mils") \
    X(eatCentiares, "Centiares") \
    X(eatDeciares, "Deciares") \
    X(eatDecares, "Decares") \
    X(eatSqMicrometres, "Square Micrometres") \
    X(eatSqNanometres, "Square Nanometres") \
    X(eatSqPicometres, "Square Picometres") \
    X(eatSqFemtometres, "Square Femtometres") \
    X(eatSqFeetUSSurvey, "Square Feet (US Survey)") \
    X(eatSqInchesUSSurvey, "Square Inches (US Survey)") \
    X(eatSqMilesUSSurvey, "Square Miles (US Survey)") \
    X(eatAcresUSSurvey, "Acres (US Survey)") \
    X(eatBarns, "Barns") \
    X(eatFootballCan, "Football Fields (CAN)") \
    X(eatOlympicSoccer, "Olympic Soccer Fields") \
    X(eatFootballUS, "Football Fields (US)") \
    X(eatHomesteads, "Homesteads") \
    X(eatPlanckAreas, "Planck Areas") \
    X(eatPaperA3, "Paper A3") \
    X(eatPaperA4, "Paper A4") \
    X(eatPaperA5, "Paper A5") \
    X(eatPaperLegal, "Paper Legal") \
    X(eatPaperLetter, "Paper Letter") \
    X(eatPaperFoolscap, "Paper Foolscap") \
    X(eatMuArea1930, "Mu (1930)") \
    X(eatQingArea1930, "Qing (1930)")

// TQORPressureType, in ordinal order.
#define QORKIT_UC_PRESSURE_NAMES(X) \
    X(eptPascals, "Pascals") \
    X(eptHectopascals, "Hectopascals") \
    X(eptKilopascals, "Kilopascals") \
    X(eptMegapascals, "Megapascals") \
    X(eptBars, "Bars") \
    X(eptMillibars, "Millibars") \
    X(eptHectobars, "Hectobars") \
    X(eptAtmospheres, "Atmospheres") \
    X(eptMillimetresOfMercury0C, "Millimetres of Mercury at 0°C") \
    X(eptCentimetresOfMercury0C, "Centimetres of Mercury at 0°C") \
    X(eptInchesOfMercury0C, "Inches of Mercury at 0°C") \
    X(eptTorrs, "Torrs") \
    X(eptPoundsPerSqInch, "Pounds per Sq Inch") \
    X(eptPSI, "PSI") \
    X(eptPoundsPerSqFoot, "Pounds per Sq Foot") \
    X(eptPoundsPerSqYard, "Pounds per Sq Yard") \
    X(eptShortTonsPerSqFoot, "Tons (Short) per Sq Foot") \
    X(eptShortTonsPerSqInch, "Tons (Short) per Sq Inch") \
    X(eptTonsPerSqFoot, "Tons (Long) per Sq Foot") \
    X(eptTonsPerSqInch, "Tons (Long) per Sq Inch") \
    X(eptDynesPerSqCentimetre, "Dynes per Sq Centimetre") \
    X(eptDynesPerSqMetre, "Dynes per Sq Metre") \
    X(eptGramsPerSqCentimetre, "Grams per Sq Centimetre") \
    X(eptGramsPerSqMetre, "Grams per Sq Metre") \
    X(eptKilogramsPerSqCentimetre, "Kilograms per Sq Centimetre") \
    X(eptKilogramsPerSqMetre, "Kilograms per Sq Metre") \
    X(eptTonnesPerSqCentimetre, "Tonnes per Sq Centimetre") \
    X(eptTonnesPerSqMetre, "Tonnes per Sq Metre") \
    X(eptNewtonsPerSqMetre, "Newtons per Sq Metre") \
    X(eptMillimetresOfWater4C, "Millimetres of Water at 4°C") \
    X(eptCentimetresOfWater4C, "Centimetres of Water at 4°C") \
    X(eptMetresOfWater4C, "Metres of Water at 4°C") \
    X(eptFeetOfWater4C, "Feet of Water at 4°C") \
    X(eptFeetOfSeaWater, "Feet of Sea Water") \
    X(eptMetresOfSeaWater, "Metres of Sea Water") \
    X(eptInchesOfWater4C, "Inches of Water at 4°C") \
    X(eptGigapascals, "Gigapascals") \
    X(eptNanonewtonsPerSqMicron, "Nanonewtons per Sq Micron") \
    X(eptOuncesPerSqFoot, "Ounces per Sq Foot") \
    X(eptOuncesPerSqYard, "Ounces per Sq Yard") \
    X(eptBaryes, "Baryes") \
    X(eptAtmospheresTechnical, "Atmospheres (Technical)") \
    X(eptFeetOfAir0C, "Feet of Air (0°C)") \
    X(eptFeetOfAir15C, "Feet of Air (15°C)") \
    X(eptFeetOfHead, "Feet of Head") \
    X(eptFeetOfMercury0C, "Feet of Mercury (0°C)") \
    X(eptMetresOfHead, "Metres Of Head") \
    X(eptMillitorrs, "Millitorrs") \
    X(eptMicronsPressure, "Microns") \
    X(eptMicrometresOfMercury0C, "Micrometres of Mercury at 0°C")

// TQORVelocityType, in ordinal order.
#define QORKIT_UC_VELOCITY_NAMES(X) \
    X(evtMetresPerSec, "Metres per Second") \
    X(evtMetresPerMin, "Metres per Minute") \
    X(evtMetresPerHr, "Metres per Hour") \
    X(evtCentimetresPerSec, "Centimetres per Second") \
    X(evtCentimetresPerMin, "Centimetres per Minute") \
    X(evtCentimetresPerHr, "Centimetres per Hour") \
    X(evtMillimetresPerSec, "Millimetres per Second") \
    X(evtMillimetresPerMin, "Millimetres per Minute") \
    X(evtMillimetresPerHr, "Millimetres per Hour") \
    X(evtKilometresPerSec, "Kilometres per Second") \
    X(evtKilometresPerMin, "Kilometres per Minute") \
    X(evtKilometresPerHr, "Kilometres per Hour") \
    X(evtKPH, "KPH") \
    X(evtMilesPerSec, "Miles per Second") \
    X(evtMilesPerMin, "Miles per Minute") \
    X(evtMilesPerHr, "Miles per Hour") \
    X(evtMPH, "MPH") \
    X(evtFeetPerSec, "Feet per Second") \
    X(evtFeetPerMin, "Feet per Minute") \
    X(evtFeetPerHr, "Feet per Hour") \
    X(evtKnotsUK, "Knots (UK)") \
    X(evtKnotsUS, "Knots (US)") \
    X(evtInchesPerSec, "Inches per Second") \
    X(evtInchesPerMin, "Inches per Minute") \
    X(evtInchesPerHr, "Inches per Hour") \
    X(evtSpeedOfLight, "Speed of Light") \
    X(evtSpeedOfSound, "Speed of Sound (Dry Air at Sea Level)") \
    X(evtMach, "Mach") \
    X(evtMicronsPerSec, "Microns per Second") \
    X(evtMicronsPerMicrosecond, "Microns per Microsecond") \
    X(evtYardsPerSec, "Yards per Second") \
    X(evtYardsPerMin, "Yards per Minute") \
    X(evtYardsPerHr, "Yards per Hour") \
    X(evtEscapeVelocity, "Escape Velocity") \
    X(evtEscapeVelocityLuna, "Escape Velocity (Luna)") \
    X(evtEscapeVelocityMars, "Escape Velocity (Mars)") \
    X(evtEscapeVelocityVenus, "Escape Velocity (Venus)") \
    X(evtEscapeVelocityMercury, "Escape Velocity (Mercury)") \
    X(evtEscapeVelocityJupiter, "Escape Velocity (Jupiter)") \
    X(evtEscapeVelocitySaturn, "Escape Velocity (Saturn)") \
    X(evtEscapeVelocityUranus, "Escape Velocity (Uranus)") \
    X(evtEscapeVelocityNeptune, "Escape Velocity (Neptune)") \
    X(evtEscapeVelocitySun, "Escape Velocity (Sun)")

// TQORAccelerationType, in ordinal order.
#define QORKIT_UC_ACCELERATION_NAMES(X) \
    X(eatMetresPerSec2, "Metres per Second Squared") \
    X(eatCentimetresPerSec2, "Centimetres per Second Squared") \
    X(eatFeetPerSec2, "Feet per Second Squared") \
    X(eatInchesPerSec2, "Inches per Second Squared") \
    X(eatGravity, "Gravity") \
    X(eatMillimetresPerSec2, "Millimetres per Second Squared") \
    X(eatGalileos, "Galileos") \
    X(eatMilligals, "Milligals") \
    X(eatMicrogals, "Microgals") \
    X(eatYardsPerSec2, "Yards per Second Squared") \
    X(eatGravityLuna, "Gravity (Luna)") \
    X(eatGravityMars, "Gravity (Mars)") \
    X(eatGravityVenus, "Gravity (Venus)") \
    X(eatGravityMercury, "Gravity (Mercury)") \
    X(eatGravityJupiter, "Gravity (Jupiter)") \
    X(eatGravitySaturn, "Gravity (Saturn)") \
    X(eatGravityUranus, "Gravity (Uranus)") \
    X(eatGravityNeptune, "Gravity (Neptune)") \
    X(eatGravitySun, "Gravity (Sun)")

// TQORForceType, in ordinal order.
#define QORKIT_UC_FORCE_NAMES(X) \
    X(eftNewtons, "Newtons") \
    X(eftMillinewtons, "Millinewtons") \
    X(eftKilonewtons, "Kilonewtons") \
    X(eftMeganewtons, "Meganewtons") \
    X(eftGiganewtons, "Giganewtons") \
    X(eftDynes, "Dynes") \
    X(eftKilogramsForce, "Kilograms Force") \
    X(eftGramsForce, "Grams Force") \
    X(eftPoundsForce, "Pounds Force") \
    X(eftOuncesForce, "Ounces Force") \
    X(eftPoundals, "Poundals") \
    X(eftTonnesForce, "Tonnes Force") \
    X(eftTonsForce, "Tons (Long) Force") \
    X(eftShortTonsForce, "Tons (Short) Force") \
    X(eftJoulesPerMetre, "Joules per Metre") \
    X(eftNanonewtons, "Nanonewtons") \
    X(eftKiloponds, "Kiloponds") \
    X(eftCrinals, "Crinals") \
    X(eftKipsForce, "Kips Force") \
    X(eftKilopoundsForce, "Kilopounds Force") \
    X(eftAUForce, "Atomic Units of Force") \
    X(eftFunals, "Funals") \
    X(eftSthenes, "Sthènes") \
    X(eftMicronewtons, "Micronewtons") \
    X(eftPiconewtons, "Piconewtons") \
    X(eftPonds, "Ponds") \
    X(eftJoulesPerCentimetre, "Joules per Centimetre") \
    X(eftJoulesPerKilometre, "Joules per Kilometre") \
    X(eftTeranewtons, "Teranewtons")

// TQOREnergyType, in ordinal order.
#define QORKIT_UC_ENERGY_NAMES(X) \
    X(eetJoules, "Joules") \
    X(eetMillijoules, "Millijoules") \
    X(eetMicrojoules, "Microjoules") \
    X(eetNanojoules, "Nanojoules") \
    X(eetKilojoules, "Kilojoules") \
    X(eetMegajoules, "Megajoules") \
    X(eetGigajoules, "Gigajoules") \
    X(eetErgs, "Ergs") \
    X(eetCaloriesIT, "Calories (IT)") \
    X(eetCaloriesTh, "Calories (Thermo-Chemical)") \
    X(eetCaloriesMean, "Calories (Mean)") \
    X(eetCalories15C, "Calories (15°C)") \
    X(eetCalories20C, "Calories (20°C)") \
    X(eetKilocaloriesIT, "Kilocalories (IT)") \
    X(eetKilocaloriesTh, "Kilocalories (Thermo-Chemical)") \
    X(eetKilocaloriesMean, "Kilocalories (Mean)") \
    X(eetKilocalories15C, "Kilocalories (15°C)") \
    X(eetKilocalories20C, "Kilocalories (20°C)") \
    X(eetBritishThermalUnitsIT, "British Thermal Units (IT)") \
    X(eetBritishThermalUnitsTh, "British Thermal Units (Thermo-Chemical)") \
    X(eetBritishThermalUnitsMean, "British Thermal Units (Mean)") \
    X(eetBritishThermalUnits39F, "British Thermal Units (39°F)") \
    X(eetBritishThermalUnits59F, "British Thermal Units (59°F)") \
    X(eetBritishThermalUnits60F, "British Thermal Units (60°F)") \
    X(eetThermsIT, "Therms (IT)") \
    X(eetThermsTh, "Therms (Thermo-Chemical)") \
    X(eetThermsMean, "Therms (Mean)") \
    X(eetTherms39F, "Therms (39°F)") \
    X(eetTherms59F, "Therms (59°F)") \
    X(eetTherms60F, "Therms (60°F)") \
    X(eetThermies, "Thermies") \
    X(eetNewtonMetres, "Newton Metres") \
    X(eetFootPounds, "Foot-Pounds") \
    X(eetFootPoundals, "Foot-Poundals") \
    X(eetKilogramMetres, "Kilogram Metres") \
    X(eetWattSeconds, "Watt Seconds") \
    X(eetWattMinutes, "Watt Minutes") \
    X(eetWattHours, "Watt Hours") \
    X(eetWattYears, "Watt Years") \
    X(eetKilowattSeconds, "Kilowatt Seconds") \
    X(eetKilowattMinutes, "Kilowatt Minutes") \
    X(eetKilowattHours, "Kilowatt Hours") \
    X(eetElectronVolts, "Electron Volts") \
    X(eetKiloElectronVolts, "Kilo-Electron Volts") \
    X(eetMegaElectronVolts, "Mega-Electron Volts") \
    X(eetGigaElectronVolts, "Giga-Electron Volts") \
    X(eetHorsepowerSeconds, "Horsepower Seconds") \
    X(eetHorsepowerMinutes, "Horsepower Minutes") \
    X(eetHorsepowerHours, "Horsepower Hours") \
    X(eetTerajoules, "Terajoules")

// TQORPowerType, in ordinal order.
#define QORKIT_UC_POWER_NAMES(X) \
    X(eptWatts, "Watts") \
    X(eptKilowatts, "Kilowatts") \
    X(eptMegawatts, "Megawatts") \
    X(eptGigawatts, "Gigawatts") \
    X(eptMilliwatts, "Milliwatts") \
    X(eptMicrowatts, "Microwatts") \
    X(eptAbwatts, "Abwatts") \
    X(eptHorsepower, "Horsepower (Mechanical)") \
    X(eptHorsepowerMetric, "Horsepower (Metric)") \
    X(eptFootPoundsPerSecond, "Foot-Pounds per Second") \
    X(eptKilogramMetresPerSecond, "Kilogram Metres per Second") \
    X(eptJoulesPerSecond, "Joules per Second") \
    X(eptJoulesPerMinute, "Joules per Minute") \
    X(eptJoulesPerHour, "Joules per Hour") \
    X(eptCaloriesITPerSecond, "Calories (IT) per Second") \
    X(eptCaloriesITPerMinute, "Calories (IT) per Minute") \
    X(eptCaloriesITPerHour, "Calories (IT) per Hour") \
    X(eptCaloriesThPerSecond, "Calories (Th) per Second") \
    X(eptCaloriesThPerMinute, "Calories (Th) per Minute") \
    X(eptCaloriesThPerHour, "Calories (Th) per Hour") \
    X(eptKilocaloriesITPerSecond, "Kilocalories (IT) per Second") \
    X(eptKilocaloriesITPerMinute, "Kilocalories (IT) per Minute") \
    X(eptKilocaloriesITPerHour, "Kilocalories (IT) per Hour") \
    X(eptKilocaloriesThPerSecond, "Kilocalories (Th) per Second") \
    X(eptKilocaloriesThPerMinute, "Kilocalories (Th) per Minute") \
    X(eptKilocaloriesThPerHour, "Kilocalories (Th) per Hour") \
    X(eptPferdestarke, "Pferdestärke") \
    X(eptChevalVapeur, "Cheval Vapeur") \
    X(eptRefTons, "Tons of Refrigeration") \
    X(eptBTUsITPerSecond, "BTUs (IT) Per Second") \
    X(eptBTUsITPerMinute, "BTUs (IT) Per Minute") \
    X(eptBTUsITPerHour, "BTUs (IT) Per Hour") \
    X(eptBTUsThPerSecond, "BTUs (Thermo-Chemical) Per Second") \
    X(eptBTUsThPerMinute, "BTUs (Thermo-Chemical) Per Minute") \
    X(eptBTUsThPerHour, "BTUs (Thermo-Chemical) Per Hour") \
    X(eptBTUsMeanPerSecond, "BTUs (Mean) Per Second") \
    X(eptBTUsMeanPerMinute, "BTUs (Mean) Per Minute") \
    X(eptBTUsMeanPerHour, "BTUs (Mean) Per Hour") \
    X(eptBTUs39FPerSecond, "BTUs (39°F) Per Second") \
    X(eptBTUs39FPerMinute, "BTUs (39°F) Per Minute") \
    X(eptBTUs39FPerHour, "BTUs (39°F) Per Hour") \
    X(eptBTUs59FPerSecond, "BTUs (59°F) Per Second") \
    X(eptBTUs59FPerMinute, "BTUs (59°F) Per Minute") \
    X(eptBTUs59FPerHour, "BTUs (59°F) Per Hour") \
    X(eptBTUs60FPerSecond, "BTUs (60°F) Per Second") \
    X(eptBTUs60FPerMinute, "BTUs (60°F) Per Minute") \
    X(eptBTUs60FPerHour, "BTUs (60°F) Per Hour") \
    X(eptHorsepowerElectrical, "Horsepower (Electrical)") \
    X(eptErgsPerSecond, "Ergs per Second") \
    X(eptNanowatts, "Nanowatts") \
    X(eptTerawatts, "Terawatts") \
    X(eptPicowatts, "Picowatts")

// TQORFuelType, in ordinal order.
#define QORKIT_UC_FUEL_NAMES(X) \
    X(eftKilometresPerLitre, "Kilometres per Litre") \
    X(eftKPL, "KPL") \
    X(eftLitresPer100Kilometres, "Litres per 100 Kilometres") \
    X(eftMilesPerLitre, "Miles per Litre") \
    X(eftMilesPerGallonUK, "Miles per Gallon (UK)") \
    X(eftMilesPerGallonUS, "Miles per Gallon (US)") \
    X(eftMPGUK, "MPG (UK)") \
    X(eftMPGUS, "MPG (US)") \
    X(eftGallonsUKPer100Kilometres, "Gallons (UK) per 100 Kilometres") \
    X(eftGallonsUSPer100Kilometres, "Gallons (US) per 100 Kilometres") \
    X(eftGallonsUKPer100Miles, "Gallons (UK) per 100 Miles") \
    X(eftGallonsUSPer100Miles, "Gallons (US) per 100 Miles") \
    X(eftKilometresPerGallonUK, "Kilometres per Gallon (UK)") \
    X(eftKilometresPerGallonUS, "Kilometres per Gallon (US)") \
    X(eftLitresPer100Miles, "Litres per 100 Miles")

// TQORFlowType, in ordinal order.
#define QORKIT_UC_FLOW_NAMES(X) \
    X(eftCubicMetresPerSecond, "Cubic Metres per Second") \
    X(eftLitresPerSecond, "Litres per Second") \
    X(eftLitresPerMinute, "Litres per Minute") \
    X(eftLitresPerHour, "Litres per Hour") \
    X(eftLitresPerDay, "Litres per Day") \
    X(eftMillilitresPerSecond, "Millilitres per Second") \
    X(eftMillilitresPerMinute, "Millilitres per Minute") \
    X(eftMillilitresPerHour, "Millilitres per Hour") \
    X(eftKilolitresPerSecond, "Kilolitres per Second") \
    X(eftKilolitresPerMinute, "Kilolitres per Minute") \
    X(eftKilolitresPerHour, "Kilolitres per Hour") \
    X(eftKilolitresPerDay, "Kilolitres per Day") \
    X(eftGallonsUKPerSecond, "Gallons (UK) per Second") \
    X(eftGallonsUKPerMinute, "Gallons (UK) per Minute") \
    X(eftGallonsUKPerHour, "Gallons (UK) per Hour") \
    X(eftGallonsUKPerDay, "Gallons (UK) per Day") \
    X(eftGallonsUSPerSecond, "Gallons (US) per Second") \
    X(eftGallonsUSPerMinute, "Gallons (US) per Minute") \
    X(eftGallonsUSPerHour, "Gallons (US) per Hour") \
    X(eftGallonsUSPerDay, "Gallons (US) per Day") \
    X(eftFluidOuncesUKPerSecond, "Fluid Ounces (UK) per Second") \
    X(eftFluidOuncesUKPerMinute, "Fluid Ounces (UK) per Minute") \
    X(eftFluidOuncesUKPerHour, "Fluid Ounces (UK) per Hour") \
    X(eftFluidOuncesUSPerSecond, "Fluid Ounces (US) per Second") \
    X(eftFluidOuncesUSPerMinute, "Fluid Ounces (US) per Minute") \
    X(eftFluidOuncesUSPerHour, "Fluid Ounces (US) per Hour") \
    X(eftCubicCentimetresPerSecond, "Cubic Centimetres per Second") \
    X(eftCubicCentimetresPerMinute, "Cubic Centimetres per Minute") \
    X(eftCubicCentimetresPerHour, "Cubic Centimetres per Hour") \
    X(eftCubicMillimetresPerSecond, "Cubic Millimetres per Second") \
    X(eftCubicMillimetresPerMinute, "Cubic Millimetres per Minute") \
    X(eftCubicMillimetresPerHour, "Cubic Millimetres per Hour") \
    X(eftCubicMetresPerMinute, "Cubic Metres per Minute") \
    X(eftCubicMetresPerHour, "Cubic Metres per Hour") \
    X(eftCubicMetresPerDay, "Cubic Metres per Day") \
    X(eftCubicInchesPerSecond, "Cubic Inches per Second") \
    X(eftCubicInchesPerMinute, "Cubic Inches per Minute") \
    X(eftCubicInchesPerHour, "Cubic Inches per Hour") \
    X(eftCubicFeetPerSecond, "Cubic Feet per Second") \
    X(eftCubicFeetPerMinute, "Cubic Feet per Minute") \
    X(eftCubicFeetPerHour, "Cubic Feet per Hour") \
    X(eftCubicYardsPerSecond, "Cubic Yards per Second") \
    X(eftCubicYardsPerMinute, "Cubic Yards per Minute") \
    X(eftCubicYardsPerHour, "Cubic Yards per Hour") \
    X(eftMegaGallonsUKPerYear, "Megagallons (UK) per Year (365 days)") \
    X(eftMegaGallonsUSPerYear, "Megagallons (US) per Year (365 days)") \
    X(eftAcreFeetPerYear, "Acre-Feet per Year (365 days)") \
    X(eftAcreFeetPerDay, "Acre-Feet per Day") \
    X(eftAcreInchesPerDay, "Acre-Inches per Day") \
    X(eftBarrelsOilPerDay, "Barrels (Oil) per Day") \
    X(eftCusec, "Cusecs")

// TQORTorqueType, in ordinal order.
#define QORKIT_UC_TORQUE_NAMES(X) \
    X(ettNewtonMetres, "Newton Metres") \
    X(ettDyneCentimetres, "Dyne Centimetres") \
    X(ettGramCentimetres, "Gram Centimetres") \
    X(ettKilogramMetres, "Kilogram Metres") \
    X(ettOunceInches, "Ounce Inches") \
    X(ettPoundInches, "Pound Inches") \
    X(ettPoundFeet, "Pound Feet") \
    X(ettPoundalFeet, "Poundal Feet") \
    X(ettTonFeet, "Ton (Long) Feet") \
    X(ettShortTonFeet, "Ton (Short) Feet") \
    X(ettTonneMetres, "Tonne Metres") \
    X(ettNewtonMicrons, "Newton Microns") \
    X(ettNanonewtonMetres, "Nanonewton Metres") \
    X(ettNanonewtonMicrons, "Nanonewton Microns") \
    X(ettNewtonCentimetres, "Newton Centimetres")

// TQORRActiveType, in ordinal order.
#define QORKIT_UC_RACTIVE_NAMES(X) \
    X(ertBecquerels, "Becquerels") \
    X(ertKilobecquerels, "Kilobecquerels") \
    X(ertMegabecquerels, "Megabecquerels") \
    X(ertGigabecquerels, "Gigabecquerels") \
    X(ertCuries, "Curies") \
    X(ertMillicuries, "Millicuries") \
    X(ertMicrocuries, "Microcuries") \
    X(ertRutherfords, "Rutherfords")

// TQORFlowMassType, in ordinal order.
#define QORKIT_UC_FLOWMASS_NAMES(X) \
    X(eftKilogramsPerSecond, "Kilograms per Second") \
    X(eftKilogramsPerMinute, "Kilograms per Minute") \
    X(eftKilogramsPerHour, "Kilograms per Hour") \
    X(eftGramsPerSecond, "Grams per Second") \
    X(eftGramsPerMinute, "Grams per Minute") \
    X(eftGramsPerHour, "Grams per Hour") \
    X(eftPoundsPerSecond, "Pounds per Second") \
    X(eftPoundsPerMinute, "Pounds per Minute") \
    X(eftPoundsPerHour, "Pounds per Hour") \
    X(eftOuncesPerSecond, "Ounces per Second") \
    X(eftOuncesPerMinute, "Ounces per Minute") \
    X(eftOuncesPerHour, "Ounces per Hour") \
    X(eftSlugsPerSecond, "Slugs per Second") \
    X(eftSlugsPerMinute, "Slugs per Minute") \
    X(eftSlugsPerHour, "Slugs per Hour")

// TQORIlluminationType, in ordinal order.
#define QORKIT_UC_ILLUMINATION_NAMES(X) \
    X(eitLux, "Lux") \
    X(eitLumensPerSqM, "Lumens per Sq Metre") \
    X(eitMetreCandles, "Metre-Candles") \
    X(eitFootCandles, "Foot-Candles") \
    X(eitPhots, "Phots") \
    X(eitMilliPhots, "MilliPhots") \
    X(eitNoonSun, "Noon-Day Sun Brightness") \
    X(eitLumensPerSqFt, "Lumens per Sq Foot") \
    X(eitNox, "Nox") \
    X(eitLumensPerSqCm, "Lumens per Sq Centimetre") \
    X(eitMillilux, "Millilux") \
    X(eitKilolux, "Kilolux")

// TQORLuminousType, in ordinal order.
#define QORKIT_UC_LUMINOUS_NAMES(X) \
    X(eltCandelas, "Candelas") \
    X(eltCandles, "Candles (International)") \
    X(eltHefnerUnits, "Hefner Units") \
    X(eltViolle, "Violle") \
    X(eltLumensPerSteradian, "Lumens per Steradian") \
    X(eltBougies, "Bougies (Decimal)") \
    X(eltCarcels, "Carcels") \
    X(eltKilocandelas, "Kilocandelas") \
    X(eltMillicandelas, "Millicandelas")

// TQORLuminanceType, in ordinal order.
#define QORKIT_UC_LUMINANCE_NAMES(X) \
    X(eltCandelasPerSqM, "Candelas per Sq Metre") \
    X(eltCandelasPerSqCm, "Candelas per Sq Centimetre") \
    X(eltCandelasPerSqFt, "Candelas per Sq Foot") \
    X(eltLamberts, "Lamberts") \
    X(eltMillilamberts, "Millilamberts") \
    X(eltFootLamberts, "Foot-Lamberts") \
    X(eltNits, "Nits") \
    X(eltStilbs, "Stilbs") \
    X(eltApostilbs, "Apostilbs")

// TQORLumFluxType, in ordinal order.
#define QORKIT_UC_LUMFLUX_NAMES(X) \
    X(eltLumens, "Lumens") \
    X(eltMillilumens, "Millilumens") \
    X(eltKilolumens, "Kilolumens") \
    X(eltCandelaSteradians, "Candela Steradians") \
    X(eltCandlepowerSpherical, "Candle Power (Spherical)")

// TQORAngVelType, in ordinal order.
#define QORKIT_UC_ANGVEL_NAMES(X) \
    X(eatRadiansPerSec, "Radians per Second") \
    X(eatRadiansPerMin, "Radians per Minute") \
    X(eatRadiansPerHr, "Radians per Hour") \
    X(eatDegreesPerSec, "Degrees per Second") \
    X(eatDegreesPerMin, "Degrees per Minute") \
    X(eatDegreesPerHr, "Degrees per Hour") \
    X(eatRevPerSec, "Revolutions per Second") \
    X(eatRevPerMin, "Revolutions per Minute") \
    X(eatRevPerHr, "Revolutions per Hour") \
    X(eatRPM, "RPMs") \
    X(eatRadiansPerMillisecond, "Radians per Millisecond") \
    X(eatRadiansPerMicrosecond, "Radians per Microsecond") \
    X(eatDegreesPerMillisecond, "Degrees per Millisecond") \
    X(eatDegreesPerMicrosecond, "Degrees per Microsecond")

// TQORAngAccelType, in ordinal order.
#define QORKIT_UC_ANGACCEL_NAMES(X) \
    X(eatRadiansPerSec2, "Radians per Second Squared") \
    X(eatDegreesPerSec2, "Degrees per Second Squared") \
    X(eatRevPerSec2, "Revolutions per Second Squared") \
    X(eatRPMPerSec, "RPM per Second")

// TQORDensityType, in ordinal order.
#define QORKIT_UC_DENSITY_NAMES(X) \
    X(edtKgPerCuM, "Kilograms per Cubic Metre") \
    X(edtKgPerCuCm, "Kilograms per Cubic Centimetre") \
    X(edtGPerCuM, "Grams per Cubic Metre") \
    X(edtGPerCuCm, "Grams per Cubic Centimetre") \
    X(edtLbsPerCuFt, "Pounds per Cubic Foot") \
    X(edtLbsPerCuIn, "Pounds per Cubic Inch") \
    X(edtOzsPerCuFt, "Ounces per Cubic Foot") \
    X(edtOzsPerCuIn, "Ounces per Cubic Inch") \
    X(edtPgPerCuMicron, "Picograms per Cubic Micron") \
    X(edtppm, "ppm") \
    X(edtKilogramsPerLitre, "Kilograms per Litre") \
    X(edtGramsPerLitre, "Grams per Litre") \
    X(edtMilligramsPerLitre, "Milligrams per Litre") \
    X(edtMilligramsPerDecilitre, "Milligrams per Decilitre") \
    X(edtPlasmaticGlucose, "Plasmatic Glucose (mmol/l)") \
    X(edtPoundsPerUSGallon, "Pounds per Gallon (US)") \
    X(edtPoundsPerUKGallon, "Pounds per Gallon (UK)") \
    X(edtOuncesPerUSGallon, "Ounces per Gallon (US)") \
    X(edtOuncesPerUKGallon, "Ounces per Gallon (UK)") \
    X(edtEarthDensities, "Earth Densities") \
    X(edtLunaDensities, "Luna Densities") \
    X(edtMarsDensities, "Mars Densities") \
    X(edtVenusDensities, "Venus Densities") \
    X(edtMercuryDensities, "Mercury Densities") \
    X(edtJupiterDensities, "Jupiter Densities") \
    X(edtSaturnDensities, "Saturn Densities") \
    X(edtUranusDensities, "Uranus Densities") \
    X(edtNeptuneDensities, "Neptune Densities") \
    X(edtSolarDensities, "Solar Densities")

// TQORVisDynType, in ordinal order.
#define QORKIT_UC_VISDYN_NAMES(X) \
    X(evdtPascalSecs, "Pascal Seconds") \
    X(evdtPoise, "Poises") \
    X(evdtCentipoise, "Centipoises") \
    X(evdtPoiseuille, "Poiseuilles") \
    X(evdtReynolds, "Reynolds") \
    X(evdtLbSecsPerSqFt, "Pound Seconds per Square Foot") \
    X(evdtLbSecsPerSqInch, "Pound Seconds per Square Inch") \
    X(evdtPSISecs, "PSI Seconds") \
    X(evdtDyneSecsPerSqCm, "Dyne Seconds per Square Centimetre") \
    X(evdtGSecsPerSqCM, "Gram Seconds per Square Centimetre") \
    X(evdtKGSecsPerSqM, "Kilogram Seconds per Square Metre")

// TQORVisKinType, in ordinal order.
#define QORKIT_UC_VISKIN_NAMES(X) \
    X(evktSqMPerSec, "Square Metres per Second") \
    X(evktStokes, "Stokes") \
    X(evktCentiStokes, "Centistokes") \
    X(evktSqFtPerSec, "Square Feet per Second") \
    X(evktSqCmPerSec, "Square Centimetres per Second")

// TQORElChargeType, in ordinal order.
#define QORKIT_UC_ELCHARGE_NAMES(X) \
    X(eelcCoulombs, "Coulombs") \
    X(eelcAbcoulombs, "Abcoulombs") \
    X(eelcStatcoulombs, "Statcoulombs") \
    X(eelcKilocoulombs, "Kilocoulombs") \
    X(eelcMegacoulombs, "Megacoulombs") \
    X(eelcMillicoulombs, "Millicoulombs") \
    X(eelcMicrocoulombs, "Microcoulombs") \
    X(eelcAmpSeconds, "Ampere Seconds") \
    X(eelcAmpMinutes, "Ampere Minutes") \
    X(eelcAmpHours, "Ampere Hours") \
    X(eelcMilliampHours, "Milliamp Hours (mAh)") \
    X(eelcMilliampSeconds, "Milliamp Seconds (mAs)") \
    X(eelcElementaryCharges, "Elementary Charges") \
    X(eelcFaradays, "Faradays") \
    X(eelcFranklins, "Franklins") \
    X(eelcFaradVolts, "Farad Volts") \
    X(eelcESU, "Electrostatic Unit of Charge") \
    X(eelcEMU, "Electromagnetic Unit of Charge") \
    X(eelcGigacoulombs, "Gigacoulombs") \
    X(eelcNanocoulombs, "Nanocoulombs") \
    X(eelcCoulombsInternational, "Coulombs (International)")

// TQORCurrentType, in ordinal order.
#define QORKIT_UC_CURRENT_NAMES(X) \
    X(ecAmps, "Amperes") \
    X(ecAbamps, "Abamperes") \
    X(ecStatamps, "Statamperes") \
    X(ecKiloamps, "Kiloamperes") \
    X(ecMegaamps, "Megaamperes") \
    X(ecMilliamps, "Milliamperes") \
    X(ecMicroamps, "Microamperes") \
    X(ecCoulombsPerSecond, "Coulombs per Second") \
    X(ecCoulombsperMinute, "Coulombs per Minute") \
    X(ecCoulombsperHour, "Coulombs per Hour") \
    X(ecBiot, "Biots") \
    X(ecEMU, "Electromagnetic Unit of Current") \
    X(ecESU, "Electrostatic Unit of Current") \
    X(ecNanoamps, "Nanoamperes") \
    X(ecGilberts, "Gilberts") \
    X(ecGigaamps, "Gigaamperes") \
    X(ecAmpsInternational, "Amperes (International)")

// TQORMagneticFieldStrengthType, in ordinal order.
#define QORKIT_UC_MAGNETICFIELDSTRENGTH_NAMES(X) \
    X(emtAmperesPerMetre, "Amperes per Metre") \
    X(emtOersteds, "Oersteds") \
    X(emtGilbertsPerMetre, "Gilberts per Metre") \
    X(emtGilbertsPerCentimetre, "Gilberts per Centimetre") \
    X(emtAmperesPerCentimetre, "Amperes per Centimetre")

// TQORMagneticFluxType, in ordinal order.
#define QORKIT_UC_MAGNETICFLUX_NAMES(X) \
    X(emWebers, "Webers") \
    X(emMaxwells, "Maxwells") \
    X(emMilliwebers, "Milliwebers") \
    X(emMicrowebers, "Microwebers") \
    X(emLines, "Lines") \
    X(emKilolines, "Kilolines") \
    X(emMegalines, "Megalines") \
    X(emJoulesPerAmp, "Joules Per Ampere") \
    X(emVoltSeconds, "Volt Seconds")

// TQORMagneticFluxDensityType, in ordinal order.
#define QORKIT_UC_MAGNETICFLUXDENSITY_NAMES(X) \
    X(emTeslas, "Teslas") \
    X(emGauss, "Gauss") \
    X(emMilliteslas, "Milliteslas") \
    X(emMicroteslas, "Microteslas") \
    X(emNanoteslas, "Nanoteslas") \
    X(emGammas, "Gammas") \
    X(emWebersPerSqM, "Webers Per Square Metre") \
    X(emWebersPerSqCm, "Webers Per Square Centimetre") \
    X(emMaxwellsPerSqIn, "Maxwells Per Square Inch") \
    X(emLinesPerSqIn, "Lines Per Square Inch")

// TQORRadDoseType, in ordinal order.
#define QORKIT_UC_RADDOSE_NAMES(X) \
    X(erdSieverts, "Sieverts") \
    X(erdMillisieverts, "Millisieverts") \
    X(erdMicrosieverts, "Microsieverts") \
    X(erdRems, "Rems") \
    X(erdMillirems, "Millirems") \
    X(erdMicrorems, "Microrems")

// TQORRadAbsorptionType, in ordinal order.
#define QORKIT_UC_RADABSORPTION_NAMES(X) \
    X(eraGrays, "Grays") \
    X(eraMilligrays, "Milligrays") \
    X(eraMicrograys, "Micrograys") \
    X(eraRads, "Rads") \
    X(eraMillirads, "Millirads") \
    X(eraMicrorads, "Microrads")

// clang-format on

// Messages of the conversion routines, and texts that no names array uses.
#define QORKIT_RS_UC_TEXTS(X)                                                                      \
    X(rsFahrenheitBelowZero, "Temperature cannot be below -459.67 F")                              \
    X(rsCelsiusBelowZero, "Temperature cannot be below -273.15 C")                                 \
    X(rsKelvinBelowZero, "Temperature cannot be below 0 Kelvin")                                   \
    X(rsRankineBelowZero, "Temperature cannot be below 0 Rankine")                                 \
    X(rsKPLZero, "Kilometres per Litre cannot be 0!")                                              \
    X(rsLP100KZero, "Litres per 100 KM cannot be 0!")                                              \
    X(rsUnknownUnit, "Unknown unit '%s'")                                                          \
    X(rsUnknownQuantity, "Unknown quantity '%s'")                                                  \
    X(rsSunDaysSidereal, "Days (Sidereal - Sun)")                                                  \
    X(rsThermWattsPerMetreKelvin, "Watts per Metre Kelvin")                                        \
    X(rsThermWattsPerCentimetreCelsius, "Watts per Centimetre Celsius")                            \
    X(rsThermKilowattsPerMetreKelvin, "Kilowatts per Metre Kelvin")                                \
    X(rsThermCaloriesITPerSecCmC, "Calories (IT) per Second per Centimetre Celsius")               \
    X(rsThermCaloriesThPerSecCmC, "Calories (Th) per Second per Centimetre Celsius")               \
    X(rsThermKilocaloriesITPerHourMC, "Kilocalories (IT) per Hour per Metre Celsius")              \
    X(rsThermBTUsITPerHourFootF, "BTUs (IT) per Hour per Foot Fahrenheit")                         \
    X(rsThermBTUsITInchPerHourSqFootF, "BTUs (IT) Inches per Hour per Sq Foot Fahrenheit")         \
    X(rsThermWattsPerFootFahrenheit, "Watts per Foot Fahrenheit")

// Every names list, with the stem of its names array: X(LIST, Stem).
#define QORKIT_UC_NAME_LISTS(X)                                                                    \
    X(QORKIT_UC_CONV_NAMES, Conv)                                                                  \
    X(QORKIT_UC_QUANTITY_NAMES, Quantity)                                                          \
    X(QORKIT_UC_COMPUTER_NAMES, Computer)                                                          \
    X(QORKIT_UC_DATARATE_NAMES, DataRate)                                                          \
    X(QORKIT_UC_ANGLE_NAMES, Angle)                                                                \
    X(QORKIT_UC_TIME_NAMES, Time)                                                                  \
    X(QORKIT_UC_TEMP_NAMES, Temp)                                                                  \
    X(QORKIT_UC_DIST_NAMES, Dist)                                                                  \
    X(QORKIT_UC_MASS_NAMES, Mass)                                                                  \
    X(QORKIT_UC_VOL_NAMES, Vol)                                                                    \
    X(QORKIT_UC_AREA_NAMES, Area)                                                                  \
    X(QORKIT_UC_PRESSURE_NAMES, Pressure)                                                          \
    X(QORKIT_UC_VELOCITY_NAMES, Velocity)                                                          \
    X(QORKIT_UC_ACCELERATION_NAMES, Acceleration)                                                  \
    X(QORKIT_UC_FORCE_NAMES, Force)                                                                \
    X(QORKIT_UC_ENERGY_NAMES, Energy)                                                              \
    X(QORKIT_UC_POWER_NAMES, Power)                                                                \
    X(QORKIT_UC_FUEL_NAMES, Fuel)                                                                  \
    X(QORKIT_UC_FLOW_NAMES, Flow)                                                                  \
    X(QORKIT_UC_TORQUE_NAMES, Torque)                                                              \
    X(QORKIT_UC_RACTIVE_NAMES, RActive)                                                            \
    X(QORKIT_UC_FLOWMASS_NAMES, FlowMass)                                                          \
    X(QORKIT_UC_ILLUMINATION_NAMES, Illumination)                                                  \
    X(QORKIT_UC_LUMINOUS_NAMES, Luminous)                                                          \
    X(QORKIT_UC_LUMINANCE_NAMES, Luminance)                                                        \
    X(QORKIT_UC_LUMFLUX_NAMES, LumFlux)                                                            \
    X(QORKIT_UC_ANGVEL_NAMES, AngVel)                                                              \
    X(QORKIT_UC_ANGACCEL_NAMES, AngAccel)                                                          \
    X(QORKIT_UC_DENSITY_NAMES, Density)                                                            \
    X(QORKIT_UC_VISDYN_NAMES, VisDyn)                                                              \
    X(QORKIT_UC_VISKIN_NAMES, VisKin)                                                              \
    X(QORKIT_UC_ELCHARGE_NAMES, ElCharge)                                                          \
    X(QORKIT_UC_CURRENT_NAMES, Current)                                                            \
    X(QORKIT_UC_MAGNETICFIELDSTRENGTH_NAMES, MagneticFieldStrength)                                \
    X(QORKIT_UC_MAGNETICFLUX_NAMES, MagneticFlux)                                                  \
    X(QORKIT_UC_MAGNETICFLUXDENSITY_NAMES, MagneticFluxDensity)                                    \
    X(QORKIT_UC_RADDOSE_NAMES, RadDose)                                                            \
    X(QORKIT_UC_RADABSORPTION_NAMES, RadAbsorption)

#define QORKIT_UC_DECLARE_NAME(member, text) QORKIT_CORE_EXPORT std::string rsName_##member();
#define QORKIT_UC_DECLARE_LIST(list, stem) list(QORKIT_UC_DECLARE_NAME)
QORKIT_UC_NAME_LISTS(QORKIT_UC_DECLARE_LIST)
QORKIT_RS_UC_TEXTS(QORKIT_CORE_DECLARE_TEXT)

// Every text of this module, in table order: the names of all lists, then the other texts.
QORKIT_CORE_EXPORT std::span<const TResourceText> UCTexts();

// The context under which the texts of this module are translated.
inline constexpr std::string_view UCTextContext = "QORKIT_RS_UC";

} // namespace qorkit
