// Drawing the graph: grid, axes, labels, quadrants, and what the solve handed over.
#pragma once

#include "GraphWindow.hpp"

#include <string>

namespace ordwise {

// Lays the bounds over the plot, places the list and the buttons beside it, and chooses plotStep:
// it grows with the window, so that a wide view takes no more points than a close-up.
void sizeGraph(GraphWindow& window);

// The plot within the picture: the largest square in its middle.
[[nodiscard]] DrawingArea squareOf(const GraphWindow& window);

// Draws the whole picture and fills the list of coordinates.
void drawGraph(GraphWindow& window);

// red + 256 * green + 65536 * blue. Text that is no such number is black.
[[nodiscard]] Colour colourOfNumber(const std::string& number);  // e.g. "255" -> red
[[nodiscard]] std::string numberOfColour(Colour colour);         // e.g. red -> "255"

}  // namespace ordwise
