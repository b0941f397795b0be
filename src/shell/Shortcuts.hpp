// All keys of the desk, as one list: the menus take theirs from it, and frmShortcuts shows it.
#pragma once

#include "Windows.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

struct ShortcutRow {
    std::string_view section;
    std::string_view keys;   // as the desktop writes them, several with blanks around a comma. e.g. "Ctrl+N"
    const Control* command;  // of the menus, null for a key that is none of theirs
    std::string_view words;
};

// In the order in which they are shown; a section's rows stand together.
[[nodiscard]] std::span<const ShortcutRow> shortcutRows();

// The key of a menu command, "" for one without.
[[nodiscard]] std::string_view keysOf(const Control& command);

// Fills frmShortcuts.
void Shortcuts_Load();
void Shortcuts_Unload();

// Captions of one menu or one window, each with an underlined letter ("&") that none of the others has.
// A caption keeps the letter that it names unless one before it has taken it; the others take the first
// letter of a word that is free, or any letter.
// e.g. "&File", "&Functions" -> "&File", "F&unctions"
[[nodiscard]] std::vector<std::string> withOwnMnemonics(std::vector<std::string> captions);

}  // namespace ordwise
