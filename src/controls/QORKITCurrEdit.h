// Currency edits: single-line edits for money amounts.
//
// TQORBaseCurrEdit does the work. It shows the amount with the currency symbol, DecimalPlaces
// decimals and thousands grouping, in the symbol and sign positions of the currency formats
// ("$1,234.50", "-$1,234.50", "($1,234.50)", "1.234,50 €" ...), and the user edits that very
// text: digits are grouped again as they are typed, the caret staying after the digit just
// typed, and Backspace/Delete next to a grouping character remove the digit beyond it (a
// regrouping starts the undo history afresh). The text is taken over when the user leaves the
// edit or presses Enter: the symbol is stripped, the sign may stand in any of the format's
// positions (or as brackets), blank text is zero.
// Text that does not parse, or an amount outside BoundLower..BoundUpper (checked when
// BoundLower < BoundUpper) or outside the range of the class's amount type, is refused: the
// old value stays and OnValidationError is called once with the reason.
//
// Symbol and formats: FormatType cftCustom uses the edit's own CurrencyStr, CurrencyFormat
// and NegativeFormat; cftRegional the process-wide format settings; cftLocale the currency
// symbol of the edit's QLocale with the process-wide positions. A negative amount shows in
// NegativeFormat only when it does not round to zero at the edit's decimals. BlankWhenZero
// shows nothing for a zero value. CustomSeparators replaces the decimal and grouping
// characters while the edit formats and parses, and the process-wide ones are put back
// afterwards, also when parsing fails.
//
// Stored value and Scale: AsFloat is the stored value; the amount shown is AsFloat / Scale
// (GetScaledFloat). The amount classes, and the choices made for them:
//   TQORCurrencyEdit  AsCurrency, the host's fixed-point Currency (four decimals). Scale 1; at
//                     most 4 decimals, the precision of the type.
//   TQORCurrEdit      AsQORCurrency, a signed 32-bit count of minor units (cents). Scale 100,
//                     so 1234 shows as 12.34; at most 4 decimals, as a 32-bit count scaled by
//                     more than 10^4 would keep less than a million whole units of range.
//                     AsScaledCurrency is the amount shown as a Currency.
//   TQORLongCurrEdit  AsQORLongCurrency, the unsigned 32-bit count of minor units. Scale 100,
//                     at most 4 decimals; negative amounts cannot be typed.
//   TQORBaseCurrEdit  used alone: Scale 1, at most 18 decimals (what an extended value holds).
// The stored value is kept unrounded (FullAccuracy keeps every digit when the user leaves the
// text unchanged); the amount properties round to their unit, halves away from zero.
#pragma once

#include "QORKITBaseEdit.h"
#include "QORKITQtEnums.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <cstdint>
#include <functional>
#include <string>

namespace qorkit {

// Replaces the built-in conversion of the text (symbol already stripped) into the amount.
using TQORCurrConvertEvent = std::function<Extended(QObject* sender, const QString& text)>;

class QORKIT_WIDGETS_EXPORT TQORBaseCurrEdit : public TQORStartEdit {
    Q_OBJECT
    Q_PROPERTY(double AsFloat READ GetAsDouble WRITE SetAsDouble NOTIFY asFloatChanged)
    Q_PROPERTY(double Scale READ GetScaleDouble WRITE SetScaleDouble NOTIFY scaleChanged)
    Q_PROPERTY(
        bool FullAccuracy READ GetFullAccuracy WRITE SetFullAccuracy NOTIFY fullAccuracyChanged)
    // Declared before the symbol and formats, so a form sets it first.
    Q_PROPERTY(qorkit::TQORCurrencyFormatType FormatType READ GetFormatType WRITE SetFormatType
                   NOTIFY formatTypeChanged)
    Q_PROPERTY(
        QString CurrencyStr READ GetCurrencyStr WRITE SetCurrencyStr NOTIFY currencyStrChanged)
    Q_PROPERTY(qorkit::TCurrencyFormatType CurrencyFormat READ GetCurrencyFormat WRITE
                   SetCurrencyFormat NOTIFY currencyFormatChanged)
    Q_PROPERTY(qorkit::TNegativeFormatType NegativeFormat READ GetNegativeFormat WRITE
                   SetNegativeFormat NOTIFY negativeFormatChanged)
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(double BoundLower READ GetBoundLowerDouble WRITE SetBoundLowerDouble NOTIFY
                   boundLowerChanged)
    Q_PROPERTY(double BoundUpper READ GetBoundUpperDouble WRITE SetBoundUpperDouble NOTIFY
                   boundUpperChanged)
    Q_PROPERTY(qorkit::TQORThousandSeparators ThousandSeparators READ GetThousandSeparators WRITE
                   SetThousandSeparators NOTIFY thousandSeparatorsChanged)
    Q_PROPERTY(bool ShowThousandSeparators READ GetShowThousandSeparators WRITE
                   SetShowThousandSeparators NOTIFY showThousandSeparatorsChanged)
    Q_PROPERTY(bool CustomSeparators READ GetCustomSeparators WRITE SetCustomSeparators NOTIFY
                   customSeparatorsChanged)
    Q_PROPERTY(QChar CustomThousands READ GetCustomThousandsChar WRITE SetCustomThousandsChar NOTIFY
                   customThousandsChanged)
    Q_PROPERTY(QChar CustomDecimal READ GetCustomDecimalChar WRITE SetCustomDecimalChar NOTIFY
                   customDecimalChanged)

public:
    explicit TQORBaseCurrEdit(QWidget* parent = nullptr);

    // The stored value (brought up to date from text being typed); 0 while null.
    Extended GetAsFloat();
    // Refused (old value kept, reported) when not finite or out of range.
    void SetAsFloat(Extended value);
    Extended GetValue() { return GetAsFloat(); }
    void SetValue(Extended value) { SetAsFloat(value); }
    // Stored units per unit shown; a value that is not finite and positive is ignored.
    Extended GetScale() const { return scale_; }
    void SetScale(Extended value);
    // The amount shown: the stored value / Scale.
    Extended GetScaledFloat();
    // Stores amount * Scale and shows it; refused like SetAsFloat.
    void SetScaledFloat(Extended amount);
    // The store of typed text: checked like SetScaledFloat, but the text being edited is left
    // as it is. False when refused.
    bool SetScaledFloat2(Extended amount);

    bool GetFullAccuracy() const { return fullAccuracy_; }
    void SetFullAccuracy(bool value);
    TQORCurrencyFormatType GetFormatType() const { return formatType_; }
    void SetFormatType(TQORCurrencyFormatType value);
    QString GetCurrencyStr() const { return currencyStr_; }
    // Only with FormatType cftCustom; otherwise refused (reported in design mode only).
    void SetCurrencyStr(const QString& value);
    TCurrencyFormatType GetCurrencyFormat() const { return currencyFormat_; }
    void SetCurrencyFormat(TCurrencyFormatType value);
    TNegativeFormatType GetNegativeFormat() const { return negativeFormat_; }
    void SetNegativeFormat(TNegativeFormatType value);
    std::uint8_t GetDecimalPlaces() const { return decimals_; }
    // More than GetMaxDecimals() is refused with a message; the old setting stays.
    void SetDecimals(std::uint8_t value);
    void SetDecimalPlaces(std::uint8_t value) { SetDecimals(value); }
    std::uint8_t GetMaxDecimals() const { return maxDecimals_; }
    bool GetBlankWhenZero() const { return blankWhenZero_; }
    void SetBlankWhenZero(bool value);
    // Bounds of the amount shown, in force when BoundLower < BoundUpper.
    Extended GetBoundLower() const { return boundLower_; }
    void SetBoundLower(Extended value);
    Extended GetBoundUpper() const { return boundUpper_; }
    void SetBoundUpper(Extended value);
    TQORThousandSeparators GetThousandSeparators() const { return thousandSeparators_; }
    void SetThousandSeparators(TQORThousandSeparators value);
    bool GetShowThousandSeparators() const { return showThousandSeparators_; }
    void SetShowThousandSeparators(bool value);
    bool GetCustomSeparators() const { return customSeparators_; }
    void SetCustomSeparators(bool value);
    char GetCustomThousands() const { return customThousands_; }
    void SetCustomThousands(char value);
    char GetCustomDecimal() const { return customDecimal_; }
    void SetCustomDecimal(char value);

    // Form designers set this: refused currency-format changes are then reported.
    bool GetDesignMode() const { return designMode_; }
    void SetDesignMode(bool value) { designMode_ = value; }

    // The separators, symbol and positions in force at this moment.
    char DecimalChar() const;
    char ThousandChar() const; // 0 when grouping is impossible (it equals the decimal one)
    QString CurrencySymbol() const;
    TCurrencyFormatType PositiveFormatInForce() const;
    TNegativeFormatType NegativeFormatInForce() const;
    // An amount as the edit shows it, with and without symbol and sign.
    QString FormatCurrency(Extended amount) const;
    QString FormatAmount(Extended amount) const;

    // Groups the integer digits of the text being typed, keeping the caret after the same
    // digit, and clears the selection.
    void DoThousands();

    void SetOnConvert(TQORCurrConvertEvent e) { onConvert_ = std::move(e); }
    const TQORCurrConvertEvent& GetOnConvert() const { return onConvert_; }

Q_SIGNALS:
    // Raised before the built-in conversion of `text`; a listener that sets *handled to true
    // supplies *value instead (as OnConvert does).
    void convert(const QString& text, qorkit::Extended* value, bool* handled);

    void asFloatChanged();
    void scaleChanged();
    void fullAccuracyChanged();
    void formatTypeChanged();
    void currencyStrChanged();
    void currencyFormatChanged();
    void negativeFormatChanged();
    void decimalPlacesChanged();
    void blankWhenZeroChanged();
    void boundLowerChanged();
    void boundUpperChanged();
    void thousandSeparatorsChanged();
    void showThousandSeparatorsChanged();
    void customSeparatorsChanged();
    void customThousandsChanged();
    void customDecimalChanged();

protected:
    QString DisplayText() const override;
    void Convert2Value() override;
    bool DoBoundsValidation() override;
    bool ConvertWhenUnchanged() const override;
    void KeyDown(QKeyEvent* event) override;
    void KeyUp(QKeyEvent* event) override;

    // Per class: the most decimals, whether negative amounts exist, and the change signals
    // of the class's amount property (old and new stored value).
    void SetMaxDecimals(std::uint8_t value);
    virtual bool AllowsNegative() const { return true; }
    virtual void AmountChanged(Extended oldValue, Extended newValue);
    // The amount under validation (pending stored value / Scale) within the bounds.
    bool AmountInBounds() const;
    // The stored value under validation.
    Extended PendingValue() const { return pending_; }
    // Reports a refused setting (decimals, currency formats).
    void ShowError(const QString& message);

private:
    double GetAsDouble() { return static_cast<double>(GetAsFloat()); }
    void SetAsDouble(double value) { SetAsFloat(value); }
    double GetScaleDouble() const { return static_cast<double>(scale_); }
    void SetScaleDouble(double value) { SetScale(value); }
    int GetDecimalPlacesValue() const { return decimals_; }
    void SetDecimalPlacesValue(int value);
    double GetBoundLowerDouble() const { return static_cast<double>(boundLower_); }
    void SetBoundLowerDouble(double value) { SetBoundLower(value); }
    double GetBoundUpperDouble() const { return static_cast<double>(boundUpper_); }
    void SetBoundUpperDouble(double value) { SetBoundUpper(value); }
    QChar GetCustomDecimalChar() const { return QLatin1Char(customDecimal_); }
    void SetCustomDecimalChar(QChar value) { SetCustomDecimal(value.toLatin1()); }
    QChar GetCustomThousandsChar() const { return QLatin1Char(customThousands_); }
    void SetCustomThousandsChar(QChar value) { SetCustomThousands(value.toLatin1()); }
    template<typename T> bool Restyle(T& field, T value, void (TQORBaseCurrEdit::*changed)());
    // Checks and stores a stored value; `shown` names it in a refusal.
    bool Store(Extended value, const QString& shown, bool redisplay);
    void StoreValue(Extended value);

    Extended value_ = 0;
    Extended pending_ = 0;
    Extended scale_ = 1;
    bool fullAccuracy_ = false;
    TQORCurrencyFormatType formatType_ = cftRegional;
    QString currencyStr_;
    TCurrencyFormatType currencyFormat_;
    TNegativeFormatType negativeFormat_;
    std::uint8_t decimals_;
    std::uint8_t maxDecimals_ = 18;
    bool blankWhenZero_ = false;
    Extended boundLower_ = 0;
    Extended boundUpper_ = 0;
    TQORThousandSeparators thousandSeparators_ = tsLocale;
    bool showThousandSeparators_ = true;
    bool customSeparators_ = false;
    char customThousands_;
    char customDecimal_;
    bool designMode_ = false;
    bool grouping_ = false;
    TQORCurrConvertEvent onConvert_;
};

// Amounts as a signed 32-bit count of minor units (Scale 100: cents).
class QORKIT_WIDGETS_EXPORT TQORCurrEdit : public TQORBaseCurrEdit {
    Q_OBJECT
    Q_PROPERTY(int AsQORCurrency READ GetAsQORCurrency WRITE SetAsQORCurrency NOTIFY
                   asQORCurrencyChanged STORED false)
    Q_PROPERTY(double AsScaledCurrency READ GetAsScaledCurrencyDouble WRITE
                   SetAsScaledCurrencyDouble NOTIFY asScaledCurrencyChanged STORED false)

public:
    explicit TQORCurrEdit(QWidget* parent = nullptr);

    // The stored value rounded to whole minor units.
    TQORCurrency GetAsQORCurrency();
    void SetAsQORCurrency(TQORCurrency value) { SetAsFloat(value); }
    // The amount shown as the host's fixed-point currency.
    Currency GetAsScaledCurrency();
    void SetAsScaledCurrency(Currency value) { SetScaledFloat(value.ToExtended()); }

Q_SIGNALS:
    void asQORCurrencyChanged();
    void asScaledCurrencyChanged();

protected:
    bool DoBoundsValidation() override;
    void AmountChanged(Extended oldValue, Extended newValue) override;

private:
    double GetAsScaledCurrencyDouble();
    void SetAsScaledCurrencyDouble(double value) { SetScaledFloat(value); }
};

// Amounts as the unsigned 32-bit count of minor units (Scale 100); never negative.
class QORKIT_WIDGETS_EXPORT TQORLongCurrEdit : public TQORBaseCurrEdit {
    Q_OBJECT
    Q_PROPERTY(uint AsQORLongCurrency READ GetAsQORLongCurrency WRITE SetAsQORLongCurrency NOTIFY
                   asQORLongCurrencyChanged STORED false)

public:
    explicit TQORLongCurrEdit(QWidget* parent = nullptr);

    TQORLongCurrency GetAsQORLongCurrency();
    void SetAsQORLongCurrency(TQORLongCurrency value) { SetAsFloat(value); }

Q_SIGNALS:
    void asQORLongCurrencyChanged();

protected:
    bool DoBoundsValidation() override;
    bool AllowsNegative() const override { return false; }
    void AmountChanged(Extended oldValue, Extended newValue) override;
};

// Amounts as the host's fixed-point Currency (four decimals).
class QORKIT_WIDGETS_EXPORT TQORCurrencyEdit : public TQORBaseCurrEdit {
    Q_OBJECT
    Q_PROPERTY(double AsCurrency READ GetAsCurrencyDouble WRITE SetAsCurrencyDouble NOTIFY
                   asCurrencyChanged STORED false)

public:
    explicit TQORCurrencyEdit(QWidget* parent = nullptr);

    Currency GetAsCurrency();
    void SetAsCurrency(Currency value) { SetAsFloat(value.ToExtended()); }

Q_SIGNALS:
    void asCurrencyChanged();

protected:
    bool DoBoundsValidation() override;
    void AmountChanged(Extended oldValue, Extended newValue) override;

private:
    double GetAsCurrencyDouble() { return static_cast<double>(GetAsCurrency().ToExtended()); }
    void SetAsCurrencyDouble(double value) { SetAsFloat(value); }
};

} // namespace qorkit
