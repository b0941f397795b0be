// The explanation window: what the assistant says about the step in view, wrapped and drawn.
#pragma once

#include <string_view>

namespace ordwise {

class DrawingSurface;

// Draws a note wrapped to that width, from the pen on, in the font of the surface. Fault 9 for one that
// cannot be drawn; what was drawn of it stays.
void drawNote(DrawingSurface& page, std::string_view note, double width);

// Brings the sheet in view to the front, takes the assistant's offer from the desk, and places
// frmExplain to the right of the end of the chosen line, otherwise of the last one, and below it.
void LoadExplanation();

// Picks the text and draws it wrapped on frmExplain, which grows with its lines: the reason of a
// refusal if that was asked for (ExplainOverride, which is used up), otherwise the note of the line
// in view. Notes are given at the highest detail only; the hint of the topic always is, at a fixed
// place of the sheet. A text that cannot be drawn ends in a message box.
void ShowExplanation();

}  // namespace ordwise
