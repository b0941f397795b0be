#include "GlyphMetrics.hpp"

#include <array>

namespace ordwise {
namespace {

// Advance widths of the characters 32 to 126 in thousandths of an em. HalvernFont draws ` as pi,
// \\ as plus-or-minus, { as the division sign, $ as the sign of inequality, ~ and & as the two radical
// signs, _ as a piece of a bar that joins to its neighbour, and * as the sign of multiplication.
//
// 17 blanks, with which each line of a sheet begins, lead to where the rest of a broken line begins.
// The signs between two operands have the room of an operator on both sides: on a screen at 100 % at
// least three pixels stay free between a sign and the bar of a fraction beside it.
// clang-format off
constexpr std::array<int, 95> halvernWidths{
    197, 296, 389, 556, 900, 833, 200, 204, 333, 333, 800, 900, 278, 900, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 606, 900, 606, 444,
    737, 722, 722, 722, 778, 722, 667, 778, 833, 407, 556, 778, 667, 944, 815, 778,
    667, 778, 722, 630, 667, 815, 722, 981, 704, 704, 611, 333, 900, 333, 606, 100,
    600, 556, 556, 444, 574, 500, 333, 537, 611, 315, 296, 593, 315, 889, 611, 500,
    574, 556, 444, 463, 389, 611, 537, 778, 537, 537, 481, 900, 200, 333, 560,
};

constexpr std::array<int, 95> headingWidths{
    278, 296, 389, 556, 556, 833, 815, 204, 333, 333, 500, 606, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 606, 606, 606, 444,
    737, 722, 722, 722, 778, 722, 667, 778, 833, 407, 556, 778, 667, 944, 815, 778,
    667, 778, 722, 630, 667, 815, 722, 981, 704, 704, 611, 333, 606, 333, 606, 500,
    333, 556, 556, 444, 574, 500, 333, 537, 611, 315, 296, 593, 315, 889, 611, 500,
    574, 556, 444, 463, 389, 611, 537, 778, 537, 537, 481, 333, 606, 333, 606,
};

// The characters 160 to 255 of headings.
constexpr std::array<int, 96> headingLatinWidths{
    278, 296, 556, 556, 556, 556, 606, 500, 333, 737, 334, 426, 606, 333, 737, 333,
    400, 606, 333, 333, 333, 611, 606, 278, 333, 333, 300, 426, 834, 834, 834, 444,
    722, 722, 722, 722, 722, 722, 1000, 722, 722, 722, 722, 722, 407, 407, 407, 407,
    778, 815, 778, 778, 778, 778, 778, 606, 778, 815, 815, 815, 815, 704, 667, 574,
    556, 556, 556, 556, 556, 556, 796, 444, 500, 500, 500, 500, 315, 315, 315, 315,
    500, 611, 500, 500, 500, 500, 500, 606, 500, 611, 611, 611, 611, 537, 574, 537,
};

constexpr std::array<int, 95> explanationWidths{
    250, 278, 402, 500, 1080, 889, 200, 227, 490, 490, 980, 1080, 250, 333, 250, 511,
    500, 500, 500, 500, 500, 500, 500, 500, 500, 500, 250, 250, 769, 1080, 769, 444,
    747, 778, 667, 722, 833, 611, 556, 833, 833, 389, 389, 778, 611, 1000, 833, 833,
    611, 833, 722, 611, 667, 778, 778, 1000, 667, 667, 667, 457, 1080, 457, 606, 100,
    600, 500, 611, 444, 611, 500, 389, 556, 611, 333, 333, 611, 333, 889, 611, 556,
    611, 611, 389, 444, 333, 611, 556, 833, 500, 556, 500, 1080, 200, 472, 560,
};

constexpr std::array<int, 95> noteWidths{
    250, 278, 371, 500, 1080, 840, 200, 208, 456, 456, 980, 1080, 250, 333, 250, 486,
    500, 500, 500, 500, 500, 500, 500, 500, 500, 500, 250, 250, 767, 1080, 767, 444,
    747, 778, 611, 709, 774, 611, 556, 763, 832, 337, 333, 726, 611, 946, 831, 786,
    604, 786, 668, 525, 613, 778, 722, 1000, 667, 667, 667, 428, 1080, 428, 606, 100,
    600, 500, 553, 444, 611, 479, 333, 556, 582, 287, 234, 556, 291, 883, 582, 546,
    601, 560, 395, 424, 326, 603, 565, 834, 516, 556, 500, 1080, 200, 441, 560,
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
        case Face::Heading: return headingWidths;
        case Face::Explanation: return explanationWidths;
        case Face::Note: return noteWidths;
        case Face::Sans: return sansWidths;
        case Face::Courier: break;
    }
    return courierWidths;
}

// Of the character that begins with a byte beyond ASCII, in a heading.
int headingWidth(std::string_view character) {
    const auto byte = [character](std::size_t at) { return static_cast<unsigned char>(character[at]); };
    const bool latin = character.size() > 1 && (byte(0) == 0xC2 || byte(0) == 0xC3) && (byte(1) & 0xC0U) == 0x80U;
    const unsigned code = latin ? (byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU) : 0;
    return code >= 160 ? headingLatinWidths[code - 160] : headingWidths['n' - 32];
}

}  // namespace

bool isProse(Face face) {
    return face == Face::Explanation || face == Face::Note;
}

double emOf(Face face, double points) {
    // 20 units at 18 points, where sheets are written, and 11 at 8 points, where exponents are.
    if (face == Face::Halvern || face == Face::Heading) return 0.9 * points + 3.8;
    if (isProse(face)) return points + 2;
    return points * 96 / 72;
}

double ascentOf(Face face, double points) {
    return ascent * emOf(face, points);
}

double lineHeightOf(Face face, double points) {
    // Explanations are prose with fractions in it, which need more room between the lines.
    return (isProse(face) ? 1.45 : 1.2) * emOf(face, points);
}

double signAir(Face face, char sign, double points) {
    if (std::string_view("+-=$*{\\").find(sign) == std::string_view::npos) return 0;
    const int air = sign == '*' ? (isProse(face) ? 237 : 147) : (isProse(face) ? 240 : 150);
    return air * emOf(face, points) / 1000.0;
}

double textWidth(Face face, std::string_view text, double points) {
    const std::array<int, 95>& widths = widthsOf(face);
    int thousandths = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (isProse(face) && text.substr(i, proseMinus.size()) == proseMinus) {
            thousandths += widths['+' - 32U];
            continue;
        }
        if ((byte & 0xC0U) == 0x80U) continue;  // the rest of a character already counted
        if (face == Face::Heading && byte > 126) {
            thousandths += headingWidth(text.substr(i));
            continue;
        }
        thousandths += widths[(byte < 32 || byte > 126) ? '?' - 32U : byte - 32U];
    }
    return thousandths * emOf(face, points) / 1000.0;
}

}  // namespace ordwise
