#include "QORKITEngineToolkit.h"

#include <algorithm>
#include <string_view>

namespace qorkit::engine_internal {

std::string TQORTapeStore::Next()
{
    // 64-bit arithmetic: a host may store any position, INT32_MAX included. A position below
    // the start reads from the first line.
    const std::int64_t next = std::max<std::int64_t>(position_, -1) + 1;
    if (next >= static_cast<std::int64_t>(lines_.size()))
        return {};
    position_ = static_cast<std::int32_t>(next);
    return lines_[static_cast<std::size_t>(next)];
}

void CleanSigns(std::string& text)
{
    static constexpr std::pair<std::string_view, std::string_view> kRules[]
        = {{"--", ""}, {"-+", ""}, {"+-", "-"}};
    for (const auto& [from, to] : kRules)
        for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at))
            text.replace(at, from.size(), to);
}

} // namespace qorkit::engine_internal
