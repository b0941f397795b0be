#include "DeskEvents.hpp"

#include "Catalogue.hpp"
#include "FrameCommands.hpp"
#include "PlainPlatform.hpp"
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
        TreeViewSelect(topic);
        loadWindow("frmPaper");
    }

    static void typeKeys(std::string_view keys) {
        for (const char key : keys) insertCharacter(std::string_view(&key, 1));
    }

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
    mnuSolve_Click();
    EXPECT_NE(statusLine().find("Next Step"), std::string::npos);
}

TEST_F(DeskEvents, what_is_typed_and_what_is_shown_can_be_heard) {
    open("Solving Equations");
    typeKeys("x+3=12");
    EXPECT_EQ(spokenLineInView(), "x plus 3 equals 12");
    mnuShowStep_Click();
    mnuSolve_Click();
    EXPECT_EQ(spokenLineInView(), "x equals 9");
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
    mnuShowStep_Click();
    EXPECT_EQ(ws.ShownStep, 0);
    mnuShowStep_Click();
    EXPECT_EQ(ws.ShownStep, 2);
}

}  // namespace
}  // namespace ordwise
