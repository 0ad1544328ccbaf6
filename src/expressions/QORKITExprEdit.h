// TQORExpressEdit: an edit in which the user types an arithmetic expression ("2+3*4",
// "sqrt 2 / 2"); the edit keeps both the expression and its value.
//
// The text is taken over when the user leaves the edit or presses Enter. ExpressionType
// chooses the language: etSimple knows digits, operators and "pi"; etFull also knows named
// functions (radians), the exponent and the memory words. Text equal to the null string (in
// any letter case) makes the edit null instead of being evaluated. ExpressionDisplay chooses
// what is shown while the user edits and afterwards; by default the expression while editing
// and the value, with DecimalPlaces decimals, otherwise.
//
// An expression that cannot be evaluated (a division by zero, an unknown word) or whose value
// lies outside BoundLower..BoundUpper (checked when BoundLower < BoundUpper) is refused: the
// edit keeps its old expression and value and reports why through OnValidationError.
#pragma once

#include "QORKITBaseEdit.h"
#include "QORKITCalcEngine.h"
#include "QORKITQtEnums.h"
#include "QORKITResource.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <cstdint>
#include <span>

namespace qorkit {

#define QORKIT_EXPREDIT_TEXTS(X) X(rsExpressionNotEvaluated, "'%s' cannot be evaluated")

QORKIT_EXPREDIT_TEXTS(QORKIT_WIDGETS_DECLARE_TEXT)
QORKIT_WIDGETS_EXPORT std::span<const TResourceText> ExprEditTexts();

class QORKIT_WIDGETS_EXPORT TQORExpressEdit : public TQORStartEdit {
    Q_OBJECT
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(qorkit::TQORExpressionDisplay ExpressionDisplay READ GetExpressionDisplay WRITE
                   SetExpressionDisplay NOTIFY expressionDisplayChanged)
    Q_PROPERTY(qorkit::TQORExpressionType ExpressionType READ GetExpressionType WRITE
                   SetExpressionType NOTIFY expressionTypeChanged)
    Q_PROPERTY(bool TrimTrailingZeroes READ GetTrimTrailingZeroes WRITE SetTrimTrailingZeroes NOTIFY
                   trimTrailingZeroesChanged)
    Q_PROPERTY(double AsFloat READ GetAsDouble WRITE SetAsDouble NOTIFY asFloatChanged STORED false)
    Q_PROPERTY(
        QString AsExpression READ GetExpression WRITE SetExpression NOTIFY asExpressionChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(double BoundLower READ GetBoundLowerDouble WRITE SetBoundLowerDouble NOTIFY
                   boundLowerChanged)
    Q_PROPERTY(double BoundUpper READ GetBoundUpperDouble WRITE SetBoundUpperDouble NOTIFY
                   boundUpperChanged)

public:
    explicit TQORExpressEdit(QWidget* parent = nullptr);

    // The expression, brought up to date from text being typed.
    QString GetExpression();
    // Takes S over as the expression and evaluates it; an equal expression on a non-null edit
    // does nothing. S equal to the null string makes the edit null.
    void SetExpression(const QString& S);
    // The value, brought up to date from text being typed; 0 while the edit is null.
    Extended GetFloatValue();
    // Stores V and makes its text the expression; an equal value on a non-null edit does
    // nothing. NaN, infinities and values outside the bounds are refused.
    void SetFloatValue(Extended V);
    Extended GetAsFloat() { return GetFloatValue(); }
    void SetAsFloat(Extended V) { SetFloatValue(V); }

    std::uint8_t GetDecimalPlaces() const { return decimals_; }
    // At most 18.
    void SetDecimals(std::uint8_t Value);
    void SetDecimalPlaces(std::uint8_t Value) { SetDecimals(Value); }
    TQORExpressionDisplay GetExpressionDisplay() const { return expressionDisplay_; }
    void SetExpressionDisplay(TQORExpressionDisplay Value);
    TQORExpressionType GetExpressionType() const { return expressionType_; }
    // Evaluates the expression again in the new language.
    void SetExpressionType(TQORExpressionType Value);
    bool GetTrimTrailingZeroes() const { return trimTrailingZeroes_; }
    void SetTrimTrailingZeroes(bool Value);
    bool GetBlankWhenZero() const { return blankWhenZero_; }
    void SetBlankWhenZero(bool Value);
    Extended GetBoundLower() const { return boundLower_; }
    void SetBoundLower(Extended Value);
    Extended GetBoundUpper() const { return boundUpper_; }
    void SetBoundUpper(Extended Value);
    bool IsInBounds(Extended Value) const;

Q_SIGNALS:
    void decimalPlacesChanged();
    void expressionDisplayChanged();
    void expressionTypeChanged();
    void trimTrailingZeroesChanged();
    void asFloatChanged();
    void asExpressionChanged();
    void blankWhenZeroChanged();
    void boundLowerChanged();
    void boundUpperChanged();

protected:
    // Evaluates the stored expression again (after a change of the language).
    void ConvertExpression();
    // Makes the text of the value the expression.
    void ConvertFloat();
    void Convert2Value() override;
    QString DisplayText() const override;
    QString EditText() const override;
    bool DoBoundsValidation() override;

private:
    int GetDecimalPlacesValue() const { return decimals_; }
    void SetDecimalPlacesValue(int Value);
    double GetAsDouble() { return static_cast<double>(GetFloatValue()); }
    void SetAsDouble(double V) { SetFloatValue(V); }
    double GetBoundLowerDouble() const { return static_cast<double>(boundLower_); }
    void SetBoundLowerDouble(double Value) { SetBoundLower(Value); }
    double GetBoundUpperDouble() const { return static_cast<double>(boundUpper_); }
    void SetBoundUpperDouble(double Value) { SetBoundUpper(Value); }
    void BringUpToDate();
    QString ValueText(Extended value, bool forEditing) const;
    // Evaluates `expression` in the edit's language; throws EConvertError naming it.
    Extended Evaluate(const QString& expression);
    // Takes `expression` over with its value, or throws and keeps the old ones.
    void TakeExpression(const QString& expression);
    // Stores a value that passed every check, with the expression that gives it.
    void Store(Extended value, const QString& expression);
    void EnterNull();
    template<typename T> bool Restyle(T& field, T value);

    TQORCalcEngine engine_; // evaluates with unary percent: 200+10% is 220
    Extended value_ = 0;
    Extended pending_ = 0; // the value DoBoundsValidation checks
    QString expression_;
    std::uint8_t decimals_ = 4;
    TQORExpressionDisplay expressionDisplay_ = edExpressionWhileEditing;
    TQORExpressionType expressionType_ = etSimple;
    bool trimTrailingZeroes_ = false;
    bool blankWhenZero_ = false;
    Extended boundLower_ = 0;
    Extended boundUpper_ = 0;
};

} // namespace qorkit
