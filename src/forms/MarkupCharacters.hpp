// What the readers of lines and of notes ask of a character.
#pragma once

#include <string_view>

namespace ordwise {

[[nodiscard]] inline bool isAsciiDigit(char c) {
    return c >= '0' && c <= '9';
}
[[nodiscard]] inline bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}
[[nodiscard]] inline bool isAsciiLetter(char c) {
    return isCapital(c) || (c >= 'a' && c <= 'z');
}
// Of a sentence. A "?" stands for a value that is asked for.
[[nodiscard]] inline bool isPunctuation(char c) {
    return std::string_view(".,:;!'\"").find(c) != std::string_view::npos;
}

// Where the number that begins at `begin` ends; `begin` where none does. A point belongs to a number
// only with a digit behind it. e.g. "3.5x" -> 3, "9." -> 1, "1E+15" -> 5
[[nodiscard]] std::size_t numberEnd(std::string_view text, std::size_t begin);
// Where the letters that begin at `begin` end, an apostrophe between two of them being one of them.
[[nodiscard]] std::size_t wordEnd(std::string_view text, std::size_t begin);

}  // namespace ordwise
