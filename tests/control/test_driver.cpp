// The solve driver: the order of a run, the three message boxes, the thinning of steps.
#include "Catalogue.hpp"
#include "PlainPlatform.hpp"
#include "SolveDriver.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordwise {
namespace {

class DriverTest : public ::testing::Test {
protected:
    DriverTest() {
        ws = Workspace{};
        ResetWindows();
        frmMain.mnuShowStep.Checked = false;
    }

    void solve(const char* topic, const char* problem) {
        TreeViewSelect(topic);
        ws.ProblemText = problem;
        ws.StepCount = 1;
        setSolveEnabled(true);
        compute_Click();
    }

    // Steps 2 to last as CommitStep would have recorded them: "2", "3", ...
    static void record(int last) {
        for (int i = 1; i <= last; ++i) {
            ws.StepLines[i] = std::to_string(i);
            ws.StepNotes[i] = "note " + std::to_string(i);
            ws.StepClassOf[i] = 2;
        }
        ws.StepCount = last + 1;
    }

    static std::vector<std::string> lines() {
        std::vector<std::string> result;
        for (int i = 2; i <= lastStep; ++i) {
            if (!ws.StepLines[i].empty()) {
                EXPECT_EQ(ws.StepNotes[i], "note " + ws.StepLines[i]);
                result.push_back(ws.StepLines[i]);
            }
        }
        return result;
    }

    PlainPlatform outside;
};

TEST_F(DriverTest, EachFaultEndsInItsMessageAndLeavesSolveEnabled) {
    struct Case {
        const char* topic;
        const char* problem;
        const char* caption;
    };
    const Case cases[] = {
        {"Rounding", "|5|", "Ordwise"},
        {"Rounding", "99999999999", "Overflow!"},
        {"Graphing A Line Using Two Points", "1,2,3", "Ordwise"},
        {"Converting Regular To Scientific Notation", "0", "Overflow!"},
    };
    for (const Case& c : cases) {
        outside.dialogs.messages.clear();
        solve(c.topic, c.problem);
        ASSERT_EQ(outside.dialogs.messages.size(), 1U) << c.topic;
        EXPECT_EQ(outside.dialogs.messages[0].caption, c.caption) << c.topic;
        EXPECT_TRUE(frmMain.mnuSolve.Enabled) << c.topic;
        EXPECT_FALSE(ws.InputOpen) << c.topic;
        EXPECT_EQ(frmMain.MousePointer, ws.NormalPointer) << c.topic;
    }
    outside.dialogs.messages.clear();
    solve("Rounding", "44");  // as if nothing had happened
    EXPECT_TRUE(outside.dialogs.messages.empty());
    EXPECT_EQ(ws.StepLines[ws.StepCount - 1], "0");
}

TEST_F(DriverTest, ATypeWithoutABranchSaysNothing) {
    ws.ProblemType = 55;
    compute_Click();
    EXPECT_TRUE(outside.dialogs.messages.empty());
    EXPECT_EQ(ws.StepCount, 1);
}

TEST_F(DriverTest, ThinningKeepsEveryNthStepAndTheLast) {
    ws.StepDetail = 2;
    record(9);
    StepThinning();
    EXPECT_EQ(lines(), (std::vector<std::string>{"2", "4", "6", "8", "9"}));
    EXPECT_EQ(ws.StepCount, 7);

    ws.StepDetail = 3;
    record(8);
    StepThinning();
    EXPECT_EQ(lines(), (std::vector<std::string>{"3", "6", "8"}));
    EXPECT_EQ(ws.StepCount, 5);
}

// The display stands at the first step or at the last one by then: neither its note nor the only line
// that is left may go.
TEST_F(DriverTest, ThinningLeavesWhatIsStillToBeShown) {
    record(2);
    StepThinning();
    EXPECT_EQ(lines(), (std::vector<std::string>{"2"}));
    EXPECT_EQ(ws.StepCount, 2);

    ws.StepDetail = 3;
    record(3);
    StepThinning();
    EXPECT_EQ(lines(), (std::vector<std::string>{"3", "3"}));
    EXPECT_EQ(ws.StepCount, 2);

    record(8);
    StepThinning();
    EXPECT_EQ(ws.StepNotes[8], "note 8");
}

TEST_F(DriverTest, SolutionsThatTheEngineDidNotRecordAreLeftWhole) {
    record(5);
    ws.StepClassOf.fill(noStepClass);
    ws.StepDetail = 3;
    StepThinning();
    EXPECT_EQ(lines().size(), 4U);
    EXPECT_EQ(ws.StepCount, 6);
}

TEST_F(DriverTest, PointsAreHandedToTheGraphWindow) {
    solve("Graphing A Line Using Two Points", "(1,-2)-(3,4)");
    EXPECT_EQ(ws.GraphKind, 2);
    EXPECT_EQ(ws.GraphY1, -2);
    EXPECT_EQ(ws.GraphX2, 3);
    EXPECT_EQ(outside.windows.requests.back(), "+frmGraph");
    EXPECT_TRUE(frmMain.mnuGraph.Enabled);

    solve("Plotting A Point", "(4,8)");
    EXPECT_EQ(ws.GraphKind, 1);
    EXPECT_EQ(ws.GraphX1, 4);

    solve("Rounding", "44");  // nothing is left over for the next problem
    EXPECT_EQ(ws.GraphKind, 0);
}

}  // namespace
}  // namespace ordwise
