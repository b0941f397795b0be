// Printing a solved problem: what the setup offers, what comes onto the pages, and what a fault leaves.
#include "Drawn.hpp"
#include "GraphCommands.hpp"
#include "GraphWindow.hpp"
#include "PlainPlatform.hpp"
#include "PrintPreview.hpp"
#include "PrintWindows.hpp"
#include "PrintedLines.hpp"
#include "Printing.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordwise {
namespace {

constexpr double unitDown = (1056 - 2 * 48) / 600.0;  // of a Letter page
constexpr double unitAcross = (816 - 2 * 48) / 800.0;

class PrintingTest : public testing::Test {
protected:
    PrintingTest() {
        ws = Workspace{};
        ResetWindows();
        frmPaper.Paper[0].Label6.Text = "Solving Equations";
        frmPaper.Label7.Text = "11/22/2026";
        ws.ProblemType = 101;
    }

    static void solved(int steps) {
        for (int i = 1; i <= steps; ++i) {
            ws.StepLines[i] = "#" + std::string(1, static_cast<char>('a' + i % 26)) + "/2#=x+" +
                              std::string(static_cast<std::size_t>(i % 3), '1');
            ws.StepNotes[i] = "Note about [" + std::string(1, static_cast<char>('a' + i % 26)) + "].";
        }
        ws.StepCount = steps + 1;
    }

    const PrintJob& job() const { return outside.printer.jobs.back(); }

    PlainPlatform outside;
};

TEST_F(PrintingTest, TheHeadingIsTheTopicAndTheDate) {
    frmPrintSetup_Load();
    EXPECT_EQ(frmPrintSetup.Text1.Text, "Halvern Ordwise");
    EXPECT_EQ(frmPrintSetup.Text2.Text, "Solving Equations");
    EXPECT_EQ(frmPrintSetup.Text3.Text, "11/22/2026");
    frmPrintSetup.Text1.Text = "Class 7b";
    solved(2);
    frmPrintSetup_Command2_Click();
    ASSERT_EQ(outside.printer.jobs.size(), 1U);
    const std::vector<Glyphs> runs = runsOf(job().pages.at(0).drawing);
    EXPECT_EQ(runs.at(0).text, "Class 7b");
    EXPECT_EQ(runs.at(0).x, 0);
    EXPECT_DOUBLE_EQ(runs.at(0).y, 3 * lineHeightOf(Face::Halvern, 12)) << "below three blank lines";
    EXPECT_EQ(runs.at(2).text, "11/22/2026");
    EXPECT_EQ(outside.windows.requests, std::vector<std::string>{"-frmPrintSetup"});
    EXPECT_EQ(frmMain.StatusText, "");
}

TEST_F(PrintingTest, StepsStandAtTheIndentInHalvernFont) {
    ws.StepLines[1] = "x+3=12";
    ws.StepLines[2] = "x=9";
    ws.StepNotes[0] = "Enter an equation.";
    ws.StepNotes[2] = "Subtract 3.";
    ws.StepCount = 3;
    EXPECT_TRUE(printSolution(true));
    for (const Glyphs& run : runsOf(job().pages[0].drawing))
        EXPECT_NE(run.text, "Enter an equation.") << "no step's note";
    EXPECT_TRUE(printSolution(false));
    const Glyphs first = runOf(job().pages[0].drawing, "x+3=12");
    const Glyphs second = runOf(job().pages[0].drawing, "x=9");
    EXPECT_DOUBLE_EQ(first.x, 12 * unitAcross);
    EXPECT_EQ(first.size, 12);
    EXPECT_EQ(first.colour, black);
    EXPECT_NEAR(second.y - first.y, lineHeightOf(Face::Halvern, 12) + 12 * unitDown, 1e-9);
    for (const Glyphs& run : runsOf(job().pages[0].drawing)) EXPECT_NE(run.text, "Subtract 3.");
}

TEST_F(PrintingTest, ExplanationsStandInBlueUnderTheirStep) {
    solved(30);
    EXPECT_TRUE(printSolution(true));
    EXPECT_GE(job().pages.size(), 3U);
    int notes = 0;
    for (const PrintedPage& printed : job().pages) {
        const DisplayList& page = printed.drawing;
        double stepAt = -1;
        for (const Glyphs& run : runsOf(page)) {
            EXPECT_GE(run.y, 0) << run.text;
            EXPECT_LE(run.y + lineHeightOf(run.face, run.size), 1056 - 2 * 48) << run.text;
            if (run.text.starts_with("=x+")) stepAt = run.y;
            if (!run.text.starts_with("Note about")) continue;
            ++notes;
            EXPECT_EQ(run.colour, blue);
            EXPECT_EQ(run.face, Face::Note);
            EXPECT_EQ(run.size, 10);
            EXPECT_GT(stepAt, 0) << "the step went with it to this page";
            EXPECT_NEAR(run.y - stepAt, lineHeightOf(Face::Halvern, 12) + 12 * unitDown, 1e-9);
        }
    }
    EXPECT_EQ(notes, 30);
}

TEST_F(PrintingTest, FractionsOfLinesOneBelowTheOtherDoNotMeet) {
    for (int i = 1; i <= 10; ++i) ws.StepLines[i] = i % 2 ? "#p/q#" : "~#p/q#~";
    ws.StepCount = 11;
    EXPECT_TRUE(printSolution(false));
    // Depths in the em, from the top of a run: the foot of a letter and the middle of a bar.
    constexpr double foot = 0.95;
    constexpr double barMiddle = 1.24;
    double above = 0;  // the foot of the fraction one line above
    double below = 0;  // and of the one being looked at
    int bars = 0;
    for (const Glyphs& run : runsOf(job().pages[0].drawing)) {
        const double em = emOf(run.face, run.size);
        if (run.text == "p") above = below;
        if (run.text == "q") below = run.y + foot * em;
        if (!run.text.starts_with('_')) continue;
        ++bars;
        EXPECT_GT(run.y + barMiddle * em, above + 1) << "bar " << bars;
    }
    EXPECT_EQ(bars, 15) << "one of each fraction and one over every second";
}

TEST_F(PrintingTest, ALineThatCannotBeDrawnIsToldAndTheRestIsPrinted) {
    ws.StepLines[1] = "x^2";
    ws.StepLines[2] = "x=9";
    ws.StepCount = 3;
    EXPECT_TRUE(printSolution(false));
    ASSERT_EQ(outside.dialogs.messages.size(), 1U);
    EXPECT_EQ(outside.dialogs.messages[0].text, "An error occurred while displaying information.");
    EXPECT_EQ(runOf(job().pages[0].drawing, "x=9").size, 12);
}

TEST_F(PrintingTest, WhatThePrinterRefusesIsSaidInTheStatusLine) {
    solved(3);
    frmPrintSetup_Load();
    outside.printer.refusal = "The file could not be written.";
    frmPrintSetup_Command2_Click();
    EXPECT_EQ(frmMain.StatusText, "The file could not be written.");
    EXPECT_TRUE(frmPrintSetup.Loaded) << "to choose another printer";
    EXPECT_TRUE(outside.dialogs.messages.empty());
    EXPECT_TRUE(outside.windows.requests.empty());
}

TEST_F(PrintingTest, AGraphThatWasCancelledDoesNotPrintTheSolutionAgain) {
    solved(2);
    frmGraph_Load();
    frmPrintSetup_Load();
    outside.printer.refuseAfter = 1;
    outside.printer.refusal = "Printing was cancelled.";
    frmPrintSetup_Command2_Click();
    EXPECT_EQ(frmMain.StatusText, "The solution is printed, its graph is not.  Printing was cancelled.");
    EXPECT_TRUE(frmPrintSetup.Loaded);
    outside.printer.refusal.clear();
    frmPrintSetup_Command2_Click();
    ASSERT_EQ(outside.printer.jobs.size(), 2U);
    EXPECT_EQ(outside.printer.jobs[0].title, "Solving Equations");
    EXPECT_EQ(outside.printer.jobs[1].title, "Solving Equations Graph");
}

TEST_F(PrintingTest, ThePreviewShowsWhatWillBePrinted) {
    solved(2);
    frmGraph_Load();
    frmPrintSetup_Load();
    frmPrintSetup.Check3.Checked = true;
    frmPrintSetup_Command4_Click();
    EXPECT_EQ(outside.windows.requests.back(), "+frmPrintPreview");
    frmPrintPreview_Load();
    ASSERT_EQ(ws.PreviewPageCount, 1) << "the solution and the graph";
    const DisplayList solution = frmPrintPreview.Picture1.drawn();
    frmPrintPreview_Command1_Click();
    ASSERT_EQ(outside.printer.jobs.size(), 2U);
    EXPECT_EQ(outside.printer.jobs[0].pages.at(0).drawing, solution);
}

TEST_F(PrintingTest, AFaultOnTheWayPrintsNothing) {
    solved(3);
    ws.StepCount = lastStep + 2;
    EXPECT_FALSE(printSolution(false));
    EXPECT_TRUE(outside.printer.jobs.empty());
    EXPECT_FALSE(frmMain.StatusText.empty());
}

TEST_F(PrintingTest, AProblemThatIsOnlyDrawnHasNoSolutionToPrint) {
    for (const int topic : {106, 108}) {
        ws.ProblemType = topic;
        frmPrintSetup_Load();
        EXPECT_FALSE(frmPrintSetup.Check2.Enabled);
        EXPECT_FALSE(frmPrintSetup.Check3.Enabled);
        EXPECT_FALSE(frmPrintSetup.Check1.Enabled);
        EXPECT_FALSE(frmPrintSetup.Command2.Enabled) << "no graph is open either";
    }
    frmGraph_Load();
    frmPrintSetup_Load();
    EXPECT_TRUE(frmPrintSetup.Check1.Checked);
    EXPECT_TRUE(frmPrintSetup.Command2.Enabled);
    frmPrintSetup.Check1.Checked = false;
    frmPrintSetup_Check1_Click();
    EXPECT_FALSE(frmPrintSetup.Command2.Enabled);
}

TEST_F(PrintingTest, OKNeedsSomethingToPrint) {
    frmPrintSetup_Load();
    EXPECT_TRUE(frmPrintSetup.Check2.Checked);
    EXPECT_TRUE(frmPrintSetup.Command2.Enabled);
    frmPrintSetup.Check2.Checked = false;
    frmPrintSetup_Check2_Click();
    EXPECT_FALSE(frmPrintSetup.Command2.Enabled);
    frmPrintSetup_Paint();
    EXPECT_EQ(frmPrintSetup.Label1.Text, "Plain printer");
    outside.printer.name = "Another";
    frmPrintSetup_Command3_Click();
    EXPECT_EQ(outside.printer.setups, 1);
    EXPECT_EQ(frmPrintSetup.Label1.Text, "Another");
}

TEST_F(PrintingTest, TheGraphIsAJobOfItsOwn) {
    solved(2);
    ws.GraphKind = 2;
    ws.GraphX2 = 500;
    ws.GraphY2 = 300;
    frmGraph_Load();
    frmPrintSetup_Load();
    frmPrintSetup_Command2_Click();
    ASSERT_EQ(outside.printer.jobs.size(), 2U);
    ASSERT_EQ(job().pages.size(), 1U);
    EXPECT_EQ(runsOf(job().pages[0].drawing).front().text, "Halvern Ordwise");
    std::size_t strokes = 0;
    for (const DrawOperation& operation : job().pages[0].drawing) {
        const auto* stroke = std::get_if<Stroke>(&operation);
        if (stroke == nullptr) continue;
        ++strokes;
        for (const double x : {stroke->x1, stroke->x2}) EXPECT_TRUE(x >= 0 && x <= 816 - 2 * 48) << x;
        for (const double y : {stroke->y1, stroke->y2}) EXPECT_TRUE(y >= 0 && y <= 1056 - 2 * 48) << y;
    }
    EXPECT_GT(strokes, 2U * 41 + 2) << "grid, axes and the line";
    EXPECT_DOUBLE_EQ(frmGraph.Width, 8000.0 / 15) << "the window stays as it is";
}

TEST_F(PrintingTest, TheGraphStandsUnderItsProblemAndTheSolvedLine) {
    ws.StepLines[1] = "x+y=3";
    ws.StepLines[2] = "y=3-x";
    ws.StepCount = 3;
    frmGraph_Load();
    EXPECT_TRUE(PrintTheGraph());
    const double problem = runOf(job().pages[0].drawing, "x+y=3").y;
    const double line = runOf(job().pages[0].drawing, "y=3-x").y;
    EXPECT_LT(problem, line);
    for (const DrawOperation& operation : job().pages[0].drawing) {
        const auto* stroke = std::get_if<Stroke>(&operation);
        EXPECT_TRUE(stroke == nullptr || stroke->y1 > line);
    }
}

}  // namespace
}  // namespace ordwise
