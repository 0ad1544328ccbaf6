// The key strings both engine drivers read (CalcKeyDriver, ProgKeyDriver):
//
//   - each character is one key, the key of the engine's table named by that character:
//     "12.5+3=" presses 1 2 . 5 + 3 =
//   - [name] is the key of that name in the engine's table: "[sin]", "[m+]", "[1/x]", "[round2]"
//     on the calculator engine, "[MC]", "[HEX]", "[SHL 4]" on the programmer's engine
//   - blanks outside brackets are ignored, so "12.5 + [sin] =" is "12.5+[sin]="
//   - a driver may name characters of its own keyboard: on the programmer's engine "&" is [AND],
//     "<" is [SHL 1] and "[16]" is [BITS16] (see ProgKeyDriver.h)
//
// An unclosed "[" or a name the engine does not know fails the running test.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qorkit::test {

struct KeyToken {
    std::string Name;
    bool Bracketed = false; // written as [name] rather than as a single character
};

// Splits a key string into its keys; an unclosed "[" fails the running test and ends the list
// before it.
std::vector<KeyToken> SplitKeys(std::string_view keys);

} // namespace qorkit::test
