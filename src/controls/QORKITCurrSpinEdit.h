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
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORBaseCurrSpinEdit : public TQORBaseSpinEdit {
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
    TQORBaseCurrEdit* GetCurrEdit() const { return currEdit_; }

    // The stored value of the inner edit (the amount type's units), unclamped.
    Extended GetAsFloat() { return currEdit_->GetAsFloat(); }
    // Clamped to Min/Max like SetValue.
    void SetAsFloat(Extended value) { SetValue(value); }

    bool GetStoreValue() const { return currEdit_->GetStoreValue(); }
    void SetStoreValue(bool value) { currEdit_->SetStoreValue(value); }
    TQORCurrencyFormatType GetFormatType() const { return currEdit_->GetFormatType(); }
    void SetFormatType(TQORCurrencyFormatType value) { currEdit_->SetFormatType(value); }
    Qt::Alignment GetAlignment() const { return currEdit_->GetAlignment(); }
    void SetAlignment(Qt::Alignment value) { currEdit_->SetAlignment(value); }
    bool GetAutoSelectClick() const { return currEdit_->GetAutoSelectClick(); }
    void SetAutoSelectClick(bool value) { currEdit_->SetAutoSelectClick(value); }
    bool GetAutoSelect() const { return currEdit_->GetAutoSelect(); }
    void SetAutoSelect(bool value) { currEdit_->SetAutoSelect(value); }
    bool GetAllowKbdNull() const { return currEdit_->GetAllowKbdNull(); }
    void SetAllowKbdNull(bool value) { currEdit_->SetAllowKbdNull(value); }
    bool GetBlankWhenNull() const { return currEdit_->GetBlankWhenNull(); }
    void SetBlankWhenNull(bool value) { currEdit_->SetBlankWhenNull(value); }
    bool GetBlankWhenZero() const { return currEdit_->GetBlankWhenZero(); }
    void SetBlankWhenZero(bool value) { currEdit_->SetBlankWhenZero(value); }
    bool GetBlankIsNull() const { return currEdit_->GetBlankIsNull(); }
    void SetBlankIsNull(bool value) { currEdit_->SetBlankIsNull(value); }
    TCurrencyFormatType GetCurrencyFormat() const { return currEdit_->GetCurrencyFormat(); }
    void SetCurrencyFormat(TCurrencyFormatType value) { currEdit_->SetCurrencyFormat(value); }
    QString GetCurrencyStr() const { return currEdit_->GetCurrencyStr(); }
    // Only with FormatType cftCustom, as on the currency edit.
    void SetCurrencyStr(const QString& value) { currEdit_->SetCurrencyStr(value); }
    std::uint8_t GetDecimalPlaces() const { return currEdit_->GetDecimalPlaces(); }
    void SetDecimalPlaces(std::uint8_t value) { currEdit_->SetDecimals(value); }
    int GetMaxLength() const { return currEdit_->GetMaxLength(); }
    void SetMaxLength(int value) { currEdit_->SetMaxLength(value); }
    TNegativeFormatType GetNegativeFormat() const { return currEdit_->GetNegativeFormat(); }
    void SetNegativeFormat(TNegativeFormatType value) { currEdit_->SetNegativeFormat(value); }
    bool GetNull() const { return currEdit_->GetNull(); }
    void SetNull(bool value) { currEdit_->SetNull(value); }
    QString GetNullStr() const { return currEdit_->GetNullStr(); }
    void SetNullStr(const QString& value) { currEdit_->SetNullStr(value); }
    TQORThousandSeparators GetThousandSeparators() const
    {
        return currEdit_->GetThousandSeparators();
    }
    void SetThousandSeparators(TQORThousandSeparators value)
    {
        currEdit_->SetThousandSeparators(value);
    }
    bool GetShowThousandSeparators() const { return currEdit_->GetShowThousandSeparators(); }
    void SetShowThousandSeparators(bool value) { currEdit_->SetShowThousandSeparators(value); }
    bool GetTabStop() const { return currEdit_->GetTabStop(); }
    void SetTabStop(bool value) { currEdit_->SetTabStop(value); }
    QString GetText() const { return currEdit_->text(); }
    void SetAsString(const QString& value) { currEdit_->SetAsString(value); }
    char GetCustomThousands() const { return currEdit_->GetCustomThousands(); }
    void SetCustomThousands(char value) { currEdit_->SetCustomThousands(value); }
    char GetCustomDecimal() const { return currEdit_->GetCustomDecimal(); }
    void SetCustomDecimal(char value) { currEdit_->SetCustomDecimal(value); }
    bool GetCustomSeparators() const { return currEdit_->GetCustomSeparators(); }
    void SetCustomSeparators(bool value) { currEdit_->SetCustomSeparators(value); }

    // The inner edit's events, with this control as the sender (and as the signals below).
    void SetOnChange(TQORNotifyEvent e) { onChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnChange() const { return onChange_; }
    void SetOnNull(TQORNotifyEvent e) { onNull_ = std::move(e); }
    const TQORNotifyEvent& GetOnNull() const { return onNull_; }
    void SetOnSpecialColor(TQORSpecialColorEvent e) { onSpecialColor_ = std::move(e); }
    const TQORSpecialColorEvent& GetOnSpecialColor() const { return onSpecialColor_; }

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

    Extended ReadEditorValue() override { return currEdit_->GetAsFloat(); }
    void WriteEditorValue(Extended value) override { currEdit_->SetAsFloat(value); }

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
    QChar GetCustomDecimalChar() const { return QLatin1Char(GetCustomDecimal()); }
    void SetCustomDecimalChar(QChar value) { SetCustomDecimal(value.toLatin1()); }
    QChar GetCustomThousandsChar() const { return QLatin1Char(GetCustomThousands()); }
    void SetCustomThousandsChar(QChar value) { SetCustomThousands(value.toLatin1()); }

    TQORBaseCurrEdit* currEdit_;
    TQORNotifyEvent onChange_;
    TQORNotifyEvent onNull_;
    TQORSpecialColorEvent onSpecialColor_;
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
