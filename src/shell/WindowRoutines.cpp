#include "WindowRoutines.hpp"

#include "AboutLogic.hpp"
#include "ChooserLogic.hpp"
#include "ChooserWindow.hpp"
#include "ExplainWindow.hpp"
#include "ExplanationWindow.hpp"
#include "GraphCommands.hpp"
#include "GraphWindow.hpp"
#include "HelpPages.hpp"
#include "OptionsLogic.hpp"
#include "PracticeTestLogic.hpp"
#include "PrintPreview.hpp"
#include "PrintWindows.hpp"
#include "Printing.hpp"
#include "Shortcuts.hpp"
#include "StartStop.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"

#include <array>

namespace ordwise {
namespace {

struct WindowRow {
    std::string_view name;
    void (*load)();
    void (*unload)();
};

constexpr std::array<WindowRow, 12> windowRows{{
    {"frmPaper", [] { Form_Load(); },
     [] {
         if (frmPaper.Loaded) Form_Unload();
     }},
    {"frmSelect",
     [] {
         Select_Load();  // remembers the problem before the tree forgets it
         BuildTopicTree(true);
     },
     [] {
         if (frmSelect.Loaded) Select_Unload();
     }},
    {"frmExplain",
     [] {
         LoadExplanation();
         ShowExplanation();
     },
     [] { frmExplain.Loaded = false; }},
    {"frmGraph", [] { frmGraph_Load(); },  // also when it is open: the problem may be another one
     [] {
         if (frmGraph.Loaded) frmGraph_Unload();
     }},
    {"frmPrintSetup", [] { frmPrintSetup_Load(); }, [] { frmPrintSetup.Loaded = false; }},
    {"frmPrintPreview", [] { frmPrintPreview_Load(); },
     [] {
         if (frmPrintPreview.Loaded) frmPrintPreview_Unload();
     }},
    {"frmLogo", [] { Logo_Load(); }, [] { Logo_Unload(); }},
    {"frmOptions", [] { Options_Load(); }, [] { Options_Unload(); }},
    {"frmAbout", [] { About_Load(); }, [] { About_Unload(); }},
    {"frmHelp", [] { Help_Load(); }, [] { Help_Unload(); }},
    {"frmShortcuts", [] { Shortcuts_Load(); }, [] { Shortcuts_Unload(); }},
    {"frmPracticeTest", [] { PracticeTest_Load(); }, [] { PracticeTest_Unload(); }},
}};

}  // namespace

void loadWindow(std::string_view name) {
    for (const WindowRow& row : windowRows) {
        if (row.name == name) row.load();
    }
}

void unloadWindow(std::string_view name) {
    for (const WindowRow& row : windowRows) {
        if (row.name == name) row.unload();
    }
}

}  // namespace ordwise
