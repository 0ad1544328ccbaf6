#include "QORKITBaseControls.h"

#include "QORKITFloatEdit.h"

#include <QKeyEvent>
#include <QResizeEvent>
#include <QToolButton>

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
    SetInterval(interval_);
    UpdateButtons();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TQORBaseSpinEdit::SetMax(Extended value)
{
    max_ = value;
    unbounded_ = false;
    min_ = std::min(min_, max_);
    SetValue(GetValue());
}

void TQORBaseSpinEdit::SetMin(Extended value)
{
    min_ = value;
    unbounded_ = false;
    max_ = std::max(max_, min_);
    SetValue(GetValue());
}

void TQORBaseSpinEdit::SetUnbounded(bool value)
{
    unbounded_ = value;
    if (!unbounded_)
        SetValue(GetValue());
}

Extended TQORBaseSpinEdit::GetValue() { return ReadEditorValue(); }

void TQORBaseSpinEdit::SetValue(Extended value)
{
    if (!unbounded_)
        value = std::clamp(value, min_, max_);
    WriteEditorValue(value);
}

void TQORBaseSpinEdit::SetInterval(int value)
{
    interval_ = std::max(value, 1);
    up_->setAutoRepeatInterval(interval_);
    down_->setAutoRepeatInterval(interval_);
}

void TQORBaseSpinEdit::SetArrows(TQORSpinArrows value)
{
    if (value > saNone)
        return;
    arrows_ = value;
    UpdateButtons();
    LayoutChildren();
    updateGeometry();
}

void TQORBaseSpinEdit::SetArrowsValue(int value)
{
    if (value >= saUpDown && value <= saNone)
        SetArrows(static_cast<TQORSpinArrows>(value));
}

bool TQORBaseSpinEdit::GetReadOnly() const { return editor_->GetReadOnly(); }

void TQORBaseSpinEdit::SetReadOnly(bool value)
{
    editor_->SetReadOnly(value);
    UpdateButtons();
}

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
    const TQORNotifyEvent& before = direction > 0 ? onUpClick_ : onDownClick_;
    const TQORNotifyEvent& after = direction > 0 ? onAfterUpClick_ : onAfterDownClick_;
    if (before)
        before(sender);
    const Extended present = GetValue();
    Extended next = direction > 0 ? present + amount : present - amount;
    if (!unbounded_) {
        const Extended limit = direction > 0 ? max_ : min_;
        const Extended other = direction > 0 ? min_ : max_;
        const bool past = direction > 0 ? next > limit : next < limit;
        // Deliberately two clicks to wrap: the first stops at the limit, and only a click
        // made at the limit itself jumps to the other end.
        if (past)
            next = (wrap_ && present == limit) ? other : limit;
    }
    WriteEditorValue(next);
    if (after)
        after(sender);
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
    return QWidget::eventFilter(watched, event);
}

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
    UpdateColors();
}

void TQORBaseComboBox::SetItemIndex(int value)
{
    setCurrentIndex(value >= 0 && value < count() ? value : -1);
    DisplayText();
}

void TQORBaseComboBox::SetStyle(TQORComboStyle value)
{
    if (value > csDropDownList)
        return;
    style_ = value;
    setEditable(style_ == csDropDown);
    UpdateColors();
}

void TQORBaseComboBox::SetStyleValue(int value)
{
    if (value >= csDropDown && value <= csDropDownList)
        SetStyle(static_cast<TQORComboStyle>(value));
}

void TQORBaseComboBox::SetUIUsageValue(int value)
{
    if (value >= uiOwn && value <= uiAll)
        SetUIUsage(static_cast<TQORUIUsage>(value));
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
}

void TQORBaseComboBox::UpdateColors()
{
    TQOREditState state = hasFocus() ? esFocused : esNormal;
    if (!isEnabled())
        state = esDisabled;
    // A drop-down list paints its face with the button colour, an editable one with Base.
    look_->Apply(this, state, false, onSpecialColor_,
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
    SetBevel(bvLowered);
}

void TQORBasePanel::SetBevel(TQORBevel value)
{
    if (value > bvRaised)
        return;
    bevel_ = value;
    setFrameShape(bevel_ == bvNone ? QFrame::NoFrame : QFrame::Panel);
    setFrameShadow(bevel_ == bvRaised ? QFrame::Raised : QFrame::Sunken);
}

void TQORBasePanel::SetBevelValue(int value)
{
    if (value >= bvNone && value <= bvRaised)
        SetBevel(static_cast<TQORBevel>(value));
}

void TQORBasePanel::SetColor(const QColor& value)
{
    color_ = value;
    QPalette p = palette();
    p.setColor(QPalette::Window, value.isValid() ? value : QPalette().color(QPalette::Window));
    setPalette(p);
    setAutoFillBackground(value.isValid());
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
