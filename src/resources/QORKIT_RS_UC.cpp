#include "QORKIT_RS_UC.h"

namespace qorkit {

namespace {
constexpr std::string_view kTextContext = UCTextContext;

#define QORKIT_UC_LIST_NAME(member, text) ::qorkit::TResourceText {"rsName_" #member, text},
#define QORKIT_UC_LIST_LIST(list, stem) list(QORKIT_UC_LIST_NAME)
constexpr TResourceText kTexts[]
    = {QORKIT_UC_NAME_LISTS(QORKIT_UC_LIST_LIST) QORKIT_RS_UC_TEXTS(QORKIT_LIST_TEXT)};
#undef QORKIT_UC_LIST_LIST
#undef QORKIT_UC_LIST_NAME
} // namespace

#define QORKIT_UC_DEFINE_NAME(member, text)                                                        \
    std::string rsName_##member() { return ::qorkit::LoadResString(kTextContext, text); }
#define QORKIT_UC_DEFINE_LIST(list, stem) list(QORKIT_UC_DEFINE_NAME)
QORKIT_UC_NAME_LISTS(QORKIT_UC_DEFINE_LIST)
QORKIT_RS_UC_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> UCTexts() { return kTexts; }

} // namespace qorkit
