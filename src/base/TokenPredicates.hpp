// What a single token is. A token is a string: one character, a number, or a numeric fraction "3/4".
#pragma once

#include <string_view>

namespace ordwise {

// "A" <= s <= "Z" or "a" <= s <= "z" by whole-string comparison: false for "". e.g. "x"
[[nodiscard]] bool IsLetter(std::string_view s);
[[nodiscard]] bool IsOperator(std::string_view s);  // "+", "-", "*", "/"
[[nodiscard]] bool IsSign(std::string_view s);      // "+", "-"
// Some "/" in s stands directly behind a digit, and s is no operator itself. e.g. "3/4", "3/"
[[nodiscard]] bool IsFractionToken(std::string_view s);

}  // namespace ordwise
