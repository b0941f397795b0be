#include "StepDisplay.hpp"

#include "Platform.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

namespace ordwise {
namespace {

constexpr double checkSize = 24;

Sheet& currentSheet() {
    return frmPaper.Paper[ws.CurrentSheet];
}

void showStep(int step, bool placeButton) {
    const std::string& line = ws.StepLines[step];
    PrintMathLine(line, placeButton);
    // A step may have a note only.
    if (!line.empty()) ws.LineInView = line;
}

void showAll() {
    const int last = lastShownStep();
    for (int i = 2; i <= last; ++i) {
        showStep(i, false);
        ws.ShownStep = i;
    }
    PlaceCheckMark();
}

void showLast() {
    if (!ws.StepLines[ws.ShownStep].empty()) showStep(ws.ShownStep, false);
    PlaceCheckMark();
    // Only a student who steps through to the end is taken to the graph.
    if (ws.ProblemType == 105) {
        ws.GraphKind = 3;
        platform.windows->show("frmGraph");
    } else if (ws.ProblemType == 107) {
        ws.GraphKind = 1;
        platform.windows->show("frmGraph");
    }
}

}  // namespace

int lastShownStep() {
    const int next = ws.StepCount;
    return next <= lastStep && !ws.StepLines[next].empty() ? next : next - 1;
}

void ShowSteps() {
    frmMain.MousePointer = ws.NormalPointer;
    if (ws.ShownStep == 0) {
        showAll();
    } else if (ws.ShownStep < ws.StepCount - 1) {
        showStep(ws.ShownStep, true);
    } else {
        showLast();
    }
    ResetStore(false);
}

void PlaceNextStep() {
    Control& blinker = currentSheet().blinker;
    blinker.Left = ws.LineEndX + 10;
    blinker.Top = ws.LineEndY - 13;
    blinker.Visible = true;
    frmPaper.Timer2.Enabled = true;
    if (ws.ClickNotify) frmPaper.clickMe.Enabled = true;
}

void PlaceCheckMark() {
    currentSheet().blinker.Visible = false;
    currentSheet().image("check", ws.LineEndX + 5, ws.LineEndY - 15, checkSize, checkSize);
}

void blinker_Click() {
    frmPaper.Timer2.Enabled = false;
    currentSheet().blinker.Visible = false;
    if (frmMain.mnuShowStep.Checked) ws.ShownStep += 1;
    ShowSteps();
}

void Timer2_Timer() {
    Control& blinker = currentSheet().blinker;
    blinker.Image = blinker.Image == "arrow2" ? "arrow1" : "arrow2";
}

void clickMe_Timer() {
    frmPaper.Click.Visible = !frmPaper.Click.Visible;
}

}  // namespace ordwise
