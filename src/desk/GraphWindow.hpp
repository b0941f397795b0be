// frmGraph as plain data: the window that draws a point, a line or the curve of a solved equation.
//
// The plot is a drawing surface of Width by Height pixels; its pen counts in coordinates of the graph,
// y upwards. The list of coordinates and the zoom buttons stand in a strip to the right of the plot,
// where they hide nothing of it; without both of them the strip is gone.
#pragma once

#include "LoadedFlag.hpp"
#include "Windows.hpp"

#include <optional>
#include <string>
#include <vector>

namespace ordwise {

// One term of an equation: numerator / denominator * base ^ (exponent / exponentRoot).
// e.g. -2/3x -> -2, 3, X, 1, 1 and x^(1/2) -> 1, 1, X, 1, 2
struct GraphTerm {
    enum class Base { One, X, Y, Group, Bars };

    double numerator = 1;
    double denominator = 1;
    Base base = Base::One;
    std::vector<GraphTerm> inside;  // of a group or of bars
    double exponent = 1;
    double exponentRoot = 1;
};

// left = the sum of right. The left side is a term of y, or one of x for a vertical line.
struct GraphEquation {
    GraphTerm left;
    std::vector<GraphTerm> right;
};

// What the window was opened for. It stays the same while the student goes on with another problem.
struct GraphSubject {
    int kind = 0;  // as GraphKind: 1 a point, 2 a line through two points, 3 a solved equation
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    std::string topic;               // the title of its sheet
    std::vector<std::string> lines;  // the problem and, where it was solved, its last line: MathMarkup
};

struct GraphWindow : DrawingSurface {
    LoadedFlag Loaded;
    GraphSubject subject;
    bool AskedFor = false;  // by its command; a graph that a solve opens leaves the keyboard to the paper

    double xMin = -20;
    double xMax = 20;
    double yMin = -20;
    double yMax = 20;
    double plotStep = 0.01;
    std::optional<GraphEquation> equationTerms;  // empty when the hand-over holds no equation

    // Of the picture, in pixels; the desktop writes what the user made of them. The plot is the largest
    // square in its middle, so that the squares of the grid are squares.
    double Width = 0;
    double Height = 0;
    // The plot that fills the screen; the desktop writes it before the window opens.
    double ScreenWidth = 1024;
    double ScreenHeight = 720;
    double StripWidth = 0;
    std::string StatusText;  // the coordinates under the mouse

    Control Command1, Command2;
    ListControl List1;

    Control mnuGraphPrint, mnuGraphPrintSetup, mnuGraphExit;
    Control mnuGraphZoomIn, mnuGraphZoomOut, mnuToggleZoomButtons, mnuToggleCoordinates, mnuGraphQuadrant;
    Control mnuGraphHighQuality, mnuGraphHighSpeed;
    Control mnuGraphColor, mnuGraphGridColor, mnuGraphDefault;
    Control mnuGraphSmall, mnuGraphNormal, mnuGraphMax;

    GraphWindow();
};

// Settings of the graph: they live as long as the program runs and are not stored. An empty line
// colour stands for a program in which no graph was opened yet.
struct GraphSettings {
    int GraphQuality = 0;        // 1 highest quality, 20 highest speed: a factor of plotStep
    std::string GraphLineColor;  // red + 256 * green + 65536 * blue, e.g. "255" for red
    std::string GraphGridColor;
};

extern GraphWindow frmGraph;
extern GraphSettings graphSettings;

}  // namespace ordwise
