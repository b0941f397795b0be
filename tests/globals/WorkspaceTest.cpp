// What a reset returns to its start, and what it leaves alone.
#include "FaultOf.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ordwise {
namespace {

class WorkspaceTest : public testing::Test {
protected:
    WorkspaceTest() { ws = Workspace(); }

    // A problem typed, solved and left in the middle of everything.
    static void use() {
        ws.TopicName = "Solving Equations";
        ws.ProblemType = 101;
        ws.InputTokens.set(2000, "x");
        ws.InputLast = 3;
        ws.CanonTokens.set(4, "x");
        ws.TokenBuffer.set(0, "+");
        ws.GraphValues.set(7, "2");
        ws.VarNames[20] = "x";
        ws.VarNames[21] = "y";
        ws.VarCount = 2;
        ws.ParenTable[1][20] = true;
        ws.ParenDepth = 2;
        ws.BarDepth = 1;
        ws.ParenSide = 1;
        ws.FractionDepth = 3;
        ws.EqualsTyped = ws.ExponentOpen = ws.FractionOpen = ws.RootOpen = ws.BarOpen = true;
        ws.StepCount = 5;
        ws.StepLines[4] = "x=9";
        ws.StepNotes[4] = "Subtract 3.";
        ws.StepClassOf[4] = 1;
        ws.LastLine = "x=9";
        ws.RoundPlaces = 4;
    }
};

TEST_F(WorkspaceTest, AResetEmptiesInputAndEngine) {
    use();
    ResetEngine(true);
    EXPECT_EQ(ws.InputTokens[2000] + ws.CanonTokens[4] + ws.TokenBuffer[0] + ws.GraphValues[7], "");
    EXPECT_EQ(ws.InputLast, 0);
    EXPECT_EQ(ws.VarNames[20], "");
    EXPECT_EQ(ws.VarCount, 0);
    EXPECT_FALSE(ws.ParenTable[1][20]);
    EXPECT_EQ(ws.ParenDepth, 0);
    EXPECT_FALSE(ws.EqualsTyped || ws.ExponentOpen || ws.FractionOpen || ws.RootOpen || ws.BarOpen);
    EXPECT_TRUE(ws.ReductionStable);
}

TEST_F(WorkspaceTest, AResetKeepsTopicSettingsAndWhatOnlyAFreshWorksheetClears) {
    use();
    ResetEngine(true);
    EXPECT_EQ(ws.TopicName, "Solving Equations");
    EXPECT_EQ(ws.ProblemType, 101);
    EXPECT_EQ(ws.RoundPlaces, 4);
    EXPECT_EQ(ws.VarNames[21], "y") << "beyond the slots that a problem can fill";
    EXPECT_EQ(ws.BarDepth, 1);
    EXPECT_EQ(ws.ParenSide, 1);
    EXPECT_EQ(ws.FractionDepth, 3);
}

TEST_F(WorkspaceTest, StepsGoOnlyWhereTheResetSaysSo) {
    use();
    ResetEngine(false);
    EXPECT_EQ(ws.StepCount, 5);
    EXPECT_EQ(ws.StepLines[4] + ws.StepNotes[4], "x=9Subtract 3.");
    ResetEngine(true);
    EXPECT_EQ(ws.StepCount, 1);
    EXPECT_EQ(ws.StepLines[4] + ws.StepNotes[4], "");
    EXPECT_EQ(ws.StepClassOf[4], noStepClass);
}

TEST_F(WorkspaceTest, LimitsAreFelt) {
    EXPECT_EQ(faultOf([] { ws.StepLines[201] = "x"; }), 9);
    EXPECT_EQ(faultOf([] { ws.InputTokens.set(2001, "x"); }), 9);
    EXPECT_EQ(faultOf([] { ws.ParenTable[0][21] = true; }), 9);
    ws.StepCount = 32767;
    EXPECT_EQ(faultOf([] { ws.StepCount += 1; }), 6);
}

// The first fault of a problem must not be the last word of the next one.
TEST_F(WorkspaceTest, AnOverfullStoreFaultsOnceAndIsCleanAfterwards) {
    ws.GroupTable[3].lastGroup = 46;
    ws.GroupTable[3].slot(46).power = 7;
    EXPECT_EQ(faultOf([] { ResetStore(false); }), 9);
    EXPECT_EQ(ws.GroupTable[3][46].power, 1);
    EXPECT_EQ(faultOf([] { ResetStore(false); }), 0);
    ws.GroupTable[3].lastGroup = 46;
    EXPECT_EQ(faultOf([] { ResetStore(true); }), 0);
}

}  // namespace
}  // namespace ordwise
