#include "QORKITEngineObjects.h"

#include "QORKITTranslation.h"

#include <QPointer>

#include <cmath>
#include <functional>
#include <limits>

namespace qorkit {

namespace dialogs_internal {

template<class CountFn, class LineFn>
const QStringList& TTapeCache::Read(CountFn count, LineFn line)
{
    const int total = count();
    const auto known = static_cast<int>(lines_.size());
    const bool grown = !rewritten_ && total >= known
        && (known == 0 || (line(0) == lines_.front() && line(known - 1) == lines_.back()));
    if (!grown) {
        rewritten_ = false;
        ++generation_;
        lines_.clear();
    }
    lines_.reserve(total);
    for (int i = static_cast<int>(lines_.size()); i < total; ++i)
        lines_.append(line(i));
    return lines_;
}

} // namespace dialogs_internal

namespace {

// Calls `signal` on `front` when `cache` differs from `value`, after taking the value over.
template<class Front, class T, class Arg>
void SignalIfChanged(Front* front, T& cache, T value, void (Front::*signal)(Arg))
{
    if (AssignChanged(cache, value))
        (front->*signal)(static_cast<Arg>(value));
}

// What a front puts in one of its engine's event slots: the handler the slot held before,
// then the front (while it lives).
template<class Front, class Engine> struct THook {
    QPointer<Front> Owner;
    std::function<void(Engine*)> Earlier;
    void (*Call)(Front&, Engine*);

    void operator()(Engine* engine) const
    {
        if (Earlier)
            Earlier(engine);
        if (Owner)
            Call(*Owner, engine);
    }
};

// A front's handler of an event it only passes on as its signal.
template<class Front, class Engine, void (Front::*Signal)()> void Emit(Front& front, Engine*)
{
    (front.*Signal)();
}

// A line was added: the tape changed.
template<class Front> void TapeGrew(Front& front, dialogs_internal::TTapeWatch& watch)
{
    watch.Known = front.GetTapeCount();
    Q_EMIT front.historyChange();
    Q_EMIT front.tapeChanged();
}

// The display changed. An all-clear empties the tape after its last display event and says
// nothing of it, and a host that takes the engine's tape event over leaves lines unannounced,
// so the length is looked at again once the engine's operation is over.
template<class Front> void WatchTape(Front& front, dialogs_internal::TTapeWatch& watch)
{
    Q_EMIT front.displayChange();
    if (watch.CheckPosted || (watch.Known == 0 && front.GetTapeCount() == 0))
        return;
    watch.CheckPosted = true;
    QMetaObject::invokeMethod(
        &front,
        [&front, &watch] {
            watch.CheckPosted = false;
            const int count = front.GetTapeCount();
            if (count != watch.Known) {
                watch.Known = count;
                Q_EMIT front.tapeChanged();
            }
        },
        Qt::QueuedConnection);
}

// One event slot of an engine and what the front does on it.
template<class Front, class Engine, class Getter> struct TEventSlot {
    Getter Get;
    void (Engine::*Set)(std::function<void(Engine*)>);
    void (*Call)(Front&, Engine*);
};

template<class Front, class Engine, class Slots>
void TakeSlots(Front& front, Engine& engine, const Slots& slots)
{
    for (const auto& slot : slots)
        (engine.*slot.Set)(THook<Front, Engine> {&front, (engine.*slot.Get)(), slot.Call});
}

// Gives back the handlers the front found, in the slots that still hold the front's hook.
template<class Front, class Engine, class Slots>
void GiveSlotsBack(const Front& front, Engine& engine, const Slots& slots)
{
    for (const auto& slot : slots) {
        const auto handler = (engine.*slot.Get)();
        const auto* hook = handler.template target<THook<Front, Engine>>();
        if (hook && hook->Owner == &front)
            (engine.*slot.Set)(hook->Earlier);
    }
}

template<class Front, class Engine, class Slots>
Front* FindFront(const Engine& engine, const Slots& slots)
{
    for (const auto& slot : slots) {
        const auto handler = (engine.*slot.Get)();
        if (const auto* hook = handler.template target<THook<Front, Engine>>(); hook && hook->Owner)
            return hook->Owner.data();
    }
    return nullptr;
}

} // namespace

// ---- TQORCalcEngineObject ------------------------------------------------------------------

struct TQORCalcEngineObject::TEvents {
    using TGetter = const TQORCalcEngine::TNotifyEvent& (TQORCalcEngine::*)() const noexcept;
    using TSlot = TEventSlot<TQORCalcEngineObject, TQORCalcEngine, TGetter>;
    using F = TQORCalcEngineObject;
    using E = TQORCalcEngine;
    static constexpr TSlot Slots[] = {
        {&E::GetOnDisplayChange, &E::SetOnDisplayChange,
         [](F& f, E*) { WatchTape(f, f.tapeWatch_); }},
        {&E::GetOnHistoryChange, &E::SetOnHistoryChange,
         [](F& f, E*) { TapeGrew(f, f.tapeWatch_); }},
        {&E::GetOnError, &E::SetOnError, &Emit<F, E, &F::error>},
        {&E::GetOnMemoryChange, &E::SetOnMemoryChange,
         [](F& f, E* e) {
             Q_EMIT f.memoryChange();
             if (AssignChanged(f.memory_, e->GetMemoryValue()))
                 Q_EMIT f.memoryChanged(static_cast<double>(f.memory_));
         }},
        {&E::GetOnDecimalPlacesChange, &E::SetOnDecimalPlacesChange,
         [](F& f, E* e) {
             Q_EMIT f.decimalPlacesChange();
             SignalIfChanged(&f, f.decimalPlaces_, int {e->GetDecimalPlaces()},
                             &F::decimalPlacesChanged);
         }},
        {&E::GetOnAngleModeChange, &E::SetOnAngleModeChange,
         [](F& f, E* e) {
             Q_EMIT f.angleModeChange();
             SignalIfChanged(&f, f.angleMode_, e->GetAngleMode(), &F::angleModeChanged);
         }},
        {&E::GetOnSetToggles, &E::SetOnSetToggles,
         [](F& f, E*) {
             Q_EMIT f.setToggles();
             Q_EMIT f.togglesChange();
         }},
        {&E::GetOnClearToggles, &E::SetOnClearToggles,
         [](F& f, E*) {
             Q_EMIT f.clearToggles();
             Q_EMIT f.togglesChange();
         }},
    };
};

TQORCalcEngineObject::TQORCalcEngineObject(QObject* parent)
    : TQORCalcEngineObject(*new TQORCalcEngine, parent)
{
    owned_.reset(engine_);
}

TQORCalcEngineObject::TQORCalcEngineObject(TQORCalcEngine& engine, QObject* parent)
    : QObject(parent), engine_(&engine), decimalPlaces_(engine.GetDecimalPlaces()),
      angleMode_(engine.GetAngleMode()), memory_(engine.GetMemoryValue())
{
    TakeSlots(*this, engine, TEvents::Slots);
    tapeWatch_.Known = GetTapeCount(); // an engine may come with a tape
}

TQORCalcEngineObject::~TQORCalcEngineObject()
{
    // A host's engine lives on: it must not call into a front that is gone.
    if (!owned_)
        GiveSlotsBack(*this, *engine_, TEvents::Slots);
}

TQORCalcEngineObject* TQORCalcEngineObject::FrontOf(const TQORCalcEngine& engine)
{
    return FindFront<TQORCalcEngineObject>(engine, TEvents::Slots);
}

QString TQORCalcEngineObject::GetDisplayText() const { return ToQString(engine_->GetDisplayStr()); }
QString TQORCalcEngineObject::GetMemoryText() const
{
    return ToQString(engine_->GetMemoryContents());
}
QString TQORCalcEngineObject::GetLastError() const { return ToQString(engine_->GetLastError()); }

int TQORCalcEngineObject::GetTapeCount() const { return engine_->GetHistoryLength(); }

QString TQORCalcEngineObject::GetTapeLine(int index) const
{
    const auto& lines = engine_->GetHistory();
    return index >= 0 && static_cast<std::size_t>(index) < lines.size()
        ? ToQString(lines[static_cast<std::size_t>(index)])
        : QString();
}

const QStringList& TQORCalcEngineObject::ReadTape() const
{
    return tape_.Read([this] { return GetTapeCount(); }, [this](int i) { return GetTapeLine(i); });
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

struct TQORProgCalcEngineObject::TEvents {
    using TGetter = TQORProgCalcNotifyEvent (IQORProgCalcEngine::*)() const;
    using TSlot = TEventSlot<TQORProgCalcEngineObject, IQORProgCalcEngine, TGetter>;
    using F = TQORProgCalcEngineObject;
    using E = IQORProgCalcEngine;
    static constexpr TSlot Slots[] = {
        {&E::GetOnDisplayChange, &E::SetOnDisplayChange,
         [](F& f, E*) { WatchTape(f, f.tapeWatch_); }},
        {&E::GetOnHistoryChange, &E::SetOnHistoryChange,
         [](F& f, E*) { TapeGrew(f, f.tapeWatch_); }},
        {&E::GetOnError, &E::SetOnError, &Emit<F, E, &F::error>},
        {&E::GetOnMemoryChange, &E::SetOnMemoryChange,
         [](F& f, E* e) {
             Q_EMIT f.memoryChange();
             SignalIfChanged(&f, f.memory_, e->GetMemoryValue(), &F::memoryChanged);
         }},
        // The tape shows its lines in today's base and spacing: these rewrite it.
        {&E::GetOnBaseDisplayChange, &E::SetOnBaseDisplayChange,
         [](F& f, E* e) {
             Q_EMIT f.baseDisplayChange();
             SignalIfChanged(&f, f.baseDisplay_, e->GetBaseDisplay(), &F::baseDisplayChanged);
             f.TapeRewritten();
         }},
        {&E::GetOnBitSizeChange, &E::SetOnBitSizeChange,
         [](F& f, E* e) {
             Q_EMIT f.bitSizeChange();
             SignalIfChanged(&f, f.bitSize_, e->GetBitSize(), &F::bitSizeChanged);
             f.TapeRewritten();
         }},
        {&E::GetOnSpacingChange, &E::SetOnSpacingChange,
         [](F& f, E*) {
             Q_EMIT f.spacingChange();
             f.TapeRewritten();
         }},
        {&E::GetOnSizeChangeChange, &E::SetOnSizeChangeChange, &Emit<F, E, &F::sizeChangeChange>},
    };
};

TQORProgCalcEngineObject::TQORProgCalcEngineObject(QObject* parent)
    : TQORProgCalcEngineObject(*new TQORProgCalcEngine, parent)
{
    owned_.reset(engine_);
}

TQORProgCalcEngineObject::TQORProgCalcEngineObject(IQORProgCalcEngine& engine, QObject* parent)
    : QObject(parent), engine_(&engine), baseDisplay_(engine.GetBaseDisplay()),
      bitSize_(engine.GetBitSize()), memory_(engine.GetMemoryValue())
{
    TakeSlots(*this, engine, TEvents::Slots);
    tapeWatch_.Known = GetTapeCount(); // an engine may come with a tape
}

TQORProgCalcEngineObject::~TQORProgCalcEngineObject()
{
    if (!owned_)
        GiveSlotsBack(*this, *engine_, TEvents::Slots);
}

TQORProgCalcEngineObject* TQORProgCalcEngineObject::FrontOf(const IQORProgCalcEngine& engine)
{
    return FindFront<TQORProgCalcEngineObject>(engine, TEvents::Slots);
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

int TQORProgCalcEngineObject::GetTapeCount() const { return engine_->GetHistoryLength(); }

QString TQORProgCalcEngineObject::GetTapeLine(int index) const
{
    if (index < 0 || index >= GetTapeCount())
        return {};
    if (index <= std::numeric_limits<std::uint16_t>::max())
        return ToQString(engine_->GetHistoryEntry(static_cast<std::uint16_t>(index)));
    // The engine's indexed read stops at 65535: further lines are read through its cursor,
    // which is put back (they come as written, in the spacing of their time).
    const std::int32_t position = engine_->GetHistoryPosition();
    engine_->SetHistoryPosition(index - 1);
    const std::string line = engine_->GetNextHistoryEntry();
    engine_->SetHistoryPosition(position);
    return ToQString(line);
}

const QStringList& TQORProgCalcEngineObject::ReadTape() const
{
    return tape_.Read([this] { return GetTapeCount(); }, [this](int i) { return GetTapeLine(i); });
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

void TQORProgCalcEngineObject::TapeRewritten()
{
    tape_.MarkRewritten();
    if (GetTapeCount() > 0)
        Q_EMIT tapeChanged();
}

} // namespace qorkit
