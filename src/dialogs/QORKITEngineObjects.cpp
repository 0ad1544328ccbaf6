#include "QORKITEngineObjects.h"

#include "QORKITTranslation.h"

#include <cmath>

namespace qorkit {

namespace {

// Calls `signal` on `front` when `cache` differs from `value`, after taking the value over.
template<class Front, class T, class Arg>
void SignalIfChanged(Front* front, T& cache, T value, void (Front::*signal)(Arg))
{
    if (AssignChanged(cache, value))
        (front->*signal)(static_cast<Arg>(value));
}

using TCalcEventSetter = void (TQORCalcEngine::*)(TQORCalcEngine::TNotifyEvent);
using TProgEventSetter = void (IQORProgCalcEngine::*)(TQORProgCalcNotifyEvent);

// The event slots of each engine, all taken by a front.
constexpr TCalcEventSetter CalcEventSetters[] = {
    &TQORCalcEngine::SetOnDisplayChange,
    &TQORCalcEngine::SetOnHistoryChange,
    &TQORCalcEngine::SetOnError,
    &TQORCalcEngine::SetOnMemoryChange,
    &TQORCalcEngine::SetOnDecimalPlacesChange,
    &TQORCalcEngine::SetOnAngleModeChange,
    &TQORCalcEngine::SetOnSetToggles,
    &TQORCalcEngine::SetOnClearToggles,
};
constexpr TProgEventSetter ProgEventSetters[] = {
    &IQORProgCalcEngine::SetOnDisplayChange,
    &IQORProgCalcEngine::SetOnHistoryChange,
    &IQORProgCalcEngine::SetOnError,
    &IQORProgCalcEngine::SetOnMemoryChange,
    &IQORProgCalcEngine::SetOnBaseDisplayChange,
    &IQORProgCalcEngine::SetOnBitSizeChange,
    &IQORProgCalcEngine::SetOnSpacingChange,
    &IQORProgCalcEngine::SetOnSizeChangeChange,
};

// Events a front passes on as they are: the engine's slot and the front's signal.
struct TCalcRelay {
    TCalcEventSetter Setter;
    void (TQORCalcEngineObject::*Signal)();
};
constexpr TCalcRelay CalcRelays[] = {
    {&TQORCalcEngine::SetOnDisplayChange, &TQORCalcEngineObject::displayChange},
    {&TQORCalcEngine::SetOnHistoryChange, &TQORCalcEngineObject::historyChange},
    {&TQORCalcEngine::SetOnError, &TQORCalcEngineObject::error},
};
struct TProgRelay {
    TProgEventSetter Setter;
    void (TQORProgCalcEngineObject::*Signal)();
};
constexpr TProgRelay ProgRelays[] = {
    {&IQORProgCalcEngine::SetOnDisplayChange, &TQORProgCalcEngineObject::displayChange},
    {&IQORProgCalcEngine::SetOnHistoryChange, &TQORProgCalcEngineObject::historyChange},
    {&IQORProgCalcEngine::SetOnError, &TQORProgCalcEngineObject::error},
    {&IQORProgCalcEngine::SetOnSpacingChange, &TQORProgCalcEngineObject::spacingChange},
    {&IQORProgCalcEngine::SetOnSizeChangeChange, &TQORProgCalcEngineObject::sizeChangeChange},
};

} // namespace

// ---- TQORCalcEngineObject ------------------------------------------------------------------

TQORCalcEngineObject::TQORCalcEngineObject(QObject* parent)
    : QObject(parent), owned_(std::make_unique<TQORCalcEngine>()), engine_(owned_.get())
{
    Attach();
}

TQORCalcEngineObject::TQORCalcEngineObject(TQORCalcEngine& engine, QObject* parent)
    : QObject(parent), engine_(&engine)
{
    Attach();
}

TQORCalcEngineObject::~TQORCalcEngineObject()
{
    // A host's engine lives on: it must not call into a front that is gone.
    if (!owned_) {
        for (const auto setter : CalcEventSetters)
            (engine_->*setter)({});
    }
}

void TQORCalcEngineObject::Attach()
{
    decimalPlaces_ = engine_->GetDecimalPlaces();
    angleMode_ = engine_->GetAngleMode();
    memory_ = engine_->GetMemoryValue();
    for (const auto& relay : CalcRelays)
        (engine_->*relay.Setter)(
            [this, signal = relay.Signal](TQORCalcEngine*) { (this->*signal)(); });
    engine_->SetOnMemoryChange([this](TQORCalcEngine* engine) {
        Q_EMIT memoryChange();
        if (AssignChanged(memory_, engine->GetMemoryValue()))
            Q_EMIT memoryChanged(static_cast<double>(memory_));
    });
    engine_->SetOnDecimalPlacesChange([this](TQORCalcEngine* engine) {
        Q_EMIT decimalPlacesChange();
        SignalIfChanged(this, decimalPlaces_, int {engine->GetDecimalPlaces()},
                        &TQORCalcEngineObject::decimalPlacesChanged);
    });
    engine_->SetOnAngleModeChange([this](TQORCalcEngine* engine) {
        Q_EMIT angleModeChange();
        SignalIfChanged(this, angleMode_, engine->GetAngleMode(),
                        &TQORCalcEngineObject::angleModeChanged);
    });
    engine_->SetOnSetToggles([this](TQORCalcEngine*) {
        Q_EMIT setToggles();
        Q_EMIT togglesChange();
    });
    engine_->SetOnClearToggles([this](TQORCalcEngine*) {
        Q_EMIT clearToggles();
        Q_EMIT togglesChange();
    });
}

QString TQORCalcEngineObject::GetDisplayText() const { return ToQString(engine_->GetDisplayStr()); }
QString TQORCalcEngineObject::GetMemoryText() const
{
    return ToQString(engine_->GetMemoryContents());
}
QString TQORCalcEngineObject::GetLastError() const { return ToQString(engine_->GetLastError()); }

QStringList TQORCalcEngineObject::GetTape() const
{
    QStringList lines;
    for (const auto& line : engine_->GetHistory())
        lines << ToQString(line);
    return lines;
}

void TQORCalcEngineObject::SetDecimalPlaces(int value)
{
    if (value >= 0 && value <= 18)
        engine_->SetDecimalPlaces(static_cast<std::uint8_t>(value));
}

void TQORCalcEngineObject::SetAngleMode(TQORAngleMode value)
{
    if (value <= amGradians && value != engine_->GetAngleMode())
        engine_->SetAngleMode(value);
}

void TQORCalcEngineObject::SetMemory(double value)
{
    if (std::isfinite(value))
        engine_->SetMemory(value);
}

bool TQORCalcEngineObject::PressKey(const QString& name)
{
    return PressCalcKey(*engine_, name.toStdString());
}

// ---- TQORProgCalcEngineObject --------------------------------------------------------------

TQORProgCalcEngineObject::TQORProgCalcEngineObject(QObject* parent)
    : QObject(parent), owned_(std::make_unique<TQORProgCalcEngine>()), engine_(owned_.get())
{
    Attach();
}

TQORProgCalcEngineObject::TQORProgCalcEngineObject(IQORProgCalcEngine& engine, QObject* parent)
    : QObject(parent), engine_(&engine)
{
    Attach();
}

TQORProgCalcEngineObject::~TQORProgCalcEngineObject()
{
    if (!owned_) {
        for (const auto setter : ProgEventSetters)
            (engine_->*setter)({});
    }
}

void TQORProgCalcEngineObject::Attach()
{
    baseDisplay_ = engine_->GetBaseDisplay();
    bitSize_ = engine_->GetBitSize();
    memory_ = engine_->GetMemoryValue();
    for (const auto& relay : ProgRelays) {
        (engine_->*relay.Setter)(
            [this, signal = relay.Signal](IQORProgCalcEngine*) { (this->*signal)(); });
    }
    engine_->SetOnMemoryChange([this](IQORProgCalcEngine* engine) {
        Q_EMIT memoryChange();
        SignalIfChanged(this, memory_, engine->GetMemoryValue(),
                        &TQORProgCalcEngineObject::memoryChanged);
    });
    engine_->SetOnBaseDisplayChange([this](IQORProgCalcEngine* engine) {
        Q_EMIT baseDisplayChange();
        SignalIfChanged(this, baseDisplay_, engine->GetBaseDisplay(),
                        &TQORProgCalcEngineObject::baseDisplayChanged);
    });
    engine_->SetOnBitSizeChange([this](IQORProgCalcEngine* engine) {
        Q_EMIT bitSizeChange();
        SignalIfChanged(this, bitSize_, engine->GetBitSize(),
                        &TQORProgCalcEngineObject::bitSizeChanged);
    });
}

QString TQORProgCalcEngineObject::GetDisplayText() const
{
    return ToQString(engine_->GetDisplayStr());
}
QString TQORProgCalcEngineObject::GetMemoryText() const
{
    return ToQString(engine_->GetMemoryContents());
}
QString TQORProgCalcEngineObject::GetLastError() const
{
    return ToQString(engine_->GetLastError());
}

QStringList TQORProgCalcEngineObject::GetTape() const
{
    QStringList lines;
    const std::int32_t count = engine_->GetHistoryLength();
    for (std::int32_t i = 0; i < count; ++i)
        lines << ToQString(engine_->GetHistoryEntry(static_cast<std::uint16_t>(i)));
    return lines;
}

void TQORProgCalcEngineObject::SetBaseDisplay(TQORBaseDisplay value)
{
    if (value <= bdOctal && value != engine_->GetBaseDisplay())
        engine_->SetBaseDisplay(value);
}

void TQORProgCalcEngineObject::SetBitSize(TQORBitSize value)
{
    if (value <= bs64Bits && value != engine_->GetBitSize())
        engine_->SetBitSize(value);
}

void TQORProgCalcEngineObject::SetMemory(qint64 value)
{
    if (value != engine_->GetMemoryValue())
        engine_->SetMemory(value);
}

bool TQORProgCalcEngineObject::PressKey(const QString& name)
{
    return PressProgKey(*engine_, name.toStdString());
}

} // namespace qorkit
