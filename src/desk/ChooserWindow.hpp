// frmSelect, the chooser of problem types, as plain data: a search box over two tabs, the tree of
// headings and topics and the alphabetical list.
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
    };

    bool Loaded = false;
    bool Cancelled = false;  // no choice was made yet; a window that closes so keeps the old problem
    Control Label1;
    Control Text1;   // the search box
    int SSTab1 = 0;  // the tab in view: 0 the tree, 1 the list
    std::vector<Node> TreeView1;
    ComboControl IndexList;
};

extern ChooserWindow frmSelect;

}  // namespace ordwise
