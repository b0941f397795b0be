// The first stage of the check: the classes of characters that a topic takes at all.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ordwise {

// Nothing if InputMask lets the key pass, otherwise the reason why not. A mask of 0 lets all pass.
// e.g. "q" in Arithmetic -> "Variables are not allowed in 'Arithmetic'. ..."
// While a line of a solution is typed, what the solver writes in its own lines of the topic passes too.
// e.g. "/" in Solving Equations
[[nodiscard]] std::optional<std::string> maskRefusal(std::string_view key);

}  // namespace ordwise
