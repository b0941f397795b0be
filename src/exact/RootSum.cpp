#include "RootSum.hpp"

namespace ordwise::exact {
namespace {

constexpr std::size_t mostRoots = 16;

// A whole number m with m <= sqrt(r) * 2^bits < m + 1.
Integer scaledRoot(const Integer& r, unsigned bits) {
    return mp::sqrt(Integer(r << (2 * bits)));
}

Integer floorOf(const Rational& r) {
    const Integer above = mp::numerator(r);
    const Integer below = mp::denominator(r);
    const Integer quotient = above / below;
    return above < 0 && quotient * below != above ? Integer(quotient - 1) : quotient;
}

}  // namespace

std::optional<Rational> RootSum::asRational() const {
    if (parts_.empty()) return Rational(0);
    if (parts_.size() == 1 && parts_.begin()->first == 1) return parts_.begin()->second;
    return std::nullopt;
}

// Bounds of the sum, closer and closer until both lie on one side of 0. They get there: a sum with
// parts is not 0.
int RootSum::sign() const {
    if (parts_.empty()) return 0;
    if (parts_.size() == 1) return parts_.begin()->second < 0 ? -1 : 1;
    for (unsigned bits = 32; bits <= 4096; bits *= 2) {
        Rational least = 0;
        Rational most = 0;
        for (const auto& [radicand, coefficient] : parts_) {
            const Integer root = scaledRoot(radicand, bits);
            const Rational low = coefficient * Rational(root);
            const Rational high = coefficient * Rational(root + 1);
            least += coefficient < 0 ? high : low;
            most += coefficient < 0 ? low : high;
        }
        if (floorOf(least) >= 0 && least > 0) return 1;
        if (most < 0) return -1;
    }
    throw Undecidable("its roots lie too close together");
}

RootSum& RootSum::operator+=(const RootSum& b) {
    for (const auto& [radicand, coefficient] : b.parts_) {
        const auto [place, added] = parts_.try_emplace(radicand, coefficient);
        if (added) continue;
        place->second += coefficient;
        keepSmall(place->second);
        if (place->second == 0) parts_.erase(place);
    }
    return *this;
}

RootSum operator-(RootSum a) {
    for (auto& part : a.parts_) part.second = -part.second;
    return a;
}

RootSum operator*(const RootSum& a, const RootSum& b) {
    RootSum product;
    for (const auto& [left, c] : a.parts_) {
        for (const auto& [right, d] : b.parts_) {
            // Both are square-free, so a square in the product is that of what they share.
            const Integer shared = mp::gcd(left, right);
            const Integer inside = (left / shared) * (right / shared);
            RootSum term;
            term.parts_.emplace(inside, c * d * Rational(shared));
            keepSmall(term.parts_.begin()->second);
            product += term;
        }
    }
    if (product.parts_.size() > mostRoots) throw Undecidable("there are too many different roots in it");
    return product;
}

// A root is taken out of the denominator by multiplying with the sum in which it has the other sign,
// one prime after the other.
RootSum RootSum::inverse() const {
    if (isZero()) throw Undefined();
    RootSum above = 1;
    RootSum below = *this;
    for (int round = 0; round < 8; ++round) {
        if (const auto r = below.asRational()) return above * RootSum(Rational(1) / *r);
        if (below.parts_.size() == 1) {
            const auto& [radicand, coefficient] = *below.parts_.begin();
            RootSum root;
            root.parts_.emplace(radicand, Rational(1) / (coefficient * Rational(radicand)));
            return above * root;
        }
        // A factor that stands in some radicands and not in all of them.
        Integer factor = 1;
        for (const auto& part : below.parts_) {
            if (part.first == 1) continue;
            const Integer shared = factor == 1 ? part.first : mp::gcd(factor, part.first);
            if (shared != 1) factor = shared;
        }
        for (const auto& part : below.parts_) {
            const Integer shared = mp::gcd(factor, part.first);
            if (shared != 1 && shared != factor) factor = shared;
        }
        RootSum conjugate;
        for (const auto& [radicand, coefficient] : below.parts_) {
            const bool turns = radicand % factor == 0;
            conjugate.parts_.emplace(radicand, turns ? Rational(-coefficient) : coefficient);
        }
        // Where it stands in all of them nothing would change; dividing it out makes room.
        if (conjugate == -below) {
            RootSum root;
            root.parts_.emplace(factor, Rational(1));
            conjugate = root;
        }
        above = above * conjugate;
        below = below * conjugate;
    }
    throw Undecidable("there are too many different roots below a bar");
}

RootSum RootSum::squareRoot() const {
    const auto r = asRational();
    if (!r) {
        if (sign() < 0) throw Undefined();
        throw Undecidable("there is a root of a root in it");
    }
    if (*r < 0) throw Undefined();
    if (*r == 0) return {};
    // sqrt(p/q) = sqrt(p*q)/q
    const Integer below = mp::denominator(*r);
    const RootParts parts = squareFree(mp::numerator(*r) * below);
    RootSum root;
    root.parts_.emplace(parts.inside, Rational(parts.outside, below));
    return root;
}

std::string RootSum::written() const {
    if (parts_.empty()) return "0";
    std::string all;
    for (const auto& [radicand, coefficient] : parts_) {
        if (!all.empty() && coefficient > 0) all += "+";
        const bool one = radicand != 1 && mp::abs(mp::numerator(coefficient)) == 1 && mp::denominator(coefficient) == 1;
        all += one ? (coefficient < 0 ? "-" : "") : exact::written(coefficient);
        if (radicand != 1) all += "~" + radicand.str();
    }
    return all;
}

}  // namespace ordwise::exact
