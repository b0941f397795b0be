#include "GlyphMetrics.hpp"

#include <array>

namespace ordwise {
namespace {

// Advance widths of the characters 32 to 126 in thousandths of an em. HalvernFont draws ` as pi,
// \\ as plus-or-minus, { as the division sign, ~ and & as the two radical signs, _ as a piece of
// a bar that joins to its neighbour, and * as the sign of multiplication.
// clang-format off
constexpr std::array<int, 95> halvernWidths{
    220, 296, 389, 556, 556, 833, 440, 204, 333, 333, 500, 606, 278, 606, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 606, 606, 606, 444,
    737, 722, 722, 722, 778, 722, 667, 778, 833, 407, 556, 778, 667, 944, 815, 778,
    667, 778, 722, 630, 667, 815, 722, 981, 704, 704, 611, 333, 606, 333, 606, 100,
    600, 556, 556, 444, 574, 500, 333, 537, 611, 315, 296, 593, 315, 889, 611, 500,
    574, 556, 444, 463, 389, 611, 537, 778, 537, 537, 481, 606, 606, 333, 450,
};

constexpr std::array<int, 95> explanationWidths{
    250, 278, 402, 500, 500, 889, 640, 227, 490, 490, 500, 760, 250, 333, 250, 511,
    500, 500, 500, 500, 500, 500, 500, 500, 500, 500, 250, 250, 769, 760, 769, 444,
    747, 778, 667, 722, 833, 611, 556, 833, 833, 389, 389, 778, 611, 1000, 833, 833,
    611, 833, 722, 611, 667, 778, 778, 1000, 667, 667, 667, 457, 606, 457, 606, 100,
    600, 500, 611, 444, 611, 500, 389, 556, 611, 333, 333, 611, 333, 889, 611, 556,
    611, 611, 389, 444, 333, 611, 556, 833, 500, 556, 500, 606, 232, 472, 450,
};

constexpr std::array<int, 95> sansWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
    333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584,
};
// clang-format on

// Every letter of a typewriter is as wide as any other.
constexpr std::array<int, 95> courierWidths = [] {
    std::array<int, 95> widths{};
    widths.fill(600);
    return widths;
}();

constexpr double ascent = 0.95;

const std::array<int, 95>& widthsOf(Face face) {
    switch (face) {
        case Face::Halvern: return halvernWidths;
        case Face::Explanation: return explanationWidths;
        case Face::Sans: return sansWidths;
        case Face::Courier: break;
    }
    return courierWidths;
}

}  // namespace

double emOf(Face face, double points) {
    // 20 units at 18 points, where sheets are written, and 11 at 8 points, where exponents are.
    if (face == Face::Halvern) return 0.9 * points + 3.8;
    if (face == Face::Explanation) return points + 2;
    return points * 96 / 72;
}

double ascentOf(Face face, double points) {
    return ascent * emOf(face, points);
}

double lineHeightOf(Face face, double points) {
    // Explanations are prose with fractions in it, which need more room between the lines.
    return (face == Face::Explanation ? 1.45 : 1.2) * emOf(face, points);
}

double textWidth(Face face, std::string_view text, double points) {
    const std::array<int, 95>& widths = widthsOf(face);
    int thousandths = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) == 0x80U) continue;  // the rest of a character already counted
        thousandths += widths[(byte < 32 || byte > 126) ? '?' - 32U : byte - 32U];
    }
    return thousandths * emOf(face, points) / 1000.0;
}

}  // namespace ordwise
