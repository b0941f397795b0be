// frmGraph: what is drawn, listed and changed by its commands.
#include "Drawn.hpp"
#include "GraphCommands.hpp"
#include "GraphPlace.hpp"
#include "GraphPlot.hpp"
#include "GraphWindow.hpp"
#include "GraphWords.hpp"
#include "PlainPlatform.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace ordwise {
namespace {

class GraphWindowTest : public testing::Test {
protected:
    GraphWindowTest() {
        ws = Workspace{};
        ResetWindows();
    }

    void open(const std::string& words) {
        int slot = 0;
        for (const std::string& word : split(words, ' ')) ws.GraphValues.set(slot++, word);
        ws.GraphKind = 3;
        frmGraph_Load();
    }

    void openPoint(double x, double y) {
        ws.GraphKind = 1;
        ws.GraphX1 = x;
        ws.GraphY1 = y;
        frmGraph_Load();
    }

    static std::vector<Stroke> strokes(Colour colour) {
        std::vector<Stroke> found;
        for (const DrawOperation& operation : frmGraph.drawn()) {
            const auto* stroke = std::get_if<Stroke>(&operation);
            if (stroke != nullptr && stroke->colour == colour) found.push_back(*stroke);
        }
        return found;
    }

    static std::vector<Stroke> curve() { return strokes(red); }

    // Back from the drawing to the coordinates of the graph.
    static double graphX(double x) {
        return frmGraph.xMin + (x - 1) / (frmGraph.Width - 2) * (frmGraph.xMax - frmGraph.xMin);
    }
    static double graphY(double y) {
        return frmGraph.yMax - (y - 1) / (frmGraph.Height - 2) * (frmGraph.yMax - frmGraph.yMin);
    }

    static bool lists(const std::string& line) {
        return std::find(frmGraph.List1.List.begin(), frmGraph.List1.List.end(), line) != frmGraph.List1.List.end();
    }

    PlainPlatform outside;
};

const Colour gridBlue = colourOfNumber("16766596");

TEST_F(GraphWindowTest, OpensWithAGridTwoAxesAndNumbersAlongThem) {
    openPoint(3, 4);
    EXPECT_DOUBLE_EQ(frmGraph.Width, 8000.0 / 15);
    EXPECT_EQ(strokes(gridBlue).size(), 2U * 41) << "one line each way at every whole number";
    const std::vector<Stroke> axes = strokes(black);
    ASSERT_GE(axes.size(), 2U);
    EXPECT_NEAR(graphY(axes[0].y1), 0, 1e-9);
    EXPECT_NEAR(graphX(axes[0].x1), -20, 1e-9);
    EXPECT_NEAR(graphX(axes[0].x2), 20, 1e-9);
    EXPECT_NEAR(graphX(axes[1].x1), 0, 1e-9);
}

// Whatever the zoom and the size of the picture: numbers stand on it, apart from one another and each at
// the tick of its place.
TEST_F(GraphWindowTest, NumbersAlongTheAxesKeepApart) {
    openPoint(3, 4);
    const auto boxOf = [](const Glyphs& label) {
        return std::array<double, 4>{label.x, label.y, label.x + textWidth(label.face, label.text, label.size),
                                     label.y + lineHeightOf(label.face, label.size)};
    };
    for (int zoom = 0; zoom < 14; ++zoom) {
        for (const auto& resize : {mnuGraphSmall_Click, mnuGraphNormal_Click, mnuGraphMax_Click}) {
            resize();
            const std::vector<Glyphs> labels = runsOf(frmGraph.drawn());
            EXPECT_GE(labels.size(), frmGraph.Width < 300 ? 5U : 5U + 4) << frmGraph.xMax;
            for (std::size_t i = 0; i < labels.size(); ++i) {
                const auto one = boxOf(labels[i]);
                EXPECT_GE(one[0], 0) << labels[i].text;
                EXPECT_LE(one[2], frmGraph.Width) << labels[i].text;
                EXPECT_LE(one[3], frmGraph.Height + 1) << labels[i].text;
                for (std::size_t j = i + 1; j < labels.size(); ++j) {
                    const auto other = boxOf(labels[j]);
                    const bool apart =
                        one[2] <= other[0] || other[2] <= one[0] || one[3] <= other[1] || other[3] <= one[1];
                    EXPECT_TRUE(apart) << labels[i].text << " and " << labels[j].text << " at " << frmGraph.xMax;
                }
            }
        }
        mnuGraphZoomOut_Click();
    }
}

TEST_F(GraphWindowTest, SquaresStaySquareAndTheMouseKnows) {
    openPoint(3, 4);
    frmGraph.Width = 900;
    frmGraph.Height = 300;
    frmGraph_Resize();
    const std::vector<Stroke> axes = strokes(black);
    EXPECT_DOUBLE_EQ(axes[0].x2 - axes[0].x1, std::abs(axes[1].y2 - axes[1].y1));
    frmGraph_MouseMove(axes[1].x1, axes[0].y1);
    EXPECT_EQ(frmGraph.StatusText, "x=0  y=0");
}

// The problem on the desk may be another one by now.
TEST_F(GraphWindowTest, KeepsWhatItWasOpenedFor) {
    ws.StepLines[1] = "y=2x+3";
    ws.StepCount = 2;
    openPoint(3, 4);
    ws.StepLines[1] = "x=1";
    ws.GraphKind = 2;
    ws.GraphX1 = 7;
    mnuGraphZoomIn_Click();
    EXPECT_EQ(frmGraph.List1.List, std::vector<std::string>{"x=3  y=4"});
    EXPECT_EQ(graphTitle(frmGraph), "(3, 4)");
    EXPECT_EQ(frmGraph.subject.lines, std::vector<std::string>{"y=2x+3"});
}

TEST_F(GraphWindowTest, OpensBesideTheFrameOrTheSheets) {
    const WindowPlace screen{0, 0, 1366, 768};
    const WindowPlace wanted{0, 0, 700, 620};
    EXPECT_EQ(placeOfGraph(screen, {0, 0, 600, 700}, 500, wanted, 150), (WindowPlace{600, 0, 700, 620}));
    // On the frame, shrunk to the room behind the sheets, as wide as high.
    EXPECT_EQ(placeOfGraph(screen, {0, 0, 1366, 768}, 760, wanted, 150), (WindowPlace{760, 0, 606, 526}));
    // No room worth a look: where it hides the least.
    EXPECT_EQ(placeOfGraph(screen, {0, 200, 1366, 568}, 1100, wanted, 150), (WindowPlace{666, 148, 700, 620}));
    EXPECT_EQ(placeOfGraph({0, 0, 512, 300}, {0, 0, 512, 300}, 400, wanted, 150), (WindowPlace{132, 0, 380, 300}));
}

TEST_F(GraphWindowTest, DrawsAPointAndListsIt) {
    openPoint(-7, 5.128);
    const auto* circle = std::get_if<Circle>(&frmGraph.drawn().back());
    ASSERT_NE(circle, nullptr);
    EXPECT_NEAR(graphX(circle->x), -7, 1e-9);
    EXPECT_NEAR(graphY(circle->y), 5.128, 1e-9);
    EXPECT_NEAR(circle->radius, 0.2 * (frmGraph.Width - 2) / 40, 1e-9);
    EXPECT_EQ(circle->colour, red);
    EXPECT_EQ(frmGraph.List1.List, std::vector<std::string>{"x=-7  y=5.13"});
    EXPECT_TRUE(frmGraph.mnuGraphHighQuality.Enabled);

    for (int i = 0; i < 12; ++i) mnuGraphZoomOut_Click();
    EXPECT_DOUBLE_EQ(std::get<Circle>(frmGraph.drawn().back()).radius, 2) << "a point stays in sight";
}

TEST_F(GraphWindowTest, DrawsALineBetweenTwoPoints) {
    ws.GraphKind = 2;
    ws.GraphX1 = -4;
    ws.GraphY1 = 2;
    ws.GraphX2 = 60;
    ws.GraphY2 = 34;
    frmGraph_Load();
    ASSERT_EQ(curve().size(), 1U);
    EXPECT_NEAR(graphX(curve()[0].x1), -4, 1e-9);
    EXPECT_NEAR(graphX(curve()[0].x2), 20, 1e-9) << "cut off at the border";
    EXPECT_NEAR(graphY(curve()[0].y2), 14, 1e-9);
    EXPECT_EQ(frmGraph.List1.List, (std::vector<std::string>{"x=-4  y=2", "x=60  y=34"}));
    EXPECT_FALSE(frmGraph.mnuGraphHighQuality.Enabled);
    EXPECT_FALSE(frmGraph.mnuGraphHighSpeed.Enabled);
}

TEST_F(GraphWindowTest, TracesALineFromBorderToBorder) {
    open("+ 1/1 y ^ + 1 = + 2/1 x + 3/1");
    for (const Stroke& stroke : curve()) {
        EXPECT_NEAR(graphY(stroke.y1), 2 * graphX(stroke.x1) + 3, 1e-6);
        EXPECT_NEAR(graphY(stroke.y2), 2 * graphX(stroke.x2) + 3, 1e-6);
    }
    EXPECT_NEAR(graphY(curve().front().y1), -20, 1e-6);
    EXPECT_NEAR(graphY(curve().back().y2), 20, 1e-6);
    EXPECT_EQ(frmGraph.List1.List.size(), 41U);
    EXPECT_EQ(frmGraph.List1.List.front(), "x=-20  y=-37");
    EXPECT_TRUE(lists("x=0  y=3"));

    open("+ 1/1 y ^ + 1 = - 2/3 x + 2/1");
    EXPECT_TRUE(lists("x=1  y=1.33"));
    EXPECT_TRUE(lists("x=3  y=0"));
}

TEST_F(GraphWindowTest, ASteepLineIsSeenThoughNoTracedPointIs) {
    open("+ 1/1 y ^ + 1 = + 9999/1 x + 5000/1");
    ASSERT_FALSE(curve().empty());
    for (const Stroke& stroke : curve()) {
        EXPECT_GE(graphY(stroke.y1), -20 - 1e-6);
        EXPECT_LE(graphY(stroke.y2), 20 + 1e-6);
    }
}

TEST_F(GraphWindowTest, DrawsAVerticalLine) {
    open("+ 1/1 x ^ + 1 = + 3/1");
    ASSERT_FALSE(curve().empty());
    for (const Stroke& stroke : curve()) EXPECT_NEAR(graphX(stroke.x1), 3, 1e-9);
    EXPECT_NEAR(graphY(curve().back().y2), 20, 1e-9);
    EXPECT_EQ(frmGraph.List1.List.size(), 41U);
    EXPECT_EQ(frmGraph.List1.List.front(), "x=3  y=-20");

    open("+ 1/1 x ^ + 1 = - 50/1");
    EXPECT_TRUE(curve().empty()) << "outside of the window";
    EXPECT_TRUE(lists("x=-50  y=0"));
}

TEST_F(GraphWindowTest, TheBranchesOfAHyperbolaAreNotJoined) {
    open("+ 1/1 y ^ + 1 = + 1/1 x ^ + - 1");
    for (int zoom = 0; zoom < 13; ++zoom) {
        for (const Stroke& stroke : curve()) {
            EXPECT_FALSE(graphX(stroke.x1) < -1e-6 && graphX(stroke.x2) > 1e-6) << "xMax " << frmGraph.xMax;
        }
        mnuGraphZoomOut_Click();
    }
    open("+ 1/1 y ^ + 1 = + 1/1 x ^ + - 1");
    EXPECT_TRUE(lists("x=-4  y=-0.25"));
    EXPECT_EQ(frmGraph.List1.List.size(), 40U) << "every whole x but 0";
}

TEST_F(GraphWindowTest, ASquareRootBeginsAtZero) {
    open("+ 1/1 y ^ + 1 = + 1/1 x ^ + 1/2");
    ASSERT_FALSE(curve().empty());
    EXPECT_NEAR(graphX(curve().front().x1), 0, 1e-9);
    EXPECT_NEAR(graphY(curve().front().y1), 0, 1e-9);
    EXPECT_EQ(frmGraph.List1.List.size(), 21U);
}

TEST_F(GraphWindowTest, ASidewaysParabolaHasItsLowerAndItsUpperHalf) {
    open("+ 1/1 y ^ + 2 = + 1/1 x");
    EXPECT_TRUE(lists("x=4  y=-2"));
    EXPECT_TRUE(lists("x=4  y=2"));
    // No stroke leads from the end of one half to the beginning of the other.
    for (const Stroke& stroke : curve()) EXPECT_LE(std::abs(graphX(stroke.x2) - graphX(stroke.x1)), 0.2 + 1e-6);
}

TEST_F(GraphWindowTest, NothingIsTracedWithoutAnEquation) {
    open("+ 0/1 = + 0/1");
    EXPECT_TRUE(curve().empty());
    EXPECT_TRUE(frmGraph.List1.List.empty());
    EXPECT_FALSE(strokes(black).empty()) << "the axes";
}

TEST_F(GraphWindowTest, ZoomsInPowersOfTwoBetweenItsEnds) {
    open("+ 1/1 y ^ + 1 = + 1/1 x");
    mnuGraphZoomIn_Click();
    EXPECT_EQ(frmGraph.xMax, 10);
    mnuGraphZoomIn_Click();
    EXPECT_EQ(frmGraph.xMax, 10) << "no closer than this";
    // xMax and what plotStep is at the highest speed
    const std::vector<std::pair<double, double>> levels{
        {20, 0.2},   {40, 2},     {80, 2},      {160, 2},      {320, 20},     {640, 20},    {1280, 20},
        {2560, 200}, {5120, 200}, {10240, 200}, {20480, 2000}, {40960, 2000}, {81920, 2000}};
    for (const auto& [xMax, step] : levels) {
        mnuGraphZoomOut_Click();
        EXPECT_EQ(frmGraph.xMax, xMax);
        EXPECT_EQ(frmGraph.yMin, -xMax);
        EXPECT_DOUBLE_EQ(frmGraph.plotStep, step);
        EXPECT_EQ(strokes(gridBlue).empty(), xMax >= 320) << xMax;
        EXPECT_EQ(frmGraph.BackColor, xMax >= 320 ? gridBlue : white) << xMax;
        EXPECT_NEAR(graphX(curve().front().x1), -xMax, 1e-6);
        EXPECT_NEAR(graphX(curve().back().x2), xMax, 1e-6);
    }
    mnuGraphZoomOut_Click();
    EXPECT_EQ(frmGraph.xMax, 81920) << "and no farther";
}

TEST_F(GraphWindowTest, ACurveHasNoMorePointsThanAWindowAtTheHighestQuality) {
    open("+ 1/1 y ^ + 1 = - 2/3 x + 2/1");
    mnuGraphHighQuality_Click();
    EXPECT_TRUE(frmGraph.mnuGraphHighQuality.Checked);
    EXPECT_FALSE(frmGraph.mnuGraphHighSpeed.Checked);
    mnuGraphZoomIn_Click();
    for (int level = 0; level < 14; ++level) {
        EXPECT_LE(curve().size(), 4000U) << "xMax " << frmGraph.xMax;
        mnuGraphZoomOut_Click();
    }
}

TEST_F(GraphWindowTest, TheQuadrantsAreNamedCounterClockwise) {
    ws.ProblemType = 107;
    openPoint(1, 1);
    EXPECT_TRUE(frmGraph.mnuGraphQuadrant.Checked);
    const auto middle = [](const char* numeral) {
        const Glyphs run = runOf(frmGraph.drawn(), numeral);
        EXPECT_EQ(run.face, Face::Courier);
        return std::pair(std::round(graphX(run.x + textWidth(run.face, run.text, run.size) / 2)),
                         std::round(graphY(run.y + lineHeightOf(run.face, run.size) / 2)));
    };
    EXPECT_EQ(middle("I"), std::pair(10.0, 10.0));
    EXPECT_EQ(middle("II"), std::pair(-10.0, 10.0));
    EXPECT_EQ(middle("III"), std::pair(-10.0, -10.0));
    EXPECT_EQ(middle("IV"), std::pair(10.0, -10.0));
    mnuGraphQuadrant_Click();
    for (const Glyphs& run : runsOf(frmGraph.drawn())) EXPECT_NE(run.face, Face::Courier) << run.text;
}

TEST_F(GraphWindowTest, SettingsLiveOnAndBoundsDoNot) {
    openPoint(1, 1);
    outside.colours.answers = {{0, 128, 255}};
    mnuGraphColor_Click();
    EXPECT_EQ(outside.colours.offered, std::vector<Colour>{red});
    EXPECT_EQ(std::get<Circle>(frmGraph.drawn().back()).colour, (Colour{0, 128, 255}));
    mnuGraphColor_Click();  // cancelled
    mnuGraphHighQuality_Click();
    mnuGraphZoomOut_Click();
    frmGraph_Unload();
    EXPECT_FALSE(frmGraph.Loaded);

    frmGraph_Load();
    EXPECT_EQ(frmGraph.xMax, 20);
    EXPECT_TRUE(frmGraph.mnuGraphHighQuality.Checked);
    EXPECT_DOUBLE_EQ(frmGraph.plotStep, 0.01);
    EXPECT_EQ(graphSettings.GraphLineColor, "16744448");
    mnuGraphDefault_Click();
    EXPECT_EQ(graphSettings.GraphLineColor, "255");
    EXPECT_EQ(colourOfNumber(graphSettings.GraphGridColor), (Colour{132, 214, 255}));
}

TEST_F(GraphWindowTest, TheStripBesideThePlotHoldsListAndButtons) {
    openPoint(1, 1);
    EXPECT_GT(frmGraph.List1.Left, frmGraph.Width);
    EXPECT_LT(frmGraph.List1.Top + frmGraph.List1.Height, frmGraph.Command1.Top);
    EXPECT_LT(frmGraph.Command2.Top + frmGraph.Command2.Height, frmGraph.Height);
    const double withButtons = frmGraph.List1.Height;
    mnuToggleZoomButtons_Click();
    EXPECT_FALSE(frmGraph.Command2.Visible);
    EXPECT_GT(frmGraph.List1.Height, withButtons);
    mnuToggleCoordinates_Click();
    EXPECT_EQ(frmGraph.StripWidth, 0);
    mnuGraphSmall_Click();
    EXPECT_DOUBLE_EQ(frmGraph.Width, 4000.0 / 15);
    frmGraph.ScreenWidth = 1600;
    frmGraph.ScreenHeight = 900;
    mnuGraphMax_Click();
    EXPECT_EQ(frmGraph.Width, 1600);
    EXPECT_EQ(frmGraph.Height, 900);
}

TEST_F(GraphWindowTest, TheMouseReadsCoordinates) {
    openPoint(1, 1);
    frmGraph_MouseMove(frmGraph.Width / 2, 1);
    EXPECT_EQ(frmGraph.StatusText, "x=0  y=20");
    for (int i = 0; i < 13; ++i) mnuGraphZoomOut_Click();
    frmGraph_MouseMove(frmGraph.Width, frmGraph.Height / 2);  // on the margin
    EXPECT_EQ(frmGraph.StatusText, "x=81920  y=0");
}

}  // namespace
}  // namespace ordwise
