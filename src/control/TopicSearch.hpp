// Finding a topic by what is typed of its name, for every window that offers the catalogue.
#pragma once

#include "ChooserWindow.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// The topics that the text finds, the best match first: names that begin with it, then names that
// hold all its words, each in alphabetical order. Case does not matter. All topics for no text.
// e.g. "equation" -> "Graphing A Linear Equation", "Solving Equations"
[[nodiscard]] std::vector<std::string_view> topicsFound(std::string_view typed);

// What the window says of a search: "" as long as anything is found.
[[nodiscard]] std::string searchNews(std::string_view typed, bool anyFound);

// Leaves in sight the found topics and the headings above them.
void showInTree(std::vector<ChooserWindow::Node>& tree, const std::vector<std::string_view>& found);

}  // namespace ordwise
