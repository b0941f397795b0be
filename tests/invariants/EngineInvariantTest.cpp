// What is true of any right solution, held against thousands of random problems of the engine.
#include "EngineChecks.hpp"
#include "EngineProblems.hpp"
#include "Sanitized.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ordwise::test {
namespace {

using Generator = Problem (*)(Draws&);

struct Run {
    Generator generate;
    int count;
};

class EngineInvariant : public testing::TestWithParam<Run> {};

TEST_P(EngineInvariant, EveryLineFollowsAndTheLastIsSimplest) {
    Survey book;
    Draws draws(seedOfRun());
    for (int i = 0; i < rounds(GetParam().count); ++i) {
        Problem problem = GetParam().generate(draws);
        const Solution solution = solve(problem);
        book.add(problem, solution, engineComplaints(problem, solution));
        if (i % 4 != 0) continue;
        problem.settings = {{"use_fraction", "0"}};
        const Solution inDecimals = solve(problem);
        book.add(problem, inDecimals, decimalsComplaints(problem, inDecimals));
    }
    book.report("School problems in fractions mode, every fourth in decimals as well");
}

// Named by the topic that they draw.
std::string nameOf(const testing::TestParamInfo<Run>& info) {
    Draws draws(0);
    std::string name;
    for (const char c : info.param.generate(draws).topic) {
        if (c != ' ') name += c;
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Topics, EngineInvariant,
                         testing::Values(Run{arithmeticProblem, 3000}, Run{fractionProblem, 3000},
                                         Run{exponentProblem, 1500}, Run{complexArithmeticProblem, 1500},
                                         Run{absoluteValueProblem, 1500}, Run{rootProblem, 1500},
                                         Run{exponentialNotationProblem, 1000}, Run{polynomialProblem, 2000},
                                         Run{negativeExponentProblem, 1000}, Run{equationProblem, 2500},
                                         Run{linearGraphProblem, 1500}, Run{evaluationProblem, 1500}),
                         nameOf);

// The rounding of each term is allowed for; the sums are small, so a real fault stands out.
TEST(DecimalsMode, StaysWithinItsRounding) {
    Survey book;
    Draws draws(seedOfRun());
    for (int i = 0; i < rounds(1500); ++i) {
        Problem problem = arithmeticProblem(draws);
        if (problem.typed.find('*') != std::string::npos) continue;
        const int places = draws.between(2, 4);
        problem.settings = {{"use_fraction", "0"}, {"RoundVar", std::to_string(places)}};
        const Solution solution = solve(problem);
        const long double tolerance = places == 2 ? 0.03L : (places == 3 ? 0.003L : 0.0003L);
        book.add(problem, solution, sumComplaints(problem, solution, decimalComplaints, tolerance));
    }
    book.report("Sums in decimals mode");
}

// Keys at random, as someone leaning on the keyboard: whatever the check lets stand is solved, and every
// line is equal to the line before. What stands may be no mathematics (x^): then it only has to end.
TEST(RandomKeys, LetNothingStandThatIsSolvedWrongly) {
    struct Mashed {
        const char* topic;
        const char* keys;
    };
    // clang-format off
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
    // clang-format on
    const Check anyForm = [](const Solution&) { return Complaints(); };
    Survey book;
    for (const auto& [topic, keys] : topics) {
        Draws draws(seedOfRun());
        for (int i = 0; i < rounds(400); ++i) {
            const Problem problem = mashedProblem(draws, topic, keys);
            const Solution solution = solve(problem);
            if (isMathematics(solution)) book.add(problem, solution, sumComplaints(problem, solution, anyForm));
        }
    }
    book.report("Keys at random");
}

}  // namespace
}  // namespace ordwise::test
