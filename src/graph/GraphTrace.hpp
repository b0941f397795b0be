// Tracing: what an equation draws between the bounds of the window, as segments that can be seen
// and lines for the list of coordinates.
#pragma once

#include "GraphWindow.hpp"

#include <optional>
#include <string>
#include <vector>

namespace ordwise {

struct Segment {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    bool operator==(const Segment&) const = default;
};

struct Trace {
    std::vector<Segment> segments;
    std::vector<std::string> list;
};

// The part of a segment that lies within the bounds of the window, if any does.
[[nodiscard]] std::optional<Segment> seenPart(const Segment& segment, const GraphWindow& window);

// e.g. 3, 7.128 -> "x=3  y=7.13"
[[nodiscard]] std::string coordinateLine(double x, double y);

// The equation of the window, followed from xMin to xMax by plotStep. A point that has no value or
// lies outside is not joined to its neighbours, but a straight line runs from border to border. Whole
// x come into the list. A vertical line is followed from yMin to yMax.
[[nodiscard]] Trace traceEquation(const GraphWindow& window);

}  // namespace ordwise
