// What people type for a unit besides its display name: singulars ("foot", "inch"), US
// spellings ("meter", "liter"), symbols and abbreviations ("ft", "lb", "°F", "km/h").
//
// One row per spelling; a spelling may name units of several quantities ("min" is a minute of
// time and of arc, "C" is Celsius and coulombs) and the reader picks by quantity. Spellings are
// compared without regard to ASCII case, so a spelling that differs from another only in case
// ("mB" / "MB") is left out rather than given to one of them. Where a bare name has both a UK
// and a US unit ("gallon", "pint", "ton"), it names the US one, as in US usage; the UK units have
// their own spellings ("imperial gallon", "uk pint", "long ton").
#pragma once

#include "QORKITConversion.h"
#include "qorkit_core_export.h"

#include <cstddef>
#include <string_view>

namespace qorkit {

struct QORKIT_CORE_EXPORT TQORUnitAlias {
    std::string_view Alias;
    TQORConvType Quantity;
    std::size_t Unit;
};

template<typename E> constexpr TQORUnitAlias UnitAlias(std::string_view alias, E unit) noexcept
{
    return {alias, QuantityOf(unit), static_cast<std::size_t>(unit)};
}

// clang-format off
inline constexpr TQORUnitAlias QORUnitAliases[] = {
    // Temperature
    UnitAlias("°C", ettCelsius), UnitAlias("C", ettCelsius), UnitAlias("degC", ettCelsius),
    UnitAlias("centigrade", ettCelsius),
    UnitAlias("°F", ettFahrenheit), UnitAlias("F", ettFahrenheit), UnitAlias("degF", ettFahrenheit),
    UnitAlias("K", ettKelvin), UnitAlias("°R", ettRankine), UnitAlias("R", ettRankine),
    UnitAlias("degR", ettRankine), UnitAlias("Reaumur", ettReaumur), UnitAlias("Romer", ettRomer),

    // Distance
    UnitAlias("m", edtMetres), UnitAlias("metre", edtMetres), UnitAlias("meter", edtMetres),
    UnitAlias("meters", edtMetres),
    UnitAlias("km", edtKilometres), UnitAlias("kilometre", edtKilometres),
    UnitAlias("kilometer", edtKilometres), UnitAlias("kilometers", edtKilometres),
    UnitAlias("cm", edtCentimetres), UnitAlias("centimetre", edtCentimetres),
    UnitAlias("centimeter", edtCentimetres), UnitAlias("centimeters", edtCentimetres),
    UnitAlias("mm", edtMillimetres), UnitAlias("millimetre", edtMillimetres),
    UnitAlias("millimeter", edtMillimetres), UnitAlias("millimeters", edtMillimetres),
    UnitAlias("µm", edtMicrometres), UnitAlias("um", edtMicrometres),
    UnitAlias("micrometer", edtMicrometres), UnitAlias("micron", edtMicrons),
    UnitAlias("nm", edtNanometres), UnitAlias("nanometer", edtNanometres),
    UnitAlias("Å", edtAngstroms), UnitAlias("angstrom", edtAngstroms),
    UnitAlias("ft", edtFeet), UnitAlias("foot", edtFeet), UnitAlias("'", edtFeet),
    UnitAlias("in", edtInches), UnitAlias("inch", edtInches), UnitAlias("\"", edtInches),
    UnitAlias("yd", edtYards), UnitAlias("yard", edtYards),
    UnitAlias("mi", edtMiles), UnitAlias("mile", edtMiles),
    UnitAlias("nmi", edtNauticalMilesInt), UnitAlias("nautical mile", edtNauticalMilesInt),
    UnitAlias("nautical miles", edtNauticalMilesInt),
    UnitAlias("au", edtAstronomicalUnits), UnitAlias("ly", edtLightYears),
    UnitAlias("light year", edtLightYears), UnitAlias("light-year", edtLightYears),
    UnitAlias("pc", edtParsecs), UnitAlias("parsec", edtParsecs),
    UnitAlias("fathom", edtFathoms), UnitAlias("furlong", edtFurlongs),

    // Mass
    UnitAlias("kg", emtKilograms), UnitAlias("kilogram", emtKilograms),
    UnitAlias("kilo", emtKilograms), UnitAlias("kilos", emtKilograms),
    UnitAlias("g", emtGrams), UnitAlias("gram", emtGrams), UnitAlias("gramme", emtGrams),
    UnitAlias("mg", emtMilligrams), UnitAlias("milligram", emtMilligrams),
    UnitAlias("µg", emtMicrograms), UnitAlias("ug", emtMicrograms),
    UnitAlias("mcg", emtMicrograms), UnitAlias("microgram", emtMicrograms),
    UnitAlias("t", emtTonnes), UnitAlias("tonne", emtTonnes), UnitAlias("metric ton", emtTonnes),
    UnitAlias("lb", emtPounds), UnitAlias("lbs", emtPounds), UnitAlias("pound", emtPounds),
    UnitAlias("oz", emtOunces), UnitAlias("ounce", emtOunces),
    UnitAlias("st", emtStones), UnitAlias("stone", emtStones),
    UnitAlias("ton", emtShortTons), UnitAlias("tons", emtShortTons),
    UnitAlias("short ton", emtShortTons), UnitAlias("long ton", emtTons),
    UnitAlias("ct", emtCarats), UnitAlias("carat", emtCarats),
    UnitAlias("gr", emtGrains), UnitAlias("grain", emtGrains),
    UnitAlias("ozt", emtTroyOunces), UnitAlias("troy ounce", emtTroyOunces),

    // Area
    UnitAlias("m²", eatSqMetres), UnitAlias("m2", eatSqMetres), UnitAlias("sq m", eatSqMetres),
    UnitAlias("square meter", eatSqMetres), UnitAlias("square meters", eatSqMetres),
    UnitAlias("km²", eatSqKilometres), UnitAlias("km2", eatSqKilometres),
    UnitAlias("sq km", eatSqKilometres), UnitAlias("square kilometer", eatSqKilometres),
    UnitAlias("cm²", eatSqCentimetres), UnitAlias("cm2", eatSqCentimetres),
    UnitAlias("ft²", eatSqFeet), UnitAlias("ft2", eatSqFeet), UnitAlias("sq ft", eatSqFeet),
    UnitAlias("square foot", eatSqFeet),
    UnitAlias("in²", eatSqInches), UnitAlias("in2", eatSqInches), UnitAlias("sq in", eatSqInches),
    UnitAlias("square inch", eatSqInches),
    UnitAlias("yd²", eatSqYards), UnitAlias("sq yd", eatSqYards),
    UnitAlias("mi²", eatSqMiles), UnitAlias("sq mi", eatSqMiles),
    UnitAlias("square mile", eatSqMiles),
    UnitAlias("ha", eatHectares), UnitAlias("hectare", eatHectares),
    UnitAlias("acre", eatAcres), UnitAlias("ac", eatAcres),

    // Volume
    UnitAlias("l", evtLitres), UnitAlias("litre", evtLitres), UnitAlias("liter", evtLitres),
    UnitAlias("liters", evtLitres),
    UnitAlias("ml", evtMillilitres), UnitAlias("millilitre", evtMillilitres),
    UnitAlias("milliliter", evtMillilitres), UnitAlias("milliliters", evtMillilitres),
    UnitAlias("cl", evtCentilitres), UnitAlias("dl", evtDeciLitres),
    UnitAlias("m³", evtCubicMetres), UnitAlias("m3", evtCubicMetres),
    UnitAlias("cubic meter", evtCubicMetres), UnitAlias("cubic meters", evtCubicMetres),
    UnitAlias("cm³", evtCubicCentimetres), UnitAlias("cm3", evtCubicCentimetres),
    UnitAlias("cc", evtCubicCentimetres),
    UnitAlias("ft³", evtCubicFeet), UnitAlias("ft3", evtCubicFeet), UnitAlias("cu ft", evtCubicFeet),
    UnitAlias("in³", evtCubicInches), UnitAlias("in3", evtCubicInches),
    UnitAlias("cu in", evtCubicInches),
    UnitAlias("gal", evtGallonsUS), UnitAlias("gallon", evtGallonsUS),
    UnitAlias("gallons", evtGallonsUS), UnitAlias("us gallon", evtGallonsUS),
    UnitAlias("imperial gallon", evtGallonsUK), UnitAlias("uk gallon", evtGallonsUK),
    UnitAlias("pt", evtPintsUS), UnitAlias("pint", evtPintsUS), UnitAlias("pints", evtPintsUS),
    UnitAlias("imperial pint", evtPintsUK), UnitAlias("uk pint", evtPintsUK),
    UnitAlias("qt", evtQuartsUS), UnitAlias("quart", evtQuartsUS),
    UnitAlias("quarts", evtQuartsUS),
    UnitAlias("fl oz", evtFluidOuncesUS), UnitAlias("floz", evtFluidOuncesUS),
    UnitAlias("fluid ounce", evtFluidOuncesUS), UnitAlias("fluid ounces", evtFluidOuncesUS),
    UnitAlias("cup", evtCupsUS), UnitAlias("cups", evtCupsUS),
    UnitAlias("tbsp", evtTablespoonUS), UnitAlias("tablespoon", evtTablespoonUS),
    UnitAlias("tablespoons", evtTablespoonUS),
    UnitAlias("tsp", evtTeaspoonUS), UnitAlias("teaspoon", evtTeaspoonUS),
    UnitAlias("teaspoons", evtTeaspoonUS),
    UnitAlias("bbl", evtBarrelsOil), UnitAlias("barrel", evtBarrelsOil),

    // Time
    UnitAlias("s", ettSeconds), UnitAlias("sec", ettSeconds), UnitAlias("secs", ettSeconds),
    UnitAlias("second", ettSeconds),
    UnitAlias("ms", ettMilliseconds), UnitAlias("millisecond", ettMilliseconds),
    UnitAlias("µs", ettMicroseconds), UnitAlias("us", ettMicroseconds),
    UnitAlias("ns", ettNanoseconds),
    UnitAlias("min", ettMinutes), UnitAlias("mins", ettMinutes), UnitAlias("minute", ettMinutes),
    UnitAlias("h", ettHours), UnitAlias("hr", ettHours), UnitAlias("hrs", ettHours),
    UnitAlias("hour", ettHours),
    UnitAlias("d", ettDays), UnitAlias("day", ettDays),
    UnitAlias("wk", ettWeeks), UnitAlias("week", ettWeeks),
    UnitAlias("fortnight", ettFortnights),
    UnitAlias("yr", ettYearsGregorian), UnitAlias("year", ettYearsGregorian),
    UnitAlias("years", ettYearsGregorian),

    // Velocity
    UnitAlias("m/s", evtMetresPerSec), UnitAlias("meters per second", evtMetresPerSec),
    UnitAlias("km/h", evtKilometresPerHr),
    UnitAlias("kmh", evtKilometresPerHr), UnitAlias("kilometers per hour", evtKilometresPerHr),
    UnitAlias("mi/h", evtMilesPerHr),
    UnitAlias("ft/s", evtFeetPerSec), UnitAlias("fps", evtFeetPerSec),
    UnitAlias("kn", evtKnotsUK), UnitAlias("kt", evtKnotsUK), UnitAlias("knot", evtKnotsUK),
    UnitAlias("knots", evtKnotsUK),

    // Acceleration
    UnitAlias("m/s²", eatMetresPerSec2), UnitAlias("m/s2", eatMetresPerSec2),
    UnitAlias("ft/s²", eatFeetPerSec2), UnitAlias("ft/s2", eatFeetPerSec2),
    UnitAlias("gee", eatGravity),

    // Pressure
    UnitAlias("Pa", eptPascals), UnitAlias("pascal", eptPascals),
    UnitAlias("hPa", eptHectopascals), UnitAlias("kPa", eptKilopascals),
    UnitAlias("MPa", eptMegapascals), UnitAlias("GPa", eptGigapascals),
    UnitAlias("bar", eptBars), UnitAlias("mbar", eptMillibars), UnitAlias("millibar", eptMillibars),
    UnitAlias("atm", eptAtmospheres), UnitAlias("atmosphere", eptAtmospheres),
    UnitAlias("torr", eptTorrs), UnitAlias("mmHg", eptMillimetresOfMercury0C),
    UnitAlias("inHg", eptInchesOfMercury0C), UnitAlias("psf", eptPoundsPerSqFoot),

    // Force
    UnitAlias("N", eftNewtons), UnitAlias("newton", eftNewtons),
    UnitAlias("kN", eftKilonewtons), UnitAlias("dyn", eftDynes), UnitAlias("dyne", eftDynes),
    UnitAlias("kgf", eftKilogramsForce), UnitAlias("kilogram force", eftKilogramsForce),
    UnitAlias("lbf", eftPoundsForce), UnitAlias("pound force", eftPoundsForce),

    // Energy
    UnitAlias("J", eetJoules), UnitAlias("joule", eetJoules),
    UnitAlias("cal", eetCaloriesIT), UnitAlias("calorie", eetCaloriesIT),
    UnitAlias("Wh", eetWattHours), UnitAlias("watt hour", eetWattHours),
    UnitAlias("kWh", eetKilowattHours), UnitAlias("kilowatt hour", eetKilowattHours),
    UnitAlias("eV", eetElectronVolts), UnitAlias("electronvolt", eetElectronVolts),
    UnitAlias("ft-lb", eetFootPounds), UnitAlias("ft·lbf", eetFootPounds),

    // Power
    UnitAlias("W", eptWatts), UnitAlias("watt", eptWatts),
    UnitAlias("kW", eptKilowatts), UnitAlias("kilowatt", eptKilowatts),
    UnitAlias("MW", eptMegawatts), UnitAlias("megawatt", eptMegawatts),
    UnitAlias("GW", eptGigawatts),
    UnitAlias("hp", eptHorsepower), UnitAlias("horsepower", eptHorsepower),
    UnitAlias("PS", eptHorsepowerMetric),

    // Fuel consumption
    UnitAlias("mpg", eftMilesPerGallonUS), UnitAlias("km/l", eftKilometresPerLitre),
    UnitAlias("l/100km", eftLitresPer100Kilometres),

    // Torque
    UnitAlias("N·m", ettNewtonMetres), UnitAlias("Nm", ettNewtonMetres),
    UnitAlias("lb-ft", ettPoundFeet), UnitAlias("lbf·ft", ettPoundFeet),

    // Angle
    UnitAlias("°", eatDegrees), UnitAlias("deg", eatDegrees), UnitAlias("degree", eatDegrees),
    UnitAlias("rad", eatRadians), UnitAlias("radian", eatRadians),
    UnitAlias("mrad", eatMilliradians), UnitAlias("grad", eatGrads), UnitAlias("gon", eatGrads),
    UnitAlias("arcmin", eatMinutes), UnitAlias("arcsec", eatSeconds),
    UnitAlias("%", eatGrade), UnitAlias("percent", eatGrade), UnitAlias("‰", eatGradePerMil),
    UnitAlias("turn", eatCircles), UnitAlias("revolution", eatCircles),

    // Computer storage and data rates
    UnitAlias("byte", ectBytes), UnitAlias("bit", ectBits), UnitAlias("nibble", ectNibbles),
    UnitAlias("bit/s", edrBitsPS), UnitAlias("bps", edrBitsPS),

    // Others
    UnitAlias("lx", eitLux), UnitAlias("cd", eltCandelas), UnitAlias("candela", eltCandelas),
    UnitAlias("lm", eltLumens), UnitAlias("A", ecAmps), UnitAlias("amp", ecAmps),
    UnitAlias("ampere", ecAmps), UnitAlias("C", eelcCoulombs), UnitAlias("coulomb", eelcCoulombs),
    UnitAlias("Wb", emWebers), UnitAlias("tesla", emTeslas),
    UnitAlias("Bq", ertBecquerels), UnitAlias("Sv", erdSieverts), UnitAlias("Gy", eraGrays),
    UnitAlias("rpm", eatRevPerMin), UnitAlias("kg/m³", edtKgPerCuM),
    UnitAlias("kg/m3", edtKgPerCuM),
};
// clang-format on

} // namespace qorkit
