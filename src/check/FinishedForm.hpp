// Whether a line is in the form in which the work ends. The order of terms and factors does not count.
#pragma once

#include "CheckTopics.hpp"
#include "MarkupTree.hpp"

namespace ordwise {

// A line without "=". In decimals mode a fraction is not finished. A decimal in fractions mode is left
// to the solver, which may turn it into a fraction: false.
// e.g. Number: "-#7/2#"; Roots: "6+4~2~"; PrimePowers: "2^3^*5"; Polynomial: "27x^2^-#3x/4#+2"
[[nodiscard]] bool isFinishedExpression(const exact::Tree& line, EndForm form, bool decimals);

// An equation: `letter` alone on one side and a finished value on the other, or a number on either. A
// letter of 0 is any.
[[nodiscard]] bool isFinishedEquation(const exact::SidesTree& line, char letter, bool decimals);

// Whether there is a fraction of whole numbers in it that is not in lowest terms.
[[nodiscard]] bool hasUnreducedFraction(const exact::Tree& tree);

// The same for both trees but for the order of terms and factors.
[[nodiscard]] bool areSameInAnyOrder(const exact::Tree& a, const exact::Tree& b);

}  // namespace ordwise
