#include "WindowRoutines.hpp"

#include "ChooserLogic.hpp"
#include "ChooserWindow.hpp"
#include "ExplainWindow.hpp"
#include "ExplanationWindow.hpp"
#include "OptionsLogic.hpp"
#include "PracticeTestLogic.hpp"
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

constexpr std::array<WindowRow, 6> windowRows{{
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
    {"frmLogo", [] { Logo_Load(); }, [] { Logo_Unload(); }},
    {"frmOptions", [] { Options_Load(); }, [] { Options_Unload(); }},
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
