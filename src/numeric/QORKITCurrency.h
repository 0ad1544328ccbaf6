// Money conversions: a local currency to US dollars and back at a given rate, and the twelve
// national currencies of the European monetary union to euros and back at the fixed rates.
// Each conversion comes for the fixed-point Currency and for the 32-bit amounts TQORCurrency
// and TQORLongCurrency. All functions are stateless.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace qorkit {

// One union currency: its code, its country text and its units per euro.
struct QORKIT_CORE_EXPORT TQOREMUCurrency {
    std::string_view Code;
    std::string_view Country;
    Extended Rate;
};

// The union currencies numbered 1 to 12, in that order (entry 0 is currency 1).
QORKIT_CORE_EXPORT std::span<const TQOREMUCurrency> EMUCurrencies();

// Number (1..12) of a code, any letter case; 0 when unknown. The Dutch code is "NJG".
QORKIT_CORE_EXPORT int EMUCode2EMUNo(std::string_view Code);
// Number of the first currency whose whole country text ("Spain, Peseta") occurs in the
// argument, any letter case; 0 when none does.
QORKIT_CORE_EXPORT int EMUCountry2EMUNo(std::string_view Country);

// Rate is the value of one local unit in US dollars, for both directions. ConvertUSD2Local
// returns 0 when the rate is not positive.
QORKIT_CORE_EXPORT Currency ConvertLocal2USD(Currency Amount, Extended Rate);
QORKIT_CORE_EXPORT TQORCurrency ConvertLocal2USD(TQORCurrency Amount, Extended Rate);
QORKIT_CORE_EXPORT TQORLongCurrency ConvertLocal2USD(TQORLongCurrency Amount, Extended Rate);
QORKIT_CORE_EXPORT Currency ConvertUSD2Local(Currency Amount, Extended Rate);
QORKIT_CORE_EXPORT TQORCurrency ConvertUSD2Local(TQORCurrency Amount, Extended Rate);
QORKIT_CORE_EXPORT TQORLongCurrency ConvertUSD2Local(TQORLongCurrency Amount, Extended Rate);

// National amount to euros and back, by currency code; an unknown code gives 0. The amount is
// first rounded to hundredths of the target unit (halves to even); the Currency form keeps the
// hundredths, the integer forms round once more to whole units.
QORKIT_CORE_EXPORT Currency ConvertEC2Euro(std::string_view Code, Currency Amount);
QORKIT_CORE_EXPORT TQORCurrency ConvertEC2Euro(std::string_view Code, TQORCurrency Amount);
QORKIT_CORE_EXPORT TQORLongCurrency ConvertEC2Euro(std::string_view Code, TQORLongCurrency Amount);
QORKIT_CORE_EXPORT Currency ConvertEuro2EC(std::string_view Code, Currency Amount);
QORKIT_CORE_EXPORT TQORCurrency ConvertEuro2EC(std::string_view Code, TQORCurrency Amount);
QORKIT_CORE_EXPORT TQORLongCurrency ConvertEuro2EC(std::string_view Code, TQORLongCurrency Amount);

} // namespace qorkit
