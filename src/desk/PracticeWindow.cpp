#include "PracticeWindow.hpp"

namespace ordwise {

PracticeTestWindow frmPracticeTest;

PracticeTestWindow::PracticeTestWindow() {
    for (ComboControl& count : Combo1) count.List = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
    for (Control& complex : Check1) complex.Text = "Complex";
    for (Control& clear : Command4) clear.Text = "Clear";
    AnswerKey.List = {"No answer key", "Answers", "Answers with all steps"};
    Versions.List = {"One version", "Versions A and B", "Versions A, B and C"};
    NameLine.Text = "Name line";
    NameLine.Checked = true;
    Space.List = {"None", "Two lines", "Five lines", "Ten lines"};
    Columns.List = {"One", "Two where short"};
    Command2.Text = "Create Practice Test";
    Command1.Text = "Cancel";
}

}  // namespace ordwise
