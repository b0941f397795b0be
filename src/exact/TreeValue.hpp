// What a tree is worth: a fraction of polynomials in its letters.
#pragma once

#include "MarkupTree.hpp"
#include "Polynomial.hpp"

#include <map>
#include <optional>
#include <vector>

namespace ordwise::exact {

// Computes values and keeps what it met on the way. Throws Undefined and Undecidable.
class Evaluator {
public:
    Evaluator(const Letters& letters, Effort& effort) : letters_(letters), effort_(effort) {}

    [[nodiscard]] Quotient valueOf(const Tree& tree);

    // Where a line has one letter and bars with it: what stands between the bars has the sign that it
    // has here. Without it such bars are Undecidable.
    std::optional<Rational> sample;
    std::vector<Polynomial> divisors;     // what was divided by: a solution makes none of them 0
    std::vector<Polynomial> barContents;  // the numerators and denominators of what stands between bars

private:
    [[nodiscard]] Quotient root(const Quotient& inside) const;
    [[nodiscard]] Quotient bars(const Quotient& inside);
    [[nodiscard]] Quotient over(const Quotient& above, const Quotient& below);

    const Letters& letters_;
    Effort& effort_;
};

// The tree with numbers in place of letters.
[[nodiscard]] Tree withValues(const Tree& tree, const std::map<char, Rational>& values);
// Whether a letter stands between bars.
[[nodiscard]] bool hasLetterInBars(const Tree& tree);

// A value as a student types it; the letters have their places' names. e.g. 7/2, 2~3
[[nodiscard]] std::string written(const RootSum& value, bool decimals);

}  // namespace ordwise::exact
