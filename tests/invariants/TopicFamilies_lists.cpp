// Means, medians, modes, ranges, points and angles.
#include "TopicFamilies.hpp"

#include <algorithm>
#include <map>
#include <numeric>

namespace ordwise::test {

namespace {

// A few numbers; twice the same now and then, a "-" in front of some.
std::vector<std::string> drawList(Draws& draws) {
    std::vector<std::string> list;
    for (int i = draws.between(1, 8); i > 0; --i) {
        if (!list.empty() && draws.chance(25)) {
            list.push_back(list.front());
        } else {
            list.push_back((draws.chance(15) ? "-" : "") + draws.number(2) + (draws.chance(15) ? ".5" : ""));
        }
    }
    return list;
}

std::string joinedBy(const std::vector<std::string>& list, const std::string& separator) {
    std::string text;
    for (const auto& one : list) text += (text.empty() ? "" : separator) + one;
    return text;
}

std::vector<double> sortedValues(const std::vector<std::string>& list) {
    std::vector<double> values;
    for (const auto& one : list) values.push_back(valueText(one));
    std::sort(values.begin(), values.end());
    return values;
}

DrawnProblem drawMean(Draws& draws) {
    const auto list = drawList(draws);
    const auto values = sortedValues(list);
    DrawnProblem drawn{{draws.oneOf<const char*>({"Means", "Means (Averages)", "Averages"}), joinedBy(list, ",")}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    drawn.wanted.last = std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
    return drawn;
}

DrawnProblem drawMedian(Draws& draws) {
    const auto list = drawList(draws);
    const auto values = sortedValues(list);
    DrawnProblem drawn{{"Medians", joinedBy(list, ",")}, {}};
    const std::size_t half = values.size() / 2;
    drawn.wanted.last = values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
    return drawn;
}

DrawnProblem drawRange(Draws& draws) {
    const auto list = drawList(draws);
    const auto values = sortedValues(list);
    DrawnProblem drawn{{"Ranges", joinedBy(list, ",")}, {}};
    drawn.wanted.last = values.back() - values.front();
    drawn.wanted.part = "The range is ";
    return drawn;
}

DrawnProblem drawMode(Draws& draws) {
    const auto list = drawList(draws);
    DrawnProblem drawn{{"Modes", joinedBy(list, ",")}, {}};
    std::map<std::string, int> counts;
    for (const auto& one : list) ++counts[one];
    int top = 0;
    for (const auto& entry : counts) top = std::max(top, entry.second);
    std::vector<std::string> modes;
    for (const auto& one : list) {
        if (counts[one] == top && std::find(modes.begin(), modes.end(), one) == modes.end()) modes.push_back(one);
    }
    drawn.wanted.line = modes.size() == counts.size() ? "There is no mode." : "Mode: " + joinedBy(modes, ", ");
    return drawn;
}

DrawnProblem drawQuadrant(Draws& draws) {
    const auto coordinate = [&] {
        return draws.chance(15) ? std::string("0") : (draws.chance(45) ? "-" : "") + draws.number(3);
    };
    const std::string x = coordinate();
    const std::string y = coordinate();
    DrawnProblem drawn{{"Calculating A Point's Quadrant", "(" + x + "," + y + ")"}, {}};
    const bool right = valueText(x) > 0;
    const bool up = valueText(y) > 0;
    if (x == "0" && y == "0") {
        drawn.wanted.part = "origin";
    } else if (x == "0") {
        drawn.wanted.part = up ? "axis between Quadrant I and II" : "axis between Quadrant III and IV";
    } else if (y == "0") {
        drawn.wanted.part = right ? "axis between Quadrant I and IV" : "axis between Quadrant II and III";
    } else {
        drawn.wanted.part = right ? (up ? "Quadrant I" : "Quadrant IV.") : (up ? "Quadrant II." : "Quadrant III");
    }
    return drawn;
}

DrawnProblem drawAngle(Draws& draws) {
    const int degrees = draws.chance(20) ? draws.oneOf<int>({0, 90, 180, 181, 1, 89, 91, 179}) : draws.below(250);
    DrawnProblem drawn{{"Straight/Obtuse/Right/Acute Angles", std::to_string(degrees)}, {}};
    if (degrees == 0 || degrees > 180) {
        drawn.wanted.part = "An angle must have a measurement";
    } else if (degrees % 90 == 0) {
        drawn.wanted.part = degrees == 90 ? "a RIGHT angle" : "a STRAIGHT angle";
    } else {
        drawn.wanted.part = degrees < 90 ? "an ACUTE angle" : "an OBTUSE angle";
    }
    return drawn;
}

}  // namespace

std::vector<TopicGenerator> listGenerators() {
    return {drawMean, drawMedian, drawRange, drawMode, drawQuadrant, drawAngle};
}

}  // namespace ordwise::test
