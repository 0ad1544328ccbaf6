// The paper tape of a keystroke engine read as rows: each tape line becomes a value, an
// operator (or function, memory key ...), a result, a rule or an error line, with its number
// and its operator taken apart; and the tape written out as plain text or CSV.
//
// The engines keep their tape as plain lines ("1,234.5", "+", "sin", "=", "1,246.5", or with
// OperatorSameLine "+ 3" and "= 5"); TQORTapeReader turns them into TQORTapeRow, one line at a
// time, so a view can follow a growing tape. Both engines are read: a number reader per engine
// decides what a number is (decimal text in the format settings, or the programmer's digits in
// the base of the moment).
#pragma once

#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit {

enum TQORTapeRowKind : std::uint8_t {
    trkValue, // a number keyed or recalled
    trkOperator, // an operator, function, bracket, memory key or mode change, maybe with a number
    trkResult, // the number after "=" (or "= number" on one line)
    trkRule, // the paper line ("- - - -")
    trkError, // the error line
};

// The name of a kind, as the CSV export writes it: "value", "operator", "result", "rule",
// "error".
QORKIT_CORE_EXPORT std::string_view TapeRowKindName(TQORTapeRowKind kind);

struct QORKIT_CORE_EXPORT TQORTapeRow {
    std::string Text; // the tape line as the engine wrote it
    TQORTapeRowKind Kind = trkValue;
    std::string Operator; // the operator part ("+", "sin", "M+", "="); empty on a bare number
    std::string NumberText; // the number part as written on the tape; empty when there is none
    std::optional<Extended> Number; // its value
    bool Integer = false; // a programmer's value (a whole number in some base)
};

class QORKIT_CORE_EXPORT TQORTapeReader {
public:
    // Reads a number written on the tape; false when the text is not one.
    using TNumberReader = std::function<bool(std::string_view text, Extended& value)>;

    // Reads numbers in the process-wide format settings (the floating-point engine's tape).
    TQORTapeReader();
    // Reads numbers with `reader`; `integers` marks them as programmer's values.
    TQORTapeReader(TNumberReader reader, bool integers);

    // The next tape line as a row. A number right after an "=" line is a result.
    TQORTapeRow Read(const std::string& line);
    // Forgets the previous line (the tape was cleared).
    void Restart() { afterEquals_ = false; }

    // Called with every line before it is read (a reader that follows mode lines).
    using TLineHook = std::function<void(const std::string& line)>;
    void SetLineHook(TLineHook hook) { lineHook_ = std::move(hook); }

    // Reads a number of the floating-point engine: decimal text in the format settings.
    static bool ReadDecimal(std::string_view text, Extended& value);

private:
    bool ReadNumber(std::string_view text, Extended& value) const;

    TNumberReader reader_;
    TLineHook lineHook_;
    bool integers_ = false;
    bool afterEquals_ = false;
};

// A reader of the programmer's engine's tape: its numbers are digits in the base and bit size
// of the moment (grouping blanks allowed; a full-width pattern with the top bit set is
// negative). The tape's own base and bit-size lines ("Hex", "16 bits") switch both; before the
// first of them, `base` and `bits` hold.
QORKIT_CORE_EXPORT TQORTapeReader ProgTapeReader(TQORBaseDisplay base, TQORBitSize bits);

// Every line of a tape as rows.
QORKIT_CORE_EXPORT std::vector<TQORTapeRow> ReadTape(std::span<const std::string> lines);

// The tape as plain text: one row a line, the operators in a left column and the numbers
// right-aligned in a right column; rule and error lines as they are.
QORKIT_CORE_EXPORT std::string TapeToText(std::span<const TQORTapeRow> rows);

// The tape as CSV with the columns kind, operator, number, text and a header line. Numbers are
// written in the current format settings without grouping (decimal separator of the settings;
// a programmer's value as a signed decimal integer). The field separator is ',' unless that is
// the decimal separator, then ';'. Fields with the separator, quotes or line breaks are quoted.
QORKIT_CORE_EXPORT std::string TapeToCsv(std::span<const TQORTapeRow> rows);
// The field separator TapeToCsv uses with the current format settings.
QORKIT_CORE_EXPORT char TapeCsvSeparator();
// The number as TapeToCsv writes it.
QORKIT_CORE_EXPORT std::string TapeCsvNumber(const TQORTapeRow& row);

} // namespace qorkit
