#include "TopicSearch.hpp"

#include "Catalogue.hpp"
#include "TextTools.hpp"

#include <algorithm>
#include <set>

namespace ordwise {
namespace {

bool holdsAll(std::string_view name, const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(), [&](const std::string& word) { return contains(name, word); });
}

}  // namespace

std::vector<std::string_view> topicsFound(std::string_view typed) {
    const std::string start = lowered(trimmed(typed));
    const std::vector<std::string> words = split(start, ' ');
    std::vector<std::string_view> found = indexList();
    std::erase_if(found, [&](std::string_view name) { return !holdsAll(lowered(name), words); });
    std::stable_partition(found.begin(), found.end(),
                          [&](std::string_view name) { return lowered(name).starts_with(start); });
    return found;
}

std::string searchNews(std::string_view typed, bool anyFound) {
    return anyFound ? "" : "No topic has \"" + trimmed(typed) + "\" in its name.";
}

void showInTree(std::vector<ChooserWindow::Node>& tree, const std::vector<std::string_view>& found) {
    const std::set<std::string_view> topics(found.begin(), found.end());
    std::set<std::string_view> headings;
    // From the end: a heading stands above everything that belongs to it.
    for (auto node = tree.rbegin(); node != tree.rend(); ++node) {
        node->Shown = node->Key.empty() ? topics.contains(node->Text) : headings.contains(node->Key);
        if (node->Shown) headings.insert(node->Parent);
    }
}

}  // namespace ordwise
