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
    X(rsTapeCopy, "Copy Tape")

QORKIT_RS_DIALOG_TEXTS(QORKIT_DECLARE_TEXT)

// Every text of this module, in table order.
QORKIT_CORE_EXPORT std::span<const TResourceText> DialogTexts();

// The translation context of this module.
inline constexpr std::string_view DialogTextContext = "QORKIT_RS_Dialogs";

} // namespace qorkit
