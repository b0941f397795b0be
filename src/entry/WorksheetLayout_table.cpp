// The layouts of the box topics, one row a picture.
//
// A figure fills Picture3, 520 by 300; a row of boxes without a figure takes 520 by 200. Figures are
// drawn around these boxes: lengths that lie on a side have their box over it, heights and radii
// inside, bases below. A label says what its box is to the solver: where the cube's boxes or the
// triangle's are handed over in another order than they were numbered, the caption went with the box.
//
// The boxes of a row stand in the order in which they are read: a, b, c; length, width, height; what is
// asked for by its name in a formula. Tab goes through them so.
#include "WorksheetLayout.hpp"

#include "Workspace.hpp"

#include <algorithm>

namespace ordwise {
namespace {

constexpr auto T1 = &PaperWindow::Text1, T2 = &PaperWindow::Text2, T3 = &PaperWindow::Text3;
constexpr auto T4 = &PaperWindow::Text4, T5 = &PaperWindow::Text5, T6 = &PaperWindow::Text6;
constexpr auto L1 = &PaperWindow::Label1, L2 = &PaperWindow::Label2, L3 = &PaperWindow::Label3;
constexpr auto L4 = &PaperWindow::Label4, L5 = &PaperWindow::Label5, L8 = &PaperWindow::Label8;

// As wide as a box in any face: three dashes of an em each.
constexpr const char* fractionBar = "______________________________";

// clang-format off
const std::vector<WorksheetLayout> layouts = {
    {{1}, "cube",
        {{T2, 220, 258}, {T3, 198, 72}, {T1, 290, 166}},
        {{L1, 220, 166, "height="}, {L2, 150, 258, "length="}, {L3, 128, 72, "width="}}, {}},
    {{2}, "cylinder",
        {{T2, 265, 40}, {T1, 255, 150}},
        {{L1, 185, 150, "height="}, {L2, 325, 40, "=radius"}}, {}},
    {{3}, "cone",
        {{T2, 285, 216}, {T1, 250, 140}},
        {{L1, 180, 140, "height="}, {L2, 215, 216, "radius="}}, {}},
    {{4}, "pyramid",
        {{T2, 275, 258}, {T3, 140, 240}, {T1, 253, 130}},
        {{L1, 183, 130, "height="}, {L2, 205, 258, "length="}, {L3, 70, 240, "width="}}, {}},
    {{5}, "sphere",
        {{T2, 280, 114}},
        {{L2, 210, 114, "radius="}}, {}},
    {{6, 13}, "rectangle",
        {{T2, 273, 240}, {T1, 300, 121}},
        {{L1, 230, 121, "height="}, {L2, 203, 240, "base="}}, {}},
    {{7, 15, 17}, "circle",
        {{T2, 190, 114}},
        {{L2, 248, 114, "=radius"}}, {}},
    {{16, 18}, "circle2",
        {{T2, 190, 114}},
        {{L2, 248, 114, "=diameter"}}, {}},
    {{8}, "triangle",
        {{T2, 271, 242}, {T1, 258, 156}},
        {{L1, 188, 156, "height="}, {L2, 201, 242, "base="}}, {}},
    {{19}, "triangle",
        {{T3, 140, 82}, {T2, 228, 242}, {T1, 320, 82}},
        {{L1, 255, 82, "c="}, {L2, 164, 242, "b="}, {L3, 81, 82, "a="}}, {}},
    {{9}, "parallelogram",
        {{T2, 231, 230}, {T1, 248, 120}},
        {{L1, 178, 120, "height="}, {L2, 161, 230, "base="}}, {}},
    {{10}, "trapezoid",
        {{T2, 228, 26}, {T1, 228, 233}, {T3, 250, 130}},
        {{L1, 200, 233, "b="}, {L2, 200, 26, "a="}, {L3, 180, 130, "height="}}, {}},
    {{11}, "similartriangles",
        {{T3, 37, 116}, {T2, 103, 222}, {T1, 145, 116}, {T4, 255, 116}, {T6, 305, 222}, {T5, 345, 116}},
        {{L1, 113, 116, "c1="}, {L2, 70, 222, "b1="}, {L3, 5, 116, "a1="},
         {L4, 219, 116, "a2="}, {L5, 310, 116, "c2="}, {L8, 270, 222, "b2="}},
        {T4, T5, T6}},
    {{12}, "righttriangle",
        {{T4, 168, 150}, {T2, 213, 238}, {T1, 290, 104}},
        {{L1, 263, 104, "c="}, {L2, 185, 238, "b="}, {L4, 140, 150, "a="}},
        {T1, T2, T4}},
    {{14}, "",
        {{T1, 120, 86}, {T2, 200, 86}, {T4, 325, 86}},
        {{L5, 182, 86, "="}, {L8, 257, 86, "%    of"}},
        {T1, T2, T4}},
    {{20}, "",
        {{T1, 175, 50}, {T2, 175, 112}, {T3, 270, 50}, {T4, 270, 112}},
        {{L1, 245, 81, "="}, {L2, 175, 81, fractionBar}, {L3, 270, 81, fractionBar}},
        {T1, T2, T3, T4}},
    {{21, 22}, "",
        {{T1, 140, 86}, {T2, 220, 86}, {T4, 310, 86}},
        {{L5, 202, 86, "="}, {L8, 277, 86, "   *   "}},
        {T1, T2, T4}},
    {{metersTopic, gramsTopic}, "",
        {{T4, 1, 86}},
        {{L5, 281, 86, "="}}, {}},
    // Exponents stand above the line of the tens, so that "10" may reach under their boxes.
    {{25}, "",
        {{T1, 161, 96}, {T2, 270, 62}},
        {{L8, 221, 96, " *  10"}}, {}},
    {{26}, "",
        {{T1, 59, 96}, {T2, 170, 62}, {T3, 302, 96}, {T4, 413, 62}},
        {{L8, 121, 96, " *  10"}, {L4, 381, 96, " *  10"}, {L5, 245, 96, "*"}}, {}},
    {{27}, "",
        {{T1, 59, 96}, {T2, 170, 62}, {T3, 302, 96}, {T4, 413, 62}},
        {{L8, 121, 96, " *  10"}, {L4, 381, 96, " *  10"}, {L5, 245, 96, "{"}}, {}},
};
// clang-format on

}  // namespace

const WorksheetLayout* layoutOf(int problemType) {
    for (const WorksheetLayout& layout : layouts) {
        if (std::find(layout.types.begin(), layout.types.end(), problemType) != layout.types.end()) return &layout;
    }
    return nullptr;
}

bool isOnPaper(int problemType) {
    return problemType > 0 && layoutOf(problemType) == nullptr;
}

std::vector<int> boxesAsRead() {
    std::vector<int> numbers;
    const WorksheetLayout* layout = layoutOf(ws.ProblemType);
    if (layout == nullptr) return numbers;
    for (const PlacedBox& placed : layout->boxes) {
        for (int number = 1; number <= 6; ++number) {
            if (&frmPaper.box(number) == &(frmPaper.*placed.box)) numbers.push_back(number);
        }
    }
    return numbers;
}

}  // namespace ordwise
