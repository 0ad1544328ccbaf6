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
        Store(value_, value, &TQORFloatCalcComponent::valueChanged);
}

void TQORFloatCalcComponent::SetMemory(Extended value)
{
    if (std::isfinite(value))
        Store(memory_, value, &TQORFloatCalcComponent::memoryChanged);
}

void TQORFloatCalcComponent::SetDecimalPlacesValue(int value)
{
    if (value >= 0 && value <= 255)
        SetDecimalPlaces(static_cast<std::uint8_t>(value));
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
    SetRadians(engine.GetAngleMode() == amRadians);
    SetValue(engine.GetDisplayValue());
    SetMemory(engine.GetMemoryValue());
    SetDecimalPlaces(engine.GetDecimalPlaces());
    SetTrimTrailingZeroes(engine.GetTrimTrailingZeroes());
    SetOperatorSameLine(engine.GetOperatorSameLine());
    SetPrefixFunctions(engine.GetPrefixFunctions());
    SetBinaryPercent(engine.GetBinaryPercent());
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
