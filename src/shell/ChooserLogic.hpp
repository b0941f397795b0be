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

// The search box: selects the first entry that starts with the text, whatever the case of its
// letters; without one the selection stays. e.g. "solv" -> "Solving Equations"
void SelectText_Change(std::string_view typed);
// Enter takes the topic that is selected in the list.
void SelectText_KeyDown(ChooserKey key);

// The list: a click or an arrow selects, Enter or a double click takes.
void IndexList_Click(int index);
void IndexList_DblClick();
void IndexList_KeyDown(ChooserKey key);
// After a key the search box repeats the selected name.
void IndexList_KeyUp();

// The tree: a topic is taken, a heading leaves the chooser open.
void TreeView_NodeClick(std::string_view text);
// `current` is the text of the node that is marked in the tree.
void TreeView_KeyDown(ChooserKey key, std::string_view current);

// The tab's own keys: only Esc means something.
void SelectTab_KeyDown(ChooserKey key);
void SelectTab_Click(int tab);

// The name that is selected in the list.
[[nodiscard]] std::string_view selectedTopic();

}  // namespace ordwise
