// The judge against the solver: every line that the solver writes is right from the line before it, and a
// line that was spoiled is called wrong unless it is equal after all.
#include "EngineProblems.hpp"
#include "LineEquality.hpp"
#include "Sanitized.hpp"
#include "SpoiledLines.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iostream>

namespace ordwise::test {
namespace {

using exact::Comparison;
using exact::Relation;

using Generator = Problem (*)(Draws&);
constexpr Generator generators[] = {
    arithmeticProblem,          fractionProblem,          exponentProblem,        rootProblem,
    exponentialNotationProblem, equationProblem,          polynomialProblem,      linearGraphProblem,
    absoluteValueProblem,       complexArithmeticProblem, negativeExponentProblem};

std::optional<Comparison> compared(const std::string& before, const std::string& line,
                                   const exact::Rounding& rounding) {
    if (before.find('=') != std::string::npos) {
        const auto a = exact::readEquation(before);
        const auto b = exact::readEquation(line);
        if (!a || !b) return std::nullopt;
        return exact::compareEquations(*a, *b, rounding);
    }
    const auto a = exact::readExpression(before);
    const auto b = exact::readExpression(line);
    if (!a || !b) return std::nullopt;
    return exact::compareExpressions(*a, *b, rounding);
}

bool isRight(const std::optional<Comparison>& comparison) {
    return comparison && (comparison->relation == Relation::Same || comparison->relation == Relation::Rounded);
}

// The second evaluation: both lines at whole numbers, with nothing in common but the reader and the
// arithmetic of numbers. True where they differ somewhere, nothing where that cannot be told.
std::optional<bool> differAtNumbers(const std::string& before, const std::string& line) {
    const auto a = exact::readExpression(before);
    const auto b = exact::readExpression(line);
    if (!a || !b) return std::nullopt;
    bool told = false;
    for (int round = 0; round < 6; ++round) {
        std::map<char, exact::Rational> values;
        int value = 3 + round;
        for (const char letter : exact::lettersIn(*a) + exact::lettersIn(*b)) values.try_emplace(letter, value++);
        const auto x = exact::numberOf(exact::withValues(*a, values));
        const auto y = exact::numberOf(exact::withValues(*b, values));
        if (!x || !y) continue;
        told = true;
        if (!(*x == *y)) return true;
    }
    if (!told) return std::nullopt;
    return false;
}

double timeOf(const std::string& before, const std::string& line, const exact::Rounding& rounding) {
    const auto begin = std::chrono::steady_clock::now();
    (void)compared(before, line, rounding);
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

struct Slowest {
    double milliseconds = 0;
    std::string before;
    std::string line;

    // The least of a few: what else the machine does counts for nothing.
    void take(double time, const std::string& one, const std::string& other, const exact::Rounding& how) {
        for (int i = 0; i < 3 && time > milliseconds; ++i) time = std::min(time, timeOf(one, other, how));
        if (time > milliseconds) *this = {time, one, other};
    }
};

TEST(Judge, CallsTheSolversLinesRightAndSpoiledOnesWrong) {
    Draws draws(20);
    Slowest slowest;
    int lines = 0;
    int wrong = 0;
    int undecided = 0;
    int cut = 0;
    const int problems = rounds(10000);
    for (int i = 0; i < problems; ++i) {
        Problem problem = generators[static_cast<std::size_t>(i) % std::size(generators)](draws);
        const bool decimals = i % 2 == 1 && problem.topic != "Fraction Arithmetic";
        if (decimals) problem.settings["use_fraction"] = "0";
        const Solution solution = solve(problem);
        if (!solution.messages.empty()) continue;
        for (std::size_t k = 1; k < solution.steps.size(); ++k) {
            const std::string& before = solution.steps[k - 1].line;
            const std::string& line = solution.steps[k].line;
            const exact::Rounding rounding{decimals, 2};
            const auto begin = std::chrono::steady_clock::now();
            const auto comparison = compared(before, line, rounding);
            const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
            slowest.take(time.count(), before, line, rounding);
            // The solver multiplies what has more digits than it can write, 448*598.97 being 268338.56 and
            // written 268338.6; that line is not equal.
            const bool cutOff = hasSevenDigits(line) && before.find_first_of("(*") != std::string::npos;
            if (cutOff && !isRight(comparison)) {
                ++cut;
                continue;
            }
            EXPECT_TRUE(isRight(comparison)) << problem.command() << "\n    " << before << "   then   " << line;
            ++lines;
            const std::string bad = spoiled(line, draws);
            if (decimals || bad == line || before.find('=') != std::string::npos) continue;
            const auto judged = compared(before, bad, rounding);
            const auto differs = differAtNumbers(before, bad);
            if (!judged || !differs || judged->relation == Relation::Unknown) {
                ++undecided;
                continue;
            }
            const bool saysWrong = judged->relation == Relation::Different || judged->relation == Relation::NoValue;
            EXPECT_EQ(saysWrong, *differs) << before << "   then   " << bad;
            wrong += saysWrong ? 1 : 0;
        }
    }
    std::cout << lines << " lines of the solver; " << wrong << " spoiled ones wrong, " << undecided
              << " not to be read or decided; the slowest verdict took " << slowest.milliseconds
              << " ms: " << slowest.before << "   then   " << slowest.line << '\n';
    EXPECT_GT(wrong, problems);
    EXPECT_LE(cut, 5);
    EXPECT_LT(slowest.milliseconds, allowed(20));
}

}  // namespace
}  // namespace ordwise::test
