#include "NumberTheorySolvers.hpp"

#include "NumberText.hpp"
#include "SolutionOf.hpp"
#include "TextTools.hpp"

#include <chrono>
#include <cstdint>
#include <numeric>
#include <random>

namespace ordwise::test {
namespace {

TEST(Multiples, areTen) {
    const Solution solution = solutionOf([] { Multiples("07"); });
    ASSERT_EQ(solution.lines.size(), 12U);
    EXPECT_EQ(solution.lines[1], "The first ten multiples of 07:");
    EXPECT_EQ(solution.lines[2], "1 * 07 = 7");
    EXPECT_EQ(solution.notes[2], "Multiply 07 by 1.");
    EXPECT_EQ(solution.last(), "10 * 07 = 70");
}

TEST(Factors, comeInPairs) {
    EXPECT_EQ(asText(solutionOf([] { Factors("16", true); })), R"(
16
16 = 1 * 16
    1 and 16 are both factors of 16 because they both divide evenly into 16.
16 = 2 * 8
    2 and 8 are both factors of 16 because they both divide evenly into 16.
16 = 4 * 4
    4 and 4 are both factors of 16 because they both divide evenly into 16.
Factors of 16: 1, 2, 4, 8, 16
    All the numbers that divide evenly into another number are the factors of that number.
)");
    EXPECT_EQ(answerOf([] { Factors("1", true); }), "Factors of 1: 1");
    EXPECT_EQ(solutionOf([] { Factors("0", true); }).lines, Lines{"0"});
    EXPECT_EQ(solutionOf([] { Factors("0", false); }).lines, Lines{});
    // As a stage it neither restates nor shows.
    EXPECT_EQ(solutionOf([] { Factors("2", false); }).lines, (Lines{"2 = 1 * 2", "Factors of 2: 1, 2"}));
    EXPECT_TRUE(frmPaper.Paper[0].drawn().empty());
}

std::string factorsOf(int n) {
    std::string list = "1";
    for (int d = 2; d <= n; ++d) {
        if (n % d == 0) list += ", " + std::to_string(d);
    }
    return list;
}

TEST(Factors, areThoseOfTheFullSearch) {
    for (int n = 1; n <= 9999; n += n < 300 ? 1 : 37) {
        const std::string number = std::to_string(n);
        ASSERT_EQ(answerOf([&] { Factors(number, true); }), "Factors of " + number + ": " + factorsOf(n));
    }
}

TEST(PrimeOrComposite, saysWhy) {
    EXPECT_EQ(asText(solutionOf([] { PrimeOrComposite("3"); })), R"(
3
To tell whether 3 is prime or composite, first calculate the factors of 3:
    The number of factors a number has determines whether it is prime or composite.
3 = 1 * 3
    1 and 3 are both factors of 3 because they both divide evenly into 3.
Factors of 3: 1, 3
    All the numbers that divide evenly into another number are the factors of that number.
3 is PRIME because 3 has exactly two different factors.
    A prime number has two factors, itself and 1.
)");
    EXPECT_EQ(answerOf([] { PrimeOrComposite("1"); }),
              "1 is not prime or composite because 1 does not have two different factors.");
    EXPECT_EQ(answerOf([] { PrimeOrComposite("2"); }), "2 is PRIME because 2 has exactly two different factors.");
    EXPECT_EQ(answerOf([] { PrimeOrComposite("4"); }), "4 is COMPOSITE because 4 has more than two different factors.");
    EXPECT_EQ(solutionOf([] { PrimeOrComposite("0"); }).lines, Lines{"0"});
}

TEST(PrimeOrComposite, forgetsThePrimeBefore) {
    const Solution solution = solutionOf([] {
        Factors("7", false);
        PrimeOrComposite("9");
    });
    EXPECT_EQ(solution.last(), "9 is COMPOSITE because 9 has more than two different factors.");
}

TEST(PrimeFactorization, takesOnePrimeAStep) {
    EXPECT_EQ(asText(solutionOf([] { PrimeFactorization("12"); })), R"(
12
The prime factorization of 12 is:
    The prime factorization of a number is that number written as all prime numbers multiplied by each other.
2*6
    Extract all the prime numbers from 12.
2*2*3
    Extract all the prime numbers from 12.
)");
    for (const char* number : {"0", "1", "2", "7", "7.5"}) {
        EXPECT_EQ(answerOf([&] { PrimeFactorization(number); }), std::string(number) + " is already a prime factor.");
    }
}

// Tries every divisor up to half of the number.
Lines plainPrimeSearch(int n) {
    Lines lines;
    std::string primes;
    int rest = n;
    const int limit = longOf(n / 2.0);
    for (int d = 2; d <= limit; ++d) {
        while (rest % d == 0) {
            rest /= d;
            primes += (primes.empty() ? "" : "*") + std::to_string(d);
            if (rest != 1) lines.push_back(primes + "*" + std::to_string(rest));
            if (rest == 1) break;
        }
    }
    if (primes.empty()) lines.push_back(std::to_string(n) + " is already a prime factor.");
    return lines;
}

TEST(PrimeFactorization, hasTheStepsOfThePlainSearch) {
    for (int n = 1; n <= 9999; n += n < 300 ? 1 : 37) {
        const std::string number = std::to_string(n);
        Lines expected = plainPrimeSearch(n);
        expected.insert(expected.begin(), {number, "The prime factorization of " + number + " is:"});
        ASSERT_EQ(solutionOf([&] { PrimeFactorization(number); }).lines, expected);
    }
}

TEST(Reciprocal, flipsWholeNumbersAndFractions) {
    EXPECT_EQ(asText(solutionOf([] { Reciprocal("3/4"); })), R"(
#3/4#
To find the reciprocal, interchange the numerator and the denominator.
    The numerator is the number on top in the fraction, the denominator is the number on the bottom.
The reciprocal of #3/4# is:
    To find the reciprocal, flip the numerator and the denominator.
#4/3#
    To find the reciprocal of #3/4#, flip the numerator and the denominator.
)");
    EXPECT_EQ(asText(solutionOf([] { Reciprocal("5"); })), R"(
5
To find the reciprocal, interchange the numerator and the denominator.
    The numerator is the number on top in the fraction, the denominator is the number on the bottom.
The reciprocal of 5, or #5/1#, is:
    The denominator of a whole number is understood as 1.
#1/5#
    Flip the numerator and the denominator.
)");
    const Solution whole = solutionOf([] { Reciprocal("1/4"); });
    EXPECT_EQ(whole.last(), "#4/1#, or 4");
    EXPECT_EQ(whole.notes.back(), "Any number divided by 1 equals that number.");
    EXPECT_EQ(answerOf([] { Reciprocal("1"); }), "#1/1#, or 1");
}

TEST(GreatestCommonFactor, isTheLargestOfTheSearch) {
    EXPECT_EQ(asText(solutionOf([] { GreatestCommonFactor("12,18"); })), R"(
12,18
The GCF of 12,18 is:
    The greatest number that divides evenly into a group of numbers is the greatest common factor (GCF).
6
    6 is the GCF of 12,18.
)");
    for (const char* list : {"0", "0,5", "5,0", "4,0,6", "-4,0"}) {
        EXPECT_EQ(answerOf([&] { GreatestCommonFactor(list); }), "0") << list;
    }
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("-4,10"); }), "2");
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("9"); }), "9");
    EXPECT_EQ(solutionOf([] { GreatestCommonFactor("4,,6"); }).fault, 13);
    EXPECT_EQ(solutionOf([] { GreatestCommonFactor("4,3000000000"); }).fault, 6);
}

TEST(LeastCommonMultiple, restatesItsList) {
    EXPECT_EQ(asText(solutionOf([] { LeastCommonMultiple("4,6"); })), R"(
4,6
The LCM of 4,6 is:
    The smallest number that a group of numbers divides into evenly is the least common multiple (LCM).
12
    12 is the LCM of 4,6.
)");
    EXPECT_EQ(answerOf([] { LeastCommonMultiple("4,0,6"); }), "0");
    EXPECT_EQ(solutionOf([] { LeastCommonMultiple("9973,9967,9949"); }).fault, 6);
}

TEST(CommonFactorsAndMultiples, agreeWithTheStandardLibrary) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> counts(1, 4);
    std::uniform_int_distribution<int> small(1, 120);
    for (int round = 0; round < 200; ++round) {
        std::vector<std::string> values;
        std::int64_t factor = 0;
        std::int64_t multiple = 1;
        for (int i = counts(random); i > 0; --i) {
            const int value = 6 * small(random);
            values.push_back(std::to_string(value));
            factor = std::gcd(factor, value);
            multiple = std::lcm(multiple, value);
        }
        const std::string list = joined(values, ",");
        EXPECT_EQ(answerOf([&] { GreatestCommonFactor(list); }), std::to_string(factor)) << list;
        if (multiple <= INT32_MAX) {
            EXPECT_EQ(answerOf([&] { LeastCommonMultiple(list); }), std::to_string(multiple)) << list;
        }
    }
}

TEST(Searches, answerTheLargestNumbersAtOnce) {
    const auto started = std::chrono::steady_clock::now();
    EXPECT_EQ(answerOf([] { PrimeFactorization("2147483647"); }), "2147483647 is already a prime factor.");
    EXPECT_EQ(answerOf([] { PrimeOrComposite("2147483647"); }),
              "2147483647 is PRIME because 2147483647 has exactly two different factors.");
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("2147483647,2147483646"); }), "1");
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("9999,9999,9999"); }), "9999");
    // The plain searches take seconds; what is left is far below the 10 ms that each may take.
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::milliseconds(200));
}

}  // namespace
}  // namespace ordwise::test
