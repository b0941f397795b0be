#include "PrintWindows.hpp"

namespace ordwise {

PrintSetupWindow frmPrintSetup;
PrintPreviewWindow frmPrintPreview;

PrintSetupWindow::PrintSetupWindow() {
    Check1.Text = "Graph";
    Check2.Text = "Problem";
    Check3.Text = "Explanation";
    Check1.Enabled = false;
    Command2.Text = "OK";
    Command1.Text = "Cancel";
    Command3.Text = "Setup...";
    Command4.Text = "Preview...";
}

PrintPreviewWindow::PrintPreviewWindow() {
    Label1.Text = "Unknown";
    Command1.Text = "Print";
    Command3.Text = "Print Setup...";
    Command2.Text = "Exit";
}

}  // namespace ordwise
