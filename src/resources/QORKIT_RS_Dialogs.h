// Texts of the calculator dialogs beyond their keys' captions and hints: the paper-tape view
// and what assistive technology says of each key (an accessible name that says what the key
// does, "sine" rather than "sin", and a description). Each rs... function returns the current
// translation; KeyAccessibleName / KeyAccessibleDescription look a key up by its object name.
#pragma once

#include "QORKITResource.h"
#include "qorkit_core_export.h"

#include <span>
#include <string>
#include <string_view>

namespace qorkit {

#define QORKIT_RS_DIALOG_TEXTS(X)                                                                  \
    X(rsTapeHint, "Paper Tape")                                                                    \
    X(rsTapeCopy, "Copy Tape")                                                                     \
    X(rsDisplayAccName, "value")                                                                   \
    X(rsDisplayAccDescription, "The value being entered or the last result")                       \
    X(rsMemoryAccName, "memory")                                                                   \
    X(rsMemoryAccDescription, "The value held in memory")                                          \
    X(rsDecimalsAccName, "decimal places")                                                         \
    X(rsDecimalsAccDescription, "How many decimal places the value shows")                         \
    X(rsBaseAccName, "number base")                                                                \
    X(rsBitsAccName, "bit length")                                                                 \
    X(rsTapeAccDescription, "Every number and operation so far, newest last")

QORKIT_RS_DIALOG_TEXTS(QORKIT_CORE_DECLARE_TEXT)

// What each key of the calculator dialogs does, by the key's object name: X(key, name,
// description). The standard and scientific calculators read the first table, the programmer's
// calculator the second and then the first (its "EBtn" is the hex digit E, its "ClearBtn" clears
// the entry).
// clang-format off
#define QORKIT_KEY_ACCESS_TEXTS(X) \
    X(ZeroBtn, "zero", "Enters the digit 0") \
    X(OneBtn, "one", "Enters the digit 1") \
    X(TwoBtn, "two", "Enters the digit 2") \
    X(ThreeBtn, "three", "Enters the digit 3") \
    X(FourBtn, "four", "Enters the digit 4") \
    X(FiveBtn, "five", "Enters the digit 5") \
    X(SixBtn, "six", "Enters the digit 6") \
    X(SevenBtn, "seven", "Enters the digit 7") \
    X(EightBtn, "eight", "Enters the digit 8") \
    X(NineBtn, "nine", "Enters the digit 9") \
    X(PointBtn, "decimal point", "Starts the decimals of the number") \
    X(AddBtn, "plus", "Adds the next number") \
    X(SubtractBtn, "minus", "Subtracts the next number") \
    X(MultiplyBtn, "times", "Multiplies by the next number") \
    X(DivideBtn, "divided by", "Divides by the next number") \
    X(EqualsBtn, "equals", "Completes the calculation and shows the result") \
    X(LeftBracketBtn, "open bracket", "Opens a bracket") \
    X(RightBracketBtn, "close bracket", "Closes the bracket and calculates its contents") \
    X(AllClearBtn, "all clear", "Clears the calculation and the tape; the memory is kept") \
    X(ClearBtn, "clear entry", "Clears the value being entered") \
    X(BackSpaceBtn, "backspace", "Deletes the last digit entered") \
    X(MemoryClearBtn, "memory clear", "Sets the memory to zero") \
    X(MemoryRecallBtn, "memory recall", "Shows the value held in memory") \
    X(MemoryAddBtn, "memory add", "Adds the value to the memory") \
    X(MemorySubtractBtn, "memory subtract", "Subtracts the value from the memory") \
    X(ExitBtn, "OK", "Closes the calculator and takes the result") \
    X(CancelBtn, "cancel", "Closes the calculator without taking the result") \
    X(CopyBtn, "copy", "Copies the value to the clipboard") \
    X(PasteBtn, "paste", "Enters the number on the clipboard") \
    X(ChangeSignBtn, "change sign", "Changes the sign of the value") \
    X(PowerBtn, "power", "Raises the value to the power of the next number; with inverse, takes that root") \
    X(PiBtn, "pi", "Enters the constant pi") \
    X(EBtn, "Euler's number", "Enters the constant e") \
    X(SquareBtn, "square", "Squares the value") \
    X(SqRootBtn, "square root", "Takes the square root of the value") \
    X(InvertBtn, "reciprocal", "Divides one by the value") \
    X(LogBtn, "common logarithm", "Logarithm to base 10; with inverse, ten to the power of the value") \
    X(LNBtn, "natural logarithm", "Logarithm to base e; with inverse, e to the power of the value") \
    X(Lg2btn, "binary logarithm", "Logarithm to base 2; with inverse, two to the power of the value") \
    X(SinBtn, "sine", "Sine of the value; with inverse the arcsine, with hyperbolic the hyperbolic sine") \
    X(CosBtn, "cosine", "Cosine of the value; with inverse the arccosine, with hyperbolic the hyperbolic cosine") \
    X(TanBtn, "tangent", "Tangent of the value; with inverse the arctangent, with hyperbolic the hyperbolic tangent") \
    X(InvBtn, "inverse", "Switches the next function to its inverse") \
    X(HypBtn, "hyperbolic", "Switches the next trigonometric function to its hyperbolic form") \
    X(PercentBtn, "percent", "Takes the value as a percentage") \
    X(RadBtn, "angle unit", "Switches between degrees, radians and gradians") \
    X(ExpBtn, "exponent", "Starts the power of ten of the number")

#define QORKIT_PROG_KEY_ACCESS_TEXTS(X) \
    X(ABtn, "hex digit A", "Enters the hexadecimal digit A") \
    X(BBtn, "hex digit B", "Enters the hexadecimal digit B") \
    X(CBtn, "hex digit C", "Enters the hexadecimal digit C") \
    X(DBtn, "hex digit D", "Enters the hexadecimal digit D") \
    X(EBtn, "hex digit E", "Enters the hexadecimal digit E") \
    X(FBtn, "hex digit F", "Enters the hexadecimal digit F") \
    X(ClearBtn, "clear entry", "Clears the value being entered") \
    X(ModBtn, "modulo", "Remainder of the division by the next number") \
    X(ANDBtn, "bitwise and", "Bits set in both numbers") \
    X(ORBtn, "bitwise or", "Bits set in either number") \
    X(XORBtn, "bitwise exclusive or", "Bits set in exactly one of the numbers") \
    X(NANDBtn, "bitwise not and", "Bits not set in both numbers") \
    X(NORBtn, "bitwise not or", "Bits set in neither number") \
    X(XNORBtn, "bitwise not exclusive or", "Bits equal in both numbers") \
    X(NotBtn, "bitwise not", "Inverts every bit of the value") \
    X(NEGBtn, "negate", "Changes the sign of the value (two's complement)") \
    X(SHLBtn, "shift left", "Shifts the bits one place to the left") \
    X(SHRBtn, "shift right", "Shifts the bits one place to the right") \
    X(ROLBtn, "rotate left", "Rotates the bits one place to the left") \
    X(RORBtn, "rotate right", "Rotates the bits one place to the right")
// clang-format on

// The accessible name and description of a key by its object name ("SinBtn" gives "sine");
// empty for a name no table knows. `programmers` reads the programmer's table first.
QORKIT_CORE_EXPORT std::string KeyAccessibleName(std::string_view key, bool programmers = false);
QORKIT_CORE_EXPORT std::string KeyAccessibleDescription(std::string_view key,
                                                        bool programmers = false);

// Every text of this module, in table order.
QORKIT_CORE_EXPORT std::span<const TResourceText> DialogTexts();

// The translation context of this module.
inline constexpr std::string_view DialogTextContext = "QORKIT_RS_Dialogs";

} // namespace qorkit
