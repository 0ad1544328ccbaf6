// Math routines over 80-bit extended values.
//
// No routine returns NaN or infinity: domain faults raise EInvalidOp, zero divisors
// EZeroDivide, results beyond the extended range EOverflow (all EMathError), each with a
// resource-string message.
//
// Conventions:
// - Every argument must be finite: a NaN raises EInvalidOp, an infinity EOverflow. A zero result
//   is always +0, never -0.
// - QORMod(x, y) is the floored modulus: x - y * floor(x / y), the sign of y (-7 mod 3 = 2),
//   strictly inside (-|y|, |y|): QORMod(-1e-30, 360) is 0, not 360.
// - QORRem(x, y) is the truncated remainder: x - y * trunc(x / y), the sign of x (-7 rem 3 = -1).
// - QORDiv(x, y) is floored division floor(x / y) (-7 div 2 = -4).
// - QORIntDiv(x, y) is truncated division trunc(x / y) (-7 intdiv 2 = -3).
// - XtoY(x, y): a negative base needs an integer exponent, or an exponent whose reciprocal is
//   an odd integer (XtoY(-8, 1/3) = -2); anything else is EInvalidOp. 0 to a negative power is
//   EZeroDivide; XtoY(0, 0) = 1.
// - RoundDP(x, places) rounds half away from zero; negative places round to tens, hundreds...
//   It rounds the decimal value of x as written with 18 significant digits, so a typed 1.005
//   (stored a hair below 1.005) rounds to 1.01 at two places, like 2.5 to 3 and -2.5 to -3.
// - Gamma and LnGamma raise EInvalidOp at the poles 0, -1, -2 ...; Gamma of a small positive
//   integer n is exactly (n - 1)!.
// - QORArcSin / QORArcCos (and the degree forms) take arguments within QORFloatTolerance beyond
//   +-1 as +-1 (rounding in the caller's arithmetic); further out they raise EInvalidOp.
// - The degree routines reduce the angle in degrees first, so multiples of 90 are exact
//   (QORSinDeg(180) == 0, QORCosDeg(90) == 0), as are 30 and 45 degrees and their inverses;
//   QORTanDeg(90) raises EInvalidOp.
// - Rotations take the count modulo the width (a count of 8 on ROL8 leaves the value alone).
// - The tolerant tests use QORFloatTolerance: FloatIsZero(x) is |x| <= tolerance;
//   FloatIsNegative / FloatIsPositive are x < -tolerance / x > tolerance; SameFloat(a, b) is
//   |a - b| <= tolerance * max(1, |a|, |b|).
#pragma once

#include "QORKITTypes.h"
#include "qorkit_base_export.h"

#include <cstdint>

namespace qorkit {

inline constexpr Extended QORFloatTolerance = 1e-15L;

QORKIT_BASE_EXPORT bool FloatIsZero(Extended x) noexcept;
QORKIT_BASE_EXPORT bool FloatIsNegative(Extended x) noexcept;
QORKIT_BASE_EXPORT bool FloatIsPositive(Extended x) noexcept;
QORKIT_BASE_EXPORT bool SameFloat(Extended a, Extended b) noexcept;

// Raises EOverflow / EInvalidOp unless x is finite; returns x. The guard every routine uses.
QORKIT_BASE_EXPORT Extended CheckFloat(Extended x);

QORKIT_BASE_EXPORT Extended AbsXY(Extended x,
                                  Extended y); // sqrt(x^2 + y^2) without intermediate overflow
QORKIT_BASE_EXPORT Extended XtoY(Extended x, Extended y);
QORKIT_BASE_EXPORT Extended Pow2(Extended x); // 2^x
QORKIT_BASE_EXPORT Extended QORLog10(Extended x);
QORKIT_BASE_EXPORT Extended QORLog2(Extended x);
QORKIT_BASE_EXPORT Extended QORLn(Extended x);
QORKIT_BASE_EXPORT Extended QORExp(Extended x);
QORKIT_BASE_EXPORT Extended QORSqrt(Extended x); // negative: EInvalidOp with rsSqRootNeg
QORKIT_BASE_EXPORT Extended QORMod(Extended x, Extended y);
QORKIT_BASE_EXPORT Extended QORRem(Extended x, Extended y);
QORKIT_BASE_EXPORT Extended QORDiv(Extended x, Extended y);
QORKIT_BASE_EXPORT Extended QORIntDiv(Extended x, Extended y);
QORKIT_BASE_EXPORT Extended QORFloor(Extended x);
QORKIT_BASE_EXPORT Extended QORCeil(Extended x);
QORKIT_BASE_EXPORT Extended QORSign(Extended x); // -1, 0 or 1
QORKIT_BASE_EXPORT Extended Gamma(Extended x); // poles (0, -1, -2 ...) raise EInvalidOp
QORKIT_BASE_EXPORT Extended LnGamma(Extended x); // ln |Gamma(x)|
QORKIT_BASE_EXPORT Extended RoundDP(Extended x, std::int32_t places);

// Trigonometry in radians.
QORKIT_BASE_EXPORT Extended QORSin(Extended x);
QORKIT_BASE_EXPORT Extended QORCos(Extended x);
QORKIT_BASE_EXPORT Extended QORTan(Extended x);
QORKIT_BASE_EXPORT void QORSinCos(Extended x, Extended& sinValue, Extended& cosValue);
QORKIT_BASE_EXPORT Extended QORArcSin(Extended x); // |x| > 1: EInvalidOp
QORKIT_BASE_EXPORT Extended QORArcCos(Extended x);
QORKIT_BASE_EXPORT Extended QORArcTan(Extended x);
QORKIT_BASE_EXPORT Extended QORArcTan(Extended y,
                                      Extended x); // full-circle angle of (x, y), in (-pi, pi]

// Trigonometry in degrees.
QORKIT_BASE_EXPORT Extended QORSinDeg(Extended degrees);
QORKIT_BASE_EXPORT Extended QORCosDeg(Extended degrees);
QORKIT_BASE_EXPORT Extended QORTanDeg(Extended degrees);
QORKIT_BASE_EXPORT void QORSinCosDeg(Extended degrees, Extended& sinValue, Extended& cosValue);
QORKIT_BASE_EXPORT Extended QORArcSinDeg(Extended x);
QORKIT_BASE_EXPORT Extended QORArcCosDeg(Extended x);
QORKIT_BASE_EXPORT Extended QORArcTanDeg(Extended x);
QORKIT_BASE_EXPORT Extended QORArcTanDeg(Extended y,
                                         Extended x); // full-circle angle of (x, y), in (-180, 180]

// Hyperbolic functions and their inverses.
QORKIT_BASE_EXPORT Extended QORSinh(Extended x);
QORKIT_BASE_EXPORT Extended QORCosh(Extended x);
QORKIT_BASE_EXPORT Extended QORTanh(Extended x);
QORKIT_BASE_EXPORT Extended QORArSinh(Extended x);
QORKIT_BASE_EXPORT Extended QORArCosh(Extended x); // x < 1: EInvalidOp
QORKIT_BASE_EXPORT Extended QORArTanh(Extended x); // |x| >= 1: EInvalidOp

QORKIT_BASE_EXPORT Extended Deg2Rad(Extended degrees);
QORKIT_BASE_EXPORT Extended Rad2Deg(Extended radians);
QORKIT_BASE_EXPORT Extended Grad2Rad(Extended grads);
QORKIT_BASE_EXPORT Extended Rad2Grad(Extended radians);
// Reduces an angle into [0, 360).
QORKIT_BASE_EXPORT Extended AdjustAngleDegree(Extended degrees);

// Rotations of a word of the given width by `count` bits.
QORKIT_BASE_EXPORT std::uint8_t ROL8(std::uint8_t value, unsigned count) noexcept;
QORKIT_BASE_EXPORT std::uint16_t ROL16(std::uint16_t value, unsigned count) noexcept;
QORKIT_BASE_EXPORT std::uint32_t ROL32(std::uint32_t value, unsigned count) noexcept;
QORKIT_BASE_EXPORT std::uint64_t ROL64(std::uint64_t value, unsigned count) noexcept;
QORKIT_BASE_EXPORT std::uint8_t ROR8(std::uint8_t value, unsigned count) noexcept;
QORKIT_BASE_EXPORT std::uint16_t ROR16(std::uint16_t value, unsigned count) noexcept;
QORKIT_BASE_EXPORT std::uint32_t ROR32(std::uint32_t value, unsigned count) noexcept;
QORKIT_BASE_EXPORT std::uint64_t ROR64(std::uint64_t value, unsigned count) noexcept;

// Currency amounts times or divided by a factor. The result is rounded to a whole number of
// the amount's own units (1/10000 for Currency, one unit of the integer for the 32-bit forms),
// halves to the even neighbour: the floating-point unit's default rounding, which the currency
// conversions are defined with. Raise EOverflow when the result is out of the type's range (a
// negative TQORLongCurrency included), EZeroDivide on a zero divisor.
QORKIT_BASE_EXPORT Currency MultiplyCurrencyByValue(Currency amount, Extended value);
QORKIT_BASE_EXPORT Currency DivideCurrencyByValue(Currency amount, Extended value);
QORKIT_BASE_EXPORT TQORCurrency MultiplyCurrencyByValue(TQORCurrency amount, Extended value);
QORKIT_BASE_EXPORT TQORCurrency DivideCurrencyByValue(TQORCurrency amount, Extended value);
QORKIT_BASE_EXPORT TQORLongCurrency MultiplyCurrencyByValue(TQORLongCurrency amount,
                                                            Extended value);
QORKIT_BASE_EXPORT TQORLongCurrency DivideCurrencyByValue(TQORLongCurrency amount, Extended value);

} // namespace qorkit
