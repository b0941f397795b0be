#include "NumberTheorySolvers.hpp"

#include "NumberText.hpp"
#include "SolutionOf.hpp"

namespace ordwise::test {
namespace {

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

TEST(PrimeOrComposite, ForgetsThePrimeBefore) {
    const Solution solution = solutionOf([] {
        Factors("7", false);
        PrimeOrComposite("9");
    });
    EXPECT_EQ(solution.last(), "9 is COMPOSITE because 9 has more than two different factors.");
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

TEST(GreatestCommonFactor, IsLookedForUpToTheSmallestNumber) {
    for (const char* list : {"0", "0,5", "5,0", "4,0,6", "-4,0"}) {
        EXPECT_EQ(answerOf([&] { GreatestCommonFactor(list); }), "0") << list;
    }
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("-4,10"); }), "2");
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("9"); }), "9");
    EXPECT_EQ(solutionOf([] { GreatestCommonFactor("4,,6"); }).fault, 13);
    EXPECT_EQ(solutionOf([] { GreatestCommonFactor("4,3000000000"); }).fault, 6);
}

TEST(Searches, AnswerTheLargestNumbers) {
    EXPECT_EQ(answerOf([] { PrimeFactorization("2147483647"); }), "2147483647 is already a prime factor.");
    EXPECT_EQ(answerOf([] { PrimeOrComposite("2147483647"); }),
              "2147483647 is PRIME because 2147483647 has exactly two different factors.");
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("2147483647,2147483646"); }), "1");
    EXPECT_EQ(answerOf([] { GreatestCommonFactor("9999,9999,9999"); }), "9999");
}

}  // namespace
}  // namespace ordwise::test
