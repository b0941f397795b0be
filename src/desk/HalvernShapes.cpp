#include "HalvernShapes.hpp"

#include "TextTools.hpp"

#include <cmath>
#include <numbers>

namespace ordwise {
namespace {

// The weight of the signs and the height at which they are centred, as in the text face.
constexpr double weight = 80;
constexpr double axis = -250;

std::vector<ShapePoint> box(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

std::vector<ShapePoint> dot(double x, double y, double radius) {
    constexpr int corners = 24;
    std::vector<ShapePoint> points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / corners;
        points.push_back({x + radius * std::cos(angle), y + radius * std::sin(angle)});
    }
    return points;
}

// The signs that stand between two fractions are shorter than their widths, so that they stand clear of
// the bars on both sides.
constexpr double signLeft = 110;
constexpr double signRight = 496;

Shape minusShape() {
    return {box(signLeft, axis - weight / 2, signRight, axis + weight / 2)};
}

Shape plusShape() {
    constexpr double x = (signLeft + signRight) / 2;
    constexpr double arm = (signRight - signLeft) / 2 + 10;
    return {box(x - arm, axis - weight / 2, x + arm, axis + weight / 2),
            box(x - weight / 2, axis - arm, x + weight / 2, axis + arm)};
}

Shape equalsShape() {
    constexpr double apart = 90;
    return {box(signLeft, axis - apart - weight / 2, signRight, axis - apart + weight / 2),
            box(signLeft, axis + apart - weight / 2, signRight, axis + apart + weight / 2)};
}

Shape divisionShape() {
    return {box(40, axis - weight / 2, 566, axis + weight / 2), dot(303, axis - 190, 58), dot(303, axis + 190, 58)};
}

Shape plusOrMinusShape() {
    return {box(40, -412, 566, -332), box(263, -640, 343, -110), box(40, -80, 566, 0)};
}

Shape multiplicationShape() {
    constexpr double arm = 165;
    constexpr double half = 28;  // of the weight, along x and along y
    constexpr double x = 250;
    return {{{x - arm + half, axis - arm - half},
             {x + arm + half, axis + arm - half},
             {x + arm - half, axis + arm + half},
             {x - arm - half, axis - arm + half}},
            {{x + arm - half, axis - arm - half},
             {x + arm + half, axis - arm + half},
             {x - arm + half, axis + arm + half},
             {x - arm - half, axis + arm - half}}};
}

// A roof with a falling left end, a straight left leg and a right leg that turns out at its foot.
Shape piShape() {
    return {{{30, -300},
             {48, -372},
             {82, -432},
             {130, -460},
             {190, -466},
             {570, -466},
             {570, -388},
             {180, -388},
             {125, -380},
             {88, -352},
             {62, -300}},
            {{196, -430},
             {262, -430},
             {246, -200},
             {222, -70},
             {190, 4},
             {146, 14},
             {116, -10},
             {124, -50},
             {156, -90},
             {180, -200}},
            {{386, -430},
             {456, -430},
             {440, -160},
             {444, -90},
             {464, -62},
             {498, -66},
             {530, -112},
             {556, -100},
             {530, -36},
             {490, 6},
             {442, 14},
             {398, -6},
             {376, -56},
             {372, -130}}};
}

// A bar stands below the base line of its own glyph, as the renderer expects: the bar of a fraction
// is drawn at the height of the numerator. 290 puts it on the axis of the line.
constexpr double barMiddle = 290;
constexpr double barWeight = 66;

Shape barShape() {
    return {box(0, barMiddle - barWeight / 2, 100, barMiddle + barWeight / 2)};
}

// A radical sign whose right stroke ends with its right edge at (x, top), where the bar begins. The
// renderer begins the bar half a font size behind the left end of the radical and one and a half
// above its line, and sets the sign 2 to the left of that end and 2 up: measured in letters, that is
// another place in each face.
Shape radicalShape(double x, double top) {
    constexpr double foot = 310;
    return {{{90, -270},
             {215, -362},
             {344, 60},
             {x - 56, top},
             {x, top},
             {368, foot},
             {312, foot},
             {176, -242},
             {116, -198}}};
}

// What leads from the top of an ordinary sign that is set 16 lower up to the bar over a fraction.
Shape tallRadicalShape(double xFoot, double foot, double xTop, double top) {
    return {{{xFoot, foot}, {xTop, top}, {xTop + 56, top}, {xFoot + 56, foot}}};
}

struct OwnShapes {
    Shape pi = piShape();
    Shape plusOrMinus = plusOrMinusShape();
    Shape division = divisionShape();
    Shape multiplication = multiplicationShape();
    Shape minus = minusShape();
    Shape plus = plusShape();
    Shape equals = equalsShape();
    Shape radical = radicalShape(564, -993);
    Shape tallRadical = tallRadicalShape(248, -180, 345, -1093);
    Shape explanationRadical = radicalShape(578, -886);
    Shape tallExplanationRadical = tallRadicalShape(162, 270, 281, -1029);
    Shape bar = barShape();
};

}  // namespace

const Shape* shapeOf(Face face, char character) {
    const bool prose = face == Face::Explanation || face == Face::Note;
    if (face != Face::Halvern && !prose) return nullptr;  // no mathematics is written in others
    static const OwnShapes own;
    switch (character) {
        case '`': return &own.pi;
        case '\\': return &own.plusOrMinus;
        case '{': return &own.division;
        case '*': return &own.multiplication;
        case '~': return face == Face::Halvern ? &own.radical : &own.explanationRadical;
        case '&': return face == Face::Halvern ? &own.tallRadical : &own.tallExplanationRadical;
        case '_': return &own.bar;
        case '+': return face == Face::Halvern ? &own.plus : nullptr;
        case '=': return face == Face::Halvern ? &own.equals : nullptr;
        // In the prose of an explanation it is a hyphen more often than a minus.
        case '-': return face == Face::Halvern ? &own.minus : nullptr;
        default: return nullptr;
    }
}

std::vector<PlacedGlyph> placedGlyphs(const Glyphs& run) {
    std::vector<PlacedGlyph> placed;
    double x = run.x;
    for (const std::string& character : characters(run.text)) {
        const double width = textWidth(run.face, character, run.size);
        const Shape* shape = character.size() == 1 ? shapeOf(run.face, character[0]) : nullptr;
        if (character == "_" && shape != nullptr && !placed.empty() && placed.back().shape == shape) {
            placed.back().stretch += 1;
        } else if (character != " ") {
            placed.push_back({character, shape, x, 1});
        }
        x += width;
    }
    return placed;
}

double baselineOf(const Glyphs& run) {
    return run.y + ascentOf(run.face, run.size);
}

}  // namespace ordwise
