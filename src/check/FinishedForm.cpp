#include "FinishedForm.hpp"

#include <algorithm>
#include <map>
#include <set>

namespace ordwise {
namespace {

using exact::Integer;
using exact::Kind;
using exact::Rational;
using exact::Tree;

bool isWhole(const Tree& tree) {
    return tree.kind == Kind::Number && exact::mp::denominator(tree.number) == 1;
}

const Tree& withoutSign(const Tree& tree) {
    return tree.kind == Kind::Negated ? tree.children.front() : tree;
}

std::vector<Tree> termsOf(const Tree& tree) {
    return tree.kind == Kind::Sum ? tree.children : std::vector<Tree>{tree};
}

std::vector<Tree> factorsOf(const Tree& tree) {
    return tree.kind == Kind::Product ? tree.children : std::vector<Tree>{tree};
}

Integer wholeOf(const Tree& tree) {
    return exact::mp::numerator(tree.number);
}

// A number or the size of one: 5, and where `decimals` allows it 0.33.
bool isPlainNumber(const Tree& tree, bool decimals) {
    return isWhole(tree) || (decimals && tree.kind == Kind::Number);
}

bool isFinishedNumber(const Tree& signedTree, bool decimals) {
    const Tree& tree = withoutSign(signedTree);
    if (tree.kind == Kind::Number) return isPlainNumber(tree, decimals);
    if (decimals || tree.kind != Kind::Fraction) return false;
    const Tree& above = withoutSign(tree.children[0]);
    const Tree& below = tree.children[1];
    return isWhole(above) && isWhole(below) && wholeOf(below) > 1 &&
           exact::mp::gcd(wholeOf(above), wholeOf(below)) == 1;
}

bool isPrime(const Integer& n) {
    if (n < 2) return false;
    for (Integer p = 2; p * p <= n; ++p) {
        if (n % p == 0) return false;
        if (p > 100000) return false;
    }
    return true;
}

bool hasSquareFactor(const Integer& n) {
    for (Integer p = 2; p * p <= n && p < 100000; ++p) {
        if (n % (p * p) == 0) return true;
    }
    return n <= 1;
}

// The radicand of a finished root term, 1 for a plain number; 0 for anything else. e.g. 4~2~ -> 2
Integer radicandOf(const Tree& signedTerm) {
    const Tree& term = withoutSign(signedTerm);
    if (term.kind == Kind::Number) return 1;
    std::vector<Tree> factors = factorsOf(term);
    if (factors.size() > 2 || (factors.size() == 2 && factors.front().kind != Kind::Number)) return 0;
    const Tree& root = factors.back();
    if (root.kind != Kind::Root || !isWhole(root.children.front())) return 0;
    const Integer inside = wholeOf(root.children.front());
    return hasSquareFactor(inside) ? Integer(0) : inside;
}

bool isFinishedRootSum(const Tree& line) {
    std::set<Integer> seen;
    const auto terms = termsOf(line);
    return std::all_of(terms.begin(), terms.end(), [&](const Tree& term) {
        const Integer radicand = radicandOf(term);
        return radicand != 0 && seen.insert(radicand).second;
    });
}

bool isPrimePowers(const Tree& line) {
    if (isWhole(line) && wholeOf(line) < 2) return true;
    std::set<Integer> seen;
    const auto factors = factorsOf(line);
    return std::all_of(factors.begin(), factors.end(), [&](const Tree& factor) {
        const Tree& base = factor.kind == Kind::Power ? factor.children.front() : factor;
        const bool raised = factor.kind != Kind::Power || factor.exponent > 1;
        return raised && isWhole(base) && isPrime(wholeOf(base)) && seen.insert(wholeOf(base)).second;
    });
}

bool isPrimeProduct(const Tree& line) {
    if (isWhole(line) && wholeOf(line) < 2) return true;
    const auto factors = factorsOf(line);
    return std::all_of(factors.begin(), factors.end(),
                       [](const Tree& factor) { return isWhole(factor) && isPrime(wholeOf(factor)); });
}

// A product of one number and powers of different letters, taken apart; false for anything else.
struct Monomial {
    Rational number = 1;
    bool numbered = false;
    std::map<char, int> powers;

    bool take(const Tree& tree, bool decimals) {
        const auto factors = factorsOf(tree);
        return std::all_of(factors.begin(), factors.end(), [&](const Tree& factor) {
            if (isPlainNumber(factor, decimals)) {
                if (numbered || !powers.empty()) return false;
                number = factor.number;
                numbered = true;
                return true;
            }
            const bool raised = factor.kind == Kind::Power;
            const Tree& base = raised ? factor.children.front() : factor;
            if (base.kind != Kind::Letter || (raised && factor.exponent < 2)) return false;
            return powers.emplace(base.letter, raised ? factor.exponent : 1).second;
        });
    }

    // "1x" and "0x" are not written.
    [[nodiscard]] bool isPlain() const { return powers.empty() || !numbered || (number != 1 && number != 0); }
};

// The letters of a finished term with their exponents, those below a bar negative; nothing for a term
// that is not finished. e.g. #19/2x^2^# -> x: -2
std::optional<std::map<char, int>> finishedTerm(const Tree& signedTerm, bool decimals) {
    const Tree& term = withoutSign(signedTerm);
    Monomial above;
    if (term.kind != Kind::Fraction) {
        if (!above.take(term, decimals) || !above.isPlain()) return std::nullopt;
        return above.powers;
    }
    Monomial below;
    if (!above.take(withoutSign(term.children[0]), decimals) || !below.take(term.children[1], decimals))
        return std::nullopt;
    if (!above.isPlain() || !below.isPlain() || (decimals && below.powers.empty())) return std::nullopt;
    for (const auto& [letter, exponent] : below.powers) {
        if (!above.powers.emplace(letter, -exponent).second) return std::nullopt;
    }
    const Integer a = exact::mp::numerator(above.number);
    const Integer b = exact::mp::numerator(below.number);
    const bool whole = exact::mp::denominator(above.number) == 1 && exact::mp::denominator(below.number) == 1;
    if (whole && exact::mp::gcd(a, b) != 1) return std::nullopt;
    if (below.powers.empty() && b == 1) return std::nullopt;
    return above.powers;
}

bool isFinishedPolynomial(const Tree& line, bool decimals) {
    std::set<std::map<char, int>> seen;
    const auto terms = termsOf(line);
    return std::all_of(terms.begin(), terms.end(), [&](const Tree& term) {
        const auto letters = finishedTerm(term, decimals);
        const bool nothing = term.kind == Kind::Number && term.number == 0 && terms.size() > 1;
        return letters && !nothing && seen.insert(*letters).second;
    });
}

// One text for all orders of the same terms and factors.
std::string sortedText(const Tree& tree) {
    if (tree.kind == Kind::Number) return exact::written(tree.number);
    if (tree.kind == Kind::Letter) return std::string(1, tree.letter);
    std::vector<std::string> pieces;
    for (const Tree& child : tree.children) pieces.push_back(sortedText(child));
    const bool anyOrder = tree.kind == Kind::Sum || tree.kind == Kind::Product;
    if (anyOrder) std::sort(pieces.begin(), pieces.end());
    std::string all(1, static_cast<char>('A' + static_cast<int>(tree.kind)));
    if (tree.kind == Kind::Power) all += exact::written(Rational(tree.exponent));
    for (const std::string& piece : pieces) all += "(" + piece + ")";
    return all;
}

}  // namespace

bool isFinishedExpression(const Tree& line, EndForm form, bool decimals) {
    switch (form) {
        case EndForm::Number: return isFinishedNumber(line, decimals);
        case EndForm::Roots: return isFinishedRootSum(line);
        case EndForm::PrimePowers: return isPrimePowers(line);
        case EndForm::Primes: return isPrimeProduct(line);
        case EndForm::Polynomial: return isFinishedPolynomial(line, decimals);
        default: return false;
    }
}

bool isFinishedEquation(const exact::SidesTree& line, char letter, bool decimals) {
    if (isFinishedNumber(line.left, decimals) && isFinishedNumber(line.right, decimals)) return true;
    if (line.denied) return false;
    const auto solves = [&](const Tree& alone, const Tree& value) {
        return alone.kind == Kind::Letter && (letter == 0 || alone.letter == letter) &&
               exact::lettersIn(value).find(alone.letter) == std::string::npos && isFinishedPolynomial(value, decimals);
    };
    return solves(line.left, line.right) || solves(line.right, line.left);
}

bool hasUnreducedFraction(const Tree& tree) {
    if (tree.kind == Kind::Fraction) {
        const Tree& above = withoutSign(tree.children[0]);
        const Tree& below = withoutSign(tree.children[1]);
        if (isWhole(above) && isWhole(below) &&
            (wholeOf(below) == 1 || exact::mp::gcd(wholeOf(above), wholeOf(below)) != 1))
            return true;
    }
    return std::any_of(tree.children.begin(), tree.children.end(), hasUnreducedFraction);
}

bool areSameInAnyOrder(const Tree& a, const Tree& b) {
    return sortedText(a) == sortedText(b);
}

}  // namespace ordwise
