#include "GraphTrace.hpp"

#include "Fault.hpp"
#include "GraphEquation.hpp"
#include "NumberText.hpp"

#include <cmath>

namespace ordwise {
namespace {

struct TracedPoint {
    double x = 0;
    std::optional<double> y;  // empty where the equation has no value
};

bool isWhole(double value) {
    return value == std::floor(value);
}

// The places of a walk from `from` to `to`, two decimals each, so that no error adds up on the way.
// The last place is `to`, also where the last step falls short of it.
std::vector<double> places(double from, double to, double step) {
    constexpr double slack = 1e-9;
    std::vector<double> walked;
    const int steps = static_cast<int>((to - from) / step + slack);
    for (int i = 0; i <= steps; ++i) walked.push_back(Round(from + i * step, 2));
    if (walked.back() < to) walked.push_back(to);
    return walked;
}

TracedPoint pointAt(const GraphEquation& equation, double x, bool lowerBranch) {
    try {
        return {x, valueAt(equation, x, lowerBranch)};
    } catch (const RunTimeFault&) {
        return {x, std::nullopt};
    }
}

class CurveTracer {
public:
    CurveTracer(const GraphEquation& equation, const GraphWindow& window)
        : equation_(equation),
          window_(window),
          straight_(isStraight(equation)),
          broken_(isBrokenAtZero(equation)),
          places_(places(window.xMin, window.xMax, window.plotStep)) {}

    void branch(bool lower) {
        std::optional<TracedPoint> last;
        for (const double x : places_) {
            const TracedPoint point = pointAt(equation_, x, lower);
            if (point.y && isWhole(x)) trace.list.push_back(coordinateLine(x, *point.y));
            if (last && !straight_) join(*last, point);
            last = point;
        }
        if (straight_) joinEnds(lower);
    }

    Trace trace;

private:
    void join(const TracedPoint& from, const TracedPoint& to) {
        if (!from.y || !to.y || (broken_ && from.x < 0 && to.x > 0)) return;
        if (isSeen(from) && isSeen(to)) trace.segments.push_back({from.x, *from.y, to.x, *to.y});
    }

    // A straight line is one segment from border to border; none of its points need be seen for that.
    void joinEnds(bool lower) {
        const TracedPoint from = pointAt(equation_, places_.front(), lower);
        const TracedPoint to = pointAt(equation_, places_.back(), lower);
        if (!from.y || !to.y) return;
        if (const auto part = seenPart({from.x, *from.y, to.x, *to.y}, window_)) trace.segments.push_back(*part);
    }

    bool isSeen(const TracedPoint& point) const { return *point.y >= window_.yMin && *point.y <= window_.yMax; }

    const GraphEquation& equation_;
    const GraphWindow& window_;
    bool straight_;
    bool broken_;
    std::vector<double> places_;
};

Trace traceVertical(const GraphEquation& equation, const GraphWindow& window) {
    Trace trace;
    const TracedPoint place{0, pointAt(equation, 0, false).y};
    if (!place.y) return trace;
    const double x = *place.y;
    for (const double y : places(window.yMin, window.yMax, window.plotStep)) {
        if (isWhole(y)) trace.list.push_back(coordinateLine(x, y));
    }
    if (x >= window.xMin && x <= window.xMax) trace.segments.push_back({x, window.yMin, x, window.yMax});
    return trace;
}

}  // namespace

std::optional<Segment> seenPart(const Segment& segment, const GraphWindow& window) {
    // Liang and Barsky: how far along the segment each border lets it in and out.
    const double dx = segment.x2 - segment.x1;
    const double dy = segment.y2 - segment.y1;
    double in = 0;
    double out = 1;
    const auto border = [&](double towards, double room) {
        if (towards == 0) return room >= 0;
        const double at = room / towards;
        if (towards < 0) {
            in = std::max(in, at);
        } else {
            out = std::min(out, at);
        }
        return in <= out;
    };
    if (!border(-dx, segment.x1 - window.xMin) || !border(dx, window.xMax - segment.x1) ||
        !border(-dy, segment.y1 - window.yMin) || !border(dy, window.yMax - segment.y1)) {
        return std::nullopt;
    }
    return Segment{segment.x1 + in * dx, segment.y1 + in * dy, segment.x1 + out * dx, segment.y1 + out * dy};
}

std::string coordinateLine(double x, double y) {
    return "x=" + textOf(x) + "  y=" + textOf(Round(y, 2));
}

Trace traceEquation(const GraphWindow& window) {
    if (!window.equationTerms) return {};
    const GraphEquation& equation = *window.equationTerms;
    if (isVertical(equation)) return traceVertical(equation, window);
    CurveTracer tracer(equation, window);
    if (hasTwoBranches(equation)) tracer.branch(true);
    tracer.branch(false);
    return tracer.trace;
}

}  // namespace ordwise
