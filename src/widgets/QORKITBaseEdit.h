// TQORBaseEdit: the single-line edit the library's number edits are built on. It keeps the
// null state with its null string, takes typed text over when the user leaves the edit (or
// presses Enter), reports text it cannot take over, and colours itself by state.
//
// A derived edit supplies three steps:
//   DisplayText()        the text of the present (non-null) value
//   Convert2Value()      takes the typed text over into the value; throws EConvertError (or
//                        another qorkit::Exception) for text that is not a value
//   DoBoundsValidation() whether the value about to be stored is allowed
// and calls ReportValidationError for a value it refuses, Change after the value changed and
// DoSignChange with the sign of the value after each conversion.
//
// TQORStartEdit is the variant that swaps texts on focus: while the user edits it shows
// EditText() (a plain, editable form), and the formatted DisplayText() otherwise.
#pragma once

#include "QORKITComponent.h"
#include "QORKITEditColors.h"
#include "qorkit_widgets_export.h"

#include <QLineEdit>

namespace qorkit {

// Replaces the process-wide decimal and thousands separators for the life of the object when
// `active`, and puts the old ones back afterwards (also when an exception leaves the scope).
class QORKIT_WIDGETS_EXPORT TQORSeparatorScope {
public:
    TQORSeparatorScope(bool active, char decimalSeparator, char thousandSeparator);
    ~TQORSeparatorScope();
    TQORSeparatorScope(const TQORSeparatorScope&) = delete;
    TQORSeparatorScope& operator=(const TQORSeparatorScope&) = delete;

private:
    bool active_;
    char savedDecimal_;
    char savedThousands_;
};

class QORKIT_WIDGETS_EXPORT TQORBaseEdit : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(bool Null READ GetNull WRITE SetNull NOTIFY nullChanged)
    Q_PROPERTY(QString NullStr READ GetNullStr WRITE SetNullStr NOTIFY nullStrChanged)
    Q_PROPERTY(
        bool AllowKbdNull READ GetAllowKbdNull WRITE SetAllowKbdNull NOTIFY allowKbdNullChanged)
    Q_PROPERTY(
        bool BlankWhenNull READ GetBlankWhenNull WRITE SetBlankWhenNull NOTIFY blankWhenNullChanged)
    Q_PROPERTY(bool BlankIsNull READ GetBlankIsNull WRITE SetBlankIsNull NOTIFY blankIsNullChanged)
    Q_PROPERTY(bool ReadOnly READ GetReadOnly WRITE SetReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(
        bool EditorEnabled READ GetEditorEnabled WRITE SetEditorEnabled NOTIFY editorEnabledChanged)
    Q_PROPERTY(bool AutoSelect READ GetAutoSelect WRITE SetAutoSelect NOTIFY autoSelectChanged)
    Q_PROPERTY(bool AutoSelectClick READ GetAutoSelectClick WRITE SetAutoSelectClick NOTIFY
                   autoSelectClickChanged)
    Q_PROPERTY(bool AutoAdvance READ GetAutoAdvance WRITE SetAutoAdvance NOTIFY autoAdvanceChanged)
    Q_PROPERTY(int MaxLength READ GetMaxLength WRITE SetMaxLength NOTIFY maxLengthChanged)
    Q_PROPERTY(bool TabStop READ GetTabStop WRITE SetTabStop NOTIFY tabStopChanged)
    Q_PROPERTY(bool StoreValue READ GetStoreValue WRITE SetStoreValue NOTIFY storeValueChanged)
    Q_PROPERTY(Qt::Alignment Alignment READ GetAlignment WRITE SetAlignment NOTIFY alignmentChanged)
    Q_PROPERTY(QString Text READ text WRITE SetAsString NOTIFY asStringChanged STORED false)
    Q_PROPERTY(
        QString AsString READ GetAsString WRITE SetAsString NOTIFY asStringChanged STORED false)
    Q_PROPERTY(TQOREditColorSet* ColorSet READ GetColorSet)
    Q_PROPERTY(TQORUICtrl* UICtrl READ GetUICtrl WRITE SetUICtrl NOTIFY uiCtrlChanged)
    Q_PROPERTY(qorkit::TQORUIUsage UIUsage READ GetUIUsage WRITE SetUIUsage NOTIFY uiUsageChanged)
    // Transient, as QLineEdit's own selection and modified flag: no change signals.
    Q_PROPERTY(int SelStart READ GetSelStart WRITE SetSelStart STORED false)
    Q_PROPERTY(int SelLength READ GetSelLength WRITE SetSelLength STORED false)
    Q_PROPERTY(QString SelText READ GetSelText WRITE SetSelText STORED false)
    Q_PROPERTY(bool Modified READ isModified WRITE setModified STORED false)

public:
    explicit TQORBaseEdit(QWidget* parent = nullptr);

    bool GetNull() const { return null_; }
    // Entering the null state shows the null string (or nothing, with BlankWhenNull) and
    // raises OnNull; every change of the state raises OnNullChange.
    void SetNull(bool value);
    QString GetNullStr() const { return nullStr_; }
    void SetNullStr(const QString& value);
    // The user may make the edit null: by typing the null string (any letter case) or, with
    // BlankIsNull, by leaving the text blank.
    bool GetAllowKbdNull() const { return allowKbdNull_; }
    void SetAllowKbdNull(bool value);
    bool GetBlankWhenNull() const { return blankWhenNull_; }
    void SetBlankWhenNull(bool value);
    bool GetBlankIsNull() const { return blankIsNull_; }
    void SetBlankIsNull(bool value);
    // The same state as QLineEdit's readOnly: setReadOnly() and SetReadOnly() both set it.
    bool GetReadOnly() const { return readOnly_; }
    void SetReadOnly(bool value);
    // Off: the text cannot be typed into, but the control is not shown as read-only (a
    // composite's button may still change the value).
    bool GetEditorEnabled() const { return editorEnabled_; }
    void SetEditorEnabled(bool value);
    // Select the whole text when the edit is entered with the keyboard / with a click.
    bool GetAutoSelect() const;
    void SetAutoSelect(bool value);
    bool GetAutoSelectClick() const { return autoSelectClick_; }
    void SetAutoSelectClick(bool value);
    // Enter takes the text over and moves the focus to the next control.
    bool GetAutoAdvance() const { return autoAdvance_; }
    void SetAutoAdvance(bool value);
    // Longest text the user may type; 0 for no limit.
    int GetMaxLength() const { return maxLength_; }
    void SetMaxLength(int value);
    bool GetTabStop() const;
    void SetTabStop(bool value);
    // Whether a host saving the form should save the value (read by the value's property).
    bool GetStoreValue() const { return storeValue_; }
    void SetStoreValue(bool value);
    Qt::Alignment GetAlignment() const { return alignment(); }
    void SetAlignment(Qt::Alignment value);
    QString GetAsString() const { return text(); }
    // Takes `value` over as if the user had typed it and left the edit. Text set with
    // QLineEdit::setText is taken over the same way, so the text never shows another value
    // than the one the edit holds.
    void SetAsString(const QString& value);

    TQOREditColorSet* GetColorSet() const { return look_->GetColorSet(); }
    TQORUICtrl* GetUICtrl() const { return look_->GetUICtrl(); }
    void SetUICtrl(TQORUICtrl* value);
    TQORUIUsage GetUIUsage() const { return look_->GetUIUsage(); }
    void SetUIUsage(TQORUIUsage value);
    // The colour set in force: the UI control's or the edit's own.
    const TQOREditColorSet* EffectiveColorSet() const { return look_->EffectiveColorSet(); }
    TQOREditState GetEditState() const;

    // Takes the typed text over now (as leaving the edit does). False when it was refused.
    bool ValidateEdit();
    // Shows the value again in the form that fits the edit's state.
    void Redisplay();
    // Whether the last typed text was refused (cleared by the next edit or value).
    bool GetValidationFailed() const { return validationFailed_; }
    // Sign of the value as last reported by the derived edit: -1, 0 or 1.
    int GetSign() const { return sign_; }
    bool IsEditing() const { return editing_; }

    // Editing operations on the text.
    void ClearSelection() { del(); }
    void CopyToClipboard() { copy(); }
    void CutToClipboard() { cut(); }
    void PasteFromClipboard() { paste(); }
    void Undo() { undo(); }
    // Forgets the undo history, keeping the text, caret and modified flag.
    void ClearUndo();
    void SelectAll() { selectAll(); }
    void SelectNone() { deselect(); }
    bool IsClear() const { return text().isEmpty(); }
    // Copies the selected text (UTF-8, NUL-terminated, cut to fit) into `buffer`; returns
    // the number of bytes copied without the NUL.
    int GetSelTextBuf(char* buffer, int bufferSize) const;
    // Replaces the selection with `text` (UTF-8).
    void SetSelTextBuf(const char* text);
    // Start of the selection (the caret when nothing is selected), its length and text.
    int GetSelStart() const;
    void SetSelStart(int value);
    int GetSelLength() const { return static_cast<int>(selectedText().size()); }
    void SetSelLength(int value);
    QString GetSelText() const { return selectedText(); }
    void SetSelText(const QString& value) { insert(value); }

    // The usual control events. A key or mouse handler that ignores the event
    // (event->ignore()) keeps the edit from handling it.
    void SetOnClick(TQORNotifyEvent e) { onClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnClick() const { return onClick_; }
    void SetOnDblClick(TQORNotifyEvent e) { onDblClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnDblClick() const { return onDblClick_; }
    void SetOnEnter(TQORNotifyEvent e) { onEnter_ = std::move(e); }
    const TQORNotifyEvent& GetOnEnter() const { return onEnter_; }
    void SetOnExit(TQORNotifyEvent e) { onExit_ = std::move(e); }
    const TQORNotifyEvent& GetOnExit() const { return onExit_; }
    void SetOnMouseDown(TQORMouseEvent e) { onMouseDown_ = std::move(e); }
    const TQORMouseEvent& GetOnMouseDown() const { return onMouseDown_; }
    void SetOnMouseUp(TQORMouseEvent e) { onMouseUp_ = std::move(e); }
    const TQORMouseEvent& GetOnMouseUp() const { return onMouseUp_; }
    void SetOnMouseMove(TQORMouseEvent e) { onMouseMove_ = std::move(e); }
    const TQORMouseEvent& GetOnMouseMove() const { return onMouseMove_; }
    void SetOnKeyDown(TQORKeyEvent e) { onKeyDown_ = std::move(e); }
    const TQORKeyEvent& GetOnKeyDown() const { return onKeyDown_; }
    void SetOnKeyPress(TQORKeyEvent e) { onKeyPress_ = std::move(e); }
    const TQORKeyEvent& GetOnKeyPress() const { return onKeyPress_; }
    void SetOnKeyUp(TQORKeyEvent e) { onKeyUp_ = std::move(e); }
    const TQORKeyEvent& GetOnKeyUp() const { return onKeyUp_; }

    void SetOnChange(TQORNotifyEvent e) { onChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnChange() const { return onChange_; }
    void SetOnNull(TQORNotifyEvent e) { onNull_ = std::move(e); }
    const TQORNotifyEvent& GetOnNull() const { return onNull_; }
    void SetOnNullChange(TQORNotifyEvent e) { onNullChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnNullChange() const { return onNullChange_; }
    void SetOnSignChange(TQORSignChangeEvent e) { onSignChange_ = std::move(e); }
    const TQORSignChangeEvent& GetOnSignChange() const { return onSignChange_; }
    void SetOnColorSetChange(TQORNotifyEvent e) { onColorSetChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnColorSetChange() const { return onColorSetChange_; }
    void SetOnSpecialColor(TQORSpecialColorEvent e) { onSpecialColor_ = std::move(e); }
    const TQORSpecialColorEvent& GetOnSpecialColor() const { return onSpecialColor_; }
    // Text the edit refuses: without a handler the edit beeps.
    void SetOnValidationError(TQORValidationErrorEvent e) { onValidationError_ = std::move(e); }
    const TQORValidationErrorEvent& GetOnValidationError() const { return onValidationError_; }

Q_SIGNALS:
    // Property changes.
    void nullChanged(bool null);
    void nullStrChanged(const QString& nullStr);
    void allowKbdNullChanged(bool allowKbdNull);
    void blankWhenNullChanged(bool blankWhenNull);
    void blankIsNullChanged(bool blankIsNull);
    void readOnlyChanged(bool readOnly);
    void editorEnabledChanged(bool editorEnabled);
    void autoSelectChanged(bool autoSelect);
    void autoSelectClickChanged(bool autoSelectClick);
    void autoAdvanceChanged(bool autoAdvance);
    void maxLengthChanged(int maxLength);
    void tabStopChanged(bool tabStop);
    void storeValueChanged(bool storeValue);
    void alignmentChanged(Qt::Alignment alignment);
    void uiCtrlChanged();
    void uiUsageChanged(qorkit::TQORUIUsage uiUsage);
    // QLineEdit::textChanged, as the change signal of Text and AsString.
    void asStringChanged(const QString& text);
    // The events, emitted right after the OnX handler.
    void click();
    void dblClick();
    void enter();
    void exit();
    void mouseDown(QMouseEvent* event);
    void mouseUp(QMouseEvent* event);
    void mouseMove(QMouseEvent* event);
    void keyDown(QKeyEvent* event);
    void keyPress(QKeyEvent* event);
    void keyUp(QKeyEvent* event);
    void change();
    void null();
    void nullChange();
    void signChange(int sign);
    void colorSetChange();
    void specialColor(QColor* background, QColor* text);
    void validationError(const QString& message);

protected:
    virtual QString DisplayText() const;
    virtual QString EditText() const { return DisplayText(); }
    virtual void Convert2Value() { }
    virtual bool DoBoundsValidation() { return true; }
    // Whether leaving the edit takes the text over even when nothing was typed (an edit
    // that rounds its value to what it shows).
    virtual bool ConvertWhenUnchanged() const { return false; }

    // Refuses the typed text: the old value is shown again and the hook is told why.
    void ReportValidationError(const QString& message);
    void Change();
    void DoSignChange(int sign);
    // Leaves the null state without redisplaying (for setters that redisplay anyway).
    void ClearNullQuietly();
    // Set by the start-edit variant: swap to EditText() while focused.
    void SetSwitchTextOnFocus(bool value) { switchOnFocus_ = value; }
    void UpdateColors();

    // The edit's own key handling (Enter takes the text over, Escape gives it up); derived
    // edits extend these steps.
    virtual void KeyDown(QKeyEvent* event);
    virtual void KeyUp(QKeyEvent* event);

    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ApplyLook();
    void UpdateReadOnly();
    void ShowText(const QString& text);
    // Text put in by QLineEdit::setText (not by the user, not by the edit): taken over.
    void TextSetFromOutside();
    // Each raises one event: its OnX handler, then its signal.
    void DoNullEvents(bool becameNull);
    void DoSpecialColor(QColor& background, QColor& text);
    void DoMouse(const TQORMouseEvent& handler, void (TQORBaseEdit::*signal)(QMouseEvent*),
                 QMouseEvent* event);
    void DoKey(const TQORKeyEvent& handler, void (TQORBaseEdit::*signal)(QKeyEvent*),
               QKeyEvent* event);
    void DoNotify(const TQORNotifyEvent& handler, void (TQORBaseEdit::*signal)());

    bool null_ = false;
    QString nullStr_;
    bool allowKbdNull_ = false;
    bool blankWhenNull_ = false;
    bool blankIsNull_ = false;
    bool readOnly_ = false;
    bool editorEnabled_ = true;
    bool autoSelect_ = true;
    bool autoSelectClick_ = false;
    bool autoAdvance_ = false;
    int maxLength_ = 0;
    bool storeValue_ = true;
    bool switchOnFocus_ = false;
    bool editing_ = false;
    bool validationFailed_ = false;
    int showingText_ = 0; // the edit itself is setting the text
    bool applyingReadOnly_ = false;
    int sign_ = 0;
    TQORLook* look_;
    TQORNotifyEvent onChange_;
    TQORNotifyEvent onNull_;
    TQORNotifyEvent onNullChange_;
    TQORSignChangeEvent onSignChange_;
    TQORNotifyEvent onColorSetChange_;
    TQORSpecialColorEvent onSpecialColor_;
    TQORValidationErrorEvent onValidationError_;
    TQORNotifyEvent onClick_;
    TQORNotifyEvent onDblClick_;
    TQORNotifyEvent onEnter_;
    TQORNotifyEvent onExit_;
    TQORMouseEvent onMouseDown_;
    TQORMouseEvent onMouseUp_;
    TQORMouseEvent onMouseMove_;
    TQORKeyEvent onKeyDown_;
    TQORKeyEvent onKeyPress_;
    TQORKeyEvent onKeyUp_;
};

class QORKIT_WIDGETS_EXPORT TQORStartEdit : public TQORBaseEdit {
    Q_OBJECT

public:
    explicit TQORStartEdit(QWidget* parent = nullptr);
};

} // namespace qorkit
