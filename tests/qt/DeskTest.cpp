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

}  // namespace
}  // namespace ordwise::test
