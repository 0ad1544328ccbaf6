#include "QorkitTestSupport.h"

#include "QORKITResource.h"

#include <random>

namespace qorkit::test {

namespace {

bool FormatAtDefault()
{
    const TFormatSettings d;
    const TFormatSettings& f = FormatSettings;
    return f.DecimalSeparator == d.DecimalSeparator && f.ThousandSeparator == d.ThousandSeparator
        && f.CurrencyString == d.CurrencyString && f.CurrencyFormat == d.CurrencyFormat
        && f.NegCurrFormat == d.NegCurrFormat && f.CurrencyDecimals == d.CurrencyDecimals
        && f.DegreeSign == d.DegreeSign && f.MinuteSign == d.MinuteSign
        && f.SecondSign == d.SecondSign;
}

bool CalculatorAtDefault()
{
    return QORCalcRadians && QORCalcMemory == 0 && QORCalcDispFont == QORDefaultCalcDispFont
        && QORProgCalcMemory == 0 && QORCalcHelpContext == 0 && QORSmallCalcHelpContext == 0
        && QORSciCalcHelpContext == 0 && QORProgCalcHelpContext == 0;
}

bool StoreAtDefault()
{
    return QORRegIniType == ritNone && QORRegPath.empty() && QORRegSection.empty()
        && QORIniFile.empty() && QORIniSection.empty();
}

bool SignsAtDefault() { return QORNorthPositive && QOREastPositive; }

// The generator starts from the standard default seed.
bool RandomAtDefault() { return RandomGenerator() == std::mt19937_64 {}; }

struct TAreaCheck {
    Area Which;
    const char* Name;
    bool (*AtDefault)();
};

constexpr TAreaCheck kAreaChecks[] = {
    {Area::Format, "Area::Format", FormatAtDefault},
    {Area::Calculator, "Area::Calculator", CalculatorAtDefault},
    {Area::Store, "Area::Store", StoreAtDefault},
    {Area::Signs, "Area::Signs", SignsAtDefault},
    {Area::Random, "Area::Random", RandomAtDefault},
};

} // namespace

std::string ChangedAreas(Area ignored)
{
    std::string names;
    for (const auto& check : kAreaChecks)
        if (!Includes(ignored, check.Which) && !check.AtDefault())
            names += (names.empty() ? "" : ", ") + std::string(check.Name);
    return names;
}

void ResetAllGlobals()
{
    ResetGlobalSettings();
    SetTranslationHook({});
}

void GlobalStateTest::SetUp() { ResetAllGlobals(); }

void GlobalStateTest::TearDown()
{
    const std::string undeclared = ChangedAreas(touched_);
    EXPECT_TRUE(undeclared.empty())
        << "the test changed process-wide state it does not declare: " << undeclared
        << " (name it in the fixture's GlobalStateTest areas or call Touches)";
    ResetAllGlobals();
}

CommaDecimals::CommaDecimals() : saved_(FormatSettings)
{
    FormatSettings.DecimalSeparator = ',';
    FormatSettings.ThousandSeparator = '.';
}

CommaDecimals::~CommaDecimals() { FormatSettings = saved_; }

} // namespace qorkit::test
