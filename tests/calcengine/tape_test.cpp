// Reading a keystroke engine's tape as rows, and writing it out as text and CSV.
#include "CalcKeyDriver.h"
#include "ProgKeyDriver.h"
#include "QORKITSettings.h"
#include "QORKITStrings.h"
#include "QORKITTape.h"
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace qorkit {
namespace {

// The rows in short form: kind letter, operator and number text, "v:12.5", "o:+", "o:+ 3",
// "r:= 5", "-" for a rule and "!" for an error, joined by " | ".
std::string Shape(const std::vector<TQORTapeRow>& rows)
{
    std::string shape;
    for (const auto& row : rows) {
        if (!shape.empty())
            shape += " | ";
        switch (row.Kind) {
        case trkRule:
            shape += "-";
            continue;
        case trkError:
            shape += "!";
            continue;
        case trkValue:
            shape += "v:";
            break;
        case trkOperator:
            shape += "o:";
            break;
        case trkResult:
            shape += "r:";
            break;
        }
        shape += row.Operator;
        if (!row.Operator.empty() && !row.NumberText.empty())
            shape += ' ';
        shape += row.NumberText;
    }
    return shape;
}

struct TapeRow {
    const char* Name;
    const char* keys;
    const char* shape;
    bool sameLine = false;
};

class TapeReadTest : public test::CalcEngineTest, public ::testing::WithParamInterface<TapeRow> { };

TEST_P(TapeReadTest, RowsTakeTheTapeApart)
{
    test::CalcKeyDriver driver;
    driver.Engine().SetTrimTrailingZeroes(true);
    driver.Engine().SetOperatorSameLine(GetParam().sameLine);
    driver.Press(GetParam().keys);
    EXPECT_EQ(Shape(ReadTape(driver.Engine().GetHistory())), GetParam().shape) << driver.Tape();
}

INSTANTIATE_TEST_SUITE_P(
    Keys, TapeReadTest,
    ::testing::Values(
        TapeRow {"Sum", "2 + 3 =", "v:2 | o:+ | v:3 | o:= | r:5"},
        TapeRow {"NegativeOperandIsAValue", "7 [+/-] * 2 =", "v:-7 | o:* | v:2 | o:= | r:-14"},
        TapeRow {"FunctionAndMemoryKeys", "30 [sin] [m+] [mr]", "v:30 | o:sin | o:M+ | o:MR"},
        TapeRow {"RuleLine", "1 + 1 = [paper]", "v:1 | o:+ | v:1 | o:= | r:2 | -"},
        TapeRow {"ErrorLine", "1 / 0 =", "!"},
        TapeRow {"OperatorOnTheOperandsLine", "2 + 3 * 4 =", "v:2 | o:+ 3 | o:* 4 | r:= 14", true},
        TapeRow {"ChainedResultsStartNewValues",
                 "2 + 3 = * 2 =", "v:2 | o:+ | v:3 | o:= | r:5 | o:* | v:2 | o:= | r:10"}),
    test::RowName<TapeRow>);

TEST_F(TapeReadTest, GroupedNumbersAndCommaDecimalsAreNumbers)
{
    test::CommaDecimals comma;
    TQORTapeReader reader;
    const TQORTapeRow grouped = reader.Read("1.234.567,25");
    ASSERT_TRUE(grouped.Number.has_value());
    EXPECT_EQ(*grouped.Number, 1234567.25L);
    EXPECT_EQ(grouped.Kind, trkValue);
    const TQORTapeRow sameLine = reader.Read("+ 1.000,5");
    EXPECT_EQ(sameLine.Operator, "+");
    EXPECT_EQ(sameLine.NumberText, "1.000,5");
    // Text that only looks numeric in part stays an operator line.
    EXPECT_FALSE(reader.Read("round 2x").Number.has_value());
    EXPECT_FALSE(reader.Read("-").Number.has_value());
}

struct ProgTapeRow {
    const char* Name;
    TQORBaseDisplay base;
    TQORBitSize bits;
    std::vector<std::string> lines;
    std::vector<long long> numbers; // the numbers of the lines that have one, in order
};

class ProgTapeTest : public test::CalcEngineTest,
                     public ::testing::WithParamInterface<ProgTapeRow> { };

TEST_P(ProgTapeTest, DigitsAreReadInTheBaseOfTheMoment)
{
    TQORTapeReader reader = ProgTapeReader(GetParam().base, GetParam().bits);
    std::vector<long long> numbers;
    for (const auto& line : GetParam().lines) {
        const TQORTapeRow row = reader.Read(line);
        if (row.Number) {
            EXPECT_TRUE(row.Integer);
            numbers.push_back(static_cast<long long>(*row.Number));
        }
    }
    EXPECT_EQ(numbers, GetParam().numbers);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ProgTapeTest,
    ::testing::Values(
        ProgTapeRow {
            "Hex", bdHexadecimal, bs64Bits, {"00FF", "XOR", "0F", "=", "00F0"}, {255, 15, 240}},
        // a full-width pattern with the top bit set is negative in its bit size
        ProgTapeRow {"NegativeByte", bdBinary, bs8Bits, {"1111 1110"}, {-2}},
        ProgTapeRow {"NegativeWordInHex", bdHexadecimal, bs16Bits, {"FFFF"}, {-1}},
        // the tape's own mode lines switch the base; "Dec" is not the hex number DEC
        ProgTapeRow {
            "BaseLine", bdHexadecimal, bs64Bits, {"10", "Dec", "-5", "Oct", "17"}, {16, -5, 15}},
        ProgTapeRow {"DigitOutsideTheBase", bdOctal, bs64Bits, {"19", "AND"}, {}}),
    test::RowName<ProgTapeRow>);

TEST_F(ProgTapeTest, EngineTapeReadsBackTheValues)
{
    test::ProgKeyDriver driver;
    driver.Setup(bdHexadecimal, bs16Bits).Press("5AC3^FF=");
    TQORTapeReader reader = ProgTapeReader(bdHexadecimal, bs16Bits);
    std::vector<TQORTapeRow> rows;
    for (const auto& line : driver.History())
        rows.push_back(reader.Read(line));
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(rows.back().Kind, trkResult);
    EXPECT_EQ(*rows.back().Number, static_cast<Extended>(0x5AC3 ^ 0xFF));
}

// Splits CSV text into records of fields (quotes as TapeToCsv writes them).
std::vector<std::vector<std::string>> ParseCsv(const std::string& csv, char separator)
{
    std::vector<std::vector<std::string>> records(1);
    std::string field;
    bool quoted = false;
    for (std::size_t i = 0; i < csv.size(); ++i) {
        const char ch = csv[i];
        if (quoted) {
            if (ch == '"' && i + 1 < csv.size() && csv[i + 1] == '"') {
                field += '"';
                ++i;
            } else if (ch == '"') {
                quoted = false;
            } else {
                field += ch;
            }
        } else if (ch == '"') {
            quoted = true;
        } else if (ch == separator) {
            records.back().push_back(field);
            field.clear();
        } else if (ch == '\r') {
        } else if (ch == '\n') {
            records.back().push_back(field);
            field.clear();
            records.emplace_back();
        } else {
            field += ch;
        }
    }
    records.pop_back(); // after the last line break
    return records;
}

class TapeExportTest : public test::CalcEngineTest, public ::testing::WithParamInterface<bool> { };

// The CSV read back gives every row's kind, operator, text and number, in the current format
// settings: "," decimals switch the field separator to ";" and the numbers to "," decimals.
TEST_P(TapeExportTest, CsvReadsBackToTheRows)
{
    const bool comma = GetParam();
    std::optional<test::CommaDecimals> settings;
    if (comma)
        settings.emplace();
    test::CalcKeyDriver driver;
    driver.Engine().SetThousandsSeparators(true);
    driver.Engine().SetOperatorSameLine(true);
    driver.Press("1234.5 + 3 * 4 = [paper] 2 / 3 =");
    const auto rows = ReadTape(driver.Engine().GetHistory());
    const std::string csv = TapeToCsv(rows);
    const char separator = comma ? ';' : ',';
    EXPECT_EQ(TapeCsvSeparator(), separator);
    const auto records = ParseCsv(csv, separator);
    ASSERT_EQ(records.size(), rows.size() + 1);
    EXPECT_EQ(records[0], (std::vector<std::string> {"kind", "operator", "number", "text"}));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& record = records[i + 1];
        ASSERT_EQ(record.size(), 4u) << i;
        EXPECT_EQ(record[0], TapeRowKindName(rows[i].Kind));
        EXPECT_EQ(record[1], rows[i].Operator);
        EXPECT_EQ(record[3], rows[i].Text);
        if (!rows[i].Number) {
            EXPECT_TRUE(record[2].empty());
            continue;
        }
        // No grouping in the number column, and it parses back to the row's value.
        EXPECT_EQ(record[2].find(FormatSettings.ThousandSeparator), std::string::npos);
        EXPECT_EQ(Str2Float(record[2]), *rows[i].Number) << record[2];
    }
    // The engine's four decimals stay; only the grouping goes.
    EXPECT_EQ(records[1][2], comma ? "1234,5000" : "1234.5000");
    EXPECT_EQ(records[1][3], comma ? "1.234,5000" : "1,234.5000");
}

INSTANTIATE_TEST_SUITE_P(Separators, TapeExportTest, ::testing::Values(false, true),
                         [](const ::testing::TestParamInfo<bool>& row) {
                             return std::string(row.param ? "CommaDecimals" : "PointDecimals");
                         });

TEST_F(TapeExportTest, TextLinesUpOperatorsAndNumbers)
{
    test::CalcKeyDriver driver;
    driver.Engine().SetTrimTrailingZeroes(true);
    driver.Engine().SetOperatorSameLine(true);
    driver.Press("12.5 + 3 = [paper]");
    EXPECT_EQ(TapeToText(ReadTape(driver.Engine().GetHistory())),
              "  12.5\n"
              "+    3\n"
              "= 15.5\n"
              "- - - - - - - - - - -\n");
}

TEST_F(TapeExportTest, CsvQuotesFieldsWithTheSeparator)
{
    TQORTapeRow row;
    row.Kind = trkOperator;
    row.Operator = "say \"hi\", you";
    row.Text = row.Operator;
    EXPECT_EQ(TapeToCsv(std::vector<TQORTapeRow> {row}),
              "kind,operator,number,text\r\n"
              "operator,\"say \"\"hi\"\", you\",,\"say \"\"hi\"\", you\"\r\n");
}

} // namespace
} // namespace qorkit
