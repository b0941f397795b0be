#include "GraphPlot.hpp"

#include "GraphTrace.hpp"
#include "NumberText.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace ordwise {
namespace {

constexpr double gridLimit = 320;  // from here on a grid would be a solid colour
constexpr double pointRadius = 0.2;
constexpr double smallestRadius = 2;  // pixels: a point stays in sight however far the view is

constexpr double gap = 6;  // around what stands in the strip
constexpr double listWidth = 132;
constexpr double buttonWidth = 84;  // where no list makes the strip wider
constexpr double buttonHeight = 26;

constexpr double tickLength = 3;      // pixels to each side of the axis
constexpr double labelDistance = 14;  // between two numbers along an axis

struct StepRow {
    double from;  // xMax
    double factor;
};

// clang-format off
constexpr std::array<StepRow, 5> plotSteps{{
    {20480, 100},
    { 2560,  10},
    {  320,   1},
    {   40,   0.1},
    {    0,   0.01},
}};
// clang-format on

double stepFor(double xMax) {
    const auto* row =
        std::find_if(plotSteps.begin(), plotSteps.end(), [xMax](const StepRow& r) { return xMax >= r.from; });
    return graphSettings.GraphQuality * row->factor;
}

void put(Control& control, double left, double top, double width, double height) {
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
}

// The list takes the height that the buttons leave.
void layStrip(GraphWindow& window) {
    const bool buttons = window.Command1.Visible;
    const bool list = window.List1.Visible;
    const double width = list ? listWidth : buttonWidth;
    window.StripWidth = buttons || list ? width + 2 * gap : 0;
    const double left = window.Width + gap;
    const double below = buttons ? window.Height - 2 * (buttonHeight + gap) : window.Height;
    put(window.List1, left, gap, listWidth, below - 2 * gap);
    put(window.Command1, left, below, width, buttonHeight);
    put(window.Command2, left, below + buttonHeight + gap, width, buttonHeight);
}

// So many pixels across, in coordinates of the graph.
double pixels(const GraphWindow& window, double count) {
    return count * (window.xMax - window.xMin) / (squareOf(window).width - 2);
}

void drawGrid(GraphWindow& window) {
    window.ForeColor = colourOfNumber(graphSettings.GraphGridColor);
    window.DrawWidth = 1;
    for (double i = std::ceil(window.xMin); i <= window.xMax; ++i) {
        window.line(i, window.yMin, i, window.yMax);
        window.line(window.xMin, i, window.xMax, i);
    }
}

void writeAt(GraphWindow& window, double x, double y, const std::string& text) {
    window.CurrentX = x;
    window.CurrentY = y;
    window.print(text);
}

// The least of 1, 2, 5, 10, 20, ... that leaves the numbers apart.
double labelStep(const GraphWindow& window) {
    const double least = window.TextWidth(textOf(window.xMin)) + pixels(window, labelDistance);
    for (double power = 1;; power *= 10) {
        for (const double step : {power, 2 * power, 5 * power}) {
            if (step >= least) return step;
        }
    }
}

// A number below its place on the axis of x, with the axis marked there.
void labelX(GraphWindow& window, double x) {
    const double tick = pixels(window, tickLength);
    const std::string text = textOf(x);
    window.line(x, -tick, x, tick);
    writeAt(window, x - window.TextWidth(text) / 2, -tick, text);
}

// The same to the right of the axis of y, with the middle of its digits at its place.
void labelY(GraphWindow& window, double y) {
    const double tick = pixels(window, tickLength);
    window.line(-tick, y, tick, y);
    writeAt(window, 2 * tick, y + window.TextHeight() / 2, textOf(y));
}

// Between the ends, as far as there is room beside their numbers.
void labelAxes(GraphWindow& window) {
    const double step = labelStep(window);
    const double end = 0.98 * window.xMax - 1.5 * window.TextWidth(textOf(window.xMin)) - pixels(window, tickLength);
    for (double place = step; place <= end; place += step) {
        for (const double at : {place, -place}) {
            labelX(window, at);
            labelY(window, at);
        }
    }
}

void drawAxes(GraphWindow& window) {
    window.ForeColor = black;
    window.line(window.xMin, 0, window.xMax, 0);
    window.line(0, window.yMin, 0, window.yMax);
    const std::string rightmost = textOf(window.xMax);
    writeAt(window, window.xMin, 0, textOf(window.xMin));
    const double beside = pixels(window, window.DrawWidth);  // clear of the axis itself
    writeAt(window, beside, 0, "0");
    writeAt(window, beside, window.yMax, textOf(window.yMax));
    writeAt(window, beside, window.yMin + window.TextHeight(), textOf(window.yMin));
    writeAt(window, window.xMax - window.TextWidth(rightmost) - 0.02 * window.xMax, 0, rightmost);
    labelAxes(window);
}

// Each numeral in the middle of its quadrant.
void writeQuadrants(GraphWindow& window) {
    window.FontFace = Face::Courier;
    window.FontSize = 16;
    const auto numeral = [&window](double x, double y, const std::string& text) {
        writeAt(window, x - window.TextWidth(text) / 2, y + window.TextHeight() / 2, text);
    };
    numeral(window.xMax / 2, window.yMax / 2, "I");
    numeral(window.xMin / 2, window.yMax / 2, "II");
    numeral(window.xMin / 2, window.yMin / 2, "III");
    numeral(window.xMax / 2, window.yMin / 2, "IV");
    window.FontFace = Face::Sans;
    window.FontSize = 8.25;
}

void drawPoint(GraphWindow& window, double x, double y) {
    window.List1.List.push_back(coordinateLine(x, y));
    if (x < window.xMin || x > window.xMax || y < window.yMin || y > window.yMax) return;
    window.circle(x, y, std::max(pointRadius, pixels(window, smallestRadius)), true);
}

void drawSegment(GraphWindow& window, const Segment& segment) {
    window.line(segment.x1, segment.y1, segment.x2, segment.y2);
}

void drawLineOfPoints(GraphWindow& window) {
    const GraphSubject& points = window.subject;
    drawPoint(window, points.x1, points.y1);
    drawPoint(window, points.x2, points.y2);
    const auto part = seenPart({points.x1, points.y1, points.x2, points.y2}, window);
    if (part) drawSegment(window, *part);
    // Nothing is traced, so there is no quality to choose.
    window.mnuGraphHighQuality.Enabled = false;
    window.mnuGraphHighSpeed.Enabled = false;
}

void drawEquation(GraphWindow& window) {
    Trace trace = traceEquation(window);
    for (const Segment& segment : trace.segments) drawSegment(window, segment);
    window.List1.List = std::move(trace.list);
}

}  // namespace

DrawingArea squareOf(const GraphWindow& window) {
    const double side = std::min(window.Width, window.Height);
    return {(window.Width - side) / 2, (window.Height - side) / 2, side, side};
}

void sizeGraph(GraphWindow& window) {
    layStrip(window);
    // A pixel is left free on each side, so that the outermost lines of the grid are whole.
    const DrawingArea square = squareOf(window);
    window.Scale(window.xMin, window.yMax, window.xMax, window.yMin,
                 {square.x + 1, square.y + 1, square.width - 2, square.height - 2});
    window.plotStep = stepFor(window.xMax);
}

void drawGraph(GraphWindow& window) {
    window.cls();
    const bool grid = window.xMax < gridLimit;
    window.BackColor = grid ? white : colourOfNumber(graphSettings.GraphGridColor);
    if (grid) drawGrid(window);
    window.DrawWidth = 2;
    drawAxes(window);
    if (window.mnuGraphQuadrant.Checked) writeQuadrants(window);

    window.ForeColor = colourOfNumber(graphSettings.GraphLineColor);
    window.List1.List.clear();
    if (window.subject.kind == 1) {
        drawPoint(window, window.subject.x1, window.subject.y1);
    } else if (window.subject.kind == 2) {
        drawLineOfPoints(window);
    } else {
        drawEquation(window);
    }
}

Colour colourOfNumber(const std::string& number) {
    const int value = IsNumeric(number) ? longOf(number) : 0;
    const auto part = [value](int place) { return static_cast<std::uint8_t>((value >> place) & 0xFF); };
    return {part(0), part(8), part(16)};
}

std::string numberOfColour(Colour colour) {
    return textOf(colour.red + 256 * colour.green + 65536 * colour.blue);
}

}  // namespace ordwise
