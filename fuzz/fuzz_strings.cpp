// The number text routines on arbitrary input: the first bytes are read as a text for the
// parsers, the last ones as an extended value (any bit pattern) and a count of decimals for
// the formatters. Every call either succeeds or raises the library's own error, and the
// formatters agree with each other: the grouped text without its separators is the plain one,
// the trimmed text is the plain one without trailing zero decimals.
#include "QORKITExceptions.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

using qorkit::Extended;

void CheckParse(std::string_view text)
{
    Extended tried = 0;
    const bool ok = qorkit::TryStr2Float(text, tried);
    try {
        const Extended thrown = qorkit::Str2Float(text);
        if (!ok || !(thrown == tried) || !std::isfinite(thrown))
            std::abort();
    } catch (const qorkit::EConvertError&) {
        if (ok)
            std::abort();
    }
}

std::string Trimmed(std::string s, char decimal)
{
    const auto point = s.find(decimal);
    if (point == std::string::npos)
        return s;
    while (s.back() == '0')
        s.pop_back();
    if (s.back() == decimal)
        s.pop_back();
    return s == "-0" ? "0" : s;
}

void CheckFormat(Extended value, std::uint8_t decimals, bool lakh)
{
    if (!std::isfinite(value) || std::fabs(value) > 1e300L)
        return; // non-finite values raise; huge ones are slow, not interesting
    decimals %= 40;
    const char decimal = qorkit::FormatSettings.DecimalSeparator;
    const std::string plain = qorkit::Float2EStr(value, decimals);
    std::string grouped = qorkit::Float2CEStr(value, decimals, lakh);
    if (qorkit::StripThousandSeparators(grouped) != plain)
        std::abort();
    if (qorkit::Float2EStr2(value, decimals) != Trimmed(plain, decimal))
        std::abort();
    if (qorkit::StripThousandSeparators(qorkit::Float2CEStr2(value, decimals, lakh))
        != Trimmed(plain, decimal))
        std::abort();
    CheckParse(plain);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t tail = 12; // mantissa, exponent, decimals, flags
    if (size < tail)
        return 0;
    const std::uint8_t flags = data[size - 1];
    qorkit::FormatSettings.DecimalSeparator = (flags & 1) != 0 ? ',' : '.';
    qorkit::FormatSettings.ThousandSeparator = (flags & 1) != 0 ? '.' : ',';
    CheckParse(std::string_view(reinterpret_cast<const char*>(data), size - tail));
    // A valid value of every magnitude and sign from a 64-bit mantissa and an exponent.
    std::uint64_t mantissa = 0;
    std::int16_t exponent = 0;
    std::memcpy(&mantissa, data + size - tail, sizeof mantissa);
    std::memcpy(&exponent, data + size - tail + 8, sizeof exponent);
    Extended value = std::ldexp(static_cast<Extended>(mantissa), exponent % 1100);
    if ((flags & 4) != 0)
        value = -value;
    CheckFormat(value, data[size - 2], (flags & 2) != 0);
    return 0;
}
