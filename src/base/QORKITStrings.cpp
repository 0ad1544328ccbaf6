#include "QORKITStrings.h"

#include "QORKITExceptions.h"
#include "QORKITResource.h"
#include "QORKITSettings.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace qorkit {

namespace {

// ---- Character helpers -----------------------------------------------------------------------

constexpr bool IsBlank(char c) noexcept { return c == ' ' || c == '\t'; }
constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }

std::string_view TrimBlanks(std::string_view s) noexcept
{
    while (!s.empty() && IsBlank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && IsBlank(s.back()))
        s.remove_suffix(1);
    return s;
}

std::string Zeros(std::size_t n) { return std::string(n, '0'); }

// ---- Decimal digits of a float ---------------------------------------------------------------
//
// Every formatter works on a decimal digit string D and a point position P: the value is
// 0.D x 10^P, so P is the number of integer digits (zero or negative for values below 1).
//
// A finite value is first written with 18 significant digits, the decimal precision an
// extended float holds reliably; that is what 1.005 typed into a calculator reads back as.
// Rounding to the requested decimals is then done on those digits, halves away from zero.
// So 0.125 gives "0.13" and 1.005 gives "1.01" at two decimals, while the binary noise past
// the 18th digit (0.1 + 0.2 and the like) never shows.

constexpr int kSignificantDigits = std::numeric_limits<Extended>::digits10;

struct Digits {
    std::string D; // no leading zeros, except that zero is the empty string
    long P = 0;
};

void CheckFinite(Extended value)
{
    if (std::isnan(value))
        throw EInvalidOp(rsInvalidOperation());
    if (std::isinf(value))
        throw EOverflow(rsOverflow());
}

// Exact digits of a value with a short binary fraction: |value| = m / 2^k with m < 2^64 and
// k <= 24 has the finite decimal expansion m * 5^k / 10^k. When that expansion has at most
// kSignificantDigits digits it is exactly what the general path below produces, only much
// faster; calculator values (integers, halves, quarters, cents that are whole binary fractions)
// mostly take this path. Returns false when the value does not qualify.
bool ExactShortDigits(Extended magnitude, Digits& result)
{
    constexpr int maxShift = 24;
    constexpr Extended two64 = 18446744073709551616.0L;
    Extended scaled = magnitude;
    int k = 0;
    while (scaled != std::floor(scaled)) {
        if (++k > maxShift)
            return false;
        scaled *= 2; // exact: only the exponent changes
    }
    if (scaled >= two64)
        return false;
    __extension__ typedef unsigned __int128 UInt128;
    UInt128 n = static_cast<std::uint64_t>(scaled);
    for (int i = 0; i < k; ++i)
        n *= 5;
    char buffer[48];
    int length = 0;
    for (; n != 0; n /= 10)
        buffer[length++] = static_cast<char>('0' + static_cast<int>(n % 10));
    // buffer holds the digits of m * 5^k backwards; the value is that integer / 10^k.
    int low = 0;
    while (low < length && buffer[low] == '0')
        ++low;
    if (length - low > kSignificantDigits)
        return false;
    result.D.assign(buffer + low, buffer + length);
    std::reverse(result.D.begin(), result.D.end());
    result.P = length - k;
    return true;
}

// Magnitude digits of a finite value (the sign is the caller's business).
Digits ToDigits(Extended value)
{
    Digits result;
    if (value == 0)
        return result;
    if (ExactShortDigits(std::fabs(value), result))
        return result;
    char buffer[64];
    const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                         std::chars_format::scientific, kSignificantDigits - 1);
    // "d.ddddddddddddddddde[+-]x": cannot fail for a finite value in this buffer.
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    const auto ePos = text.find('e');
    result.D.reserve(kSignificantDigits);
    result.D += text[0];
    result.D += text.substr(2, ePos - 2);
    long exponent = 0;
    std::from_chars(text.data() + ePos + (text[ePos + 1] == '+' ? 2 : 1), end, exponent);
    result.P = exponent + 1;
    while (!result.D.empty() && result.D.back() == '0')
        result.D.pop_back();
    return result;
}

// Keeps the first `keep` digits, rounding halves away from zero; pads with zeros when fewer
// digits exist. A carry out of the first digit moves the point. Zero comes back empty.
void RoundDigits(Digits& d, long keep)
{
    if (d.D.empty())
        return;
    if (keep < 0) {
        d.D.clear();
        return;
    }
    const auto k = static_cast<std::size_t>(keep);
    if (k >= d.D.size()) {
        d.D.append(k - d.D.size(), '0');
        return;
    }
    const bool up = d.D[k] >= '5';
    d.D.resize(k);
    if (!up) {
        if (d.D.find_first_not_of('0') == std::string::npos)
            d.D.clear();
        return;
    }
    auto i = d.D.size();
    while (i > 0 && d.D[i - 1] == '9')
        d.D[--i] = '0';
    if (i > 0) {
        ++d.D[i - 1];
    } else {
        d.D.insert(d.D.begin(), '1');
        ++d.P;
    }
}

// Fixed notation split into its parts: integer digits (at least "0") and exactly `decimals`
// fraction digits. `negative` is false whenever every digit is zero.
struct FixedText {
    bool negative = false;
    std::string integer;
    std::string fraction;
};

FixedText ToFixed(Digits d, bool negative, int decimals)
{
    RoundDigits(d, d.P + decimals);
    FixedText result;
    if (d.D.empty()) {
        result.integer = "0";
        result.fraction = Zeros(static_cast<std::size_t>(decimals));
        return result;
    }
    result.negative = negative;
    if (d.P > 0) {
        const auto p = static_cast<std::size_t>(d.P);
        result.integer = d.D.substr(0, p);
        result.fraction = d.D.substr(p);
    } else {
        result.integer = "0";
        result.fraction = Zeros(static_cast<std::size_t>(-d.P)) + d.D;
    }
    return result;
}

FixedText FixedOf(Extended value, int decimals)
{
    CheckFinite(value);
    return ToFixed(ToDigits(value), std::signbit(value), decimals);
}

// Inserts `sep` into a run of digits: threes from the right, or with `lakh` the last three
// and then twos (12,34,567).
std::string GroupDigits(std::string_view digits, bool lakh, char sep)
{
    std::string out;
    out.reserve(digits.size() + digits.size() / 2);
    const auto n = digits.size();
    for (std::size_t i = 0; i < n; ++i) {
        const auto rest = n - i;
        if (i > 0 && rest >= 3 && (lakh ? (rest - 3) % 2 == 0 : rest % 3 == 0))
            out += sep;
        out += digits[i];
    }
    return out;
}

void DropTrailingZeros(std::string& fraction)
{
    while (!fraction.empty() && fraction.back() == '0')
        fraction.pop_back();
}

struct FixedStyle {
    char decimal = '.';
    bool group = false;
    bool lakh = false;
    char thousands = ',';
    bool trim = false;
};

std::string JoinFixed(FixedText parts, const FixedStyle& style)
{
    if (style.trim) {
        DropTrailingZeros(parts.fraction);
        if (parts.fraction.empty() && parts.integer == "0")
            parts.negative = false;
    }
    std::string out;
    if (parts.negative)
        out += '-';
    out += style.group ? GroupDigits(parts.integer, style.lakh, style.thousands) : parts.integer;
    if (!parts.fraction.empty()) {
        out += style.decimal;
        out += parts.fraction;
    }
    return out;
}

std::string FormatFixed(Extended value, std::uint8_t decimals, bool group, bool lakh, bool trim)
{
    FixedStyle style;
    style.decimal = FormatSettings.DecimalSeparator;
    style.thousands = FormatSettings.ThousandSeparator;
    style.group = group;
    style.lakh = lakh;
    style.trim = trim;
    return JoinFixed(FixedOf(value, decimals), style);
}

std::string ScientificText(Extended value, int decimals, char decimalSep)
{
    CheckFinite(value);
    Digits d = ToDigits(value);
    long exponent = 0;
    std::string mantissa;
    if (d.D.empty()) {
        mantissa = Zeros(static_cast<std::size_t>(decimals) + 1);
    } else {
        const long before = d.P;
        RoundDigits(d, decimals + 1L);
        if (d.P != before) // carried into a new leading digit: drop the extra zero
            d.D.pop_back();
        exponent = d.P - 1;
        mantissa = std::move(d.D);
    }
    std::string out;
    if (!mantissa.empty() && std::signbit(value) && value != 0)
        out += '-';
    out += mantissa[0];
    if (decimals > 0) {
        out += decimalSep;
        out.append(mantissa, 1);
    }
    out += 'E';
    out += exponent < 0 ? '-' : '+';
    const auto digits = std::to_string(exponent < 0 ? -exponent : exponent);
    if (digits.size() < 2)
        out += '0';
    out += digits;
    return out;
}

// ---- Number text scanning --------------------------------------------------------------------

enum class ScanResult { Ok, Malformed, Overflow };

// Reads a calculator number text with the given separators. See Str2Float for the grammar.
ScanResult ScanFloat(std::string_view s, char decimalSep, char thousandSep, Extended& value)
{
    s = TrimBlanks(s);
    bool negative = false;
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '-' || s[i] == '+'))
        negative = s[i++] == '-';

    // Mantissa digits, normalised into "iii.fff" for the standard parser.
    std::string plain;
    plain.reserve(s.size() + 8);
    std::size_t mantissaDigits = 0;
    long integerDigits = 0; // significant integer digits (leading zeros skipped)
    long leadingFraction = 0; // zeros after the point before the first significant digit
    bool seenSignificant = false;
    for (; i < s.size(); ++i) {
        const char c = s[i];
        if (IsDigit(c)) {
            plain += c;
            ++mantissaDigits;
            if (c != '0' || seenSignificant) {
                seenSignificant = true;
                ++integerDigits;
            }
        } else if (c == thousandSep && c != decimalSep && mantissaDigits > 0) {
            continue; // grouping inside the integer part, as typed
        } else {
            break;
        }
    }
    if (i < s.size() && s[i] == decimalSep) {
        plain += '.';
        for (++i; i < s.size() && IsDigit(s[i]); ++i) {
            plain += s[i];
            ++mantissaDigits;
            if (s[i] != '0')
                seenSignificant = true;
            else if (!seenSignificant)
                ++leadingFraction;
        }
    }
    if (mantissaDigits == 0)
        return ScanResult::Malformed;

    // Exponent: "E" or "e", an optional sign and digits. A bare "E" or "E-" (an entry still
    // being typed) counts as exponent zero.
    long exponent = 0;
    if (i < s.size() && (s[i] == 'E' || s[i] == 'e')) {
        ++i;
        bool negativeExponent = false;
        if (i < s.size() && (s[i] == '-' || s[i] == '+'))
            negativeExponent = s[i++] == '-';
        const auto start = i;
        while (i < s.size() && IsDigit(s[i]))
            ++i;
        if (i > start) {
            plain += negativeExponent ? "e-" : "e";
            plain.append(s.substr(start, i - start));
            constexpr long kCap = 1'000'000'000L;
            for (auto k = start; k < i && exponent < kCap; ++k)
                exponent = exponent * 10 + (s[k] - '0');
            if (negativeExponent)
                exponent = -exponent;
        }
    }
    if (i != s.size())
        return ScanResult::Malformed;

    Extended parsed = 0;
    const auto [ptr, ec] = std::from_chars(plain.data(), plain.data() + plain.size(), parsed);
    if (ec == std::errc::result_out_of_range) {
        // Out of range in one direction or the other: decimal magnitude of the first
        // significant digit decides. Tiny values read as zero; huge ones are an error.
        const long magnitude
            = (integerDigits > 0 ? integerDigits - 1 : -(leadingFraction + 1)) + exponent;
        if (magnitude >= 0)
            return ScanResult::Overflow;
        parsed = 0;
    } else if (ec != std::errc() || ptr != plain.data() + plain.size()) {
        return ScanResult::Malformed;
    }
    if (!std::isfinite(parsed))
        return ScanResult::Overflow;
    value = (negative && parsed != 0) ? -parsed : parsed;
    return ScanResult::Ok;
}

// ---- Integer text ----------------------------------------------------------------------------

[[noreturn]] void ThrowConvert(std::string (*message)(), std::string_view text)
{
    throw EConvertError(FormatMessage(message(), text));
}

constexpr char kHexDigits[] = "0123456789ABCDEF";

// Value of a digit in base 2^bits, or -1.
int DigitValue(char c, int bits) noexcept
{
    int v = -1;
    if (IsDigit(c))
        v = c - '0';
    else if (c >= 'A' && c <= 'F')
        v = c - 'A' + 10;
    else if (c >= 'a' && c <= 'f')
        v = c - 'a' + 10;
    return v >= 0 && v < (1 << bits) ? v : -1;
}

struct Radix {
    int bits; // bits per digit
    std::string (*invalid)(); // message for a digit outside the base
};

constexpr Radix kBinary {1, rsInvalidBinary};
constexpr Radix kOctal {3, rsInvalidOctal};
constexpr Radix kHex {4, rsInvalidHex};

// Re-writes a digit string from one power-of-two base into another, keeping every input
// digit at full width: the bit pattern is padded on the left to whole output digits.
std::string ConvertDigits(std::string_view s, Radix from, Radix to)
{
    std::string bits;
    bits.reserve(s.size() * static_cast<std::size_t>(from.bits) + 4);
    for (const char c : s) {
        const int v = DigitValue(c, from.bits);
        if (v < 0)
            ThrowConvert(from.invalid, s);
        for (int b = from.bits - 1; b >= 0; --b)
            bits += ((v >> b) & 1) ? '1' : '0';
    }
    const auto width = static_cast<std::size_t>(to.bits);
    bits.insert(0, (width - bits.size() % width) % width, '0');
    std::string out;
    out.reserve(bits.size() / width);
    for (std::size_t i = 0; i < bits.size(); i += width) {
        int v = 0;
        for (std::size_t b = 0; b < width; ++b)
            v = v * 2 + (bits[i + b] - '0');
        out += kHexDigits[v];
    }
    return out;
}

// ---- Angles ----------------------------------------------------------------------------------

// Unit marks with the unit each one closes: 0 degrees, 1 minutes, 2 seconds.
struct UnitMark {
    std::string_view mark;
    int unit;
};

// Reads one unsigned number ("12", "12.5", ".5") at `i`; the locale decimal separator and "."
// are both accepted, since angle texts never group digits.
bool ScanUnsigned(std::string_view s, std::size_t& i, Extended& value)
{
    std::string plain;
    while (i < s.size() && IsDigit(s[i]))
        plain += s[i++];
    if (i < s.size() && (s[i] == FormatSettings.DecimalSeparator || s[i] == '.')) {
        plain += '.';
        for (++i; i < s.size() && IsDigit(s[i]); ++i)
            plain += s[i];
    }
    if (plain.empty() || plain == ".")
        return false;
    const auto [ptr, ec] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    return ec == std::errc() && ptr == plain.data() + plain.size() && std::isfinite(value);
}

bool StartsWithNoCase(std::string_view s, std::string_view prefix)
{
    if (prefix.empty() || s.size() < prefix.size())
        return false;
    for (std::size_t k = 0; k < prefix.size(); ++k) {
        const auto a = static_cast<unsigned char>(s[k]);
        const auto b = static_cast<unsigned char>(prefix[k]);
        if (std::toupper(a) != std::toupper(b))
            return false;
    }
    return true;
}

bool EndsWithNoCase(std::string_view s, std::string_view suffix)
{
    return s.size() >= suffix.size()
        && StartsWithNoCase(s.substr(s.size() - suffix.size()), suffix);
}

// ---- Currency --------------------------------------------------------------------------------

// Placement of symbol ($) and amount (1) for positive and negative amounts, by format number.
constexpr std::string_view kPositiveCurrency[] = {"$1", "1$", "$ 1", "1 $"};
constexpr std::string_view kNegativeCurrency[] = {
    "($1)", "-$1",  "$-1",  "$1-",  "(1$)", "-1$",  "1-$",   "1$-",
    "-1 $", "-$ 1", "1 $-", "$ 1-", "$ -1", "1- $", "($ 1)", "(1 $)",
};

} // namespace

// ---- Floating point <-> text ---------------------------------------------------------------

bool TryStr2Float(std::string_view s, Extended& value) noexcept
{
    try {
        Extended v = 0;
        if (ScanFloat(s, FormatSettings.DecimalSeparator, FormatSettings.ThousandSeparator, v)
            != ScanResult::Ok)
            return false;
        value = v;
        return true;
    } catch (...) {
        return false;
    }
}

Extended Str2Float(std::string_view s)
{
    Extended v = 0;
    if (ScanFloat(s, FormatSettings.DecimalSeparator, FormatSettings.ThousandSeparator, v)
        != ScanResult::Ok)
        ThrowConvert(rsInvalidFloat, s);
    return v;
}

std::string Float2EStr(Extended value, std::uint8_t decimals)
{
    return FormatFixed(value, decimals, false, false, false);
}

std::string Float2CEStr(Extended value, std::uint8_t decimals, bool lakh)
{
    return FormatFixed(value, decimals, true, lakh, false);
}

std::string Float2EStr2(Extended value, std::uint8_t decimals)
{
    return FormatFixed(value, decimals, false, false, true);
}

std::string Float2CEStr2(Extended value, std::uint8_t decimals, bool lakh)
{
    return FormatFixed(value, decimals, true, lakh, true);
}

std::string SciFloat2EStr(Extended value, std::uint8_t decimals)
{
    return ScientificText(value, decimals, FormatSettings.DecimalSeparator);
}

std::string AddThousandsSeparators(std::string_view s, bool lakh)
{
    const char thousands = FormatSettings.ThousandSeparator;
    const char decimal = FormatSettings.DecimalSeparator;
    if (s.find(thousands) != std::string_view::npos)
        return std::string(s);

    // Accept the shapes an entry goes through: [sign] digits [sep digits] [E [sign] digits],
    // every part possibly unfinished. Anything else is not a number and stays as it is.
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '-' || s[i] == '+'))
        ++i;
    const auto digitsStart = i;
    while (i < s.size() && IsDigit(s[i]))
        ++i;
    const auto digitsEnd = i;
    if (i < s.size() && s[i] == decimal) {
        for (++i; i < s.size() && IsDigit(s[i]);)
            ++i;
    }
    if (i < s.size() && (s[i] == 'E' || s[i] == 'e')) {
        ++i;
        if (i < s.size() && (s[i] == '-' || s[i] == '+'))
            ++i;
        while (i < s.size() && IsDigit(s[i]))
            ++i;
    }
    if (i != s.size() || digitsEnd - digitsStart < 4)
        return std::string(s);

    std::string out(s.substr(0, digitsStart));
    out += GroupDigits(s.substr(digitsStart, digitsEnd - digitsStart), lakh, thousands);
    out.append(s.substr(digitsEnd));
    return out;
}

std::string StripThousandSeparators(std::string_view s)
{
    return RemoveGroupSpacing(s, FormatSettings.ThousandSeparator);
}

std::string Float2Str(Extended value, int width, int decimals)
{
    FixedStyle style; // "." and no grouping: a program text
    std::string text = decimals >= 0 ? JoinFixed(FixedOf(value, decimals), style)
                                     : ScientificText(value, -decimals, '.');
    return PadChLeftStr(text, ' ', width);
}

// ---- Angles --------------------------------------------------------------------------------

std::string Float2DMSStr(Extended degrees, TQORDMSType type, std::uint8_t decimals,
                         bool leadingZeroes, bool spaceUnits, bool trimTrailingZeroes)
{
    CheckFinite(degrees);
    if (type > dmsDegreesMinutesSeconds)
        type = dmsDegreesMinutesSeconds;
    // Round once, in the last unit shown, then carry into the larger units: 59.9999" at two
    // decimals becomes a whole minute, never "60.00\"". Whole degrees and their fraction are
    // split first (exactly), so the minutes and seconds keep their digits however large the
    // angle is.
    static constexpr Extended kPerDegree[] = {1, 60, 3600};
    const Extended magnitude = std::fabs(degrees);
    const Extended wholeDegrees = type == dmsDegrees ? 0 : std::trunc(magnitude);
    FixedText last = FixedOf((magnitude - wholeDegrees) * kPerDegree[type], decimals);
    const bool negative = std::signbit(degrees)
        && (wholeDegrees != 0 || last.integer != "0"
            || last.fraction.find_first_not_of('0') != std::string::npos);
    if (trimTrailingZeroes)
        DropTrailingZeros(last.fraction);
    std::string lastFraction;
    if (!last.fraction.empty())
        lastFraction = FormatSettings.DecimalSeparator + last.fraction;

    // Whole units: degrees, minutes, seconds (the ones below `type` stay unused).
    std::string units[3];
    if (type == dmsDegrees) {
        units[0] = last.integer;
    } else {
        // At most one whole degree of minutes or seconds, after rounding.
        unsigned below = 0;
        std::from_chars(last.integer.data(), last.integer.data() + last.integer.size(), below);
        for (int u = type; u > 0; --u) {
            units[u] = std::to_string(below % 60);
            below /= 60;
        }
        // A carry is exact: a fraction exists only below 2^63, where adding one is exact.
        units[0] = FixedOf(wholeDegrees + static_cast<Extended>(below), 0).integer;
    }
    const std::string* marks[]
        = {&FormatSettings.DegreeSign, &FormatSettings.MinuteSign, &FormatSettings.SecondSign};
    std::string out = negative ? "-" : "";
    for (int u = 0; u <= type; ++u) {
        if (u > 0 && spaceUnits)
            out += ' ';
        if (u > 0 && leadingZeroes && units[u].size() < 2)
            out += '0';
        out += units[u];
        if (u == type)
            out += lastFraction;
        out += *marks[u];
    }
    return out;
}

std::string Angle2Str(Extended degrees, std::uint8_t decimals)
{
    return Float2DMSStr(degrees, dmsDegreesMinutesSeconds, decimals, true, true, false);
}

Extended DMSStr2Float(std::string_view s)
{
    // Longest mark first, so that a mark which starts another one cannot steal its place.
    UnitMark marks[] = {{FormatSettings.DegreeSign, 0},
                        {FormatSettings.MinuteSign, 1},
                        {FormatSettings.SecondSign, 2}};
    std::sort(std::begin(marks), std::end(marks),
              [](const UnitMark& a, const UnitMark& b) { return a.mark.size() > b.mark.size(); });
    auto markAt = [&marks](std::string_view rest) -> const UnitMark* {
        for (const auto& m : marks)
            if (!m.mark.empty() && rest.starts_with(m.mark))
                return &m;
        return nullptr;
    };

    std::string_view text = TrimBlanks(s);
    bool negative = false;
    bool hemisphere = false;
    // A trailing hemisphere letter, unless the text ends with a unit mark (marks may be
    // letters too, such as "s" for seconds).
    const bool endsWithMark = std::any_of(std::begin(marks), std::end(marks), [&](const auto& m) {
        return !m.mark.empty() && text.ends_with(m.mark);
    });
    for (auto* abbr : {&rsSouthAbbr, &rsWestAbbr, &rsNorthAbbr, &rsEastAbbr}) {
        const std::string letter = (*abbr)();
        if (!endsWithMark && EndsWithNoCase(text, letter)) {
            text = TrimBlanks(text.substr(0, text.size() - letter.size()));
            negative = abbr == &rsSouthAbbr || abbr == &rsWestAbbr;
            hemisphere = true;
            break;
        }
    }
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        if (hemisphere) // "-12 S": two signs that disagree or repeat
            ThrowConvert(rsInvalidAngle, s);
        negative = text.front() == '-';
        text = TrimBlanks(text.substr(1));
    }

    static constexpr Extended kPerDegree[] = {1, 60, 3600};
    Extended total = 0;
    int nextUnit = 0;
    std::size_t i = 0;
    while (i < text.size()) {
        Extended part = 0;
        if (nextUnit > 2 || !ScanUnsigned(text, i, part))
            ThrowConvert(rsInvalidAngle, s);
        const auto afterNumber = i;
        while (i < text.size() && IsBlank(text[i]))
            ++i;
        int unit = nextUnit;
        if (const auto* m = markAt(text.substr(i))) {
            unit = m->unit;
            i += m->mark.size();
        } else if (i == afterNumber && i < text.size()) {
            ThrowConvert(rsInvalidAngle, s); // numbers without marks need a blank between
        }
        if (unit < nextUnit) // units come in order: degrees, minutes, seconds
            ThrowConvert(rsInvalidAngle, s);
        total += part / kPerDegree[unit];
        nextUnit = unit + 1;
        while (i < text.size() && IsBlank(text[i]))
            ++i;
    }
    if (nextUnit == 0 || !std::isfinite(total))
        ThrowConvert(rsInvalidAngle, s);
    return negative && total != 0 ? -total : total;
}

// ---- Currency ------------------------------------------------------------------------------

std::string Currency2EStr(Currency value, std::uint8_t decimals)
{
    const std::int64_t scaled = value.Scaled();
    const bool negative = scaled < 0;
    const std::uint64_t magnitude
        = negative ? 0 - static_cast<std::uint64_t>(scaled) : static_cast<std::uint64_t>(scaled);
    // The amount is exact in decimal: magnitude / 10^4.
    Digits d;
    if (magnitude != 0) {
        d.D = std::to_string(magnitude);
        d.P = static_cast<long>(d.D.size()) - 4;
    }
    const FixedText parts = ToFixed(std::move(d), negative, decimals);
    FixedStyle style;
    style.decimal = FormatSettings.DecimalSeparator;
    style.thousands = FormatSettings.ThousandSeparator;
    style.group = true;
    const bool showNegative = parts.negative;
    FixedText unsignedParts = parts;
    unsignedParts.negative = false;
    const std::string amount = JoinFixed(std::move(unsignedParts), style);

    std::string_view pattern;
    if (showNegative) {
        const auto f = FormatSettings.NegCurrFormat;
        pattern = kNegativeCurrency[f < std::size(kNegativeCurrency) ? f : 1];
    } else {
        const auto f = FormatSettings.CurrencyFormat;
        pattern = kPositiveCurrency[f < std::size(kPositiveCurrency) ? f : 0];
    }
    std::string out;
    for (const char c : pattern) {
        if (c == '$')
            out += FormatSettings.CurrencyString;
        else if (c == '1')
            out += amount;
        else
            out += c;
    }
    return out;
}

std::string StripCurrencyString(std::string_view s)
{
    std::string text(s);
    const std::string& symbol = FormatSettings.CurrencyString;
    if (!symbol.empty()) {
        for (auto pos = text.find(symbol); pos != std::string::npos; pos = text.find(symbol, pos))
            text.erase(pos, symbol.size());
    }
    // What is left is the amount with its sign in one of the currency positions: in front,
    // behind, or as parentheses. Bring it to the front.
    std::string_view rest = TrimBlanks(text);
    bool negative = false;
    if (rest.size() >= 2 && rest.front() == '(' && rest.back() == ')') {
        negative = true;
        rest = TrimBlanks(rest.substr(1, rest.size() - 2));
    }
    if (!rest.empty() && rest.back() == '-') {
        negative = true;
        rest = TrimBlanks(rest.substr(0, rest.size() - 1));
    }
    if (!rest.empty() && rest.front() == '-') {
        negative = true;
        rest = TrimBlanks(rest.substr(1));
    }
    return (negative ? "-" : "") + std::string(rest);
}

// ---- Integers <-> text ---------------------------------------------------------------------

std::string Int2EStr(std::int64_t value) { return std::to_string(value); }

std::string Int2EHex(std::int64_t value, int digits)
{
    auto bits = static_cast<std::uint64_t>(value);
    std::string out;
    do {
        out += kHexDigits[bits & 0xF];
        bits >>= 4;
    } while (bits != 0);
    if (static_cast<int>(out.size()) < digits)
        out.append(static_cast<std::size_t>(digits) - out.size(), '0');
    std::reverse(out.begin(), out.end());
    return out;
}

std::int64_t Str2Int64(std::string_view s)
{
    const auto text = TrimBlanks(s);
    std::size_t i = 0;
    bool negative = false;
    if (i < text.size() && (text[i] == '-' || text[i] == '+'))
        negative = text[i++] == '-';
    if (i == text.size())
        ThrowConvert(rsInvalidInteger, s);
    // Accumulate the magnitude unsigned; -2^63 is the one value without a positive twin.
    const std::uint64_t limit
        = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (negative ? 1 : 0);
    std::uint64_t magnitude = 0;
    bool overflow = false;
    for (; i < text.size(); ++i) {
        if (!IsDigit(text[i]))
            ThrowConvert(rsInvalidInteger, s);
        const auto digit = static_cast<std::uint64_t>(text[i] - '0');
        if (magnitude > (limit - digit) / 10)
            overflow = true;
        else
            magnitude = magnitude * 10 + digit;
    }
    if (overflow)
        ThrowConvert(rsIntegerOverflow, s);
    return negative ? static_cast<std::int64_t>(0 - magnitude)
                    : static_cast<std::int64_t>(magnitude);
}

std::int32_t Str2Int(std::string_view s)
{
    const auto v = Str2Int64(s);
    if (v < std::numeric_limits<std::int32_t>::min()
        || v > std::numeric_limits<std::int32_t>::max())
        ThrowConvert(rsIntegerOverflow, s);
    return static_cast<std::int32_t>(v);
}

std::int64_t Hex2Int64(std::string_view hex)
{
    const auto text = TrimBlanks(hex);
    std::uint64_t bits = 0;
    for (const char c : text) {
        const int v = DigitValue(c, kHex.bits);
        if (v < 0)
            ThrowConvert(rsInvalidHex, hex);
        bits = (bits << 4) | static_cast<std::uint64_t>(v);
    }
    if (text.size() > 16)
        ThrowConvert(rsIntegerOverflow, hex);
    return static_cast<std::int64_t>(bits);
}

std::string Bin2Hex(std::string_view bin) { return ConvertDigits(bin, kBinary, kHex); }
std::string Hex2Bin(std::string_view hex) { return ConvertDigits(hex, kHex, kBinary); }
std::string Hex2Oct(std::string_view hex) { return ConvertDigits(hex, kHex, kOctal); }
std::string Oct2Hex(std::string_view oct) { return ConvertDigits(oct, kOctal, kHex); }

std::string GroupSpacing(std::string_view s, int n, char sep)
{
    if (n <= 0)
        return std::string(s);
    const auto width = static_cast<std::size_t>(n);
    std::string out;
    out.reserve(s.size() + s.size() / width);
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (i > 0 && (s.size() - i) % width == 0)
            out += sep;
        out += s[i];
    }
    return out;
}

std::string RemoveGroupSpacing(std::string_view s, char sep)
{
    std::string out;
    out.reserve(s.size());
    for (const char c : s)
        if (c != sep)
            out += c;
    return out;
}

// ---- Small helpers -------------------------------------------------------------------------

std::string LeftStr(std::string_view s, int n)
{
    return std::string(s.substr(0, static_cast<std::size_t>(std::max(n, 0))));
}

std::string RightStr(std::string_view s, int n)
{
    const auto k = std::min(static_cast<std::size_t>(std::max(n, 0)), s.size());
    return std::string(s.substr(s.size() - k));
}

std::string PadChLeftStr(std::string_view s, char ch, int n)
{
    const auto width = static_cast<std::size_t>(std::max(n, 0));
    std::string out;
    if (s.size() < width)
        out.assign(width - s.size(), ch);
    out += s;
    return out;
}

std::string StripLChStr(std::string_view s, char ch)
{
    const auto first = s.find_first_not_of(ch);
    return first == std::string_view::npos ? std::string() : std::string(s.substr(first));
}

} // namespace qorkit
