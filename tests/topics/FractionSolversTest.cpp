#include "FractionSolvers.hpp"

#include "NumberText.hpp"
#include "SolutionOf.hpp"

#include <cmath>
#include <functional>
#include <numeric>
#include <random>

namespace ordwise::test {
namespace {

TEST(SimplifyFraction, tellsTheDivisor) {
    EXPECT_EQ(asText(solutionOf([] { SimplifyFraction("4/6", true); })), R"(
#4/6#
#4/6# simplified:
    To simplify a fraction, divide the numerator and denominator by the largest number that divides evenly into both.
2 can be divided evenly into the numerator and denominator:
    2 is the largest whole number that divides evenly into both the numerator and denominator.
#2/3#
    #4/6# simplified: #2/3#
)");
    const Solution whole = solutionOf([] { SimplifyFraction("6/3", true); });
    EXPECT_EQ(whole.lines, (Lines{"#6/3#", "#6/3# simplified:", "2"}));
    EXPECT_EQ(whole.notes[2], "The numerator divided evenly into the denominator.");
    EXPECT_EQ(answerOf([] { SimplifyFraction("3/7", true); }), "Already simplified.");
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

TEST(SimplifyFractionText, agreesWithThePlainSearch) {
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

TEST(MixedToImproper, isMultipliedAddedAndSimplified) {
    EXPECT_EQ(asText(solutionOf([] { MixedToImproper("2", "2/4"); })), R"(
2#2/4#
To convert 2#2/4# from a mixed number to fractional notation:
    2#2/4# is the same as writing 2 + #2/4#.
Multiply the whole number by the denominator of the fraction:
    The whole number is the number on the left (without a denominator), and the fraction portion is on the right.
2 * 4 = 8
    Multiply.
Add the numerator of the fraction to the result:
    The numerator is the number on top in a fraction.
8 + 2 = 10
    Add.
Keep the denominator of the original fraction:
    The original fraction is the fraction in the original mixed number.
#10/4#
    This is mixed notation.
#10/4# simplified:
    To simplify a fraction, divide the numerator and denominator by the largest number that divides evenly into both.
2 can be divided evenly into the numerator and denominator:
    2 is the largest whole number that divides evenly into both the numerator and denominator.
#5/2#
    #10/4# simplified: #5/2#
)");
    EXPECT_EQ(answerOf([] { MixedToImproper("2", "1/3"); }), "#7/3#");
}

TEST(ImproperToMixed, dividesWithARemainder) {
    EXPECT_EQ(asText(solutionOf([] { ImproperToMixed("7/3"); })), R"(
#7/3#
To convert #7/3# from fractional notation to a mixed number:
    A mixed number is a whole number, followed by a fraction.
The numerator divides evenly into the denominator 2 times.
    #7/3# = 2 with a remainder of 1.
2 becomes the whole number.
    The remainder of the division will become the numerator of the fraction portion of the mixed number.
The remainder of that division becomes the numerator of the fraction:
    #7/3# = 2 with a remainder of 1.
2 #1/?#
    Mixed number format.
Keep the denominator of the original fraction:
    The denominator is the number on the bottom of a fraction.
2 #1/3#
    Mixed number format.
)");
    const Solution even = solutionOf([] { ImproperToMixed("8/4"); });
    EXPECT_EQ(even.lines[6], "Since the numerator is 0, the fraction portion is not necessary.");
    EXPECT_EQ(even.last(), "2");
    EXPECT_EQ(even.notes.back(), "Whole number format.");
    EXPECT_EQ(asText(solutionOf([] { ImproperToMixed("5/5"); })), R"(
#5/5#
To convert #5/5# from fractional notation to a mixed number:
    A mixed number is a whole number, followed by a fraction.
A number other than 0 divided by itself equals 1.
#5/5# = 1
)");
}

TEST(ImproperToMixedText, isEmptyWhereThereIsNoMixedNumber) {
    EXPECT_EQ(ImproperToMixedText("7/3"), "2 #1/3#");
    EXPECT_EQ(ImproperToMixedText("3/3"), "1");
    EXPECT_EQ(ImproperToMixedText("2/3"), "");
    EXPECT_EQ(ImproperToMixedText("2/0"), "");
}

TEST(RatioToFraction, namesBothNumbers) {
    const Solution ratio = solutionOf([] { RatioToFraction("3:4"); });
    EXPECT_EQ(ratio.lines,
              (Lines{"3:4", "The proper notation for ratios:", "The first number (3) becomes the numerator:",
                     "The second number (4) becomes the denominator:", "#3/4#"}));
    EXPECT_EQ(ratio.notes.back(), "#3/4# is a 3 to 4 ratio.");
}

TEST(Proportion, freesXInEachPlace) {
    EXPECT_EQ(asText(solutionOf([] { Proportion("x", "4", "6", "8"); })), R"(
#x/4# = #6/8#
Two fractions (ratios) are proportional if the cross products are equal.
    To find out if the cross products are equal, multiply the numerator of the first fraction by the denominator of the second fraction and determine if that amount is equal to multiplying the denominator of the first fraction by the numerator of the second fraction.
#x/4# = #6/8#
    Substitute known values.
x * 8 = 4 * 6
    Cross multiply.
#x * 8/[8]# = #24/[8]#
    Divide both sides by 8.
x = 3
    Solve for x.
#3/4# = #6/8#
    Replace the value of x into the fraction to show the correct proportion.
)");
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

TEST(Proportion, endsWithAZeroInThePlaceOfTheDivisor) {
    for (const char* other : {"2", "0"}) {
        const Solution solution = solutionOf([&] { Proportion(other, "x", "0", "5"); });
        EXPECT_EQ(solution.fault, 11);
        EXPECT_EQ(solution.last().substr(0, 14), "#x * 0/[0]# = ");
    }
}

TEST(DecimalToFraction, movesThePoint) {
    EXPECT_EQ(asText(solutionOf([] { DecimalToFraction(".5", true); })), R"(
.5
The fractional notation of .5 is:
    Fractional notation is shown as: #numerator/denominator#
Move the decimal to the far right and divide by 10^number of times decimal moved^:
    For every position the place value moves to the right, divide by 10.
#5/10#
    .5 written as a fraction.
#5/10# simplified:
    To simplify a fraction, divide the numerator and denominator by the largest number that divides evenly into both.
5 can be divided evenly into the numerator and denominator:
    5 is the largest whole number that divides evenly into both the numerator and denominator.
#1/2#
    #5/10# simplified: #1/2#
)");
    EXPECT_EQ(answerOf([] { DecimalToFraction("0.37", true); }), "#37/100#");
    EXPECT_EQ(answerOf([] { DecimalToFraction("7.", true); }), "7");
    EXPECT_EQ(solutionOf([] { DecimalToFraction("0.37", false); }).lines[0], "The fractional notation of 0.37 is:");
    EXPECT_EQ(DecimalToFractionText("-.25"), "-25/100");
    EXPECT_EQ(DecimalToFractionText("12"), "12/1");
    EXPECT_EQ(solutionOf([] { DecimalToFraction(".", true); }).fault, 13);
}

TEST(FractionToDecimal, divides) {
    EXPECT_EQ(asText(solutionOf([] { FractionToDecimal("1/3"); })), R"(
#1/3#
#1/3# converted to decimal:
    To convert to decimal notation, the division symbol must be eliminated.
Divide the numerator by the denominator:
    Divide the number above the division symbol by the number below the division symbol.
0.33
    #1/3# in decimal form.
)");
    EXPECT_EQ(FractionToDecimalText("5"), "5");
    EXPECT_EQ(solutionOf([] { FractionToDecimal("5"); }).last(), "#5# is already in decimal form.");
}

TEST(Fractions, complainOfAZeroDenominatorAndStop) {
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

TEST(Fractions, faultWithoutABarAndKeepTheStepsBefore) {
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

TEST(Fractions, agreeWithArithmetic) {
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
