// The declarations of the conversion routines in QORKITConversionRoutines.h are written from the
// unit tables by tools/qorkit_conversion_decls. These tests fail when the file in the source tree
// no longer matches the tables, and check the file's names against names worked out by hand from
// the routine naming rules (so a generator that garbles names cannot pass by agreeing with itself).
#include "qorkit_conversion_decls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace qorkit {
namespace {

std::string CheckedInHeader()
{
    std::ifstream in(QORKIT_CONVERSION_ROUTINES_HEADER, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

TEST(RoutinesHeader, CheckedInFileMatchesTheTables)
{
    const auto expected = Lines(tools::ConversionRoutinesHeader());
    const auto actual = Lines(CheckedInHeader());
    ASSERT_FALSE(actual.empty()) << "cannot read " << QORKIT_CONVERSION_ROUTINES_HEADER;
    const auto [wanted, found]
        = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    EXPECT_TRUE(wanted == expected.end() && found == actual.end())
        << "QORKITConversionRoutines.h is out of date at line " << (wanted - expected.begin()) + 1
        << ": expected \"" << (wanted == expected.end() ? "<end of file>" : *wanted)
        << "\", found \"" << (found == actual.end() ? "<end of file>" : *found)
        << "\". Regenerate it with the qorkit_conversion_header target.";
    EXPECT_EQ(tools::ConversionRoutinesHeader(), CheckedInHeader()); // line endings, final newline
}

struct TNameCase {
    const char* Label;
    const char* Name;
};

class RoutineNames : public ::testing::TestWithParam<TNameCase> { };

TEST_P(RoutineNames, DeclaredOnceWithTheRoutineSignature)
{
    const std::string declaration
        = std::string("QORKIT_CORE_EXPORT Extended ") + GetParam().Name + "(Extended value);";
    const auto lines = Lines(CheckedInHeader());
    EXPECT_EQ(std::count(lines.begin(), lines.end(), declaration), 1) << declaration;
}

INSTANTIATE_TEST_SUITE_P(
    Header, RoutineNames,
    ::testing::Values(
        TNameCase {"UnitIntoItsVia", "DistInches2M"}, TNameCase {"ViaIntoTheUnit", "DistM2Inches"},
        TNameCase {"ViaNotTheBase", "DistFeet2Inches"},
        TNameCase {"TokenEndingInADigit", "DistShackles12_2Fathoms"},
        TNameCase {"BackIntoATokenEndingInADigit", "DistFathoms2Shackles12"},
        TNameCase {"DigitTokenInVolume", "VolKegs25_2L"}, TNameCase {"NamedPair", "DistFeet2M"},
        TNameCase {"NamedPairBack", "MassKg2Lbs"}, TNameCase {"ImperialVolume", "VolUKPints2L"},
        TNameCase {"AffineTemperature", "TempF2C"}, TNameCase {"DirectTemperature", "TempR2K"},
        TNameCase {"ReciprocalFuel", "FuelKPL2LP100M"},
        TNameCase {"TwoMembersOneToken", "FuelKPL2MPGUK"},
        TNameCase {"MassFlowUsesFlowFamily", "FlowlbPS2KgPS"}),
    [](const auto& row) { return std::string(row.param.Label); });

TEST(RoutinesHeader, OnlyRoutineFamiliesAndShortLines)
{
    for (const auto& line : Lines(CheckedInHeader())) {
        // The quantities converted only through their tables (family None) have no routines.
        EXPECT_EQ(line.rfind("QORKIT_CORE_EXPORT Extended None", 0), std::string::npos) << line;
        EXPECT_LE(line.size(), 100u) << line;
    }
}

} // namespace
} // namespace qorkit
