// Drives a calculator engine from key strings and records what it tells its host.
#pragma once

#include "QORKITCalcEngine.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace qorkit::test {

// |actual - expected| <= tolerance * max(1, |expected|), in full extended precision
// (EXPECT_NEAR works in double).
::testing::AssertionResult NearExtended(long double actual, long double expected,
                                        long double tolerance = 4e-18L);

// Fixture of tests that run calculator engines: a new engine seeds the random generator.
using CalcEngineTest = GlobalStateTestOf<Area::Random>;

// An engine with every event assigned to a recorder. Keys are written in the grammar of
// KeyGrammar.h: "12.5 + [sin] =", "2+3*4=".
class CalcKeyDriver {
public:
    CalcKeyDriver();
    CalcKeyDriver(const CalcKeyDriver&) = delete;
    CalcKeyDriver& operator=(const CalcKeyDriver&) = delete;

    // Fails the current test on an unknown key.
    CalcKeyDriver& Press(std::string_view keys);

    TQORCalcEngine& Engine() noexcept { return engine_; }
    const std::string& Display() const noexcept { return engine_.GetDisplayStr(); }
    // The tape lines joined by " | ".
    std::string Tape() const;

    // Names of the events fired so far, in order: "display", "toggles-set", "toggles-clear",
    // "history", "error", "memory", "decimals", "angle".
    const std::vector<std::string>& Events() const noexcept { return events_; }
    int Count(std::string_view event) const;
    void ClearEvents() { events_.clear(); }

private:
    TQORCalcEngine engine_;
    std::vector<std::string> events_;
};

} // namespace qorkit::test
