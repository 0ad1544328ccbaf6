// Test helpers shared by every test program.
#pragma once

#include "QORKITSettings.h"

#include <gtest/gtest.h>

#include <string>

namespace qorkit::test {

// Base fixture: every process-wide variable (format settings, calculator settings, sign
// conventions, random seed, translation hook) starts at its default and is reset afterwards,
// so no test depends on the order tests run in.
class GlobalStateTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
};

// Switches the process-wide separators to "," decimals and "." thousands for one scope.
class CommaDecimals {
public:
    CommaDecimals();
    ~CommaDecimals();
    CommaDecimals(const CommaDecimals&) = delete;
    CommaDecimals& operator=(const CommaDecimals&) = delete;

private:
    TFormatSettings saved_;
};

// Test names of a TEST_P table, taken from the rows' Name fields, so a failure reads as the
// row's name.
template<class Row> std::string RowName(const ::testing::TestParamInfo<Row>& info)
{
    return std::string(info.param.Name);
}

// Resets every process-wide variable of the library.
void ResetAllGlobals();

} // namespace qorkit::test
