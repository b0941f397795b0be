// The chooser of problem types: what its keys, clicks and tabs do. The window shows frmSelect and
// asks these routines; choosing a topic goes through TreeViewSelect.
#pragma once

#include <string_view>

namespace ordwise {

enum class ChooserKey { Enter, Escape, Up, Down, Right, Other };

// Opens the chooser: first tab, first entry of the list, empty search box, the problem remembered.
void Select_Load();
// Closes it. Without a choice the problem that was open is the problem again and ChooserClosed says so.
void Select_Unload();

// Fills the tree from the catalogue. With `forgetProblem` no problem type is chosen any more.
void BuildTopicTree(bool forgetProblem);

// The search box: tree and list show only what it finds, and the best match is selected; where it
// finds nothing, nothing is selected and a line says so. e.g. "solv" -> "Solving Equations"
void SelectText_Change(std::string_view typed);
// Enter takes the selected topic, Up and Down select another one of the found ones in the order of
// the tab in view.
void SelectText_KeyDown(ChooserKey key);

// The list: a click or an arrow selects, Enter or a double click takes.
void IndexList_Click(int index);
void IndexList_DblClick();
void IndexList_KeyDown(ChooserKey key);
// After a key the search box repeats the selected name.
void IndexList_KeyUp();

// The tree: what the arrows mark is selected, a topic that is clicked is taken, a heading leaves the
// chooser open.
void TreeView_Mark(std::string_view text);
void TreeView_NodeClick(std::string_view text);
// `current` is the text of the node that is marked in the tree.
void TreeView_KeyDown(ChooserKey key, std::string_view current);

// The tab's own keys: only Esc means something.
void SelectTab_KeyDown(ChooserKey key);
void SelectTab_Click(int tab);

void Select_Command1_Click();  // OK: takes the selected topic
void Select_Command2_Click();  // Cancel

// The name that is selected; "" while a heading is marked or nothing was found.
[[nodiscard]] std::string_view selectedTopic();

}  // namespace ordwise
