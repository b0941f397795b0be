// One line of markup on a sheet: what is drawn where.
#include "Drawn.hpp"
#include "GlyphMetrics.hpp"
#include "HalvernShapes.hpp"
#include "PlainPlatform.hpp"
#include "StepDisplay.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace ordwise {
namespace {

constexpr double size = 18;
const double indent = 17 * textWidth(Face::Halvern, " ", size);
const std::string faultMessage = "An error occurred while displaying information.";

double widthOf(std::string_view text) {
    return textWidth(Face::Halvern, text, size);
}

class LineTest : public testing::Test {
protected:
    LineTest() {
        ResetWindows();
        ws = Workspace();
        ws.TopicName = "Rounding";
        sheet().CurrentY = sheetTopY;
    }

    static Sheet& sheet(int index = 0) { return frmPaper.Paper[index]; }

    static std::vector<Glyphs> runs(int index = 0) { return runsOf(sheet(index).drawn()); }
    static Glyphs run(std::string_view text, int index = 0) { return runOf(sheet(index).drawn(), text); }

    // The bar, a row of "_".
    static Glyphs bar() {
        for (const Glyphs& glyphs : runs()) {
            if (glyphs.text.find_first_not_of('_') == std::string::npos) return glyphs;
        }
        ADD_FAILURE() << "no bar was drawn";
        return {};
    }

    static void draw(std::string_view line) { PrintMathLine(line, false); }

    PlainPlatform outside;
};

TEST_F(LineTest, IndentsByBlanksAndEndsOnTheNextLine) {
    draw("2x+3");
    const Glyphs line = run("2x+3");
    EXPECT_DOUBLE_EQ(line.x, indent);
    EXPECT_DOUBLE_EQ(line.y, sheetTopY + 2.4 * size);
    EXPECT_EQ(line.colour, black);
    EXPECT_DOUBLE_EQ(ws.LineEndX, indent + widthOf("2x+3") - 4);
    EXPECT_DOUBLE_EQ(ws.LineEndY, line.y);
    EXPECT_EQ(sheet().CurrentX, 0);
    EXPECT_DOUBLE_EQ(sheet().CurrentY, line.y + lineHeightOf(Face::Halvern, size));
}

TEST_F(LineTest, DrawsAnEmptyLineAsAGap) {
    draw("");
    EXPECT_TRUE(sheet().drawn().empty());
    EXPECT_DOUBLE_EQ(sheet().CurrentY, sheetTopY + 2.4 * size + lineHeightOf(Face::Halvern, size));
    EXPECT_TRUE(outside.dialogs.messages.empty());
}

TEST_F(LineTest, StacksAFractionAndLeavesASlashAlone) {
    draw("#3/4#");
    const double line = sheetTopY + 2.4 * size;
    EXPECT_DOUBLE_EQ(run("3").y, line - 0.6 * size);
    EXPECT_DOUBLE_EQ(run("4").y, line - 0.6 * size + 1.7 * size);
    EXPECT_DOUBLE_EQ(bar().x, indent) << "at once behind the blanks";
    EXPECT_DOUBLE_EQ(bar().y, run("3").y) << "drawn at the height of the numerator";
    EXPECT_NEAR(ws.DenominatorEndX, run("4").x + widthOf("4"), 0.5);
    EXPECT_NEAR(ws.LineEndX, bar().x + widthOf(bar().text) - 4, 1e-9) << "the pen stays at the end of the bar";
    draw("3/4");
    EXPECT_EQ(run("3/4").text, "3/4");
}

// By what is drawn, so that no sign and no mark moves a half aside or hangs over the bar.
TEST_F(LineTest, CentresBothHalvesUnderABarThatCoversThem) {
    for (const auto& [markup, upper, lower] :
         {std::array{"#7/12#", "7", "12"}, std::array{"#100/2#", "100", "2"}, std::array{"#4x/[-10]#", "4x", "10"},
          std::array{"#a b c/2#", "a b c", "2"}, std::array{"#1/x^2^#", "1", "x"}}) {
        sheet().cls();
        draw(markup);
        double left = 1e9;
        double right = 0;
        for (const bool top : {true, false}) {
            left = 1e9;
            right = 0;
            for (const Glyphs& glyphs : runs()) {
                const bool numerator = glyphs.y <= run(upper).y + 1e-9;
                if (glyphs.text[0] == '_' || numerator != top) continue;
                left = std::min(left, glyphs.x);
                right = std::max(right, glyphs.x + textWidth(glyphs.face, glyphs.text, glyphs.size));
            }
            const double trimmed = std::string_view(markup).find('-') != std::string_view::npos && !top ? 3 : 0;
            const double middle = bar().x + widthOf(bar().text) / 2;
            EXPECT_NEAR((left + trimmed + right) / 2, middle, 0.01) << markup;
            EXPECT_GT(left + trimmed, bar().x) << markup;
        }
        EXPECT_GT(run(lower).y, run(upper).y) << markup;
    }
}

TEST_F(LineTest, SplitsAFractionAtTheLastSlashOutsideOfParentheses) {
    struct Case {
        const char* markup;
        const char* numerator;
        const char* denominator;
    };
    for (const Case& c : {Case{"#(a/b)/c#", "(a/b)", "c"},
                          {"#a/b/c#", "a/b", "c"},
                          {"#(x+1)/(x-1)#", "(x+1)", "(x-1)"},
                          {"#a/(b/c)#", "a", "(b/c)"}}) {
        sheet().cls();
        draw(c.markup);
        EXPECT_LT(run(c.numerator).y, run(c.denominator).y) << c.markup;
    }
    sheet().cls();
    draw("#(a/b)#");
    EXPECT_TRUE(sheet().drawn().empty()) << "no slash to split at, nothing to draw";
}

TEST_F(LineTest, DrawsABarOverAnEmptyDenominator) {
    draw("#1/#");
    EXPECT_GE(widthOf(bar().text), widthOf("1") - 1e-9);
    EXPECT_TRUE(outside.dialogs.messages.empty());
}

TEST_F(LineTest, RaisesAnExponentWholeAndReturns) {
    draw("x^n[1]^y");
    const Glyphs exponent = run("n[1]");
    EXPECT_EQ(exponent.size, 8) << "marks inside are drawn as glyphs";
    EXPECT_DOUBLE_EQ(exponent.y, run("x").y - 0.2 * 8);
    EXPECT_EQ(run("y").size, size);
    EXPECT_DOUBLE_EQ(run("y").y, run("x").y);
    EXPECT_DOUBLE_EQ(run("y").x, indent + widthOf("x") + textWidth(Face::Halvern, "n[1]", 8));
}

// The sign ends where its bar begins, and an exponent or a fraction stands below the bar.
TEST_F(LineTest, LetsASignReachUpToTheBarOverItsRadicand) {
    for (const char* markup : {"~25~+1", "~x^2^~+1", "~#1/2#~+1", "#-b\\~b^2^-4ac~/2a#+1"}) {
        sheet().cls();
        draw(markup);
        const double em = emOf(Face::Halvern, size) / 1000;
        const bool tall = std::string_view(markup).find("~#") != std::string_view::npos;
        const Glyphs sign = run(tall ? "&" : "~");
        double signTop = 0;
        double signRight = 0;
        for (const ShapePoint& point : shapeOf(Face::Halvern, tall ? '&' : '~')->front()) {
            signTop = std::min(signTop, point.y);
            signRight = std::max(signRight, point.x);
        }
        std::vector<Glyphs> bars;
        for (const Glyphs& glyphs : runs()) {
            if (glyphs.text[0] == '_') bars.push_back(glyphs);
        }
        const Glyphs& over = *std::min_element(bars.begin(), bars.end(), [](auto& a, auto& b) { return a.y < b.y; });
        EXPECT_NEAR(over.x, sign.x + (signRight - strokeWidth) * em, 0.01) << markup;
        EXPECT_NEAR(baselineOf(over) + barMiddle * em, baselineOf(sign) + signTop * em, 1) << markup;
        for (const Glyphs& glyphs : runs()) {
            const bool radicand = glyphs.text[0] != '_' && glyphs.x > over.x && glyphs.y < sign.y + 1 &&
                                  glyphs.x < over.x + widthOf(over.text);
            if (!radicand) continue;
            EXPECT_GT(baselineOf(glyphs) - 0.704 * emOf(glyphs.face, glyphs.size), baselineOf(over) + 310 * em + 2)
                << markup << ": " << glyphs.text;
        }
    }
}

TEST_F(LineTest, KeepsAColourOverConstructsUntilItIsSwitchedOff) {
    draw("[#a/b#c]d");
    for (const char* text : {"a", "b", "c"}) EXPECT_EQ(run(text).colour, red) << text;
    EXPECT_EQ(run("d").colour, black);
    sheet().cls();
    draw("#[p/q#r~s~");
    for (const char* text : {"p", "q", "r", "s"})
        EXPECT_EQ(run(text).colour, red) << text << ": leaked from the numerator";
    draw("t");
    EXPECT_EQ(run("t").colour, black) << "the next line starts anew";
}

TEST_F(LineTest, KnowsWhetherItEndsInAFraction) {
    struct Case {
        const char* markup;
        bool ends;
    };
    for (const Case& c : {Case{"x+#1/2#", true},
                          {"#1/2# ", false},
                          {"#1/2#x", false},
                          {"#1/2#^2^", false},
                          {"x^2^", false},
                          {"~#1/2#~", true},
                          {"~x~", false},
                          {"", false}}) {
        draw(c.markup);
        EXPECT_EQ(ws.LineEndsInFraction, c.ends) << c.markup;
    }
}

// Breaking. The pen is put where the next character ends exactly at the limit, or a hair beyond.
TEST_F(LineTest, BreaksBehindTheCharacterThatPasses750AndNotAt750) {
    sheet().CurrentX = 750 - indent - widthOf("ab");
    draw("ab");
    EXPECT_EQ(runs().size(), 1U) << "exactly at 750";

    sheet().cls();
    sheet().CurrentX = 750 - indent - widthOf("ab") + 0.01;
    draw("abcd");
    EXPECT_EQ(run("ab...").y, 2.4 * size);
    EXPECT_DOUBLE_EQ(run("cd").x, 67);
    EXPECT_DOUBLE_EQ(run("cd").y, 2.4 * size + 46);
}

TEST_F(LineTest, DrawsAFractionWholeAndBreaksAtTheNextCharacter) {
    sheet().CurrentX = 740 - indent;
    draw("#100/200#xy");
    EXPECT_EQ(run("x...").text, "x...");
    EXPECT_DOUBLE_EQ(run("y").x, 67);
}

TEST_F(LineTest, EndsWithoutDotsWhereNothingFollows) {
    for (const char* end : {"ab", "ab]", "ab  "}) {
        sheet().cls();
        sheet().CurrentX = 750 - indent - widthOf("ab") + 0.01;
        draw(end);
        EXPECT_EQ(runs().size(), 1U) << end;
        EXPECT_DOUBLE_EQ(ws.LineEndY, 2.4 * size) << end;
    }
    EXPECT_NEAR(indent, 67, 0.1) << "broken lines go on below the first letter";
}

// A minus between two bars would read as one long bar.
TEST_F(LineTest, KeepsThreePixelsFreeBetweenASignAndTheBarsBesideIt) {
    struct Ground {
        Face face;
        double points;
        const SurfaceOffsets& offsets;
    };
    constexpr double freePixels = 4;  // three are whole wherever the edges fall
    for (const Ground& ground :
         {Ground{Face::Halvern, 18, worksheetOffsets}, Ground{Face::Explanation, 12, explanationOffsets}}) {
        for (const char sign : std::string("+-=*$\\{")) {
            DrawingSurface surface;
            surface.FontFace = ground.face;
            surface.FontSize = ground.points;
            MathLineRenderer(surface, ground.offsets, black, [&](bool) -> DrawingSurface& {
                return surface;
            }).line("#1/2#" + std::string(1, sign) + "#3/4#");
            std::vector<double> edges;  // of the bars and of the sign, from left to right
            for (const Glyphs& run : runsOf(surface.drawn())) {
                for (const PlacedGlyph& glyph : placedGlyphs(run)) {
                    if (glyph.shape == nullptr) continue;
                    double left = 1e9;
                    double right = 0;
                    for (const auto& contour : *glyph.shape) {
                        for (const ShapePoint& point : contour) {
                            left = std::min(left, point.x);
                            right = std::max(right, point.x);
                        }
                    }
                    const double em = emOf(run.face, run.size) / 1000;
                    edges.push_back(glyph.x + left * glyph.stretch * em);
                    edges.push_back(glyph.x + right * glyph.stretch * em);
                }
            }
            std::sort(edges.begin(), edges.end());
            ASSERT_EQ(edges.size(), 6U) << sign;
            EXPECT_GE(edges[2] - edges[1], freePixels) << sign;
            EXPECT_GE(edges[4] - edges[3], freePixels) << sign;
        }
    }
}

TEST_F(LineTest, BreaksAVeryLongLineAgainAndAgain) {
    draw(std::string(300, '8'));
    std::size_t digits = 0;
    std::size_t rows = 0;
    double y = 0;
    for (const Glyphs& row : runs()) {
        for (const char c : row.text) digits += c == '8' ? 1U : 0U;
        EXPECT_DOUBLE_EQ(row.y, rows == 0 ? row.y : y + 46);
        y = row.y;
        ++rows;
        EXPECT_LE(row.x + widthOf(row.text), 750 + widthOf("8...") + 1e-9);
    }
    EXPECT_EQ(digits, 300U);
    EXPECT_GE(rows, 4U);
}

// Faults: the message, and the program goes on with the next line.
TEST_F(LineTest, ReportsAnUnbalancedMarkAndGoesOn) {
    for (const char* broken : {"x^2", "#1/2", "~x", "2#", "#x^2/3#", "~#1/2~", "#~x/2#"}) {
        outside.dialogs.messages.clear();
        sheet().cls();
        sheet().CurrentY = sheetTopY;
        draw(broken);
        EXPECT_EQ(outside.dialogs.messages, (std::vector<ShownMessage>{{"Ordwise", faultMessage}})) << broken;
        draw("next");
        EXPECT_DOUBLE_EQ(run("next").x, indent) << broken;
        EXPECT_GT(run("next").y, sheetTopY + 2.4 * size) << broken << ": on a line of its own";
        EXPECT_EQ(run("next").size, size) << broken;
        EXPECT_EQ(outside.dialogs.messages.size(), 1U) << broken;
    }
}

TEST_F(LineTest, HoldsFiftyCharactersInAPartAndThreeThousandInALine) {
    const std::string fifty(50, '1');
    for (const std::string& line : {"#" + fifty + "/" + fifty + "#", "~" + fifty + "~"}) {
        draw(line);
        EXPECT_TRUE(outside.dialogs.messages.empty()) << line;
    }
    for (const std::string& line :
         {"#1" + fifty + "/2#", "#2/1" + fifty + "#", "~1" + fifty + "~", std::string(3001, ' ')}) {
        outside.dialogs.messages.clear();
        draw(line);
        EXPECT_EQ(outside.dialogs.messages.size(), 1U) << line;
    }
    outside.dialogs.messages.clear();
    sheet().cls();
    draw(std::string(3000, ' '));
    EXPECT_TRUE(outside.dialogs.messages.empty());
}

// Sheets.
TEST_F(LineTest, OpensTheNextSheetWhereThePenIsBelowTheFoot) {
    sheet().Left = 100;
    sheet().Top = 50;
    sheet().blinker.Visible = true;
    sheet().CurrentY = 589;
    draw("last");
    EXPECT_EQ(ws.CurrentSheet, 0) << "589 is still on the sheet";
    sheet().CurrentY = 589.5;
    draw("first");
    EXPECT_EQ(ws.CurrentSheet, 1);
    EXPECT_FALSE(sheet(0).blinker.Visible);
    const Sheet& next = sheet(1);
    EXPECT_DOUBLE_EQ(run("first", 1).y, 81 + 2.4 * size);
    EXPECT_DOUBLE_EQ(run("first", 1).x, indent);
    EXPECT_EQ(next.Left, 125);
    EXPECT_EQ(next.Top, 75);
    EXPECT_EQ(next.Width, 800);
    EXPECT_EQ(next.Height, 657);
    EXPECT_TRUE(next.Visible);
    EXPECT_EQ(next.Label6.Text, "Rounding (Page 2)");
}

TEST_F(LineTest, CarriesColourAndTextOverABreakAtTheFoot) {
    sheet().CurrentY = 589;
    sheet().CurrentX = 750 - indent - widthOf("ab") + 0.01;
    draw("[abcd");
    EXPECT_EQ(run("ab...").colour, red);
    EXPECT_EQ(ws.CurrentSheet, 1);
    EXPECT_DOUBLE_EQ(run("cd", 1).x, 67);
    EXPECT_DOUBLE_EQ(run("cd", 1).y, 88);
    EXPECT_EQ(run("cd", 1).colour, red);
}

TEST_F(LineTest, SaysOnceThatTheTenthSheetIsFull) {
    ws.CurrentSheet = 9;
    sheet(9).CurrentY = 560;
    draw("fits");
    for (int i = 0; i < 5; ++i) draw("too much");
    EXPECT_EQ(ws.CurrentSheet, 9);
    EXPECT_EQ(runs(9).size(), 1U);
    EXPECT_EQ(outside.dialogs.messages, (std::vector<ShownMessage>{{"Ordwise", faultMessage}}));

    // On fresh sheets it is news again.
    ws.CurrentSheet = 0;
    draw("again");
    ws.CurrentSheet = 9;
    draw("too much");
    EXPECT_EQ(outside.dialogs.messages.size(), 2U);
}

TEST_F(LineTest, GoesOnAfterABreakAtTheFootOfTheTenthSheet) {
    ws.CurrentSheet = 9;
    sheet(9).CurrentY = 589;
    sheet(9).CurrentX = 750 - indent - widthOf("ab") + 0.01;
    draw("abcd");
    EXPECT_EQ(run("ab...", 9).text, "ab...");
    EXPECT_EQ(outside.dialogs.messages.size(), 1U);
    draw("more");
    EXPECT_EQ(runs(9).size(), 1U);
    EXPECT_EQ(outside.dialogs.messages.size(), 1U);
    ws.CurrentSheet = 8;
    draw("fine");
    EXPECT_EQ(run("fine", 8).text, "fine");
}

}  // namespace
}  // namespace ordwise
