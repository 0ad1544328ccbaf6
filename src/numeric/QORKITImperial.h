// Two-level measures such as feet and inches or pounds and ounces, at any power (1 lengths,
// 2 areas, 3 volumes, 0 pure numbers). Every operation converts to one value in major units,
// computes and converts back.
//
// A measure keeps its sign in Major; Minor is non-negative after normalisation. Because of that
// a value between -1 and 0 major units loses its sign when it is normalised, and a power-0
// measure is read with one division by the ratio but written without it. Both are intended.
//
// All failures raise EMathError kinds with translatable messages (ImperialTexts()).
#pragma once

#include "QORKITResource.h"
#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <cstdint>
#include <span>
#include <string>

namespace qorkit {

#define QORKIT_IMPERIAL_TEXTS(X)                                                                   \
    X(rsImperialRatioZero, "Ratio cannot be 0")                                                    \
    X(rsImperialDifferentPowers, "Cannot have different Powers")                                   \
    X(rsImperialDifferentUnits, "Cannot have different Units")                                     \
    X(rsImperialOddPowerRoot, "Cannot Find Square Root with an odd Power")                         \
    X(rsImperialConst, "const")                                                                    \
    X(rsImperialPower, "Power")

QORKIT_IMPERIAL_TEXTS(QORKIT_CORE_DECLARE_TEXT)

// Every text of this module, in table order.
QORKIT_CORE_EXPORT std::span<const TResourceText> ImperialTexts();

// A normalised measure: 1 foot 14 inches becomes 2 feet 2 inches. Ratio 0 raises.
QORKIT_CORE_EXPORT TQORImperial MakeImperial(std::int32_t Major, double Minor,
                                             const std::string& MajorName,
                                             const std::string& MinorName,
                                             const std::string& MajorAbbr,
                                             const std::string& MinorAbbr, std::int32_t Ratio,
                                             std::int32_t Power);
QORKIT_CORE_EXPORT TQORImperial MakeFeetInches(std::int32_t Feet, double Inches,
                                               std::int32_t Power);
QORKIT_CORE_EXPORT TQORImperial MakePoundsOunces(std::int32_t Pounds, double Ounces,
                                                 std::int32_t Power);

// The measure as one value in major units (to its power).
QORKIT_CORE_EXPORT Extended Imperial2Float(const TQORImperial& Imp);
// Sets Major and Minor from a value in major units, keeping the other fields.
QORKIT_CORE_EXPORT void Float2Imperial(TQORImperial& Imp, Extended Value);
QORKIT_CORE_EXPORT void AdjustImperial(TQORImperial& Imp);
// "2 Feet 2.00 Inches", "1 sq Feet 72.00 sq Inches", "1 1.50 (const)" ...
QORKIT_CORE_EXPORT std::string Imperial2Str(const TQORImperial& Imp, std::uint8_t Decimals);

// Sums need the same units and power; products and quotients the same units, and add or
// subtract the powers.
QORKIT_CORE_EXPORT TQORImperial AddImperial(const TQORImperial& A, const TQORImperial& B);
QORKIT_CORE_EXPORT TQORImperial SubtractImperial(const TQORImperial& A, const TQORImperial& B);
QORKIT_CORE_EXPORT TQORImperial MultiplyImperial(const TQORImperial& A, const TQORImperial& B);
QORKIT_CORE_EXPORT TQORImperial DivideImperial(const TQORImperial& A, const TQORImperial& B);
QORKIT_CORE_EXPORT void AddToImperial(TQORImperial& A, const TQORImperial& B);
QORKIT_CORE_EXPORT void SubtractFromImperial(TQORImperial& A, const TQORImperial& B);

QORKIT_CORE_EXPORT TQORImperial MultiplyImperialByConst(const TQORImperial& Imp, Extended C);
QORKIT_CORE_EXPORT TQORImperial DivideImperialByConst(const TQORImperial& Imp, Extended C);
QORKIT_CORE_EXPORT void MultiplyImperialByConst2(TQORImperial& Imp, Extended C);
QORKIT_CORE_EXPORT void DivideImperialByConst2(TQORImperial& Imp, Extended C);

// A normalised, negated copy; the form ending in 2 negates Major in place, nothing else.
QORKIT_CORE_EXPORT TQORImperial NegativeImperial(const TQORImperial& Imp);
QORKIT_CORE_EXPORT void NegativeImperial2(TQORImperial& Imp);

QORKIT_CORE_EXPORT TQORImperial SqrImperial(const TQORImperial& Imp); // power doubled
QORKIT_CORE_EXPORT TQORImperial InvImperial(const TQORImperial& Imp); // power negated
QORKIT_CORE_EXPORT TQORImperial
SqrtImperial(const TQORImperial& Imp); // power halved; odd powers raise

} // namespace qorkit
