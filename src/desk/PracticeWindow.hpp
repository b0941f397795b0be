// frmPracticeTest as plain data: the outline of a test of up to ten sections, on a tab beside the
// topics to choose from, and how the test is to be headed, answered and varied.
#pragma once

#include "ChooserWindow.hpp"
#include "LoadedFlag.hpp"
#include "Windows.hpp"

#include <string>
#include <vector>

namespace ordwise {

struct PracticeTestWindow {
    static constexpr int lastSection = 9;

    struct ListItem {
        std::string Text;
        bool Checked = false;  // the topic is in the outline
        bool Shown = true;     // the search has found it
    };

    LoadedFlag Loaded;
    bool ArrowKeyNavigation = false;  // the tree is walked by its arrow keys, so nodes are not taken
    int SSTab1 = 0;
    std::vector<ChooserWindow::Node> TreeView1;
    std::vector<ListItem> IndexList;  // all topics in alphabetical order
    Control Search;                   // the search box above both
    std::string Found;                // the best match of the search, "" for none
    Control Label1;                   // says that nothing was found

    BoundedArray<Control, lastSection> Text4;        // the section's topic, "" for a free slot
    BoundedArray<ComboControl, lastSection> Combo1;  // its number of problems
    BoundedArray<Control, lastSection> Check1;       // "Complex"
    BoundedArray<Control, lastSection> Command4;     // "Clear"

    Control Text1, Text2, Text3;  // the heading of the test, in HalvernFont
    ComboControl AnswerKey;       // none, the answers, or the answers with all steps
    ComboControl Versions;        // one, or A and B, or A, B and C
    Control NameLine;             // "Name line": room for name, date and class on each test
    ComboControl Space;           // to work in below each problem
    ComboControl Columns;         // of problems, side by side where they are short
    Control Seed;                 // makes the same test again; empty draws a new one
    Control Command2;             // "Create Practice Test"
    Control Command1;             // "Cancel"

    PracticeTestWindow();
};

extern PracticeTestWindow frmPracticeTest;

}  // namespace ordwise
