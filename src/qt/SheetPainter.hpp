// Paints what lies on the desk: a sheet with its title, its lines, and on the first one the figure
// of a box topic. The desk and the export use the same drawing.
#pragma once

#include "Windows.hpp"

class QPainter;

namespace ordwise {

// A sheet by its number, its top left at the painter's origin, in points of the sheet: the paper with
// its title, and what was drawn on it.
void paintPaper(QPainter& painter, int number);
void paintSheet(QPainter& painter, int number);

// How high the painted paper is: the surface of a sheet and the foot below its last line.
[[nodiscard]] double paperHeight();

// Picture3 at the painter's origin: the figure and the captions.
void paintFigure(QPainter& painter);
// What a list shows, and what all boxes and lists of the figure do, for pictures without real ones.
void paintList(QPainter& painter, const ComboControl& combo);
void paintBoxes(QPainter& painter);

}  // namespace ordwise
