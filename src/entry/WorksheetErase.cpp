#include "WorksheetErase.hpp"

#include "DroppedKeys.hpp"
#include "Platform.hpp"
#include "TypingHistory.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

namespace ordwise {

void clear_Click() {
    const MessageAnswer answer =
        platform.dialogs->messageBox("This will erase your entire problem.", "Clear Problem", MessageButtons::OkCancel);
    if (answer == MessageAnswer::Ok) eraseWorksheet();
}

void eraseWorksheet() {
    ResetStore(true);
    ResetEngine(true);
    clearExplain();
    ws.ProblemText.clear();
    resetLight();
    disableSolvedCommands();
    clearBoxes();
    clearDesk();
    ws.InputOpen = true;
    offerHint();
}

void resetLight() {
    ws.ExplainOverride = false;
    ws.ExplainOverrideText.clear();
    frmPaper.Light.Image = "light1";
    frmPaper.Light.ToolTip = "Click the red light for incorrect input details.";
    forgetDroppedKeys();
    forgetHistory();
}

void disableSolvedCommands() {
    setSolveEnabled(false);
    for (const auto button : {MainWindow::buttonSave, MainWindow::buttonPrint, MainWindow::buttonGraph})
        frmMain.Toolbar1[button].Enabled = false;
    for (Control* menu : {&frmMain.mnuSave, &frmMain.mnuPrint, &frmMain.mnuPrintSetup, &frmMain.mnuGraph})
        menu->Enabled = false;
}

}  // namespace ordwise
