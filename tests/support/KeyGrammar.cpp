#include "KeyGrammar.h"

#include <gtest/gtest.h>

namespace qorkit::test {

std::vector<KeyToken> SplitKeys(std::string_view keys)
{
    std::vector<KeyToken> tokens;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const char ch = keys[i];
        if (ch == ' ')
            continue;
        if (ch != '[') {
            tokens.push_back({std::string(1, ch), false});
            continue;
        }
        const std::size_t end = keys.find(']', i);
        if (end == std::string_view::npos) {
            ADD_FAILURE() << "unclosed [ in keys \"" << keys << "\"";
            break;
        }
        tokens.push_back({std::string(keys.substr(i + 1, end - i - 1)), true});
        i = end;
    }
    return tokens;
}

} // namespace qorkit::test
