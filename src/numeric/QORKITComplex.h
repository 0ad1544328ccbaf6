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

#include <cstdint>
#include <string>

namespace qorkit {

TQORComplex MakeComplex(Extended Re, Extended Im);
Extended GetRealPortion(const TQORComplex& z);
Extended GetImaginaryPortion(const TQORComplex& z);

// Modulus, computed without intermediate overflow.
Extended ComplexAbs(const TQORComplex& z);
// Argument in [0, 2 pi).
Extended ComplexAmp(const TQORComplex& z);
// |Modulus| (cos Angle + i sin Angle): a negative modulus does not flip the point.
TQORComplex Polar2Complex(Extended Modulus, Extended Angle);

TQORComplex ComplexConjugate(const TQORComplex& z);
TQORComplex ComplexNegative(const TQORComplex& z);
TQORComplex ComplexAdd(const TQORComplex& z1, const TQORComplex& z2);
TQORComplex ComplexSubtract(const TQORComplex& z1, const TQORComplex& z2);
TQORComplex ComplexMultiplyByScalar(const TQORComplex& z, Extended X);
TQORComplex ComplexMultiply(const TQORComplex& z1, const TQORComplex& z2);
TQORComplex ComplexDivide(const TQORComplex& z1, const TQORComplex& z2);
TQORComplex ComplexInvert(const TQORComplex& z);
Extended ComplexDotProduct(const TQORComplex& z1, const TQORComplex& z2);
Extended ComplexCrossProduct(const TQORComplex& z1, const TQORComplex& z2);

// Exact comparisons.
bool ComplexIsZero(const TQORComplex& z);
bool ComplexIsUnity(const TQORComplex& z);
bool ComplexEqual(const TQORComplex& z1, const TQORComplex& z2);
// Comparisons within the base tolerance (FloatIsZero, SameFloat).
bool ComplexIsNearZero(const TQORComplex& z);
bool ComplexIsNearUnity(const TQORComplex& z);
bool ComplexNearEqual(const TQORComplex& z1, const TQORComplex& z2);

TQORComplex ComplexSqr(const TQORComplex& z);
TQORComplex ComplexPower(const TQORComplex& z, std::uint32_t N);
// The principal square root; the two-result form also gives the other root.
TQORComplex ComplexSqrt(const TQORComplex& z);
void ComplexSqrt(const TQORComplex& z, TQORComplex& Root1, TQORComplex& Root2);
// The N N-th roots, the first at ComplexAmp(z) / N, then counter-clockwise. N = 0 gives none.
TQORComplexVector ComplexRoots(const TQORComplex& z, std::uint32_t N);

TQORComplex ComplexExp(const TQORComplex& z);
TQORComplex ComplexLn(const TQORComplex& z);
TQORComplex ComplexLog2(const TQORComplex& z);
TQORComplex ComplexLog10(const TQORComplex& z);
// z1 raised to z2.
TQORComplex ComplexXtoY(const TQORComplex& z1, const TQORComplex& z2);

TQORComplex ComplexSin(const TQORComplex& z);
TQORComplex ComplexCos(const TQORComplex& z);
TQORComplex ComplexTan(const TQORComplex& z);
TQORComplex ComplexCot(const TQORComplex& z);
TQORComplex ComplexSec(const TQORComplex& z);
TQORComplex ComplexCosec(const TQORComplex& z);
TQORComplex ComplexArcSin(const TQORComplex& z);
TQORComplex ComplexArcCos(const TQORComplex& z);
TQORComplex ComplexArcTan(const TQORComplex& z);
TQORComplex ComplexArcCot(const TQORComplex& z);
TQORComplex ComplexArcSec(const TQORComplex& z);
TQORComplex ComplexArcCosec(const TQORComplex& z);

TQORComplex ComplexSinh(const TQORComplex& z);
TQORComplex ComplexCosh(const TQORComplex& z);
TQORComplex ComplexTanh(const TQORComplex& z);
TQORComplex ComplexCoth(const TQORComplex& z);
TQORComplex ComplexSech(const TQORComplex& z);
TQORComplex ComplexCosech(const TQORComplex& z);
TQORComplex ComplexArSinh(const TQORComplex& z);
TQORComplex ComplexArCosh(const TQORComplex& z);
TQORComplex ComplexArCosech(const TQORComplex& z);
TQORComplex ComplexArSech(const TQORComplex& z);
TQORComplex ComplexArTanh(const TQORComplex& z);
TQORComplex ComplexArCoth(const TQORComplex& z);

// "3 + i4", "3 - i4": the imaginary part is written without its sign after " + i" / " - i".
std::string Complex2XYStr(const TQORComplex& z, std::uint8_t Decimals);
// "(3, -4)".
std::string Complex2PairStr(const TQORComplex& z, std::uint8_t Decimals);
// "(modulus, amplitude)", the amplitude in radians.
std::string Complex2PolarStr(const TQORComplex& z, std::uint8_t Decimals);

// Solves A x^2 + B x + C = 0. Returns the number of distinct roots, 1 or 2; a single root is
// stored in both X1 and X2. A and B both near zero raise EMathError with rsNotDefinedForValue.
std::uint8_t SolveQuadratic(Extended A, Extended B, Extended C, TQORComplex& X1, TQORComplex& X2);

} // namespace qorkit
