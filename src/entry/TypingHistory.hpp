// Undo and redo of keys, on the paper and in the boxes, until the problem is solved. Unlike Backspace,
// going back to a moment opens again what a key had closed.
#pragma once

namespace ordwise {

// Around a key that may change what was typed: before it the moment as it is, behind it whether it
// has changed anything. What was undone before can then no longer come back.
void rememberMoment();
void keepMoment(bool changed);

// Nothing to go back to, as on a fresh worksheet.
void forgetHistory();

// One key back, or forward again: the paper, the boxes, the light and Solve as they were then. A box
// that changed wants the keyboard. Nothing where there is no moment to go to, or after Solve.
void undoKey();
void redoKey();

}  // namespace ordwise
