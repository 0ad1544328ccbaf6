// TQORComplexEdit: one complex number edited as a pair of numbers between brackets, "(3.00,
// 4.00)": the real and imaginary parts, or with ComplexDisplay ctPolar the modulus and the
// amplitude (radians).
//
// The control is a composite of two TQORFloatEdit element edits and three labels ("(", ","
// and ")"), laid out at 96 DPI as
//     "(" 0,-4 7x25   first edit 7,0 51x21   "," 58,0 5x21   second edit 63,0 51x21
//     ")" 114,-4 7x25                                        (the control: 121 x 21)
// The element edits grow with the control's width. The display settings (DecimalPlaces,
// Alignment, ReadOnly, NullStr, the blank and null flags, the accuracy and selection switches,
// the colours) are passed to both element edits. Tab moves from the first edit to the second.
//
// The control holds the value itself. A number typed into an element edit is written straight
// into the held value when it is taken over (Enter) and when the edit is left: the first
// edit's number into the real part, the second's into the imaginary part, whatever
// ComplexDisplay shows. The null string typed into either edit makes the control null.
//
// Width, Height, Anchors, Color, Enabled, Font and PopupMenu are the widget's own geometry,
// layout, palette, enabled, font and context-menu settings. OnClick, OnEnter and OnExit
// (focus entering and leaving the pair), OnKeyDown, OnKeyPress and OnKeyUp are forwarded from
// the element edits with the control as the sender. OnChange, OnNull, OnNullChange,
// OnColorSetChange and OnSpecialColor are the control's own; each event is also a signal.
#pragma once

#include "QORKITComponent.h"
#include "QORKITEditColors.h"
#include "QORKITFloatEdit.h"
#include "QORKITQtEnums.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QLabel>
#include <QWidget>

#include <cstdint>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORComplexEdit : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool AutoSize READ GetAutoSize WRITE SetAutoSize NOTIFY autoSizeChanged)
    Q_PROPERTY(TQORUICtrl* UICtrl READ GetUICtrl WRITE SetUICtrl NOTIFY uiCtrlChanged)
    Q_PROPERTY(qorkit::TQORUIUsage UIUsage READ GetUIUsage WRITE SetUIUsage NOTIFY uiUsageChanged)
    Q_PROPERTY(TQOREditColorSet* ColorSet READ GetColorSet CONSTANT)
    Q_PROPERTY(bool StoreValue READ GetStoreValue WRITE SetStoreValue NOTIFY storeValueChanged)
    Q_PROPERTY(
        bool FullAccuracy READ GetFullAccuracy WRITE SetFullAccuracy NOTIFY fullAccuracyChanged)
    Q_PROPERTY(bool FullAccuracyEdit READ GetFullAccuracyEdit WRITE SetFullAccuracyEdit NOTIFY
                   fullAccuracyEditChanged)
    Q_PROPERTY(bool TrimTrailingZeroes READ GetTrimTrailingZeroes WRITE SetTrimTrailingZeroes NOTIFY
                   trimTrailingZeroesChanged)
    Q_PROPERTY(double AbsoluteValue READ GetAbsValueDouble WRITE SetAbsValueDouble NOTIFY
                   absoluteValueChanged STORED false)
    Q_PROPERTY(double Amplitude READ GetAmplitudeDouble WRITE SetAmplitudeDouble NOTIFY
                   amplitudeChanged STORED false)
    Q_PROPERTY(Qt::Alignment Alignment READ GetAlignment WRITE SetAlignment NOTIFY alignmentChanged)
    Q_PROPERTY(bool AutoSelectClick READ GetAutoSelectClick WRITE SetAutoSelectClick NOTIFY
                   autoSelectClickChanged)
    Q_PROPERTY(bool AutoSelect READ GetAutoSelect WRITE SetAutoSelect NOTIFY autoSelectChanged)
    Q_PROPERTY(
        bool AllowKbdNull READ GetAllowKbdNull WRITE SetAllowKbdNull NOTIFY allowKbdNullChanged)
    Q_PROPERTY(
        bool BlankWhenZero READ GetBlankWhenZero WRITE SetBlankWhenZero NOTIFY blankWhenZeroChanged)
    Q_PROPERTY(
        bool BlankWhenNull READ GetBlankWhenNull WRITE SetBlankWhenNull NOTIFY blankWhenNullChanged)
    Q_PROPERTY(bool BlankIsNull READ GetBlankIsNull WRITE SetBlankIsNull NOTIFY blankIsNullChanged)
    Q_PROPERTY(qorkit::TQORComplexType ComplexDisplay READ GetComplexDisplay WRITE SetComplexDisplay
                   NOTIFY complexDisplayChanged)
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(double RealPortion READ GetRealPortionDouble WRITE SetRealPortionDouble NOTIFY
                   realPortionChanged)
    Q_PROPERTY(double ImaginaryPortion READ GetImaginaryPortionDouble WRITE
                   SetImaginaryPortionDouble NOTIFY imaginaryPortionChanged)
    Q_PROPERTY(bool Null READ GetNull WRITE SetNull NOTIFY nullChanged)
    Q_PROPERTY(QString NullStr READ GetNullStr WRITE SetNullStr NOTIFY nullStrChanged)
    Q_PROPERTY(bool ReadOnly READ GetReadOnly WRITE SetReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(
        bool ShowBrackets READ GetShowBrackets WRITE SetShowBrackets NOTIFY showBracketsChanged)
    Q_PROPERTY(bool TabStop READ GetTabStop WRITE SetTabStop NOTIFY tabStopChanged)

public:
    explicit TQORComplexEdit(QWidget* parent = nullptr);

    // The value; zero while the control is null.
    TQORComplex GetComplex() const { return null_ ? ComplexZero : value_; }
    // Stores Z and shows it; an equal value (exactly) on a non-null control does nothing.
    // NaN and infinities are refused and reported.
    void SetComplex(const TQORComplex& Z);
    Extended GetRealPortion() const { return GetComplex().Real; }
    void SetRealPortion(Extended X);
    Extended GetImaginaryPortion() const { return GetComplex().Imaginary; }
    void SetImaginaryPortion(Extended X);
    // Modulus and amplitude (radians, 0 .. 2 pi) of the value. A negative modulus is taken
    // as its absolute value.
    Extended GetAbsValue() const;
    void SetAbsValue(Extended M);
    Extended GetAmplitude() const;
    void SetAmplitude(Extended A);

    TQORComplexType GetComplexDisplay() const { return complexDisplay_; }
    // Any value other than ctRealImaginary shows the polar form.
    void SetComplexDisplay(TQORComplexType value);
    bool GetShowBrackets() const { return showBrackets_; }
    void SetShowBrackets(bool value);
    // The control's height follows the element edits' height (21).
    bool GetAutoSize() const { return autoSize_; }
    void SetAutoSize(bool value);
    // Height of the control; ignored while AutoSize is on.
    int GetHeight() const { return height(); }
    void SetHeight(int value);
    bool GetNull() const { return null_; }
    void SetNull(bool value);
    bool GetStoreValue() const { return storeValue_; }
    void SetStoreValue(bool value);

    // Settings passed to both element edits.
    std::uint8_t GetDecimalPlaces() const { return first_->GetDecimalPlaces(); }
    void SetDecimalPlaces(std::uint8_t value);
    bool GetFullAccuracy() const { return first_->GetFullAccuracy(); }
    void SetFullAccuracy(bool value);
    bool GetFullAccuracyEdit() const { return first_->GetFullAccuracyEdit(); }
    void SetFullAccuracyEdit(bool value);
    bool GetTrimTrailingZeroes() const { return first_->GetTrimTrailingZeroes(); }
    void SetTrimTrailingZeroes(bool value);
    Qt::Alignment GetAlignment() const { return first_->GetAlignment(); }
    void SetAlignment(Qt::Alignment value);
    bool GetAutoSelectClick() const { return first_->GetAutoSelectClick(); }
    void SetAutoSelectClick(bool value);
    bool GetAutoSelect() const { return first_->GetAutoSelect(); }
    void SetAutoSelect(bool value);
    bool GetAllowKbdNull() const { return first_->GetAllowKbdNull(); }
    void SetAllowKbdNull(bool value);
    bool GetBlankWhenZero() const { return first_->GetBlankWhenZero(); }
    void SetBlankWhenZero(bool value);
    bool GetBlankWhenNull() const { return first_->GetBlankWhenNull(); }
    void SetBlankWhenNull(bool value);
    bool GetBlankIsNull() const { return first_->GetBlankIsNull(); }
    void SetBlankIsNull(bool value);
    QString GetNullStr() const { return first_->GetNullStr(); }
    void SetNullStr(const QString& value);
    bool GetReadOnly() const { return first_->GetReadOnly(); }
    void SetReadOnly(bool value);
    bool GetTabStop() const { return first_->GetTabStop(); }
    void SetTabStop(bool value);
    TQORUICtrl* GetUICtrl() const { return first_->GetUICtrl(); }
    void SetUICtrl(TQORUICtrl* value);
    TQORUIUsage GetUIUsage() const { return first_->GetUIUsage(); }
    void SetUIUsage(TQORUIUsage value);
    // The control's own colours, copied into both element edits whenever they change.
    TQOREditColorSet* GetColorSet() const { return colorSet_; }

    // The element edits: 0 the first (real part or modulus), 1 the second.
    TQORFloatEdit* GetElementEdit(int index) const { return index == 0 ? first_ : second_; }

    // Gives each element edit its number of the value in the present display form.
    void UpdateEditFields();

    void SetOnChange(TQORNotifyEvent e) { onChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnChange() const { return onChange_; }
    void SetOnNull(TQORNotifyEvent e) { onNull_ = std::move(e); }
    const TQORNotifyEvent& GetOnNull() const { return onNull_; }
    void SetOnNullChange(TQORNotifyEvent e) { onNullChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnNullChange() const { return onNullChange_; }
    void SetOnColorSetChange(TQORNotifyEvent e) { onColorSetChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnColorSetChange() const { return onColorSetChange_; }
    void SetOnSpecialColor(TQORSpecialColorEvent e);
    const TQORSpecialColorEvent& GetOnSpecialColor() const { return onSpecialColor_; }
    // A number or value the control refuses; without a handler the control beeps.
    void SetOnValidationError(TQORValidationErrorEvent e) { onValidationError_ = std::move(e); }
    const TQORValidationErrorEvent& GetOnValidationError() const { return onValidationError_; }
    void SetOnClick(TQORNotifyEvent e) { onClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnClick() const { return onClick_; }
    void SetOnEnter(TQORNotifyEvent e) { onEnter_ = std::move(e); }
    const TQORNotifyEvent& GetOnEnter() const { return onEnter_; }
    void SetOnExit(TQORNotifyEvent e) { onExit_ = std::move(e); }
    const TQORNotifyEvent& GetOnExit() const { return onExit_; }
    void SetOnKeyDown(TQORKeyEvent e) { onKeyDown_ = std::move(e); }
    const TQORKeyEvent& GetOnKeyDown() const { return onKeyDown_; }
    void SetOnKeyPress(TQORKeyEvent e) { onKeyPress_ = std::move(e); }
    const TQORKeyEvent& GetOnKeyPress() const { return onKeyPress_; }
    void SetOnKeyUp(TQORKeyEvent e) { onKeyUp_ = std::move(e); }
    const TQORKeyEvent& GetOnKeyUp() const { return onKeyUp_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void autoSizeChanged();
    void uiCtrlChanged();
    void uiUsageChanged();
    void storeValueChanged();
    void fullAccuracyChanged();
    void fullAccuracyEditChanged();
    void trimTrailingZeroesChanged();
    void absoluteValueChanged();
    void amplitudeChanged();
    void alignmentChanged();
    void autoSelectClickChanged();
    void autoSelectChanged();
    void allowKbdNullChanged();
    void blankWhenZeroChanged();
    void blankWhenNullChanged();
    void blankIsNullChanged();
    void complexDisplayChanged();
    void decimalPlacesChanged();
    void realPortionChanged();
    void imaginaryPortionChanged();
    void nullChanged();
    void nullStrChanged();
    void readOnlyChanged();
    void showBracketsChanged();
    void tabStopChanged();
    // The events (OnChange, OnNull ...) as signals.
    void change();
    void null();
    void nullChange();
    void colorSetChange();
    void specialColor(QColor* background, QColor* text);
    void validationError(const QString& message);
    void click();
    void enter();
    void exit();
    void keyDown(QKeyEvent* event);
    void keyPress(QKeyEvent* event);
    void keyUp(QKeyEvent* event);

protected:
    // Creates the labels and element edits and wires the edits to the control.
    void AutoInitialize();
    // Lays the children out left to right for the present width and ShowBrackets.
    void Resize();
    // The user left an element edit (or took its text over): its number goes into the held
    // value.
    void ElementExit(QObject* Sender);
    void DoChange();
    void DoColorSetChange();
    void resizeEvent(QResizeEvent* event) override;

private:
    int GetDecimalPlacesValue() const { return GetDecimalPlaces(); }
    void SetDecimalPlacesValue(int value);
    double GetAbsValueDouble() const { return static_cast<double>(GetAbsValue()); }
    void SetAbsValueDouble(double value) { SetAbsValue(value); }
    double GetAmplitudeDouble() const { return static_cast<double>(GetAmplitude()); }
    void SetAmplitudeDouble(double value) { SetAmplitude(value); }
    double GetRealPortionDouble() const { return static_cast<double>(GetRealPortion()); }
    void SetRealPortionDouble(double value) { SetRealPortion(value); }
    double GetImaginaryPortionDouble() const { return static_cast<double>(GetImaginaryPortion()); }
    void SetImaginaryPortionDouble(double value) { SetImaginaryPortion(value); }

    // Sets one setting on both element edits; false when it already had that value.
    template<typename Getter, typename Setter, typename T>
    bool PassToEdits(Getter get, Setter set, const T& value);
    // Stores `z` (leaving the null state); with `show` the element edits show it.
    void StoreComplex(const TQORComplex& z, bool show);
    void ShowElement(TQORFloatEdit* edit);
    void ReportError(const QString& message);
    void WireElement(TQORFloatEdit* edit);
    QLabel* MakeLabel(const char* name, const QString& text, bool bracket);

    TQORComplex value_ {};
    bool null_ = false;
    TQORComplexType complexDisplay_ = ctRealImaginary;
    bool showBrackets_ = true;
    bool autoSize_ = true;
    bool storeValue_ = true;
    bool updating_ = false; // the control itself is writing into the element edits
    bool focusInside_ = false;
    TQOREditColorSet* colorSet_ = nullptr;
    QLabel* openLabel_ = nullptr;
    TQORFloatEdit* first_ = nullptr;
    QLabel* separatorLabel_ = nullptr;
    TQORFloatEdit* second_ = nullptr;
    QLabel* closeLabel_ = nullptr;

    TQORNotifyEvent onChange_;
    TQORNotifyEvent onNull_;
    TQORNotifyEvent onNullChange_;
    TQORNotifyEvent onColorSetChange_;
    TQORSpecialColorEvent onSpecialColor_;
    TQORValidationErrorEvent onValidationError_;
    TQORNotifyEvent onClick_;
    TQORNotifyEvent onEnter_;
    TQORNotifyEvent onExit_;
    TQORKeyEvent onKeyDown_;
    TQORKeyEvent onKeyPress_;
    TQORKeyEvent onKeyUp_;
};

} // namespace qorkit
