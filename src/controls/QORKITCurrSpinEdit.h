// Currency spin edits: a currency edit with up and down arrows (TQORBaseSpinEdit: the clamp
// of SetValue, UpClick/DownClick with the deliberate two-click wrap, the held arrow repeating
// every Interval milliseconds, Page Up/Down stepping by PageStep, Up/Down keys and the mouse
// wheel stepping by Step, and the Arrows styles). A click raises OnUpClick (OnDownClick)
// before the step and OnAfterUpClick (OnAfterDownClick) after it, with the arrow button as
// the sender; the inner edit's OnChange, OnNull and OnSpecialColor come from this control.
//
// Max, Min, Value, Step and PageStep are stored values of the class's amount type: cents for
// TQORCurrSpinEdit (signed) and TQORLongCurrSpinEdit (unsigned), so Step 100 moves the amount
// shown by 1.00; the fixed-point Currency itself for TQORCurrencySpinEdit. The cent classes
// start with Max 10000 (100.00), Step 100 and PageStep 1000; the Currency class with Max 100,
// Step 1 and PageStep 10.
#pragma once

#include "QORKITBaseControls.h"
#include "QORKITCurrEdit.h"
#include "QORKITCurrForwarders.h"
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace qorkit {

// The currency settings (FormatType ... CustomSeparators) and OnSpecialColor are the inner
// edit's, through TQORCurrForwarders; the edit settings below are forwarded here.
class QORKIT_WIDGETS_EXPORT TQORBaseCurrSpinEdit : public TQORBaseSpinEdit,
                                                   public TQORCurrForwarders {
    Q_OBJECT
    Q_PROPERTY(double AsFloat READ GetAsDouble WRITE SetAsDouble NOTIFY asFloatChanged)
    Q_PROPERTY(bool StoreValue READ GetStoreValue WRITE SetStoreValue NOTIFY storeValueChanged)
    Q_PROPERTY(qorkit::TQORCurrencyFormatType FormatType READ GetFormatType WRITE SetFormatType
                   NOTIFY formatTypeChanged)
    Q_PROPERTY(Qt::Alignment Alignment READ GetAlignment WRITE SetAlignment NOTIFY alignmentChanged)
    Q_PROPERTY(bool AutoSelectClick READ GetAutoSelectClick WRITE SetAutoSelectClick NOTIFY
                   autoSelectClickChanged)
    Q_PROPERTY(bool AutoSelect READ GetAutoSelect WRITE SetAutoSelect NOTIFY autoSelectChanged)
    Q_PROPERTY(
        bool AllowKbdNull READ GetAllowKbdNull WRITE SetAllowKbdNull NOTIFY allowKbdNullChanged)
    Q_PROPERTY(
        bool BlankWhenNull READ GetBlankWhenNull WRITE SetBlankWhenNull NOTIFY blankWhenNullChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(bool BlankIsNull READ GetBlankIsNull WRITE SetBlankIsNull NOTIFY blankIsNullChanged)
    Q_PROPERTY(qorkit::TCurrencyFormatType CurrencyFormat READ GetCurrencyFormat WRITE
                   SetCurrencyFormat NOTIFY currencyFormatChanged)
    Q_PROPERTY(
        QString CurrencyStr READ GetCurrencyStr WRITE SetCurrencyStr NOTIFY currencyStrChanged)
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(int MaxLength READ GetMaxLength WRITE SetMaxLength NOTIFY maxLengthChanged)
    Q_PROPERTY(qorkit::TNegativeFormatType NegativeFormat READ GetNegativeFormat WRITE
                   SetNegativeFormat NOTIFY negativeFormatChanged)
    Q_PROPERTY(bool Null READ GetNull WRITE SetNull NOTIFY nullChanged)
    Q_PROPERTY(QString NullStr READ GetNullStr WRITE SetNullStr NOTIFY nullStrChanged)
    Q_PROPERTY(qorkit::TQORThousandSeparators ThousandSeparators READ GetThousandSeparators WRITE
                   SetThousandSeparators NOTIFY thousandSeparatorsChanged)
    Q_PROPERTY(bool ShowThousandSeparators READ GetShowThousandSeparators WRITE
                   SetShowThousandSeparators NOTIFY showThousandSeparatorsChanged)
    Q_PROPERTY(bool TabStop READ GetTabStop WRITE SetTabStop NOTIFY tabStopChanged)
    Q_PROPERTY(QString Text READ GetText WRITE SetAsString NOTIFY asStringChanged STORED false)
    Q_PROPERTY(QString AsString READ GetText WRITE SetAsString NOTIFY asStringChanged STORED false)
    Q_PROPERTY(QChar CustomThousands READ GetCustomThousandsChar WRITE SetCustomThousandsChar NOTIFY
                   customThousandsChanged)
    Q_PROPERTY(QChar CustomDecimal READ GetCustomDecimalChar WRITE SetCustomDecimalChar NOTIFY
                   customDecimalChanged)
    Q_PROPERTY(bool CustomSeparators READ GetCustomSeparators WRITE SetCustomSeparators NOTIFY
                   customSeparatorsChanged)

public:
    // The stored value of the inner edit (the amount type's units), unclamped.
    Extended GetAsFloat() { return GetCurrEdit()->GetAsFloat(); }
    // Clamped to Min/Max like SetValue.
    void SetAsFloat(Extended value) { SetValue(value); }

    bool GetStoreValue() const { return GetCurrEdit()->GetStoreValue(); }
    void SetStoreValue(bool value) { GetCurrEdit()->SetStoreValue(value); }
    Qt::Alignment GetAlignment() const { return GetCurrEdit()->GetAlignment(); }
    void SetAlignment(Qt::Alignment value) { GetCurrEdit()->SetAlignment(value); }
    bool GetAutoSelectClick() const { return GetCurrEdit()->GetAutoSelectClick(); }
    void SetAutoSelectClick(bool value) { GetCurrEdit()->SetAutoSelectClick(value); }
    bool GetAutoSelect() const { return GetCurrEdit()->GetAutoSelect(); }
    void SetAutoSelect(bool value) { GetCurrEdit()->SetAutoSelect(value); }
    bool GetAllowKbdNull() const { return GetCurrEdit()->GetAllowKbdNull(); }
    void SetAllowKbdNull(bool value) { GetCurrEdit()->SetAllowKbdNull(value); }
    bool GetBlankWhenNull() const { return GetCurrEdit()->GetBlankWhenNull(); }
    void SetBlankWhenNull(bool value) { GetCurrEdit()->SetBlankWhenNull(value); }
    bool GetBlankIsNull() const { return GetCurrEdit()->GetBlankIsNull(); }
    void SetBlankIsNull(bool value) { GetCurrEdit()->SetBlankIsNull(value); }
    std::uint8_t GetDecimalPlaces() const { return GetCurrEdit()->GetDecimalPlaces(); }
    void SetDecimalPlaces(std::uint8_t value) { GetCurrEdit()->SetDecimals(value); }
    int GetMaxLength() const { return GetCurrEdit()->GetMaxLength(); }
    void SetMaxLength(int value) { GetCurrEdit()->SetMaxLength(value); }
    bool GetNull() const { return GetCurrEdit()->GetNull(); }
    void SetNull(bool value) { GetCurrEdit()->SetNull(value); }
    QString GetNullStr() const { return GetCurrEdit()->GetNullStr(); }
    void SetNullStr(const QString& value) { GetCurrEdit()->SetNullStr(value); }
    bool GetTabStop() const { return GetCurrEdit()->GetTabStop(); }
    void SetTabStop(bool value) { GetCurrEdit()->SetTabStop(value); }
    QString GetText() const { return GetCurrEdit()->text(); }
    void SetAsString(const QString& value) { GetCurrEdit()->SetAsString(value); }

    // The inner edit's events, with this control as the sender (and as the signals below);
    // OnSpecialColor likewise.
    void SetOnChange(TQORNotifyEvent e) { onChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnChange() const { return onChange_; }
    void SetOnNull(TQORNotifyEvent e) { onNull_ = std::move(e); }
    const TQORNotifyEvent& GetOnNull() const { return onNull_; }

Q_SIGNALS:
    void change();
    void null();
    void specialColor(QColor* background, QColor* text);

    void asFloatChanged();
    void storeValueChanged();
    void formatTypeChanged();
    void alignmentChanged();
    void autoSelectClickChanged();
    void autoSelectChanged();
    void allowKbdNullChanged();
    void blankWhenNullChanged();
    void blankWhenZeroChanged();
    void blankIsNullChanged();
    void currencyFormatChanged();
    void currencyStrChanged();
    void decimalPlacesChanged();
    void maxLengthChanged();
    void negativeFormatChanged();
    void nullChanged();
    void nullStrChanged();
    void thousandSeparatorsChanged();
    void showThousandSeparatorsChanged();
    void tabStopChanged();
    void asStringChanged();
    void customThousandsChanged();
    void customDecimalChanged();
    void customSeparatorsChanged();

protected:
    // Takes `edit` (a new currency edit) as the inner edit.
    TQORBaseCurrSpinEdit(TQORBaseCurrEdit* edit, QWidget* parent);

    Extended ReadEditorValue() override { return GetCurrEdit()->GetAsFloat(); }
    void WriteEditorValue(Extended value) override { GetCurrEdit()->SetAsFloat(value); }
    // Unbounded is kept as a setting only: SetValue and the arrows always stay within Min and
    // Max here.
    bool Clamps() const override { return true; }

    // Typed views of the range for the amount classes' properties, clamped to `T`.
    template<typename T> static T ToAmount(Extended value)
    {
        return static_cast<T>(std::clamp<Extended>(
            std::round(value), std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
    }

private:
    double GetAsDouble() { return static_cast<double>(GetAsFloat()); }
    void SetAsDouble(double value) { SetAsFloat(value); }
    int GetDecimalPlacesValue() const { return GetDecimalPlaces(); }
    void SetDecimalPlacesValue(int value)
    {
        SetDecimalPlaces(static_cast<std::uint8_t>(std::clamp(value, 0, 255)));
    }

    TQORNotifyEvent onChange_;
    TQORNotifyEvent onNull_;
};

// Max, Min, Value, Step and the amount AsQORCurrency in signed 32-bit cents.
class QORKIT_WIDGETS_EXPORT TQORCurrSpinEdit : public TQORBaseCurrSpinEdit {
    Q_OBJECT
    Q_PROPERTY(int Max READ GetMaxAmount WRITE SetMaxAmount NOTIFY maxChanged)
    Q_PROPERTY(int Min READ GetMinAmount WRITE SetMinAmount NOTIFY minChanged)
    Q_PROPERTY(int Value READ GetValueAmount WRITE SetValueAmount NOTIFY valueChanged)
    Q_PROPERTY(int AsQORCurrency READ GetAsQORCurrency WRITE SetAsQORCurrency NOTIFY
                   asQORCurrencyChanged STORED false)
    Q_PROPERTY(int Step READ GetStepAmount WRITE SetStepAmount NOTIFY stepChanged)

public:
    explicit TQORCurrSpinEdit(QWidget* parent = nullptr);
    TQORCurrEdit* GetEditor() const { return static_cast<TQORCurrEdit*>(GetCurrEdit()); }
    TQORCurrency GetAsQORCurrency() { return GetEditor()->GetAsQORCurrency(); }
    // Clamped to Min/Max.
    void SetAsQORCurrency(TQORCurrency value) { SetValue(value); }

Q_SIGNALS:
    void asQORCurrencyChanged();

private:
    int GetMaxAmount() const { return ToAmount<TQORCurrency>(GetMax()); }
    void SetMaxAmount(int value) { SetMax(value); }
    int GetMinAmount() const { return ToAmount<TQORCurrency>(GetMin()); }
    void SetMinAmount(int value) { SetMin(value); }
    int GetValueAmount() { return GetAsQORCurrency(); }
    void SetValueAmount(int value) { SetValue(value); }
    int GetStepAmount() const { return ToAmount<TQORCurrency>(GetStep()); }
    void SetStepAmount(int value) { SetStep(value); }
};

// Max, Min, Value, Step and the amount AsQORLongCurrency in unsigned 32-bit cents.
class QORKIT_WIDGETS_EXPORT TQORLongCurrSpinEdit : public TQORBaseCurrSpinEdit {
    Q_OBJECT
    Q_PROPERTY(uint Max READ GetMaxAmount WRITE SetMaxAmount NOTIFY maxChanged)
    Q_PROPERTY(uint Min READ GetMinAmount WRITE SetMinAmount NOTIFY minChanged)
    Q_PROPERTY(uint Value READ GetValueAmount WRITE SetValueAmount NOTIFY valueChanged)
    Q_PROPERTY(uint AsQORLongCurrency READ GetAsQORLongCurrency WRITE SetAsQORLongCurrency NOTIFY
                   asQORLongCurrencyChanged STORED false)
    Q_PROPERTY(uint Step READ GetStepAmount WRITE SetStepAmount NOTIFY stepChanged)

public:
    explicit TQORLongCurrSpinEdit(QWidget* parent = nullptr);
    TQORLongCurrEdit* GetEditor() const { return static_cast<TQORLongCurrEdit*>(GetCurrEdit()); }
    TQORLongCurrency GetAsQORLongCurrency() { return GetEditor()->GetAsQORLongCurrency(); }
    // Clamped to Min/Max.
    void SetAsQORLongCurrency(TQORLongCurrency value) { SetValue(value); }

Q_SIGNALS:
    void asQORLongCurrencyChanged();

private:
    uint GetMaxAmount() const { return ToAmount<TQORLongCurrency>(GetMax()); }
    void SetMaxAmount(uint value) { SetMax(value); }
    uint GetMinAmount() const { return ToAmount<TQORLongCurrency>(GetMin()); }
    void SetMinAmount(uint value) { SetMin(value); }
    uint GetValueAmount() { return GetAsQORLongCurrency(); }
    void SetValueAmount(uint value) { SetValue(value); }
    uint GetStepAmount() const { return ToAmount<TQORLongCurrency>(GetStep()); }
    void SetStepAmount(uint value) { SetStep(value); }
};

// Max, Min, Value, Step and the amount AsCurrency in the host's fixed-point Currency.
class QORKIT_WIDGETS_EXPORT TQORCurrencySpinEdit : public TQORBaseCurrSpinEdit {
    Q_OBJECT
    Q_PROPERTY(double AsCurrency READ GetAsCurrencyDouble WRITE SetAsCurrencyDouble NOTIFY
                   asCurrencyChanged STORED false)

public:
    explicit TQORCurrencySpinEdit(QWidget* parent = nullptr);
    TQORCurrencyEdit* GetEditor() const { return static_cast<TQORCurrencyEdit*>(GetCurrEdit()); }
    Currency GetAsCurrency() { return GetEditor()->GetAsCurrency(); }
    // Clamped to Min/Max.
    void SetAsCurrency(Currency value) { SetValue(value.ToExtended()); }

Q_SIGNALS:
    void asCurrencyChanged();

private:
    double GetAsCurrencyDouble() { return static_cast<double>(GetAsCurrency().ToExtended()); }
    void SetAsCurrencyDouble(double value) { SetValue(value); }
};

} // namespace qorkit
