// Mathematics in words, for students who hear a line: made from the same markup that is drawn.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

// Markup read aloud. Mathematics becomes words, prose around it stays as it is, and highlighting is
// not spoken. Markup that is broken is read as far as it goes; there are no faults.
//
// A numerator, a denominator or a radicand of more than one term is closed by a word, so that the
// ear knows where it ends.
// e.g. "x^2^+#1/2#" -> "x squared plus 1 over 2"
//      "#(x+1)/2#=3"    -> "fraction, open parenthesis x plus 1 close parenthesis over 2, end of fraction equals 3"
//      "~9~"            -> "the square root of 9"
//      "180^o^ (degrees) forms a STRAIGHT angle." -> "180 degrees (degrees) forms a STRAIGHT angle."
[[nodiscard]] std::string spoken(std::string_view markup);

}  // namespace ordwise
