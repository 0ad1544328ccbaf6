#include "QORKITConstants.h"
#include "QORKITConversion.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"
#include "QORKITUnitAliases.h"
#include "QORKIT_RS_UC.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qorkit {
namespace {

using test::GlobalStateTest;

::testing::AssertionResult Near(long double actual, long double expected, long double rel = 1e-15L)
{
    const long double scale = std::fmax(std::fabs(expected), 1.0L);
    if (std::fabs(actual - expected) <= rel * scale)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
        << static_cast<double>(actual) << " is not " << static_cast<double>(expected);
}

// ---- Temperature
// ---------------------------------------------------------------------------------

struct TFixedPoint {
    const char* Name;
    TQORTempType From;
    long double Value;
    TQORTempType To;
    long double Expected;
};

class TemperatureFixedPoints : public ::testing::TestWithParam<TFixedPoint> { };

TEST_P(TemperatureFixedPoints, ConvertThroughCelsius)
{
    const auto& p = GetParam();
    EXPECT_TRUE(Near(ConvertUnit(p.From, p.To, p.Value), p.Expected, 1e-15L));
}

INSTANTIATE_TEST_SUITE_P(
    Scales, TemperatureFixedPoints,
    ::testing::Values(
        TFixedPoint {"MinusFortyIsTheSameInFahrenheit", ettCelsius, -40, ettFahrenheit, -40},
        TFixedPoint {"WaterFreezesAt32F", ettCelsius, 0, ettFahrenheit, 32},
        TFixedPoint {"WaterBoilsAt212F", ettFahrenheit, 212, ettCelsius, 100},
        TFixedPoint {"FreezingIs7Point5Romer", ettCelsius, 0, ettRomer, 7.5L},
        TFixedPoint {"FreezingIs150Delisle", ettCelsius, 0, ettDelisle, 150},
        TFixedPoint {"BoilingIs60Romer", ettCelsius, 100, ettRomer, 60},
        TFixedPoint {"BoilingIs0Delisle", ettCelsius, 100, ettDelisle, 0},
        TFixedPoint {"BoilingIs33Newton", ettCelsius, 100, ettNewton, 33},
        TFixedPoint {"BoilingIs80Reaumur", ettCelsius, 100, ettReaumur, 80},
        TFixedPoint {"AbsoluteZeroIs0Kelvin", ettCelsius, -273.15L, ettKelvin, 0},
        TFixedPoint {"AbsoluteZeroIs0Rankine", ettFahrenheit, -459.67L, ettRankine, 0},
        TFixedPoint {"KelvinToRankineIsNineFifths", ettKelvin, 100, ettRankine, 180},
        TFixedPoint {"RomerToDelisle", ettRomer, 60, ettDelisle, 0},
        TFixedPoint {"NewtonToReaumur", ettNewton, 33, ettReaumur, 80}),
    [](const auto& row) { return std::string(row.param.Name); });

struct TRejection {
    const char* Name;
    long double (*Routine)(long double);
    long double Value;
    const char* Message;
};

class TemperatureRejections : public ::testing::TestWithParam<TRejection> { };

TEST_P(TemperatureRejections, RaiseWithTheirMessage)
{
    const auto& p = GetParam();
    try {
        p.Routine(p.Value);
        FAIL() << "no exception";
    } catch (const EMathError& e) {
        EXPECT_STREQ(e.what(), p.Message);
    }
}

constexpr const char* kBelowF = "Temperature cannot be below -459.67 F";
constexpr const char* kBelowC = "Temperature cannot be below -273.15 C";
constexpr const char* kBelowK = "Temperature cannot be below 0 Kelvin";
constexpr const char* kBelowR = "Temperature cannot be below 0 Rankine";

INSTANTIATE_TEST_SUITE_P(
    BelowAbsoluteZero, TemperatureRejections,
    ::testing::Values(
        TRejection {"F2C", TempF2C, -459.69L, kBelowF}, TRejection {"F2K", TempF2K, -460, kBelowF},
        TRejection {"F2R", TempF2R, -460, kBelowF}, TRejection {"C2F", TempC2F, -273.17L, kBelowC},
        TRejection {"C2K", TempC2K, -274, kBelowC}, TRejection {"C2R", TempC2R, -274, kBelowC},
        TRejection {"C2Reaumur", TempC2Reaumur, -274, kBelowC},
        TRejection {"C2Romer", TempC2Romer, -274, kBelowC},
        TRejection {"C2Delisle", TempC2Delisle, -274, kBelowC},
        TRejection {"C2Newton", TempC2Newton, -274, kBelowC},
        TRejection {"K2C", TempK2C, -0.02L, kBelowK}, TRejection {"K2F", TempK2F, -1, kBelowK},
        TRejection {"K2R", TempK2R, -1, kBelowK}, TRejection {"R2F", TempR2F, -1, kBelowR},
        TRejection {"R2C", TempR2C, -1, kBelowR}, TRejection {"R2K", TempR2K, -1, kBelowR},
        // The four scales below name Rankine on purpose.
        TRejection {"Reaumur2C", TempReaumur2C, -300, kBelowR},
        TRejection {"Romer2C", TempRomer2C, -136, kBelowR},
        TRejection {"Delisle2C", TempDelisle2C, 560, kBelowR},
        TRejection {"Newton2C", TempNewton2C, -91, kBelowR}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(Temperature, ToleratesOneHundredthBelowAbsoluteZero)
{
    EXPECT_TRUE(Near(TempK2C(-0.005L), -273.155L));
    EXPECT_TRUE(Near(TempC2K(-273.155L), -0.005L, 1e-12L));
    EXPECT_TRUE(Near(TempF2R(-459.675L), -0.005L, 1e-12L));
    // The scales checked on their Celsius result accept the same margin.
    EXPECT_NO_THROW(TempRomer2C((-273.155L) * 21 / 40 + 7.5L));
}

TEST(Temperature, RejectionLeavesConvertUnitsWithTheRoutineException)
{
    EXPECT_THROW(ConvertUnit(ettKelvin, ettFahrenheit, -5.0L), EMathError);
    EXPECT_THROW(ConvertUnit(ettRomer, ettKelvin, -200.0L), EMathError);
}

// ---- Fuel
// ----------------------------------------------------------------------------------------

TEST(Fuel, ReciprocalFormulasAreTheirOwnInverse)
{
    EXPECT_TRUE(Near(FuelLP100K2KPL(8), 12.5L));
    EXPECT_TRUE(Near(FuelKPL2LP100K(12.5L), 8));
    // 10 km/l = 100 km per 10 l; in miles: 100 * 1.609344 / 10 = 16.09344 l per 100 miles.
    EXPECT_TRUE(Near(FuelKPL2LP100M(10), 16.09344L));
    EXPECT_TRUE(Near(FuelLP100M2KPL(16.09344L), 10));
    // 30 mpg (US) = 30 * 1.609344 km / 3.785411784 l.
    EXPECT_TRUE(Near(FuelMPGUS2KPL(30), 30 * 1.609344L / 3.785411784L));
    EXPECT_TRUE(Near(FuelKPL2MPGUK(1), 4.54609L / 1.609344L));
    EXPECT_TRUE(Near(ConvertUnit(eftMPGUK, eftGallonsUKPer100Miles, 50.0L), 2));
    EXPECT_TRUE(Near(ConvertUnit(eftGallonsUSPer100Kilometres, eftGallonsUSPer100Kilometres, 4.0L),
                     4, 1e-14L));
}

TEST(Fuel, ZeroIsRejectedOnlyByTheReciprocalRoutines)
{
    EXPECT_EQ(FuelKPL2KPGUK(0), 0);
    EXPECT_EQ(FuelMPGUK2KPL(0), 0);
    // Zero and a figure inside the zero tolerance whose product with a gallon is not.
    const auto expectMessage = [](long double (*routine)(long double), const std::string& text) {
        for (const long double x : {0.0L, QORFloatTolerance / 2}) {
            try {
                routine(x);
                ADD_FAILURE() << "no exception for " << x << ", " << text;
            } catch (const EMathError& e) {
                EXPECT_EQ(e.what(), text);
            }
        }
    };
    for (auto* routine : {FuelKPL2LP100K, FuelKPL2LP100M, FuelKPL2GUKP100K, FuelKPL2GUSP100K,
                          FuelKPL2GUKP100M, FuelKPL2GUSP100M})
        expectMessage(routine, "Kilometres per Litre cannot be 0!");
    expectMessage(FuelLP100K2KPL, "Litres per 100 KM cannot be 0!");
    for (auto* routine :
         {FuelLP100M2KPL, FuelGUKP100K2KPL, FuelGUSP100K2KPL, FuelGUKP100M2KPL, FuelGUSP100M2KPL})
        expectMessage(routine, rsDivideByZero());
    // The zero test has a tolerance.
    EXPECT_THROW(FuelKPL2LP100K(1e-30L), EMathError);
}

// ---- Anchors and quirks
// --------------------------------------------------------------------------

TEST(Anchors, ChainsEndAtTheirDefinitions)
{
    EXPECT_EQ(DistInches2M(1), 0.0254L);
    EXPECT_TRUE(Near(DistFeet2M(1), 0.3048L));
    EXPECT_TRUE(Near(DistMiles2Km(1), 1.609344L));
    EXPECT_TRUE(Near(DistKm2Miles(1.609344L), 1));
    EXPECT_TRUE(Near(DistInches2Cm(1), 2.54L));
    EXPECT_TRUE(Near(DistAUs2Km(1), 149597870.7L));
    EXPECT_TRUE(Near(DistLightYears365_2Km(1), 299792.458L * 365 * 86400));
    EXPECT_EQ(MassLbs2Kg(1), 0.45359237L);
    EXPECT_TRUE(Near(MassG2Ounces(28.349523125L), 1));
    EXPECT_TRUE(Near(MassG2Grains(0.06479891L), 1));
    EXPECT_TRUE(Near(VolUKGallons2L(1), 4.54609L));
    EXPECT_TRUE(Near(VolUSGallons2L(1), 3.785411784L));
    EXPECT_TRUE(Near(VolGallons2Pints(1), 8));
    EXPECT_TRUE(Near(VolCC2UKPecks(9092.18L), 1));
    EXPECT_TRUE(Near(VolKegs25_2L(2), 50));
    EXPECT_TRUE(Near(ForceLbs2Newtons(1), 4.4482216152605L));
    EXPECT_TRUE(Near(ForceLbs2Poundals(1), 9.80665L / 0.3048L));
    EXPECT_TRUE(Near(ForceNewtons2Dynes(1), 100000));
    EXPECT_TRUE(Near(TorqueLbFeet2NewtonMetres(1), 1.3558179483314004L));
    EXPECT_TRUE(Near(TorqueNewtonMetres2KGMetres(9.80665L), 1));
    EXPECT_TRUE(Near(AccelGravity2MPS2(1), 9.80665L));
    EXPECT_TRUE(Near(AccelMPS22FPS2(0.3048L), 1));
    EXPECT_TRUE(Near(AccelCmPS22MPS2(100), 1));
    EXPECT_TRUE(Near(EnergyJoules2eVs(1.602176634e-19L), 1));
    EXPECT_TRUE(Near(ElChargeC2Faradays(96485.33212331001L), 1, 1e-14L));
    EXPECT_TRUE(Near(VelMetresPS2LightSpeed(299792458), 1));
    EXPECT_TRUE(Near(FlowlbPS2KgPS(1), 0.45359237L));
    EXPECT_TRUE(Near(AreaSqCm2SqInches(6.4516L), 1));
}

TEST(Quirks, LargeTonnesEnterAsKilograms)
{
    EXPECT_EQ(MassKilotonnes2Kg(1), 1);
    EXPECT_EQ(MassGigatonnes2Kg(3), 3);
    EXPECT_TRUE(Near(MassKg2Kilotonnes(1), 1e-6L));
    EXPECT_EQ(ConvertUnit(emtKilotonnes, emtKilograms, 1.0L), 1);
    EXPECT_TRUE(Near(ConvertUnit(emtKilograms, emtMegatonnes, 1.0L), 1e-9L));
}

TEST(Quirks, SecondNamesOfTheBasePassThrough)
{
    EXPECT_EQ(ConvertUnit(eftKPL, eftKilometresPerLitre, 7.25L), 7.25L);
    EXPECT_EQ(ConvertUnit(eetNewtonMetres, eetJoules, 3.5L), 3.5L);
    EXPECT_EQ(ConvertUnit(evtShengVol1930, evtLitres, 2.0L), 2);
    EXPECT_EQ(ConvertUnit(eltNits, eltCandelasPerSqM, 9.0L), 9);
    EXPECT_EQ(ConvertUnit(emWebersPerSqM, emTeslas, 4.0L), 4);
    EXPECT_EQ(ConvertUnit(eltLumensPerSteradian, eltCandelas, 1.5L), 1.5L);
}

// ---- In-table quantities
// -------------------------------------------------------------------------

TEST(TableOnly, SixQuantitiesConvertThroughTheirBase)
{
    EXPECT_TRUE(Near(ConvertUnit(ettDays, ettSeconds, 1.0L), 86400));
    EXPECT_TRUE(Near(ConvertUnit(ettYearsJulian, ettHours, 1.0L), 8766));
    EXPECT_TRUE(Near(ConvertUnit(ectKibiBytes, ectBits, 1.0L), 8192));
    EXPECT_TRUE(Near(ConvertUnit(ectMegaBytes10, ectKiloBytes10, 1.0L), 1000));
    EXPECT_TRUE(Near(ConvertUnit(edrMegabytesPS, edrMegabitsPS, 1.0L), 8));
    EXPECT_TRUE(Near(ConvertUnit(eqtGross, eqtDozens, 1.0L), 12));
    EXPECT_TRUE(Near(ConvertUnit(eqtCrore, eqtLakh, 1.0L), 100));
    EXPECT_TRUE(Near(ConvertUnit(eatDegrees, eatGrads, 90.0L), 100, 1e-15L));
    EXPECT_TRUE(Near(ConvertUnit(eatGrade, eatDegrees, 100.0L), 45, 1e-15L));
    EXPECT_TRUE(Near(ConvertUnit(eatDegrees, eatRiseRatio, 45.0L), 1, 1e-15L));
    EXPECT_TRUE(Near(ConvertUnit(emtOersteds, emtGilbertsPerCentimetre, 1.0L), 1, 1e-15L));
}

// ---- Every routine pair
// --------------------------------------------------------------------------

struct TRoutinePair {
    std::string Name;
    long double (*There)(long double);
    long double (*Back)(long double);
    bool SourceUnscaled;
};

std::vector<TRoutinePair> AllPairs()
{
    std::vector<TRoutinePair> pairs;
#define PAIR(F, A, B, unscaled) pairs.push_back({#F #A "2" #B, &F##A##2##B, &F##B##2##A, unscaled});
#define PAIR_D(F, A, B) pairs.push_back({#F #A "_2" #B, &F##A##_2##B, &F##B##2##A, false});
#define ROW_Base(F, Tok, Via)
#define ROW_Same(F, Tok, Via)
#define ROW_Slope(F, Tok, Via)
#define ROW_Lin(F, Tok, Via) PAIR(F, Tok, Via, false)
#define ROW_Div(F, Tok, Via) PAIR(F, Tok, Via, false)
#define ROW_Fn(F, Tok, Via) PAIR(F, Tok, Via, false)
#define ROW_SrcKg(F, Tok, Via) PAIR(F, Tok, Via, true)
#define ROW_LinD(F, Tok, Via) PAIR_D(F, Tok, Via)
#define ROW_DivD(F, Tok, Via) PAIR_D(F, Tok, Via)
#define ROW(F, Kind, member, Tok, Via, Factor, Source) ROW_##Kind(F, Tok, Via)
#define TABLE(quantity, stem, names, table, family, array)                                         \
    QORKIT_IF_ROUTINES(family)(table(ROW, family))
#define EXTRA(F, A, B, from, to) PAIR(F, A, B, false)
#define EXTRAS(list, family) list(EXTRA, family)
#define PAIR_DIRECT(F, A, B) PAIR(F, A, B, false)
    QORKIT_QUANTITY_LIST(TABLE)
    QORKIT_PAIR_LIST(EXTRAS)
    QORKIT_TEMP_DIRECT_PAIRS(PAIR_DIRECT)
    return pairs;
}

TEST(RoutinePairs, EveryPairRoundTrips)
{
    const auto pairs = AllPairs();
    EXPECT_GT(pairs.size(), 840u);
    for (const auto& pair : pairs) {
        if (pair.SourceUnscaled)
            continue;
        for (const long double x : {1.0L, 37.5L, 123.4567L}) {
            const long double there = pair.There(x);
            ASSERT_TRUE(std::isfinite(there)) << pair.Name;
            EXPECT_TRUE(Near(pair.Back(there), x, 1e-15L)) << pair.Name << " at " << double(x);
        }
    }
}

// ---- Names
// ---------------------------------------------------------------------------------------

TEST(Names, CountsPerEnumeration)
{
    EXPECT_EQ(QORConvTypeStr.size(), 38u);
    EXPECT_EQ(QORTempStr.size(), 8u);
    EXPECT_EQ(QORDistStr.size(), 122u);
    EXPECT_EQ(QORMassStr.size(), 76u);
    EXPECT_EQ(QORVolStr.size(), 103u);
    EXPECT_EQ(QORTimeStr.size(), 65u);
    EXPECT_EQ(QORPressStr.size(), 50u);
    EXPECT_EQ(QORVelStr.size(), 43u);
    EXPECT_EQ(QORAccelStr.size(), 19u);
    std::size_t units = 0;
    for (std::size_t q = 0; q < QORConvTypeStr.size(); ++q)
        units += UnitCount(static_cast<TQORConvType>(q));
    EXPECT_EQ(units, 1074u);
    EXPECT_EQ(UnitCount(ectThermalConductivity), 0u);
}

TEST_F(GlobalStateTest, NamesKeepAccentsApostrophesAndTheDeliberateGaps)
{
    EXPECT_EQ(QORTempStr[ettReaumur], "Réaumur");
    EXPECT_EQ(QORTempStr[ettRomer], "Rømer");
    EXPECT_EQ(QORQuantityStr[eqtDozensBakers], "Dozens (Baker's)");
    EXPECT_EQ(QORForceStr[eftSthenes], "Sthènes");
    EXPECT_EQ(QORPressStr[eptMillimetresOfMercury0C], "Millimetres of Mercury at 0°C");
    EXPECT_EQ(QORDistStr[edtSolarRadii], "Solar Radii");
    EXPECT_EQ(QORTimeStr[ettSunDaysSidereal], "");
    EXPECT_EQ(QORConvTypeStr[ectThermalConductivity], "Thermal Conductivity");
    EXPECT_EQ(QORConvTypeStr[ectDistance], "Distance (Length)");
    EXPECT_EQ(rsSunDaysSidereal(), "Days (Sidereal - Sun)");
    EXPECT_EQ(rsThermWattsPerFootFahrenheit(), "Watts per Foot Fahrenheit");
}

TEST_F(GlobalStateTest, NamesFollowTheTranslationHookAtEachUse)
{
    SetTranslationHook([](std::string_view context, std::string_view source) {
        return context == UCTextContext && source == "Kelvin" ? std::string("Kelvins")
                                                              : std::string();
    });
    EXPECT_EQ(QORTempStr[ettKelvin], "Kelvins");
    EXPECT_EQ(QORTempStr[ettCelsius], "Celsius");
    EXPECT_EQ(UnitName(ectTemperature, ettKelvin), "Kelvins");
}

// ---- The generic entry point
// ---------------------------------------------------------------------

TEST(ConvertUnits, RejectsWhatItCannotConvert)
{
    EXPECT_THROW(ConvertUnits(ectThermalConductivity, 0, 0, 1), EConvertError);
    EXPECT_THROW(ConvertUnits(ectDistance, 0, 122, 1), EConvertError);
    EXPECT_THROW(ConvertUnits(static_cast<TQORConvType>(200), 0, 0, 1), EConvertError);
    EXPECT_THROW(ConvertUnits(ectDistance, 0, 1, std::nanl("")), EInvalidOp);
    EXPECT_THROW(ConvertUnits(ectDistance, edtParsecs, edtFermi, 1e4930L), EOverflow);
    EXPECT_EQ(ConvertUnits(ectDistance, edtMetres, edtMetres, -3), -3);
    EXPECT_EQ(BaseUnit(ectTime), static_cast<std::size_t>(ettDays));
}

// A vertical slope has no finite grade: 90 degrees and its kin overflow instead of giving a huge
// number of either sign; angles just off vertical still convert.
TEST(ConvertUnits, VerticalSlopesOverflow)
{
    for (const auto slope : {eatGrade, eatGradePerMil, eatRiseRatio}) {
        for (const Extended degrees : {90.0L, -90.0L, 270.0L, -450.0L}) {
            SCOPED_TRACE(static_cast<double>(degrees));
            EXPECT_THROW(ConvertUnit(eatDegrees, slope, degrees), EOverflow);
        }
        EXPECT_THROW(ConvertUnit(eatRadians, slope, QORPi / 2), EOverflow);
        EXPECT_THROW(ConvertUnit(eatQuadrants, slope, 1.0L), EOverflow);
        EXPECT_THROW(ConvertUnit(eatGrads, slope, 100.0L), EOverflow);
        EXPECT_THROW(UnitFromBase(ectAngles, slope, QORPi / 2), EOverflow);
        EXPECT_GT(ConvertUnit(eatDegrees, slope, 89.999L), 0);
        EXPECT_LT(ConvertUnit(eatDegrees, slope, 90.001L), 0);
    }
    EXPECT_TRUE(Near(ConvertUnit(eatDegrees, eatGrade, -45.0L), -100, 1e-15L));
    EXPECT_TRUE(Near(ConvertUnit(eatDegrees, eatRiseRatio, 180.0L), 0, 1e-15L));
}

// The single steps into and out of the base raise as ConvertUnits does: no infinity, no NaN,
// for every unit at the top of the range.
TEST(ConvertUnits, StepsIntoAndOutOfTheBaseNeverLeaveTheRange)
{
    int raised = 0;
    for (std::size_t q = 0; q < QORConvTypeStr.size(); ++q) {
        const auto quantity = static_cast<TQORConvType>(q);
        for (std::size_t unit = 0; unit < UnitCount(quantity); ++unit) {
            for (const Extended value : {1e4930L, -1e4930L, 1e-4930L}) {
                for (const auto step : {&UnitToBase, &UnitFromBase}) {
                    try {
                        const Extended result = step(quantity, unit, value);
                        EXPECT_TRUE(std::isfinite(result))
                            << UnitMemberName(quantity, unit) << " " << static_cast<double>(value);
                    } catch (const EMathError&) {
                        ++raised;
                    }
                }
            }
            EXPECT_THROW(UnitToBase(quantity, unit, std::nanl("")), EInvalidOp);
        }
    }
    EXPECT_GT(raised, 300);
}

// A reciprocal unit must not turn an overflow on the way into the base into zero.
TEST(ConvertUnits, OverflowIntoTheBaseIsNotHiddenByAReciprocal)
{
    EXPECT_THROW(ConvertUnit(eftMilesPerLitre, eftLitresPer100Kilometres, 1e4932L), EOverflow);
}

// The spellings people type: each names a real unit, none is given twice within a quantity
// (ASCII case aside), and none repeats a display name of its quantity.
TEST(UnitAliases, EachSpellingNamesOneUnitOfItsQuantity)
{
    const auto lower = [](std::string_view text) {
        std::string result(text);
        for (char& c : result)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        return result;
    };
    std::set<std::pair<TQORConvType, std::string>> seen;
    for (const auto& alias : QORUnitAliases) {
        SCOPED_TRACE(std::string(alias.Alias));
        ASSERT_LT(alias.Unit, UnitCount(alias.Quantity));
        EXPECT_FALSE(UnitName(alias.Quantity, alias.Unit).empty());
        EXPECT_TRUE(seen.emplace(alias.Quantity, lower(alias.Alias)).second) << "given twice";
        for (std::size_t unit = 0; unit < UnitCount(alias.Quantity); ++unit)
            EXPECT_NE(lower(UnitName(alias.Quantity, unit)), lower(alias.Alias));
    }
    EXPECT_EQ(QORUnitAliases[0].Quantity, ectTemperature);
}

} // namespace
} // namespace qorkit
