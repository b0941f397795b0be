// A student at the desk: choose, type, solve, ask, erase.
#include "DeskFixture.hpp"

#include "Art.hpp"
#include "BoxEdit.hpp"
#include "Catalogue.hpp"
#include "ChooserDialog.hpp"
#include "DeskView.hpp"
#include "ExplainWindow.hpp"
#include "PictureButton.hpp"
#include "SheetView.hpp"
#include "StatusLine.hpp"
#include "Workspace.hpp"
#include "basFPrint.hpp"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>

#include <vector>

namespace ordwise::test {
namespace {

using Desk = DeskTest;

TEST_F(Desk, begins_empty_and_says_how_to_start) {
    EXPECT_FALSE(frmPaper.Loaded);
    EXPECT_TRUE(frame->statusLine().sentence().contains(QStringLiteral("New Problem")));
    EXPECT_FALSE(frame->actionOf(frmMain.mnuSolve)->isEnabled());
    shoot("empty-desk");

    auto& welcome = child<>("welcome");
    ASSERT_TRUE(welcome.isVisible());
    atNextDialog([](QWidget& chooser) {
        EXPECT_EQ(chooser.objectName(), QStringLiteral("frmSelect"));
        chooser.close();
    });
    clickOn(*welcome.findChildren<QAbstractButton*>().constFirst());
    EXPECT_TRUE(welcome.isVisible()) << "nothing was chosen";
    choose(QStringLiteral("solving"));
    EXPECT_FALSE(welcome.isVisible());
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
    EXPECT_EQ(frame->statusLine().sentence().toStdString(), "':' was not taken: " + ws.ExplainOverrideText);
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
    EXPECT_TRUE(frame->statusLine().isRefusal()) << "whoever looks at the keyboard finds it later";
    shoot("dropped");
    press(Qt::Key_Backspace);
    EXPECT_FALSE(frame->statusLine().isRefusal());
}

TEST_F(Desk, keys_are_undone_and_redone_on_the_paper_and_in_boxes) {
    choose(QStringLiteral("simplifying p"));
    type(QStringLiteral("3/4+"));
    press(Qt::Key_Backspace);
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(ws.ProblemText, "3/4");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(ws.ProblemText, "3/4+");

    choose(QStringLiteral("pythagorean"));
    type(QStringLiteral("31"));
    press(Qt::Key_Tab);
    type(QStringLiteral("4"));
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier);
    const FigureView& figure = *frame->desk().sheet(0).figure();
    EXPECT_EQ(focused(), &figure.box(4)) << "the box that changes takes the keyboard";
    EXPECT_EQ(figure.box(4).text(), QStringLiteral("3"));
}

TEST_F(Desk, tab_goes_through_boxes_as_they_are_read_and_enter_solves_from_anywhere) {
    choose(QStringLiteral("pythagorean"));
    type(QStringLiteral("3"));
    press(Qt::Key_Tab);
    type(QStringLiteral("4"));
    EXPECT_EQ(frmPaper.Text4.Text + frmPaper.Text2.Text + frmPaper.Text1.Text, "34");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), &frame->desk().light()) << "there are no lists";
    press(Qt::Key_Return);
    EXPECT_FALSE(ws.InputOpen);

    choose(QStringLiteral("meter"));
    type(QStringLiteral("5"));
    FigureView& figure = *frame->desk().sheet(0).figure();
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), &figure.combo(1));
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), &figure.combo(2));
    press(Qt::Key_Return);
    EXPECT_FALSE(ws.InputOpen);
}

TEST_F(Desk, explanations_stand_beside_the_lines_or_under_them) {
    choose(QStringLiteral("solving"));
    frame->actionOf(frmMain.mnuShowStep)->trigger();
    type(QStringLiteral("2x+3=11"));
    press(Qt::Key_F5);
    auto& notes = child<QAction>("notesBesideLines");
    notes.setChecked(true);
    EXPECT_EQ(frmPaper.Notes, NotesPlace::UnderLines) << "the window is narrow";
    shoot("notes-under");
    for (const QSize size : {QSize(1366, 728), QSize(1920, 1040), QSize(1024, 560)}) {
        frame->resize(size);
        QTest::qWait(20);
        EXPECT_EQ(frmPaper.Notes, NotesPlace::BesideLines) << size.width();
        press(Qt::Key_Down);
        const QByteArray name = "notes-beside-" + QByteArray::number(size.width());
        shoot(name.constData());
    }
    clickOn(child<>("Notes"));
    EXPECT_GE(frmPaper.ChosenLine, 0);
    {
        const FrameWindow next;
        EXPECT_TRUE(next.desk().notes()) << "it is remembered";
    }
    notes.setChecked(false);
    EXPECT_TRUE(frmPaper.Slips.empty());
}

TEST_F(Desk, closes_problems_and_windows_and_lists_its_keys) {
    choose(QStringLiteral("arithmetic"));
    type(QStringLiteral("2+"));
    press(Qt::Key_Question, Qt::ControlModifier);
    QWidget* keys = frame->windows().open("frmShortcuts");
    ASSERT_NE(keys, nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(keys));
    QTest::qWait(1);  // the platform without a screen tells it late
    shootWidget(*keys, "shortcuts");
    QTest::keyClick(keys, Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(frame->windows().open("frmShortcuts"), nullptr);
    atNextDialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("frmOptions"));
        QTest::keyClick(&dialog, Qt::Key_W, Qt::ControlModifier);
    });
    press(Qt::Key_Comma, Qt::ControlModifier);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(frmPaper.Loaded);
    auto& welcome = child<>("welcome");
    EXPECT_TRUE(welcome.isAncestorOf(focused()));
    shoot("welcome");
    atNextDialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("frmSelect"));
        dialog.close();
    });
    press(Qt::Key_Return);
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
    setSteady(false);  // the pencil is seen at the line
    type(QStringLiteral("9(3x^2+8^2)-3/4+4x"));
    EXPECT_FALSE(frame->statusLine().isRefusal()) << ws.ExplainOverrideText;
    shoot("typed-polynomial");
    setSteady(true);
    choose(QStringLiteral("calculating ro"));
    type(QStringLiteral("3~4+2~9"));
    EXPECT_FALSE(frame->statusLine().isRefusal()) << ws.ExplainOverrideText;
    shoot("typed-roots");
}

TEST_F(Desk, escape_in_the_chooser_keeps_the_old_problem) {
    choose(QStringLiteral("solving"));
    type(QStringLiteral("x+3"));
    const DisplayList drawn = frmPaper.Paper[0].drawn();
    atNextDialog([](QWidget& dialog) {
        auto& chooser = dynamic_cast<ChooserDialog&>(dialog);
        QTest::keyClicks(&chooser.searchBox(), QStringLiteral("volume"));
        QTest::keyClick(&chooser.searchBox(), Qt::Key_Escape);
    });
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(frmPaper.Paper[0].drawn(), drawn);
    type(QStringLiteral("=12"));
    EXPECT_EQ(ws.ProblemText, "x+3=12");
    EXPECT_TRUE(frame->actionOf(frmMain.mnuSolve)->isEnabled());
}

TEST_F(Desk, the_chooser_is_worked_without_a_mouse_and_with_one) {
    atNextDialog([](QWidget& dialog) {
        auto& chooser = dynamic_cast<ChooserDialog&>(dialog);
        EXPECT_EQ(chooser.tabs().currentIndex(), 0);
        QTest::keyClicks(&chooser.searchBox(), QStringLiteral("Perimeter of"));
        QTest::keyClick(&chooser.searchBox(), Qt::Key_Down);
        EXPECT_EQ(chooser.list().currentItem()->text(), QStringLiteral("Perimeter of a Triangle"));
        EXPECT_EQ(chooser.tree().currentItem()->text(0), QStringLiteral("Perimeter of a Triangle"));
        shootWidget(dialog, "chooser");
        chooser.tabs().setCurrentIndex(1);
        EXPECT_EQ(chooser.focusWidget(), &chooser.searchBox());
        QTest::keyClick(&chooser.list(), Qt::Key_Up);
        EXPECT_EQ(chooser.searchBox().text(), QStringLiteral("Perimeter of a Square/Rectangle"));
        QTest::keyClick(&chooser.list(), Qt::Key_Return);
    });
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(ws.TopicName, "Perimeter of a Square/Rectangle");

    atNextDialog([](QWidget& dialog) {
        auto& chooser = dynamic_cast<ChooserDialog&>(dialog);
        QTreeWidgetItem* heading = chooser.tree().topLevelItem(1);
        const auto click = [&](QTreeWidgetItem* item) {
            chooser.tree().scrollToItem(item);
            QTest::mouseClick(chooser.tree().viewport(), Qt::LeftButton, {},
                              chooser.tree().visualItemRect(item).center());
        };
        click(heading);
        EXPECT_TRUE(chooser.isVisible()) << "a heading only opens";
        EXPECT_TRUE(heading->isExpanded());
        click(heading->child(0));
    });
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(ws.TopicName, "Multiples");
}

TEST_F(Desk, a_box_topic_is_filled_and_solved_from_its_boxes) {
    choose(QStringLiteral("area of a tri"));
    FigureView& figure = *frame->desk().sheet(0).figure();
    EXPECT_EQ(focused(), &figure.box(2)) << "the first box takes the keys";
    type(QStringLiteral("12x"));
    EXPECT_EQ(figure.box(2).text(), QStringLiteral("12"));
    EXPECT_TRUE(frame->statusLine().isRefusal());
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), &figure.box(1));
    type(QStringLiteral("7.55"));
    press(Qt::Key_Backspace);
    EXPECT_EQ(figure.box(1).text(), QStringLiteral("7.5"));
    shoot("triangle-filled");
    press(Qt::Key_Return);
    while (frame->desk().sheet(0).blinker().isVisible()) press(Qt::Key_Return);
    EXPECT_NE(ws.StepLines[ws.ShownStep].find("45"), std::string::npos) << ws.StepLines[ws.ShownStep];
    shoot("geometry");
}

TEST_F(Desk, lists_are_chosen_from) {
    choose(QStringLiteral("meter"));
    FigureView& figure = *frame->desk().sheet(0).figure();
    figure.combo(1).setFocus();
    QTest::keyClick(&figure.combo(1), Qt::Key_Down);
    EXPECT_EQ(frmPaper.Combo1.ListIndex, 1);
    figure.box(4).setFocus();
    type(QStringLiteral("5"));
    EXPECT_TRUE(frame->actionOf(frmMain.mnuSolve)->isEnabled());
    shoot("meters");
    choose(QStringLiteral("rounding"));
    QTest::keyClick(frame->desk().sheet(0).roundingList(), Qt::Key_Down);
    EXPECT_EQ(frmPaper.Combo3.ListIndex, 1);
}

TEST_F(Desk, a_long_solution_goes_over_sheets_that_can_be_fetched_to_the_front) {
    choose(QStringLiteral("complex"));
    type(QStringLiteral("(4-2)+3^2+(7+1)*2-6/2+4*5-(3+4)*2"));
    frame->actionOf(frmMain.mnuShowStep)->trigger();
    press(Qt::Key_F5);
    ASSERT_GE(ws.CurrentSheet, 2) << "the problem no longer fills three sheets";
    shoot("three-sheets");
    SheetView& first = frame->desk().sheet(0);
    SheetView& second = frame->desk().sheet(1);
    const auto above = [this](QWidget& a, QWidget& b) {
        const QObjectList& stack = frame->desk().children();
        return stack.indexOf(&a) > stack.indexOf(&b);
    };
    EXPECT_TRUE(above(second, first));
    const QPoint corner(30, 60);
    const double left = frmPaper.Paper[0].Left;
    QTest::mousePress(&first, Qt::LeftButton, {}, corner);
    EXPECT_TRUE(above(first, second));
    EXPECT_TRUE(above(frame->desk().light(), first)) << "the light is never hidden";
    QTest::mouseMove(&first, corner + QPoint(20, 0));
    QTest::mouseRelease(&first, Qt::LeftButton, {}, corner);
    EXPECT_GT(frmPaper.Paper[0].Left, left);
}

TEST_F(Desk, an_example_is_made_up_and_solved_on_the_desk) {
    choose(QStringLiteral("area of a trap"));
    frame->toolbarAction(MainWindow::buttonExample)->trigger();
    EXPECT_FALSE(frame->desk().sheet(0).figure()->box(3).text().isEmpty());
    EXPECT_TRUE(frame->desk().sheet(0).blinker().isVisible());
    choose(QStringLiteral("solving"));
    press(Qt::Key_F6);
    EXPECT_NE(ws.ProblemText.find('='), std::string::npos) << ws.ProblemText;
    EXPECT_GT(ws.StepCount, 2);
}

TEST_F(Desk, every_topic_opens_with_boxes_that_have_names_and_room) {
    for (const std::string_view topic : topicNames()) {
        const std::string trace(topic);
        SCOPED_TRACE(trace);
        choose(qstringOf(topic));
        ASSERT_EQ(ws.TopicName, topic);
        if (!frmPaper.Picture3.Visible) continue;
        const FigureView& figure = *frame->desk().sheet(0).figure();
        QStringList names;
        QList<QRect> places;
        for (int number = 1; number <= 6; ++number) {
            const QWidget& box = figure.box(number);
            if (!box.isVisible()) continue;
            EXPECT_TRUE(figure.rect().contains(box.geometry())) << number;
            EXPECT_FALSE(names.contains(box.accessibleName())) << box.accessibleName().toStdString();
            EXPECT_FALSE(box.accessibleName().startsWith(QStringLiteral("Box"))) << box.accessibleName().toStdString();
            names << box.accessibleName();
            for (const QRect& other : places) EXPECT_FALSE(other.intersects(box.geometry())) << number;
            places << box.geometry();
        }
    }
}

TEST_F(Desk, screen_readers_find_a_document_with_sheets_light_and_boxes) {
    const auto spoken = [](QWidget& widget) {
        const QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&widget);
        const auto text = [found](QAccessible::Text which) { return found->text(which).toStdString(); };
        return std::to_string(found->role()) + "|" + text(QAccessible::Name) + "|" + text(QAccessible::Description);
    };
    const auto is = [](QAccessible::Role role) { return std::to_string(role); };
    choose(QStringLiteral("solving eq"));
    type(QStringLiteral("x+3=12"));
    const DeskView& desk = frame->desk();
    EXPECT_EQ(spoken(frame->desk()), is(QAccessible::Document) + "|Worksheet: Solving Equations|x plus 3 equals 12");
    EXPECT_EQ(spoken(desk.sheet(0)), is(QAccessible::StaticText) + "|Sheet 1, Solving Equations|x plus 3 equals 12");
    EXPECT_EQ(spoken(desk.light()), is(QAccessible::Button) + "|Input light: correct|Correct Input.");
    press(Qt::Key_F5);
    EXPECT_EQ(spoken(desk.sheet(0)),
              is(QAccessible::StaticText) + "|Sheet 1, Solving Equations|x plus 3 minus 3 equals 12 minus 3");
    choose(QStringLiteral("pythag"));
    EXPECT_EQ(spoken(*focused()), is(QAccessible::EditableText) + "|a|");
}

TEST_F(Desk, the_light_and_the_assistant_are_reached_by_keys) {
    choose(QStringLiteral("arithmetic"));
    type(QStringLiteral("++"));
    frame->desk().light().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QWidget& bubble = child<>("frmExplain");
    EXPECT_TRUE(bubble.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(bubble.isVisible());
    frame->desk().assistant().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_TRUE(bubble.isVisible()) << "the hint before anything is solved";
    frame->desk().setFocus();
    EXPECT_FALSE(bubble.isVisible()) << "gone when it loses the focus";
    frame->desk().light().setFocus(Qt::TabFocusReason);
    type(QStringLiteral("5"));
    EXPECT_EQ(ws.ProblemText, "5") << "typing reaches the paper from anywhere on the desk";
}

TEST_F(Desk, zoom_makes_everything_larger_and_fits_again) {
    choose(QStringLiteral("area of a circle"));
    const int sheet = frame->desk().sheet(0).width();
    const int box = frame->desk().sheet(0).figure()->box(2).width();
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(frame->desk().sheet(0).width(), sheet * 1.44, 3);
    EXPECT_NEAR(frame->desk().sheet(0).figure()->box(2).width(), box * 1.44, 2);
    shoot("zoomed");
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(frame->desk().sheet(0).width(), sheet);
}

TEST_F(Desk, boxes_stay_light_on_a_dark_desktop) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x22, 0x22, 0x26)));
    choose(QStringLiteral("area of a circle"));
    type(QStringLiteral("4"));
    const QPalette box = frame->desk().sheet(0).figure()->box(2).palette();
    EXPECT_GT(box.color(QPalette::Base).lightness(), 200);
    EXPECT_LT(box.color(QPalette::Text).lightness(), 60);
    EXPECT_GT(frame->statusLine().palette().color(QPalette::WindowText).lightness(), 150) << "the frame follows";
    shoot("dark");
    QApplication::setPalette(before);
}

TEST_F(Desk, signals_blink_or_stand_still) {
    choose(QStringLiteral("fraction arithmetic"));
    type(QStringLiteral("1/2+1/3"));
    setSteady(false);
    press(Qt::Key_F5);
    PictureButton& next = frame->desk().sheet(0).blinker();
    ASSERT_TRUE(next.isVisible());
    const std::string first = next.imageKey();
    EXPECT_TRUE(QTest::qWaitFor([&] { return next.imageKey() != first; }, 1000)) << "it blinks";
    setSteady(true);
    const std::string still = next.imageKey();
    EXPECT_FALSE(QTest::qWaitFor([&] { return next.imageKey() != still; }, 900)) << "it stands still";
    EXPECT_TRUE(next.isVisible());
}

TEST_F(Desk, a_faulty_line_is_told_and_the_program_goes_on) {
    choose(QStringLiteral("arithmetic"));
    atNextDialog([](QWidget& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.text(), QStringLiteral("An error occurred while displaying information."));
        box.accept();
    });
    PrintMathLine("x^2", false);
    type(QStringLiteral("4+5"));
    EXPECT_EQ(ws.ProblemText, "4+5");
}

}  // namespace
}  // namespace ordwise::test
