// What a person waits for: from the start to the first picture of the desk, from a key to the sheet
// with the key on it, from a zoom of the graph to its picture. On the platform without a screen: painting is measured,
// showing is not.
//
//     ordwise_desk_bench 2> /dev/null    the platform grumbles about sizes
#include "Catalogue.hpp"
#include "FrameWindow.hpp"
#include "FreshProgram.hpp"
#include "GraphCommands.hpp"
#include "GraphView.hpp"
#include "GraphWindow.hpp"
#include "SheetView.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>

namespace ordwise {
namespace {

// Waits for the paint event of a widget of one kind.
template <class Widget>
class PaintWatch : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }

    void waitForPaint() {
        painted_ = false;
        while (!painted_) QCoreApplication::processEvents();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && dynamic_cast<Widget*>(watched) != nullptr) painted_ = true;
        return false;
    }

private:
    bool painted_ = false;
};

void startToFirstPaint(benchmark::State& state) {
    PaintWatch<FrameWindow> watch;
    for (auto _ : state) {
        startFreshProgram();
        FrameWindow frame;
        frame.resize(1120, 930);
        frame.show();
        watch.waitForPaint();
        state.PauseTiming();
        frame.close();
        state.ResumeTiming();
    }
}
BENCHMARK(startToFirstPaint)->Unit(benchmark::kMillisecond);

void keyToPaint(benchmark::State& state) {
    startFreshProgram();
    FrameWindow frame;
    frame.resize(1120, 930);
    frame.show();
    frame.activateWindow();
    if (!QTest::qWaitForWindowActive(&frame)) state.SkipWithError("the frame did not become active");
    TreeViewSelect("Simplifying Polynomials");
    Form_Load();
    frame.showChanges();
    frame.showFreshSheets();
    for (const char* typed = "3x^2+4x-1/2"; *typed != '\0'; ++typed)
        QTest::keyClick(QApplication::focusWidget(), *typed);
    PaintWatch<SheetView> watch;
    for (auto _ : state) {
        QTest::keyClick(QApplication::focusWidget(), '+');
        watch.waitForPaint();
        state.PauseTiming();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        watch.waitForPaint();
        state.ResumeTiming();
    }
}
BENCHMARK(keyToPaint)->Unit(benchmark::kMillisecond);

// y^2=x, the dearest curve, at the highest quality in the largest window, with its list; the number is
// the bound that is zoomed to: 160 has the most grid lines, 1280 the longest list, 81920 is the widest.
void zoomOfGraphToPaint(benchmark::State& state) {
    startFreshProgram();
    FrameWindow frame;
    frame.show();
    ws.GraphKind = 3;
    const char* const curve[] = {"+", "1/1", "y", "^", "+", "2", "=", "+", "1/1", "x"};
    int slot = 0;
    for (const char* token : curve) ws.GraphValues.set(slot++, token);
    platform.windows->show("frmGraph");
    auto* const view = static_cast<GraphView*>(frame.windows().open("frmGraph"));
    view->actionOf(frmGraph.mnuGraphHighQuality).trigger();
    view->actionOf(frmGraph.mnuGraphMax).trigger();
    const auto bound = static_cast<double>(state.range(0));
    while (frmGraph.xMax < bound) view->actionOf(frmGraph.mnuGraphZoomOut).trigger();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        state.PauseTiming();
        view->actionOf(frmGraph.mnuGraphZoomIn).trigger();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        view->actionOf(frmGraph.mnuGraphZoomOut).trigger();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(zoomOfGraphToPaint)->Arg(160)->Arg(1280)->Arg(81920)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ordwise

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
