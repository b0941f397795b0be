#include "Windows.hpp"

#include "GraphWindow.hpp"
#include "HelpWindow.hpp"
#include "Platform.hpp"
#include "PracticeWindow.hpp"
#include "PrintWindows.hpp"
#include "ShortcutsWindow.hpp"
#include "StartWindows.hpp"

namespace ordwise {

MainWindow frmMain;
PaperWindow frmPaper;
Platform platform;

Control& PaperWindow::box(int number) {
    Control* const boxes[] = {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6};
    if (number < 1 || number > 6) raise(FaultNumber::Subscript);
    return *boxes[number - 1];
}

ComboControl& PaperWindow::combo(int number) {
    ComboControl* const combos[] = {&Combo1, &Combo2, &Combo3};
    if (number < 1 || number > 3) raise(FaultNumber::Subscript);
    return *combos[number - 1];
}

MainWindow::MainWindow() {
    // clang-format off
    Toolbar1[buttonNew]      = {"new",      "New Problem", "new", true, "New"};
    Toolbar1[buttonSave]     = {"save",     "Save Problem", "save", false, "Save"};
    Toolbar1[buttonOpen]     = {"open",     "Load Problem", "open", true, "Load"};
    Toolbar1[buttonPrint]    = {"print",    "Print", "print", false, "Print"};
    Toolbar1[buttonPractice] = {"practice", "Practice Test", "practice", true, "Test"};
    Toolbar1[buttonGraph]    = {"graph",    "Graph", "graph", false, "Graph"};
    Toolbar1[buttonSolve]    = {"solve",    "Solve!", "solve", false, "Solve!"};
    Toolbar1[buttonExample]  = {"example",  "Example", "example", false, "Example"};
    Toolbar1[buttonClear]    = {"clear",    "Erase", "clear", false, "Erase"};
    Toolbar1[buttonRoot]     = {"root",     "Insert Root", "root", false, "Root"};
    Toolbar1[buttonPower]    = {"power",    "Insert Exponent", "power", false, "Exponent"};
    Toolbar1[buttonFracdec]  = {"fracdec",  "Convert Between Fraction and Decimal Format", "fracdec", true, "Convert"};
    Toolbar1[buttonWeb]      = {"web",      "Halvern on the Web", "web", true, "Web"};

    mnuFile.Text = "&File";                  mnuNew.Text = "&New Problem";
    mnuPrint.Text = "&Print";                mnuPrintSetup.Text = "P&rint Setup";
    mnuSave.Text = "Save Problem";           mnuLoad.Text = "Load Problem";
    mnuRecent.Text = "&Open Recent";         mnuClose.Text = "&Close Problem";
    mnuExit.Text = "&Exit";
    mnuEdit.Text = "&Edit";                  mnuUndo.Text = "&Undo";
    mnuRedo.Text = "&Redo";
    mnuCreate.Text = "&Tools";               mnuSolve.Text = "&Solve!";
    mnuExample.Text = "E&xample Problem";    mnuErase.Text = "Erase &Problem";
    mnuGraph.Text = "Create &Graph";         mnuPracticeTest.Text = "Practice &Test";
    mnuExp.Text = "&Explanation";
    mnuSpecial.Text = "&Functions";          mnuSquareRoot.Text = "Square &Root";
    mnuExponet.Text = "&Exponent (^)";       mnuAbsValue.Text = "Absolute &Value (|)";
    mnuAddition.Text = "&Add (+)";           mnuSubtraction.Text = "&Subtract (-)";
    mnuMultiplication.Text = "&Multiply (*)"; mnuDivision.Text = "&Divide (/)";
    mnuConvertDF.Text = "&Fraction/Decimal Conversion";
    mnuOptions.Text = "&Options";            mnuPencil.Text = "Use &Pencil";
    mnuShowStep.Text = "&Show Step-By-Step"; mnuHideWiz.Text = "Show &Wiz Assistant";
    mnuShowLight.Text = "Show &Guided Input Light";
    mnuChange.Text = "Se&ttings";
    mnuHelp.Text = "&Help";                  mnuHelpTopics.Text = "Help Topics";
    mnuShortcuts.Text = "&Keyboard Shortcuts";
    mnuWeb.Text = "Halvern on the &Web";     mnuAlgSol.Text = "&Ordwise";
    mnuHomePage.Text = "Halvern &Home Page"; mnuOnlineSupport.Text = "Online Support";
    mnuAbout.Text = "&About Ordwise";
    mnuHide.Text = "&Hide";                  mnuHideOptions.Text = "&Options...";
    mnuUsePencil.Text = "Use &Pencil";       mnuHideLight.Text = "&Hide Guided Input Light";
    // clang-format on
    for (Control* menu : {&mnuPrint, &mnuPrintSetup, &mnuSave, &mnuClose, &mnuUndo, &mnuRedo, &mnuSolve, &mnuExample,
                          &mnuErase, &mnuGraph, &mnuExp, &mnuSquareRoot, &mnuExponet, &mnuAbsValue, &mnuAddition,
                          &mnuSubtraction, &mnuMultiplication, &mnuDivision}) {
        menu->Enabled = false;
    }
    for (Control* menu : {&mnuPencil, &mnuShowStep, &mnuHideWiz, &mnuShowLight, &mnuUsePencil}) menu->Checked = true;
}

void setSolveEnabled(bool enabled) {
    frmMain.Toolbar1[MainWindow::buttonSolve].Enabled = enabled;
    frmMain.mnuSolve.Enabled = enabled;
}

namespace {

// Assigning keeps the memory of texts and drawings, which the next problem will need again. A window
// that was never open is as it started.
template <class Window>
void restart(Window& window) {
    static const Window asStarted;
    if constexpr (requires { window.Loaded.wasLoaded(); }) {
        if (!window.Loaded.wasLoaded()) return;
    }
    window = asStarted;
}

}  // namespace

void ResetWindows() {
    restart(frmMain);
    restart(frmPaper);
    restart(frmGraph);
    restart(graphSettings);
    restart(frmPrintSetup);
    restart(frmPrintPreview);
    restart(frmLogo);
    restart(frmOptions);
    restart(frmPracticeTest);
    restart(frmAbout);
    restart(frmHelp);
    restart(frmShortcuts);
}

}  // namespace ordwise
