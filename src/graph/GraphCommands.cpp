#include "GraphCommands.hpp"

#include "GraphEquation.hpp"
#include "GraphPlot.hpp"
#include "GraphTrace.hpp"
#include "NumberText.hpp"
#include "Platform.hpp"
#include "StepDisplay.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <algorithm>
#include <cmath>

namespace ordwise {
namespace {

constexpr int highQuality = 1;
constexpr int highSpeed = 20;
constexpr const char* defaultLineColor = "255";
constexpr const char* defaultGridColor = "16766596";

constexpr double twipsPerPixel = 15;
constexpr double smallSide = 4000 / twipsPerPixel;
constexpr double normalSide = 8000 / twipsPerPixel;

constexpr double leastToHalve = 10;  // xMax must be above it to zoom in
constexpr double mostToDouble = 40960;

constexpr int quadrantTopic = 107;

void resize() {
    sizeGraph(frmGraph);
    drawGraph(frmGraph);
}

void setSize(double width, double height) {
    frmGraph.Width = width;
    frmGraph.Height = height;
    resize();
}

void markQuality() {
    frmGraph.mnuGraphHighQuality.Checked = graphSettings.GraphQuality == highQuality;
    frmGraph.mnuGraphHighSpeed.Checked = graphSettings.GraphQuality == highSpeed;
}

void setQuality(int quality) {
    graphSettings.GraphQuality = quality;
    markQuality();
    resize();
}

void defaultColors() {
    graphSettings.GraphLineColor = defaultLineColor;
    graphSettings.GraphGridColor = defaultGridColor;
}

void applySettings() {
    if (graphSettings.GraphLineColor.empty()) {
        defaultColors();
        graphSettings.GraphQuality = highSpeed;
    }
    markQuality();
}

void zoomBy(double factor) {
    for (double* bound : {&frmGraph.xMin, &frmGraph.xMax, &frmGraph.yMin, &frmGraph.yMax}) *bound *= factor;
    resize();
}

void chooseColor(std::string& setting) {
    const std::optional<Colour> chosen = platform.colours->chooseColour(colourOfNumber(setting));
    if (!chosen) return;
    setting = numberOfColour(*chosen);
    drawGraph(frmGraph);
}

// The problem and, where it was solved, the last line of its solution.
std::vector<std::string> problemAndAnswer() {
    std::vector<std::string> lines{ws.StepLines[1].empty() ? ImplodeCanon() : ws.StepLines[1]};
    const std::string& solved = ws.StepLines[std::max(lastShownStep(), 0)];
    if (!solved.empty() && solved != lines.front()) lines.push_back(solved);
    return lines;
}

// A later problem leaves its values in the workspace while this window is still looked at.
GraphSubject subjectOnDesk() {
    return {ws.GraphKind,      ws.GraphX1, ws.GraphY1, ws.GraphX2, ws.GraphY2, frmPaper.Paper[0].Label6.Text,
            problemAndAnswer()};
}

}  // namespace

void frmGraph_Load() {
    const bool askedFor = frmGraph.AskedFor;
    const double screenWidth = frmGraph.ScreenWidth;
    const double screenHeight = frmGraph.ScreenHeight;
    frmGraph = GraphWindow{};
    frmGraph.Loaded = true;
    frmGraph.AskedFor = askedFor;
    frmGraph.subject = subjectOnDesk();
    frmGraph.ScreenWidth = screenWidth;
    frmGraph.ScreenHeight = screenHeight;
    frmGraph.Width = normalSide;
    frmGraph.Height = normalSide;
    frmGraph.mnuGraphQuadrant.Checked = ws.ProblemType == quadrantTopic;
    applySettings();
    frmGraph.equationTerms = readEquation(ws.GraphValues);
    resize();
}

void frmGraph_Unload() {
    frmGraph.Loaded = false;
    frmGraph.equationTerms.reset();
}

void frmGraph_Resize() {
    resize();
}

void frmGraph_MouseMove(double x, double y) {
    // To the hundredth of a close view; a pixel of a wide one covers more than that.
    const DrawingArea square = squareOf(frmGraph);
    const double perPixel = (frmGraph.xMax - frmGraph.xMin) / square.width;
    const int decimals = perPixel < 1 ? 2 : 0;
    const auto within = [](double place, double size, double from, double to) {
        return from + std::clamp((place - 1) / (size - 2), 0.0, 1.0) * (to - from);
    };
    const double atX = within(x - square.x, square.width, frmGraph.xMin, frmGraph.xMax);
    const double atY = within(y - square.y, square.height, frmGraph.yMax, frmGraph.yMin);
    frmGraph.StatusText = coordinateLine(Round(atX, decimals), Round(atY, decimals));
}

void mnuGraphZoomIn_Click() {
    if (frmGraph.xMax > leastToHalve) zoomBy(0.5);
}

void mnuGraphZoomOut_Click() {
    if (frmGraph.xMax <= mostToDouble) zoomBy(2);
}

void mnuGraphPrintSetup_Click() {
    platform.printer->setup();
}

void mnuGraphExit_Click() {
    platform.windows->unload("frmGraph");
}

void mnuToggleZoomButtons_Click() {
    const bool visible = !frmGraph.Command1.Visible;
    frmGraph.Command1.Visible = visible;
    frmGraph.Command2.Visible = visible;
    resize();
}

void mnuToggleCoordinates_Click() {
    frmGraph.List1.Visible = !frmGraph.List1.Visible;
    resize();
}

void mnuGraphQuadrant_Click() {
    frmGraph.mnuGraphQuadrant.Checked = !frmGraph.mnuGraphQuadrant.Checked;
    drawGraph(frmGraph);
}

void mnuGraphHighQuality_Click() {
    setQuality(highQuality);
}

void mnuGraphHighSpeed_Click() {
    setQuality(highSpeed);
}

void mnuGraphColor_Click() {
    chooseColor(graphSettings.GraphLineColor);
}

void mnuGraphGridColor_Click() {
    chooseColor(graphSettings.GraphGridColor);
}

void mnuGraphDefault_Click() {
    defaultColors();
    drawGraph(frmGraph);
}

void mnuGraphSmall_Click() {
    setSize(smallSide, smallSide);
}

void mnuGraphNormal_Click() {
    setSize(normalSide, normalSide);
}

void mnuGraphMax_Click() {
    setSize(frmGraph.ScreenWidth, frmGraph.ScreenHeight);
}

}  // namespace ordwise
