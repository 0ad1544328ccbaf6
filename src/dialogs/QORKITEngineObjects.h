// QObject fronts of the two keystroke engines, for Qt hosts and for the calculator dialogs.
//
// The engines stay free of Qt and call one std::function per event (OnDisplayChange, OnError
// ...). Those slots belong to whoever owns the engine: assigning one replaces the previous
// listener. A front takes the slots of its engine and re-emits every event as a Qt signal
// (OnDisplayChange: displayChange(), OnHistoryChange: historyChange() ...), so any number of
// listeners can follow one engine and are disconnected when they are destroyed. The dialogs
// listen through their form's front (GetEngineObject()); a host that wants to follow an open
// dialog's engine connects to that front and must not assign the raw engine's OnX.
//
// A front either owns its engine (the constructor without an engine) or refers to one the host
// owns; a referred engine must outlive the front. Handlers the host assigned before the front
// was made keep running (before the front's signal), and the front gives them back to the
// engine's slots when it is destroyed. FrontOf() finds the front an engine has.
//
// The tape is read incrementally: GetTapeCount()/GetTapeLine() go straight to the engine, and
// ReadTape() keeps the lines it has read and only adds the ones written since, so following a
// long tape costs the new lines, not the whole tape, per key.
#pragma once

#include "QORKITCalcEngine.h"
#include "QORKITComponent.h"
#include "QORKITProgCalcEngine.h"
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

namespace qorkit {

namespace dialogs_internal {

// The lines of an engine's tape as last read. Read() brings them up to date: lines written
// since are appended; a tape that shrank, whose first or last known line reads differently, or
// that was marked rewritten, is read again in full and gets a new generation.
class TTapeCache {
public:
    template<class CountFn, class LineFn> const QStringList& Read(CountFn count, LineFn line);
    void MarkRewritten() noexcept { rewritten_ = true; }
    int Generation() const noexcept { return generation_; }

private:
    QStringList lines_;
    int generation_ = 0;
    bool rewritten_ = false;
};

// What a front knows of its engine's tape length, to notice a tape changed without a line
// event: the engines clear the tape after their last display event of an all-clear, and a
// host may take the engine's tape event over.
struct TTapeWatch {
    int Known = 0; // lines at the last event
    bool CheckPosted = false;
};

} // namespace dialogs_internal

class QORKIT_WIDGETS_EXPORT TQORCalcEngineObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString DisplayText READ GetDisplayText NOTIFY displayChange)
    Q_PROPERTY(
        int DecimalPlaces READ GetDecimalPlaces WRITE SetDecimalPlaces NOTIFY decimalPlacesChanged)
    Q_PROPERTY(qorkit::TQORAngleMode AngleMode READ GetAngleMode WRITE SetAngleMode NOTIFY
                   angleModeChanged)
    Q_PROPERTY(double Memory READ GetMemory WRITE SetMemory NOTIFY memoryChanged)
    Q_PROPERTY(QString MemoryText READ GetMemoryText NOTIFY memoryChange)
    Q_PROPERTY(QStringList Tape READ GetTape NOTIFY tapeChanged)
    Q_PROPERTY(QString LastError READ GetLastError NOTIFY error)
    Q_PROPERTY(bool Inv READ GetInv NOTIFY togglesChange)
    Q_PROPERTY(bool Hyp READ GetHyp NOTIFY togglesChange)

public:
    // A front with an engine of its own.
    explicit TQORCalcEngineObject(QObject* parent = nullptr);
    // A front of `engine`, which must outlive it.
    explicit TQORCalcEngineObject(TQORCalcEngine& engine, QObject* parent = nullptr);
    ~TQORCalcEngineObject() override;

    // The front following `engine`, or nullptr when it has none.
    static TQORCalcEngineObject* FrontOf(const TQORCalcEngine& engine);

    TQORCalcEngine& GetEngine() const { return *engine_; }
    // True for a front made without an engine: the engine goes with it.
    bool GetOwnsEngine() const { return owned_ != nullptr; }

    QString GetDisplayText() const;
    int GetDecimalPlaces() const { return engine_->GetDecimalPlaces(); }
    // 0 to 18; other values are ignored.
    void SetDecimalPlaces(int value);
    TQORAngleMode GetAngleMode() const { return engine_->GetAngleMode(); }
    void SetAngleMode(TQORAngleMode value);
    double GetMemory() const { return static_cast<double>(engine_->GetMemoryValue()); }
    // NaN and infinities are ignored.
    void SetMemory(double value);
    QString GetMemoryText() const;
    // The paper tape, one line an entry (kept between reads: see ReadTape).
    QStringList GetTape() const { return ReadTape(); }
    // Lines on the tape, and line `index` ("" outside the tape), read from the engine.
    int GetTapeCount() const;
    QString GetTapeLine(int index) const;
    // The tape brought up to date at the cost of the lines written since the last read.
    const QStringList& ReadTape() const;
    // Changes when ReadTape() had to read the tape again from its start (cleared, rewritten).
    int GetTapeGeneration() const { return tape_.Generation(); }
    QString GetLastError() const;
    bool GetInv() const { return engine_->GetIsInv(); }
    bool GetHyp() const { return engine_->GetIsHyp(); }

public Q_SLOTS:
    // Presses a key of the engine's table of named keys ("7", "+", "sin", "m+", "round2" ...);
    // false for a name the table does not know (nothing is pressed then).
    bool PressKey(const QString& name);

Q_SIGNALS:
    // The engine's events.
    void displayChange();
    void historyChange();
    void error();
    void memoryChange();
    void decimalPlacesChange();
    void angleModeChange();
    void setToggles();
    void clearToggles();
    // Inv or Hyp changed (with setToggles or clearToggles).
    void togglesChange();
    // Property changes, only when the value really changed.
    void decimalPlacesChanged(int decimalPlaces);
    void angleModeChanged(qorkit::TQORAngleMode angleMode);
    void memoryChanged(double memory);
    // The tape changed: a line was added (with historyChange), or it was emptied or lines
    // came while a host held the engine's tape event (noticed once control is back in the
    // event loop, as the engine raises no tape event for those).
    void tapeChanged();

private:
    struct TEvents; // the engine's event slots and what the front does on each

    std::unique_ptr<TQORCalcEngine> owned_;
    TQORCalcEngine* engine_;
    int decimalPlaces_;
    TQORAngleMode angleMode_;
    Extended memory_;
    mutable dialogs_internal::TTapeCache tape_;
    dialogs_internal::TTapeWatch tapeWatch_;
};

class QORKIT_WIDGETS_EXPORT TQORProgCalcEngineObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString DisplayText READ GetDisplayText NOTIFY displayChange)
    Q_PROPERTY(qorkit::TQORBaseDisplay BaseDisplay READ GetBaseDisplay WRITE SetBaseDisplay NOTIFY
                   baseDisplayChanged)
    Q_PROPERTY(qorkit::TQORBitSize BitSize READ GetBitSize WRITE SetBitSize NOTIFY bitSizeChanged)
    Q_PROPERTY(qint64 Memory READ GetMemory WRITE SetMemory NOTIFY memoryChanged)
    Q_PROPERTY(QString MemoryText READ GetMemoryText NOTIFY memoryChange)
    Q_PROPERTY(QStringList Tape READ GetTape NOTIFY tapeChanged)
    Q_PROPERTY(QString LastError READ GetLastError NOTIFY error)

public:
    // A front with an engine of its own.
    explicit TQORProgCalcEngineObject(QObject* parent = nullptr);
    // A front of `engine`, which must outlive it.
    explicit TQORProgCalcEngineObject(IQORProgCalcEngine& engine, QObject* parent = nullptr);
    ~TQORProgCalcEngineObject() override;

    // The front following `engine`, or nullptr when it has none.
    static TQORProgCalcEngineObject* FrontOf(const IQORProgCalcEngine& engine);

    IQORProgCalcEngine& GetEngine() const { return *engine_; }
    // True for a front made without an engine: the engine goes with it.
    bool GetOwnsEngine() const { return owned_ != nullptr; }

    QString GetDisplayText() const;
    TQORBaseDisplay GetBaseDisplay() const { return engine_->GetBaseDisplay(); }
    void SetBaseDisplay(TQORBaseDisplay value);
    TQORBitSize GetBitSize() const { return engine_->GetBitSize(); }
    void SetBitSize(TQORBitSize value);
    qint64 GetMemory() const { return engine_->GetMemoryValue(); }
    void SetMemory(qint64 value);
    QString GetMemoryText() const;
    // The tape, as the floating-point front gives it. The lines show in today's base and
    // spacing: changing those rewrites the tape (a new generation).
    QStringList GetTape() const { return ReadTape(); }
    int GetTapeCount() const;
    QString GetTapeLine(int index) const;
    const QStringList& ReadTape() const;
    int GetTapeGeneration() const { return tape_.Generation(); }
    QString GetLastError() const;

public Q_SLOTS:
    // Presses a key by name: a digit ("7", "F"), a key of the engine's table ("XOR", "M+",
    // "HEX", "BITS16") or a counted key with its count ("SHL 4"; "SHL" alone moves one bit).
    // False for a name that is none of these (nothing is pressed then).
    bool PressKey(const QString& name);

Q_SIGNALS:
    // The engine's events.
    void displayChange();
    void historyChange();
    void error();
    void memoryChange();
    void baseDisplayChange();
    void bitSizeChange();
    void spacingChange();
    void sizeChangeChange();
    // Property changes, only when the value really changed.
    void baseDisplayChanged(qorkit::TQORBaseDisplay baseDisplay);
    void bitSizeChanged(qorkit::TQORBitSize bitSize);
    void memoryChanged(qint64 memory);
    // As on the floating-point front; also when a base, size or spacing change rewrites the
    // tape's lines.
    void tapeChanged();

private:
    struct TEvents;

    std::unique_ptr<IQORProgCalcEngine> owned_;
    IQORProgCalcEngine* engine_;
    TQORBaseDisplay baseDisplay_;
    TQORBitSize bitSize_;
    std::int64_t memory_;
    mutable dialogs_internal::TTapeCache tape_;
    dialogs_internal::TTapeWatch tapeWatch_;
    // The tape's lines show in today's base, size and spacing: a change of those rewrites it.
    void TapeRewritten();
};

} // namespace qorkit
