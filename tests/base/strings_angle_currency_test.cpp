// Angle texts (degrees, minutes, seconds), currency texts and program-text numbers.
#include "QORKITExceptions.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"
#include "QorkitTestSupport.h"
#include "TextTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace qorkit {
namespace {

using test::CommaDecimals;
using test::GlobalStateTest;
using test::RowName;
using test::SwapMarks;

// 5 degrees 5 minutes 3 seconds, worked by hand.
constexpr Extended k5d5m3s = 5.0L + 5.0L / 60 + 3.0L / 3600;

// ---- Degrees to text -----------------------------------------------------------------------

struct DmsRow {
    const char* Name;
    Extended degrees;
    TQORDMSType type;
    std::uint8_t decimals;
    bool leadingZeroes, spaceUnits, trim;
    const char* expected;
};

class DmsFormat : public GlobalStateTest, public testing::WithParamInterface<DmsRow> { };

TEST_P(DmsFormat, BothSeparators)
{
    const auto& r = GetParam();
    EXPECT_EQ(Float2DMSStr(r.degrees, r.type, r.decimals, r.leadingZeroes, r.spaceUnits, r.trim),
              r.expected);
    CommaDecimals scope;
    EXPECT_EQ(Float2DMSStr(r.degrees, r.type, r.decimals, r.leadingZeroes, r.spaceUnits, r.trim),
              SwapMarks(r.expected));
}

const DmsRow kDmsRows[] = {
    {"Seconds", 12.5125L, dmsDegreesMinutesSeconds, 0, false, true, false, "12° 30' 45\""},
    {"Degrees", 12.5125L, dmsDegrees, 2, false, true, false, "12.51°"},
    {"Minutes", 12.5125L, dmsDegreesMinutes, 2, false, true, false, "12° 30.75'"},
    {"NoLeadingZeroes", k5d5m3s, dmsDegreesMinutesSeconds, 0, false, true, false, "5° 5' 3\""},
    {"LeadingZeroes", k5d5m3s, dmsDegreesMinutesSeconds, 1, true, true, false, "5° 05' 03.0\""},
    {"NoSpaces", 12.5125L, dmsDegreesMinutesSeconds, 0, false, false, false, "12°30'45\""},
    {"CarryIntoDegrees", 10.999999L, dmsDegreesMinutesSeconds, 1, true, true, false,
     "11° 00' 00.0\""},
    {"Negative", -12.5125L, dmsDegreesMinutesSeconds, 0, false, true, false, "-12° 30' 45\""},
    {"NegativeRoundsToZero", -0.00001L, dmsDegreesMinutesSeconds, 0, false, true, false,
     "0° 0' 0\""},
    {"TrimWholeMinutes", 12.5L, dmsDegreesMinutes, 3, false, true, true, "12° 30'"},
    {"KeepZeroDecimals", 12.5L, dmsDegreesMinutes, 3, false, true, false, "12° 30.000'"},
    {"TrimPartly", 12.25L, dmsDegrees, 4, false, true, true, "12.25°"},
    {"HalfSecondAwayFromZero", 0.5L / 3600, dmsDegreesMinutesSeconds, 0, false, true, false,
     "0° 0' 1\""},
    // Minutes and seconds keep their digits at any size the fraction still has bits for.
    {"HugeKeepsSeconds", 1000000000000614.625L, dmsDegreesMinutesSeconds, 0, true, true, false,
     "1000000000000614° 37' 30\""},
    {"HugeNegative", -1000000000000614.625L, dmsDegreesMinutesSeconds, 1, true, true, false,
     "-1000000000000614° 37' 30.0\""},
    {"HugeKeepsMinutes", 4503599627370495.75L, dmsDegreesMinutes, 1, true, true, false,
     "4503599627370495° 45.0'"},
    {"HugeCarriesIntoDegrees", 1099511627775.9998779296875L, dmsDegreesMinutesSeconds, 0, true,
     true, false, "1099511627776° 00' 00\""},
    {"LargeAngle", 1e25L, dmsDegreesMinutesSeconds, 0, false, true, false,
     "10000000000000000000000000° 0' 0\""},
};

INSTANTIATE_TEST_SUITE_P(Strings, DmsFormat, testing::ValuesIn(kDmsRows), RowName<DmsRow>);

TEST_F(GlobalStateTest, Angle2StrShowsTwoDigitMinutesAndSeconds)
{
    EXPECT_EQ(Angle2Str(12.5125L, 0), "12° 30' 45\"");
    EXPECT_EQ(Angle2Str(k5d5m3s, 1), "5° 05' 03.0\"");
    EXPECT_EQ(Angle2Str(-k5d5m3s, 0), "-5° 05' 03\"");
    EXPECT_THROW(Angle2Str(std::numeric_limits<Extended>::quiet_NaN(), 0), EInvalidOp);
}

// ---- Text to degrees -----------------------------------------------------------------------

struct DmsParseRow {
    const char* Name;
    const char* text;
    Extended degrees;
};

class DmsParse : public GlobalStateTest, public testing::WithParamInterface<DmsParseRow> { };

TEST_P(DmsParse, BothSeparators)
{
    const auto& r = GetParam();
    EXPECT_LE(std::fabs(DMSStr2Float(r.text) - r.degrees), 1e-15L);
    CommaDecimals scope;
    EXPECT_LE(std::fabs(DMSStr2Float(SwapMarks(r.text)) - r.degrees), 1e-15L);
}

const DmsParseRow kDmsParseRows[] = {
    {"Marked", "12° 30' 45\"", 12.5125L},
    {"MarkedTight", "12°30'45\"", 12.5125L},
    {"BlanksOnly", "12 30 45", 12.5125L},
    {"PlainDegrees", " 12.5 ", 12.5L},
    {"DecimalMinutes", "12° 30.75'", 12.5125L},
    {"MinutesOnly", "30'", 0.5L},
    {"SecondsOnly", "45\"", 0.0125L},
    {"DegreesAndSeconds", "1° 36\"", 1.01L},
    {"LeadingMinus", "-12 30", -12.5L},
    {"LeadingPlus", "+5", 5.0L},
    {"South", "12 30 S", -12.5L},
    {"WestLowerCase", "0 0 36w", -0.01L},
    {"North", "12° 30' N", 12.5L},
};

INSTANTIATE_TEST_SUITE_P(Strings, DmsParse, testing::ValuesIn(kDmsParseRows), RowName<DmsParseRow>);

TEST_F(GlobalStateTest, DMSStr2FloatRejectsMalformedText)
{
    for (const char* bad : {"", " ", "abc", "°", "-", "S", "12° 30' 45\" 10", "30' 12°", "1 2 3 4",
                            "-12 S", "12..5", "12 x", "12'°", "1e5"}) {
        SCOPED_TRACE(bad);
        EXPECT_THROW(DMSStr2Float(bad), EConvertError);
    }
    try {
        DMSStr2Float("north");
        FAIL() << "no exception";
    } catch (const EConvertError& e) {
        EXPECT_STREQ(e.what(), "'north' is not a valid angle");
    }
}

TEST_F(GlobalStateTest, DmsTextReadsBackForEveryForm)
{
    const Extended angles[] = {0.0L, 12.5125L, -k5d5m3s, 179.999L, -0.0001L, 359.5L};
    for (bool comma : {false, true}) {
        std::optional<CommaDecimals> scope;
        if (comma)
            scope.emplace();
        for (const Extended a : angles) {
            for (const auto type : {dmsDegrees, dmsDegreesMinutes, dmsDegreesMinutesSeconds}) {
                for (const int flags : {0, 1, 2, 3, 4, 7}) {
                    const std::string text
                        = Float2DMSStr(a, type, 4, flags & 1, flags & 2, flags & 4);
                    SCOPED_TRACE(text);
                    // Four decimals of the last unit: half a unit in the fifth decimal.
                    const Extended tolerance = 0.5e-4L
                        / (type == dmsDegrees              ? 1
                               : type == dmsDegreesMinutes ? 60
                                                           : 3600);
                    EXPECT_LE(std::fabs(DMSStr2Float(text) - a), tolerance * 1.0001L);
                }
            }
        }
    }
}

TEST_F(GlobalStateTest, AngleMarksComeFromTheSettings)
{
    Touches(test::Area::Format);
    FormatSettings.DegreeSign = "d";
    FormatSettings.MinuteSign = "m";
    FormatSettings.SecondSign = "s";
    EXPECT_EQ(Angle2Str(12.5125L, 0), "12d 30m 45s");
    EXPECT_EQ(DMSStr2Float("12d 30m 45s"), DMSStr2Float("12 30 45"));
    EXPECT_THROW(DMSStr2Float("12° 30'"), EConvertError);
    // A seconds mark that begins with the minutes mark.
    FormatSettings.MinuteSign = "'";
    FormatSettings.SecondSign = "''";
    EXPECT_EQ(Angle2Str(12.5125L, 0), "12d 30' 45''");
    EXPECT_LE(std::fabs(DMSStr2Float("12d 30' 45''") - 12.5125L), 1e-15L);
    EXPECT_LE(std::fabs(DMSStr2Float("45''") - 0.0125L), 1e-15L);
}

// ---- Currency ------------------------------------------------------------------------------

struct CurrencyRow {
    const char* Name;
    std::int64_t scaled; // amount x 10000
    std::uint8_t decimals;
    std::uint8_t positiveFormat, negativeFormat;
    const char* expected;
};

class CurrencyFormat : public test::GlobalStateTestOf<test::Area::Format>,
                       public testing::WithParamInterface<CurrencyRow> {
protected:
    std::string Format()
    {
        const auto& r = GetParam();
        FormatSettings.CurrencyFormat = r.positiveFormat;
        FormatSettings.NegCurrFormat = r.negativeFormat;
        return Currency2EStr(Currency::FromScaled(r.scaled), r.decimals);
    }
};

TEST_P(CurrencyFormat, BothSeparators)
{
    EXPECT_EQ(Format(), GetParam().expected);
    CommaDecimals scope;
    EXPECT_EQ(Format(), SwapMarks(GetParam().expected));
}

const CurrencyRow kCurrencyRows[] = {
    {"SymbolFirst", 12345678, 2, 0, 1, "$1,234.57"},
    {"SymbolLastSpaced", 12345678, 2, 3, 1, "1,234.57 $"},
    {"Parentheses", -12345678, 2, 0, 0, "($1,234.57)"},
    {"MinusFirst", -12345678, 2, 0, 1, "-$1,234.57"},
    {"MinusLast", -12345678, 2, 0, 3, "$1,234.57-"},
    {"MinusSymbolSpaced", -12345678, 2, 0, 8, "-1,234.57 $"},
    {"ParenthesesSymbolLast", -12345678, 2, 0, 15, "(1,234.57 $)"},
    {"HalfAwayFromZero", 5, 3, 0, 1, "$0.001"},
    {"NegativeHalfAwayFromZero", -25000, 0, 0, 1, "-$3"},
    {"NegativeRoundsToZero", -4, 2, 0, 0, "$0.00"},
    {"MoreDecimalsThanKept", 10000, 6, 0, 1, "$1.000000"},
    {"SmallestAmount", std::numeric_limits<std::int64_t>::min(), 4, 0, 1,
     "-$922,337,203,685,477.5808"},
    {"OutOfRangeFormatsFallBack", -10000, 0, 9, 99, "-$1"},
};

INSTANTIATE_TEST_SUITE_P(Strings, CurrencyFormat, testing::ValuesIn(kCurrencyRows),
                         RowName<CurrencyRow>);

TEST_F(GlobalStateTest, CurrencyTextReadsBackInEveryFormat)
{
    Touches(test::Area::Format);
    const std::int64_t amounts[] = {0, 12345678, -12345678, -1, 9999999999999};
    for (const char* symbol : {"$", "EUR", "\xE2\x82\xAC"}) {
        FormatSettings.CurrencyString = symbol;
        for (std::uint8_t f = 0; f < 16; ++f) {
            FormatSettings.CurrencyFormat = f % 4;
            FormatSettings.NegCurrFormat = f;
            for (const auto scaled : amounts) {
                const Currency c = Currency::FromScaled(scaled);
                const std::string text = Currency2EStr(c, 4);
                SCOPED_TRACE(text);
                EXPECT_EQ(Str2Float(StripCurrencyString(text)), c.ToExtended());
                EXPECT_EQ(Str2Float(StripThousandSeparators(StripCurrencyString(text))),
                          c.ToExtended());
            }
        }
    }
}

TEST_F(GlobalStateTest, StripHelpers)
{
    EXPECT_EQ(StripCurrencyString("$1,234.50"), "1,234.50");
    EXPECT_EQ(StripCurrencyString(" $ 12 "), "12");
    EXPECT_EQ(StripCurrencyString("($1.00)"), "-1.00");
    EXPECT_EQ(StripCurrencyString("1.00$-"), "-1.00");
    EXPECT_EQ(StripCurrencyString("- $ 1"), "-1");
    EXPECT_EQ(StripCurrencyString("12"), "12");
    EXPECT_EQ(StripCurrencyString(""), "");
    EXPECT_EQ(StripThousandSeparators("-1,234,567.5"), "-1234567.5");
    CommaDecimals scope;
    EXPECT_EQ(StripThousandSeparators("1.234,5"), "1234,5");
}

// ---- Program text --------------------------------------------------------------------------

TEST_F(GlobalStateTest, Float2StrIsRightAlignedWithAPoint)
{
    EXPECT_EQ(Float2Str(3.14159L, 10, 2), "      3.14");
    EXPECT_EQ(Float2Str(1.5L, 19, 4), "             1.5000");
    EXPECT_EQ(Float2Str(-2.5L, 0, 0), "-3");
    EXPECT_EQ(Float2Str(-0.00001L, 6, 2), "  0.00");
    EXPECT_EQ(Float2Str(123456.25L, 3, 1), "123456.3");
    EXPECT_EQ(Float2Str(12345.0L, 12, -3), "   1.235E+04");
    CommaDecimals scope;
    EXPECT_EQ(Float2Str(1234.5L, 8, 1), "  1234.5") << "never the locale separator";
    EXPECT_THROW(Float2Str(std::numeric_limits<Extended>::infinity(), 19, 4), EOverflow);
}

} // namespace
} // namespace qorkit
