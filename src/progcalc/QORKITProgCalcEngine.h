// The programmer's calculator engine: a keystroke-driven calculator over signed 64-bit integers,
// shown in binary, octal, decimal or hexadecimal at a word size of 8, 16, 32 or 64 bits, with
// bitwise operators, shifts, rotates, a memory register and a history of lines.
//
// Owners drive the engine through IQORProgCalcEngine, held by std::shared_ptr:
//
//   std::shared_ptr<IQORProgCalcEngine> engine = std::make_shared<TQORProgCalcEngine>();
//   engine->InputDigit('7'); engine->InputDigit('F'); engine->DoAdd(); ...
//
// A failure inside an operation never leaves it: the engine clears itself, shows "Error!",
// keeps the message for GetLastError, writes the error line to the history and calls OnError.
// Each OnX holds one handler, so the events belong to whoever owns the engine; Qt code follows
// an engine through its TQORProgCalcEngineObject (QORKITEngineObjects.h) instead.
#pragma once

#include "QORKITEngineToolkit.h"
#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit {

class IQORProgCalcEngine;

// Notification handler; the argument is the engine that sends it.
using TQORProgCalcNotifyEvent = std::function<void(IQORProgCalcEngine* sender)>;

class QORKIT_CORE_EXPORT IQORProgCalcEngine {
public:
    virtual ~IQORProgCalcEngine() = default;

    // Display and value. The texts returned by reference stay valid until the next call on
    // the engine; take a copy to keep one longer.
    virtual const std::string& GetDisplayStr() const = 0;
    virtual std::int64_t GetDisplayValue() = 0;
    virtual const std::string& GetDisplayValueHex() = 0;
    virtual const std::string& GetDisplayValueOct() = 0;
    virtual const std::string& GetDisplayValueBin() = 0;
    virtual const std::string& GetLastError() const = 0;

    // Entry.
    virtual void InputString(const std::string& s) = 0;
    virtual void InputValue(std::int64_t v) = 0;
    virtual void InputDigit(char ch) = 0;
    virtual void InputBackspace() = 0;
    virtual void InputLeftBracket() = 0;
    virtual void InputRightBracket() = 0;

    // Evaluation and two-operand operators.
    virtual void DoResult() = 0;
    virtual void DoEquals() = 0;
    virtual void DoAdd() = 0;
    virtual void DoSubtract() = 0;
    virtual void DoMultiply() = 0;
    virtual void DoDivide() = 0;
    virtual void DoMod() = 0;
    virtual void DoAnd() = 0;
    virtual void DoOr() = 0;
    virtual void DoXor() = 0;
    virtual void DoXnor() = 0;
    virtual void DoNor() = 0;
    virtual void DoNand() = 0;

    // One-operand keys.
    virtual void DoNeg() = 0;
    virtual void DoNot() = 0;
    virtual void DoShl(std::int32_t count) = 0;
    virtual void DoShr(std::int32_t count) = 0;
    virtual void DoRol(std::int32_t count) = 0;
    virtual void DoRor(std::int32_t count) = 0;

    // Modes.
    virtual void SetBaseDisplay(TQORBaseDisplay value) = 0;
    virtual void SetBaseDisplay2(TQORBaseDisplay value) = 0;
    virtual TQORBaseDisplay GetBaseDisplay() const = 0;
    virtual std::string GetBaseDisplayStr() const = 0;
    virtual void SetBitSize(TQORBitSize value) = 0;
    virtual void SetBitSize2(TQORBitSize value) = 0;
    virtual TQORBitSize GetBitSize() const = 0;
    virtual std::string GetBitSizeStr() const = 0;
    virtual void SetSpacing(TQORProgSpacing value) = 0;
    virtual TQORProgSpacing GetSpacing() const = 0;
    virtual std::string GetSpacingStr() const = 0;
    virtual void SetSizeChange(TQORProgSizeChange value) = 0;
    virtual TQORProgSizeChange GetSizeChange() const = 0;
    virtual std::string GetSizeChangeStr() const = 0;

    // Clearing and memory.
    virtual void AllClear() = 0;
    virtual void ClearDisplay() = 0;
    virtual void MemoryClear() = 0;
    virtual void MemoryAdd() = 0;
    virtual void MemorySubtract() = 0;
    virtual void MemoryRecall() = 0;
    virtual void SetMemory(std::int64_t v) = 0;
    virtual const std::string& GetMemoryContents() const = 0;
    virtual std::int64_t GetMemoryValue() const = 0;

    // Switches.
    virtual void SetPrefixFunctions(bool value) = 0;
    virtual bool GetPrefixFunctions() const = 0;
    virtual void SetPrecedence(bool value) = 0;
    virtual bool GetPrecedence() const = 0;
    virtual void SetMemoryHistory(bool value) = 0;
    virtual bool GetMemoryHistory() const = 0;

    // History.
    virtual void ClearHistory() = 0;
    virtual void HistoryStart() = 0;
    virtual std::string GetNextHistoryEntry() = 0;
    virtual std::string GetHistoryEntry(std::uint16_t index) const = 0;
    virtual const std::string& GetLastHistoryEntry() const = 0;
    virtual std::int32_t GetHistoryLength() const = 0;
    virtual std::int32_t GetHistoryPosition() const = 0;
    virtual void SetHistoryPosition(std::int32_t value) = 0;
    virtual void PaperLine() = 0;

    virtual std::uint8_t GetMaxDisplayLength() const = 0;
    virtual void SetMaxDisplayLength(std::uint8_t value) = 0;

    // Notifications, each called only when assigned: OnHistoryChange (a line was added),
    // OnDisplayChange, OnError, OnMemoryChange (also when the memory's text changes with the
    // base, size or spacing), OnBaseDisplayChange, OnBitSizeChange, OnSpacingChange and
    // OnSizeChangeChange (never raised by the engine itself).
    virtual TQORProgCalcNotifyEvent GetOnHistoryChange() const = 0;
    virtual void SetOnHistoryChange(TQORProgCalcNotifyEvent handler) = 0;
    virtual TQORProgCalcNotifyEvent GetOnDisplayChange() const = 0;
    virtual void SetOnDisplayChange(TQORProgCalcNotifyEvent handler) = 0;
    virtual TQORProgCalcNotifyEvent GetOnError() const = 0;
    virtual void SetOnError(TQORProgCalcNotifyEvent handler) = 0;
    virtual TQORProgCalcNotifyEvent GetOnMemoryChange() const = 0;
    virtual void SetOnMemoryChange(TQORProgCalcNotifyEvent handler) = 0;
    virtual TQORProgCalcNotifyEvent GetOnBaseDisplayChange() const = 0;
    virtual void SetOnBaseDisplayChange(TQORProgCalcNotifyEvent handler) = 0;
    virtual TQORProgCalcNotifyEvent GetOnBitSizeChange() const = 0;
    virtual void SetOnBitSizeChange(TQORProgCalcNotifyEvent handler) = 0;
    virtual TQORProgCalcNotifyEvent GetOnSpacingChange() const = 0;
    virtual void SetOnSpacingChange(TQORProgCalcNotifyEvent handler) = 0;
    virtual TQORProgCalcNotifyEvent GetOnSizeChangeChange() const = 0;
    virtual void SetOnSizeChangeChange(TQORProgCalcNotifyEvent handler) = 0;
};

class QORKIT_CORE_EXPORT TQORProgCalcEngine final : public IQORProgCalcEngine {
public:
    // A new engine works in hexadecimal at 64 bits, without spacing, clearing on size changes,
    // with precedence and prefix NOT on (properties Precedence, PrefixFunctions), memory lines
    // off (MemoryHistory) and MaxDisplayLength 26. Its display text is "00000000" until the
    // owner refreshes it: the zero display is formed before base and size are set.
    TQORProgCalcEngine();

    const std::string& GetDisplayStr() const override
    {
        // The common case first: no grouping (no spacing, or decimal) and a display known to
        // hold no blank is its own text.
        const bool ungrouped = (spacing_ & 3U) == psNoSpacing || (baseDisplay_ & 3U) == bdDecimal;
        if (ungrouped && displayPlain_ == kPlain && !Shown().empty())
            return Shown();
        return DisplayStrOtherwise();
    }
    std::int64_t GetDisplayValue() override;
    const std::string& GetDisplayValueHex() override { return DisplayValueIn(bdHexadecimal); }
    const std::string& GetDisplayValueOct() override { return DisplayValueIn(bdOctal); }
    // Returns the octal text while an entry is in progress; intended and kept.
    const std::string& GetDisplayValueBin() override { return DisplayValueIn(bdBinary); }
    const std::string& GetLastError() const override { return lastError_; }

    void InputString(const std::string& s) override;
    void InputValue(std::int64_t v) override;
    void InputDigit(char ch) override;
    void InputBackspace() override;
    void InputLeftBracket() override;
    void InputRightBracket() override;

    void DoResult() override;
    void DoEquals() override;
    void DoAdd() override { Arithmetic(engine_internal::ocAdd); }
    void DoSubtract() override { Arithmetic(engine_internal::ocSubtract); }
    void DoMultiply() override { Arithmetic(engine_internal::ocMultiply); }
    void DoDivide() override { Arithmetic(engine_internal::ocDivide); }
    void DoMod() override { Arithmetic(engine_internal::ocMod); }
    void DoAnd() override { Arithmetic(engine_internal::ocAnd); }
    void DoOr() override { Arithmetic(engine_internal::ocOr); }
    void DoXor() override { Arithmetic(engine_internal::ocXor); }
    void DoXnor() override { Arithmetic(engine_internal::ocXnor); }
    void DoNor() override { Arithmetic(engine_internal::ocNor); }
    void DoNand() override { Arithmetic(engine_internal::ocNand); }

    void DoNeg() override;
    void DoNot() override;
    void DoShl(std::int32_t count) override;
    void DoShr(std::int32_t count) override;
    void DoRol(std::int32_t count) override;
    void DoRor(std::int32_t count) override;

    void SetBaseDisplay(TQORBaseDisplay value) override { ChangeBase(value, true); }
    void SetBaseDisplay2(TQORBaseDisplay value) override { ChangeBase(value, false); }
    TQORBaseDisplay GetBaseDisplay() const override { return baseDisplay_; }
    // Answers "Hex" for the octal base too; intended and kept.
    std::string GetBaseDisplayStr() const override;
    void SetBitSize(TQORBitSize value) override { ChangeBitSize(value, true); }
    void SetBitSize2(TQORBitSize value) override { ChangeBitSize(value, false); }
    TQORBitSize GetBitSize() const override { return bitSize_; }
    std::string GetBitSizeStr() const override;
    void SetSpacing(TQORProgSpacing value) override;
    TQORProgSpacing GetSpacing() const override { return spacing_; }
    std::string GetSpacingStr() const override;
    // Stores the mode only; no notification.
    void SetSizeChange(TQORProgSizeChange value) override { sizeChange_ = value; }
    TQORProgSizeChange GetSizeChange() const override { return sizeChange_; }
    std::string GetSizeChangeStr() const override;

    void AllClear() override;
    void ClearDisplay() override;
    void MemoryClear() override;
    void MemoryAdd() override { MemoryChange(true); }
    void MemorySubtract() override { MemoryChange(false); }
    void MemoryRecall() override;
    void SetMemory(std::int64_t v) override;
    const std::string& GetMemoryContents() const override;
    std::int64_t GetMemoryValue() const override { return memory_; }

    void SetPrefixFunctions(bool value) override { prefixFunctions_ = value; }
    bool GetPrefixFunctions() const override { return prefixFunctions_; }
    void SetPrecedence(bool value) override { precedence_ = value; }
    bool GetPrecedence() const override { return precedence_; }
    void SetMemoryHistory(bool value) override { memoryHistory_ = value; }
    bool GetMemoryHistory() const override { return memoryHistory_; }

    void ClearHistory() override { tape_.Clear(); }
    void HistoryStart() override { tape_.Start(); }
    std::string GetNextHistoryEntry() override;
    std::string GetHistoryEntry(std::uint16_t index) const override;
    const std::string& GetLastHistoryEntry() const override;
    std::int32_t GetHistoryLength() const override { return tape_.Length(); }
    std::int32_t GetHistoryPosition() const override { return tape_.Position(); }
    void SetHistoryPosition(std::int32_t value) override { tape_.SetPosition(value); }
    void PaperLine() override;

    std::uint8_t GetMaxDisplayLength() const override { return maxDisplayLength_; }
    void SetMaxDisplayLength(std::uint8_t value) override { maxDisplayLength_ = value; }

    TQORProgCalcNotifyEvent GetOnHistoryChange() const override { return onHistoryChange_; }
    void SetOnHistoryChange(TQORProgCalcNotifyEvent h) override { onHistoryChange_ = std::move(h); }
    TQORProgCalcNotifyEvent GetOnDisplayChange() const override { return onDisplayChange_; }
    void SetOnDisplayChange(TQORProgCalcNotifyEvent h) override { onDisplayChange_ = std::move(h); }
    TQORProgCalcNotifyEvent GetOnError() const override { return onError_; }
    void SetOnError(TQORProgCalcNotifyEvent h) override { onError_ = std::move(h); }
    TQORProgCalcNotifyEvent GetOnMemoryChange() const override { return onMemoryChange_; }
    void SetOnMemoryChange(TQORProgCalcNotifyEvent h) override { onMemoryChange_ = std::move(h); }
    TQORProgCalcNotifyEvent GetOnBaseDisplayChange() const override { return onBaseDisplayChange_; }
    void SetOnBaseDisplayChange(TQORProgCalcNotifyEvent h) override
    {
        onBaseDisplayChange_ = std::move(h);
    }
    TQORProgCalcNotifyEvent GetOnBitSizeChange() const override { return onBitSizeChange_; }
    void SetOnBitSizeChange(TQORProgCalcNotifyEvent h) override { onBitSizeChange_ = std::move(h); }
    TQORProgCalcNotifyEvent GetOnSpacingChange() const override { return onSpacingChange_; }
    void SetOnSpacingChange(TQORProgCalcNotifyEvent h) override { onSpacingChange_ = std::move(h); }
    // Never raised by the engine itself; kept for owners that share one handler table.
    TQORProgCalcNotifyEvent GetOnSizeChangeChange() const override { return onSizeChangeChange_; }
    void SetOnSizeChangeChange(TQORProgCalcNotifyEvent h) override
    {
        onSizeChangeChange_ = std::move(h);
    }

    // Appends a line, or a value formatted for the current base, size and spacing.
    void AddToHistory(const std::string& s);
    void AddToHistory(std::int64_t v);
    // v when v >= 0, else -v in 64 bits (the smallest int64 stays itself).
    static std::int64_t ComputeAbs(std::int64_t v) noexcept;
    // Digit counts of the current word size.
    void GetNoChars(int& hexChars, int& octChars, int& binChars) const;
    // The value as the display shows it in the current base, size and spacing.
    std::string DisplayValue(std::int64_t v) const;

private:
    void Numeric(char ch);
    void Arithmetic(char op);
    bool HigherPrecedence(char newOp, char topOp) const;
    void StackManipulation();
    void UpdateValue();
    void UpdateValues();
    void ChangeValues(TQORBaseDisplay oldBase, TQORBaseDisplay newBase);
    void ConvertValues(std::int64_t v);
    void SetDisplayValue(const std::string& s);
    void SetDisplayValue0() { ShowValue(0); }
    void SetSizeValues();
    void SetSizeValueA(std::int64_t v);
    void PushOperandStack(std::int64_t v) { operands_.Push(v); }
    void PushOperatorStack(char ch) { operators_.Push(ch); }

    template<class Fn> void UnaryKey(Fn&& compute, const std::string& historyLine);
    void ShiftKey(std::int64_t (*compute)(std::int64_t, int bits, int count),
                  const std::string& word, std::int32_t count);
    void ChangeBase(TQORBaseDisplay value, bool announced);
    void ChangeBitSize(TQORBitSize value, bool announced);
    void ExtendSignBit();
    void MemoryChange(bool add);
    void MemoryHistoryLine(const std::string& key);
    void ShowTopOperand();
    template<class Body> void Guarded(Body&& body); // the one error path of an operation
    void HandleError(const std::string& message);
    int GroupWidth() const; // of the current base and spacing
    const std::string* BaseText() const;
    void ShowCurrentText(); // the value in the current base as the display
    void ShowValue(std::int64_t v); // v formatted for the current modes as the display
    const std::string& DisplayValueIn(TQORBaseDisplay textBase);
    void EntryChanged() noexcept; // after any edit of the entry but a digit's
    // The entry's bits, sign and blank-free state, for an entry just set to digits.
    void KnowEntryBits(std::uint64_t bits, bool negative) noexcept;
    void ClearEntry()
    {
        DetachDisplay();
        entry_.clear();
        KnowEntryBits(0, false);
    }
    void ShowEntry(); // the entry as the display
    const std::string& DisplayStrOtherwise() const; // GetDisplayStr past its common case
    // The display's text: the entry itself while it is being typed.
    const std::string& Shown() const { return displayIsEntry_ ? entry_ : display_; }
    // Gives the display its own copy of the entry before the entry changes otherwise than
    // by typing.
    void DetachDisplay()
    {
        if (displayIsEntry_) {
            display_ = entry_;
            displayIsEntry_ = false;
        }
    }
    void AppendEntryBits(std::uint64_t digit);

    // The word-size parts of the two top operands, sign-extended, loaded before each
    // evaluation step (A the right-hand operand, B the left-hand one).
    std::int64_t operandA_ = 0;
    std::int64_t operandB_ = 0;

    std::string entry_; // characters typed since the last operator or result
    // The entry's value as EntryValue reads it, kept while only digits are appended: the bits,
    // and for a decimal entry its sign. Valid while entryBitsKnown_ and the base is entryBase_.
    std::uint64_t entryBits_ = 0;
    bool entryNegative_ = false;
    bool entryBitsKnown_ = false;
    bool entryPlain_ = true; // the entry holds no blank
    TQORBaseDisplay entryBase_ = bdBinary;
    std::int64_t value_ = 0;
    // The value texts in base 16, 8 and 2, cut and zero-filled to a size: they are the bit
    // pattern textBits_ at the word size textSize_ of the moment they were last set (which
    // can lag behind value_ and bitSize_), written out only when read.
    std::uint64_t textBits_ = 0;
    TQORBitSize textSize_ = bs8Bits;
    bool textsSet_ = false; // all three are empty until first set
    enum TTextBase : std::uint8_t { tbHex, tbOct, tbBin };
    static constexpr int kTextRadixBits[] = {4, 3, 1}; // by TTextBase
    // Any base but binary and octal works as hexadecimal.
    static TTextBase TextBaseOf(TQORBaseDisplay base)
    {
        return base == bdBinary ? tbBin : base == bdOctal ? tbOct : tbHex;
    }
    struct TValueTexts {
        std::string Text[3]; // by TTextBase
        std::uint8_t Made = 0; // bit per TTextBase: the text holds the current pattern
        bool RejectedHex = false; // the hex text holds digits that failed to convert
    };
    mutable TValueTexts texts_;
    void SetTexts(std::uint64_t bits, TQORBitSize size);
    const std::string& ValueText(TTextBase which) const;
    bool EntryValue(std::uint64_t& bits); // the entry's bits without any text
    std::uint64_t EntryBitsFromText();
    std::string display_;
    // Whether the display holds no blank, when known (most displays are known to be digits).
    enum TPlain : std::int8_t { kPlainUnknown = -1, kNotPlain = 0, kPlain = 1 };
    mutable TPlain displayPlain_ = kPlainUnknown;
    bool displayIsEntry_ = false; // display_ is stale: the display is entry_
    // Texts handed out by reference: the grouped display, the three value texts of the
    // getters (hex, octal, binary), the memory, and the last history line regrouped.
    mutable std::string shown_;
    std::string valueTextsOut_[3];
    mutable std::string memoryText_;
    mutable std::string lastLine_;
    std::string lastError_;
    char lastKey_ = engine_internal::ocNone;
    TQORBaseDisplay baseDisplay_ = bdBinary;
    TQORBitSize bitSize_ = bs8Bits;
    TQORProgSpacing spacing_ = psNoSpacing;
    TQORProgSizeChange sizeChange_ = pscClear;
    std::int64_t memory_ = 0;
    engine_internal::TQOREvalStack<std::int64_t> operands_;
    engine_internal::TQOREvalStack<char> operators_;
    bool prefixFunctions_ = true;
    bool precedence_ = true;
    bool memoryHistory_ = false;
    // The history. A line is a text, or a value with the modes of its moment whose text is
    // written when the line is first read; slots and their texts are reused after a clear.
    struct TTapeLine {
        mutable std::string Text;
        std::int64_t Value = 0;
        TQORBaseDisplay Base = bdBinary;
        TQORBitSize Size = bs8Bits;
        TQORProgSpacing Spacing = psNoSpacing;
        std::uint8_t MaxLength = 0;
        mutable bool Pending = false; // Text does not hold the value line yet
    };
    static const std::string& TapeText(const TTapeLine& line);
    engine_internal::TQORTapeStore<TTapeLine> tape_;
    engine_internal::TQORErrorGuard guard_;
    std::uint8_t maxDisplayLength_ = 26;

    TQORProgCalcNotifyEvent onHistoryChange_;
    TQORProgCalcNotifyEvent onDisplayChange_;
    TQORProgCalcNotifyEvent onError_;
    TQORProgCalcNotifyEvent onMemoryChange_;
    TQORProgCalcNotifyEvent onBaseDisplayChange_;
    TQORProgCalcNotifyEvent onBitSizeChange_;
    TQORProgCalcNotifyEvent onSpacingChange_;
    TQORProgCalcNotifyEvent onSizeChangeChange_;
};

// Named keys of the programmer's calculator, for key scripts (the command-line tool, tests,
// fuzzing): operators, brackets, memory, clears, bases and word sizes.
struct QORKIT_CORE_EXPORT TQORProgKey {
    std::string_view Name; // upper case: "XOR", "M+", "HEX", "BITS16" ...
    void (*Press)(IQORProgCalcEngine& engine);
};
QORKIT_CORE_EXPORT std::span<const TQORProgKey> ProgEngineKeys();

// The keys that take a bit count: SHL, SHR, ROL, ROR.
struct QORKIT_CORE_EXPORT TQORProgCountedKey {
    std::string_view Name;
    void (IQORProgCalcEngine::*Press)(std::int32_t count);
};
QORKIT_CORE_EXPORT std::span<const TQORProgCountedKey> ProgEngineCountedKeys();

// Presses one key by name: a digit ("7", "F"), a key of ProgEngineKeys, or a counted key with
// its count ("SHL 4"; alone it moves one bit). Returns false for any other name, and presses
// nothing then.
QORKIT_CORE_EXPORT bool PressProgKey(IQORProgCalcEngine& engine, std::string_view name);

} // namespace qorkit
