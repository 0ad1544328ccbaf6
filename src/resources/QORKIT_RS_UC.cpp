#include "QORKIT_RS_UC.h"

namespace qorkit {

namespace {
constexpr std::string_view kTextContext = "QORKIT_RS_UC";
constexpr TResourceText kTexts[] = {QORKIT_RS_UC_TEXTS(QORKIT_LIST_TEXT)};
} // namespace

QORKIT_RS_UC_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> UCTexts() { return kTexts; }

} // namespace qorkit
