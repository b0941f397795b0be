#include "StepDisplay.hpp"

#include "Fault.hpp"
#include "Platform.hpp"
#include "ShownLines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

namespace ordwise {
namespace {

constexpr double checkSize = 24;

Sheet& currentSheet() {
    return frmPaper.Paper[ws.CurrentSheet];
}

// Where the lines from `first` on come to stand when they begin at the pen of the current sheet.
struct Trial {
    int sheets = 0;           // that are begun
    bool aloneAtEnd = false;  // the last line begins one, and stands on it alone
};

Trial tryLines(int first, int last, double closer) {
    DrawingSurface surface = currentSheet().trial();
    surface.CurrentY = currentSheet().CurrentY;
    const SurfaceOffsets offsets = closedUp(closer);
    Trial trial;
    for (int i = first; i <= last; ++i) {
        const int before = trial.sheets;
        bool begins = false;
        MathLineRenderer renderer(surface, offsets, black, [&](bool afterBreak) -> DrawingSurface& {
            ++trial.sheets;
            begins = begins || !afterBreak;
            surface.CurrentX = 0;
            surface.CurrentY = afterBreak ? sheetTopAfterBreak : sheetTopY;
            return surface;
        });
        try {
            renderer.line(ws.StepLines[i]);
        } catch (const RunTimeFault&) {
            renderer.newLine();
        }
        trial.aloneAtEnd = begins && trial.sheets == before + 1;
    }
    return trial;
}

// False only where the lines find room on the sheet without looking any closer.
bool mayTurnSheet(int first, int last) {
    constexpr double rowHeight = 68;
    constexpr std::size_t surelyOneRow = 35;
    double y = currentSheet().CurrentY;
    for (int i = first; i <= last; ++i) {
        const std::size_t rows = 1 + ws.StepLines[i].size() / surelyOneRow;
        y += rowHeight * static_cast<double>(rows);
    }
    return y > worksheetOffsets.pageFull;
}

int lastLine() {
    int last = lastShownStep();
    while (last > 0 && ws.StepLines[last].empty()) --last;
    return last;
}

// How the lines from one on to the end are drawn so that the last is not alone on a sheet: all of them
// closer to one another, or, where that does not help, with the line before the last on the new sheet.
struct Plan {
    double closer = 0;
    int turnBefore = 0;
};

Plan planFrom(int first) {
    constexpr double most = 11;  // fractions one below the other keep clear
    const int last = lastLine();
    if (!mayTurnSheet(first, last) || !tryLines(first, last, 0).aloneAtEnd) return {};
    for (double closer = 1; closer <= most; closer += 1) {
        if (!tryLines(first, last, closer).aloneAtEnd) return {closer, 0};
    }
    return {0, last - 1};
}

void drawStep(int i, bool placeButton, const Plan& plan, bool written = true) {
    const std::string& line = ws.StepLines[i];
    showLine(i, placeButton, {written, plan.closer, i == plan.turnBefore});
    // A step may have a note only.
    if (!line.empty()) ws.LineInView = line;
}

void showAll() {
    const Plan plan = planFrom(2);
    const int last = lastShownStep();
    for (int i = 2; i <= last; ++i) {
        drawStep(i, false, plan);
        ws.ShownStep = i;
    }
    PlaceCheckMark();
}

void showLast() {
    const bool written = !ws.StepLines[ws.ShownStep].empty();
    drawStep(ws.ShownStep, false, written ? planFrom(ws.ShownStep) : Plan{}, written);
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
        drawStep(ws.ShownStep, true, planFrom(ws.ShownStep));
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
