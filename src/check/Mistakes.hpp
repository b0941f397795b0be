// Mistakes by name. A rule makes, from a line that was right, the lines that a classic slip would make
// of it; a student's line that says the same as one of these is told the slip.
#pragma once

#include "LineVerdict.hpp"
#include "Slip.hpp"

namespace ordwise {

// The mistake that leads from the line before to this one; nothing where none is known. Expects a line
// that was judged not to follow.
[[nodiscard]] std::optional<Slip> recognisedSlip(const std::string& before, const std::string& line,
                                                 const LineRules& rules);

}  // namespace ordwise
