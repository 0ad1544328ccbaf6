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
    TQORBaseDisplay base;
    TQORBitSize size;
    const char* keys;
    const char* display;
    std::int64_t value;
    // Words for modes other than the defaults: "noprec" (precedence off), "postfix" (NOT
    // after its operand), "extend" / "truncate" (size changes), "byte" / "word" / "dword".
    const char* modes = "";
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
        const std::string modes = c.modes;
        auto has = [&modes](const char* word) { return modes.find(word) != std::string::npos; };
        e.SetPrecedence(!has("noprec"));
        e.SetPrefixFunctions(!has("postfix"));
        e.SetSizeChange(has("extend") ? pscExtend : has("truncate") ? pscTruncate : pscClear);
        e.SetSpacing(has("dword")      ? psDWord
                         : has("word") ? psWord
                         : has("byte") ? psByte
                                       : psNoSpacing);
        driver.Press(c.keys);
        EXPECT_EQ(driver.Display(), c.display);
        EXPECT_EQ(driver.Value(), c.value);
    }

    ProgKeyDriver driver;
};

} // namespace qorkit::test
