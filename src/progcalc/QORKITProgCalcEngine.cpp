#include "QORKITProgCalcEngine.h"

#include "QORKITExceptions.h"
#include "QORKITMath.h"
#include "QORKITResource.h"
#include "QORKITStrings.h"
#include "QORKIT_RS_Calc.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstring>
#include <exception>
#include <limits>
#include <string_view>
#include <utility>

namespace qorkit {

namespace {

using namespace engine_internal;

// Characters per group, by base (binary, decimal, hexadecimal, octal) and spacing (none, byte,
// word, double word). Decimal is never grouped. The octal widths do not fall on byte
// boundaries; they are the chosen grouping and stay as they are.
constexpr std::array<std::array<int, 4>, 4> kGroupWidths {
    {{0, 8, 16, 32}, {0, 0, 0, 0}, {0, 2, 4, 8}, {0, 3, 6, 12}}};

constexpr int kMaxDecimalEntry = 20; // characters of a decimal entry, sign included

// Keys after which "+" and "-" are signs, and after which a base change must not complete
// the calculation.
constexpr TQORCodeSet kOperatorKeys {ocXnor,     ocNand, ocMod,      ocAnd,    ocLeftBracket,
                                     ocMultiply, ocAdd,  ocSubtract, ocDivide, ocNor,
                                     ocRoot,     ocOr,   ocNot};

// A two-operand operator: its code, history word and result on b (left) and a (right),
// wrapping in 64 bits; the low 32 bits of that are the 32-bit result. The divisions have no
// Apply: they fault on zero and their quotient depends on the width.
using U64 = std::uint64_t;
struct TBinaryOperator {
    char Code;
    std::string (*HistoryText)();
    U64 (*Apply)(U64 b, U64 a);
};
constexpr TBinaryOperator kBinaryOperators[] = {
    {ocAdd, [] { return std::string("+"); }, [](U64 b, U64 a) { return b + a; }},
    {ocSubtract, [] { return std::string("-"); }, [](U64 b, U64 a) { return b - a; }},
    {ocMultiply, [] { return std::string("*"); }, [](U64 b, U64 a) { return b * a; }},
    {ocDivide, [] { return std::string("/"); }, nullptr},
    {ocMod, rsMODPaper, nullptr},
    {ocAnd, rsANDPaper, [](U64 b, U64 a) { return b & a; }},
    {ocOr, rsORPaper, [](U64 b, U64 a) { return b | a; }},
    {ocXor, rsXORPaper, [](U64 b, U64 a) { return b ^ a; }},
    {ocNand, rsNANDPaper, [](U64 b, U64 a) { return ~(b & a); }},
    {ocNor, rsNORPaper, [](U64 b, U64 a) { return ~(b | a); }},
    {ocXnor, rsXNORPaper, [](U64 b, U64 a) { return ~(b ^ a); }},
};

// A size outside the four works as 64 bits, the size the getters already name for it, so no
// shift or rotate ever sees a width beyond the word.
TQORBitSize KnownBitSize(TQORBitSize value) { return value <= bs64Bits ? value : bs64Bits; }

// The low bits of v that a word size holds, read as a signed integer of that width.
std::int64_t SignExtend(std::int64_t v, TQORBitSize size)
{
    const int unused = 64 - BitSizeBits(size);
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(v) << unused) >> unused;
}

// Texts by ordinal; the last entry also answers for values outside the enumeration.
using TTextFn = std::string (*)();
constexpr TTextFn kBaseNames[] = {rsComboBin, rsComboDec, rsComboHex, rsComboOct};
// The octal base answers "Hex": intended, kept. History lines use kBaseNames.
constexpr TTextFn kBaseDisplayTexts[] = {rsComboBin, rsComboDec, rsComboHex, rsComboHex};
constexpr TTextFn kBitSizeTexts[] = {rsCombo8Bits, rsCombo16Bits, rsCombo32Bits, rsCombo64Bits};
constexpr TTextFn kSpacingTexts[]
    = {rsSpacingNone, rsSpacingByte, rsSpacingWord, rsSpacingDWord, rsSpacingNone};
constexpr TTextFn kSizeChangeTexts[]
    = {rsChangeClear, rsChangeTruncate, rsChangeExtend, rsChangeClear};

template<std::size_t N> std::string TextOf(const TTextFn (&table)[N], unsigned ordinal)
{
    return table[std::min<std::size_t>(ordinal, N - 1)]();
}

// Signed division and remainder in the signed type S, with the quotient truncated toward
// zero and the remainder taking the sign of b. The caller has excluded a == 0.
template<typename S> S DivideOrMod(char op, S b, S a, bool faultOnOverflow)
{
    if (b == std::numeric_limits<S>::min() && a == -1) {
        // The processor faults on this quotient; 64-bit division wraps to itself instead.
        if (faultOnOverflow)
            throw EZeroDivide(rsDivideByZero());
        return op == ocDivide ? b : S {0};
    }
    return op == ocDivide ? static_cast<S>(b / a) : static_cast<S>(b % a);
}

// B op A at a word size. 64 bits wrap in 64 bits; every smaller size works on the operands
// widened to 32 bits and keeps the 32-bit result sign-extended, not cut to the word size.
std::int64_t Compute(const TBinaryOperator& op, std::int64_t b, std::int64_t a, bool bits64)
{
    if (bits64)
        return op.Apply
            ? static_cast<std::int64_t>(op.Apply(static_cast<U64>(b), static_cast<U64>(a)))
            : DivideOrMod<std::int64_t>(op.Code, b, a, false);
    const auto a32 = static_cast<std::int32_t>(a);
    const auto b32 = static_cast<std::int32_t>(b);
    if (!op.Apply)
        return DivideOrMod<std::int32_t>(op.Code, b32, a32, true);
    return static_cast<std::int32_t>(op.Apply(static_cast<U64>(b32), static_cast<U64>(a32)));
}

// Shifts of the word-size value a (already sign-extended); count is 1..64. Small sizes shift
// the 32-bit sign-extended value and keep its 32-bit sign: shifted right, copies of the sign
// enter the visible bits at 8 and 16 bits, zeros at 32 bits. Intended; kept.
template<bool Left> std::int64_t Shift(std::int64_t a, int bits, int count)
{
    if (count >= bits)
        return 0;
    if (bits == 64) {
        const auto u = static_cast<std::uint64_t>(a);
        return static_cast<std::int64_t>(Left ? u << count : u >> count);
    }
    const auto u = static_cast<std::uint32_t>(a);
    return static_cast<std::int32_t>(Left ? u << count : u >> count);
}

// Rotation of the word-size part of a by the base routine of that width, sign-extended.
template<auto Rot8, auto Rot16, auto Rot32, auto Rot64>
std::int64_t Rotate(std::int64_t a, int bits, int count)
{
    const auto n = static_cast<unsigned>(count);
    switch (bits) {
    case 8:
        return static_cast<std::int8_t>(Rot8(static_cast<std::uint8_t>(a), n));
    case 16:
        return static_cast<std::int16_t>(Rot16(static_cast<std::uint16_t>(a), n));
    case 32:
        return static_cast<std::int32_t>(Rot32(static_cast<std::uint32_t>(a), n));
    default:
        return static_cast<std::int64_t>(Rot64(static_cast<std::uint64_t>(a), n));
    }
}

// Signed decimal text of an entry: blanks ignored, leading signs, digits; false at any other
// character. Signs alone or empty text are 0; values beyond the int64 range wrap modulo 2^64
// like the rest of the engine's arithmetic.
bool ReadDecimal(std::string_view s, std::uint64_t& bits, bool& negative)
{
    std::size_t i = 0;
    negative = false;
    // Signs typed in front of each other stay when no clean-up rule removes them ("++5").
    for (; i < s.size() && (s[i] == '+' || s[i] == '-' || s[i] == ' '); ++i)
        negative = negative != (s[i] == '-');
    std::uint64_t magnitude = 0;
    for (; i < s.size(); ++i) {
        if (s[i] == ' ')
            continue;
        if (s[i] < '0' || s[i] > '9')
            return false;
        magnitude = magnitude * 10U + static_cast<std::uint64_t>(s[i] - '0');
    }
    bits = negative ? 0U - magnitude : magnitude;
    return true;
}

// Digit values of the characters of an entry in bases up to 16 (either case); blanks are
// group spacing, everything else is no digit.
constexpr std::uint8_t kNoDigit = 0xFF;
constexpr std::uint8_t kBlankDigit = 0xFE;
constexpr auto kDigitValues = [] {
    std::array<std::uint8_t, 256> table {};
    table.fill(kNoDigit);
    for (int c = '0'; c <= '9'; ++c)
        table[static_cast<std::size_t>(c)] = static_cast<std::uint8_t>(c - '0');
    for (int c = 0; c < 6; ++c) {
        table[static_cast<std::size_t>('A' + c)] = static_cast<std::uint8_t>(10 + c);
        table[static_cast<std::size_t>('a' + c)] = static_cast<std::uint8_t>(10 + c);
    }
    table[' '] = kBlankDigit;
    return table;
}();

// Bits per digit of a base other than decimal.
int RadixBits(TQORBaseDisplay base) { return base == bdBinary ? 1 : base == bdOctal ? 3 : 4; }

// Digits of `radixBits` bits each (1, 3 or 4) that hold `bits` bits; no division on the key
// path but the one by the constant 3.
int DigitsFor(int bits, int radixBits)
{
    return radixBits == 3 ? (bits + 2) / 3 : (bits + radixBits - 1) >> (radixBits / 2);
}

// The hexadecimal digits of a pattern without leading zeros, at least one.
int SignificantHexDigits(std::uint64_t bits)
{
    int digits = 1;
    while (digits < 16 && (bits >> (4 * digits)) != 0)
        ++digits;
    return digits;
}

// The bits of a word size.
std::uint64_t SizeMask(TQORBitSize size)
{
    const int bits = 8 << (size & 3U);
    return bits == 64 ? ~0ULL : (1ULL << bits) - 1;
}

constexpr char kDigitChars[] = "0123456789ABCDEF";

// The eight binary digits and the two hexadecimal digits of every byte.
constexpr auto kByteBinary = [] {
    std::array<std::array<char, 8>, 256> table {};
    for (std::size_t b = 0; b < 256; ++b)
        for (std::size_t i = 0; i < 8; ++i)
            table[b][i] = (b >> (7 - i) & 1U) != 0 ? '1' : '0';
    return table;
}();
constexpr auto kByteHex = [] {
    std::array<std::array<char, 2>, 256> table {};
    for (std::size_t b = 0; b < 256; ++b)
        table[b] = {kDigitChars[b >> 4], kDigitChars[b & 0xFU]};
    return table;
}();

// The lowest `count` digits of v in base 2^radixBits, zero-filled: the bit pattern as text.
// Written into `out`, whose storage is reused; binary and hexadecimal go a byte at a time.
void WritePattern(std::string& out, std::uint64_t v, int radixBits, int count)
{
    out.resize(static_cast<std::size_t>(count));
    char* p = out.data() + count;
    if (radixBits == 1) {
        for (; count >= 8; count -= 8, v >>= 8) {
            p -= 8;
            std::memcpy(p, kByteBinary[v & 0xFFU].data(), 8);
        }
    } else if (radixBits == 4) {
        for (; count >= 2; count -= 2, v >>= 8) {
            p -= 2;
            std::memcpy(p, kByteHex[v & 0xFFU].data(), 2);
        }
    }
    const std::uint64_t digitMask = (1ULL << radixBits) - 1;
    for (; count > 0; --count, v >>= radixBits)
        *--p = kDigitChars[v & digitMask];
}

// Blanks between groups of `width` characters counted from the right, in place: the same
// text as GroupSpacing(s, width, ' ') without a second string.
void GroupInPlace(std::string& s, int width)
{
    const std::size_t n = s.size();
    if (width <= 0 || n <= 1)
        return;
    const auto w = static_cast<std::size_t>(width);
    const std::size_t blanks = (n - 1) / w;
    s.resize(n + blanks);
    // Whole groups move right, from the last: each by the number of blanks to its left.
    char* p = s.data();
    for (std::size_t group = 0; group < blanks; ++group) {
        const std::size_t from = n - (group + 1) * w;
        const std::size_t to = from + blanks - group;
        std::memmove(p + to, p + from, w);
        p[to - 1] = ' ';
    }
}

// `text` without its blanks, grouped anew by `width`, into `out` (which is not `text`).
void Regroup(std::string& out, std::string_view text, int width)
{
    out.resize(text.size());
    std::size_t n = 0;
    for (const char c : text)
        if (c != ' ')
            out[n++] = c;
    out.resize(n);
    GroupInPlace(out, width);
}

// The value as the display shows it in a base, size and spacing: the pattern of the size's
// digits, or the signed decimal cut to maxLength.
void FormatValue(std::string& out, std::int64_t v, TQORBaseDisplay base, TQORBitSize size,
                 TQORProgSpacing spacing, std::uint8_t maxLength)
{
    if (base == bdDecimal) {
        char buffer[24];
        const auto end = std::to_chars(buffer, buffer + sizeof buffer, v).ptr;
        out.assign(buffer,
                   std::min<std::size_t>(static_cast<std::size_t>(end - buffer), maxLength));
    } else {
        // Octal digits come from the full 64-bit pattern, so a negative value at a small size
        // shows the bits above the size that its top digit covers (-1 at 8 bits is "777").
        // Intended.
        const int radixBits = RadixBits(base);
        WritePattern(out, static_cast<std::uint64_t>(v), radixBits,
                     DigitsFor(BitSizeBits(size), radixBits));
    }
    GroupInPlace(out, kGroupWidths[base & 3U][spacing & 3U]);
}

// The entry text of a base as hexadecimal digits, at most the 16 of the int64 pattern.
std::string EntryToHex(const std::string& text, TQORBaseDisplay base)
{
    std::string hex = RemoveGroupSpacing(text, ' ');
    if (base == bdBinary || base == bdOctal)
        hex = base == bdBinary ? Bin2Hex(hex) : Oct2Hex(hex);
    else if (base == bdDecimal) { // the value's own digits, not zero-filled to 64 bits
        std::uint64_t bits = 0;
        bool negative = false;
        if (!ReadDecimal(hex, bits, negative))
            throw EConvertError(FormatMessage(rsInvalidInteger(), hex));
        hex = Int2EHex(static_cast<std::int64_t>(bits));
    } else
        std::transform(hex.begin(), hex.end(), hex.begin(), [](char c) {
            return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        });
    return RightStr(hex, 16);
}

} // namespace

// ---- Construction ------------------------------------------------------------------------

TQORProgCalcEngine::TQORProgCalcEngine()
{
    ClearEntry();
    // Base and size still hold their zero ordinals here, so the first display is eight binary
    // zeros; the owner refreshes it before showing it.
    SetDisplayValue0();
    baseDisplay_ = bdHexadecimal;
    bitSize_ = bs64Bits;
}

// ---- Texts of the value --------------------------------------------------------------------

void TQORProgCalcEngine::GetNoChars(int& hexChars, int& octChars, int& binChars) const
{
    const int bits = BitSizeBits(bitSize_);
    hexChars = DigitsFor(bits, 4);
    octChars = DigitsFor(bits, 3);
    binChars = bits;
}

int TQORProgCalcEngine::GroupWidth() const
{
    return kGroupWidths[baseDisplay_ & 3U][spacing_ & 3U];
}

std::string TQORProgCalcEngine::DisplayValue(std::int64_t v) const
{
    std::string s;
    FormatValue(s, v, baseDisplay_, bitSize_, spacing_, maxDisplayLength_);
    return s;
}

const std::string& TQORProgCalcEngine::GetMemoryContents() const
{
    FormatValue(memoryText_, memory_, baseDisplay_, bitSize_, spacing_, maxDisplayLength_);
    return memoryText_;
}

inline void TQORProgCalcEngine::SetTexts(std::uint64_t bits, TQORBitSize size)
{
    if (textsSet_ && bits == textBits_ && size == textSize_ && !texts_.RejectedHex)
        return;
    textsSet_ = true;
    textBits_ = bits;
    textSize_ = size;
    texts_.Made = 0;
    texts_.RejectedHex = false;
}

// Each text is written on its first read after the pattern changed, then kept.
const std::string& TQORProgCalcEngine::ValueText(TTextBase which) const
{
    std::string& text = texts_.Text[which];
    if (which == tbHex && texts_.RejectedHex)
        return text;
    if (!textsSet_) {
        text.clear();
    } else if ((texts_.Made & (1U << which)) == 0) {
        const int radixBits = kTextRadixBits[which];
        WritePattern(text, textBits_, radixBits, DigitsFor(BitSizeBits(textSize_), radixBits));
        texts_.Made = static_cast<std::uint8_t>(texts_.Made | (1U << which));
    }
    return text;
}

// The value text of the current base; decimal has none (it is formatted from the value).
const std::string* TQORProgCalcEngine::BaseText() const
{
    return baseDisplay_ == bdDecimal ? nullptr : &ValueText(TextBaseOf(baseDisplay_));
}

void TQORProgCalcEngine::ShowCurrentText()
{
    const std::string* text = BaseText();
    if (text == nullptr)
        return ShowValue(value_);
    display_ = *text;
    displayIsEntry_ = false;
    // Value texts are digits only; rejected hexadecimal digits may be anything.
    displayPlain_ = texts_.RejectedHex ? kPlainUnknown : kPlain;
    Fire(onDisplayChange_, this);
}

void TQORProgCalcEngine::ShowValue(std::int64_t v)
{
    FormatValue(display_, v, baseDisplay_, bitSize_, spacing_, maxDisplayLength_);
    displayIsEntry_ = false;
    displayPlain_ = GroupWidth() == 0 ? kPlain : kPlainUnknown;
    Fire(onDisplayChange_, this);
}

void TQORProgCalcEngine::SetDisplayValue(const std::string& s)
{
    display_ = s;
    displayIsEntry_ = false;
    displayPlain_ = kPlainUnknown;
    Fire(onDisplayChange_, this);
}

void TQORProgCalcEngine::ShowEntry()
{
    displayIsEntry_ = true; // no copy: the entry is shown until it next changes
    displayPlain_ = entryPlain_ ? kPlain : kNotPlain;
    Fire(onDisplayChange_, this);
}

void TQORProgCalcEngine::KnowEntryBits(std::uint64_t bits, bool negative) noexcept
{
    entryBits_ = bits;
    entryNegative_ = negative;
    entryBase_ = baseDisplay_;
    entryBitsKnown_ = true;
    entryPlain_ = true;
}

void TQORProgCalcEngine::EntryChanged() noexcept
{
    entryBitsKnown_ = false;
    entryPlain_ = std::memchr(entry_.data(), ' ', entry_.size()) == nullptr;
}

const std::string& TQORProgCalcEngine::DisplayStrOtherwise() const
{
    // Without spacing a display free of blanks is its own text, the error message included.
    const int width = GroupWidth();
    const std::string& display = Shown();
    if (width == 0 && !display.empty()) {
        if (displayPlain_ == kPlainUnknown)
            displayPlain_
                = std::memchr(display.data(), ' ', display.size()) == nullptr ? kPlain : kNotPlain;
        if (displayPlain_ == kPlain)
            return display;
    }
    if (display == rsErrorMsg())
        return display;
    Regroup(shown_, display, width);
    if (shown_.empty()) // the zero display, already grouped by the same width
        FormatValue(shown_, 0, baseDisplay_, bitSize_, spacing_, maxDisplayLength_);
    return shown_;
}

// The entry's bit pattern read straight from its digits: the lowest 64 bits of a binary,
// octal or hexadecimal entry, a decimal entry's value modulo 2^64. False when the entry holds
// anything else; the text path then decides (and raises the conversion error).
bool TQORProgCalcEngine::EntryValue(std::uint64_t& bits)
{
    std::uint64_t v = 0;
    entryBitsKnown_ = false;
    entryBase_ = baseDisplay_;
    entryNegative_ = false;
    if (baseDisplay_ == bdDecimal) {
        if (!ReadDecimal(entry_, v, entryNegative_))
            return false;
    } else {
        const int radixBits = RadixBits(baseDisplay_);
        for (const char c : entry_) {
            const std::uint8_t digit = kDigitValues[static_cast<unsigned char>(c)];
            if (digit == kBlankDigit)
                continue;
            if (digit >= (1U << radixBits))
                return false;
            v = (v << radixBits) | digit;
        }
    }
    bits = v;
    entryBits_ = bits;
    entryBitsKnown_ = true;
    return true;
}

inline void TQORProgCalcEngine::UpdateValues()
{
    std::uint64_t bits = 0;
    if (entryBitsKnown_ && entryBase_ == baseDisplay_)
        bits = entryBits_; // digits typed since the entry was last read
    else
        bits = EntryBitsFromText();
    bits &= SizeMask(bitSize_);
    SetTexts(bits, bitSize_);
    // Below 64 bits the pattern is a non-negative value; at 64 bits it is two's complement.
    value_ = static_cast<std::int64_t>(bits);
}

// The entry's bits when they are not kept: read from its digits, or else converted through
// hexadecimal text, which raises the conversion error for an entry that is no number.
std::uint64_t TQORProgCalcEngine::EntryBitsFromText()
{
    std::uint64_t bits = 0;
    if (!EntryValue(bits)) {
        const int hexChars = DigitsFor(BitSizeBits(bitSize_), 4);
        const std::string hex = RightStr(EntryToHex(entry_, baseDisplay_), hexChars);
        const std::string cut = RightStr(PadChLeftStr(hex, '0', 16), hexChars);
        try {
            bits = static_cast<std::uint64_t>(Hex2Int64(cut));
        } catch (const EConvertError&) {
            // The hexadecimal text is written before it is converted: after the refusal it
            // keeps the rejected digits, and the display shows them until the next value.
            // Kept as it stands.
            texts_.Text[tbHex] = cut;
            texts_.RejectedHex = true;
            throw;
        }
    }
    return bits;
}

void TQORProgCalcEngine::ConvertValues(std::int64_t v)
{
    value_ = v;
    SetTexts(static_cast<std::uint64_t>(v) & SizeMask(bitSize_), bitSize_);
    ShowCurrentText();
}

void TQORProgCalcEngine::ChangeValues(TQORBaseDisplay oldBase, TQORBaseDisplay newBase)
{
    DetachDisplay();
    std::uint64_t bits = 0;
    if (oldBase == baseDisplay_ && EntryValue(bits)) {
        // The entry reads as a number: its text in the new base is written straight from its
        // bits, with as many digits as the conversion through hexadecimal text gives: a digit
        // per hexadecimal digit, 4 bits per binary or 3 per octal digit rounded up, a decimal
        // value's significant digits; at most the 16 of the pattern.
        int hexDigits = SignificantHexDigits(bits);
        if (oldBase != bdDecimal) {
            const auto typed = static_cast<int>(
                entry_.size()
                - static_cast<std::size_t>(std::count(entry_.begin(), entry_.end(), ' ')));
            hexDigits = std::min((typed * RadixBits(oldBase) + 3) / 4, 16);
        }
        baseDisplay_ = newBase;
        const int radixBits = RadixBits(newBase);
        if (newBase == bdDecimal)
            FormatValue(entry_, static_cast<std::int64_t>(bits), newBase, bitSize_, spacing_,
                        maxDisplayLength_);
        else // the digits that hold 4 bits per hexadecimal digit
            WritePattern(entry_, bits, radixBits, DigitsFor(4 * hexDigits, radixBits));
        EntryChanged();
        return;
    }
    entry_ = EntryToHex(entry_, oldBase);
    baseDisplay_ = newBase;
    if (newBase == bdBinary || newBase == bdOctal)
        entry_ = newBase == bdBinary ? Hex2Bin(entry_) : Hex2Oct(entry_);
    else if (newBase == bdDecimal)
        entry_ = DisplayValue(Hex2Int64(entry_));
    EntryChanged();
}

std::int64_t TQORProgCalcEngine::GetDisplayValue()
{
    UpdateValues();
    if (!entry_.empty())
        return value_;
    return !operands_.Empty() ? operands_.Top() : 0;
}

// The value's text in one base, grouped with that base's widths whatever the current base is.
// During entry the stored texts are used, and the binary getter answers with the octal text:
// intended, kept. Otherwise the top operand's full pattern is converted, neither padded nor cut.
const std::string& TQORProgCalcEngine::DisplayValueIn(TQORBaseDisplay textBase)
{
    UpdateValues();
    const TTextBase which = TextBaseOf(textBase);
    std::string& s = valueTextsOut_[which];
    if (!entry_.empty()) {
        s = ValueText(which == tbHex ? tbHex : tbOct);
    } else if (!operands_.Empty()) {
        // The hexadecimal digits of the value without leading zeros, and the same bits as
        // ceil(4n/3) octal or 4n binary digits.
        const auto bits = static_cast<std::uint64_t>(operands_.Top());
        const int radixBits = kTextRadixBits[which];
        WritePattern(s, bits, radixBits, DigitsFor(4 * SignificantHexDigits(bits), radixBits));
    } else {
        s.clear();
    }
    GroupInPlace(s, kGroupWidths[textBase & 3U][spacing_ & 3U]);
    return s;
}

// Runs one operation; see TQORErrorGuard.
template<class Body> void TQORProgCalcEngine::Guarded(Body&& body)
{
    guard_.Run(std::forward<Body>(body),
               [this](const std::string& message) { HandleError(message); });
}

// ---- Entry ---------------------------------------------------------------------------------

void TQORProgCalcEngine::Numeric(char ch)
{
    if (ch >= 'a' && ch <= 'z')
        ch = static_cast<char>(ch - 'a' + 'A');
    // Radix and longest entry of the base; any base but these works as hexadecimal.
    const bool decimal = baseDisplay_ == bdDecimal;
    const int radixBits = RadixBits(baseDisplay_);
    const unsigned radix = decimal ? 10U : 1U << radixBits;
    const int limit = decimal ? kMaxDecimalEntry : DigitsFor(BitSizeBits(bitSize_), radixBits);
    const std::uint8_t digit = kDigitValues[static_cast<unsigned char>(ch)];
    const bool sign = ch == '+' || ch == '-';
    if (!(digit < radix || (sign && decimal)))
        return;

    // Leading zeros go; they leave the entry's value as it is.
    if (!entry_.empty() && entry_.front() == '0')
        entry_.erase(0, entry_.find_first_not_of('0'));
    if (sign) {
        entry_.insert(entry_.begin(), ch);
        EntryChanged();
    } else if (static_cast<int>(entry_.size()) < limit) {
        entry_.push_back(ch);
        AppendEntryBits(digit);
    }
    // Signs are only ever at the front of an entry, so without one there is nothing to clean.
    if (!entry_.empty() && (entry_.front() == '+' || entry_.front() == '-')) {
        const std::size_t before = entry_.size();
        engine_internal::CleanSigns(entry_); // every rule shortens the text
        if (entry_.size() != before)
            EntryChanged();
    }
    ShowEntry();
    lastKey_ = ch;
}

// The kept bits of an entry that has just had a digit appended.
void TQORProgCalcEngine::AppendEntryBits(std::uint64_t digit)
{
    if (!entryBitsKnown_ || entryBase_ != baseDisplay_)
        return;
    if (baseDisplay_ == bdDecimal) {
        // -(10m + d) is 10(-m) - d: the sign stays outside the digits.
        entryBits_ = entryNegative_ ? entryBits_ * 10U - digit : entryBits_ * 10U + digit;
        return;
    }
    entryBits_ = (entryBits_ << RadixBits(baseDisplay_)) | digit;
}

void TQORProgCalcEngine::InputDigit(char ch)
{
    Numeric(ch);
    // A zero entry keeps just its sign and one zero; the display is left as typed.
    if (GetDisplayValue() == 0) {
        DetachDisplay(); // the display stays as typed
        entry_ = (!entry_.empty() && entry_.front() == '-') ? "-0" : "0";
        KnowEntryBits(0, entry_.front() == '-');
    }
}

void TQORProgCalcEngine::InputBackspace()
{
    if (entry_.empty())
        return;
    entry_.pop_back();
    EntryChanged();
    ShowEntry();
}

void TQORProgCalcEngine::InputString(const std::string& s)
{
    Guarded([&] {
        DetachDisplay();
        entry_ = s;
        EntryChanged();
        UpdateValues();
        ClearEntry();
        PushOperandStack(value_);
        lastKey_ = ocNone;
    });
}

void TQORProgCalcEngine::InputValue(std::int64_t v)
{
    ConvertValues(v);
    ClearEntry();
    PushOperandStack(v);
    lastKey_ = ocNone;
    AddToHistory(Shown());
}

void TQORProgCalcEngine::ClearDisplay()
{
    lastKey_ = ocNone;
    ClearEntry();
    value_ = 0;
    SetDisplayValue0();
}

void TQORProgCalcEngine::AllClear()
{
    operands_.Clear();
    operators_.Clear();
    ClearEntry();
    value_ = 0;
    SetDisplayValue0();
    lastError_.clear();
    lastKey_ = ocNone;
    ClearHistory();
}

// ---- Stacks and evaluation -----------------------------------------------------------------

void TQORProgCalcEngine::SetSizeValueA(std::int64_t v)
{
    operandA_ = SignExtend(v, bitSize_);
    operandB_ = 0;
}

void TQORProgCalcEngine::SetSizeValues()
{
    SetSizeValueA(!operands_.Empty() ? operands_.Top() : 0);
    if (operands_.Count() >= 2)
        operandB_ = SignExtend(operands_.Below(1), bitSize_);
}

bool TQORProgCalcEngine::HigherPrecedence(char newOp, char topOp) const
{
    static constexpr TQORCodeSet multiplicative {ocMultiply, ocDivide};
    // MOD and XOR bind above multiplication: the chosen order, kept.
    static constexpr TQORCodeSet tight {ocMod, ocRoot, ocXor};
    return (precedence_ && BindsTighter(newOp, topOp, multiplicative, tight))
        || topOp == ocLeftBracket || kFunctionCodeSet.Contains(newOp);
}

void TQORProgCalcEngine::StackManipulation()
{
    SetSizeValues();
    const char op = operators_.Top();
    if (const auto* binary = FindCode(kBinaryOperators, op); binary && !operands_.Empty()) {
        // The processor's division fault covers a divisor whose word-size part is zero.
        if (!binary->Apply && (operands_.Top() == 0 || operandA_ == 0))
            throw EZeroDivide(rsDivideByZero());
        const std::int64_t result = Compute(*binary, operandB_, operandA_, bitSize_ == bs64Bits);
        // With a single operand the left-hand side is 0 and the result stays the only operand.
        if (operands_.Count() >= 2) {
            operands_.Below(1) = result;
            operands_.Drop();
        } else {
            operands_.Top() = result;
        }
    } else if (op == ocNot && !operands_.Empty()) {
        operands_.Top() = ~operandA_;
    }
    operators_.Drop();
}

void TQORProgCalcEngine::UpdateValue()
{
    if (entry_.empty())
        return;
    UpdateValues();
    PushOperandStack(value_);
    AddToHistory(value_);
    ClearEntry();
}

void TQORProgCalcEngine::ShowTopOperand()
{
    if (!operands_.Empty())
        ConvertValues(operands_.Top());
    else
        SetDisplayValue0();
}

void TQORProgCalcEngine::Arithmetic(char op)
{
    if (baseDisplay_ == bdDecimal && (op == ocAdd || op == ocSubtract)
        && ((entry_.empty() && operands_.Empty()) || kOperatorKeys.Contains(lastKey_)
            || kFunctionCodeSet.Contains(lastKey_))) {
        Numeric(op); // a sign of the number being typed
        return;
    }
    Guarded([&] {
        UpdateValue();
        while (!operators_.Empty() && !HigherPrecedence(op, operators_.Top()))
            StackManipulation();
        PushOperatorStack(op);
        ShowTopOperand();
    });
    const auto* binary = FindCode(kBinaryOperators, op);
    AddToHistory(binary ? binary->HistoryText() : std::string(1, op));
    lastKey_ = op;
}

void TQORProgCalcEngine::DoResult()
{
    Guarded([&] {
        UpdateValue();
        while (!operators_.Empty())
            StackManipulation();
        operands_.KeepTopOnly();
        if (operands_.Empty()) {
            if (Shown().find(rsErrorMsg()) == std::string::npos)
                SetDisplayValue0();
        } else {
            ConvertValues(operands_.Top()); // the only operand left
        }
    });
}

void TQORProgCalcEngine::DoEquals()
{
    DoResult();
    AddToHistory(std::string("="));
    AddToHistory(Shown());
    lastKey_ = ocResult;
}

void TQORProgCalcEngine::InputLeftBracket()
{
    // A lone decimal sign before a bracket means -1 times the bracket.
    if (entry_ == "-") {
        InputDigit('1');
        DoMultiply();
    }
    ClearEntry();
    PushOperatorStack(ocLeftBracket);
    ShowTopOperand();
    AddToHistory(std::string("("));
    lastKey_ = ocLeftBracket;
}

void TQORProgCalcEngine::InputRightBracket()
{
    Guarded([&] {
        UpdateValue();
        while (!operators_.Empty() && operators_.Top() != ocLeftBracket)
            StackManipulation();
        if (!operators_.Empty())
            operators_.Drop();
        ShowTopOperand();
    });
    AddToHistory(std::string(")"));
    lastKey_ = ocRightBracket;
}

void TQORProgCalcEngine::HandleError(const std::string& message)
{
    AllClear();
    SetDisplayValue(rsErrorMsg());
    lastError_ = message;
    AddToHistory(rsPaperErrLine());
    Fire(onError_, this);
}

// ---- One-operand keys ----------------------------------------------------------------------

template<class Fn> void TQORProgCalcEngine::UnaryKey(Fn&& compute, const std::string& historyLine)
{
    Guarded([&] {
        std::int64_t result = 0;
        if (!entry_.empty()) {
            UpdateValues();
            const std::int64_t operand = value_;
            AddToHistory(operand);
            result = compute(operand);
        } else if (!operands_.Empty()) {
            result = compute(operands_.Top());
        }
        value_ = result;
        ConvertValues(result);
        ClearEntry();
        // The result goes on top of the operand it came from: a pending two-operand operator
        // takes both (5 + NEG = gives 0). Kept.
        PushOperandStack(result);
    });
    AddToHistory(historyLine);
    lastKey_ = ocNone;
}

void TQORProgCalcEngine::DoNeg()
{
    UnaryKey(
        [](std::int64_t v) {
            return static_cast<std::int64_t>(0U - static_cast<std::uint64_t>(v));
        },
        rsNEGPaper());
}

void TQORProgCalcEngine::DoNot()
{
    if (prefixFunctions_) {
        // Prefix NOT: applied to the operand that follows, at the next evaluation.
        ClearEntry();
        PushOperatorStack(ocNot);
        AddToHistory(rsNOTPaper());
        ShowTopOperand();
        lastKey_ = ocNone;
        return;
    }
    UnaryKey(
        [this](std::int64_t v) {
            SetSizeValueA(v);
            return ~operandA_;
        },
        rsNOTPaper());
}

void TQORProgCalcEngine::ShiftKey(std::int64_t (*compute)(std::int64_t, int bits, int count),
                                  const std::string& word, std::int32_t count)
{
    const int n = std::clamp(count, 1, 64);
    UnaryKey(
        [this, compute, n](std::int64_t v) {
            SetSizeValueA(v);
            return compute(operandA_, BitSizeBits(bitSize_), n);
        },
        word + " " + std::to_string(n));
}

void TQORProgCalcEngine::DoShl(std::int32_t count) { ShiftKey(Shift<true>, rsSHLPaper(), count); }
void TQORProgCalcEngine::DoShr(std::int32_t count) { ShiftKey(Shift<false>, rsSHRPaper(), count); }
void TQORProgCalcEngine::DoRol(std::int32_t count)
{
    ShiftKey(Rotate<ROL8, ROL16, ROL32, ROL64>, rsROLPaper(), count);
}
void TQORProgCalcEngine::DoRor(std::int32_t count)
{
    ShiftKey(Rotate<ROR8, ROR16, ROR32, ROR64>, rsRORPaper(), count);
}

std::int64_t TQORProgCalcEngine::ComputeAbs(std::int64_t v) noexcept
{
    return v >= 0 ? v : static_cast<std::int64_t>(0U - static_cast<std::uint64_t>(v));
}

// ---- Base, size and spacing ----------------------------------------------------------------

// The quiet change (SetBaseDisplay2) always completes the calculation, keeps the word size and
// raises no event nor history line.
void TQORProgCalcEngine::ChangeBase(TQORBaseDisplay value, bool announced)
{
    if (value == baseDisplay_)
        return;
    const bool pending = announced && kOperatorKeys.Contains(lastKey_);
    if (!pending)
        DoResult();
    DetachDisplay();
    entry_ = display_ == rsErrorMsg() ? std::string() : display_;
    EntryChanged();
    if (pending) {
        ClearEntry();
        display_.clear();
        displayIsEntry_ = false;
        displayPlain_ = kPlainUnknown;
    } else {
        ChangeValues(baseDisplay_, value);
    }
    baseDisplay_ = value;
    if (announced)
        Fire(onBaseDisplayChange_, this);
    UpdateValues();
    if (announced && value == bdDecimal) {
        // Decimal always works at 64 bits with signed values.
        bitSize_ = bs64Bits;
        Fire(onBitSizeChange_, this);
    }
    if (!pending)
        ShowCurrentText();
    if (announced) {
        AddToHistory(TextOf(kBaseNames, value));
        Fire(onMemoryChange_, this);
    }
}

// Extend moves the old sign bit to the new top position and leaves the other bits as they
// are (8 to 16 bits: 80 becomes 8000, FF becomes 807F). This is the meaning of "Extend".
void TQORProgCalcEngine::ExtendSignBit()
{
    // The texts still hold the pattern at the old size: its top bit is the old sign.
    if (!textsSet_)
        return;
    const int oldBits = 8 << (textSize_ & 3U);
    if ((textBits_ >> (oldBits - 1) & 1U) == 0)
        return;
    const std::uint64_t topBit = 1ULL << ((8 << (bitSize_ & 3U)) - 1);
    const std::uint64_t bits
        = ((textBits_ & ~(1ULL << (oldBits - 1))) & SizeMask(bitSize_)) | topBit;
    SetTexts(bits, bitSize_);
    value_ = static_cast<std::int64_t>(bits);
    if (operands_.Empty()) {
        DetachDisplay();
        entry_ = baseDisplay_ == bdDecimal ? Int2EStr(value_) : *BaseText();
        EntryChanged();
    } else {
        operands_.Top() = value_;
    }
}

// The quiet change (SetBitSize2) truncates whatever SizeChange says and raises no event nor
// history line.
void TQORProgCalcEngine::ChangeBitSize(TQORBitSize value, bool announced)
{
    value = KnownBitSize(value);
    if (value == bitSize_)
        return;
    bitSize_ = value;
    if (announced) {
        Fire(onBitSizeChange_, this);
        // Truncate needs nothing here: the result below is cut to the new size.
        if (sizeChange_ == pscClear)
            AllClear();
        else if (sizeChange_ == pscExtend)
            ExtendSignBit();
        AddToHistory(TextOf(kBitSizeTexts, value));
    }
    ShowCurrentText();
    if (announced)
        Fire(onMemoryChange_, this);
    // Completes any half-entered expression at the new width.
    DoResult();
}

void TQORProgCalcEngine::SetSpacing(TQORProgSpacing value)
{
    if (value == spacing_)
        return;
    spacing_ = value;
    Fire(onSpacingChange_, this);
    if (baseDisplay_ == bdDecimal)
        SetDisplayValue(DisplayValue(value_));
    else // any other base works as hexadecimal
        SetDisplayValue(
            DisplayValueIn(RadixBits(baseDisplay_) == 4 ? bdHexadecimal : baseDisplay_));
    Fire(onMemoryChange_, this);
    DoResult();
}

std::string TQORProgCalcEngine::GetBaseDisplayStr() const
{
    return TextOf(kBaseDisplayTexts, baseDisplay_);
}

std::string TQORProgCalcEngine::GetBitSizeStr() const { return TextOf(kBitSizeTexts, bitSize_); }
std::string TQORProgCalcEngine::GetSpacingStr() const { return TextOf(kSpacingTexts, spacing_); }

std::string TQORProgCalcEngine::GetSizeChangeStr() const
{
    return TextOf(kSizeChangeTexts, sizeChange_);
}

// ---- Memory --------------------------------------------------------------------------------

// The memory key's history line, then the register's value when MemoryHistory is on.
void TQORProgCalcEngine::MemoryHistoryLine(const std::string& key)
{
    AddToHistory(key);
    if (memoryHistory_)
        AddToHistory("[" + rsMemoryHistoryPrefix() + DisplayValue(memory_) + " ]");
}

void TQORProgCalcEngine::MemoryChange(bool add)
{
    DoResult();
    if (!operands_.Empty()) {
        const auto top = static_cast<std::uint64_t>(operands_.Top());
        const auto memory = static_cast<std::uint64_t>(memory_);
        memory_ = static_cast<std::int64_t>(add ? memory + top : memory - top);
    }
    MemoryHistoryLine(add ? rsMemAddPaper() : rsMemSubPaper());
    Fire(onMemoryChange_, this);
}

void TQORProgCalcEngine::MemoryClear()
{
    memory_ = 0;
    MemoryHistoryLine(rsMemClrPaper());
    Fire(onMemoryChange_, this);
}

void TQORProgCalcEngine::MemoryRecall()
{
    ConvertValues(memory_);
    ClearEntry();
    PushOperandStack(memory_);
    MemoryHistoryLine(rsMemRecPaper());
}

void TQORProgCalcEngine::SetMemory(std::int64_t v)
{
    memory_ = v;
    Fire(onMemoryChange_, this);
}

// ---- History -------------------------------------------------------------------------------

const std::string& TQORProgCalcEngine::TapeText(const TTapeLine& line)
{
    if (line.Pending) {
        FormatValue(line.Text, line.Value, line.Base, line.Size, line.Spacing, line.MaxLength);
        line.Pending = false;
    }
    return line.Text;
}

void TQORProgCalcEngine::AddToHistory(const std::string& s)
{
    TTapeLine& line = tape_.Add();
    line.Text = s;
    line.Pending = false;
    Fire(onHistoryChange_, this);
}

// The line keeps the value and today's modes; its text is written when it is first read.
void TQORProgCalcEngine::AddToHistory(std::int64_t v)
{
    TTapeLine& line = tape_.Add();
    line.Value = v;
    line.Base = baseDisplay_;
    line.Size = bitSize_;
    line.Spacing = spacing_;
    line.MaxLength = maxDisplayLength_;
    line.Pending = true;
    Fire(onHistoryChange_, this);
}

void TQORProgCalcEngine::PaperLine() { AddToHistory(rsPaperLine()); }

std::string TQORProgCalcEngine::GetNextHistoryEntry()
{
    TTapeLine* line = tape_.Next();
    return line != nullptr ? TapeText(*line) : std::string();
}

// Lines keep the spacing of the moment they were written; they are shown in the current one.
// Words are regrouped too.
std::string TQORProgCalcEngine::GetHistoryEntry(std::uint16_t index) const
{
    std::string s;
    if (const TTapeLine* line = tape_.At(index))
        Regroup(s, TapeText(*line), GroupWidth());
    return s;
}

const std::string& TQORProgCalcEngine::GetLastHistoryEntry() const
{
    const TTapeLine* last = tape_.Last();
    if (last == nullptr) {
        lastLine_.clear();
        return lastLine_;
    }
    const std::string& line = TapeText(*last);
    if (line.empty() || !std::isxdigit(static_cast<unsigned char>(line.front())))
        return line;
    Regroup(lastLine_, line, GroupWidth());
    if (lastLine_ == line) // regrouped or not, the same text: the size names need no look
        return line;
    for (TTextFn sizeName : kBitSizeTexts)
        if (line == sizeName())
            return line;
    return lastLine_;
}

// ---- Named keys ------------------------------------------------------------------------------

namespace {

constexpr TQORProgKey kProgKeys[] = {
    {"+", [](IQORProgCalcEngine& e) { e.DoAdd(); }},
    {"-", [](IQORProgCalcEngine& e) { e.DoSubtract(); }},
    {"*", [](IQORProgCalcEngine& e) { e.DoMultiply(); }},
    {"/", [](IQORProgCalcEngine& e) { e.DoDivide(); }},
    {"MOD", [](IQORProgCalcEngine& e) { e.DoMod(); }},
    {"AND", [](IQORProgCalcEngine& e) { e.DoAnd(); }},
    {"OR", [](IQORProgCalcEngine& e) { e.DoOr(); }},
    {"XOR", [](IQORProgCalcEngine& e) { e.DoXor(); }},
    {"NAND", [](IQORProgCalcEngine& e) { e.DoNand(); }},
    {"NOR", [](IQORProgCalcEngine& e) { e.DoNor(); }},
    {"XNOR", [](IQORProgCalcEngine& e) { e.DoXnor(); }},
    {"NOT", [](IQORProgCalcEngine& e) { e.DoNot(); }},
    {"NEG", [](IQORProgCalcEngine& e) { e.DoNeg(); }},
    {"(", [](IQORProgCalcEngine& e) { e.InputLeftBracket(); }},
    {")", [](IQORProgCalcEngine& e) { e.InputRightBracket(); }},
    {"=", [](IQORProgCalcEngine& e) { e.DoEquals(); }},
    {"MC", [](IQORProgCalcEngine& e) { e.MemoryClear(); }},
    {"M+", [](IQORProgCalcEngine& e) { e.MemoryAdd(); }},
    {"M-", [](IQORProgCalcEngine& e) { e.MemorySubtract(); }},
    {"MR", [](IQORProgCalcEngine& e) { e.MemoryRecall(); }},
    {"AC", [](IQORProgCalcEngine& e) { e.AllClear(); }},
    {"CL", [](IQORProgCalcEngine& e) { e.ClearDisplay(); }},
    {"BS", [](IQORProgCalcEngine& e) { e.InputBackspace(); }},
    {"BIN", [](IQORProgCalcEngine& e) { e.SetBaseDisplay(bdBinary); }},
    {"DEC", [](IQORProgCalcEngine& e) { e.SetBaseDisplay(bdDecimal); }},
    {"HEX", [](IQORProgCalcEngine& e) { e.SetBaseDisplay(bdHexadecimal); }},
    {"OCT", [](IQORProgCalcEngine& e) { e.SetBaseDisplay(bdOctal); }},
    {"BITS8", [](IQORProgCalcEngine& e) { e.SetBitSize(bs8Bits); }},
    {"BITS16", [](IQORProgCalcEngine& e) { e.SetBitSize(bs16Bits); }},
    {"BITS32", [](IQORProgCalcEngine& e) { e.SetBitSize(bs32Bits); }},
    {"BITS64", [](IQORProgCalcEngine& e) { e.SetBitSize(bs64Bits); }},
};

constexpr TQORProgCountedKey kProgCountedKeys[] = {
    {"SHL", &IQORProgCalcEngine::DoShl},
    {"SHR", &IQORProgCalcEngine::DoShr},
    {"ROL", &IQORProgCalcEngine::DoRol},
    {"ROR", &IQORProgCalcEngine::DoRor},
};

} // namespace

std::span<const TQORProgKey> ProgEngineKeys() { return kProgKeys; }

std::span<const TQORProgCountedKey> ProgEngineCountedKeys() { return kProgCountedKeys; }

bool PressProgKey(IQORProgCalcEngine& engine, std::string_view name)
{
    if (name.size() == 1 && std::isxdigit(static_cast<unsigned char>(name[0]))) {
        engine.InputDigit(static_cast<char>(std::toupper(static_cast<unsigned char>(name[0]))));
        return true;
    }
    if (const auto* key = FindName(kProgKeys, name)) {
        key->Press(engine);
        return true;
    }
    // A counted key alone moves one bit.
    const std::string_view word = name.substr(0, name.find(' '));
    std::int32_t count = 1;
    const auto* counted = FindName(kProgCountedKeys, word);
    if (counted == nullptr
        || (word.size() < name.size() && !ReadCount(name.substr(word.size() + 1), 9, count)))
        return false;
    (engine.*(counted->Press))(count);
    return true;
}

} // namespace qorkit
