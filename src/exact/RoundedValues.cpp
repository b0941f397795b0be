#include "RoundedValues.hpp"

#include <algorithm>
#include <utility>

namespace ordwise::exact {
namespace {

constexpr std::size_t mostValues = 24;
constexpr std::size_t mostProducts = 16;

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

// A sum of terms, where one term at most stands below the bar: its coefficients by their exponents, those
// from below the bar negative. Nothing for a fraction with a sum below.
using Terms = std::map<Exponents, RootSum>;

std::optional<Terms> termsOf(const Quotient& q) {
    if (q.below.terms().size() != 1) return std::nullopt;
    const auto& [below, divisor] = *q.below.terms().begin();
    const RootSum factor = divisor.inverse();
    Terms terms;
    for (const auto& [above, coefficient] : q.above.terms()) {
        Exponents exponents{};
        std::transform(above.begin(), above.end(), below.begin(), exponents.begin(), std::minus<>());
        terms.emplace(exponents, coefficient * factor);
    }
    return terms;
}

Quotient quotientOf(const Terms& terms) {
    Exponents most{};
    for (const auto& term : terms) {
        for (std::size_t i = 0; i < most.size(); ++i) most.at(i) = std::max(most.at(i), -term.first.at(i));
    }
    Quotient q;
    q.below = Polynomial();
    q.below.terms().emplace(most, RootSum(1));
    for (const auto& [exponents, coefficient] : terms) {
        if (coefficient.isZero()) continue;
        Exponents above{};
        std::transform(exponents.begin(), exponents.end(), most.begin(), above.begin(), std::plus<>());
        q.above.terms().emplace(above, coefficient);
    }
    return q;
}

// The same for all coefficients at once.
std::vector<Quotient> waysToRound(const Quotient& q, const Rounding& rounding) {
    constexpr std::size_t mostWays = 4;
    std::vector<Quotient> ways{q};
    const auto terms = termsOf(q);
    if (!terms) return ways;
    for (std::size_t way = 1; way < mostWays; ++way) {
        Terms other = *terms;
        bool changed = false;
        for (auto& entry : other) {
            const auto r = entry.second.asRational();
            if (!r) continue;
            const auto choices = waysToRound(*r, rounding);
            if (way >= choices.size()) continue;
            entry.second = RootSum(choices[way]);
            changed = true;
        }
        if (!changed) break;
        ways.push_back(quotientOf(other));
    }
    return ways;
}

class Values {
public:
    // With `always` every result is rounded, and there is one value.
    Values(const Rounding& rounding, const Letters& letters, Effort& effort, bool always = false)
        : rounding_(rounding), letters_(letters), effort_(effort), always_(always) {}

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
        const std::vector<Quotient> ways = waysToRound(value, rounding_);
        if (always_) return values.push_back(ways[ways.size() > 1 ? 1 : 0]);
        for (const Quotient& way : ways) {
            const bool known = std::any_of(values.begin(), values.end(), [&](const Quotient& other) {
                return other.above == way.above && other.below == way.below;
            });
            if (!known && values.size() < mostValues) values.push_back(way);
        }
    }

    std::vector<Quotient> folded(const Tree& tree) {
        std::vector<std::vector<Quotient>> children;
        for (const Tree& child : tree.children) children.push_back(of(child));
        if (tree.kind == Kind::Sum && !always_) return sums(children);
        std::vector<Quotient> all = children.front();
        for (std::size_t i = 1; i < children.size(); ++i) {
            std::vector<Quotient> both;
            std::vector<Quotient> exactOnes;
            for (const Quotient& a : all) {
                for (const Quotient& b : children[i]) {
                    if (exactOnes.size() >= mostProducts) break;
                    exactOnes.push_back(tree.kind == Kind::Sum ? sum(a, b, effort_) : product(a, b, effort_));
                }
            }
            if (!always_) both = exactOnes;
            for (const Quotient& one : exactOnes) add(both, one);
            all = std::move(both);
        }
        if (tree.kind == Kind::Product) addOverOneBar(tree, all);
        return all;
    }

    // A sum is rounded at its end; before, some terms are and some are not. A student, and the solver, rounds
    // them one after the other, so these come first.
    std::vector<Quotient> sums(const std::vector<std::vector<Quotient>>& children) {
        constexpr std::size_t mostOfOne = 8;
        std::vector<Quotient> all;
        const std::size_t count = children.size();
        const auto rounded = [&](std::size_t i) -> const Quotient& {
            return children[i][children[i].size() > 1 ? 1 : 0];
        };
        // What stands before the term that is looked at, and what stands behind it, all exact or all rounded.
        std::vector<Quotient> before[2] = {{{0, 1}}, {{0, 1}}};
        std::vector<Quotient> behind[2] = {{{0, 1}}, {{0, 1}}};
        for (std::size_t i = 0; i < count; ++i) {
            before[0].push_back(sum(before[0].back(), children[i].front(), effort_));
            before[1].push_back(sum(before[1].back(), rounded(i), effort_));
            behind[0].push_back(sum(children[count - 1 - i].front(), behind[0].back(), effort_));
            behind[1].push_back(sum(rounded(count - 1 - i), behind[1].back(), effort_));
        }
        keep(all, before[0].back());
        keep(all, before[1].back());
        for (std::size_t k = 0; k < count; ++k) {
            for (std::size_t v = 0; v < std::min(children[k].size(), mostOfOne); ++v) {
                for (const int left : {0, 1}) {
                    for (const int right : {0, 1}) {
                        const Quotient rest = sum(before[left][k], behind[right][count - 1 - k], effort_);
                        keep(all, sum(rest, children[k][v], effort_));
                    }
                }
            }
        }
        addPairs(children, before[0].back(), all);
        const std::size_t raw = all.size();
        for (std::size_t i = 0; i < raw; ++i) {
            for (const Quotient& way : waysToRound(Quotient(all[i]), rounding_)) keep(all, way);
        }
        return all;
    }

    // Two terms are put together and rounded, and the others wait. e.g. 10.12-14.478+#1/6# -> -4.36+#1/6#
    void addPairs(const std::vector<std::vector<Quotient>>& children, const Quotient& total,
                  std::vector<Quotient>& all) {
        for (std::size_t i = 0; i < children.size(); ++i) {
            for (std::size_t j = i + 1; j < children.size(); ++j) {
                const Quotient pair = sum(children[i].front(), children[j].front(), effort_);
                const Quotient rest = sum(total, negated(pair), effort_);
                for (const Quotient& way : waysToRound(pair, rounding_)) keep(all, sum(rest, way, effort_));
            }
        }
    }

    static void keep(std::vector<Quotient>& all, const Quotient& value) {
        constexpr std::size_t most = 100;
        const bool known = std::any_of(all.begin(), all.end(), [&](const Quotient& other) {
            return other.above == value.above && other.below == value.below;
        });
        if (!known && all.size() < most) all.push_back(value);
    }

    // #430896/9#*5.92 is written as #2550904/9#: the numerators are multiplied, and print as a single does.
    void addOverOneBar(const Tree& tree, std::vector<Quotient>& all) {
        Quotient above{1, 1};
        Quotient below{1, 1};
        bool bar = false;
        for (const Tree& child : tree.children) {
            const Tree& factor = ungrouped(child);
            const bool fraction = factor.kind == Kind::Fraction;
            Evaluator evaluator(letters_, effort_);
            above = product(above, evaluator.valueOf(fraction ? factor.children[0] : factor), effort_);
            if (fraction) below = product(below, evaluator.valueOf(factor.children[1]), effort_);
            bar = bar || fraction;
        }
        if (!bar || below.above.isZero()) return;
        for (const Quotient& way : waysToRound(above, {false, rounding_.places})) {
            if (!always_) all.push_back(product(way, inverse(below), effort_));
        }
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
    bool always_;
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
    std::vector<Quotient> values = Values(rounding, letters, effort).of(tree);
    // However many there are: the one of whoever rounds every time.
    values.push_back(Values(rounding, letters, effort, true).of(tree).front());
    return values;
}

bool isRounded(const Quotient& exact, const Quotient& written, const Rounding& rounding, Effort& effort) {
    if (equal(exact, written, effort)) return true;
    const auto a = termsOf(exact);
    const auto b = termsOf(written);
    if (!a || !b) return false;
    const auto coefficientOf = [](const Terms& terms, const Exponents& exponents) {
        const auto found = terms.find(exponents);
        return found == terms.end() ? RootSum() : found->second;
    };
    const auto agrees = [&](const auto& term) {
        return isRoundedNumber(coefficientOf(*a, term.first), coefficientOf(*b, term.first), rounding);
    };
    return std::all_of(a->begin(), a->end(), agrees) && std::all_of(b->begin(), b->end(), agrees);
}

}  // namespace ordwise::exact
