// The base controls that the library's composite controls derive from:
//   TQORBaseSpinEdit  an edit with up and down arrows stepping an extended value between Min
//                     and Max (TQORFloatSpinEdit is the one over a TQORFloatEdit);
//   TQORBaseComboBox  a combo box that loads its own items and reports the user's choice;
//   TQORBasePanel     a framed, captioned container that lays out its children on resize.
#pragma once

#include "QORKITBaseEdit.h"
#include "QORKITComponent.h"
#include "QORKITEditColors.h"
#include "QORKITTypes.h"

#include <QComboBox>
#include <QLabel>
#include <QWidget>

#include <cstdint>

class QToolButton;

namespace qorkit {

class TQORFloatEdit;

// Where a spin edit's arrows sit.
enum TQORSpinArrows : std::uint8_t {
    saUpDown = 0, // stacked at the right edge
    saLeftRight = 1, // side by side at the right edge, "down" on the left
    saNone = 2, // hidden: the keyboard still steps
};

class TQORBaseSpinEdit : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double Max READ GetMaxDouble WRITE SetMaxDouble)
    Q_PROPERTY(double Min READ GetMinDouble WRITE SetMinDouble)
    Q_PROPERTY(bool Unbounded READ GetUnbounded WRITE SetUnbounded)
    Q_PROPERTY(double Value READ GetValueDouble WRITE SetValueDouble)
    Q_PROPERTY(double Step READ GetStepDouble WRITE SetStepDouble)
    Q_PROPERTY(double PageStep READ GetPageStepDouble WRITE SetPageStepDouble)
    Q_PROPERTY(bool Wrap READ GetWrap WRITE SetWrap)
    Q_PROPERTY(int Interval READ GetInterval WRITE SetInterval)
    Q_PROPERTY(int Arrows READ GetArrowsValue WRITE SetArrowsValue)
    Q_PROPERTY(bool ReadOnly READ GetReadOnly WRITE SetReadOnly)
    Q_PROPERTY(bool EditorEnabled READ GetEditorEnabled WRITE SetEditorEnabled)

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
    // A value above Max stores Max, below Min stores Min (unless Unbounded).
    void SetValue(Extended value);
    Extended GetStep() const { return step_; }
    void SetStep(Extended value) { step_ = value; }
    Extended GetPageStep() const { return pageStep_; }
    void SetPageStep(Extended value) { pageStep_ = value; }
    bool GetWrap() const { return wrap_; }
    void SetWrap(bool value) { wrap_ = value; }
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

protected:
    // Takes ownership of `editor`, which holds the value.
    TQORBaseSpinEdit(TQORBaseEdit* editor, QWidget* parent);
    virtual Extended ReadEditorValue() = 0;
    virtual void WriteEditorValue(Extended value) = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    double GetMaxDouble() const { return static_cast<double>(max_); }
    void SetMaxDouble(double v) { SetMax(v); }
    double GetMinDouble() const { return static_cast<double>(min_); }
    void SetMinDouble(double v) { SetMin(v); }
    double GetValueDouble() { return static_cast<double>(GetValue()); }
    void SetValueDouble(double v) { SetValue(v); }
    double GetStepDouble() const { return static_cast<double>(step_); }
    void SetStepDouble(double v) { step_ = v; }
    double GetPageStepDouble() const { return static_cast<double>(pageStep_); }
    void SetPageStepDouble(double v) { pageStep_ = v; }
    int GetArrowsValue() const { return arrows_; }
    void SetArrowsValue(int value);
    // Steps by `amount` in `direction` (+1 up, -1 down) with the clamp and wrap rules.
    void Spin(int direction, Extended amount, QObject* sender);
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
    TQORNotifyEvent onUpClick_;
    TQORNotifyEvent onDownClick_;
    TQORNotifyEvent onAfterUpClick_;
    TQORNotifyEvent onAfterDownClick_;
};

class TQORFloatSpinEdit : public TQORBaseSpinEdit {
    Q_OBJECT

public:
    explicit TQORFloatSpinEdit(QWidget* parent = nullptr);
    TQORFloatEdit* GetFloatEdit() const;

protected:
    Extended ReadEditorValue() override;
    void WriteEditorValue(Extended value) override;
};

enum TQORComboStyle : std::uint8_t {
    csDropDown = 0, // the text can be typed
    csDropDownList = 1, // only the list's items can be chosen
};

class TQORBaseComboBox : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(int ItemIndex READ GetItemIndex WRITE SetItemIndex)
    Q_PROPERTY(int Style READ GetStyleValue WRITE SetStyleValue)
    Q_PROPERTY(TQOREditColorSet* ColorSet READ GetColorSet)
    Q_PROPERTY(TQORUICtrl* UICtrl READ GetUICtrl WRITE SetUICtrl)
    Q_PROPERTY(int UIUsage READ GetUIUsageValue WRITE SetUIUsageValue)

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
    void SetUICtrl(TQORUICtrl* value) { look_->SetUICtrl(value); }
    TQORUIUsage GetUIUsage() const { return look_->GetUIUsage(); }
    void SetUIUsage(TQORUIUsage value) { look_->SetUIUsage(value); }

    // The user chose an item (not raised for changes made through the setters).
    void SetOnChange(TQORNotifyEvent e) { onChange_ = std::move(e); }
    const TQORNotifyEvent& GetOnChange() const { return onChange_; }
    void SetOnSpecialColor(TQORSpecialColorEvent e) { onSpecialColor_ = std::move(e); }
    const TQORSpecialColorEvent& GetOnSpecialColor() const { return onSpecialColor_; }

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
    int GetStyleValue() const { return style_; }
    void SetStyleValue(int value);
    int GetUIUsageValue() const { return GetUIUsage(); }
    void SetUIUsageValue(int value);

    TQORComboStyle style_ = csDropDownList;
    TQORLook* look_;
    TQORNotifyEvent onChange_;
    TQORSpecialColorEvent onSpecialColor_;
};

enum TQORBevel : std::uint8_t { bvNone = 0, bvLowered = 1, bvRaised = 2 };

class TQORBasePanel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(Qt::Alignment Alignment READ GetAlignment WRITE SetAlignment)
    Q_PROPERTY(int BevelOuter READ GetBevelValue WRITE SetBevelValue)
    Q_PROPERTY(QColor Color READ GetColor WRITE SetColor)
    Q_PROPERTY(bool AutoSize READ GetAutoSize WRITE SetAutoSize)

public:
    explicit TQORBasePanel(QWidget* parent = nullptr);

    QString GetCaption() const { return text(); }
    void SetCaption(const QString& value) { setText(value); }
    Qt::Alignment GetAlignment() const { return alignment(); }
    void SetAlignment(Qt::Alignment value) { setAlignment(value); }
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

protected:
    // Lays out the children for the present size; the base does nothing.
    virtual void Resize() { }
    // The height the panel takes with AutoSize; the base uses its size hint.
    virtual int AutoHeight() const { return sizeHint().height(); }
    void resizeEvent(QResizeEvent* event) override;

private:
    int GetBevelValue() const { return bevel_; }
    void SetBevelValue(int value);
    void ApplyAutoSize();

    TQORBevel bevel_ = bvLowered;
    QColor color_;
    bool autoSize_ = false;
    int loading_ = 0;
};

} // namespace qorkit
