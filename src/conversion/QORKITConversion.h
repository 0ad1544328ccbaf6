// Quantities, units and their names, and the conversion routines between units.
//
// Every quantity has an enumeration of its units (TQORDistType ...) and a names array indexed by
// it (QORDistStr ...); TQORConvType names the quantities. The routines convert one value between
// two named units (DistInches2M, TempF2C, FuelKPL2LP100M ...); ConvertUnits converts between any
// two units of a quantity in two steps through the quantity's base unit.
//
// The enumerations and names come from the name lists of QORKIT_RS_UC.h; the sizes of the units
// and the routines come from the unit tables of QORKITUnitTables.h.
#pragma once

#include "QORKITTypes.h"
#include "QORKITUnitTables.h"
#include "QORKITUnitTables2.h"
#include "QORKIT_RS_UC.h"
#include "qorkit_core_export.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qorkit {

// Every quantity with a unit list:
//   X(quantity, Stem, names list, unit table, routine family or None, names array)
// The enumeration of a quantity is TQOR<Stem>Type.
// clang-format off
#define QORKIT_QUANTITY_LIST(X) \
    X(ectQuantity,              Quantity,              QORKIT_UC_QUANTITY_NAMES,              QORKIT_UNITS_QUANTITY,    None,           QORQuantityStr) \
    X(ectComputer,              Computer,              QORKIT_UC_COMPUTER_NAMES,              QORKIT_UNITS_COMPUTER,    None,           QORComputerStr) \
    X(ectDataRate,              DataRate,              QORKIT_UC_DATARATE_NAMES,              QORKIT_UNITS_DATARATE,    None,           QORDataRateStr) \
    X(ectAngles,                Angle,                 QORKIT_UC_ANGLE_NAMES,                 QORKIT_UNITS_ANGLE,       None,           QORAngleStr) \
    X(ectTime,                  Time,                  QORKIT_UC_TIME_NAMES,                  QORKIT_UNITS_TIME,        None,           QORTimeStr) \
    X(ectTemperature,           Temp,                  QORKIT_UC_TEMP_NAMES,                  QORKIT_UNITS_TEMP,        Temp,           QORTempStr) \
    X(ectDistance,              Dist,                  QORKIT_UC_DIST_NAMES,                  QORKIT_UNITS_DIST,        Dist,           QORDistStr) \
    X(ectMass,                  Mass,                  QORKIT_UC_MASS_NAMES,                  QORKIT_UNITS_MASS,        Mass,           QORMassStr) \
    X(ectVolume,                Vol,                   QORKIT_UC_VOL_NAMES,                   QORKIT_UNITS_VOL,         Vol,            QORVolStr) \
    X(ectArea,                  Area,                  QORKIT_UC_AREA_NAMES,                  QORKIT_UNITS_AREA,        Area,           QORAreaStr) \
    X(ectPressure,              Pressure,              QORKIT_UC_PRESSURE_NAMES,              QORKIT_UNITS_PRESSURE,    Press,          QORPressStr) \
    X(ectVelocity,              Velocity,              QORKIT_UC_VELOCITY_NAMES,              QORKIT_UNITS_VELOCITY,    Vel,            QORVelStr) \
    X(ectAcceleration,          Acceleration,          QORKIT_UC_ACCELERATION_NAMES,          QORKIT_UNITS_ACCEL,       Accel,          QORAccelStr) \
    X(ectForce,                 Force,                 QORKIT_UC_FORCE_NAMES,                 QORKIT_UNITS_FORCE,       Force,          QORForceStr) \
    X(ectEnergy,                Energy,                QORKIT_UC_ENERGY_NAMES,                QORKIT_UNITS_ENERGY,      Energy,         QOREnergyStr) \
    X(ectPowerConv,             Power,                 QORKIT_UC_POWER_NAMES,                 QORKIT_UNITS_POWER,       Power,          QORPowerStr) \
    X(ectFuelConsumption,       Fuel,                  QORKIT_UC_FUEL_NAMES,                  QORKIT_UNITS_FUEL,        Fuel,           QORFuelStr) \
    X(ectFlow,                  Flow,                  QORKIT_UC_FLOW_NAMES,                  QORKIT_UNITS_FLOW,        Flow,           QORFlowStr) \
    X(ectTorque,                Torque,                QORKIT_UC_TORQUE_NAMES,                QORKIT_UNITS_TORQUE,      Torque,         QORTorqueStr) \
    X(ectRadioactivity,         RActive,               QORKIT_UC_RACTIVE_NAMES,               QORKIT_UNITS_RACTIVE,     RActive,        QORRActiveStr) \
    X(ectFlowMass,              FlowMass,              QORKIT_UC_FLOWMASS_NAMES,              QORKIT_UNITS_FLOWMASS,    Flow,           QORFlowMassStr) \
    X(ectIllumination,          Illumination,          QORKIT_UC_ILLUMINATION_NAMES,          QORKIT_UNITS_ILLUMIN,     Illumin,        QORIlluminationStr) \
    X(ectLuminous,              Luminous,              QORKIT_UC_LUMINOUS_NAMES,              QORKIT_UNITS_LUMINOUS,    Luminous,       QORLuminousStr) \
    X(ectLuminance,             Luminance,             QORKIT_UC_LUMINANCE_NAMES,             QORKIT_UNITS_LUMINANCE,   Luminance,      QORLuminanceStr) \
    X(ectLumFlux,               LumFlux,               QORKIT_UC_LUMFLUX_NAMES,               QORKIT_UNITS_LUMFLUX,     LumFlux,        QORLumFluxStr) \
    X(ectAngVel,                AngVel,                QORKIT_UC_ANGVEL_NAMES,                QORKIT_UNITS_ANGVEL,      AngVel,         QORAngVelStr) \
    X(ectAngAccel,              AngAccel,              QORKIT_UC_ANGACCEL_NAMES,              QORKIT_UNITS_ANGACCEL,    AngAccel,       QORAngAccelStr) \
    X(ectDensity,               Density,               QORKIT_UC_DENSITY_NAMES,               QORKIT_UNITS_DENSITY,     Density,        QORDensityStr) \
    X(ectVisDyn,                VisDyn,                QORKIT_UC_VISDYN_NAMES,                QORKIT_UNITS_VISDYN,      Vis,            QORVisDynStr) \
    X(ectVisKin,                VisKin,                QORKIT_UC_VISKIN_NAMES,                QORKIT_UNITS_VISKIN,      Vis,            QORVisKinStr) \
    X(ectElCharge,              ElCharge,              QORKIT_UC_ELCHARGE_NAMES,              QORKIT_UNITS_ELCHARGE,    ElCharge,       QORElChargeStr) \
    X(ectCurrent,               Current,               QORKIT_UC_CURRENT_NAMES,               QORKIT_UNITS_CURRENT,     Current,        QORCurrentStr) \
    X(ectMagneticFieldStrength, MagneticFieldStrength, QORKIT_UC_MAGNETICFIELDSTRENGTH_NAMES, QORKIT_UNITS_MAGFIELD,    None,           QORMagneticFieldStrengthStr) \
    X(ectMagneticFlux,          MagneticFlux,          QORKIT_UC_MAGNETICFLUX_NAMES,          QORKIT_UNITS_MAGFLUX,     MagFlux,        QORMagneticFluxStr) \
    X(ectMagneticFluxDensity,   MagneticFluxDensity,   QORKIT_UC_MAGNETICFLUXDENSITY_NAMES,   QORKIT_UNITS_MAGFLUXDENS, MagFluxDensity, QORMagneticFluxDensityStr) \
    X(ectRadiationDose,         RadDose,               QORKIT_UC_RADDOSE_NAMES,               QORKIT_UNITS_RADDOSE,     RadDose,        QORRadDoseStr) \
    X(ectRadiationAbsorption,   RadAbsorption,         QORKIT_UC_RADABSORPTION_NAMES,         QORKIT_UNITS_RADABS,      RadAbsorption,  QORRadAbsorptionStr)

// QORKIT_IF_ROUTINES(family)(tokens) keeps the tokens for a routine family and drops them for
// None, the family of the quantities that are converted only through their tables.
#define QORKIT_IF_ROUTINES(family) QORKIT_IF_ROUTINES_PICK(QORKIT_IF_ROUTINES_PROBE_##family)
#define QORKIT_IF_ROUTINES_PROBE_None ~, QORKIT_IF_ROUTINES_DROP
#define QORKIT_IF_ROUTINES_PICK(...) QORKIT_IF_ROUTINES_SECOND(__VA_ARGS__, QORKIT_IF_ROUTINES_KEEP, ~)
#define QORKIT_IF_ROUTINES_SECOND(probe, pick, ...) pick
#define QORKIT_IF_ROUTINES_KEEP(...) __VA_ARGS__
#define QORKIT_IF_ROUTINES_DROP(...)

// The routine families with routines between two units that are not a unit and its Via.
#define QORKIT_PAIR_LIST(X) \
    X(QORKIT_PAIRS_DIST, Dist) \
    X(QORKIT_PAIRS_MASS, Mass) \
    X(QORKIT_PAIRS_VOL, Vol) \
    X(QORKIT_PAIRS_FORCE, Force)
// clang-format on

// ---- Enumerations ------------------------------------------------------------------------------

#define QORKIT_UC_ENUM_MEMBER(member, text) member,
enum TQORConvType : std::uint8_t { QORKIT_UC_CONV_NAMES(QORKIT_UC_ENUM_MEMBER) };
#define QORKIT_UC_ENUM(quantity, stem, names, table, family, array)                                \
    enum TQOR##stem##Type : std::uint8_t {names(QORKIT_UC_ENUM_MEMBER)};
QORKIT_QUANTITY_LIST(QORKIT_UC_ENUM)
#undef QORKIT_UC_ENUM

// The quantity a unit enumeration belongs to.
#define QORKIT_UC_QUANTITY_OF(quantity, stem, names, table, family, array)                         \
    constexpr TQORConvType QuantityOf(TQOR##stem##Type) noexcept { return quantity; }
QORKIT_QUANTITY_LIST(QORKIT_UC_QUANTITY_OF)
#undef QORKIT_UC_QUANTITY_OF

// ---- Names arrays ------------------------------------------------------------------------------

// A names array: indexing it by a member gives the member's display name in the current language
// (the resource text, looked up at each use so that a translation installed later is seen).
template<typename E, std::size_t N> class TQORNamesArray {
public:
    constexpr explicit TQORNamesArray(const std::string_view (&texts)[N]) noexcept : texts_(texts)
    { }
    // The display name; the empty string for a member outside the enumeration.
    std::string operator[](E member) const
    {
        const auto index = static_cast<std::size_t>(member);
        return index < N ? LoadName(texts_[index]) : std::string();
    }
    static constexpr std::size_t size() noexcept { return N; }
    // The untranslated text of a member.
    constexpr std::string_view Source(E member) const noexcept
    {
        return static_cast<std::size_t>(member) < N ? texts_[member] : std::string_view();
    }

private:
    static std::string LoadName(std::string_view source)
    {
        return source.empty() ? std::string() : LoadResString(UCTextContext, source);
    }
    const std::string_view* texts_;
};

namespace detail {
#define QORKIT_UC_TEXT(member, text) std::string_view(text),
inline constexpr std::string_view ConvTypeTexts[] = {QORKIT_UC_CONV_NAMES(QORKIT_UC_TEXT)};
#define QORKIT_UC_TEXTS(quantity, stem, names, table, family, array)                               \
    inline constexpr std::string_view stem##Texts[] = {names(QORKIT_UC_TEXT)};
QORKIT_QUANTITY_LIST(QORKIT_UC_TEXTS)
#undef QORKIT_UC_TEXTS
#undef QORKIT_UC_TEXT
#define QORKIT_UC_MEMBER(member, text) std::string_view(#member),
inline constexpr std::string_view ConvTypeMembers[] = {QORKIT_UC_CONV_NAMES(QORKIT_UC_MEMBER)};
#undef QORKIT_UC_MEMBER
} // namespace detail

// The member name of a quantity ("ectDistance"); empty when out of range.
constexpr std::string_view QuantityMemberName(TQORConvType quantity) noexcept
{
    return quantity < std::size(detail::ConvTypeMembers) ? detail::ConvTypeMembers[quantity]
                                                         : std::string_view();
}

inline constexpr TQORNamesArray<TQORConvType, std::size(detail::ConvTypeTexts)> QORConvTypeStr {
    detail::ConvTypeTexts};
#define QORKIT_UC_ARRAY(quantity, stem, names, table, family, array)                               \
    inline constexpr TQORNamesArray<TQOR##stem##Type, std::size(detail::stem##Texts)> array {      \
        detail::stem##Texts};
QORKIT_QUANTITY_LIST(QORKIT_UC_ARRAY)
#undef QORKIT_UC_ARRAY

// ---- The unit tables ---------------------------------------------------------------------------

// How a unit reaches the unit it is defined through (see QORKITUnitTables.h).
enum class TQORRuleKind : std::uint8_t { Base, Same, Lin, Div, Fn, SrcKg, Slope };
// Where a unit's factor comes from.
enum class TQORFactorSource : std::uint8_t { Const, Exact, Nist, Custom, Ref };

struct QORKIT_CORE_EXPORT TQORUnitRule {
    std::uint8_t Member = 0; // ordinal in the quantity's enumeration
    TQORRuleKind Kind = TQORRuleKind::Base;
    std::uint8_t Via = 0; // ordinal of the unit this one is defined through
    Extended Factor = 1; // size of one unit in Via units (Lin), or its inverse (Div)
    Extended (*ToVia)(Extended) = nullptr; // the routines of a Fn rule
    Extended (*FromVia)(Extended) = nullptr;
    TQORFactorSource Source = TQORFactorSource::Exact;
    std::string_view MemberName; // "edtFeet"
    std::string_view Token; // "Feet", as in the routine names
};

// Number of units of a quantity (0 for a quantity without units).
QORKIT_CORE_EXPORT std::size_t UnitCount(TQORConvType quantity) noexcept;
// The table of a quantity, in ordinal order (empty for a quantity without units).
QORKIT_CORE_EXPORT std::span<const TQORUnitRule> UnitRules(TQORConvType quantity) noexcept;
// The member name ("edtFeet") and display name ("Feet") of a unit; empty when out of range.
QORKIT_CORE_EXPORT std::string_view UnitMemberName(TQORConvType quantity,
                                                   std::size_t unit) noexcept;
QORKIT_CORE_EXPORT std::string UnitName(TQORConvType quantity, std::size_t unit);
// The base unit of a quantity (ordinal).
QORKIT_CORE_EXPORT std::size_t BaseUnit(TQORConvType quantity);

// A value in a unit converted into the quantity's base unit, and back. They follow the unit's
// chain of definitions and raise what the routines raise; an unknown quantity or unit raises
// EConvertError.
QORKIT_CORE_EXPORT Extended UnitToBase(TQORConvType quantity, std::size_t unit, Extended value);
QORKIT_CORE_EXPORT Extended UnitFromBase(TQORConvType quantity, std::size_t unit, Extended value);

// Converts a value between two units of a quantity: first into the base unit, then out of it.
// Raises the routines' exceptions (temperatures below absolute zero, zero fuel figures),
// EConvertError for an unknown quantity or unit, EInvalidOp for a value that is not a number and
// EOverflow when the result is not finite.
QORKIT_CORE_EXPORT Extended ConvertUnits(TQORConvType quantity, std::size_t from, std::size_t to,
                                         Extended value);

template<typename E> Extended ConvertUnit(E from, E to, Extended value)
{
    return ConvertUnits(QuantityOf(from), static_cast<std::size_t>(from),
                        static_cast<std::size_t>(to), value);
}

// ---- The conversion routines --------------------------------------------------------------------

// The temperature routines between two scales that are not Celsius. They are written by hand and
// convert directly, not through Celsius: X(Temp, F, K) names TempF2K and TempK2F.
// clang-format off
#define QORKIT_TEMP_DIRECT_PAIRS(X) \
    X(Temp, F, K) \
    X(Temp, F, R) \
    X(Temp, K, R)
// clang-format on

} // namespace qorkit

// One routine for each direction between a unit and the unit it is defined through
// (DistInches2M, DistM2Inches), for each named pair of the tables, and the direct temperature
// routines. The list is written from the tables above by tools/qorkit_conversion_decls.
#include "QORKITConversionRoutines.h"
