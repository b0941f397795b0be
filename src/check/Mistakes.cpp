// The table of mistakes, and the search in it.
#include "Mistakes.hpp"

#include <algorithm>

namespace ordwise {
namespace {

using exact::SidesTree;
using exact::Tree;
using slips::Equations;
using slips::Trees;

constexpr std::size_t mostCandidates = 60;

struct PieceRow {
    const char* name;
    Trees (*rule)(const Tree& piece);
    const char* reason;
};

struct EquationRow {
    const char* name;
    Equations (*rule)(const SidesTree& line);
    const char* reason;
};

// clang-format off
constexpr EquationRow equationRows[] = {
    {"sign-kept-when-moved", slips::signKeptWhenMoved,
     "It looks as if a term went to the other side with its sign. A term that changes sides changes its sign."},
    {"moved-on-one-side-only", slips::movedOnOneSideOnly,
     "It looks as if a term was taken away on one side only. What is done to one side is done to the other side, too."},
    {"only-one-side-divided", slips::onlyOneSideDivided,
     "It looks as if only one side was divided. Both sides are divided by the same number."},
    {"divided-by-the-negative", slips::dividedByNegative,
     "It looks as if the sign was lost in the division. Both sides are divided by the number before the letter, with its sign."},
    {"divided-by-wrong-number", slips::dividedByWrongNumber,
     "It looks as if something else was done than dividing by the number before the letter. A number that multiplies the letter is removed by dividing both sides by it."},
};

// Where two rules make the same line, the one that is more likely stands first.
constexpr PieceRow pieceRows[] = {
    {"minus-not-carried", slips::minusNotCarried,
     "It looks as if the minus was carried to the first term only. A minus before a parenthesis changes the sign of every term inside it."},
    {"only-first-multiplied", slips::onlyFirstMultiplied,
     "It looks as if only the first term in the parenthesis was multiplied. The factor multiplies every term inside it."},
    {"bars-dropped", slips::barsDropped,
     "It looks as if the bars were left out. An absolute value is never negative."},
    {"negative-exponent-as-number", slips::negativeExponentAsNumber,
     "It looks as if the minus of the exponent was put before the number. A negative exponent means 1 divided by the power."},
    {"exponents-multiplied", slips::exponentsMultiplied,
     "It looks as if the exponents were multiplied. Powers of the same base are multiplied by adding their exponents."},
    {"exponents-added", slips::exponentsAdded,
     "It looks as if the exponents were added. A power is raised to a power by multiplying the exponents."},
    {"base-times-exponent", slips::baseTimesExponent,
     "It looks as if the base was multiplied by the exponent. The exponent says how often the base stands as a factor."},
    {"power-of-sum-split", slips::powerOfSumSplit,
     "It looks as if each term was raised by itself. A sum is raised by multiplying the whole parenthesis by itself."},
    {"root-of-sum-split", slips::rootOfSumSplit,
     "It looks as if the root was taken of each term by itself. The root of a sum is taken after adding."},
    {"roots-joined", slips::rootsJoined,
     "It looks as if the numbers under two roots were put under one. Only like roots are added, by adding the numbers before them."},
    {"fractions-added-across", slips::fractionsAddedAcross,
     "It looks as if the numerators and the denominators were added. Fractions are added over a common denominator, which stays as it is."},
    {"only-denominator-converted", slips::onlyDenominatorConverted,
     "It looks as if only the denominators were changed to the common one. Each numerator is multiplied by the same number as its denominator."},
    {"only-numerator-converted", slips::onlyNumeratorConverted,
     "It looks as if only the numerators were multiplied. Numerator and denominator are multiplied by the same number."},
    {"cancelled-across-sum", slips::cancelledAcrossSum,
     "It looks as if the denominator was divided into one term only. It divides every term of the numerator."},
    {"exponents-added-in-sum", slips::exponentsAddedInSum,
     "It looks as if the exponents were added along with the numbers. When like terms are added, their exponent stays as it is."},
    {"unlike-terms-added", slips::unlikeTermsAdded,
     "It looks as if two unlike terms were put together. Only terms with the same letters and the same exponents can be added."},
    {"left-to-right", slips::leftToRight,
     "It looks as if the line was worked from left to right. Multiplication and division come before addition and subtraction."},
};

constexpr Slip (*nearMiss)() = [] {
    return Slip{"near-miss",
                "It looks as if a number came out 1 or 10 off. Add, subtract or multiply it once more."};
};
// clang-format on

// The tree with one of its pieces as the rule makes it, for every piece.
void collect(const Tree& tree, Trees (*rule)(const Tree& piece), Trees& made) {
    for (Tree& one : rule(tree)) {
        if (made.size() < mostCandidates) made.push_back(std::move(one));
    }
    for (std::size_t i = 0; i < tree.children.size(); ++i) {
        Trees inside;
        collect(tree.children[i], rule, inside);
        for (Tree& one : inside) {
            if (made.size() >= mostCandidates) return;
            Tree whole = tree;
            whole.children[i] = std::move(one);
            made.push_back(std::move(whole));
        }
    }
}

Trees madeBy(const PieceRow& row, const Tree& tree) {
    Trees made;
    collect(tree, row.rule, made);
    return made;
}

bool equal(const Tree& a, const Tree& b) {
    return exact::areEqual(a, b).value_or(false);
}

std::optional<Slip> slipInExpression(const Tree& before, const Tree& line) {
    for (const PieceRow& row : pieceRows) {
        const Trees made = madeBy(row, before);
        if (std::any_of(made.begin(), made.end(), [&](const Tree& one) { return equal(one, line); }))
            return Slip{row.name, row.reason};
    }
    if (slips::isNearMiss(before, line)) return nearMiss();
    return std::nullopt;
}

// The sides as they were made, or what a student makes of them in one more step.
bool sameSides(const SidesTree& made, const SidesTree& line) {
    return (equal(made.left, line.left) && equal(made.right, line.right)) ||
           (equal(made.left, line.right) && equal(made.right, line.left));
}

bool sameSolutions(const SidesTree& made, const SidesTree& line) {
    return exact::compareEquations(made, line, {}).relation == exact::Relation::Same;
}

Equations madeBy(const PieceRow& row, const SidesTree& line) {
    Equations made;
    for (Tree& left : madeBy(row, line.left)) made.push_back({std::move(left), line.right});
    for (Tree& right : madeBy(row, line.right)) made.push_back({line.left, std::move(right)});
    return made;
}

template <class Matches>
std::optional<Slip> slipByRows(const SidesTree& before, const SidesTree& line, Matches matches) {
    const auto found = [&](const Equations& made) {
        return std::any_of(made.begin(), made.end(), [&](const SidesTree& one) { return matches(one, line); });
    };
    for (const EquationRow& row : equationRows) {
        if (found(row.rule(before))) return Slip{row.name, row.reason};
    }
    for (const PieceRow& row : pieceRows) {
        if (found(madeBy(row, before))) return Slip{row.name, row.reason};
    }
    return std::nullopt;
}

bool isNearMiss(const SidesTree& before, const SidesTree& line) {
    return (equal(before.left, line.left) && slips::isNearMiss(before.right, line.right)) ||
           (equal(before.right, line.right) && slips::isNearMiss(before.left, line.left));
}

std::optional<Slip> slipInEquation(const SidesTree& before, const SidesTree& line) {
    if (auto slip = slipByRows(before, line, sameSides)) return slip;
    if (isNearMiss(before, line)) return nearMiss();
    // A line that goes on from the slip has its solutions, where it has any.
    const auto solutions = exact::rationalSolutions(line);
    if (!solutions || solutions->empty()) return std::nullopt;
    return slipByRows(before, line, sameSolutions);
}

}  // namespace

std::optional<Slip> recognisedSlip(const std::string& before, const std::string& line, const LineRules& rules) {
    if (rules.kind == LineKind::Equation) {
        const auto then = exact::readEquation(before);
        const auto now = exact::readEquation(line);
        return then && now && !now->denied ? slipInEquation(*then, *now) : std::nullopt;
    }
    const auto then = exact::readExpression(before);
    const auto now = exact::readExpression(line);
    if (!then || !now) return std::nullopt;
    return slipInExpression(*then, *now);
}

}  // namespace ordwise
