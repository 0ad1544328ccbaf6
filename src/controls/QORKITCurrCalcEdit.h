// Currency calculator edits: the calculator edit (TQORCalcEditBase: the button, the whole
// hand-off, the placement under or above the edit and the glyph) with a currency edit inside
// in place of the float edit. The button opens the standard calculator.
//
// The value the calculator works on (GetValue, AsFloat) is the amount the edit shows, the
// stored value / Scale: 1234 cents shown as 12.34 open the calculator with 12.34. An accepted
// result, and any value set through SetValue/AsFloat, is rounded to the edit's decimals as a
// money field rounds, halves away from zero (12.345 -> 12.35, -12.345 -> -12.35), and stored
// as amount * Scale; a result outside the amount type's range is refused and the old value
// stays, as typed text would be.
//
// OnStartPopup is raised when the button press goes ahead (after OnCalcClick, before any
// calculator opens), OnEndPopup when it is over (after OnCalcClickEnd).
#pragma once

#include "QORKITCalcEdit.h"
#include "QORKITCalculator.h"
#include "QORKITCurrEdit.h"
#include "QORKITCurrForwarders.h"
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

namespace qorkit {

// The currency settings (FormatType ... CustomSeparators) and OnSpecialColor are the inner
// edit's, through TQORCurrForwarders.
class QORKIT_WIDGETS_EXPORT TQORCurrCalcEditBase : public TQORCalcEditBase,
                                                   public TQORCurrForwarders {
    Q_OBJECT
    Q_PROPERTY(TQORCalculator* CalculatorControl READ GetCalculatorControl WRITE
                   SetCalculatorControl NOTIFY calculatorControlChanged)
    Q_PROPERTY(qorkit::TQORCurrencyFormatType FormatType READ GetFormatType WRITE SetFormatType
                   NOTIFY formatTypeChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(qorkit::TCurrencyFormatType CurrencyFormat READ GetCurrencyFormat WRITE
                   SetCurrencyFormat NOTIFY currencyFormatChanged)
    Q_PROPERTY(
        QString CurrencyStr READ GetCurrencyStr WRITE SetCurrencyStr NOTIFY currencyStrChanged)
    Q_PROPERTY(qorkit::TNegativeFormatType NegativeFormat READ GetNegativeFormat WRITE
                   SetNegativeFormat NOTIFY negativeFormatChanged)
    Q_PROPERTY(qorkit::TQORThousandSeparators ThousandSeparators READ GetThousandSeparators WRITE
                   SetThousandSeparators NOTIFY thousandSeparatorsChanged)
    Q_PROPERTY(bool ShowThousandSeparators READ GetShowThousandSeparators WRITE
                   SetShowThousandSeparators NOTIFY showThousandSeparatorsChanged)
    Q_PROPERTY(QChar CustomDecimal READ GetCustomDecimalChar WRITE SetCustomDecimalChar NOTIFY
                   customDecimalChanged)
    Q_PROPERTY(QChar CustomThousands READ GetCustomThousandsChar WRITE SetCustomThousandsChar NOTIFY
                   customThousandsChanged)
    Q_PROPERTY(bool CustomSeparators READ GetCustomSeparators WRITE SetCustomSeparators NOTIFY
                   customSeparatorsChanged)

public:
    // The amount shown (see the top of this header).
    Extended GetValue() override { return GetCurrEdit()->GetScaledFloat(); }
    // Rounded to the decimals, halves away from zero; refused like typed text.
    void SetValue(Extended value) override;

    TQORCalculator* GetCalculatorControl() const;
    void SetCalculatorControl(TQORCalculator* calculator) { SetCalculatorComponent(calculator); }

    void SetOnStartPopup(TQORNotifyEvent e) { onStartPopup_ = std::move(e); }
    const TQORNotifyEvent& GetOnStartPopup() const { return onStartPopup_; }
    void SetOnEndPopup(TQORNotifyEvent e) { onEndPopup_ = std::move(e); }
    const TQORNotifyEvent& GetOnEndPopup() const { return onEndPopup_; }

Q_SIGNALS:
    void startPopup();
    void endPopup();
    void specialColor(QColor* background, QColor* text);

    void formatTypeChanged();
    void blankWhenZeroChanged();
    void currencyFormatChanged();
    void currencyStrChanged();
    void negativeFormatChanged();
    void thousandSeparatorsChanged();
    void showThousandSeparatorsChanged();
    void customDecimalChanged();
    void customThousandsChanged();
    void customSeparatorsChanged();

protected:
    // Takes `edit` (a new currency edit) as the inner edit.
    TQORCurrCalcEditBase(QWidget* parent, TQORBaseCurrEdit* edit);

    std::uint8_t CalcDecimals() const override { return GetCurrEdit()->GetDecimalPlaces(); }
    void SetCalcDecimals(std::uint8_t value) override { GetCurrEdit()->SetDecimals(value); }
    // A money amount keeps its decimals in the calculator.
    bool CalcTrimTrailingZeroes() const override { return false; }

private:
    TQORNotifyEvent onStartPopup_;
    TQORNotifyEvent onEndPopup_;
};

// Amount AsQORCurrency: a signed 32-bit count of cents.
class QORKIT_WIDGETS_EXPORT TQORCurrCalcEdit : public TQORCurrCalcEditBase {
    Q_OBJECT
    Q_PROPERTY(int AsQORCurrency READ GetAsQORCurrency WRITE SetAsQORCurrency NOTIFY
                   asQORCurrencyChanged STORED false)

public:
    explicit TQORCurrCalcEdit(QWidget* parent = nullptr);
    TQORCurrEdit* GetEditor() const { return static_cast<TQORCurrEdit*>(GetCurrEdit()); }
    TQORCurrency GetAsQORCurrency() { return GetEditor()->GetAsQORCurrency(); }
    void SetAsQORCurrency(TQORCurrency value) { GetEditor()->SetAsQORCurrency(value); }

Q_SIGNALS:
    void asQORCurrencyChanged();
};

// Amount AsQORLongCurrency: the unsigned 32-bit count of cents.
class QORKIT_WIDGETS_EXPORT TQORLongCurrCalcEdit : public TQORCurrCalcEditBase {
    Q_OBJECT
    Q_PROPERTY(uint AsQORLongCurrency READ GetAsQORLongCurrency WRITE SetAsQORLongCurrency NOTIFY
                   asQORLongCurrencyChanged STORED false)

public:
    explicit TQORLongCurrCalcEdit(QWidget* parent = nullptr);
    TQORLongCurrEdit* GetEditor() const { return static_cast<TQORLongCurrEdit*>(GetCurrEdit()); }
    TQORLongCurrency GetAsQORLongCurrency() { return GetEditor()->GetAsQORLongCurrency(); }
    void SetAsQORLongCurrency(TQORLongCurrency value) { GetEditor()->SetAsQORLongCurrency(value); }

Q_SIGNALS:
    void asQORLongCurrencyChanged();
};

// Amount AsCurrency: the host's fixed-point Currency; FullAccuracy as on the currency edit.
class QORKIT_WIDGETS_EXPORT TQORCurrencyCalcEdit : public TQORCurrCalcEditBase {
    Q_OBJECT
    Q_PROPERTY(double AsCurrency READ GetAsCurrencyDouble WRITE SetAsCurrencyDouble NOTIFY
                   asCurrencyChanged STORED false)
    Q_PROPERTY(
        bool FullAccuracy READ GetFullAccuracy WRITE SetFullAccuracy NOTIFY fullAccuracyChanged)

public:
    explicit TQORCurrencyCalcEdit(QWidget* parent = nullptr);
    TQORCurrencyEdit* GetEditor() const { return static_cast<TQORCurrencyEdit*>(GetCurrEdit()); }
    Currency GetAsCurrency() { return GetEditor()->GetAsCurrency(); }
    void SetAsCurrency(Currency value) { GetEditor()->SetAsCurrency(value); }
    bool GetFullAccuracy() const { return GetEditor()->GetFullAccuracy(); }
    void SetFullAccuracy(bool value) { GetEditor()->SetFullAccuracy(value); }

Q_SIGNALS:
    void asCurrencyChanged();
    void fullAccuracyChanged();

private:
    double GetAsCurrencyDouble() { return static_cast<double>(GetAsCurrency().ToExtended()); }
    void SetAsCurrencyDouble(double value) { GetEditor()->SetAsFloat(value); }
};

} // namespace qorkit
