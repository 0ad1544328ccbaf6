#include "QORKIT_RS_Dialogs.h"

namespace qorkit {

namespace {
constexpr std::string_view kTextContext = DialogTextContext;
constexpr TResourceText kTexts[] = {QORKIT_RS_DIALOG_TEXTS(QORKIT_LIST_TEXT)};
} // namespace

QORKIT_RS_DIALOG_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> DialogTexts() { return kTexts; }

} // namespace qorkit
