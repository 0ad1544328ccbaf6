// qorcalc complex: one operation on one or two complex numbers, or the roots of a quadratic.
#include "QORKITComplex.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace {

using qorkit::TQORComplex;

// "RE,IM" or a bare real number. The comma divides the parts, so the parts take no thousands
// separators: "1,2,3" is refused rather than read as 1 + 23i.
TQORComplex ParseComplex(const std::string& text)
{
    const auto comma = text.find(',');
    if (comma == std::string::npos)
        return {qorcalc::ParseNumber(text, "complex number", false), 0};
    if (text.find(',', comma + 1) != std::string::npos)
        throw qorcalc::UsageError("complex number '" + text
                                  + "': expected RE,IM with one comma and no thousands separators");
    return {qorcalc::ParseNumber(text.substr(0, comma), "real part of " + text, false),
            qorcalc::ParseNumber(text.substr(comma + 1), "imaginary part of " + text, false)};
}

// The most roots `complex roots` lists.
constexpr std::int64_t kMaxRoots = 1000;

struct Unary {
    const char* name;
    TQORComplex (*fn)(const TQORComplex&);
};
struct Binary {
    const char* name;
    TQORComplex (*fn)(const TQORComplex&, const TQORComplex&);
};

TQORComplex Sqrt(const TQORComplex& z) { return qorkit::ComplexSqrt(z); }

constexpr Unary kUnary[] = {
    {"conj", qorkit::ComplexConjugate},
    {"neg", qorkit::ComplexNegative},
    {"inv", qorkit::ComplexInvert},
    {"sqr", qorkit::ComplexSqr},
    {"sqrt", Sqrt},
    {"exp", qorkit::ComplexExp},
    {"ln", qorkit::ComplexLn},
    {"log2", qorkit::ComplexLog2},
    {"log10", qorkit::ComplexLog10},
    {"sin", qorkit::ComplexSin},
    {"cos", qorkit::ComplexCos},
    {"tan", qorkit::ComplexTan},
    {"cot", qorkit::ComplexCot},
    {"sec", qorkit::ComplexSec},
    {"cosec", qorkit::ComplexCosec},
    {"arcsin", qorkit::ComplexArcSin},
    {"arccos", qorkit::ComplexArcCos},
    {"arctan", qorkit::ComplexArcTan},
    {"arccot", qorkit::ComplexArcCot},
    {"arcsec", qorkit::ComplexArcSec},
    {"arccosec", qorkit::ComplexArcCosec},
    {"sinh", qorkit::ComplexSinh},
    {"cosh", qorkit::ComplexCosh},
    {"tanh", qorkit::ComplexTanh},
    {"coth", qorkit::ComplexCoth},
    {"sech", qorkit::ComplexSech},
    {"cosech", qorkit::ComplexCosech},
    {"arsinh", qorkit::ComplexArSinh},
    {"arcosh", qorkit::ComplexArCosh},
    {"artanh", qorkit::ComplexArTanh},
    {"arcoth", qorkit::ComplexArCoth},
    {"arsech", qorkit::ComplexArSech},
    {"arcosech", qorkit::ComplexArCosech},
};

// Other spellings of the inverse hyperbolic functions ("arctanh" as well as "artanh").
constexpr std::pair<const char*, const char*> kAliases[] = {
    {"arcsinh", "arsinh"}, {"arccosh", "arcosh"}, {"arctanh", "artanh"},
    {"arccoth", "arcoth"}, {"arcsech", "arsech"}, {"arccosech", "arcosech"},
    {"asinh", "arsinh"},   {"acosh", "arcosh"},   {"atanh", "artanh"},
};

std::string Canonical(const std::string& op)
{
    for (const auto& [alias, name] : kAliases)
        if (op == alias)
            return name;
    return op;
}

constexpr Binary kBinary[] = {
    {"add", qorkit::ComplexAdd},      {"sub", qorkit::ComplexSubtract},
    {"mul", qorkit::ComplexMultiply}, {"div", qorkit::ComplexDivide},
    {"pow", qorkit::ComplexXtoY},
};

void Print(std::ostream& out, const TQORComplex& z, std::uint8_t decimals)
{
    out << qorkit::Complex2XYStr(z, decimals) << "   polar "
        << qorkit::Complex2PolarStr(z, decimals) << '\n';
}

int RunComplex(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    std::string decimalsText = "6";
    qorcalc::TakeOption(args, "--decimals", decimalsText);
    qorcalc::EndOptions(args);
    const auto decimals
        = static_cast<std::uint8_t>(qorcalc::ParseWhole(decimalsText, "--decimals", 0, 30));
    if (args.empty()) {
        err << "qorcalc complex: expected OP and operands (see qorcalc complex --help)\n";
        return 2;
    }
    const std::string op = Canonical(args[0]);
    if (op == "quadratic" && args.size() == 4) {
        TQORComplex x1, x2;
        const int n = qorkit::SolveQuadratic(qorcalc::ParseNumber(args[1], "A"),
                                             qorcalc::ParseNumber(args[2], "B"),
                                             qorcalc::ParseNumber(args[3], "C"), x1, x2);
        out << n << (n == 1 ? " root\n" : " roots\n");
        Print(out, x1, decimals);
        if (n == 2)
            Print(out, x2, decimals);
        return 0;
    }
    if (op == "roots" && args.size() == 3) {
        const TQORComplex z = ParseComplex(args[1]);
        const auto count = qorcalc::ParseWhole(args[2], "the root count N", 1, kMaxRoots);
        for (const auto& root : qorkit::ComplexRoots(z, static_cast<std::uint32_t>(count)))
            Print(out, root, decimals);
        return 0;
    }
    for (const auto& u : kUnary)
        if (op == u.name && args.size() == 2) {
            Print(out, u.fn(ParseComplex(args[1])), decimals);
            return 0;
        }
    for (const auto& b : kBinary)
        if (op == b.name && args.size() == 3) {
            Print(out, b.fn(ParseComplex(args[1]), ParseComplex(args[2])), decimals);
            return 0;
        }
    err << "qorcalc complex: unknown operation or wrong operand count: " << args[0] << '\n';
    return 2;
}

// The usage line names every operation of the tables, so it cannot drift from them.
std::string Usage()
{
    std::string text
        = "OP Z [Z2] [--decimals 0..30]   (Z = RE,IM or a real number)\n  two operands:";
    for (const auto& b : kBinary)
        text += std::string(" ") + b.name;
    text += "\n  one operand:";
    std::size_t count = 0;
    for (const auto& u : kUnary) {
        if (count++ % 11 == 10)
            text += "\n              ";
        text += std::string(" ") + u.name;
    }
    text += "\n  also:";
    for (const auto& [alias, name] : kAliases)
        text += std::string(" ") + alias;
    text += "\n  roots Z N (N from 1 to " + std::to_string(kMaxRoots) + "), quadratic A B C";
    return text;
}

const bool registered = qorcalc::RegisterCommand(
    {"complex", Usage(), "complex arithmetic and functions, N-th roots, quadratic equations",
     RunComplex});

} // namespace
