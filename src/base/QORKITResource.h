// Resource strings: every user-visible text of the library is looked up at the moment of use,
// so a host can translate it. Each text module lists its texts once, as a table
// X(name, "English text"); the table declares one function per text (rsDivideByZero() ...)
// returning the current translation, and enumerates the texts for translation tools.
#pragma once

#include "qorkit_base_export.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace qorkit {

// Translates a text of a module ("context"); returns the source text when it has none.
using TranslationHook
    = std::function<std::string(std::string_view context, std::string_view source)>;

// Installs the process-wide hook (an empty function restores the English texts).
QORKIT_BASE_EXPORT void SetTranslationHook(TranslationHook hook);
// Whether a hook is installed. Without one every text is its built-in English text, which
// never changes: callers may keep what they made of it.
QORKIT_BASE_EXPORT bool HasTranslationHook() noexcept;

// The current text of a resource string.
QORKIT_BASE_EXPORT std::string LoadResString(std::string_view context, std::string_view source);

// One entry of a text module, for translation tools and tests.
struct QORKIT_BASE_EXPORT TResourceText {
    std::string_view Name;
    std::string_view Source;
};

// Expands a text table into declarations / definitions of its rs... functions. A table is
// declared with the macro of the library that defines it (QORKIT_BASE_DECLARE_TEXT,
// QORKIT_CORE_DECLARE_TEXT, QORKIT_WIDGETS_DECLARE_TEXT, from the library's export header), so
// its functions carry that library's export macro.
#define QORKIT_DEFINE_TEXT(name, text)                                                             \
    std::string name() { return ::qorkit::LoadResString(kTextContext, text); }
#define QORKIT_LIST_TEXT(name, text) ::qorkit::TResourceText {#name, text},

// The base library's own messages.
#define QORKIT_BASE_TEXTS(X)                                                                       \
    X(rsDivideByZero, "Division by zero")                                                          \
    X(rsInvalidEquation, "Invalid equation")                                                       \
    X(rsSqRootNeg, "Square root of a negative number")                                             \
    X(rsMemoryHistoryPrefix, "M")                                                                  \
    X(rsCDivideByZero, "Complex division by zero")                                                 \
    X(rsNotDefinedForValue, "Not defined for this value")                                          \
    X(rsInvalidDate, "Invalid date")                                                               \
    X(rsInvalidLatitude, "Invalid latitude")                                                       \
    X(rsInvalidLongitude, "Invalid longitude")                                                     \
    X(rsNorthAbbr, "N")                                                                            \
    X(rsSouthAbbr, "S")                                                                            \
    X(rsEastAbbr, "E")                                                                             \
    X(rsWestAbbr, "W")                                                                             \
    X(rsInvalidOperation, "Invalid floating point operation")                                      \
    X(rsOverflow, "Floating point overflow")                                                       \
    X(rsLogNonPositive, "Logarithm of zero or a negative number")                                  \
    X(rsOutOfDomain, "Argument out of the function's domain")                                      \
    X(rsInvalidFloat, "'%s' is not a valid floating point value")                                  \
    X(rsInvalidInteger, "'%s' is not a valid integer value")                                       \
    X(rsInvalidHex, "'%s' is not a valid hexadecimal value")                                       \
    X(rsInvalidBinary, "'%s' is not a valid binary value")                                         \
    X(rsInvalidOctal, "'%s' is not a valid octal value")                                           \
    X(rsInvalidAngle, "'%s' is not a valid angle")                                                 \
    X(rsIntegerOverflow, "'%s' is out of the integer range")

QORKIT_BASE_TEXTS(QORKIT_BASE_DECLARE_TEXT)

// All base-library texts.
QORKIT_BASE_EXPORT std::span<const TResourceText> BaseTexts();

// Replaces the first "%s" of a message with an argument (for the conversion messages above).
QORKIT_BASE_EXPORT std::string FormatMessage(const std::string& message, std::string_view argument);

} // namespace qorkit
