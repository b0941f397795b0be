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
#include <cstdlib>

namespace ordwise {
namespace {

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

// Of the sides of the second triangle in the boxes 4 (a2), 6 (b2) and 5 (c2) two are given. They
// have one ratio to their partners 3, 2 and 1, not 1, and it needs no more than two decimals.
bool areSimilarTriangles(const Boxes& boxes) {
    constexpr std::size_t partners[][2] = {{4, 3}, {6, 2}, {5, 1}};
    double ratio = 0;
    for (const auto& [second, first] : partners) {
        if (in(boxes, second) == 0) continue;
        if (in(boxes, first) * 100 % in(boxes, second) != 0) return false;
        const double next = static_cast<double>(in(boxes, first)) / in(boxes, second);
        if (ratio != 0 && next != ratio) return false;
        ratio = next;
    }
    return ratio != 1 && isTriangle(boxes);
}

// A power of ten is written out as a line of zeros, and the line has an end.
constexpr int highestPower = 19;

bool isReadablePower(const Boxes& boxes) {
    return in(boxes, 2) <= highestPower;
}

bool areReadablePowers(const Boxes& boxes) {
    return in(boxes, 2) <= highestPower && in(boxes, 4) <= highestPower;
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
    {{11},           "Triangle 1: a = @3, b = @2, c = @1 - Triangle 2: a = @4, b = @6, c = @5",     areSimilarTriangles},
    {{12},           "a = @4, b = @2, c = @1",                                                      isRightTriangle},
    {{14},           "amount = @1, N = @2, base = @4",                                              anyNumbers},
    {{21},           "work = @1, rate = @2, time = @4",                                             anyNumbers},
    {{22},           "distance = @1, speed = @2, time = @4",                                        anyNumbers},
    {{20},           "#@1/@2# = #@3/@4#",                                                           anyNumbers},
    {{25},           "@1 * 10^@2^",                                                                 isReadablePower},
    {{26},           "@1*10^@2^ * @3*10^@4^",                                                       areReadablePowers},
    {{27},           "@1*10^@2^ { @3*10^@4^",                                                       areReadablePowers},
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

std::size_t numberOf(Control PaperWindow::*box) {
    constexpr Control PaperWindow::*boxes[] = {&PaperWindow::Text1, &PaperWindow::Text2, &PaperWindow::Text3,
                                               &PaperWindow::Text4, &PaperWindow::Text5, &PaperWindow::Text6};
    return static_cast<std::size_t>(std::find(std::begin(boxes), std::end(boxes), box) - std::begin(boxes)) + 1;
}

Boxes drawNumbersFor(const WorksheetLayout& layout, bool complex) {
    Boxes drawn;
    for (std::string& number : drawn) number = drawDigits(complex ? 2 : 1);
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
        example.boxes = drawNumbersFor(*layout, wish.complex);
    } while (!row.fits(example.boxes));
    example.line = filledIn(row.line, example.boxes);
    if (wish.type == metersTopic || wish.type == gramsTopic) drawUnits(unitsOf(wish.type), example);
    return example;
}

}  // namespace ordwise
