#include "Printing.hpp"

#include "GraphPlot.hpp"
#include "GraphWindow.hpp"
#include "Platform.hpp"
#include "PrintWindows.hpp"
#include "PrintingPages.hpp"
#include "StepDisplay.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace ordwise {
namespace {

constexpr int lineTopic = 106;   // "Graphing A Line Using Two Points"
constexpr int pointTopic = 108;  // "Plotting A Point"

constexpr double solutionPoints = 12;
constexpr double explanationPoints = 10;

using Heading = std::array<std::string, 3>;

Heading firstHeading() {
    return {"Halvern Ordwise", frmPaper.Paper[0].Label6.Text, frmPaper.Label7.Text};
}

// What stands in the window, or would stand there, when the graph prints without it.
Heading heading() {
    if (!frmPrintSetup.Loaded) return firstHeading();
    return {frmPrintSetup.Text1.Text, frmPrintSetup.Text2.Text, frmPrintSetup.Text3.Text};
}

void printOwnHeading(PageSurface& page) {
    printHeading(page, heading());
    page.printLine("");
}

void printExplanation(PageSurface& page, const std::string& note) {
    page.FontFace = Face::Note;
    page.FontSize = explanationPoints;
    if (!note.empty()) PrintLine(note, page, true);
    page.FontSize = solutionPoints;
    page.printLine("");
    page.FontFace = Face::Halvern;
}

// An explanation at the top of a page would explain nothing: its step goes with it.
void printExplainedStep(PageSurface& page, const std::string& line, const std::string& note) {
    constexpr double lastTop = 515;  // below it, the step finds room and its explanation none
    if (page.CurrentY > lastTop && !line.empty()) beginPage(page);
    PrintLine(line, page, false);
    printExplanation(page, note);
}

// Slot 0 holds no step: its note is the hint how to type a problem.
void layOutSolution(PageSurface& page, bool withExplanations) {
    printOwnHeading(page);
    for (int i = 1; i <= lastShownStep(); ++i) {
        if (withExplanations) {
            printExplainedStep(page, ws.StepLines[i], ws.StepNotes[i]);
        } else {
            PrintCloseLine(ws.StepLines[i], page);
        }
    }
}

// The graph may be one of a problem that is gone from the desk.
Heading graphHeading() {
    Heading lines = heading();
    if (lines[1] == firstHeading()[1]) lines[1] = frmGraph.subject.topic;
    return lines;
}

// The window's picture drawn anew at the size of the page, so that it is as sharp as the paper.
void layOutGraph(PageSurface& page, const PaperSize& paper) {
    constexpr double belowProblem = 6;  // a denominator reaches down
    printHeading(page, graphHeading());
    page.printLine("");
    for (const std::string& line : frmGraph.subject.lines) PrintLine(line, page, false);
    page.printLine("");
    page.CurrentY += belowProblem;
    const double width = paper.width - 2 * paper.margin;
    const double height = paper.height - 2 * paper.margin;
    const double top = page.CurrentY / pageUnitsDown * height;
    GraphWindow picture = frmGraph;
    picture.Width = std::min(width, height - top);
    picture.Height = picture.Width;
    sizeGraph(picture);
    drawGraph(picture);
    page.place(picture.drawn(), (width - picture.Width) / 2, top);
}

void enableOK() {
    frmPrintSetup.Command2.Enabled = frmPrintSetup.Check1.Checked || frmPrintSetup.Check2.Checked;
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

void frmPrintSetup_Command2_Click() {
    if (frmPrintSetup.Check2.Checked && !printSolution(frmPrintSetup.Check3.Checked)) return;
    if (frmPrintSetup.Check1.Checked && !PrintTheGraph()) return;
    frmPrintSetup_Command1_Click();
}

void frmPrintSetup_Command3_Click() {
    platform.printer->setup();
    frmPrintSetup_Paint();
}

bool printSolution(bool withExplanations) {
    return printPages(heading()[1], [=](PageSurface& page) { layOutSolution(page, withExplanations); });
}

bool PrintTheGraph() {
    if (!frmGraph.Loaded) return false;
    return printPages(graphHeading()[1] + " Graph",
                      [](PageSurface& page) { layOutGraph(page, platform.printer->paper()); });
}

}  // namespace ordwise
