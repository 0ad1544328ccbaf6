// TQORFloatCalcComponent: the properties and the dialog run that the standard and the
// scientific calculator components share (decimal places, display switches, value, memory,
// angle mode), and the free-function run with the calculator settings round trip.
#pragma once

#include "QORKITCalcFormBase.h"
#include "QORKITFloatCalcForm.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qorkit {

class TQORFloatCalcComponent : public TQORCalcComponent {
    Q_OBJECT
    Q_PROPERTY(int DecimalPlaces READ GetDecimalPlacesValue WRITE SetDecimalPlacesValue)
    Q_PROPERTY(bool TrimTrailingZeroes READ GetTrimTrailingZeroes WRITE SetTrimTrailingZeroes)
    Q_PROPERTY(bool OperatorSameLine READ GetOperatorSameLine WRITE SetOperatorSameLine)
    Q_PROPERTY(bool BinaryPercent READ GetBinaryPercent WRITE SetBinaryPercent)
    Q_PROPERTY(
        bool OverrideDecimalPlaces READ GetOverrideDecimalPlaces WRITE SetOverrideDecimalPlaces)
    Q_PROPERTY(bool ReturnDecimalPlaces READ GetReturnDecimalPlaces WRITE SetReturnDecimalPlaces)
    Q_PROPERTY(
        bool ReadOnlyDecimalPlaces READ GetReadOnlyDecimalPlaces WRITE SetReadOnlyDecimalPlaces)
    Q_PROPERTY(double Value READ GetValueDouble WRITE SetValueDouble)
    Q_PROPERTY(double Memory READ GetMemoryDouble WRITE SetMemoryDouble)
    Q_PROPERTY(bool Radians READ GetRadians WRITE SetRadians)

public:
    ~TQORFloatCalcComponent() override;

    std::uint8_t GetDecimalPlaces() const { return decimalPlaces_; }
    void SetDecimalPlaces(std::uint8_t value) { decimalPlaces_ = value; }
    bool GetTrimTrailingZeroes() const { return trimTrailingZeroes_; }
    void SetTrimTrailingZeroes(bool value) { trimTrailingZeroes_ = value; }
    bool GetOperatorSameLine() const { return operatorSameLine_; }
    void SetOperatorSameLine(bool value) { operatorSameLine_ = value; }
    bool GetBinaryPercent() const { return binaryPercent_; }
    void SetBinaryPercent(bool value) { binaryPercent_ = value; }
    // Left to owners such as the calculator edits: whether they impose their own decimal
    // places on the calculator and take the calculator's back.
    bool GetOverrideDecimalPlaces() const { return overrideDecimalPlaces_; }
    void SetOverrideDecimalPlaces(bool value) { overrideDecimalPlaces_ = value; }
    bool GetReturnDecimalPlaces() const { return returnDecimalPlaces_; }
    void SetReturnDecimalPlaces(bool value) { returnDecimalPlaces_ = value; }
    // The decimal-places spin edit cannot be changed by the user.
    bool GetReadOnlyDecimalPlaces() const { return readOnlyDecimalPlaces_; }
    void SetReadOnlyDecimalPlaces(bool value) { readOnlyDecimalPlaces_ = value; }
    // NaN and infinities are refused (the value stays).
    Extended GetValue() const { return value_; }
    void SetValue(Extended value);
    Extended GetMemory() const { return memory_; }
    void SetMemory(Extended value);
    bool GetRadians() const { return radians_; }
    void SetRadians(bool value) { radians_ = value; }

    // The component's own engine, set up from the properties; the component keeps it.
    TQORCalcEngine& GetCalcEngine();

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
bool RunFloatCalcDialog(TQORFloatCalcForm& form, const std::string& title, Extended& value,
                        std::int32_t left, std::int32_t top, std::uint8_t decimals, bool flat);

// The DisplayCalc / DisplaySciCalc run on a new Form; a non-empty `font` is the display font
// for the life of the dialog.
template<class Form>
bool DisplayFloatCalc(const std::string& title, Extended& value, std::int32_t left,
                      std::int32_t top, const std::string& font, std::uint8_t decimals, bool flat)
{
    const TQORDispFontScope fontScope(font);
    Form form;
    return RunFloatCalcDialog(form, title, value, left, top, decimals, flat);
}

} // namespace qorkit
