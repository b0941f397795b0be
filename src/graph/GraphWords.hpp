// What the graph shows, in words: for the title of its window, and for those who cannot see it.
#pragma once

#include "GraphWindow.hpp"

#include <string>

namespace ordwise {

// The equation as one would type it. e.g. y = -2x/3 + 2, y = x^(1/2), y^2 = 4x, x = 3
[[nodiscard]] std::string equationWords(const GraphEquation& equation);

// What the solve handed over. e.g. "y = 2x + 3", "(3, 4)", "(1, 2) to (5, 6)"; "" for no equation
[[nodiscard]] std::string graphTitle(const GraphWindow& window);

// The whole picture in one sentence.
// e.g. "The graph of y = 2x + 3 on axes from -20 to 20."
[[nodiscard]] std::string graphDescription(const GraphWindow& window);

}  // namespace ordwise
