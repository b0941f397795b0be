// Reading a line back from the forms in which it left: what comes out must be the markup again, but for
// blanks and the highlight. Only what the writers write is understood; anything else throws.
#pragma once

#include <string>
#include <string_view>

namespace ordwise::test {

[[nodiscard]] std::string markupOfLatex(std::string_view latex);
[[nodiscard]] std::string markupOfMathml(std::string_view mathml);

// Without blanks and highlight.
[[nodiscard]] std::string bareMarkup(std::string_view markup);

}  // namespace ordwise::test
