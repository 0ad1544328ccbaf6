#include "QORKITCurrency.h"

#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"

#include <cmath>
#include <limits>
#include <string>

namespace qorkit {

namespace {

// The fixed conversion rates of the monetary union, units per euro. The Netherlands carry the
// code "NJG" in this table; "NLG" is deliberately not recognised.
constexpr TQOREMUCurrency kEMU[] = {
    {"ATS", "Austria, Schilling", 13.7603L},
    {"BEF", "Belgium, Franc", 40.3399L},
    {"FIM", "Finland, Markka", 5.94573L},
    {"FRF", "France, Franc", 6.55957L},
    {"DEM", "German, Mark (Deutsche Mark)", 1.95583L},
    {"IEP", "Ireland, Punt", 0.787564L},
    {"ITL", "Italy, Lira", 1936.27L},
    {"LUF", "Luxembourg, Franc", 40.3399L},
    {"NJG", "Netherlands, Guilder", 2.20371L},
    {"PTE", "Portugal, Escudo", 200.482L},
    {"ESP", "Spain, Peseta", 166.386L},
    {"GRD", "Greece, Drachmes", 340.75L},
};

std::string UpperCase(std::string_view s)
{
    std::string result(s);
    for (char& c : result)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return result;
}

// Round to the nearest integer, halves to even (the floating-point unit's default), and check
// that the result fits the amount type.
template<typename T> T RoundTo(Extended value)
{
    CheckFloat(value);
    const Extended r = std::nearbyint(value);
    if (r < static_cast<Extended>(std::numeric_limits<T>::min())
        || r > static_cast<Extended>(std::numeric_limits<T>::max()))
        throw EOverflow(rsOverflow());
    return static_cast<T>(r);
}

Currency ScaledCurrency(Extended scaled)
{
    return Currency::FromScaled(RoundTo<std::int64_t>(scaled));
}

// The rate of a code, 0 when the code is unknown.
Extended EMURate(std::string_view code)
{
    const int n = EMUCode2EMUNo(code);
    return n == 0 ? 0 : kEMU[n - 1].Rate;
}

// Amount in hundredths of the target unit: amount / rate * 100 or amount * rate * 100.
Extended Hundredths(Extended amount, Extended rate, bool toEuro)
{
    return std::nearbyint(CheckFloat(toEuro ? amount / rate * 100 : amount * rate * 100));
}

Currency EuroCurrency(std::string_view code, Currency amount, bool toEuro)
{
    const Extended rate = EMURate(code);
    if (rate == 0)
        return Currency {};
    const Extended cents = Hundredths(amount.ToExtended(), rate, toEuro);
    return ScaledCurrency(cents * (Currency::Scale / 100));
}

// The 32-bit forms round twice on purpose: to hundredths, then to whole units.
template<typename T> T EuroAmount(std::string_view code, T amount, bool toEuro)
{
    const Extended rate = EMURate(code);
    if (rate == 0)
        return 0;
    return RoundTo<T>(Hundredths(static_cast<Extended>(amount), rate, toEuro) / 100);
}

template<typename T> T USD2Local(T amount, Extended rate)
{
    if (!FloatIsPositive(rate))
        return 0;
    return DivideCurrencyByValue(amount, rate);
}

} // namespace

std::span<const TQOREMUCurrency> EMUCurrencies() { return kEMU; }

int EMUCode2EMUNo(std::string_view Code)
{
    const std::string code = UpperCase(Code);
    for (std::size_t i = 0; i < std::size(kEMU); ++i)
        if (code == kEMU[i].Code)
            return static_cast<int>(i + 1);
    return 0;
}

int EMUCountry2EMUNo(std::string_view Country)
{
    const std::string country = UpperCase(Country);
    for (std::size_t i = 0; i < std::size(kEMU); ++i)
        if (country.find(UpperCase(kEMU[i].Country)) != std::string::npos)
            return static_cast<int>(i + 1);
    return 0;
}

Currency ConvertLocal2USD(Currency Amount, Extended Rate)
{
    return ScaledCurrency(static_cast<Extended>(Amount.Scaled()) * Rate);
}

TQORCurrency ConvertLocal2USD(TQORCurrency Amount, Extended Rate)
{
    return MultiplyCurrencyByValue(Amount, Rate);
}

TQORLongCurrency ConvertLocal2USD(TQORLongCurrency Amount, Extended Rate)
{
    return MultiplyCurrencyByValue(Amount, Rate);
}

Currency ConvertUSD2Local(Currency Amount, Extended Rate)
{
    if (!FloatIsPositive(Rate))
        return Currency {};
    return ScaledCurrency(static_cast<Extended>(Amount.Scaled()) / Rate);
}

TQORCurrency ConvertUSD2Local(TQORCurrency Amount, Extended Rate)
{
    return USD2Local(Amount, Rate);
}

TQORLongCurrency ConvertUSD2Local(TQORLongCurrency Amount, Extended Rate)
{
    return USD2Local(Amount, Rate);
}

Currency ConvertEC2Euro(std::string_view Code, Currency Amount)
{
    return EuroCurrency(Code, Amount, true);
}

TQORCurrency ConvertEC2Euro(std::string_view Code, TQORCurrency Amount)
{
    return EuroAmount(Code, Amount, true);
}

TQORLongCurrency ConvertEC2Euro(std::string_view Code, TQORLongCurrency Amount)
{
    return EuroAmount(Code, Amount, true);
}

Currency ConvertEuro2EC(std::string_view Code, Currency Amount)
{
    return EuroCurrency(Code, Amount, false);
}

TQORCurrency ConvertEuro2EC(std::string_view Code, TQORCurrency Amount)
{
    return EuroAmount(Code, Amount, false);
}

TQORLongCurrency ConvertEuro2EC(std::string_view Code, TQORLongCurrency Amount)
{
    return EuroAmount(Code, Amount, false);
}

} // namespace qorkit
