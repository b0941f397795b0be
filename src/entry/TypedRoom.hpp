// How much of its line a typed text takes.
#pragma once

#include <optional>
#include <string_view>

namespace ordwise {

// A line that goes too far goes on in the next row, as on the paper, or is measured in one.
enum class TypedRows { One, Several };

// Where a typed line of markup ends by the measure that limits typing. It is the measure under which
// problems have been typed and saved, closer than the line is drawn: signs are as wide as a letter
// there, and the shorter half of a fraction is moved by blanks. So a wider sign on the paper takes no
// key away from anybody, and every saved problem can be opened. Nothing for a line that cannot be drawn.
[[nodiscard]] std::optional<double> typedEnd(std::string_view markup, TypedRows rows = TypedRows::Several);

}  // namespace ordwise
