// A teacher makes a test, looks at its pages and prints them; a student prints a solution.
#include "DeskFixture.hpp"
#include "PageView.hpp"
#include "PlainPlatform.hpp"
#include "PracticeWindow.hpp"
#include "PrintPreview.hpp"
#include "PrintPreviewDialog.hpp"
#include "PrintWindows.hpp"
#include "Stage.hpp"
#include "StatusLine.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

namespace ordwise::test {
namespace {

class PrintWindows : public DeskTest {
protected:
    PrintWindows() { platform.fileDialogs = &fileDialogs; }

    template <class Widget>
    static Widget& in(QWidget& dialog, const std::string& name) {
        auto* found = dialog.findChild<Widget*>(QString::fromStdString(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    static void clickIn(QWidget& dialog, const char* name) { clickOn(in<QAbstractButton>(dialog, name)); }

    static int pagesOf(const QString& file) {
        QFile pdf(file);
        EXPECT_TRUE(pdf.open(QIODevice::ReadOnly)) << file.toStdString();
        return static_cast<int>(pdf.readAll().count("/Type /Page\n"));
    }

    static void search(QWidget& dialog, const char* typed) {
        auto& box = in<QLineEdit>(dialog, "search");
        box.selectAll();
        QTest::keyClicks(&box, QString::fromLatin1(typed));
        QTest::keyClick(&box, Qt::Key_Return);
    }

    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    PlainFileDialogs fileDialogs;
    QTemporaryDir folder;
};

TEST_F(PrintWindows, a_test_is_outlined_created_turned_over_and_printed) {
    choose(QStringLiteral("solving"));
    type(QStringLiteral("x+3"));
    fileDialogs.answers = {path("test.pdf").toStdString()};
    int pages = 0;
    atNextDialog([&](QWidget& practice) {
        search(practice, "equations");
        search(practice, "volume pyr");
        search(practice, "equations");  // a second time changes nothing
        in<QLineEdit>(practice, "search").clear();
        auto& tree = in<QTreeWidget>(practice, "TreeView1");
        QTreeWidgetItem* ratios =
            tree.findItems(QStringLiteral("Ratios"), Qt::MatchExactly | Qt::MatchRecursive).first();
        tree.scrollToItem(ratios);
        QTest::keyClick(&tree, Qt::Key_Down);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(ratios).center());
        in<QTabWidget>(practice, "topics").setCurrentIndex(1);
        auto& list = in<QListWidget>(practice, "IndexList");
        for (int row : {0, 1, 0}) {  // the third click takes the first topic out again
            list.scrollToItem(list.item(row));
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        }
        const std::vector<std::string> wanted = {"Solving Equations", "Volume of a Pyramid", "Ratios", "",
                                                 frmPracticeTest.IndexList[1].Text};
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(in<QLineEdit>(practice, "Text4_" + std::to_string(i)).text().toStdString(),
                      wanted[static_cast<std::size_t>(i)]);
        }
        EXPECT_EQ(list.item(0)->checkState(), Qt::Unchecked);
        EXPECT_EQ(list.item(1)->checkState(), Qt::Checked);
        in<QComboBox>(practice, "Combo1_0").setCurrentIndex(9);
        in<QCheckBox>(practice, "Check1_0").click();
        in<QComboBox>(practice, "AnswerKey").setCurrentIndex(2);
        QTest::keyClicks(&in<QLineEdit>(practice, "Seed"), QStringLiteral("4x2"));
        shootWidget(practice, "practice-test");

        atDialog(QStringLiteral("frmPrintPreview"), [&](QWidget& preview) {
            preview.activateWindow();
            ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &preview; }));
            pages = ws.PreviewPageCount + 1;
            EXPECT_GE(pages, 3) << "the problems and their answers in all steps";
            EXPECT_EQ(frmPrintPreview.Sheets.at(0).Seed, "42");
            EXPECT_FALSE(in<QAbstractButton>(preview, "Command4").isEnabled());
            QTest::keyClick(&preview, Qt::Key_PageDown);
            EXPECT_EQ(frmPrintPreview.FrontPage, 1);
            clickIn(preview, "Command4");
            EXPECT_EQ(frmPrintPreview.FrontPage, 0);
            in<QSpinBox>(preview, "Label4").setValue(pages);
            EXPECT_EQ(frmPrintPreview.FrontPage, pages - 1);
            EXPECT_FALSE(in<QAbstractButton>(preview, "Command5").isEnabled());
            QTest::keyClick(&preview, Qt::Key_Home);
            shootWidget(preview, "print-preview");
            auto& page = in<PageView>(preview, "Picture1");
            QWheelEvent wheel(QPointF(50, 50), page.mapToGlobal(QPointF(50, 50)), {}, QPoint(0, -120), {}, {},
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(page.viewport(), &wheel);
            EXPECT_EQ(frmPrintPreview.FrontPage, 1) << "the page has no more to be scrolled";
            const double fitting = page.scale();
            QTest::keyClick(&preview, Qt::Key_Plus, Qt::ControlModifier);
            EXPECT_GT(page.scale(), fitting);
            QTest::keyClick(&preview, Qt::Key_0, Qt::ControlModifier);
            EXPECT_DOUBLE_EQ(page.scale(), fitting);
            EXPECT_EQ(in<QAbstractButton>(preview, "Command1").shortcut(), QKeySequence(Qt::ALT | Qt::Key_P))
                << "Print keeps its letter beside its key";
            clickIn(preview, "Command1");
            EXPECT_TRUE(in<StatusLine>(preview, "StatusLine").sentence().startsWith(QStringLiteral("Printed to \"")));
            clickIn(preview, "Command2");
        });
        clickIn(practice, "Command2");
        EXPECT_EQ(frmMain.MousePointer, 0);
        EXPECT_TRUE(practice.isVisible()) << "to change the outline and create it again";
        clickIn(practice, "Command1");
    });
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(pagesOf(path("test.pdf")), pages);
    EXPECT_EQ(fileDialogs.questions.at(0).proposedName, "Practice Test.pdf");
    EXPECT_EQ(ImplodeInput(), "x+3") << "the open problem is as it was";
    type(QStringLiteral("=7"));
    EXPECT_TRUE(frame->actionOf(frmMain.mnuSolve)->isEnabled());
}

TEST_F(PrintWindows, the_largest_test_comes_into_the_preview) {
    atNextDialog([&](QWidget& practice) {
        for (int i = 0; i < 10; ++i) {
            search(practice, frmPracticeTest.IndexList[static_cast<std::size_t>(i * 9)].Text.c_str());
            in<QComboBox>(practice, "Combo1_" + std::to_string(i)).setCurrentIndex(9);
            in<QCheckBox>(practice, "Check1_" + std::to_string(i)).click();
        }
        atDialog(QStringLiteral("frmPrintPreview"), [&](QWidget& preview) {
            EXPECT_EQ(ws.TestCount, 120) << "a hundred problems, and two lines above each section";
            preview.close();
        });
        clickIn(practice, "Command2");
        practice.close();
    });
    press(Qt::Key_T, Qt::ControlModifier);
}

TEST_F(PrintWindows, a_solution_goes_to_a_pdf_and_a_fault_leaves_everything_as_it_was) {
    choose(QStringLiteral("solving"));
    EXPECT_TRUE(frame->actionOf(frmMain.mnuPrint) != nullptr);
    type(QStringLiteral("3x-4=11"));
    press(Qt::Key_F5);
    const int steps = ws.StepCount;
    fileDialogs.answers = {path("no such folder/a.pdf").toStdString(), path("a.pdf").toStdString()};
    atNextDialog([&](QWidget& setup) {
        auto& ok = in<QAbstractButton>(setup, "Command2");
        EXPECT_EQ(in<QLabel>(setup, "Label1").text(), QStringLiteral("PDF file"));
        EXPECT_FALSE(in<QCheckBox>(setup, "Check1").isEnabled()) << "no graph is open";
        in<QCheckBox>(setup, "Check2").click();
        EXPECT_FALSE(ok.isEnabled());
        EXPECT_FALSE(in<QCheckBox>(setup, "Check3").isEnabled());
        in<QCheckBox>(setup, "Check2").click();
        in<QCheckBox>(setup, "Check3").click();
        atDialog(QStringLiteral("PrintDialog"), [](QWidget& dialog) {
            shootWidget(dialog, "printer");
            dialog.close();
        });
        clickIn(setup, "Command3");
        QTest::keyClicks(&in<QLineEdit>(setup, "Text1"), QStringLiteral("!"));
        shootWidget(setup, "print-setup");
        clickOn(ok);
        const QString told = in<StatusLine>(setup, "StatusLine").sentence();
        EXPECT_TRUE(told.contains(QStringLiteral("a.pdf"))) << told.toStdString();
        EXPECT_EQ(frame->statusLine().sentence(), told);
        EXPECT_TRUE(setup.isVisible()) << "to print elsewhere";
        EXPECT_EQ(ws.StepCount, steps);
        clickOn(ok);
        EXPECT_FALSE(setup.isVisible());
    });
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(pagesOf(path("a.pdf")), 1);
    EXPECT_TRUE(frame->statusLine().sentence().contains(QStringLiteral("Printed to"))) << "until the next event";
    press(Qt::Key_F2);
    EXPECT_FALSE(frame->statusLine().sentence().contains(QStringLiteral("Printed to")));
}

TEST_F(PrintWindows, another_paper_lays_the_preview_out_anew) {
    PlainPlatform outside;
    PrintSheet sheet;
    sheet.Heading = {"Halvern Ordwise", "Practice Test", ""};
    sheet.Lines = std::vector<std::string>(12, "x+3=12");
    frmPrintPreview.Sheets = {sheet};
    outside.printer.size = PaperSize{816, 1056, 48};
    Stage stage;
    frmPrintPreview_Load();
    PrintPreviewDialog preview(frame.get(), stage);
    stage.showChanges = [&] { preview.showChanges(); };
    const DisplayList before = frmPrintPreview.Picture1.drawn();
    outside.printer.size = PaperSize{793.7, 1122.5, 48};
    preview.show();
    clickIn(preview, "Command3");
    EXPECT_EQ(outside.printer.setups, 1);
    EXPECT_NE(frmPrintPreview.Picture1.drawn(), before);
    EXPECT_EQ(frmPrintPreview.Paper, outside.printer.size);
    frmPrintPreview_Unload();
}

}  // namespace
}  // namespace ordwise::test
