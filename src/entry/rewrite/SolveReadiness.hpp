// Whether what stands on the paper can be handed to Solve.
#pragma once

#include "CanonicalRewrite.hpp"

#include <string>

namespace ordwise {

// Expects the cells of the last rewrite in CanonIn. It keeps out unfinished text; it does not
// promise that a topic can make something of it ("x^" is ready).
[[nodiscard]] bool solveIsReady(const RewriteFacts& facts);

// What keeps it from being ready, in a sentence; "" for what is ready. Expects the same.
// e.g. "(3+" -> "The problem is not finished: there must be a number behind the '+', and a parenthesis
// is still open."
[[nodiscard]] std::string whatIsMissing(const RewriteFacts& facts);

}  // namespace ordwise
