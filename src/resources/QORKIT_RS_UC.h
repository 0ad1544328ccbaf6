// Texts of unit conversion: unit names and conversion messages.
#pragma once

#include <span>
#include <string>

#include "QORKITResource.h"

namespace qorkit {

#define QORKIT_RS_UC_TEXTS(X)                                                                    \
    X(rsRankineBelowZero, "Temperature cannot be below absolute zero")

QORKIT_RS_UC_TEXTS(QORKIT_DECLARE_TEXT)

// Every text of this module, in table order.
std::span<const TResourceText> UCTexts();

} // namespace qorkit
