// The currency settings of a compound control with a currency edit inside (the currency
// calculator edits, the currency spin edits): read from and written to the inner edit, whose
// change signals the control passes on as its own, and whose colour hook it raises with
// itself as the sender.
//
// Not a QObject: the control derives from its widget base first and from this second, keeps
// its own Q_PROPERTY lines and Q_SIGNALS (READ/WRITE may name the members here) and calls
// PassOnCurrencySignals(this) from its constructor. The control declares the signals
// formatTypeChanged, blankWhenZeroChanged, currencyFormatChanged, currencyStrChanged,
// negativeFormatChanged, thousandSeparatorsChanged, showThousandSeparatorsChanged,
// customDecimalChanged, customThousandsChanged, customSeparatorsChanged and
// specialColor(QColor*, QColor*).
#pragma once

#include "QORKITCurrEdit.h"
#include "qorkit_widgets_export.h"

#include <QChar>
#include <QColor>
#include <QObject>
#include <QString>

#include <functional>
#include <utility>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORCurrForwarders {
public:
    TQORBaseCurrEdit* GetCurrEdit() const { return currEdit_; }

    TQORCurrencyFormatType GetFormatType() const { return currEdit_->GetFormatType(); }
    void SetFormatType(TQORCurrencyFormatType value) { currEdit_->SetFormatType(value); }
    bool GetBlankWhenZero() const { return currEdit_->GetBlankWhenZero(); }
    void SetBlankWhenZero(bool value) { currEdit_->SetBlankWhenZero(value); }
    TCurrencyFormatType GetCurrencyFormat() const { return currEdit_->GetCurrencyFormat(); }
    void SetCurrencyFormat(TCurrencyFormatType value) { currEdit_->SetCurrencyFormat(value); }
    QString GetCurrencyStr() const { return currEdit_->GetCurrencyStr(); }
    // Only with FormatType cftCustom, as on the currency edit.
    void SetCurrencyStr(const QString& value) { currEdit_->SetCurrencyStr(value); }
    TNegativeFormatType GetNegativeFormat() const { return currEdit_->GetNegativeFormat(); }
    void SetNegativeFormat(TNegativeFormatType value) { currEdit_->SetNegativeFormat(value); }
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
    char GetCustomDecimal() const { return currEdit_->GetCustomDecimal(); }
    void SetCustomDecimal(char value) { currEdit_->SetCustomDecimal(value); }
    char GetCustomThousands() const { return currEdit_->GetCustomThousands(); }
    void SetCustomThousands(char value) { currEdit_->SetCustomThousands(value); }
    bool GetCustomSeparators() const { return currEdit_->GetCustomSeparators(); }
    void SetCustomSeparators(bool value) { currEdit_->SetCustomSeparators(value); }

    // The inner edit's colour hook, with the control as the sender.
    void SetOnSpecialColor(TQORSpecialColorEvent e) { onSpecialColor_ = std::move(e); }
    const TQORSpecialColorEvent& GetOnSpecialColor() const { return onSpecialColor_; }

protected:
    explicit TQORCurrForwarders(TQORBaseCurrEdit* edit) : currEdit_(edit) { }
    ~TQORCurrForwarders() = default;
    TQORCurrForwarders(const TQORCurrForwarders&) = delete;
    TQORCurrForwarders& operator=(const TQORCurrForwarders&) = delete;

    // Connects the inner edit's change signals of the settings above to the owner's signals of
    // the same names, and its colour hook to the owner's OnSpecialColor and specialColor.
    template<class Owner> void PassOnCurrencySignals(Owner* owner);

    // The character properties' views of CustomDecimal and CustomThousands.
    QChar GetCustomDecimalChar() const { return QLatin1Char(GetCustomDecimal()); }
    void SetCustomDecimalChar(QChar value) { SetCustomDecimal(value.toLatin1()); }
    QChar GetCustomThousandsChar() const { return QLatin1Char(GetCustomThousands()); }
    void SetCustomThousandsChar(QChar value) { SetCustomThousands(value.toLatin1()); }

private:
    // Raises OnSpecialColor (sender `owner`), then `emitSignal`, for each colour request of the
    // inner edit.
    void HookSpecialColor(QObject* owner, std::function<void(QColor*, QColor*)> emitSignal);

    TQORBaseCurrEdit* currEdit_;
    TQORSpecialColorEvent onSpecialColor_;
};

template<class Owner> void TQORCurrForwarders::PassOnCurrencySignals(Owner* owner)
{
    using EditSignal = void (TQORBaseCurrEdit::*)();
    using OwnSignal = void (Owner::*)();
    const std::pair<EditSignal, OwnSignal> forwarded[] = {
        {&TQORBaseCurrEdit::formatTypeChanged, &Owner::formatTypeChanged},
        {&TQORBaseCurrEdit::blankWhenZeroChanged, &Owner::blankWhenZeroChanged},
        {&TQORBaseCurrEdit::currencyFormatChanged, &Owner::currencyFormatChanged},
        {&TQORBaseCurrEdit::currencyStrChanged, &Owner::currencyStrChanged},
        {&TQORBaseCurrEdit::negativeFormatChanged, &Owner::negativeFormatChanged},
        {&TQORBaseCurrEdit::thousandSeparatorsChanged, &Owner::thousandSeparatorsChanged},
        {&TQORBaseCurrEdit::showThousandSeparatorsChanged, &Owner::showThousandSeparatorsChanged},
        {&TQORBaseCurrEdit::customDecimalChanged, &Owner::customDecimalChanged},
        {&TQORBaseCurrEdit::customThousandsChanged, &Owner::customThousandsChanged},
        {&TQORBaseCurrEdit::customSeparatorsChanged, &Owner::customSeparatorsChanged},
    };
    for (const auto& [from, to] : forwarded)
        QObject::connect(currEdit_, from, owner, to);
    HookSpecialColor(owner, [owner](QColor* background, QColor* text) {
        Q_EMIT owner->specialColor(background, text);
    });
}

} // namespace qorkit
