// The lines of a solution as they stand on the sheets, each with its note: one can be chosen to be
// explained, and all notes can stand beside their lines or under them.
//
// ShowSteps draws a line through showLine, which remembers it; so everything can be laid out anew.
#pragma once

#include <string>

namespace ordwise {

// Draws the line of a step at the end of the solution, its note below it where notes stand under the
// lines, and remembers both. The line just shown is the one in view: none is chosen any more. A step
// that is not written has only its note to remember. With their notes under them lines keep their
// usual distance, and the last one is never alone.
struct LinePlan {
    bool written = true;
    double closer = 0;   // by so much it stands nearer to the line before it
    bool turns = false;  // it begins a sheet, so that the last line is not alone there
};
void showLine(int step, bool placeButton, const LinePlan& plan = {});
// No solution is to be seen.
void forgetLines();

// --- choosing

// The note that is to be explained: of the chosen line, otherwise of the step shown last; before a
// solve the hint. "" if there is none.
[[nodiscard]] const std::string& noteInView();
// The number of the sheet that lies in front.
[[nodiscard]] int sheetInFront();
// The line at that height of a sheet, -1 for none.
[[nodiscard]] int lineAt(int sheet, double y);
// Chooses a line by its index, with its sheet in front; -1 chooses none.
void chooseLine(int line);
// Down by so many lines, up for less than 0. From none the first move chooses an end: step by step the
// line just shown, otherwise the last line upwards and the first one downwards. False without lines.
bool moveChoice(int by);

// --- notes without being asked for

// Room that is wide enough for notes beside the lines, and such in which their letters have the size of
// those under the lines; in more they are larger.
inline constexpr double leastNotesWidth = 230;
inline constexpr double usualNotesWidth = 420;

// From now on notes stand as wished: not at all, or beside the lines where there is room of that
// width from `left` on, otherwise under them. A solution that is on the sheets is laid out anew where
// the place of its notes changes.
void placeNotes(bool wanted, double left, double width);
// Slips for the lines of the sheet in front, each as high as its line or as near below as the slip
// before it allows.
void laySlips();

}  // namespace ordwise
