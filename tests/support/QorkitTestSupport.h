// Test helpers shared by every test program.
#pragma once

#include "QORKITSettings.h"

#include <gtest/gtest.h>

#include <string>

namespace qorkit::test {

// The process-wide state of the library, by area. A fixture names the areas its tests change;
// GlobalStateTest resets all of them around each test and reports an area a test left changed
// without naming it.
enum class Area : unsigned {
    None = 0,
    Format = 1u << 0, // FormatSettings
    Calculator = 1u << 1, // calculator settings: angle mode, memories, display font, help contexts
    Store = 1u << 2, // the settings store: QORRegIniType, registry path and INI file
    Signs = 1u << 3, // sign conventions of positions: QORNorthPositive, QOREastPositive
    Random = 1u << 4, // the random generator (a new calculator engine seeds it)
    Translation = 1u << 5, // the translation hook (reset, not checked: it cannot be read back)
};

constexpr Area operator|(Area a, Area b)
{
    return static_cast<Area>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool Includes(Area set, Area area)
{
    return (static_cast<unsigned>(set) & static_cast<unsigned>(area)) != 0;
}

// Base fixture: every process-wide variable starts at its default and is reset afterwards, so
// no test depends on the order tests run in. A test that leaves an area changed which its
// fixture did not name (constructor argument, GlobalStateTestOf, or Touches in the test) fails.
class GlobalStateTest : public ::testing::Test {
protected:
    explicit GlobalStateTest(Area touched = Area::None) : touched_(touched) { }
    void SetUp() override;
    void TearDown() override;
    // Names further areas this test changes.
    void Touches(Area areas) { touched_ = touched_ | areas; }

private:
    Area touched_;
};

// A fixture that names the areas its tests change: GlobalStateTestOf<Area::Format | Area::Store>.
template<Area Touched> class GlobalStateTestOf : public GlobalStateTest {
protected:
    GlobalStateTestOf() : GlobalStateTest(Touched) { }
};

// Names of the areas not at their defaults now, among those `ignored` leaves out
// ("Area::Format, Area::Random"); empty when all are at their defaults.
std::string ChangedAreas(Area ignored = Area::None);

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
