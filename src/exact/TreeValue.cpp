#include "TreeValue.hpp"

#include <algorithm>

namespace ordwise::exact {

Quotient Evaluator::valueOf(const Tree& tree) {
    switch (tree.kind) {
        case Kind::Number: return {Polynomial(tree.number), 1};
        case Kind::Letter: return {Polynomial::letter(letters_.placeOf(tree.letter)), 1};
        case Kind::Negated: return negated(valueOf(tree.children.front()));
        case Kind::Group: return valueOf(tree.children.front());
        case Kind::Root: return root(valueOf(tree.children.front()));
        case Kind::Bars: return bars(valueOf(tree.children.front()));
        case Kind::Fraction:
        case Kind::Divided: return over(valueOf(tree.children[0]), valueOf(tree.children[1]));
        case Kind::Power: {
            const Quotient base = valueOf(tree.children.front());
            if (tree.exponent < 0) divisors.push_back(base.above);
            return power(base, tree.exponent, effort_);
        }
        default: break;
    }
    Quotient all = valueOf(tree.children.front());
    for (std::size_t i = 1; i < tree.children.size(); ++i) {
        const Quotient next = valueOf(tree.children[i]);
        all = tree.kind == Kind::Sum ? sum(all, next, effort_) : product(all, next, effort_);
    }
    return all;
}

Quotient Evaluator::over(const Quotient& above, const Quotient& below) {
    if (!below.above.asConstant()) divisors.push_back(below.above);
    return product(above, inverse(below), effort_);
}

Quotient Evaluator::root(const Quotient& inside) const {
    const auto constant = inside.asConstant();
    if (!constant) throw Undecidable("there is a letter under a root");
    return {Polynomial(constant->squareRoot()), 1};
}

Quotient Evaluator::bars(const Quotient& inside) {
    if (const auto constant = inside.asConstant()) return constant->sign() < 0 ? negated(inside) : inside;
    if (!sample || letters_.size() != 1) throw Undecidable("there are letters between the bars");
    barContents.push_back(inside.above);
    barContents.push_back(inside.below);
    const auto here = inside.at({*sample});
    return here && here->sign() < 0 ? negated(inside) : inside;
}

Tree withValues(const Tree& tree, const std::map<char, Rational>& values) {
    if (tree.kind == Kind::Letter) {
        const auto value = values.find(tree.letter);
        return value == values.end() ? tree : treeOf(Kind::Group, {numberTree(value->second)});
    }
    Tree result = tree;
    for (Tree& child : result.children) child = withValues(child, values);
    return result;
}

bool hasLetterInBars(const Tree& tree) {
    if (tree.kind == Kind::Bars && !lettersIn(tree).empty()) return true;
    return std::any_of(tree.children.begin(), tree.children.end(), hasLetterInBars);
}

std::string written(const RootSum& value, bool decimals) {
    constexpr int mostPlaces = 9;
    const auto r = value.asRational();
    if (!r || !decimals) return value.written();
    return writtenDecimal(*r, mostPlaces).value_or(value.written());
}

}  // namespace ordwise::exact
