// The judge against students' lines: lines that are true by the way they are made, other ways than the
// solver's, are right; spoiled lines of equations stand to the line before as the solver's solution says.
#include "EngineProblems.hpp"
#include "LineVerdict.hpp"
#include "Sanitized.hpp"
#include "SpoiledLines.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <numeric>

namespace ordwise::test {
namespace {

using exact::Rational;
using exact::Relation;

struct Sides {
    std::string left;
    std::string right;
};

std::optional<Sides> sidesOf(const std::string& line) {
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) return std::nullopt;
    return Sides{line.substr(0, sign), line.substr(sign + 1)};
}

// The terms of a sum, each with its sign.
std::vector<std::string> signedTerms(const std::string& sum) {
    std::vector<std::string> terms;
    int depth = 0;
    std::string open;  // the marks that close what they open
    for (const char c : sum) {
        if (c == '(') ++depth;
        if (c == ')') --depth;
        const bool between = depth == 0 && open.empty();
        if (std::string_view("#~^|").find(c) != std::string_view::npos) {
            if (!open.empty() && open.back() == c)
                open.pop_back();
            else
                open += c;
        }
        const bool sign = c == '+' || c == '-';
        const bool factor = !terms.empty() && (terms.back().back() == '*' || terms.back().back() == '{');
        if (terms.empty() || (between && sign && !factor)) terms.emplace_back(sign ? "" : "+");
        terms.back() += c;
    }
    return terms;
}

std::string joined(const std::vector<std::string>& terms) {
    std::string sum;
    for (const auto& term : terms) sum += term;
    return sum.front() == '+' ? sum.substr(1) : sum;
}

// --- rules for sums: each leaves the value as it is

std::string movedRound(const std::string& sum, Draws& draws) {
    auto terms = signedTerms(sum);
    std::rotate(terms.begin(), terms.begin() + draws.below(static_cast<int>(terms.size())), terms.end());
    return joined(terms);
}

std::string turned(const std::string& sum, Draws& /*draws*/) {
    auto terms = signedTerms(sum);
    std::reverse(terms.begin(), terms.end());
    return joined(terms);
}

// a-b as -(b-a)
std::string minusTakenOut(const std::string& sum, Draws& /*draws*/) {
    auto terms = signedTerms(sum);
    for (auto& term : terms) term.front() = term.front() == '+' ? '-' : '+';
    return "-(" + joined(terms) + ")";
}

std::string addedAndTaken(const std::string& sum, Draws& draws) {
    const std::string number = draws.number(2);
    return sum + "+" + number + "-" + number;
}

std::string halves(const std::string& sum, Draws& draws) {
    const std::string number = draws.number(1);
    return "#1/" + number + "#*" + number + "(" + sum + ")";
}

// The terms that are whole numbers or fractions of them over a denominator of one's own.
// e.g. 3-#1/2# as #12/4#-#2/4#
std::string overOwnDenominators(const std::string& sum, Draws& draws) {
    auto terms = signedTerms(sum);
    for (auto& term : terms) {
        const bool fraction = term.size() > 4 && term[1] == '#' && term.back() == '#';
        const std::string inside = fraction ? term.substr(2, term.size() - 3) : term.substr(1) + "/1";
        if (inside.size() > 10 || inside.find_first_not_of("0123456789/") != std::string::npos) continue;
        const std::size_t bar = inside.find('/');
        if (bar != inside.rfind('/')) continue;
        const long times = draws.between(2, 9);
        term = term.substr(0, 1) + "#" + std::to_string(times * std::stol(inside.substr(0, bar))) + "/" +
               std::to_string(times * std::stol(inside.substr(bar + 1))) + "#";
    }
    return joined(terms);
}

using SumRule = std::string (*)(const std::string&, Draws&);
constexpr SumRule sumRules[] = {movedRound, turned, minusTakenOut, addedAndTaken, halves, overOwnDenominators};

std::string byRule(const std::string& sum, Draws& draws) {
    return sumRules[draws.below(static_cast<int>(std::size(sumRules)))](sum, draws);
}

// --- rules for equations: each leaves the solutions as they are

std::string swapped(const Sides& sides, Draws& /*draws*/) {
    return sides.right + "=" + sides.left;
}

std::string sameOnBothSides(const Sides& sides, Draws& draws) {
    const std::string letters = exact::lettersOf(sides.left + sides.right);
    std::string term = draws.charOf("+-") + draws.number(2);
    if (!letters.empty() && draws.chance(60)) term += draws.charOf(letters);
    return sides.left + term + "=" + sides.right + term;
}

std::string bothMultiplied(const Sides& sides, Draws& draws) {
    const std::string number = (draws.chance(30) ? "-" : "") + draws.number(1);
    return number + "(" + sides.left + ")=" + number + "(" + sides.right + ")";
}

std::string bothDivided(const Sides& sides, Draws& draws) {
    const std::string number = draws.number(1);
    return "(" + sides.left + "){" + number + "=(" + sides.right + "){" + number;
}

std::string allOnOneSide(const Sides& sides, Draws& draws) {
    return draws.chance(50) ? sides.left + "-(" + sides.right + ")=0" : "0=" + sides.right + "-(" + sides.left + ")";
}

// The first term of the left side behind the right one, with the other sign.
std::string firstMoved(const Sides& sides, Draws& /*draws*/) {
    auto terms = signedTerms(sides.left);
    std::string moved = terms.front();
    moved.front() = moved.front() == '+' ? '-' : '+';
    terms.erase(terms.begin());
    return (terms.empty() ? "0" : joined(terms)) + "=" + sides.right + moved;
}

std::string eachByRule(const Sides& sides, Draws& draws) {
    return byRule(sides.left, draws) + "=" + byRule(sides.right, draws);
}

using SidesRule = std::string (*)(const Sides&, Draws&);
constexpr SidesRule sidesRules[] = {swapped,      sameOnBothSides, bothMultiplied, bothDivided,
                                    allOnOneSide, firstMoved,      eachByRule};

std::string trueLineAfter(const std::string& line, Draws& draws) {
    const auto sides = sidesOf(line);
    if (!sides) return byRule(line, draws);
    return sidesRules[draws.below(static_cast<int>(std::size(sidesRules)))](*sides, draws);
}

// --- pairs that are made as such

struct Pair {
    std::string before;
    std::string line;
};

std::string withSign(int number) {
    return (number < 0 ? "" : "+") + std::to_string(number);
}

// (ax+b)(cx+d) as acx^2^+(ad+bc)x+bd, and the other way round
Pair multipliedOut(Draws& draws) {
    const int a = draws.between(1, 9);
    const int b = draws.between(-9, 9);
    const int c = draws.between(1, 9);
    const int d = draws.between(-9, 9);
    const std::string product =
        "(" + std::to_string(a) + "x" + withSign(b) + ")(" + std::to_string(c) + "x" + withSign(d) + ")";
    const std::string sum = std::to_string(a * c) + "x^2^" + withSign(a * d + b * c) + "x" + withSign(b * d);
    return draws.chance(50) ? Pair{product, sum} : Pair{sum, product};
}

// #a/b#+#c/d# over a common multiple of one's own
Pair overOneDenominator(Draws& draws) {
    const int a = draws.between(1, 30);
    const int b = draws.between(2, 15);
    const int c = draws.between(1, 30);
    const int d = draws.between(2, 15);
    const int below = std::lcm(b, d) * draws.between(1, 5);
    const std::string before =
        "#" + std::to_string(a) + "/" + std::to_string(b) + "#+#" + std::to_string(c) + "/" + std::to_string(d) + "#";
    const int first = a * (below / b);
    const int second = c * (below / d);
    const std::string above =
        draws.chance(50) ? std::to_string(first + second) : std::to_string(first) + withSign(second);
    return {before, "#" + above + "/" + std::to_string(below) + "#"};
}

// --- the problems

struct Topic {
    Problem (*generator)(Draws&);
    LineKind kind;
};
constexpr Topic topics[] = {
    {equationProblem, LineKind::Equation},        {arithmeticProblem, LineKind::Expression},
    {linearGraphProblem, LineKind::Equation},     {fractionProblem, LineKind::Expression},
    {polynomialProblem, LineKind::Expression},    {rootProblem, LineKind::Expression},
    {exponentProblem, LineKind::Expression},      {complexArithmeticProblem, LineKind::Expression},
    {absoluteValueProblem, LineKind::Expression}, {negativeExponentProblem, LineKind::Expression}};

// What the solver cut off after seven digits is told of its own lines, and not worth a student's.
bool hasLongNumber(const Solution& solution) {
    return std::any_of(solution.steps.begin(), solution.steps.end(),
                       [](const Step& step) { return hasSevenDigits(step.line); });
}

bool isUsable(const Solution& solution) {
    return solution.messages.empty() && solution.steps.size() > 1 && !hasLongNumber(solution);
}

TEST(Judge, CallsTrueLinesByOtherWaysRight) {
    Draws draws(21);
    std::vector<int> right(std::size(topics));
    int byPairs = 0;
    const auto expectRight = [&](const std::string& before, const std::string& line, LineKind kind) {
        const LineRules rules{kind, {false, 2}, exact::lettersOf(before), {}};
        const Judgement judgement = judgeMarkup(before, line, rules);
        const bool isRight = judgement.verdict == Verdict::Right ||
                             (judgement.verdict == Verdict::Same && exact::bareMarkup(before) == line);
        EXPECT_TRUE(isRight) << before << "   then   " << line << "\n    " << judgement.reason;
        return isRight ? 1 : 0;
    };
    for (int i = 0; i < rounds(3000); ++i) {
        const std::size_t which = static_cast<std::size_t>(i) % std::size(topics);
        const Topic& topic = topics[which];
        const Solution solution = solve(topic.generator(draws));
        if (!isUsable(solution)) continue;
        const int last = static_cast<int>(solution.steps.size()) - 1;
        const int at = draws.below(last + 1);
        const std::string before = exact::bareMarkup(solution.steps[static_cast<std::size_t>(at)].line);
        if (before.find('$') != std::string::npos) continue;
        // Several steps at once, then by a way of one's own, from any line of the solver's.
        const int later = draws.between(at, last);
        const std::string reached = exact::bareMarkup(solution.steps[static_cast<std::size_t>(later)].line);
        const bool skips = later > at + 1 && reached.find('$') == std::string::npos;
        right[which] += expectRight(before, trueLineAfter(skips ? reached : before, draws), topic.kind);
    }
    for (int i = 0; i < rounds(400); ++i) {
        const Pair pair = i % 2 == 0 ? multipliedOut(draws) : overOneDenominator(draws);
        byPairs += expectRight(pair.before, pair.line, LineKind::Expression);
    }
    const int all = std::accumulate(right.begin(), right.end(), byPairs);
    std::cout << all << " true lines right, by topic:";
    for (const int count : right) std::cout << ' ' << count;
    std::cout << '\n';
    EXPECT_GE(all, rounds(1000));
    EXPECT_GE(*std::min_element(right.begin(), right.end()), rounds(100));
}

// --- spoiled equations

// The left side less the right one, with a number for the letter.
std::optional<Rational> differenceAt(const exact::SidesTree& line, char letter, const Rational& x) {
    const auto left = exact::numberOf(exact::withValues(line.left, {{letter, x}}));
    const auto right = exact::numberOf(exact::withValues(line.right, {{letter, x}}));
    if (!left || !right) return std::nullopt;
    return (*left - *right).asRational();
}

// What solves a line of the first degree, by its differences at 0 and 1 alone.
struct Solved {
    bool everything = false;
    std::optional<Rational> one;

    bool operator==(const Solved&) const = default;
    [[nodiscard]] bool nothing() const { return !everything && !one; }
};
std::optional<Solved> solvedByNumbers(const exact::SidesTree& line, char letter) {
    const auto at0 = differenceAt(line, letter, 0);
    const auto at1 = differenceAt(line, letter, 1);
    if (!at0 || !at1) return std::nullopt;
    if (*at0 == *at1) return Solved{*at0 == 0, std::nullopt};
    return Solved{false, Rational(*at0 / (*at0 - *at1))};
}

Relation expectedRelation(const Solved& before, const Solved& line) {
    if (before == line) return Relation::Same;
    if (line.everything || before.nothing()) return Relation::More;
    if (line.nothing() || before.everything) return Relation::Fewer;
    return Relation::Different;
}

TEST(Judge, TellsHowSpoiledEquationsDiffer) {
    Draws draws(22);
    std::map<Relation, int> told;
    for (int i = 0; i < rounds(1500); ++i) {
        const Solution solution = solve(equationProblem(draws));
        if (!isUsable(solution)) continue;
        const auto last = exact::readEquation(solution.last());
        const std::string letters = exact::lettersOf(solution.steps.front().line);
        const char letter = letters.empty() ? 'x' : letters.front();
        ASSERT_TRUE(last) << solution.last();
        const auto wanted = solvedByNumbers(*last, letter);
        ASSERT_TRUE(wanted) << solution.last();
        for (std::size_t k = 0; k + 1 < solution.steps.size(); ++k) {
            const std::string& before = solution.steps[k].line;
            const std::string line = spoiled(before, draws);
            const auto a = exact::readEquation(before);
            const auto b = exact::readEquation(line);
            if (!a || !b || a->denied || b->denied || line == before) continue;
            const auto found = solvedByNumbers(*b, letter);
            if (!found) continue;
            const Relation relation = exact::compareEquations(*a, *b, {false, 2}).relation;
            EXPECT_EQ(relation, expectedRelation(*wanted, *found)) << before << "   then   " << line;
            ++told[relation];
        }
    }
    std::cout << "spoiled equations: " << told[Relation::Different] << " other solutions, " << told[Relation::Fewer]
              << " lost, " << told[Relation::More] << " gained, " << told[Relation::Same] << " equal after all\n";
    // Those of x = 0 and of contradictions stay equal often.
    EXPECT_GT(told[Relation::Different], rounds(2000));
    EXPECT_GT(told[Relation::Fewer], 0);
    EXPECT_GT(told[Relation::More], 0);
}

}  // namespace
}  // namespace ordwise::test
