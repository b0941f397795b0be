#include "RealRoots.hpp"

#include <algorithm>

namespace ordwise::exact {
namespace {

constexpr int mostDegree = 24;

Row remainder(Row a, const Row& b) {
    while (a.size() >= b.size()) {
        const Rational factor = a.back() / b.back();
        const std::size_t shift = a.size() - b.size();
        for (std::size_t i = 0; i + 1 < b.size(); ++i) a[i + shift] -= factor * b[i];
        a.pop_back();
        a = trimmedRow(std::move(a));
    }
    return a;
}

// Made small by a positive factor, which changes no sign: the leading coefficient becomes 1 or -1.
Row scaled(Row p) {
    if (p.empty()) return p;
    const Rational size = mp::abs(p.back());
    for (Rational& c : p) {
        c /= size;
        keepSmall(c);
    }
    return p;
}

// p, its derivative, and then each time the remainder with its sign turned.
std::vector<Row> sturmChain(const Row& p) {
    if (degreeOf(p) > mostDegree) throw Undecidable("its exponents are too large to be worked out here");
    std::vector<Row> chain{scaled(p), scaled(derivative(p))};
    while (!chain.back().empty()) {
        Row next = remainder(chain[chain.size() - 2], chain.back());
        for (Rational& c : next) c = -c;
        chain.push_back(scaled(std::move(next)));
    }
    chain.pop_back();
    return chain;
}

int changesOf(const std::vector<int>& signs) {
    int changes = 0;
    int last = 0;
    for (const int sign : signs) {
        if (sign == 0) continue;
        if (last != 0 && sign != last) ++changes;
        last = sign;
    }
    return changes;
}

int signOf(const Rational& r) {
    return r < 0 ? -1 : (r > 0 ? 1 : 0);
}

int changesAt(const std::vector<Row>& chain, const Rational& x) {
    std::vector<int> signs;
    for (const Row& p : chain) signs.push_back(signOf(valueAt(p, x)));
    return changesOf(signs);
}

int changesAtEnd(const std::vector<Row>& chain, bool left) {
    std::vector<int> signs;
    for (const Row& p : chain) {
        const bool turned = left && degreeOf(p) % 2 == 1;
        signs.push_back(turned ? -signOf(p.back()) : signOf(p.back()));
    }
    return changesOf(signs);
}

// Beyond it on either side there is no root.
Rational boundOf(const Row& p) {
    Rational most = 0;
    for (std::size_t i = 0; i + 1 < p.size(); ++i) most = std::max(most, Rational(mp::abs(p[i] / p.back())));
    return most + 1;
}

// A number strictly between, and no root: of a few candidates, since there are only so many roots.
Rational between(const Row& p, const Rational& low, const Rational& high) {
    for (int part = 2;; ++part) {
        const Rational x = low + (high - low) / Rational(part);
        if (valueAt(p, x) != 0) return x;
    }
}

void split(const Row& p, const std::vector<Row>& chain, const Rational& low, const Rational& high,
           std::vector<Rational>& samples) {
    if (changesAt(chain, low) - changesAt(chain, high) <= 1) return;
    const Rational middle = between(p, low, high);
    split(p, chain, low, middle, samples);
    samples.push_back(middle);
    split(p, chain, middle, high, samples);
}

// The whole numbers from 1 on that divide n without rest, as far as they are small.
std::vector<Integer> smallDivisors(const Integer& n) {
    constexpr int largestTried = 200;
    std::vector<Integer> divisors;
    for (int d = 1; d <= largestTried; ++d) {
        if (n % d == 0) divisors.emplace_back(d);
    }
    return divisors;
}

}  // namespace

Row trimmedRow(Row p) {
    while (!p.empty() && p.back() == 0) p.pop_back();
    return p;
}

int degreeOf(const Row& p) {
    return static_cast<int>(p.size()) - 1;
}

Row multiplied(const Row& a, const Row& b) {
    if (a.empty() || b.empty()) return {};
    Row product(a.size() + b.size() - 1, Rational(0));
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < b.size(); ++j) product[i + j] += a[i] * b[j];
    }
    return product;
}

Row derivative(const Row& p) {
    Row d;
    for (std::size_t i = 1; i < p.size(); ++i) d.push_back(p[i] * Rational(i));
    return d;
}

Rational valueAt(const Row& p, const Rational& x) {
    Rational value = 0;
    for (auto c = p.rbegin(); c != p.rend(); ++c) value = value * x + *c;
    return value;
}

Row divided(const Row& a, const Row& b) {
    Row rest = a;
    Row quotient(a.size() >= b.size() ? a.size() - b.size() + 1 : 0, Rational(0));
    while (rest.size() >= b.size()) {
        const std::size_t shift = rest.size() - b.size();
        const Rational factor = rest.back() / b.back();
        quotient[shift] = factor;
        for (std::size_t i = 0; i < b.size(); ++i) rest[i + shift] -= factor * b[i];
        rest = trimmedRow(std::move(rest));
    }
    return quotient;
}

Row greatestCommonDivisor(Row a, Row b) {
    if (std::max(degreeOf(a), degreeOf(b)) > mostDegree)
        throw Undecidable("its exponents are too large to be worked out here");
    while (!b.empty()) {
        Row rest = scaled(remainder(a, b));
        a = std::move(b);
        b = std::move(rest);
    }
    if (a.empty()) return a;
    const Rational lead = a.back();
    for (Rational& c : a) c /= lead;
    return a;
}

Row squareFreePart(const Row& p) {
    const Row shared = greatestCommonDivisor(p, derivative(p));
    return degreeOf(shared) <= 0 ? p : divided(p, shared);
}

Row withoutRootsOf(const Row& p, const Row& q) {
    const Row shared = greatestCommonDivisor(p, q);
    return degreeOf(shared) <= 0 ? p : divided(p, shared);
}

int realRootCount(const Row& p) {
    const std::vector<Row> chain = sturmChain(p);
    return changesAtEnd(chain, true) - changesAtEnd(chain, false);
}

std::optional<Rational> rationalRoot(const Row& p) {
    if (degreeOf(p) < 1) return std::nullopt;
    if (degreeOf(p) == 1) return Rational(-p[0] / p[1]);
    if (p[0] == 0) return Rational(0);
    Integer below = 1;
    for (const Rational& c : p) below = mp::lcm(below, Integer(mp::denominator(c)));
    const Integer constant = mp::numerator(Rational(p.front() * Rational(below)));
    const Integer lead = mp::numerator(Rational(p.back() * Rational(below)));
    for (const Integer& denominator : smallDivisors(lead)) {
        for (const Integer& numerator : smallDivisors(constant)) {
            for (const int sign : {1, -1}) {
                const Rational x(sign * numerator, denominator);
                if (valueAt(p, x) == 0) return x;
            }
        }
    }
    return std::nullopt;
}

std::vector<Rational> samplesAround(const Row& p) {
    const Rational bound = boundOf(p);
    const std::vector<Row> chain = sturmChain(p);
    std::vector<Rational> samples{-bound};
    split(p, chain, -bound, bound, samples);
    samples.push_back(bound);
    return samples;
}

}  // namespace ordwise::exact
