// What a key does to the worksheet around the text: light, pencil, drawn line, Enter, closed paper.
#include "GuidedInput.hpp"
#include "KeyDesk.hpp"
#include "PlainPlatform.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>
#include <string>

namespace ordwise::test {
namespace {

class GuidedInput : public testing::Test {
protected:
    void SetUp() override { chooseFresh("Arithmetic"); }

    static void press(std::string_view keys) {
        for (const std::string& key : keysOf(keys)) Form_KeyPress(key);
    }

    // All glyphs on the sheet, without blanks.
    static std::string drawn() {
        std::string glyphs;
        for (const auto& item : frmPaper.Paper[0].drawn()) {
            if (const auto* glyph = std::get_if<Glyphs>(&item)) glyphs += trimmed(glyph->text);
        }
        return glyphs;
    }

    PlainPlatform platform;
};

TEST_F(GuidedInput, AnAcceptedKeyTurnsTheLightGreenAndMovesThePencil) {
    EXPECT_EQ(Form_KeyPress("7"), KeyOutcome::Accepted);
    EXPECT_TRUE(ws.CharAccepted);
    EXPECT_EQ(frmPaper.Light.Image, "light2");
    EXPECT_EQ(frmPaper.Light.ToolTip, "Correct Input.");
    EXPECT_EQ(frmPaper.Pencil.Image, "pencil1");
    EXPECT_TRUE(frmPaper.Timer1.Enabled);
    const double left = frmPaper.Pencil.Left;
    Form_KeyPress("8");
    EXPECT_GT(frmPaper.Pencil.Left, left);
    EXPECT_EQ(ws.ProblemText, "78");
}

TEST_F(GuidedInput, ARefusedKeyTurnsTheLightRed) {
    press("7");
    EXPECT_EQ(Form_KeyPress("q"), KeyOutcome::Refused);
    EXPECT_FALSE(ws.CharAccepted);
    EXPECT_EQ(frmPaper.Light.Image, "light3");
    EXPECT_EQ(frmPaper.Light.ToolTip, "Incorrect input.");
    EXPECT_EQ(ws.ProblemText, "7");
    EXPECT_EQ(Form_KeyPress("8"), KeyOutcome::Accepted);
    EXPECT_EQ(ws.ExplainOverrideText, "");
}

TEST_F(GuidedInput, BackspaceShowsTheOtherEndOfThePencil) {
    press("7");
    EXPECT_EQ(Form_KeyPress(backspaceKey), KeyOutcome::Accepted);
    EXPECT_EQ(frmPaper.Pencil.Image, "pencil2");
    EXPECT_EQ(ws.ProblemText, "");
    EXPECT_EQ(Form_KeyPress(backspaceKey), KeyOutcome::Refused);
    EXPECT_EQ(frmPaper.Light.Image, "light3");
}

TEST_F(GuidedInput, ThePencilStaysAtTheDenominatorOfALastFraction) {
    press("12/3");
    EXPECT_EQ(frmPaper.Pencil.Left, ws.DenominatorEndX + frmPaper.Paper[0].Left - 11);
    press("+1");
    EXPECT_EQ(frmPaper.Pencil.Left, ws.LineEndX + frmPaper.Paper[0].Left - 9);
    EXPECT_EQ(frmPaper.Pencil.Top, frmPaper.Paper[0].Top - 122);
}

TEST_F(GuidedInput, EachKeyDrawsTheWholeLineOnce) {
    press("1+2q");
    EXPECT_EQ(drawn(), "1+2");
}

TEST_F(GuidedInput, QuietTypingDrawsNothing) {
    for (const char* key : {"1", "+", "2"}) FormFilter(key, true);
    EXPECT_EQ(typedText(), "1+2");
    EXPECT_TRUE(solveEnabled());
    EXPECT_EQ(drawn(), "");
    EXPECT_EQ(frmPaper.Light.Image, "light1");
}

TEST_F(GuidedInput, AFullLineTakesOnlyBackspace) {
    int dropped = 0;
    for (int i = 0; i < 3000; ++i) {
        dropped += Form_KeyPress(i % 2 == 0 ? "1" : "+") == KeyOutcome::Dropped ? 1 : 0;
    }
    EXPECT_GT(dropped, 2000);
    EXPECT_GE(ws.TypedEndX, 730);
    EXPECT_EQ(ws.CurrentSheet, 0);
    EXPECT_TRUE(platform.dialogs.messages.empty());
    EXPECT_EQ(Form_KeyPress(backspaceKey), KeyOutcome::Accepted);
    EXPECT_NE(Form_KeyPress("1"), KeyOutcome::Dropped);
}

TEST_F(GuidedInput, EnterSolvesWhatIsReadyAndClosesThePaper) {
    chooseFresh("Medians");
    press("4,2,9");
    EXPECT_EQ(Form_KeyPress(enterKey), KeyOutcome::Commanded);
    EXPECT_GT(ws.StepCount, 1);
    EXPECT_FALSE(ws.InputOpen);
    EXPECT_EQ(Form_KeyPress("5"), KeyOutcome::Dropped);
    EXPECT_EQ(Form_KeyPress(backspaceKey), KeyOutcome::Dropped);
    EXPECT_EQ(typedText(), "4,2,9");
}

TEST_F(GuidedInput, EnterShowsTheNextStepWhileTheButtonWaits) {
    chooseFresh("Medians");
    press("4,2,9");
    Form_KeyPress(enterKey);
    ASSERT_TRUE(frmPaper.Paper[ws.CurrentSheet].blinker.Visible);
    const int shown = ws.ShownStep;
    EXPECT_EQ(Form_KeyPress(enterKey), KeyOutcome::Commanded);
    EXPECT_EQ(ws.ShownStep, shown + 1);
}

TEST_F(GuidedInput, EnterOnAnUnfinishedProblemSaysWhatIsMissing) {
    const struct {
        const char* topic;
        const char* keys;
        const char* missing;
    } cases[] = {
        {"Arithmetic", "", "nothing has been typed yet"},
        {"Arithmetic", "7+", "there must be a number behind the '+'"},
        {"Complex Arithmetic Expressions", "(3*(", "2 parentheses are still open"},
        {"Simplifying Polynomials", "3(x-",
         "there must be a number or a letter behind the '-', and a parenthesis is still open"},
        {"Solving Equations", "x+3", "the equal sign (=) is still to come"},
        {"Solving Equations", "x+3=", "the right-hand side of the equation is still to come"},
        {"Absolute Values", "|3", "an absolute value bar (|) is still open"},
        {"Calculating Roots", "3~", "there must be a number under the root"},
        {"Ratios", "6", "a ratio is two numbers with a colon between them, such as 1:2"},
        {"Mixed To Fraction Notation", "2+1", "it must be a number, a sign and a fraction, such as 2+1/2"},
        {"Pythagorean Theorem", "", "only one box stays empty, the one to be worked out"},
        {"Volume of a Box/Cube", "", "3 boxes still need a number"},
    };
    for (const auto& one : cases) {
        chooseFresh(one.topic);
        press(one.keys);
        EXPECT_EQ(Form_KeyPress(enterKey), KeyOutcome::Refused);
        EXPECT_EQ(ws.ExplainOverrideText, std::string("The problem is not finished: ") + one.missing + ".");
        EXPECT_EQ(typedText(), one.keys);
        EXPECT_TRUE(frmPaper.DroppedKeys.empty()) << "Enter is no key of a problem";
    }
}

TEST_F(GuidedInput, ATopicOfBoxesTakesNoKeys) {
    chooseFresh("Volume of a Box/Cube");
    EXPECT_EQ(Form_KeyPress("7"), KeyOutcome::Dropped);
    EXPECT_EQ(Form_KeyPress(backspaceKey), KeyOutcome::Dropped);
    EXPECT_EQ(typedText(), "");
}

}  // namespace
}  // namespace ordwise::test
