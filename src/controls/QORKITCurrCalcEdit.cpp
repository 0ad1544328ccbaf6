#include "QORKITCurrCalcEdit.h"

#include "QORKITMath.h"

#include <cmath>

namespace qorkit {

// ---- TQORCurrCalcEditBase ----------------------------------------------------------------------

TQORCurrCalcEditBase::TQORCurrCalcEditBase(QWidget* parent, TQORBaseCurrEdit* edit)
    : TQORCalcEditBase(parent, QORStandardCalcKind), TQORCurrForwarders(edit)
{
    edit->setParent(this);
    AutoInitialize(edit);
    PassOnCurrencySignals(this);
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
    GetCurrEdit()->SetScaledFloat(
        std::isfinite(value) ? RoundDP(value, GetCurrEdit()->GetDecimalPlaces()) : value);
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
