#include "QORKITCalculator.h"

#include "QORKITSettings.h"

#include <algorithm>
#include <vector>

namespace qorkit {

namespace {

constexpr TQORFormGeometry CalcGeometry {30, 22, 6, 8};
constexpr int FunctionRows = 2; // the rows the small calculator drops

// The full calculator; the small one drops the two function rows and the function keys
// elsewhere, and puts the percent key where "e" was: in the row of "+", under "C".
const TQORKeyPlace FullPlaces[] = {
    {"RadBtn", 0, 0},          {"InvBtn", 1, 0},
    {"SinBtn", 2, 0},          {"CosBtn", 3, 0},
    {"TanBtn", 4, 0},          {"PiBtn", 5, 0},
    {"LogBtn", 0, 1},          {"LNBtn", 1, 1},
    {"PowerBtn", 2, 1},        {"SquareBtn", 3, 1},
    {"SqRootBtn", 4, 1},       {"InvertBtn", 5, 1},
    {"MemoryClearBtn", 0, 2},  {"MemoryRecallBtn", 1, 2},
    {"MemoryAddBtn", 2, 2},    {"MemorySubtractBtn", 3, 2},
    {"AllClearBtn", 4, 2},     {"ClearBtn", 5, 2},
    {"SevenBtn", 0, 3},        {"EightBtn", 1, 3},
    {"NineBtn", 2, 3},         {"LeftBracketBtn", 3, 3},
    {"RightBracketBtn", 4, 3}, {"BackSpaceBtn", 5, 3},
    {"FourBtn", 0, 4},         {"FiveBtn", 1, 4},
    {"SixBtn", 2, 4},          {"MultiplyBtn", 3, 4},
    {"DivideBtn", 4, 4},       {"ChangeSignBtn", 5, 4},
    {"OneBtn", 0, 5},          {"TwoBtn", 1, 5},
    {"ThreeBtn", 2, 5},        {"AddBtn", 3, 5},
    {"SubtractBtn", 4, 5},     {"EBtn", 5, 5},
    {"ZeroBtn", 0, 6},         {"PointBtn", 1, 6},
    {"EqualsBtn", 2, 6, 3},    {"PercentBtn", 5, 6},
    {"CopyBtn", 0, 7},         {"PasteBtn", 1, 7},
    {"CancelBtn", 4, 7},       {"ExitBtn", 5, 7},
};
constexpr int SpinCol = 2;
constexpr int SpinRow = 7;

const char* const SmallHidden[] = {
    "PiBtn",    "EBtn",      "SinBtn",    "CosBtn",    "TanBtn", "RadBtn", "InvBtn",
    "PowerBtn", "SquareBtn", "SqRootBtn", "InvertBtn", "LogBtn", "LNBtn",
};
constexpr TQORKeyPlace SmallPercent {"PercentBtn", 5, 5 - FunctionRows};

// "@" is x to the 1/y: the inverse toggle, then the power key.
const TQORCharKey CalcCharKeys[] = {
    {'@', "InvBtn", "PowerBtn"},
};

// Only the standard calculator exits on F10 and takes the numeric pad's decimal key straight
// to the engine, whatever character that key types.
const TQORKeyDownDef CalcKeyDowns[] = {
    {Qt::Key_F10, Qt::NoModifier, false, "ExitBtn", nullptr},
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
    UpdateLanguage();
    RedrawCalc();
    RefreshDisplays();
    InstallKeyPreview();
}

std::vector<std::span<const TQORCharKey>> TQORCalcForm::CharKeys() const
{
    return {FloatChars(), CalcCharKeys};
}

std::span<const TQORKeyDownDef> TQORCalcForm::KeyDowns() const { return CalcKeyDowns; }

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
    std::vector<TQORKeyPlace> places;
    for (const auto& place : FullPlaces) {
        const auto hidden = [&place](const char* name) { return qstrcmp(name, place.Name) == 0; };
        if (hideFnBtns_ && std::any_of(std::begin(SmallHidden), std::end(SmallHidden), hidden))
            continue;
        const bool movedPercent = hideFnBtns_ && qstrcmp(place.Name, SmallPercent.Name) == 0;
        places.push_back(
            movedPercent ? SmallPercent
                         : TQORKeyPlace {place.Name, place.Col, place.Row - rowShift, place.Span});
    }
    const int rows = CalcGeometry.Rows - rowShift;
    PlaceKeys(places, rows);
    // The small calculator is 2 (D + 3 H) + 3 high, two pixels less than the general rule.
    LayoutPanels(rows, hideFnBtns_ ? -2 : 0);
    DPSpin->setGeometry(SpinCol * CalcGeometry.KeyWidth,
                        (SpinRow - rowShift) * CalcGeometry.KeyHeight, 2 * CalcGeometry.KeyWidth,
                        CalcGeometry.KeyHeight);
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
