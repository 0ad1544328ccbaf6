// Helpers for table-driven tests of number texts.
#pragma once

#include <string>

namespace qorkit::test {

// Exchanges "." and "," so that a text written for "." decimals reads as its "," twin:
// "1,234.5" becomes "1.234,5".
inline std::string SwapMarks(std::string s)
{
    for (char& c : s)
        c = c == '.' ? ',' : c == ',' ? '.' : c;
    return s;
}

} // namespace qorkit::test
