#include "QORKIT_RS_Dialogs.h"

#include <array>

namespace qorkit {

namespace {

constexpr std::string_view kTextContext = DialogTextContext;

// The key texts are listed for translators as "<key> name" and "<key> description".
#define QORKIT_LIST_KEY_TEXTS(key, name, description)                                              \
    TResourceText {#key " name", name}, TResourceText {#key " description", description},
constexpr TResourceText kTexts[]
    = {QORKIT_RS_DIALOG_TEXTS(QORKIT_LIST_TEXT) QORKIT_KEY_ACCESS_TEXTS(QORKIT_LIST_KEY_TEXTS)
           QORKIT_PROG_KEY_ACCESS_TEXTS(QORKIT_LIST_KEY_TEXTS)};
#undef QORKIT_LIST_KEY_TEXTS

struct TKeyAccessText {
    std::string_view Key;
    std::string_view Name;
    std::string_view Description;
};
#define QORKIT_KEY_TEXT_ROW(key, name, description) TKeyAccessText {#key, name, description},
constexpr TKeyAccessText kKeyTexts[] = {QORKIT_KEY_ACCESS_TEXTS(QORKIT_KEY_TEXT_ROW)};
constexpr TKeyAccessText kProgKeyTexts[] = {QORKIT_PROG_KEY_ACCESS_TEXTS(QORKIT_KEY_TEXT_ROW)};
#undef QORKIT_KEY_TEXT_ROW

const TKeyAccessText* FindKey(std::string_view key, bool programmers)
{
    if (programmers) {
        for (const auto& row : kProgKeyTexts) {
            if (row.Key == key)
                return &row;
        }
    }
    for (const auto& row : kKeyTexts) {
        if (row.Key == key)
            return &row;
    }
    return nullptr;
}

} // namespace

QORKIT_RS_DIALOG_TEXTS(QORKIT_DEFINE_TEXT)

std::span<const TResourceText> DialogTexts() { return kTexts; }

std::string KeyAccessibleName(std::string_view key, bool programmers)
{
    const TKeyAccessText* row = FindKey(key, programmers);
    return row != nullptr ? LoadResString(kTextContext, row->Name) : std::string();
}

std::string KeyAccessibleDescription(std::string_view key, bool programmers)
{
    const TKeyAccessText* row = FindKey(key, programmers);
    return row != nullptr ? LoadResString(kTextContext, row->Description) : std::string();
}

} // namespace qorkit
