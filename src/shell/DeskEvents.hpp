// What the mouse and the keys do on the desk besides typing, with the sheets and the boxes; what the
// desk says. The assistant, the light and the pencil stand in AssistantLogic.hpp.
#pragma once

#include <string>
#include <string_view>

namespace ordwise {

// A pressed sheet comes to the front.
void Paper_MouseDown(int sheet);
// Moves a sheet on the desk, where it stays; the pencil lies on the first sheet and goes along.
void Paper_MouseMove(int sheet, double byX, double byY);

// A click on a sheet, at that height: the line there is chosen, a second click explains it, and one
// beside all lines chooses none.
void Paper_Click(int sheet, double y);

// The keys of the desk that are no text. After a solve Up, Down, Home and End choose a line and Escape
// none; the others fetch the sheet before or behind the one in front. False for a key that has nothing
// to do.
enum class DeskKey { Up, Down, Home, End, Escape, PageUp, PageDown };
bool Desk_KeyDown(DeskKey key);
// Enter on a picture of the desk: Solve or Next Step where there is something to run. False otherwise:
// the picture is pressed.
bool Picture_Enter();

// A key in a box, with the light as on the paper: green, or red when it is refused.
void Box_KeyPress(int number, std::string_view key);

// What the status bar says: news of the last command, else the reason of a refusal as long as the
// light is red, else the keys that were not taken, otherwise what can be done next.
[[nodiscard]] std::string statusLine();
[[nodiscard]] bool statusIsRefusal();

// The mathematics in view in words: the line drawn last, or what has been typed so far.
[[nodiscard]] std::string spokenLineInView();

// The empty desk offers the ways to begin once the splash has gone.
[[nodiscard]] bool waysToBeginAreOffered();

// What a screen reader says of the desk: which worksheet it is, and the line in view or, before there
// is one, how to type the problem.
[[nodiscard]] std::string spokenDeskName();
[[nodiscard]] std::string spokenDesk();

}  // namespace ordwise
