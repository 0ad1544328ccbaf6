// One row of a key-sequence table for the programmer's engine: the modes to start from, the
// keys, and the display and value they must give.
#pragma once

#include "ProgKeyDriver.h"
#include "QORKITResource.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>

namespace qorkit::test {

struct ProgCase {
    const char* name;
    TQORBaseDisplay base = bdHexadecimal;
    TQORBitSize size = bs64Bits;
    const char* keys = "";
    const char* display = "";
    std::int64_t value = 0;
    bool precedence = true;
    bool prefix = true;
    TQORProgSizeChange change = pscClear;
    TQORProgSpacing spacing = psNoSpacing;
};

inline std::ostream& operator<<(std::ostream& os, const ProgCase& c)
{
    return os << c.name << " [" << c.keys << "]";
}

inline std::string ProgCaseName(const ::testing::TestParamInfo<ProgCase>& info)
{
    return info.param.name;
}

// Runs a row: sets the modes quietly, presses the keys, checks display and value.
class ProgKeysTest : public GlobalStateTest, public ::testing::WithParamInterface<ProgCase> {
protected:
    void RunRow()
    {
        const ProgCase& c = GetParam();
        driver.Setup(c.base, c.size);
        IQORProgCalcEngine& e = driver.Engine();
        e.SetPrecedence(c.precedence);
        e.SetPrefixFunctions(c.prefix);
        e.SetSizeChange(c.change);
        e.SetSpacing(c.spacing);
        driver.Press(c.keys);
        EXPECT_EQ(driver.Display(), c.display);
        EXPECT_EQ(driver.Value(), c.value);
    }

    ProgKeyDriver driver;
};

} // namespace qorkit::test
