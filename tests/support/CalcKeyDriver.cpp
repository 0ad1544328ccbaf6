#include "CalcKeyDriver.h"

#include "KeyGrammar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iomanip>

namespace qorkit::test {

::testing::AssertionResult NearExtended(long double actual, long double expected,
                                        long double tolerance)
{
    const long double limit = tolerance * std::max(1.0L, std::fabs(expected));
    if (std::fabs(actual - expected) <= limit)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
        << std::setprecision(21) << actual << " differs from " << expected << " by "
        << std::fabs(actual - expected) << ", more than " << limit;
}

CalcKeyDriver::CalcKeyDriver()
{
    const auto recordAs = [this](const char* name) {
        return [this, name](TQORCalcEngine* sender) {
            EXPECT_EQ(sender, &engine_) << "event " << name << " from another sender";
            events_.emplace_back(name);
        };
    };
    engine_.SetOnDisplayChange(recordAs("display"));
    engine_.SetOnSetToggles(recordAs("toggles-set"));
    engine_.SetOnClearToggles(recordAs("toggles-clear"));
    engine_.SetOnHistoryChange(recordAs("history"));
    engine_.SetOnError(recordAs("error"));
    engine_.SetOnMemoryChange(recordAs("memory"));
    engine_.SetOnDecimalPlacesChange(recordAs("decimals"));
    engine_.SetOnAngleModeChange(recordAs("angle"));
}

CalcKeyDriver& CalcKeyDriver::Press(std::string_view keys)
{
    for (const auto& key : SplitKeys(keys))
        EXPECT_TRUE(PressCalcKey(engine_, key.Name)) << "unknown key '" << key.Name << "'";
    return *this;
}

std::string CalcKeyDriver::Tape() const
{
    std::string text;
    for (const auto& line : engine_.GetHistory())
        text += (text.empty() ? "" : " | ") + line;
    return text;
}

int CalcKeyDriver::Count(std::string_view event) const
{
    return static_cast<int>(std::count(events_.begin(), events_.end(), event));
}

} // namespace qorkit::test
