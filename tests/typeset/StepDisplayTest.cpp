// A solution on the worksheet: whole, or a step each time the student asks for one.
#include "Drawn.hpp"
#include "PlainPlatform.hpp"
#include "StepDisplay.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordwise {
namespace {

class StepDisplayTest : public testing::Test {
protected:
    StepDisplayTest() {
        ResetWindows();
        ws = Workspace();
        frmPaper.Paper[0].CurrentY = sheetTopY;
        frmMain.MousePointer = 11;
    }

    // StepLines from index 1, which restates the problem.
    static void solution(const std::vector<std::string>& lines) {
        ws.StepCount = 1;
        for (const std::string& line : lines) {
            ws.StepLines[ws.StepCount] = line;
            ws.StepCount += 1;
        }
    }

    static std::vector<std::string> drawn(int sheet = 0) {
        std::vector<std::string> texts;
        for (const DrawOperation& operation : frmPaper.Paper[sheet].drawn()) {
            for (const Glyphs& run : runsOf({operation})) texts.push_back(run.text);
            if (const auto* picture = std::get_if<Picture>(&operation)) texts.push_back("<" + picture->key + ">");
        }
        return texts;
    }

    static bool buttonVisible(int sheet = 0) { return frmPaper.Paper[sheet].blinker.Visible; }

    using Texts = std::vector<std::string>;
    PlainPlatform outside;
};

TEST_F(StepDisplayTest, DrawsAllFromTheSecondLineAndChecksOff) {
    solution({"restated", "a", "b"});
    ShowSteps();
    EXPECT_EQ(drawn(), (Texts{"a", "b", "<check>"}));
    EXPECT_EQ(ws.ShownStep, 3) << "the assistant explains the last step";
    EXPECT_FALSE(buttonVisible());
    EXPECT_EQ(frmMain.MousePointer, ws.NormalPointer);
    const auto check = std::get<Picture>(frmPaper.Paper[0].drawn().back());
    EXPECT_DOUBLE_EQ(check.x, ws.LineEndX + 5);
    EXPECT_DOUBLE_EQ(check.y, ws.LineEndY - 15);
}

TEST_F(StepDisplayTest, ChecksOffTheProblemWhereThereIsNoStep) {
    solution({"restated"});
    ws.LineEndX = 200;
    ws.LineEndY = 100;
    ShowSteps();
    EXPECT_EQ(drawn(), (Texts{"<check>"}));
    EXPECT_EQ(std::get<Picture>(frmPaper.Paper[0].drawn()[0]).x, 205);
    EXPECT_EQ(ws.ShownStep, 0);
}

TEST_F(StepDisplayTest, WaitsForNextStepAfterEachLine) {
    solution({"restated", "a", "b", "c"});
    ws.ShownStep = 2;
    ShowSteps();
    EXPECT_EQ(drawn(), (Texts{"a"}));
    EXPECT_TRUE(buttonVisible());
    EXPECT_TRUE(frmPaper.Timer2.Enabled);
    EXPECT_TRUE(frmPaper.clickMe.Enabled) << "the assistant's signal";
    EXPECT_DOUBLE_EQ(frmPaper.Paper[0].blinker.Left, ws.LineEndX + 10);
    EXPECT_DOUBLE_EQ(frmPaper.Paper[0].blinker.Top, ws.LineEndY - 13);
    blinker_Click();
    EXPECT_EQ(drawn(), (Texts{"a", "b"}));
    EXPECT_EQ(ws.ShownStep, 3);
    blinker_Click();
    EXPECT_EQ(drawn(), (Texts{"a", "b", "c", "<check>"}));
    EXPECT_FALSE(buttonVisible());
    EXPECT_FALSE(frmPaper.Timer2.Enabled);
}

TEST_F(StepDisplayTest, TakesTheOnlyStepForTheLast) {
    solution({"restated", "a"});
    ws.ShownStep = 2;
    ws.ClickNotify = false;
    ShowSteps();
    EXPECT_EQ(drawn(), (Texts{"a", "<check>"}));
    EXPECT_FALSE(buttonVisible());
    EXPECT_FALSE(frmPaper.clickMe.Enabled);
}

TEST_F(StepDisplayTest, ChecksOffTheLineBeforeAnEmptyLastOne) {
    solution({"restated", "a", ""});
    ws.ShownStep = 2;
    ShowSteps();
    const double end = ws.LineEndX;
    blinker_Click();
    EXPECT_EQ(drawn(), (Texts{"a", "<check>"}));
    EXPECT_EQ(ws.LineEndX, end);
}

TEST_F(StepDisplayTest, DrawsAllAgainWhenStepsWereTurnedOffInBetween) {
    solution({"restated", "a", "b"});
    ws.ShownStep = 2;
    ShowSteps();
    frmMain.mnuShowStep.Checked = false;
    ws.ShownStep = 0;
    blinker_Click();
    EXPECT_EQ(drawn(), (Texts{"a", "a", "b", "<check>"}));
}

TEST_F(StepDisplayTest, OpensTheGraphOnlyForAStudentWhoStepsThrough) {
    for (const int type : {105, 107, 101}) {
        ws.ProblemType = type;
        solution({"restated", "a"});
        ws.ShownStep = 0;
        outside.windows.requests.clear();
        ShowSteps();
        EXPECT_TRUE(outside.windows.requests.empty()) << type;
        ws.ShownStep = 2;
        ws.GraphKind = 0;
        ShowSteps();
        const bool graph = type != 101;
        EXPECT_EQ(outside.windows.requests, graph ? Texts{"+frmGraph"} : Texts{}) << type;
        EXPECT_EQ(ws.GraphKind, type == 105 ? 3 : type == 107 ? 1 : 0);
    }
}

TEST_F(StepDisplayTest, PutsTheButtonOnTheSheetThatTheLineOpened) {
    solution({"restated", "a", "b", "c"});
    ws.ShownStep = 2;
    frmPaper.Paper[0].CurrentY = 560;
    ShowSteps();
    EXPECT_TRUE(buttonVisible(0));
    blinker_Click();
    EXPECT_EQ(drawn(1), (Texts{"b"}));
    EXPECT_FALSE(buttonVisible(0));
    EXPECT_TRUE(buttonVisible(1));
    blinker_Click();
    EXPECT_EQ(drawn(1), (Texts{"b", "c", "<check>"}));
}

TEST_F(StepDisplayTest, FillsTenSheetsAndSaysOnceThatThereAreNoMore) {
    std::vector<std::string> lines(200, "x");
    solution(lines);
    EXPECT_EQ(ws.StepCount, 201);
    ShowSteps();
    EXPECT_EQ(ws.CurrentSheet, 9);
    EXPECT_EQ(outside.dialogs.messages.size(), 1U);
    EXPECT_EQ(drawn(9).back(), "<check>");
    EXPECT_EQ(ws.ShownStep, 200);
}

// Whatever the length of the solution, and whether it is shown at once or step by step.
TEST_F(StepDisplayTest, LeavesNoLastLineAloneOnASheet) {
    for (const bool atOnce : {true, false}) {
        for (int count = 2; count <= 60; ++count) {
            ResetWindows();
            ws = Workspace();
            frmPaper.Paper[0].Left = 60;
            frmPaper.Paper[0].CurrentY = sheetTopY;
            frmPaper.Wizard.Left = 880;
            frmPaper.Wizard.Width = PaperWindow::fullWizardWidth;
            PrintMathLine("restated", false);
            std::vector<std::string> lines{"restated"};
            for (int i = 0; i < count; ++i) lines.push_back(i % 3 == 1 ? "#1/2#" + std::string(1, 'a') : "b");
            solution(lines);
            ws.ShownStep = atOnce ? 0 : 2;
            frmMain.mnuShowStep.Checked = !atOnce;
            ShowSteps();
            while (frmPaper.Paper[ws.CurrentSheet].blinker.Visible) blinker_Click();
            int shown = 0;
            for (int sheet = 0; sheet <= ws.CurrentSheet; ++sheet) {
                int onSheet = 0;
                double above = 0;
                for (const Glyphs& run : runsOf(frmPaper.Paper[sheet].drawn())) {
                    if (run.text != "a" && run.text != "b") continue;
                    ++onSheet;
                    EXPECT_GE(run.y - above, 56) << count << ": fractions would meet";
                    above = run.y;
                }
                EXPECT_GT(onSheet, 1) << count << " lines, sheet " << sheet;
                shown += onSheet;
            }
            EXPECT_EQ(shown, count);
            const Sheet& top = frmPaper.Paper[ws.CurrentSheet];
            EXPECT_GE(frmPaper.Wizard.Left, top.Left + top.Width) << "the assistant stands beside the topmost sheet";
        }
    }
    pushBesidePile(-frmPaper.PileShift);
    EXPECT_EQ(frmPaper.Wizard.Left, 880);
}

}  // namespace
}  // namespace ordwise
