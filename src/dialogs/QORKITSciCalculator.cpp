#include "QORKITSciCalculator.h"

#include "QORKITSettings.h"

#include <cmath>

namespace qorkit {

namespace {

constexpr TQORFormGeometry SciGeometry {30, 22, 7, 8};
constexpr int SciExtraHeight = 3;

using TSciKey = TQORKeyDef<TQORSciCalcForm, TQORCalcEngine>;

const TSciKey SciKeys[] = {
    {&TQORSciCalcForm::Lg2btn,
     {"Lg2btn", nullptr, rsLg2Key, -1, rsLg2Hint},
     [](TQORCalcEngine& e) { e.DoLg2(); }},
    {&TQORSciCalcForm::ExpBtn,
     {"ExpBtn", nullptr, rsExpKey, -1, nullptr},
     [](TQORCalcEngine& e) { e.DoExp(); }},
    {&TQORSciCalcForm::HypBtn,
     {"HypBtn", nullptr, rsHypAbbrev, -1, rsHypHint},
     [](TQORCalcEngine& e) { e.DoHyp(); }},
};

using Sci = TQORSciCalcForm;

const TQORKeyPlace<Sci> SciPlaces[] = {
    {&Sci::RadBtn, 0, 0},         {&Sci::InvBtn, 1, 0},
    {&Sci::HypBtn, 2, 0},         {&Sci::SinBtn, 3, 0},
    {&Sci::CosBtn, 4, 0},         {&Sci::TanBtn, 5, 0},
    {&Sci::PiBtn, 6, 0},          {&Sci::LogBtn, 0, 1},
    {&Sci::LNBtn, 1, 1},          {&Sci::Lg2btn, 2, 1},
    {&Sci::ExpBtn, 3, 1},         {&Sci::PowerBtn, 4, 1},
    {&Sci::SquareBtn, 5, 1},      {&Sci::SqRootBtn, 6, 1},
    {&Sci::MemoryClearBtn, 0, 2}, {&Sci::MemoryRecallBtn, 1, 2},
    {&Sci::MemoryAddBtn, 2, 2},   {&Sci::MemorySubtractBtn, 3, 2},
    {&Sci::AllClearBtn, 4, 2},    {&Sci::ClearBtn, 5, 2},
    {&Sci::BackSpaceBtn, 6, 2},   {&Sci::SevenBtn, 0, 3},
    {&Sci::EightBtn, 1, 3},       {&Sci::NineBtn, 2, 3},
    {&Sci::LeftBracketBtn, 3, 3}, {&Sci::RightBracketBtn, 4, 3},
    {&Sci::InvertBtn, 5, 3},      {&Sci::EBtn, 6, 3},
    {&Sci::FourBtn, 0, 4},        {&Sci::FiveBtn, 1, 4},
    {&Sci::SixBtn, 2, 4},         {&Sci::MultiplyBtn, 3, 4},
    {&Sci::DivideBtn, 4, 4},      {&Sci::ChangeSignBtn, 5, 4},
    {&Sci::PercentBtn, 6, 4},     {&Sci::OneBtn, 0, 5},
    {&Sci::TwoBtn, 1, 5},         {&Sci::ThreeBtn, 2, 5},
    {&Sci::AddBtn, 3, 5},         {&Sci::SubtractBtn, 4, 5},
    {&Sci::CopyBtn, 5, 5},        {&Sci::PasteBtn, 6, 5},
    {&Sci::ZeroBtn, 0, 6},        {&Sci::PointBtn, 1, 6},
    {&Sci::EqualsBtn, 2, 6, 3},   {&Sci::CancelBtn, 5, 6},
    {&Sci::ExitBtn, 6, 6},
};
constexpr int SpinRow = 7; // the decimal-places spin edit, two keys wide at the left

// "E" starts the exponent; the other letters reach the function keys: Sine, cOsine, Tangent,
// Log, Natural log, lG2, Hyp, inVerse, Degrees/radians.
const TQORCharKey<Sci> SciCharKeys[] = {
    {'E', &Sci::ExpBtn}, {'S', &Sci::SinBtn}, {'O', &Sci::CosBtn}, {'T', &Sci::TanBtn},
    {'L', &Sci::LogBtn}, {'N', &Sci::LNBtn},  {'G', &Sci::Lg2btn}, {'H', &Sci::HypBtn},
    {'V', &Sci::InvBtn}, {'D', &Sci::RadBtn},
};

// The key the scientific form adds to the ones the toggles relabel.
constexpr TQORToggleLabel Lg2Label {rsLg2Key, rsInvLog2Paper, false, -1, -1};

const TQORStoreKey SciStoreKeys[] = {
    {"Radians", "Radians"},
    {"Decimal Places", "DecimalPlaces"},
    {"Use Memory", "LoadMemoryAtStart"},
    {"Memory", nullptr},
    {"DispFont", "DispFont"},
    {"Trim Trailing Zeroes", "TrimTrailingZeroes"},
    {"Prefix Functions", "PrefixFunctions"},
    {"Precedence", "Precedence"},
    {"Position", "Position"},
    {"Stay On Top", "StayOnTop"},
    {"Operator Same Line", "OperatorSameLine"},
    {"Binary Percent", "BinaryPercent"},
    {"Sci Range", "SciRange"},
    {"Sci Max", "SciMax"},
    {"Sci Min", "SciMin"},
};

} // namespace

TQORSciCalcForm::TQORSciCalcForm(QWidget* parent) : TQORFloatCalcForm(parent, SciGeometry)
{
    SetHelpContext(QORSciCalcHelpContext);
    AddKeys(*this, SciKeys, GetCalcEngine());
    AddCharKeys(*this, SciCharKeys);
    HypBtn->setCheckable(true);
    connect(HypBtn, &QToolButton::clicked, this, [this] { ShowToggles(); });
    UpdateLanguage();
    RedrawCalc();
    RefreshDisplays();
    InstallKeyPreview();
}

void TQORSciCalcForm::RedrawCalc()
{
    PlaceKeys(*this, SciPlaces, SciGeometry.Rows, {{DPSpin, 0, SpinRow, 2}});
    LayoutPanels(SciGeometry.Rows, SciExtraHeight);
}

void TQORSciCalcForm::ShowToggles()
{
    TQORFloatCalcForm::ShowToggles();
    HypBtn->setChecked(GetCalcEngine().GetIsHyp());
    ShowToggle(Lg2btn, Lg2Label);
}

// ---- Component -------------------------------------------------------------------------------

TQORSciCalculator::TQORSciCalculator(QObject* owner) : TQORCalcComponentT(owner)
{
    SetDispFont(QString::fromStdString(QORCalcDispFont));
}

void TQORSciCalculator::SetSciMax(Extended value)
{
    if (std::isfinite(value))
        Store(sciMax_, value, &TQORSciCalculator::sciMaxChanged);
}

void TQORSciCalculator::SetSciMin(Extended value)
{
    if (std::isfinite(value))
        Store(sciMin_, value, &TQORSciCalculator::sciMinChanged);
}

std::unique_ptr<TQORCalcFormBase> TQORSciCalculator::CreateForm()
{
    return std::make_unique<TQORSciCalcForm>(OwnerWindow());
}

void TQORSciCalculator::SetUpEngine(TQORCalcEngine& engine)
{
    engine.SetPrecedence(GetPrecedence());
    engine.SetSciRange(sciRange_);
    engine.SetSciMin(sciMin_);
    engine.SetSciMax(sciMax_);
    engine.SetDecimalPlaces(GetDecimalPlaces());
    engine.SetTrimTrailingZeroes(GetTrimTrailingZeroes());
    engine.SetOperatorSameLine(GetOperatorSameLine());
    engine.SetPrefixFunctions(GetPrefixFunctions());
    engine.SetBinaryPercent(GetBinaryPercent());
    engine.InputValue(GetValue());
    engine.SetMemory(GetMemory());
    engine.SetAngleMode(GetRadians() ? amRadians : amDegrees);
}

std::span<const TQORStoreKey> TQORSciCalculator::StoreKeys() const { return SciStoreKeys; }

// ---- Free functions --------------------------------------------------------------------------

bool DisplaySciCalcPos(const std::string& Title, Extended& Value, std::int32_t X, std::int32_t Y,
                       const std::string& DispFont, std::uint8_t Decimals, bool Flat,
                       QWidget* parent)
{
    return DisplayFloatCalc<TQORSciCalcForm>(Title, Value, X, Y, DispFont, Decimals, Flat, parent);
}

bool DisplaySciCalcPos(const std::string& Title, Extended& Value, std::int32_t X, std::int32_t Y,
                       std::uint8_t Decimals, bool Flat, QWidget* parent)
{
    return DisplaySciCalcPos(Title, Value, X, Y, std::string(), Decimals, Flat, parent);
}

bool DisplaySciCalc(const std::string& Title, Extended& Value, const std::string& DispFont,
                    std::uint8_t Decimals, bool Flat, QWidget* parent)
{
    return DisplaySciCalcPos(Title, Value, -1, -1, DispFont, Decimals, Flat, parent);
}

bool DisplaySciCalc(const std::string& Title, Extended& Value, std::uint8_t Decimals, bool Flat,
                    QWidget* parent)
{
    return DisplaySciCalcPos(Title, Value, -1, -1, std::string(), Decimals, Flat, parent);
}

} // namespace qorkit
