// The explanation window: what the assistant says about the step in view, wrapped and drawn.
#pragma once

namespace ordwise {

// Brings the sheet in view to the front, takes the assistant's offer from the desk, and places
// frmExplain to the right of the end of the last line and below it.
void LoadExplanation();

// Picks the text and draws it wrapped on frmExplain, which grows with its lines: the reason of a
// refusal if that was asked for (ExplainOverride, which is used up), otherwise the note of the step
// in view. Notes are given at the highest detail only; the hint of the topic always is, at a fixed
// place of the sheet. A text that cannot be drawn ends in a message box.
void ShowExplanation();

}  // namespace ordwise
