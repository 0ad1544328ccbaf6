#include "QORKITExprEdit.h"

#include "QORKITExceptions.h"
#include "QORKITExpressions.h"
#include "QORKITFloatEdit.h"
#include "QORKITMath.h"
#include "QORKITStrings.h"

#include <algorithm>
#include <cmath>

namespace qorkit {

namespace {
constexpr std::string_view kTextContext = "QORKITExprEdit";
}

QORKIT_EXPREDIT_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> ExprEditTexts()
{
    static constexpr TResourceText texts[] = {QORKIT_EXPREDIT_TEXTS(QORKIT_LIST_TEXT)};
    return texts;
}

TQORExpressEdit::TQORExpressEdit(QWidget* parent) : TQORStartEdit(parent)
{
    // Percent of the running total, as the engine-less evaluators do.
    engine_.SetBinaryPercent(false);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ConvertFloat();
    Redisplay();
}

template<typename T> bool TQORExpressEdit::Restyle(T& field, T value)
{
    if (field == value)
        return false;
    field = value;
    Redisplay();
    return true;
}

void TQORExpressEdit::SetDecimals(std::uint8_t Value)
{
    if (Restyle(decimals_, std::min(Value, TQORFloatEdit::MaxDecimals)))
        Q_EMIT decimalPlacesChanged();
}

void TQORExpressEdit::SetDecimalPlacesValue(int Value)
{
    SetDecimals(static_cast<std::uint8_t>(std::clamp(Value, 0, int {TQORFloatEdit::MaxDecimals})));
}

void TQORExpressEdit::SetExpressionDisplay(TQORExpressionDisplay Value)
{
    if (Value <= edExpression && Restyle(expressionDisplay_, Value))
        Q_EMIT expressionDisplayChanged();
}

void TQORExpressEdit::SetExpressionType(TQORExpressionType Value)
{
    if (Value > etFull || expressionType_ == Value)
        return;
    expressionType_ = Value;
    Q_EMIT expressionTypeChanged();
    ConvertExpression();
    Redisplay();
}

void TQORExpressEdit::SetTrimTrailingZeroes(bool Value)
{
    if (Restyle(trimTrailingZeroes_, Value))
        Q_EMIT trimTrailingZeroesChanged();
}

void TQORExpressEdit::SetBlankWhenZero(bool Value)
{
    if (Restyle(blankWhenZero_, Value))
        Q_EMIT blankWhenZeroChanged();
}

void TQORExpressEdit::SetBoundLower(Extended Value)
{
    if (boundLower_ == Value || !std::isfinite(Value))
        return;
    boundLower_ = Value;
    Q_EMIT boundLowerChanged();
}

void TQORExpressEdit::SetBoundUpper(Extended Value)
{
    if (boundUpper_ == Value || !std::isfinite(Value))
        return;
    boundUpper_ = Value;
    Q_EMIT boundUpperChanged();
}

bool TQORExpressEdit::IsInBounds(Extended Value) const
{
    return !(boundLower_ < boundUpper_) || (Value >= boundLower_ && Value <= boundUpper_);
}

bool TQORExpressEdit::DoBoundsValidation() { return IsInBounds(pending_); }

void TQORExpressEdit::BringUpToDate()
{
    if (IsEditing() && isModified())
        ValidateEdit();
}

QString TQORExpressEdit::GetExpression()
{
    BringUpToDate();
    return expression_;
}

Extended TQORExpressEdit::GetFloatValue()
{
    BringUpToDate();
    return GetNull() ? 0 : value_;
}

QString TQORExpressEdit::ValueText(Extended value, bool forEditing) const
{
    if (blankWhenZero_ && value == 0 && !forEditing)
        return {};
    return QString::fromStdString(trimTrailingZeroes_ ? Float2EStr2(value, decimals_)
                                                      : Float2EStr(value, decimals_));
}

QString TQORExpressEdit::DisplayText() const
{
    return expressionDisplay_ == edExpression ? expression_ : ValueText(value_, false);
}

QString TQORExpressEdit::EditText() const
{
    return expressionDisplay_ == edValue ? ValueText(value_, true) : expression_;
}

Extended TQORExpressEdit::Evaluate(const QString& expression)
{
    const std::string text = expression.trimmed().toLower().toStdString();
    Extended value = 0;
    std::string error;
    if (expressionType_ == etFull) {
        Extended memory = 0;
        value = EvaluateStr(text, engine_, memory, error, amRadians);
    } else {
        value = SimpleEvaluateStr(text, engine_);
        error = engine_.GetLastError();
    }
    if (error.empty() && !std::isfinite(value))
        error = rsValueNotFinite();
    if (!error.empty())
        throw EConvertError(
            FormatMessage(rsExpressionNotEvaluated(), expression.trimmed().toStdString()) + " - "
            + error);
    return value;
}

void TQORExpressEdit::EnterNull()
{
    const bool expressionChanged = expression_ != GetNullStr();
    expression_ = GetNullStr();
    value_ = 0;
    if (!GetNull()) {
        SetNull(true);
        Q_EMIT asFloatChanged();
    }
    if (expressionChanged)
        Q_EMIT asExpressionChanged();
}

void TQORExpressEdit::Store(Extended value, const QString& expression)
{
    const bool wasNull = GetNull();
    const bool valueChanged = value != value_ || wasNull;
    const bool expressionChanged = expression != expression_;
    value_ = value;
    expression_ = expression;
    ClearNullQuietly();
    Redisplay();
    if (valueChanged)
        Q_EMIT asFloatChanged();
    if (expressionChanged)
        Q_EMIT asExpressionChanged();
    if (valueChanged || expressionChanged)
        Change();
    DoSignChange(static_cast<int>(QORSign(value)));
}

void TQORExpressEdit::TakeExpression(const QString& expression)
{
    // The null string, in any letter case, makes the edit null instead of being evaluated.
    if (expression.trimmed().toLower() == GetNullStr().trimmed().toLower()) {
        EnterNull();
        return;
    }
    const Extended value = Evaluate(expression);
    pending_ = value;
    if (!DoBoundsValidation())
        throw EConvertError(
            FormatMessage(rsValueOutOfBounds(), expression.trimmed().toStdString()));
    Store(value, expression);
}

void TQORExpressEdit::ConvertExpression()
{
    try {
        TakeExpression(expression_);
    } catch (const Exception& e) {
        ReportValidationError(QString::fromStdString(e.what()));
    }
}

void TQORExpressEdit::ConvertFloat() { expression_ = ValueText(value_, true); }

void TQORExpressEdit::Convert2Value()
{
    // Leaving a null edit without typing anything keeps it null.
    if (GetNull() && text().trimmed().isEmpty())
        return;
    TakeExpression(text());
}

void TQORExpressEdit::SetExpression(const QString& S)
{
    if (S == expression_ && !GetNull())
        return;
    try {
        TakeExpression(S);
    } catch (const Exception& e) {
        ReportValidationError(QString::fromStdString(e.what()));
    }
}

void TQORExpressEdit::SetFloatValue(Extended V)
{
    if (V == value_ && !GetNull())
        return;
    if (!std::isfinite(V)) {
        ReportValidationError(QString::fromStdString(rsValueNotFinite()));
        return;
    }
    pending_ = V;
    if (!DoBoundsValidation()) {
        ReportValidationError(QString::fromStdString(
            FormatMessage(rsValueOutOfBounds(), Float2EStr2(V, TQORFloatEdit::MaxDecimals))));
        return;
    }
    // The expression becomes the text of the value.
    Store(V, ValueText(V, true));
}

} // namespace qorkit
