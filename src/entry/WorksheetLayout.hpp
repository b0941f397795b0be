// What the worksheet shows for each topic. A topic that has a layout takes its problem in boxes on
// Picture3, which lies on the first sheet above the steps; any other is typed on the paper.
//
// Boxes, labels and lists count from the corner of Picture3; Combo3 alone lies on the sheet itself.
#pragma once

#include "Catalogue.hpp"
#include "Windows.hpp"

#include <vector>

namespace ordwise {

// The labels are lettered in the face of the sheets at this size.
inline constexpr double labelPoints = 16;

inline constexpr int metersTopic = 23;
inline constexpr int gramsTopic = 24;
inline constexpr int roundingTopic = 98;

struct PlacedBox {
    Control PaperWindow::*box;
    double left;
    double top;
};

struct PlacedLabel {
    Control PaperWindow::*label;
    double left;
    double top;
    const char* caption;
};

struct WorksheetLayout {
    std::vector<int> types;        // the topics laid out so
    const char* image;             // the figure in Picture3, or ""
    std::vector<PlacedBox> boxes;  // in the order in which they are read
    std::vector<PlacedLabel> labels;
    // Of these boxes exactly one stays empty, the unknown; all other boxes want a number.
    std::vector<Control PaperWindow::*> unknowns;
};

// The layout of a box topic; null for a topic of the paper or an unknown one.
[[nodiscard]] const WorksheetLayout* layoutOf(int problemType);
// A topic that is typed; false before any was chosen.
[[nodiscard]] bool isOnPaper(int problemType);

// The numbers of the boxes that the current topic shows, in the order in which they are read, which is
// also that of Tab. e.g. in the right triangle those of a, b and c
[[nodiscard]] std::vector<int> boxesAsRead();

// The entries of Combo1 and Combo2 for a topic of metric units, and of Combo3 for rounding.
// e.g. metersTopic -> "mm (0.001 meters)", ..., "km (1000 meters)"
[[nodiscard]] const std::vector<std::string>& unitsOf(int problemType);
[[nodiscard]] const std::vector<std::string>& roundingChoices();

// Lays out frmPaper for ProblemType, empty and open for input, with the hint as the note to be
// explained, and enables the commands that the topic can use.
void Form_Load();
// Clears input and engine as Erase does, without asking, and takes the worksheet off the desk.
void Form_Unload();

// Sheets, pencil and signals as on a fresh desk; sheet 0 empty with its pen at the top.
void clearDesk();
// No step in view yet: the note of ShownStep is the hint.
void offerHint();

}  // namespace ordwise
