#include "DeskEvents.hpp"

#include "Platform.hpp"
#include "SpokenForm.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <algorithm>

namespace ordwise {
namespace {

bool lightIsRed() {
    return frmPaper.Light.Image == "light3";
}

// A hint as it is typed: nobody types a closing mark or a "#".
// e.g. "Example: #1/2# + 3~4~" -> "Example: 1/2 + 3~4"
std::string asTyped(std::string_view markup) {
    std::string keys;
    bool closes = false;
    for (const char c : markup) {
        if (c == '#') continue;
        if (c == '^' || c == '~') {
            closes = !closes;
            if (!closes) continue;
        }
        keys += c;
    }
    return keys;
}

// The last step that has a line; a step may have a note only.
std::string shownLine() {
    const int last = ws.ShownStep > 0 ? std::min<int>(ws.ShownStep, ws.StepCount - 1) : ws.StepCount - 1;
    for (int step = last; step >= 1; --step) {
        if (!ws.StepLines[step].empty()) return ws.StepLines[step];
    }
    return "";
}

}  // namespace

void Paper_MouseDown(int sheet) {
    frmPaper.Paper[sheet].Order = ++frmPaper.FrontOrder;
}

void Paper_MouseMove(int sheet, double byX, double byY) {
    Sheet& moved = frmPaper.Paper[sheet];
    moved.Left += byX;
    moved.Top += byY;
    if (sheet != 0) return;
    frmPaper.Pencil.Left += byX;
    frmPaper.Pencil.Top += byY;
}

void Box_KeyPress(int number, std::string_view key) {
    const bool accepted = Text_KeyPress(number, key);
    frmPaper.Light.Image = accepted ? "light2" : "light3";
    frmPaper.Light.ToolTip = accepted ? "Correct Input." : "Incorrect input.";
}

std::string statusLine() {
    if (!frmMain.StatusText.empty()) return frmMain.StatusText;
    if (!frmPaper.Loaded) return "Press Ctrl+N or choose New Problem to begin.";
    if (lightIsRed()) return ws.ExplainOverrideText;
    if (ws.InputOpen) return asTyped(ws.HintText);
    if (frmPaper.Paper[ws.CurrentSheet].blinker.Visible) return "Press Enter or click Next Step to go on.";
    return "Erase the problem to enter another one, or choose New Problem.";
}

bool statusIsRefusal() {
    return frmMain.StatusText.empty() && frmPaper.Loaded && lightIsRed();
}

std::string spokenLineInView() {
    if (ws.InputOpen) return spokenLine(ImplodeCanon(), lettersOf(ws.ProblemType));
    return spokenLine(shownLine(), lettersOf(ws.ProblemType));
}

}  // namespace ordwise
