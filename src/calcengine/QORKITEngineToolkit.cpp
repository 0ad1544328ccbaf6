#include "QORKITEngineToolkit.h"

#include <charconv>
#include <string_view>

namespace qorkit::engine_internal {

void CleanSigns(std::string& text)
{
    static constexpr std::pair<std::string_view, std::string_view> kRules[]
        = {{"--", ""}, {"-+", ""}, {"+-", "-"}};
    for (const auto& [from, to] : kRules)
        for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at))
            text.replace(at, from.size(), to);
}

bool ReadCount(std::string_view text, std::size_t maxDigits, std::int32_t& count) noexcept
{
    if (text.empty() || text.size() > maxDigits
        || text.find_first_not_of("0123456789") != std::string_view::npos)
        return false;
    std::from_chars(text.data(), text.data() + text.size(), count);
    return true;
}

} // namespace qorkit::engine_internal
