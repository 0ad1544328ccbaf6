#include "QORKITProgCalculator.h"

#include "QORKITRegIni.h"
#include "QORKITSettings.h"
#include "QORKITTapeModel.h"
#include "QORKITTranslation.h"
#include "QORKIT_RS_Dialogs.h"

#include <array>

namespace qorkit {

void EnterDigit(IQORProgCalcEngine& engine, int digit)
{
    engine.InputDigit(static_cast<char>('0' + digit));
}

namespace {

constexpr TQORFormGeometry ProgGeometry {31, 22, 13, 4};
constexpr int ClientWidth = 417;
constexpr int ClientHeight = 152;
constexpr int ComboWidth = 72;
constexpr int ValueTop = 3;
constexpr int ValueHeight = 26;
constexpr int RowTop = 31; // the memory panel and the two lists
constexpr int RowHeight = 24;
constexpr int KeysTop = 57;

using TProgKey = TQORKeyDef<TQORProgCalcForm, IQORProgCalcEngine>;

const TProgKey ProgKeys[] = {
    {&TQORProgCalcForm::ABtn,
     {"ABtn", "A", nullptr, -1, nullptr},
     [](IQORProgCalcEngine& e) { e.InputDigit('A'); }},
    {&TQORProgCalcForm::BBtn,
     {"BBtn", "B", nullptr, -1, nullptr},
     [](IQORProgCalcEngine& e) { e.InputDigit('B'); }},
    {&TQORProgCalcForm::CBtn,
     {"CBtn", "C", nullptr, -1, nullptr},
     [](IQORProgCalcEngine& e) { e.InputDigit('C'); }},
    {&TQORProgCalcForm::DBtn,
     {"DBtn", "D", nullptr, -1, nullptr},
     [](IQORProgCalcEngine& e) { e.InputDigit('D'); }},
    {&TQORProgCalcForm::EBtn,
     {"EBtn", "E", nullptr, -1, nullptr},
     [](IQORProgCalcEngine& e) { e.InputDigit('E'); }},
    {&TQORProgCalcForm::FBtn,
     {"FBtn", "F", nullptr, -1, nullptr},
     [](IQORProgCalcEngine& e) { e.InputDigit('F'); }},
    {&TQORProgCalcForm::ClearBtn,
     {"ClearBtn", nullptr, rsClKey, -1, rsCHint},
     [](IQORProgCalcEngine& e) { e.ClearDisplay(); }},
    {&TQORProgCalcForm::ModBtn,
     {"ModBtn", nullptr, rsMODKey, -1, rsMODHint},
     [](IQORProgCalcEngine& e) { e.DoMod(); }},
    {&TQORProgCalcForm::ANDBtn,
     {"ANDBtn", nullptr, rsANDKey, -1, rsANDHint},
     [](IQORProgCalcEngine& e) { e.DoAnd(); }},
    {&TQORProgCalcForm::ORBtn,
     {"ORBtn", nullptr, rsORKey, -1, rsORHint},
     [](IQORProgCalcEngine& e) { e.DoOr(); }},
    {&TQORProgCalcForm::XORBtn,
     {"XORBtn", nullptr, rsXORKey, -1, rsXORHint},
     [](IQORProgCalcEngine& e) { e.DoXor(); }},
    {&TQORProgCalcForm::NANDBtn,
     {"NANDBtn", nullptr, rsNANDKey, -1, rsNANDHint},
     [](IQORProgCalcEngine& e) { e.DoNand(); }},
    {&TQORProgCalcForm::NORBtn,
     {"NORBtn", nullptr, rsNORKey, -1, rsNORHint},
     [](IQORProgCalcEngine& e) { e.DoNor(); }},
    {&TQORProgCalcForm::XNORBtn,
     {"XNORBtn", nullptr, rsXNORKey, -1, rsXNORHint},
     [](IQORProgCalcEngine& e) { e.DoXnor(); }},
    {&TQORProgCalcForm::NotBtn,
     {"NotBtn", nullptr, rsNOTKey, -1, rsNOTHint},
     [](IQORProgCalcEngine& e) { e.DoNot(); }},
    {&TQORProgCalcForm::NEGBtn,
     {"NEGBtn", nullptr, rsNEGKey, -1, rsNEGHint},
     [](IQORProgCalcEngine& e) { e.DoNeg(); }},
    // Shifts and rotates always move by one bit.
    {&TQORProgCalcForm::SHLBtn,
     {"SHLBtn", nullptr, rsSHLKey, -1, rsSHLHint},
     [](IQORProgCalcEngine& e) { e.DoShl(1); }},
    {&TQORProgCalcForm::SHRBtn,
     {"SHRBtn", nullptr, rsSHRKey, -1, rsSHRHint},
     [](IQORProgCalcEngine& e) { e.DoShr(1); }},
    {&TQORProgCalcForm::ROLBtn,
     {"ROLBtn", nullptr, rsROLKey, -1, rsROLHint},
     [](IQORProgCalcEngine& e) { e.DoRol(1); }},
    {&TQORProgCalcForm::RORBtn,
     {"RORBtn", nullptr, rsRORKey, -1, rsRORHint},
     [](IQORProgCalcEngine& e) { e.DoRor(1); }},
};

using Prog = TQORProgCalcForm;

const TQORKeyPlace<Prog> ProgPlaces[] = {
    {&Prog::DBtn, 0, 0},
    {&Prog::EBtn, 1, 0},
    {&Prog::FBtn, 2, 0},
    {&Prog::SevenBtn, 3, 0},
    {&Prog::EightBtn, 4, 0},
    {&Prog::NineBtn, 5, 0},
    {&Prog::DivideBtn, 6, 0},
    {&Prog::LeftBracketBtn, 7, 0},
    {&Prog::RightBracketBtn, 8, 0},
    {&Prog::ANDBtn, 9, 0},
    {&Prog::NANDBtn, 10, 0},
    {&Prog::AllClearBtn, 11, 0},
    {&Prog::ClearBtn, 12, 0},
    {&Prog::ABtn, 0, 1},
    {&Prog::BBtn, 1, 1},
    {&Prog::CBtn, 2, 1},
    {&Prog::FourBtn, 3, 1},
    {&Prog::FiveBtn, 4, 1},
    {&Prog::SixBtn, 5, 1},
    {&Prog::MultiplyBtn, 6, 1},
    {&Prog::SHLBtn, 7, 1},
    {&Prog::SHRBtn, 8, 1},
    {&Prog::ORBtn, 9, 1},
    {&Prog::NORBtn, 10, 1},
    {&Prog::BackSpaceBtn, 11, 1},
    {&Prog::CopyBtn, 12, 1},
    {&Prog::MemoryClearBtn, 0, 2},
    {&Prog::MemoryRecallBtn, 1, 2},
    {&Prog::MemoryAddBtn, 2, 2},
    {&Prog::OneBtn, 3, 2},
    {&Prog::TwoBtn, 4, 2},
    {&Prog::ThreeBtn, 5, 2},
    {&Prog::SubtractBtn, 6, 2},
    {&Prog::ROLBtn, 7, 2},
    {&Prog::RORBtn, 8, 2},
    {&Prog::XORBtn, 9, 2},
    {&Prog::XNORBtn, 10, 2},
    {&Prog::MemorySubtractBtn, 11, 2},
    {&Prog::PasteBtn, 12, 2},
    {&Prog::ModBtn, 0, 3},
    {&Prog::NotBtn, 1, 3},
    {&Prog::NEGBtn, 2, 3},
    {&Prog::ZeroBtn, 3, 3},
    {&Prog::EqualsBtn, 4, 3, 2},
    {&Prog::AddBtn, 6, 3},
    {&Prog::CancelBtn, 11, 3},
    {&Prog::ExitBtn, 12, 3},
};

const TQORCharKey<Prog> ProgCharKeys[] = {
    {'A', &Prog::ABtn},    {'B', &Prog::BBtn},   {'C', &Prog::CBtn},    {'D', &Prog::DBtn},
    {'E', &Prog::EBtn},    {'F', &Prog::FBtn},   {'%', &Prog::ModBtn},  {'&', &Prog::ANDBtn},
    {'|', &Prog::ORBtn},   {'^', &Prog::XORBtn}, {'#', &Prog::NANDBtn}, {'?', &Prog::NORBtn},
    {'!', &Prog::XNORBtn}, {'~', &Prog::NotBtn}, {'_', &Prog::NEGBtn},  {'<', &Prog::SHLBtn},
    {'>', &Prog::SHRBtn},  {'{', &Prog::ROLBtn}, {'}', &Prog::RORBtn},
};

// Digits each base takes, indexed by TQORBaseDisplay (binary, decimal, hexadecimal, octal).
constexpr std::array<int, 4> DigitsOfBase {2, 10, 16, 8};

const TQORStoreKey ProgStoreKeys[] = {
    {"Use Memory", "LoadMemoryAtStart"},
    {"Memory", nullptr},
    {"DispFont", "DispFont"},
    {"Prefix Functions", "PrefixFunctions"},
    {"Precedence", "Precedence"},
    {"Position", "Position"},
    {"Stay On Top", "StayOnTop"},
};

} // namespace

TQORProgCalcForm::TQORProgCalcForm(QWidget* parent)
    : TQORCalcFormBase(parent, ProgGeometry, QFont(QStringLiteral("Arial"), 8, QFont::Bold)),
      engineObject_(new TQORProgCalcEngineObject(this)), engine_(engineObject_->GetEngine())
{
    engineObject_->setObjectName(QStringLiteral("EngineObject"));
    SetHelpContext(QORProgCalcHelpContext);
    AddCommonKeys(engine_);
    AddKeys(*this, ProgKeys, engine_);
    AddCharKeys(*this, ProgCharKeys);

    BaseCombo = new TQORBaseComboBox(this);
    BaseCombo->setObjectName(QStringLiteral("BaseCombo"));
    BitsCombo = new TQORBaseComboBox(this);
    BitsCombo->setObjectName(QStringLiteral("BitsCombo"));
    BaseCombo->SetOnChange([this](QObject*) {
        engine_.SetBaseDisplay(static_cast<TQORBaseDisplay>(BaseCombo->GetItemIndex()));
        EnableDigits();
    });
    BitsCombo->SetOnChange([this](QObject*) {
        engine_.SetBitSize(static_cast<TQORBitSize>(BitsCombo->GetItemIndex()));
    });

    ApplyDispFont(ToQString(QORCalcDispFont));
    UpdateLanguage();

    PlaceKeys(*this, ProgPlaces, ProgGeometry.Rows);
    const int keysWidth = ProgGeometry.Columns * ProgGeometry.KeyWidth;
    const int keysLeft = (ClientWidth - keysWidth) / 2;
    // The panels are as tall as the fixed size allows: a 64-bit binary value is shown on two
    // lines of 32 digits.
    PlaceChild(ValueDisplay, QRect(keysLeft, ValueTop, keysWidth, ValueHeight));
    PlaceChild(MemoryDisplay, QRect(keysLeft, RowTop, keysWidth - 2 * ComboWidth - 8, RowHeight));
    PlaceChild(BaseCombo,
               QRect(keysLeft + keysWidth - 2 * ComboWidth - 4, RowTop, ComboWidth, RowHeight));
    PlaceChild(BitsCombo, QRect(keysLeft + keysWidth - ComboWidth, RowTop, ComboWidth, RowHeight));
    PlaceChild(KeyPanel, QRect(QPoint(keysLeft, KeysTop), KeyPanel->size()));
    SetFormSize(ClientWidth, ClientHeight);

    // The size list is deliberately not told of size changes the engine makes by itself
    // (decimal forces 64 bits): it keeps showing the size the user chose.
    const TQORProgCalcEngineObject* front = engineObject_;
    connect(front, &TQORProgCalcEngineObject::displayChange, this,
            [this] { SetPanelText(ValueDisplay, engineObject_->GetDisplayText(), true); });
    connect(front, &TQORProgCalcEngineObject::memoryChange, this,
            [this] { SetPanelText(MemoryDisplay, engineObject_->GetMemoryText(), true); });
    connect(front, &TQORProgCalcEngineObject::baseDisplayChange, this,
            &TQORProgCalcForm::EnableDigits);
    ShowFitted(ValueDisplay, ToQString(engine_.GetDisplayStr()));
    SetTapeModel(new TQORTapeModel(engine_, this));
    InstallKeyPreview();
}

void TQORProgCalcForm::LoadLists()
{
    const TQORTextFn bases[] = {rsComboBin, rsComboDec, rsComboHex, rsComboOct};
    const TQORTextFn sizes[] = {rsCombo8Bits, rsCombo16Bits, rsCombo32Bits, rsCombo64Bits};
    const std::pair<TQORBaseComboBox*, const TQORTextFn*> lists[]
        = {{BaseCombo, bases}, {BitsCombo, sizes}};
    for (const auto& [combo, texts] : lists) {
        const int selected = combo->GetItemIndex();
        const QSignalBlocker quiet(combo);
        QStringList items;
        for (int i = 0; i < 4; ++i)
            items << ToQString(texts[i]());
        combo->clear();
        combo->addItems(items);
        combo->SetItemIndex(selected);
    }
}

void TQORProgCalcForm::UpdateLanguage()
{
    TQORCalcFormBase::UpdateLanguage();
    LoadLists();
    BaseCombo->setToolTip(ToQString(rsBaseHint()));
    BitsCombo->setToolTip(ToQString(rsBitsHint()));
    BaseCombo->setAccessibleName(ToQString(rsBaseAccName()));
    BaseCombo->setAccessibleDescription(ToQString(rsBaseHint()));
    BitsCombo->setAccessibleName(ToQString(rsBitsAccName()));
    BitsCombo->setAccessibleDescription(ToQString(rsBitsHint()));
}

void TQORProgCalcForm::EnableDigits()
{
    QToolButton* const digits[]
        = {ZeroBtn,  OneBtn,  TwoBtn, ThreeBtn, FourBtn, FiveBtn, SixBtn, SevenBtn,
           EightBtn, NineBtn, ABtn,   BBtn,     CBtn,    DBtn,    EBtn,   FBtn};
    const int base = engine_.GetBaseDisplay();
    const int count = base < static_cast<int>(DigitsOfBase.size())
        ? DigitsOfBase[static_cast<std::size_t>(base)]
        : 16;
    for (int i = 0; i < 16; ++i)
        digits[i]->setEnabled(i < count);
}

void TQORProgCalcForm::RefreshDisplays()
{
    BaseCombo->SetItemIndex(engine_.GetBaseDisplay());
    BitsCombo->SetItemIndex(engine_.GetBitSize());
    ShowFitted(MemoryDisplay, ToQString(engine_.GetMemoryContents()));
    ShowFitted(ValueDisplay, ToQString(engine_.GetDisplayStr()));
    EnableDigits();
}

// ---- Component -------------------------------------------------------------------------------

TQORProgCalculator::TQORProgCalculator(QObject* owner) : TQORCalcComponentT(owner)
{
    SetPrefixFunctions(true);
    SetDispFont(ToQString(QORCalcDispFont));
}

void TQORProgCalculator::SetMemory(std::int64_t value)
{
    QORProgCalcMemory = value;
    Store(memory_, value, &TQORProgCalculator::memoryChanged);
}

void TQORProgCalculator::SetUpEngine(IQORProgCalcEngine& engine)
{
    engine.SetPrecedence(GetPrecedence());
    engine.InputValue(value_);
    engine.SetMemory(memory_);
    engine.SetPrefixFunctions(GetPrefixFunctions());
}

IQORProgCalcEngine& TQORProgCalculator::GetCalcEngine()
{
    if (!engine_)
        engine_ = std::make_unique<TQORProgCalcEngine>();
    SetUpEngine(*engine_);
    return *engine_;
}

std::unique_ptr<TQORCalcFormBase> TQORProgCalculator::CreateForm()
{
    return std::make_unique<TQORProgCalcForm>(OwnerWindow());
}

void TQORProgCalculator::SetUpForm(TQORCalcFormBase& base)
{
    auto& form = static_cast<TQORProgCalcForm&>(base);
    SetUpEngine(form.GetCalcEngine());
    form.RefreshDisplays();
}

void TQORProgCalculator::ReadBack(TQORCalcFormBase& base)
{
    IQORProgCalcEngine& engine = static_cast<TQORProgCalcForm&>(base).GetCalcEngine();
    SetValue(engine.GetDisplayValue());
    // Not through SetMemory: the process-wide memory is left as it was.
    Store(memory_, engine.GetMemoryValue(), &TQORProgCalculator::memoryChanged);
    SetPrefixFunctions(engine.GetPrefixFunctions());
    SetPrecedence(engine.GetPrecedence());
}

std::span<const TQORStoreKey> TQORProgCalculator::StoreKeys() const { return ProgStoreKeys; }

void TQORProgCalculator::ReadMemory(TQORStoreCtrl& store, const QString& key)
{
    SetMemory(store.ReadInt64(key, memory_));
}

void TQORProgCalculator::WriteMemory(TQORStoreCtrl& store, const QString& key)
{
    store.WriteInt64(key, memory_);
}

// ---- Free functions --------------------------------------------------------------------------

bool DisplayProgCalcPos(const std::string& Title, std::int64_t& Value, std::int32_t X,
                        std::int32_t Y, const std::string& DispFont, bool Flat, QWidget* parent)
{
    const TQORDispFontScope font(DispFont);
    TQORProgCalcForm form(QORHostWindow(parent));
    IQORProgCalcEngine& engine = form.GetCalcEngine();
    LoadCalculatorSettings();
    engine.SetMemory(QORProgCalcMemory);
    form.MoveTo(X, Y);
    form.setWindowTitle(ToQString(Title));
    engine.InputValue(Value);
    form.RefreshDisplays();
    form.SetCalcFlat(Flat);
    form.exec();
    const bool accepted = !form.GetCancelled();
    if (accepted)
        Value = engine.GetDisplayValue();
    // As with the other calculators, the memory outlives a cancelled dialog.
    QORProgCalcMemory = engine.GetMemoryValue();
    SaveCalculatorSettings();
    return accepted;
}

bool DisplayProgCalcPos(const std::string& Title, std::int64_t& Value, std::int32_t X,
                        std::int32_t Y, bool Flat, QWidget* parent)
{
    return DisplayProgCalcPos(Title, Value, X, Y, std::string(), Flat, parent);
}

bool DisplayProgCalc(const std::string& Title, std::int64_t& Value, const std::string& DispFont,
                     bool Flat, QWidget* parent)
{
    return DisplayProgCalcPos(Title, Value, -1, -1, DispFont, Flat, parent);
}

bool DisplayProgCalc(const std::string& Title, std::int64_t& Value, bool Flat, QWidget* parent)
{
    return DisplayProgCalcPos(Title, Value, -1, -1, std::string(), Flat, parent);
}

} // namespace qorkit
