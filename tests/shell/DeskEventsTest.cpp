#include "DeskEvents.hpp"

#include "Catalogue.hpp"
#include "Drawn.hpp"
#include "FrameCommands.hpp"
#include "PlainPlatform.hpp"
#include "StepDisplay.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

namespace ordwise {
namespace {

class DeskEvents : public testing::Test {
protected:
    DeskEvents() {
        ws = Workspace{};
        ResetWindows();
    }

    static void open(std::string_view topic) {
        unloadWindow("frmPaper");
        TreeViewSelect(topic);
        loadWindow("frmPaper");
    }

    static void typeKeys(std::string_view keys) {
        for (const char key : keys) insertCharacter(std::string_view(&key, 1));
    }

    // Types a problem on the open worksheet and solves it.
    static void solve(std::string_view keys) {
        typeKeys(keys);
        mnuSolve_Click();
    }

    static std::string lastDrawn() { return runsOf(frmPaper.Paper[0].drawn()).back().text; }

    PlainPlatform outside;
};

TEST_F(DeskEvents, the_pencil_goes_with_the_first_sheet) {
    open("Arithmetic");
    const double pencil = frmPaper.Pencil.Left;
    Paper_MouseMove(1, 30, 0);
    EXPECT_DOUBLE_EQ(frmPaper.Pencil.Left, pencil);
    Paper_MouseMove(0, 30, 0);
    EXPECT_DOUBLE_EQ(frmPaper.Pencil.Left, pencil + 30);
    Paper_MouseDown(0);
    EXPECT_GT(frmPaper.Paper[0].Order, frmPaper.Paper[1].Order);
}

TEST_F(DeskEvents, a_box_tells_by_the_light_what_it_refuses) {
    open("Area of a Circle");
    Box_KeyPress(2, "4");
    EXPECT_EQ(frmPaper.Light.Image, "light2");
    Box_KeyPress(2, "x");
    EXPECT_EQ(frmPaper.Light.Image, "light3");
    EXPECT_EQ(frmPaper.Text2.Text, "4");
    EXPECT_EQ(statusLine(), ws.ExplainOverrideText);
    EXPECT_TRUE(statusIsRefusal());
    frmMain.StatusText = "Saved.";
    EXPECT_EQ(statusLine(), "Saved.");
    EXPECT_FALSE(statusIsRefusal()) << "news is no refusal, though the light is red";
    frmMain.StatusText.clear();
    EXPECT_NE(statusLine(), "");
}

TEST_F(DeskEvents, the_status_line_says_what_can_be_done_next) {
    EXPECT_NE(statusLine().find("New Problem"), std::string::npos);
    open("Exponential Notation");
    EXPECT_EQ(statusLine(),
              "Enter numbers seperated by multiplication symbols (*).  Exponents can also be entered.  "
              "Example: 35*9*4^3");
    open("Fraction Arithmetic");
    EXPECT_TRUE(statusLine().ends_with("Example: 1/2 + 3/5")) << statusLine();
    typeKeys("1/2+1/3");
    EXPECT_NE(statusLine().find("press Enter or F5"), std::string::npos) << statusLine();
    mnuSolve_Click();
    EXPECT_NE(statusLine().find("Next Step"), std::string::npos);
}

TEST_F(DeskEvents, the_light_tells_what_it_shows_and_otherwise_what_it_is_for) {
    constexpr const char* purpose = "Click the red light for incorrect input details.";
    open("Arithmetic");
    EXPECT_EQ(frmPaper.Light.ToolTip, purpose);
    typeKeys("1+");
    EXPECT_EQ(frmPaper.Light.ToolTip, "Correct Input.");
    typeKeys("*");
    EXPECT_EQ(frmPaper.Light.ToolTip, "Incorrect input.");
    typeKeys("2");
    mnuSolve_Click();
    EXPECT_EQ(frmPaper.Light.ToolTip, purpose);
    typeKeys("1");
    mnuErase_Click();
    EXPECT_EQ(frmPaper.Light.ToolTip, purpose);
}

TEST_F(DeskEvents, the_ways_to_begin_wait_for_the_splash_and_a_new_topic_is_announced) {
    loadWindow("frmLogo");
    EXPECT_FALSE(waysToBeginAreOffered());
    unloadWindow("frmLogo");
    EXPECT_TRUE(waysToBeginAreOffered());
    EXPECT_EQ(spokenDeskName(), "Empty desk");
    open("Solving Equations");
    EXPECT_FALSE(waysToBeginAreOffered());
    EXPECT_EQ(spokenDeskName(), "Worksheet: Solving Equations");
    EXPECT_NE(spokenDesk().find("Example"), std::string::npos) << "before a key, how to type: " << spokenDesk();
    typeKeys("x");
    EXPECT_EQ(spokenDesk(), "x");
}

TEST_F(DeskEvents, what_is_typed_and_what_is_shown_can_be_heard) {
    open("Solving Equations");
    typeKeys("x+3=12");
    EXPECT_EQ(spokenLineInView(), "x plus 3 equals 12");
    mnuShowStep_Click();
    mnuSolve_Click();
    EXPECT_EQ(spokenLineInView(), "x equals 9");
    open("Arithmetic");
    solve("1+2");
    EXPECT_EQ(spokenLineInView(), "3") << "the count of a single step ends one short of it";
}

TEST_F(DeskEvents, a_solution_ends_with_its_answer_at_every_detail) {
    const struct {
        const char* problem;
        const char* answer;
    } solutions[] = {{"x+2=9-3", "x=4"}, {"x+3=12", "x=9"}, {"2x+3=12+x", "x=9"}};
    for (int detail = 1; detail <= 3; ++detail) {
        for (const auto& each : solutions) {
            SCOPED_TRACE(each.problem + std::string(" at ") + std::to_string(detail));
            ws.StepDetail = static_cast<std::int16_t>(detail);
            open("Solving Equations");
            solve(each.problem);
            EXPECT_NE(lastDrawn(), each.answer);
            EXPECT_NE(spokenLineInView(), "x equals 9") << "what is not drawn yet is not told";
            while (frmPaper.Paper[0].blinker.Visible) blinker_Click();
            EXPECT_EQ(lastDrawn(), each.answer);

            mnuErase_Click();
            frmMain.mnuShowStep.Checked = false;
            solve(each.problem);
            EXPECT_EQ(lastDrawn(), each.answer);
            outside.windows.requests.clear();
            mnuExp_Click();
            EXPECT_EQ(outside.windows.requests.back(), "+frmExplain");
            frmMain.mnuShowStep.Checked = true;
            mnuErase_Click();
        }
    }
}

TEST_F(DeskEvents, turning_steps_off_in_between_draws_a_short_solution_again) {
    ws.StepDetail = 3;
    open("Solving Equations");
    solve("x+3=12");
    mnuShowStep_Click();
    blinker_Click();
    EXPECT_EQ(lastDrawn(), "x=9");
}

TEST_F(DeskEvents, a_line_of_the_problem_before_is_a_line_again) {
    open("Arithmetic");
    solve("1/2");
    mnuConvertDF_Click();
    mnuErase_Click();
    solve("1/2");
    EXPECT_EQ(lastDrawn(), "0.5");
    mnuErase_Click();
    ws.LastLine = "2*2*3";
    open("Exponential Notation");
    solve("12");
    EXPECT_EQ(ws.StepLines[2], "2*2*3");
}

TEST_F(DeskEvents, the_hint_goes_where_the_assistant_is_asked) {
    open("Arithmetic");
    for (int i = 0; i < 3; ++i) {
        mnuShowStep_Click();
        EXPECT_EQ(ws.StepNotes[ws.ShownStep], ws.HintText);
    }
    solve("5");
    mnuShowStep_Click();
    EXPECT_EQ(ws.StepNotes[ws.ShownStep], "") << "a problem without a step has nothing to explain";
}

TEST_F(DeskEvents, a_solution_begins_without_the_note_of_the_one_before) {
    for (const char* problem : {"1/2+1/3", "3/2*7/9"}) {
        open("Fraction Arithmetic");
        typeKeys(problem);
        mnuSolve_Click();
        EXPECT_EQ(ws.StepNotes[1], "") << problem;
        EXPECT_NE(ws.StepNotes[2], "") << problem;
    }
}

TEST_F(DeskEvents, options_change_the_desk_at_once) {
    open("Arithmetic");
    mnuShowLight_Click();
    EXPECT_FALSE(frmPaper.Light.Visible);
    mnuConvertDF_Click();
    EXPECT_EQ(frmMain.Toolbar1[MainWindow::buttonFracdec].Image, "fracdec2");
    EXPECT_FALSE(ws.UseFractions);
    open("Fraction Arithmetic");
    solve("1/2+1/3");
    EXPECT_TRUE(ws.UseFractions);
    EXPECT_EQ(frmMain.Toolbar1[MainWindow::buttonFracdec].Image, "fracdec") << "the button shows the form of results";
    open("Arithmetic");
    mnuShowStep_Click();
    EXPECT_EQ(ws.ShownStep, 0);
    mnuShowStep_Click();
    EXPECT_EQ(ws.ShownStep, 2);
}

}  // namespace
}  // namespace ordwise
