#include "QORKITCurrSpinEdit.h"

#include <utility>

namespace qorkit {

// ---- TQORBaseCurrSpinEdit ----------------------------------------------------------------------

TQORBaseCurrSpinEdit::TQORBaseCurrSpinEdit(TQORBaseCurrEdit* edit, QWidget* parent)
    : TQORBaseSpinEdit(edit, parent), TQORCurrForwarders(edit)
{
    using Own = TQORBaseCurrSpinEdit;
    PassOnCurrencySignals(this);
    connect(edit, &TQORBaseCurrEdit::asFloatChanged, this, &Own::asFloatChanged);
    connect(edit, &TQORBaseCurrEdit::decimalPlacesChanged, this, &Own::decimalPlacesChanged);
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
        connect(edit, from, this, to);
    connect(edit, &TQORBaseEdit::alignmentChanged, this, &Own::alignmentChanged);
    connect(edit, &TQORBaseEdit::maxLengthChanged, this, &Own::maxLengthChanged);
    connect(edit, &TQORBaseEdit::nullStrChanged, this, &Own::nullStrChanged);
    connect(edit, &TQORBaseEdit::asStringChanged, this, &Own::asStringChanged);

    edit->SetOnChange([this](QObject*) {
        if (onChange_)
            onChange_(this);
        Q_EMIT change();
    });
    edit->SetOnNull([this](QObject*) {
        if (onNull_)
            onNull_(this);
        Q_EMIT null();
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
