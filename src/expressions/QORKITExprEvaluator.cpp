#include "QORKITExprEvaluator.h"

#include "QORKITExpressions.h"
#include "QORKITStrings.h"

#include <cmath>

namespace qorkit {

namespace {

// Variables enter the expression as program text: "." decimals, no grouping.
constexpr int VarTextWidth = 19;
constexpr int VarTextDecimals = 4;

using VarSignal = void (TQORExprEvaluator::*)();
constexpr VarSignal kVarChanged[TQORExprEvaluator::VarCount] = {
    &TQORExprEvaluator::var0Changed, &TQORExprEvaluator::var1Changed,
    &TQORExprEvaluator::var2Changed, &TQORExprEvaluator::var3Changed,
    &TQORExprEvaluator::var4Changed, &TQORExprEvaluator::var5Changed,
    &TQORExprEvaluator::var6Changed, &TQORExprEvaluator::var7Changed,
    &TQORExprEvaluator::var8Changed, &TQORExprEvaluator::var9Changed,
};

bool ValidIndex(int index) { return index >= 0 && index < TQORExprEvaluator::VarCount; }

} // namespace

TQORExprEvaluator::TQORExprEvaluator(QObject* owner) : QObject(owner) { }

void TQORExprEvaluator::SetStoreValue(bool value)
{
    if (storeValue_ == value)
        return;
    storeValue_ = value;
    Q_EMIT storeValueChanged();
}

Extended TQORExprEvaluator::GetVar(int index) const
{
    return ValidIndex(index) ? vars_[static_cast<std::size_t>(index)] : 0;
}

void TQORExprEvaluator::SetVar(int index, Extended value)
{
    // A variable must be writable into an expression: NaN and infinities are refused.
    if (!ValidIndex(index) || !std::isfinite(value))
        return;
    Extended& var = vars_[static_cast<std::size_t>(index)];
    if (var == value)
        return;
    var = value;
    Q_EMIT(this->*kVarChanged[index])();
}

void TQORExprEvaluator::SetExpression(const QString& value)
{
    if (expression_ == value)
        return;
    expression_ = value;
    Q_EMIT expressionChanged();
}

void TQORExprEvaluator::SetAngleMode(TQORAngleMode value)
{
    if (angleMode_ == value || value > amGradians)
        return;
    angleMode_ = value;
    Q_EMIT angleModeChanged();
}

// PrefixFunctions and BinaryPercent are kept and published only: evaluation always writes
// functions before their argument and uses the engine's own (binary) percent. Intended.
void TQORExprEvaluator::SetPrefixFunctions(bool value)
{
    if (prefixFunctions_ == value)
        return;
    prefixFunctions_ = value;
    Q_EMIT prefixFunctionsChanged();
}

void TQORExprEvaluator::SetBinaryPercent(bool value)
{
    if (binaryPercent_ == value)
        return;
    binaryPercent_ = value;
    Q_EMIT binaryPercentChanged();
}

QString TQORExprEvaluator::ReplaceVars(const QString& S) const
{
    QString text = S.toLower();
    // Every variable name takes the value of Var1: intended, the other nine are stored and
    // published but never reach the expression.
    const QString value
        = QString::fromStdString(Float2Str(GetVar(1), VarTextWidth, VarTextDecimals));
    for (int i = 0; i < VarCount; ++i)
        text.replace(QStringLiteral("var%1").arg(i), value);
    return text;
}

Extended TQORExprEvaluator::Evaluate()
{
    lastError_.clear();
    const std::string text = ReplaceVars(expression_).toStdString();
    Extended memory = 0; // a private memory: nothing survives from one evaluation to the next
    std::string error;
    const Extended result = EvaluateStr(text, engine_, memory, error, angleMode_);
    lastError_ = QString::fromStdString(error);
    if (!lastError_.isEmpty())
        DoError();
    return result;
}

void TQORExprEvaluator::DoError()
{
    if (onError_)
        onError_(this);
    Q_EMIT error();
}

} // namespace qorkit
