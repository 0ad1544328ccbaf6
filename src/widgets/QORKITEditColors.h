// The look the edits share: TQOREditColorSet holds the colours of an edit's states, and
// TQORUICtrl carries one colour set and a few look switches that many controls can follow.
// A control follows a TQORUICtrl when its UICtrl is set and its UIUsage says so; otherwise it
// uses its own colour set.
#pragma once

#include "QORKITComponent.h"
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QPointer>

#include <array>
#include <cstdint>
#include <functional>

namespace qorkit {

inline constexpr int QOREditStateCount = 7;

class QORKIT_WIDGETS_EXPORT TQOREditColorSet : public QObject {
    Q_OBJECT
    Q_PROPERTY(QColor NormalBack READ NormalBack WRITE SetNormalBack NOTIFY normalBackChanged)
    Q_PROPERTY(QColor NormalText READ NormalText WRITE SetNormalText NOTIFY normalTextChanged)
    Q_PROPERTY(QColor FocusedBack READ FocusedBack WRITE SetFocusedBack NOTIFY focusedBackChanged)
    Q_PROPERTY(QColor FocusedText READ FocusedText WRITE SetFocusedText NOTIFY focusedTextChanged)
    Q_PROPERTY(
        QColor ReadOnlyBack READ ReadOnlyBack WRITE SetReadOnlyBack NOTIFY readOnlyBackChanged)
    Q_PROPERTY(
        QColor ReadOnlyText READ ReadOnlyText WRITE SetReadOnlyText NOTIFY readOnlyTextChanged)
    Q_PROPERTY(
        QColor DisabledBack READ DisabledBack WRITE SetDisabledBack NOTIFY disabledBackChanged)
    Q_PROPERTY(
        QColor DisabledText READ DisabledText WRITE SetDisabledText NOTIFY disabledTextChanged)
    Q_PROPERTY(QColor NullBack READ NullBack WRITE SetNullBack NOTIFY nullBackChanged)
    Q_PROPERTY(QColor NullText READ NullText WRITE SetNullText NOTIFY nullTextChanged)
    Q_PROPERTY(
        QColor NegativeText READ NegativeText WRITE SetNegativeText NOTIFY negativeTextChanged)
    Q_PROPERTY(QColor ErrorBack READ ErrorBack WRITE SetErrorBack NOTIFY errorBackChanged)
    Q_PROPERTY(QColor ErrorText READ ErrorText WRITE SetErrorText NOTIFY errorTextChanged)

public:
    explicit TQOREditColorSet(QObject* owner = nullptr);

    QColor GetBack(TQOREditState state) const { return colors_[state].Back; }
    QColor GetText(TQOREditState state) const { return colors_[state].Text; }
    void SetBack(TQOREditState state, const QColor& color);
    void SetText(TQOREditState state, const QColor& color);
    // Copies every colour of `other` (one change notice).
    void Assign(const TQOREditColorSet& other);
    // The defaults: the style's colours, grey null text, red negatives, a pink error.
    void RestoreDefaults();

    QColor NormalBack() const { return GetBack(esNormal); }
    void SetNormalBack(const QColor& c) { SetBack(esNormal, c); }
    QColor NormalText() const { return GetText(esNormal); }
    void SetNormalText(const QColor& c) { SetText(esNormal, c); }
    QColor FocusedBack() const { return GetBack(esFocused); }
    void SetFocusedBack(const QColor& c) { SetBack(esFocused, c); }
    QColor FocusedText() const { return GetText(esFocused); }
    void SetFocusedText(const QColor& c) { SetText(esFocused, c); }
    QColor ReadOnlyBack() const { return GetBack(esReadOnly); }
    void SetReadOnlyBack(const QColor& c) { SetBack(esReadOnly, c); }
    QColor ReadOnlyText() const { return GetText(esReadOnly); }
    void SetReadOnlyText(const QColor& c) { SetText(esReadOnly, c); }
    QColor DisabledBack() const { return GetBack(esDisabled); }
    void SetDisabledBack(const QColor& c) { SetBack(esDisabled, c); }
    QColor DisabledText() const { return GetText(esDisabled); }
    void SetDisabledText(const QColor& c) { SetText(esDisabled, c); }
    QColor NullBack() const { return GetBack(esNull); }
    void SetNullBack(const QColor& c) { SetBack(esNull, c); }
    QColor NullText() const { return GetText(esNull); }
    void SetNullText(const QColor& c) { SetText(esNull, c); }
    QColor NegativeText() const { return GetText(esNegative); }
    void SetNegativeText(const QColor& c) { SetText(esNegative, c); }
    QColor ErrorBack() const { return GetBack(esError); }
    void SetErrorBack(const QColor& c) { SetBack(esError, c); }
    QColor ErrorText() const { return GetText(esError); }
    void SetErrorText(const QColor& c) { SetText(esError, c); }

Q_SIGNALS:
    // Any colour changed (once for Assign and RestoreDefaults).
    void Changed();
    void normalBackChanged();
    void normalTextChanged();
    void focusedBackChanged();
    void focusedTextChanged();
    void readOnlyBackChanged();
    void readOnlyTextChanged();
    void disabledBackChanged();
    void disabledTextChanged();
    void nullBackChanged();
    void nullTextChanged();
    void negativeTextChanged();
    void errorBackChanged();
    void errorTextChanged();

private:
    struct Pair {
        QColor Back;
        QColor Text;
    };
    using TColors = std::array<Pair, QOREditStateCount>;
    // Takes `colors` over and signals each colour that changed, then Changed once.
    void Update(const TColors& colors);
    TColors colors_;
};

class QORKIT_WIDGETS_EXPORT TQORUICtrl : public QObject {
    Q_OBJECT
    Q_PROPERTY(TQOREditColorSet* ColorSet READ GetColorSet)
    Q_PROPERTY(bool Flat READ GetFlat WRITE SetFlat NOTIFY flatChanged)
    Q_PROPERTY(bool AutoSelect READ GetAutoSelect WRITE SetAutoSelect NOTIFY autoSelectChanged)

public:
    explicit TQORUICtrl(QObject* owner = nullptr);

    // Owned by the UI control; change its colours in place.
    TQOREditColorSet* GetColorSet() const { return colorSet_; }
    bool GetFlat() const { return flat_; }
    void SetFlat(bool value);
    bool GetAutoSelect() const { return autoSelect_; }
    void SetAutoSelect(bool value);

Q_SIGNALS:
    // Any setting or colour changed; followers restyle themselves.
    void Changed();
    void flatChanged(bool flat);
    void autoSelectChanged(bool autoSelect);

private:
    TQOREditColorSet* colorSet_;
    bool flat_ = false;
    bool autoSelect_ = true;
};

// Lets a control's OnSpecialColor (and its signal) override the colours about to be used.
using TQORColorHook = std::function<void(QColor& background, QColor& text)>;

// The look of one control: its own colour set, the UI control it may follow and how far.
// Owned by the control; calls `restyle` whenever anything that decides the look changes
// (also when the followed UI control is destroyed, after dropping it).
class QORKIT_WIDGETS_EXPORT TQORLook : public QObject {
    Q_OBJECT

public:
    TQORLook(QWidget* control, std::function<void()> restyle);

    TQOREditColorSet* GetColorSet() const { return colorSet_; }
    TQORUICtrl* GetUICtrl() const { return uiCtrl_.data(); }
    void SetUICtrl(TQORUICtrl* value);
    TQORUIUsage GetUIUsage() const { return usage_; }
    void SetUIUsage(TQORUIUsage value);
    const TQOREditColorSet* EffectiveColorSet() const;
    // The control's own switch, or the UI control's with UIUsage uiAll.
    bool Flat(bool own) const;
    bool AutoSelect(bool own) const;
    // Colours the control for `state`: background into `backRole`, text into `textRole`; a
    // negative value takes the negative text colour; OnSpecialColor has the last word.
    void Apply(QWidget* control, TQOREditState state, bool negative, const TQORColorHook& special,
               QPalette::ColorRole backRole = QPalette::Base,
               QPalette::ColorRole textRole = QPalette::Text) const;

private:
    TQOREditColorSet* colorSet_;
    QPointer<TQORUICtrl> uiCtrl_;
    TQORUIUsage usage_ = uiColors;
    std::function<void()> restyle_;
};

} // namespace qorkit
