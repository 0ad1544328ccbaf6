// Key sequences and the display and tape they must leave, by area.
#include "CalcKeyDriver.h"
#include "KeyGrammar.h"
#include "QORKITCalcEngine.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace qorkit::test {
namespace {

using Setup = std::function<void(TQORCalcEngine&)>;

struct KeyCase {
    const char* Name;
    const char* Keys;
    const char* Display;
    const char* Tape = nullptr; // lines joined by " | "; not checked when null
    Setup Prepare = nullptr;
};

void PrintTo(const KeyCase& c, std::ostream* os) { *os << c.Keys; }

class KeyTable : public CalcEngineTest, public ::testing::WithParamInterface<KeyCase> { };

TEST_P(KeyTable, LeavesDisplayAndTape)
{
    const auto& row = GetParam();
    CalcKeyDriver calc;
    if (row.Prepare)
        row.Prepare(calc.Engine());
    calc.Press(row.Keys);
    EXPECT_EQ(calc.Display(), row.Display);
    if (row.Tape) {
        EXPECT_EQ(calc.Tape(), row.Tape);
    }
    EXPECT_EQ(calc.Count("error"), 0) << calc.Engine().GetLastError();
}

const Setup NoPrecedence = [](TQORCalcEngine& e) { e.SetPrecedence(false); };
const Setup UnaryPercent = [](TQORCalcEngine& e) { e.SetBinaryPercent(false); };
const Setup SameLine = [](TQORCalcEngine& e) { e.SetOperatorSameLine(true); };
const Setup Plain = [](TQORCalcEngine& e) {
    e.SetThousandsSeparators(false);
    e.SetTrimTrailingZeroes(true);
};
const Setup SciWithRange = [](TQORCalcEngine& e) {
    e.SetSciUsage(true);
    e.SetSciRange(true);
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Entry, KeyTable, ::testing::Values(
    KeyCase{"DigitsShowGroupedWhileTyping", "1 2 3 4", "1,234"},
    KeyCase{"DigitsWithoutGrouping", "1 2 3 4 . 5", "1234.5", nullptr, Plain},
    KeyCase{"ZerosKeepOneZero", "0 0 0", "0"},
    KeyCase{"MinusThenZero", "- 0", "-0"},
    KeyCase{"SeparatorOnEmptyEntryGivesZeroPoint", ". .", "0."},
    KeyCase{"SeparatorThenDigits", ". 2 5", "0.25"},
    KeyCase{"ThousandsKeyIsKept", "1 , 2 3 4", "1,234"},
    KeyCase{"ChangeSignTwice", "1 2 [+/-] [+/-]", "12"},
    KeyCase{"ChangeSign", "1 2 [+/-]", "-12"},
    KeyCase{"ChangeSignOnZeroStartsNegativeEntry", "0 . 0 0 [+/-]", "-"},
    KeyCase{"ChangeSignNegatesExponent", "1 [ee] 5 [+/-]", "1E-5"},
    KeyCase{"ChangeSignOnEmptyExponent", "1 [ee] [+/-]", "1E-"},
    KeyCase{"ExponentSignAfterE", "2 [ee] - 3 =", "0.0020"},
    KeyCase{"ChangeSignOfResultPushesNegation", "2 + 3 = [+/-]", "-5.0000", "2.0000 | + | 3.0000 | = | 5.0000 | +/-"},
    KeyCase{"Backspace", "1 2 3 [bs]", "12"},
    KeyCase{"BackspaceToEmpty", "7 [bs]", ""},
    KeyCase{"ResultCannotBeBackspaced", "1 2 + 3 = [bs]", "15.0000"},
    KeyCase{"DigitAfterEqualsStartsAfresh", "2 + 3 = 4 * 2 =", "8.0000"},
    KeyCase{"ClearKeepsPendingCalculation", "2 + 5 c 3 =", "5.0000"},
    KeyCase{"SciRangeKeepsFixedInside", "1 2 3 . 5 =", "123.5000", nullptr, SciWithRange},
    KeyCase{"SciRangeUpperBoundIsScientific", "1 0 0 0 0 0 0 =", "1.0000E+06", nullptr, SciWithRange},
    KeyCase{"SciRangeZeroIsFixed", "0 =", "0.0000", nullptr, SciWithRange},
    KeyCase{"TrimmedTrailingZeroes", "2 . 5 0 =", "2.5", nullptr, Plain}),
    RowName<KeyCase>);

INSTANTIATE_TEST_SUITE_P(Operators, KeyTable, ::testing::Values(
    KeyCase{"PrecedenceOn", "2 + 3 * 4 =", "14.0000", "2.0000 | + | 3.0000 | * | 4.0000 | = | 14.0000"},
    KeyCase{"PrecedenceOff", "2 + 3 * 4 =", "20.0000", nullptr, NoPrecedence},
    KeyCase{"PowerIsLeftAssociative", "2 ^ 3 ^ 2 =", "64.0000"},
    KeyCase{"PowerBeforeMultiply", "2 * 3 ^ 2 =", "18.0000"},
    KeyCase{"ModReducesBeforePower", "7 [mod] 4 ^ 2 =", "9.0000"},
    KeyCase{"ThreeLevels", "1 + 2 * 3 ^ 2 - 4 / 2 =", "17.0000"},
    KeyCase{"LeftToRightWithoutPrecedence", "1 + 2 * 3 ^ 2 =", "81.0000", nullptr, NoPrecedence},
    KeyCase{"RootWithInv", "2 7 [inv] ^ 3 =", "3.0000", "27.0000 | x ^ 1/y | 3.0000 | = | 3.0000"},
    KeyCase{"ModulusIsFloored", "- 7 [mod] 3 =", "2.0000", "-7.0000 | mod | 3.0000 | = | 2.0000"},
    KeyCase{"RemainderIsTruncated", "- 7 [rem] 3 =", "-1.0000"},
    KeyCase{"DivIsFloored", "- 7 [div] 2 =", "-4.0000"},
    KeyCase{"IntDivIsTruncated", "- 7 [intdiv] 2 =", "-3.0000"},
    KeyCase{"MinusBeforeBracketNegatesIt", "- ( 2 + 3 ) =", "-5.0000"},
    KeyCase{"BracketsGroup", "2 * ( 3 + 4 ) =", "14.0000"},
    KeyCase{"UnmatchedRightBracketIsAccepted", "2 + 3 ) =", "5.0000"},
    KeyCase{"UnclosedBracketIsDropped", "( 2 + 3 =", "5.0000"},
    KeyCase{"MinusAfterMultiplyIsASign", "3 * - 2 =", "-6.0000"},
    KeyCase{"TwoMinusKeysCancel", "- - 5 =", "5.0000"},
    KeyCase{"BinaryPercent", "2 0 0 % 1 0 =", "20.0000"},
    KeyCase{"UnaryPercentOfPendingOperand", "2 0 0 + 1 0 % =", "220.0000", "200.0000 | + | 10 | % | = | 220.0000", UnaryPercent},
    KeyCase{"UnaryPercentSameLine", "2 0 0 + 1 0 % =", "220.0000", "200.0000 | + 10% | = 220.0000",
            [](TQORCalcEngine& e) { e.SetBinaryPercent(false); e.SetOperatorSameLine(true); }},
    KeyCase{"EqualsOnFreshEngine", "=", "0", "= | 0"},
    KeyCase{"NoRepeatedOperation", "2 + 3 = =", "5.0000"},
    KeyCase{"OperatorAfterEqualsContinues", "2 + 3 = * 2 =", "10.0000"},
    KeyCase{"LeftOverOperandsLastWins", "[pi] 2 =", "2.0000"},
    KeyCase{"SameLineTape", "1 2 + 3 4 =", "46.0000", "12.0000 | + 34.0000 | = 46.0000", SameLine}),
    RowName<KeyCase>);
// clang-format on

// LastOperator after a key: hosts read these codes, so they keep their characters.
struct LastOperatorCase {
    const char* Name;
    const char* Keys;
    char Code;
};

class LastOperatorTable : public CalcEngineTest,
                          public ::testing::WithParamInterface<LastOperatorCase> { };

TEST_P(LastOperatorTable, NamesTheLastKeyAction)
{
    CalcKeyDriver calc;
    calc.Press(GetParam().Keys);
    EXPECT_EQ(calc.Engine().GetLastOperator(), GetParam().Code);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Codes, LastOperatorTable, ::testing::Values(
    LastOperatorCase{"Nothing", "", ' '},
    LastOperatorCase{"Digit", "1 2", '2'},
    LastOperatorCase{"DecimalSeparator", "1 .", '.'},
    LastOperatorCase{"ThousandsSeparator", "1 ,", ','},
    LastOperatorCase{"Exponent", "1 [ee]", 'E'},
    LastOperatorCase{"ExponentSign", "1 [ee] -", '-'},
    LastOperatorCase{"Add", "2 +", '+'},
    LastOperatorCase{"Subtract", "2 -", '-'},
    LastOperatorCase{"Multiply", "2 *", '*'},
    LastOperatorCase{"Divide", "2 /", '/'},
    LastOperatorCase{"Power", "2 ^", '^'},
    LastOperatorCase{"Root", "2 [inv] ^", '@'},
    LastOperatorCase{"Modulus", "2 [mod]", '#'},
    LastOperatorCase{"Remainder", "2 [rem]", '&'},
    LastOperatorCase{"Div", "2 [div]", '\\'},
    LastOperatorCase{"IntDiv", "2 [intdiv]", '|'},
    LastOperatorCase{"PercentIsNoPendingOperator", "2 * 5 %", ' '},
    LastOperatorCase{"LeftBracket", "2 * (", '('},
    LastOperatorCase{"RightBracket", "( 2 )", ')'},
    LastOperatorCase{"Equals", "2 + 3 =", '='},
    LastOperatorCase{"Function", "2 [sin]", ' '},
    LastOperatorCase{"Error", "1 / 0 =", ' '}),
    RowName<LastOperatorCase>);
// clang-format on

TEST_F(CalcEngineTest, FreshEngineShowsZeroWithEmptyStacks)
{
    TQORCalcEngine engine;
    EXPECT_EQ(engine.GetDisplayStr(), "0");
    EXPECT_EQ(engine.GetDisplayValue(), 0);
    EXPECT_EQ(engine.GetOperandCount(), 0);
    EXPECT_EQ(engine.GetOperatorCount(), 0);
    EXPECT_EQ(engine.GetAngleMode(), amRadians);
    EXPECT_EQ(engine.GetHistoryLength(), 0);
}

TEST_F(CalcEngineTest, TypedEntryKeepsItsTypedForm)
{
    CalcKeyDriver calc;
    calc.Press("1 2 3 4");
    EXPECT_EQ(calc.Engine().GetEntryStr(), "1234");
    EXPECT_EQ(calc.Engine().GetDisplayValue(), 1234);
    calc.Press("+ 2 = 5");
    EXPECT_EQ(calc.Engine().GetOperandCount(), 0) << "a digit after = discards the stacks";
}

TEST_F(CalcEngineTest, CommaDecimalsAreReadAtEachKey)
{
    CalcKeyDriver calc;
    {
        CommaDecimals comma;
        calc.Press("1 2 3 4 . 5");
        EXPECT_EQ(calc.Display(), "1.234,5");
        EXPECT_EQ(calc.Engine().GetDisplayValue(), 1234.5L);
        calc.Press("* 2 =");
        EXPECT_EQ(calc.Display(), "2.469,0000");
    }
    calc.Press("1 . 5 =");
    EXPECT_EQ(calc.Display(), "1.5000");
}

TEST_F(CalcEngineTest, LongValuesAreCutToMaxDisplayLength)
{
    TQORCalcEngine engine;
    engine.InputValue(1e39L);
    EXPECT_EQ(engine.GetDisplayStr().size(), 26u);
    const std::string full = [] {
        TQORCalcEngine wide;
        wide.SetMaxDisplayLength(255);
        return wide.DisplayValue(1e39L);
    }();
    EXPECT_GT(full.size(), 26u);
    EXPECT_EQ(engine.GetDisplayStr(), full.substr(0, 26));
    engine.SetMaxDisplayLength(5);
    EXPECT_EQ(engine.DisplayValue(123456.0L), "123,4");
}

TEST_F(CalcEngineTest, DecimalPlacesReformatAndNotifyOnlyOnChange)
{
    CalcKeyDriver calc;
    calc.Engine().InputValue(2.0L / 3.0L);
    calc.ClearEvents();
    calc.Engine().SetDecimalPlaces(4);
    EXPECT_EQ(calc.Count("decimals"), 0);
    calc.Engine().SetDecimalPlaces(2);
    EXPECT_EQ(calc.Display(), "0.67");
    EXPECT_EQ(calc.Count("decimals"), 1);
}

TEST_F(CalcEngineTest, PlainSettersNeitherReformatNorNotify)
{
    CalcKeyDriver calc;
    calc.Press("1 2 3 4 =");
    calc.ClearEvents();
    auto& e = calc.Engine();
    e.SetThousandsSeparators(false);
    e.SetTrimTrailingZeroes(true);
    e.SetSciUsage(true);
    e.SetPrecedence(false);
    EXPECT_EQ(calc.Display(), "1,234.0000");
    EXPECT_TRUE(calc.Events().empty());
}

TEST_F(CalcEngineTest, WholeOperandsAndDeepBrackets)
{
    CalcKeyDriver calc;
    auto& e = calc.Engine();
    e.InputString("2.5");
    e.InputValue(4);
    EXPECT_EQ(calc.Tape(), "4.0000") << "only InputValue writes a tape line";
    EXPECT_EQ(e.GetOperandCount(), 2);

    // Thirty open brackets hold thirty pending operands: the stacks grow past their start size.
    e.AllClear();
    for (int i = 0; i < 30; ++i)
        calc.Press("1 + (");
    calc.Press("1 =");
    EXPECT_EQ(calc.Display(), "31.0000");
}

TEST_F(CalcEngineTest, LakhGrouping)
{
    TQORCalcEngine engine;
    engine.SetLakhFormatting(true);
    engine.SetDecimalPlaces(0);
    EXPECT_EQ(engine.DisplayValue(12345678.0L), "1,23,45,678");
}

// The key strings of both engine drivers.
struct GrammarRow {
    const char* Name;
    const char* Keys;
    const char* Tokens; // each token as written: chars bare, names in brackets
};

class KeyGrammarTable : public ::testing::TestWithParam<GrammarRow> { };

TEST_P(KeyGrammarTable, SplitsIntoKeys)
{
    std::string written;
    for (const auto& key : SplitKeys(GetParam().Keys))
        written += key.Bracketed ? "[" + key.Name + "]" : key.Name;
    EXPECT_EQ(written, GetParam().Tokens);
}

INSTANTIATE_TEST_SUITE_P(
    Grammar, KeyGrammarTable,
    ::testing::Values(GrammarRow {"CharactersAreKeys", "12.5+3=", "12.5+3="},
                      GrammarRow {"BlanksAreIgnored", " 1 2  + 3 ", "12+3"},
                      GrammarRow {"BracketsNameAKey", "4[sqrt][m+]", "4[sqrt][m+]"},
                      GrammarRow {"BlanksInsideBracketsStay", "1[SHL 4]", "1[SHL 4]"},
                      GrammarRow {"BracketCharactersInsideANameAreKept", "[(][1/x]", "[(][1/x]"},
                      GrammarRow {"Empty", "", ""}),
    RowName<GrammarRow>);

class KeyGrammar : public CalcEngineTest { };

TEST_F(KeyGrammar, UnclosedBracketFailsAndStops)
{
    std::vector<KeyToken> keys;
    EXPECT_NONFATAL_FAILURE(keys = SplitKeys("1+[sin"), "unclosed [");
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_EQ(keys[1].Name, "+");
}

TEST_F(KeyGrammar, UnknownKeysFailTheTest)
{
    EXPECT_NONFATAL_FAILURE(CalcKeyDriver().Press("1[sine]"), "unknown key 'sine'");
    EXPECT_NONFATAL_FAILURE(CalcKeyDriver().Press("1s"), "unknown key 's'");
}

} // namespace
} // namespace qorkit::test
