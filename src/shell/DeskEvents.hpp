// What the mouse and the keys do on the desk besides typing: the light, the assistant and its
// signal, the sheets, the boxes.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

// The light: a red one tells why the last key was refused.
void Light_MouseUp();
// The assistant and the signal beside it: the note of the step in view, if there is one.
void Wizard_Click();
void Click_MouseUp();

// A pressed sheet comes to the front.
void Paper_MouseDown(int sheet);
// Moves a sheet on the desk, where it stays; the pencil lies on the first sheet and goes along.
void Paper_MouseMove(int sheet, double byX, double byY);
// The assistant dragged by (byX, byY).
void Wizard_MouseMove(double byX, double byY);
// The assistant let go: it stays within a desk of `width` by `height`.
void Wizard_MouseUp(double width, double height);

// A key in a box, with the light as on the paper: green, or red when it is refused.
void Box_KeyPress(int number, std::string_view key);

// What the status bar says: news of the last command, else the reason of a refusal as long as the
// light is red, otherwise what can be done next.
[[nodiscard]] std::string statusLine();
[[nodiscard]] bool statusIsRefusal();

// The mathematics in view in words: the step shown last, or what has been typed so far.
[[nodiscard]] std::string spokenLineInView();

}  // namespace ordwise
