// Text routines: numbers to text and back, base changes of digit strings, grouping, angles,
// small string helpers. All strings hold 8-bit characters (UTF-8 where a mark needs it).
//
// Separators and currency formats are read from qorkit::FormatSettings at each call.
// Malformed text raises EConvertError with a message naming the text; nothing here is
// undefined for any input.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_base_export.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qorkit {

// ---- Floating point <-> text ---------------------------------------------------------------

// Parses a decimal number: optional blanks, sign, digits with the locale decimal separator,
// optional locale thousands separators anywhere in the integer part after its first digit
// ("1,234", and "1,2" or "12," while typing), optional exponent ("E", "e", with sign).
// Accepts every state of a calculator entry that has a digit: "0.", "-.5", "1E" and "1E-"
// (an exponent without digits counts as zero). An empty mantissa ("", "-", "E5") is
// malformed. Values too large for Extended raise EConvertError; values too small for a
// normal Extended read as 0. Raises EConvertError (rsInvalidFloat naming the text).
QORKIT_BASE_EXPORT Extended Str2Float(std::string_view s);
// As Str2Float, but reports failure by returning false.
QORKIT_BASE_EXPORT bool TryStr2Float(std::string_view s, Extended& value) noexcept;

// Fixed notation with exactly `decimals` decimals, rounded to nearest (halves away from zero),
// no grouping: Float2EStr(-1234.5, 2) == "-1234.50". Zero never shows a minus sign.
// Rounding works on the value's 18 significant decimal digits (what an extended float holds
// reliably), so 0.125 gives "0.13" and 1.005 gives "1.01" at 2 decimals, and digits past the
// 18th show as zeros. Every finite value formats (1e4932 gives 4933 integer digits); NaN
// raises EInvalidOp and infinity EOverflow, in every formatter of this module.
QORKIT_BASE_EXPORT std::string Float2EStr(Extended value, std::uint8_t decimals);
// As Float2EStr, with the integer digits grouped (threes, or lakh: last three, then twos).
QORKIT_BASE_EXPORT std::string Float2CEStr(Extended value, std::uint8_t decimals,
                                           bool lakh = false);
// As Float2EStr / Float2CEStr, with trailing zero decimals (and a bare separator) removed.
QORKIT_BASE_EXPORT std::string Float2EStr2(Extended value, std::uint8_t decimals);
QORKIT_BASE_EXPORT std::string Float2CEStr2(Extended value, std::uint8_t decimals,
                                            bool lakh = false);
// Scientific notation with `decimals` mantissa decimals: SciFloat2EStr(12345, 2) == "1.23E+04".
// The exponent has at least two digits and always a sign.
QORKIT_BASE_EXPORT std::string SciFloat2EStr(Extended value, std::uint8_t decimals);

// Inserts the locale thousands separator into the integer digits of a number text (after an
// optional sign, up to the decimal separator or exponent). Every state of a typed entry is a
// number here ("-", "0.", "1E", "12345E-"). Text that already carries a separator, or is not
// a number (such as "Error!"), is returned unchanged.
QORKIT_BASE_EXPORT std::string AddThousandsSeparators(std::string_view s, bool lakh = false);
// Removes every locale thousands separator.
QORKIT_BASE_EXPORT std::string StripThousandSeparators(std::string_view s);

// Right-aligned fixed notation in a field of at least `width` characters with `decimals`
// decimals, "." as the decimal point (a program text, not a display text):
// Float2Str(3.14159, 10, 2) == "      3.14". A negative `decimals` gives scientific notation
// with -decimals mantissa decimals: Float2Str(12345, 12, -3) == "   1.235E+04". A text longer
// than `width` is never cut.
QORKIT_BASE_EXPORT std::string Float2Str(Extended value, int width, int decimals);

// ---- Integers <-> text ---------------------------------------------------------------------

QORKIT_BASE_EXPORT std::string Int2EStr(std::int64_t value); // signed decimal
// Hexadecimal digits, upper case, at least `digits` long (zero-padded); negative values in
// 64-bit two's complement: Int2EHex(255) == "FF", Int2EHex(255, 4) == "00FF",
// Int2EHex(-1) == "FFFFFFFFFFFFFFFF".
QORKIT_BASE_EXPORT std::string Int2EHex(std::int64_t value, int digits = 1);
// Signed decimal text to integer; blanks around are allowed. Raises EConvertError when
// malformed (rsInvalidInteger; this includes "", a lone sign and any stray character) or out
// of range (rsIntegerOverflow).
QORKIT_BASE_EXPORT std::int32_t Str2Int(std::string_view s);
QORKIT_BASE_EXPORT std::int64_t Str2Int64(std::string_view s);
// Hexadecimal digits (either case, at most 16) to int64: 16 digits give the two's-complement
// value, fewer digits a non-negative value. Empty text is 0; blanks around are allowed. Raises
// EConvertError on a non-hex character (no sign either) or more than 16 digits.
QORKIT_BASE_EXPORT std::int64_t Hex2Int64(std::string_view hex);

// Digit-string base changes. Every input digit is kept at full width (leading zeros count):
// Hex2Bin gives 4 binary digits per hex digit; Bin2Hex pads the binary text on the left to a
// multiple of 4; Hex2Oct converts the bit pattern of n hex digits to ceil(4n/3) octal digits;
// Oct2Hex converts the bit pattern of n octal digits to ceil(3n/4) hex digits.
// So Hex2Oct of 16 hex digits gives 22 octal digits. Empty text gives empty text.
// Raises EConvertError on a digit outside the base.
QORKIT_BASE_EXPORT std::string Bin2Hex(std::string_view bin);
QORKIT_BASE_EXPORT std::string Hex2Bin(std::string_view hex);
QORKIT_BASE_EXPORT std::string Hex2Oct(std::string_view hex);
QORKIT_BASE_EXPORT std::string Oct2Hex(std::string_view oct);

// Inserts `sep` between groups of `n` characters counted from the right:
// GroupSpacing("1234567", 3, ' ') == "1 234 567". n <= 0 returns s unchanged.
QORKIT_BASE_EXPORT std::string GroupSpacing(std::string_view s, int n, char sep);
// Removes every `sep`.
QORKIT_BASE_EXPORT std::string RemoveGroupSpacing(std::string_view s, char sep);

// ---- Angles --------------------------------------------------------------------------------

// Degrees as degrees, minutes and seconds with the process-wide marks, seconds with
// `decimals` decimals, minutes and seconds two digits wide, units separated by a blank:
// Angle2Str(12.5125, 0) == "12° 30' 45\"", Angle2Str(5.0841667, 0) == "5° 05' 03\"".
// Negative angles carry a leading minus.
QORKIT_BASE_EXPORT std::string Angle2Str(Extended degrees, std::uint8_t decimals);
// Degrees as text of the chosen units (dmsDegrees "12.51°", dmsDegreesMinutes "12° 30.75'",
// dmsDegreesMinutesSeconds "12° 30' 45\""), the last unit with `decimals` decimals;
// `leadingZeroes` pads minutes and seconds to two digits, `spaceUnits` puts a blank between
// units, `trimTrailingZeroes` drops zero decimals of the last unit (and its bare separator).
// Rounding happens once, in the last unit, halves away from zero, and carries upwards: 59.99"
// at one decimal shows as the next whole minute. The decimal separator is the locale one.
QORKIT_BASE_EXPORT std::string Float2DMSStr(Extended degrees, TQORDMSType type,
                                            std::uint8_t decimals, bool leadingZeroes,
                                            bool spaceUnits, bool trimTrailingZeroes);
// Reads any of the texts above. Each number may carry a mark naming its unit; numbers without
// one take the next unit in turn and are separated by blanks ("12 30 45"); units must come in
// order (degrees, minutes, seconds) and add up (minutes past 59 are not refused). A plain
// number is degrees. The locale decimal separator and "." are both accepted. A leading sign,
// or a trailing hemisphere letter (rsNorthAbbr/rsSouthAbbr/rsEastAbbr/rsWestAbbr, any case;
// South and West negate), gives the sign; both at once are refused. Raises EConvertError.
QORKIT_BASE_EXPORT Extended DMSStr2Float(std::string_view s);

// ---- Currency ------------------------------------------------------------------------------

// Fixed-point currency as text with `decimals` decimals (rounded exactly, halves away from
// zero), grouped in threes, with the process-wide currency symbol and positive/negative
// currency format; an amount that rounds to zero uses the positive format. Format numbers
// out of range fall back to the defaults ("$1" and "-$1").
QORKIT_BASE_EXPORT std::string Currency2EStr(Currency value, std::uint8_t decimals);
// Removes the process-wide currency symbol and surrounding blanks and brings the sign to the
// front: "($1.00)", "1.00$-" and "- $ 1.00" become "-1.00", so the text of every currency
// format reads back through Str2Float.
QORKIT_BASE_EXPORT std::string StripCurrencyString(std::string_view s);

// ---- Small helpers -------------------------------------------------------------------------

QORKIT_BASE_EXPORT std::string LeftStr(std::string_view s,
                                       int n); // first n characters (all when shorter)
QORKIT_BASE_EXPORT std::string RightStr(std::string_view s,
                                        int n); // last n characters (all when shorter)
QORKIT_BASE_EXPORT std::string PadChLeftStr(std::string_view s, char ch,
                                            int n); // pad on the left to length n
QORKIT_BASE_EXPORT std::string StripLChStr(std::string_view s,
                                           char ch); // remove leading `ch` characters

} // namespace qorkit
