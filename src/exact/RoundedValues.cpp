#include "RoundedValues.hpp"

#include <algorithm>
#include <utility>

namespace ordwise::exact {
namespace {

constexpr std::size_t mostValues = 24;

// A number that a single prints with all its digits needs no rounding.
bool fitsSingle(const Rational& r) {
    const Integer limit = 10000000;
    const Integer below = mp::denominator(r);
    return below == 1 && mp::abs(mp::numerator(r)) < limit;
}

// The ways to round one number, itself first.
std::vector<Rational> waysToRound(const Rational& r, const Rounding& rounding) {
    std::vector<Rational> ways{r};
    const auto add = [&](const Rational& way) {
        if (std::find(ways.begin(), ways.end(), way) == ways.end()) ways.push_back(way);
    };
    if (fitsSingle(r)) return ways;
    constexpr int allPlaces = 15;
    if (rounding.decimals) {
        add(rounded(r, rounding.places));
        add(asSingle(r, rounding.places));
    }
    // A fraction stays one; a decimal of more digits than print is cut to those that do.
    if (rounding.decimals || writtenDecimal(r, allPlaces)) add(asSingle(r, allPlaces));
    return ways;
}

// The same for all coefficients at once; a fraction with letters below is left alone.
std::vector<Quotient> waysToRound(const Quotient& q, const Rounding& rounding) {
    std::vector<Quotient> ways{q};
    if (!q.below.asConstant()) return ways;
    for (std::size_t way = 1; way < 4; ++way) {
        Quotient other = q;
        bool changed = false;
        for (auto& [exponents, coefficient] : other.above.terms()) {
            const auto r = coefficient.asRational();
            if (!r) continue;
            const auto choices = waysToRound(*r, rounding);
            if (way >= choices.size()) continue;
            coefficient = RootSum(choices[way]);
            changed = true;
        }
        if (!changed) break;
        Polynomial clean;
        for (const auto& [exponents, coefficient] : other.above.terms()) {
            if (coefficient.isZero()) continue;
            Polynomial term;
            term.terms().emplace(exponents, coefficient);
            clean += term;
        }
        ways.push_back({clean, q.below});
    }
    return ways;
}

class Values {
public:
    Values(const Rounding& rounding, const Letters& letters, Effort& effort)
        : rounding_(rounding), letters_(letters), effort_(effort) {}

    std::vector<Quotient> of(const Tree& tree) {
        switch (tree.kind) {
            case Kind::Number:
            case Kind::Letter: return {Evaluator(letters_, effort_).valueOf(tree)};
            case Kind::Group: return of(tree.children.front());
            case Kind::Sum:
            case Kind::Product: return folded(tree);
            default: return each(tree);
        }
    }

private:
    void add(std::vector<Quotient>& values, const Quotient& value) {
        for (const Quotient& way : waysToRound(value, rounding_)) {
            const bool known = std::any_of(values.begin(), values.end(), [&](const Quotient& other) {
                return other.above == way.above && other.below == way.below;
            });
            if (!known && values.size() < mostValues) values.push_back(way);
        }
    }

    std::vector<Quotient> folded(const Tree& tree) {
        std::vector<Quotient> all = of(tree.children.front());
        for (std::size_t i = 1; i < tree.children.size(); ++i) {
            const std::vector<Quotient> next = of(tree.children[i]);
            std::vector<Quotient> both;
            for (const Quotient& a : all) {
                for (const Quotient& b : next)
                    add(both, tree.kind == Kind::Sum ? sum(a, b, effort_) : product(a, b, effort_));
            }
            all = std::move(both);
        }
        return all;
    }

    // One or two children, each with its values.
    std::vector<Quotient> each(const Tree& tree) {
        std::vector<Quotient> all;
        const std::vector<Quotient> first = of(tree.children.front());
        const std::vector<Quotient> second =
            tree.children.size() > 1 ? of(tree.children[1]) : std::vector<Quotient>{{1, 1}};
        for (const Quotient& a : first) {
            for (const Quotient& b : second) addOne(all, tree, a, b);
        }
        if (all.empty()) throw Undefined();
        return all;
    }

    void addOne(std::vector<Quotient>& all, const Tree& tree, const Quotient& a, const Quotient& b) {
        switch (tree.kind) {
            case Kind::Negated: all.push_back(negated(a)); break;
            case Kind::Power: add(all, power(a, tree.exponent, effort_)); break;
            case Kind::Root: add(all, {Polynomial(constantOf(a).squareRoot()), 1}); break;
            case Kind::Bars: all.push_back(constantOf(a).sign() < 0 ? negated(a) : a); break;
            default:
                if (!b.above.isZero()) add(all, product(a, inverse(b), effort_));
                break;
        }
    }

    static RootSum constantOf(const Quotient& q) {
        const auto constant = q.asConstant();
        if (!constant) throw Undecidable("there is a letter under a root or between bars");
        return *constant;
    }

    const Rounding& rounding_;
    const Letters& letters_;
    Effort& effort_;
};

bool isRoundedNumber(const RootSum& exact, const RootSum& written, const Rounding& rounding) {
    if (exact == written) return true;
    const auto a = exact.asRational();
    const auto b = written.asRational();
    if (!a || !b) return false;
    const auto ways = waysToRound(*a, rounding);
    return std::find(ways.begin(), ways.end(), *b) != ways.end();
}

}  // namespace

std::vector<Quotient> roundedValues(const Tree& tree, const Rounding& rounding, const Letters& letters,
                                    Effort& effort) {
    return Values(rounding, letters, effort).of(tree);
}

bool isRounded(const Quotient& exact, const Quotient& written, const Rounding& rounding, Effort& effort) {
    if (equal(exact, written, effort)) return true;
    if (!exact.below.asConstant() || !written.below.asConstant()) return false;
    const auto coefficientOf = [](const Polynomial& p, const Exponents& exponents) {
        const auto found = p.terms().find(exponents);
        return found == p.terms().end() ? RootSum() : found->second;
    };
    const auto agrees = [&](const auto& term) {
        return isRoundedNumber(coefficientOf(exact.above, term.first), coefficientOf(written.above, term.first),
                               rounding);
    };
    return std::all_of(exact.above.terms().begin(), exact.above.terms().end(), agrees) &&
           std::all_of(written.above.terms().begin(), written.above.terms().end(), agrees);
}

}  // namespace ordwise::exact
