#include "DeskEvents.hpp"

#include "Catalogue.hpp"
#include "Drawn.hpp"
#include "FrameCommands.hpp"
#include "GuidedInput.hpp"
#include "PlainPlatform.hpp"
#include "Shortcuts.hpp"
#include "ShownLines.hpp"
#include "StepDisplay.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <set>

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
    EXPECT_EQ(statusLine(), "'x' was not taken: " + ws.ExplainOverrideText);
    EXPECT_TRUE(statusIsRefusal());
    frmMain.StatusText = "Saved.";
    EXPECT_EQ(statusLine(), "Saved.");
    EXPECT_FALSE(statusIsRefusal()) << "news is no refusal, though the light is red";
    frmMain.StatusText.clear();
    EXPECT_NE(statusLine(), "");
}

TEST_F(DeskEvents, a_key_that_was_not_taken_stays_in_sight_until_it_is_gone_back_over) {
    open("Solving Equations");
    typeKeys("1/");
    const std::string told = "'/' was not taken: " + ws.ExplainOverrideText;
    EXPECT_EQ(statusLine(), told);
    const DisplayList mark = frmPaper.Paper[0].Marks;
    typeKeys("2x+3=7");
    EXPECT_EQ(frmPaper.Light.Image, "light2");
    EXPECT_EQ(statusLine(), told) << "whoever looks at the keyboard finds it later";
    EXPECT_TRUE(statusIsRefusal());
    EXPECT_EQ(frmPaper.Paper[0].Marks, mark) << "between the 1 and the 2";
    EXPECT_NEAR(std::get<Stroke>(mark.front()).x2,
                std::get<Glyphs>(frmPaper.Paper[0].drawn().front()).x + textWidth(Face::Halvern, "1", 18), 1);
    typeKeys("::");
    EXPECT_TRUE(statusLine().starts_with("':' was not taken: ")) << "as the light says";
    EXPECT_TRUE(statusLine().ends_with("1 other key was not taken either.")) << statusLine();

    typeKeys("\b\b\b\b\b");
    EXPECT_EQ(statusLine(), told);
    typeKeys("\b");
    EXPECT_TRUE(frmPaper.DroppedKeys.empty());
    EXPECT_TRUE(frmPaper.Paper[0].Marks.empty());
    EXPECT_FALSE(statusIsRefusal());
}

TEST_F(DeskEvents, a_solve_without_a_key_that_was_not_taken_says_so_once) {
    open("Solving Equations");
    typeKeys("1/2x+3=7");
    mnuSolve_Click();
    EXPECT_EQ(statusLine(), "Solved without the key that was not taken: '/'.");
    EXPECT_TRUE(frmPaper.Paper[0].Marks.empty());
    frmMain.StatusText.clear();
    EXPECT_EQ(statusLine().find("not taken"), std::string::npos);

    open("Area of a Triangle");
    Box_KeyPress(1, "1");
    Box_KeyPress(1, "/");
    Box_KeyPress(1, "2");
    EXPECT_TRUE(statusLine().starts_with("'/' was not taken: ")) << "boxes lose no key unseen either";
    EXPECT_FALSE(frmPaper.BoxMarks.empty());
    Box_KeyPress(1, "\b");
    EXPECT_TRUE(frmPaper.BoxMarks.empty());
}

TEST_F(DeskEvents, lines_are_chosen_by_click_and_keys_and_each_has_its_own_reason) {
    open("Solving Equations");
    typeKeys("2x+3=11");
    mnuShowStep_Click();
    mnuSolve_Click();
    ASSERT_GE(frmPaper.Lines.size(), 3U);
    const ShownLine second = frmPaper.Lines[1];
    EXPECT_EQ(noteInView(), frmPaper.Lines.back().Note) << "the last one until another is chosen";

    EXPECT_TRUE(Desk_KeyDown(DeskKey::Down));
    EXPECT_EQ(frmPaper.ChosenLine, 0);
    Desk_KeyDown(DeskKey::Up);
    EXPECT_EQ(frmPaper.ChosenLine, 0) << "there is none above";
    Paper_Click(0, (second.Top + second.Bottom) / 2);
    EXPECT_EQ(frmPaper.ChosenLine, 1);
    EXPECT_EQ(noteInView(), second.Note);
    EXPECT_FALSE(frmPaper.Paper[0].Marks.empty()) << "it is shown chosen";
    outside.windows.requests.clear();
    Paper_Click(0, (second.Top + second.Bottom) / 2);
    EXPECT_EQ(outside.windows.requests, std::vector<std::string>{"+frmExplain"});
    Desk_KeyDown(DeskKey::Escape);
    EXPECT_EQ(frmPaper.ChosenLine, -1);
    EXPECT_TRUE(frmPaper.Paper[0].Marks.empty());
}

TEST_F(DeskEvents, step_by_step_the_choice_begins_at_the_line_just_shown) {
    open("Solving Equations");
    typeKeys("2x+3=11");
    mnuSolve_Click();
    Form_KeyPress(enterKey);
    ASSERT_EQ(frmPaper.Lines.size(), 2U);
    Desk_KeyDown(DeskKey::Down);
    EXPECT_EQ(frmPaper.ChosenLine, 1);
    Desk_KeyDown(DeskKey::Up);
    EXPECT_EQ(frmPaper.ChosenLine, 0);
    EXPECT_TRUE(Picture_Enter()) << "Next Step goes on where it was";
    EXPECT_EQ(frmPaper.Lines.size(), 3U);
    EXPECT_EQ(frmPaper.ChosenLine, -1);
}

TEST_F(DeskEvents, sheets_are_fetched_by_keys) {
    open("Complex Arithmetic Expressions");
    typeKeys("(4-2)+3^2+(7+1)*2-6/2+4*5-(3+4)*2");
    mnuShowStep_Click();
    mnuSolve_Click();
    const int last = ws.CurrentSheet;
    ASSERT_GE(last, 1);
    EXPECT_FALSE(Desk_KeyDown(DeskKey::PageDown)) << "it is in front already";
    EXPECT_TRUE(Desk_KeyDown(DeskKey::PageUp));
    EXPECT_EQ(sheetInFront(), last - 1);
    Desk_KeyDown(DeskKey::End);
    EXPECT_EQ(sheetInFront(), last) << "with the chosen line";
}

TEST_F(DeskEvents, no_two_keys_and_no_two_letters_of_a_menu_are_alike) {
    std::set<std::string_view> seen;
    for (const ShortcutRow& row : shortcutRows()) EXPECT_TRUE(seen.insert(row.keys).second) << row.keys;
    EXPECT_EQ(keysOf(frmMain.mnuChange), "Ctrl+,");
    EXPECT_EQ(withOwnMnemonics({"&File", "&Functions", "Save Problem", "&Save"}),
              (std::vector<std::string>{"&File", "F&unctions", "Save &Problem", "&Save"}));
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
