#include "QORKITCalcEngine.h"

#include "QORKITConstants.h"
#include "QORKITDateTime.h"
#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"
#include "QORKIT_RS_Calc.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <new>

namespace qorkit {

namespace {

using Engine = TQORCalcEngine;
using namespace engine_internal;

constexpr Extended PercentFactor = 0.01L;
constexpr Extended StandardGravity = 9.80665L;

// A binary operator: its code, tape text, result (x lower, y upper operand) and whether a
// zero upper operand is a division by zero.
struct BinaryOperator {
    char Code;
    std::string (*TapeText)();
    Extended (*Apply)(Extended x, Extended y);
    bool ZeroDivisor;
};

constexpr BinaryOperator BinaryOperators[] = {
    {ocAdd, [] { return std::string("+"); }, [](Extended x, Extended y) { return x + y; }, false},
    {ocSubtract, [] { return std::string("-"); }, [](Extended x, Extended y) { return x - y; },
     false},
    {ocMultiply, [] { return std::string("*"); }, [](Extended x, Extended y) { return x * y; },
     false},
    {ocDivide, [] { return std::string("/"); }, [](Extended x, Extended y) { return x / y; }, true},
    {ocPower, rsXpwrYPaper, XtoY, false},
    // The y-th root; a zero index is the reciprocal of zero.
    {ocRoot, rsXpwrInvYPaper, [](Extended x, Extended y) { return XtoY(x, 1.0L / y); }, true},
    {ocModulus, rsFPModPaper, QORMod, true},
    {ocRemainder, rsFPRemPaper, QORRem, true},
    {ocDiv, rsFPDivPaper, QORDiv, true},
    {ocIntDiv, rsFPIntDivPaper, QORIntDiv, true},
    {ocPercent, [] { return std::string("%"); },
     [](Extended x, Extended y) { return x * y * PercentFactor; }, false},
};

// The text of a typed number with its exponent negated: "1E5" -> "1E-5", "1E-05" -> "1E5";
// a zero or missing exponent gives "1E-".
std::string NegateExponent(const std::string& entry, std::size_t ePos)
{
    const std::string head = entry.substr(0, ePos + 1);
    std::string_view exponent = std::string_view(entry).substr(ePos + 1);
    bool negative = false;
    if (!exponent.empty() && (exponent.front() == '-' || exponent.front() == '+')) {
        negative = exponent.front() == '-';
        exponent.remove_prefix(1);
    }
    if (!std::all_of(exponent.begin(), exponent.end(), [](char c) { return c >= '0' && c <= '9'; }))
        throw EConvertError(FormatMessage(rsInvalidInteger(), entry.substr(ePos + 1)));
    const auto first = exponent.find_first_not_of('0');
    if (first == std::string_view::npos)
        return head + "-";
    const std::string digits(exponent.substr(first));
    return negative ? head + digits : head + "-" + digits;
}

// Today's day number (the whole days of the local date-time). The local calendar is read once
// and then trusted until 23 hours after the local midnight it fell in (no day is shorter), so
// that constructing an engine costs a clock reading, not a calendar conversion.
std::int64_t TodayNumber()
{
    using Clock = std::chrono::system_clock;
    static std::int64_t day = 0;
    static Clock::time_point validFrom = Clock::time_point::max();
    static Clock::time_point validUntil = Clock::time_point::min();
    const auto now = Clock::now();
    if (now < validFrom || now >= validUntil) {
        const TDateTime stamp = Now();
        const Extended whole = std::floor(stamp);
        day = static_cast<std::int64_t>(whole);
        const auto sinceMidnight
            = std::chrono::milliseconds(static_cast<std::int64_t>((stamp - whole) * 86'400'000.0L));
        validFrom = std::chrono::time_point_cast<Clock::duration>(now - sinceMidnight);
        validUntil = validFrom + std::chrono::hours(23);
    }
    return day;
}

} // namespace

// ---- Construction, guard and events ------------------------------------------------------

TQORCalcEngine::TQORCalcEngine()
{
    SetDisplayValue("0");
    // Today's day number: the seed changes once a day, by design.
    RandomSeed(static_cast<std::uint64_t>(TodayNumber()));
}

// Runs one operation; see TQORErrorGuard. A fault leaves the engine cleared with "Error!".
template<class Body> void TQORCalcEngine::Guarded(Body&& body)
{
    guard_.Run(std::forward<Body>(body),
               [this](const std::string& message) { HandleError(message); });
}

void TQORCalcEngine::HandleError(const std::string& message)
{
    AllClear();
    SetDisplayValue(rsErrorMsg());
    lastError_ = message;
    AddToHistory(rsPaperErrLine(), false);
    Fire(onError_, this);
    lastOperator_ = ocNone;
}

// ---- Entry and display ---------------------------------------------------------------------

std::string TQORCalcEngine::DisplayValue(Extended Value) const
{
    if (!std::isfinite(Value))
        return rsErrorMsg();
    const Extended magnitude = std::fabs(Value);
    const bool inFixedRange = (sciMin_ < magnitude && magnitude < sciMax_) || Value == 0;
    std::string text;
    if (sciUsage_ && !(sciRange_ && inFixedRange))
        text = SciFloat2EStr(Value, decimalPlaces_);
    else if (thousandsSeparators_)
        text = trimTrailingZeroes_ ? Float2CEStr2(Value, decimalPlaces_, lakhFormatting_)
                                   : Float2CEStr(Value, decimalPlaces_, lakhFormatting_);
    else
        text = trimTrailingZeroes_ ? Float2EStr2(Value, decimalPlaces_)
                                   : Float2EStr(Value, decimalPlaces_);
    // Intended: a longer number is cut on the right, there is no other length check.
    return LeftStr(text, maxDisplayLength_);
}

void TQORCalcEngine::SetDisplayValue(const std::string& S)
{
    // Quiet: the text is kept as given (the error message must still be recognisable).
    displayStr_ = thousandsSeparators_ && !quiet_ ? AddThousandsSeparators(S, lakhFormatting_) : S;
    Fire(onDisplayChange_, this);
}

std::string TQORCalcEngine::ShownValue(Extended Value) const
{
    return quiet_ ? std::string() : DisplayValue(Value);
}

Extended TQORCalcEngine::GetDisplayValue()
{
    if (!entryStr_.empty()) {
        Extended value = 0;
        if (TryStr2Float(StripThousandSeparators(entryStr_), value) && std::isfinite(value))
            return value;
        entryStr_.clear();
        return 0;
    }
    return !operands_.Empty() ? operands_.Top() : 0;
}

Extended TQORCalcEngine::TypedValue() const
{
    return CheckFloat(Str2Float(StripThousandSeparators(entryStr_)));
}

void TQORCalcEngine::Numeric(char Ch)
{
    if (lastOperator_ == ocResult) {
        ClearToggles();
        EmptyStacks();
        entryStr_.clear();
        lastOperator_ = ocNone;
    }
    if (Ch == 'E') { // the letter e: Euler's number
        InputNaturalConstant();
        return;
    }
    // After the exponent key a sign belongs to the exponent; elsewhere it leads the number.
    if ((Ch == '+' || Ch == '-') && lastOperator_ != ocExponent)
        entryStr_.insert(entryStr_.begin(), Ch);
    else
        entryStr_ += Ch;
    engine_internal::CleanSigns(entryStr_);
    SetDisplayValue(entryStr_);
    ClearToggles();
    lastOperator_ = Ch;
}

void TQORCalcEngine::InputDigit(std::int8_t Digit)
{
    if (Digit < 0 || Digit > 9)
        return;
    if (entryStr_ == "0")
        entryStr_.clear();
    Numeric(static_cast<char>('0' + Digit));
    // No leading zeros. The display is deliberately not refreshed here.
    if (entryStr_.find(FormatSettings.DecimalSeparator) == std::string::npos
        && GetDisplayValue() == 0)
        entryStr_ = !entryStr_.empty() && entryStr_.front() == '-' ? "-0" : "0";
}

void TQORCalcEngine::InputDecimalSeparator()
{
    lastOperator_ = ocDecimalSeparator;
    const char separator = FormatSettings.DecimalSeparator;
    if (entryStr_.find(separator) == std::string::npos) {
        if (entryStr_.empty())
            entryStr_ = "0";
        entryStr_ += separator;
    }
    ClearToggles();
    SetDisplayValue(entryStr_);
}

void TQORCalcEngine::InputThousandsSeparator()
{
    lastOperator_ = ocThousandsSeparator;
    if (!entryStr_.empty())
        entryStr_ += FormatSettings.ThousandSeparator;
    ClearToggles();
    SetDisplayValue(entryStr_);
}

void TQORCalcEngine::InputBackspace()
{
    // A computed result cannot be backspaced: only typed text is.
    if (!entryStr_.empty()) {
        entryStr_.pop_back();
        SetDisplayValue(entryStr_);
    }
    ClearToggles();
}

void TQORCalcEngine::DoExp()
{
    if (entryStr_.find('E') != std::string::npos)
        return;
    entryStr_ += 'E';
    SetDisplayValue(entryStr_);
    ClearToggles();
    lastOperator_ = ocExponent;
}

void TQORCalcEngine::DoChangeSign()
{
    Guarded([&] {
        if (!entryStr_.empty()) {
            if (const auto ePos = entryStr_.find('E'); ePos != std::string::npos)
                entryStr_ = NegateExponent(entryStr_, ePos);
            else if (GetDisplayValue() == 0)
                entryStr_ = "-"; // intended: +/- on a typed zero starts a negative entry
            else if (entryStr_.front() == '-')
                entryStr_.erase(0, 1);
            else if (entryStr_.front() == '+')
                entryStr_.front() = '-';
            else
                entryStr_.insert(entryStr_.begin(), '-');
            SetDisplayValue(entryStr_);
        } else {
            // The negated value goes on top; the old operand stays beneath it.
            const Extended top = !operands_.Empty() ? operands_.Top() : 0;
            ShowResult(top * -1);
            AddToHistory("+/-", false);
        }
        lastOperator_ = ocNone;
    });
}

void TQORCalcEngine::ClearDisplay()
{
    ClearToggles();
    lastOperator_ = ocNone;
    entryStr_.clear();
    SetDisplayValue("0");
}

void TQORCalcEngine::AllClear()
{
    ClearToggles();
    EmptyStacks();
    entryStr_.clear();
    SetDisplayValue("0");
    lastError_.clear();
    lastOperator_ = ocNone;
    ClearHistory();
}

void TQORCalcEngine::InputValue(Extended Value)
{
    Guarded([&] {
        ShowResult(Value);
        lastOperator_ = ocNone;
        AddToHistory(displayStr_, false);
    });
}

void TQORCalcEngine::InputString(std::string_view S)
{
    Guarded([&] {
        ShowResult(CheckFloat(Str2Float(S)));
        lastOperator_ = ocNone;
    });
}

void TQORCalcEngine::UpdateValue()
{
    Guarded([&] {
        if (entryStr_.empty())
            return;
        const Extended value = TypedValue();
        Push(value);
        AddToHistory(value);
        entryStr_.clear();
    });
}

void TQORCalcEngine::SetDecimalPlaces(std::uint8_t Value)
{
    if (Value == decimalPlaces_)
        return;
    decimalPlaces_ = Value;
    SetDisplayValue(ShownValue(GetDisplayValue()));
    Fire(onDecimalPlacesChange_, this);
}

void TQORCalcEngine::ClearToggles()
{
    if (!isInv_ && !isHyp_)
        return;
    isInv_ = false;
    isHyp_ = false;
    Fire(onClearToggles_, this);
}

// ---- Stacks --------------------------------------------------------------------------------

void TQORCalcEngine::Push(Extended value) { operands_.Push(CheckFloat(value)); }

void TQORCalcEngine::PushOperandStack(Extended Value)
{
    Guarded([&] { Push(Value); });
}

void TQORCalcEngine::EmptyStacks()
{
    operands_.Clear();
    operators_.Clear();
}

void TQORCalcEngine::ShowTop()
{
    SetDisplayValue(!operands_.Empty() ? ShownValue(operands_.Top()) : std::string("0"));
}

void TQORCalcEngine::ShowResult(Extended value)
{
    value = CheckFloat(value);
    SetDisplayValue(ShownValue(value));
    entryStr_.clear();
    Push(value);
}

// ---- Operators -----------------------------------------------------------------------------

bool TQORCalcEngine::HigherPrecedence(char NewOp, char TopOp) const
{
    static constexpr TQORCodeSet multiplicative {ocModulus, ocRemainder, ocMultiply,
                                                 ocDivide,  ocDiv,       ocIntDiv};
    static constexpr TQORCodeSet tight {ocPercent, ocRoot, ocPower};
    return TopOp == ocLeftBracket || IsUnary(NewOp)
        || (precedence_ && BindsTighter(NewOp, TopOp, multiplicative, tight));
}

bool TQORCalcEngine::IsUnary(char code) const
{
    return kFunctionCodeSet.Contains(code) || (code == ocPercent && !binaryPercent_);
}

void TQORCalcEngine::Arithmetic(char Op)
{
    Guarded([&] {
        // The keys after which + and - are signs.
        static constexpr TQORCodeSet binarySigns {
            ocModulus, ocRemainder, ocLeftBracket, ocMultiply, ocAdd,    ocSubtract,
            ocDivide,  ocRoot,      ocDiv,         ocPower,    ocIntDiv, ocExponent};
        const bool signContext = (entryStr_.empty() && operands_.Empty())
            || binarySigns.Contains(lastOperator_) || IsUnary(lastOperator_);
        if ((Op == ocAdd || Op == ocSubtract) && signContext) {
            Numeric(Op);
            return;
        }
        UpdateValue();
        while (!operators_.Empty() && !HigherPrecedence(Op, operators_.Top()))
            Reduce();
        PushOperatorStack(Op);
        ShowTop();
        const auto* op = FindCode(BinaryOperators, Op);
        AddToHistory(op ? op->TapeText() : std::string(1, Op), true);
        ClearToggles();
        lastOperator_ = Op;
    });
}

void TQORCalcEngine::StackManipulation()
{
    Guarded([&] {
        if (!operators_.Empty())
            Reduce();
    });
}

void TQORCalcEngine::Reduce()
{
    const char code = operators_.Pop();
    if (code == ocPercent && !binaryPercent_) {
        // Percent while it is unary: the top operand becomes that percentage of the operand
        // beneath it.
        if (operands_.Empty())
            throw EMathError(rsInvalidEquation());
        auto& top = operands_.Top();
        top = operands_.Count() >= 2 ? CheckFloat(top * operands_.Below(1) * PercentFactor) : 0;
        return;
    }
    if (const auto* op = FindCode(BinaryOperators, code)) {
        if (operands_.Count() < 2)
            throw EMathError(rsInvalidEquation());
        const Extended y = operands_.Pop();
        const Extended x = operands_.Top();
        if (op->ZeroDivisor && y == 0)
            throw EZeroDivide(rsDivideByZero());
        operands_.Top() = CheckFloat(op->Apply(x, y));
        return;
    }
    if (kFunctionCodeSet.Contains(code))
        ApplyFunction(code);
    // '(' and unknown codes are simply dropped.
}

void TQORCalcEngine::InputLeftBracket()
{
    Guarded([&] {
        // A lone minus before a bracket negates the bracket: -1 * ( ...
        if (entryStr_ == "-") {
            InputDigit(1);
            DoMultiply();
        }
        entryStr_.clear();
        PushOperatorStack(ocLeftBracket);
        ShowTop();
        AddToHistory("(", true);
        lastOperator_ = ocLeftBracket;
    });
}

void TQORCalcEngine::InputRightBracket()
{
    Guarded([&] {
        UpdateValue();
        while (!operators_.Empty() && operators_.Top() != ocLeftBracket)
            Reduce();
        if (!operators_.Empty()) // an unmatched ')' is accepted silently
            operators_.Drop();
        ShowTop();
        AddToHistory(")", false);
        lastOperator_ = ocRightBracket;
    });
}

void TQORCalcEngine::DoResult()
{
    Guarded([&] {
        UpdateValue();
        while (!operators_.Empty()) // unclosed brackets are dropped
            Reduce();
        // Left-over operands are discarded on purpose: the last one is the result.
        operands_.KeepTopOnly();
        if (!operands_.Empty())
            ShowTop();
        else if (displayStr_ != rsErrorMsg())
            SetDisplayValue("0");
        ClearToggles();
    });
}

void TQORCalcEngine::DoEquals()
{
    Guarded([&] {
        DoResult();
        AddToHistory("=", true);
        AddToHistory(displayStr_, false);
        // The result stays on the stack; a second "=" shows it again (no repeated operation).
        lastOperator_ = ocResult;
    });
}

void TQORCalcEngine::DoPercent()
{
    Guarded([&] {
        if (binaryPercent_) {
            Arithmetic(ocPercent);
        } else {
            Extended result = 0;
            if (!entryStr_.empty()) {
                const Extended percent = TypedValue();
                if (operatorSameLine_) {
                    AddToHistory(entryStr_ + "%", false);
                } else {
                    AddToHistory(entryStr_, false);
                    AddToHistory("%", false);
                }
                if (!operands_.Empty())
                    result = operands_.Top() * percent * PercentFactor;
            } else {
                if (operands_.Count() >= 2)
                    result = operands_.Top() * operands_.Below(1) * PercentFactor;
                AddToHistory("%", false);
            }
            ShowResult(result);
        }
        ClearToggles();
        lastOperator_ = ocNone;
    });
}

// ---- Functions -----------------------------------------------------------------------------

namespace {

// A function code: the toggles it stands for, its computation and its tape label.
struct FunctionCode {
    char Code;
    bool Inv;
    bool Hyp;
    Extended (TQORCalcEngine::*Compute)(Extended);
    std::string (*Label)();
};

constexpr FunctionCode FunctionTable[] = {
    {'S', false, false, &Engine::ComputeSin, rsSinPaper},
    {'s', true, false, &Engine::ComputeSin, rsArcsinPaper},
    {'R', false, true, &Engine::ComputeSin, rsSinhPaper},
    {'r', true, true, &Engine::ComputeSin, rsArsinhPaper},
    {'C', false, false, &Engine::ComputeCos, rsCosPaper},
    {'c', true, false, &Engine::ComputeCos, rsArccosPaper},
    {'D', false, true, &Engine::ComputeCos, rsCoshPaper},
    {'d', true, true, &Engine::ComputeCos, rsArcoshPaper},
    {'T', false, false, &Engine::ComputeTan, rsTanPaper},
    {'t', true, false, &Engine::ComputeTan, rsArctanPaper},
    {'U', false, true, &Engine::ComputeTan, rsTanhPaper},
    {'u', true, true, &Engine::ComputeTan, rsArtanhPaper},
    {'L', false, false, &Engine::ComputeLog, rsLogPaper},
    {'l', true, false, &Engine::ComputeLog, rs10toXPaper},
    {'N', false, false, &Engine::ComputeLn, rsLnPaper},
    {'n', true, false, &Engine::ComputeLn, rsEtoXPaper},
    {'W', false, false, &Engine::ComputeLog2, rsLog2Paper},
    {'w', true, false, &Engine::ComputeLog2, rsInvLog2Paper},
    {'Q', false, false, &Engine::ComputeSqrt, rsSqrtPaper},
    {'q', false, false, &Engine::ComputeSqr, rsSquarePaper},
    {'a', false, false, &Engine::ComputeAbs, rsAbsPaper},
    {'f', false, false, &Engine::ComputeFloor, rsFloorPaper},
    {'i', false, false, &Engine::ComputeCeiling, rsCeilingPaper},
    {'g', false, false, &Engine::ComputeSign, rsSignPaper},
    {'G', false, false, &Engine::ComputeGamma, rsGammaPaper},
    {'A', false, false, &Engine::ComputeLnGamma, rsLnGammaPaper},
};

const FunctionCode& FindFunction(char code)
{
    const auto* f = FindCode(FunctionTable, code);
    return f ? *f : FunctionTable[0]; // the fallback is not reached: every code is listed
}

// The codes a function key issues for the toggle states none, Inv, Hyp, Inv+Hyp.
constexpr std::string_view SinKey = "SsRr";
constexpr std::string_view CosKey = "CcDd";
constexpr std::string_view TanKey = "TtUu";
constexpr std::string_view LogKey = "LlLl";
constexpr std::string_view LnKey = "NnNn";
constexpr std::string_view Lg2Key = "WwWw";

const FunctionCode& FunctionFor(std::string_view codes, bool inv, bool hyp)
{
    return FindFunction(codes[static_cast<std::size_t>((inv ? 1 : 0) + (hyp ? 2 : 0))]);
}

} // namespace

Extended TQORCalcEngine::PostfixArgument()
{
    if (!entryStr_.empty()) {
        const Extended value = TypedValue();
        AddToHistory(value);
        return value;
    }
    return !operands_.Empty() ? operands_.Top() : 0;
}

void TQORCalcEngine::FunctionKeyPressed(std::string_view codes)
{
    Guarded([&] {
        const auto& function = FunctionFor(codes, isInv_, isHyp_);
        if (prefixFunctions_) {
            // Applied when the argument is complete (next operator, ')' or '=').
            entryStr_.clear();
            PushOperatorStack(function.Code);
            AddToHistory(function.Label(), false);
            ShowTop();
            // The code carries the toggles; left set, they would change the next key too
            // ("exp ln 5" would take e to the e to the 5).
            ClearToggles();
        } else {
            const Extended argument = PostfixArgument();
            AddToHistory(function.Label(), false);
            // Intended: the result goes on top of the old operand instead of replacing it.
            ShowResult((this->*function.Compute)(argument));
        }
        lastOperator_ = ocNone;
    });
}

void TQORCalcEngine::ApplyFunction(char code)
{
    if (operands_.Empty())
        throw EMathError(rsInvalidEquation());
    const auto& function = FindFunction(code);
    isInv_ = function.Inv;
    isHyp_ = function.Hyp;
    auto& top = operands_.Top();
    top = (this->*function.Compute)(top);
}

void TQORCalcEngine::DoSin() { FunctionKeyPressed(SinKey); }
void TQORCalcEngine::DoCos() { FunctionKeyPressed(CosKey); }
void TQORCalcEngine::DoTan() { FunctionKeyPressed(TanKey); }
void TQORCalcEngine::DoLog() { FunctionKeyPressed(LogKey); }
void TQORCalcEngine::DoLN() { FunctionKeyPressed(LnKey); }
void TQORCalcEngine::DoLg2() { FunctionKeyPressed(Lg2Key); }
void TQORCalcEngine::DoSqRoot() { FunctionKeyPressed("QqQq"); }
void TQORCalcEngine::DoAbs() { FunctionKeyPressed("aaaa"); }
void TQORCalcEngine::DoFloor() { FunctionKeyPressed("ffff"); }
void TQORCalcEngine::DoCeiling() { FunctionKeyPressed("iiii"); }
void TQORCalcEngine::DoSign() { FunctionKeyPressed("gggg"); }
void TQORCalcEngine::DoGamma() { FunctionKeyPressed("GGGG"); }
void TQORCalcEngine::DoLnGamma() { FunctionKeyPressed("AAAA"); }

void TQORCalcEngine::DoSquare()
{
    if (isInv_) { // the inverse of squaring is the square root
        ClearToggles();
        DoSqRoot();
        return;
    }
    FunctionKeyPressed("qqqq");
}

void TQORCalcEngine::DoInvert()
{
    Guarded([&] {
        if (entryStr_.empty() && operands_.Empty())
            throw EZeroDivide(rsDivideByZero());
        const Extended argument = PostfixArgument();
        AddToHistory(rsInvertPaper(), false);
        if (argument == 0)
            throw EZeroDivide(rsDivideByZero());
        ShowResult(1.0L / argument);
        ClearToggles();
        lastOperator_ = ocNone;
    });
}

void TQORCalcEngine::DoRound(std::int32_t Places)
{
    Guarded([&] {
        ClearToggles();
        ShowResult(RoundDP(PostfixArgument(), Places));
        AddToHistory(Places == 0 ? rsRoundPaper() : rsRoundPaper() + " " + std::to_string(Places),
                     false);
        lastOperator_ = ocNone;
    });
}

void TQORCalcEngine::Report(std::string_view codes)
{
    AddToHistory(FunctionFor(codes, isInv_, isHyp_).Label(), false);
}

void TQORCalcEngine::ReportSin() { Report(SinKey); }
void TQORCalcEngine::ReportCos() { Report(CosKey); }
void TQORCalcEngine::ReportTan() { Report(TanKey); }
void TQORCalcEngine::ReportLog() { Report(LogKey); }
void TQORCalcEngine::ReportLn() { Report(LnKey); }
void TQORCalcEngine::ReportLog2() { Report(Lg2Key); }

// ---- Compute routines ----------------------------------------------------------------------

namespace {

// The four functions behind one trigonometric key.
struct TrigFamily {
    Extended (*Direct)(Extended);
    Extended (*Inverse)(Extended);
    Extended (*Hyperbolic)(Extended);
    Extended (*InverseHyperbolic)(Extended);
};

constexpr TrigFamily SinFamily {QORSin, QORArcSin, QORSinh, QORArSinh};
constexpr TrigFamily CosFamily {QORCos, QORArcCos, QORCosh, QORArCosh};
constexpr TrigFamily TanFamily {QORTan, QORArcTan, QORTanh, QORArTanh};

Extended Identity(Extended x) { return x; }

// Each angle mode: its conversions to and from radians, and its name.
struct AngleUnit {
    Extended (*ToRadians)(Extended);
    Extended (*FromRadians)(Extended);
    std::string (*Name)();
};

constexpr AngleUnit AngleUnits[] = {
    {[](Extended x) { return x * OneDegree; }, [](Extended x) { return x * OneRadian; },
     rsDegAbbrev},
    {Identity, Identity, rsRadAbbrev},
    {Grad2Rad, Rad2Grad, rsGraAbbrev},
};

// Values outside the enumeration count as degrees.
const AngleUnit& UnitOf(TQORAngleMode mode)
{
    return AngleUnits[mode < std::size(AngleUnits) ? mode : amDegrees];
}

// Hyperbolic functions take no angle conversion; the others work in the angle mode.
Extended Trig(const TrigFamily& f, Extended x, const TQORCalcEngine& engine)
{
    const bool inv = engine.GetIsInv();
    if (engine.GetIsHyp())
        return inv ? f.InverseHyperbolic(x) : f.Hyperbolic(x);
    const AngleUnit& unit = UnitOf(engine.GetAngleMode());
    return inv ? unit.FromRadians(f.Inverse(x)) : f.Direct(unit.ToRadians(x));
}

Extended SquareRoot(Extended x)
{
    if (x < 0)
        throw EInvalidOp(rsSqRootNeg());
    return QORSqrt(x);
}

} // namespace

Extended TQORCalcEngine::Finish(Extended result)
{
    ClearToggles();
    return CheckFloat(result);
}

Extended TQORCalcEngine::ComputeSin(Extended X) { return Finish(Trig(SinFamily, X, *this)); }
Extended TQORCalcEngine::ComputeCos(Extended X) { return Finish(Trig(CosFamily, X, *this)); }
Extended TQORCalcEngine::ComputeTan(Extended X) { return Finish(Trig(TanFamily, X, *this)); }
Extended TQORCalcEngine::ComputeLog(Extended X)
{
    return Finish(isInv_ ? XtoY(10, X) : QORLog10(X));
}
Extended TQORCalcEngine::ComputeLn(Extended X) { return Finish(isInv_ ? QORExp(X) : QORLn(X)); }
Extended TQORCalcEngine::ComputeLog2(Extended X) { return Finish(isInv_ ? Pow2(X) : QORLog2(X)); }
Extended TQORCalcEngine::ComputeSqrt(Extended X) { return Finish(isInv_ ? X * X : SquareRoot(X)); }
Extended TQORCalcEngine::ComputeSqr(Extended X) { return Finish(X * X); }
Extended TQORCalcEngine::ComputeAbs(Extended X) { return Finish(std::fabs(X)); }
Extended TQORCalcEngine::ComputeFloor(Extended X) { return Finish(QORFloor(X)); }
Extended TQORCalcEngine::ComputeCeiling(Extended X) { return Finish(QORCeil(X)); }
Extended TQORCalcEngine::ComputeSign(Extended X) { return Finish(QORSign(X)); }
Extended TQORCalcEngine::ComputeGamma(Extended X) { return Finish(Gamma(X)); }
Extended TQORCalcEngine::ComputeLnGamma(Extended X) { return Finish(LnGamma(X)); }

// ---- Constants, toggles and angle mode -----------------------------------------------------

void TQORCalcEngine::InputPi() { UseConstant(QORPi); }
void TQORCalcEngine::InputNaturalConstant() { UseConstant(QORe); }
void TQORCalcEngine::InputGamma() { UseConstant(QORGamma); }
void TQORCalcEngine::InputGoldenRatio() { UseConstant(GoldenRatio); }
void TQORCalcEngine::InputSpeedOfLight() { UseConstant(SpeedOfLight); }
void TQORCalcEngine::InputGravity() { UseConstant(StandardGravity); }

void TQORCalcEngine::InputRandom()
{
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    RandomSeed(static_cast<std::uint64_t>(ticks));
    UseConstant(RandomExtended());
}

void TQORCalcEngine::Toggle(bool& toggle)
{
    toggle = !toggle;
    Fire(toggle ? onSetToggles_ : onClearToggles_, this);
}

void TQORCalcEngine::SetAngleMode(TQORAngleMode Value)
{
    if (Value == angleMode_)
        return;
    angleMode_ = Value;
    Fire(onAngleModeChange_, this);
}

void TQORCalcEngine::ToggleAngleMode()
{
    if (angleMode_ == amRadians)
        angleMode_ = enableGrads_ ? amGradians : amDegrees;
    else
        angleMode_ = angleMode_ == amGradians ? amDegrees : amRadians;
    AddToHistory(GetAngleModeStr(), false);
    Fire(onAngleModeChange_, this);
}

std::string TQORCalcEngine::GetAngleModeStr() const { return UnitOf(angleMode_).Name(); }

// ---- Memory --------------------------------------------------------------------------------

// The memory key's tape line, then the register's value when MemoryHistory is on.
void TQORCalcEngine::MemoryLine(const std::string& key)
{
    ClearToggles();
    AddToHistory(key, false);
    if (memoryHistory_)
        AddToHistory("[" + rsMemoryHistoryPrefix() + DisplayValue(memory_) + " ]", false);
}

void TQORCalcEngine::MemoryStep(int sign, const std::string& label)
{
    Guarded([&] {
        DoResult(); // the pending calculation is completed first
        const Extended operand = PostfixArgument();
        memory_ = CheckFloat(memory_ + static_cast<Extended>(sign) * operand);
        MemoryLine(label);
        Fire(onMemoryChange_, this);
    });
}

void TQORCalcEngine::MemoryAdd() { MemoryStep(1, rsMemAddPaper()); }
void TQORCalcEngine::MemorySubtract() { MemoryStep(-1, rsMemSubPaper()); }

void TQORCalcEngine::MemoryClear()
{
    memory_ = 0;
    MemoryLine(rsMemClrPaper());
    Fire(onMemoryChange_, this);
}

void TQORCalcEngine::MemoryRecall()
{
    Guarded([&] {
        ShowResult(memory_);
        MemoryLine(rsMemRecPaper());
        lastOperator_ = ocNone;
    });
}

void TQORCalcEngine::SetMemory(Extended Value)
{
    Guarded([&] {
        memory_ = CheckFloat(Value);
        Fire(onMemoryChange_, this);
    });
}

// ---- Paper tape ----------------------------------------------------------------------------

void TQORCalcEngine::AddToHistory(const std::string& S, bool SameLine)
{
    if (quiet_)
        return;
    if (SameLine && operatorSameLine_) {
        pendingOperatorText_ = S;
        return;
    }
    if (pendingOperatorText_.empty()) {
        tape_.Add(S);
    } else {
        tape_.Add(pendingOperatorText_ + " " + S);
        pendingOperatorText_.clear();
    }
    Fire(onHistoryChange_, this);
}

void TQORCalcEngine::AddToHistory(Extended Value) { AddToHistory(ShownValue(Value), false); }

void TQORCalcEngine::PaperLine() { AddToHistory(rsPaperLine(), false); }

void TQORCalcEngine::ClearHistory()
{
    tape_.Clear();
    pendingOperatorText_.clear();
}

namespace {

std::string TextOrEmpty(const std::string* line) { return line ? *line : std::string(); }

} // namespace

std::string TQORCalcEngine::GetNextHistoryEntry() { return TextOrEmpty(tape_.Next()); }

std::string TQORCalcEngine::GetHistoryEntry(std::uint16_t Index) const
{
    return TextOrEmpty(tape_.At(Index));
}

std::string TQORCalcEngine::GetLastHistoryEntry() const { return TextOrEmpty(tape_.Last()); }

// ---- Named keys ----------------------------------------------------------------------------

namespace {

#define QORKIT_KEY(name, text, call)                                                               \
    {                                                                                              \
        name, text, [](TQORCalcEngine& e) { e.call; }                                              \
    }

constexpr TQORCalcKey KeyTable[] = {
    QORKIT_KEY("0", "digit 0", InputDigit(0)),
    QORKIT_KEY("1", "digit 1", InputDigit(1)),
    QORKIT_KEY("2", "digit 2", InputDigit(2)),
    QORKIT_KEY("3", "digit 3", InputDigit(3)),
    QORKIT_KEY("4", "digit 4", InputDigit(4)),
    QORKIT_KEY("5", "digit 5", InputDigit(5)),
    QORKIT_KEY("6", "digit 6", InputDigit(6)),
    QORKIT_KEY("7", "digit 7", InputDigit(7)),
    QORKIT_KEY("8", "digit 8", InputDigit(8)),
    QORKIT_KEY("9", "digit 9", InputDigit(9)),
    QORKIT_KEY(".", "decimal separator", InputDecimalSeparator()),
    QORKIT_KEY(",", "thousands separator", InputThousandsSeparator()),
    QORKIT_KEY("ee", "exponent of the typed number", DoExp()),
    QORKIT_KEY("+/-", "change sign", DoChangeSign()),
    QORKIT_KEY("bs", "backspace", InputBackspace()),
    QORKIT_KEY("c", "clear the display", ClearDisplay()),
    QORKIT_KEY("ac", "all clear", AllClear()),
    QORKIT_KEY("+", "add", DoAdd()),
    QORKIT_KEY("-", "subtract (or a sign)", DoSubtract()),
    QORKIT_KEY("*", "multiply", DoMultiply()),
    QORKIT_KEY("/", "divide", DoDivide()),
    QORKIT_KEY("^", "x to the y (with inv: y-th root)", DoPower()),
    QORKIT_KEY("mod", "floored modulus", DoModulus()),
    QORKIT_KEY("rem", "truncated remainder", DoRemainder()),
    QORKIT_KEY("div", "floored division", DoDiv()),
    QORKIT_KEY("intdiv", "truncated division", DoIntDiv()),
    QORKIT_KEY("%", "percent", DoPercent()),
    QORKIT_KEY("(", "left bracket", InputLeftBracket()),
    QORKIT_KEY(")", "right bracket", InputRightBracket()),
    QORKIT_KEY("=", "equals", DoEquals()),
    QORKIT_KEY("result", "complete the calculation without a tape line", DoResult()),
    QORKIT_KEY("inv", "inverse toggle", DoInv()),
    QORKIT_KEY("hyp", "hyperbolic toggle", DoHyp()),
    QORKIT_KEY("sin", "sine", DoSin()),
    QORKIT_KEY("cos", "cosine", DoCos()),
    QORKIT_KEY("tan", "tangent", DoTan()),
    QORKIT_KEY("log", "common logarithm (inv: 10^x)", DoLog()),
    QORKIT_KEY("ln", "natural logarithm (inv: e^x)", DoLN()),
    QORKIT_KEY("lg2", "binary logarithm (inv: 2^x)", DoLg2()),
    QORKIT_KEY("sqrt", "square root (inv: square)", DoSqRoot()),
    QORKIT_KEY("sqr", "square (inv: square root)", DoSquare()),
    QORKIT_KEY("abs", "absolute value", DoAbs()),
    QORKIT_KEY("floor", "floor", DoFloor()),
    QORKIT_KEY("ceil", "ceiling", DoCeiling()),
    QORKIT_KEY("sign", "sign (-1, 0, 1)", DoSign()),
    QORKIT_KEY("gamma", "gamma function", DoGamma()),
    QORKIT_KEY("lngamma", "ln |gamma|", DoLnGamma()),
    QORKIT_KEY("1/x", "reciprocal", DoInvert()),
    QORKIT_KEY("round", "round to an integer (roundN: N decimals)", DoRound(0)),
    QORKIT_KEY("pi", "pi", InputPi()),
    QORKIT_KEY("e", "Euler's number e", InputNaturalConstant()),
    QORKIT_KEY("euler", "Euler's constant 0.5772...", InputGamma()),
    QORKIT_KEY("phi", "golden ratio", InputGoldenRatio()),
    QORKIT_KEY("light", "speed of light (m/s)", InputSpeedOfLight()),
    QORKIT_KEY("g", "standard gravity (m/s2)", InputGravity()),
    QORKIT_KEY("rnd", "random value in [0, 1)", InputRandom()),
    QORKIT_KEY("drg", "next angle mode", ToggleAngleMode()),
    QORKIT_KEY("deg", "degrees", SetAngleMode(amDegrees)),
    QORKIT_KEY("rad", "radians", SetAngleMode(amRadians)),
    QORKIT_KEY("grad", "gradians", SetAngleMode(amGradians)),
    QORKIT_KEY("m+", "add to memory", MemoryAdd()),
    QORKIT_KEY("m-", "subtract from memory", MemorySubtract()),
    QORKIT_KEY("mc", "clear memory", MemoryClear()),
    QORKIT_KEY("mr", "recall memory", MemoryRecall()),
    QORKIT_KEY("paper", "separator line on the tape", PaperLine()),
};
#undef QORKIT_KEY

} // namespace

std::span<const TQORCalcKey> CalcEngineKeys() { return KeyTable; }

bool PressCalcKey(TQORCalcEngine& engine, std::string_view name)
{
    if (const auto* key = FindName(KeyTable, name)) {
        key->Press(engine);
        return true;
    }
    if (std::int32_t places = 0;
        name.starts_with("round") && ReadCount(name.substr(5), 2, places)) {
        engine.DoRound(places);
        return true;
    }
    // A number: each character is its own key.
    if (name.empty() || name.find_first_not_of("0123456789.,") != std::string_view::npos)
        return false;
    for (const char c : name)
        FindName(KeyTable, std::string_view(&c, 1))->Press(engine);
    return true;
}

} // namespace qorkit
