#include "StartStop.hpp"

#include "ChooserLogic.hpp"
#include "Platform.hpp"
#include "RecentProblems.hpp"
#include "SavedProblems.hpp"
#include "SettingsFile.hpp"
#include "SolveDriver.hpp"
#include "StartWindows.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

namespace ordwise {
namespace {

void loadFrame(std::string_view commandLine) {
    ws.OpenedFilePath = trimmed(commandLine);
    showResultsAsFractions(ws.UseFractions);
    const std::string& directory = platform.folders.savedProblems;
    if (!directory.empty()) platform.files->createDirectory(directory);
    if (!ws.OpenedFilePath.empty()) mnuLoad_Click();
    if (frmPaper.Loaded) logotime_Timer();  // the splash would lie on the problem
}

}  // namespace

void startUp(std::string_view commandLine) {
    ws.NormalPointer = frmMain.MousePointer;
    platform.windows->show("frmLogo");
    loadFrame(commandLine);
}

void Logo_Load() {
    ws.StepCount = 1;
    readSettings();
    readRecentProblems();
    frmMain.mnuUsePencil.Checked = frmMain.mnuPencil.Checked;
    BuildTopicTree(true);
    frmLogo.logotime.Enabled = true;
    frmLogo.Loaded = true;
}

void logotime_Timer() {
    frmLogo.logotime.Enabled = false;
    platform.windows->unload("frmLogo");
}

void Logo_Unload() {
    frmLogo.Loaded = false;
}

void shutDown() {
    keepLastProblem();
    platform.windows->unload("frmGraph");
    const std::string trouble = writeSettings();
    if (!trouble.empty()) frmMain.StatusText = trouble;
}

}  // namespace ordwise
