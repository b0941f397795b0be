// Where polynomials in one letter have their real roots, exactly: how many, which they share, and
// what lies between them. No root is ever approximated.
#pragma once

#include "ExactNumber.hpp"

#include <vector>

namespace ordwise::exact {

// Coefficients from the constant up, the last one not 0; empty for 0. e.g. x^2-2 is {-2, 0, 1}
using Row = std::vector<Rational>;

[[nodiscard]] Row trimmedRow(Row p);
[[nodiscard]] int degreeOf(const Row& p);  // -1 for 0
[[nodiscard]] Row multiplied(const Row& a, const Row& b);
[[nodiscard]] Row derivative(const Row& p);
[[nodiscard]] Rational valueAt(const Row& p, const Rational& x);
// The quotient without what remains. Expects b not to be 0.
[[nodiscard]] Row divided(const Row& a, const Row& b);
// Leading coefficient 1; 0 only where both are.
[[nodiscard]] Row greatestCommonDivisor(Row a, Row b);
// The same roots, each once. Expects p not to be 0.
[[nodiscard]] Row squareFreePart(const Row& p);
// The roots of p that are none of q. Expects p not to be 0, each of its roots once.
[[nodiscard]] Row withoutRootsOf(const Row& p, const Row& q);

// How many different real roots p has, by Sturm's theorem. Expects p not to be 0. Undecidable past
// a degree of 24.
[[nodiscard]] int realRootCount(const Row& p);
// A rational root of p where a search among small ones finds one.
[[nodiscard]] std::optional<Rational> rationalRoot(const Row& p);
// Numbers that are no roots, with one on each side of every real root: a function that keeps its sign
// between the roots is known everywhere from its signs at these. Expects p not to be 0.
[[nodiscard]] std::vector<Rational> samplesAround(const Row& p);

}  // namespace ordwise::exact
