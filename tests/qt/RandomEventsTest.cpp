// Anything may happen on a desk, in any order: nothing faults, nothing leaks, and the desk stays usable.
//
// ORDWISE_EVENTS=100000 makes the run longer, ORDWISE_SEED another one, and ORDWISE_TRACE=1 tells each
// event on standard error before it happens.
#include "DeskFixture.hpp"
#include "Draws.hpp"
#include "Sanitized.hpp"

#include "Art.hpp"
#include "BoxEdit.hpp"
#include "Catalogue.hpp"
#include "ChooserDialog.hpp"
#include "DeskView.hpp"
#include "PictureButton.hpp"
#include "PlainPlatform.hpp"
#include "SheetView.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPixmapCache>
#include <QTest>
#include <QTimer>

#include <malloc.h>

#include <iostream>

namespace ordwise::test {
namespace {

// What the program holds of the heap, without the pictures that Qt keeps as long as there is room.
long heapKilobytes() {
    QPixmapCache::clear();
    const auto heap = mallinfo2();
    return static_cast<long>((heap.uordblks + heap.hblkhd) / 1024);
}

// How far that may grow once every window has been opened: a file dialog keeps what it has seen of
// folders, and a thread of its own tidies up when it likes.
constexpr long growthKilobytes = 48 * 1024;
// Windows that are kept for the next time, with all that is in them.
constexpr qsizetype moreObjects = 100;

class RandomEvents : public DeskTest {
protected:
    RandomEvents() {
        platform.browser = &browser_;
        QApplication::setQuitOnLastWindowClosed(false);
        watch();
    }

    int draw(int count) { return draws_.below(count); }

    void tell(const char* what, const QWidget* where = nullptr) const {
        if (!traced_) return;
        std::cerr << what;
        if (where != nullptr) std::cerr << " in " << where->metaObject()->className();
        std::cerr << std::endl;
    }

    // A dialog or a menu has the program to itself until it closes, and one of them may open another:
    // each look calls for the next one before it acts.
    void watch() {
        QTimer::singleShot(1, frame.get(), [this] {
            watch();
            if (QWidget* popUp = QApplication::activePopupWidget(); popUp != nullptr) {
                answerPopUp(*popUp);
            } else if (QWidget* dialog = QApplication::activeModalWidget(); dialog != nullptr) {
                answerDialog(*dialog);
            }
        });
    }

    void answerPopUp(QWidget& popUp) {
        tell("answer", &popUp);
        for (int i = draw(4); i > 0; --i) QTest::keyClick(&popUp, Qt::Key_Down);
        QTest::keyClick(&popUp, draw(2) == 0 ? Qt::Key_Escape : Qt::Key_Return);
        if (QApplication::activePopupWidget() == &popUp) popUp.close();
    }

    void answerDialog(QWidget& dialog) {
        tell("answer", &dialog);
        if (auto* chooser = dynamic_cast<ChooserDialog*>(&dialog)) {
            const auto names = topicNames();
            const auto drawn = static_cast<std::size_t>(draw(static_cast<int>(names.size())));
            QTest::keyClicks(&chooser->searchBox(), qstringOf(wanted_.empty() ? names[drawn] : wanted_));
            QTest::keyClick(&chooser->searchBox(), wanted_.empty() && draw(5) == 0 ? Qt::Key_Escape : Qt::Key_Return);
        } else if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
            // Among the files of this run alone.
            const QString name = QStringLiteral("%1.%2").arg(draw(3)).arg(draw(4) == 0 ? "png" : "hvx");
            if (auto* line = files->findChild<QLineEdit*>(); line != nullptr)
                line->setText(QDir::homePath() + '/' + name);
            QTest::keyClick(files, draw(3) == 0 ? Qt::Key_Escape : Qt::Key_Return);
            if (draw(4) == 0) files->reject();
        } else if (auto* question = qobject_cast<QInputDialog*>(&dialog); question != nullptr && draw(3) > 0) {
            // Some are asked again until the answer is a letter of the problem.
            static const QString answers = QStringLiteral("abcdefghijklmnopqrstuvwxyz0123456789");
            question->setTextValue(answers.mid(draw(static_cast<int>(answers.size())), 1));
            QTest::keyClick(question, Qt::Key_Return);
        } else if (draw(3) == 0) {
            dialog.close();
        } else {
            eventIn(dialog);
        }
    }

    // The window itself or something that is seen in it.
    QWidget& someWidgetOf(QWidget& window) {
        std::vector<QWidget*> widgets{&window};
        for (auto* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() && widget->window() == &window) widgets.push_back(widget);
        }
        return *widgets[static_cast<std::size_t>(draw(static_cast<int>(widgets.size())))];
    }

    void triggerSomeActionOf(QWidget& window) {
        std::vector<QAction*> actions;
        for (auto* action : window.findChildren<QAction*>()) {
            const bool ends = action == frame->actionOf(frmMain.mnuExit);
            if (action->isEnabled() && action->menu() == nullptr && !action->isSeparator() && !ends)
                actions.push_back(action);
        }
        if (actions.empty()) return;
        QAction* action = actions[static_cast<std::size_t>(draw(static_cast<int>(actions.size())))];
        if (traced_) std::cerr << action->text().toStdString() << std::endl;
        action->trigger();
    }

    void rightClick(QWidget& widget, const QPoint& place) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
    }

    // What a hand does somewhere in a window.
    void eventIn(QWidget& window) {
        static constexpr Qt::Key keys[] = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape,
                                           Qt::Key_Space,  Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Up,
                                           Qt::Key_Down,   Qt::Key_Home,    Qt::Key_End,    Qt::Key_PageDown,
                                           Qt::Key_PageUp, Qt::Key_Delete,  Qt::Key_F10,    Qt::Key_Backspace};
        QWidget& widget = someWidgetOf(window);
        const QPointer<QWidget> kept = &widget;
        const QPoint place(draw(widget.width() + 1), draw(widget.height() + 1));
        const int kind = draw(9);
        static constexpr const char* kinds[] = {"command", "click",       "double click", "right click", "drag",
                                                "keys",    "special key", "focus",        "wheel"};
        tell(kinds[kind], &widget);
        switch (kind) {
            case 0: triggerSomeActionOf(window); break;
            case 1: QTest::mouseClick(&widget, Qt::LeftButton, {}, place); break;
            case 2: QTest::mouseDClick(&widget, Qt::LeftButton, {}, place); break;
            case 3: rightClick(widget, place); break;
            case 4:
                QTest::mousePress(&widget, Qt::LeftButton, {}, place);
                if (kept) QTest::mouseMove(&widget, place + QPoint(draw(80) - 40, draw(80) - 40));
                if (kept)
                    QTest::mouseRelease(&widget, Qt::LeftButton, {}, place + QPoint(draw(80) - 40, draw(80) - 40));
                break;
            case 5: QTest::keyClicks(&widget, QString::number(draw(1000))); break;
            case 6: QTest::keyClick(&widget, keys[draw(static_cast<int>(std::size(keys)))]); break;
            case 7:
                if (widget.focusPolicy() != Qt::NoFocus) widget.setFocus();
                break;
            default: {
                QWheelEvent event(place, widget.mapToGlobal(place), {}, QPoint(0, draw(2) == 0 ? 120 : -120),
                                  Qt::NoButton, draw(2) == 0 ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase,
                                  false);
                QApplication::sendEvent(&widget, &event);
            }
        }
    }

    void dragAssistant() {
        QWidget& wizard = frame->desk().assistant();
        QTest::mousePress(&wizard, Qt::LeftButton, {}, QPoint(draw(50), draw(50)));
        QTest::mouseMove(&wizard, QPoint(draw(900) - 450, draw(900) - 450));
        QTest::mouseRelease(&wizard, Qt::LeftButton);
    }

    // A window that stands beside the frame; null if there is none.
    QWidget* windowBeside() {
        std::vector<QWidget*> windows;
        for (auto* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->isEnabled() && window != frame.get()) windows.push_back(window);
        }
        return windows.empty() ? nullptr : windows[static_cast<std::size_t>(draw(static_cast<int>(windows.size())))];
    }

    // Where keys go; while a window closes nowhere for a moment, then to the sheet.
    QWidget& keyboard() const {
        QWidget* widget = QApplication::focusWidget();
        return widget != nullptr ? *widget : frame->desk();
    }

    // Mostly what a student does at the sheet; between, anything anywhere.
    void event() {
        static const QString keys = QStringLiteral("0123456789012345678901234xyz+-*/^~=()|.,:%");
        DeskView& desk = frame->desk();
        // What was closed is gone before a hand gets anywhere.
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (QWidget* popUp = QApplication::activePopupWidget(); popUp != nullptr) return answerPopUp(*popUp);
        const int kind = draw(40);
        if (traced_) std::cerr << "event " << kind << std::endl;
        switch (kind) {
            case 0: frame->actionOf(frmMain.mnuNew)->trigger(); break;
            case 1: frame->actionOf(frmMain.mnuErase)->trigger(); break;
            case 2: frame->actionOf(frmMain.mnuSolve)->trigger(); break;
            case 3: frame->actionOf(frmMain.mnuExample)->trigger(); break;
            case 4: triggerSomeActionOf(*frame); break;
            case 5: draw(2) == 0 ? desk.light().click() : desk.assistant().click(); break;
            case 6: desk.setZoom(0.5 + draw(5) * 0.5); break;
            case 7: frame->resize(300 + draw(1200), 200 + draw(1000)); break;
            case 8:
                if (QWidget* window = windowBeside(); window != nullptr) window->close();
                break;
            case 9:
            case 10: QTest::keyClick(&keyboard(), Qt::Key_Return); break;
            case 11:
            case 12: QTest::keyClick(&keyboard(), Qt::Key_Backspace); break;
            case 13: QTest::mouseClick(&desk.sheet(draw(10)), Qt::LeftButton); break;
            case 14: desk.sheet(0).figure()->box(1 + draw(6)).setFocus(); break;
            case 15: platform.windows->show("frmGraph"); break;  // of whatever was solved last, perhaps nothing
            case 16: draw(2) == 0 ? dragAssistant() : setSteady(draw(2) == 0); break;
            case 17:
            case 18:
            case 19:
            case 20: {
                QWidget* beside = windowBeside();
                eventIn(beside != nullptr && draw(2) == 0 ? *beside : *frame);
                break;
            }
            default: QTest::keyClicks(&keyboard(), keys.mid(draw(static_cast<int>(keys.size())), 1)); break;
        }
    }

    // Whatever has happened: a new problem can be chosen, typed and solved.
    void expectUsable() {
        for (auto* window : QApplication::topLevelWidgets()) {
            if (window != frame.get()) window->close();
        }
        QApplication::processEvents();
        wanted_ = "Solving Equations";
        frame->actionOf(frmMain.mnuNew)->trigger();
        wanted_.clear();
        type(QStringLiteral("x+3=12"));
        EXPECT_EQ(ws.ProblemText, "x+3=12");
        frame->actionOf(frmMain.mnuSolve)->trigger();
        EXPECT_EQ(ws.StepLines[ws.StepCount - 1], "x=9");
    }

private:
    Draws draws_{seedOfRun()};
    std::string wanted_;  // the topic to choose, "" for any
    bool traced_ = qEnvironmentVariableIsSet("ORDWISE_TRACE");
    PlainBrowser browser_;
};

TEST_F(RandomEvents, leave_a_desk_that_solves_the_next_problem) {
    constexpr int eventsEach = 500;
    frame->actionOf(frmMain.mnuPencil)->trigger();  // writing before the eyes takes its time
    const int wished = qEnvironmentVariableIntValue("ORDWISE_EVENTS");
    const int lastRound = std::max(4, wished / eventsEach);
    long earlyHeap = 0;
    qsizetype earlyObjects = 0;
    for (int round = 0; round <= lastRound && !HasFailure(); ++round) {
        for (int i = 0; i < eventsEach; ++i) event();
        expectUsable();
        if (round != lastRound / 2) continue;
        earlyHeap = heapKilobytes();
        earlyObjects = frame->findChildren<QObject*>().size();
    }
    EXPECT_LT(frame->findChildren<QObject*>().size(), earlyObjects + moreObjects);
    if (!sanitized) {
        EXPECT_LT(heapKilobytes(), earlyHeap + growthKilobytes);
    }
}

}  // namespace
}  // namespace ordwise::test
