// Display lists, glyph widths and the shapes that painters fill.
#include "DrawingSurface.hpp"
#include "FaultOf.hpp"
#include "GlyphMetrics.hpp"
#include "HalvernShapes.hpp"
#include "SvgPainter.hpp"
#include "Windows.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace ordwise {
namespace {

const Glyphs& runAt(const DrawingSurface& surface, std::size_t index) {
    return std::get<Glyphs>(surface.drawn().at(index));
}

TEST(TextWidth, KeepsDigitsInColumnsAndSignsAlike) {
    for (const Face face : {Face::Halvern, Face::Explanation}) {
        for (const char* digit : {"1", "2", "9"})
            EXPECT_EQ(textWidth(face, digit, 12), textWidth(face, "0", 12)) << digit;
    }
    EXPECT_EQ(textWidth(Face::Halvern, "-", 18), textWidth(Face::Halvern, "+", 18));
    EXPECT_EQ(textWidth(Face::Note, proseMinus, 10), textWidth(Face::Note, "+", 10));
}

TEST(TextWidth, CountsACharacterOutsideAsciiOnce) {
    EXPECT_EQ(textWidth(Face::Halvern, "\xC3\xA9", 18), textWidth(Face::Halvern, "?", 18));
    EXPECT_EQ(textWidth(Face::Halvern, "\x7F\x01", 18), 2 * textWidth(Face::Halvern, "?", 18));
    // In a heading an umlaut is as wide as its vowel; half a character and a foreign one do no harm.
    EXPECT_EQ(textWidth(Face::Heading, "\xC3\xBC", 18), textWidth(Face::Heading, "u", 18));
    for (const char* other : {"\xC3", "\xC2\x80", "\xD0\x96", "\xFF"})
        EXPECT_EQ(textWidth(Face::Heading, other, 18), textWidth(Face::Heading, "n", 18));
}

TEST(DrawingSurface, JoinsGlyphsOfOneStyleIntoARunAndNoOthers) {
    DrawingSurface surface;
    for (const char* piece : {"a", "b", " ", "c"}) surface.print(piece);
    ASSERT_EQ(surface.drawn().size(), 1U);
    EXPECT_EQ(runAt(surface, 0).text, "ab c");
    surface.ForeColor = red;
    surface.print("d");
    surface.FontSize = 8;
    surface.print("e");
    surface.CurrentY -= 1;
    surface.print("f");
    surface.CurrentX += 1;
    surface.print("g");
    EXPECT_EQ(surface.drawn().size(), 5U);
    EXPECT_EQ(runAt(surface, 1).colour, red);
}

TEST(DrawingSurface, DrawsNothingForBlanksButMovesOn) {
    DrawingSurface surface;
    surface.print("   ");
    EXPECT_TRUE(surface.drawn().empty());
    EXPECT_DOUBLE_EQ(surface.CurrentX, 3 * textWidth(Face::Halvern, " ", 18));
    surface.print("x");
    EXPECT_DOUBLE_EQ(runAt(surface, 0).x, 3 * textWidth(Face::Halvern, " ", 18));
    surface.cls();
    EXPECT_TRUE(surface.drawn().empty());
    EXPECT_EQ(surface.CurrentX, 0);
}

TEST(PlacedGlyphs, StandWhereTheWidthsSayAndBlanksAreLeftOut) {
    const auto glyphs = placedGlyphs({"2` r", 100, 0, Face::Halvern, 18, black});
    ASSERT_EQ(glyphs.size(), 3U);
    EXPECT_EQ(glyphs[0].shape, nullptr);
    EXPECT_NE(glyphs[1].shape, nullptr) << "pi is our own drawing";
    EXPECT_DOUBLE_EQ(glyphs[1].x, 100 + textWidth(Face::Halvern, "2", 18));
    EXPECT_EQ(glyphs[2].character, "r");
    EXPECT_DOUBLE_EQ(glyphs[2].x, 100 + textWidth(Face::Halvern, "2` ", 18));
}

TEST(PlacedGlyphs, LeaveAHeadingAsItWasTyped) {
    const auto glyphs = placedGlyphs({"A & B: __ `{~", 0, 0, Face::Heading, 12, black});
    EXPECT_EQ(glyphs.size(), 9U) << "all but the blanks";
    for (const PlacedGlyph& glyph : glyphs) EXPECT_EQ(glyph.shape, nullptr) << glyph.character;
}

TEST(PlacedGlyphs, MakeOnePieceOfABar) {
    const auto glyphs = placedGlyphs({"____x_", 0, 0, Face::Halvern, 18, black});
    ASSERT_EQ(glyphs.size(), 3U);
    EXPECT_EQ(glyphs[0].stretch, 4);
    EXPECT_EQ(glyphs[2].stretch, 1);
}

// A shape that sticks out would be drawn over its neighbours; the bar has to reach both of them.
TEST(Shapes, StayWithinTheirWidth) {
    for (const Face face : {Face::Halvern, Face::Explanation}) {
        for (const char c : std::string("`\\{*_-+=$|~")) {
            const Shape* shape = shapeOf(face, c);
            if (shape == nullptr) continue;
            const double width = textWidth(face, std::string(1, c), 18) / emOf(face, 18) * 1000;
            for (const auto& contour : *shape) {
                for (const ShapePoint& point : contour) {
                    EXPECT_GE(point.x, 0) << c;
                    EXPECT_LE(point.x, width + 1e-9) << c;
                }
            }
        }
        const auto& bar = shapeOf(face, '_')->front();
        const auto [left, right] =
            std::minmax_element(bar.begin(), bar.end(), [](auto& a, auto& b) { return a.x < b.x; });
        EXPECT_EQ(left->x, 0);
        EXPECT_DOUBLE_EQ(right->x, textWidth(face, "_", 18) / emOf(face, 18) * 1000);
    }
    EXPECT_EQ(shapeOf(Face::Halvern, 'x'), nullptr);
}

TEST(Svg, WritesEachKindOfOperation) {
    DrawingSurface surface;
    surface.print("a<b&c");
    surface.ForeColor = red;
    surface.DrawWidth = 2;
    surface.line(150, 150, 550, 150.5);
    surface.circle(10, 20, 3, true);
    surface.image("check", 5, -6.25, 24, 24);
    const std::string svg = svgOf(surface.drawn(), 800, 657);
    for (const char* piece : {
             "viewBox=\"0 0 800.00 657.00\"",
             ">a</tspan>",
             ">&lt;</tspan>",
             "<path d=\"M",  // "&" is a drawing of our own
             "<line x1=\"150.00\" y1=\"150.00\" x2=\"550.00\" y2=\"150.50\" stroke=\"#ff0000\" stroke-width=\"2.00\"",
             "<circle cx=\"10.00\" cy=\"20.00\" r=\"3.00\"",
             "fill=\"#ff0000\"/>",
             "<image href=\"check.svg\" x=\"5.00\" y=\"-6.25\"",
         })
        EXPECT_NE(svg.find(piece), std::string::npos) << piece << "\n" << svg;
}

TEST(Windows, GiveBoxesAndCombosByNumber) {
    PaperWindow paper;
    paper.Text6.Text = "6";
    EXPECT_EQ(paper.box(6).Text, "6");
    EXPECT_EQ(&paper.combo(3), &paper.Combo3);
    EXPECT_EQ(faultOf([&] { (void)paper.box(0); }), 9);
    EXPECT_EQ(faultOf([&] { (void)paper.box(7); }), 9);
    EXPECT_EQ(faultOf([&] { (void)paper.combo(4); }), 9);
}

}  // namespace
}  // namespace ordwise
