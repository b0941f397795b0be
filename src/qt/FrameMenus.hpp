// The menus and the toolbar of the frame as tables: which control or button stands where, what it
// runs. Its keys stand in the list of all shortcuts.
#pragma once

#include "Windows.hpp"

#include <vector>

namespace ordwise {

using Routine = void (*)();

// A menu entry. Without a control it separates, with rows of its own it opens a menu below. mnuExit
// and mnuRecent have no routine: the frame closes itself and fills the list of files.
struct MenuRow {
    const Control* control = nullptr;
    Routine routine = nullptr;
    bool checkable = false;
    std::vector<MenuRow> below = {};
};

struct MenuTable {
    const Control* title;
    std::vector<MenuRow> rows;
};

// In the order of the menu bar.
[[nodiscard]] std::vector<MenuTable> frameMenus();

// What a right click on the assistant, on the pencil and on the light offers.
[[nodiscard]] MenuTable assistantPopUp();
[[nodiscard]] MenuTable pencilPopUp();
[[nodiscard]] MenuTable lightPopUp();

struct ToolRow {
    int button;  // of MainWindow::Button; a gap in the numbers is a separator
    Routine routine;
};

[[nodiscard]] std::vector<ToolRow> toolbarRows();
// The menu entry that runs the same routine as a button of the toolbar, null if none does.
[[nodiscard]] const Control* commandOfButton(int button);

}  // namespace ordwise
