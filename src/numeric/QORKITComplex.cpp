#include "QORKITComplex.h"

#include "QORKITConstants.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"
#include "QORKITStrings.h"

#include <cmath>
#include <numbers>

namespace qorkit {

namespace {

constexpr Extended kLn2 = std::numbers::ln2_v<Extended>;
constexpr Extended kLn10 = std::numbers::ln10_v<Extended>;

// Every result leaves through here, so overflow surfaces as EOverflow instead of infinity.
TQORComplex Checked(Extended re, Extended im) { return {CheckFloat(re), CheckFloat(im)}; }

[[noreturn]] void RaiseComplexZeroDivide() { throw EZeroDivide(rsCDivideByZero()); }

// The divisor 2i of the sine and the inverse tangents.
TQORComplex TwoI() { return ComplexMultiplyByScalar(ComplexI, 2); }

// z*z through the general product, as the defining formulas write it.
TQORComplex Square(const TQORComplex& z) { return ComplexMultiply(z, z); }

// sqrt(1 - z*z) and sqrt(z*z +/- 1), the radicals of the inverse functions.
TQORComplex RootOneMinusSquare(const TQORComplex& z)
{
    return ComplexSqrt(ComplexSubtract(ComplexUnity, Square(z)));
}
TQORComplex RootSquareMinusOne(const TQORComplex& z)
{
    return ComplexSqrt(ComplexSubtract(Square(z), ComplexUnity));
}
TQORComplex RootSquarePlusOne(const TQORComplex& z)
{
    return ComplexSqrt(ComplexAdd(Square(z), ComplexUnity));
}

// Ln(w) / i and Ln(w) / (2i), the tails of the inverse circular functions.
TQORComplex LnOverI(const TQORComplex& w) { return ComplexDivide(ComplexLn(w), ComplexI); }
TQORComplex LnOverTwoI(const TQORComplex& w) { return ComplexDivide(ComplexLn(w), TwoI()); }
// Ln(w) * 0.5, the tail of the inverse hyperbolic tangent and cotangent.
TQORComplex HalfLn(const TQORComplex& w) { return ComplexMultiplyByScalar(ComplexLn(w), 0.5L); }

// e^w - e^-w or e^w + e^-w: the numerators of sin, cos, sinh and cosh.
TQORComplex ExpPair(const TQORComplex& w, bool subtract)
{
    const TQORComplex plus = ComplexExp(w);
    const TQORComplex minus = ComplexExp(ComplexNegative(w));
    return subtract ? ComplexSubtract(plus, minus) : ComplexAdd(plus, minus);
}

TQORComplex TimesI(const TQORComplex& z) { return ComplexMultiply(ComplexI, z); }

std::string Text(Extended value, std::uint8_t decimals) { return Float2EStr(value, decimals); }

} // namespace

TQORComplex MakeComplex(Extended Re, Extended Im) { return {Re, Im}; }
Extended GetRealPortion(const TQORComplex& z) { return z.Real; }
Extended GetImaginaryPortion(const TQORComplex& z) { return z.Imaginary; }

Extended ComplexAbs(const TQORComplex& z) { return AbsXY(z.Real, z.Imaginary); }

Extended ComplexAmp(const TQORComplex& z)
{
    const Extended a = z.Real;
    const Extended b = z.Imaginary;
    if (a == 0) {
        if (b > 0)
            return QORPi / 2;
        if (b < 0)
            return QORPi * 3 / 2;
        return 0;
    }
    if (b == 0)
        return a < 0 ? QORPi : 0;
    // A quotient beyond the extended range is a vertical direction: arctan gives +-pi/2.
    const Extended q = b / a;
    const Extended t = std::isfinite(q) ? QORArcTan(q) : std::copysign(QORPi / 2, q);
    if (t < 0)
        return b < 0 ? t + TwoPi : t + QORPi;
    return b < 0 ? t + QORPi : t;
}

TQORComplex Polar2Complex(Extended Modulus, Extended Angle)
{
    Extended s = 0;
    Extended c = 0;
    QORSinCos(Angle, s, c);
    const Extended r = std::fabs(Modulus);
    return Checked(r * c, r * s);
}

TQORComplex ComplexConjugate(const TQORComplex& z) { return {z.Real, z.Imaginary * -1}; }
TQORComplex ComplexNegative(const TQORComplex& z) { return {z.Real * -1, z.Imaginary * -1}; }

TQORComplex ComplexAdd(const TQORComplex& z1, const TQORComplex& z2)
{
    return Checked(z1.Real + z2.Real, z1.Imaginary + z2.Imaginary);
}

TQORComplex ComplexSubtract(const TQORComplex& z1, const TQORComplex& z2)
{
    return Checked(z1.Real - z2.Real, z1.Imaginary - z2.Imaginary);
}

TQORComplex ComplexMultiplyByScalar(const TQORComplex& z, Extended X)
{
    return Checked(z.Real * X, z.Imaginary * X);
}

TQORComplex ComplexMultiply(const TQORComplex& z1, const TQORComplex& z2)
{
    const Extended a = z1.Real, b = z1.Imaginary, c = z2.Real, d = z2.Imaginary;
    return Checked(a * c - b * d, a * d + b * c);
}

TQORComplex ComplexDivide(const TQORComplex& z1, const TQORComplex& z2)
{
    const Extended a = z1.Real, b = z1.Imaginary, c = z2.Real, d = z2.Imaginary;
    const Extended den = c * c + d * d;
    if (den == 0)
        RaiseComplexZeroDivide();
    return Checked((a * c + b * d) / den, (b * c - a * d) / den);
}

TQORComplex ComplexInvert(const TQORComplex& z)
{
    const Extended a = z.Real, b = z.Imaginary;
    const Extended den = a * a + b * b;
    if (den == 0)
        RaiseComplexZeroDivide();
    return Checked(a / den, -(b / den));
}

Extended ComplexDotProduct(const TQORComplex& z1, const TQORComplex& z2)
{
    return CheckFloat(z1.Real * z2.Real + z1.Imaginary * z2.Imaginary);
}

Extended ComplexCrossProduct(const TQORComplex& z1, const TQORComplex& z2)
{
    return CheckFloat(z1.Real * z2.Imaginary - z2.Real * z1.Imaginary);
}

bool ComplexIsZero(const TQORComplex& z) { return z.Real == 0 && z.Imaginary == 0; }
bool ComplexIsUnity(const TQORComplex& z) { return z.Real == 1 && z.Imaginary == 0; }
bool ComplexEqual(const TQORComplex& z1, const TQORComplex& z2)
{
    return z1.Real == z2.Real && z1.Imaginary == z2.Imaginary;
}

bool ComplexIsNearZero(const TQORComplex& z)
{
    return FloatIsZero(z.Real) && FloatIsZero(z.Imaginary);
}

bool ComplexIsNearUnity(const TQORComplex& z)
{
    return FloatIsZero(std::fabs(z.Real - 1)) && FloatIsZero(z.Imaginary);
}

bool ComplexNearEqual(const TQORComplex& z1, const TQORComplex& z2)
{
    return SameFloat(z1.Real, z2.Real) && SameFloat(z1.Imaginary, z2.Imaginary);
}

TQORComplex ComplexSqr(const TQORComplex& z)
{
    const Extended a = z.Real, b = z.Imaginary;
    return Checked(a * a - b * b, 2 * a * b);
}

TQORComplex ComplexPower(const TQORComplex& z, std::uint32_t N)
{
    const auto n = static_cast<Extended>(N);
    return Polar2Complex(XtoY(ComplexAbs(z), n), ComplexAmp(z) * n);
}

TQORComplex ComplexSqrt(const TQORComplex& z)
{
    return Polar2Complex(QORSqrt(ComplexAbs(z)), ComplexAmp(z) / 2);
}

void ComplexSqrt(const TQORComplex& z, TQORComplex& Root1, TQORComplex& Root2)
{
    const Extended r = QORSqrt(ComplexAbs(z));
    const Extended half = ComplexAmp(z) / 2;
    Root1 = Polar2Complex(r, half);
    Root2 = Polar2Complex(r, half + QORPi);
}

TQORComplexVector ComplexRoots(const TQORComplex& z, std::uint32_t N)
{
    TQORComplexVector roots;
    if (N == 0) // there is no 0-th root: nothing to list
        return roots;
    const auto n = static_cast<Extended>(N);
    const Extended r = XtoY(ComplexAbs(z), 1 / n);
    const Extended a0 = ComplexAmp(z) / n;
    const Extended step = TwoPi / n;
    roots.reserve(N);
    for (std::uint32_t k = 0; k < N; ++k)
        roots.push_back(Polar2Complex(r, static_cast<Extended>(k) * step + a0));
    return roots;
}

TQORComplex ComplexExp(const TQORComplex& z) { return Polar2Complex(QORExp(z.Real), z.Imaginary); }

TQORComplex ComplexLn(const TQORComplex& z)
{
    // ln |z| as ln 2 * log2 |z|: the binary logarithm is the exact one of the x87 unit.
    return Checked(kLn2 * QORLog2(ComplexAbs(z)), ComplexAmp(z));
}

TQORComplex ComplexLog2(const TQORComplex& z)
{
    return ComplexMultiplyByScalar(ComplexLn(z), 1 / kLn2);
}

TQORComplex ComplexLog10(const TQORComplex& z)
{
    return ComplexMultiplyByScalar(ComplexLn(z), 1 / kLn10);
}

TQORComplex ComplexXtoY(const TQORComplex& z1, const TQORComplex& z2)
{
    return ComplexExp(ComplexMultiply(z2, ComplexLn(z1)));
}

TQORComplex ComplexSin(const TQORComplex& z)
{
    return ComplexDivide(ExpPair(TimesI(z), true), MakeComplex(0, 2));
}

TQORComplex ComplexCos(const TQORComplex& z)
{
    return ComplexMultiplyByScalar(ExpPair(TimesI(z), false), 0.5L);
}

TQORComplex ComplexTan(const TQORComplex& z) { return ComplexDivide(ComplexSin(z), ComplexCos(z)); }
TQORComplex ComplexCot(const TQORComplex& z) { return ComplexDivide(ComplexCos(z), ComplexSin(z)); }
TQORComplex ComplexSec(const TQORComplex& z) { return ComplexInvert(ComplexCos(z)); }
TQORComplex ComplexCosec(const TQORComplex& z) { return ComplexInvert(ComplexSin(z)); }

TQORComplex ComplexArcSin(const TQORComplex& z)
{
    return LnOverI(ComplexAdd(TimesI(z), RootOneMinusSquare(z)));
}

TQORComplex ComplexArcCos(const TQORComplex& z)
{
    return LnOverI(ComplexAdd(z, RootSquareMinusOne(z)));
}

TQORComplex ComplexArcTan(const TQORComplex& z)
{
    const TQORComplex iz = TimesI(z);
    return LnOverTwoI(
        ComplexDivide(ComplexAdd(ComplexUnity, iz), ComplexSubtract(ComplexUnity, iz)));
}

TQORComplex ComplexArcCot(const TQORComplex& z)
{
    return LnOverTwoI(ComplexDivide(ComplexAdd(z, ComplexI), ComplexSubtract(z, ComplexI)));
}

TQORComplex ComplexArcSec(const TQORComplex& z)
{
    return LnOverI(ComplexDivide(ComplexAdd(ComplexUnity, RootOneMinusSquare(z)), z));
}

TQORComplex ComplexArcCosec(const TQORComplex& z)
{
    return LnOverI(ComplexDivide(ComplexAdd(ComplexI, RootSquareMinusOne(z)), z));
}

TQORComplex ComplexSinh(const TQORComplex& z)
{
    return ComplexMultiplyByScalar(ExpPair(z, true), 0.5L);
}

TQORComplex ComplexCosh(const TQORComplex& z)
{
    return ComplexMultiplyByScalar(ExpPair(z, false), 0.5L);
}

TQORComplex ComplexTanh(const TQORComplex& z)
{
    return ComplexDivide(ComplexSinh(z), ComplexCosh(z));
}

TQORComplex ComplexCoth(const TQORComplex& z)
{
    return ComplexDivide(ComplexCosh(z), ComplexSinh(z));
}

TQORComplex ComplexSech(const TQORComplex& z) { return ComplexInvert(ComplexCosh(z)); }
TQORComplex ComplexCosech(const TQORComplex& z) { return ComplexInvert(ComplexSinh(z)); }

TQORComplex ComplexArSinh(const TQORComplex& z)
{
    return ComplexLn(ComplexAdd(z, RootSquarePlusOne(z)));
}

TQORComplex ComplexArCosh(const TQORComplex& z)
{
    return ComplexLn(ComplexAdd(z, RootSquareMinusOne(z)));
}

TQORComplex ComplexArCosech(const TQORComplex& z)
{
    return ComplexLn(ComplexDivide(ComplexAdd(ComplexUnity, RootSquarePlusOne(z)), z));
}

TQORComplex ComplexArSech(const TQORComplex& z)
{
    return ComplexLn(ComplexDivide(ComplexAdd(ComplexUnity, RootOneMinusSquare(z)), z));
}

TQORComplex ComplexArTanh(const TQORComplex& z)
{
    return HalfLn(ComplexDivide(ComplexAdd(ComplexUnity, z), ComplexSubtract(ComplexUnity, z)));
}

TQORComplex ComplexArCoth(const TQORComplex& z)
{
    return HalfLn(ComplexDivide(ComplexAdd(z, ComplexUnity), ComplexSubtract(z, ComplexUnity)));
}

std::string Complex2XYStr(const TQORComplex& z, std::uint8_t Decimals)
{
    if (z.Imaginary < 0)
        return Text(z.Real, Decimals) + " - i" + Text(z.Imaginary * -1, Decimals);
    return Text(z.Real, Decimals) + " + i" + Text(z.Imaginary, Decimals);
}

std::string Complex2PairStr(const TQORComplex& z, std::uint8_t Decimals)
{
    return "(" + Text(z.Real, Decimals) + ", " + Text(z.Imaginary, Decimals) + ")";
}

std::string Complex2PolarStr(const TQORComplex& z, std::uint8_t Decimals)
{
    return "(" + Text(ComplexAbs(z), Decimals) + ", " + Text(ComplexAmp(z), Decimals) + ")";
}

std::uint8_t SolveQuadratic(Extended A, Extended B, Extended C, TQORComplex& X1, TQORComplex& X2)
{
    X1 = ComplexZero;
    X2 = ComplexZero;
    const Extended d = CheckFloat(B * B - A * 4 * C);
    if (FloatIsZero(A)) {
        if (FloatIsZero(B))
            throw EMathError(rsNotDefinedForValue());
        X1.Real = CheckFloat(-C / B);
        X2.Real = X1.Real;
        return 1;
    }
    if (FloatIsZero(d)) {
        X1.Real = CheckFloat((B * -0.5L) / A);
        X2.Real = X1.Real;
        return 1;
    }
    if (FloatIsNegative(d)) {
        const Extended t = 2 * A;
        X1.Real = CheckFloat(-B / t);
        X2.Real = X1.Real;
        X1.Imaginary = CheckFloat(QORSqrt(-d) / t);
        X2.Imaginary = -X1.Imaginary;
        return 2;
    }
    // Two real roots without cancellation: the larger one from the quotient, the other from
    // the product of the roots (C / A).
    const Extended s = QORSqrt(d);
    const Extended q = B >= 0 ? -0.5L * (B + s) : -0.5L * (B - s);
    X1.Real = CheckFloat(q / A);
    X2.Real = CheckFloat(C / q);
    return 2;
}

} // namespace qorkit
