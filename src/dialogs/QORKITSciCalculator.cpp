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

const TQORKeyPlace SciPlaces[] = {
    {"RadBtn", 0, 0},         {"InvBtn", 1, 0},
    {"HypBtn", 2, 0},         {"SinBtn", 3, 0},
    {"CosBtn", 4, 0},         {"TanBtn", 5, 0},
    {"PiBtn", 6, 0},          {"LogBtn", 0, 1},
    {"LNBtn", 1, 1},          {"Lg2btn", 2, 1},
    {"ExpBtn", 3, 1},         {"PowerBtn", 4, 1},
    {"SquareBtn", 5, 1},      {"SqRootBtn", 6, 1},
    {"MemoryClearBtn", 0, 2}, {"MemoryRecallBtn", 1, 2},
    {"MemoryAddBtn", 2, 2},   {"MemorySubtractBtn", 3, 2},
    {"AllClearBtn", 4, 2},    {"ClearBtn", 5, 2},
    {"BackSpaceBtn", 6, 2},   {"SevenBtn", 0, 3},
    {"EightBtn", 1, 3},       {"NineBtn", 2, 3},
    {"LeftBracketBtn", 3, 3}, {"RightBracketBtn", 4, 3},
    {"InvertBtn", 5, 3},      {"EBtn", 6, 3},
    {"FourBtn", 0, 4},        {"FiveBtn", 1, 4},
    {"SixBtn", 2, 4},         {"MultiplyBtn", 3, 4},
    {"DivideBtn", 4, 4},      {"ChangeSignBtn", 5, 4},
    {"PercentBtn", 6, 4},     {"OneBtn", 0, 5},
    {"TwoBtn", 1, 5},         {"ThreeBtn", 2, 5},
    {"AddBtn", 3, 5},         {"SubtractBtn", 4, 5},
    {"CopyBtn", 5, 5},        {"PasteBtn", 6, 5},
    {"ZeroBtn", 0, 6},        {"PointBtn", 1, 6},
    {"EqualsBtn", 2, 6, 3},   {"CancelBtn", 5, 6},
    {"ExitBtn", 6, 6},
};
constexpr int SpinRow = 7;

// "E" starts the exponent; the other letters reach the function keys: Sine, cOsine, Tangent,
// Log, Natural log, lG2, Hyp, inVerse, Degrees/radians.
const TQORCharKey SciCharKeys[] = {
    {'E', "ExpBtn"}, {'S', "SinBtn"}, {'O', "CosBtn"}, {'T', "TanBtn"}, {'L', "LogBtn"},
    {'N', "LNBtn"},  {'G', "Lg2btn"}, {'H', "HypBtn"}, {'V', "InvBtn"}, {'D', "RadBtn"},
};

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
    AddKeys<TQORSciCalcForm, TQORCalcEngine>(SciKeys, GetCalcEngine());
    HypBtn->setCheckable(true);
    connect(HypBtn, &QToolButton::clicked, this, [this] { ShowToggles(); });
    UpdateLanguage();
    RedrawCalc();
    RefreshDisplays();
    InstallKeyPreview();
}

void TQORSciCalcForm::RedrawCalc()
{
    PlaceKeys(SciPlaces, SciGeometry.Rows);
    LayoutPanels(SciGeometry.Rows, SciExtraHeight);
    DPSpin->setGeometry(0, SpinRow * SciGeometry.KeyHeight, 2 * SciGeometry.KeyWidth,
                        SciGeometry.KeyHeight);
}

std::vector<std::span<const TQORCharKey>> TQORSciCalcForm::CharKeys() const
{
    return {FloatChars(), SciCharKeys};
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
