// TQORFloatCalcForm: the part the standard and the scientific calculator share, a dialog over
// one floating-point engine with the function keys, the angle-mode key, the decimal-places
// spin edit and function keys that show the Inv / Hyp toggles ("sin" becomes "asin", "sinh"
// or "asinh", "log" becomes "10^x" ...).
#pragma once

#include "QORKITCalcEngine.h"
#include "QORKITCalcFormBase.h"
#include "QORKITEngineObjects.h"
#include "qorkit_widgets_export.h"

#include <QSpinBox>

namespace qorkit {

QORKIT_WIDGETS_EXPORT void EnterDigit(TQORCalcEngine& engine, int digit);

// How a function key reads while Inv and / or Hyp is on. Trigonometric keys take an "a" in
// front for the inverse and an "h" behind for the hyperbolic form; the others show the
// inverse function's own caption or glyph.
struct QORKIT_WIDGETS_EXPORT TQORToggleLabel {
    TQORTextFn Caption;
    TQORTextFn InvCaption;
    bool Trig;
    int Glyph;
    int InvGlyph;
};

class QORKIT_WIDGETS_EXPORT TQORFloatCalcForm : public TQORCalcFormBase {
    Q_OBJECT

public:
    QToolButton* PointBtn = nullptr;
    QToolButton* ChangeSignBtn = nullptr;
    QToolButton* PowerBtn = nullptr;
    QToolButton* PiBtn = nullptr;
    QToolButton* EBtn = nullptr;
    QToolButton* SquareBtn = nullptr;
    QToolButton* SqRootBtn = nullptr;
    QToolButton* InvertBtn = nullptr;
    QToolButton* LogBtn = nullptr;
    QToolButton* LNBtn = nullptr;
    QToolButton* SinBtn = nullptr;
    QToolButton* CosBtn = nullptr;
    QToolButton* TanBtn = nullptr;
    QToolButton* InvBtn = nullptr;
    QToolButton* PercentBtn = nullptr;
    QToolButton* RadBtn = nullptr;
    QSpinBox* DPSpin = nullptr;

    // The form's own engine; it lives as long as the form. Its OnX slots belong to the form's
    // engine object: follow the engine through GetEngineObject()'s signals.
    TQORCalcEngine& GetCalcEngine() { return engine_; }
    TQORCalcEngineObject* GetEngineObject() const { return engineObject_; }
    std::string GetLastError() const override { return engine_.GetLastError(); }

    // Shows the engine's display, memory, angle mode and decimal places.
    void RefreshDisplays();
    void SetReadOnlyDecimalPlaces(bool value);
    // Colours of the decimal-places spin edit: the UI control's set when given, else `own`.
    void SetSpinColors(const TQOREditColorSet* own, const TQORUICtrl* uiCtrl);
    void SetFlatSpin(bool value);
    void UpdateLanguage() override;
    // Relabels the function keys for the engine's Inv and Hyp toggles.
    virtual void ShowToggles();
    void DeleteKey() override { engine_.ClearDisplay(); }
    void KeypadDecimal() override { engine_.InputDecimalSeparator(); }

protected:
    TQORFloatCalcForm(QWidget* parent, TQORFormGeometry geometry);

    // Relabels one function key for the engine's toggles.
    void ShowToggle(QToolButton* key, const TQORToggleLabel& label);
    // The locale's decimal separator enters the separator, whatever it is.
    bool OtherChar(char ch) override;
    void PasteText(const std::string& text) override { engine_.InputString(text); }

private:
    TQORCalcEngineObject* engineObject_; // owns the engine
    TQORCalcEngine& engine_;
};

} // namespace qorkit
