// qorcalc complex: one operation on one or two complex numbers, or the roots of a quadratic.
#include "QORKITComplex.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <ostream>
#include <string>
#include <vector>

namespace {

using qorkit::TQORComplex;

// "RE,IM" or a bare real number.
TQORComplex ParseComplex(const std::string& text)
{
    const auto comma = text.find(',');
    if (comma == std::string::npos)
        return {qorkit::Str2Float(text), 0};
    return {qorkit::Str2Float(text.substr(0, comma)), qorkit::Str2Float(text.substr(comma + 1))};
}

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
    const auto decimals = static_cast<std::uint8_t>(qorkit::Str2Int(decimalsText) & 0xFF);
    if (args.empty()) {
        err << "qorcalc complex: expected OP and operands (see qorcalc complex --help)\n";
        return 2;
    }
    const std::string& op = args[0];
    if (op == "quadratic" && args.size() == 4) {
        TQORComplex x1, x2;
        const int n = qorkit::SolveQuadratic(qorkit::Str2Float(args[1]), qorkit::Str2Float(args[2]),
                                             qorkit::Str2Float(args[3]), x1, x2);
        out << n << (n == 1 ? " root\n" : " roots\n");
        Print(out, x1, decimals);
        if (n == 2)
            Print(out, x2, decimals);
        return 0;
    }
    if (op == "roots" && args.size() == 3) {
        const auto roots = qorkit::ComplexRoots(
            ParseComplex(args[1]), static_cast<std::uint32_t>(qorkit::Str2Int(args[2])));
        for (const auto& root : roots)
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
    err << "qorcalc complex: unknown operation or wrong operand count: " << op << '\n';
    return 2;
}

const bool registered = qorcalc::RegisterCommand(
    {"complex",
     "OP Z [Z2] [--decimals N]   (Z = RE,IM; OP = add sub mul div pow, sqrt exp ln sin arctanh "
     "..., "
     "roots Z N, quadratic A B C)",
     "complex arithmetic and functions, N-th roots, quadratic equations", RunComplex});

} // namespace
