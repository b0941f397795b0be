// What the explanation window and the printer do differently.
#include "Drawn.hpp"
#include "GlyphMetrics.hpp"
#include "basFPrint.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace ordwise {
namespace {

class VariantsTest : public testing::Test {
protected:
    void draw(const SurfaceOffsets& offsets, std::string_view line, Colour normal = black) {
        MathLineRenderer renderer(surface, offsets, normal, [this](bool) -> DrawingSurface& {
            ++pages;
            surface.cls();
            surface.CurrentX = 12;
            surface.CurrentY = 24;
            return surface;
        });
        renderer.line(line);
    }

    Glyphs run(std::string_view text) const { return runOf(surface.drawn(), text); }

    DrawingSurface surface;
    int pages = 0;
};

TEST_F(VariantsTest, TheExplanationMakesRoomForAFractionOnly) {
    surface.FontFace = Face::Explanation;
    surface.FontSize = 12;
    surface.CurrentX = 5;
    draw(explanationOffsets, "plain", blue);
    EXPECT_EQ(run("plain").y, 3);
    EXPECT_EQ(run("plain").x, 5) << "no indent";
    EXPECT_EQ(run("plain").colour, blue);
    surface.cls();
    draw(explanationOffsets, "#1/2#[x]y", blue);
    EXPECT_DOUBLE_EQ(run("1").y, 12 - 0.6 * 12);
    EXPECT_EQ(run("x").colour, red);
    EXPECT_EQ(run("y").colour, blue);
}

TEST_F(VariantsTest, TheExplanationNeverBreaksALine) {
    surface.FontFace = Face::Explanation;
    draw(explanationOffsets, std::string(500, 'm'));
    EXPECT_EQ(surface.drawn().size(), 1U);
}

TEST_F(VariantsTest, ThePrinterCountsInUnitsOfThePage) {
    surface.FontSize = 12;
    draw(printerOffsets, "#1/2#x^3^");
    EXPECT_EQ(run("1").y, 12 - 5);
    EXPECT_EQ(run("2").y, 12 - 5 + 14);
    EXPECT_EQ(run("3").size, 8);
    EXPECT_EQ(run("3").y, 12 - 1);
}

TEST_F(VariantsTest, ThePrinterBreaksAt765AndTurnsThePageBeforeACharacter) {
    surface.FontSize = 12;
    surface.CurrentX = 765 - 12 - textWidth(Face::Halvern, "a", 12) + 0.01;
    draw(printerOffsets, "abc");
    EXPECT_EQ(run("a...").y, 12);
    EXPECT_EQ(run("bc").x, 15);
    EXPECT_EQ(run("bc").y, 24);
    EXPECT_EQ(pages, 0);

    surface.cls();
    surface.CurrentY = 548;
    draw(printerOffsets, "on the line of 560");
    EXPECT_EQ(pages, 0);
    surface.cls();
    surface.CurrentY = 548.5;
    draw(printerOffsets, "over");
    EXPECT_EQ(pages, 1);
    EXPECT_EQ(run("over").x, 12);
    EXPECT_EQ(run("over").y, 24);
    surface.cls();
    surface.CurrentY = 548.5;
    draw(printerOffsets, "#1/2#");
    EXPECT_EQ(pages, 2) << "a fraction alone on its line would run off the page";
}

}  // namespace
}  // namespace ordwise
