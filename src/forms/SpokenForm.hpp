// Mathematics in words, for students who hear a line.
#pragma once

#include "MarkupReader.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// Words that can be read aloud and taken down again without doubt; no signs but "%" and "?", and the
// commas and points of a sentence.
//
// "1 over 2" takes the two numbers or letters beside it and nothing more; any other fraction, root or
// power says where it ends.
// e.g. "x^2^+#1/2#"  -> "x squared plus 1 over 2"
//      "#3x/4#-2^2^" -> "the fraction 3 x over 4, end fraction, minus 2 squared"
//      "2#1/3#"      -> "2 and the fraction 1 over 3, end fraction"
//      "~9~x"        -> "the square root of 9 x"
[[nodiscard]] std::string spokenOf(const Row& row);
[[nodiscard]] std::string spokenOf(const std::vector<NotePart>& note);

// The same from the markup, in a topic of the given kind of letters.
[[nodiscard]] std::string spokenLine(std::string_view markup, Letters letters);
[[nodiscard]] std::string spokenNote(std::string_view note, Letters letters);

}  // namespace ordwise
