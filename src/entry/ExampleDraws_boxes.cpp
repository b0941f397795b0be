// Examples of the topics of boxes. Six numbers are drawn, one for each box; what the topic shows no
// box for falls away, and one of the boxes of a topic with an unknown stays empty. Numbers that make
// no problem, such as sides that meet in no triangle, are drawn anew.
#include "Catalogue.hpp"
#include "ExampleDraws.hpp"
#include "NumberText.hpp"
#include "RandomDraws.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"

#include <algorithm>
#include <optional>

namespace ordwise {
namespace {

constexpr int similarTrianglesTopic = 11;

using Boxes = std::array<std::string, 6>;

// The number in a box, 0 in the one that is to be found.
int in(const Boxes& boxes, std::size_t number) {
    const std::string& text = boxes[number - 1];
    return text.empty() ? 0 : longOf(text);
}

bool anyNumbers(const Boxes&) {
    return true;
}

bool meet(int a, int b, int c) {
    return a + b > c && b + c > a && a + c > b;
}

bool isTriangle(const Boxes& boxes) {
    return meet(in(boxes, 3), in(boxes, 2), in(boxes, 1));
}

// The longest side c, in box 1, is the longest or to be found.
bool isRightTriangle(const Boxes& boxes) {
    const int c = in(boxes, 1);
    return c == 0 || c > std::max(in(boxes, 4), in(boxes, 2));
}

// A number of two digits times a higher power of ten is not written out as a line of zeros any more;
// products and quotients are not written out at all.
bool isWrittenOut(const Boxes& boxes) {
    return in(boxes, 2) <= 13;
}

bool areModestPowers(const Boxes& boxes) {
    return in(boxes, 2) < 20 && in(boxes, 4) < 20;
}

struct BoxRow {
    std::vector<int> types;
    const char* line;  // "@n" stands for TextN, "?" if it is to be found
    bool (*fits)(const Boxes& boxes);
};

// clang-format off
const BoxRow rows[] = {
    {{1, 4},         "length = @2, width = @3, height = @1",                                        anyNumbers},
    {{2, 3},         "radius of base = @2, height = @1",                                            anyNumbers},
    {{5, 7, 15, 17}, "radius = @2",                                                                 anyNumbers},
    {{6, 8, 9, 13},  "base = @2, height = @1",                                                      anyNumbers},
    {{10},           "height = @3, a = @2, b = @1",                                                 anyNumbers},
    {{16, 18},       "diameter = @2",                                                               anyNumbers},
    {{19},           "a = @3, b = @2, c = @1",                                                      isTriangle},
    {{11},           "Triangle 1: a = @3, b = @2, c = @1 - Triangle 2: a = @4, b = @6, c = @5",     isTriangle},
    {{12},           "a = @4, b = @2, c = @1",                                                      isRightTriangle},
    {{14},           "amount = @1, N = @2, base = @4",                                              anyNumbers},
    {{21},           "work = @1, rate = @2, time = @4",                                             anyNumbers},
    {{22},           "distance = @1, speed = @2, time = @4",                                        anyNumbers},
    {{20},           "#@1/@2# = #@3/@4#",                                                           anyNumbers},
    {{25},           "@1 * 10^@2^",                                                                 isWrittenOut},
    {{26},           "@1*10^@2^ * @3*10^@4^",                                                       areModestPowers},
    {{27},           "@1*10^@2^ { @3*10^@4^",                                                       areModestPowers},
    {{metersTopic, gramsTopic}, "@4",                                                               anyNumbers},
};
// clang-format on

const BoxRow& rowOf(int type) {
    const auto row = std::find_if(std::begin(rows), std::end(rows), [&](const BoxRow& candidate) {
        return std::find(candidate.types.begin(), candidate.types.end(), type) != candidate.types.end();
    });
    if (row == std::end(rows)) raise(FaultNumber::Subscript);
    return *row;
}

// Two triangles whose sides are the same three numbers, p times and q times. The ratio p/q of their
// sides has no more than two decimals, and no side more digits than the level allows.
std::optional<Boxes> similarTriangles(int digits) {
    const int p = 1 + drawBelow(5);
    const int q = 1 + drawBelow(5);
    if (p == q || p * 100 % q != 0) return std::nullopt;
    const auto fits = [&](const std::string& side) {
        return static_cast<int>(side.size()) == digits && !contains(side, "0");
    };
    constexpr std::size_t partners[][2] = {{3, 4}, {2, 6}, {1, 5}};  // a1 and a2, b1 and b2, c1 and c2
    Boxes boxes;
    for (const auto& [first, second] : partners) {
        const int side = longOf(drawDigits(digits));
        boxes[first - 1] = textOf(side * p);
        boxes[second - 1] = textOf(side * q);
    }
    if (!std::all_of(boxes.begin(), boxes.end(), fits)) return std::nullopt;
    return boxes;
}

Boxes drawSix(int type, bool complex) {
    const int digits = complex ? 2 : 1;
    if (type == similarTrianglesTopic) {
        std::optional<Boxes> triangles;
        while (!triangles) triangles = similarTriangles(digits);
        return *triangles;
    }
    Boxes drawn;
    for (std::string& number : drawn) number = drawDigits(digits);
    return drawn;
}

std::size_t numberOf(Control PaperWindow::*box) {
    constexpr Control PaperWindow::*boxes[] = {&PaperWindow::Text1, &PaperWindow::Text2, &PaperWindow::Text3,
                                               &PaperWindow::Text4, &PaperWindow::Text5, &PaperWindow::Text6};
    return static_cast<std::size_t>(std::find(std::begin(boxes), std::end(boxes), box) - std::begin(boxes)) + 1;
}

Boxes drawBoxesOf(const WorksheetLayout& layout, const ExampleWish& wish) {
    const Boxes drawn = drawSix(wish.type, wish.complex);
    Boxes boxes;
    for (const PlacedBox& placed : layout.boxes) {
        const std::size_t number = numberOf(placed.box);
        boxes[number - 1] = drawn[number - 1];
    }
    if (!layout.unknowns.empty()) {
        const int place = drawBelow(static_cast<int>(layout.unknowns.size()));
        boxes[numberOf(layout.unknowns[static_cast<std::size_t>(place)]) - 1].clear();
    }
    return boxes;
}

std::string filledIn(std::string line, const Boxes& boxes) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const std::string mark = "@" + textOf(static_cast<int>(i) + 1);
        line = replaced(std::move(line), mark, boxes[i].empty() ? "?" : boxes[i]);
    }
    return line;
}

// From one unit to another. e.g. "7 km (1000 meters) = ? m (1 meter)"
void drawUnits(const std::vector<std::string>& units, Example& example) {
    const int count = static_cast<int>(units.size());
    const int from = drawBelow(count);
    const int to = (from + 1 + drawBelow(count - 1)) % count;
    example.combos = {from, to, 0};
    example.line += " " + units[static_cast<std::size_t>(from)] + " = ? " + units[static_cast<std::size_t>(to)];
}

}  // namespace

Example drawBoxes(const ExampleWish& wish) {
    const WorksheetLayout* layout = layoutOf(wish.type);
    if (layout == nullptr) return {};
    const BoxRow& row = rowOf(wish.type);
    Example example;
    do {
        example.boxes = drawBoxesOf(*layout, wish);
    } while (!row.fits(example.boxes));
    example.line = filledIn(row.line, example.boxes);
    if (wish.type == metersTopic || wish.type == gramsTopic) drawUnits(unitsOf(wish.type), example);
    return example;
}

}  // namespace ordwise
