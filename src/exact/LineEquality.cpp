#include "LineEquality.hpp"

#include "SolutionSet.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace ordwise::exact {
namespace {

// The numbers that are put in for letters, the plainest first.
constexpr std::array<int, 10> tried = {2, 3, 1, 5, 4, 0, -1, -2, 7, 10};

Comparison unknown(const char* because) {
    Comparison comparison;
    comparison.because = because;
    return comparison;
}

Letters lettersOfBoth(const std::string& a, const std::string& b) {
    return Letters(a + b);
}

// Points for the letters, small whole numbers first; every letter another number where that can be.
std::vector<std::vector<Rational>> points(std::size_t letters) {
    if (letters == 0) return {{}};
    std::vector<std::vector<Rational>> all;
    for (std::size_t i = 0; i < tried.size(); ++i) {
        std::vector<Rational> point;
        for (std::size_t k = 0; k < letters; ++k) point.emplace_back(tried[(i + k) % tried.size()]);
        all.push_back(point);
    }
    return all;
}

std::map<char, std::string> named(const std::vector<Rational>& point, const Letters& letters, bool decimals) {
    std::map<char, std::string> at;
    for (std::size_t i = 0; i < point.size(); ++i) at[letters[i]] = written(RootSum(point[i]), decimals);
    return at;
}

// --- expressions ---

std::optional<Evidence> evidenceOf(const Quotient& before, const Quotient& line, const Letters& letters,
                                   bool decimals) {
    for (const auto& point : points(letters.size())) {
        const auto a = before.at(point);
        const auto b = line.at(point);
        if (!a || !b || *a == *b) continue;
        return Evidence{named(point, letters, decimals), written(*a, decimals), written(*b, decimals)};
    }
    return std::nullopt;
}

bool isOneOfTheRounded(const Tree& before, const Quotient& line, const Rounding& rounding, const Letters& letters,
                       Effort& effort) {
    const auto values = roundedValues(before, rounding, letters, effort);
    return std::any_of(values.begin(), values.end(),
                       [&](const Quotient& value) { return isRounded(value, line, rounding, effort); });
}

// Where the sign of what stands between bars can change lie the roots of what was found between bars
// so far; the lines are compared once in every gap.
Comparison compareByCases(const Tree& before, const Tree& line, const Letters& letters, Effort& effort, bool decimals) {
    std::vector<Rational> samples{Rational(0)};
    for (int round = 0; round < 4; ++round) {
        Row all{Rational(1)};
        for (const Rational& sample : samples) {
            Evaluator evaluator(letters, effort);
            evaluator.sample = sample;
            const Quotient a = evaluator.valueOf(before);
            const Quotient b = evaluator.valueOf(line);
            const bool differs = !equal(a, b, effort);
            const auto here = a.at({sample});
            const auto there = b.at({sample});
            if (round > 0 && differs && here && there && !(*here == *there)) {
                Comparison comparison{Relation::Different, "", std::nullopt};
                comparison.evidence =
                    Evidence{named({sample}, letters, decimals), written(*here, decimals), written(*there, decimals)};
                return comparison;
            }
            if (round == 3 && differs) return unknown("there are bars with letters inside bars");
            for (const Polynomial& content : evaluator.barContents) {
                const Row row = squareFreePart(rowOf(content));
                if (degreeOf(row) > 0) all = squareFreePart(multiplied(all, row));
            }
        }
        std::vector<Rational> next = samplesAround(all);
        if (next == samples) return {Relation::Same, "", std::nullopt};
        samples = std::move(next);
    }
    return unknown("there are bars with letters inside bars");
}

Comparison compare(const Tree& before, const Tree& line, const Rounding& rounding) {
    const Letters letters = lettersOfBoth(lettersIn(before), lettersIn(line));
    Effort effort;
    if (hasLetterInBars(before) || hasLetterInBars(line)) {
        if (letters.size() > 1) return unknown("there are letters between the bars");
        return compareByCases(before, line, letters, effort, rounding.decimals);
    }
    const Quotient a = Evaluator(letters, effort).valueOf(before);
    std::optional<Quotient> b;
    try {
        b = Evaluator(letters, effort).valueOf(line);
    } catch (const Undefined&) {
        return {Relation::NoValue, "", std::nullopt};
    }
    if (equal(a, *b, effort)) return {Relation::Same, "", std::nullopt};
    if (isOneOfTheRounded(before, *b, rounding, letters, effort)) return {Relation::Rounded, "", std::nullopt};
    return {Relation::Different, "", evidenceOf(a, *b, letters, rounding.decimals)};
}

// --- equations ---

Relation asRelation(SetRelation relation) {
    switch (relation) {
        case SetRelation::Same: return Relation::Same;
        case SetRelation::Inside: return Relation::Fewer;
        case SetRelation::Around: return Relation::More;
        default: return Relation::Different;
    }
}

Comparison compareSets(const SolutionSet& a, const SolutionSet& b, const Letters& letters, bool decimals) {
    Comparison comparison{asRelation(relationOf(a, b)), "", std::nullopt};
    if (comparison.relation == Relation::Same) return comparison;
    const auto x = rationalDifference(a, b);
    if (!x) return comparison;
    Evidence evidence;
    if (letters.size() == 1) evidence.at = named({*x}, letters, decimals);
    evidence.beforeHolds = holds(a, *x);
    evidence.lineHolds = holds(b, *x);
    comparison.evidence = evidence;
    return comparison;
}

// One equation in several letters: left less right, which must have no letters below a bar.
Polynomial differenceOf(const SidesTree& equation, const Letters& letters, Effort& effort) {
    Evaluator evaluator(letters, effort);
    const Quotient left = evaluator.valueOf(equation.left);
    const Quotient difference = sum(left, negated(evaluator.valueOf(equation.right)), effort);
    for (const Polynomial& divisor : evaluator.divisors) {
        if (!divisor.asConstant()) throw Undecidable("there are several letters and one of them is divided by");
    }
    return difference.above;
}

// A point that solves `on` and does not solve `off`: all letters but one are chosen. One of whole
// numbers where there is one among those tried.
std::optional<std::vector<Rational>> pointOnOne(const Polynomial& on, const Polynomial& off, std::size_t letters) {
    std::optional<std::vector<Rational>> found;
    for (std::size_t place = 0; place < letters; ++place) {
        if (!on.holds(place)) continue;
        for (auto point : points(letters)) {
            point[place] = 0;
            const auto rest = on.at(point).asRational();
            point[place] = 1;
            const auto next = on.at(point).asRational();
            if (!rest || !next || *next == *rest) continue;
            point[place] = -*rest / (*next - *rest);
            if (off.at(point).isZero()) continue;
            if (mp::denominator(point[place]) == 1) return point;
            if (!found) found = point;
        }
    }
    return found;
}

// Equations of the first degree: a plane, everything or nothing.
Comparison comparePlanes(const Polynomial& a, const Polynomial& b, const Letters& letters, bool decimals) {
    const auto constantA = a.asConstant();
    const auto constantB = b.asConstant();
    Comparison comparison{Relation::Different, "", std::nullopt};
    if (constantA && constantB) {
        comparison.relation = constantA->isZero() ? Relation::Fewer : Relation::More;
        return comparison;
    }
    if (constantB) comparison.relation = b.isZero() ? Relation::More : Relation::Fewer;
    if (constantA) comparison.relation = a.isZero() ? Relation::Fewer : Relation::More;
    Evidence evidence;
    for (const bool first : {true, false}) {
        const auto point = first ? pointOnOne(a, b, letters.size()) : pointOnOne(b, a, letters.size());
        if (!point) continue;
        evidence.at = named(*point, letters, decimals);
        evidence.beforeHolds = first;
        evidence.lineHolds = !first;
        comparison.evidence = evidence;
        return comparison;
    }
    return comparison;
}

Comparison compareInLetters(const SidesTree& before, const SidesTree& line, const Letters& letters, Effort& effort,
                            bool decimals) {
    const Polynomial a = differenceOf(before, letters, effort);
    const Polynomial b = differenceOf(line, letters, effort);
    const bool bothNever = a.asConstant() && b.asConstant() && !a.isZero() && !b.isZero();
    if (bothNever || areProportional(a, b)) return {Relation::Same, "", std::nullopt};
    if (a.degree() <= 1 && b.degree() <= 1) return comparePlanes(a, b, letters, decimals);
    return unknown("there are several letters with exponents or products in it");
}

// A line that says that two numbers differ has no solutions, if they do.
std::optional<Relation> deniedRelation(const SidesTree& line) {
    const auto left = numberOf(line.left);
    const auto right = numberOf(line.right);
    if (!left || !right) return Relation::Unknown;
    if (*left == *right) return Relation::NoValue;
    return std::nullopt;
}

SidesTree asEquation(SidesTree equation) {
    equation.denied = false;
    return equation;
}

Comparison compareExactly(const SidesTree& before, const SidesTree& line, const Letters& letters, Effort& effort,
                          bool decimals) {
    if (letters.size() > 1) return compareInLetters(before, line, letters, effort, decimals);
    return compareSets(solutionsOf(before, letters, effort), solutionsOf(line, letters, effort), letters, decimals);
}

// The letter of a line such as "x=..." or "...=x", and its other side.
struct SolvedFor {
    char letter;
    const Tree* value;
};
std::optional<SolvedFor> solvedFor(const SidesTree& line) {
    for (const bool left : {true, false}) {
        const Tree& one = left ? line.left : line.right;
        const Tree& other = left ? line.right : line.left;
        if (one.kind != Kind::Letter || lettersIn(other).find(one.letter) != std::string::npos) continue;
        return SolvedFor{one.letter, &other};
    }
    return std::nullopt;
}

// "x=0.33" after "3x=1": the value that the equation gives the letter, rounded.
bool isRoundedSolution(const SidesTree& before, const SidesTree& line, const Rounding& rounding, const Letters& letters,
                       Effort& effort) {
    const auto solved = solvedFor(line);
    if (!solved) return false;
    const std::size_t place = letters.placeOf(solved->letter);
    const Polynomial difference = differenceOf(before, letters, effort);
    if (difference.degree() != 1 || !difference.holds(place)) return false;
    const Polynomial rest = difference.with(place, 0);
    const auto coefficient = (difference - rest).terms().begin()->second;
    const Polynomial value = Polynomial::product(rest, Polynomial(-coefficient.inverse()), effort);
    return isRounded({value, 1}, Evaluator(letters, effort).valueOf(*solved->value), rounding, effort);
}

// Side by side: what each side of the line before can be when its results are rounded.
bool areRoundedSides(const SidesTree& before, const SidesTree& line, const Rounding& rounding, const Letters& letters,
                     Effort& effort) {
    const auto fits = [&](const Tree& side, const Tree& now) {
        return isOneOfTheRounded(side, Evaluator(letters, effort).valueOf(now), rounding, letters, effort);
    };
    return (fits(before.left, line.left) && fits(before.right, line.right)) ||
           (fits(before.left, line.right) && fits(before.right, line.left));
}

Comparison compare(const SidesTree& before, const SidesTree& line, const Rounding& rounding) {
    const Letters letters =
        lettersOfBoth(lettersIn(before.left) + lettersIn(before.right), lettersIn(line.left) + lettersIn(line.right));
    Effort effort;
    if (line.denied) {
        const auto relation = deniedRelation(line);
        if (relation == Relation::Unknown) return unknown("a sign that the sides differ stands between letters");
        if (relation) return {*relation, "", std::nullopt};
    }
    Comparison comparison;
    try {
        comparison = compareExactly(asEquation(before), asEquation(line), letters, effort, rounding.decimals);
    } catch (const Undefined&) {
        // The line before has a value, or nothing can be said.
        (void)compareExactly(asEquation(before), asEquation(before), letters, effort, rounding.decimals);
        return {Relation::NoValue, "", std::nullopt};
    }
    const bool differs = comparison.relation != Relation::Same && comparison.relation != Relation::Unknown;
    if (!differs || line.denied) return comparison;
    const bool round = areRoundedSides(before, line, rounding, letters, effort) ||
                       (rounding.decimals && isRoundedSolution(before, line, rounding, letters, effort));
    if (round) return {Relation::Rounded, "", std::nullopt};
    return comparison;
}

template <class Line>
Comparison guarded(const Line& before, const Line& line, const Rounding& rounding) {
    try {
        return compare(before, line, rounding);
    } catch (const Undefined&) {
        return unknown("the line before has no value");
    } catch (const Undecidable& reason) {
        return unknown(reason.what());
    }
}

}  // namespace

Comparison compareExpressions(const Tree& before, const Tree& line, const Rounding& rounding) {
    return guarded(before, line, rounding);
}

Comparison compareEquations(const SidesTree& before, const SidesTree& line, const Rounding& rounding) {
    return guarded(before, line, rounding);
}

std::optional<bool> areEqual(const Tree& a, const Tree& b) {
    try {
        const Letters letters = lettersOfBoth(lettersIn(a), lettersIn(b));
        Effort effort;
        return equal(Evaluator(letters, effort).valueOf(a), Evaluator(letters, effort).valueOf(b), effort);
    } catch (const Undefined&) {
        return std::nullopt;
    } catch (const Undecidable&) {
        return std::nullopt;
    }
}

std::optional<RootSum> numberOf(const Tree& tree) {
    try {
        if (!lettersIn(tree).empty()) return std::nullopt;
        Effort effort;
        return Evaluator(Letters(), effort).valueOf(tree).asConstant();
    } catch (const Undefined&) {
        return std::nullopt;
    } catch (const Undecidable&) {
        return std::nullopt;
    }
}

std::optional<std::vector<Rational>> rationalSolutions(const SidesTree& equation) {
    try {
        const Letters letters(lettersIn(equation.left) + lettersIn(equation.right));
        if (letters.size() > 1) return std::nullopt;
        Effort effort;
        const SolutionSet set = solutionsOf(equation, letters, effort);
        if (set.allBut) return std::nullopt;
        std::vector<Rational> solutions;
        Row left = set.roots;
        while (const auto root = rationalRoot(left)) {
            solutions.push_back(*root);
            left = divided(left, Row{Rational(-*root), Rational(1)});
        }
        if (degreeOf(left) > 0 && realRootCount(left) > 0) return std::nullopt;
        return solutions;
    } catch (const Undefined&) {
        return std::nullopt;
    } catch (const Undecidable&) {
        return std::nullopt;
    }
}

}  // namespace ordwise::exact
