#include "QORKITCurrCalcEdit.h"

#include "QORKITMath.h"

#include <cmath>
#include <utility>

namespace qorkit {

// ---- TQORCurrCalcEditBase ----------------------------------------------------------------------

TQORCurrCalcEditBase::TQORCurrCalcEditBase(QWidget* parent, TQORBaseCurrEdit* edit)
    : TQORCalcEditBase(parent, QORStandardCalcKind), currEdit_(edit)
{
    currEdit_->setParent(this);
    AutoInitialize(currEdit_);
    using EditSignal = void (TQORBaseCurrEdit::*)();
    using OwnSignal = void (TQORCurrCalcEditBase::*)();
    const std::pair<EditSignal, OwnSignal> forwarded[] = {
        {&TQORBaseCurrEdit::formatTypeChanged, &TQORCurrCalcEditBase::formatTypeChanged},
        {&TQORBaseCurrEdit::blankWhenZeroChanged, &TQORCurrCalcEditBase::blankWhenZeroChanged},
        {&TQORBaseCurrEdit::currencyFormatChanged, &TQORCurrCalcEditBase::currencyFormatChanged},
        {&TQORBaseCurrEdit::currencyStrChanged, &TQORCurrCalcEditBase::currencyStrChanged},
        {&TQORBaseCurrEdit::negativeFormatChanged, &TQORCurrCalcEditBase::negativeFormatChanged},
        {&TQORBaseCurrEdit::thousandSeparatorsChanged,
         &TQORCurrCalcEditBase::thousandSeparatorsChanged},
        {&TQORBaseCurrEdit::showThousandSeparatorsChanged,
         &TQORCurrCalcEditBase::showThousandSeparatorsChanged},
        {&TQORBaseCurrEdit::customDecimalChanged, &TQORCurrCalcEditBase::customDecimalChanged},
        {&TQORBaseCurrEdit::customThousandsChanged, &TQORCurrCalcEditBase::customThousandsChanged},
        {&TQORBaseCurrEdit::customSeparatorsChanged,
         &TQORCurrCalcEditBase::customSeparatorsChanged},
    };
    for (const auto& [from, to] : forwarded)
        connect(currEdit_, from, this, to);
    currEdit_->SetOnSpecialColor([this](QObject*, QColor& background, QColor& text) {
        if (onSpecialColor_)
            onSpecialColor_(this, background, text);
        Q_EMIT specialColor(&background, &text);
    });
    connect(this, &TQORCalcEditBase::calcClick, this, [this] {
        if (onStartPopup_)
            onStartPopup_(this);
        Q_EMIT startPopup();
    });
    connect(this, &TQORCalcEditBase::calcClickEnd, this, [this] {
        if (onEndPopup_)
            onEndPopup_(this);
        Q_EMIT endPopup();
    });
}

void TQORCurrCalcEditBase::SetValue(Extended value)
{
    // A value that is not finite is passed on unrounded, for the edit to refuse and report.
    currEdit_->SetScaledFloat(std::isfinite(value) ? RoundDP(value, currEdit_->GetDecimalPlaces())
                                                   : value);
}

TQORCalculator* TQORCurrCalcEditBase::GetCalculatorControl() const
{
    return static_cast<TQORCalculator*>(GetCalculatorComponent());
}

// ---- The amount classes -----------------------------------------------------------------------

TQORCurrCalcEdit::TQORCurrCalcEdit(QWidget* parent) : TQORCurrCalcEditBase(parent, new TQORCurrEdit)
{
    connect(GetEditor(), &TQORCurrEdit::asQORCurrencyChanged, this,
            &TQORCurrCalcEdit::asQORCurrencyChanged);
}

TQORLongCurrCalcEdit::TQORLongCurrCalcEdit(QWidget* parent)
    : TQORCurrCalcEditBase(parent, new TQORLongCurrEdit)
{
    connect(GetEditor(), &TQORLongCurrEdit::asQORLongCurrencyChanged, this,
            &TQORLongCurrCalcEdit::asQORLongCurrencyChanged);
}

TQORCurrencyCalcEdit::TQORCurrencyCalcEdit(QWidget* parent)
    : TQORCurrCalcEditBase(parent, new TQORCurrencyEdit)
{
    connect(GetEditor(), &TQORCurrencyEdit::asCurrencyChanged, this,
            &TQORCurrencyCalcEdit::asCurrencyChanged);
    connect(GetEditor(), &TQORBaseCurrEdit::fullAccuracyChanged, this,
            &TQORCurrencyCalcEdit::fullAccuracyChanged);
}

} // namespace qorkit
