// Process-wide settings: number formats, calculator settings kept between runs, the store that
// keeps them, sign conventions of positions, and the random generator.
//
// All of these are plain variables read at the moment of use, on the host's UI thread.
// ResetGlobalSettings() puts every one of them back to its start-up value.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_base_export.h"

#include <cstdint>
#include <random>
#include <string>

namespace qorkit {

// Number, currency and angle-mark formats. Defaults are those of the C locale.
struct QORKIT_BASE_EXPORT TFormatSettings {
    char DecimalSeparator = '.';
    char ThousandSeparator = ',';
    std::string CurrencyString = "$";
    // Position of the currency symbol for positive amounts: 0 "$1", 1 "1$", 2 "$ 1", 3 "1 $".
    std::uint8_t CurrencyFormat = 0;
    // Negative amounts, the sixteen classic patterns: 0 "($1)", 1 "-$1", 2 "$-1", 3 "$1-",
    // 4 "(1$)", 5 "-1$", 6 "1-$", 7 "1$-", 8 "-1 $", 9 "-$ 1", 10 "1 $-", 11 "$ 1-",
    // 12 "$ -1", 13 "1- $", 14 "($ 1)", 15 "(1 $)".
    std::uint8_t NegCurrFormat = 1;
    std::uint8_t CurrencyDecimals = 2;
    // Marks of degrees, minutes and seconds in angle texts (UTF-8).
    std::string DegreeSign = "\xC2\xB0";
    std::string MinuteSign = "'";
    std::string SecondSign = "\"";
};

// The process-wide format settings, read by every text routine at each call.
extern QORKIT_BASE_EXPORT TFormatSettings FormatSettings;

// The calculator display font that QORCalcDispFont starts with: a family name.
inline constexpr char QORDefaultCalcDispFont[] = "Arial";

// Calculator settings shared by the calculator dialogs between runs.
extern QORKIT_BASE_EXPORT bool QORCalcRadians; // calculators start in radians (false: degrees)
extern QORKIT_BASE_EXPORT Extended
    QORCalcMemory; // memory register of the floating-point calculators
extern QORKIT_BASE_EXPORT std::string
    QORCalcDispFont; // display font description of the calculator display
extern QORKIT_BASE_EXPORT std::int64_t
    QORProgCalcMemory; // memory register of the programmer's calculator

// Which store keeps the calculator settings, and where.
extern QORKIT_BASE_EXPORT TQORRegIniType QORRegIniType;
extern QORKIT_BASE_EXPORT std::string QORRegPath;
extern QORKIT_BASE_EXPORT std::string QORRegSection;
extern QORKIT_BASE_EXPORT std::string QORIniFile;
extern QORKIT_BASE_EXPORT std::string QORIniSection;

// Help contexts of the calculator dialogs (0: none).
extern QORKIT_BASE_EXPORT int QORCalcHelpContext;
extern QORKIT_BASE_EXPORT int QORSmallCalcHelpContext;
extern QORKIT_BASE_EXPORT int QORSciCalcHelpContext;
extern QORKIT_BASE_EXPORT int QORProgCalcHelpContext;

// Sign convention seen by callers of the position routines: true means north-positive
// latitudes and east-positive longitudes (the stored convention).
extern QORKIT_BASE_EXPORT bool QORNorthPositive;
extern QORKIT_BASE_EXPORT bool QOREastPositive;

// Puts every variable above back to its start-up value and re-seeds the random generator.
QORKIT_BASE_EXPORT void ResetGlobalSettings();

// The process-wide random generator. RandomSeed takes effect before the next number is
// drawn; a reference kept from RandomGenerator() across a RandomSeed does not see the seed.
QORKIT_BASE_EXPORT std::mt19937_64& RandomGenerator();
QORKIT_BASE_EXPORT void RandomSeed(std::uint64_t seed);
// A uniformly distributed value in [0, 1).
QORKIT_BASE_EXPORT Extended RandomExtended();

} // namespace qorkit
