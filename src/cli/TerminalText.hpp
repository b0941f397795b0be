// Markup as a terminal can show it.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

// One line of plain UTF-8: fractions in a row, roots with their sign, no highlight.
// e.g. #(x+1)/2#+3x^2^ -> (x+1)/2+3x^2    2#1/3# -> 2 1/3    #5+x/~2~# -> (5+x)/√2    45^o^ -> 45°
[[nodiscard]] std::string terminalText(std::string_view markup);

}  // namespace ordwise
