// What a single token is. A token is a string: one character, a number, or a numeric fraction "3/4".
#pragma once

#include <string_view>

namespace ordwise {

// The text is this one character. e.g. "(", '(' -> true; much cheaper than a comparison of texts
[[nodiscard]] inline bool isMark(std::string_view s, char mark) {
    return s.size() == 1 && s[0] == mark;
}
// "A" <= s <= "Z" or "a" <= s <= "z" by whole-string comparison: false for "", true for any text that
// begins with a letter, but for "Z" and "z" only when they stand alone. e.g. "x"
[[nodiscard]] inline bool IsLetter(std::string_view s) {
    if (s.empty()) return false;
    const char c = s[0];
    return (c >= 'A' && c < 'Z') || (c >= 'a' && c < 'z') || ((c == 'Z' || c == 'z') && s.size() == 1);
}
[[nodiscard]] inline bool IsSign(std::string_view s) {  // "+", "-"
    return s.size() == 1 && (s[0] == '+' || s[0] == '-');
}
[[nodiscard]] inline bool IsOperator(std::string_view s) {  // "+", "-", "*", "/"
    return IsSign(s) || (s.size() == 1 && (s[0] == '*' || s[0] == '/'));
}
// Some "/" in s stands directly behind a digit, and s is no operator itself. e.g. "3/4", "3/"
[[nodiscard]] bool IsFractionToken(std::string_view s);

}  // namespace ordwise
