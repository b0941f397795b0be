// The graph beside the desk: what opens it, what it shows, and what can be taken away from it.
#include "DeskFixture.hpp"

#include "DeskView.hpp"
#include "GraphView.hpp"
#include "PictureButton.hpp"
#include "PlainPlatform.hpp"
#include "SheetView.hpp"
#include "StatusLine.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>

namespace ordwise::test {
namespace {

constexpr const char* line = "Graphing A Linear";
constexpr const char* twoPoints = "Graphing A Line Using";
constexpr const char* quadrant = "Calculating A Point's";

class Graph : public DeskTest {
protected:
    // The whole solution at once.
    void solve(const char* topic, const char* problem) {
        takeKeys(*frame);
        choose(QString::fromLatin1(topic));
        if (frmMain.mnuShowStep.Checked) command(frmMain.mnuShowStep);
        type(QString::fromLatin1(problem));
        press(Qt::Key_F5);
    }

    // Solves and opens the graph by the frame's command.
    GraphView& draw(const char* topic, const char* problem) {
        solve(topic, problem);
        command(frmMain.mnuGraph);
        takeKeys(*graph());
        return *graph();
    }

    void command(const Control& menu) { frame->actionOf(menu)->trigger(); }

    GraphView* graph() const { return dynamic_cast<GraphView*>(frame->windows().open("frmGraph")); }

    // As a window manager does for a new window. A window beside its frame counts as active with it, so
    // waiting for that would be no wait.
    static void takeKeys(QWidget& window) {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }));
    }

    static void turnWheel(GraphView& view, int turned) {
        const QPointF middle = view.canvas().rect().center();
        QWheelEvent event(middle, view.canvas().mapToGlobal(middle), {}, {0, turned}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view.canvas(), &event);
    }

    static QStringList rows(const GraphView& view) {
        QStringList shown;
        for (int i = 0; i < view.list().model()->rowCount(); ++i)
            shown << view.list().model()->index(i, 0).data().toString();
        return shown;
    }
};

TEST_F(Graph, follows_the_solves_of_the_desk) {
    EXPECT_FALSE(frame->actionOf(frmMain.mnuGraph)->isEnabled());
    choose(QString::fromLatin1(line));
    type(QStringLiteral("y=2x+3"));
    press(Qt::Key_F5);
    PictureButton& next = frame->desk().sheet(0).blinker();
    for (int step = 0; next.isVisible() && step < 50; ++step) {
        EXPECT_EQ(graph(), nullptr) << "only the last step leads to the graph";
        clickOn(next);
    }
    ASSERT_NE(graph(), nullptr);
    EXPECT_TRUE(graph()->isVisible());
    EXPECT_FALSE(graph()->isModal());
    EXPECT_EQ(graph()->windowTitle(), QStringLiteral("y = 2x + 3 - Graph"));
    EXPECT_EQ(graph()->canvas().accessibleName(), QStringLiteral("The graph of y = 2x + 3 on axes from -20 to 20."));
    EXPECT_EQ(rows(*graph()).size(), 41);
    EXPECT_TRUE(rows(*graph()).contains(QStringLiteral("x=4  y=11")));
    shootWidget(*graph(), "graph-line");

    takeKeys(*graph());
    QTest::keyClick(graph(), Qt::Key_Escape);
    EXPECT_EQ(graph(), nullptr);
    EXPECT_FALSE(frmGraph.Loaded);
    command(frmMain.mnuGraph);
    ASSERT_NE(graph(), nullptr);
    graph()->close();  // by the button of its frame
    EXPECT_EQ(graph(), nullptr);
    EXPECT_FALSE(frmGraph.Loaded);

    const QPointer<GraphView> before = &draw(line, "x=3");
    EXPECT_TRUE(rows(*before).contains(QStringLiteral("x=3  y=-20")));
    shootWidget(*before, "graph-vertical");
    platform.windows->unload("frmGraph");  // as the next solve does
    EXPECT_EQ(graph(), nullptr);
    QTest::qWait(1);
    EXPECT_TRUE(before.isNull());

    solve(twoPoints, "(-12,-5)-(9,14)");
    ASSERT_NE(graph(), nullptr) << "two points have nothing but their graph";
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == frame.get(); }))
        << "the paper keeps the keyboard";
    EXPECT_EQ(rows(*graph()), QStringList({QStringLiteral("x=-12  y=-5"), QStringLiteral("x=9  y=14")}));
    EXPECT_FALSE(graph()->actionOf(frmGraph.mnuGraphHighQuality).isEnabled());
}

TEST_F(Graph, zooms_by_wheel_keys_and_buttons_between_its_ends) {
    GraphView& view = draw(line, "y=2x+3");
    turnWheel(view, 60);
    EXPECT_EQ(frmGraph.xMax, 20) << "half a notch";
    turnWheel(view, 60);
    EXPECT_EQ(frmGraph.xMax, 10);
    turnWheel(view, 240);
    EXPECT_EQ(frmGraph.xMax, 10) << "no closer than this";
    turnWheel(view, -120);
    QTest::keyClick(&view.canvas(), Qt::Key_Minus);
    EXPECT_EQ(frmGraph.xMax, 40);
    QTest::keyClick(&view.list(), Qt::Key_Equal);
    QTest::mouseClick(&view.button(frmGraph.Command2), Qt::LeftButton);
    EXPECT_EQ(frmGraph.xMax, 40);
    turnWheel(view, -120 * 20);
    EXPECT_EQ(frmGraph.xMax, 81920) << "no farther than this";
    EXPECT_TRUE(rows(view).constFirst().startsWith(QStringLiteral("x=-81920")));
    shootWidget(view, "graph-widest");
}

TEST_F(Graph, tells_where_the_mouse_points) {
    GraphView& view = draw(quadrant, "(-7,5)");
    QMouseEvent move(QEvent::MouseMove, QPointF(1, 1), view.canvas().mapToGlobal(QPointF(1, 1)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&view.canvas(), &move);
    EXPECT_EQ(view.coordinates().text(), QStringLiteral("x=-20  y=20"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&view.canvas(), &leave);
    EXPECT_TRUE(view.coordinates().text().isEmpty());
    EXPECT_EQ(view.statusLine().sentence(), QStringLiteral("The point (-7, 5) on axes from -20 to 20."));
}

TEST_F(Graph, takes_its_size_from_the_menus_and_from_the_hand) {
    GraphView& view = draw(quadrant, "(-7,5)");
    EXPECT_EQ(view.canvas().size(), QSize(533, 533));
    EXPECT_EQ(frmGraph.Width, 533);
    const int width = view.width();
    view.actionOf(frmGraph.mnuToggleCoordinates).trigger();
    QTest::qWait(1);
    EXPECT_LT(view.width(), width - 40) << "without its list the window is smaller";
    EXPECT_EQ(view.canvas().size(), QSize(533, 533));
    view.actionOf(frmGraph.mnuToggleZoomButtons).trigger();
    EXPECT_LT(view.width(), width - 100) << "without list and buttons the strip is gone";
    EXPECT_EQ(view.canvas().size(), QSize(533, 533)) << "and the picture stays as it is";
    view.actionOf(frmGraph.mnuToggleCoordinates).trigger();
    view.actionOf(frmGraph.mnuGraphSmall).trigger();
    EXPECT_EQ(view.canvas().size(), QSize(267, 267));

    view.resize(view.size() + QSize(120, 40));
    EXPECT_EQ(frmGraph.Width, 387);
    EXPECT_EQ(frmGraph.Height, 307);
    view.actionOf(frmGraph.mnuGraphMax).trigger();
    EXPECT_EQ(view.frameGeometry().size(), view.screen()->availableGeometry().size());
    EXPECT_TRUE(view.screen()->availableGeometry().contains(view.frameGeometry()));
    view.showMaximized();
    view.actionOf(frmGraph.mnuGraphSmall).trigger();
    EXPECT_EQ(view.canvas().size(), QSize(267, 267));
}

TEST_F(Graph, changes_its_drawing_by_the_menus) {
    PlainColours colours;
    platform.colours = &colours;
    GraphView& view = draw(quadrant, "(-7,5)");
    const auto inPicture = [&view](QColor colour) {
        const QImage image = view.canvas().grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == colour) return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(view.actionOf(frmGraph.mnuGraphQuadrant).isChecked());
    EXPECT_TRUE(inPicture(Qt::red));
    shootWidget(view, "graph-quadrants");
    const QImage withQuadrants = view.canvas().grab().toImage();
    view.actionOf(frmGraph.mnuGraphQuadrant).trigger();
    EXPECT_FALSE(view.actionOf(frmGraph.mnuGraphQuadrant).isChecked());
    EXPECT_NE(view.canvas().grab().toImage(), withQuadrants);
    colours.answers = {{0, 128, 0}};
    view.actionOf(frmGraph.mnuGraphColor).trigger();
    EXPECT_TRUE(inPicture(QColor(0, 128, 0)));
    EXPECT_FALSE(inPicture(Qt::red));
    EXPECT_TRUE(view.actionOf(frmGraph.mnuGraphHighSpeed).isChecked());
    view.actionOf(frmGraph.mnuGraphHighQuality).trigger();
    EXPECT_TRUE(view.actionOf(frmGraph.mnuGraphHighQuality).isChecked());
    EXPECT_FALSE(view.actionOf(frmGraph.mnuGraphHighSpeed).isChecked());
}

TEST_F(Graph, is_saved_and_copied_as_a_picture) {
    const QTemporaryDir folder;
    const auto path = [&folder](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
    PlainFileDialogs dialogs;
    platform.fileDialogs = &dialogs;
    GraphView& view = draw(line, "y=2x+3");
    const auto save = [&](const char* name) {
        dialogs.answers = {path(name).toStdString()};
        QTest::keyClick(&view, Qt::Key_S, Qt::ControlModifier);
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QImage picture = QImage::fromData(save("a.png"));
    EXPECT_EQ(picture.size(), QSize(1066, 1066)) << "two pixels for each of the screen";
    EXPECT_EQ(picture.pixelColor(533, 533 - 133), QColor(Qt::black)) << "the axis";
    EXPECT_EQ(view.statusLine().sentence(), QStringLiteral("The picture is in '%1'.").arg(path("a.png")));
    QSvgRenderer svg(save("a.svg"));
    EXPECT_TRUE(svg.isValid());
    EXPECT_EQ(svg.viewBox().size(), QSize(533, 533));
    const QByteArray pdf = save("a.PDF");
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_FALSE(view.statusLine().isRefusal());

    EXPECT_TRUE(save("no/such/folder.png").isEmpty());
    EXPECT_TRUE(view.statusLine().isRefusal());
    EXPECT_TRUE(view.statusLine().sentence().contains(QStringLiteral("could not be written")));
    save("a.gif");
    EXPECT_TRUE(view.statusLine().sentence().contains(QStringLiteral(".png, .svg or .pdf")));

    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(view.statusLine().isRefusal()) << "the next command takes the complaint away";
    const QMimeData& copied = *QApplication::clipboard()->mimeData();
    EXPECT_EQ(qvariant_cast<QImage>(copied.imageData()).size(), QSize(1066, 1066));
    EXPECT_TRUE(QSvgRenderer(copied.data(QStringLiteral("image/svg+xml"))).isValid());
    view.list().setCurrentIndex(view.list().model()->index(20, 0));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("x=0  y=3"));
}

TEST_F(Graph, tells_why_it_was_not_printed) {
    PlainPrinter printer;
    platform.printer = &printer;
    GraphView& view = draw(line, "y=2x+3");
    QAction& print = view.actionOf(frmGraph.mnuGraphPrint);
    print.trigger();
    ASSERT_EQ(printer.jobs.size(), 1U);
    EXPECT_FALSE(view.statusLine().isRefusal());
    printer.refusal = "The printer is out of paper.";
    print.trigger();
    EXPECT_TRUE(view.statusLine().isRefusal());
    EXPECT_EQ(view.statusLine().sentence().toStdString(), printer.refusal);
    view.actionOf(frmGraph.mnuGraphPrintSetup).trigger();
    EXPECT_EQ(printer.setups, 1);
}

}  // namespace
}  // namespace ordwise::test
