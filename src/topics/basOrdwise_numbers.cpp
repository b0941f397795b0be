// Multiples, factors, primes, reciprocals, common factors and common multiples.
//
// Where a search over all candidates has a direct answer, the direct answer is taken: the steps and
// the texts are those of the search.
#include "NumberTheorySolvers.hpp"

#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "basOrdwise.hpp"
#include "basReduceFunc.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace ordwise {

void Multiples(const std::string& n) {
    AddStep(n);

    AddStep(text("The first ten multiples of ", n, ":"));
    for (int i = 1; i <= 10; ++i) {
        AddStep(text(i, " * ", n, " = ", i * valueOf(n)), text("Multiply ", n, " by ", i, "."));
    }
    ShowSteps();
}

// ---- Factors

void Factors(const std::string& n, bool standalone) {
    if (standalone) AddStep(n);
    if (!(valueOf(n) > 0)) return;

    const std::int32_t number = longOf(n);
    const std::int32_t limit = longOf(std::sqrt(valueOf(n)));
    std::vector<std::string> factors;
    std::vector<std::string> partners;  // descending
    for (std::int32_t i = 1; i <= limit; ++i) {
        if (number % i != 0) continue;
        const std::int32_t q = number / i;
        factors.push_back(textOf(i));
        if (q != i) partners.push_back(textOf(q));
        AddStep(text(n, " = ", i, " * ", q),
                text(i, " and ", q, " are both factors of ", n, " because they both divide evenly into ", n, "."));
    }
    ws.IsPrimeResult = factors.size() == 1;

    factors.insert(factors.end(), partners.rbegin(), partners.rend());
    AddStep(text("Factors of ", n, ": ", joined(factors, ", ")),
            "All the numbers that divide evenly into another number are the factors of that number.");
    if (standalone) ShowSteps();
}

// ---- Primes

void PrimeOrComposite(const std::string& n) {
    AddStep(n);
    if (valueOf(n) < 1) return;

    AddStep(text("To tell whether ", n, " is prime or composite, first calculate the factors of ", n, ":"),
            "The number of factors a number has determines whether it is prime or composite.");
    Factors(n, false);
    if (valueOf(n) == 1) {
        AddStep(text(n, " is not prime or composite because ", n, " does not have two different factors."),
                "The number 1 is unique because it has only one factor: 1.  Because it does not fit the description "
                "of prime or composite numbers, 1 is neither prime nor composite.");
    } else if (ws.IsPrimeResult) {
        AddStep(text(n, " is PRIME because ", n, " has exactly two different factors."),
                "A prime number has two factors, itself and 1.");
    } else {
        AddStep(text(n, " is COMPOSITE because ", n, " has more than two different factors."),
                "A composite number has more than two different factors.");
    }
    ShowSteps();
}

void PrimeFactorization(const std::string& n) {
    AddStep(n);

    AddStep(text("The prime factorization of ", n, " is:"),
            "The prime factorization of a number is that number written as all prime numbers multiplied by each "
            "other.");
    // Divisors above the root of the rest need no trial: what is left then is the last prime, which
    // already stands at the end of the line. A number with decimals has no whole divisor at all.
    double rest = valueOf(n);
    double divisor = 2;
    std::string primes;
    while (divisor * divisor <= std::abs(rest)) {
        if (std::fmod(rest, divisor) != 0) {
            divisor += 1;
            continue;
        }
        rest /= divisor;
        primes += text(divisor, "*");
        AddStep(text(primes, rest), text("Extract all the prime numbers from ", n, "."));
    }
    if (primes.empty()) {
        AddStep(text(n, " is already a prime factor."), text("No prime numbers can be factored out of ", n, "."));
    }
    ShowSteps();
}

// ---- Reciprocals

namespace {

// The reciprocal over 1 is also written without its denominator.
void answerWhole(const std::string& bottom) {
    AddStep(text("#", bottom, "/1#, or ", bottom), "Any number divided by 1 equals that number.");
}

void flipWholeNumber(const std::string& n) {
    AddStep(text("The reciprocal of ", n, ", or #", n, "/1#, is:"),
            "The denominator of a whole number is understood as 1.");
    if (valueOf(n) == 1) {
        answerWhole("1");
    } else {
        AddStep(text("#1/", n, "#"), "Flip the numerator and the denominator.");
    }
}

void flipFraction(const std::string& top, const std::string& bottom) {
    AddStep(text("The reciprocal of #", top, "/", bottom, "# is:"),
            "To find the reciprocal, flip the numerator and the denominator.");
    if (valueOf(top) == 1) {
        answerWhole(bottom);
    } else {
        AddStep(text("#", bottom, "/", top, "#"),
                text("To find the reciprocal of #", top, "/", bottom, "#, flip the numerator and the denominator."));
    }
}

}  // namespace

void Reciprocal(const std::string& number) {
    const bool fraction = contains(number, "/");
    AddStep(fraction ? text("#", number, "#") : number);

    AddStep("To find the reciprocal, interchange the numerator and the denominator.",
            "The numerator is the number on top in the fraction, the denominator is the number on the bottom.");
    if (fraction) {
        const auto [top, bottom] = halves(number, '/');
        flipFraction(top, bottom);
    } else {
        flipWholeNumber(number);
    }
    ShowSteps();
}

// ---- Common factors and multiples

namespace {

// Common factors are looked for up to the smallest value, so a list with a zero has none: 0.
// e.g. "12,18" -> 6, "0,5" -> 0
std::int64_t greatestCommonFactor(const std::string& list) {
    std::int64_t factor = 0;
    std::int64_t smallest = INT32_MAX;
    for (const std::string& value : split(list, ',')) {
        const std::int64_t number = longOf(value);
        factor = std::gcd(factor, number);
        smallest = std::min(smallest, number);
    }
    const bool zero = smallest == 0 || list.ends_with(",0") || contains(list, ",0,");
    return zero ? 0 : factor;
}

}  // namespace

void GreatestCommonFactor(const std::string& list) {
    AddStep(list);

    AddStep(text("The GCF of ", list, " is:"),
            "The greatest number that divides evenly into a group of numbers is the greatest common factor (GCF).");
    const std::int64_t factor = greatestCommonFactor(list);
    AddStep(text(factor), text(factor, " is the GCF of ", list, "."));
    ShowSteps();
}

void LeastCommonMultiple(const std::string& list) {
    AddStep(list);

    AddStep(text("The LCM of ", list, " is:"),
            "The smallest number that a group of numbers divides into evenly is the least common multiple (LCM).");
    const std::string multiple = LeastCommonMultipleText(list);
    AddStep(multiple,
            IsNumeric(multiple) ? text(multiple, " is the LCM of ", list, ".") : "The LCM can't be calculated.");
    ShowSteps();
}

}  // namespace ordwise
