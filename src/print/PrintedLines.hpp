// Lines on a page of the printer: how they are drawn, and the room that they take.
//
// The pen of a page counts 800 across and 600 down over the printable area, whatever the paper; the
// letters keep their size. Portrait paper makes a unit down nearly twice as long as one across.
#pragma once

#include "DrawingSurface.hpp"
#include "PageFlow.hpp"
#include "Platform.hpp"
#include "PrintWindows.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

inline constexpr double pageUnitsAcross = 800;
inline constexpr double pageUnitsDown = 600;

inline constexpr double printPoints = 12;
inline constexpr double explanationPoints = 10;
inline constexpr double footPoints = 8;

// A page with HalvernFont at 12 points and the pen at the top.
[[nodiscard]] DrawingSurface pageSurface(const PaperSize& paper);

// Draws one line of markup at the pen, in blue if asked for, and goes to the next line. It neither
// breaks the line nor turns the page. False for a line that cannot be drawn: what was drawn of it
// stays, and the pen is on the next line all the same.
bool PrintLine(std::string_view line, DrawingSurface& page, bool inBlue);

// Draws a planned line at its place on the page. False if its markup cannot be drawn.
bool drawLine(const PlannedLine& line, DrawingSurface& page);

// A line as it stands between the borders: itself, or the rows of one that is too long, all at its own
// place. It breaks at blanks, else before signs with "..." at the end of the row, else anywhere, but
// never within a fraction, an exponent or a radical.
[[nodiscard]] std::vector<PlannedLine> rowsOf(const PlannedLine& line, const PaperSize& paper);

// The room of a planned line, as if the pen stood at its place; `right` is where it ends across.
struct LineRoom {
    FlowPiece down;
    double right = 0;
    bool drawable = true;
};
[[nodiscard]] LineRoom roomOf(const PlannedLine& line, const PaperSize& paper);

// Words broken between them, or inside one that is too long, into lines of this width on the page.
// An empty text is one empty line.
[[nodiscard]] std::vector<std::string> wordsInLines(const std::string& text, double width, const DrawingSurface& page);

}  // namespace ordwise
