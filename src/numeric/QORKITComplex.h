// Complex numbers: construction, polar form, arithmetic, comparison, powers and roots,
// exponential and logarithms, circular and hyperbolic functions and their inverses, text forms,
// and a quadratic solver with complex roots.
//
// Every function is pure. Composite functions are evaluated through the named operations in the
// order of their defining formula, so their rounding is reproducible. Angles ("amplitudes") are
// radians in [0, 2 pi).
//
// Failures raise EMathError kinds: dividing or inverting an exact-zero complex raises EZeroDivide
// with rsCDivideByZero (also inside tan, cot, the inverse functions ...); the logarithm of zero,
// overflow of the exponential and results beyond the extended range raise what the base math
// routines raise. No function returns NaN or infinity.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <cstdint>
#include <string>

namespace qorkit {

QORKIT_CORE_EXPORT TQORComplex MakeComplex(Extended Re, Extended Im);
QORKIT_CORE_EXPORT Extended GetRealPortion(const TQORComplex& z);
QORKIT_CORE_EXPORT Extended GetImaginaryPortion(const TQORComplex& z);

// Modulus, computed without intermediate overflow.
QORKIT_CORE_EXPORT Extended ComplexAbs(const TQORComplex& z);
// Argument in [0, 2 pi).
QORKIT_CORE_EXPORT Extended ComplexAmp(const TQORComplex& z);
// |Modulus| (cos Angle + i sin Angle): a negative modulus does not flip the point.
QORKIT_CORE_EXPORT TQORComplex Polar2Complex(Extended Modulus, Extended Angle);

QORKIT_CORE_EXPORT TQORComplex ComplexConjugate(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexNegative(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexAdd(const TQORComplex& z1, const TQORComplex& z2);
QORKIT_CORE_EXPORT TQORComplex ComplexSubtract(const TQORComplex& z1, const TQORComplex& z2);
QORKIT_CORE_EXPORT TQORComplex ComplexMultiplyByScalar(const TQORComplex& z, Extended X);
QORKIT_CORE_EXPORT TQORComplex ComplexMultiply(const TQORComplex& z1, const TQORComplex& z2);
QORKIT_CORE_EXPORT TQORComplex ComplexDivide(const TQORComplex& z1, const TQORComplex& z2);
QORKIT_CORE_EXPORT TQORComplex ComplexInvert(const TQORComplex& z);
QORKIT_CORE_EXPORT Extended ComplexDotProduct(const TQORComplex& z1, const TQORComplex& z2);
QORKIT_CORE_EXPORT Extended ComplexCrossProduct(const TQORComplex& z1, const TQORComplex& z2);

// Exact comparisons.
QORKIT_CORE_EXPORT bool ComplexIsZero(const TQORComplex& z);
QORKIT_CORE_EXPORT bool ComplexIsUnity(const TQORComplex& z);
QORKIT_CORE_EXPORT bool ComplexEqual(const TQORComplex& z1, const TQORComplex& z2);
// Comparisons within the base tolerance (FloatIsZero, SameFloat).
QORKIT_CORE_EXPORT bool ComplexIsNearZero(const TQORComplex& z);
QORKIT_CORE_EXPORT bool ComplexIsNearUnity(const TQORComplex& z);
QORKIT_CORE_EXPORT bool ComplexNearEqual(const TQORComplex& z1, const TQORComplex& z2);

QORKIT_CORE_EXPORT TQORComplex ComplexSqr(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexPower(const TQORComplex& z, std::uint32_t N);
// The principal square root; the two-result form also gives the other root.
QORKIT_CORE_EXPORT TQORComplex ComplexSqrt(const TQORComplex& z);
QORKIT_CORE_EXPORT void ComplexSqrt(const TQORComplex& z, TQORComplex& Root1, TQORComplex& Root2);
// The N N-th roots, the first at ComplexAmp(z) / N, then counter-clockwise. N = 0 gives none.
QORKIT_CORE_EXPORT TQORComplexVector ComplexRoots(const TQORComplex& z, std::uint32_t N);

QORKIT_CORE_EXPORT TQORComplex ComplexExp(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexLn(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexLog2(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexLog10(const TQORComplex& z);
// z1 raised to z2.
QORKIT_CORE_EXPORT TQORComplex ComplexXtoY(const TQORComplex& z1, const TQORComplex& z2);

QORKIT_CORE_EXPORT TQORComplex ComplexSin(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexCos(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexTan(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexCot(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexSec(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexCosec(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArcSin(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArcCos(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArcTan(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArcCot(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArcSec(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArcCosec(const TQORComplex& z);

QORKIT_CORE_EXPORT TQORComplex ComplexSinh(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexCosh(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexTanh(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexCoth(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexSech(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexCosech(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArSinh(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArCosh(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArCosech(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArSech(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArTanh(const TQORComplex& z);
QORKIT_CORE_EXPORT TQORComplex ComplexArCoth(const TQORComplex& z);

// "3 + i4", "3 - i4": the imaginary part is written without its sign after " + i" / " - i".
QORKIT_CORE_EXPORT std::string Complex2XYStr(const TQORComplex& z, std::uint8_t Decimals);
// "(3, -4)".
QORKIT_CORE_EXPORT std::string Complex2PairStr(const TQORComplex& z, std::uint8_t Decimals);
// "(modulus, amplitude)", the amplitude in radians.
QORKIT_CORE_EXPORT std::string Complex2PolarStr(const TQORComplex& z, std::uint8_t Decimals);

// Solves A x^2 + B x + C = 0. Returns the number of distinct roots, 1 or 2; a single root is
// stored in both X1 and X2. A and B both near zero raise EMathError with rsNotDefinedForValue.
QORKIT_CORE_EXPORT std::uint8_t SolveQuadratic(Extended A, Extended B, Extended C, TQORComplex& X1,
                                               TQORComplex& X2);

} // namespace qorkit
