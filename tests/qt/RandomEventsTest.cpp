// Anything may happen on a desk, in any order: nothing faults, and the desk stays usable.
#include "DeskFixture.hpp"

#include "Art.hpp"
#include "BoxEdit.hpp"
#include "Catalogue.hpp"
#include "ChooserDialog.hpp"
#include "DeskView.hpp"
#include "GraphView.hpp"
#include "PictureButton.hpp"
#include "SheetView.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>

#include <random>

namespace ordwise::test {
namespace {

class RandomEvents : public DeskTest {
protected:
    RandomEvents() {
        QObject::connect(&closer_, &QTimer::timeout, &closer_, [this] { answerDialog(); });
        closer_.start(1);
    }

    int draw(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    // One dialog after the other: a topic is chosen or not, every question is answered somehow.
    void answerDialog() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) return;
        if (auto* chooser = dynamic_cast<ChooserDialog*>(dialog)) {
            const auto names = topicNames();
            const auto topic = static_cast<std::size_t>(draw(static_cast<int>(names.size())));
            QTest::keyClicks(&chooser->searchBox(), qstringOf(names[topic]));
            QTest::keyClick(&chooser->searchBox(), draw(5) == 0 ? Qt::Key_Escape : Qt::Key_Return);
        } else if (draw(2) == 0) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        } else {
            if (dialog->focusWidget() != nullptr) QTest::keyClicks(dialog->focusWidget(), QStringLiteral("3"));
            QTest::keyClick(dialog, Qt::Key_Return);
        }
    }

    // The graph of whatever was solved last, perhaps of nothing, while the desk goes on.
    void graphEvent() {
        if (!frmGraph.Loaded) platform.windows->show("frmGraph");
        auto* graph = dynamic_cast<GraphView*>(frame->windows().open("frmGraph"));
        ASSERT_NE(graph, nullptr);
        const std::vector<const Control*> commands{&frmGraph.mnuGraphZoomIn,       &frmGraph.mnuGraphZoomOut,
                                                   &frmGraph.mnuGraphQuadrant,     &frmGraph.mnuGraphHighQuality,
                                                   &frmGraph.mnuToggleCoordinates, &frmGraph.mnuToggleZoomButtons,
                                                   &frmGraph.mnuGraphSmall,        &frmGraph.mnuGraphMax,
                                                   &frmGraph.mnuGraphExit,         &frmGraph.mnuGraphColor};
        for (int i = 0; i < 5 && frmGraph.Loaded; ++i)
            graph->actionOf(*commands[static_cast<std::size_t>(draw(static_cast<int>(commands.size())))]).trigger();
    }

    void event() {
        static const QString keys = QStringLiteral("0123456789012345678901234xyz+-*/^~=()|.,:%");
        DeskView& desk = frame->desk();
        if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
        switch (draw(34)) {
            case 0: frame->actionOf(frmMain.mnuNew)->trigger(); break;
            case 1: frame->actionOf(frmMain.mnuErase)->trigger(); break;
            case 2: frame->actionOf(frmMain.mnuSolve)->trigger(); break;
            case 3: frame->actionOf(frmMain.mnuExample)->trigger(); break;
            case 4: frame->actionOf(frmMain.mnuShowStep)->trigger(); break;
            case 5: frame->actionOf(frmMain.mnuExp)->trigger(); break;
            case 6: frame->actionOf(frmMain.mnuHideWiz)->trigger(); break;
            case 7: desk.light().click(); break;
            case 8: desk.assistant().click(); break;
            case 9: desk.setZoom(0.5 + draw(5) * 0.5); break;
            case 10: press(Qt::Key_Tab); break;
            case 11: press(Qt::Key_Escape); break;
            case 12:
            case 13: press(Qt::Key_Return); break;
            case 14:
            case 15: press(Qt::Key_Backspace); break;
            case 16: QTest::mouseClick(&desk.sheet(draw(10)), Qt::LeftButton); break;
            case 17: desk.sheet(0).figure()->box(1 + draw(6)).setFocus(); break;
            case 18: graphEvent(); break;
            case 19: frame->actionOf(frmMain.mnuChange)->trigger(); break;
            case 20: setSteady(draw(2) == 0); break;
            case 21: dragAssistant(); break;
            case 22:
                QTest::mouseClick(draw(2) == 0 ? static_cast<QWidget*>(&desk.assistant()) : &desk.sheet(draw(10)),
                                  Qt::RightButton, {}, QPoint(draw(300), draw(300)));
                break;
            default: type(keys.mid(draw(static_cast<int>(keys.size())), 1)); break;
        }
    }

    void dragAssistant() {
        QWidget& wizard = frame->desk().assistant();
        QTest::mousePress(&wizard, Qt::LeftButton, {}, QPoint(draw(50), draw(50)));
        QTest::mouseMove(&wizard, QPoint(draw(900) - 450, draw(900) - 450));
        QTest::mouseRelease(&wizard, Qt::LeftButton);
    }

private:
    std::mt19937 random_{20261122};
    QTimer closer_;
};

TEST_F(RandomEvents, leave_a_desk_that_solves_the_next_problem) {
    frame->actionOf(frmMain.mnuPencil)->trigger();  // writing before the eyes takes its time
    for (int i = 0; i < 2500; ++i) event();
    if (frmPaper.Loaded && !ws.InputOpen) frame->actionOf(frmMain.mnuErase)->trigger();

    do frame->actionOf(frmMain.mnuNew)->trigger();
    while (ws.ProblemType < firstPaperTopic || !ws.InputOpen);
    frame->actionOf(frmMain.mnuExample)->trigger();
    EXPECT_TRUE(ws.StepCount > 1 || ws.GraphKind != 0) << ws.TopicName;
}

}  // namespace
}  // namespace ordwise::test
