// Whether what stands on the paper can be handed to Solve.
#pragma once

#include "CanonicalRewrite.hpp"

namespace ordwise {

// Expects the cells of the last rewrite in CanonIn. It keeps out unfinished text; it does not
// promise that a topic can make something of it ("x^" is ready).
[[nodiscard]] bool solveIsReady(const RewriteFacts& facts);

}  // namespace ordwise
