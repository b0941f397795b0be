// A student at the desk: choose, type, solve, ask, erase.
#include "DeskFixture.hpp"

#include "ChooserDialog.hpp"
#include "DeskView.hpp"
#include "ExplainWindow.hpp"
#include "PictureButton.hpp"
#include "SheetView.hpp"
#include "StatusLine.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QMessageBox>
#include <QTest>

namespace ordwise::test {
namespace {

using Desk = DeskTest;

TEST_F(Desk, begins_empty_and_says_how_to_start) {
    EXPECT_FALSE(frmPaper.Loaded);
    EXPECT_TRUE(frame->statusLine().sentence().contains(QStringLiteral("New Problem")));
    EXPECT_FALSE(frame->actionOf(frmMain.mnuSolve)->isEnabled());
    shoot("empty-desk");
}

TEST_F(Desk, a_topic_is_found_by_the_beginning_of_its_name) {
    choose(QStringLiteral("sOLVing"));
    EXPECT_EQ(ws.TopicName, "Solving Equations");
    EXPECT_EQ(ws.ProblemType, 101);
    EXPECT_TRUE(frame->desk().sheet(0).isVisible());
    EXPECT_EQ(frame->statusLine().sentence().toStdString(), ws.HintText);
}

TEST_F(Desk, a_refused_key_is_seen_in_shape_and_words_and_explained_by_the_light) {
    choose(QStringLiteral("solving"));
    type(QStringLiteral("x+"));
    EXPECT_EQ(frame->desk().light().imageKey(), "light2");
    type(QStringLiteral(":"));
    EXPECT_EQ(frame->desk().light().imageKey(), "light3");
    EXPECT_TRUE(frame->statusLine().isRefusal());
    EXPECT_EQ(frame->statusLine().sentence().toStdString(), ws.ExplainOverrideText);
    EXPECT_TRUE(frame->statusLine().accessibleName().startsWith(QStringLiteral("Refused: ")));

    const std::string reason = ws.ExplainOverrideText;
    clickOn(frame->desk().light());
    QWidget& bubble = child<>("frmExplain");
    EXPECT_TRUE(bubble.isVisible());
    EXPECT_EQ(bubble.accessibleDescription().toStdString(), reason);
    shoot("refused");

    type(QStringLiteral("3"));  // closes the bubble and is typed
    EXPECT_FALSE(bubble.isVisible());
    EXPECT_EQ(ws.ProblemText, "x+3");
    EXPECT_FALSE(frame->statusLine().isRefusal());
}

TEST_F(Desk, steps_through_an_equation_to_the_check_mark) {
    choose(QStringLiteral("solving"));
    type(QStringLiteral("x+3"));
    EXPECT_FALSE(frame->actionOf(frmMain.mnuSolve)->isEnabled());
    type(QStringLiteral("=12"));
    EXPECT_TRUE(frame->actionOf(frmMain.mnuSolve)->isEnabled());
    press(Qt::Key_F5);
    EXPECT_FALSE(frame->actionOf(frmMain.mnuSolve)->isEnabled()) << "a second solve waits for Erase";

    PictureButton& next = frame->desk().sheet(0).blinker();
    int steps = 1;
    while (next.isVisible() && steps < 50) {
        press(Qt::Key_F2);
        EXPECT_EQ(child<>("frmExplain").accessibleDescription().isEmpty(), ws.StepNotes[ws.ShownStep].empty());
        clickOn(next);  // also takes the focus from the explanation
        EXPECT_FALSE(child<>("frmExplain").isVisible());
        ++steps;
    }
    EXPECT_EQ(ws.ShownStep, ws.StepCount - 1);
    EXPECT_EQ(ws.StepLines[ws.ShownStep], "x=9");
    const auto* check = std::get_if<Picture>(&frmPaper.Paper[0].drawn().back());
    ASSERT_NE(check, nullptr);
    EXPECT_EQ(check->key, "check");
    press(Qt::Key_F2);
    shoot("solved-explained");
}

TEST_F(Desk, erase_asks_first) {
    choose(QStringLiteral("solving"));
    type(QStringLiteral("x+3=12"));
    press(Qt::Key_Return);
    const std::string typed = ws.ProblemText;

    const auto answer = [](QMessageBox::StandardButton button) {
        return [button](QWidget& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.text(), QStringLiteral("This will erase your entire problem."));
            QTest::mouseClick(box.button(button), Qt::LeftButton);
        };
    };
    atNextDialog(answer(QMessageBox::Cancel));
    frame->actionOf(frmMain.mnuErase)->trigger();
    EXPECT_EQ(ws.ProblemText, typed);
    EXPECT_FALSE(ws.InputOpen);

    atNextDialog(answer(QMessageBox::Ok));
    frame->actionOf(frmMain.mnuErase)->trigger();
    EXPECT_EQ(ws.ProblemText, "");
    EXPECT_TRUE(ws.InputOpen);
    EXPECT_TRUE(frmPaper.Paper[0].drawn().empty());
    type(QStringLiteral("7"));
    EXPECT_EQ(ws.ProblemText, "7") << "the desk is ready for the next problem";
}

TEST_F(Desk, draws_what_is_typed) {
    choose(QStringLiteral("simplifying p"));
    type(QStringLiteral("9(3x^2+8^2)-3/4+4x"));
    EXPECT_FALSE(frame->statusLine().isRefusal()) << ws.ExplainOverrideText;
    shoot("typed-polynomial");
    choose(QStringLiteral("calculating ro"));
    type(QStringLiteral("3~4+2~9"));
    EXPECT_FALSE(frame->statusLine().isRefusal()) << ws.ExplainOverrideText;
    shoot("typed-roots");
}

}  // namespace
}  // namespace ordwise::test
