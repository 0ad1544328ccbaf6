// The programmer's calculator: the dialog TQORProgCalcForm over one programmer's engine (driven
// only through IQORProgCalcEngine), with the base and word-size lists and the bitwise keys; the
// component TQORProgCalculator; and the DisplayProgCalc free functions.
#pragma once

#include "QORKITCalcFormBase.h"
#include "QORKITEngineObjects.h"
#include "QORKITProgCalcEngine.h"
#include "qorkit_widgets_export.h"

#include <cstdint>
#include <string>

namespace qorkit {

QORKIT_WIDGETS_EXPORT void EnterDigit(IQORProgCalcEngine& engine, int digit);

class QORKIT_WIDGETS_EXPORT TQORProgCalcForm : public TQORCalcFormBase {
    Q_OBJECT

public:
    explicit TQORProgCalcForm(QWidget* parent = nullptr);

    QToolButton* ABtn = nullptr;
    QToolButton* BBtn = nullptr;
    QToolButton* CBtn = nullptr;
    QToolButton* DBtn = nullptr;
    QToolButton* EBtn = nullptr;
    QToolButton* FBtn = nullptr;
    QToolButton* ModBtn = nullptr;
    QToolButton* ANDBtn = nullptr;
    QToolButton* ORBtn = nullptr;
    QToolButton* XORBtn = nullptr;
    QToolButton* NANDBtn = nullptr;
    QToolButton* NORBtn = nullptr;
    QToolButton* XNORBtn = nullptr;
    QToolButton* NotBtn = nullptr;
    QToolButton* NEGBtn = nullptr;
    QToolButton* SHLBtn = nullptr;
    QToolButton* SHRBtn = nullptr;
    QToolButton* ROLBtn = nullptr;
    QToolButton* RORBtn = nullptr;
    TQORBaseComboBox* BaseCombo = nullptr;
    TQORBaseComboBox* BitsCombo = nullptr;

    // The form's own engine. Its OnX slots belong to the form's engine object: follow the
    // engine through GetEngineObject()'s signals.
    IQORProgCalcEngine& GetCalcEngine() { return engine_; }
    TQORProgCalcEngineObject* GetEngineObject() const { return engineObject_; }
    std::string GetLastError() const override { return engine_.GetLastError(); }

    // Shows the engine's display and memory, selects its base and size in the lists and
    // enables the digit keys of the base.
    void RefreshDisplays();
    // Disables the digit keys the present base cannot take.
    void EnableDigits();
    void UpdateLanguage() override;
    void DeleteKey() override { engine_.ClearDisplay(); }
    bool ProgrammersKeys() const override { return true; }

protected:
    void PasteText(const std::string& text) override { engine_.InputString(text); }

private:
    void LoadLists();

    TQORProgCalcEngineObject* engineObject_; // owns the engine
    IQORProgCalcEngine& engine_;
};

class QORKIT_WIDGETS_EXPORT TQORProgCalculator
    : public TQORCalcComponentT<TQORProgCalculator, TQORProgCalcForm> {
    Q_OBJECT
    Q_PROPERTY(qint64 Value READ GetValue WRITE SetValue NOTIFY valueChanged)
    Q_PROPERTY(qint64 Memory READ GetMemory WRITE SetMemory NOTIFY memoryChanged)

public:
    explicit TQORProgCalculator(QObject* owner = nullptr);

    std::int64_t GetValue() const { return value_; }
    void SetValue(std::int64_t value) { Store(value_, value, &TQORProgCalculator::valueChanged); }
    std::int64_t GetMemory() const { return memory_; }
    // Also keeps the value as the process-wide programmer's memory.
    void SetMemory(std::int64_t value);

    // The component's own engine, set up from the properties; the component keeps it.
    IQORProgCalcEngine& GetCalcEngine();

Q_SIGNALS:
    void valueChanged();
    void memoryChanged();

protected:
    std::unique_ptr<TQORCalcFormBase> CreateForm() override;
    void SetUpForm(TQORCalcFormBase& form) override;
    void ReadBack(TQORCalcFormBase& form) override;
    std::span<const TQORStoreKey> StoreKeys() const override;
    void ReadMemory(TQORStoreCtrl& store, const QString& key) override;
    void WriteMemory(TQORStoreCtrl& store, const QString& key) override;

private:
    void SetUpEngine(IQORProgCalcEngine& engine);

    std::int64_t value_ = 0;
    std::int64_t memory_ = 0;
    std::unique_ptr<TQORProgCalcEngine> engine_;
};

// The component's events: called with the form just before it is shown; called instead of
// showing the dialog by Execute / ExecutePos.
using TQORProgCalcFormEvent = TQORProgCalculator::TFormEvent;
using TQORProgCalcExecuteEvent = TQORProgCalculator::TExecuteEvent;
using TQORProgCalcExecutePosEvent = TQORProgCalculator::TExecutePosEvent;

// Shows the programmer's calculator with the process-wide programmer's memory; true when the
// user accepted, and then `Value` holds the result. `Flat` gives flat keys; a non-empty
// `DispFont` is the display font for this dialog. The dialog is a child of `parent`'s window
// (default: the application's active window) and opens centred on that window's screen.
QORKIT_WIDGETS_EXPORT bool DisplayProgCalc(const std::string& Title, std::int64_t& Value, bool Flat,
                                           QWidget* parent = nullptr);
QORKIT_WIDGETS_EXPORT bool DisplayProgCalc(const std::string& Title, std::int64_t& Value,
                                           const std::string& DispFont, bool Flat,
                                           QWidget* parent = nullptr);
// The same with the form's left and top (-1 keeps the centred coordinate).
QORKIT_WIDGETS_EXPORT bool DisplayProgCalcPos(const std::string& Title, std::int64_t& Value,
                                              std::int32_t X, std::int32_t Y, bool Flat,
                                              QWidget* parent = nullptr);
QORKIT_WIDGETS_EXPORT bool DisplayProgCalcPos(const std::string& Title, std::int64_t& Value,
                                              std::int32_t X, std::int32_t Y,
                                              const std::string& DispFont, bool Flat,
                                              QWidget* parent = nullptr);

} // namespace qorkit
