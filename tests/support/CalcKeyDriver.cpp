#include "CalcKeyDriver.h"

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

CalcKeyDriver& CalcKeyDriver::Press(std::string_view names)
{
    while (!names.empty()) {
        const auto start = names.find_first_not_of(' ');
        if (start == std::string_view::npos)
            break;
        names.remove_prefix(start);
        const auto name = names.substr(0, names.find(' '));
        names.remove_prefix(name.size());
        EXPECT_TRUE(PressCalcKey(engine_, name)) << "unknown key '" << name << "'";
    }
    return *this;
}

CalcKeyDriver& CalcKeyDriver::PressChars(std::string_view chars)
{
    for (const char c : chars) {
        if (c == ' ')
            continue;
        EXPECT_TRUE(PressCalcKey(engine_, std::string_view(&c, 1))) << "unknown key '" << c << "'";
    }
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
