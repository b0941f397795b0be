// The assistant on the worksheet: it is dragged, it explains when it is clicked, it grows and shrinks
// when it comes and goes, and a signal beside it blinks while there is something to explain. With it
// the light and the pencil, which share its mouse handling.
//
// Mouse places are in units of the desk. The timers tick every 10 ms while they are enabled.
#pragma once

namespace ordwise {

enum class MouseButton { Left, Right };

// The mouse takes hold of the figure at (x, y) of its picture, drags it with the left button held,
// and lets it go on a desk of `width` by `height`: the figure then stands within the desk. A figure
// that was moved by less than 10 both ways was clicked, and explains the step in view if there is a
// note. The right button opens its menu.
void Wizard_MouseDown(double x, double y);
void Wizard_MouseMove(double x, double y);
void Wizard_MouseUp(MouseButton button, double width, double height);
// The same click by a key.
void Wizard_Click();
// The signal beside the figure.
void Click_MouseUp(MouseButton button);

// The light tells, when it is red, why the last key was refused. The right button opens its menu.
void Light_MouseUp(MouseButton button);
// The pencil, at the line or on the desk.
void Pencil_MouseUp(MouseButton button);

// The figure comes by growing to its full size, or goes by shrinking; nothing without a worksheet.
void bringAssistant();
void sendAssistantAway();
void wizIn_Timer();
void WizOut_Timer();

// One stroke of the pencil at the end of the line; after the tenth it is lifted.
void Timer1_Timer();

// Ends at once what the timers would show bit by bit, for a desk that holds still.
void finishAnimations();

}  // namespace ordwise
