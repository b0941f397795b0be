// The analysis of the expression's text by side, depth, group and term.
#pragma once

#include "Int16.hpp"

namespace ordwise {

struct ExprStore {
    Int16 MaxDepth;
    Int16 CurrentSide;
    Int16 CurrentDepth;
    Int16 CurrentGroup;
};

// Empties the store for CurrentSide. A shallow reset walks what the last parse used and a margin;
// a deep one a wider margin.
void ResetStore(bool deep);

}  // namespace ordwise
