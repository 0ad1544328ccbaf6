// TQORFloatCalcComponent: the properties and the dialog run that the standard and the
// scientific calculator components share (decimal places, display switches, value, memory,
// angle mode), and the free-function run with the calculator settings round trip.
#pragma once

#include "QORKITCalcFormBase.h"
#include "QORKITFloatCalcForm.h"
#include "qorkit_widgets_export.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORFloatCalcComponent : public TQORCalcComponent {
    Q_OBJECT
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue NOTIFY
                   decimalPlacesChanged)
    Q_PROPERTY(bool TrimTrailingZeroes READ GetTrimTrailingZeroes WRITE SetTrimTrailingZeroes NOTIFY
                   trimTrailingZeroesChanged)
    Q_PROPERTY(bool OperatorSameLine READ GetOperatorSameLine WRITE SetOperatorSameLine NOTIFY
                   operatorSameLineChanged)
    Q_PROPERTY(
        bool BinaryPercent READ GetBinaryPercent WRITE SetBinaryPercent NOTIFY binaryPercentChanged)
    Q_PROPERTY(bool OverrideDecimalPlaces READ GetOverrideDecimalPlaces WRITE
                   SetOverrideDecimalPlaces NOTIFY overrideDecimalPlacesChanged)
    Q_PROPERTY(bool ReturnDecimalPlaces READ GetReturnDecimalPlaces WRITE SetReturnDecimalPlaces
                   NOTIFY returnDecimalPlacesChanged)
    Q_PROPERTY(bool ReadOnlyDecimalPlaces READ GetReadOnlyDecimalPlaces WRITE
                   SetReadOnlyDecimalPlaces NOTIFY readOnlyDecimalPlacesChanged)
    Q_PROPERTY(double Value READ GetValueDouble WRITE SetValueDouble NOTIFY valueChanged)
    Q_PROPERTY(double Memory READ GetMemoryDouble WRITE SetMemoryDouble NOTIFY memoryChanged)
    Q_PROPERTY(bool Radians READ GetRadians WRITE SetRadians NOTIFY radiansChanged)

public:
    ~TQORFloatCalcComponent() override;

    std::uint8_t GetDecimalPlaces() const { return decimalPlaces_; }
    void SetDecimalPlaces(std::uint8_t value)
    {
        Store(decimalPlaces_, value, &TQORFloatCalcComponent::decimalPlacesChanged);
    }
    bool GetTrimTrailingZeroes() const { return trimTrailingZeroes_; }
    void SetTrimTrailingZeroes(bool value)
    {
        Store(trimTrailingZeroes_, value, &TQORFloatCalcComponent::trimTrailingZeroesChanged);
    }
    bool GetOperatorSameLine() const { return operatorSameLine_; }
    void SetOperatorSameLine(bool value)
    {
        Store(operatorSameLine_, value, &TQORFloatCalcComponent::operatorSameLineChanged);
    }
    bool GetBinaryPercent() const { return binaryPercent_; }
    void SetBinaryPercent(bool value)
    {
        Store(binaryPercent_, value, &TQORFloatCalcComponent::binaryPercentChanged);
    }
    // Left to owners such as the calculator edits: whether they impose their own decimal
    // places on the calculator and take the calculator's back.
    bool GetOverrideDecimalPlaces() const { return overrideDecimalPlaces_; }
    void SetOverrideDecimalPlaces(bool value)
    {
        Store(overrideDecimalPlaces_, value, &TQORFloatCalcComponent::overrideDecimalPlacesChanged);
    }
    bool GetReturnDecimalPlaces() const { return returnDecimalPlaces_; }
    void SetReturnDecimalPlaces(bool value)
    {
        Store(returnDecimalPlaces_, value, &TQORFloatCalcComponent::returnDecimalPlacesChanged);
    }
    // The decimal-places spin edit cannot be changed by the user.
    bool GetReadOnlyDecimalPlaces() const { return readOnlyDecimalPlaces_; }
    void SetReadOnlyDecimalPlaces(bool value)
    {
        Store(readOnlyDecimalPlaces_, value, &TQORFloatCalcComponent::readOnlyDecimalPlacesChanged);
    }
    // NaN and infinities are refused (the value stays).
    Extended GetValue() const { return value_; }
    void SetValue(Extended value);
    Extended GetMemory() const { return memory_; }
    void SetMemory(Extended value);
    bool GetRadians() const { return radians_; }
    void SetRadians(bool value) { Store(radians_, value, &TQORFloatCalcComponent::radiansChanged); }

    // The component's own engine, set up from the properties; the component keeps it.
    TQORCalcEngine& GetCalcEngine();

Q_SIGNALS:
    void decimalPlacesChanged();
    void trimTrailingZeroesChanged();
    void operatorSameLineChanged();
    void binaryPercentChanged();
    void overrideDecimalPlacesChanged();
    void returnDecimalPlacesChanged();
    void readOnlyDecimalPlacesChanged();
    void valueChanged();
    void memoryChanged();
    void radiansChanged();

protected:
    explicit TQORFloatCalcComponent(QObject* owner);

    // The engine set-up of this kind of calculator, in its order.
    virtual void SetUpEngine(TQORCalcEngine& engine) = 0;
    // Read-back of the settings only this kind of calculator has.
    virtual void ReadBackMore(TQORCalcEngine& engine) = 0;

    void SetUpForm(TQORCalcFormBase& form) override;
    void ReadBack(TQORCalcFormBase& form) override;
    void ReadMemory(TQORStoreCtrl& store, const QString& key) override;
    void WriteMemory(TQORStoreCtrl& store, const QString& key) override;

private:
    int GetDecimalPlacesValue() const { return decimalPlaces_; }
    void SetDecimalPlacesValue(int value);
    double GetValueDouble() const { return static_cast<double>(value_); }
    void SetValueDouble(double value) { SetValue(value); }
    double GetMemoryDouble() const { return static_cast<double>(memory_); }
    void SetMemoryDouble(double value) { SetMemory(value); }

    std::uint8_t decimalPlaces_ = 4;
    bool trimTrailingZeroes_ = false;
    bool operatorSameLine_ = false;
    bool binaryPercent_ = true;
    bool overrideDecimalPlaces_ = false;
    bool returnDecimalPlaces_ = false;
    bool readOnlyDecimalPlaces_ = false;
    Extended value_ = 0;
    Extended memory_ = 0;
    bool radians_ = true;
    std::unique_ptr<TQORCalcEngine> engine_;
};

// The run behind the DisplayCalc / DisplaySciCalc free functions: the process-wide settings go
// into the form's engine and come back out (memory and angle mode even when cancelled), the
// value only when accepted. `left` / `top` of -1 keep the form's own coordinate.
QORKIT_WIDGETS_EXPORT bool RunFloatCalcDialog(TQORFloatCalcForm& form, const std::string& title,
                                              Extended& value, std::int32_t left, std::int32_t top,
                                              std::uint8_t decimals, bool flat);

// The DisplayCalc / DisplaySciCalc run on a new Form, a child of `parent`'s window (default: the
// active window) centred on that window's screen unless `left` / `top` place it; a non-empty
// `font` is the display font for the life of the dialog.
template<class Form>
bool DisplayFloatCalc(const std::string& title, Extended& value, std::int32_t left,
                      std::int32_t top, const std::string& font, std::uint8_t decimals, bool flat,
                      QWidget* parent)
{
    const TQORDispFontScope fontScope(font);
    Form form(QORHostWindow(parent));
    return RunFloatCalcDialog(form, title, value, left, top, decimals, flat);
}

} // namespace qorkit
