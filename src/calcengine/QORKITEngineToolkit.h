// Internal to the two keystroke engines (TQORCalcEngine, TQORProgCalcEngine): the pieces both
// share. Not part of the library's interface; the header is installed only because the engine
// headers hold these types as members.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <initializer_list>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qorkit::engine_internal {

// The operation codes of the operator stacks and of the last key. They are the characters
// hosts read through LastOperator, so a code is a char wherever one is expected. Some
// characters stand for a different operation in each engine.
enum TQOROpCode : char {
    ocNone = ' ',
    ocResult = '=',
    ocLeftBracket = '(',
    ocRightBracket = ')',
    ocAdd = '+',
    ocSubtract = '-',
    ocMultiply = '*',
    ocDivide = '/',
    // The scientific engine.
    ocExponent = 'E',
    ocDecimalSeparator = '.',
    ocThousandsSeparator = ',',
    ocPower = '^',
    ocRoot = '@', // also ranked beside MOD and XOR in the programmer's precedence
    ocModulus = '#',
    ocRemainder = '&',
    ocDiv = '\\',
    ocIntDiv = '|',
    ocPercent = '%',
    // The programmer's engine.
    ocMod = '%',
    ocAnd = '&',
    ocOr = '|',
    ocXor = '^',
    ocXnor = '!',
    ocNor = '?',
    ocNand = '#',
    ocNot = '~',
};

// A set of codes as a table, for the tests on every key.
class TQORCodeSet {
public:
    constexpr TQORCodeSet(std::initializer_list<char> codes, std::string_view more = {})
    {
        for (const char c : codes)
            members_[static_cast<unsigned char>(c)] = true;
        for (const char c : more)
            members_[static_cast<unsigned char>(c)] = true;
    }
    constexpr bool Contains(char code) const noexcept
    {
        return members_[static_cast<unsigned char>(code)];
    }

private:
    std::array<bool, 256> members_ {};
};

// The function codes, a letter per function and toggle state. Both engines treat them as
// prefix functions on the operator stack.
inline constexpr TQORCodeSet kFunctionCodeSet {{}, "ACDGLNQRSTUWacdfgilnqrstuw"};

// Infix precedence: whether newOp binds tighter than the operator topOp beneath it. An
// operator of `multiplicative` waits for nothing but + and -; one of `tight` neither for * and
// /. Every other pair reduces the top first.
inline bool BindsTighter(char newOp, char topOp, const TQORCodeSet& multiplicative,
                         const TQORCodeSet& tight) noexcept
{
    const bool topAdditive = topOp == ocAdd || topOp == ocSubtract;
    return (multiplicative.Contains(newOp) && topAdditive)
        || (tight.Contains(newOp) && (topAdditive || topOp == ocMultiply || topOp == ocDivide));
}

// The row of a table whose Code is `code`, or nullptr.
template<class Row, std::size_t N> const Row* FindCode(const Row (&table)[N], char code) noexcept
{
    for (const Row& row : table)
        if (row.Code == code)
            return &row;
    return nullptr;
}

// The row of a table whose Name is `name`, or nullptr.
template<class Row, std::size_t N>
const Row* FindName(const Row (&table)[N], std::string_view name) noexcept
{
    for (const Row& row : table)
        if (row.Name == name)
            return &row;
    return nullptr;
}

// The count of a named key ("round2", "SHL 4"): 1 to maxDigits decimal digits, nothing else.
bool ReadCount(std::string_view text, std::size_t maxDigits, std::int32_t& count) noexcept;

// Calls an engine's event handler when one is assigned.
template<class Handler, class Sender> void Fire(const Handler& handler, Sender* sender)
{
    if (handler)
        handler(sender);
}

// The one error path of an engine operation. Only the outermost guarded call catches: a fault
// anywhere inside abandons the rest of the operation and is handed to onError with its
// message. Out of memory is never swallowed; it always propagates to the caller.
class TQORErrorGuard {
public:
    template<class Body, class OnError> void Run(Body&& body, OnError&& onError)
    {
        if (depth_ > 0) {
            std::forward<Body>(body)();
            return;
        }
        std::string message;
        try {
            const Depth depth(depth_);
            std::forward<Body>(body)();
            return;
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception& e) {
            message = e.what();
        }
        std::forward<OnError>(onError)(message);
    }

private:
    struct Depth {
        int& depth;
        explicit Depth(int& d) : depth(d) { ++depth; }
        ~Depth() { --depth; }
        Depth(const Depth&) = delete;
        Depth& operator=(const Depth&) = delete;
    };
    int depth_ = 0;
};

// An evaluation stack: slots are reused, the top index is -1 when empty.
template<class T> class TQOREvalStack {
public:
    TQOREvalStack() : slots_(kInitialSlots) { }

    void Push(const T& value)
    {
        if (static_cast<std::size_t>(top_ + 1) >= slots_.size())
            slots_.resize(static_cast<std::size_t>(top_ + 1) + kGrowth - 1); // top + 5
        slots_[static_cast<std::size_t>(++top_)] = value;
    }
    T Pop() { return slots_[static_cast<std::size_t>(top_--)]; }
    void Drop() { --top_; }
    void Clear() noexcept { top_ = -1; }
    // Keeps only the top item, moved to the bottom.
    void KeepTopOnly()
    {
        if (top_ > 0) {
            slots_[0] = slots_[static_cast<std::size_t>(top_)];
            top_ = 0;
        }
    }

    T& Top() { return slots_[static_cast<std::size_t>(top_)]; }
    // The item `below` places under the top (0: the top itself).
    T& Below(std::int32_t below) { return slots_[static_cast<std::size_t>(top_ - below)]; }
    std::int32_t Count() const noexcept { return top_ + 1; }
    bool Empty() const noexcept { return top_ < 0; }

private:
    static constexpr std::size_t kInitialSlots = 10;
    static constexpr std::size_t kGrowth = 5;
    std::vector<T> slots_;
    std::int32_t top_ = -1;
};

// The lines of a paper tape and its read cursor. A line is a text, or a record of the
// engine's that writes its text when first read. Slots of a cleared tape are reused.
template<class Line = std::string> class TQORTapeStore {
public:
    // The new last line, for the caller to fill.
    Line& Add()
    {
        if (count_ == lines_.size())
            lines_.emplace_back();
        return lines_[count_++];
    }
    void Add(Line line) { Add() = std::move(line); }
    void Clear() noexcept
    {
        count_ = 0;
        Start();
    }
    void Start() noexcept { position_ = -1; }
    // The line after the cursor, moving the cursor onto it; nullptr past the last line.
    Line* Next() noexcept
    {
        // 64-bit arithmetic: a host may store any position, INT32_MAX included. A position
        // below the start reads from the first line.
        const std::int64_t next = std::max<std::int64_t>(position_, -1) + 1;
        if (next >= static_cast<std::int64_t>(count_))
            return nullptr;
        position_ = static_cast<std::int32_t>(next);
        return &lines_[static_cast<std::size_t>(next)];
    }
    // Line `index`, or nullptr beyond the end.
    const Line* At(std::size_t index) const noexcept
    {
        return index < count_ ? &lines_[index] : nullptr;
    }
    const Line* Last() const noexcept { return At(count_ - 1); }
    std::int32_t Length() const noexcept { return static_cast<std::int32_t>(count_); }
    std::int32_t Position() const noexcept { return position_; }
    void SetPosition(std::int32_t value) noexcept { position_ = value; }
    std::span<const Line> Lines() const noexcept { return {lines_.data(), count_}; }

private:
    std::vector<Line> lines_; // the first count_ are in use
    std::size_t count_ = 0;
    std::int32_t position_ = -1;
};

// Sign clean-up of a typed number: "--" and "-+" cancel, "+-" is a minus.
void CleanSigns(std::string& text);

} // namespace qorkit::engine_internal
