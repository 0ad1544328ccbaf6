// Memory keys, the paper tape and its read cursor, and the error guard.
#include "CalcKeyDriver.h"
#include "QORKITCalcEngine.h"
#include "QORKITResource.h"
#include "QORKIT_RS_Calc.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <limits>

namespace qorkit::test {
namespace {

TEST_F(CalcEngineTest, MemoryKeys)
{
    CalcKeyDriver calc;
    calc.Press("5 [m+] 3 [m+] [mr]");
    EXPECT_EQ(calc.Display(), "8.0000");
    EXPECT_EQ(calc.Engine().GetMemoryValue(), 8);
    calc.Press("2 [m-]");
    EXPECT_EQ(calc.Engine().GetMemoryContents(), "6.0000");
    calc.Press("[mc] [mr]");
    EXPECT_EQ(calc.Display(), "0.0000");
    EXPECT_EQ(calc.Engine().GetMemoryValue(), 0);
}

TEST_F(CalcEngineTest, MemoryAddCompletesThePendingCalculation)
{
    CalcKeyDriver calc;
    calc.Press("2 + 3 [m+]");
    EXPECT_EQ(calc.Engine().GetMemoryValue(), 5);
    EXPECT_EQ(calc.Display(), "5.0000");
    EXPECT_EQ(calc.Tape(), "2.0000 | + | 3.0000 | M+");
}

TEST_F(CalcEngineTest, MemoryEventsAndHistoryLines)
{
    CalcKeyDriver calc;
    calc.Engine().SetMemoryHistory(true);
    calc.Press("5 [m+]");
    EXPECT_EQ(calc.Tape(), "5.0000 | M+ | [" + rsMemoryHistoryPrefix() + "5.0000 ]");
    EXPECT_EQ(calc.Count("memory"), 1);
    calc.ClearEvents();
    calc.Press("[mr]");
    EXPECT_EQ(calc.Count("memory"), 0) << "recall does not change the register";
    calc.Engine().SetMemory(2.5L);
    EXPECT_EQ(calc.Count("memory"), 1);
    EXPECT_EQ(calc.Engine().GetLastHistoryEntry(), "[" + rsMemoryHistoryPrefix() + "5.0000 ]");
}

TEST_F(CalcEngineTest, MemorySurvivesClearsAndErrors)
{
    CalcKeyDriver calc;
    calc.Press("7 [m+] [ac] 9 c 1 / 0 =");
    EXPECT_EQ(calc.Display(), rsErrorMsg());
    EXPECT_EQ(calc.Engine().GetMemoryValue(), 7);
}

TEST_F(CalcEngineTest, TapeCursor)
{
    TQORCalcEngine engine;
    EXPECT_EQ(engine.GetNextHistoryEntry(), "");
    EXPECT_EQ(engine.GetHistoryPosition(), -1);
    engine.AddToHistory("a", false);
    engine.AddToHistory(2.0L);
    engine.PaperLine();
    EXPECT_EQ(engine.GetNextHistoryEntry(), "a");
    EXPECT_EQ(engine.GetNextHistoryEntry(), "2.0000");
    EXPECT_EQ(engine.GetNextHistoryEntry(), rsPaperLine());
    EXPECT_EQ(engine.GetNextHistoryEntry(), "");
    EXPECT_EQ(engine.GetNextHistoryEntry(), "");
    EXPECT_EQ(engine.GetHistoryPosition(), 2);
    engine.HistoryStart();
    EXPECT_EQ(engine.GetNextHistoryEntry(), "a");
    EXPECT_EQ(engine.GetHistoryEntry(1), "2.0000");
    EXPECT_EQ(engine.GetHistoryEntry(9), "");
    engine.ClearHistory();
    EXPECT_EQ(engine.GetHistoryLength(), 0);
    EXPECT_EQ(engine.GetHistoryPosition(), -1);
}

// Any read position a host stores, however far out of range, reads safely: below the start
// reads from the first line, at or past the last line reads nothing and leaves it alone.
struct TapePositionCase {
    const char* Name;
    std::int32_t Position;
    int Lines;
    const char* Next;
    std::int32_t After;
};

class TapePosition : public CalcEngineTest,
                     public ::testing::WithParamInterface<TapePositionCase> { };

TEST_P(TapePosition, ReadsSafely)
{
    const TapePositionCase& c = GetParam();
    TQORCalcEngine engine;
    for (int i = 0; i < c.Lines; ++i)
        engine.AddToHistory(std::string(1, static_cast<char>('a' + i)), false);
    engine.SetHistoryPosition(c.Position);
    EXPECT_EQ(engine.GetNextHistoryEntry(), c.Next);
    EXPECT_EQ(engine.GetHistoryPosition(), c.After);
    EXPECT_EQ(engine.GetLastHistoryEntry(),
              c.Lines ? std::string(1, static_cast<char>('a' + c.Lines - 1)) : "");
}

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

INSTANTIATE_TEST_SUITE_P(Positions, TapePosition,
                         ::testing::Values(TapePositionCase {"EmptyAtMax", kMax, 0, "", kMax},
                                           TapePositionCase {"EmptyAtMin", kMin, 0, "", kMin},
                                           TapePositionCase {"EmptyAtStart", -1, 0, "", -1},
                                           TapePositionCase {"MaxStays", kMax, 3, "", kMax},
                                           TapePositionCase {"PastEndStays", 3, 3, "", 3},
                                           TapePositionCase {"LastLineStays", 2, 3, "", 2},
                                           TapePositionCase {"MiddleAdvances", 0, 3, "b", 1},
                                           TapePositionCase {"MinReadsFirst", kMin, 3, "a", 0},
                                           TapePositionCase {"BelowStartReadsFirst", -7, 3, "a",
                                                             0}),
                         RowName<TapePositionCase>);

TEST_F(CalcEngineTest, SameLineKeepsOnlyTheLastPendingOperator)
{
    CalcKeyDriver calc;
    auto& engine = calc.Engine();
    engine.SetOperatorSameLine(true);
    engine.AddToHistory("+", true);
    engine.AddToHistory("*", true);
    EXPECT_EQ(engine.GetHistoryLength(), 0);
    EXPECT_EQ(calc.Count("history"), 0);
    engine.AddToHistory("3", false);
    EXPECT_EQ(calc.Tape(), "* 3");
    EXPECT_EQ(calc.Count("history"), 1);
    engine.SetOperatorSameLine(false);
    engine.AddToHistory("-", true);
    EXPECT_EQ(calc.Tape(), "* 3 | -");
}

struct ErrorCase {
    const char* Name;
    const char* Keys;
    std::string (*Message)(); // null: any message
};

void PrintTo(const ErrorCase& c, std::ostream* os) { *os << c.Keys; }

class ErrorTable : public CalcEngineTest, public ::testing::WithParamInterface<ErrorCase> { };

TEST_P(ErrorTable, EndsInTheErrorStateAndRecovers)
{
    const auto& row = GetParam();
    CalcKeyDriver calc;
    calc.Engine().SetMemory(3);
    calc.Press(row.Keys);
    EXPECT_EQ(calc.Display(), rsErrorMsg());
    EXPECT_FALSE(calc.Engine().GetLastError().empty());
    if (row.Message) {
        EXPECT_EQ(calc.Engine().GetLastError(), row.Message());
    }
    EXPECT_EQ(calc.Tape(), rsPaperErrLine());
    EXPECT_EQ(calc.Count("error"), 1);
    EXPECT_EQ(calc.Engine().GetOperandCount(), 0);
    EXPECT_EQ(calc.Engine().GetOperatorCount(), 0);
    EXPECT_EQ(calc.Engine().GetMemoryValue(), 3);
    EXPECT_EQ(calc.Engine().GetDisplayValue(), 0);

    calc.Press("=");
    EXPECT_EQ(calc.Display(), rsErrorMsg()) << "= keeps the error display";
    calc.Press("2 + 2 =");
    EXPECT_EQ(calc.Display(), "4.0000");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Errors, ErrorTable, ::testing::Values(
    ErrorCase{"DivideByZero", "7 / 0 =", rsDivideByZero},
    ErrorCase{"ModulusByZero", "7 [mod] 0 =", rsDivideByZero},
    ErrorCase{"RemainderByZero", "7 [rem] 0 +", rsDivideByZero},
    ErrorCase{"DivByZero", "7 [div] 0 )", rsDivideByZero},
    ErrorCase{"IntDivByZero", "7 [intdiv] 0 =", rsDivideByZero},
    ErrorCase{"ZerothRoot", "8 [inv] ^ 0 =", rsDivideByZero},
    ErrorCase{"SquareRootOfNegative", "- 9 [sqrt]", rsSqRootNeg},
    ErrorCase{"ReciprocalOfZero", "0 [1/x]", rsDivideByZero},
    ErrorCase{"ReciprocalOfNothing", "[1/x]", rsDivideByZero},
    ErrorCase{"OperatorWithOneOperand", "2 * =", rsInvalidEquation},
    ErrorCase{"LogOfZero", "0 [log]", nullptr},
    ErrorCase{"LnOfNegative", "- 1 [ln]", nullptr},
    ErrorCase{"ArcsineOutOfDomain", "2 [inv] [sin]", nullptr},
    ErrorCase{"AreaCosineBelowOne", ". 5 [inv] [hyp] [cos]", nullptr},
    ErrorCase{"GammaPole", "2 [+/-] [gamma]", nullptr},
    ErrorCase{"ProductOverflows", "1 [ee] 4 0 0 0 * 1 [ee] 4 0 0 0 =", nullptr},
    ErrorCase{"SquareOverflows", "1 [ee] 3 0 0 0 [sqr]", nullptr},
    ErrorCase{"PowerOverflows", "1 0 ^ 9 9 9 9 9 =", nullptr},
    ErrorCase{"ExpOverflows", "1 2 0 0 0 0 [inv] [ln]", nullptr},
    ErrorCase{"LoneMinusAsOperand", "- *", nullptr},
    ErrorCase{"PercentOverflows", "1 [ee] 4 0 0 0 % 1 [ee] 4 0 0 0 =", nullptr}),
    RowName<ErrorCase>);
// clang-format on

TEST_F(CalcEngineTest, PrefixFunctionWithoutOperandIsAnInvalidEquation)
{
    CalcKeyDriver calc;
    calc.Engine().SetPrefixFunctions(true);
    calc.Press("[sqrt] =");
    EXPECT_EQ(calc.Display(), rsErrorMsg());
    EXPECT_EQ(calc.Engine().GetLastError(), rsInvalidEquation());
}

TEST_F(CalcEngineTest, NonFiniteInputNeverReachesTheDisplay)
{
    for (const long double bad : {std::numeric_limits<long double>::quiet_NaN(),
                                  std::numeric_limits<long double>::infinity()}) {
        CalcKeyDriver calc;
        calc.Engine().InputValue(bad);
        EXPECT_EQ(calc.Display(), rsErrorMsg());
        calc.Engine().SetMemory(bad);
        EXPECT_EQ(calc.Engine().GetMemoryValue(), 0);
        calc.Engine().PushOperandStack(bad);
        EXPECT_EQ(calc.Engine().GetOperandCount(), 0);
        EXPECT_EQ(calc.Engine().DisplayValue(bad), rsErrorMsg());
        EXPECT_EQ(calc.Count("error"), 3);
    }
}

TEST_F(CalcEngineTest, AllClearEmptiesEverythingButMemory)
{
    CalcKeyDriver calc;
    calc.Press("4 [m+] 2 + ( 3 [inv]");
    calc.Engine().AllClear();
    EXPECT_EQ(calc.Display(), "0");
    EXPECT_EQ(calc.Engine().GetOperandCount() + calc.Engine().GetOperatorCount(), 0);
    EXPECT_EQ(calc.Engine().GetHistoryLength(), 0);
    EXPECT_FALSE(calc.Engine().GetIsInv());
    EXPECT_EQ(calc.Engine().GetMemoryValue(), 4);
}

} // namespace
} // namespace qorkit::test
