// The assistant, the light and the pencil: what a mouse does with them, and how they come and go.
#include "AssistantLogic.hpp"

#include "Catalogue.hpp"
#include "FrameCommands.hpp"
#include "FreshProgram.hpp"
#include "PlainPlatform.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ordwise::test {
namespace {

constexpr double deskWidth = 1024;
constexpr double deskHeight = 740;

class Assistant : public testing::Test {
protected:
    Assistant() {
        startFreshProgram();
        TreeViewSelect("Arithmetic");
        loadWindow("frmPaper");
        finishAnimations();
        outside.windows.requests.clear();
    }

    // Takes the figure at a place of its picture, drags it and lets it go.
    void drag(double byX, double byY, MouseButton button = MouseButton::Left) {
        outside.windows.requests.clear();
        Wizard_MouseDown(20, 30);
        Wizard_MouseMove(20 + byX, 30 + byY);
        Wizard_MouseUp(button, deskWidth, deskHeight);
    }

    [[nodiscard]] bool explains() const { return asked() == "+frmExplain"; }
    [[nodiscard]] std::string asked() const {
        return outside.windows.requests.empty() ? "" : outside.windows.requests.back();
    }

    PlainPlatform outside;
};

TEST_F(Assistant, ExplainsWhenItIsMovedByLessThanTen) {
    const struct {
        double x, y;
        bool click;
    } drags[] = {{0, 0, true},    {-9, 0, true},   {0, -9, true},   {-9, 9, true},
                 {-10, 0, false}, {0, -10, false}, {-9, 10, false}, {-200, -100, false}};
    for (const auto& each : drags) {
        SCOPED_TRACE(each.x);
        SCOPED_TRACE(each.y);
        frmPaper.Wizard.Left = 500;
        frmPaper.Wizard.Top = 300;
        drag(each.x, each.y);
        EXPECT_EQ(frmPaper.Wizard.Left, 500 + each.x);
        EXPECT_EQ(frmPaper.Wizard.Top, 300 + each.y);
        EXPECT_EQ(explains(), each.click);
    }
}

TEST_F(Assistant, HasNothingToSayWithoutANote) {
    ws.StepNotes[ws.ShownStep] = "";
    drag(0, 0);
    Wizard_Click();
    Click_MouseUp(MouseButton::Left);
    mnuExp_Click();
    EXPECT_EQ(asked(), "");
    ws.StepNotes[ws.ShownStep] = "Add.";
    Click_MouseUp(MouseButton::Left);
    EXPECT_TRUE(explains());
}

TEST_F(Assistant, IsKeptOnTheDeskWithItsSignalBesideIt) {
    const double apart = frmPaper.Click.Left - frmPaper.Wizard.Left;
    drag(5000, -5000);
    EXPECT_DOUBLE_EQ(frmPaper.Wizard.Left, deskWidth - frmPaper.Wizard.Width - 8);
    EXPECT_DOUBLE_EQ(frmPaper.Wizard.Top, 0);
    EXPECT_NEAR(frmPaper.Click.Left - frmPaper.Wizard.Left, apart, 1e-9);
    EXPECT_FALSE(explains());
    drag(-5000, 5000);
    EXPECT_DOUBLE_EQ(frmPaper.Wizard.Left, 0);
    EXPECT_DOUBLE_EQ(frmPaper.Wizard.Top, deskHeight - frmPaper.Wizard.Height - 27);
    drag(-300, 5);
    EXPECT_TRUE(explains()) << "pulled back to where it was: it did not leave its place";
}

TEST_F(Assistant, OpensMenusByTheRightButtonAndNeverTheExplanation) {
    frmPaper.Light.Image = "light3";
    const std::pair<std::function<void()>, const char*> clicks[] = {
        {[this] { drag(0, 0, MouseButton::Right); }, "^mnuHidden"},
        {[] { Click_MouseUp(MouseButton::Right); }, "^mnuHidden"},
        {[] { Light_MouseUp(MouseButton::Right); }, "^mnuHidden3"},
        {[] { Pencil_MouseUp(MouseButton::Right); }, "^mnuHidden2"}};
    for (const auto& [click, menu] : clicks) {
        outside.windows.requests.clear();
        click();
        EXPECT_EQ(outside.windows.requests, std::vector<std::string>{menu});
    }
    EXPECT_FALSE(ws.ExplainOverride);
}

TEST_F(Assistant, LeavesTheReasonOfARefusalToTheRedLight) {
    for (const char* image : {"light1", "light2", "light3"}) {
        outside.windows.requests.clear();
        frmPaper.Light.Image = image;
        Light_MouseUp(MouseButton::Left);
        EXPECT_EQ(explains(), std::string_view(image) == "light3") << image;
        EXPECT_EQ(ws.ExplainOverride, explains());
    }
}

// The sizes that a person sees, as divisors of the full one.
std::vector<double> scalesSeen(const TimerControl& timer, void (*tick)()) {
    std::vector<double> scales;
    for (int ticks = 0; timer.Enabled && ticks < 100; ++ticks) {
        tick();
        if (frmPaper.Wizard.Visible) scales.push_back(PaperWindow::fullWizardWidth / frmPaper.Wizard.Width);
    }
    return scales;
}

TEST_F(Assistant, ShrinksAwayAndGrowsBackAboutItsMiddle) {
    const Control standing = frmPaper.Wizard;
    frmPaper.clickMe.Enabled = true;
    frmPaper.Click.Visible = true;
    mnuHide_Click();
    EXPECT_FALSE(frmMain.mnuHideWiz.Checked);
    EXPECT_FALSE(frmPaper.clickMe.Enabled) << "the blink stops at once";
    EXPECT_FALSE(frmPaper.Click.Visible);
    const std::vector<double> away = scalesSeen(frmPaper.WizOut, WizOut_Timer);
    ASSERT_EQ(away.size(), 18U);
    EXPECT_DOUBLE_EQ(away.front(), 1);
    EXPECT_DOUBLE_EQ(away.back(), 9.5);
    EXPECT_FALSE(frmPaper.Wizard.Visible);

    mnuHideWiz_Click();
    EXPECT_FALSE(frmPaper.WizOut.Enabled);
    const std::vector<double> back = scalesSeen(frmPaper.wizIn, wizIn_Timer);
    ASSERT_EQ(back.size(), 19U);
    EXPECT_NEAR(back.front(), 10, 1e-9);
    EXPECT_NEAR(back[1], 9.5, 1e-9);
    EXPECT_DOUBLE_EQ(back.back(), 1);
    EXPECT_NEAR(frmPaper.Wizard.Left, standing.Left, 1e-9);
    EXPECT_NEAR(frmPaper.Wizard.Top, standing.Top, 1e-9);
    EXPECT_EQ(frmPaper.Wizard.Height, standing.Height);
    EXPECT_TRUE(frmPaper.clickMe.Enabled) << "it offers the hint";
}

TEST_F(Assistant, OffersOnlyWhatItMayAndCan) {
    const auto signals = [] {
        frmPaper.clickMe.Enabled = false;
        bringAssistant();
        finishAnimations();
        return frmPaper.clickMe.Enabled;
    };
    EXPECT_TRUE(signals());
    ws.ClickNotify = false;
    EXPECT_FALSE(signals());
    ws.ClickNotify = true;
    ws.StepNotes[ws.ShownStep] = "";
    EXPECT_FALSE(signals());
}

TEST_F(Assistant, GoesWhileItStillComes) {
    bringAssistant();
    wizIn_Timer();
    sendAssistantAway();
    EXPECT_FALSE(frmPaper.wizIn.Enabled) << "one scale cannot grow and shrink";
    finishAnimations();
    EXPECT_FALSE(frmPaper.Wizard.Visible);
    EXPECT_FALSE(frmPaper.clickMe.Enabled);
}

TEST_F(Assistant, ComesWithAWorksheetUnlessItIsHidden) {
    EXPECT_TRUE(frmPaper.Wizard.Visible);
    mnuHideWiz_Click();
    loadWindow("frmPaper");
    finishAnimations();
    EXPECT_FALSE(frmPaper.Wizard.Visible);
    unloadWindow("frmPaper");
    mnuHideWiz_Click();
    EXPECT_TRUE(frmMain.mnuHideWiz.Checked);
    EXPECT_FALSE(frmPaper.wizIn.Enabled) << "there is no worksheet to come to";
}

TEST_F(Assistant, WritesTenStrokesWithThePencilAndLiftsIt) {
    insertCharacter("7");
    ASSERT_TRUE(frmPaper.Timer1.Enabled);
    const double left = frmPaper.Pencil.Left;
    const double top = frmPaper.Pencil.Top;
    for (int stroke = 1; stroke < 10; ++stroke) {
        Timer1_Timer();
        EXPECT_EQ(frmPaper.Pencil.Left, stroke % 2 == 1 ? left + 3 : left);
        EXPECT_EQ(frmPaper.Pencil.Top, top);
    }
    Timer1_Timer();
    EXPECT_FALSE(frmPaper.Timer1.Enabled);
    EXPECT_EQ(frmPaper.Pencil.Top, top - 134);
    EXPECT_LT(frmPaper.Pencil.Left, left);
    insertCharacter("8");
    EXPECT_EQ(frmPaper.Pencil.Top, top) << "the next key fetches it back to the line";

    mnuUsePencil_Click();
    frmPaper.Timer1.Enabled = false;
    insertCharacter("9");
    EXPECT_FALSE(frmPaper.Timer1.Enabled) << "a pencil that is not used lies still";
}

}  // namespace
}  // namespace ordwise::test
