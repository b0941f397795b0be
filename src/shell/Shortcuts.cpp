#include "Shortcuts.hpp"

#include "ShortcutsWindow.hpp"
#include "TextTools.hpp"

#include <algorithm>
#include <cctype>
#include <set>

namespace ordwise {
namespace {

constexpr std::string_view problems = "Problems";
constexpr std::string_view typing = "Typing";
constexpr std::string_view solving = "Solving and Reading";
constexpr std::string_view looking = "The Window";

// clang-format off
const ShortcutRow rows[] = {
    {problems, "Ctrl+N",             &frmMain.mnuNew,           "New Problem"},
    {problems, "Ctrl+O",             &frmMain.mnuLoad,          "Load Problem"},
    {problems, "Ctrl+S",             &frmMain.mnuSave,          "Save Problem"},
    {problems, "Ctrl+P",             &frmMain.mnuPrint,         "Print"},
    {problems, "Ctrl+W",             &frmMain.mnuClose,         "Close Problem; in another window, close it"},
    {problems, "F6",                 &frmMain.mnuExample,       "Example Problem"},
    {problems, "Ctrl+Delete",        &frmMain.mnuErase,         "Erase Problem"},
    {problems, "Ctrl+T",             &frmMain.mnuPracticeTest,  "Practice Test"},
    {typing,   "Backspace",          nullptr,                   "Take back the last character"},
    {typing,   "Ctrl+Z",             &frmMain.mnuUndo,          "Undo the last key"},
    {typing,   "Ctrl+Shift+Z",       &frmMain.mnuRedo,          "Redo the key that was undone"},
    {typing,   "Ctrl+R",             &frmMain.mnuSquareRoot,    "Square root, as ~"},
    {typing,   "Ctrl+E",             &frmMain.mnuExponet,       "Exponent, as ^"},
    {typing,   "Tab, Shift+Tab",     nullptr,                   "The next box, list or picture, and back"},
    {solving,  "Enter",              nullptr,                   "Solve; then the next step. Before that: what is missing"},
    {solving,  "F5",                 &frmMain.mnuSolve,         "Solve!"},
    {solving,  "Up, Down",           nullptr,                   "Choose a line of the solution; Esc chooses none"},
    {solving,  "Home, End",          nullptr,                   "Choose its first or its last line"},
    {solving,  "F2",                 &frmMain.mnuExp,           "Explain the line; before you solve, what to enter"},
    {solving,  "Page Up, Page Down", nullptr,                   "The sheet before or behind the one in front"},
    {solving,  "Ctrl+G",             &frmMain.mnuGraph,         "Create Graph"},
    {looking,  "Ctrl++, Ctrl+-",     nullptr,                   "Larger, smaller"},
    {looking,  "Ctrl+0",             nullptr,                   "Fit the desk into the window"},
    {looking,  "Ctrl+,",             &frmMain.mnuChange,        "Settings"},
    {looking,  "F1",                 &frmMain.mnuHelpTopics,    "Help, at the topic that you work on"},
    {looking,  "Ctrl+?",             &frmMain.mnuShortcuts,     "This list"},
    {looking,  "Alt+F",              nullptr,                   "The menus, each by its underlined letter"},
    {looking,  "Ctrl+Q",             &frmMain.mnuExit,          "Exit"},
};
// clang-format on

char lowerLetter(char c) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

bool isLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

// The letter behind the "&", in lower case; 0 without one.
char mnemonicOf(std::string_view caption) {
    const std::size_t at = caption.find('&');
    return at == std::string_view::npos || at + 1 >= caption.size() ? '\0' : lowerLetter(caption[at + 1]);
}

// Puts an "&" before the first letter that is free: first letters of words come first.
void takeFreeLetter(std::string& caption, std::set<char>& taken) {
    caption = replaced(std::move(caption), "&", "");
    for (const bool firstOfWord : {true, false}) {
        for (std::size_t i = 0; i < caption.size(); ++i) {
            const bool first = i == 0 || caption[i - 1] == ' ';
            if (!isLetter(caption[i]) || (firstOfWord && !first) || taken.count(lowerLetter(caption[i])) != 0) continue;
            taken.insert(lowerLetter(caption[i]));
            caption.insert(i, "&");
            return;
        }
    }
}

}  // namespace

std::span<const ShortcutRow> shortcutRows() {
    return rows;
}

std::string_view keysOf(const Control& command) {
    const auto* const row =
        std::find_if(std::begin(rows), std::end(rows), [&](const ShortcutRow& r) { return r.command == &command; });
    return row == std::end(rows) ? std::string_view() : row->keys;
}

void Shortcuts_Load() {
    frmShortcuts = ShortcutsWindow{};
    for (const ShortcutRow& row : rows)
        frmShortcuts.Lines.push_back({std::string(row.section), std::string(row.keys), std::string(row.words)});
    frmShortcuts.Loaded = true;
}

void Shortcuts_Unload() {
    frmShortcuts.Loaded = false;
}

std::vector<std::string> withOwnMnemonics(std::vector<std::string> captions) {
    std::set<char> taken;
    std::vector<std::string*> without;
    for (std::string& caption : captions) {
        const char letter = mnemonicOf(caption);
        if (letter == '\0' || !taken.insert(letter).second) without.push_back(&caption);
    }
    for (std::string* caption : without) takeFreeLetter(*caption, taken);
    return captions;
}

}  // namespace ordwise
