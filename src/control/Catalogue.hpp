// The catalogue of problem types, as the chooser shows them and as the logic meets them through
// ProblemType. One table of data serves the chooser's tree and list, the terminal and the tests.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

struct TopicRow {
    int code;               // ProblemType
    std::string_view name;  // the key, compared exactly
    std::string_view mask;  // 14 characters "0" or "1", leftmost 8192; "" leaves InputMask alone
    int maxDigits = 5;
    int equationMode = 0;
    bool graphable = false;
};

// The hint of all topics with these codes; unused places are 0.
struct HintRow {
    int codes[13];
    std::string_view text;
};

// A heading of the tree (with a key) or a topic under a heading (without). Top level: no parent.
struct TreeRow {
    std::string_view parent;
    std::string_view key;
    std::string_view text;
};

[[nodiscard]] std::span<const TopicRow> topicTable();
[[nodiscard]] std::span<const HintRow> hintTable();
[[nodiscard]] std::span<const TreeRow> topicTree();

// The row of a name; null if the name is in no row, as the headings' names are.
[[nodiscard]] const TopicRow* findTopic(std::string_view name);
// The names of the tree in its order, and the same in alphabetical order for the chooser's list.
[[nodiscard]] std::vector<std::string_view> topicNames();
[[nodiscard]] std::vector<std::string_view> indexList();
// The hint of a topic. Topics without a hint of their own get one with a random number in it.
[[nodiscard]] std::string hintOf(int code);

// Makes a topic the problem: the only writer of the problem identity. A name that is in no row
// gives code 0 and the chooser stays open. With `lookupOnly` the limits are set but neither
// TopicName nor HintText, and no window is closed.
void TreeViewSelect(std::string_view name, bool lookupOnly = false);

}  // namespace ordwise
