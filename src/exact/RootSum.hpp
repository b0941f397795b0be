// Sums of rational multiples of square roots, e.g. 1/2+3~2~, exactly.
#pragma once

#include "ExactNumber.hpp"

#include <map>

namespace ordwise::exact {

// Held as radicand -> coefficient: radicands without square factors, 1 for the plain number, no
// coefficient 0. Square roots of different such radicands are linearly independent, so two sums are
// equal exactly when their parts are.
class RootSum {
public:
    RootSum() = default;  // 0
    RootSum(const Rational& r) {
        if (r != 0) parts_.emplace(1, r);
    }
    RootSum(int n) : RootSum(Rational(n)) {}

    [[nodiscard]] bool isZero() const { return parts_.empty(); }
    [[nodiscard]] std::optional<Rational> asRational() const;
    [[nodiscard]] const std::map<Integer, Rational>& parts() const { return parts_; }
    [[nodiscard]] int sign() const;  // -1, 0 or 1

    RootSum& operator+=(const RootSum& b);
    friend RootSum operator+(RootSum a, const RootSum& b) { return a += b; }
    friend RootSum operator-(RootSum a);
    friend RootSum operator-(const RootSum& a, const RootSum& b) { return a + (-b); }
    friend RootSum operator*(const RootSum& a, const RootSum& b);
    bool operator==(const RootSum& b) const { return parts_ == b.parts_; }

    // Undefined for 0; Undecidable for a sum of more roots than are worth rationalising.
    [[nodiscard]] RootSum inverse() const;
    // Undefined below 0; Undecidable for the root of a sum with roots.
    [[nodiscard]] RootSum squareRoot() const;

    // As a student types it. e.g. 1/2+3~2
    [[nodiscard]] std::string written() const;

private:
    std::map<Integer, Rational> parts_;
};

}  // namespace ordwise::exact
