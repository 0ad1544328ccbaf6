// Process-wide settings: number formats, calculator settings kept between runs, the store that
// keeps them, sign conventions of positions, and the random generator.
//
// All of these are plain variables read at the moment of use, on the host's UI thread.
// ResetGlobalSettings() puts every one of them back to its start-up value.
#pragma once

#include "QORKITTypes.h"

#include <cstdint>
#include <random>
#include <string>

namespace qorkit {

// Number, currency and angle-mark formats. Defaults are those of the C locale.
struct TFormatSettings {
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
extern TFormatSettings FormatSettings;

// The calculator display font that QORCalcDispFont starts with: a family name.
inline constexpr char QORDefaultCalcDispFont[] = "Arial";

// Calculator settings shared by the calculator dialogs between runs.
extern bool QORCalcRadians; // calculators start in radians (false: degrees)
extern Extended QORCalcMemory; // memory register of the floating-point calculators
extern std::string QORCalcDispFont; // display font description of the calculator display
extern std::int64_t QORProgCalcMemory; // memory register of the programmer's calculator

// Which store keeps the calculator settings, and where.
extern TQORRegIniType QORRegIniType;
extern std::string QORRegPath;
extern std::string QORRegSection;
extern std::string QORIniFile;
extern std::string QORIniSection;

// Help contexts of the calculator dialogs (0: none).
extern int QORCalcHelpContext;
extern int QORSmallCalcHelpContext;
extern int QORSciCalcHelpContext;
extern int QORProgCalcHelpContext;

// Sign convention seen by callers of the position routines: true means north-positive
// latitudes and east-positive longitudes (the stored convention).
extern bool QORNorthPositive;
extern bool QOREastPositive;

// Puts every variable above back to its start-up value and re-seeds the random generator.
void ResetGlobalSettings();

// The process-wide random generator. RandomSeed takes effect before the next number is
// drawn; a reference kept from RandomGenerator() across a RandomSeed does not see the seed.
std::mt19937_64& RandomGenerator();
void RandomSeed(std::uint64_t seed);
// A uniformly distributed value in [0, 1).
Extended RandomExtended();

} // namespace qorkit
