// What is true of any right solution, held against thousands of random problems of the engine.
#include "EngineChecks.hpp"
#include "EngineProblems.hpp"
#include "MarkupValue.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace ordwise::test {
namespace {

using Generator = Problem (*)(Draws&);
using Check = Complaints (*)(const Solution&);

void append(Complaints& all, const Complaints& more) {
    all.insert(all.end(), more.begin(), more.end());
}

// A line by itself is the solution of a number or a fraction that was typed alone.
bool isRestated(const Solution& solution) {
    return solution.steps.size() == 1 && solution.typed.find_first_of("+-*^~|(", 1) == std::string::npos;
}

// The value of a line with 2 for every letter, if it can be read.
std::optional<ExactValue> readableValue(const std::string& line) {
    Bindings twos;
    for (const char letter : lettersOf(line)) twos[letter] = ExactValue(2);
    return valueOfMarkup(line, twos);
}

// A typed division by zero ends in its message box, and so do numbers past a documented limit.
Complaints arithmeticComplaints(const Problem& problem, const Solution& solution, Check simplest,
                                long double tolerance = 0) {
    Complaints found = commonComplaints(problem, solution);
    if (dividesByZero(solution)) {
        if (solution.messages == std::vector<std::string>{"Division by 0!"}) return {};
        return {{"a division by zero passes", solution.last()}};
    }
    if (solution.messages == std::vector<std::string>{"Overflow!"} && reachesLargeNumbers(solution)) found.clear();
    if (!solution.messages.empty() || solution.steps.empty()) return found;
    append(found, valueComplaints(solution, tolerance));
    if (!isRestated(solution)) append(found, simplest(solution));
    return found;
}

void survey(const std::string& heading, Generator generate, Check simplest, int count) {
    Survey book;
    Draws draws(seedOfRun());
    for (int i = 0; i < count; ++i) {
        const Problem problem = generate(draws);
        const Solution solution = solve(problem);
        book.add(problem, solution, arithmeticComplaints(problem, solution, simplest));
    }
    book.report(heading);
}

TEST(EngineInvariant, ArithmeticIsRightLineByLine) {
    survey("Fractions mode", arithmeticProblem, simplestNumberComplaints, 3000);
}

TEST(EngineInvariant, FractionArithmeticIsRightLineByLine) {
    survey("Fractions mode", fractionProblem, simplestNumberComplaints, 3000);
}

TEST(EngineInvariant, ExponentsAreRightLineByLine) {
    survey("Fractions mode", exponentProblem, simplestNumberComplaints, 1500);
}

TEST(EngineInvariant, ComplexArithmeticIsRightLineByLine) {
    survey("Fractions mode", complexArithmeticProblem, simplestNumberComplaints, 1500);
}

TEST(EngineInvariant, AbsoluteValuesAreRightLineByLine) {
    survey("Fractions mode", absoluteValueProblem, simplestNumberComplaints, 1500);
}

TEST(EngineInvariant, RootsAreRightLineByLine) {
    survey("Fractions mode", rootProblem, simplestRootComplaints, 1500);
}

TEST(EngineInvariant, ExponentialNotationIsRightLineByLine) {
    survey("Fractions mode", exponentialNotationProblem, primePowerComplaints, 1000);
}

TEST(EngineInvariant, PolynomialsAreRightLineByLine) {
    survey("Fractions mode", polynomialProblem, simplestPolynomialComplaints, 2000);
}

TEST(EngineInvariant, NegativeExponentsAreRightLineByLine) {
    const Check nothingMore = [](const Solution&) { return Complaints(); };
    survey("Fractions mode", negativeExponentProblem, nothingMore, 1000);
}

// The rounding of each term and product is allowed for; sums are small, so a real fault stands out.
TEST(EngineInvariant, DecimalsModeStaysWithinItsRounding) {
    Survey book;
    Draws draws(seedOfRun());
    const Check oneNumber = [](const Solution& solution) {
        const bool number = solution.last().find_first_of("#*(") == std::string::npos;
        return number ? Complaints() : Complaints{{"the last line is no decimal number", solution.last()}};
    };
    for (int i = 0; i < 1500; ++i) {
        Problem problem = arithmeticProblem(draws);
        if (std::count(problem.typed.begin(), problem.typed.end(), '*') > 0) continue;
        const int places = draws.between(2, 4);
        problem.settings = {{"use_fraction", "0"}, {"RoundVar", std::to_string(places)}};
        const Solution solution = solve(problem);
        const long double tolerance = places == 2 ? 0.03L : (places == 3 ? 0.003L : 0.0003L);
        book.add(problem, solution, arithmeticComplaints(problem, solution, oneNumber, tolerance));
    }
    book.report("Decimals mode, sums");
}

TEST(EngineInvariant, EquationsKeepTheirSolutions) {
    Survey book;
    Draws draws(seedOfRun());
    for (int i = 0; i < 2500; ++i) {
        const Problem problem = equationProblem(draws);
        const Solution solution = solve(problem);
        Complaints found = commonComplaints(problem, solution);
        if (found.empty()) append(found, equationComplaints(solution));
        if (found.empty()) append(found, solvedEquationComplaints(solution));
        book.add(problem, solution, found);
    }
    book.report("Equations");
}

TEST(EngineInvariant, LinesForTheGraphKeepTheirSolutions) {
    Survey book;
    Draws draws(seedOfRun());
    for (int i = 0; i < 1500; ++i) {
        const Problem problem = linearGraphProblem(draws);
        const Solution solution = solve(problem);
        Complaints found = commonComplaints(problem, solution);
        if (found.empty()) append(found, equationComplaints(solution));
        book.add(problem, solution, found);
    }
    book.report("Linear equations");
}

// The letters in the order in which they were typed, with the values answered.
Bindings bindingsOf(const Problem& problem) {
    Bindings bindings;
    std::size_t next = 0;
    for (const char c : problem.typed) {
        if (c < 'a' || c > 'z' || bindings.count(c) > 0) continue;
        const std::string& answer = problem.answers.at(next++);
        const bool minus = answer.front() == '-';
        const ExactValue value = *ExactValue::ofDecimal(answer.substr(minus ? 1 : 0));
        bindings[c] = minus ? -value : value;
    }
    return bindings;
}

TEST(EngineInvariant, EvaluationGivesTheValueAtTheAnswers) {
    Survey book;
    Draws draws(seedOfRun());
    for (int i = 0; i < 1500; ++i) {
        const Problem problem = evaluationProblem(draws);
        const Solution solution = solve(problem);
        const Bindings bindings = bindingsOf(problem);
        Complaints found = commonComplaints(problem, solution);
        for (std::size_t s = 1; s < solution.steps.size() && found.empty(); ++s) {
            const auto before = valueOfMarkup(solution.steps[s - 1].line, bindings);
            const auto value = valueOfMarkup(solution.steps[s].line, bindings);
            const bool right =
                before && value && same(*before, *value, std::fabs(before->approximate()) > 9e5L ? 2e-5L : 0);
            if (!right) {
                found.push_back({"a line is not equal to the line before",
                                 solution.steps[s - 1].line + "   then   " + solution.steps[s].line});
            }
        }
        if (found.empty()) append(found, simplestNumberComplaints(solution));
        book.add(problem, solution, found);
    }
    book.report("Evaluation");
}

// Keys at random, as someone leaning on the keyboard: whatever the check lets stand is solved, and every
// line is equal to the line before. What stands may be no mathematics (x^, .5 without digits): then it
// only has to end.
TEST(EngineInvariant, WhatTheKeysLetStandIsRightLineByLine) {
    struct Mashed {
        const char* topic;
        const char* keys;
    };
    static constexpr Mashed topics[] = {
        {"Arithmetic", "0123456789....++--**//"},
        {"Fraction Arithmetic", "123456789+-*////"},
        {"Calculating With Exponents", "123456+-*/^^^"},
        {"Calculating Roots", "123456789+-*~~~"},
        {"Simplifying Polynomials", "12345xxx+-*/^(())"},
        {"Absolute Values", "123456789+-*/||."},
        {"Complex Arithmetic Expressions", "123456+-*/^(())"},
        {"Negative Exponents", "12345xx+--*/^^"},
    };
    Survey book;
    for (const auto& [topic, keys] : topics) {
        Draws draws(seedOfRun());
        for (int i = 0; i < 400; ++i) {
            const Problem problem = mashedProblem(draws, topic, keys);
            const Solution solution = solve(problem);
            const auto value = solution.steps.empty() ? std::nullopt : readableValue(solution.steps.front().line);
            if (!solution.canSolve || !value) continue;
            const Check nothingMore = [](const Solution&) { return Complaints(); };
            book.add(problem, solution, arithmeticComplaints(problem, solution, nothingMore));
        }
    }
    book.report("Keys at random");
}

}  // namespace
}  // namespace ordwise::test
