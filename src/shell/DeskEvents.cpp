#include "DeskEvents.hpp"

#include "Platform.hpp"
#include "SpokenText.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <algorithm>

namespace ordwise {
namespace {

// The figure keeps clear of the right and lower border of the desk.
constexpr double rightGap = 8;
constexpr double lowerGap = 27;

void explainStepInView() {
    if (!ws.StepNotes[ws.ShownStep].empty()) platform.windows->show("frmExplain");
}

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

void Light_MouseUp() {
    ws.ExplainOverride = lightIsRed();
    if (ws.ExplainOverride) platform.windows->show("frmExplain");
}

void Wizard_Click() {
    explainStepInView();
}

void Click_MouseUp() {
    explainStepInView();
}

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

void Wizard_MouseMove(double byX, double byY) {
    frmPaper.Wizard.Left += byX;
    frmPaper.Wizard.Top += byY;
    frmPaper.Click.Left += byX;
    frmPaper.Click.Top += byY;
}

void Wizard_MouseUp(double width, double height) {
    Control& wizard = frmPaper.Wizard;
    const double left = wizard.Left;
    const double top = wizard.Top;
    wizard.Left = std::max(wizard.Left, 0.0);
    wizard.Top = std::max(wizard.Top, 0.0);
    if (wizard.Left + wizard.Width + rightGap > width) wizard.Left = width - wizard.Width - rightGap;
    if (wizard.Top + wizard.Height + lowerGap > height) wizard.Top = height - wizard.Height - lowerGap;
    frmPaper.Click.Left += wizard.Left - left;
    frmPaper.Click.Top += wizard.Top - top;
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
    if (ws.InputOpen) return spoken(ImplodeCanon());
    return spoken(shownLine());
}

}  // namespace ordwise
