// A display list as an SVG file: for the web, for a look at what was drawn, and as the first painter.
#pragma once

#include "DisplayList.hpp"

#include <string>

namespace ordwise {

// The list on a page of `width` by `height` surface units. Letters and digits are text in the
// faces of HalvernShapes, placed glyph by glyph; signs, strokes and circles are paths. Pictures are
// links to their key in the folder of the file, "check.svg".
[[nodiscard]] std::string svgOf(const DisplayList& list, double width, double height, Colour background = white);

}  // namespace ordwise
