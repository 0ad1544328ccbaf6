// Helpers for table-driven tests of number texts.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace qorkit::test {

// Exchanges "." and "," so that a text written for "." decimals reads as its "," twin:
// "1,234.5" becomes "1.234,5".
inline std::string SwapMarks(std::string s)
{
    for (char& c : s)
        c = c == '.' ? ',' : c == ',' ? '.' : c;
    return s;
}

// Names the rows of a TEST_P table after their `name` member.
template<class Row> std::string RowName(const testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

} // namespace qorkit::test
