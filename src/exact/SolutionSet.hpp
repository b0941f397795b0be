// The numbers that solve an equation in one letter, without ever computing an irrational one.
#pragma once

#include "RealRoots.hpp"
#include "TreeValue.hpp"

namespace ordwise::exact {

// The real roots of `roots`, or every number but these.
struct SolutionSet {
    bool allBut = false;
    Row roots{Rational(1)};  // never 0, each root once
};

// Expects one letter or none. Undecidable where a coefficient is no rational number.
[[nodiscard]] SolutionSet solutionsOf(const SidesTree& equation, const Letters& letters, Effort& effort);

enum class SetRelation { Same, Inside, Around, Neither };
// How `b` lies to `a`. e.g. Inside: each of b's is one of a's, and a has more
[[nodiscard]] SetRelation relationOf(const SolutionSet& a, const SolutionSet& b);
[[nodiscard]] bool holds(const SolutionSet& set, const Rational& x);
// A rational number that is in one of them and not in the other, small where there is a small one.
[[nodiscard]] std::optional<Rational> rationalDifference(const SolutionSet& a, const SolutionSet& b);

// The coefficients of a polynomial in one letter or none.
[[nodiscard]] Row rowOf(const Polynomial& p);

}  // namespace ordwise::exact
