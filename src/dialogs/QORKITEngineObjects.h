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
// owns; a referred engine must outlive the front, which gives the engine's OnX slots back empty
// when it is destroyed.
#pragma once

#include "QORKITCalcEngine.h"
#include "QORKITComponent.h"
#include "QORKITProgCalcEngine.h"
#include "QORKITQtEnums.h"
#include "qorkit_widgets_export.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORCalcEngineObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString DisplayText READ GetDisplayText NOTIFY displayChange)
    Q_PROPERTY(
        int DecimalPlaces READ GetDecimalPlaces WRITE SetDecimalPlaces NOTIFY decimalPlacesChanged)
    Q_PROPERTY(qorkit::TQORAngleMode AngleMode READ GetAngleMode WRITE SetAngleMode NOTIFY
                   angleModeChanged)
    Q_PROPERTY(double Memory READ GetMemory WRITE SetMemory NOTIFY memoryChanged)
    Q_PROPERTY(QString MemoryText READ GetMemoryText NOTIFY memoryChange)
    Q_PROPERTY(QStringList Tape READ GetTape NOTIFY historyChange)
    Q_PROPERTY(QString LastError READ GetLastError NOTIFY error)
    Q_PROPERTY(bool Inv READ GetInv NOTIFY togglesChange)
    Q_PROPERTY(bool Hyp READ GetHyp NOTIFY togglesChange)

public:
    // A front with an engine of its own.
    explicit TQORCalcEngineObject(QObject* parent = nullptr);
    // A front of `engine`, which must outlive it.
    explicit TQORCalcEngineObject(TQORCalcEngine& engine, QObject* parent = nullptr);
    ~TQORCalcEngineObject() override;

    TQORCalcEngine& GetEngine() const { return *engine_; }

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
    // The paper tape, one line an entry.
    QStringList GetTape() const;
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

private:
    void Attach();

    std::unique_ptr<TQORCalcEngine> owned_;
    TQORCalcEngine* engine_;
    int decimalPlaces_;
    TQORAngleMode angleMode_;
    Extended memory_;
};

class QORKIT_WIDGETS_EXPORT TQORProgCalcEngineObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString DisplayText READ GetDisplayText NOTIFY displayChange)
    Q_PROPERTY(qorkit::TQORBaseDisplay BaseDisplay READ GetBaseDisplay WRITE SetBaseDisplay NOTIFY
                   baseDisplayChanged)
    Q_PROPERTY(qorkit::TQORBitSize BitSize READ GetBitSize WRITE SetBitSize NOTIFY bitSizeChanged)
    Q_PROPERTY(qint64 Memory READ GetMemory WRITE SetMemory NOTIFY memoryChanged)
    Q_PROPERTY(QString MemoryText READ GetMemoryText NOTIFY memoryChange)
    Q_PROPERTY(QStringList Tape READ GetTape NOTIFY historyChange)
    Q_PROPERTY(QString LastError READ GetLastError NOTIFY error)

public:
    // A front with an engine of its own.
    explicit TQORProgCalcEngineObject(QObject* parent = nullptr);
    // A front of `engine`, which must outlive it.
    explicit TQORProgCalcEngineObject(IQORProgCalcEngine& engine, QObject* parent = nullptr);
    ~TQORProgCalcEngineObject() override;

    IQORProgCalcEngine& GetEngine() const { return *engine_; }

    QString GetDisplayText() const;
    TQORBaseDisplay GetBaseDisplay() const { return engine_->GetBaseDisplay(); }
    void SetBaseDisplay(TQORBaseDisplay value);
    TQORBitSize GetBitSize() const { return engine_->GetBitSize(); }
    void SetBitSize(TQORBitSize value);
    qint64 GetMemory() const { return engine_->GetMemoryValue(); }
    void SetMemory(qint64 value);
    QString GetMemoryText() const;
    QStringList GetTape() const;
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

private:
    void Attach();

    std::unique_ptr<IQORProgCalcEngine> owned_;
    IQORProgCalcEngine* engine_;
    TQORBaseDisplay baseDisplay_;
    TQORBitSize bitSize_;
    std::int64_t memory_;
};

} // namespace qorkit
