// The equation that a solve hands to the graph: reading its tokens and working out its points.
#pragma once

#include "GraphWindow.hpp"
#include "Workspace.hpp"

#include <optional>

namespace ordwise {

// Reads the tokens up to the first empty slot, at most 100 of them: signs, numbers and fractions,
// letters, "^" with an exponent, groups in "(" ")" or "|" "|". A missing coefficient or exponent
// counts as 1. Empty for anything but an equation with one term of y, or one of x alone, on its left.
// e.g. + 1/1 y ^ + 1 = - 2/3 x + 2/1 -> y = -2/3 x + 2
[[nodiscard]] std::optional<GraphEquation> readEquation(const TokenArray& tokens);

// True for x = c.
[[nodiscard]] bool isVertical(const GraphEquation& equation);
// True where y follows x in one straight line.
[[nodiscard]] bool isStraight(const GraphEquation& equation);
// True where x has a negative exponent: the curve falls apart at 0.
[[nodiscard]] bool isBrokenAtZero(const GraphEquation& equation);
// Of y; 2 gives a curve two branches.
[[nodiscard]] bool hasTwoBranches(const GraphEquation& equation);

// The value of y at x, of the lower or the upper branch. Faults where there is none: a root of a
// negative number (6), a division by zero (11 or 6). e.g. y=2x+3 at 4 -> 11
[[nodiscard]] double valueAt(const GraphEquation& equation, double x, bool lowerBranch);
// The c of x = c.
[[nodiscard]] double placeOfVertical(const GraphEquation& equation);

}  // namespace ordwise
