#include "QORKITBaseEdit.h"

#include "QORKITExceptions.h"
#include "QORKITSettings.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>

namespace qorkit {

namespace {
constexpr int UnlimitedLength = 32767;
}

TQORSeparatorScope::TQORSeparatorScope(bool active, char decimalSeparator, char thousandSeparator)
    : active_(active), savedDecimal_(FormatSettings.DecimalSeparator),
      savedThousands_(FormatSettings.ThousandSeparator)
{
    if (active_) {
        FormatSettings.DecimalSeparator = decimalSeparator;
        FormatSettings.ThousandSeparator = thousandSeparator;
    }
}

TQORSeparatorScope::~TQORSeparatorScope()
{
    if (active_) {
        FormatSettings.DecimalSeparator = savedDecimal_;
        FormatSettings.ThousandSeparator = savedThousands_;
    }
}

TQORBaseEdit::TQORBaseEdit(QWidget* parent)
    : QLineEdit(parent), look_(new TQORLook(this, [this] { ApplyLook(); }))
{
    // Typing again clears the mark of refused text.
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (validationFailed_) {
            validationFailed_ = false;
            UpdateColors();
        }
    });
    // Typing, undo and the clipboard mark the text modified; QLineEdit::setText does not.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (showingText_ > 0 || isModified()) {
            Q_EMIT asStringChanged(text);
            return;
        }
        TextSetFromOutside();
        // Shown as it was set: the take-over changed nothing that would have signalled.
        if (this->text() == text)
            Q_EMIT asStringChanged(text);
    });
    QLineEdit::setMaxLength(UnlimitedLength);
}

void TQORBaseEdit::DoNotify(const TQORNotifyEvent& handler, void (TQORBaseEdit::*signal)())
{
    if (handler)
        handler(this);
    (this->*signal)();
}

void TQORBaseEdit::DoMouse(const TQORMouseEvent& handler,
                           void (TQORBaseEdit::*signal)(QMouseEvent*), QMouseEvent* event)
{
    if (handler)
        handler(this, event);
    (this->*signal)(event);
}

void TQORBaseEdit::DoKey(const TQORKeyEvent& handler, void (TQORBaseEdit::*signal)(QKeyEvent*),
                         QKeyEvent* event)
{
    if (handler)
        handler(this, event);
    (this->*signal)(event);
}

void TQORBaseEdit::DoNullEvents(bool becameNull)
{
    DoNotify(onNullChange_, &TQORBaseEdit::nullChange);
    Q_EMIT nullChanged(null_);
    if (becameNull)
        DoNotify(onNull_, &TQORBaseEdit::null);
}

void TQORBaseEdit::DoSpecialColor(QColor& background, QColor& text)
{
    if (onSpecialColor_)
        onSpecialColor_(this, background, text);
    Q_EMIT specialColor(&background, &text);
}

void TQORBaseEdit::SetNull(bool value)
{
    if (null_ == value)
        return;
    null_ = value;
    Redisplay();
    DoNullEvents(null_);
}

void TQORBaseEdit::ClearNullQuietly()
{
    if (!null_)
        return;
    null_ = false;
    DoNullEvents(false);
}

void TQORBaseEdit::SetNullStr(const QString& value)
{
    if (nullStr_ == value)
        return;
    nullStr_ = value;
    if (null_)
        Redisplay();
    Q_EMIT nullStrChanged(nullStr_);
}

void TQORBaseEdit::SetAllowKbdNull(bool value)
{
    if (AssignChanged(allowKbdNull_, value))
        Q_EMIT allowKbdNullChanged(value);
}

void TQORBaseEdit::SetBlankIsNull(bool value)
{
    if (AssignChanged(blankIsNull_, value))
        Q_EMIT blankIsNullChanged(value);
}

void TQORBaseEdit::SetAutoSelect(bool value)
{
    if (AssignChanged(autoSelect_, value))
        Q_EMIT autoSelectChanged(value);
}

void TQORBaseEdit::SetAutoSelectClick(bool value)
{
    if (AssignChanged(autoSelectClick_, value))
        Q_EMIT autoSelectClickChanged(value);
}

void TQORBaseEdit::SetAutoAdvance(bool value)
{
    if (AssignChanged(autoAdvance_, value))
        Q_EMIT autoAdvanceChanged(value);
}

void TQORBaseEdit::SetStoreValue(bool value)
{
    if (AssignChanged(storeValue_, value))
        Q_EMIT storeValueChanged(value);
}

void TQORBaseEdit::SetAlignment(Qt::Alignment value)
{
    if (value == alignment())
        return;
    setAlignment(value);
    Q_EMIT alignmentChanged(alignment());
}

void TQORBaseEdit::SetUICtrl(TQORUICtrl* value)
{
    if (value == look_->GetUICtrl())
        return;
    look_->SetUICtrl(value);
    Q_EMIT uiCtrlChanged();
}

void TQORBaseEdit::SetUIUsage(TQORUIUsage value)
{
    if (value > uiAll || value == look_->GetUIUsage())
        return;
    look_->SetUIUsage(value);
    Q_EMIT uiUsageChanged(value);
}

void TQORBaseEdit::SetBlankWhenNull(bool value)
{
    if (blankWhenNull_ == value)
        return;
    blankWhenNull_ = value;
    if (null_)
        Redisplay();
    Q_EMIT blankWhenNullChanged(value);
}

void TQORBaseEdit::SetReadOnly(bool value)
{
    if (readOnly_ == value)
        return;
    readOnly_ = value;
    UpdateReadOnly();
    Q_EMIT readOnlyChanged(value);
}

void TQORBaseEdit::SetEditorEnabled(bool value)
{
    if (editorEnabled_ == value)
        return;
    editorEnabled_ = value;
    UpdateReadOnly();
    Q_EMIT editorEnabledChanged(value);
}

void TQORBaseEdit::UpdateReadOnly()
{
    applyingReadOnly_ = true;
    QLineEdit::setReadOnly(readOnly_ || !editorEnabled_);
    applyingReadOnly_ = false;
    UpdateColors();
}

bool TQORBaseEdit::GetAutoSelect() const { return look_->AutoSelect(autoSelect_); }

void TQORBaseEdit::SetMaxLength(int value)
{
    if (!AssignChanged(maxLength_, value < 0 ? 0 : value))
        return;
    QLineEdit::setMaxLength(maxLength_ == 0 ? UnlimitedLength : maxLength_);
    Q_EMIT maxLengthChanged(maxLength_);
}

bool TQORBaseEdit::GetTabStop() const { return (focusPolicy() & Qt::TabFocus) != 0; }

void TQORBaseEdit::SetTabStop(bool value)
{
    if (value == GetTabStop())
        return;
    setFocusPolicy(value ? Qt::StrongFocus : Qt::ClickFocus);
    Q_EMIT tabStopChanged(value);
}

void TQORBaseEdit::SetAsString(const QString& value)
{
    ++showingText_;
    setText(value);
    --showingText_;
    setModified(true);
    ValidateEdit();
    Redisplay();
}

void TQORBaseEdit::TextSetFromOutside()
{
    setModified(true);
    ValidateEdit();
    Redisplay();
}

void TQORBaseEdit::ApplyLook()
{
    setFrame(!look_->Flat(false));
    UpdateColors();
    DoNotify(onColorSetChange_, &TQORBaseEdit::colorSetChange);
}

TQOREditState TQORBaseEdit::GetEditState() const
{
    if (!isEnabled())
        return esDisabled;
    if (readOnly_)
        return esReadOnly;
    if (validationFailed_)
        return esError;
    if (null_)
        return esNull;
    if (hasFocus())
        return esFocused;
    return esNormal;
}

void TQORBaseEdit::UpdateColors()
{
    look_->Apply(this, GetEditState(), sign_ < 0 && !null_,
                 [this](QColor& background, QColor& text) { DoSpecialColor(background, text); });
}

QString TQORBaseEdit::DisplayText() const { return text(); }

void TQORBaseEdit::ShowText(const QString& value)
{
    ++showingText_;
    if (text() != value)
        setText(value);
    setModified(false);
    --showingText_;
}

void TQORBaseEdit::Redisplay()
{
    if (null_)
        ShowText(editing_ || blankWhenNull_ ? QString() : nullStr_);
    else
        ShowText(editing_ ? EditText() : DisplayText());
    UpdateColors();
}

bool TQORBaseEdit::ValidateEdit()
{
    if (!isModified() && !ConvertWhenUnchanged())
        return !validationFailed_;
    setModified(false);
    const QString typed = text().trimmed();
    if (allowKbdNull_
        && ((typed.isEmpty() && blankIsNull_)
            || (!nullStr_.isEmpty() && typed.compare(nullStr_, Qt::CaseInsensitive) == 0))) {
        validationFailed_ = false;
        SetNull(true);
        return true;
    }
    validationFailed_ = false;
    try {
        Convert2Value();
    } catch (const Exception& e) {
        ReportValidationError(QString::fromStdString(e.what()));
    }
    return !validationFailed_;
}

void TQORBaseEdit::ReportValidationError(const QString& message)
{
    validationFailed_ = true;
    // The stored value is untouched; show it again so the edit never shows a value it
    // does not hold.
    Redisplay();
    const bool heard = onValidationError_
        || isSignalConnected(QMetaMethod::fromSignal(&TQORBaseEdit::validationError));
    if (onValidationError_)
        onValidationError_(this, message);
    Q_EMIT validationError(message);
    if (!heard)
        QApplication::beep();
}

void TQORBaseEdit::Change() { DoNotify(onChange_, &TQORBaseEdit::change); }

void TQORBaseEdit::DoSignChange(int sign)
{
    sign_ = sign < 0 ? -1 : (sign > 0 ? 1 : 0);
    UpdateColors();
    if (onSignChange_)
        onSignChange_(this, sign_);
    Q_EMIT signChange(sign_);
}

void TQORBaseEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    DoNotify(onEnter_, &TQORBaseEdit::enter);
    if (switchOnFocus_ && !isReadOnly()) {
        editing_ = true;
        Redisplay();
    } else {
        UpdateColors();
    }
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::MouseFocusReason) {
        // The click that gave the focus would place the caret after us: select afterwards.
        if (autoSelectClick_)
            QTimer::singleShot(0, this, [this] { selectAll(); });
    } else if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
        if (GetAutoSelect())
            selectAll();
        else
            deselect();
    }
}

void TQORBaseEdit::focusOutEvent(QFocusEvent* event)
{
    // A context menu or a window switch is not the user leaving the edit.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        ValidateEdit();
        editing_ = false;
        Redisplay();
    }
    QLineEdit::focusOutEvent(event);
    UpdateColors();
    DoNotify(onExit_, &TQORBaseEdit::exit);
}

void TQORBaseEdit::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    DoKey(onKeyDown_, &TQORBaseEdit::keyDown, event);
    if (event->isAccepted() && !event->text().isEmpty())
        DoKey(onKeyPress_, &TQORBaseEdit::keyPress, event);
    if (event->isAccepted())
        KeyDown(event);
}

void TQORBaseEdit::keyReleaseEvent(QKeyEvent* event)
{
    event->accept();
    DoKey(onKeyUp_, &TQORBaseEdit::keyUp, event);
    if (event->isAccepted())
        KeyUp(event);
}

void TQORBaseEdit::KeyUp(QKeyEvent* event) { QLineEdit::keyReleaseEvent(event); }

void TQORBaseEdit::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    DoMouse(onMouseDown_, &TQORBaseEdit::mouseDown, event);
    if (event->isAccepted())
        QLineEdit::mousePressEvent(event);
}

void TQORBaseEdit::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    DoMouse(onMouseUp_, &TQORBaseEdit::mouseUp, event);
    if (event->isAccepted())
        QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        DoNotify(onClick_, &TQORBaseEdit::click);
}

void TQORBaseEdit::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    DoMouse(onMouseMove_, &TQORBaseEdit::mouseMove, event);
    if (event->isAccepted())
        QLineEdit::mouseMoveEvent(event);
}

void TQORBaseEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    QLineEdit::mouseDoubleClickEvent(event);
    DoNotify(onDblClick_, &TQORBaseEdit::dblClick);
}

void TQORBaseEdit::ClearUndo()
{
    // Setting the text is what empties the undo history.
    const bool modified = isModified();
    const int caret = cursorPosition();
    ++showingText_;
    setText(text());
    --showingText_;
    setModified(modified);
    setCursorPosition(caret);
}

int TQORBaseEdit::GetSelTextBuf(char* buffer, int bufferSize) const
{
    if (buffer == nullptr || bufferSize <= 0)
        return 0;
    const QByteArray bytes = selectedText().toUtf8();
    const int count = static_cast<int>(std::min<qsizetype>(bytes.size(), bufferSize - 1));
    std::copy_n(bytes.constData(), count, buffer);
    buffer[count] = '\0';
    return count;
}

void TQORBaseEdit::SetSelTextBuf(const char* value)
{
    insert(value ? QString::fromUtf8(value) : QString());
}

int TQORBaseEdit::GetSelStart() const
{
    return hasSelectedText() ? selectionStart() : cursorPosition();
}

void TQORBaseEdit::SetSelStart(int value) { setCursorPosition(value); }

void TQORBaseEdit::SetSelLength(int value) { setSelection(GetSelStart(), std::max(value, 0)); }

void TQORBaseEdit::KeyDown(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!isReadOnly()) {
            ValidateEdit();
            Redisplay();
        }
        QLineEdit::keyPressEvent(event);
        if (autoAdvance_)
            focusNextChild();
        return;
    case Qt::Key_Escape:
        if (isModified()) {
            // Give up what was typed and show the value again.
            Redisplay();
            event->accept();
            return;
        }
        break;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

void TQORBaseEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        UpdateColors();
    // QLineEdit::setReadOnly called from outside: the same as SetReadOnly.
    if (event->type() == QEvent::ReadOnlyChange && !applyingReadOnly_
        && isReadOnly() != (readOnly_ || !editorEnabled_)) {
        SetReadOnly(isReadOnly());
    }
}

TQORStartEdit::TQORStartEdit(QWidget* parent) : TQORBaseEdit(parent) { SetSwitchTextOnFocus(true); }

} // namespace qorkit
