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

TEST(Multiples, AreTen) {
    const Solution solution = solutionOf([] { Multiples("07"); });
    ASSERT_EQ(solution.lines.size(), 12U);
    EXPECT_EQ(solution.lines[1], "The first ten multiples of 07:");
    EXPECT_EQ(solution.lines[2], "1 * 07 = 7");
    EXPECT_EQ(solution.notes[2], "Multiply 07 by 1.");
    EXPECT_EQ(solution.last(), "10 * 07 = 70");
}

TEST(Factors, StandAloneOrServeAsAStage) {
    EXPECT_EQ(answerOf([] { Factors("1", true); }), "Factors of 1: 1");
    EXPECT_EQ(solutionOf([] { Factors("0", true); }).lines, Lines{"0"});
    EXPECT_EQ(solutionOf([] { Factors("0", false); }).lines, Lines{});
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

TEST(Factors, AreThoseOfTheFullSearch) {
    for (int n = 1; n <= 9999; n += n < 300 ? 1 : 37) {
        const std::string number = std::to_string(n);
        ASSERT_EQ(answerOf([&] { Factors(number, true); }), "Factors of " + number + ": " + factorsOf(n));
    }
}

TEST(PrimeOrComposite, SetsOneApart) {
    EXPECT_EQ(answerOf([] { PrimeOrComposite("1"); }),
              "1 is not prime or composite because 1 does not have two different factors.");
    EXPECT_EQ(answerOf([] { PrimeOrComposite("2"); }), "2 is PRIME because 2 has exactly two different factors.");
    EXPECT_EQ(solutionOf([] { PrimeOrComposite("0"); }).lines, Lines{"0"});
}

TEST(PrimeOrComposite, ForgetsThePrimeBefore) {
    const Solution solution = solutionOf([] {
        Factors("7", false);
        PrimeOrComposite("9");
    });
    EXPECT_EQ(solution.last(), "9 is COMPOSITE because 9 has more than two different factors.");
}

TEST(PrimeFactorization, LeavesWhatHasNoWholeDivisor) {
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

TEST(PrimeFactorization, HasTheStepsOfThePlainSearch) {
    for (int n = 1; n <= 9999; n += n < 300 ? 1 : 37) {
        const std::string number = std::to_string(n);
        Lines expected = plainPrimeSearch(n);
        expected.insert(expected.begin(), {number, "The prime factorization of " + number + " is:"});
        ASSERT_EQ(solutionOf([&] { PrimeFactorization(number); }).lines, expected);
    }
}

TEST(Reciprocal, IsAWholeNumberForOneOverANumber) {
    EXPECT_EQ(answerOf([] { Reciprocal("1/4"); }), "#4/1#, or 4");
    EXPECT_EQ(answerOf([] { Reciprocal("1"); }), "#1/1#, or 1");
    EXPECT_EQ(answerOf([] { Reciprocal("4/1"); }), "#1/4#");
}

TEST(GreatestCommonFactor, IsLookedForUpToTheSmallestNumber) {
    for (const char* list : {"0", "0,5", "5,0", "4,0,6", "-4,0"}) {
        EXPECT_EQ(answerOf([&] { GreatestCommonFactor(list); }), "0") << list;
    }
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("-4,10"); }), "2");
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("9"); }), "9");
    EXPECT_EQ(solutionOf([] { GreatestCommonFactor("4,,6"); }).fault, 13);
    EXPECT_EQ(solutionOf([] { GreatestCommonFactor("4,3000000000"); }).fault, 6);
}

TEST(LeastCommonMultiple, IsZeroForAZeroAndFaultsBeyondItsRange) {
    EXPECT_EQ(answerOf([] { LeastCommonMultiple("4,0,6"); }), "0");
    EXPECT_EQ(solutionOf([] { LeastCommonMultiple("9973,9967,9949"); }).fault, 6);
}

TEST(CommonFactorsAndMultiples, AgreeWithTheStandardLibrary) {
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

TEST(Searches, AnswerTheLargestNumbersAtOnce) {
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
