// Small operations on text that several layers need and the standard library lacks.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// Every occurrence of `from` replaced, left to right, what was put in not looked at; nothing where
// `from` is empty.
[[nodiscard]] std::string replaced(std::string text, std::string_view from, std::string_view to);
// The pieces between the separators; an empty text has one empty piece. e.g. "4,,6" -> "4", "", "6"
[[nodiscard]] std::vector<std::string> split(std::string_view text, char separator);
[[nodiscard]] std::string joined(const std::vector<std::string>& pieces, std::string_view separator);
// The pieces one behind the other, most of which are one character or none. e.g. "2", "", "+" -> "2+"
[[nodiscard]] std::string joined(std::span<const std::string> pieces);
// Without the blanks at both ends.
[[nodiscard]] std::string trimmed(std::string_view text);
// ASCII letters in lower case, all other bytes as they are.
[[nodiscard]] std::string lowered(std::string_view text);
[[nodiscard]] inline bool contains(std::string_view text, std::string_view piece) {
    return text.find(piece) != std::string_view::npos;
}
// The characters of UTF-8 text, one string each; a byte that belongs to no character stands alone.
[[nodiscard]] std::vector<std::string> characters(std::string_view utf8);

}  // namespace ordwise
