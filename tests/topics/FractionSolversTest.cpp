#include "FractionSolvers.hpp"

#include "NumberText.hpp"
#include "SolutionOf.hpp"

#include <cstdlib>
#include <functional>
#include <random>

namespace ordwise::test {
namespace {

TEST(SimplifyFraction, WritesNumbersAnew) {
    EXPECT_EQ(answerOf([] { SimplifyFraction("0/7", true); }), "0");
    EXPECT_EQ(answerOf([] { SimplifyFraction("04/7", true); }), "#4/7#");
}

// Tries every divisor from 2 to the numerator and keeps the last.
std::string plainSimplify(int top, int bottom, int& divisor) {
    divisor = bottom == 0 ? -1 : 0;
    if (bottom == 0) return "";
    if (top % bottom == 0) return textOf(top / bottom);
    for (int d = 2; d <= std::abs(top); ++d) {
        if (top % d == 0 && bottom % d == 0) divisor = d;
    }
    const int d = divisor == 0 ? 1 : divisor;
    return textOf(top / d) + "/" + textOf(bottom / d);
}

TEST(SimplifyFractionText, AgreesWithThePlainSearch) {
    for (int top = -40; top <= 60; ++top) {
        for (int bottom = 0; bottom <= 60; ++bottom) {
            int divisor = 0;
            const std::string plain = plainSimplify(top, bottom, divisor);
            EXPECT_EQ(SimplifyFractionText(textOf(top) + "/" + textOf(bottom)), plain);
            EXPECT_EQ(ws.LargestCommonDivisor, divisor) << top << '/' << bottom;
        }
    }
    EXPECT_EQ(SimplifyFractionText("2147483646/2147483647"), "2147483646/2147483647");
    EXPECT_EQ(SimplifyFractionText("1.5/4.5"), "1.5/4.5");
}

TEST(MixedToImproper, SimplifiesOnlyWhereThereIsADivisor) {
    EXPECT_EQ(answerOf([] { MixedToImproper("2", "1/3"); }), "#7/3#");
    EXPECT_EQ(answerOf([] { MixedToImproper("2", "3/3"); }), "3");
}

TEST(ImproperToMixedText, IsEmptyWhereThereIsNoMixedNumber) {
    EXPECT_EQ(ImproperToMixedText("7/3"), "2 #1/3#");
    EXPECT_EQ(ImproperToMixedText("3/3"), "1");
    EXPECT_EQ(ImproperToMixedText("2/3"), "");
    EXPECT_EQ(ImproperToMixedText("2/0"), "");
}

TEST(Proportion, FreesXInEachPlace) {
    struct Case {
        const char *a, *b, *c, *d;
        const char *divided, *solved, *shown;
    };
    const Case cases[] = {
        {"3", "x", "6", "8", "#x * 6/[6]# = #24/[6]#", "x = 4", "#3/4# = #6/8#"},
        {"3", "4", "x", "8", "#24/[4]# = #4 * x/[4]#", "6 = x", "#3/4# = #6/8#"},
        {"3", "4", "6", "x", "#24/[3]# = #3 * x/[3]#", "8 = x", "#3/4# = #6/8#"},
        {"x", "3", "1", "9", "#x * 9/[9]# = #3/[9]#", "x = 0.33", "#0.33/3# = #1/9#"},
    };
    for (const Case& c : cases) {
        const Solution solution = solutionOf([&] { Proportion(c.a, c.b, c.c, c.d); });
        ASSERT_EQ(solution.lines.size(), 7U);
        EXPECT_EQ(solution.lines[4], c.divided);
        EXPECT_EQ(solution.lines[5], c.solved);
        EXPECT_EQ(solution.lines[6], c.shown);
    }
}

TEST(Proportion, EndsWithAZeroInThePlaceOfTheDivisor) {
    for (const char* other : {"2", "0"}) {
        const Solution solution = solutionOf([&] { Proportion(other, "x", "0", "5"); });
        EXPECT_EQ(solution.fault, 11);
        EXPECT_EQ(solution.last().substr(0, 14), "#x * 0/[0]# = ");
    }
}

TEST(DecimalToFraction, MovesThePoint) {
    EXPECT_EQ(answerOf([] { DecimalToFraction("7.", true); }), "7");
    EXPECT_EQ(solutionOf([] { DecimalToFraction("0.37", false); }).lines[0], "The fractional notation of 0.37 is:");
    EXPECT_EQ(DecimalToFractionText("-.25"), "-25/100");
    EXPECT_EQ(DecimalToFractionText("12"), "12/1");
    EXPECT_EQ(solutionOf([] { DecimalToFraction(".", true); }).fault, 13);
}

TEST(FractionToDecimal, LeavesADecimalAlone) {
    EXPECT_EQ(FractionToDecimalText("5"), "5");
    EXPECT_EQ(solutionOf([] { FractionToDecimal("5"); }).last(), "#5# is already in decimal form.");
}

TEST(Fractions, ComplainOfAZeroDenominatorAndStop) {
    struct Case {
        std::function<void()> solver;
        std::size_t steps;
        const char* complaint;
    };
    const Case cases[] = {
        {[] { SimplifyFraction("4/0", true); }, 3, "This is not valid because division by 0 is illegal."},
        {[] { MixedToImproper("2", "1/0"); }, 2, "This is not valid because division by 0 is not allowed."},
        {[] { ImproperToMixed("2/0"); }, 3, "This fraction isn't valid because division by zero is illegal."},
        {[] { ImproperToMixed("2/3"); }, 3,
         "The numerator must be greater than the denominator to convert to mixed notation."},
        {[] { Proportion("1", "0", "2", "x"); }, 2, "Division by 0 is not allowed."},
        {[] { Proportion("1", "x", "2", "0"); }, 2, "Division by 0 is not allowed."},
        {[] { FractionToDecimal("2/0"); }, 3, "This fraction isn't valid because division by zero is illegal."},
    };
    for (const Case& c : cases) {
        const Solution solution = solutionOf(c.solver);
        expectSound(solution, solution.lines[0]);
        EXPECT_EQ(solution.lines.size(), c.steps) << solution.lines[0];
        EXPECT_EQ(solution.last(), c.complaint) << solution.lines[0];
    }
}

TEST(Fractions, KeepTheStepsBeforeAMissingBar) {
    const std::pair<std::function<void()>, Lines> cases[] = {
        {[] { SimplifyFraction("5", true); }, {"#5#", "#5# simplified:"}},
        {[] { MixedToImproper("5", "2"); }, {"5#2#"}},
        {[] { ImproperToMixed("5"); }, {"#5#"}},
    };
    for (const auto& [solver, kept] : cases) {
        const Solution solution = solutionOf(solver);
        EXPECT_EQ(solution.fault, 9);
        EXPECT_EQ(solution.lines, kept);
    }
}

TEST(Fractions, AgreeWithArithmetic) {
    std::mt19937 random(5);
    std::uniform_int_distribution<int> numbers(1, 9999);
    for (int round = 0; round < 150; ++round) {
        const int n = numbers(random);
        const int d = numbers(random);
        const int whole = numbers(random);
        const std::string fraction = textOf(n) + "/" + textOf(d);
        EXPECT_EQ(valueOfMarkup(answerOf([&] { MixedToImproper(textOf(whole), fraction); }))->toString(),
                  (ExactValue(whole) + ExactValue(n, d)).toString());
        if (n > d) {
            const std::string mixed = answerOf([&] { ImproperToMixed(fraction); });
            const std::string expected =
                n % d == 0 ? textOf(n / d) : textOf(n / d) + " #" + textOf(n % d) + "/" + textOf(d) + "#";
            EXPECT_EQ(mixed, expected);
        }
        EXPECT_NEAR(valueOf(answerOf([&] { FractionToDecimal(fraction); })), static_cast<double>(n) / d, 0.0051);
        const std::string decimal = textOf(n / 100.0);
        EXPECT_TRUE(same(*valueOfMarkup(answerOf([&] { DecimalToFraction(decimal, true); })), ExactValue(n, 100)));
        const std::string x = answerOf([&] { Proportion("x", textOf(d), textOf(n), textOf(whole)); });
        EXPECT_NEAR(valueOf(x.substr(1, x.find('/') - 1)), static_cast<double>(d) * n / whole,
                    0.0051 + 1e-13 * d * n / whole);
    }
}

}  // namespace
}  // namespace ordwise::test
