// The scientific calculator: the dialog TQORSciCalcForm (the standard keys plus log to base 2,
// exponent entry and the hyperbolic toggle), the component TQORSciCalculator with the
// scientific-notation range, and the DisplaySciCalc free functions.
#pragma once

#include "QORKITFloatCalcComponent.h"
#include "QORKITFloatCalcForm.h"
#include "qorkit_widgets_export.h"

#include <cstdint>
#include <string>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORSciCalcForm : public TQORFloatCalcForm {
    Q_OBJECT

public:
    explicit TQORSciCalcForm(QWidget* parent = nullptr);

    QToolButton* Lg2btn = nullptr;
    QToolButton* ExpBtn = nullptr;
    QToolButton* HypBtn = nullptr;

    // Lays the keys and panels out.
    void RedrawCalc();
    // Also shows the Hyp toggle and relabels the log-to-base-2 key.
    void ShowToggles() override;
};

class QORKIT_WIDGETS_EXPORT TQORSciCalculator
    : public TQORCalcComponentT<TQORSciCalculator, TQORSciCalcForm, TQORFloatCalcComponent> {
    Q_OBJECT
    Q_PROPERTY(bool SciRange READ GetSciRange WRITE SetSciRange NOTIFY sciRangeChanged)
    Q_PROPERTY(double SciMax READ GetSciMaxDouble WRITE SetSciMaxDouble NOTIFY sciMaxChanged)
    Q_PROPERTY(double SciMin READ GetSciMinDouble WRITE SetSciMinDouble NOTIFY sciMinChanged)
    Q_PROPERTY(bool OverrideSciRange READ GetOverrideSciRange WRITE SetOverrideSciRange NOTIFY
                   overrideSciRangeChanged)

public:
    explicit TQORSciCalculator(QObject* owner = nullptr);

    // Values outside [SciMin, SciMax) are shown in scientific notation when SciRange is on.
    bool GetSciRange() const { return sciRange_; }
    void SetSciRange(bool value) { Store(sciRange_, value, &TQORSciCalculator::sciRangeChanged); }
    Extended GetSciMax() const { return sciMax_; }
    void SetSciMax(Extended value);
    Extended GetSciMin() const { return sciMin_; }
    void SetSciMin(Extended value);
    // Left to owners such as the scientific calculator edit.
    bool GetOverrideSciRange() const { return overrideSciRange_; }
    void SetOverrideSciRange(bool value)
    {
        Store(overrideSciRange_, value, &TQORSciCalculator::overrideSciRangeChanged);
    }

Q_SIGNALS:
    void sciRangeChanged();
    void sciMaxChanged();
    void sciMinChanged();
    void overrideSciRangeChanged();

protected:
    std::unique_ptr<TQORCalcFormBase> CreateForm() override;
    void SetUpEngine(TQORCalcEngine& engine) override;
    void ReadBackMore(TQORCalcEngine&) override { }
    std::span<const TQORStoreKey> StoreKeys() const override;

private:
    double GetSciMaxDouble() const { return static_cast<double>(sciMax_); }
    void SetSciMaxDouble(double value) { SetSciMax(value); }
    double GetSciMinDouble() const { return static_cast<double>(sciMin_); }
    void SetSciMinDouble(double value) { SetSciMin(value); }

    bool sciRange_ = false;
    Extended sciMax_ = 1000000.0L;
    Extended sciMin_ = 0.0001L;
    bool overrideSciRange_ = false;
};

// The component's events: called with the form just before it is shown; called instead of
// showing the dialog by Execute / ExecutePos.
using TQORSciCalcFormEvent = TQORSciCalculator::TFormEvent;
using TQORSciCalcExecuteEvent = TQORSciCalculator::TExecuteEvent;
using TQORSciCalcExecutePosEvent = TQORSciCalculator::TExecutePosEvent;

// Shows the scientific calculator with the saved angle mode and memory; true when the user
// accepted, and then `Value` holds the result. An empty font keeps the saved display font. The
// dialog is a child of `parent`'s window (default: the application's active window), centred
// on that window's screen.
QORKIT_WIDGETS_EXPORT bool DisplaySciCalc(const std::string& Title, Extended& Value,
                                          const std::string& DispFont, std::uint8_t Decimals,
                                          bool Flat, QWidget* parent = nullptr);
QORKIT_WIDGETS_EXPORT bool DisplaySciCalc(const std::string& Title, Extended& Value,
                                          std::uint8_t Decimals, bool Flat,
                                          QWidget* parent = nullptr);
// The same with the form's left and top (-1 keeps the centred coordinate).
QORKIT_WIDGETS_EXPORT bool DisplaySciCalcPos(const std::string& Title, Extended& Value,
                                             std::int32_t X, std::int32_t Y,
                                             const std::string& DispFont, std::uint8_t Decimals,
                                             bool Flat, QWidget* parent = nullptr);
QORKIT_WIDGETS_EXPORT bool DisplaySciCalcPos(const std::string& Title, Extended& Value,
                                             std::int32_t X, std::int32_t Y, std::uint8_t Decimals,
                                             bool Flat, QWidget* parent = nullptr);

} // namespace qorkit
