// Triangles, circles, perimeters, areas and volumes.
//
// The worksheet shows the figure above the lines, so every solver starts them below it. "`" is the
// glyph of pi. The pi that a student sees follows the rounding of results; circumferences are worked
// out with it as shown, areas and volumes with the full one.
#include "GeometrySolvers.hpp"

#include "StepDisplay.hpp"
#include "basOrdwise.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <string_view>

namespace ordwise {
namespace {

// Pi as a line shows it.
double shownPi() {
    return rounded(3.1415926);
}

void restate(std::string problem) {
    AddStep(std::move(problem));
    startLinesAt(belowFigure);
}

bool aboveZero(const std::string& length) {
    return valueOf(length) > 0;
}

bool allAboveZero(std::initializer_list<std::string_view> lengths) {
    return std::all_of(lengths.begin(), lengths.end(), [](std::string_view length) { return valueOf(length) > 0; });
}

}  // namespace

// ---- Triangles

namespace {

struct SimilarSide {
    std::string_view letter;
    const std::string& first;  // in the one triangle
    std::string& second;       // in the other; empty or to be worked out
};

void findSimilarSide(const SimilarSide& side, double ratio) {
    const std::string_view s = side.letter;
    AddStep(text("#", s, "1/", s, "2# = ", ratio), text("Use ", ratio, " to calculate ", s, "2."));
    side.second = text(rounded(divided(valueOf(side.first), ratio)));
    AddStep(text("#", side.first, "/", s, "2# = ", ratio),
            text("Substitute the value of ", s, "1 (", side.first, ") into the equation."));
    AddStep(text(s, "2 = ", side.second), text("Solve for ", s, "2."));
}

// The side that gives the proportion: a2, else the only one of the other two that is there, else b2.
const SimilarSide& knownSide(const std::array<SimilarSide, 3>& sides) {
    const auto& [a, b, c] = sides;
    if (!a.second.empty()) return a;
    return b.second.empty() ? c : b;
}

// A given side fits if it shows the ratio, or is what the known side makes of it: the ratio is rounded,
// and so may be what was typed.
bool fits(const SimilarSide& side, const SimilarSide& known, double ratio) {
    const double first = valueOf(side.first);
    const double second = valueOf(side.second);
    return rounded(first / second) == ratio ||
           rounded(first * valueOf(known.second) / valueOf(known.first)) == rounded(second);
}

}  // namespace

void SimilarTriangles(const std::string& a1, const std::string& b1, const std::string& c1, std::string& a2,
                      std::string& b2, std::string& c2) {
    restate(text("a1 = ", a1, ", b1 = ", b1, ", c1 = ", c1, ", a2 = ", a2, ", b2 = ", b2, ", c2 = ", c2));
    if (!allAboveZero({a1, b1, c1})) {
        return complain("All sides of a triangle must have a length greater than zero.",
                        "A triangle must have three sides.");
    }

    AddStep("The sides of a similar triangle are equally proportioned:", "In other words, #a1/a2# = #b1/b2# = #c1/c2#");
    const std::array<SimilarSide, 3> sides{{{"a", a1, a2}, {"b", b1, b2}, {"c", c1, c2}}};
    const SimilarSide& known = knownSide(sides);
    const auto noLength = [](const SimilarSide& side) { return !side.second.empty() && !aboveZero(side.second); };
    if (!aboveZero(known.second) || std::any_of(sides.begin(), sides.end(), noLength)) {
        return complain("All sides of a triangle must have a length greater than zero.",
                        "It is impossible for a triangle to have a side less than or equal to 0.");
    }

    // The ratio is used as it is shown, so a coarse rounding carries through to the sides.
    const double ratio = rounded(divided(valueOf(known.first), valueOf(known.second)));
    AddStep(text("#", known.letter, "1/", known.letter, "2# = proportion"),
            "Use the side of the triangle given on both triangles to determine the other side's proportions.");
    AddStep(text("#", known.first, "/", known.second, "# = ", ratio),
            text("Divide ", known.first, " by ", known.second, "."));
    for (const SimilarSide& side : sides) {
        if (side.second.empty() || fits(side, known, ratio)) continue;
        return complain(
            text("#", side.first, "/", side.second, "# is not ", ratio, ", so the triangles are not similar."),
            text("The ratio of every side must equal ", ratio, ", and #", side.letter, "1/", side.letter,
                 "2# does not."));
    }
    AddStep(text("#a1/a2# = #b1/b2# = #c1/c2# = ", ratio), text("The ratio of every side must equal ", ratio));
    for (const SimilarSide& side : sides) {
        if (side.letter != known.letter) findSimilarSide(side, ratio);
    }
    ShowSteps();
}

namespace {

double squared(const std::string& length) {
    return valueOf(length) * valueOf(length);
}

void findHypotenuse(const std::string& a, const std::string& b) {
    const double sum = squared(a) + squared(b);
    AddStep(text(squared(a), " + ", squared(b), " = c^2^"), text("Calculate ", a, "^2^ and ", b, "^2^."));
    AddStep(text(sum, " = c^2^"), text("Add ", squared(a), " and ", squared(b)));
    AddStep(text(rounded(std::sqrt(sum)), " = c"), "Take the square root of both sides.");
}

void findSideB(const std::string& a, const std::string& c) {
    const double difference = squared(c) - squared(a);
    AddStep(text(squared(a), " + b^2^ = ", squared(c)), text("Calculate ", a, "^2^ and ", c, "^2^."));
    AddStep(text("b^2^ = ", difference), text("Subtract ", squared(a), " from both sides."));
    AddStep(text("b = ", rounded(std::sqrt(difference))), "Take the square root of both sides.");
}

void findSideA(const std::string& b, const std::string& c) {
    const double difference = squared(c) - squared(b);
    AddStep(text("a^2^ + ", squared(b), " = ", squared(c)), text("Calculate ", b, "^2^ and ", c, "^2^."));
    AddStep(text("a^2^ = ", difference), text("Subtract ", squared(b), " from both sides."));
    AddStep(text("a = ", rounded(std::sqrt(difference))), "Take the square root of both sides.");
}

std::string orElse(const std::string& side, std::string_view placeholder) {
    return side.empty() ? std::string(placeholder) : side;
}

}  // namespace

void Pythagoras(const std::string& a, const std::string& b, const std::string& c) {
    restate(text("a = ", orElse(a, "?"), ", b = ", orElse(b, "?"), ", c = ", orElse(c, "?")));

    AddStep("a^2^ + b^2^ = c^2^",
            "This is the Pythagorean Theorem, used to calculate the lengths of the sides of right triangles.");
    AddStep(text(orElse(a, "a"), "^2^ + ", orElse(b, "b"), "^2^ = ", orElse(c, "c"), "^2^"),
            "Substitute the given values.");
    const auto missingOrAboveZero = [](const std::string& side) { return side.empty() || aboveZero(side); };
    if (!missingOrAboveZero(a) || !missingOrAboveZero(b) || !missingOrAboveZero(c)) {
        return complain("All sides of a triangle must be greater than zero.",
                        "It is impossible for a triangle to have a side less than or equal to 0.");
    }
    if (!c.empty() && valueOf(c) < valueOf(b.empty() ? a : b)) {
        return complain("Side c must be the longest side in a right triangle.",
                        "If side c is not longer than side a and b in a right triangle, it would not be able to "
                        "connect to side a and b.");
    }

    if (c.empty()) {
        findHypotenuse(a, b);
    } else if (b.empty()) {
        findSideB(a, c);
    } else {
        findSideA(b, c);
    }
    ShowSteps();
}

// ---- Circles

namespace {

// `measure` is "radius" or "diameter".
void complainOfCircle(std::string_view measure) {
    complain(text("The ", measure, " of a circle must be greater than 0."),
             text("It is impossible for a circle to have a ", measure, " less than or equal to 0."));
}

void circumferenceFromRadius(const std::string& r) {
    restate(text("radius = ", r));
    if (!aboveZero(r)) return complainOfCircle("radius");

    AddStep("Circumference = 2 ` * radius",
            "This is the formula for calculating the circumference of a circle using radius.");
    AddStep(text("Circumference = 2 ` * ", r), text("Substitute ", r, " in for radius."));
    AddStep(text("Circumference = ", 2 * shownPi() * valueOf(r)), "Multiply all terms to calculate the circumference.");
    ShowSteps();
}

void circumferenceFromDiameter(const std::string& d) {
    restate(text("diameter = ", d));
    if (!aboveZero(d)) return complainOfCircle("diameter");

    AddStep("Circumference = ` * diameter",
            "This is the formula for calculating the circumference of a circle using diameter.");
    AddStep(text("Circumference = ` * ", d), text("Substitute ", d, " in for diameter."));
    AddStep(text("Circumference = ", shownPi() * valueOf(d)), "Multiply all terms to calculate the circumference.");
    ShowSteps();
}

}  // namespace

void Circumference(const std::string& value, CircleMeasure kind) {
    if (kind == CircleMeasure::Radius) {
        circumferenceFromRadius(value);
    } else {
        circumferenceFromDiameter(value);
    }
}

void DiameterFromRadius(const std::string& radius) {
    restate(text("radius = ", radius));
    if (!aboveZero(radius)) return complainOfCircle("radius");

    AddStep("Diameter = 2 * radius", "This is the formula for calculating diameter using radius.");
    AddStep(text("Diameter = 2 * ", radius), text("Substitute ", radius, " in for radius."));
    AddStep(text("Diameter = ", 2 * valueOf(radius)), "Multiply.");
    ShowSteps();
}

void RadiusFromDiameter(const std::string& diameter) {
    restate(text("diameter = ", diameter));
    if (!aboveZero(diameter)) return complainOfCircle("diameter");

    AddStep("Radius = #diameter/2#", "This is the formula for calculating radius using diameter.");
    AddStep(text("Radius = #", diameter, "/2#"), text("Substitute ", diameter, " in for diameter."));
    AddStep(text("Radius = ", valueOf(diameter) / 2), text("Divide ", diameter, " by 2."));
    ShowSteps();
}

// ---- Perimeters: formula, substitution, then the complaint

namespace {

void trianglePerimeter(const std::string& a, const std::string& b, const std::string& c) {
    restate(text("a = ", a, ", b = ", b, ", c = ", c));

    AddStep("Perimeter = a + b + c", "To find the perimeter of a shape, add the lengths of all sides of that shape.");
    AddStep(text("Perimeter = ", a, " + ", b, " + ", c),
            text("Substitute ", a, " in for a, ", b, " in for b, and ", c, " in for c."));
    if (!allAboveZero({a, b, c})) {
        return complain("All sides of a triangle must be greater than zero.",
                        "It is impossible for a triangle to have a side less than or equal to 0.");
    }
    AddStep(text("Perimeter = ", valueOf(a) + valueOf(b) + valueOf(c)),
            "Add all the terms to calculate the perimeter of the triangle.");
    ShowSteps();
}

void rectanglePerimeter(const std::string& base, const std::string& height) {
    restate(text("base = ", base, ", height = ", height));

    AddStep("Perimeter = 2 * (base + height)",
            "To find the perimeter of a shape, add the lengths of all sides of that shape.  Since the lengths of "
            "opposite sides of a square/rectangle will be equal, length and width can be added and multiplied by 2.");
    AddStep(text("Perimeter = 2 * (", base, " + ", height, ")"),
            text("Substitute ", base, " in for base, and ", height, " in for height."));
    if (!allAboveZero({base, height})) {
        return complain("All sides of a square/rectangle must be greater than zero.",
                        "It is impossible for a square/rectangle to have a side less than or equal to 0.");
    }
    AddStep(text("Perimeter = ", 2 * (valueOf(base) + valueOf(height))),
            text("Add ", base, " and ", height, " first, then multiply by 2."));
    ShowSteps();
}

}  // namespace

void Perimeter(const std::string& a, const std::string& b, const std::string& c, PerimeterShape kind) {
    if (kind == PerimeterShape::Triangle) {
        trianglePerimeter(a, b, c);
    } else {
        rectanglePerimeter(a, b);
    }
}

// ---- Areas: formula, substitution, then the complaint

namespace {

void complainOfSides() {
    complain("All sides must be greater than zero.", "It is impossible to have a side less than or equal to 0.");
}

void complainOfRadius() {
    complain("The radius must be greater than zero.", "It is impossible to have a radius less than or equal to 0.");
}

// `quantity` is "Area" or "Volume".
void answer(std::string_view quantity, double value) {
    AddStep(text(quantity, " = ", rounded(value)), "Calculate the answer by multiplying.");
    ShowSteps();
}

void areaOfBaseAndHeight(const std::string& base, const std::string& height) {
    restate(text("base = ", base, ", height = ", height));
    AddStep("Area = base * height",
            "This is the formula for calculating the area of a square/rectangle, and parallelogram.");
    AddStep(text("Area = ", base, " * ", height), "Substitute the base and height of the shape into the formula.");
    if (!allAboveZero({base, height})) return complainOfSides();
    answer("Area", valueOf(base) * valueOf(height));
}

void areaOfCircle(const std::string& pi, const std::string& radius) {
    restate(text("radius = ", radius));
    AddStep(text("Area = ` * radius^2^   (` equals about ", shownPi(), " or about #22/7#)"),
            "This is the formula for calculating the area of a circle.");
    AddStep(text("Area = ", rounded(valueOf(pi)), " * ", radius, "^2^"),
            "Substitute the value of pi and the radius into the formula.");
    if (!aboveZero(radius)) return complainOfRadius();
    answer("Area", valueOf(pi) * valueOf(radius) * valueOf(radius));
}

void areaOfTriangle(const std::string& base, const std::string& height) {
    restate(text("base = ", base, ", height = ", height));
    AddStep("Area = #1/2# * base * height", "This is the formula for calculating the area of a triangle.");
    AddStep(text("Area = #1/2# * ", base, " * ", height),
            "Substitute the base and height of the triangle into the formula.");
    if (!allAboveZero({base, height})) return complainOfSides();
    answer("Area", 1.0 / 2 * valueOf(base) * valueOf(height));
}

void areaOfTrapezoid(const std::string& a, const std::string& height, const std::string& b) {
    restate(text("height = ", height, ", a = ", a, ", b = ", b));
    AddStep("Area = #1/2# * height * (a + b)", "This is the formula for calculating the area of a trapezoid.");
    AddStep(text("Area = #1/2# * ", height, " * (", a, " + ", b, ")"),
            "Substitute the values of a, b, and height into the formula.");
    if (!allAboveZero({a, height, b})) return complainOfSides();
    answer("Area", 1.0 / 2 * valueOf(height) * (valueOf(a) + valueOf(b)));
}

}  // namespace

void Area(const std::string& first, const std::string& second, AreaShape kind, const std::string& third) {
    switch (kind) {
        case AreaShape::Rectangle:
        case AreaShape::Parallelogram: return areaOfBaseAndHeight(first, second);
        case AreaShape::Circle: return areaOfCircle(first, second);
        case AreaShape::Triangle: return areaOfTriangle(first, second);
        case AreaShape::Trapezoid: return areaOfTrapezoid(first, second, third);
    }
}

// ---- Volumes: formula, substitution, then the complaint

namespace {

void complainOfLengths() {
    complain("All lengths must be greater than zero.", "It is impossible to have a length less than or equal to 0.");
}

void volumeOfBox(const std::string& length, const std::string& width, const std::string& height) {
    restate(text("length = ", length, ", width = ", width, ", height = ", height));
    AddStep("Volume = length * width * height", "This is the formula for calculating the volume of a cube/box.");
    AddStep(text("Volume = ", length, " * ", width, " * ", height),
            "Substitute the length, width, and height of the cube/box into the formula.");
    if (!allAboveZero({length, width, height})) return complainOfSides();
    answer("Volume", valueOf(length) * valueOf(width) * valueOf(height));
}

void volumeOfCylinder(const std::string& pi, const std::string& radius, const std::string& height) {
    restate(text("radius = ", radius, ", height = ", height));
    AddStep("Volume = base * height", "This is the formula for calculating the volume of a cylinder.");
    AddStep(text("Volume = ` * radius^2^ * height   (` equals about ", shownPi(), " or about #22/7#)"),
            "The base is equal to the area of a circle.");
    AddStep(text("Volume = ", shownPi(), " * ", radius, "^2^ * ", height),
            "Substitute the value of pi, radius, and height of the cylinder into the formula.");
    if (!allAboveZero({radius, height})) return complainOfLengths();
    answer("Volume", valueOf(pi) * valueOf(radius) * valueOf(radius) * valueOf(height));
}

void volumeOfCone(const std::string& pi, const std::string& radius, const std::string& height) {
    restate(text("radius = ", radius, ", height = ", height));
    AddStep("Volume = #1/3# base * height", "This is the formula for calculating the volume of a cone.");
    AddStep(text("Volume = #1/3# * ` * radius^2^ * height   (` equals about ", shownPi(), " or about #22/7#)"),
            "The base is equal to the area of a circle.");
    AddStep(text("Volume = #1/3# * ", shownPi(), " * ", radius, "^2^ * ", height),
            "Substitute the value of pi, radius, and height of the cone into the formula.");
    if (!allAboveZero({radius, height})) return complainOfLengths();
    answer("Volume", 1.0 / 3 * valueOf(pi) * valueOf(radius) * valueOf(radius) * valueOf(height));
}

void volumeOfPyramid(const std::string& length, const std::string& width, const std::string& height) {
    restate(text("length = ", length, ", width = ", width, ", height = ", height));
    AddStep("Volume = #1/3# * (length * width * height)",
            "This is the formula for calculating the volume of a pyramid.");
    AddStep(text("Volume = #1/3# * (", length, " * ", width, " * ", height, ")"),
            "Substitute the length, width, and height of the pyramid into the formula.");
    if (!allAboveZero({length, width, height})) return complainOfSides();
    answer("Volume", 1.0 / 3 * valueOf(length) * valueOf(width) * valueOf(height));
}

void volumeOfSphere(const std::string& pi, const std::string& radius) {
    restate(text("radius = ", radius));
    AddStep(text("Volume = #4/3# * ` * radius^3^   (` equals about ", shownPi(), " or about #22/7#)"),
            "This is the formula for calculating the volume of a sphere.");
    AddStep(text("Volume = #4/3# * ", shownPi(), " * ", radius, "^3^"),
            "Substitute the value of pi and radius into the formula.");
    if (!aboveZero(radius)) return complainOfRadius();
    answer("Volume", 4.0 / 3 * valueOf(pi) * valueOf(radius) * valueOf(radius) * valueOf(radius));
}

}  // namespace

void Volume(const std::string& first, const std::string& second, const std::string& third, Solid kind) {
    switch (kind) {
        case Solid::Box: return volumeOfBox(first, second, third);
        case Solid::Cylinder: return volumeOfCylinder(first, second, third);
        case Solid::Cone: return volumeOfCone(first, second, third);
        case Solid::Pyramid: return volumeOfPyramid(first, second, third);
        case Solid::Sphere: return volumeOfSphere(first, second);
    }
}

}  // namespace ordwise
