// What the boxes of a topic are called where their captions cannot be seen.
#pragma once

#include <string>

namespace ordwise {

// The name of that box of the current topic: its caption, or what the formula of the topic calls it.
// e.g. "height" or "a"; in a proportion "left numerator"; "Box 1" for a box that the topic does not show
[[nodiscard]] std::string boxName(int number);

}  // namespace ordwise
