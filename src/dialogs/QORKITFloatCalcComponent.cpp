#include "QORKITFloatCalcComponent.h"

#include "QORKITRegIni.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"

#include <cmath>

namespace qorkit {

TQORFloatCalcComponent::TQORFloatCalcComponent(QObject* owner) : TQORCalcComponent(owner) { }

TQORFloatCalcComponent::~TQORFloatCalcComponent() = default;

void TQORFloatCalcComponent::SetValue(Extended value)
{
    if (std::isfinite(value))
        value_ = value;
}

void TQORFloatCalcComponent::SetMemory(Extended value)
{
    if (std::isfinite(value))
        memory_ = value;
}

void TQORFloatCalcComponent::SetDecimalPlacesValue(int value)
{
    if (value >= 0 && value <= 255)
        decimalPlaces_ = static_cast<std::uint8_t>(value);
}

TQORCalcEngine& TQORFloatCalcComponent::GetCalcEngine()
{
    if (!engine_)
        engine_ = std::make_unique<TQORCalcEngine>();
    SetUpEngine(*engine_);
    return *engine_;
}

void TQORFloatCalcComponent::SetUpForm(TQORCalcFormBase& base)
{
    auto& form = static_cast<TQORFloatCalcForm&>(base);
    SetUpEngine(form.GetCalcEngine());
    form.SetSpinColors(GetColorSet(), GetUICtrl());
    form.SetFlatSpin(GetFlatSpin());
    form.SetReadOnlyDecimalPlaces(readOnlyDecimalPlaces_);
    form.RefreshDisplays();
}

void TQORFloatCalcComponent::ReadBack(TQORCalcFormBase& base)
{
    TQORCalcEngine& engine = static_cast<TQORFloatCalcForm&>(base).GetCalcEngine();
    radians_ = engine.GetAngleMode() == amRadians;
    SetValue(engine.GetDisplayValue());
    SetMemory(engine.GetMemoryValue());
    decimalPlaces_ = engine.GetDecimalPlaces();
    trimTrailingZeroes_ = engine.GetTrimTrailingZeroes();
    operatorSameLine_ = engine.GetOperatorSameLine();
    SetPrefixFunctions(engine.GetPrefixFunctions());
    binaryPercent_ = engine.GetBinaryPercent();
    SetPrecedence(engine.GetPrecedence());
    ReadBackMore(engine);
}

void TQORFloatCalcComponent::ReadMemory(TQORStoreCtrl& store, const QString& key)
{
    SetMemory(store.ReadExtended(key, memory_));
}

void TQORFloatCalcComponent::WriteMemory(TQORStoreCtrl& store, const QString& key)
{
    store.WriteExtended(key, memory_);
}

bool RunFloatCalcDialog(TQORFloatCalcForm& form, const std::string& title, Extended& value,
                        std::int32_t left, std::int32_t top, std::uint8_t decimals, bool flat)
{
    TQORCalcEngine& engine = form.GetCalcEngine();
    LoadCalculatorSettings();
    engine.SetAngleMode(QORCalcRadians ? amRadians : amDegrees);
    engine.SetMemory(std::isfinite(QORCalcMemory) ? QORCalcMemory : 0);
    form.MoveTo(left, top);
    form.setWindowTitle(QString::fromStdString(title));
    engine.SetDecimalPlaces(decimals);
    form.RefreshDisplays();
    // The value enters as typed text, with every digit an extended float holds.
    engine.InputString(SciFloat2EStr(std::isfinite(value) ? value : 0, 17));
    form.SetCalcFlat(flat);
    form.exec();
    const bool accepted = !form.GetCancelled();
    if (accepted)
        value = engine.GetDisplayValue();
    // Kept whether the dialog was accepted or not: the memory and the angle mode belong to
    // the session, not to the value being edited.
    QORCalcRadians = engine.GetAngleMode() == amRadians;
    QORCalcMemory = engine.GetMemoryValue();
    SaveCalculatorSettings();
    return accepted;
}

} // namespace qorkit
