#include "QORKITImperial.h"

#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITStrings.h"

#include <cmath>
#include <limits>

namespace qorkit {

namespace {
constexpr std::string_view kTextContext = "QORKITImperial";
constexpr TResourceText kTexts[] = {QORKIT_IMPERIAL_TEXTS(QORKIT_LIST_TEXT)};

std::int32_t ToInt32(std::int64_t value)
{
    if (value < INT32_MIN || value > INT32_MAX)
        throw EOverflow(rsOverflow());
    return static_cast<std::int32_t>(value);
}

// ratio^|power|: minor units per major unit at the measure's dimension.
Extended RatioPower(const TQORImperial& imp)
{
    return CheckFloat(std::pow(static_cast<Extended>(imp.Ratio),
                               static_cast<Extended>(std::llabs(std::int64_t {imp.Power}))));
}

void CheckRatio(const TQORImperial& imp)
{
    if (imp.Ratio == 0)
        throw EMathError(rsImperialRatioZero());
}

void CheckUnits(const TQORImperial& a, const TQORImperial& b)
{
    CheckRatio(a);
    CheckRatio(b);
    if (a.MajorName != b.MajorName || a.MinorName != b.MinorName)
        throw EMathError(rsImperialDifferentUnits());
}

// A copy of `like` at the given power holding `value`.
TQORImperial WithValue(const TQORImperial& like, std::int64_t power, Extended value)
{
    TQORImperial result = like;
    result.Power = ToInt32(power);
    Float2Imperial(result, value);
    return result;
}

Extended NonZeroDivisor(Extended divisor)
{
    if (FloatIsZero(divisor))
        throw EZeroDivide(rsDivideByZero());
    return divisor;
}
} // namespace

QORKIT_IMPERIAL_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> ImperialTexts() { return kTexts; }

TQORImperial MakeImperial(std::int32_t Major, double Minor, const std::string& MajorName,
                          const std::string& MinorName, const std::string& MajorAbbr,
                          const std::string& MinorAbbr, std::int32_t Ratio, std::int32_t Power)
{
    TQORImperial imp;
    imp.Major = Major;
    imp.Minor = Minor;
    imp.Power = Power;
    imp.Ratio = Ratio;
    imp.MajorName = MajorName;
    imp.MinorName = MinorName;
    imp.MajorAbbr = MajorAbbr;
    imp.MinorAbbr = MinorAbbr;
    CheckRatio(imp);
    AdjustImperial(imp);
    return imp;
}

TQORImperial MakeFeetInches(std::int32_t Feet, double Inches, std::int32_t Power)
{
    return MakeImperial(Feet, Inches, "Feet", "Inches", "ft", "in", 12, Power);
}

TQORImperial MakePoundsOunces(std::int32_t Pounds, double Ounces, std::int32_t Power)
{
    return MakeImperial(Pounds, Ounces, "Pounds", "Ounces", "lb", "oz", 16, Power);
}

Extended Imperial2Float(const TQORImperial& Imp)
{
    CheckRatio(Imp);
    // Powers 0 and 1 both divide the minor count by the ratio once; writing back multiplies a
    // power-0 measure by ratio^0 = 1. That asymmetry is intended.
    const Extended divisor = std::llabs(std::int64_t {Imp.Power}) > 1
        ? RatioPower(Imp)
        : static_cast<Extended>(Imp.Ratio);
    const Extended minor = Extended {Imp.Minor} / divisor;
    const Extended major = Imp.Major;
    return CheckFloat(Imp.Major >= 0 ? major + minor : major - minor);
}

void Float2Imperial(TQORImperial& Imp, Extended Value)
{
    CheckFloat(Value);
    const Extended whole = std::trunc(Value);
    if (std::fabs(whole) > static_cast<Extended>(INT32_MAX))
        throw EOverflow(rsOverflow());
    // The sign lives in Major only, so -0.5 becomes 0 major and a positive minor count: values
    // below one major unit lose their sign, as this representation has always done.
    const Extended minorCount = CheckFloat(std::fabs(Value - whole) * RatioPower(Imp));
    // The minor count is stored as a double: a count beyond its range overflows here, not
    // later when the measure is read back.
    if (minorCount > static_cast<Extended>(std::numeric_limits<double>::max()))
        throw EOverflow(rsOverflow());
    const auto minor = static_cast<double>(minorCount);
    Imp.Major = static_cast<std::int32_t>(whole);
    Imp.Minor = minor;
}

void AdjustImperial(TQORImperial& Imp) { Float2Imperial(Imp, Imperial2Float(Imp)); }

std::string Imperial2Str(const TQORImperial& Imp, std::uint8_t Decimals)
{
    const std::string major = Int2EStr(Imp.Major);
    const std::string minor = Float2EStr(Imp.Minor, Decimals);
    switch (Imp.Power) {
    case 0:
        return major + " " + minor + " (" + rsImperialConst() + ")";
    case 1:
        return major + " " + Imp.MajorName + " " + minor + " " + Imp.MinorName;
    case 2:
        return major + " sq " + Imp.MajorName + " " + minor + " sq " + Imp.MinorName;
    case 3:
        return major + " cu " + Imp.MajorName + " " + minor + " cu " + Imp.MinorName;
    default:
        return major + " " + Imp.MajorName + " " + minor + " " + Imp.MinorName + " ("
            + rsImperialPower() + " = " + Int2EStr(Imp.Power) + ")";
    }
}

TQORImperial AddImperial(const TQORImperial& A, const TQORImperial& B)
{
    CheckRatio(A);
    CheckRatio(B);
    if (A.Power != B.Power)
        throw EMathError(rsImperialDifferentPowers());
    CheckUnits(A, B);
    return WithValue(A, A.Power, Imperial2Float(A) + Imperial2Float(B));
}

TQORImperial SubtractImperial(const TQORImperial& A, const TQORImperial& B)
{
    return AddImperial(A, NegativeImperial(B));
}

TQORImperial MultiplyImperial(const TQORImperial& A, const TQORImperial& B)
{
    CheckUnits(A, B);
    return WithValue(A, std::int64_t {A.Power} + B.Power, Imperial2Float(A) * Imperial2Float(B));
}

TQORImperial DivideImperial(const TQORImperial& A, const TQORImperial& B)
{
    CheckUnits(A, B);
    const Extended divisor = NonZeroDivisor(Imperial2Float(B));
    return WithValue(A, std::int64_t {A.Power} - B.Power, Imperial2Float(A) / divisor);
}

void AddToImperial(TQORImperial& A, const TQORImperial& B) { A = AddImperial(A, B); }
void SubtractFromImperial(TQORImperial& A, const TQORImperial& B) { A = SubtractImperial(A, B); }

TQORImperial MultiplyImperialByConst(const TQORImperial& Imp, Extended C)
{
    return WithValue(Imp, Imp.Power, Imperial2Float(Imp) * C);
}

TQORImperial DivideImperialByConst(const TQORImperial& Imp, Extended C)
{
    return WithValue(Imp, Imp.Power, Imperial2Float(Imp) / NonZeroDivisor(C));
}

void MultiplyImperialByConst2(TQORImperial& Imp, Extended C)
{
    Imp = MultiplyImperialByConst(Imp, C);
}

void DivideImperialByConst2(TQORImperial& Imp, Extended C) { Imp = DivideImperialByConst(Imp, C); }

TQORImperial NegativeImperial(const TQORImperial& Imp)
{
    TQORImperial result = Imp;
    NegativeImperial2(result);
    AdjustImperial(result);
    return result;
}

void NegativeImperial2(TQORImperial& Imp) { Imp.Major = ToInt32(-std::int64_t {Imp.Major}); }

TQORImperial SqrImperial(const TQORImperial& Imp)
{
    const Extended value = Imperial2Float(Imp);
    return WithValue(Imp, std::int64_t {Imp.Power} * 2, value * value);
}

TQORImperial InvImperial(const TQORImperial& Imp)
{
    CheckRatio(Imp);
    TQORImperial one = Imp;
    one.Major = 1;
    one.Minor = 0;
    one.Power = 0;
    return DivideImperial(one, Imp);
}

TQORImperial SqrtImperial(const TQORImperial& Imp)
{
    CheckRatio(Imp);
    if (Imp.Power % 2 != 0)
        throw EMathError(rsImperialOddPowerRoot());
    return WithValue(Imp, Imp.Power / 2, QORSqrt(Imperial2Float(Imp)));
}

} // namespace qorkit
