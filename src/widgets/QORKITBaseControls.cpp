#include "QORKITBaseControls.h"

#include "QORKITFloatEdit.h"

#include <QKeyEvent>
#include <QResizeEvent>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>

namespace qorkit {

namespace {
constexpr int ArrowWidth = 16;
}

// ---- TQORBaseSpinEdit ----------------------------------------------------------------------

TQORBaseSpinEdit::TQORBaseSpinEdit(TQORBaseEdit* editor, QWidget* parent)
    : QWidget(parent), editor_(editor), up_(new QToolButton(this)), down_(new QToolButton(this))
{
    editor_->setParent(this);
    editor_->installEventFilter(this);
    setFocusProxy(editor_);
    setFocusPolicy(editor_->focusPolicy());
    for (QToolButton* button : {up_, down_}) {
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
    }
    up_->setObjectName(QStringLiteral("UpBtn"));
    down_->setObjectName(QStringLiteral("DownBtn"));
    connect(up_, &QToolButton::clicked, this, [this] { UpClick(up_); });
    connect(down_, &QToolButton::clicked, this, [this] { DownClick(down_); });
    connect(editor_, &TQORBaseEdit::change, this, &TQORBaseSpinEdit::valueChanged);
    connect(editor_, &TQORBaseEdit::readOnlyChanged, this, [this](bool readOnly) {
        UpdateButtons();
        Q_EMIT readOnlyChanged(readOnly);
    });
    connect(editor_, &TQORBaseEdit::editorEnabledChanged, this,
            &TQORBaseSpinEdit::editorEnabledChanged);
    SetInterval(interval_);
    UpdateButtons();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TQORBaseSpinEdit::SetRange(Extended min, Extended max, bool unbounded)
{
    const std::pair<bool, void (TQORBaseSpinEdit::*)()> changes[] = {
        {AssignChanged(min_, min), &TQORBaseSpinEdit::minChanged},
        {AssignChanged(max_, max), &TQORBaseSpinEdit::maxChanged},
        {AssignChanged(unbounded_, unbounded), &TQORBaseSpinEdit::unboundedChanged},
    };
    if (Clamps())
        SetValue(GetValue());
    for (const auto& [changed, signal] : changes) {
        if (changed)
            (this->*signal)();
    }
}

void TQORBaseSpinEdit::SetMax(Extended value) { SetRange(std::min(min_, value), value, false); }

void TQORBaseSpinEdit::SetMin(Extended value) { SetRange(value, std::max(max_, value), false); }

void TQORBaseSpinEdit::SetUnbounded(bool value) { SetRange(min_, max_, value); }

void TQORBaseSpinEdit::SetStep(Extended value)
{
    if (AssignChanged(step_, value))
        Q_EMIT stepChanged();
}

void TQORBaseSpinEdit::SetPageStep(Extended value)
{
    if (AssignChanged(pageStep_, value))
        Q_EMIT pageStepChanged();
}

void TQORBaseSpinEdit::SetWrap(bool value)
{
    if (AssignChanged(wrap_, value))
        Q_EMIT wrapChanged();
}

Extended TQORBaseSpinEdit::GetValue() { return ReadEditorValue(); }

void TQORBaseSpinEdit::SetValue(Extended value)
{
    if (Clamps())
        value = std::clamp(value, min_, max_);
    WriteEditorValue(value);
}

void TQORBaseSpinEdit::SetInterval(int value)
{
    const bool changed = AssignChanged(interval_, std::max(value, 1));
    up_->setAutoRepeatInterval(interval_);
    down_->setAutoRepeatInterval(interval_);
    if (changed)
        Q_EMIT intervalChanged();
}

void TQORBaseSpinEdit::SetArrows(TQORSpinArrows value)
{
    if (value > saNone || !AssignChanged(arrows_, value))
        return;
    UpdateButtons();
    LayoutChildren();
    updateGeometry();
    Q_EMIT arrowsChanged();
}

bool TQORBaseSpinEdit::GetReadOnly() const { return editor_->GetReadOnly(); }

void TQORBaseSpinEdit::SetReadOnly(bool value) { editor_->SetReadOnly(value); }

bool TQORBaseSpinEdit::GetEditorEnabled() const { return editor_->GetEditorEnabled(); }
void TQORBaseSpinEdit::SetEditorEnabled(bool value) { editor_->SetEditorEnabled(value); }

void TQORBaseSpinEdit::UpdateButtons()
{
    const bool vertical = arrows_ == saUpDown;
    up_->setArrowType(vertical ? Qt::UpArrow : Qt::RightArrow);
    down_->setArrowType(vertical ? Qt::DownArrow : Qt::LeftArrow);
    up_->setVisible(arrows_ != saNone);
    down_->setVisible(arrows_ != saNone);
    up_->setEnabled(!GetReadOnly());
    down_->setEnabled(!GetReadOnly());
}

void TQORBaseSpinEdit::Spin(int direction, Extended amount, QObject* sender)
{
    if (GetReadOnly())
        return;
    editor_->setFocus();
    struct TStepEvents {
        const TQORNotifyEvent& Before;
        void (TQORBaseSpinEdit::*BeforeSignal)();
        const TQORNotifyEvent& After;
        void (TQORBaseSpinEdit::*AfterSignal)();
    };
    const TStepEvents events = direction > 0
        ? TStepEvents {onUpClick_, &TQORBaseSpinEdit::upClick, onAfterUpClick_,
                       &TQORBaseSpinEdit::afterUpClick}
        : TStepEvents {onDownClick_, &TQORBaseSpinEdit::downClick, onAfterDownClick_,
                       &TQORBaseSpinEdit::afterDownClick};
    if (events.Before)
        events.Before(sender);
    (this->*events.BeforeSignal)();
    const Extended present = GetValue();
    Extended next = direction > 0 ? present + amount : present - amount;
    if (Clamps()) {
        const Extended limit = direction > 0 ? max_ : min_;
        const Extended other = direction > 0 ? min_ : max_;
        const bool past = direction > 0 ? next > limit : next < limit;
        // Deliberately two clicks to wrap: the first stops at the limit, and only a click
        // made at the limit itself jumps to the other end.
        if (past)
            next = (wrap_ && present == limit) ? other : limit;
    }
    WriteEditorValue(next);
    if (events.After)
        events.After(sender);
    (this->*events.AfterSignal)();
}

void TQORBaseSpinEdit::UpClick(QObject* sender) { Spin(+1, step_, sender); }
void TQORBaseSpinEdit::DownClick(QObject* sender) { Spin(-1, step_, sender); }

bool TQORBaseSpinEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == editor_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (plain) {
            switch (key->key()) {
            case Qt::Key_Up:
                UpClick(this);
                return true;
            case Qt::Key_Down:
                DownClick(this);
                return true;
            case Qt::Key_PageUp:
                Spin(+1, pageStep_, this);
                return true;
            case Qt::Key_PageDown:
                Spin(-1, pageStep_, this);
                return true;
            default:
                break;
            }
        }
    }
    if (watched == editor_ && event->type() == QEvent::Wheel)
        return WheelStep(static_cast<QWheelEvent*>(event));
    return QWidget::eventFilter(watched, event);
}

bool TQORBaseSpinEdit::WheelStep(QWheelEvent* event)
{
    // One step per notch (a high-resolution wheel's partial notches add up to one).
    wheelDelta_ += event->angleDelta().y();
    constexpr int Notch = 120;
    while (wheelDelta_ >= Notch) {
        wheelDelta_ -= Notch;
        UpClick(this);
    }
    while (wheelDelta_ <= -Notch) {
        wheelDelta_ += Notch;
        DownClick(this);
    }
    event->accept();
    return true;
}

void TQORBaseSpinEdit::wheelEvent(QWheelEvent* event) { WheelStep(event); }

void TQORBaseSpinEdit::LayoutChildren()
{
    const int w = width();
    const int h = height();
    const int buttons = arrows_ == saNone ? 0 : (arrows_ == saUpDown ? ArrowWidth : 2 * ArrowWidth);
    editor_->setGeometry(0, 0, std::max(w - buttons, 0), h);
    if (arrows_ == saUpDown) {
        up_->setGeometry(w - ArrowWidth, 0, ArrowWidth, h / 2);
        down_->setGeometry(w - ArrowWidth, h / 2, ArrowWidth, h - h / 2);
    } else if (arrows_ == saLeftRight) {
        down_->setGeometry(w - 2 * ArrowWidth, 0, ArrowWidth, h);
        up_->setGeometry(w - ArrowWidth, 0, ArrowWidth, h);
    }
}

void TQORBaseSpinEdit::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayoutChildren();
}

QSize TQORBaseSpinEdit::sizeHint() const
{
    const int buttons = arrows_ == saNone ? 0 : (arrows_ == saUpDown ? ArrowWidth : 2 * ArrowWidth);
    const QSize edit = editor_->sizeHint();
    return {edit.width() + buttons, edit.height()};
}

QSize TQORBaseSpinEdit::minimumSizeHint() const
{
    const QSize edit = editor_->minimumSizeHint();
    return {edit.width() + 2 * ArrowWidth, edit.height()};
}

TQORFloatSpinEdit::TQORFloatSpinEdit(QWidget* parent) : TQORBaseSpinEdit(new TQORFloatEdit, parent)
{
    GetFloatEdit()->SetDecimalPlaces(0);
}

TQORFloatEdit* TQORFloatSpinEdit::GetFloatEdit() const
{
    return static_cast<TQORFloatEdit*>(GetEditor());
}

Extended TQORFloatSpinEdit::ReadEditorValue() { return GetFloatEdit()->GetValue(); }
void TQORFloatSpinEdit::WriteEditorValue(Extended value) { GetFloatEdit()->SetValue(value); }

// ---- TQORBaseComboBox ----------------------------------------------------------------------

TQORBaseComboBox::TQORBaseComboBox(QWidget* parent)
    : QComboBox(parent), look_(new TQORLook(this, [this] { UpdateColors(); }))
{
    connect(this, &QComboBox::activated, this, [this] { Change(); });
    connect(this, &QComboBox::currentIndexChanged, this, &TQORBaseComboBox::itemIndexChanged);
    UpdateColors();
}

void TQORBaseComboBox::SetItemIndex(int value)
{
    setCurrentIndex(value >= 0 && value < count() ? value : -1);
    DisplayText();
}

void TQORBaseComboBox::SetStyle(TQORComboStyle value)
{
    if (value > csDropDownList || !AssignChanged(style_, value))
        return;
    setEditable(style_ == csDropDown);
    UpdateColors();
    Q_EMIT styleChanged(style_);
}

void TQORBaseComboBox::SetUICtrl(TQORUICtrl* value)
{
    if (value == look_->GetUICtrl())
        return;
    look_->SetUICtrl(value);
    Q_EMIT uiCtrlChanged();
}

void TQORBaseComboBox::SetUIUsage(TQORUIUsage value)
{
    if (value > uiAll || value == look_->GetUIUsage())
        return;
    look_->SetUIUsage(value);
    Q_EMIT uiUsageChanged(value);
}

void TQORBaseComboBox::LoadItems()
{
    const QSignalBlocker quiet(this);
    clear();
    addItems(ListItems());
    DisplayText();
}

QStringList TQORBaseComboBox::ListItems() const
{
    QStringList items;
    for (int i = 0; i < count(); ++i)
        items << itemText(i);
    return items;
}

void TQORBaseComboBox::DisplayText()
{
    if (isEditable())
        setEditText(currentIndex() >= 0 ? itemText(currentIndex()) : QString());
}

void TQORBaseComboBox::Change()
{
    if (onChange_)
        onChange_(this);
    Q_EMIT change();
}

void TQORBaseComboBox::UpdateColors()
{
    TQOREditState state = hasFocus() ? esFocused : esNormal;
    if (!isEnabled())
        state = esDisabled;
    // A drop-down list paints its face with the button colour, an editable one with Base.
    look_->Apply(
        this, state, false,
        [this](QColor& background, QColor& text) {
            if (onSpecialColor_)
                onSpecialColor_(this, background, text);
            Q_EMIT specialColor(&background, &text);
        },
        isEditable() ? QPalette::Base : QPalette::Button,
        isEditable() ? QPalette::Text : QPalette::ButtonText);
}

void TQORBaseComboBox::changeEvent(QEvent* event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        UpdateColors();
}

void TQORBaseComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    UpdateColors();
}

void TQORBaseComboBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    UpdateColors();
}

// ---- TQORBasePanel -------------------------------------------------------------------------

TQORBasePanel::TQORBasePanel(QWidget* parent) : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    ApplyBevel();
}

void TQORBasePanel::SetCaption(const QString& value)
{
    if (value == text())
        return;
    setText(value);
    Q_EMIT captionChanged(value);
}

void TQORBasePanel::SetAlignment(Qt::Alignment value)
{
    if (value == alignment())
        return;
    setAlignment(value);
    Q_EMIT alignmentChanged(alignment());
}

void TQORBasePanel::SetBevel(TQORBevel value)
{
    if (value > bvRaised || !AssignChanged(bevel_, value))
        return;
    ApplyBevel();
    Q_EMIT bevelOuterChanged(bevel_);
}

void TQORBasePanel::ApplyBevel()
{
    setFrameShape(bevel_ == bvNone ? QFrame::NoFrame : QFrame::Panel);
    setFrameShadow(bevel_ == bvRaised ? QFrame::Raised : QFrame::Sunken);
}

void TQORBasePanel::SetColor(const QColor& value)
{
    if (value == color_)
        return;
    color_ = value;
    QPalette p = palette();
    p.setColor(QPalette::Window, value.isValid() ? value : QPalette().color(QPalette::Window));
    setPalette(p);
    setAutoFillBackground(value.isValid());
    Q_EMIT colorChanged(color_);
}

void TQORBasePanel::SetAutoSize(bool value)
{
    if (autoSize_ == value)
        return;
    autoSize_ = value;
    if (!autoSize_) {
        setMinimumHeight(0);
        setMaximumHeight(QWIDGETSIZE_MAX);
    }
    ApplyAutoSize();
    Q_EMIT autoSizeChanged(autoSize_);
}

void TQORBasePanel::ApplyAutoSize()
{
    if (autoSize_ && !IsLoading())
        setFixedHeight(AutoHeight());
}

void TQORBasePanel::EndLoading()
{
    if (loading_ > 0 && --loading_ == 0) {
        ApplyAutoSize();
        Resize();
    }
}

void TQORBasePanel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    if (!IsLoading())
        Resize();
}

} // namespace qorkit
