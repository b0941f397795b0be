// The worksheet's variant: a pile of up to ten sheets.
#include "StepDisplay.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include "NumberText.hpp"
#include "Platform.hpp"

namespace ordwise {
namespace {

constexpr double pileStep = 25;

// Opens the sheet behind the current one, a little lower and to the right, and brings it to the
// front. The eleventh sheet is fault 9; the current sheet then stays the tenth.
DrawingSurface& nextSheet(bool afterBreak) {
    Sheet& old = frmPaper.Paper[ws.CurrentSheet];
    Sheet& sheet = frmPaper.Paper[ws.CurrentSheet + 1];
    ws.CurrentSheet += 1;
    old.blinker.Visible = false;
    pushBesidePile(pileStep);
    sheet.CurrentY = afterBreak ? sheetTopAfterBreak : sheetTopY;
    sheet.CurrentX = 0;
    sheet.Left = old.Left + pileStep;
    sheet.Top = old.Top + pileStep;
    sheet.Width = 800;
    sheet.Height = 657;
    sheet.Visible = true;
    sheet.Order = ++frmPaper.FrontOrder;
    sheet.Label6.Text = ws.TopicName + " (Page " + textOf(ws.CurrentSheet + 1) + ")";
    return sheet;
}

// Of a long solution every line behind the tenth sheet faults; one message says it for all of them.
void reportFault() {
    const bool full = ws.CurrentSheet == PaperWindow::lastSheet &&
                      frmPaper.Paper[ws.CurrentSheet].CurrentY > worksheetOffsets.pageFull;
    if (full && frmPaper.PileFull) return;
    frmPaper.PileFull = full;
    platform.dialogs->messageBox("An error occurred while displaying information.", "Ordwise", MessageButtons::Ok);
}

}  // namespace

void pushBesidePile(double right) {
    const Sheet& sheet = frmPaper.Paper[0];
    const double pileEnd = sheet.Left + frmPaper.PileShift + sheet.Width;
    const double figureEnd = frmPaper.Wizard.Left + frmPaper.Wizard.Width;
    frmPaper.PileShift += right;
    if (figureEnd > pileEnd) {
        frmPaper.Wizard.Left += right;
        frmPaper.Click.Left += right;
    }
    frmPaper.Light.Left += right;
}

void PrintMathLine(std::string_view line, bool placeButton, double closer) {
    const SurfaceOffsets offsets = closedUp(closer);
    MathLineRenderer renderer(frmPaper.Paper[ws.CurrentSheet], offsets, black, nextSheet);
    try {
        renderer.line(line);
        ws.LineEndX = renderer.lineEndX();
        ws.LineEndY = renderer.lineEndY();
        ws.LineEndsInFraction = renderer.endsInFraction();
        if (renderer.denominatorEndX() > 0) ws.DenominatorEndX = longOf(renderer.denominatorEndX());
        frmPaper.PileFull = false;
        if (placeButton) PlaceNextStep();
    } catch (const RunTimeFault&) {
        renderer.newLine();
        reportFault();
    }
}

}  // namespace ordwise
