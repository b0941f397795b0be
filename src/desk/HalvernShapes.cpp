#include "HalvernShapes.hpp"

#include "TextTools.hpp"

#include <cmath>
#include <map>
#include <numbers>

namespace ordwise {
namespace {

// The height at which signs are centred, as in the text faces.
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

// The signs between two operands, each in the middle of its width: `reach` to both sides of it, so that
// they stand in columns and clear of the bars beside them.
constexpr double reach = 240;

class Signs {
public:
    Signs(Face face, double weight) : face_(face), half_(weight / 2) {}

    [[nodiscard]] Shape minus() const { return {beam('+', 0)}; }  // as wide as a plus
    [[nodiscard]] Shape plus() const { return {beam('+', 0), stem('+', axis - reach, axis + reach)}; }
    [[nodiscard]] Shape equals() const { return {beam('=', -equalsApart), beam('=', equalsApart)}; }
    [[nodiscard]] Shape unequal() const {
        constexpr double lean = 110;
        constexpr double rise = 260;
        const double x = middleOf('$');
        return {beam('$', -equalsApart),
                beam('$', equalsApart),
                {{x + lean - half_, axis - rise},
                 {x + lean + half_, axis - rise},
                 {x - lean + half_, axis + rise},
                 {x - lean - half_, axis + rise}}};
    }
    [[nodiscard]] Shape division() const {
        constexpr double apart = 190;
        constexpr double radius = 58;
        const double x = middleOf('{');
        return {beam('{', 0), dot(x, axis - apart, radius), dot(x, axis + apart, radius)};
    }
    [[nodiscard]] Shape plusOrMinus() const {
        constexpr double height = -372;  // of the plus
        return {beam('\\', height - axis), stem('\\', -610, -134), beam('\\', -half_ - axis)};
    }
    [[nodiscard]] Shape times() const {
        constexpr double arm = 165;
        const double thick = 0.7 * half_;  // of the weight, along x and along y
        const double x = middleOf('*');
        return {{{x - arm + thick, axis - arm - thick},
                 {x + arm + thick, axis + arm - thick},
                 {x + arm - thick, axis + arm + thick},
                 {x - arm - thick, axis - arm + thick}},
                {{x + arm - thick, axis - arm - thick},
                 {x + arm + thick, axis - arm + thick},
                 {x - arm + thick, axis + arm + thick},
                 {x - arm - thick, axis + arm - thick}}};
    }

private:
    static constexpr double equalsApart = 90;

    [[nodiscard]] double middleOf(char sign) const {
        return textWidth(face_, {&sign, 1}, 1) / emOf(face_, 1) * 1000 / 2;
    }
    [[nodiscard]] std::vector<ShapePoint> beam(char sign, double down) const {
        const double x = middleOf(sign);
        return box(x - reach, axis + down - half_, x + reach, axis + down + half_);
    }
    [[nodiscard]] std::vector<ShapePoint> stem(char sign, double top, double bottom) const {
        const double x = middleOf(sign);
        return box(x - half_, top, x + half_, bottom);
    }

    Face face_;
    double half_;  // of the weight
};

// As near to what stands beside it as a parenthesis.
Shape absoluteBarShape() {
    return {box(67, -736, 133, 123)};
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
constexpr double barWeight = 66;

Shape barShape() {
    return {box(0, barMiddle - barWeight / 2, 100, barMiddle + barWeight / 2)};
}

// Its right stroke ends with its right edge where the bar begins.
Shape radicalShape() {
    constexpr double foot = 310;
    constexpr double x = radicalRight;
    constexpr double top = -radicalTop - barWeight / 2;
    return {{{90, -270},
             {215, -362},
             {344, 60},
             {x - strokeWidth, top},
             {x, top},
             {368, foot},
             {312, foot},
             {176, -242},
             {116, -198}}};
}

// What leads from the top of an ordinary sign up to the bar over a fraction. It stands on the base line
// of the whole, the ordinary sign stands lower.
Shape tallRadicalShape() {
    constexpr double foot = -radicalTop + tallRadicalDrop;
    constexpr double top = -tallRadicalTop - barWeight / 2;
    constexpr double x = radicalRight - strokeWidth;
    return {{{x, foot}, {x + tallRadicalLean, top}, {x + tallRadicalLean + strokeWidth, top}, {x + strokeWidth, foot}}};
}

struct OwnShapes {
    OwnShapes(Face face, double weight) {
        const Signs signs(face, weight);
        shapes = {{'`', piShape()},      {'\\', signs.plusOrMinus()}, {'{', signs.division()},
                  {'*', signs.times()},  {'-', signs.minus()},        {'+', signs.plus()},
                  {'=', signs.equals()}, {'$', signs.unequal()},      {'|', absoluteBarShape()},
                  {'~', radicalShape()}, {'&', tallRadicalShape()},   {'_', barShape()}};
    }
    std::map<char, Shape> shapes;
};

const OwnShapes* shapesOf(Face face) {
    static const OwnShapes sheet(Face::Halvern, 80);
    static const OwnShapes window(Face::Explanation, 100);
    static const OwnShapes note(Face::Note, 75);
    switch (face) {
        case Face::Halvern: return &sheet;
        case Face::Explanation: return &window;
        case Face::Note: return &note;
        default: return nullptr;  // no mathematics is written in others
    }
}

const Shape* shapeOfSign(Face face, char sign) {
    const OwnShapes* own = shapesOf(face);
    if (own == nullptr) return nullptr;
    const auto found = own->shapes.find(sign);
    return found == own->shapes.end() ? nullptr : &found->second;
}

const Shape* shapeOfCharacter(Face face, const std::string& character) {
    if (character == proseMinus) return isProse(face) ? shapeOfSign(face, '-') : nullptr;
    return character.size() == 1 ? shapeOf(face, character[0]) : nullptr;
}

}  // namespace

// In the prose of an explanation "-" is the hyphen of the face, and the minus has a character of its own.
const Shape* shapeOf(Face face, char character) {
    return character == '-' && isProse(face) ? nullptr : shapeOfSign(face, character);
}

std::vector<PlacedGlyph> placedGlyphs(const Glyphs& run) {
    std::vector<PlacedGlyph> placed;
    double x = run.x;
    for (const std::string& character : characters(run.text)) {
        const double width = textWidth(run.face, character, run.size);
        const Shape* shape = shapeOfCharacter(run.face, character);
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
