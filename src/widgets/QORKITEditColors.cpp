#include "QORKITEditColors.h"

#include <QApplication>
#include <QWidget>

namespace qorkit {

TQOREditColorSet::TQOREditColorSet(QObject* owner) : QObject(owner) { RestoreDefaults(); }

void TQOREditColorSet::RestoreDefaults()
{
    colors_ = {};
    colors_[esReadOnly].Back = QColor(0xF0, 0xF0, 0xF0);
    colors_[esNull].Text = QColor(0x80, 0x80, 0x80);
    colors_[esNegative].Text = QColor(0xC0, 0x00, 0x00);
    colors_[esError].Back = QColor(0xFF, 0xD8, 0xD8);
    Q_EMIT Changed();
}

void TQOREditColorSet::SetBack(TQOREditState state, const QColor& color)
{
    if (state >= QOREditStateCount || colors_[state].Back == color)
        return;
    colors_[state].Back = color;
    Q_EMIT Changed();
}

void TQOREditColorSet::SetText(TQOREditState state, const QColor& color)
{
    if (state >= QOREditStateCount || colors_[state].Text == color)
        return;
    colors_[state].Text = color;
    Q_EMIT Changed();
}

void TQOREditColorSet::Assign(const TQOREditColorSet& other)
{
    if (&other == this)
        return;
    colors_ = other.colors_;
    Q_EMIT Changed();
}

TQORUICtrl::TQORUICtrl(QObject* owner) : QObject(owner), colorSet_(new TQOREditColorSet(this))
{
    connect(colorSet_, &TQOREditColorSet::Changed, this, &TQORUICtrl::Changed);
}

void TQORUICtrl::SetFlat(bool value)
{
    if (flat_ == value)
        return;
    flat_ = value;
    Q_EMIT Changed();
}

void TQORUICtrl::SetAutoSelect(bool value)
{
    if (autoSelect_ == value)
        return;
    autoSelect_ = value;
    Q_EMIT Changed();
}

TQORLook::TQORLook(QWidget* control, std::function<void()> restyle)
    : QObject(control), colorSet_(new TQOREditColorSet(this)), restyle_(std::move(restyle))
{
    connect(colorSet_, &TQOREditColorSet::Changed, this, [this] { restyle_(); });
}

void TQORLook::SetUICtrl(TQORUICtrl* value)
{
    if (uiCtrl_ == value)
        return;
    if (uiCtrl_)
        disconnect(uiCtrl_, nullptr, this, nullptr);
    uiCtrl_ = value;
    if (value) {
        connect(value, &TQORUICtrl::Changed, this, [this] { restyle_(); });
        // Drop the reference before the UI control's members are gone.
        connect(value, &QObject::destroyed, this, [this] {
            uiCtrl_ = nullptr;
            restyle_();
        });
    }
    restyle_();
}

void TQORLook::SetUIUsage(TQORUIUsage value)
{
    if (value > uiAll || usage_ == value)
        return;
    usage_ = value;
    restyle_();
}

const TQOREditColorSet* TQORLook::EffectiveColorSet() const
{
    if (uiCtrl_ && usage_ != uiOwn)
        return uiCtrl_->GetColorSet();
    return colorSet_;
}

bool TQORLook::Flat(bool own) const
{
    return uiCtrl_ && usage_ == uiAll ? uiCtrl_->GetFlat() : own;
}

bool TQORLook::AutoSelect(bool own) const
{
    return uiCtrl_ && usage_ == uiAll ? uiCtrl_->GetAutoSelect() : own;
}

void TQORLook::Apply(QWidget* control, TQOREditState state, bool negative,
                     const TQORSpecialColorEvent& special, QPalette::ColorRole backRole,
                     QPalette::ColorRole textRole) const
{
    const TQOREditColorSet* set = EffectiveColorSet();
    QColor back = set->GetBack(state);
    QColor fore = set->GetText(state);
    if (negative && state != esDisabled && set->GetText(esNegative).isValid())
        fore = set->GetText(esNegative);
    if (special)
        special(control, back, fore);
    QPalette p = QApplication::palette(control);
    if (back.isValid())
        p.setColor(backRole, back);
    if (fore.isValid())
        p.setColor(textRole, fore);
    control->setPalette(p);
}

} // namespace qorkit
