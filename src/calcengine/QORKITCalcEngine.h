// TQORCalcEngine: the keystroke-driven floating-point calculator behind every calculator
// dialog, calculator edit and the expression evaluator.
//
// The engine owns no user interface. A host calls one operation per key press and reads back
// the display string, the display value, the paper tape and the last error; it learns of
// changes through optional notification events that receive the engine as sender. Each event
// holds one handler, so the events belong to whoever owns the engine; Qt code follows an
// engine through its TQORCalcEngineObject (QORKITEngineObjects.h) instead.
//
// Numbers are Extended (80-bit). Operands and pending operators live on two stacks; operator
// keys reduce them shunting-yard style, with or without precedence. Every computing operation
// runs inside one error guard: a fault clears the engine, shows "Error!", keeps the message in
// LastError, writes the error line to the tape and fires OnError. No exception leaves an
// operation, and no NaN or infinity ever reaches the display, the tape or a returned value.
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

class QORKIT_CORE_EXPORT TQORCalcEngine {
public:
    using TNotifyEvent = std::function<void(TQORCalcEngine*)>;

    // Seeds the process-wide random generator with today's day number (the whole days of the
    // current date-time), so the seed changes once a day. Intended: it feeds InputRandom.
    TQORCalcEngine();

    // ---- Number entry and display ----------------------------------------------------------

    void InputDigit(std::int8_t Digit);
    void InputDecimalSeparator();
    void InputThousandsSeparator();
    void InputBackspace();
    void DoExp(); // starts the exponent of the number being typed
    void DoChangeSign(); // the +/- key
    void ClearDisplay(); // C: the shown number only; a pending calculation continues
    void AllClear(); // AC: stacks, entry, error and tape; memory is kept
    void InputValue(Extended Value); // a whole operand, written to the tape
    void InputString(std::string_view S); // a whole operand as text, not written to the tape
    void UseConstant(Extended Value) { InputValue(Value); } // a constant key

    // The shared entry step behind digits and signs; hosts call the Input operations.
    void Numeric(char Ch);
    // Moves a typed number onto the operand stack (and the tape).
    void UpdateValue();

    // Stores S as the display text (grouped when ThousandsSeparators is on).
    void SetDisplayValue(const std::string& S);
    // DisplayValue property: the typed number, else the top operand, else 0. A typed text
    // that does not convert is dropped and reads as 0.
    Extended GetDisplayValue();
    // DisplayStr property: what the host shows.
    const std::string& GetDisplayStr() const noexcept { return displayStr_; }
    // LastError property: the message of the last error (empty after AllClear).
    const std::string& GetLastError() const noexcept { return lastError_; }
    // Formats a number the way the display shows numbers.
    std::string DisplayValue(Extended Value) const;
    // The number being typed, in typed form.
    const std::string& GetEntryStr() const noexcept { return entryStr_; }
    // Code of the last key action (' ' none, '=' a result is showing ...).
    char GetLastOperator() const noexcept { return lastOperator_; }

    std::uint8_t GetDecimalPlaces() const noexcept { return decimalPlaces_; }
    // Re-formats the display and fires OnDecimalPlacesChange when the value changes.
    void SetDecimalPlaces(std::uint8_t Value);

    void ClearToggles(); // clears Inv and Hyp (OnClearToggles only when one was set)

    // ---- Operators, brackets, equals and percent -------------------------------------------

    void DoAdd() { Arithmetic(engine_internal::ocAdd); }
    void DoSubtract() { Arithmetic(engine_internal::ocSubtract); }
    void DoMultiply() { Arithmetic(engine_internal::ocMultiply); }
    void DoDivide() { Arithmetic(engine_internal::ocDivide); }
    void DoPower() { Arithmetic(isInv_ ? engine_internal::ocRoot : engine_internal::ocPower); }
    void DoModulus() { Arithmetic(engine_internal::ocModulus); }
    void DoRemainder() { Arithmetic(engine_internal::ocRemainder); }
    void DoDiv() { Arithmetic(engine_internal::ocDiv); }
    void DoIntDiv() { Arithmetic(engine_internal::ocIntDiv); }
    void DoPercent();
    void InputLeftBracket();
    void InputRightBracket();
    void DoEquals();
    void DoResult(); // completes the pending calculation without the tape's "=" line

    // Issues a binary operator key by its code (engine_internal::TQOROpCode).
    void Arithmetic(char Op);
    // Whether NewOp binds tighter than TopOp, so that TopOp must wait.
    bool HigherPrecedence(char NewOp, char TopOp) const;
    // Reduces the top operator once.
    void StackManipulation();
    void PushOperandStack(Extended Value);
    void PushOperatorStack(char Op) { operators_.Push(Op); }
    int GetOperandCount() const noexcept { return operands_.Count(); }
    int GetOperatorCount() const noexcept { return operators_.Count(); }

    // ---- Functions, toggles and angle mode -------------------------------------------------

    void DoSin();
    void DoCos();
    void DoTan();
    void DoLog();
    void DoLN();
    void DoLg2();
    void DoSqRoot();
    void DoSquare();
    void DoAbs();
    void DoFloor();
    void DoCeiling();
    void DoSign();
    void DoGamma();
    void DoLnGamma();
    void DoInvert(); // 1/x, always applied at once
    void DoRound(std::int32_t Places);

    void InputPi();
    void InputNaturalConstant();
    void InputGamma(); // Euler's constant
    void InputGoldenRatio();
    void InputSpeedOfLight();
    void InputGravity();
    void InputRandom(); // re-seeds from the clock, then a value in [0, 1)

    void DoInv() { Toggle(isInv_); }
    void DoHyp() { Toggle(isHyp_); }
    bool GetIsInv() const noexcept { return isInv_; }
    bool GetIsHyp() const noexcept { return isHyp_; }

    // AngleMode property. Changing it fires OnAngleModeChange; the shown value is kept.
    TQORAngleMode GetAngleMode() const noexcept { return angleMode_; }
    void SetAngleMode(TQORAngleMode Value);
    // Degrees -> radians -> (gradians when EnableGrads) -> degrees, with a tape line.
    void ToggleAngleMode();
    std::string GetAngleModeStr() const;

    // The Compute routines: one function for the current Inv/Hyp toggles, applied to X.
    // Each clears the toggles at its end.
    Extended ComputeSin(Extended X);
    Extended ComputeCos(Extended X);
    Extended ComputeTan(Extended X);
    Extended ComputeLog(Extended X);
    Extended ComputeLn(Extended X);
    Extended ComputeLog2(Extended X);
    Extended ComputeSqrt(Extended X);
    Extended ComputeSqr(Extended X);
    Extended ComputeAbs(Extended X);
    Extended ComputeFloor(Extended X);
    Extended ComputeCeiling(Extended X);
    Extended ComputeSign(Extended X);
    Extended ComputeGamma(Extended X);
    Extended ComputeLnGamma(Extended X);

    // The Report routines: write a function's tape label for the current toggles.
    void ReportSin();
    void ReportCos();
    void ReportTan();
    void ReportLog();
    void ReportLn();
    void ReportLog2();

    // ---- Memory and paper tape -------------------------------------------------------------

    void MemoryAdd();
    void MemorySubtract();
    void MemoryClear();
    void MemoryRecall();
    void SetMemory(Extended Value);
    Extended GetMemoryValue() const noexcept { return memory_; }
    std::string GetMemoryContents() const { return DisplayValue(memory_); }

    // Appends a tape line. With SameLine and OperatorSameLine on, S waits instead and is put
    // in front of the next line.
    void AddToHistory(const std::string& S, bool SameLine);
    void AddToHistory(Extended Value);
    void PaperLine();
    void ClearHistory();
    void HistoryStart() { tape_.Start(); }
    std::string GetNextHistoryEntry();
    std::string GetHistoryEntry(std::uint16_t Index) const; // empty beyond the end
    std::string GetLastHistoryEntry() const;
    std::int32_t GetHistoryLength() const noexcept { return tape_.Length(); }
    // HistoryPosition property: the read cursor, -1 before the first line.
    std::int32_t GetHistoryPosition() const noexcept { return tape_.Position(); }
    void SetHistoryPosition(std::int32_t Value) { tape_.SetPosition(Value); }
    std::span<const std::string> GetHistory() const noexcept { return tape_.Lines(); }

    // ---- Settings --------------------------------------------------------------------------
    // Plain stores: setting one neither re-formats the display nor fires an event.
    //   SciUsage            results in scientific notation ...
    //   SciRange            ... except inside (SciMin, SciMax), and for zero
    //   ThousandsSeparators group the digits of the display
    //   LakhFormatting      group in the lakh/crore pattern instead of threes
    //   TrimTrailingZeroes  drop zero decimals
    //   MaxDisplayLength    every formatted value is cut to this many characters
    //   BinaryPercent       percent is a binary operator (x % y = x * y / 100)
    //   PrefixFunctions     functions are keyed before their argument
    //   Precedence          * / mod rem div intdiv bind tighter than + -, power tighter still
    //   MemoryHistory       memory keys also write the register's value to the tape
    //   OperatorSameLine    operators join the following tape line
    //   EnableGrads         gradians take part in the angle-mode cycle

    bool GetSciUsage() const noexcept { return sciUsage_; }
    void SetSciUsage(bool Value) noexcept { sciUsage_ = Value; }
    bool GetSciRange() const noexcept { return sciRange_; }
    void SetSciRange(bool Value) noexcept { sciRange_ = Value; }
    Extended GetSciMin() const noexcept { return sciMin_; }
    void SetSciMin(Extended Value) noexcept { sciMin_ = Value; }
    Extended GetSciMax() const noexcept { return sciMax_; }
    void SetSciMax(Extended Value) noexcept { sciMax_ = Value; }
    bool GetThousandsSeparators() const noexcept { return thousandsSeparators_; }
    void SetThousandsSeparators(bool Value) noexcept { thousandsSeparators_ = Value; }
    bool GetLakhFormatting() const noexcept { return lakhFormatting_; }
    void SetLakhFormatting(bool Value) noexcept { lakhFormatting_ = Value; }
    bool GetTrimTrailingZeroes() const noexcept { return trimTrailingZeroes_; }
    void SetTrimTrailingZeroes(bool Value) noexcept { trimTrailingZeroes_ = Value; }
    std::uint8_t GetMaxDisplayLength() const noexcept { return maxDisplayLength_; }
    void SetMaxDisplayLength(std::uint8_t Value) noexcept { maxDisplayLength_ = Value; }
    bool GetBinaryPercent() const noexcept { return binaryPercent_; }
    void SetBinaryPercent(bool Value) noexcept { binaryPercent_ = Value; }
    bool GetPrefixFunctions() const noexcept { return prefixFunctions_; }
    void SetPrefixFunctions(bool Value) noexcept { prefixFunctions_ = Value; }
    bool GetPrecedence() const noexcept { return precedence_; }
    void SetPrecedence(bool Value) noexcept { precedence_ = Value; }
    bool GetMemoryHistory() const noexcept { return memoryHistory_; }
    void SetMemoryHistory(bool Value) noexcept { memoryHistory_ = Value; }
    bool GetOperatorSameLine() const noexcept { return operatorSameLine_; }
    void SetOperatorSameLine(bool Value) noexcept { operatorSameLine_ = Value; }
    bool GetEnableGrads() const noexcept { return enableGrads_; }
    void SetEnableGrads(bool Value) noexcept { enableGrads_ = Value; }

    // Quiet: the engine computes as always but leaves its display text unformatted and writes
    // no tape lines. For replays whose display and tape nobody reads (the expression
    // evaluator's own engines); values, errors and events are unchanged.
    bool GetQuiet() const noexcept { return quiet_; }
    void SetQuiet(bool Value) noexcept { quiet_ = Value; }

    // ---- Events ----------------------------------------------------------------------------
    // Each is called only when assigned:
    //   OnDisplayChange        after every SetDisplayValue
    //   OnClearToggles         when Inv or Hyp is cleared
    //   OnSetToggles           when Inv or Hyp is switched on
    //   OnHistoryChange        after every tape line
    //   OnError                after an error has been put into the display
    //   OnMemoryChange         after the memory register is set
    //   OnDecimalPlacesChange  after DecimalPlaces changes
    //   OnAngleModeChange      after the angle mode changes

    const TNotifyEvent& GetOnDisplayChange() const noexcept { return onDisplayChange_; }
    void SetOnDisplayChange(TNotifyEvent Value) { onDisplayChange_ = std::move(Value); }
    const TNotifyEvent& GetOnClearToggles() const noexcept { return onClearToggles_; }
    void SetOnClearToggles(TNotifyEvent Value) { onClearToggles_ = std::move(Value); }
    const TNotifyEvent& GetOnSetToggles() const noexcept { return onSetToggles_; }
    void SetOnSetToggles(TNotifyEvent Value) { onSetToggles_ = std::move(Value); }
    const TNotifyEvent& GetOnHistoryChange() const noexcept { return onHistoryChange_; }
    void SetOnHistoryChange(TNotifyEvent Value) { onHistoryChange_ = std::move(Value); }
    const TNotifyEvent& GetOnError() const noexcept { return onError_; }
    void SetOnError(TNotifyEvent Value) { onError_ = std::move(Value); }
    const TNotifyEvent& GetOnMemoryChange() const noexcept { return onMemoryChange_; }
    void SetOnMemoryChange(TNotifyEvent Value) { onMemoryChange_ = std::move(Value); }
    const TNotifyEvent& GetOnDecimalPlacesChange() const noexcept { return onDecimalPlacesChange_; }
    void SetOnDecimalPlacesChange(TNotifyEvent Value) { onDecimalPlacesChange_ = std::move(Value); }
    const TNotifyEvent& GetOnAngleModeChange() const noexcept { return onAngleModeChange_; }
    void SetOnAngleModeChange(TNotifyEvent Value) { onAngleModeChange_ = std::move(Value); }

private:
    template<class Body> void Guarded(Body&& body);
    void HandleError(const std::string& message);
    void Toggle(bool& toggle); // flips Inv or Hyp and tells which way

    Extended TypedValue() const; // Str2Float of the entry; raises on malformed text
    std::string ShownValue(Extended Value) const; // DisplayValue, or nothing when quiet
    void Push(Extended value);
    void EmptyStacks();
    void ShowTop();
    void ShowResult(Extended value);
    void Reduce();
    // A function key: `codes` holds its codes for the toggles none, Inv, Hyp, Inv+Hyp.
    void FunctionKeyPressed(std::string_view codes);
    void Report(std::string_view codes);
    void ApplyFunction(char code);
    // A function code, or percent while it is unary: applied to the top operand alone.
    bool IsUnary(char code) const;
    Extended PostfixArgument(); // the typed number (put on the tape), else the top operand
    Extended Finish(Extended result); // clears the toggles, checks the result
    void MemoryStep(int sign, const std::string& label);
    void MemoryLine(const std::string& key);

    std::string entryStr_;
    std::string displayStr_;
    std::string lastError_;
    char lastOperator_ = engine_internal::ocNone;
    TQORAngleMode angleMode_ = amRadians;
    bool isInv_ = false;
    bool isHyp_ = false;
    Extended memory_ = 0;
    engine_internal::TQOREvalStack<Extended> operands_;
    engine_internal::TQOREvalStack<char> operators_;
    bool sciUsage_ = false;
    bool sciRange_ = false;
    Extended sciMin_ = 0.0001L;
    Extended sciMax_ = 1000000.0L;
    std::uint8_t decimalPlaces_ = 4;
    bool thousandsSeparators_ = true;
    bool binaryPercent_ = true;
    bool lakhFormatting_ = false;
    bool prefixFunctions_ = false;
    bool precedence_ = true;
    bool memoryHistory_ = false;
    bool trimTrailingZeroes_ = false;
    engine_internal::TQORTapeStore<> tape_;
    std::uint8_t maxDisplayLength_ = 26;
    bool enableGrads_ = false;
    TNotifyEvent onClearToggles_;
    TNotifyEvent onSetToggles_;
    TNotifyEvent onHistoryChange_;
    TNotifyEvent onDisplayChange_;
    TNotifyEvent onError_;
    TNotifyEvent onMemoryChange_;
    TNotifyEvent onDecimalPlacesChange_;
    TNotifyEvent onAngleModeChange_;
    std::string pendingOperatorText_;
    bool operatorSameLine_ = false;
    engine_internal::TQORErrorGuard guard_;
    bool quiet_ = false;
};

// ---- Named keys ----------------------------------------------------------------------------
// The engine's keys by name, for hosts that drive it from text (scripts, a command line):
// "7", ".", "+", "sin", "m+" ... Names are lower case.

struct QORKIT_CORE_EXPORT TQORCalcKey {
    std::string_view Name;
    std::string_view Description;
    void (*Press)(TQORCalcEngine& engine);
};

// Every named key, in a fixed order.
QORKIT_CORE_EXPORT std::span<const TQORCalcKey> CalcEngineKeys();
// Presses one key by name. Besides the table, "roundN" rounds to N decimals and a token of
// digits and separators ("12.5", "1,000") types each character. Returns false for an
// unknown name, and presses nothing then.
QORKIT_CORE_EXPORT bool PressCalcKey(TQORCalcEngine& engine, std::string_view name);

} // namespace qorkit
