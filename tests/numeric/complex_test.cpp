// Complex functions against long-double std::complex, and hand-worked cases.
#include "QORKITComplex.h"
#include "QORKITExceptions.h"
#include "QORKITResource.h"
#include "QorkitTestSupport.h"

#include <complex>
#include <numbers>
#include <string>

namespace qorkit {
namespace {

using StdComplex = std::complex<long double>;
constexpr Extended kPi = std::numbers::pi_v<Extended>;

StdComplex ToStd(const TQORComplex& z) { return {z.Real, z.Imaginary}; }

void ExpectNear(const TQORComplex& actual, StdComplex expected, const std::string& what)
{
    const long double scale = expected == StdComplex {} ? 1 : std::abs(expected);
    EXPECT_LT(std::abs(ToStd(actual) - expected) / scale, 1e-15L)
        << what << ": got " << actual.Real << " + " << actual.Imaginary << "i, expected "
        << expected.real() << " + " << expected.imag() << "i";
}

const TQORComplex kPoints[] = {{0.5L, 0.3L}, {-1.2L, 0.7L}, {2, -1.5L}, {-0.4L, -0.9L}};

struct FunctionRow {
    const char* name;
    TQORComplex (*model)(const TQORComplex&);
    StdComplex (*oracle)(StdComplex);
};

class ComplexFunctions : public ::testing::TestWithParam<FunctionRow> { };

// Functions without branch cuts at the sample points: the values themselves must agree.
TEST_P(ComplexFunctions, MatchStdComplex)
{
    for (const auto& z : kPoints)
        ExpectNear(GetParam().model(z), GetParam().oracle(ToStd(z)), GetParam().name);
}

const StdComplex kOne {1, 0};

INSTANTIATE_TEST_SUITE_P(
    Direct, ComplexFunctions,
    ::testing::Values(
        FunctionRow {"Exp", ComplexExp, [](StdComplex z) { return std::exp(z); }},
        FunctionRow {"Sqr", ComplexSqr, [](StdComplex z) { return z * z; }},
        FunctionRow {"Sin", ComplexSin, [](StdComplex z) { return std::sin(z); }},
        FunctionRow {"Cos", ComplexCos, [](StdComplex z) { return std::cos(z); }},
        FunctionRow {"Tan", ComplexTan, [](StdComplex z) { return std::tan(z); }},
        FunctionRow {"Cot", ComplexCot, [](StdComplex z) { return kOne / std::tan(z); }},
        FunctionRow {"Sec", ComplexSec, [](StdComplex z) { return kOne / std::cos(z); }},
        FunctionRow {"Cosec", ComplexCosec, [](StdComplex z) { return kOne / std::sin(z); }},
        FunctionRow {"Sinh", ComplexSinh, [](StdComplex z) { return std::sinh(z); }},
        FunctionRow {"Cosh", ComplexCosh, [](StdComplex z) { return std::cosh(z); }},
        FunctionRow {"Tanh", ComplexTanh, [](StdComplex z) { return std::tanh(z); }},
        FunctionRow {"Coth", ComplexCoth, [](StdComplex z) { return kOne / std::tanh(z); }},
        FunctionRow {"Sech", ComplexSech, [](StdComplex z) { return kOne / std::cosh(z); }},
        FunctionRow {"Cosech", ComplexCosech, [](StdComplex z) { return kOne / std::sinh(z); }},
        FunctionRow {"Invert", ComplexInvert, [](StdComplex z) { return kOne / z; }}),
    [](const auto& p) { return std::string(p.param.name); });

// Logarithms and inverse functions take the amplitude in [0, 2 pi), so their branch differs
// from std::complex's: check that the function undoes its forward function instead.
class InverseFunctions : public ::testing::TestWithParam<FunctionRow> { };

TEST_P(InverseFunctions, UndoTheForwardFunction)
{
    for (const auto& z : kPoints) {
        const StdComplex w = GetParam().oracle(ToStd(GetParam().model(z)));
        ExpectNear(TQORComplex {w.real(), w.imag()}, ToStd(z), GetParam().name);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Inverse, InverseFunctions,
    ::testing::Values(
        FunctionRow {"Ln", ComplexLn, [](StdComplex w) { return std::exp(w); }},
        FunctionRow {"Log10", ComplexLog10, [](StdComplex w) { return std::pow(10.0L, w); }},
        FunctionRow {"Log2", ComplexLog2, [](StdComplex w) { return std::pow(2.0L, w); }},
        FunctionRow {"Sqrt", ComplexSqrt, [](StdComplex w) { return w * w; }},
        FunctionRow {"ArcSin", ComplexArcSin, [](StdComplex w) { return std::sin(w); }},
        FunctionRow {"ArcCos", ComplexArcCos, [](StdComplex w) { return std::cos(w); }},
        FunctionRow {"ArcTan", ComplexArcTan, [](StdComplex w) { return std::tan(w); }},
        FunctionRow {"ArcCot", ComplexArcCot, [](StdComplex w) { return kOne / std::tan(w); }},
        FunctionRow {"ArcSec", ComplexArcSec, [](StdComplex w) { return kOne / std::cos(w); }},
        FunctionRow {"ArcCosec", ComplexArcCosec, [](StdComplex w) { return kOne / std::sin(w); }},
        FunctionRow {"ArSinh", ComplexArSinh, [](StdComplex w) { return std::sinh(w); }},
        FunctionRow {"ArCosh", ComplexArCosh, [](StdComplex w) { return std::cosh(w); }},
        FunctionRow {"ArTanh", ComplexArTanh, [](StdComplex w) { return std::tanh(w); }},
        FunctionRow {"ArCoth", ComplexArCoth, [](StdComplex w) { return kOne / std::tanh(w); }},
        FunctionRow {"ArSech", ComplexArSech, [](StdComplex w) { return kOne / std::cosh(w); }},
        FunctionRow {"ArCosech", ComplexArCosech,
                     [](StdComplex w) { return kOne / std::sinh(w); }}),
    [](const auto& p) { return std::string(p.param.name); });

TEST(ComplexLn, ImaginaryPartIsTheAmplitude)
{
    const TQORComplex ln = ComplexLn({-1, -1});
    EXPECT_NEAR(static_cast<double>(ln.Imaginary), static_cast<double>(5 * kPi / 4), 1e-15);
    EXPECT_NEAR(static_cast<double>(ln.Real), std::log(std::sqrt(2.0)), 1e-15);
    const TQORComplex z1 {1.5L, -0.5L}, z2 {0.3L, 0.8L};
    ExpectNear(ComplexXtoY(z1, z2),
               std::exp(ToStd(z2) * (std::log(ToStd(z1)) + StdComplex(0, 2 * kPi))), "XtoY");
}

TEST(ComplexAmp, QuadrantsAndAxes)
{
    const struct {
        TQORComplex z;
        Extended amp;
    } rows[] = {{{0, 0}, 0},
                {{2, 0}, 0},
                {{0, 3}, kPi / 2},
                {{-1, 0}, kPi},
                {{0, -1}, 3 * kPi / 2},
                {{1, 1}, kPi / 4},
                {{-1, 1}, 3 * kPi / 4},
                {{-1, -1}, 5 * kPi / 4},
                {{1, -1}, 7 * kPi / 4}};
    for (const auto& row : rows)
        EXPECT_NEAR(static_cast<double>(ComplexAmp(row.z)), static_cast<double>(row.amp), 1e-15)
            << row.z.Real << " " << row.z.Imaginary;
    EXPECT_EQ(Polar2Complex(-2, 0), (TQORComplex {2, 0}));
    ExpectNear(Polar2Complex(2, kPi / 6), {std::sqrt(3.0L), 1}, "Polar2Complex");
}

TEST(ComplexPowersAndRoots, HandWorkedValues)
{
    TQORComplex r1, r2;
    ComplexSqrt({-4, 0}, r1, r2);
    ExpectNear(r1, {0, 2}, "Root1");
    ExpectNear(r2, {0, -2}, "Root2");
    ExpectNear(ComplexSqrt({-4, 0}), {0, 2}, "principal root");
    ExpectNear(ComplexPower({1, 1}, 8), {16, 0}, "(1+i)^8");
    ExpectNear(ComplexPower({3, 4}, 0), {1, 0}, "z^0");

    const TQORComplexVector fourth = ComplexRoots({1, 0}, 4);
    ASSERT_EQ(fourth.size(), 4u);
    const StdComplex expected[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    for (std::size_t k = 0; k < 4; ++k)
        ExpectNear(fourth[k], expected[k], "fourth root " + std::to_string(k));
    const TQORComplexVector cube = ComplexRoots({-8, 0}, 3);
    ASSERT_EQ(cube.size(), 3u);
    ExpectNear(cube[0], {1, std::sqrt(3.0L)}, "first cube root");
    for (const auto& root : cube)
        ExpectNear(ComplexMultiply(ComplexSqr(root), root), {-8, 0}, "cube root cubed");
    EXPECT_TRUE(ComplexRoots({5, 1}, 0).empty());
}

TEST(ComplexArithmetic, ProductsComparisonsAndText)
{
    const TQORComplex a {3, -4}, b {1, 2};
    EXPECT_EQ(ComplexMultiply(a, b), (TQORComplex {11, 2}));
    EXPECT_EQ(ComplexDivide({11, 2}, b), a);
    EXPECT_EQ(ComplexAdd(a, b), (TQORComplex {4, -2}));
    EXPECT_EQ(ComplexSubtract(a, b), (TQORComplex {2, -6}));
    EXPECT_EQ(ComplexMultiplyByScalar(a, -2), (TQORComplex {-6, 8}));
    EXPECT_EQ(ComplexConjugate(a), (TQORComplex {3, 4}));
    EXPECT_EQ(ComplexNegative(a), (TQORComplex {-3, 4}));
    EXPECT_EQ(ComplexDotProduct(a, b), -5);
    EXPECT_EQ(ComplexCrossProduct(a, b), 10);
    EXPECT_EQ(ComplexAbs(a), 5);
    EXPECT_EQ(GetRealPortion(a), 3);
    EXPECT_EQ(GetImaginaryPortion(a), -4);

    EXPECT_TRUE(ComplexIsZero(ComplexZero));
    EXPECT_FALSE(ComplexIsZero({1e-300L, 0}));
    EXPECT_TRUE(ComplexIsNearZero({1e-16L, -1e-16L}));
    EXPECT_TRUE(ComplexIsUnity(ComplexUnity));
    EXPECT_FALSE(ComplexIsUnity({1, 1e-30L}));
    EXPECT_TRUE(ComplexIsNearUnity({1 + 1e-16L, 1e-17L}));
    EXPECT_TRUE(ComplexEqual(a, {3, -4}));
    EXPECT_FALSE(ComplexEqual(a, {3, -4.0000001L}));
    EXPECT_TRUE(ComplexNearEqual({1e6L, 1}, {1e6L + 1e-10L, 1}));

    EXPECT_EQ(Complex2XYStr(a, 2), "3.00 - i4.00");
    EXPECT_EQ(Complex2XYStr({2, 0}, 1), "2.0 + i0.0");
    EXPECT_EQ(Complex2XYStr({2, -0.5L}, 1), "2.0 - i0.5");
    EXPECT_EQ(Complex2PairStr(a, 1), "(3.0, -4.0)");
    EXPECT_EQ(Complex2PolarStr({3, 4}, 4), "(5.0000, 0.9273)");
}

TEST(ComplexFailures, ZeroDivisorsLogOfZeroAndOverflowRaise)
{
    try {
        ComplexDivide(ComplexUnity, ComplexZero);
        FAIL() << "no exception";
    } catch (const EMathError& e) {
        EXPECT_EQ(e.what(), rsCDivideByZero());
    }
    EXPECT_THROW(ComplexInvert(ComplexZero), EMathError);
    EXPECT_THROW(ComplexArTanh(ComplexUnity), EMathError);
    EXPECT_THROW(ComplexArcSec(ComplexZero), EMathError);
    EXPECT_THROW(ComplexLn(ComplexZero), EMathError);
    EXPECT_THROW(ComplexExp({20000, 0}), EMathError);
    EXPECT_THROW(ComplexMultiply({1e4000L, 1}, {1e4000L, 0}), EMathError);
    EXPECT_THROW(ComplexSinh({1e6L, 0}), EMathError);
}

struct QuadraticRow {
    const char* name;
    Extended a, b, c;
    std::uint8_t count;
    TQORComplex x1, x2;
};

class Quadratic : public ::testing::TestWithParam<QuadraticRow> { };

TEST_P(Quadratic, RootsAndCount)
{
    const auto& row = GetParam();
    TQORComplex x1 {9, 9}, x2 {9, 9};
    EXPECT_EQ(SolveQuadratic(row.a, row.b, row.c, x1, x2), row.count);
    ExpectNear(x1, ToStd(row.x1), "X1");
    ExpectNear(x2, ToStd(row.x2), "X2");
}

INSTANTIATE_TEST_SUITE_P(
    Equations, Quadratic,
    ::testing::Values(QuadraticRow {"TwoReal", 1, -3, 2, 2, {2, 0}, {1, 0}},
                      QuadraticRow {"NegativeB", 2, 3, -2, 2, {-2, 0}, {0.5L, 0}},
                      QuadraticRow {"DoubleRoot", 1, 2, 1, 1, {-1, 0}, {-1, 0}},
                      QuadraticRow {"Imaginary", 1, 0, 1, 2, {0, 1}, {0, -1}},
                      QuadraticRow {"ComplexPair", 1, 2, 5, 2, {-1, 2}, {-1, -2}},
                      QuadraticRow {"Linear", 0, 2, -4, 1, {2, 0}, {2, 0}},
                      QuadraticRow {"NoCancellation", 1, -1e10L, 1, 2, {1e10L, 0}, {1e-10L, 0}}),
    [](const auto& p) { return std::string(p.param.name); });

TEST(QuadraticFailure, NoUnknownLeftIsNotDefined)
{
    TQORComplex x1 {9, 9}, x2 {9, 9};
    try {
        SolveQuadratic(0, 1e-20L, 3, x1, x2);
        FAIL() << "no exception";
    } catch (const EMathError& e) {
        EXPECT_EQ(e.what(), rsNotDefinedForValue());
    }
    EXPECT_EQ(x1, ComplexZero);
}

} // namespace
} // namespace qorkit
