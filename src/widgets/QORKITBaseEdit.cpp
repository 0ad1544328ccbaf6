#include "QORKITBaseEdit.h"

#include "QORKITExceptions.h"
#include "QORKITSettings.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
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
    QLineEdit::setMaxLength(UnlimitedLength);
}

void TQORBaseEdit::SetNull(bool value)
{
    if (null_ == value)
        return;
    null_ = value;
    Redisplay();
    if (onNullChange_)
        onNullChange_(this);
    if (null_ && onNull_)
        onNull_(this);
}

void TQORBaseEdit::ClearNullQuietly()
{
    if (!null_)
        return;
    null_ = false;
    if (onNullChange_)
        onNullChange_(this);
}

void TQORBaseEdit::SetNullStr(const QString& value)
{
    if (nullStr_ == value)
        return;
    nullStr_ = value;
    if (null_)
        Redisplay();
}

void TQORBaseEdit::SetBlankWhenNull(bool value)
{
    if (blankWhenNull_ == value)
        return;
    blankWhenNull_ = value;
    if (null_)
        Redisplay();
}

void TQORBaseEdit::SetReadOnly(bool value)
{
    if (readOnly_ == value)
        return;
    readOnly_ = value;
    UpdateReadOnly();
}

void TQORBaseEdit::SetEditorEnabled(bool value)
{
    if (editorEnabled_ == value)
        return;
    editorEnabled_ = value;
    UpdateReadOnly();
}

void TQORBaseEdit::UpdateReadOnly()
{
    QLineEdit::setReadOnly(readOnly_ || !editorEnabled_);
    UpdateColors();
}

bool TQORBaseEdit::GetAutoSelect() const { return look_->AutoSelect(autoSelect_); }

void TQORBaseEdit::SetMaxLength(int value)
{
    maxLength_ = value < 0 ? 0 : value;
    QLineEdit::setMaxLength(maxLength_ == 0 ? UnlimitedLength : maxLength_);
}

bool TQORBaseEdit::GetTabStop() const { return (focusPolicy() & Qt::TabFocus) != 0; }

void TQORBaseEdit::SetTabStop(bool value)
{
    setFocusPolicy(value ? Qt::StrongFocus : Qt::ClickFocus);
}

void TQORBaseEdit::SetAsString(const QString& value)
{
    setText(value);
    setModified(true);
    ValidateEdit();
    Redisplay();
}

void TQORBaseEdit::SetUIUsageValue(int value)
{
    if (value >= uiOwn && value <= uiAll)
        SetUIUsage(static_cast<TQORUIUsage>(value));
}

void TQORBaseEdit::ApplyLook()
{
    setFrame(!look_->Flat(false));
    UpdateColors();
    if (onColorSetChange_)
        onColorSetChange_(this);
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
    look_->Apply(this, GetEditState(), sign_ < 0 && !null_, onSpecialColor_);
}

QString TQORBaseEdit::DisplayText() const { return text(); }

void TQORBaseEdit::ShowText(const QString& value)
{
    if (text() != value)
        setText(value);
    setModified(false);
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
    if (onValidationError_)
        onValidationError_(this, message);
    else
        QApplication::beep();
}

void TQORBaseEdit::Change()
{
    if (onChange_)
        onChange_(this);
}

void TQORBaseEdit::DoSignChange(int sign)
{
    sign_ = sign < 0 ? -1 : (sign > 0 ? 1 : 0);
    UpdateColors();
    if (onSignChange_)
        onSignChange_(this, sign_);
}

void TQORBaseEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (onEnter_)
        onEnter_(this);
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
    if (onExit_)
        onExit_(this);
}

void TQORBaseEdit::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    if (onKeyDown_)
        onKeyDown_(this, event);
    if (event->isAccepted() && onKeyPress_ && !event->text().isEmpty())
        onKeyPress_(this, event);
    if (event->isAccepted())
        KeyDown(event);
}

void TQORBaseEdit::keyReleaseEvent(QKeyEvent* event)
{
    event->accept();
    if (onKeyUp_)
        onKeyUp_(this, event);
    if (event->isAccepted())
        KeyUp(event);
}

void TQORBaseEdit::KeyUp(QKeyEvent* event) { QLineEdit::keyReleaseEvent(event); }

void TQORBaseEdit::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (onMouseDown_)
        onMouseDown_(this, event);
    if (event->isAccepted())
        QLineEdit::mousePressEvent(event);
}

void TQORBaseEdit::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (onMouseUp_)
        onMouseUp_(this, event);
    if (event->isAccepted())
        QLineEdit::mouseReleaseEvent(event);
    if (onClick_ && event->button() == Qt::LeftButton
        && rect().contains(event->position().toPoint()))
        onClick_(this);
}

void TQORBaseEdit::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (onMouseMove_)
        onMouseMove_(this, event);
    if (event->isAccepted())
        QLineEdit::mouseMoveEvent(event);
}

void TQORBaseEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    QLineEdit::mouseDoubleClickEvent(event);
    if (onDblClick_)
        onDblClick_(this);
}

void TQORBaseEdit::ClearUndo()
{
    // Setting the text is what empties the undo history.
    const bool modified = isModified();
    const int caret = cursorPosition();
    setText(text());
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
}

TQORStartEdit::TQORStartEdit(QWidget* parent) : TQORBaseEdit(parent) { SetSwitchTextOnFocus(true); }

} // namespace qorkit
