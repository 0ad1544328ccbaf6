// Texts of the calculators: key captions (...Key), key hints (...Hint), paper-tape labels
// (...Paper), list items and messages. Each rs... function returns the current translation.
#pragma once

#include <span>
#include <string>

#include "QORKITResource.h"

namespace qorkit {

#define QORKIT_RS_CALC_TEXTS(X)                                                                    \
    X(rsErrorMsg, "Error!")                                                                        \
    X(rsPaperErrLine, "- - - - ERROR - - - -")

QORKIT_RS_CALC_TEXTS(QORKIT_DECLARE_TEXT)

// Every text of this module, in table order.
std::span<const TResourceText> CalcTexts();

} // namespace qorkit
