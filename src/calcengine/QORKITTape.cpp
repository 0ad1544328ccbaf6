#include "QORKITTape.h"

#include "QORKITSettings.h"
#include "QORKITStrings.h"
#include "QORKIT_RS_Calc.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace qorkit {

namespace {

constexpr std::array<std::string_view, 5> KindNames
    = {"value", "operator", "result", "rule", "error"};

// Quotes a CSV field when it holds the separator, a quote or a line break.
std::string CsvField(std::string_view field, char separator)
{
    if (field.find_first_of(std::string {separator, '"', '\n', '\r'}) == std::string_view::npos)
        return std::string(field);
    std::string quoted = "\"";
    for (const char ch : field) {
        if (ch == '"')
            quoted += '"';
        quoted += ch;
    }
    quoted += '"';
    return quoted;
}

// Display width of UTF-8 text: code points, not bytes ("°" and "ä" count once).
std::size_t Width(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char ch) {
        return (static_cast<unsigned char>(ch) & 0xC0) != 0x80;
    }));
}

// The programmer's engine's digits in a base, sign-extended from the bit size.
bool ReadProgDigits(std::string_view text, TQORBaseDisplay base, TQORBitSize bits, Extended& value)
{
    std::string digits;
    for (const char ch : text) {
        if (ch != ' ')
            digits += ch;
    }
    if (digits.empty())
        return false;
    if (base == bdDecimal) {
        const bool negative = digits.front() == '-';
        if (digits.size() == (negative ? 1u : 0u)
            || digits.find_first_not_of("0123456789", negative ? 1 : 0) != std::string::npos)
            return false;
        try {
            value = static_cast<Extended>(Str2Int64(digits));
        } catch (...) {
            return false;
        }
        return true;
    }
    const unsigned radix = base == bdBinary ? 2u : base == bdOctal ? 8u : 16u;
    const unsigned width = 8u << bits; // bs8Bits .. bs64Bits
    std::uint64_t pattern = 0;
    for (const char ch : digits) {
        unsigned digit = 0;
        if (ch >= '0' && ch <= '9')
            digit = static_cast<unsigned>(ch - '0');
        else if (ch >= 'A' && ch <= 'F')
            digit = static_cast<unsigned>(ch - 'A' + 10);
        else if (ch >= 'a' && ch <= 'f')
            digit = static_cast<unsigned>(ch - 'a' + 10);
        else
            return false;
        if (digit >= radix || pattern > (~std::uint64_t {0} - digit) / radix)
            return false;
        pattern = pattern * radix + digit;
    }
    if (width < 64) {
        const std::uint64_t sign = std::uint64_t {1} << (width - 1);
        pattern &= (sign << 1) - 1;
        if ((pattern & sign) != 0)
            pattern |= ~((sign << 1) - 1);
    }
    value = static_cast<Extended>(static_cast<std::int64_t>(pattern));
    return true;
}

} // namespace

TQORTapeReader ProgTapeReader(TQORBaseDisplay base, TQORBitSize bits)
{
    struct Mode {
        TQORBaseDisplay Base;
        TQORBitSize Bits;
    };
    auto mode = std::make_shared<Mode>(Mode {base, bits});
    TQORTapeReader reader(
        [mode](std::string_view text, Extended& value) {
            return ReadProgDigits(text, mode->Base, mode->Bits, value);
        },
        true);
    reader.SetLineHook([mode](const std::string& line) {
        const std::array<std::string, 4> bases
            = {rsComboBin(), rsComboDec(), rsComboHex(), rsComboOct()};
        const std::array<std::string, 4> sizes
            = {rsCombo8Bits(), rsCombo16Bits(), rsCombo32Bits(), rsCombo64Bits()};
        for (std::size_t i = 0; i < bases.size(); ++i) {
            if (line == bases[i])
                mode->Base = static_cast<TQORBaseDisplay>(i);
            if (line == sizes[i])
                mode->Bits = static_cast<TQORBitSize>(i);
        }
    });
    return reader;
}

std::string_view TapeRowKindName(TQORTapeRowKind kind)
{
    return kind < KindNames.size() ? KindNames[kind] : std::string_view("value");
}

TQORTapeReader::TQORTapeReader() : reader_(&TQORTapeReader::ReadDecimal) { }

TQORTapeReader::TQORTapeReader(TNumberReader reader, bool integers)
    : reader_(std::move(reader)), integers_(integers)
{ }

bool TQORTapeReader::ReadDecimal(std::string_view text, Extended& value)
{
    Extended read = 0;
    if (text.empty() || !TryStr2Float(text, read) || !std::isfinite(read))
        return false;
    value = read;
    return true;
}

bool TQORTapeReader::ReadNumber(std::string_view text, Extended& value) const
{
    return reader_ && !text.empty() && reader_(text, value);
}

TQORTapeRow TQORTapeReader::Read(const std::string& line)
{
    TQORTapeRow row;
    row.Text = line;
    row.Integer = integers_;
    if (lineHook_)
        lineHook_(line);
    const bool afterEquals = afterEquals_;
    afterEquals_ = false;
    if (line == rsPaperLine()) {
        row.Kind = trkRule;
        return row;
    }
    if (line == rsPaperErrLine()) {
        row.Kind = trkError;
        return row;
    }
    Extended value = 0;
    if (ReadNumber(line, value)) {
        row.Kind = afterEquals ? trkResult : trkValue;
        row.NumberText = line;
        row.Number = value;
        return row;
    }
    // "operator number" (operators on the same line as the next operand): the longest number
    // that ends the line, so grouping blanks stay inside it.
    for (std::size_t blank = line.find(' '); blank != std::string::npos;
         blank = line.find(' ', blank + 1)) {
        const std::string_view head = std::string_view(line).substr(0, blank);
        const std::string_view tail = std::string_view(line).substr(blank + 1);
        if (head.empty() || head.find_first_not_of(' ') == std::string_view::npos)
            continue;
        if (ReadNumber(tail, value)) {
            row.Operator = std::string(head);
            row.NumberText = std::string(tail);
            row.Number = value;
            row.Kind = row.Operator == "=" ? trkResult : trkOperator;
            return row;
        }
    }
    row.Kind = trkOperator;
    row.Operator = line;
    afterEquals_ = line == "=";
    return row;
}

std::vector<TQORTapeRow> ReadTape(std::span<const std::string> lines)
{
    TQORTapeReader reader;
    std::vector<TQORTapeRow> rows;
    rows.reserve(lines.size());
    for (const auto& line : lines)
        rows.push_back(reader.Read(line));
    return rows;
}

std::string TapeToText(std::span<const TQORTapeRow> rows)
{
    std::size_t operatorWidth = 0;
    std::size_t numberWidth = 0;
    for (const auto& row : rows) {
        if (row.Kind == trkRule || row.Kind == trkError)
            continue;
        operatorWidth = std::max(operatorWidth, Width(row.Operator));
        numberWidth = std::max(numberWidth, Width(row.NumberText));
    }
    std::string text;
    for (const auto& row : rows) {
        std::string line;
        if (row.Kind == trkRule || row.Kind == trkError) {
            line = row.Text;
        } else {
            line = row.Operator + std::string(operatorWidth - Width(row.Operator), ' ');
            if (!row.NumberText.empty()) {
                line += std::string(numberWidth - Width(row.NumberText) + 1, ' ');
                line += row.NumberText;
            }
            while (!line.empty() && line.back() == ' ')
                line.pop_back();
        }
        text += line;
        text += '\n';
    }
    return text;
}

char TapeCsvSeparator() { return FormatSettings.DecimalSeparator == ',' ? ';' : ','; }

std::string TapeCsvNumber(const TQORTapeRow& row)
{
    if (!row.Number)
        return {};
    if (row.Integer)
        return Int2EStr(static_cast<std::int64_t>(*row.Number));
    // The digits as the tape shows them, without grouping, so a spreadsheet reads them.
    std::string digits = StripThousandSeparators(row.NumberText);
    digits.erase(std::remove(digits.begin(), digits.end(), ' '), digits.end());
    return digits;
}

std::string TapeToCsv(std::span<const TQORTapeRow> rows)
{
    const char separator = TapeCsvSeparator();
    std::string csv;
    const auto addRecord = [&csv, separator](std::initializer_list<std::string_view> fields) {
        bool first = true;
        for (const auto field : fields) {
            if (!first)
                csv += separator;
            csv += CsvField(field, separator);
            first = false;
        }
        csv += "\r\n";
    };
    addRecord({"kind", "operator", "number", "text"});
    for (const auto& row : rows)
        addRecord({TapeRowKindName(row.Kind), row.Operator, TapeCsvNumber(row), row.Text});
    return csv;
}

} // namespace qorkit
