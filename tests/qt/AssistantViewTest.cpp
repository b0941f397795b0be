// The assistant, the light and the pencil under a real mouse, and the desk as it moves by itself.
#include "DeskFixture.hpp"

#include "DeskView.hpp"
#include "PictureButton.hpp"
#include "SheetView.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <cmath>
#include <set>

namespace ordwise::test {
namespace {

class AssistantView : public DeskTest {
protected:
    AssistantView() {
        choose(QStringLiteral("arithmetic"));
        focused();
    }

    [[nodiscard]] PictureButton& wizard() const { return frame->desk().assistant(); }

    // Drags the figure by so many units of the desk, as a mouse on the screen does.
    void drag(double byX, double byY) {
        const QPoint from = wizard().mapTo(&frame->desk(), wizard().rect().center());
        const QPoint to = from + QPoint(static_cast<int>(std::lround(byX * frame->desk().scale())),
                                        static_cast<int>(std::lround(byY * frame->desk().scale())));
        const auto at = [this](const QPoint& onDesk) { return wizard().mapFrom(&frame->desk(), onDesk); };
        QTest::mousePress(&wizard(), Qt::LeftButton, {}, at(from));
        QTest::mouseMove(&wizard(), at((from + to) / 2));
        QTest::mouseMove(&wizard(), at(to));
        QTest::mouseRelease(&wizard(), Qt::LeftButton, {}, at(to));
    }

    // The captions of the menu that a right click at a place of the widget opens; it is closed again.
    QStringList menuAt(QWidget& widget, const QPoint& place) {
        QTest::mouseClick(&widget, Qt::RightButton, {}, place);
        return captionsOfMenu();
    }
    static QStringList captionsOfMenu() {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return {};
        QStringList captions;
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator()) captions << action->text();
        }
        menu->close();
        return captions;
    }
};

TEST_F(AssistantView, is_dragged_and_speaks_only_when_it_was_clicked) {
    QWidget& bubble = child<>("frmExplain");
    const double left = frmPaper.Wizard.Left;
    drag(-12, 4);
    EXPECT_NEAR(frmPaper.Wizard.Left, left - 12, 1);
    EXPECT_FALSE(bubble.isVisible());
    drag(-200, -100);
    drag(50, 20);
    EXPECT_NEAR(frmPaper.Wizard.Left, left - 162, 2) << "it follows the mouse and does not drift";
    EXPECT_FALSE(bubble.isVisible());
    drag(-8, 4);
    EXPECT_TRUE(bubble.isVisible());
    frame->desk().setFocus();
    EXPECT_FALSE(bubble.isVisible());
    clickOn(wizard());
    EXPECT_TRUE(bubble.isVisible());
}

TEST_F(AssistantView, offers_menus_by_the_right_button_and_by_the_menu_key) {
    const QStringList assistants = {QStringLiteral("&Hide"), QStringLiteral("&Options...")};
    EXPECT_EQ(menuAt(wizard(), wizard().rect().center()), assistants);
    EXPECT_FALSE(child<>("frmExplain").isVisible());
    PictureButton& light = frame->desk().light();
    EXPECT_EQ(menuAt(light, light.rect().center()), QStringList{QStringLiteral("&Hide Guided Input Light")});

    QContextMenuEvent key(QContextMenuEvent::Keyboard, wizard().rect().center(),
                          wizard().mapToGlobal(wizard().rect().center()));
    QApplication::sendEvent(&wizard(), &key);
    EXPECT_EQ(captionsOfMenu(), assistants);
}

TEST_F(AssistantView, finds_the_pencil_by_its_picture_and_leaves_the_paper_around_it_alone) {
    const double scale = frame->desk().scale();
    SheetView& sheet = frame->desk().sheet(0);
    const auto onSheet = [&](double x, double y) {
        return sheet.mapFrom(&frame->desk(),
                             (QPointF(frmPaper.Pencil.Left + x, frmPaper.Pencil.Top + y) * scale).toPoint());
    };
    // Its point lies at the foot of the picture, at the left.
    EXPECT_EQ(menuAt(sheet, onSheet(22, 240)), QStringList{QStringLiteral("Use &Pencil")});
    EXPECT_EQ(menuAt(sheet, onSheet(100, 240)), QStringList{});
    const double left = frmPaper.Paper[0].Left;
    QTest::mousePress(&sheet, Qt::LeftButton, {}, onSheet(22, 240));
    QTest::mouseMove(&sheet, onSheet(60, 240));
    QTest::mouseRelease(&sheet, Qt::LeftButton, {}, onSheet(60, 240));
    EXPECT_GT(frmPaper.Paper[0].Left, left) << "the sheet is dragged under it";
}

TEST_F(AssistantView, shrinks_and_grows_before_the_eyes_or_at_once) {
    const int full = wizard().width();
    frame->actionOf(frmMain.mnuHideWiz)->trigger();
    EXPECT_FALSE(wizard().isVisible()) << "a steady desk does not show how";

    setSteady(false);
    std::set<int> widths;
    frame->actionOf(frmMain.mnuHideWiz)->trigger();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            if (wizard().isVisible()) widths.insert(wizard().width());
            return wizard().width() == full && !frmPaper.wizIn.Enabled;
        },
        3000));
    EXPECT_GE(widths.size(), 4U) << "it grows";
    EXPECT_LT(*widths.begin(), full / 3);
    setSteady(true);
}

// Waits for what the desk shows while F6 writes an example by itself.
TEST_F(AssistantView, writes_an_example_key_by_key_and_at_once_for_who_cannot_wait) {
    setSteady(false);
    std::set<std::string> seen;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] { seen.insert(ws.ProblemText); });
    watch.start(5);
    QElapsedTimer time;
    time.start();
    press(Qt::Key_F6);
    EXPECT_GE(seen.size(), 4U) << "the problem is seen to grow";
    EXPECT_LT(time.elapsed(), 3000);
    EXPECT_FALSE(ws.InputOpen);
    EXPECT_EQ(*seen.rbegin(), ws.ProblemText);

    QTest::qWait(400);
    seen.clear();
    QTimer::singleShot(60, frame.get(), [this] { QTest::keyClick(&frame->desk(), Qt::Key_Space); });
    press(Qt::Key_F6);
    EXPECT_LE(seen.size(), 4U) << "a key ends the watching";
    EXPECT_FALSE(ws.InputOpen) << "and the problem is written and solved all the same";

    frame->actionOf(frmMain.mnuPencil)->trigger();
    QTest::qWait(400);
    seen.clear();
    press(Qt::Key_F6);
    EXPECT_LE(seen.size(), 1U) << "without the pencil it stands there at once";
    setSteady(true);
}

}  // namespace
}  // namespace ordwise::test
