// Evaluation of arithmetic expression strings by replaying them as keystrokes into a
// calculator engine: precedence, brackets, percent and errors behave exactly as on the keypad.
//
// SimpleEvaluateStr knows digits, operators and "pi". EvaluateStr also knows named functions
// (written before their argument: "sqrt 9", "cos(0)"), the exponent "e" (2e3), memory words
// and an angle mode. Operator characters of both:
//   + - * / (x as well)   ^ power   @ root (x @ y = x ^ 1/y)   # mod   & rem   \ div
//   | intdiv   % percent   ( )   =
#pragma once

#include "QORKITCalcEngine.h"
#include "QORKITTypes.h"
#include "qorkit_core_export.h"

#include <string>
#include <string_view>

namespace qorkit {

// Evaluates S on Engine (which is cleared first). On an error the result is 0 and the
// engine's LastError holds the message. Any word other than "pi" swallows the rest of the
// text, by design.
QORKIT_CORE_EXPORT Extended SimpleEvaluateStr(std::string_view S, TQORCalcEngine& Engine);
// The same on a private engine whose percent is unary (200+10% = 220).
QORKIT_CORE_EXPORT Extended SimpleEvaluateStr(std::string_view S);

// Evaluates S on Engine in AngleMode with Memory as the memory register. The engine's
// PrefixFunctions, angle mode and memory are restored afterwards; the memory the expression
// left is returned in Memory. ErrorStr receives "Unknown Function - word" or the engine's
// error message, and is empty on success; on an error the result is 0.
QORKIT_CORE_EXPORT Extended EvaluateStr(std::string_view S, TQORCalcEngine& Engine,
                                        Extended& Memory, std::string& ErrorStr,
                                        TQORAngleMode AngleMode);
// On a private engine with unary percent and a memory of 0. Raises EMathError whose message
// is the expression text itself when evaluation fails. The flag is accepted and not used.
QORKIT_CORE_EXPORT Extended EvaluateStr(std::string_view S, bool Unused, TQORAngleMode AngleMode);
// As the full form, the error text discarded (an error only leaves the result 0).
QORKIT_CORE_EXPORT Extended EvaluateStr(std::string_view S, TQORCalcEngine& Engine,
                                        Extended& Memory, TQORAngleMode AngleMode);
// As above with a private memory that starts at 0.
QORKIT_CORE_EXPORT Extended EvaluateStr(std::string_view S, TQORCalcEngine& Engine,
                                        TQORAngleMode AngleMode);
// On a private engine with unary percent; never raises.
QORKIT_CORE_EXPORT Extended EvaluateStr(std::string_view S, Extended& Memory,
                                        TQORAngleMode AngleMode);
QORKIT_CORE_EXPORT Extended EvaluateStr(std::string_view S, TQORAngleMode AngleMode);

} // namespace qorkit
