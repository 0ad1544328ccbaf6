// The value texts of the programmer's engine are written when read and kept until the value
// changes: every read after a key must show that key's value, whichever texts were read
// before, in every base and size.
#include "ProgKeyDriver.h"
#include "QORKITProgCalcEngine.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qorkit::test {
namespace {

struct TextsRow {
    const char* Name;
    TQORBaseDisplay base;
    TQORBitSize size;
    const char* keys; // one key per step
    std::vector<std::string> hex; // GetDisplayValueHex after each key
    std::vector<std::string> oct; // GetDisplayValueOct after each key
    std::vector<std::string> shown; // the display after each key
};

class ValueTextsTable : public GlobalStateTest, public ::testing::WithParamInterface<TextsRow> { };

TEST_P(ValueTextsTable, EachReadFollowsTheLatestKey)
{
    const TextsRow& row = GetParam();
    ProgKeyDriver d;
    d.Setup(row.base, row.size);
    const std::string keys = row.keys;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        d.Press(std::string(1, keys[i]));
        // Alternate the order of the reads, so a text made for an earlier value is caught.
        if (i % 2 == 0) {
            EXPECT_EQ(d.Engine().GetDisplayValueHex(), row.hex[i]) << "after key " << i;
            EXPECT_EQ(d.Engine().GetDisplayValueOct(), row.oct[i]) << "after key " << i;
        } else {
            EXPECT_EQ(d.Engine().GetDisplayValueOct(), row.oct[i]) << "after key " << i;
            EXPECT_EQ(d.Engine().GetDisplayValueHex(), row.hex[i]) << "after key " << i;
        }
        EXPECT_EQ(d.Display(), row.shown[i]) << "after key " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ValueTextsTable,
    ::testing::Values(TextsRow {"HexEntryAt8Bits",
                                bdHexadecimal,
                                bs8Bits,
                                "7F+1=",
                                {"07", "7F", "7F", "01", "80"},
                                {"007", "177", "177", "001", "200"},
                                {"7", "7F", "7F", "1", "80"}},
                      TextsRow {"BinaryEntryAt16Bits",
                                bdBinary,
                                bs16Bits,
                                "101<",
                                {"0001", "0002", "0005", "A"},
                                {"000001", "000002", "000005", "12"},
                                {"1", "10", "101", "0000000000001010"}},
                      TextsRow {"DecimalEntryAt64Bits",
                                bdDecimal,
                                bs64Bits,
                                "-12",
                                {"0000000000000000", "FFFFFFFFFFFFFFFF", "FFFFFFFFFFFFFFF4"},
                                {"0000000000000000000000", "1777777777777777777777",
                                 "1777777777777777777764"},
                                {"-", "-1", "-12"}}),
    RowName<TextsRow>);

} // namespace
} // namespace qorkit::test
