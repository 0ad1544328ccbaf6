#include "QORKITTypes.h"
#include "QORKIT_RS_Calc.h"
#include "QORKIT_RS_UC.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit {
namespace {

class CalcTextTableTest : public test::GlobalStateTest { };

TEST_F(CalcTextTableTest, NamesAreUniqueAcrossAllTextModules)
{
    std::set<std::string_view> names;
    for (const auto& text : BaseTexts())
        names.insert(text.Name);
    for (const auto& text : UCTexts())
        names.insert(text.Name);
    for (const auto& text : CalcTexts()) {
        EXPECT_TRUE(text.Name.starts_with("rs")) << text.Name;
        EXPECT_TRUE(names.insert(text.Name).second) << text.Name << " is defined twice";
        EXPECT_FALSE(text.Source.empty()) << text.Name;
        // Texts are shown as they are: stray blanks would show on a key or in a hint. Only the
        // two halves of the composed decimals message carry a blank at their joint.
        if (text.Name != "rsCannot") {
            EXPECT_NE(text.Source.back(), ' ') << text.Name;
        }
        if (text.Name != "rsDecimalPlaces") {
            EXPECT_NE(text.Source.front(), ' ') << text.Name;
        }
    }
}

// Captions, hints and tape labels each sit in one block so that translators meet them
// together: every ...Key caption comes before the first ...Hint, and no tape label or list
// item is mixed into the dialog block.
TEST_F(CalcTextTableTest, DialogCaptionsAndHintsFormConsecutiveBlocks)
{
    const auto texts = CalcTexts();
    std::vector<std::size_t> keys;
    std::vector<std::size_t> hints;
    std::vector<std::size_t> papers;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto name = texts[i].Name;
        if (name.ends_with("Key"))
            keys.push_back(i);
        else if (name.ends_with("Hint"))
            hints.push_back(i);
        else if (name.ends_with("Paper"))
            papers.push_back(i);
    }
    ASSERT_FALSE(keys.empty());
    ASSERT_FALSE(hints.empty());
    ASSERT_FALSE(papers.empty());
    EXPECT_LT(keys.back(), hints.front());
    EXPECT_EQ(hints.back() - hints.front() + 1, hints.size()) << "a hint stands outside its block";
    EXPECT_LT(papers.back(), keys.front()) << "a tape label stands among the dialog texts";
}

struct ExactText {
    const char* name;
    std::function<std::string()> text;
    std::string_view expected;
};

class CalcTextExactTest : public test::GlobalStateTest,
                          public ::testing::WithParamInterface<ExactText> { };

TEST_P(CalcTextExactTest, TextIsTheDocumentedOne)
{
    EXPECT_EQ(GetParam().text(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CalcTextExactTest,
    ::testing::Values(ExactText {"ErrorDisplay", rsErrorMsg, "Error!"},
                      ExactText {"ErrorTapeLine", rsPaperErrLine, "- - - - ERROR - - - -"},
                      ExactText {"SeparatorTapeLine", rsPaperLine, "- - - - - - - - - - -"},
                      ExactText {"RootOperator", rsXpwrInvYPaper, "x ^ 1/y"},
                      ExactText {"TwoWordLabel", rsLnGammaPaper, "ln gamma"},
                      ExactText {"InverseHyperbolic", rsArcoshPaper, "arcosh"},
                      ExactText {"GradiansAbbreviation", rsGraAbbrev, "gra"},
                      ExactText {"UnknownWord", rsUnknownFunction, "Unknown Function"},
                      ExactText {"ProgrammersXnor", rsXNORPaper, "XNOR"},
                      ExactText {"DoubleWordSpacing", rsSpacingDWord, "DWord Spacing"},
                      ExactText {"DialogCaption", rsCalculator, "Calculator"},
                      ExactText {"ProgrammersClearKey", rsClKey, "Cl"},
                      ExactText {"CopyHintCapitalB", rsCopyHint, "Copy Value to ClipBoard"},
                      ExactText {"PasteHintLowerB", rsPasteHint, "Paste Value from Clipboard"},
                      ExactText {"PiHint", rsPiHint, "Pi (Constant)"},
                      ExactText {"PercentHint", rsPercentHint, "x Percent of y"},
                      ExactText {"XorHint", rsXORHint, "exclusive or"},
                      ExactText {"CancelHint", rsCancelHint, "Exit and Do Not Transfer Result"}),
    [](const auto& row) { return std::string(row.param.name); });

// The list items of the programmer's dialog are indexed by the enumeration ordinals, and the
// base library keeps the same names for its own use; the two must not drift apart.
TEST_F(CalcTextTableTest, ListItemsFollowTheEnumerationOrdinals)
{
    const std::vector<std::string> bases {rsComboBin(), rsComboDec(), rsComboHex(), rsComboOct()};
    const std::vector<std::string> sizes {rsCombo8Bits(), rsCombo16Bits(), rsCombo32Bits(),
                                          rsCombo64Bits()};
    const std::vector<std::string> spacings {rsSpacingNone(), rsSpacingByte(), rsSpacingWord(),
                                             rsSpacingDWord()};
    const std::vector<std::string> changes {rsChangeClear(), rsChangeTruncate(), rsChangeExtend()};
    EXPECT_TRUE(std::ranges::equal(bases, QORBaseDisplayNames));
    EXPECT_TRUE(std::ranges::equal(sizes, QORBitSizeNames));
    EXPECT_TRUE(std::ranges::equal(spacings, QORProgSpacingNames));
    EXPECT_TRUE(std::ranges::equal(changes, QORProgSizeChangeNames));
    EXPECT_EQ(bases[bdOctal], "Oct");
    EXPECT_EQ(sizes[bs64Bits], "64 bits");
}

TEST_F(CalcTextTableTest, DecimalsMessageReadsAsOneSentence)
{
    EXPECT_EQ(rsCannot() + std::to_string(4) + rsDecimalPlaces(),
              "Cannot show more than 4 decimal places");
}

TEST_F(CalcTextTableTest, HookSeesTheModuleContextAndFallsBackToEnglish)
{
    std::vector<std::string> contexts;
    SetTranslationHook([&](std::string_view context, std::string_view source) -> std::string {
        contexts.emplace_back(context);
        return source == "cos" ? "kos" : "";
    });
    EXPECT_EQ(rsCosKey(), "kos");
    EXPECT_EQ(rsCosPaper(), "kos");
    EXPECT_EQ(rsSinKey(), "sin");
    ASSERT_EQ(contexts.size(), 3U);
    EXPECT_EQ(contexts.front(), "QORKIT_RS_Calc");
}

} // namespace
} // namespace qorkit
