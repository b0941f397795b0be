// What a run of glyphs looks like, for every painter alike: letters and digits come from a text
// face, the signs of mathematics are our own drawings.
//
// The text faces are TeX Gyre Schola for HalvernFont and TeX Gyre Pagella for explanations, bold in the
// window. A painter that lacks them takes any serif face: each glyph is placed by itself, so a line is
// laid out alike with every font.
#pragma once

#include "DisplayList.hpp"

#include <string>
#include <vector>

namespace ordwise {

// A point in thousandths of an em from the left end of the base line, y downwards.
struct ShapePoint {
    double x = 0;
    double y = 0;
};

// One closed outline a contour, straight from point to point; all contours together are filled by
// the nonzero rule.
using Shape = std::vector<std::vector<ShapePoint>>;

// How a radical is put together, in thousandths of an em above and right of the place of its sign. An
// ordinary sign reaches up to a bar at radicalTop. Over a fraction the sign stands lower by
// tallRadicalDrop, and its upper part leads on to a bar at tallRadicalTop, further right by the lean.
inline constexpr double radicalTop = 920;
inline constexpr double radicalRight = 560;
inline constexpr double strokeWidth = 56;
inline constexpr double tallRadicalTop = 1660;
inline constexpr double tallRadicalDrop = 720;
inline constexpr double tallRadicalLean = 112;
// The middle of a bar, below the base line of its glyph.
inline constexpr double barMiddle = 290;

// The drawing of a character that HalvernFont shapes itself: ` pi, \ plus-or-minus, { division,
// * multiplication, + plus, - minus, = equals, $ is not equal, | the bar of an absolute value, ~ the
// radical sign, & the upper part of a tall one, _ a piece of a bar. Null for a character that the text
// face supplies, such as the "-" of an explanation.
[[nodiscard]] const Shape* shapeOf(Face face, char character);

// A glyph at its place: `character` from the text face if `shape` is null.
struct PlacedGlyph {
    std::string character;         // UTF-8
    const Shape* shape = nullptr;  // lives as long as the program
    double x = 0;                  // in surface units
    double stretch = 1;            // of the shape, along the line
};

// The glyphs of a run from left to right. Blanks are left out, and the pieces of a bar come as one
// stretched piece, so that no seam shows between them.
// e.g. the run "2`" at x 100 -> "2" at 100, the shape of pi at 111.1
[[nodiscard]] std::vector<PlacedGlyph> placedGlyphs(const Glyphs& run);

// The y of a run's base line.
[[nodiscard]] double baselineOf(const Glyphs& run);

}  // namespace ordwise
