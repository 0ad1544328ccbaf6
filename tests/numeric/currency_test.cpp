// Currency conversions with hand-worked amounts: look-ups, the fixed euro rates and their
// deliberate double rounding, and dollar rates.
#include "QORKITCurrency.h"
#include "QorkitTestSupport.h"

#include <string>

namespace qorkit {
namespace {

Currency Money(std::int64_t scaled) { return Currency::FromScaled(scaled); }

TEST(EMUTable, CodeAndCountryLookUps)
{
    ASSERT_EQ(EMUCurrencies().size(), 12u);
    EXPECT_EQ(EMUCode2EMUNo("dem"), 5);
    EXPECT_EQ(EMUCode2EMUNo("NJG"), 9);
    EXPECT_EQ(EMUCode2EMUNo("grd"), 12);
    EXPECT_EQ(EMUCode2EMUNo("NLG"), 0);
    EXPECT_EQ(EMUCode2EMUNo("XYZ"), 0);
    EXPECT_EQ(EMUCode2EMUNo(""), 0);
    EXPECT_EQ(EMUCountry2EMUNo("spain, peseta"), 11);
    EXPECT_EQ(EMUCountry2EMUNo("Old money: SPAIN, PESETA (1869)"), 11);
    EXPECT_EQ(EMUCountry2EMUNo("Spain"), 0);
    // Belgium and Luxembourg share a rate but not a number.
    EXPECT_EQ(EMUCountry2EMUNo("Luxembourg, Franc"), 8);
}

TEST(EuroConversion, FixedRatesRoundedToTheCent)
{
    // 1.95583 DEM is one euro exactly.
    EXPECT_EQ(ConvertEC2Euro("DEM", Money(19558)), Money(10000)); // 1.9558 -> 0.99998 -> 1.00
    EXPECT_EQ(ConvertEC2Euro("dem", Money(1000000)), Money(511300)); // 100 DEM = 51.13 EUR
    EXPECT_EQ(ConvertEuro2EC("ITL", Money(10000)), Money(19362700));
    EXPECT_EQ(ConvertEuro2EC("IEP", Money(1000000)), Money(787600)); // 78.7564 -> 78.76
    // Integer amounts: 100 DEM -> 5113 hundredths -> 51 euros; 1 euro -> 1936 lire.
    EXPECT_EQ(ConvertEC2Euro("DEM", TQORCurrency {100}), 51);
    EXPECT_EQ(ConvertEuro2EC("ITL", TQORLongCurrency {1}), 1936u);
    EXPECT_EQ(ConvertEuro2EC("FRF", TQORCurrency {-10}), -66);
}

TEST(EuroConversion, IntegerFormsRoundTwiceHalvesToEven)
{
    // 215 EUR = 420.50345 DEM: 42050 hundredths, then 420.50 to the even 420 (once: 421).
    EXPECT_EQ(ConvertEuro2EC("DEM", TQORCurrency {215}), 420);
    EXPECT_EQ(ConvertEuro2EC("DEM", TQORLongCurrency {215}), 420u);
    // 310 DEM = 158.50048 EUR: 15850 hundredths, then 158.
    EXPECT_EQ(ConvertEC2Euro("DEM", TQORCurrency {310}), 158);
    // The fixed-point form keeps the hundredths.
    EXPECT_EQ(ConvertEuro2EC("DEM", Money(2150000)), Money(4205000));
}

TEST(EuroConversion, UnknownCodesGiveZero)
{
    EXPECT_EQ(ConvertEC2Euro("NLG", Money(10000)), Money(0));
    EXPECT_EQ(ConvertEuro2EC("USD", Money(10000)), Money(0));
    EXPECT_EQ(ConvertEC2Euro("XYZ", TQORCurrency {100}), 0);
    EXPECT_EQ(ConvertEuro2EC("", TQORLongCurrency {100}), 0u);
}

TEST(DollarConversion, RateBothWaysAndNonPositiveRates)
{
    EXPECT_EQ(ConvertLocal2USD(Money(100000), 1.1L), Money(110000));
    EXPECT_EQ(ConvertUSD2Local(Money(110000), 1.1L), Money(100000));
    // Rounded on the scaled amount, halves to even.
    EXPECT_EQ(ConvertLocal2USD(Money(1), 0.5L), Money(0));
    EXPECT_EQ(ConvertLocal2USD(Money(3), 0.5L), Money(2));
    EXPECT_EQ(ConvertLocal2USD(TQORCurrency {1000}, 0.75L), 750);
    EXPECT_EQ(ConvertUSD2Local(TQORLongCurrency {750}, 0.75L), 1000u);
    for (Extended rate : {0.0L, -2.0L}) {
        EXPECT_EQ(ConvertUSD2Local(Money(10000), rate), Money(0));
        EXPECT_EQ(ConvertUSD2Local(TQORCurrency {100}, rate), 0);
        EXPECT_EQ(ConvertUSD2Local(TQORLongCurrency {100}, rate), 0u);
    }
}

} // namespace
} // namespace qorkit
