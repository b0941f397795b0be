// Lines as a terminal can show them.
#pragma once

#include "MarkupReader.hpp"

#include <string>
#include <string_view>

namespace ordwise {

// One line of plain UTF-8: fractions in a row, roots with their sign, no highlight.
// e.g. #(x+1)/2#+3x^2^ -> (x+1)/2+3x^2    2#1/3# -> 2 1/3    #5+x/~2~# -> (5+x)/√2    45^o^ -> 45°
[[nodiscard]] std::string plainOf(const Row& row);
// The same from markup, of a line or a note.
[[nodiscard]] std::string plainText(std::string_view markup);

}  // namespace ordwise
