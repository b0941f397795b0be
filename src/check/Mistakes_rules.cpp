// What each slip makes of a line.
#include "LineEquality.hpp"
#include "Mistakes.hpp"

#include <utility>

namespace ordwise::slips {
namespace {

using exact::Kind;
using exact::numberTree;
using exact::powerTree;
using exact::Rational;
using exact::SidesTree;
using exact::Tree;
using exact::treeOf;
using exact::ungrouped;

Trees termsOf(const Tree& tree) {
    const Tree& inside = ungrouped(tree);
    return inside.kind == Kind::Sum ? inside.children : Trees{inside};
}

Tree sumOf(Trees terms) {
    if (terms.empty()) return numberTree(0);
    return terms.size() == 1 ? std::move(terms.front()) : treeOf(Kind::Sum, std::move(terms));
}

Tree negatedTree(Tree tree) {
    return treeOf(Kind::Negated, {std::move(tree)});
}

Tree fractionTree(Tree above, Tree below) {
    return treeOf(Kind::Fraction, {std::move(above), std::move(below)});
}

Trees without(Trees all, std::size_t place) {
    all.erase(all.begin() + static_cast<std::ptrdiff_t>(place));
    return all;
}

// The sum with the terms at `i` and `j` put together to one.
Tree joinedAt(const Trees& terms, std::size_t i, std::size_t j, Tree joined) {
    Trees rest = without(terms, j);
    rest[i] = std::move(joined);
    return sumOf(std::move(rest));
}

// A number times a power of one letter, with its sign. e.g. -3x^2^
struct Power {
    Rational number = 1;
    char letter = 0;
    int exponent = 0;
};

std::optional<Power> powerIn(const Tree& tree) {
    if (tree.kind == Kind::Negated) {
        auto power = powerIn(tree.children.front());
        if (power) power->number = -power->number;
        return power;
    }
    Power power;
    const Trees factors = tree.kind == Kind::Product ? tree.children : Trees{tree};
    for (const Tree& factor : factors) {
        const bool raised = factor.kind == Kind::Power;
        const Tree& base = raised ? factor.children.front() : factor;
        if (base.kind == Kind::Number && !raised) {
            power.number *= base.number;
        } else if (base.kind == Kind::Letter && power.letter == 0) {
            power.letter = base.letter;
            power.exponent = raised ? factor.exponent : 1;
        } else {
            return std::nullopt;
        }
    }
    return power;
}

Tree powerText(const Rational& number, char letter, int exponent) {
    Tree x;
    x.kind = Kind::Letter;
    x.letter = letter;
    return treeOf(Kind::Product, {treeOf(Kind::Group, {numberTree(number)}), powerTree(x, exponent)});
}

template <class Join>
Trees ofPairs(const Tree& piece, Join join) {
    Trees made;
    if (piece.kind != Kind::Sum) return made;
    for (std::size_t i = 0; i < piece.children.size(); ++i) {
        for (std::size_t j = i + 1; j < piece.children.size(); ++j) {
            for (Tree& joined : join(piece.children[i], piece.children[j]))
                made.push_back(joinedAt(piece.children, i, j, std::move(joined)));
        }
    }
    return made;
}

// A fraction with its sign in the numerator, and a whole number over 1.
std::optional<std::pair<Tree, Tree>> fractionIn(const Tree& tree) {
    if (tree.kind == Kind::Negated) {
        auto inside = fractionIn(tree.children.front());
        if (inside) inside->first = negatedTree(inside->first);
        return inside;
    }
    if (tree.kind == Kind::Fraction) return std::pair{tree.children[0], tree.children[1]};
    if (tree.kind == Kind::Number) return std::pair{tree, numberTree(1)};
    return std::nullopt;
}

std::optional<exact::Integer> wholeIn(const Tree& tree) {
    const Tree& inside = ungrouped(tree);
    if (inside.kind != Kind::Number || exact::mp::denominator(inside.number) != 1) return std::nullopt;
    return exact::Integer(exact::mp::numerator(inside.number));
}

// Both fractions brought to the least common denominator in one half alone.
Trees halfConverted(const Tree& piece, bool numerators) {
    return ofPairs(piece, [&](const Tree& a, const Tree& b) -> Trees {
        const auto first = fractionIn(a);
        const auto second = fractionIn(b);
        if (!first || !second) return {};
        const auto p = wholeIn(first->second);
        const auto q = wholeIn(second->second);
        if (!p || !q || *p == 0 || *q == 0 || *p == *q) return {};
        const exact::Integer common = exact::mp::lcm(*p, *q);
        const auto converted = [&](const std::pair<Tree, Tree>& one, const exact::Integer& below) {
            if (!numerators) return fractionTree(one.first, numberTree(common));
            const Tree above = treeOf(Kind::Product, {treeOf(Kind::Group, {one.first}), numberTree(common / below)});
            return fractionTree(above, one.second);
        };
        return {sumOf({converted(*first, *p), converted(*second, *q)})};
    });
}

}  // namespace

Trees onlyFirstMultiplied(const Tree& piece) {
    Trees made;
    if (piece.kind != Kind::Product) return made;
    for (std::size_t i = 0; i < piece.children.size(); ++i) {
        Trees terms = termsOf(piece.children[i]);
        if (piece.children[i].kind != Kind::Group || terms.size() < 2) continue;
        Trees factors = without(piece.children, i);
        factors.push_back(treeOf(Kind::Group, {terms.front()}));
        terms.front() = treeOf(Kind::Product, std::move(factors));
        made.push_back(treeOf(Kind::Group, {sumOf(std::move(terms))}));
    }
    return made;
}

Trees minusNotCarried(const Tree& piece) {
    Trees made;
    if (piece.kind != Kind::Negated) return made;
    const Tree& inside = piece.children.front();
    const Trees factors = inside.kind == Kind::Product ? inside.children : Trees{inside};
    for (std::size_t i = 0; i < factors.size(); ++i) {
        Trees terms = termsOf(factors[i]);
        if (factors[i].kind != Kind::Group || terms.size() < 2) continue;
        const Trees others = without(factors, i);
        for (std::size_t k = 0; k < terms.size(); ++k) {
            Trees product = others;
            product.push_back(treeOf(Kind::Group, {terms[k]}));
            Tree one = product.size() == 1 ? product.front() : treeOf(Kind::Product, std::move(product));
            terms[k] = k == 0 ? negatedTree(std::move(one)) : std::move(one);
        }
        made.push_back(treeOf(Kind::Group, {sumOf(std::move(terms))}));
    }
    return made;
}

Trees unlikeTermsAdded(const Tree& piece) {
    return ofPairs(piece, [](const Tree& a, const Tree& b) -> Trees {
        const auto first = powerIn(a);
        const auto second = powerIn(b);
        if (!first || !second || (first->letter == second->letter && first->exponent == second->exponent)) return {};
        Trees made;
        for (const Power& kept : {*first, *second}) {
            if (kept.letter != 0) made.push_back(powerText(first->number + second->number, kept.letter, kept.exponent));
        }
        return made;
    });
}

Trees exponentsAddedInSum(const Tree& piece) {
    return ofPairs(piece, [](const Tree& a, const Tree& b) -> Trees {
        const auto first = powerIn(a);
        const auto second = powerIn(b);
        if (!first || !second || first->letter == 0 || first->letter != second->letter) return {};
        return {powerText(first->number + second->number, first->letter, first->exponent + second->exponent)};
    });
}

Trees fractionsAddedAcross(const Tree& piece) {
    return ofPairs(piece, [](const Tree& a, const Tree& b) -> Trees {
        const auto first = fractionIn(a);
        const auto second = fractionIn(b);
        const bool fractions = a.kind != Kind::Number && b.kind != Kind::Number;
        if (!first || !second || !fractions) return {};
        return {fractionTree(sumOf({first->first, second->first}), sumOf({first->second, second->second}))};
    });
}

Trees onlyNumeratorConverted(const Tree& piece) {
    return halfConverted(piece, true);
}

Trees onlyDenominatorConverted(const Tree& piece) {
    return halfConverted(piece, false);
}

Trees cancelledAcrossSum(const Tree& piece) {
    Trees made;
    if (piece.kind != Kind::Fraction) return made;
    const Trees terms = termsOf(piece.children[0]);
    if (terms.size() < 2) return made;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        Trees divided = terms;
        divided[i] = fractionTree(terms[i], piece.children[1]);
        made.push_back(treeOf(Kind::Group, {sumOf(divided)}));
        // What is cancelled whole is often taken for nothing.
        if (exact::areEqual(terms[i], piece.children[1]) == true)
            made.push_back(treeOf(Kind::Group, {sumOf(without(terms, i))}));
    }
    return made;
}

Trees powerOfSumSplit(const Tree& piece) {
    if (piece.kind != Kind::Power || piece.exponent < 2) return {};
    Trees terms = termsOf(piece.children.front());
    if (terms.size() < 2) return {};
    for (Tree& term : terms) {
        const bool minus = term.kind == Kind::Negated;
        Tree raised = powerTree(treeOf(Kind::Group, {minus ? term.children.front() : term}), piece.exponent);
        term = minus ? negatedTree(std::move(raised)) : std::move(raised);
    }
    Trees all{treeOf(Kind::Group, {sumOf(terms)})};
    for (Tree& term : terms) {
        if (term.kind == Kind::Negated) term = Tree(term.children.front());
    }
    all.push_back(treeOf(Kind::Group, {sumOf(terms)}));
    return all;
}

Trees exponentsMultiplied(const Tree& piece) {
    Trees made;
    if (piece.kind != Kind::Product) return made;
    for (std::size_t i = 0; i < piece.children.size(); ++i) {
        for (std::size_t j = i + 1; j < piece.children.size(); ++j) {
            const Tree& a = piece.children[i];
            const Tree& b = piece.children[j];
            const bool powers = a.kind == Kind::Power && b.kind == Kind::Power && a.children == b.children;
            if (!powers) continue;
            Trees factors = without(piece.children, j);
            factors[i] = powerTree(a.children.front(), a.exponent * b.exponent);
            made.push_back(treeOf(Kind::Product, std::move(factors)));
        }
    }
    return made;
}

Trees exponentsAdded(const Tree& piece) {
    if (piece.kind != Kind::Power) return {};
    const Tree& inside = ungrouped(piece.children.front());
    if (inside.kind != Kind::Power) return {};
    return {powerTree(inside.children.front(), inside.exponent + piece.exponent)};
}

Trees negativeExponentAsNumber(const Tree& piece) {
    if (piece.kind != Kind::Power || piece.exponent >= 0) return {};
    const Tree positive = powerTree(piece.children.front(), -piece.exponent);
    return {treeOf(Kind::Group, {negatedTree(positive)}),
            treeOf(Kind::Group, {negatedTree(fractionTree(numberTree(1), positive))})};
}

Trees baseTimesExponent(const Tree& piece) {
    if (piece.kind != Kind::Power) return {};
    const Tree product =
        treeOf(Kind::Product, {piece.children.front(), treeOf(Kind::Group, {numberTree(Rational(piece.exponent))})});
    return {treeOf(Kind::Group, {product})};
}

// Everything before the product is added to its first factor.
Trees leftToRight(const Tree& piece) {
    Trees made;
    if (piece.kind != Kind::Sum) return made;
    for (std::size_t i = 1; i < piece.children.size(); ++i) {
        const bool minus = piece.children[i].kind == Kind::Negated;
        const Tree& term = minus ? piece.children[i].children.front() : piece.children[i];
        if (term.kind != Kind::Product && term.kind != Kind::Divided) continue;
        const auto place = static_cast<std::ptrdiff_t>(i);
        Trees before(piece.children.begin(), piece.children.begin() + place);
        Tree first = term.children.front();
        before.push_back(minus ? negatedTree(std::move(first)) : std::move(first));
        Tree changed = term;
        changed.children.front() = treeOf(Kind::Group, {sumOf(std::move(before))});
        Trees all{changed};
        all.insert(all.end(), piece.children.begin() + place + 1, piece.children.end());
        made.push_back(sumOf(std::move(all)));
    }
    return made;
}

Trees rootOfSumSplit(const Tree& piece) {
    if (piece.kind != Kind::Root) return {};
    Trees terms = termsOf(piece.children.front());
    if (terms.size() < 2) return {};
    for (Tree& term : terms) {
        const bool minus = term.kind == Kind::Negated;
        Tree root = treeOf(Kind::Root, {minus ? term.children.front() : term});
        term = minus ? negatedTree(std::move(root)) : std::move(root);
    }
    return {treeOf(Kind::Group, {sumOf(std::move(terms))})};
}

Trees rootsJoined(const Tree& piece) {
    return ofPairs(piece, [](const Tree& a, const Tree& b) -> Trees {
        const bool minus = b.kind == Kind::Negated;
        const Tree& second = minus ? b.children.front() : b;
        if (a.kind != Kind::Root || second.kind != Kind::Root) return {};
        const Tree inside = second.children.front();
        return {treeOf(Kind::Root, {sumOf({a.children.front(), minus ? negatedTree(inside) : inside})})};
    });
}

Trees barsDropped(const Tree& piece) {
    if (piece.kind != Kind::Bars) return {};
    return {treeOf(Kind::Group, {piece.children.front()})};
}

// --- equations

namespace {

// Each term of each side, taken away from there; `other` says what becomes of the other side.
template <class Other>
Equations ofMovedTerms(const SidesTree& line, Other other) {
    Equations made;
    for (const bool left : {true, false}) {
        const Tree& from = left ? line.left : line.right;
        const Tree& to = left ? line.right : line.left;
        const Trees terms = termsOf(from);
        for (std::size_t i = 0; i < terms.size(); ++i) {
            Tree rest = sumOf(without(terms, i));
            Tree target = other(to, terms[i]);
            made.push_back(left ? SidesTree{std::move(rest), std::move(target)}
                                : SidesTree{std::move(target), std::move(rest)});
        }
    }
    return made;
}

// A side that is a number times a letter, and the other side. e.g. 2x=8
struct Single {
    Power power;
    Tree value;
};

std::optional<Single> singleIn(const SidesTree& line) {
    for (const bool left : {true, false}) {
        const auto power = powerIn(left ? line.left : line.right);
        const Tree& value = left ? line.right : line.left;
        if (power && power->letter != 0 && power->exponent == 1 && power->number != 1) return Single{*power, value};
    }
    return std::nullopt;
}

SidesTree solvedBy(const Single& single, Tree value) {
    Tree x;
    x.kind = Kind::Letter;
    x.letter = single.power.letter;
    return {std::move(x), std::move(value)};
}

}  // namespace

Equations signKeptWhenMoved(const SidesTree& line) {
    return ofMovedTerms(line, [](const Tree& to, const Tree& term) { return sumOf({to, term}); });
}

Equations movedOnOneSideOnly(const SidesTree& line) {
    return ofMovedTerms(line, [](const Tree& to, const Tree&) { return to; });
}

Equations onlyOneSideDivided(const SidesTree& line) {
    const auto single = singleIn(line);
    if (!single) return {};
    return {solvedBy(*single, single->value)};
}

Equations dividedByNegative(const SidesTree& line) {
    const auto single = singleIn(line);
    if (!single) return {};
    return {solvedBy(*single, fractionTree(single->value, numberTree(-single->power.number)))};
}

Equations dividedByWrongNumber(const SidesTree& line) {
    const auto single = singleIn(line);
    if (!single) return {};
    const Tree number = treeOf(Kind::Group, {numberTree(single->power.number)});
    const Tree value = treeOf(Kind::Group, {single->value});
    Equations made{solvedBy(*single, treeOf(Kind::Product, {value, number})),
                   solvedBy(*single, sumOf({value, negatedTree(number)}))};
    if (exact::areEqual(value, numberTree(0)) == false) made.push_back(solvedBy(*single, fractionTree(number, value)));
    return made;
}

bool isNearMiss(const Tree& before, const Tree& line) {
    try {
        const exact::Letters letters(exact::lettersIn(before) + exact::lettersIn(line));
        exact::Effort effort;
        exact::Evaluator evaluator(letters, effort);
        const auto difference = exact::sum(evaluator.valueOf(line), exact::negated(evaluator.valueOf(before)), effort);
        const auto below = difference.below.asConstant();
        if (!below || difference.above.terms().size() != 1) return false;
        const auto off = (difference.above.terms().begin()->second * below->inverse()).asRational();
        if (!off) return false;
        const Rational size = exact::mp::abs(*off);
        return size == 1 || size == 10;
    } catch (const std::runtime_error&) {
        return false;
    }
}

}  // namespace ordwise::slips
