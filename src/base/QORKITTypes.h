// Shared value types, records and enumerations of the qorkit libraries.
#pragma once

#include "qorkit_base_export.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit {

// 80-bit extended precision: the number type of the engines, conversions and numeric domains.
using Extended = long double;
static_assert(std::numeric_limits<long double>::digits == 64,
              "qorkit needs the x87 80-bit extended long double");

using TQORFloatVector = std::vector<Extended>; // operand stack of the calculator engine
using TQORInt64Vector = std::vector<std::int64_t>; // operand stack of the programmer's engine

// Days since 1899-12-30; the fraction is the time of day.
using TDateTime = double;

enum TQORAngleMode : std::uint8_t { amDegrees = 0, amRadians = 1, amGradians = 2 };

enum TQORBaseDisplay : std::uint8_t { bdBinary = 0, bdDecimal = 1, bdHexadecimal = 2, bdOctal = 3 };

enum TQORBitSize : std::uint8_t { bs8Bits = 0, bs16Bits = 1, bs32Bits = 2, bs64Bits = 3 };

enum TQORProgSpacing : std::uint8_t { psNoSpacing = 0, psByte = 1, psWord = 2, psDWord = 3 };

enum TQORProgSizeChange : std::uint8_t { pscClear = 0, pscTruncate = 1, pscExtend = 2 };

enum TQORRegIniType : std::uint8_t { ritNone = 0, ritRegistry = 1, ritIniFile = 2 };

enum TQORTimeTypes : std::uint8_t { ttUniversal = 0, ttGreenwichSidereal = 1, ttLocalSidereal = 2 };

// Which glyph a calculator edit's button carries: 0, 1 or 2.
enum TQORCalcGlyphType : std::uint8_t {
    cgtCalculator = 0,
    cgtSmallCalculator = 1,
    cgtEllipsis = 2
};

// Which units a degrees-minutes-seconds text shows.
enum TQORDMSType : std::uint8_t {
    dmsDegrees = 0,
    dmsDegreesMinutes = 1,
    dmsDegreesMinutesSeconds = 2
};

// Fixed display names of the programmer's enumerations, indexed by ordinal. The translated
// texts used by the dialogs live in the calculator text module; these are the canonical names.
inline constexpr std::string_view QORBaseDisplayNames[] = {"Bin", "Dec", "Hex", "Oct"};
inline constexpr std::string_view QORBitSizeNames[] = {"8 bits", "16 bits", "32 bits", "64 bits"};
inline constexpr std::string_view QORProgSpacingNames[]
    = {"No Spacing", "Byte Spacing", "Word Spacing", "DWord Spacing"};
inline constexpr std::string_view QORProgSizeChangeNames[] = {"Clear", "Truncate", "Extend"};

// Number of bits of a word size; a value outside the four sizes counts as 64 bits.
constexpr int BitSizeBits(TQORBitSize size) noexcept { return size <= bs64Bits ? 8 << size : 64; }

struct QORKIT_BASE_EXPORT TQORComplex {
    Extended Real = 0;
    Extended Imaginary = 0;
    friend bool operator==(const TQORComplex&, const TQORComplex&) = default;
};
using TQORComplexVector = std::vector<TQORComplex>;
inline constexpr TQORComplex ComplexZero {0, 0};
inline constexpr TQORComplex ComplexUnity {1, 0};
inline constexpr TQORComplex ComplexI {0, 1};

struct QORKIT_BASE_EXPORT TQORTime {
    std::int32_t Day = 0; // integer part of a date-time
    std::int32_t Hours = 0;
    std::int32_t Minutes = 0;
    double Seconds = 0; // may carry a fraction
    double Longitude = 0; // degrees, meaningful for local sidereal time only
    TQORTimeTypes TimeType = ttUniversal;
    friend bool operator==(const TQORTime&, const TQORTime&) = default;
};

// Latitude then longitude in decimal degrees, stored north-positive and east-positive; the
// flags QORNorthPositive / QOREastPositive (QORKITSettings.h) choose what callers see.
struct QORKIT_BASE_EXPORT TQORPosition {
    Extended Latitude = 0;
    Extended Longitude = 0;
    friend bool operator==(const TQORPosition&, const TQORPosition&) = default;
};

// A measure in two units, such as feet and inches.
struct QORKIT_BASE_EXPORT TQORImperial {
    std::int32_t Major = 0; // whole major units; carries the sign of the measure
    double Minor = 0; // minor units, non-negative after normalisation
    std::int32_t Power = 1; // dimension: 0 constant, 1 linear, 2 square, 3 cubic ...
    std::int32_t Ratio = 0; // minor units per major unit; 0 is invalid
    std::string MajorName;
    std::string MinorName;
    std::string MajorAbbr;
    std::string MinorAbbr;
    friend bool operator==(const TQORImperial&, const TQORImperial&) = default;
};

// The host's fixed-point currency: a 64-bit integer holding amount x 10000.
class QORKIT_BASE_EXPORT Currency {
public:
    static constexpr std::int64_t Scale = 10000;

    constexpr Currency() noexcept = default;
    static constexpr Currency FromScaled(std::int64_t scaled) noexcept
    {
        Currency c;
        c.scaled_ = scaled;
        return c;
    }
    // Rounds to the nearest 1/10000, halves away from zero; throws EOverflow when out of range.
    static Currency FromExtended(Extended value);
    constexpr std::int64_t Scaled() const noexcept { return scaled_; }
    constexpr Extended ToExtended() const noexcept
    {
        return static_cast<Extended>(scaled_) / static_cast<Extended>(Scale);
    }
    friend constexpr bool operator==(Currency, Currency) = default;
    friend constexpr auto operator<=>(Currency, Currency) = default;

private:
    std::int64_t scaled_ = 0;
};

// The base package's 32-bit currency amounts, signed and unsigned: whole numbers of a unit
// the host chooses (cents, say). They carry no scale of their own; the currency edits' Scale
// relates them to the amount shown, and arithmetic on them rounds to whole units.
using TQORCurrency = std::int32_t;
using TQORLongCurrency = std::uint32_t;

} // namespace qorkit
