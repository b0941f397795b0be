// What the answers of the scripted topics are before anything is rounded, from the formula itself.
#pragma once

#include "ExactNumber.hpp"

#include <vector>

namespace ordwise {

// The exact values of the problem on the desk: one, or in topics of circles one for each way of writing
// pi. None where the solver's own answer is exact, is no number or has no end (a square root).
[[nodiscard]] std::vector<exact::Rational> exactAnswers();

}  // namespace ordwise
