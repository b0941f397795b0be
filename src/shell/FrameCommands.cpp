#include "FrameCommands.hpp"

#include "AssistantLogic.hpp"
#include "Examples.hpp"
#include "GraphWindow.hpp"
#include "GuidedInput.hpp"
#include "Platform.hpp"
#include "RecentProblems.hpp"
#include "SavedProblems.hpp"
#include "ShownLines.hpp"
#include "SolveDriver.hpp"
#include "TypingHistory.hpp"
#include "WebPages.hpp"
#include "Windows.hpp"
#include "WorksheetErase.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

namespace ordwise {
namespace {

void toggle(Control& menu) {
    menu.Checked = !menu.Checked;
}

}  // namespace

void mnuNew_Click() {
    keepLastProblem();
    platform.windows->show("frmSelect");
    if (!ws.ChooserClosed) {
        platform.windows->unload("frmPaper");
        platform.windows->show("frmPaper");
    }
    ws.ChooserClosed = false;
}

void mnuClose_Click() {
    keepLastProblem();
    platform.windows->unload("frmGraph");
    platform.windows->unload("frmPaper");
}

void mnuUndo_Click() {
    undoKey();
}

void mnuRedo_Click() {
    redoKey();
}

void mnuSolve_Click() {
    compute_Click();
}

// One example after the other must not push out what the student has typed.
void mnuExample_Click() {
    if (textOfProblem(problemOnDesk()) != frmMain.DrawnExample) keepLastProblem();
    example_Click();
    frmMain.DrawnExample = textOfProblem(problemOnDesk());
}

void mnuErase_Click() {
    keepLastProblem();
    clear_Click();
}

void mnuExp_Click() {
    if (!noteInView().empty()) platform.windows->show("frmExplain");
}

void mnuPrint_Click() {
    platform.windows->show("frmPrintSetup");
}

void mnuPrintSetup_Click() {
    if (platform.printer != nullptr) platform.printer->setup();
}

void mnuGraph_Click() {
    frmGraph.AskedFor = true;
    platform.windows->show("frmGraph");
    frmGraph.AskedFor = false;
}

void mnuPracticeTest_Click() {
    platform.windows->show("frmPracticeTest");
}

void mnuChange_Click() {
    platform.windows->show("frmOptions");
}

void insertCharacter(std::string_view character) {
    Form_KeyPress(character);
}

void mnuConvertDF_Click() {
    showResultsAsFractions(!ws.UseFractions);
}

void mnuPencil_Click() {
    toggle(frmMain.mnuPencil);
    frmMain.mnuUsePencil.Checked = frmMain.mnuPencil.Checked;
}

void mnuShowStep_Click() {
    toggle(frmMain.mnuShowStep);
    if (ws.InputOpen) {
        // The hint waits at the step that the assistant will be asked about.
        ws.StepNotes[ws.ShownStep].clear();
        offerHint();
    } else if (!frmMain.mnuShowStep.Checked) {
        ws.ShownStep = 0;
    } else if (ws.ShownStep == 0) {
        ws.ShownStep = 2;
    }
}

void notesWished(bool on) {
    if (on && ws.StepDetail > 1) frmMain.StatusText = "Select 'High' step-by-step detail for explanations.";
}

void mnuHideWiz_Click() {
    toggle(frmMain.mnuHideWiz);
    if (frmMain.mnuHideWiz.Checked) {
        bringAssistant();
    } else {
        sendAssistantAway();
    }
}

void mnuShowLight_Click() {
    toggle(frmMain.mnuShowLight);
    frmPaper.Light.Visible = frmMain.mnuShowLight.Checked;
}

void mnuHelpTopics_Click() {
    platform.windows->show("frmHelp");
}

void mnuShortcuts_Click() {
    platform.windows->show("frmShortcuts");
}

void mnuAlgSol_Click() {
    openWebPage(WebPage::Ordwise);
}

void mnuHomePage_Click() {
    openWebPage(WebPage::Home);
}

void mnuOnlineSupport_Click() {
    openWebPage(WebPage::Support);
}

void mnuAbout_Click() {
    platform.windows->show("frmAbout");
}

void mnuHide_Click() {
    if (frmMain.mnuHideWiz.Checked) mnuHideWiz_Click();
}

void mnuHideOptions_Click() {
    mnuChange_Click();
}

void mnuUsePencil_Click() {
    mnuPencil_Click();
}

void mnuHideLight_Click() {
    if (frmMain.mnuShowLight.Checked) mnuShowLight_Click();
}

}  // namespace ordwise
