// Any bytes as what somebody does at a desk without a window: each byte chooses a command among those
// that the windows offer at this moment, and the bytes behind it say what it is done with.
//
// After each command nothing may have escaped, and the problem on the desk reads back from its saved
// text.
#include "AboutLogic.hpp"
#include "AssistantLogic.hpp"
#include "ChooserLogic.hpp"
#include "ChooserWindow.hpp"
#include "DeskEvents.hpp"
#include "ExplainWindow.hpp"
#include "FrameCommands.hpp"
#include "FreshProgram.hpp"
#include "GraphCommands.hpp"
#include "GraphWindow.hpp"
#include "GuidedInput.hpp"
#include "HelpPages.hpp"
#include "OptionsLogic.hpp"
#include "PlainPlatform.hpp"
#include "PracticeTestLogic.hpp"
#include "PracticeWindow.hpp"
#include "PrintPreview.hpp"
#include "PrintWindows.hpp"
#include "Printing.hpp"
#include "RecentProblems.hpp"
#include "SavedProblems.hpp"
#include "SettingsFile.hpp"
#include "StartStop.hpp"
#include "StartWindows.hpp"
#include "StepDisplay.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace ordwise::fuzz {
namespace {

// The input, a choice at a time; 0 behind its end.
class Choices {
public:
    Choices(const std::uint8_t* data, std::size_t size) : at_(data), end_(data + size) {}

    [[nodiscard]] bool ended() const { return at_ == end_; }
    int below(std::size_t limit) {
        const int byte = ended() ? 0 : *at_++;
        return limit == 0 ? 0 : byte % static_cast<int>(limit);
    }
    std::string text() {
        std::string text;
        for (int count = below(12); count > 0; --count) text += static_cast<char>(below(256));
        return text;
    }
    // Ended, since a person would have been asked the same without end.
    void giveUp() { at_ = end_; }

private:
    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

Choices* choices = nullptr;

void check(bool holds) {
    if (!holds) std::abort();
}

struct GivenUp {};

class FuzzedDialogs : public Dialogs {
public:
    MessageAnswer messageBox(std::string_view, std::string_view, MessageButtons) override {
        return choices->below(2) == 0 ? MessageAnswer::Ok : MessageAnswer::Cancel;
    }
    std::string inputBox(std::string_view, std::string_view) override {
        if (choices->ended()) throw GivenUp();
        static const std::string answers[] = {"", "2", "x", "-1", "y", "0", "1/2", "99999999", "q", "a"};
        return answers[choices->below(std::size(answers))];
    }
};

// --- what can be done in which window

struct Command {
    bool (*offered)();
    void (*give)();
};
using Commands = std::vector<Command>;

bool always() {
    return true;
}

void pressKey() {
    static const std::string keys = "0123456789+-*/^()=xyz~|.,:%abQ ?\b\b\r";
    (void)Form_KeyPress(std::string(1, keys[static_cast<std::size_t>(choices->below(keys.size()))]));
}

void pressKeyInBox() {
    const int number = choices->below(6) + 1;
    static const std::string keys = "0123456789.-,x\b";
    const std::string key(1, keys[static_cast<std::size_t>(choices->below(keys.size()))]);
    if (frmPaper.box(number).Visible) Box_KeyPress(number, key);
}

void selectOnPaper() {
    const int number = choices->below(3) + 1;
    if (frmPaper.combo(number).Visible) (void)selectInCombo(number, choices->below(9));
}

void dragAssistant() {
    Wizard_MouseDown(choices->below(110), choices->below(150));
    Wizard_MouseMove(choices->below(256) * 4, choices->below(256) * 4);
    Wizard_MouseUp(choices->below(4) == 0 ? MouseButton::Right : MouseButton::Left, 900, 700);
}

void moveSheet() {
    const int sheet = choices->below(10);
    if (!frmPaper.Paper[sheet].Visible) return;
    Paper_MouseDown(sheet);
    Paper_MouseMove(sheet, choices->below(200) - 100, choices->below(200) - 100);
}

void openRecent() {
    const std::size_t count = frmMain.RecentProblems.size();
    if (count > 0)
        openProblemFile(std::string(frmMain.RecentProblems[static_cast<std::size_t>(choices->below(count))]));
}

void tick() {
    if (frmPaper.Timer1.Enabled) Timer1_Timer();
    if (frmPaper.Timer2.Enabled) Timer2_Timer();
    if (frmPaper.clickMe.Enabled) clickMe_Timer();
    if (frmPaper.wizIn.Enabled) wizIn_Timer();
    if (frmPaper.WizOut.Enabled) WizOut_Timer();
    if (frmLogo.logotime.Enabled) logotime_Timer();
}

template <Control MainWindow::*item>
bool enabled() {
    return (frmMain.*item).Enabled;
}
bool onPaper() {
    return frmPaper.Loaded;
}
bool withNextStep() {
    if (!frmPaper.Loaded) return false;
    for (int sheet = 0; sheet <= PaperWindow::lastSheet; ++sheet) {
        if (frmPaper.Paper[sheet].blinker.Visible) return true;
    }
    return false;
}
bool onGraph() {
    return frmGraph.Loaded;
}

// The keys stand several times, since typing is what is done most.
const Commands deskCommands = {
    {onPaper, pressKey},
    {onPaper, pressKey},
    {onPaper, pressKey},
    {onPaper, pressKey},
    {onPaper, pressKey},
    {onPaper, pressKeyInBox},
    {onPaper, pressKeyInBox},
    {onPaper, selectOnPaper},
    {onPaper, dragAssistant},
    {onPaper, moveSheet},
    {onPaper, [] { Wizard_Click(); }},
    {onPaper, [] { Light_MouseUp(MouseButton::Left); }},
    {onPaper, finishAnimations},
    {withNextStep, blinker_Click},
    {always, tick},
    {always, openRecent},
    {always, mnuClearRecent_Click},
    {enabled<&MainWindow::mnuNew>, mnuNew_Click},
    {enabled<&MainWindow::mnuSave>, mnuSave_Click},
    {enabled<&MainWindow::mnuLoad>, mnuLoad_Click},
    {enabled<&MainWindow::mnuPrint>, mnuPrint_Click},
    {enabled<&MainWindow::mnuPrintSetup>, mnuPrintSetup_Click},
    {enabled<&MainWindow::mnuSolve>, mnuSolve_Click},
    {enabled<&MainWindow::mnuExample>, mnuExample_Click},
    {enabled<&MainWindow::mnuErase>, mnuErase_Click},
    {enabled<&MainWindow::mnuExp>, mnuExp_Click},
    {enabled<&MainWindow::mnuGraph>, mnuGraph_Click},
    {enabled<&MainWindow::mnuPracticeTest>, mnuPracticeTest_Click},
    {enabled<&MainWindow::mnuSquareRoot>, [] { insertCharacter("~"); }},
    {enabled<&MainWindow::mnuExponet>, [] { insertCharacter("^"); }},
    {enabled<&MainWindow::mnuAbsValue>, [] { insertCharacter("|"); }},
    {enabled<&MainWindow::mnuConvertDF>, mnuConvertDF_Click},
    {enabled<&MainWindow::mnuPencil>, mnuPencil_Click},
    {enabled<&MainWindow::mnuShowStep>, mnuShowStep_Click},
    {enabled<&MainWindow::mnuHideWiz>, mnuHideWiz_Click},
    {enabled<&MainWindow::mnuShowLight>, mnuShowLight_Click},
    {enabled<&MainWindow::mnuChange>, mnuChange_Click},
    {enabled<&MainWindow::mnuHelpTopics>, mnuHelpTopics_Click},
    {enabled<&MainWindow::mnuAbout>, mnuAbout_Click},
    {always, mnuHide_Click},
    {always, mnuHideLight_Click},
    // The graph stays open beside the desk.
    {onGraph, mnuGraphZoomIn_Click},
    {onGraph, mnuGraphZoomIn_Click},
    {onGraph, mnuGraphZoomOut_Click},
    {onGraph, mnuToggleZoomButtons_Click},
    {onGraph, mnuToggleCoordinates_Click},
    {onGraph, mnuGraphQuadrant_Click},
    {onGraph, mnuGraphHighQuality_Click},
    {onGraph, mnuGraphHighSpeed_Click},
    {onGraph, mnuGraphColor_Click},
    {onGraph, mnuGraphGridColor_Click},
    {onGraph, mnuGraphSmall_Click},
    {onGraph, mnuGraphMax_Click},
    {onGraph, mnuGraphExit_Click},
    {onGraph, [] { frmGraph_MouseMove(choices->below(256) * 3, choices->below(256) * 3); }},
    {onGraph,
     [] {
         frmGraph.Width = choices->below(256) * 6;
         frmGraph.Height = choices->below(256) * 4;
         frmGraph_Resize();
     }},
};

ChooserKey chooserKey() {
    static const ChooserKey keys[] = {ChooserKey::Enter, ChooserKey::Escape, ChooserKey::Up,
                                      ChooserKey::Down,  ChooserKey::Right,  ChooserKey::Other};
    return keys[choices->below(std::size(keys))];
}

template <class Node>
std::string nodeOf(const std::vector<Node>& nodes) {
    const std::size_t at = static_cast<std::size_t>(choices->below(256)) + (choices->below(2) == 0 ? 0 : 100);
    return nodes.empty() ? "" : nodes[at % nodes.size()].Text;
}

const Commands chooserCommands = {
    {always, [] { TreeView_NodeClick(nodeOf(frmSelect.TreeView1)); }},
    {always, [] { TreeView_NodeClick(nodeOf(frmSelect.TreeView1)); }},
    {always, [] { TreeView_KeyDown(chooserKey(), nodeOf(frmSelect.TreeView1)); }},
    {always,
     [] {
         frmSelect.Text1.Text = choices->text();
         SelectText_Change(frmSelect.Text1.Text);
     }},
    {always, [] { SelectText_KeyDown(chooserKey()); }},
    {always, [] { SelectTab_Click(choices->below(2)); }},
    {[] { return !frmSelect.IndexList.List.empty(); },
     [] { IndexList_Click(choices->below(frmSelect.IndexList.List.size())); }},
    {[] { return frmSelect.IndexList.ListIndex >= 0; }, IndexList_DblClick},
};

const Commands optionsCommands = {
    {always, [] { OptionsWizard_Click(choices->below(3) + 1); }},
    {always, [] { frmOptions.Check3.Checked = !frmOptions.Check3.Checked; }},
    {always, [] { frmOptions.Check2.Checked = !frmOptions.Check2.Checked; }},
    {always, [] { frmOptions.Combo2.ListIndex = choices->below(frmOptions.Combo2.List.size()); }},
    {always, [] { frmOptions.Combo1.ListIndex = choices->below(frmOptions.Combo1.List.size()); }},
    {always, Options_Command1_Click},
    {always, Options_Command2_Click},
};

const Commands printCommands = {
    {always, [] { frmPrintSetup.Text1.Text = choices->text(); }},
    {always, [] { frmPrintSetup.Text3.Text = choices->text(); }},
    {[] { return frmPrintSetup.Check1.Enabled; },
     [] {
         frmPrintSetup.Check1.Checked = !frmPrintSetup.Check1.Checked;
         frmPrintSetup_Check1_Click();
     }},
    {[] { return frmPrintSetup.Check2.Enabled; },
     [] {
         frmPrintSetup.Check2.Checked = !frmPrintSetup.Check2.Checked;
         frmPrintSetup_Check2_Click();
     }},
    {[] { return frmPrintSetup.Check3.Enabled; }, [] { frmPrintSetup.Check3.Checked = !frmPrintSetup.Check3.Checked; }},
    {always, frmPrintSetup_Command3_Click},
    {[] { return frmPrintSetup.Command2.Enabled; }, frmPrintSetup_Command2_Click},
    {always, frmPrintSetup_Command1_Click},
};

int section() {
    return choices->below(PracticeTestWindow::lastSection + 1);
}

const Commands practiceCommands = {
    {always, [] { PracticeTree_NodeClick(nodeOf(frmPracticeTest.TreeView1)); }},
    {always, [] { PracticeIndexList_ItemCheck(choices->below(frmPracticeTest.IndexList.size())); }},
    {always, [] { PracticeTree_KeyDown(choices->below(2) == 0 ? 13 : 40, nodeOf(frmPracticeTest.TreeView1)); }},
    {always, PracticeTree_MouseDown},
    {always,
     [] {
         ComboControl& count = frmPracticeTest.Combo1[section()];
         count.ListIndex = choices->below(count.List.size());
     }},
    {always, [] { frmPracticeTest.Check1[section()].Checked = choices->below(2) == 0; }},
    {always, [] { PracticeCommand4_Click(section()); }},
    {always, [] { frmPracticeTest.Text1.Text = choices->text(); }},
    {always, [] { frmPracticeTest.Seed.Text = choices->text(); }},
    {always, [] { frmPracticeTest.AnswerKey.ListIndex = choices->below(frmPracticeTest.AnswerKey.List.size()); }},
    {always, [] { frmPracticeTest.Versions.ListIndex = choices->below(frmPracticeTest.Versions.List.size()); }},
    {[] { return frmPracticeTest.Command2.Enabled; }, PracticeCommand2_Click},
    {always, PracticeCommand1_Click},
};

const Commands previewCommands = {
    {always, frmPrintPreview_Paint},
    {[] { return frmPrintPreview.Command4.Enabled; }, frmPrintPreview_Command4_Click},
    {[] { return frmPrintPreview.Command5.Enabled; }, frmPrintPreview_Command5_Click},
    {always, [] { showPreviewPage(choices->below(256) - 20); }},
    {always, frmPrintPreview_Command3_Click},
    {[] { return frmPrintPreview.Command1.Enabled; }, frmPrintPreview_Command1_Click},
    {always, frmPrintPreview_Command2_Click},
};

const Commands aboutCommands = {{always, StartSysInfo}, {always, About_Command1_Click}};

void checkProblem() {
    if (!frmPaper.Loaded || ws.TopicName.empty()) return;
    const SavedProblem problem = problemOnDesk();
    check(problemOfText(textOfProblem(problem)) == problem);
}

void giveOne(const Commands& commands) {
    const Command& command = commands[static_cast<std::size_t>(choices->below(commands.size()))];
    if (command.offered()) command.give();
}

// --- the outside

struct ModalWindow {
    std::string_view name;
    const Commands* commands;
    bool (*open)();
};

const ModalWindow modalWindows[] = {
    {"frmSelect", &chooserCommands, [] { return frmSelect.Loaded; }},
    {"frmOptions", &optionsCommands, [] { return static_cast<bool>(frmOptions.Loaded); }},
    {"frmPrintSetup", &printCommands, [] { return static_cast<bool>(frmPrintSetup.Loaded); }},
    {"frmPracticeTest", &practiceCommands, [] { return static_cast<bool>(frmPracticeTest.Loaded); }},
    {"frmPrintPreview", &previewCommands, [] { return static_cast<bool>(frmPrintPreview.Loaded); }},
    {"frmAbout", &aboutCommands, [] { return static_cast<bool>(frmAbout.Loaded); }},
};

// A window that must be answered is, before whoever opened it goes on.
class FuzzedWindows : public WindowOpener {
public:
    void show(std::string_view name) override {
        loadWindow(name);
        for (const ModalWindow& window : modalWindows) {
            if (window.name != name) continue;
            for (int i = 0; i < mostCommands && window.open() && !choices->ended(); ++i) giveOne(*window.commands);
            if (window.open()) unloadWindow(name);
        }
    }
    void unload(std::string_view name) override { unloadWindow(name); }

private:
    static constexpr int mostCommands = 60;
};

class FuzzedColours : public ColourDialog {
public:
    std::optional<Colour> chooseColour(Colour current) override {
        return choices->below(2) == 0 ? std::nullopt : std::optional<Colour>(current);
    }
};

class FuzzedFileDialogs : public FileDialogs {
public:
    std::optional<std::string> fileToSave(const FileQuestion&) override { return file(); }
    std::optional<std::string> fileToOpen(const FileQuestion&) override { return file(); }

private:
    static std::optional<std::string> file() {
        const int number = choices->below(4);
        return number == 3 ? std::nullopt : std::optional<std::string>("/home/ann/" + std::to_string(number) + ".hvx");
    }
};

void sitDown() {
    startFreshProgram();
    PlainPlatform outside;
    FuzzedDialogs dialogs;
    FuzzedWindows windows;
    FuzzedColours colours;
    FuzzedFileDialogs fileDialogs;
    platform.dialogs = &dialogs;
    platform.windows = &windows;
    platform.colours = &colours;
    platform.fileDialogs = &fileDialogs;
    platform.folders = {"/home/ann/settings.ini", "/home/ann", "/home/ann/state"};
    outside.files.contents["/home/ann/0.hvx"] =
        "Solving Equations BB x+3=12 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 101\r\n";
    outside.files.contents["/home/ann/1.hvx"] = "no problem";
    if (choices->below(8) == 0) outside.files.refusal = "The disk is full.";
    if (choices->below(8) == 0) outside.printer.refusal = "The printer is out of paper.";
    if (choices->below(8) == 0) outside.printer.name.clear();
    try {
        startUp(choices->below(4) == 0 ? "/home/ann/0.hvx" : "");
        constexpr int mostCommands = 200;
        for (int i = 0; i < mostCommands && !choices->ended(); ++i) {
            giveOne(deskCommands);
            checkProblem();  // not before: while the chooser is open no problem is chosen
        }
    } catch (const GivenUp&) {
        choices->giveUp();
        return;
    }
    shutDown();
    // What was written at the end is read at the next start.
    const std::string settings = settingsText();
    takeSettings(settings);
    check(settingsText() == settings);
}

}  // namespace
}  // namespace ordwise::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ordwise::fuzz::Choices choices(data, size);
    ordwise::fuzz::choices = &choices;
    ordwise::fuzz::sitDown();
    return 0;
}
