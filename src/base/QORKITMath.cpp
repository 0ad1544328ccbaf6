#include "QORKITMath.h"

#include "QORKITConstants.h"
#include "QORKITExceptions.h"
#include "QORKITResource.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace qorkit {

namespace {

[[noreturn]] void RaiseDomain() { throw EInvalidOp(rsOutOfDomain()); }
[[noreturn]] void RaiseZeroDivide() { throw EZeroDivide(rsDivideByZero()); }
[[noreturn]] void RaiseOverflow() { throw EOverflow(rsOverflow()); }

// Every argument passes through here: a NaN or an infinity can only come from an earlier fault,
// and must not be turned into a plausible-looking number by the routine that receives it.
Extended Arg(Extended x) { return CheckFloat(x); }

// Every result passes through here. A negative zero is returned as plain zero, so that no
// display ever shows "-0".
Extended Finish(Extended x)
{
    CheckFloat(x);
    return x == 0 ? 0.0L : x;
}

// Rounds to the nearest integer, halves to the even neighbour, independently of the
// floating-point environment.
Extended RoundHalfEven(Extended v)
{
    const Extended f = std::floor(v);
    const Extended d = v - f; // exact: the fraction of a floating value is representable
    if (d > 0.5L)
        return f + 1;
    if (d < 0.5L)
        return f;
    return std::fmod(f, 2.0L) == 0 ? f : f + 1;
}

// Values a hair outside [-1, 1] come from rounding in the caller's arithmetic (cosines of
// nearly equal angles, products of unit vectors); they are taken as the boundary.
Extended ClampUnit(Extended x)
{
    x = Arg(x);
    if (std::fabs(x) > 1) {
        if (std::fabs(x) - 1 > QORFloatTolerance)
            RaiseDomain();
        return x > 0 ? 1.0L : -1.0L;
    }
    return x;
}

Extended CheckLogArg(Extended x)
{
    x = Arg(x);
    if (x <= 0)
        throw EInvalidOp(rsLogNonPositive());
    return x;
}

Extended CheckDivisor(Extended y)
{
    y = Arg(y);
    if (y == 0)
        RaiseZeroDivide();
    return y;
}

// ---- Degree trigonometry ---------------------------------------------------------------------
//
// The angle is reduced in degrees, where the reduction is exact (fmod is exact, and 90 * q is
// an integer), to a quadrant q and a remainder r in [-45, 45]. Only r is turned into radians,
// so the quadrant boundaries are hit exactly: sin 180 is 0 and cos 90 is 0, not 1e-19.

struct SinCosPair {
    Extended Sin;
    Extended Cos;
};

// Sine and cosine of a remainder in [-45, 45] degrees; the values a user checks by hand
// (30 and 45 degrees) are exact rather than an ulp away.
SinCosPair SinCosSmall(Extended r)
{
    constexpr Extended halfRoot2 = 0.707106781186547524400844362104849039L;
    constexpr Extended cos30 = 0.866025403784438646763723170752936183L;
    const Extended a = std::fabs(r);
    const Extended sign = r < 0 ? -1.0L : 1.0L;
    if (a == 45)
        return {sign * halfRoot2, halfRoot2};
    if (a == 30)
        return {sign * 0.5L, cos30};
    const Extended rad = r * OneDegree;
    return {std::sin(rad), std::cos(rad)};
}

SinCosPair SinCosDegrees(Extended degrees)
{
    const Extended reduced = std::fmod(Arg(degrees), 360.0L); // (-360, 360), exact
    const Extended q = std::nearbyint(reduced / 90.0L); // -4 .. 4
    const SinCosPair small = SinCosSmall(reduced - 90.0L * q); // exact subtraction
    switch ((static_cast<int>(q) % 4 + 4) % 4) {
    case 1:
        return {small.Cos, -small.Sin};
    case 2:
        return {-small.Sin, -small.Cos};
    case 3:
        return {-small.Cos, small.Sin};
    default:
        return small;
    }
}

// Inverse functions in degrees: the textbook values come out exact instead of an ulp off.
struct ExactAngle {
    Extended Argument;
    Extended Degrees;
};

constexpr std::array<ExactAngle, 5> ArcSinTable {
    {{-1, -90}, {-0.5L, -30}, {0, 0}, {0.5L, 30}, {1, 90}}};
constexpr std::array<ExactAngle, 5> ArcCosTable {
    {{-1, 180}, {-0.5L, 120}, {0, 90}, {0.5L, 60}, {1, 0}}};
constexpr std::array<ExactAngle, 3> ArcTanTable {{{-1, -45}, {0, 0}, {1, 45}}};

template<std::size_t N>
Extended ExactOr(const std::array<ExactAngle, N>& table, Extended x, Extended (*radians)(Extended))
{
    for (const auto& entry : table)
        if (entry.Argument == x)
            return entry.Degrees;
    return Rad2Deg(radians(x));
}

// ---- Rotations ---------------------------------------------------------------------------------

// The count is taken modulo the width; a zero count returns the value untouched (a shift by the
// full width would be undefined behaviour).
template<typename T> T RotateLeft(T value, unsigned count) noexcept
{
    constexpr unsigned width = std::numeric_limits<T>::digits;
    count %= width;
    if (count == 0)
        return value;
    return static_cast<T>(static_cast<T>(value << count)
                          | static_cast<T>(value >> (width - count)));
}

template<typename T> T RotateRight(T value, unsigned count) noexcept
{
    constexpr unsigned width = std::numeric_limits<T>::digits;
    return RotateLeft(value, width - count % width);
}

// ---- Currency ----------------------------------------------------------------------------------

// Rounds a scaled amount to a whole number of units of T, halves to even, and checks the range.
template<typename T> T ToAmount(Extended scaled)
{
    const Extended r = RoundHalfEven(Arg(scaled));
    // Both bounds are powers of two or one less, exact in extended.
    constexpr Extended lowest = static_cast<Extended>(std::numeric_limits<T>::min());
    constexpr Extended upperExclusive = static_cast<Extended>(std::numeric_limits<T>::max()) + 1;
    if (r < lowest || r >= upperExclusive)
        RaiseOverflow();
    return static_cast<T>(r);
}

template<typename T> T MultiplyAmount(T amount, Extended value)
{
    return ToAmount<T>(static_cast<Extended>(amount) * Arg(value));
}

template<typename T> T DivideAmount(T amount, Extended value)
{
    return ToAmount<T>(static_cast<Extended>(amount) / CheckDivisor(value));
}

} // namespace

// ---- Tolerant tests ----------------------------------------------------------------------------

bool FloatIsZero(Extended x) noexcept { return std::fabs(x) <= QORFloatTolerance; }
bool FloatIsNegative(Extended x) noexcept { return x < -QORFloatTolerance; }
bool FloatIsPositive(Extended x) noexcept { return x > QORFloatTolerance; }

bool SameFloat(Extended a, Extended b) noexcept
{
    const Extended scale = std::fmax(1.0L, std::fmax(std::fabs(a), std::fabs(b)));
    return std::fabs(a - b) <= QORFloatTolerance * scale;
}

Extended CheckFloat(Extended x)
{
    if (std::isnan(x))
        throw EInvalidOp(rsInvalidOperation());
    if (std::isinf(x))
        RaiseOverflow();
    return x;
}

// ---- Powers and logarithms
// -----------------------------------------------------------------------

Extended AbsXY(Extended x, Extended y) { return Finish(std::hypot(Arg(x), Arg(y))); }

Extended XtoY(Extended x, Extended y)
{
    x = Arg(x);
    y = Arg(y);
    if (y == 0)
        return 1;
    if (x == 0) {
        if (y < 0)
            RaiseZeroDivide();
        return 0;
    }
    if (x < 0 && std::trunc(y) != y) {
        // Odd roots of negative numbers are real: -8 ^ (1/3) = -2. The reciprocal of a typed
        // 1/3 is not exactly 3, so it is compared with tolerance.
        const Extended reciprocal = 1 / y;
        const Extended n = std::nearbyint(reciprocal);
        if (!SameFloat(reciprocal, n) || std::fmod(n, 2.0L) == 0)
            RaiseDomain();
        return Finish(-std::pow(-x, y));
    }
    // A negative integer power is taken as the reciprocal of the positive one: when that is
    // exact (10^2), the result is the correctly rounded 1/100, which is what a typed 0.01 is.
    if (y < 0 && std::trunc(y) == y) {
        const Extended positive = std::pow(x, -y);
        if (std::isfinite(positive))
            return Finish(1 / positive);
    }
    return Finish(std::pow(x, y));
}

Extended Pow2(Extended x) { return Finish(std::exp2(Arg(x))); }
Extended QORLog10(Extended x)
{
    x = CheckLogArg(x);
    const Extended result = std::log10(x);
    // Powers of ten give whole numbers: 10^n is exact up to n = 27, and 10^-n is exactly the
    // value a typed 1e-n is stored as.
    const Extended n = std::nearbyint(result);
    if (std::fabs(n) <= 27 && std::fabs(result - n) < QORFloatTolerance) {
        const Extended power = std::pow(10.0L, std::fabs(n));
        if ((n >= 0 ? power : 1 / power) == x)
            return Finish(n);
    }
    return Finish(result);
}
Extended QORLog2(Extended x) { return Finish(std::log2(CheckLogArg(x))); }
Extended QORLn(Extended x) { return Finish(std::log(CheckLogArg(x))); }
Extended QORExp(Extended x) { return Finish(std::exp(Arg(x))); }

Extended QORSqrt(Extended x)
{
    x = Arg(x);
    if (x < 0)
        throw EInvalidOp(rsSqRootNeg());
    return Finish(std::sqrt(x));
}

// ---- Modulus and integer division
// ------------------------------------------------------------------
//
// fmod is exact, so every routine starts from it. The quotient (x - r) / y is an integer up to
// the rounding of the division and is rounded to it, which keeps x = y * QORDiv + QORMod.

Extended QORMod(Extended x, Extended y)
{
    y = CheckDivisor(y);
    Extended r = std::fmod(Arg(x), y);
    if (r != 0 && (r < 0) != (y < 0)) {
        r += y;
        // A tiny r of the wrong sign gives y itself after rounding; the result must stay below
        // |y| (a bearing of 360 degrees is 0).
        if (r == y)
            r = 0;
    }
    return Finish(r);
}

Extended QORRem(Extended x, Extended y)
{
    y = CheckDivisor(y);
    return Finish(std::fmod(Arg(x), y));
}

Extended QORDiv(Extended x, Extended y)
{
    y = CheckDivisor(y);
    x = Arg(x);
    const Extended r = std::fmod(x, y);
    Extended q = (x - r) / y;
    if (r != 0 && (r < 0) != (y < 0))
        q -= 1;
    return Finish(std::nearbyint(q));
}

Extended QORIntDiv(Extended x, Extended y)
{
    y = CheckDivisor(y);
    x = Arg(x);
    return Finish(std::nearbyint((x - std::fmod(x, y)) / y));
}

Extended QORFloor(Extended x) { return Finish(std::floor(Arg(x))); }
Extended QORCeil(Extended x) { return Finish(std::ceil(Arg(x))); }

Extended QORSign(Extended x)
{
    x = Arg(x);
    return x > 0 ? 1.0L : (x < 0 ? -1.0L : 0.0L);
}

// ---- Gamma -------------------------------------------------------------------------------------

Extended Gamma(Extended x)
{
    x = Arg(x);
    const bool isInteger = std::trunc(x) == x;
    if (isInteger && x <= 0)
        RaiseDomain();
    // Small factorials by multiplication, so that Gamma(5) is 24 and not 24 plus an ulp; the
    // products stay exact as long as they fit the 64-bit mantissa (up to 25!).
    if (isInteger && x <= 26) {
        Extended product = 1;
        for (Extended k = 2; k < x; ++k)
            product *= k;
        return product;
    }
    return Finish(std::tgamma(x));
}

Extended LnGamma(Extended x)
{
    x = Arg(x);
    if (std::trunc(x) == x && x <= 0)
        RaiseDomain();
    if (x == 1 || x == 2)
        return 0;
    return Finish(std::lgamma(x));
}

// ---- Rounding ----------------------------------------------------------------------------------
//
// RoundDP rounds the decimal value the user sees, not the binary one. A typed 1.005 is stored as
// 1.00499999999999999996 (no binary fraction equals 1.005), so rounding the binary value would
// give 1.00 although the user asked to round a 5 up. The value is written with 18 significant
// digits (the precision at which any decimal of up to 18 digits comes back unchanged), that
// decimal string is rounded half away from zero, and the result is read back: 1.005 gives
// 1.01, 2.5 gives 3, -2.5 gives -3. Conversions use std::to_chars/from_chars, which ignore
// the C locale that a GUI host may have switched to "," decimals.

Extended RoundDP(Extended x, std::int32_t places)
{
    x = Arg(x);
    if (x == 0)
        return 0;
    constexpr int significant = std::numeric_limits<Extended>::digits10; // 18
    std::array<char, 64> text {};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), std::fabs(x),
                                       std::chars_format::scientific, significant - 1);
    // text is "d.ddddddddddddddddde[+-]xx"
    std::string digits;
    const char* p = text.data();
    for (; *p != 'e'; ++p)
        if (*p != '.')
            digits += *p;
    int exponent = 0;
    std::from_chars(p + 1 + (p[1] == '+' ? 1 : 0), written.ptr, exponent);

    // Digits kept in front of the rounding position.
    const std::int64_t kept = static_cast<std::int64_t>(exponent) + 1 + places;
    if (kept >= significant)
        return Finish(x); // the value has no digits beyond that position
    if (kept < 0)
        return 0; // the first digit is more than one place beyond the rounding position

    std::string result = digits.substr(0, static_cast<std::size_t>(kept));
    if (digits[static_cast<std::size_t>(kept)] >= '5') {
        // Increment the kept digits; a carry out of the top adds a digit ("99" -> "100").
        auto i = result.size();
        while (i > 0 && result[i - 1] == '9')
            result[--i] = '0';
        if (i == 0)
            result.insert(result.begin(), '1');
        else
            ++result[i - 1];
    }
    if (result.empty())
        return 0;
    result += 'e';
    result += std::to_string(static_cast<std::int64_t>(exponent) + 1 - kept);
    Extended magnitude = 0;
    const auto parsed = std::from_chars(result.data(), result.data() + result.size(), magnitude);
    if (parsed.ec == std::errc::result_out_of_range)
        RaiseOverflow();
    return Finish(x < 0 ? -magnitude : magnitude);
}

// ---- Trigonometry in radians
// ---------------------------------------------------------------------

Extended QORSin(Extended x) { return Finish(std::sin(Arg(x))); }
Extended QORCos(Extended x) { return Finish(std::cos(Arg(x))); }
Extended QORTan(Extended x) { return Finish(std::tan(Arg(x))); }

void QORSinCos(Extended x, Extended& sinValue, Extended& cosValue)
{
    x = Arg(x);
    sinValue = Finish(std::sin(x));
    cosValue = Finish(std::cos(x));
}

Extended QORArcSin(Extended x) { return Finish(std::asin(ClampUnit(x))); }
Extended QORArcCos(Extended x) { return Finish(std::acos(ClampUnit(x))); }
Extended QORArcTan(Extended x) { return Finish(std::atan(Arg(x))); }

Extended QORArcTan(Extended y, Extended x)
{
    x = Arg(x);
    y = Arg(y);
    if (x == 0 && y == 0)
        return 0; // no direction; 0 by convention
    // A negative zero y would give -pi on the negative x axis; the range is (-pi, pi].
    return Finish(std::atan2(y == 0 ? 0.0L : y, x));
}

// ---- Trigonometry in degrees
// ---------------------------------------------------------------------

Extended QORSinDeg(Extended degrees) { return Finish(SinCosDegrees(degrees).Sin); }
Extended QORCosDeg(Extended degrees) { return Finish(SinCosDegrees(degrees).Cos); }

Extended QORTanDeg(Extended degrees)
{
    const SinCosPair sc = SinCosDegrees(degrees);
    if (sc.Cos == 0)
        RaiseDomain(); // 90, 270 ...: the tangent has a pole there
    return Finish(sc.Sin / sc.Cos);
}

void QORSinCosDeg(Extended degrees, Extended& sinValue, Extended& cosValue)
{
    const SinCosPair sc = SinCosDegrees(degrees);
    sinValue = Finish(sc.Sin);
    cosValue = Finish(sc.Cos);
}

Extended QORArcSinDeg(Extended x)
{
    return Finish(ExactOr(ArcSinTable, ClampUnit(x), [](Extended v) { return std::asin(v); }));
}

Extended QORArcCosDeg(Extended x)
{
    return Finish(ExactOr(ArcCosTable, ClampUnit(x), [](Extended v) { return std::acos(v); }));
}

Extended QORArcTanDeg(Extended x)
{
    return Finish(ExactOr(ArcTanTable, Arg(x), [](Extended v) { return std::atan(v); }));
}

Extended QORArcTanDeg(Extended y, Extended x)
{
    x = Arg(x);
    y = Arg(y);
    // The axes and the diagonals exactly.
    if (y == 0)
        return x < 0 ? 180.0L : 0.0L;
    if (x == 0)
        return y > 0 ? 90.0L : -90.0L;
    if (std::fabs(x) == std::fabs(y)) {
        const Extended a = x > 0 ? 45.0L : 135.0L;
        return y > 0 ? a : -a;
    }
    return Finish(Rad2Deg(std::atan2(y, x)));
}

// ---- Hyperbolic functions
// --------------------------------------------------------------------------

Extended QORSinh(Extended x) { return Finish(std::sinh(Arg(x))); }
Extended QORCosh(Extended x) { return Finish(std::cosh(Arg(x))); }
Extended QORTanh(Extended x) { return Finish(std::tanh(Arg(x))); }
Extended QORArSinh(Extended x) { return Finish(std::asinh(Arg(x))); }

Extended QORArCosh(Extended x)
{
    x = Arg(x);
    if (x < 1)
        RaiseDomain();
    return Finish(std::acosh(x));
}

Extended QORArTanh(Extended x)
{
    x = Arg(x);
    if (std::fabs(x) >= 1)
        RaiseDomain();
    return Finish(std::atanh(x));
}

// ---- Angle units
// -----------------------------------------------------------------------------------

Extended Deg2Rad(Extended degrees) { return Finish(Arg(degrees) * OneDegree); }
Extended Rad2Deg(Extended radians) { return Finish(Arg(radians) * OneRadian); }
Extended Grad2Rad(Extended grads) { return Finish(Arg(grads) * (QORPi / 200.0L)); }
Extended Rad2Grad(Extended radians) { return Finish(Arg(radians) * (200.0L / QORPi)); }

Extended AdjustAngleDegree(Extended degrees) { return QORMod(degrees, 360.0L); }

// ---- Rotations
// ---------------------------------------------------------------------------------------

std::uint8_t ROL8(std::uint8_t value, unsigned count) noexcept { return RotateLeft(value, count); }
std::uint16_t ROL16(std::uint16_t value, unsigned count) noexcept
{
    return RotateLeft(value, count);
}
std::uint32_t ROL32(std::uint32_t value, unsigned count) noexcept
{
    return RotateLeft(value, count);
}
std::uint64_t ROL64(std::uint64_t value, unsigned count) noexcept
{
    return RotateLeft(value, count);
}
std::uint8_t ROR8(std::uint8_t value, unsigned count) noexcept { return RotateRight(value, count); }
std::uint16_t ROR16(std::uint16_t value, unsigned count) noexcept
{
    return RotateRight(value, count);
}
std::uint32_t ROR32(std::uint32_t value, unsigned count) noexcept
{
    return RotateRight(value, count);
}
std::uint64_t ROR64(std::uint64_t value, unsigned count) noexcept
{
    return RotateRight(value, count);
}

// ---- Currency
// ----------------------------------------------------------------------------------------

Currency MultiplyCurrencyByValue(Currency amount, Extended value)
{
    return Currency::FromScaled(MultiplyAmount(amount.Scaled(), value));
}

Currency DivideCurrencyByValue(Currency amount, Extended value)
{
    return Currency::FromScaled(DivideAmount(amount.Scaled(), value));
}

TQORCurrency MultiplyCurrencyByValue(TQORCurrency amount, Extended value)
{
    return MultiplyAmount(amount, value);
}

TQORCurrency DivideCurrencyByValue(TQORCurrency amount, Extended value)
{
    return DivideAmount(amount, value);
}

TQORLongCurrency MultiplyCurrencyByValue(TQORLongCurrency amount, Extended value)
{
    return MultiplyAmount(amount, value);
}

TQORLongCurrency DivideCurrencyByValue(TQORLongCurrency amount, Extended value)
{
    return DivideAmount(amount, value);
}

} // namespace qorkit
