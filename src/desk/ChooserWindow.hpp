// frmSelect, the chooser of problem types, as plain data: a search box over two tabs, the tree of
// headings and topics and the list, both with only what the search box has found.
#pragma once

#include "Windows.hpp"

#include <string>
#include <vector>

namespace ordwise {

struct ChooserWindow {
    // A heading ("book1") or a topic ("book2"); the parent is the key of a heading or "".
    struct Node {
        std::string Parent;
        std::string Key;
        std::string Text;
        std::string Image;
        bool Shown = true;  // a topic that was found, or a heading with one below it
    };

    bool Loaded = false;
    bool Cancelled = false;  // no choice was made yet; a window that closes so keeps the old problem
    Control Label1;
    Control Text1;   // the search box
    Control Label2;  // says that nothing was found
    int SSTab1 = 0;  // the tab in view: 0 the tree, 1 the list
    std::vector<Node> TreeView1;
    ComboControl IndexList;  // the best match first; index -1 where nothing can be taken
    Control Command1;        // "OK"
    Control Command2;        // "Cancel"
};

extern ChooserWindow frmSelect;

}  // namespace ordwise
