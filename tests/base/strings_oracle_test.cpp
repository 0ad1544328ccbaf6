// The number text routines against the C library over many random values and texts: the
// formatters against an oracle built on snprintf("%.17Le") (18 significant digits, then
// halves away from zero at the decimals), the parsers against strtold. Each run covers the
// "." and "," decimal marks and grouping in threes and in lakh.
#include "QORKITExceptions.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace qorkit {
namespace {

using test::GlobalStateTest;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_UNDEFINED__)
constexpr int kRounds = 20'000; // the sanitizers make every call far slower
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr int kRounds = 20'000;
#else
constexpr int kRounds = 250'000;
#endif
#else
constexpr int kRounds = 250'000;
#endif

struct Style {
    const char* Name;
    char decimal;
    char thousands;
    bool lakh;
};

constexpr Style kStyles[] = {
    {"PointThrees", '.', ',', false},
    {"PointLakh", '.', ',', true},
    {"CommaThrees", ',', '.', false},
    {"CommaLakhBlank", ',', ' ', true},
};

// ---- The formatting oracle -----------------------------------------------------------------

std::string OracleFixed(Extended value, int decimals, const Style& style, bool group, bool trim)
{
    std::string digits;
    long point = 0;
    if (value != 0) {
        char buffer[80];
        std::snprintf(buffer, sizeof buffer, "%.17Le", std::fabs(value));
        const std::string text(buffer);
        const auto e = text.find('e');
        digits = text.substr(0, 1) + text.substr(2, e - 2);
        point = std::strtol(text.c_str() + e + 1, nullptr, 10) + 1;
    }
    // Round to point + decimals digits, halves away from zero.
    const long keep = point + decimals;
    if (keep < 0) {
        digits.clear();
    } else if (static_cast<std::size_t>(keep) < digits.size()) {
        const bool up = digits[static_cast<std::size_t>(keep)] >= '5';
        digits.resize(static_cast<std::size_t>(keep));
        if (up) {
            auto i = digits.size();
            while (i > 0 && digits[i - 1] == '9')
                digits[--i] = '0';
            if (i > 0) {
                ++digits[i - 1];
            } else {
                digits.insert(digits.begin(), '1');
                ++point;
            }
        }
    }
    digits.resize(static_cast<std::size_t>(std::max(point + decimals, 0L)), '0');
    const bool zero = digits.find_first_not_of('0') == std::string::npos;
    std::string integer = point > 0 ? digits.substr(0, static_cast<std::size_t>(point)) : "0";
    std::string fraction = point > 0 ? digits.substr(static_cast<std::size_t>(point))
                                     : std::string(static_cast<std::size_t>(-point), '0') + digits;
    fraction.resize(static_cast<std::size_t>(decimals), '0');
    if (zero)
        integer = "0";
    if (trim)
        while (!fraction.empty() && fraction.back() == '0')
            fraction.pop_back();
    std::string out = !zero && std::signbit(value) ? "-" : "";
    for (std::size_t i = 0; i < integer.size(); ++i) {
        const auto rest = integer.size() - i;
        if (group && i > 0 && rest >= 3 && (style.lakh ? (rest - 3) % 2 == 0 : rest % 3 == 0))
            out += style.thousands;
        out += integer[i];
    }
    if (!fraction.empty())
        out += style.decimal + fraction;
    return out;
}

// Values of every kind a calculator meets: whole numbers (19-digit ones round to 18 digits,
// ties included), cents, random binary fractions of every magnitude, short decimals.
Extended RandomValue(std::mt19937_64& random)
{
    const auto bits = random();
    Extended v = 0;
    switch (bits % 6) {
    case 0:
        v = static_cast<Extended>(random() >> (bits >> 8) % 64);
        break;
    case 1:
        v = static_cast<Extended>(random() % 100'000'000) / 100;
        break;
    case 2:
        v = std::ldexp(static_cast<Extended>(random()), static_cast<int>((bits >> 8) % 200) - 150);
        break;
    case 3:
        v = std::ldexp(static_cast<Extended>(random()), static_cast<int>((bits >> 8) % 60) - 90);
        break;
    case 4: // exact ties at the 18th digit: 19-digit integers ending in 5
        v = static_cast<Extended>(1'000'000'000'000'000'000ULL + random() % 1'000'000'000 * 10 + 5);
        break;
    default:
        v = static_cast<Extended>(random() % 2'000'000)
            * std::pow(10.0L, -static_cast<int>(random() % 12));
        break;
    }
    return (bits >> 20) % 2 != 0 ? -v : v;
}

class StringsOracleTest : public test::GlobalStateTestOf<test::Area::Format>,
                          public ::testing::WithParamInterface<Style> {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        FormatSettings.DecimalSeparator = GetParam().decimal;
        FormatSettings.ThousandSeparator = GetParam().thousands;
    }
};

TEST_P(StringsOracleTest, FixedFormattersMatchSnprintfDigits)
{
    const Style& style = GetParam();
    std::mt19937_64 random(1900 + static_cast<unsigned>(style.decimal + style.lakh));
    int failures = 0;
    for (int round = 0; round < kRounds && failures < 10; ++round) {
        const Extended v = RandomValue(random);
        const auto decimals
            = static_cast<std::uint8_t>(round % 13 == 0 ? random() % 40 : round % 9);
        const std::string got[] = {
            Float2EStr(v, decimals),
            Float2CEStr(v, decimals, style.lakh),
            Float2EStr2(v, decimals),
            Float2CEStr2(v, decimals, style.lakh),
        };
        const std::string want[] = {
            OracleFixed(v, decimals, style, false, false),
            OracleFixed(v, decimals, style, true, false),
            OracleFixed(v, decimals, style, false, true),
            OracleFixed(v, decimals, style, true, true),
        };
        for (int k = 0; k < 4; ++k) {
            if (got[k] != want[k]) {
                ++failures;
                char hex[64];
                std::snprintf(hex, sizeof hex, "%La", v);
                ADD_FAILURE() << "formatter " << k << " of " << hex << " at "
                              << static_cast<int>(decimals) << " decimals: " << got[k]
                              << " != " << want[k];
            }
        }
    }
}

// ---- Parsing against strtold ---------------------------------------------------------------

struct TextPair {
    std::string ours; // with the style's marks and grouping
    std::string peer; // the C locale's spelling
};

TextPair RandomText(std::mt19937_64& random, const Style& style)
{
    const int digits = 1 + static_cast<int>(random() % (random() % 4 == 0 ? 30 : 19));
    std::string mantissa;
    for (int d = 0; d < digits; ++d)
        mantissa += static_cast<char>('0' + random() % 10);
    const auto point = static_cast<std::size_t>(random() % static_cast<unsigned>(digits + 1));
    std::string integer = mantissa.substr(0, point);
    const std::string fraction = mantissa.substr(point);
    if (integer.empty())
        integer = "0";
    const std::string sign = random() % 4 == 0 ? "-" : random() % 8 == 0 ? "+" : "";
    std::string exponent;
    if (random() % 3 == 0) {
        const int range = random() % 8 == 0 ? 9000 : 60;
        exponent = (random() % 2 ? "E" : "e")
            + std::to_string(static_cast<int>(random() % static_cast<unsigned>(2 * range)) - range);
    }
    const bool group = random() % 2 == 0;
    TextPair pair;
    pair.peer = sign + integer + (fraction.empty() ? "" : "." + fraction) + exponent;
    pair.ours = sign + (group ? GroupSpacing(integer, 3, style.thousands) : integer)
        + (fraction.empty() ? "" : std::string(1, style.decimal) + fraction) + exponent;
    return pair;
}

TEST_P(StringsOracleTest, ParsersMatchStrtold)
{
    const Style& style = GetParam();
    std::mt19937_64 random(2300 + static_cast<unsigned>(style.decimal + style.lakh));
    int failures = 0;
    for (int round = 0; round < kRounds && failures < 10; ++round) {
        const TextPair text = RandomText(random, style);
        // A negative zero reads as zero, and so does a value below the smallest normal one,
        // by design.
        const Extended read = std::strtold(text.peer.c_str(), nullptr);
        const Extended want = std::fabs(read) < std::numeric_limits<Extended>::min() ? 0 : read;
        Extended got = -7;
        const bool ok = TryStr2Float(text.ours, got);
        if (std::isinf(want)) {
            if (ok || [&] {
                    try {
                        Str2Float(text.ours);
                        return true;
                    } catch (const EConvertError&) {
                        return false;
                    }
                }()) {
                ++failures;
                ADD_FAILURE() << text.ours << " overflows and must be refused";
            }
            continue;
        }
        const Extended thrown = Str2Float(text.ours);
        if (!ok || got != want || std::signbit(got) != std::signbit(want) || thrown != got) {
            ++failures;
            ADD_FAILURE() << text.ours << " read as " << static_cast<double>(got)
                          << ", strtold gives " << static_cast<double>(want);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, StringsOracleTest, ::testing::ValuesIn(kStyles),
                         test::RowName<Style>);

} // namespace
} // namespace qorkit
