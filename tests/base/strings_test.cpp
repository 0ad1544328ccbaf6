// Number text routines: fixed and scientific formatting, parsing, grouping, and the integer and
// digit-string conversions. Every table runs with "." decimals and again with "," decimals;
// the expected texts of the second run are the first ones with the two marks exchanged.
#include "QORKITExceptions.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"
#include "QorkitTestSupport.h"
#include "TextTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <random>
#include <string>

namespace qorkit {
namespace {

using test::CommaDecimals;
using test::GlobalStateTest;
using test::RowName;
using test::SwapMarks;

// ---- Fixed notation ------------------------------------------------------------------------

struct FixedRow {
    const char* Name;
    Extended value;
    std::uint8_t decimals;
    bool lakh;
    const char* plain; // Float2EStr
    const char* grouped; // Float2CEStr
    const char* plainTrim; // Float2EStr2
    const char* groupedTrim; // Float2CEStr2
};

class FixedFormat : public GlobalStateTest, public testing::WithParamInterface<FixedRow> {
protected:
    void Check()
    {
        const auto& r = GetParam();
        EXPECT_EQ(Float2CEStr(r.value, r.decimals, r.lakh), expect(r.grouped));
        EXPECT_EQ(Float2CEStr2(r.value, r.decimals, r.lakh), expect(r.groupedTrim));
        if (!r.lakh) {
            EXPECT_EQ(Float2EStr(r.value, r.decimals), expect(r.plain));
            EXPECT_EQ(Float2EStr2(r.value, r.decimals), expect(r.plainTrim));
        }
    }
    bool comma_ = false;
    std::string expect(const char* s) const { return comma_ ? SwapMarks(s) : std::string(s); }
};

TEST_P(FixedFormat, DotDecimals) { Check(); }

TEST_P(FixedFormat, CommaDecimals)
{
    CommaDecimals scope;
    comma_ = true;
    Check();
}

const FixedRow kFixedRows[] = {
    {"HalfRoundsAwayFromZero", 0.125L, 2, false, "0.13", "0.13", "0.13", "0.13"},
    {"TypedHalfAtThirdDecimal", 1.005L, 2, false, "1.01", "1.01", "1.01", "1.01"},
    {"NegativeHalfToZeroDecimals", -2.5L, 0, false, "-3", "-3", "-3", "-3"},
    {"JustBelowHalf", 0.12499L, 2, false, "0.12", "0.12", "0.12", "0.12"},
    {"GroupsOfThree", 1234567.891L, 2, false, "1234567.89", "1,234,567.89", "1234567.89",
     "1,234,567.89"},
    {"Lakh", 1234567.891L, 2, true, "", "12,34,567.89", "", "12,34,567.89"},
    {"LakhCrore", 123456789012.0L, 0, true, "", "1,23,45,67,89,012", "", "1,23,45,67,89,012"},
    {"LakhThreeDigits", 999.0L, 1, true, "", "999.0", "", "999"},
    {"NegativeGrouped", -1234.5L, 2, false, "-1234.50", "-1,234.50", "-1234.5", "-1,234.5"},
    {"TrailingZerosTrimmed", 1234.5L, 4, false, "1234.5000", "1,234.5000", "1234.5", "1,234.5"},
    {"WholeNumberDropsSeparator", 42.0L, 3, false, "42.000", "42.000", "42", "42"},
    {"NegativeRoundsToZero", -0.001L, 2, false, "0.00", "0.00", "0", "0"},
    {"NegativeZero", -0.0L, 1, false, "0.0", "0.0", "0", "0"},
    {"CarryAddsDigit", 999.9996L, 3, false, "1000.000", "1,000.000", "1000", "1,000"},
    {"SmallWithManyDecimals", 0.000123L, 6, false, "0.000123", "0.000123", "0.000123", "0.000123"},
    {"SmallRoundsUpIntoFirstDecimal", 0.096L, 1, false, "0.1", "0.1", "0.1", "0.1"},
    {"LargePowerOfTen", 1e20L, 2, false, "100000000000000000000.00",
     "100,000,000,000,000,000,000.00", "100000000000000000000", "100,000,000,000,000,000,000"},
    {"NoiseOfSumHidden", 0.1L + 0.2L, 20, false, "0.30000000000000000000", "0.30000000000000000000",
     "0.3", "0.3"},
};

INSTANTIATE_TEST_SUITE_P(Strings, FixedFormat, testing::ValuesIn(kFixedRows), RowName<FixedRow>);

// ---- Scientific notation -------------------------------------------------------------------

struct SciRow {
    const char* Name;
    Extended value;
    std::uint8_t decimals;
    const char* expected;
};

class SciFormat : public GlobalStateTest, public testing::WithParamInterface<SciRow> { };

TEST_P(SciFormat, BothSeparators)
{
    const auto& r = GetParam();
    EXPECT_EQ(SciFloat2EStr(r.value, r.decimals), r.expected);
    CommaDecimals scope;
    EXPECT_EQ(SciFloat2EStr(r.value, r.decimals), SwapMarks(r.expected));
}

const SciRow kSciRows[] = {
    {"Thousands", 12345.0L, 2, "1.23E+04"},
    {"Zero", 0.0L, 2, "0.00E+00"},
    {"NegativeZero", -0.0L, 1, "0.0E+00"},
    {"NegativeSmall", -0.000123456L, 3, "-1.235E-04"},
    {"HalfAwayFromZero", 0.125L, 1, "1.3E-01"},
    {"CarryBumpsExponent", 9.9999L, 2, "1.00E+01"},
    {"NoDecimals", 1.0L, 0, "1E+00"},
    {"ThreeDigitExponent", 1e300L, 1, "1.0E+300"},
    {"FourDigitNegativeExponent", 1e-4000L, 0, "1E-4000"},
    {"PaddedPastPrecision", 2.5L, 20, "2.50000000000000000000E+00"},
};

INSTANTIATE_TEST_SUITE_P(Strings, SciFormat, testing::ValuesIn(kSciRows), RowName<SciRow>);

TEST_F(GlobalStateTest, FormattersRefuseNanAndInfinity)
{
    const Extended nan = std::numeric_limits<Extended>::quiet_NaN();
    const Extended inf = std::numeric_limits<Extended>::infinity();
    EXPECT_THROW(Float2EStr(nan, 2), EInvalidOp);
    EXPECT_THROW(Float2CEStr2(nan, 2, true), EInvalidOp);
    EXPECT_THROW(SciFloat2EStr(nan, 2), EInvalidOp);
    EXPECT_THROW(Float2EStr2(inf, 2), EOverflow);
    EXPECT_THROW(Float2CEStr(-inf, 2), EOverflow);
    EXPECT_THROW(SciFloat2EStr(inf, 2), EOverflow);
}

TEST_F(GlobalStateTest, LargestExtendedFormatsInFull)
{
    const Extended big = std::numeric_limits<Extended>::max(); // 1.18973...e4932
    const auto text = Float2EStr(big, 2);
    EXPECT_EQ(text.size(), 4933u + 3u);
    EXPECT_EQ(text.substr(0, 18), "118973149535723177");
    EXPECT_EQ(text.substr(text.size() - 3), ".00");
    EXPECT_EQ(SciFloat2EStr(-big, 3), "-1.190E+4932");
    EXPECT_EQ(Str2Float(SciFloat2EStr(1e4932L, 17)), 1e4932L);
}

// Binary fractions with a short decimal expansion are written exactly: the text must be the
// exact decimal value, which the C library prints exactly as well when no rounding is needed.
TEST_F(GlobalStateTest, ShortBinaryFractionsAreExact)
{
    std::mt19937_64 random(20261121);
    int checked = 0;
    for (int i = 0; i < 20000; ++i) {
        const auto m = random() >> (14 + random() % 50);
        const int k = static_cast<int>(random() % 25);
        const Extended value = std::ldexp(static_cast<Extended>(m), -k) * (i % 2 ? -1 : 1);
        char expected[160];
        std::snprintf(expected, sizeof expected, "%.24Lf", value);
        // Only values of at most 18 significant digits are written without rounding.
        std::string digits(expected);
        digits.erase(
            std::remove_if(digits.begin(), digits.end(), [](char c) { return c < '0' || c > '9'; }),
            digits.end());
        const auto first = digits.find_first_not_of('0');
        const auto last = digits.find_last_not_of('0');
        if (first == std::string::npos || last - first + 1 > 18 || value == 0)
            continue;
        ++checked;
        ASSERT_EQ(Float2EStr(value, 24), expected) << m << " / 2^" << k;
    }
    EXPECT_GT(checked, 5000);
}

// ---- Parsing -------------------------------------------------------------------------------

struct ParseRow {
    const char* Name;
    const char* text; // in "." decimals; the "," run exchanges the marks
    Extended value;
};

class ParseFloat : public GlobalStateTest, public testing::WithParamInterface<ParseRow> { };

TEST_P(ParseFloat, BothSeparators)
{
    const auto& r = GetParam();
    EXPECT_EQ(Str2Float(r.text), r.value);
    CommaDecimals scope;
    Extended v = -1;
    ASSERT_TRUE(TryStr2Float(SwapMarks(r.text), v));
    EXPECT_EQ(v, r.value);
}

const ParseRow kParseRows[] = {
    {"Grouped", "1,234.5", 1234.5L},
    {"GroupedWhileTyping", "1,2", 12.0L},
    {"Exponent", "1E5", 1e5L},
    {"NegativeExponent", "1E-5", 1e-5L},
    {"LowerCaseSignedExponent", "2.5e+3", 2500.0L},
    {"NoLeadingDigit", "-.5", -0.5L},
    {"SurroundingBlanks", " 12 ", 12.0L},
    {"TrailingSeparator", "0.", 0.0L},
    {"PlusSign", "+3", 3.0L},
    {"UnfinishedExponent", "1E", 1.0L},
    {"UnfinishedNegativeExponent", "7E-", 7.0L},
    {"ManyDigits", "123456789012345678", 123456789012345678.0L},
    {"TenthIsExtendedTenth", "0.1", 0.1L},
    {"BelowRangeReadsZero", "1E-5000", 0.0L},
    {"HugeExponentOfZero", "0E99999", 0.0L},
};

INSTANTIATE_TEST_SUITE_P(Strings, ParseFloat, testing::ValuesIn(kParseRows), RowName<ParseRow>);

TEST_F(GlobalStateTest, Str2FloatRejectsMalformedText)
{
    for (const char* bad : {"", " ", "-", "+", ".", "E5", "-E5", "1.2.3", "abc", "1E5x", ",5",
                            "1 2", "Error!", "--1", "1E--5", "0x10", "1.5,0", "nan", "inf"}) {
        SCOPED_TRACE(bad);
        Extended v = 42;
        EXPECT_FALSE(TryStr2Float(bad, v));
        EXPECT_EQ(v, 42);
        EXPECT_THROW(Str2Float(bad), EConvertError);
    }
}

TEST_F(GlobalStateTest, Str2FloatErrorNamesTheTextAndCatchesOverflow)
{
    try {
        Str2Float("12a");
        FAIL() << "no exception";
    } catch (const EConvertError& e) {
        EXPECT_STREQ(e.what(), "'12a' is not a valid floating point value");
    }
    EXPECT_THROW(Str2Float("1E4933"), EConvertError);
    EXPECT_THROW(Str2Float("-99999999E99999999999999"), EConvertError);
    EXPECT_EQ(Str2Float("-0"), 0);
    EXPECT_FALSE(std::signbit(Str2Float("-0")));
}

TEST_F(GlobalStateTest, Str2FloatFollowsTheCurrentSeparators)
{
    EXPECT_EQ(Str2Float("1,5"), 15.0L) << "comma groups digits here";
    EXPECT_THROW(Str2Float("1.5,0"), EConvertError);
    CommaDecimals scope;
    EXPECT_EQ(Str2Float("1,5"), 1.5L);
    EXPECT_EQ(Str2Float("1.5"), 15.0L) << "point groups digits here";
    EXPECT_THROW(Str2Float("1,5.0"), EConvertError);
}

TEST_F(GlobalStateTest, FormattedTextReadsBack)
{
    const Extended values[]
        = {0.0L, 1.0L, -1.5L, 3.14159265358979L, -1234567.891L, 1e-7L, 6.02214076e23L, 2.0L / 3.0L};
    for (bool comma : {false, true}) {
        std::optional<CommaDecimals> scope;
        if (comma)
            scope.emplace();
        for (const Extended v : values) {
            SCOPED_TRACE(static_cast<double>(v));
            const Extended tolerance = std::max(std::fabs(v) * 1e-17L, 1e-6L);
            EXPECT_LE(std::fabs(Str2Float(Float2CEStr(v, 6)) - v), tolerance);
            EXPECT_LE(std::fabs(Str2Float(Float2CEStr2(v, 6, true)) - v), tolerance);
            EXPECT_LE(std::fabs(Str2Float(SciFloat2EStr(v, 17)) - v), std::fabs(v) * 1e-17L);
        }
    }
}

// ---- Grouping typed text -------------------------------------------------------------------

struct GroupRow {
    const char* Name;
    const char* text;
    bool lakh;
    const char* expected;
};

class AddSeparators : public GlobalStateTest, public testing::WithParamInterface<GroupRow> { };

TEST_P(AddSeparators, BothSeparators)
{
    const auto& r = GetParam();
    EXPECT_EQ(AddThousandsSeparators(r.text, r.lakh), r.expected);
    CommaDecimals scope;
    EXPECT_EQ(AddThousandsSeparators(SwapMarks(r.text), r.lakh), SwapMarks(r.expected));
}

const GroupRow kGroupRows[] = {
    {"Integer", "1234", false, "1,234"},
    {"NegativeWithFraction", "-1234567.5", false, "-1,234,567.5"},
    {"FractionNotGrouped", "1234.5678", false, "1,234.5678"},
    {"Lakh", "1234567", true, "12,34,567"},
    {"LakhWithExponent", "-123456E-", true, "-1,23,456E-"},
    {"ExponentAfterDigits", "12345E", false, "12,345E"},
    {"ShortNumber", "123", false, "123"},
    {"LoneMinus", "-", false, "-"},
    {"Empty", "", false, ""},
    {"TrailingSeparator", "0.", false, "0."},
    {"UnfinishedExponent", "1E", false, "1E"},
    {"AlreadyGrouped", "1,234", false, "1,234"},
    {"PartlyGrouped", "12345,6", false, "12345,6"},
    {"ErrorText", "Error!", false, "Error!"},
    {"TrailingGarbage", "12345abc", false, "12345abc"},
};

INSTANTIATE_TEST_SUITE_P(Strings, AddSeparators, testing::ValuesIn(kGroupRows), RowName<GroupRow>);

// ---- Integers and digit strings ------------------------------------------------------------

// Digits of the 64-bit pattern in base 2^bits, zero-padded: an oracle from the standard library.
std::string Pattern(std::int64_t v, int base, std::size_t width)
{
    char buf[80];
    const auto r = std::to_chars(buf, buf + sizeof buf, static_cast<std::uint64_t>(v), base);
    std::string s(buf, r.ptr);
    for (char& c : s)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return std::string(width - s.size(), '0') + s;
}

TEST_F(GlobalStateTest, FullWidthPatternsOfSignedValues)
{
    const std::int64_t values[]
        = {std::numeric_limits<std::int64_t>::min(), -123456789, -1, 0, 1, 0x0123456789ABCDEF,
           std::numeric_limits<std::int64_t>::max()};
    for (const auto v : values) {
        SCOPED_TRACE(v);
        const auto hex = Int2EHex(v, 16);
        EXPECT_EQ(hex, Pattern(v, 16, 16));
        EXPECT_EQ(Hex2Int64(hex), v);
        EXPECT_EQ(Hex2Oct(hex), Pattern(v, 8, 22));
        EXPECT_EQ(Hex2Bin(hex), Pattern(v, 2, 64));
        EXPECT_EQ(Bin2Hex(Hex2Bin(hex)), hex);
        // 22 octal digits hold 66 bits: 17 hex digits, the first one zero.
        EXPECT_EQ(Oct2Hex(Hex2Oct(hex)), "0" + hex);
        EXPECT_EQ(Str2Int64(Int2EStr(v)), v);
        EXPECT_EQ(Int2EStr(v), std::to_string(v));
    }
    EXPECT_EQ(Hex2Oct("FFFFFFFFFFFFFFFF"), "1777777777777777777777");
}

TEST_F(GlobalStateTest, DigitStringsKeepEveryDigit)
{
    EXPECT_EQ(Hex2Bin("0F"), "00001111");
    EXPECT_EQ(Hex2Bin("a"), "1010");
    EXPECT_EQ(Bin2Hex("101"), "5");
    EXPECT_EQ(Bin2Hex("000000001"), "001");
    EXPECT_EQ(Hex2Oct("FF"), "377");
    EXPECT_EQ(Hex2Oct("00"), "000");
    EXPECT_EQ(Oct2Hex("777"), "1FF");
    EXPECT_EQ(Oct2Hex("377"), "0FF");
    for (auto* f : {&Bin2Hex, &Hex2Bin, &Hex2Oct, &Oct2Hex})
        EXPECT_EQ(f(""), "");
    EXPECT_THROW(Hex2Bin("1G"), EConvertError);
    EXPECT_THROW(Hex2Bin("F F"), EConvertError);
    EXPECT_THROW(Bin2Hex("102"), EConvertError);
    EXPECT_THROW(Oct2Hex("8"), EConvertError);
    EXPECT_THROW(Hex2Oct("-1"), EConvertError);
}

TEST_F(GlobalStateTest, IntegerTextLimits)
{
    EXPECT_EQ(Int2EHex(255), "FF");
    EXPECT_EQ(Int2EHex(255, 4), "00FF");
    EXPECT_EQ(Int2EHex(0, 0), "0");
    EXPECT_EQ(Int2EHex(-2, 4), "FFFFFFFFFFFFFFFE") << "never cut below the full pattern";
    EXPECT_EQ(Str2Int64(" -42 "), -42);
    EXPECT_EQ(Str2Int64("+7"), 7);
    EXPECT_EQ(Str2Int64("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(Str2Int64("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_THROW(Str2Int64("9223372036854775808"), EConvertError);
    EXPECT_THROW(Str2Int64("-9223372036854775809"), EConvertError);
    EXPECT_THROW(Str2Int64("99999999999999999999999"), EConvertError);
    for (const char* bad : {"", "-", "+", "1.5", "12a", "1 2", "--1", "0x10"}) {
        SCOPED_TRACE(bad);
        EXPECT_THROW(Str2Int64(bad), EConvertError);
        EXPECT_THROW(Str2Int(bad), EConvertError);
    }
    EXPECT_EQ(Str2Int("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(Str2Int("2147483648"), EConvertError);
    EXPECT_EQ(Hex2Int64("ff"), 255);
    EXPECT_EQ(Hex2Int64(""), 0);
    EXPECT_EQ(Hex2Int64("80"), 128) << "fewer than 16 digits stay non-negative";
    EXPECT_THROW(Hex2Int64("10000000000000000"), EConvertError);
    EXPECT_THROW(Hex2Int64("-1"), EConvertError);
    try {
        Str2Int64("9223372036854775808");
        FAIL() << "no exception";
    } catch (const EConvertError& e) {
        EXPECT_STREQ(e.what(), "'9223372036854775808' is out of the integer range");
    }
}

TEST_F(GlobalStateTest, GroupSpacingFromTheRight)
{
    EXPECT_EQ(GroupSpacing("1234567", 3, ' '), "1 234 567");
    EXPECT_EQ(GroupSpacing("00000000000", 3, ' '), "00 000 000 000");
    EXPECT_EQ(GroupSpacing("00000000", 4, ' '), "0000 0000");
    EXPECT_EQ(GroupSpacing("12", 2, ' '), "12");
    EXPECT_EQ(GroupSpacing("", 2, ' '), "");
    EXPECT_EQ(GroupSpacing("1234", 0, ' '), "1234");
    const std::string bits = Pattern(-5, 2, 64);
    EXPECT_EQ(RemoveGroupSpacing(GroupSpacing(bits, 8, ' '), ' '), bits);
    EXPECT_EQ(GroupSpacing(bits, 8, ' ').size(), 64u + 7u);
}

TEST_F(GlobalStateTest, SmallStringHelpers)
{
    EXPECT_EQ(LeftStr("abcdef", 2), "ab");
    EXPECT_EQ(LeftStr("abc", 5), "abc");
    EXPECT_EQ(LeftStr("abc", -1), "");
    EXPECT_EQ(RightStr("abcdef", 2), "ef");
    EXPECT_EQ(RightStr("abc", 9), "abc");
    EXPECT_EQ(RightStr("abc", 0), "");
    EXPECT_EQ(PadChLeftStr("FF", '0', 4), "00FF");
    EXPECT_EQ(PadChLeftStr("12345", '0', 3), "12345");
    EXPECT_EQ(StripLChStr("000120", '0'), "120");
    EXPECT_EQ(StripLChStr("000", '0'), "");
}

} // namespace
} // namespace qorkit
