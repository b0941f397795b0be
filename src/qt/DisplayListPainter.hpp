// Replays display lists with Qt: on the screen at any scale, on a printer, into PDF, SVG and PNG.
#pragma once

#include "DisplayList.hpp"
#include "Platform.hpp"

#include <QFont>
#include <QRectF>

#include <vector>

class QPainter;

namespace ordwise {

// The font of a face, in the size that the application uses.
[[nodiscard]] QFont fontOf(Face face);

// Draws the list with its origin at the painter's; one unit of the surface is one of the painter.
void replay(const DisplayList& list, QPainter& painter);

// The same for a file whose text can be copied. What is drawn by shapes of our own has letters that
// nobody sees: each sign its own in its place, and the stretches of `texts` what they say, in place of
// the letters that are drawn there.
void replayReadable(const DisplayList& list, const std::vector<PageText>& texts, QPainter& painter);

// The room that an operation takes, with space for strokes that reach over their glyph's line.
[[nodiscard]] QRectF extentOf(const DrawOperation& operation);

// A line of plain text in one of the program's faces, its top left at (x, y); blanks and signs
// included. Returns where it ends.
double paintText(QPainter& painter, std::string_view text, double x, double y, Face face, double points,
                 Colour colour = black);

}  // namespace ordwise
