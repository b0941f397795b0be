// What becomes a step, what does not, and what a commit tells its rule.
#include "FaultOf.hpp"
#include "SolveText.hpp"

#include <gtest/gtest.h>

namespace ordwise::test {
namespace {

void commit(const std::string& text, const std::string& note, CommitOptions options = {}) {
    ws.CurrentNote = note;
    ExplodeTokens(text);
    CommitStep(options);
}

TEST(CommitStep, RecordsNoLineTwice) {
    startText(91, "2+3");
    commit("+2+3", "Nothing new.");
    EXPECT_EQ(ws.StepCount, 2);
    EXPECT_TRUE(ws.ReductionStable);
}

TEST(CommitStep, KeepsTheLastLineOfTheProblemBefore) {
    startText(91, "5");
    const std::string line = ws.LastLine;
    ResetEngine(true);
    EXPECT_EQ(ws.LastLine, line);
    commit("+5", "");
    EXPECT_EQ(ws.StepCount, 1) << "the same line as a first step is not recorded";
}

TEST(CommitStep, BringsTheStoreUpToDateInSilence) {
    startText(91, "2+3");
    commit("+5", "Hidden.", {.silent = true});
    EXPECT_EQ(ws.StepCount, 2);
    EXPECT_EQ(ws.TermLast[0][0], 1);
    EXPECT_EQ(ws.LastTermCount, 1);
    commit("+2+3", "", {.silent = true});
    EXPECT_TRUE(ws.ReductionStable);
}

TEST(CommitStep, MayCountAnUnchangedNumberOfTermsAsStable) {
    startText(91, "2+3");
    ws.KeepReducing = false;
    commit("+2+4", "Other numbers.", {.stopWhenStable = true});
    EXPECT_EQ(ws.StepCount, 2);
    EXPECT_TRUE(ws.ReductionStable);
    ws.KeepReducing = true;
    commit("+2+5", "A rule that goes on.", {.stopWhenStable = true});
    EXPECT_EQ(ws.StepLines[2], "2+5");
}

TEST(CommitStep, ShowsARearrangementOnlyAsAFirstStep) {
    startText(102, "3+2x");
    commit("+2x+3", "Reorder the polynomial.");
    EXPECT_EQ(ws.StepCount, 2);
    ws.StepCount = 1;
    commit("+2x+4", "Reorder the polynomial.");
    EXPECT_EQ(ws.StepLines[1], "2x+4");
}

TEST(CommitStep, ShowsARemovedParenthesisOnlyIfOneIsGone) {
    startText(102, "(x+2)+(1)");
    commit("+(x+3)+(1)", "Remove the parenthesis.");
    EXPECT_EQ(ws.StepCount, 2);
    commit("+x+2+(1)", "Remove the parenthesis.");
    EXPECT_EQ(ws.StepLines[2], "x+2+(1)");
}

TEST(CommitStep, LosingTheHighlightIsAStepOnlyOutsideEvaluation) {
    for (const int topic : {103, 101}) {
        startText(topic, "x+1");
        commit("+[3]+1", "Put in.");
        commit("+3+1", "Put in.");
        EXPECT_EQ(ws.StepCount, topic == 103 ? 3 : 4);
    }
}

TEST(CommitStep, TakesCoefficientsOfOneOutOfTheNote) {
    struct Row {
        const char* typed;
        const char* note;
        const char* cleaned;
    };
    const Row rows[] = {{"x+1", "Multiply the 1x by (1x), -1x, (-1x) and #1x/2#, #-1x/2#",
                         "Multiply the x by (x), -x, (-x) and #x/2#, #-x/2#"},
                        {"x+1", "1x at the start and 11x", "1x at the start and 11x"},
                        {"x+y", "Add 1y and #1y/2#", "Add y and #1y/2#"}};
    for (const Row& row : rows) {
        startText(102, row.typed);
        commit("+5", row.note);
        EXPECT_EQ(ws.StepNotes[2], row.cleaned);
    }
}

TEST(CommitStep, FaultsAtStep201) {
    startText(91, "1");
    for (int step = 2; step <= 200; ++step) commit("+" + std::to_string(step), "More.");
    EXPECT_EQ(ws.StepLines[200], "200");
    EXPECT_EQ(faultOf([] { commit("+201", "Too many."); }), 9);
    EXPECT_EQ(solveText(91, "2+3").last(), "5");
}

}  // namespace
}  // namespace ordwise::test
