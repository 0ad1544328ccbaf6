// The base controls that the library's composite controls derive from:
//   TQORBaseSpinEdit  an edit with up and down arrows stepping an extended value between Min
//                     and Max (TQORFloatSpinEdit is the one over a TQORFloatEdit);
//   TQORBaseComboBox  a combo box that loads its own items and reports the user's choice;
//   TQORBasePanel     a framed, captioned container that lays out its children on resize.
#pragma once

#include "QORKITBaseEdit.h"
#include "QORKITComponent.h"
#include "QORKITEditColors.h"
#include "QORKITQtEnums.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include <cstdint>

class QToolButton;

namespace qorkit {

class TQORFloatEdit;

class QORKIT_WIDGETS_EXPORT TQORBaseSpinEdit : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double Max READ GetMaxDouble WRITE SetMaxDouble NOTIFY maxChanged)
    Q_PROPERTY(double Min READ GetMinDouble WRITE SetMinDouble NOTIFY minChanged)
    Q_PROPERTY(bool Unbounded READ GetUnbounded WRITE SetUnbounded NOTIFY unboundedChanged)
    Q_PROPERTY(double Value READ GetValueDouble WRITE SetValueDouble NOTIFY valueChanged)
    Q_PROPERTY(double Step READ GetStepDouble WRITE SetStepDouble NOTIFY stepChanged)
    Q_PROPERTY(
        double PageStep READ GetPageStepDouble WRITE SetPageStepDouble NOTIFY pageStepChanged)
    Q_PROPERTY(bool Wrap READ GetWrap WRITE SetWrap NOTIFY wrapChanged)
    Q_PROPERTY(int Interval READ GetInterval WRITE SetInterval NOTIFY intervalChanged)
    Q_PROPERTY(qorkit::TQORSpinArrows Arrows READ GetArrows WRITE SetArrows NOTIFY arrowsChanged)
    Q_PROPERTY(bool ReadOnly READ GetReadOnly WRITE SetReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(
        bool EditorEnabled READ GetEditorEnabled WRITE SetEditorEnabled NOTIFY editorEnabledChanged)

public:
    Extended GetMax() const { return max_; }
    // Setting a bound turns Unbounded off, pulls the other bound along when they would
    // cross, and clamps the present value into the new range.
    void SetMax(Extended value);
    Extended GetMin() const { return min_; }
    void SetMin(Extended value);
    bool GetUnbounded() const { return unbounded_; }
    void SetUnbounded(bool value);
    Extended GetValue();
    // A value above Max stores Max, below Min stores Min (unless Unbounded lifts the bounds;
    // the currency spin edits keep them whatever Unbounded says).
    void SetValue(Extended value);
    Extended GetStep() const { return step_; }
    void SetStep(Extended value);
    Extended GetPageStep() const { return pageStep_; }
    void SetPageStep(Extended value);
    bool GetWrap() const { return wrap_; }
    void SetWrap(bool value);
    // Auto-repeat interval of a held arrow, in milliseconds.
    int GetInterval() const { return interval_; }
    void SetInterval(int value);
    TQORSpinArrows GetArrows() const { return arrows_; }
    void SetArrows(TQORSpinArrows value);
    bool GetReadOnly() const;
    void SetReadOnly(bool value);
    bool GetEditorEnabled() const;
    void SetEditorEnabled(bool value);

    // One step up: past Max the value stops at Max, and only a click made at Max wraps to
    // Min (with Wrap). Ignored when read-only.
    void UpClick(QObject* sender);
    void DownClick(QObject* sender);
    TQORBaseEdit* GetEditor() const { return editor_; }

    void SetOnUpClick(TQORNotifyEvent e) { onUpClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnUpClick() const { return onUpClick_; }
    void SetOnDownClick(TQORNotifyEvent e) { onDownClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnDownClick() const { return onDownClick_; }
    void SetOnAfterUpClick(TQORNotifyEvent e) { onAfterUpClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnAfterUpClick() const { return onAfterUpClick_; }
    void SetOnAfterDownClick(TQORNotifyEvent e) { onAfterDownClick_ = std::move(e); }
    const TQORNotifyEvent& GetOnAfterDownClick() const { return onAfterDownClick_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void maxChanged();
    void minChanged();
    void unboundedChanged();
    // The value changed (by a setter, a click or typed text).
    void valueChanged();
    void stepChanged();
    void pageStepChanged();
    void wrapChanged();
    void intervalChanged();
    void arrowsChanged();
    void readOnlyChanged(bool readOnly);
    void editorEnabledChanged(bool editorEnabled);
    // The events, emitted right after the OnX handler; the sender of the std::function handler
    // is the arrow button (or the spin edit for a key), QObject::sender() of the signal the
    // spin edit.
    void upClick();
    void downClick();
    void afterUpClick();
    void afterDownClick();

protected:
    // Takes ownership of `editor`, which holds the value.
    TQORBaseSpinEdit(TQORBaseEdit* editor, QWidget* parent);
    virtual Extended ReadEditorValue() = 0;
    virtual void WriteEditorValue(Extended value) = 0;
    // Whether SetValue and the steps keep the value between Min and Max: unless Unbounded.
    virtual bool Clamps() const { return !unbounded_; }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // The mouse wheel steps by Step, over the edit or the arrows.
    void wheelEvent(QWheelEvent* event) override;

private:
    double GetMaxDouble() const { return static_cast<double>(max_); }
    void SetMaxDouble(double v) { SetMax(v); }
    double GetMinDouble() const { return static_cast<double>(min_); }
    void SetMinDouble(double v) { SetMin(v); }
    double GetValueDouble() { return static_cast<double>(GetValue()); }
    void SetValueDouble(double v) { SetValue(v); }
    double GetStepDouble() const { return static_cast<double>(step_); }
    void SetStepDouble(double v) { SetStep(v); }
    double GetPageStepDouble() const { return static_cast<double>(pageStep_); }
    void SetPageStepDouble(double v) { SetPageStep(v); }
    // Applies new bounds and signals what changed; the value is clamped into them.
    void SetRange(Extended min, Extended max, bool unbounded);
    // Steps by `amount` in `direction` (+1 up, -1 down) with the clamp and wrap rules.
    void Spin(int direction, Extended amount, QObject* sender);
    bool WheelStep(QWheelEvent* event);
    void LayoutChildren();
    void UpdateButtons();

    TQORBaseEdit* editor_;
    QToolButton* up_;
    QToolButton* down_;
    Extended max_ = 100;
    Extended min_ = 0;
    bool unbounded_ = false;
    Extended step_ = 1;
    Extended pageStep_ = 10;
    bool wrap_ = false;
    int interval_ = 100;
    TQORSpinArrows arrows_ = saUpDown;
    int wheelDelta_ = 0;
    TQORNotifyEvent onUpClick_;
    TQORNotifyEvent onDownClick_;
    TQORNotifyEvent onAfterUpClick_;
    TQORNotifyEvent onAfterDownClick_;
};

class QORKIT_WIDGETS_EXPORT TQORFloatSpinEdit : public TQORBaseSpinEdit {
    Q_OBJECT

public:
    explicit TQORFloatSpinEdit(QWidget* parent = nullptr);
    TQORFloatEdit* GetFloatEdit() const;

protected:
    Extended ReadEditorValue() override;
    void WriteEditorValue(Extended value) override;
};

class QORKIT_WIDGETS_EXPORT TQORBaseComboBox : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(int ItemIndex READ GetItemIndex WRITE SetItemIndex NOTIFY itemIndexChanged)
    Q_PROPERTY(qorkit::TQORComboStyle Style READ GetStyle WRITE SetStyle NOTIFY styleChanged)
    Q_PROPERTY(TQOREditColorSet* ColorSet READ GetColorSet)
    Q_PROPERTY(TQORUICtrl* UICtrl READ GetUICtrl WRITE SetUICtrl NOTIFY uiCtrlChanged)
    Q_PROPERTY(qorkit::TQORUIUsage UIUsage READ GetUIUsage WRITE SetUIUsage NOTIFY uiUsageChanged)

public:
    explicit TQORBaseComboBox(QWidget* parent = nullptr);

    // -1 when nothing is selected.
    int GetItemIndex() const { return currentIndex(); }
    void SetItemIndex(int value);
    TQORComboStyle GetStyle() const { return style_; }
    void SetStyle(TQORComboStyle value);
    // Fills the list afresh (ListItems) and shows the text again (DisplayText).
    void LoadItems();

    TQOREditColorSet* GetColorSet() const { return look_->GetColorSet(); }
    TQORUICtrl* GetUICtrl() const { return look_->GetUICtrl(); }
    void SetUICtrl(TQORUICtrl* value);
    TQORUIUsage GetUIUsage() const { return look_->GetUIUsage(); }
    void SetUIUsage(TQORUIUsage value);

    // The user chose an item (not raised for changes made through the setters).
    void SetOnChange(TQORNotifyEvent e) { onChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnChange() const { return onChange_; }
    void SetOnSpecialColor(TQORSpecialColorEvent e) { onSpecialColor_ = std::move(e); }
    const TQORSpecialColorEvent& GetOnSpecialColor() const { return onSpecialColor_; }

Q_SIGNALS:
    void itemIndexChanged(int itemIndex);
    void styleChanged(qorkit::TQORComboStyle style);
    void uiCtrlChanged();
    void uiUsageChanged(qorkit::TQORUIUsage uiUsage);
    // The events, emitted right after the OnX handler.
    void change();
    void specialColor(QColor* background, QColor* text);

protected:
    // The items LoadItems puts in the list; the base has none (items are added by hand).
    virtual QStringList ListItems() const;
    // Shows the selection; the base shows the selected item's text.
    virtual void DisplayText();
    // Called when the user picks an item; the base raises OnChange.
    virtual void Change();
    void UpdateColors();
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    TQORComboStyle style_ = csDropDownList;
    TQORLook* look_;
    TQORNotifyEvent onChange_;
    TQORSpecialColorEvent onSpecialColor_;
};

class QORKIT_WIDGETS_EXPORT TQORBasePanel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ GetCaption WRITE SetCaption NOTIFY captionChanged)
    Q_PROPERTY(Qt::Alignment Alignment READ GetAlignment WRITE SetAlignment NOTIFY alignmentChanged)
    Q_PROPERTY(qorkit::TQORBevel BevelOuter READ GetBevel WRITE SetBevel NOTIFY bevelOuterChanged)
    Q_PROPERTY(QColor Color READ GetColor WRITE SetColor NOTIFY colorChanged)
    Q_PROPERTY(bool AutoSize READ GetAutoSize WRITE SetAutoSize NOTIFY autoSizeChanged)

public:
    explicit TQORBasePanel(QWidget* parent = nullptr);

    QString GetCaption() const { return text(); }
    void SetCaption(const QString& value);
    Qt::Alignment GetAlignment() const { return alignment(); }
    void SetAlignment(Qt::Alignment value);
    TQORBevel GetBevel() const { return bevel_; }
    void SetBevel(TQORBevel value);
    // Invalid: the style's window colour.
    QColor GetColor() const { return color_; }
    void SetColor(const QColor& value);
    bool GetAutoSize() const { return autoSize_; }
    void SetAutoSize(bool value);

    // While loading (between BeginLoading and EndLoading) resizing does not lay out the
    // children; EndLoading lays them out once.
    void BeginLoading() { ++loading_; }
    void EndLoading();
    bool IsLoading() const { return loading_ > 0; }

Q_SIGNALS:
    void captionChanged(const QString& caption);
    void alignmentChanged(Qt::Alignment alignment);
    void bevelOuterChanged(qorkit::TQORBevel bevelOuter);
    void colorChanged(const QColor& color);
    void autoSizeChanged(bool autoSize);

protected:
    // Lays out the children for the present size; the base does nothing.
    virtual void Resize() { }
    // The height the panel takes with AutoSize; the base uses its size hint.
    virtual int AutoHeight() const { return sizeHint().height(); }
    void resizeEvent(QResizeEvent* event) override;

private:
    void ApplyBevel();
    void ApplyAutoSize();

    TQORBevel bevel_ = bvLowered;
    QColor color_;
    bool autoSize_ = false;
    int loading_ = 0;
};

} // namespace qorkit
