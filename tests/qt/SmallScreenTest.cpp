// Every window on whatever screen there is: the tests run on a usual one and on small ones.
#include "DeskFixture.hpp"

#include "DeskView.hpp"
#include "ScreenFit.hpp"
#include "Workspace.hpp"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

namespace ordwise::test {
namespace {

class SmallScreen : public DeskTest {
protected:
    // On the screen with its frame, and all that can be pressed or filled in can be brought into view.
    static void expectReachable(QWidget& window) {
        QTest::qWait(1);
        const std::string name = window.objectName().toStdString();
        const QSize screen = window.screen()->availableSize();
        EXPECT_LE(window.width(), screen.width()) << name;
        EXPECT_LE(window.height(), screen.height()) << name;
        shootWidget(window, (name + "-" + std::to_string(screen.width())).c_str());
        int seen = 0;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const bool worked = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                                qobject_cast<QLineEdit*>(widget) != nullptr ||
                                qobject_cast<QComboBox*>(widget) != nullptr;
            if (!worked || !widget->isVisibleTo(&window) || widget->window() != &window) continue;
            ++seen;
            EXPECT_TRUE(canBeSeen(*widget, window)) << name << ": " << described(*widget);
        }
        EXPECT_GT(seen, 0) << name;
    }

private:
    static bool canBeSeen(QWidget& widget, const QWidget& window) {
        for (QWidget* above = widget.parentWidget(); above != nullptr && above != &window;
             above = above->parentWidget()) {
            auto* area = qobject_cast<QScrollArea*>(above);
            if (area == nullptr || !area->widget()->isAncestorOf(&widget)) continue;
            const QPoint place = widget.mapTo(area->widget(), QPoint());
            area->horizontalScrollBar()->setValue(place.x());
            area->verticalScrollBar()->setValue(place.y());
            const QRect seen = area->viewport()->rect() & inside(widget, *area->viewport());
            return seen.size() == widget.size().boundedTo(area->viewport()->size()) &&
                   window.rect().contains(inside(*area->viewport(), window));
        }
        return window.rect().contains(inside(widget, window));
    }
    static QRect inside(const QWidget& widget, const QWidget& of) {
        return {widget.mapTo(&of, QPoint()), widget.size()};
    }
    static std::string described(const QWidget& widget) {
        const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        const QString words = button == nullptr ? widget.accessibleName() : button->text();
        return widget.metaObject()->className() + (" " + widget.objectName() + " " + words).toStdString();
    }
};

TEST_F(SmallScreen, holds_every_window_with_all_its_buttons) {
    const auto atCommand = [this](const Control& menu, const char* name) {
        atDialog(QString::fromLatin1(name), [](QWidget& dialog) {
            expectReachable(dialog);
            dialog.close();
        });
        frame->actionOf(menu)->trigger();
    };
    frame->resize(roomOnScreen(*frame));
    expectReachable(*frame);
    atCommand(frmMain.mnuNew, "frmSelect");
    atCommand(frmMain.mnuPracticeTest, "frmPracticeTest");
    atCommand(frmMain.mnuChange, "frmOptions");
    atDialog(QStringLiteral("frmAbout"), [](QWidget& dialog) {
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdSysInfo"))->click();
        expectReachable(dialog);
        dialog.close();
    });
    frame->actionOf(frmMain.mnuAbout)->trigger();
    atDialog(QStringLiteral("frmPracticeTest"), [this](QWidget& dialog) {
        atDialog(QStringLiteral("frmPrintPreview"), [](QWidget& preview) {
            expectReachable(preview);
            preview.close();
        });
        dialog.findChild<QAbstractButton*>(QStringLiteral("Command2"))->click();
        dialog.close();
    });
    frame->actionOf(frmMain.mnuPracticeTest)->trigger();

    choose(QStringLiteral("graphing a linear"));
    frame->actionOf(frmMain.mnuShowStep)->trigger();
    type(QStringLiteral("y=2x+3"));
    press(Qt::Key_F5);
    atCommand(frmMain.mnuPrint, "frmPrintSetup");
    frame->actionOf(frmMain.mnuGraph)->trigger();
    ASSERT_NE(frame->windows().open("frmGraph"), nullptr);
    expectReachable(*frame->windows().open("frmGraph"));
    frame->actionOf(frmMain.mnuHelpTopics)->trigger();
    expectReachable(*frame->windows().open("frmHelp"));
}

}  // namespace
}  // namespace ordwise::test
