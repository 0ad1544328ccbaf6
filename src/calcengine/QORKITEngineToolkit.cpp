#include "QORKITEngineToolkit.h"

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

} // namespace qorkit::engine_internal
