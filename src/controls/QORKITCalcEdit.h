// Calculator edits: a number edit with a small button at its right edge that opens a
// calculator pre-loaded with the edit's value; an accepted calculator result becomes the
// edit's value.
//
// TQORCalcEditBase is the composite and the whole value hand-off, independent of the inner
// edit and of the calculator: the inner edit is any TQORBaseEdit reached through a few value
// hooks (the float edit here, a currency edit elsewhere), and the calculator is described by
// a TQORCalcKind (the standard or the scientific one). Most properties forward to the inner
// edit; its events are raised again with the composite as the sender (and as Qt signals).
//
// Button press (CalcClick), in order: nothing when read-only; OnCalcClick; the accepted flag
// is cleared and the value read; OnPopupCalc; then the CalculatorControl (decimals and
// trimming set from the edit, Execute when CalcCenter, else ExecutePos) or, without one, the
// kind's DisplayCalc dialog; an accepted result is stored; finally OnCalcClickEnd, whose value
// is stored. The calculator opens under the edit, above it when fewer than the kind's height
// (289, scientific 293) pixels are left below on the edit's screen, and flush with the
// screen's right edge when fewer than its width (216, scientific 246) are left to the right.
// It is a child of the edit's window. Alt+Down opens it from the keyboard.
#pragma once

#include "QORKITBaseEdit.h"
#include "QORKITCalculator.h"
#include "QORKITComponent.h"
#include "QORKITFloatEdit.h"
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <string>

class QToolButton;

namespace qorkit {

// One kind of calculator a calculator edit opens.
struct QORKIT_WIDGETS_EXPORT TQORCalcKind {
    // The room the placement rule keeps for the calculator, in logical pixels.
    int Width;
    int Height;
    // Runs `calculator` (a component of this kind) centred (Execute) or at left/top
    // (ExecutePos), its form a child of `parent`'s window; true when accepted.
    bool (*Execute)(TQORFloatCalcComponent& calculator, bool centred, int left, int top,
                    QWidget* parent);
    // Runs the kind's DisplayCalc (left and top -1) or DisplayCalcPos function, the dialog a
    // child of `parent`'s window; true when accepted, and then `value` holds the result.
    bool (*Display)(const std::string& title, Extended& value, int left, int top,
                    std::uint8_t decimals, bool flat, QWidget* parent);
};

// The standard calculator (TQORCalculator, DisplayCalc, DisplayCalcPos).
QORKIT_WIDGETS_EXPORT extern const TQORCalcKind QORStandardCalcKind;

// Runs a calculator component (Execute, or ExecutePos at left/top) with its form a child of
// `parent`'s window: the form is reparented as it starts, before the component's own
// OnStartCalculator (which stays the host's) sees it.
template<class Component>
bool ExecuteCalcComponent(Component& calculator, bool centred, int left, int top, QWidget* parent)
{
    using Start = typename Component::TFormEvent;
    struct HostStart {
        Component& calculator;
        Start start;
        ~HostStart() { calculator.SetOnStartCalculator(std::move(start)); }
    } host {calculator, calculator.GetOnStartCalculator()};
    const QPointer<QWidget> window = parent != nullptr ? parent->window() : nullptr;
    calculator.SetOnStartCalculator([start = host.start, window](Component* sender, auto* form) {
        if (window)
            form->setParent(window, form->windowFlags());
        if (start)
            start(sender, form);
    });
    return centred ? calculator.Execute() : calculator.ExecutePos(left, top);
}

// Before any calculator is shown: the handler may change the value handed to it, or set
// `show` to false to keep the calculator closed; the value it leaves is then stored as an
// accepted result.
using TQORPopupCalcEvent = std::function<void(QObject* sender, Extended& value, bool& show)>;
// After the button press (accepted or not), with the value; the value it leaves is stored.
using TQORCalcClickEndEvent = std::function<void(QObject* sender, Extended& value, bool accepted)>;

class QORKIT_WIDGETS_EXPORT TQORCalcEditBase : public QWidget, public IQORNotifyClient {
    Q_OBJECT
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(bool AutoSize READ GetAutoSize WRITE SetAutoSize NOTIFY autoSizeChanged)
    Q_PROPERTY(int Height READ height WRITE SetHeight NOTIFY heightChanged)
    Q_PROPERTY(bool StoreValue READ GetStoreValue WRITE SetStoreValue NOTIFY storeValueChanged)
    Q_PROPERTY(bool FlatCalc READ GetFlatCalc WRITE SetFlatCalc NOTIFY flatCalcChanged)
    Q_PROPERTY(Qt::Alignment Alignment READ GetAlignment WRITE SetAlignment NOTIFY alignmentChanged)
    Q_PROPERTY(bool AutoSelectClick READ GetAutoSelectClick WRITE SetAutoSelectClick NOTIFY
                   autoSelectClickChanged)
    Q_PROPERTY(bool AutoSelect READ GetAutoSelect WRITE SetAutoSelect NOTIFY autoSelectChanged)
    Q_PROPERTY(
        bool AllowKbdNull READ GetAllowKbdNull WRITE SetAllowKbdNull NOTIFY allowKbdNullChanged)
    Q_PROPERTY(double AsFloat READ GetAsDouble WRITE SetAsDouble NOTIFY asFloatChanged)
    Q_PROPERTY(
        bool BlankWhenNull READ GetBlankWhenNull WRITE SetBlankWhenNull NOTIFY blankWhenNullChanged)
    Q_PROPERTY(bool BlankIsNull READ GetBlankIsNull WRITE SetBlankIsNull NOTIFY blankIsNullChanged)
    Q_PROPERTY(bool CalcCenter READ GetCalcCenter WRITE SetCalcCenter NOTIFY calcCenterChanged)
    Q_PROPERTY(qorkit::TQORCalcGlyphType CalcGlyphType READ GetCalcGlyphType WRITE SetCalcGlyphType
                   NOTIFY calcGlyphTypeChanged)
    Q_PROPERTY(QString CalcTitle READ GetCalcTitle WRITE SetCalcTitle RESET ResetCalcTitle NOTIFY
                   calcTitleChanged)
    Q_PROPERTY(
        bool EditorEnabled READ GetEditorEnabled WRITE SetEditorEnabled NOTIFY editorEnabledChanged)
    Q_PROPERTY(bool AutoAdvance READ GetAutoAdvance WRITE SetAutoAdvance NOTIFY autoAdvanceChanged)
    Q_PROPERTY(int MaxLength READ GetMaxLength WRITE SetMaxLength NOTIFY maxLengthChanged)
    Q_PROPERTY(bool Null READ GetNull WRITE SetNull NOTIFY nullChanged)
    Q_PROPERTY(QString NullStr READ GetNullStr WRITE SetNullStr NOTIFY nullStrChanged)
    Q_PROPERTY(bool ReadOnly READ GetReadOnly WRITE SetReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(bool HideButton READ GetHideButton WRITE SetHideButton NOTIFY hideButtonChanged)
    Q_PROPERTY(bool TabStop READ GetTabStop WRITE SetTabStop NOTIFY tabStopChanged)
    Q_PROPERTY(QString Text READ GetText WRITE SetAsString NOTIFY textChanged STORED false)
    Q_PROPERTY(QString AsString READ GetText WRITE SetAsString NOTIFY asStringChanged STORED false)
    Q_PROPERTY(TQOREditColorSet* ColorSet READ GetColorSet CONSTANT)
    Q_PROPERTY(TQORUICtrl* UICtrl READ GetUICtrl WRITE SetUICtrl NOTIFY uiCtrlChanged)
    Q_PROPERTY(qorkit::TQORUIUsage UIUsage READ GetUIUsage WRITE SetUIUsage NOTIFY uiUsageChanged)

public:
    ~TQORCalcEditBase() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The inner edit.
    TQORBaseEdit* GetEdit() const { return edit_; }
    QToolButton* GetButton() const { return button_; }

    // The value of the inner edit (brought up to date from text being typed).
    virtual Extended GetValue() = 0;
    virtual void SetValue(Extended value) = 0;
    std::uint8_t GetDecimalPlaces() const { return CalcDecimals(); }
    void SetDecimalPlaces(std::uint8_t value);

    // The button's click: the whole hand-off described at the top of this header.
    void CalcClick();
    // Whether the last button press ended with an accepted calculator result.
    bool GetAccepted() const { return accepted_; }

    // The calculator component in use, when one is set (see the derived classes' typed
    // CalculatorControl); a component that is destroyed is forgotten.
    TQORFloatCalcComponent* GetCalculatorComponent() const { return calculator_.data(); }
    void Notification(QObject* component, TQOROperation operation) override;

    bool GetAutoSize() const { return autoSize_; }
    void SetAutoSize(bool value);
    void SetHeight(int value);
    bool GetFlatCalc() const { return flatCalc_; }
    void SetFlatCalc(bool value);
    bool GetCalcCenter() const { return calcCenter_; }
    void SetCalcCenter(bool value);
    TQORCalcGlyphType GetCalcGlyphType() const { return calcGlyphType_; }
    // Loads the glyph only when the type changes; a value outside 0..2 keeps the glyph.
    void SetCalcGlyphType(TQORCalcGlyphType value);
    // The calculator's caption; "Calculator" unless set.
    QString GetCalcTitle() const;
    void SetCalcTitle(const QString& value);
    void ResetCalcTitle() { SetCalcTitle(QString()); }
    // Whether CalcTitle differs from the default (and so is saved with the form; Designer
    // sees the default through the property's reset).
    bool StoreCalcTitle() const;
    bool GetReadOnly() const { return readOnly_; }
    // Passed to the inner edit; the button works only when the edit is enabled and the
    // control is not read-only.
    void SetReadOnly(bool value);
    bool GetHideButton() const { return hideButton_; }
    void SetHideButton(bool value);
    // Enables or disables the inner edit (and so the button).
    void SetEnabled(bool value);

    // Forwarded to the inner edit.
    bool GetStoreValue() const { return edit_->GetStoreValue(); }
    void SetStoreValue(bool value);
    Qt::Alignment GetAlignment() const { return edit_->GetAlignment(); }
    void SetAlignment(Qt::Alignment value);
    bool GetAutoSelectClick() const { return edit_->GetAutoSelectClick(); }
    void SetAutoSelectClick(bool value);
    bool GetAutoSelect() const { return edit_->GetAutoSelect(); }
    void SetAutoSelect(bool value);
    bool GetAllowKbdNull() const { return edit_->GetAllowKbdNull(); }
    void SetAllowKbdNull(bool value);
    bool GetBlankWhenNull() const { return edit_->GetBlankWhenNull(); }
    void SetBlankWhenNull(bool value);
    bool GetBlankIsNull() const { return edit_->GetBlankIsNull(); }
    void SetBlankIsNull(bool value);
    bool GetEditorEnabled() const { return edit_->GetEditorEnabled(); }
    void SetEditorEnabled(bool value);
    bool GetAutoAdvance() const { return edit_->GetAutoAdvance(); }
    void SetAutoAdvance(bool value);
    int GetMaxLength() const { return edit_->GetMaxLength(); }
    void SetMaxLength(int value);
    bool GetNull() const { return edit_->GetNull(); }
    void SetNull(bool value) { edit_->SetNull(value); }
    QString GetNullStr() const { return edit_->GetNullStr(); }
    void SetNullStr(const QString& value);
    bool GetTabStop() const { return edit_->GetTabStop(); }
    void SetTabStop(bool value);
    QString GetText() const { return edit_->text(); }
    QString GetAsString() const { return edit_->GetAsString(); }
    void SetAsString(const QString& value) { edit_->SetAsString(value); }
    TQOREditColorSet* GetColorSet() const { return edit_->GetColorSet(); }
    TQORUICtrl* GetUICtrl() const { return edit_->GetUICtrl(); }
    void SetUICtrl(TQORUICtrl* value);
    TQORUIUsage GetUIUsage() const { return edit_->GetUIUsage(); }
    void SetUIUsage(TQORUIUsage value);

    // Editing operations of the inner edit.
    void Clear() { edit_->clear(); }
    void ClearSelection() { edit_->ClearSelection(); }
    void CopyToClipboard() { edit_->CopyToClipboard(); }
    void CutToClipboard() { edit_->CutToClipboard(); }
    void PasteFromClipboard() { edit_->PasteFromClipboard(); }
    void Undo() { edit_->Undo(); }
    void ClearUndo() { edit_->ClearUndo(); }
    void SelectAll() { edit_->SelectAll(); }
    void SelectNone() { edit_->SelectNone(); }
    bool IsClear() const { return edit_->IsClear(); }
    int GetSelTextBuf(char* buffer, int bufferSize) const
    {
        return edit_->GetSelTextBuf(buffer, bufferSize);
    }
    void SetSelTextBuf(const char* text) { edit_->SetSelTextBuf(text); }
    int SelStart() const { return edit_->GetSelStart(); }
    void SetSelStart(int value) { edit_->SetSelStart(value); }
    int SelLength() const { return edit_->GetSelLength(); }
    void SetSelLength(int value) { edit_->SetSelLength(value); }
    QString SelText() const { return edit_->GetSelText(); }
    void SetSelText(const QString& value) { edit_->SetSelText(value); }
    bool Modified() const { return edit_->isModified(); }
    void SetModified(bool value) { edit_->setModified(value); }

    // Events, raised with this control as the sender (and as the Qt signals below). The inner
    // edit's OnClick, OnDblClick, OnMouseDown, OnMouseUp, OnMouseMove, OnKeyUp (and key-down
    // and key-press) events reach the handlers set here.
    void SetOnChange(TQORNotifyEvent e) { onChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnChange() const { return onChange_; }
    void SetOnCalcClick(TQORNotifyEvent e) { onCalcClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnCalcClick() const { return onCalcClick_; }
    void SetOnCalcClickEnd(TQORCalcClickEndEvent e) { onCalcClickEnd_ = std::move(e); }
    const TQORCalcClickEndEvent& GetOnCalcClickEnd() const { return onCalcClickEnd_; }
    void SetOnNull(TQORNotifyEvent e) { onNull_ = std::move(e); }
    const TQORNotifyEvent& GetOnNull() const { return onNull_; }
    void SetOnPopupCalc(TQORPopupCalcEvent e) { onPopupCalc_ = std::move(e); }
    const TQORPopupCalcEvent& GetOnPopupCalc() const { return onPopupCalc_; }
    void SetOnSignChange(TQORSignChangeEvent e) { onSignChange_ = std::move(e); }
    const TQORSignChangeEvent& GetOnSignChange() const { return onSignChange_; }
    void SetOnValidationError(TQORValidationErrorEvent e) { onValidationError_ = std::move(e); }
    const TQORValidationErrorEvent& GetOnValidationError() const { return onValidationError_; }
    void SetOnClick(TQORNotifyEvent e) { onClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnClick() const { return onClick_; }
    void SetOnDblClick(TQORNotifyEvent e) { onDblClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnDblClick() const { return onDblClick_; }
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

Q_SIGNALS:
    void change();
    void calcClick();
    void calcClickEnd(qorkit::Extended* value, bool accepted);
    void null();
    void popupCalc(qorkit::Extended* value, bool* show);
    void signChange(int sign);
    void validationError(const QString& message);
    void click();
    void dblClick();
    void mouseDown(QMouseEvent* event);
    void mouseUp(QMouseEvent* event);
    void mouseMove(QMouseEvent* event);
    void keyDown(QKeyEvent* event);
    void keyPress(QKeyEvent* event);
    void keyUp(QKeyEvent* event);

    void decimalPlacesChanged();
    void autoSizeChanged();
    void heightChanged();
    void calculatorControlChanged();
    void storeValueChanged();
    void flatCalcChanged();
    void alignmentChanged();
    void autoSelectClickChanged();
    void autoSelectChanged();
    void allowKbdNullChanged();
    void asFloatChanged();
    void blankWhenNullChanged();
    void blankIsNullChanged();
    void calcCenterChanged();
    void calcGlyphTypeChanged();
    void calcTitleChanged();
    void editorEnabledChanged();
    void autoAdvanceChanged();
    void maxLengthChanged();
    void nullChanged();
    void nullStrChanged();
    void readOnlyChanged();
    void hideButtonChanged();
    void tabStopChanged();
    void textChanged();
    void asStringChanged();
    void uiCtrlChanged();
    void uiUsageChanged();

protected:
    TQORCalcEditBase(QWidget* parent, const TQORCalcKind& kind);

    // Takes `edit` (a new child) as the inner edit and routes its events through this
    // control; the derived constructor calls it once.
    void AutoInitialize(TQORBaseEdit* edit);
    // Frees the inner edit; called once the control is being destroyed.
    void AutoDestroy();

    // The value hooks of the inner edit.
    virtual std::uint8_t CalcDecimals() const = 0;
    virtual void SetCalcDecimals(std::uint8_t value) = 0;
    virtual bool CalcTrimTrailingZeroes() const = 0;

    // Stores the component, following its removal.
    void SetCalculatorComponent(TQORFloatCalcComponent* calculator);
    // Where the calculator opens when it is not centred (screen coordinates).
    QPoint CalcPosition() const;

    // The inner edit's key handling: ignored when read-only, otherwise the user's handler,
    // then Alt+Down opens the calculator.
    void EditKeyDown(QKeyEvent* event);
    void EditKeyPress(QKeyEvent* event);
    // Key presses offered to shortcuts first: Alt+Down stays with the edit.
    void EditCNKeyDown(QKeyEvent* event);
    void EditKeyUp(QKeyEvent* event);
    // Passes the focus on to the inner edit.
    void DoEnter();

    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    // Sets a property of the inner edit and raises `changed` when its getter then reads
    // differently.
    template<class Owner, class Edit, class Get, class Set, class T>
    static void Forward(Owner* owner, Edit* edit, Get get, Set set, const T& value,
                        void (Owner::*changed)())
    {
        const auto before = (edit->*get)();
        (edit->*set)(value);
        if ((edit->*get)() != before)
            (owner->*changed)();
    }

private:
    int GetDecimalPlacesValue() const { return CalcDecimals(); }
    void SetDecimalPlacesValue(int value);
    double GetAsDouble() { return static_cast<double>(GetValue()); }
    void SetAsDouble(double value) { SetValue(value); }
    void UpdateButton();
    void LayoutChildren();
    void DoChange();
    void DoValueChangeSignals();

    const TQORCalcKind& kind_;
    TQORBaseEdit* edit_ = nullptr;
    QToolButton* button_ = nullptr;
    QPointer<TQORFloatCalcComponent> calculator_;
    QObject* calculatorAddress_ = nullptr; // for the removal notice, after QPointer cleared
    QMetaObject::Connection calculatorConnection_;
    TQORCalcGlyphType calcGlyphType_ = cgtCalculator;
    QString calcTitle_; // empty: the default title
    bool calcCenter_ = false;
    bool flatCalc_ = false;
    bool readOnly_ = false;
    bool hideButton_ = false;
    bool autoSize_ = true;
    bool accepted_ = false;
    bool destroying_ = false;
    Extended lastValue_ = 0;
    int lastHeight_ = -1;

    TQORNotifyEvent onChange_;
    TQORNotifyEvent onCalcClick_;
    TQORCalcClickEndEvent onCalcClickEnd_;
    TQORNotifyEvent onNull_;
    TQORPopupCalcEvent onPopupCalc_;
    TQORSignChangeEvent onSignChange_;
    TQORValidationErrorEvent onValidationError_;
    TQORNotifyEvent onClick_;
    TQORNotifyEvent onDblClick_;
    TQORMouseEvent onMouseDown_;
    TQORMouseEvent onMouseUp_;
    TQORMouseEvent onMouseMove_;
    TQORKeyEvent onKeyDown_;
    TQORKeyEvent onKeyPress_;
    TQORKeyEvent onKeyUp_;
};

// A calculator edit over a TQORFloatEdit: the float edit's settings forwarded.
class QORKIT_WIDGETS_EXPORT TQORFloatCalcEdit : public TQORCalcEditBase {
    Q_OBJECT
    Q_PROPERTY(
        bool FullAccuracy READ GetFullAccuracy WRITE SetFullAccuracy NOTIFY fullAccuracyChanged)
    Q_PROPERTY(bool FullAccuracyEdit READ GetFullAccuracyEdit WRITE SetFullAccuracyEdit NOTIFY
                   fullAccuracyEditChanged)
    Q_PROPERTY(bool TrimTrailingZeroes READ GetTrimTrailingZeroes WRITE SetTrimTrailingZeroes NOTIFY
                   trimTrailingZeroesChanged)
    Q_PROPERTY(bool AllowExpressions READ GetAllowExpressions WRITE SetAllowExpressions NOTIFY
                   allowExpressionsChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(qorkit::TQORThousandSeparators ThousandSeparators READ GetThousandSeparators WRITE
                   SetThousandSeparators NOTIFY thousandSeparatorsChanged)
    Q_PROPERTY(bool ShowThousandSeparators READ GetShowThousandSeparators WRITE
                   SetShowThousandSeparators NOTIFY showThousandSeparatorsChanged)
    Q_PROPERTY(bool ZeroPad READ GetZeroPad WRITE SetZeroPad NOTIFY zeroPadChanged)
    Q_PROPERTY(
        bool AllowNegInput READ GetAllowNegInput WRITE SetAllowNegInput NOTIFY allowNegInputChanged)
    Q_PROPERTY(
        bool NegAsBrackets READ GetNegAsBrackets WRITE SetNegAsBrackets NOTIFY negAsBracketsChanged)
    Q_PROPERTY(bool LakhFormatting READ GetLakhFormatting WRITE SetLakhFormatting NOTIFY
                   lakhFormattingChanged)
    Q_PROPERTY(QChar CustomDecimal READ GetCustomDecimalChar WRITE SetCustomDecimalChar NOTIFY
                   customDecimalChanged)
    Q_PROPERTY(QChar CustomThousands READ GetCustomThousandsChar WRITE SetCustomThousandsChar NOTIFY
                   customThousandsChanged)
    Q_PROPERTY(bool CustomSeparators READ GetCustomSeparators WRITE SetCustomSeparators NOTIFY
                   customSeparatorsChanged)

public:
    TQORFloatEdit* GetFloatEdit() const { return floatEdit_; }

    Extended GetValue() override { return floatEdit_->GetValue(); }
    // Refused (old value kept, reported) outside the bounds or when not finite.
    void SetValue(Extended value) override { floatEdit_->SetValue(value); }

    bool GetFullAccuracy() const { return floatEdit_->GetFullAccuracy(); }
    void SetFullAccuracy(bool value);
    bool GetFullAccuracyEdit() const { return floatEdit_->GetFullAccuracyEdit(); }
    void SetFullAccuracyEdit(bool value);
    bool GetTrimTrailingZeroes() const { return floatEdit_->GetTrimTrailingZeroes(); }
    void SetTrimTrailingZeroes(bool value);
    bool GetAllowExpressions() const { return floatEdit_->GetAllowExpressions(); }
    void SetAllowExpressions(bool value);
    bool GetBlankWhenZero() const { return floatEdit_->GetBlankWhenZero(); }
    void SetBlankWhenZero(bool value);
    TQORThousandSeparators GetThousandSeparators() const
    {
        return floatEdit_->GetThousandSeparators();
    }
    void SetThousandSeparators(TQORThousandSeparators value);
    bool GetShowThousandSeparators() const { return floatEdit_->GetShowThousandSeparators(); }
    void SetShowThousandSeparators(bool value);
    bool GetZeroPad() const { return floatEdit_->GetZeroPad(); }
    void SetZeroPad(bool value);
    bool GetAllowNegInput() const { return floatEdit_->GetAllowNegInput(); }
    void SetAllowNegInput(bool value);
    bool GetNegAsBrackets() const { return floatEdit_->GetNegAsBrackets(); }
    void SetNegAsBrackets(bool value);
    bool GetLakhFormatting() const { return floatEdit_->GetLakhFormatting(); }
    void SetLakhFormatting(bool value);
    char GetCustomDecimal() const { return floatEdit_->GetCustomDecimal(); }
    void SetCustomDecimal(char value);
    char GetCustomThousands() const { return floatEdit_->GetCustomThousands(); }
    void SetCustomThousands(char value);
    bool GetCustomSeparators() const { return floatEdit_->GetCustomSeparators(); }
    void SetCustomSeparators(bool value);

Q_SIGNALS:
    void fullAccuracyChanged();
    void fullAccuracyEditChanged();
    void trimTrailingZeroesChanged();
    void allowExpressionsChanged();
    void blankWhenZeroChanged();
    void thousandSeparatorsChanged();
    void showThousandSeparatorsChanged();
    void zeroPadChanged();
    void allowNegInputChanged();
    void negAsBracketsChanged();
    void lakhFormattingChanged();
    void customDecimalChanged();
    void customThousandsChanged();
    void customSeparatorsChanged();

protected:
    TQORFloatCalcEdit(QWidget* parent, const TQORCalcKind& kind);

    std::uint8_t CalcDecimals() const override { return floatEdit_->GetDecimalPlaces(); }
    void SetCalcDecimals(std::uint8_t value) override;
    bool CalcTrimTrailingZeroes() const override { return floatEdit_->GetTrimTrailingZeroes(); }

private:
    QChar GetCustomDecimalChar() const { return QLatin1Char(GetCustomDecimal()); }
    void SetCustomDecimalChar(QChar value) { SetCustomDecimal(value.toLatin1()); }
    QChar GetCustomThousandsChar() const { return QLatin1Char(GetCustomThousands()); }
    void SetCustomThousandsChar(QChar value) { SetCustomThousands(value.toLatin1()); }

    TQORFloatEdit* floatEdit_;
};

// The calculator edit that opens the standard calculator.
class QORKIT_WIDGETS_EXPORT TQORCalcEdit : public TQORFloatCalcEdit {
    Q_OBJECT
    Q_PROPERTY(TQORCalculator* CalculatorControl READ GetCalculatorControl WRITE
                   SetCalculatorControl NOTIFY calculatorControlChanged)

public:
    explicit TQORCalcEdit(QWidget* parent = nullptr);

    TQORCalculator* GetCalculatorControl() const;
    // Its settings are used instead of the default dialog's; forgotten when it is destroyed.
    void SetCalculatorControl(TQORCalculator* calculator) { SetCalculatorComponent(calculator); }
};

} // namespace qorkit
