// A quiet engine (the expression evaluator's own engines) computes exactly what a normal one
// does, without a display text or a tape; and every new engine seeds the shared random
// generator with the day number, however lazily the seed is applied.
#include "CalcKeyDriver.h"
#include "QORKITCalcEngine.h"
#include "QORKITSettings.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <string_view>

namespace qorkit::test {
namespace {

struct QuietRow {
    const char* Name;
    std::string_view keys;
};

class QuietTable : public CalcEngineTest, public ::testing::WithParamInterface<QuietRow> { };

TEST_P(QuietTable, SameValueAndErrorWithoutDisplayOrTape)
{
    CalcKeyDriver loud;
    CalcKeyDriver quiet;
    quiet.Engine().SetQuiet(true);
    for (auto* calc : {&loud, &quiet}) {
        calc->Engine().SetMemoryHistory(true);
        calc->Press(GetParam().keys);
    }
    EXPECT_EQ(quiet.Engine().GetDisplayValue(), loud.Engine().GetDisplayValue());
    EXPECT_EQ(quiet.Engine().GetLastError(), loud.Engine().GetLastError());
    EXPECT_EQ(quiet.Engine().GetMemoryValue(), loud.Engine().GetMemoryValue());
    EXPECT_GT(loud.Engine().GetHistoryLength(), 0);
    EXPECT_EQ(quiet.Engine().GetHistoryLength(), 0);
    EXPECT_EQ(quiet.Count("display"), loud.Count("display"));
}

INSTANTIATE_TEST_SUITE_P(Keys, QuietTable,
                         ::testing::Values(QuietRow {"Precedence", "1 2 3 4 . 5 + 3 * 4 ="},
                                           QuietRow {"Brackets", "2 * ( 3 + 4 ) - 1 ="},
                                           QuietRow {"Memory", "1 2 3 4 5 6 7 [m+] 2 * [mr] ="},
                                           QuietRow {"Functions", "2 [sqrt] + 9 [ln] ="},
                                           QuietRow {"DivisionByZero", "5 / 0 ="},
                                           QuietRow {"ErrorThenRecovery", "5 / 0 = 7 + 1 ="}),
                         RowName<QuietRow>);

TEST_F(CalcEngineTest, EveryNewEngineSeedsTheGeneratorWithTheDay)
{
    TQORCalcEngine first;
    const Extended a = RandomExtended();
    const Extended b = RandomExtended();
    EXPECT_NE(a, b);
    TQORCalcEngine second; // the same day's seed again
    EXPECT_EQ(RandomExtended(), a);
    EXPECT_EQ(RandomExtended(), b);
    RandomSeed(7);
    const Extended seven = RandomExtended();
    TQORCalcEngine third;
    EXPECT_EQ(RandomExtended(), a);
    RandomSeed(7);
    EXPECT_EQ(RandomExtended(), seven);
}

} // namespace
} // namespace qorkit::test
