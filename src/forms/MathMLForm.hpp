// Lines as MathML, of the elements that browsers and word processors agree on (MathML Core).
#pragma once

#include "MarkupReader.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// One <math> element, with the line in words as its alttext.
// e.g. "3x" -> <math xmlns="..." alttext="3 x"><mn>3</mn><mo>&#x2062;</mo><mi>x</mi></math>
[[nodiscard]] std::string mathmlOf(const Row& row);
// A fragment of HTML: the words escaped, each formula a <math> element.
[[nodiscard]] std::string mathmlOf(const std::vector<NotePart>& note);
// Text as the content of an element or the value of an attribute.
[[nodiscard]] std::string escapedForXml(std::string_view text);

}  // namespace ordwise
