#include "QORKITResource.h"
#include "QORKITSettings.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace qorkit {
namespace {

class ResourceTextTest : public test::GlobalStateTest { };

TEST_F(ResourceTextTest, TextsAreEnglishWithoutAHook)
{
    EXPECT_EQ(rsNorthAbbr(), "N");
    EXPECT_EQ(rsDivideByZero(), "Division by zero");
}

TEST_F(ResourceTextTest, HookTranslatesAtTheMomentOfUse)
{
    SetTranslationHook([](std::string_view context, std::string_view source) -> std::string {
        if (context == "QORKIT_Base" && source == "N")
            return "Nord";
        return {};
    });
    EXPECT_EQ(rsNorthAbbr(), "Nord");
    // A text the hook does not know falls back to English.
    EXPECT_EQ(rsSouthAbbr(), "S");
    SetTranslationHook({});
    EXPECT_EQ(rsNorthAbbr(), "N");
}

TEST_F(ResourceTextTest, BaseTableHasUniqueNamesAndNonEmptyTexts)
{
    std::set<std::string_view> names;
    for (const auto& text : BaseTexts()) {
        EXPECT_TRUE(names.insert(text.Name).second) << text.Name;
        EXPECT_FALSE(text.Source.empty()) << text.Name;
    }
    EXPECT_TRUE(names.contains("rsInvalidDate"));
}

TEST_F(ResourceTextTest, FormatMessageReplacesThePlaceholder)
{
    EXPECT_EQ(FormatMessage(rsInvalidFloat(), "1.2.3"),
              "'1.2.3' is not a valid floating point value");
    EXPECT_EQ(FormatMessage("no placeholder", "x"), "no placeholder");
}

class GlobalSettingsTest : public test::GlobalStateTestOf<test::Area::Random> { };

TEST_F(GlobalSettingsTest, ResetRestoresEveryVariableAndTheRandomSequence)
{
    const auto first = RandomExtended();
    FormatSettings.DecimalSeparator = ',';
    QORCalcRadians = false;
    QORCalcMemory = 12;
    QORRegIniType = ritIniFile;
    QORIniFile = "x.ini";
    QORNorthPositive = false;
    QORProgCalcMemory = -5;
    ResetGlobalSettings();
    EXPECT_EQ(FormatSettings.DecimalSeparator, '.');
    EXPECT_TRUE(QORCalcRadians);
    EXPECT_EQ(QORCalcMemory, 0);
    EXPECT_EQ(QORRegIniType, ritNone);
    EXPECT_TRUE(QORIniFile.empty());
    EXPECT_TRUE(QORNorthPositive);
    EXPECT_EQ(QORProgCalcMemory, 0);
    EXPECT_EQ(RandomExtended(), first);
}

TEST_F(GlobalSettingsTest, RandomValuesStayInTheUnitInterval)
{
    RandomSeed(46000);
    for (int i = 0; i < 10000; ++i) {
        const auto r = RandomExtended();
        ASSERT_GE(r, 0.0L);
        ASSERT_LT(r, 1.0L);
    }
}

// The after-test check of GlobalStateTest names the area a change belongs to, so a test that
// leaves state behind without declaring it is caught.
struct AreaRow {
    const char* Name;
    void (*Change)();
    const char* Reported;
};

class AreaCheck : public ::testing::TestWithParam<AreaRow> {
protected:
    void TearDown() override { test::ResetAllGlobals(); }
};

TEST_P(AreaCheck, ReportsTheChangedAreaOnlyUntilReset)
{
    test::ResetAllGlobals();
    EXPECT_EQ(test::ChangedAreas(), "");
    GetParam().Change();
    EXPECT_EQ(test::ChangedAreas(), GetParam().Reported);
    EXPECT_EQ(test::ChangedAreas(test::Area::Format | test::Area::Calculator | test::Area::Store
                                 | test::Area::Signs | test::Area::Random),
              "");
    test::ResetAllGlobals();
    EXPECT_EQ(test::ChangedAreas(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Areas, AreaCheck,
    ::testing::Values(
        AreaRow {"CurrencySymbol", [] { FormatSettings.CurrencyString.append("EUR"); },
                 "Area::Format"},
        AreaRow {"SecondSign", [] { FormatSettings.SecondSign.append("s"); }, "Area::Format"},
        AreaRow {"DisplayFont", [] { QORCalcDispFont.append("Courier"); }, "Area::Calculator"},
        AreaRow {"HelpContext", [] { QORProgCalcHelpContext = 7; }, "Area::Calculator"},
        AreaRow {"IniSection", [] { QORIniSection.append("Calc"); }, "Area::Store"},
        AreaRow {"EastNegative", [] { QOREastPositive = false; }, "Area::Signs"},
        AreaRow {"NumberDrawn", [] { RandomExtended(); }, "Area::Random"},
        AreaRow {"Reseeded", [] { RandomSeed(1); }, "Area::Random"},
        AreaRow {"TwoAreas",
                 [] {
                     FormatSettings.DecimalSeparator = ',';
                     QORNorthPositive = false;
                 },
                 "Area::Format, Area::Signs"}),
    test::RowName<AreaRow>);

} // namespace
} // namespace qorkit
