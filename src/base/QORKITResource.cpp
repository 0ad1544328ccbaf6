#include "QORKITResource.h"

#include <utility>

namespace qorkit {

namespace {

constexpr std::string_view kTextContext = "QORKIT_Base";

TranslationHook& Hook()
{
    static TranslationHook hook;
    return hook;
}

constexpr TResourceText kBaseTexts[] = {QORKIT_BASE_TEXTS(QORKIT_LIST_TEXT)};

} // namespace

void SetTranslationHook(TranslationHook hook) { Hook() = std::move(hook); }

bool HasTranslationHook() noexcept { return static_cast<bool>(Hook()); }

std::string LoadResString(std::string_view context, std::string_view source)
{
    if (const auto& hook = Hook()) {
        std::string text = hook(context, source);
        if (!text.empty())
            return text;
    }
    return std::string(source);
}

std::span<const TResourceText> BaseTexts() { return kBaseTexts; }

std::string FormatMessage(const std::string& message, std::string_view argument)
{
    std::string result = message;
    if (const auto pos = result.find("%s"); pos != std::string::npos)
        result.replace(pos, 2, argument);
    return result;
}

QORKIT_BASE_TEXTS(QORKIT_DEFINE_TEXT)

} // namespace qorkit
