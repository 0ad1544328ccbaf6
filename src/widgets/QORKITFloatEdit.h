// TQORFloatEdit: an edit for one extended floating-point value.
//
// Display: DecimalPlaces decimals (trailing zeroes dropped with TrimTrailingZeroes),
// thousands grouping (in threes, or the lakh pattern 12,34,567 with LakhFormatting), the
// locale's separators or CustomDecimal/CustomThousands with CustomSeparators, zero padding to
// MaxLength with ZeroPad, negatives as (123) with NegAsBrackets, nothing at all for zero with
// BlankWhenZero. While the user edits, the text is the plain number (no grouping), with every
// significant digit when FullAccuracyEdit is set.
//
// Typing is checked key by key: only digits, one decimal separator, grouping separators
// before it, a sign at the start (when AllowNegInput), brackets (with NegAsBrackets) and an
// exponent are accepted. The text is taken over when the user leaves the edit or presses
// Enter. Text that is no number, or a value outside BoundLower..BoundUpper (checked when
// BoundLower < BoundUpper), is refused: the old value stays and OnValidationError is called.
// FullAccuracy keeps a value with more digits than shown when the shown text was not changed.
// With AllowExpressions any text may be typed, and text that is not a number is evaluated as
// an expression ("2+3*4" gives 14).
//
// Events (std::function, see QORKITComponent.h): OnChange after the value changed, OnNull
// when the edit becomes null, OnSignChange with the sign after each conversion of typed text
// and whenever a new value changes the sign.
#pragma once

#include "QORKITBaseEdit.h"
#include "QORKITQtEnums.h"
#include "QORKITResource.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QValidator>

#include <cstdint>
#include <functional>
#include <span>

namespace qorkit {

#define QORKIT_FLOATEDIT_TEXTS(X)                                                                  \
    X(rsValueOutOfBounds, "'%s' is outside the allowed range")                                     \
    X(rsValueNotFinite, "The value is not a finite number")

QORKIT_FLOATEDIT_TEXTS(QORKIT_WIDGETS_DECLARE_TEXT)
QORKIT_WIDGETS_EXPORT std::span<const TResourceText> FloatEditTexts();

// The separators of a number edit: its own with CustomSeparators, otherwise the locale's
// decimal separator and the grouping character `style` names. The grouping character is 0 when
// it would equal the decimal separator.
QORKIT_WIDGETS_EXPORT char EditDecimalChar(bool customSeparators, char customDecimal);
QORKIT_WIDGETS_EXPORT char EditThousandChar(bool customSeparators, char customDecimal,
                                            char customThousands, TQORThousandSeparators style);

// Evaluates an expression typed into an edit that allows expressions; throws a
// qorkit::Exception for text it cannot evaluate.
using TQORExpressionEvaluator = std::function<Extended(const std::string& expression)>;

class QORKIT_WIDGETS_EXPORT TQORFloatEdit : public TQORStartEdit {
    Q_OBJECT
    Q_PROPERTY(double AsFloat READ GetAsDouble WRITE SetAsDouble NOTIFY asFloatChanged)
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(
        bool FullAccuracy READ GetFullAccuracy WRITE SetFullAccuracy NOTIFY fullAccuracyChanged)
    Q_PROPERTY(bool FullAccuracyEdit READ GetFullAccuracyEdit WRITE SetFullAccuracyEdit NOTIFY
                   fullAccuracyEditChanged)
    Q_PROPERTY(bool TrimTrailingZeroes READ GetTrimTrailingZeroes WRITE SetTrimTrailingZeroes NOTIFY
                   trimTrailingZeroesChanged)
    Q_PROPERTY(bool AllowExpressions READ GetAllowExpressions WRITE SetAllowExpressions NOTIFY
                   allowExpressionsChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(qorkit::TQORThousandSeparators ThousandSeparators READ GetThousandSeparators WRITE
                   SetThousandSeparators NOTIFY thousandSeparatorsChanged)
    Q_PROPERTY(bool ShowThousandSeparators READ GetShowThousandSeparators WRITE
                   SetShowThousandSeparators NOTIFY showThousandSeparatorsChanged)
    Q_PROPERTY(bool LakhFormatting READ GetLakhFormatting WRITE SetLakhFormatting NOTIFY
                   lakhFormattingChanged)
    Q_PROPERTY(bool ZeroPad READ GetZeroPad WRITE SetZeroPad NOTIFY zeroPadChanged)
    Q_PROPERTY(
        bool AllowNegInput READ GetAllowNegInput WRITE SetAllowNegInput NOTIFY allowNegInputChanged)
    Q_PROPERTY(
        bool NegAsBrackets READ GetNegAsBrackets WRITE SetNegAsBrackets NOTIFY negAsBracketsChanged)
    Q_PROPERTY(QChar CustomDecimal READ GetCustomDecimalChar WRITE SetCustomDecimalChar NOTIFY
                   customDecimalChanged)
    Q_PROPERTY(QChar CustomThousands READ GetCustomThousandsChar WRITE SetCustomThousandsChar NOTIFY
                   customThousandsChanged)
    Q_PROPERTY(bool CustomSeparators READ GetCustomSeparators WRITE SetCustomSeparators NOTIFY
                   customSeparatorsChanged)
    Q_PROPERTY(double BoundLower READ GetBoundLowerDouble WRITE SetBoundLowerDouble NOTIFY
                   boundLowerChanged)
    Q_PROPERTY(double BoundUpper READ GetBoundUpperDouble WRITE SetBoundUpperDouble NOTIFY
                   boundUpperChanged)

public:
    explicit TQORFloatEdit(QWidget* parent = nullptr);

    // The value, brought up to date from text being typed; 0 while the edit is null.
    Extended GetValue();
    // Stores the value and leaves the null state; an equal value on a non-null edit does
    // nothing. A value outside the bounds, NaN or an infinity is refused and reported.
    void SetValue(Extended value);
    Extended GetAsFloat() { return GetValue(); }
    void SetAsFloat(Extended value) { SetValue(value); }

    std::uint8_t GetDecimalPlaces() const { return decimals_; }
    // At most MaxDecimals.
    void SetDecimalPlaces(std::uint8_t value);
    static constexpr std::uint8_t MaxDecimals = 18;
    bool GetFullAccuracy() const { return fullAccuracy_; }
    void SetFullAccuracy(bool value);
    bool GetFullAccuracyEdit() const { return fullAccuracyEdit_; }
    void SetFullAccuracyEdit(bool value);
    bool GetTrimTrailingZeroes() const { return trimTrailingZeroes_; }
    void SetTrimTrailingZeroes(bool value);
    bool GetAllowExpressions() const { return allowExpressions_; }
    void SetAllowExpressions(bool value);
    bool GetBlankWhenZero() const { return blankWhenZero_; }
    void SetBlankWhenZero(bool value);
    TQORThousandSeparators GetThousandSeparators() const { return thousandSeparators_; }
    void SetThousandSeparators(TQORThousandSeparators value);
    bool GetShowThousandSeparators() const { return showThousandSeparators_; }
    void SetShowThousandSeparators(bool value);
    bool GetLakhFormatting() const { return lakhFormatting_; }
    void SetLakhFormatting(bool value);
    bool GetZeroPad() const { return zeroPad_; }
    void SetZeroPad(bool value);
    bool GetAllowNegInput() const { return allowNegInput_; }
    void SetAllowNegInput(bool value);
    bool GetNegAsBrackets() const { return negAsBrackets_; }
    void SetNegAsBrackets(bool value);
    // Default: the locale's separators when the edit was made.
    char GetCustomDecimal() const { return customDecimal_; }
    void SetCustomDecimal(char value);
    char GetCustomThousands() const { return customThousands_; }
    void SetCustomThousands(char value);
    bool GetCustomSeparators() const { return customSeparators_; }
    void SetCustomSeparators(bool value);
    Extended GetBoundLower() const { return boundLower_; }
    void SetBoundLower(Extended value);
    Extended GetBoundUpper() const { return boundUpper_; }
    void SetBoundUpper(Extended value);
    bool IsInBounds(Extended value) const;

    // The separators in force at this moment.
    char DecimalChar() const;
    // 0 when no grouping character can be used (it would equal the decimal separator).
    char ThousandChar() const;
    // The check applied to each keystroke (also used by composite controls).
    QValidator::State ValidateText(const QString& text) const;
    // Text of `value` as this edit displays it.
    QString FormatValue(Extended value) const;
    // Parses text the way leaving the edit does; throws EConvertError.
    Extended ParseText(const QString& text) const;

    // Process-wide evaluator for edits with AllowExpressions; by default the library's
    // expression evaluator in radians. An empty one turns expressions off everywhere.
    static void SetExpressionEvaluator(TQORExpressionEvaluator evaluator);

Q_SIGNALS:
    void asFloatChanged();
    void decimalPlacesChanged();
    void fullAccuracyChanged();
    void fullAccuracyEditChanged();
    void trimTrailingZeroesChanged();
    void allowExpressionsChanged();
    void blankWhenZeroChanged();
    void thousandSeparatorsChanged();
    void showThousandSeparatorsChanged();
    void lakhFormattingChanged();
    void zeroPadChanged();
    void allowNegInputChanged();
    void negAsBracketsChanged();
    void customDecimalChanged();
    void customThousandsChanged();
    void customSeparatorsChanged();
    void boundLowerChanged();
    void boundUpperChanged();

protected:
    QString DisplayText() const override;
    QString EditText() const override;
    void Convert2Value() override;
    bool DoBoundsValidation() override;
    bool ConvertWhenUnchanged() const override;
    void KeyDown(QKeyEvent* event) override;

private:
    int GetDecimalPlacesValue() const { return decimals_; }
    void SetDecimalPlacesValue(int value);
    double GetAsDouble() { return static_cast<double>(GetValue()); }
    void SetAsDouble(double value) { SetValue(value); }
    QChar GetCustomDecimalChar() const { return QLatin1Char(customDecimal_); }
    void SetCustomDecimalChar(QChar value) { SetCustomDecimal(value.toLatin1()); }
    QChar GetCustomThousandsChar() const { return QLatin1Char(customThousands_); }
    void SetCustomThousandsChar(QChar value) { SetCustomThousands(value.toLatin1()); }
    double GetBoundLowerDouble() const { return static_cast<double>(boundLower_); }
    void SetBoundLowerDouble(double value) { SetBoundLower(value); }
    double GetBoundUpperDouble() const { return static_cast<double>(boundUpper_); }
    void SetBoundUpperDouble(double value) { SetBoundUpper(value); }
    // Sets a display setting, shows the value in the new form and signals the change.
    template<typename T> void Restyle(T& field, T value, void (TQORFloatEdit::*signal)());
    // Sets a setting that does not change the display, and signals the change.
    template<typename T> void Store(T& field, T value, void (TQORFloatEdit::*signal)());
    QString FormatPlain(Extended value, bool forEditing) const;
    Extended Evaluate(const QString& text) const;
    void StoreValue(Extended value);

    Extended value_ = 0;
    Extended pending_ = 0;
    std::uint8_t decimals_ = 2;
    bool fullAccuracy_ = false;
    bool fullAccuracyEdit_ = false;
    bool trimTrailingZeroes_ = false;
    bool allowExpressions_ = false;
    bool blankWhenZero_ = false;
    TQORThousandSeparators thousandSeparators_ = tsLocale;
    bool showThousandSeparators_ = true;
    bool lakhFormatting_ = false;
    bool zeroPad_ = false;
    bool allowNegInput_ = true;
    bool negAsBrackets_ = false;
    char customDecimal_;
    char customThousands_;
    bool customSeparators_ = false;
    Extended boundLower_ = 0;
    Extended boundUpper_ = 0;
};

} // namespace qorkit
