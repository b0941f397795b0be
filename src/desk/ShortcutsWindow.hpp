// frmShortcuts, the list of all keys, as plain data.
#pragma once

#include "LoadedFlag.hpp"

#include <string>
#include <vector>

namespace ordwise {

struct ShortcutLine {
    std::string Section;  // e.g. "Typing"
    std::string Keys;     // e.g. "Ctrl+Z"
    std::string Words;    // what they do
};

struct ShortcutsWindow {
    LoadedFlag Loaded;
    std::string Caption = "Keyboard Shortcuts";
    std::vector<ShortcutLine> Lines;  // a section's lines stand together
};

extern ShortcutsWindow frmShortcuts;

}  // namespace ordwise
