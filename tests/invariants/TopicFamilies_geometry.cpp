// Figures: boxes on a picture, one formula each.
#include "TopicFamilies.hpp"

#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <sstream>

namespace ordwise::test {

namespace {

constexpr double fullPi = 3.1415926;

double roundedPi(int places) {
    const double unit = std::pow(10.0, places);
    return std::nearbyint(fullPi * unit) / unit;
}

using Sides = std::vector<double>;

// A figure: which boxes hold its sides, in the order of the formula, and what they make.
struct Figure {
    const char* topic;
    std::vector<int> boxes;
    double (*value)(const Sides& sides, int places);
    bool rounded;
    const char* complaint;  // a piece of what is said of a side that is not above 0
};

constexpr const char* noSide = "All sides must be greater than zero.";
constexpr const char* noLength = "All lengths must be greater than zero.";
constexpr const char* noRadius = "The radius must be greater than zero.";
constexpr const char* noSideOfRectangle = "All sides of a square/rectangle must be greater than zero.";
constexpr const char* noSideOfTriangle = "All sides of a triangle must be greater than zero.";
constexpr const char* noRadiusOfCircle = "The radius of a circle must be greater than 0.";
constexpr const char* noDiameter = "The diameter of a circle must be greater than 0.";

// clang-format off
const std::vector<Figure> figures = {
    {"Volume of a Box/Cube", {2, 3, 1}, [](const Sides& s, int) { return s[0] * s[1] * s[2]; }, true, noSide},
    {"Volume of a Cylinder", {2, 1}, [](const Sides& s, int) { return fullPi * s[0] * s[0] * s[1]; }, true, noLength},
    {"Volume of a Cone", {2, 1}, [](const Sides& s, int) { return fullPi * s[0] * s[0] * s[1] / 3; }, true, noLength},
    {"Volume of a Pyramid", {2, 3, 1}, [](const Sides& s, int) { return s[0] * s[1] * s[2] / 3; }, true, noSide},
    {"Volume of a Sphere", {2}, [](const Sides& s, int) { return fullPi * s[0] * s[0] * s[0] * 4 / 3; }, true, noRadius},
    {"Area of a Square/Rectangle", {2, 1}, [](const Sides& s, int) { return s[0] * s[1]; }, true, noSide},
    {"Area of a Circle", {2}, [](const Sides& s, int) { return fullPi * s[0] * s[0]; }, true, noRadius},
    {"Area of a Triangle", {2, 1}, [](const Sides& s, int) { return s[0] * s[1] / 2; }, true, noSide},
    {"Area of a Parallelogram", {2, 1}, [](const Sides& s, int) { return s[0] * s[1]; }, true, noSide},
    {"Area of a Trapezoid", {2, 3, 1}, [](const Sides& s, int) { return s[1] * (s[0] + s[2]) / 2; }, true, noSide},
    {"Perimeter of a Square/Rectangle", {2, 1}, [](const Sides& s, int) { return 2 * (s[0] + s[1]); }, false, noSideOfRectangle},
    {"Perimeter of a Triangle", {3, 2, 1}, [](const Sides& s, int) { return s[0] + s[1] + s[2]; }, false, noSideOfTriangle},
    {"Calculating Circumference Using Radius", {2}, [](const Sides& s, int places) { return 2 * roundedPi(places) * s[0]; }, false, noRadiusOfCircle},
    {"Calculating Circumference Using Diameter", {2}, [](const Sides& s, int places) { return roundedPi(places) * s[0]; }, false, noDiameter},
    {"Calculating Diameter Using Radius", {2}, [](const Sides& s, int) { return 2 * s[0]; }, false, noRadiusOfCircle},
    {"Calculating Radius Using Diameter", {2}, [](const Sides& s, int) { return s[0] / 2; }, false, noDiameter},
};
// clang-format on

DrawnProblem drawFigure(const Figure& figure, Draws& draws) {
    DrawnProblem drawn{{figure.topic, ""}, {}};
    const int places = placesFor(draws, drawn.problem);
    Sides sides;
    bool all = true;
    for (const int box : figure.boxes) {
        const std::string text = boxText(draws);
        drawn.problem.boxes[box] = text;
        sides.push_back(valueText(text));
        all = all && sides.back() > 0;
    }
    if (!all) {
        drawn.wanted.line = figure.complaint;
        return drawn;
    }
    drawn.wanted.last = figure.value(sides, places);
    if (figure.rounded) drawn.wanted.places = places;
    return drawn;
}

// a = T4, b = T2, c = T1, one of them left empty.
DrawnProblem drawRightTriangle(Draws& draws) {
    DrawnProblem drawn{{"Pythagorean Theorem", ""}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    static constexpr int boxes[] = {4, 2, 1};
    const int missing = draws.below(3);
    double sides[3] = {};
    bool all = true;
    for (int side = 0; side < 3; ++side) {
        if (side == missing) continue;
        const std::string text = boxText(draws);
        drawn.problem.boxes[boxes[side]] = text;
        sides[side] = valueText(text);
        all = all && sides[side] > 0;
    }
    const double other = missing == 0 ? sides[1] : sides[0];
    if (!all) {
        drawn.wanted.line = "All sides of a triangle must be greater than zero.";
    } else if (missing == 2) {
        drawn.wanted.first = std::hypot(sides[0], sides[1]);
    } else if (sides[2] < other) {
        drawn.wanted.line = "Side c must be the longest side in a right triangle.";
    } else {
        drawn.wanted.last = std::sqrt(sides[2] * sides[2] - other * other);
    }
    return drawn;
}

double roundedToTwo(double x) {
    return std::nearbyint(x * 100) / 100;
}

// a1 = T3, b1 = T2, c1 = T1; a2 = T4, b2 = T6, c2 = T5, one of the last three left empty. The known side
// is a2, or b2 without it. What is given besides mostly fits; the last line gives c2.
DrawnProblem drawSimilarTriangles(Draws& draws) {
    DrawnProblem drawn{{"Similar Triangles", ""}, {}};
    const auto side = [&](int box) {
        const std::string text = draws.chance(90) ? draws.number(2) : boxText(draws);
        drawn.problem.boxes[box] = text;
        return valueText(text);
    };
    const double a1 = side(3);
    const double b1 = side(2);
    const double c1 = side(1);
    const int missing = draws.oneOf<int>({4, 5, 6});
    const double known = side(missing == 4 ? 6 : 4);
    const double exact = (missing == 4 ? b1 : a1) / known;
    // The ratio is shown and used with two places; a ratio that rounds to 0 divides by 0.
    const double ratio = roundedToTwo(exact);
    const bool contradicts = ratio >= 0.05 && draws.chance(20);
    const double fitting = (missing == 5 ? b1 : c1) / exact;
    std::ostringstream text;
    text << std::setprecision(9) << std::nearbyint((contradicts ? 2 * fitting + 1 : fitting) * 1e4) / 1e4;
    const std::string given = std::isfinite(fitting) ? text.str() : "1";
    drawn.problem.boxes[missing == 5 ? 6 : 5] = given;
    if (a1 <= 0 || b1 <= 0 || c1 <= 0 || known <= 0 || valueText(given) <= 0) {
        drawn.wanted.line = "All sides of a triangle must have a length greater than zero.";
    } else if (contradicts) {
        drawn.wanted.part = "so the triangles are not similar.";
    } else if (ratio == 0) {
        drawn.wanted.message = "Division by 0!";
    } else {
        drawn.wanted.last = c1 / ratio;
        drawn.wanted.places = 2;
    }
    return drawn;
}

}  // namespace

std::string positiveText(Draws& draws) {
    if (draws.chance(70)) return draws.number(3);
    if (draws.chance(50)) return draws.number(3) + "." + std::to_string(draws.between(1, 99));
    return draws.oneOf<const char*>({".5", "7.", "05", "0.25", "1.50", "9999"});
}

std::string boxText(Draws& draws) {
    if (draws.chance(6)) return draws.oneOf<const char*>({"0", "-3", "-.5", "0.0", "-0"});
    return positiveText(draws);
}

double valueText(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

int placesFor(Draws& draws, Problem& problem) {
    if (draws.chance(60)) return 2;
    const int places = draws.between(1, 5);
    problem.settings["RoundVar"] = std::to_string(places);
    return places;
}

std::vector<TopicGenerator> geometryGenerators() {
    std::vector<TopicGenerator> all;
    for (const Figure& figure : figures) {
        all.push_back([&figure](Draws& draws) { return drawFigure(figure, draws); });
    }
    all.push_back(drawRightTriangle);
    all.push_back(drawSimilarTriangles);
    return all;
}

}  // namespace ordwise::test
