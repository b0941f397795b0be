#include "Printing.hpp"

#include "Fault.hpp"
#include "GraphWindow.hpp"
#include "Platform.hpp"
#include "PrintWindows.hpp"
#include "PrintedPages.hpp"
#include "StepDisplay.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

constexpr int lineTopic = 106;   // "Graphing A Line Using Two Points"
constexpr int pointTopic = 108;  // "Plotting A Point"

constexpr const char* notLaidOut = "Nothing was printed, because the pages could not be laid out.";

using Heading = std::array<std::string, 3>;

Heading firstHeading() {
    return {"Halvern Ordwise", frmPaper.Paper[0].Label6.Text, frmPaper.Label7.Text};
}

// What stands in the window, or would stand there, when the graph prints without it.
Heading heading() {
    if (!frmPrintSetup.Loaded) return firstHeading();
    return {frmPrintSetup.Text1.Text, frmPrintSetup.Text2.Text, frmPrintSetup.Text3.Text};
}

PrintSheet sheetUnderHeading(PrintSheet::Kind kind) {
    PrintSheet sheet;
    sheet.What = kind;
    sheet.Heading = heading();
    return sheet;
}

// Slot 0 holds no step: its note is the hint how to type a problem.
PrintSheet solutionSheet(bool withExplanations) {
    PrintSheet sheet = sheetUnderHeading(PrintSheet::Kind::Solution);
    for (int i = 1; i <= lastShownStep(); ++i) {
        sheet.Lines.push_back(ws.StepLines[i]);
        if (withExplanations) sheet.Notes.push_back(ws.StepNotes[i]);
    }
    return sheet;
}

// The graph may be one of a problem that is gone from the desk.
Heading graphHeading() {
    Heading lines = heading();
    if (lines[1] == firstHeading()[1]) lines[1] = frmGraph.subject.topic;
    return lines;
}

PrintSheet graphSheet() {
    PrintSheet sheet;
    sheet.What = PrintSheet::Kind::Graph;
    sheet.Heading = graphHeading();
    sheet.Lines = frmGraph.subject.lines;
    return sheet;
}

// A fault while the sheet is read, from a solution that was cut off, prints nothing.
template <class Sheet>
bool printSheet(const std::string& title, Sheet sheet) {
    try {
        return printSheets(title, {sheet()});
    } catch (const RunTimeFault&) {
        frmMain.StatusText = notLaidOut;
        return false;
    }
}

void enableOK() {
    frmPrintSetup.Command2.Enabled = frmPrintSetup.Check1.Checked || frmPrintSetup.Check2.Checked;
    frmPrintSetup.Command4.Enabled = frmPrintSetup.Command2.Enabled;
}

}  // namespace

void frmPrintSetup_Load() {
    frmPrintSetup = PrintSetupWindow{};
    const Heading first = firstHeading();
    frmPrintSetup.Text1.Text = first[0];
    frmPrintSetup.Text2.Text = first[1];
    frmPrintSetup.Text3.Text = first[2];
    if (ws.ProblemType == lineTopic || ws.ProblemType == pointTopic) {
        frmPrintSetup.Check2.Enabled = false;
        frmPrintSetup.Check3.Enabled = false;
    } else {
        frmPrintSetup.Check2.Checked = true;
    }
    if (frmGraph.Loaded) {
        frmPrintSetup.Check1.Enabled = true;
        frmPrintSetup.Check1.Checked = true;
    }
    enableOK();
    frmPrintSetup.Loaded = true;
}

void frmPrintSetup_Paint() {
    frmPrintSetup.Label1.Text = platform.printer->DeviceName();
}

void frmPrintSetup_Check1_Click() {
    enableOK();
}

void frmPrintSetup_Check2_Click() {
    enableOK();
}

void frmPrintSetup_Command1_Click() {
    frmPrintSetup.Loaded = false;
    platform.windows->unload("frmPrintSetup");
}

// What has been printed is not offered again when the job behind it was cancelled.
void frmPrintSetup_Command2_Click() {
    const bool solution = frmPrintSetup.Check2.Checked;
    if (solution && !printSolution(frmPrintSetup.Check3.Checked)) return;
    if (frmPrintSetup.Check1.Checked && !PrintTheGraph()) {
        frmPrintSetup.Check2.Checked = false;
        if (solution) frmMain.StatusText = "The solution is printed, its graph is not.  " + frmMain.StatusText;
        return;
    }
    frmPrintSetup_Command1_Click();
}

void frmPrintSetup_Command3_Click() {
    platform.printer->setup();
    frmPrintSetup_Paint();
}

void frmPrintSetup_Command4_Click() {
    try {
        std::vector<PrintSheet> sheets;
        if (frmPrintSetup.Check2.Checked) sheets.push_back(solutionSheet(frmPrintSetup.Check3.Checked));
        if (frmPrintSetup.Check1.Checked && frmGraph.Loaded) sheets.push_back(graphSheet());
        frmPrintPreview.Sheets = std::move(sheets);
        frmPrintPreview.Title = heading()[1];
    } catch (const RunTimeFault&) {
        frmMain.StatusText = notLaidOut;
        return;
    }
    platform.windows->show("frmPrintPreview");
}

bool printSolution(bool withExplanations) {
    return printSheet(heading()[1], [&] { return solutionSheet(withExplanations); });
}

bool PrintTheGraph() {
    if (!frmGraph.Loaded) return false;
    return printSheet(graphHeading()[1] + " Graph", graphSheet);
}

}  // namespace ordwise
