#include "DeskEvents.hpp"

#include "Platform.hpp"
#include "SpokenForm.hpp"
#include "StartWindows.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

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
    if (ws.InputOpen && frmMain.mnuSolve.Enabled) return "Ready to solve: press Enter or F5, or go on typing.";
    if (ws.InputOpen) return asTyped(ws.HintText);
    if (frmPaper.Paper[ws.CurrentSheet].blinker.Visible) return "Press Enter or click Next Step to go on.";
    return "Erase the problem to enter another one, or choose New Problem.";
}

bool statusIsRefusal() {
    return frmMain.StatusText.empty() && frmPaper.Loaded && lightIsRed();
}

std::string spokenLineInView() {
    const auto letters = lettersOf(ws.ProblemType);
    if (ws.InputOpen) return spokenLine(ImplodeCanon(), letters);
    return spokenLine(ws.LineInView.empty() ? ws.StepLines[1] : ws.LineInView, letters);
}

bool waysToBeginAreOffered() {
    return !frmPaper.Loaded && !frmLogo.Loaded;
}

std::string spokenDeskName() {
    return frmPaper.Loaded ? "Worksheet: " + ws.TopicName : "Empty desk";
}

std::string spokenDesk() {
    if (!frmPaper.Loaded) return "";
    const std::string line = spokenLineInView();
    return line.empty() ? asTyped(ws.HintText) : line;
}

}  // namespace ordwise
