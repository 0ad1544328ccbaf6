#include "QORKITEditColors.h"

#include <QApplication>
#include <QWidget>

namespace qorkit {

TQOREditColorSet::TQOREditColorSet(QObject* owner) : QObject(owner)
{
    // The defaults as they were before anyone could listen.
    const QSignalBlocker quiet(this);
    RestoreDefaults();
}

namespace {

// The change signal of each state's background and text colour (none: no property).
using TColorSignal = void (TQOREditColorSet::*)();
struct TColorSignals {
    TColorSignal Back;
    TColorSignal Text;
};
constexpr std::array<TColorSignals, QOREditStateCount> ColorSignals {{
    {&TQOREditColorSet::normalBackChanged, &TQOREditColorSet::normalTextChanged},
    {&TQOREditColorSet::focusedBackChanged, &TQOREditColorSet::focusedTextChanged},
    {&TQOREditColorSet::readOnlyBackChanged, &TQOREditColorSet::readOnlyTextChanged},
    {&TQOREditColorSet::disabledBackChanged, &TQOREditColorSet::disabledTextChanged},
    {&TQOREditColorSet::nullBackChanged, &TQOREditColorSet::nullTextChanged},
    {nullptr, &TQOREditColorSet::negativeTextChanged},
    {&TQOREditColorSet::errorBackChanged, &TQOREditColorSet::errorTextChanged},
}};

} // namespace

void TQOREditColorSet::Update(const TColors& colors)
{
    const TColors old = colors_;
    colors_ = colors;
    bool changed = false;
    for (std::size_t i = 0; i < colors_.size(); ++i) {
        const std::pair<bool, TColorSignal> parts[] = {
            {old[i].Back != colors_[i].Back, ColorSignals[i].Back},
            {old[i].Text != colors_[i].Text, ColorSignals[i].Text},
        };
        for (const auto& [differs, signal] : parts) {
            changed = changed || differs;
            if (differs && signal != nullptr)
                (this->*signal)();
        }
    }
    if (changed)
        Q_EMIT Changed();
}

void TQOREditColorSet::RestoreDefaults()
{
    TColors colors {};
    colors[esReadOnly].Back = QColor(0xF0, 0xF0, 0xF0);
    colors[esNull].Text = QColor(0x80, 0x80, 0x80);
    colors[esNegative].Text = QColor(0xC0, 0x00, 0x00);
    colors[esError].Back = QColor(0xFF, 0xD8, 0xD8);
    Update(colors);
}

void TQOREditColorSet::SetBack(TQOREditState state, const QColor& color)
{
    if (state >= QOREditStateCount)
        return;
    TColors colors = colors_;
    colors[state].Back = color;
    Update(colors);
}

void TQOREditColorSet::SetText(TQOREditState state, const QColor& color)
{
    if (state >= QOREditStateCount)
        return;
    TColors colors = colors_;
    colors[state].Text = color;
    Update(colors);
}

void TQOREditColorSet::Assign(const TQOREditColorSet& other)
{
    if (&other != this)
        Update(other.colors_);
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
    Q_EMIT flatChanged(flat_);
    Q_EMIT Changed();
}

void TQORUICtrl::SetAutoSelect(bool value)
{
    if (autoSelect_ == value)
        return;
    autoSelect_ = value;
    Q_EMIT autoSelectChanged(autoSelect_);
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
                     const TQORColorHook& special, QPalette::ColorRole backRole,
                     QPalette::ColorRole textRole) const
{
    const TQOREditColorSet* set = EffectiveColorSet();
    QColor back = set->GetBack(state);
    QColor fore = set->GetText(state);
    if (negative && state != esDisabled && set->GetText(esNegative).isValid())
        fore = set->GetText(esNegative);
    if (special)
        special(back, fore);
    QPalette p = QApplication::palette(control);
    if (back.isValid())
        p.setColor(backRole, back);
    if (fore.isValid())
        p.setColor(textRole, fore);
    control->setPalette(p);
}

} // namespace qorkit
