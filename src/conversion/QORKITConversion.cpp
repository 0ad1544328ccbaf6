#include "QORKITConversion.h"

#include "QORKITConstants.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKIT_RS_UC.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

// Every routine defined here is declared by QORKITConversionRoutines.h, which is written from the
// same tables; a definition missing from that list is an error whatever the build's warnings.
#if defined(__clang__)
#pragma clang diagnostic error "-Wmissing-prototypes"
#elif defined(__GNUC__)
#pragma GCC diagnostic error "-Wmissing-declarations"
#endif

namespace qorkit {

namespace {

// ---- Building the tables -----------------------------------------------------------------------

// A table row as written in the unit lists; the Via token is resolved to an ordinal below.
struct TRawRule {
    std::string_view MemberName;
    std::uint8_t Member;
    TQORRuleKind Kind;
    std::string_view Token;
    std::string_view ViaToken;
    Extended Factor;
    Extended (*ToVia)(Extended);
    Extended (*FromVia)(Extended);
    TQORFactorSource Source;
};

constexpr TQORRuleKind KindBase = TQORRuleKind::Base;
constexpr TQORRuleKind KindSame = TQORRuleKind::Same;
constexpr TQORRuleKind KindLin = TQORRuleKind::Lin;
constexpr TQORRuleKind KindLinD = TQORRuleKind::Lin;
constexpr TQORRuleKind KindDiv = TQORRuleKind::Div;
constexpr TQORRuleKind KindDivD = TQORRuleKind::Div;
constexpr TQORRuleKind KindFn = TQORRuleKind::Fn;
constexpr TQORRuleKind KindSrcKg = TQORRuleKind::SrcKg;
constexpr TQORRuleKind KindSlope = TQORRuleKind::Slope;

#define QORKIT_FN_Base(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_Same(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_Lin(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_LinD(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_Div(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_DivD(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_SrcKg(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_Slope(F, Tok, Via) nullptr, nullptr
#define QORKIT_FN_Fn(F, Tok, Via) &F##Tok##2##Via, &F##Via##2##Tok

#define QORKIT_RAW_ROW(F, K, member, Tok, Via, Factor, Src)                                        \
    TRawRule {#member,                                                                             \
              member,                                                                              \
              Kind##K,                                                                             \
              #Tok,                                                                                \
              #Via,                                                                                \
              static_cast<Extended>(Factor),                                                       \
              QORKIT_FN_##K(F, Tok, Via),                                                          \
              TQORFactorSource::Src},

// Resolves the Via tokens and checks the table: rows in ordinal order, one base unit, every
// chain of Via units ending at the base unit. A faulty table does not compile.
template<std::size_t N>
consteval std::array<TQORUnitRule, N> Resolve(const std::array<TRawRule, N>& raw)
{
    std::array<TQORUnitRule, N> rules {};
    std::size_t bases = 0;
    for (std::size_t i = 0; i < N; ++i) {
        if (raw[i].Member != i)
            throw "unit table row out of ordinal order";
        std::size_t via = N;
        for (std::size_t j = 0; j < N && via == N; ++j)
            if (raw[j].Token == raw[i].ViaToken && raw[j].Kind != KindSame)
                via = j;
        if (via == N)
            throw "unit table row names an unknown Via unit";
        if (raw[i].Kind == KindBase) {
            ++bases;
            if (via != i)
                throw "the base unit must name itself";
        } else if (via == i) {
            throw "a unit cannot be defined through itself";
        }
        if (raw[i].Kind != KindFn && raw[i].Kind != KindBase && raw[i].Kind != KindSame
            && !(raw[i].Factor > 0))
            throw "unit factor must be positive";
        rules[i] = TQORUnitRule {raw[i].Member, raw[i].Kind,       static_cast<std::uint8_t>(via),
                                 raw[i].Factor, raw[i].ToVia,      raw[i].FromVia,
                                 raw[i].Source, raw[i].MemberName, raw[i].Token};
    }
    if (bases != 1)
        throw "a unit table needs exactly one base unit";
    for (std::size_t i = 0; i < N; ++i) {
        std::size_t unit = i;
        for (std::size_t steps = 0; rules[unit].Kind != KindBase; ++steps) {
            if (steps > N)
                throw "unit table has a cycle of Via units";
            unit = rules[unit].Via;
        }
    }
    return rules;
}

#define QORKIT_TABLE(quantity, stem, names, table, family, array)                                  \
    constexpr auto stem##Rules                                                                     \
        = Resolve(std::to_array<TRawRule>({table(QORKIT_RAW_ROW, family)}));                       \
    static_assert(stem##Rules.size() == array.size(), "unit table and enumeration differ");        \
    constexpr const TQORUnitRule& Rule(TQOR##stem##Type member) { return stem##Rules[member]; }

// ---- Temperature
// ---------------------------------------------------------------------------------

// Values down to 0.01 below absolute zero are accepted: a little rounding in a value the user
// typed must not raise.
constexpr Extended AbsoluteZeroTolerance = 0.01L;

void CheckAbove(const Extended value, const Extended limit, std::string (*message)())
{
    if (value < limit - AbsoluteZeroTolerance)
        throw EMathError(message());
}

} // namespace

Extended TempF2C(const Extended x)
{
    CheckAbove(x, AbsoluteZeroF, rsFahrenheitBelowZero);
    return (x - 32) * 5 / 9;
}

Extended TempC2F(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC, rsCelsiusBelowZero);
    return x * 9 / 5 + 32;
}

Extended TempC2K(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC, rsCelsiusBelowZero);
    return x - AbsoluteZeroC;
}

Extended TempK2C(const Extended x)
{
    CheckAbove(x, 0, rsKelvinBelowZero);
    return x + AbsoluteZeroC;
}

Extended TempK2F(const Extended x)
{
    CheckAbove(x, 0, rsKelvinBelowZero);
    return TempC2F(x + AbsoluteZeroC);
}

Extended TempF2K(const Extended x)
{
    CheckAbove(x, AbsoluteZeroF, rsFahrenheitBelowZero);
    return TempF2C(x) - AbsoluteZeroC;
}

Extended TempF2R(const Extended x)
{
    CheckAbove(x, AbsoluteZeroF, rsFahrenheitBelowZero);
    return x - AbsoluteZeroF;
}

Extended TempR2F(const Extended x)
{
    CheckAbove(x, 0, rsRankineBelowZero);
    return x + AbsoluteZeroF;
}

Extended TempC2R(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC, rsCelsiusBelowZero);
    return TempC2F(x) - AbsoluteZeroF;
}

Extended TempR2C(const Extended x)
{
    CheckAbove(x, 0, rsRankineBelowZero);
    return TempF2C(x + AbsoluteZeroF);
}

Extended TempK2R(const Extended x)
{
    CheckAbove(x, 0, rsKelvinBelowZero);
    return TempC2R(x + AbsoluteZeroC);
}

Extended TempR2K(const Extended x)
{
    CheckAbove(x, 0, rsRankineBelowZero);
    return TempF2K(x + AbsoluteZeroF);
}

Extended TempC2Reaumur(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC, rsCelsiusBelowZero);
    return x * 0.8L;
}

// The four scales below report a Celsius result under absolute zero with the Rankine message;
// that wording is intended and kept.
Extended TempReaumur2C(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC * 0.8L, rsRankineBelowZero);
    return x * 1.25L;
}

Extended TempC2Romer(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC, rsCelsiusBelowZero);
    return x * 21 / 40 + 7.5L;
}

Extended TempRomer2C(const Extended x)
{
    const Extended c = (x - 7.5L) * 40 / 21;
    CheckAbove(c, AbsoluteZeroC, rsRankineBelowZero);
    return c;
}

Extended TempC2Delisle(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC, rsCelsiusBelowZero);
    return (100 - x) * 1.5L;
}

Extended TempDelisle2C(const Extended x)
{
    const Extended c = 100 - x * 2 / 3;
    CheckAbove(c, AbsoluteZeroC, rsRankineBelowZero);
    return c;
}

Extended TempC2Newton(const Extended x)
{
    CheckAbove(x, AbsoluteZeroC, rsCelsiusBelowZero);
    return x * 0.33L;
}

Extended TempNewton2C(const Extended x)
{
    const Extended c = x * 100 / 33;
    CheckAbove(c, AbsoluteZeroC, rsRankineBelowZero);
    return c;
}

// ---- Fuel consumption
// ---------------------------------------------------------------------------- The per-distance
// units are reciprocal, so each of their pairs uses one formula both ways.

namespace {

Extended KmPerMile() { return DistMiles2Km(1); }
Extended MilesPerKm() { return DistKm2Miles(1); }
Extended LitresPerUKGallon() { return VolUKGallons2L(1); }
Extended LitresPerUSGallon() { return VolUSGallons2L(1); }
Extended UKGallonsPerLitre() { return VolL2UKGallons(1); }
Extended USGallonsPerLitre() { return VolL2USGallons(1); }

// numerator / (scale * x) for a fuel figure x that must not be zero. The zero test is on the
// figure itself (tolerant FloatIsZero), before it is scaled by a gallon.
Extended Reciprocal(const Extended numerator, const Extended scale, const Extended x,
                    std::string (*message)())
{
    if (FloatIsZero(x))
        throw EMathError(message());
    return numerator / (scale * x);
}

} // namespace

Extended FuelKPL2MPL(const Extended x) { return x * MilesPerKm(); }
Extended FuelMPL2KPL(const Extended x) { return x * KmPerMile(); }
Extended FuelKPL2MPGUK(const Extended x) { return x * MilesPerKm() * LitresPerUKGallon(); }
Extended FuelMPGUK2KPL(const Extended x) { return x * KmPerMile() * UKGallonsPerLitre(); }
Extended FuelKPL2MPGUS(const Extended x) { return x * MilesPerKm() * LitresPerUSGallon(); }
Extended FuelMPGUS2KPL(const Extended x) { return x * KmPerMile() * USGallonsPerLitre(); }
Extended FuelKPL2KPGUK(const Extended x) { return x * LitresPerUKGallon(); }
Extended FuelKPGUK2KPL(const Extended x) { return x * UKGallonsPerLitre(); }
Extended FuelKPL2KPGUS(const Extended x) { return x * LitresPerUSGallon(); }
Extended FuelKPGUS2KPL(const Extended x) { return x * USGallonsPerLitre(); }
Extended FuelKPL2LP100K(const Extended x) { return Reciprocal(100, 1, x, rsKPLZero); }
Extended FuelLP100K2KPL(const Extended x) { return Reciprocal(100, 1, x, rsLP100KZero); }
Extended FuelKPL2LP100M(const Extended x) { return Reciprocal(KmPerMile() * 100, 1, x, rsKPLZero); }
Extended FuelLP100M2KPL(const Extended x)
{
    return Reciprocal(KmPerMile() * 100, 1, x, rsDivideByZero);
}
Extended FuelKPL2GUKP100K(const Extended x)
{
    return Reciprocal(100, LitresPerUKGallon(), x, rsKPLZero);
}
Extended FuelGUKP100K2KPL(const Extended x)
{
    return Reciprocal(100, LitresPerUKGallon(), x, rsDivideByZero);
}
Extended FuelKPL2GUSP100K(const Extended x)
{
    return Reciprocal(100, LitresPerUSGallon(), x, rsKPLZero);
}
Extended FuelGUSP100K2KPL(const Extended x)
{
    return Reciprocal(100, LitresPerUSGallon(), x, rsDivideByZero);
}
Extended FuelKPL2GUKP100M(const Extended x)
{
    return Reciprocal(KmPerMile() * 100, LitresPerUKGallon(), x, rsKPLZero);
}
Extended FuelGUKP100M2KPL(const Extended x)
{
    return Reciprocal(KmPerMile() * 100, LitresPerUKGallon(), x, rsDivideByZero);
}
Extended FuelKPL2GUSP100M(const Extended x)
{
    return Reciprocal(KmPerMile() * 100, LitresPerUSGallon(), x, rsKPLZero);
}
Extended FuelGUSP100M2KPL(const Extended x)
{
    return Reciprocal(KmPerMile() * 100, LitresPerUSGallon(), x, rsDivideByZero);
}

// ---- The tables
// ----------------------------------------------------------------------------------

namespace {
QORKIT_QUANTITY_LIST(QORKIT_TABLE)

struct TQuantityTable {
    std::span<const TQORUnitRule> Rules;
    std::size_t Base;
};

consteval std::size_t BaseOf(std::span<const TQORUnitRule> rules)
{
    for (const auto& rule : rules)
        if (rule.Kind == KindBase)
            return rule.Member;
    return 0;
}

constexpr auto Quantities = [] {
    std::array<TQuantityTable, QORConvTypeStr.size()> tables {};
#define QORKIT_QUANTITY_ENTRY(quantity, stem, names, table, family, array)                         \
    tables[quantity] = TQuantityTable {stem##Rules, BaseOf(stem##Rules)};
    QORKIT_QUANTITY_LIST(QORKIT_QUANTITY_ENTRY)
#undef QORKIT_QUANTITY_ENTRY
    return tables;
}();

const TQuantityTable& TableOf(const TQORConvType quantity)
{
    if (quantity >= Quantities.size() || Quantities[quantity].Rules.empty())
        throw EConvertError(FormatMessage(rsUnknownQuantity(), std::to_string(quantity)));
    return Quantities[quantity];
}

const TQORUnitRule& RuleOf(const TQuantityTable& table, const std::size_t unit)
{
    if (unit >= table.Rules.size())
        throw EConvertError(FormatMessage(rsUnknownUnit(), std::to_string(unit)));
    return table.Rules[unit];
}

// The rise per unit run of an angle in radians. A vertical angle (90 degrees, 270 ...) has no
// finite slope; its radian value is never exactly on the pole, so the tangent would come out as a
// huge number of either sign. Within a few units of rounding of the pole it overflows instead.
Extended SlopeOf(const Extended radians)
{
    constexpr Extended kPoleTolerance = 64 * std::numeric_limits<Extended>::epsilon();
    if (std::fabs(std::cos(radians)) <= kPoleTolerance * std::max(Extended {1}, std::fabs(radians)))
        throw EOverflow(rsOverflow());
    return std::tan(radians);
}

// A value that came out of the unit chains: never NaN or infinity.
Extended Checked(const Extended result)
{
    if (std::isnan(result))
        throw EInvalidOp(rsInvalidOperation());
    if (!std::isfinite(result))
        throw EOverflow(rsOverflow());
    return result;
}

// One step along a unit's definition: from the unit into its Via unit, and back.
Extended StepToVia(const TQORUnitRule& rule, const Extended x)
{
    switch (rule.Kind) {
    case TQORRuleKind::Lin:
        return x * rule.Factor;
    case TQORRuleKind::Div:
        return x / rule.Factor;
    case TQORRuleKind::Fn:
        return rule.ToVia(x);
    case TQORRuleKind::Slope:
        return std::atan(x / rule.Factor);
    case TQORRuleKind::SrcKg: // kilotonnes and larger enter unscaled; intended
    case TQORRuleKind::Base:
    case TQORRuleKind::Same:
        break;
    }
    return x;
}

Extended StepFromVia(const TQORUnitRule& rule, const Extended x)
{
    switch (rule.Kind) {
    case TQORRuleKind::Lin:
    case TQORRuleKind::SrcKg:
        return x / rule.Factor;
    case TQORRuleKind::Div:
        return x * rule.Factor;
    case TQORRuleKind::Fn:
        return rule.FromVia(x);
    case TQORRuleKind::Slope:
        return SlopeOf(x) * rule.Factor;
    case TQORRuleKind::Base:
    case TQORRuleKind::Same:
        break;
    }
    return x;
}

Extended ToBase(const TQuantityTable& table, std::size_t unit, Extended x)
{
    while (table.Rules[unit].Kind != TQORRuleKind::Base) {
        x = StepToVia(table.Rules[unit], x);
        unit = table.Rules[unit].Via;
    }
    return x;
}

Extended FromBase(const TQuantityTable& table, const std::size_t unit, const Extended x)
{
    const auto& rule = table.Rules[unit];
    if (rule.Kind == TQORRuleKind::Base)
        return x;
    return StepFromVia(rule, FromBase(table, rule.Via, x));
}

template<typename E> Extended Convert(const E from, const E to, const Extended x)
{
    const auto& table = Quantities[QuantityOf(from)];
    return FromBase(table, to, ToBase(table, from, x));
}

} // namespace

// ---- The generated routines
// ----------------------------------------------------------------------

#define QORKIT_DEFINE_MUL_DIV(F, TokVia, ViaTok, member)                                           \
    Extended F##TokVia(const Extended x) { return x * Rule(member).Factor; }                       \
    Extended F##ViaTok(const Extended x) { return x / Rule(member).Factor; }
#define QORKIT_DEFINE_DIV_MUL(F, TokVia, ViaTok, member)                                           \
    Extended F##TokVia(const Extended x) { return x / Rule(member).Factor; }                       \
    Extended F##ViaTok(const Extended x) { return x * Rule(member).Factor; }
#define QORKIT_DEFINE_Base(F, Tok, Via, member)
#define QORKIT_DEFINE_Same(F, Tok, Via, member)
#define QORKIT_DEFINE_Slope(F, Tok, Via, member)
#define QORKIT_DEFINE_Fn(F, Tok, Via, member)
#define QORKIT_DEFINE_Lin(F, Tok, Via, member)                                                     \
    QORKIT_DEFINE_MUL_DIV(F, Tok##2##Via, Via##2##Tok, member)
#define QORKIT_DEFINE_LinD(F, Tok, Via, member)                                                    \
    QORKIT_DEFINE_MUL_DIV(F, Tok##_2##Via, Via##2##Tok, member)
#define QORKIT_DEFINE_Div(F, Tok, Via, member)                                                     \
    QORKIT_DEFINE_DIV_MUL(F, Tok##2##Via, Via##2##Tok, member)
#define QORKIT_DEFINE_DivD(F, Tok, Via, member)                                                    \
    QORKIT_DEFINE_DIV_MUL(F, Tok##_2##Via, Via##2##Tok, member)
// Kilotonnes, megatonnes and gigatonnes are taken as kilograms when converted from: intended.
#define QORKIT_DEFINE_SrcKg(F, Tok, Via, member)                                                   \
    Extended F##Tok##2##Via(const Extended x) { return x; }                                        \
    Extended F##Via##2##Tok(const Extended x) { return x / Rule(member).Factor; }
#define QORKIT_DEFINE_ROW(F, Kind, member, Tok, Via, Factor, Source)                               \
    QORKIT_DEFINE_##Kind(F, Tok, Via, member)
#define QORKIT_DEFINE_TABLE(quantity, stem, names, table, family, array)                           \
    QORKIT_IF_ROUTINES(family)(table(QORKIT_DEFINE_ROW, family))
#define QORKIT_DEFINE_PAIR(F, A, B, from, to)                                                      \
    Extended F##A##2##B(const Extended x) { return Convert(from, to, x); }                         \
    Extended F##B##2##A(const Extended x) { return Convert(to, from, x); }
#define QORKIT_DEFINE_PAIRS(list, family) list(QORKIT_DEFINE_PAIR, family)

QORKIT_QUANTITY_LIST(QORKIT_DEFINE_TABLE)
QORKIT_PAIR_LIST(QORKIT_DEFINE_PAIRS)

// ---- The generic entry points
// --------------------------------------------------------------------

std::size_t UnitCount(const TQORConvType quantity) noexcept
{
    return quantity < Quantities.size() ? Quantities[quantity].Rules.size() : 0;
}

std::span<const TQORUnitRule> UnitRules(const TQORConvType quantity) noexcept
{
    return quantity < Quantities.size() ? Quantities[quantity].Rules
                                        : std::span<const TQORUnitRule>();
}

std::string_view UnitMemberName(const TQORConvType quantity, const std::size_t unit) noexcept
{
    const auto rules = UnitRules(quantity);
    return unit < rules.size() ? rules[unit].MemberName : std::string_view();
}

std::string UnitName(const TQORConvType quantity, const std::size_t unit)
{
    switch (quantity) {
#define QORKIT_NAME_CASE(q, stem, names, table, family, array)                                     \
    case q:                                                                                        \
        return array[static_cast<TQOR##stem##Type>(unit < array.size() ? unit : array.size())];
        QORKIT_QUANTITY_LIST(QORKIT_NAME_CASE)
#undef QORKIT_NAME_CASE
    default:
        return std::string();
    }
}

std::size_t BaseUnit(const TQORConvType quantity) { return TableOf(quantity).Base; }

Extended UnitToBase(const TQORConvType quantity, const std::size_t unit, const Extended value)
{
    const auto& table = TableOf(quantity);
    RuleOf(table, unit);
    return Checked(ToBase(table, unit, Checked(value)));
}

Extended UnitFromBase(const TQORConvType quantity, const std::size_t unit, const Extended value)
{
    const auto& table = TableOf(quantity);
    RuleOf(table, unit);
    return Checked(FromBase(table, unit, Checked(value)));
}

Extended ConvertUnits(const TQORConvType quantity, const std::size_t from, const std::size_t to,
                      const Extended value)
{
    const auto& table = TableOf(quantity);
    RuleOf(table, from);
    RuleOf(table, to);
    // The base value is checked too: a reciprocal unit would turn an overflow into zero.
    return Checked(FromBase(table, to, Checked(ToBase(table, from, Checked(value)))));
}

} // namespace qorkit
