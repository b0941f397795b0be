#include "SolutionSet.hpp"

#include <utility>

namespace ordwise::exact {
namespace {

// The numbers that are tried for an example, the plainest first.
constexpr int plainNumbers[] = {2, 3, 1, 4, 5, 0, -1, -2, 6, 7, 8, 9, 10, -3};

Row productOf(const std::vector<Polynomial>& factors) {
    Row all{Rational(1)};
    for (const Polynomial& factor : factors) {
        const Row row = rowOf(factor);
        if (degreeOf(row) > 0) all = multiplied(all, row);
    }
    return all;
}

// Whether every root of a is one of b.
bool isWithin(const Row& a, const Row& b) {
    return realRootCount(greatestCommonDivisor(a, b)) == realRootCount(a);
}

SetRelation relation(bool within, bool around) {
    if (within && around) return SetRelation::Same;
    return within ? SetRelation::Inside : (around ? SetRelation::Around : SetRelation::Neither);
}

}  // namespace

Row rowOf(const Polynomial& p) {
    Row row;
    for (const auto& [exponents, coefficient] : p.terms()) {
        const auto r = coefficient.asRational();
        if (!r) throw Undecidable("there is a root in front of a letter");
        const auto place = static_cast<std::size_t>(exponents[0]);
        if (row.size() <= place) row.resize(place + 1, Rational(0));
        row[place] = *r;
    }
    return trimmedRow(std::move(row));
}

SolutionSet solutionsOf(const SidesTree& equation, const Letters& letters, Effort& effort) {
    Evaluator evaluator(letters, effort);
    const Quotient left = evaluator.valueOf(equation.left);
    const Quotient right = evaluator.valueOf(equation.right);
    const Quotient difference = sum(left, negated(right), effort);
    const auto constant = difference.asConstant();
    if (constant && !constant->isZero()) return {};
    const Row poles = squareFreePart(productOf(evaluator.divisors));
    const Row row = rowOf(difference.above);
    if (row.empty()) return {true, poles};
    return {false, withoutRootsOf(squareFreePart(row), poles)};
}

SetRelation relationOf(const SolutionSet& a, const SolutionSet& b) {
    if (a.allBut && b.allBut) return relation(isWithin(a.roots, b.roots), isWithin(b.roots, a.roots));
    if (!a.allBut && !b.allBut) return relation(isWithin(b.roots, a.roots), isWithin(a.roots, b.roots));
    // Finitely many against all but finitely many: within, or neither.
    const bool apart = realRootCount(greatestCommonDivisor(a.roots, b.roots)) == 0;
    if (!apart) return SetRelation::Neither;
    return a.allBut ? SetRelation::Inside : SetRelation::Around;
}

bool holds(const SolutionSet& set, const Rational& x) {
    return (valueAt(set.roots, x) == 0) != set.allBut;
}

std::optional<Rational> rationalDifference(const SolutionSet& a, const SolutionSet& b) {
    for (const SolutionSet* set : {&a, &b}) {
        const SolutionSet& other = set == &a ? b : a;
        if (set->allBut) continue;
        Row left = set->roots;
        while (const auto root = rationalRoot(left)) {
            if (holds(*set, *root) && !holds(other, *root)) return root;
            left = divided(left, Row{Rational(-*root), Rational(1)});
        }
    }
    for (const int x : plainNumbers) {
        if (holds(a, x) != holds(b, x)) return Rational(x);
    }
    return std::nullopt;
}

}  // namespace ordwise::exact
