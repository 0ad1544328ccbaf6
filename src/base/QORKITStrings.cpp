#include "QORKITStrings.h"

#include "QORKITExceptions.h"
#include "QORKITResource.h"
#include "QORKITSettings.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstring>
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

// The magnitude's decimal digits into a stack buffer: at most kSignificantDigits of them,
// correctly rounded from the exact binary value (ties to even, as the standard library's
// conversions round), trailing zeros dropped. The value is 0.D x 10^P.
struct ShortDigits {
    char D[kSignificantDigits + 1];
    int Count = 0; // zero for a zero value
    long P = 0;
};

#if LDBL_MANT_DIG == 64 && LDBL_MAX_EXP == 16384 && defined(__SIZEOF_INT128__)
#define QORKIT_EXACT_DIGITS 1
__extension__ typedef unsigned __int128 UInt128;

// Writes the decimal digits of n (without leading zeros) at the end of [first, last) and
// returns where they begin.
char* WriteDigitsBackwards(char* last, std::uint64_t n, int minDigits) noexcept
{
    int written = 0;
    while (n != 0 || written < minDigits) {
        *--last = static_cast<char>('0' + n % 10);
        n /= 10;
        ++written;
    }
    return last;
}

// Fills `out` from the exact value: |value| = mantissa * 2^exponent2 is multiplied by 10^s
// (s <= 27, so 5^s fits in 63 bits and the product in 127) and its integer part written out;
// the binary fraction cut off only breaks ties. Returns false for values this cannot serve
// (above 2^127, below about 1e-9 with a long fraction, subnormal): the caller falls back.
bool ExactDigits(Extended magnitude, ShortDigits& out) noexcept
{
    unsigned char bytes[sizeof(Extended)];
    std::memcpy(bytes, &magnitude, sizeof bytes);
    std::uint64_t mantissa = 0;
    std::uint16_t signExponent = 0;
    std::memcpy(&mantissa, bytes, sizeof mantissa);
    std::memcpy(&signExponent, bytes + 8, sizeof signExponent);
    const int biased = signExponent & 0x7FFF;
    if (biased == 0 || mantissa == 0 || (mantissa >> 63) == 0)
        return false;
    int exponent2 = biased - 16383 - 63;
    if (exponent2 > 63)
        return false;
    UInt128 q = 0;
    bool sticky = false; // nonzero bits below q
    int scale = 0; // q = floor(|value| * 10^scale)
    if (exponent2 >= 0) {
        q = static_cast<UInt128>(mantissa) << exponent2;
    } else {
        int k = -exponent2;
        const int zeros = std::min(std::countr_zero(mantissa), k);
        mantissa >>= zeros;
        k -= zeros;
        constexpr int maxScale = 27;
        static constexpr auto pow5 = [] {
            std::array<std::uint64_t, maxScale + 1> p {};
            std::uint64_t v = 1;
            for (auto& x : p) {
                x = v;
                v *= 5;
            }
            return p;
        }();
        // m / 2^k * 10^s == m * 5^s / 2^(k - s).
        scale = std::min(k, maxScale);
        const UInt128 product
            = static_cast<UInt128>(mantissa) * pow5[static_cast<std::size_t>(scale)];
        const int shift = k - scale;
        if (shift >= 128)
            return false;
        q = shift == 0 ? product : product >> shift;
        sticky = shift != 0 && (product & ((static_cast<UInt128>(1) << shift) - 1)) != 0;
    }
    // All digits of q, right-aligned in a buffer: q < 2^128 has at most 39.
    constexpr std::uint64_t ten19 = 10'000'000'000'000'000'000ULL;
    char buffer[40];
    char* const end = buffer + sizeof buffer;
    char* first = end;
    if (q >= ten19) {
        const auto high = static_cast<std::uint64_t>(q / ten19);
        const auto low = static_cast<std::uint64_t>(q % ten19);
        first = WriteDigitsBackwards(first, low, 19);
        if (high >= ten19) { // q >= 10^38
            first = WriteDigitsBackwards(first, high % ten19, 19);
            first = WriteDigitsBackwards(first, high / ten19, 0);
        } else {
            first = WriteDigitsBackwards(first, high, 0);
        }
    } else {
        first = WriteDigitsBackwards(first, static_cast<std::uint64_t>(q), 0);
    }
    int count = static_cast<int>(end - first);
    // With bits cut off, the digits must reach past the kept ones, so that the cut-off part
    // is only ever a tie breaker.
    if (sticky && count <= kSignificantDigits)
        return false;
    long point = count - scale;
    if (count > kSignificantDigits) {
        const char next = first[kSignificantDigits];
        bool rest = sticky;
        for (int i = kSignificantDigits + 1; i < count && !rest; ++i)
            rest = first[i] != '0';
        const bool up = next > '5'
            || (next == '5' && (rest || (first[kSignificantDigits - 1] - '0') % 2 != 0));
        count = kSignificantDigits;
        if (up) {
            int i = count;
            while (i > 0 && first[i - 1] == '9')
                first[--i] = '0';
            if (i > 0) {
                ++first[i - 1];
            } else {
                first[0] = '1';
                count = 1;
                ++point;
            }
        }
    }
    while (count > 0 && first[count - 1] == '0')
        --count;
    std::memcpy(out.D, first, static_cast<std::size_t>(count));
    out.Count = count;
    out.P = point;
    return true;
}
#endif

// Magnitude digits of a finite nonzero value through the standard library (the general path).
void LibraryDigits(Extended magnitude, std::string& digits, long& point)
{
    char buffer[64];
    const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                         std::chars_format::scientific, kSignificantDigits - 1);
    // "d.ddddddddddddddddde[+-]x": cannot fail for a finite value in this buffer.
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    const auto ePos = text.find('e');
    digits.reserve(kSignificantDigits);
    digits += text[0];
    digits += text.substr(2, ePos - 2);
    long exponent = 0;
    std::from_chars(text.data() + ePos + (text[ePos + 1] == '+' ? 2 : 1), end, exponent);
    point = exponent + 1;
    while (!digits.empty() && digits.back() == '0')
        digits.pop_back();
}

// Magnitude digits of a finite value (the sign is the caller's business).
Digits ToDigits(Extended value)
{
    Digits result;
    if (value == 0)
        return result;
#ifdef QORKIT_EXACT_DIGITS
    ShortDigits exact;
    if (ExactDigits(std::fabs(value), exact)) {
        result.D.assign(exact.D, static_cast<std::size_t>(exact.Count));
        result.P = exact.P;
        return result;
    }
#endif
    LibraryDigits(std::fabs(value), result.D, result.P);
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

#ifdef QORKIT_EXACT_DIGITS
// Fixed notation of short digits in one pass over a stack buffer: rounds to the decimals
// (halves away from zero), then writes sign, grouped integer digits and decimals. The same
// text as JoinFixed(ToFixed(...)) gives, for every value ExactDigits serves.
std::string FixedFromDigits(ShortDigits d, bool negative, int decimals, const FixedStyle& style)
{
    const long keep = d.P + decimals;
    if (d.Count > 0 && keep < d.Count) {
        const bool up = keep >= 0 && d.D[keep] >= '5';
        d.Count = keep < 0 ? 0 : static_cast<int>(keep);
        if (up) {
            int i = d.Count;
            while (i > 0 && d.D[i - 1] == '9')
                d.D[--i] = '0';
            if (i > 0) {
                ++d.D[i - 1];
            } else {
                d.D[0] = '1';
                d.Count = 1;
                ++d.P;
            }
        }
        while (d.Count > 0 && d.D[d.Count - 1] == '0')
            --d.Count;
    }
    char buffer[1 + 2 * (kSignificantDigits + 24) + 2 + 256];
    char* out = buffer;
    if (d.Count > 0 && negative)
        *out++ = '-';
    if (d.Count == 0 || d.P <= 0) {
        *out++ = '0';
    } else {
        const long integerDigits = d.P;
        for (long i = 0; i < integerDigits; ++i) {
            const long rest = integerDigits - i;
            if (style.group && i > 0 && rest >= 3
                && (style.lakh ? (rest - 3) % 2 == 0 : rest % 3 == 0))
                *out++ = style.thousands;
            *out++ = i < d.Count ? d.D[i] : '0';
        }
    }
    long fraction = decimals;
    if (style.trim)
        fraction = d.Count == 0 ? 0 : std::clamp<long>(d.Count - d.P, 0, decimals);
    if (fraction > 0) {
        *out++ = style.decimal;
        for (long j = 0; j < fraction; ++j) {
            const long index = d.Count == 0 ? -1 : d.P + j;
            *out++ = index >= 0 && index < d.Count ? d.D[index] : '0';
        }
    }
    return std::string(buffer, out);
}
#endif

std::string FormatFixed(Extended value, std::uint8_t decimals, bool group, bool lakh, bool trim)
{
    FixedStyle style;
    style.decimal = FormatSettings.DecimalSeparator;
    style.thousands = FormatSettings.ThousandSeparator;
    style.group = group;
    style.lakh = lakh;
    style.trim = trim;
#ifdef QORKIT_EXACT_DIGITS
    CheckFinite(value);
    // Values up to 2^64 carry at most 40 integer digits: the stack buffer always holds them.
    if (ShortDigits d; value == 0 || (ExactDigits(std::fabs(value), d) && d.P <= 40))
        return FixedFromDigits(d, std::signbit(value), decimals, style);
#endif
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

// Powers of ten an extended float holds exactly (5^27 < 2^64).
constexpr int kMaxExactPower = 27;
constexpr auto kExactPowers = [] {
    std::array<Extended, kMaxExactPower + 1> p {};
    Extended v = 1;
    for (auto& x : p) {
        x = v;
        v *= 10;
    }
    return p;
}();
constexpr auto kIntegerPowers = [] {
    std::array<std::uint64_t, 20> p {};
    std::uint64_t v = 1;
    for (auto& x : p) {
        x = v;
        v *= 10;
    }
    return p;
}();

// The exponent part of a number text at s[i]: "E" or "e", an optional sign and digits. A bare
// "E" or "E-" (an entry still being typed) counts as exponent zero. The value stops growing
// at kExponentCap, far beyond any extended exponent.
constexpr long kExponentCap = 1'000'000'000L;
struct ExponentPart {
    std::size_t end; // index after the part (i itself when there is none)
    std::size_t digitsStart; // the digits are s[digitsStart, end)
    bool negative = false;
    long value = 0; // signed
};

ExponentPart ScanExponent(std::string_view s, std::size_t i) noexcept
{
    ExponentPart part {i, i};
    if (i >= s.size() || (s[i] != 'E' && s[i] != 'e'))
        return part;
    ++i;
    if (i < s.size() && (s[i] == '-' || s[i] == '+'))
        part.negative = s[i++] == '-';
    part.digitsStart = i;
    for (; i < s.size() && IsDigit(s[i]); ++i)
        if (part.value < kExponentCap)
            part.value = part.value * 10 + (s[i] - '0');
    if (part.negative)
        part.value = -part.value;
    part.end = i;
    return part;
}

// The common case of ScanFloat without any copy: a well-formed text of at most 19 significant
// digits whose decimal exponent is within 10^27 is an exact integer times or divided by an
// exact power of ten, which one extended multiply or divide rounds correctly. Returns false
// whenever that does not hold (malformed text included); ScanFloat then decides.
bool ScanExact(std::string_view s, char decimalSep, char thousandSep, Extended& value) noexcept
{
    s = TrimBlanks(s);
    std::size_t i = 0;
    bool negative = false;
    if (i < s.size() && (s[i] == '-' || s[i] == '+'))
        negative = s[i++] == '-';
    constexpr int maxDigits = 19; // 10^19 - 1 < 2^64
    std::uint64_t mantissa = 0;
    int significant = 0;
    long scale = 0; // value = mantissa * 10^(scale + exponent)
    std::size_t mantissaDigits = 0;
    const auto take = [&](char c, bool fraction) {
        ++mantissaDigits;
        if (mantissa == 0 && c == '0') {
            scale -= fraction ? 1 : 0;
            return true;
        }
        if (significant < maxDigits) {
            mantissa = mantissa * 10 + static_cast<std::uint64_t>(c - '0');
            ++significant;
            scale -= fraction ? 1 : 0;
            return true;
        }
        if (c != '0')
            return false; // more digits than fit exactly
        scale += fraction ? 0 : 1;
        return true;
    };
    for (; i < s.size(); ++i) {
        const char c = s[i];
        if (IsDigit(c)) {
            if (!take(c, false))
                return false;
        } else if (c == thousandSep && c != decimalSep && mantissaDigits > 0) {
            continue;
        } else {
            break;
        }
    }
    if (i < s.size() && s[i] == decimalSep)
        for (++i; i < s.size() && IsDigit(s[i]); ++i)
            if (!take(s[i], true))
                return false;
    if (mantissaDigits == 0)
        return false;
    long power = scale;
    if (i != s.size()) {
        const ExponentPart exponent = ScanExponent(s, i);
        if (exponent.end != s.size())
            return false;
        power += exponent.value;
    }
    Extended result = 0;
    if (mantissa == 0) {
        result = 0;
    } else if (power >= 0 && power <= kMaxExactPower) {
        result = static_cast<Extended>(mantissa) * kExactPowers[static_cast<std::size_t>(power)];
    } else if (power < 0 && power >= -kMaxExactPower) {
        result = static_cast<Extended>(mantissa) / kExactPowers[static_cast<std::size_t>(-power)];
    } else if (power > kMaxExactPower && power - kMaxExactPower < 20) {
        // Moves the surplus power into the integer while it stays exact.
        const auto extra = kIntegerPowers[static_cast<std::size_t>(power - kMaxExactPower)];
        if (mantissa > std::numeric_limits<std::uint64_t>::max() / extra)
            return false;
        result = static_cast<Extended>(mantissa * extra) * kExactPowers[kMaxExactPower];
    } else {
        return false;
    }
    value = negative && result != 0 ? -result : result;
    return true;
}

// Reads a calculator number text with the given separators. See Str2Float for the grammar.
ScanResult ScanFloat(std::string_view s, char decimalSep, char thousandSep, Extended& value)
{
    if (ScanExact(s, decimalSep, thousandSep, value))
        return ScanResult::Ok;
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

    const ExponentPart exponentPart = ScanExponent(s, i);
    if (exponentPart.end != s.size())
        return ScanResult::Malformed;
    if (exponentPart.end > exponentPart.digitsStart) {
        plain += exponentPart.negative ? "e-" : "e";
        plain.append(
            s.substr(exponentPart.digitsStart, exponentPart.end - exponentPart.digitsStart));
    }
    const long exponent = exponentPart.value;

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
    // The input's bits, most significant first, fed through a small accumulator: each output
    // digit is taken as soon as its bits are in. The left padding is the part of the first
    // output digit that no input bit fills.
    const std::size_t totalBits = s.size() * static_cast<std::size_t>(from.bits);
    const auto width = static_cast<std::size_t>(to.bits);
    std::string out((totalBits + width - 1) / width, '0');
    std::uint32_t pending = 0;
    std::size_t pendingBits = (width - totalBits % width) % width; // leading zeros
    std::size_t next = 0;
    for (const char c : s) {
        const int v = DigitValue(c, from.bits);
        if (v < 0)
            ThrowConvert(from.invalid, s);
        pending = (pending << from.bits) | static_cast<std::uint32_t>(v);
        pendingBits += static_cast<std::size_t>(from.bits);
        while (pendingBits >= width) {
            pendingBits -= width;
            out[next++] = kHexDigits[(pending >> pendingBits) & ((1U << width) - 1)];
        }
        pending &= (1U << pendingBits) - 1;
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
    if (ScanExact(s, FormatSettings.DecimalSeparator, FormatSettings.ThousandSeparator, value))
        return true;
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
