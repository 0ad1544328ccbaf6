#include "QORKITCalculator.h"

#include "QORKITSettings.h"

#include <algorithm>
#include <vector>

namespace qorkit {

namespace {

constexpr TQORFormGeometry CalcGeometry {30, 22, 6, 8};
constexpr int FunctionRows = 2; // the rows the small calculator drops

using Calc = TQORCalcForm;

// The full calculator; the small one drops the two function rows and the function keys
// elsewhere, and puts the percent key where "e" was: in the row of "+", under "C".
const TQORKeyPlace<Calc> FullPlaces[] = {
    {&Calc::RadBtn, 0, 0},          {&Calc::InvBtn, 1, 0},
    {&Calc::SinBtn, 2, 0},          {&Calc::CosBtn, 3, 0},
    {&Calc::TanBtn, 4, 0},          {&Calc::PiBtn, 5, 0},
    {&Calc::LogBtn, 0, 1},          {&Calc::LNBtn, 1, 1},
    {&Calc::PowerBtn, 2, 1},        {&Calc::SquareBtn, 3, 1},
    {&Calc::SqRootBtn, 4, 1},       {&Calc::InvertBtn, 5, 1},
    {&Calc::MemoryClearBtn, 0, 2},  {&Calc::MemoryRecallBtn, 1, 2},
    {&Calc::MemoryAddBtn, 2, 2},    {&Calc::MemorySubtractBtn, 3, 2},
    {&Calc::AllClearBtn, 4, 2},     {&Calc::ClearBtn, 5, 2},
    {&Calc::SevenBtn, 0, 3},        {&Calc::EightBtn, 1, 3},
    {&Calc::NineBtn, 2, 3},         {&Calc::LeftBracketBtn, 3, 3},
    {&Calc::RightBracketBtn, 4, 3}, {&Calc::BackSpaceBtn, 5, 3},
    {&Calc::FourBtn, 0, 4},         {&Calc::FiveBtn, 1, 4},
    {&Calc::SixBtn, 2, 4},          {&Calc::MultiplyBtn, 3, 4},
    {&Calc::DivideBtn, 4, 4},       {&Calc::ChangeSignBtn, 5, 4},
    {&Calc::OneBtn, 0, 5},          {&Calc::TwoBtn, 1, 5},
    {&Calc::ThreeBtn, 2, 5},        {&Calc::AddBtn, 3, 5},
    {&Calc::SubtractBtn, 4, 5},     {&Calc::EBtn, 5, 5},
    {&Calc::ZeroBtn, 0, 6},         {&Calc::PointBtn, 1, 6},
    {&Calc::EqualsBtn, 2, 6, 3},    {&Calc::PercentBtn, 5, 6},
    {&Calc::CopyBtn, 0, 7},         {&Calc::PasteBtn, 1, 7},
    {&Calc::CancelBtn, 4, 7},       {&Calc::ExitBtn, 5, 7},
};
constexpr int SpinCol = 2; // the decimal-places spin edit, two keys wide
constexpr int SpinRow = 7;

const TQORKeyMember<Calc> SmallHidden[] = {
    &Calc::PiBtn,     &Calc::EBtn,   &Calc::SinBtn,   &Calc::CosBtn,    &Calc::TanBtn,
    &Calc::RadBtn,    &Calc::InvBtn, &Calc::PowerBtn, &Calc::SquareBtn, &Calc::SqRootBtn,
    &Calc::InvertBtn, &Calc::LogBtn, &Calc::LNBtn,
};
const TQORKeyPlace<Calc> SmallPercent {&Calc::PercentBtn, 5, 5 - FunctionRows};

// "@" is x to the 1/y: the inverse toggle, then the power key.
const TQORCharKey<Calc> CalcCharKeys[] = {
    {'@', &Calc::InvBtn, &Calc::PowerBtn},
};

// Only the standard calculator exits on F10 and takes the numeric pad's decimal key straight
// to the engine, whatever character that key types.
const TQORKeyDownDef<Calc> CalcKeyDowns[] = {
    {Qt::Key_F10, Qt::NoModifier, false, &Calc::ExitBtn, nullptr},
    {Qt::Key_Period, Qt::NoModifier, true, nullptr, &TQORCalcFormBase::KeypadDecimal},
    {Qt::Key_Comma, Qt::NoModifier, true, nullptr, &TQORCalcFormBase::KeypadDecimal},
};

// Keys kept in the settings store, with the properties they hold; the memory (no property)
// is read only when "Use Memory" is on.
const TQORStoreKey CalcStoreKeys[] = {
    {"Radians", "Radians"},
    {"Decimal Places", "DecimalPlaces"},
    {"Use Memory", "LoadMemoryAtStart"},
    {"Memory", nullptr},
    {"DispFont", "DispFont"},
    {"Trim Trailing Zeroes", "TrimTrailingZeroes"},
    {"Show Thousands Separators", "ShowThousandsSeparators"},
    {"Lakh Formatting", "LakhFormatting"},
    {"Prefix Functions", "PrefixFunctions"},
    {"Precedence", "Precedence"},
    {"Position", "Position"},
    {"Stay On Top", "StayOnTop"},
    {"Operator Same Line", "OperatorSameLine"},
    {"Binary Percent", "BinaryPercent"},
};

} // namespace

TQORCalcForm::TQORCalcForm(QWidget* parent) : TQORFloatCalcForm(parent, CalcGeometry)
{
    AddCharKeys(*this, CalcCharKeys);
    AddKeyDowns(*this, CalcKeyDowns);
    UpdateLanguage();
    RedrawCalc();
    RefreshDisplays();
    InstallKeyPreview();
}

void TQORCalcForm::SetHideFnBtns(bool value)
{
    if (value == hideFnBtns_)
        return;
    hideFnBtns_ = value;
    RedrawCalc();
}

void TQORCalcForm::RedrawCalc()
{
    const int rowShift = hideFnBtns_ ? FunctionRows : 0;
    std::vector<TQORKeyPlace<Calc>> places;
    for (const auto& place : FullPlaces) {
        if (hideFnBtns_ && std::ranges::find(SmallHidden, place.Key) != std::end(SmallHidden))
            continue;
        const bool movedPercent = hideFnBtns_ && place.Key == SmallPercent.Key;
        places.push_back(movedPercent ? SmallPercent
                                      : TQORKeyPlace<Calc> {place.Key, place.Col,
                                                            place.Row - rowShift, place.Span});
    }
    const int rows = CalcGeometry.Rows - rowShift;
    PlaceKeys(*this, places, rows, {{DPSpin, SpinCol, SpinRow - rowShift, 2}});
    // The small calculator is 2 (D + 3 H) + 3 high, two pixels less than the general rule.
    LayoutPanels(rows, hideFnBtns_ ? -2 : 0);
    SetHelpContext(hideFnBtns_ ? QORSmallCalcHelpContext : QORCalcHelpContext);
}

// ---- Component -------------------------------------------------------------------------------

TQORCalculator::TQORCalculator(QObject* owner) : TQORCalcComponentT(owner) { }

std::unique_ptr<TQORCalcFormBase> TQORCalculator::CreateForm()
{
    return std::make_unique<TQORCalcForm>(OwnerWindow());
}

void TQORCalculator::SetUpForm(TQORCalcFormBase& base)
{
    TQORFloatCalcComponent::SetUpForm(base);
    static_cast<TQORCalcForm&>(base).SetHideFnBtns(smallCalc_);
}

void TQORCalculator::SetUpEngine(TQORCalcEngine& engine)
{
    engine.SetPrecedence(GetPrecedence());
    engine.SetDecimalPlaces(GetDecimalPlaces());
    engine.SetTrimTrailingZeroes(GetTrimTrailingZeroes());
    engine.SetOperatorSameLine(GetOperatorSameLine());
    engine.SetThousandsSeparators(showThousandsSeparators_);
    engine.SetLakhFormatting(lakhFormatting_);
    engine.SetPrefixFunctions(GetPrefixFunctions());
    engine.SetBinaryPercent(GetBinaryPercent());
    engine.InputValue(GetValue());
    engine.SetMemory(GetMemory());
    engine.SetAngleMode(GetRadians() ? amRadians : amDegrees);
}

void TQORCalculator::ReadBackMore(TQORCalcEngine& engine)
{
    SetShowThousandsSeparators(engine.GetThousandsSeparators());
    SetLakhFormatting(engine.GetLakhFormatting());
}

std::span<const TQORStoreKey> TQORCalculator::StoreKeys() const { return CalcStoreKeys; }

// ---- Free functions --------------------------------------------------------------------------

bool DisplayCalcPos(const std::string& Title, Extended& Value, std::int32_t X, std::int32_t Y,
                    const std::string& DispFont, std::uint8_t Decimals, bool Flat, QWidget* parent)
{
    return DisplayFloatCalc<TQORCalcForm>(Title, Value, X, Y, DispFont, Decimals, Flat, parent);
}

bool DisplayCalcPos(const std::string& Title, Extended& Value, std::int32_t X, std::int32_t Y,
                    std::uint8_t Decimals, bool Flat, QWidget* parent)
{
    return DisplayCalcPos(Title, Value, X, Y, std::string(), Decimals, Flat, parent);
}

bool DisplayCalc(const std::string& Title, Extended& Value, const std::string& DispFont,
                 std::uint8_t Decimals, bool Flat, QWidget* parent)
{
    return DisplayCalcPos(Title, Value, -1, -1, DispFont, Decimals, Flat, parent);
}

bool DisplayCalc(const std::string& Title, Extended& Value, std::uint8_t Decimals, bool Flat,
                 QWidget* parent)
{
    return DisplayCalcPos(Title, Value, -1, -1, std::string(), Decimals, Flat, parent);
}

} // namespace qorkit
