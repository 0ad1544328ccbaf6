#include "QORKITCurrSpinEdit.h"

#include <utility>

namespace qorkit {

// ---- TQORBaseCurrSpinEdit ----------------------------------------------------------------------

TQORBaseCurrSpinEdit::TQORBaseCurrSpinEdit(TQORBaseCurrEdit* edit, QWidget* parent)
    : TQORBaseSpinEdit(edit, parent), currEdit_(edit)
{
    using Own = TQORBaseCurrSpinEdit;
    using CurrSignal = void (TQORBaseCurrEdit::*)();
    const std::pair<CurrSignal, void (Own::*)()> currency[] = {
        {&TQORBaseCurrEdit::asFloatChanged, &Own::asFloatChanged},
        {&TQORBaseCurrEdit::formatTypeChanged, &Own::formatTypeChanged},
        {&TQORBaseCurrEdit::blankWhenZeroChanged, &Own::blankWhenZeroChanged},
        {&TQORBaseCurrEdit::currencyFormatChanged, &Own::currencyFormatChanged},
        {&TQORBaseCurrEdit::currencyStrChanged, &Own::currencyStrChanged},
        {&TQORBaseCurrEdit::decimalPlacesChanged, &Own::decimalPlacesChanged},
        {&TQORBaseCurrEdit::negativeFormatChanged, &Own::negativeFormatChanged},
        {&TQORBaseCurrEdit::thousandSeparatorsChanged, &Own::thousandSeparatorsChanged},
        {&TQORBaseCurrEdit::showThousandSeparatorsChanged, &Own::showThousandSeparatorsChanged},
        {&TQORBaseCurrEdit::customThousandsChanged, &Own::customThousandsChanged},
        {&TQORBaseCurrEdit::customDecimalChanged, &Own::customDecimalChanged},
        {&TQORBaseCurrEdit::customSeparatorsChanged, &Own::customSeparatorsChanged},
    };
    for (const auto& [from, to] : currency)
        connect(currEdit_, from, this, to);
    using BoolSignal = void (TQORBaseEdit::*)(bool);
    const std::pair<BoolSignal, void (Own::*)()> switches[] = {
        {&TQORBaseEdit::storeValueChanged, &Own::storeValueChanged},
        {&TQORBaseEdit::autoSelectClickChanged, &Own::autoSelectClickChanged},
        {&TQORBaseEdit::autoSelectChanged, &Own::autoSelectChanged},
        {&TQORBaseEdit::allowKbdNullChanged, &Own::allowKbdNullChanged},
        {&TQORBaseEdit::blankWhenNullChanged, &Own::blankWhenNullChanged},
        {&TQORBaseEdit::blankIsNullChanged, &Own::blankIsNullChanged},
        {&TQORBaseEdit::nullChanged, &Own::nullChanged},
        {&TQORBaseEdit::tabStopChanged, &Own::tabStopChanged},
    };
    for (const auto& [from, to] : switches)
        connect(currEdit_, from, this, to);
    connect(currEdit_, &TQORBaseEdit::alignmentChanged, this, &Own::alignmentChanged);
    connect(currEdit_, &TQORBaseEdit::maxLengthChanged, this, &Own::maxLengthChanged);
    connect(currEdit_, &TQORBaseEdit::nullStrChanged, this, &Own::nullStrChanged);
    connect(currEdit_, &TQORBaseEdit::asStringChanged, this, &Own::asStringChanged);

    currEdit_->SetOnChange([this](QObject*) {
        if (onChange_)
            onChange_(this);
        Q_EMIT change();
    });
    currEdit_->SetOnNull([this](QObject*) {
        if (onNull_)
            onNull_(this);
        Q_EMIT null();
    });
    currEdit_->SetOnSpecialColor([this](QObject*, QColor& background, QColor& text) {
        if (onSpecialColor_)
            onSpecialColor_(this, background, text);
        Q_EMIT specialColor(&background, &text);
    });
}

// ---- The amount classes -----------------------------------------------------------------------

namespace {

// The cent classes step by whole units of the amount shown.
void CentDefaults(TQORBaseSpinEdit& spin)
{
    spin.SetMax(10000);
    spin.SetStep(100);
    spin.SetPageStep(1000);
}

} // namespace

TQORCurrSpinEdit::TQORCurrSpinEdit(QWidget* parent) : TQORBaseCurrSpinEdit(new TQORCurrEdit, parent)
{
    CentDefaults(*this);
    connect(GetEditor(), &TQORCurrEdit::asQORCurrencyChanged, this,
            &TQORCurrSpinEdit::asQORCurrencyChanged);
}

TQORLongCurrSpinEdit::TQORLongCurrSpinEdit(QWidget* parent)
    : TQORBaseCurrSpinEdit(new TQORLongCurrEdit, parent)
{
    CentDefaults(*this);
    connect(GetEditor(), &TQORLongCurrEdit::asQORLongCurrencyChanged, this,
            &TQORLongCurrSpinEdit::asQORLongCurrencyChanged);
}

TQORCurrencySpinEdit::TQORCurrencySpinEdit(QWidget* parent)
    : TQORBaseCurrSpinEdit(new TQORCurrencyEdit, parent)
{
    connect(GetEditor(), &TQORCurrencyEdit::asCurrencyChanged, this,
            &TQORCurrencySpinEdit::asCurrencyChanged);
}

} // namespace qorkit
