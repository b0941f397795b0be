// The frame as a program of its desktop: its place, its files, its splash, what it tells of itself.
#include "DeskFixture.hpp"

#include "DeskView.hpp"
#include "FreshProgram.hpp"
#include "RecentProblems.hpp"
#include "SavedProblems.hpp"
#include "StartStop.hpp"
#include "StartWindows.hpp"
#include "StatusLine.hpp"
#include "Workspace.hpp"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <algorithm>
#include <array>
#include <utility>

namespace ordwise::test {
namespace {

class Frame : public DeskTest {
protected:
    // A file with that text in a folder of the test's own.
    QString fileWith(const char* name, const QByteArray& bytes) const {
        const QString path = folder_.filePath(QString::fromLatin1(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

    // The file comes from a file manager.
    void drop(const QString& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(frame.get(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(frame.get(), &event);
        QTest::qWait(1);
    }

    // The entries as they are when the menu opens.
    QStringList recentEntries() {
        auto& menu = child<QMenu>("mnuRecent");
        Q_EMIT menu.aboutToShow();
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator()) texts << action->text();
        }
        return texts;
    }

private:
    QTemporaryDir folder_;
};

constexpr const char* ratio = "Ratios BB 6:8 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 78\r\n";

TEST_F(Frame, HasWordsOnItsButtonsAsFarAsTheyFitAndShortcutsInTheirTips) {
    auto& bar = child<QToolBar>("Toolbar1");
    const QAction& solve = *frame->toolbarAction(MainWindow::buttonSolve);
    EXPECT_EQ(solve.toolTip(), QStringLiteral("Solve! (F5)"));
    const auto allInView = [&bar] {
        for (QAction* action : bar.actions()) {
            if (action->isSeparator()) continue;
            if (!bar.rect().contains(bar.widgetForAction(action)->geometry())) return false;
        }
        return true;
    };
    EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    EXPECT_TRUE(allInView());
    frame->resize(500, 400);
    QTest::qWait(1);
    EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonIconOnly);
    EXPECT_TRUE(allInView());
    frame->resize(1120, 930);
    child<QAction>("wordsOnButtons").trigger();
    EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonIconOnly);
}

TEST_F(Frame, TheStatusLineShowsTheLongestHintWhole) {
    frame->resize(1024, 600);
    choose(QStringLiteral("Graphing A Line Using"));
    QTest::qWait(1);
    const StatusLine& line = frame->statusLine();
    const auto isWhole = [&line] {
        const QRect room(0, 0, line.width() - 12, 1000);
        return line.height() >= line.fontMetrics().boundingRect(room, Qt::TextWordWrap, line.sentence()).height();
    };
    EXPECT_TRUE(QTest::qWaitFor(isWhole, 1000))
        << line.height() << " " << line.width() << " " << line.sizeHint().height();
}

TEST_F(Frame, OpensAFileThatIsDroppedOnItAndOffersItAgain) {
    mnuClearRecent_Click();
    EXPECT_EQ(recentEntries(), QStringList{QStringLiteral("No Saved Problems Yet")});
    const QString path = fileWith("my & yours.hvx", ratio);
    drop(path);
    EXPECT_EQ(ws.TopicName, "Ratios");
    EXPECT_FALSE(ws.InputOpen) << "solved";
    EXPECT_EQ(frame->windowTitle().toStdString(), "my & yours.hvx - Ratios - Ordwise");
    EXPECT_EQ(recentEntries().constFirst().toStdString(), "&1  my && yours.hvx");
    choose(QStringLiteral("arithm"));
    EXPECT_EQ(frame->windowTitle().toStdString(), "Arithmetic - Ordwise");
    type(QStringLiteral("2+3"));
    child<QMenu>("mnuRecent").actions().constFirst()->trigger();
    EXPECT_EQ(ws.TopicName, "Ratios");
    EXPECT_TRUE(recentEntries().contains(QStringLiteral("&Last Problem (Not Saved)")));
    shoot("frame-file");

    EXPECT_TRUE(QFile::remove(path));
    child<QMenu>("mnuRecent").actions().constFirst()->trigger();
    EXPECT_TRUE(frame->statusLine().sentence().endsWith(QStringLiteral("my & yours.hvx\".")));
    EXPECT_EQ(ws.TopicName, "Ratios");
    EXPECT_EQ(recentEntries().constFirst().toStdString(), "&Last Problem (Not Saved)");
    drop(fileWith("list.txt", "milk, bread"));
    EXPECT_EQ(frame->statusLine().sentence().toStdString(), "\"list.txt\" holds no problem of Ordwise.");
}

TEST_F(Frame, ComesBackWhereItWasClosed) {
    frame->move(40, 30);
    frame->resize(760, 610);
    child<QAction>("steadySignals").setChecked(true);
    frame->close();
    {
        const FrameWindow next;
        EXPECT_EQ(next.size(), QSize(760, 610));
        EXPECT_TRUE(next.desk().steady());
    }
    frame->showMaximized();
    frame->close();
    const FrameWindow next;
    EXPECT_TRUE(next.isMaximized());
    child<QAction>("steadySignals").setChecked(false);
}

TEST_F(Frame, ShowsASplashThatIsInNobodysWay) {
    startFreshProgram();
    startUp("");
    auto& card = child<>("frmLogo");
    EXPECT_TRUE(card.isVisible());
    shoot("splash");
    press(Qt::Key_Shift);
    EXPECT_FALSE(frmLogo.Loaded);
    EXPECT_FALSE(card.isVisible());

    startUp("");
    frmLogo.logotime.Interval = 5;
    EXPECT_TRUE(QTest::qWaitFor([] { return !frmLogo.Loaded; }, 4000)) << "it goes by itself";

    startUp(fileWith("a.hvx", ratio).toStdString());
    EXPECT_FALSE(frmLogo.Loaded) << "it does not lie on a problem";
}

// The brightness of most of a window, 0 to 255.
int groundOf(QWidget& widget) {
    const QImage picture = widget.grab().toImage().convertToFormat(QImage::Format_Grayscale8).scaled(64, 64);
    std::array<int, 256> counts{};
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) ++counts[static_cast<std::size_t>(qGray(picture.pixel(x, y)))];
    }
    return static_cast<int>(std::max_element(counts.begin(), counts.end()) - counts.begin());
}

TEST_F(Frame, HasDialogsThatFollowADarkPalette) {
    const QPalette usual = QApplication::palette();
    QPalette dark(QColor(45, 45, 48), QColor(37, 37, 38));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Link, QColor(110, 170, 255));
    QApplication::setPalette(dark);
    shoot("dark-frame");
    const std::pair<const Control*, const char*> dialogs[] = {{&frmMain.mnuNew, "dark-chooser"},
                                                              {&frmMain.mnuAbout, "dark-about"},
                                                              {&frmMain.mnuChange, "dark-options"},
                                                              {&frmMain.mnuPracticeTest, "dark-practice"}};
    for (const auto& [command, picture] : dialogs) {
        SCOPED_TRACE(picture);
        atNextDialog([name = picture](QWidget& dialog) {
            EXPECT_LT(groundOf(dialog), 100);
            shootWidget(dialog, name);
            dialog.close();
        });
        frame->actionOf(*command)->trigger();
    }
    frame->actionOf(frmMain.mnuHelpTopics)->trigger();
    QWidget* help = frame->windows().open("frmHelp");
    EXPECT_LT(groundOf(*help), 100);
    shootWidget(*help, "dark-help");
    QApplication::setPalette(usual);
    EXPECT_TRUE(QTest::qWaitFor([help] { return groundOf(*help) > 200; }, 1000)) << "also while it is open";
}

// Underlined letters of what a window shows, of its menus one by one.
void expectOwnLetters(QWidget& window) {
    const auto expectDistinct = [](const QStringList& captions) {
        QStringList letters;
        for (const QString& caption : captions) {
            const QKeySequence letter = QKeySequence::mnemonic(caption);
            if (letter.isEmpty()) continue;
            EXPECT_FALSE(letters.contains(letter.toString())) << caption.toStdString();
            letters << letter.toString();
        }
    };
    QStringList captions;
    const auto isHere = [&](const QWidget* widget) { return widget->window() == &window && widget->isVisible(); };
    for (const auto* bar : window.findChildren<QMenuBar*>()) {
        if (!isHere(bar)) continue;
        for (const QAction* action : bar->actions()) {
            captions << action->text();
            QStringList entries;
            for (const QAction* entry : action->menu()->actions()) entries << entry->text();
            expectDistinct(entries);
        }
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (isHere(button)) captions << button->text();
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (isHere(label) && label->buddy() != nullptr) captions << label->text();
    }
    for (const auto* bar : window.findChildren<QTabBar*>()) {
        for (int i = 0; i < bar->count() && isHere(bar); ++i) captions << bar->tabText(i);
    }
    expectDistinct(captions);
}

TEST_F(Frame, HasNoTwoCommandsWithOneLetterInAWindow) {
    expectOwnLetters(*frame);
    choose(QStringLiteral("graphing a linear"));
    type(QStringLiteral("y=2x+3"));
    press(Qt::Key_F5);
    expectOwnLetters(*frame);
    for (const Control* command : {&frmMain.mnuNew, &frmMain.mnuPrint, &frmMain.mnuChange, &frmMain.mnuPracticeTest}) {
        SCOPED_TRACE(command->Text);
        atNextDialog([](QWidget& dialog) {
            expectOwnLetters(dialog);
            dialog.close();
        });
        frame->actionOf(*command)->trigger();
    }
    for (const auto& [command, name] :
         {std::pair(&frmMain.mnuGraph, "frmGraph"), std::pair(&frmMain.mnuHelpTopics, "frmHelp")}) {
        SCOPED_TRACE(name);
        frame->actionOf(*command)->trigger();
        expectOwnLetters(*frame->windows().open(name));
        platform.windows->unload(name);
    }
}

TEST_F(Frame, TellsOfTheSystemToBeCopied) {
    atNextDialog([](QWidget& dialog) {
        auto& facts = *dialog.findChild<QPlainTextEdit*>(QStringLiteral("SystemInformation"));
        EXPECT_FALSE(facts.isVisible());
        shootWidget(dialog, "about");
        clickOn(*dialog.findChild<QWidget*>(QStringLiteral("cmdSysInfo")));
        EXPECT_TRUE(facts.isVisible());
        shootWidget(dialog, "about-system");
        clickOn(*dialog.findChild<QWidget*>(QStringLiteral("Copy")));
        clickOn(*dialog.findChild<QWidget*>(QStringLiteral("Command1")));
    });
    frame->actionOf(frmMain.mnuAbout)->trigger();
    EXPECT_FALSE(frmAbout.Loaded);
    const QString copied = QApplication::clipboard()->text();
    for (const char* fact : {"Ordwise: ", "System: ", "Kernel: ", "Qt: ", "Screen ", "Locale: ", "Settings: /"})
        EXPECT_TRUE(copied.contains(QString::fromLatin1(fact))) << fact;
}

}  // namespace
}  // namespace ordwise::test
