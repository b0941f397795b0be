// Puts a solution on the worksheet, whole or one step at a time.
//
// ShownStep says which: 0 before a display of the whole, otherwise the step that is to be shown. It
// ends at the step shown last, whose note the assistant offers.
#pragma once

namespace ordwise {

// The last step of the solution on the desk, 0 before one. A thinned solution of which a single step
// is left has its count end one short of it; whoever goes through the steps ends here instead.
[[nodiscard]] int lastShownStep();

// Draws the steps from 2 on: all of them and the check mark, or the one of ShownStep with the Next
// Step button, or with the check mark if it is the last. Line 1 restates the problem and is not
// drawn again.
void ShowSteps();

// Moves the assistant with its signal and the light along with the right edge of the topmost sheet, as
// far as they stand beside it and were not put elsewhere.
void pushBesidePile(double right);

// The button behind the last line, blinking; the assistant's signal blinks with it.
void PlaceNextStep();
// The check mark behind the last line.
void PlaceCheckMark();

// The Next Step button: the next line.
void blinker_Click();

void Timer2_Timer();   // every 400 ms: the two pictures of the button in turn
void clickMe_Timer();  // every 800 ms: the assistant's signal on and off

}  // namespace ordwise
