#include "Polynomial.hpp"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace ordwise::exact {
namespace {

constexpr std::size_t mostTerms = 300;
constexpr int mostDegree = 200;

long termsOf(const Polynomial& p) {
    return static_cast<long>(std::max<std::size_t>(1, p.terms().size()));
}

void keepShort(const Polynomial& p) {
    if (p.terms().size() > mostTerms || p.degree() > mostDegree)
        throw Undecidable("it is too long to be worked out here");
}

// A denominator without letters is made 1, so that sums of plain fractions stay small.
Quotient tidy(Quotient q, Effort& effort) {
    const auto below = q.below.asConstant();
    if (!below || *below == RootSum(1)) return q;
    return {Polynomial::product(q.above, Polynomial(below->inverse()), effort), 1};
}

}  // namespace

Letters::Letters(std::string letters) : letters_(std::move(letters)) {
    std::sort(letters_.begin(), letters_.end());
    letters_.erase(std::unique(letters_.begin(), letters_.end()), letters_.end());
    if (letters_.size() > mostLetters) throw Undecidable("there are more than three letters in it");
}

std::size_t Letters::placeOf(char letter) const {
    return letters_.find(letter);
}

Polynomial::Polynomial(const RootSum& constant) {
    if (!constant.isZero()) terms_.emplace(Exponents{}, constant);
}

Polynomial Polynomial::letter(std::size_t place) {
    Polynomial p;
    Exponents exponents{};
    exponents.at(place) = 1;
    p.terms_.emplace(exponents, RootSum(1));
    return p;
}

std::optional<RootSum> Polynomial::asConstant() const {
    if (terms_.empty()) return RootSum();
    if (terms_.size() == 1 && terms_.begin()->first == Exponents{}) return terms_.begin()->second;
    return std::nullopt;
}

int Polynomial::degree() const {
    int degree = 0;
    for (const auto& term : terms_) degree = std::max(degree, std::accumulate(term.first.begin(), term.first.end(), 0));
    return degree;
}

bool Polynomial::holds(std::size_t place) const {
    return std::any_of(terms_.begin(), terms_.end(), [&](const auto& term) { return term.first.at(place) != 0; });
}

RootSum Polynomial::at(const std::vector<Rational>& point) const {
    RootSum total;
    for (const auto& [exponents, coefficient] : terms_) {
        Rational factor = 1;
        for (std::size_t i = 0; i < point.size(); ++i) factor *= exact::power(point[i], exponents.at(i));
        total += coefficient * RootSum(factor);
    }
    return total;
}

Polynomial Polynomial::with(std::size_t place, const Rational& value) const {
    Polynomial result;
    for (const auto& [exponents, coefficient] : terms_) {
        Polynomial term;
        Exponents left = exponents;
        left.at(place) = 0;
        const RootSum factor = coefficient * RootSum(exact::power(value, exponents.at(place)));
        if (!factor.isZero()) term.terms_.emplace(left, factor);
        result += term;
    }
    return result;
}

Polynomial& Polynomial::operator+=(const Polynomial& b) {
    for (const auto& [exponents, coefficient] : b.terms_) {
        const auto [place, added] = terms_.try_emplace(exponents, coefficient);
        if (added) continue;
        place->second += coefficient;
        if (place->second.isZero()) terms_.erase(place);
    }
    return *this;
}

Polynomial operator-(Polynomial a) {
    for (auto& term : a.terms_) term.second = -term.second;
    return a;
}

Polynomial Polynomial::product(const Polynomial& a, const Polynomial& b, Effort& effort) {
    effort.spend(termsOf(a) * termsOf(b));
    Polynomial result;
    for (const auto& [left, c] : a.terms_) {
        Polynomial row;
        for (const auto& [right, d] : b.terms_) {
            Exponents exponents{};
            std::transform(left.begin(), left.end(), right.begin(), exponents.begin(), std::plus<>());
            row.terms_.emplace(exponents, c * d);
        }
        result += row;
    }
    keepShort(result);
    return result;
}

bool areProportional(const Polynomial& a, const Polynomial& b) {
    if (a.isZero() || b.isZero()) return a.isZero() && b.isZero();
    if (a.terms().size() != b.terms().size()) return false;
    const RootSum& c = a.terms().begin()->second;
    const RootSum& d = b.terms().begin()->second;
    return std::equal(a.terms().begin(), a.terms().end(), b.terms().begin(), [&](const auto& left, const auto& right) {
        return left.first == right.first && left.second * d == right.second * c;
    });
}

std::optional<RootSum> Quotient::asConstant() const {
    const auto a = above.asConstant();
    const auto b = below.asConstant();
    if (!a || !b) return std::nullopt;
    return *a * b->inverse();
}

std::optional<RootSum> Quotient::at(const std::vector<Rational>& point) const {
    const RootSum b = below.at(point);
    if (b.isZero()) return std::nullopt;
    return above.at(point) * b.inverse();
}

Quotient sum(const Quotient& a, const Quotient& b, Effort& effort) {
    if (a.below == b.below) return {a.above + b.above, a.below};
    return tidy({Polynomial::product(a.above, b.below, effort) + Polynomial::product(b.above, a.below, effort),
                 Polynomial::product(a.below, b.below, effort)},
                effort);
}

Quotient negated(const Quotient& a) {
    return {-a.above, a.below};
}

Quotient product(const Quotient& a, const Quotient& b, Effort& effort) {
    return tidy({Polynomial::product(a.above, b.above, effort), Polynomial::product(a.below, b.below, effort)}, effort);
}

Quotient inverse(const Quotient& a) {
    if (a.above.isZero()) throw Undefined();
    Effort effort;
    return tidy({a.below, a.above}, effort);
}

Quotient power(const Quotient& a, int exponent, Effort& effort) {
    if (const auto constant = a.asConstant()) {
        if (const auto r = constant->asRational()) return {Polynomial(exact::power(*r, exponent)), 1};
    }
    if (exponent < 0) return power(inverse(a), -exponent, effort);
    Quotient result{1, 1};
    Quotient square = a;
    for (int left = exponent; left > 0; left /= 2) {
        if (left % 2 == 1) result = product(result, square, effort);
        if (left > 1) square = product(square, square, effort);
    }
    return result;
}

bool equal(const Quotient& a, const Quotient& b, Effort& effort) {
    if (a.below == b.below) return a.above == b.above;
    return Polynomial::product(a.above, b.below, effort) == Polynomial::product(b.above, a.below, effort);
}

}  // namespace ordwise::exact
