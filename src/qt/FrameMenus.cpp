#include "FrameMenus.hpp"

#include "FrameCommands.hpp"
#include "SavedProblems.hpp"

namespace ordwise {
namespace {

template <char character>
void insertKey() {
    constexpr char text[] = {character, '\0'};
    insertCharacter(text);
}

MenuTable fileMenu() {
    return {&frmMain.mnuFile,
            {{&frmMain.mnuNew, mnuNew_Click},
             {},
             {&frmMain.mnuPrint, mnuPrint_Click},
             {&frmMain.mnuPrintSetup, mnuPrintSetup_Click},
             {},
             {&frmMain.mnuSave, mnuSave_Click},
             {&frmMain.mnuLoad, mnuLoad_Click},
             {&frmMain.mnuRecent, nullptr},
             {&frmMain.mnuClose, mnuClose_Click},
             {},
             {&frmMain.mnuExit, nullptr}}};
}

MenuTable editMenu() {
    return {&frmMain.mnuEdit, {{&frmMain.mnuUndo, mnuUndo_Click}, {&frmMain.mnuRedo, mnuRedo_Click}}};
}

MenuTable toolsMenu() {
    return {&frmMain.mnuCreate,
            {{&frmMain.mnuSolve, mnuSolve_Click},
             {&frmMain.mnuExample, mnuExample_Click},
             {&frmMain.mnuErase, mnuErase_Click},
             {},
             {&frmMain.mnuGraph, mnuGraph_Click},
             {&frmMain.mnuPracticeTest, mnuPracticeTest_Click},
             {},
             {&frmMain.mnuExp, mnuExp_Click}}};
}

MenuTable functionsMenu() {
    return {&frmMain.mnuSpecial,
            {{&frmMain.mnuSquareRoot, insertKey<'~'>},
             {&frmMain.mnuExponet, insertKey<'^'>},
             {&frmMain.mnuAbsValue, insertKey<'|'>},
             {},
             {&frmMain.mnuAddition, insertKey<'+'>},
             {&frmMain.mnuSubtraction, insertKey<'-'>},
             {&frmMain.mnuMultiplication, insertKey<'*'>},
             {&frmMain.mnuDivision, insertKey<'/'>},
             {},
             {&frmMain.mnuConvertDF, mnuConvertDF_Click}}};
}

MenuTable optionsMenu() {
    return {&frmMain.mnuOptions,
            {{&frmMain.mnuPencil, mnuPencil_Click, true},
             {&frmMain.mnuShowStep, mnuShowStep_Click, true},
             {&frmMain.mnuHideWiz, mnuHideWiz_Click, true},
             {&frmMain.mnuShowLight, mnuShowLight_Click, true},
             {},
             {&frmMain.mnuChange, mnuChange_Click}}};
}

MenuTable helpMenu() {
    return {&frmMain.mnuHelp,
            {{&frmMain.mnuHelpTopics, mnuHelpTopics_Click},
             {&frmMain.mnuShortcuts, mnuShortcuts_Click},
             {},
             {&frmMain.mnuWeb,
              nullptr,
              false,
              {{&frmMain.mnuAlgSol, mnuAlgSol_Click}, {&frmMain.mnuHomePage, mnuHomePage_Click}}},
             {&frmMain.mnuOnlineSupport, mnuOnlineSupport_Click},
             {},
             {&frmMain.mnuAbout, mnuAbout_Click}}};
}

}  // namespace

std::vector<MenuTable> frameMenus() {
    return {fileMenu(), editMenu(), toolsMenu(), functionsMenu(), optionsMenu(), helpMenu()};
}

MenuTable assistantPopUp() {
    return {&frmMain.mnuHidden,
            {{&frmMain.mnuHide, mnuHide_Click}, {}, {&frmMain.mnuHideOptions, mnuHideOptions_Click}}};
}

MenuTable pencilPopUp() {
    return {&frmMain.mnuHidden2, {{&frmMain.mnuUsePencil, mnuUsePencil_Click, true}}};
}

MenuTable lightPopUp() {
    return {&frmMain.mnuHidden3, {{&frmMain.mnuHideLight, mnuHideLight_Click}}};
}

std::vector<ToolRow> toolbarRows() {
    return {{MainWindow::buttonNew, mnuNew_Click},
            {MainWindow::buttonSave, mnuSave_Click},
            {MainWindow::buttonOpen, mnuLoad_Click},
            {MainWindow::buttonPrint, mnuPrint_Click},
            {MainWindow::buttonPractice, mnuPracticeTest_Click},
            {MainWindow::buttonGraph, mnuGraph_Click},
            {MainWindow::buttonSolve, mnuSolve_Click},
            {MainWindow::buttonExample, mnuExample_Click},
            {MainWindow::buttonClear, mnuErase_Click},
            {MainWindow::buttonRoot, insertKey<'~'>},
            {MainWindow::buttonPower, insertKey<'^'>},
            {MainWindow::buttonFracdec, mnuConvertDF_Click},
            {MainWindow::buttonWeb, mnuHomePage_Click}};
}

const Control* commandOfButton(int button) {
    static const std::vector<MenuTable> menus = frameMenus();
    for (const ToolRow& tool : toolbarRows()) {
        if (tool.button != button) continue;
        for (const MenuTable& menu : menus) {
            for (const MenuRow& row : menu.rows) {
                if (row.routine == tool.routine) return row.control;
            }
        }
    }
    return nullptr;
}

}  // namespace ordwise
