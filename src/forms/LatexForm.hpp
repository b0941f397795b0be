// Lines as LaTeX: what stands between the dollar signs, for documents with amsmath and for the
// renderers of the web alike.
#pragma once

#include "MarkupReader.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// e.g. "#x+1/2#*3^2^" -> "\frac{x+1}{2}\cdot 3^{2}"
[[nodiscard]] std::string latexOf(const Row& row);
// Text with its mathematics between "\(" and "\)".
[[nodiscard]] std::string latexOf(const std::vector<NotePart>& note);
// Plain text for a document: the characters that mean something to LaTeX are escaped.
[[nodiscard]] std::string latexText(std::string_view text);

}  // namespace ordwise
