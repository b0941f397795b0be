// What the controls of frmPracticeTest do.
#pragma once

#include "PracticeTest.hpp"

#include <string_view>

namespace ordwise {

// Opens the window: empty outline, three problems a section, the usual heading with today's date.
// Name line, room and columns stay as they were chosen.
void PracticeTest_Load();
void PracticeTest_Unload();

// The search box: tree and list show what it finds, and Enter brings the best match into the outline.
// Where it finds nothing a line says so, and Enter does nothing.
void PracticeSearch_Change(std::string_view typed);
void PracticeSearch_Enter();

// A topic of the list was checked or unchecked: it comes into the outline, or goes.
void PracticeIndexList_ItemCheck(int item);

// A node of the tree was clicked: its topic comes into the outline, a heading adds nothing. While the
// arrow keys walk through the tree nothing is taken.
void PracticeTree_NodeClick(std::string_view text);
// A key in the tree by its code: the arrows (38 to 40) walk, Enter (13) takes the node in view.
void PracticeTree_KeyDown(int keyCode, std::string_view current);

// The mouse takes over from the arrow keys: the next click on a node counts.
void PracticeTree_MouseDown();

void PracticeCommand4_Click(int section);  // "Clear"
void PracticeCommand2_Click();             // "Create Practice Test": opens the preview
void PracticeCommand1_Click();             // "Cancel"

// The test that the window describes. A seed that is no number, or none, draws a new one.
[[nodiscard]] TestPlan planOfWindow();

}  // namespace ordwise
