// Whole numbers, fractions, ratios, place value and comparing.
#include "TopicFamilies.hpp"

#include <cmath>
#include <cstdlib>
#include <numeric>

namespace ordwise::test {

namespace {

std::string textOfFraction(long numerator, long denominator) {
    return std::to_string(numerator) + "/" + std::to_string(denominator);
}

std::string drawnFraction(long numerator, long denominator) {
    return "#" + textOfFraction(numerator, denominator) + "#";
}

// Now and then 0 or 1, where most rules have their edges.
long edgeOrNumber(Draws& draws, int most) {
    if (draws.chance(8)) return draws.below(3);
    return std::atol(draws.number(most).c_str());
}

std::vector<long> primesOf(long n) {
    std::vector<long> primes;
    for (long d = 2; d <= n; ++d) {
        for (; n % d == 0; n /= d) primes.push_back(d);
    }
    return primes;
}

DrawnProblem drawMultiples(Draws& draws) {
    const long n = edgeOrNumber(draws, 7);
    DrawnProblem drawn{{"Multiples", std::to_string(n)}, {}};
    drawn.wanted.line = "10 * " + std::to_string(n) + " = " + std::to_string(10 * n);
    return drawn;
}

DrawnProblem drawFactors(Draws& draws) {
    const long n = edgeOrNumber(draws, 4);
    DrawnProblem drawn{{"Factoring", std::to_string(n)}, {}};
    if (n == 0) {
        drawn.wanted.line = "0";
        return drawn;
    }
    std::string list;
    for (long d = 1; d <= n; ++d) {
        if (n % d == 0) list += (list.empty() ? "" : ", ") + std::to_string(d);
    }
    drawn.wanted.line = "Factors of " + std::to_string(n) + ": " + list;
    return drawn;
}

DrawnProblem drawPrimeOrComposite(Draws& draws) {
    const long n = edgeOrNumber(draws, 4);
    DrawnProblem drawn{{"Prime/Composite", std::to_string(n)}, {}};
    if (n == 0) {
        drawn.wanted.line = "0";
    } else if (n == 1) {
        drawn.wanted.part = "is not prime or composite";
    } else {
        drawn.wanted.part = primesOf(n).size() == 1 ? " is PRIME " : " is COMPOSITE ";
    }
    return drawn;
}

DrawnProblem drawPrimeFactorization(Draws& draws) {
    const long n = edgeOrNumber(draws, 4);
    DrawnProblem drawn{{"Prime Factorization", std::to_string(n)}, {}};
    const auto primes = primesOf(n);
    if (primes.size() < 2) {
        drawn.wanted.line = std::to_string(n) + " is already a prime factor.";
        return drawn;
    }
    for (const long prime : primes) drawn.wanted.line += (drawn.wanted.line.empty() ? "" : "*") + std::to_string(prime);
    return drawn;
}

DrawnProblem drawReciprocal(Draws& draws) {
    const long a = std::atol(draws.number(2).c_str());
    const long b = std::atol(draws.number(2).c_str());
    const bool whole = draws.chance(25);
    DrawnProblem drawn{{"Reciprocals", whole ? std::to_string(a) : textOfFraction(a, b)}, {}};
    drawn.wanted.line = drawnFraction(whole ? 1 : b, a);
    if (a == 1) drawn.wanted.line += ", or " + std::to_string(whole ? 1 : b);
    return drawn;
}

std::string listOf(const std::vector<long>& values) {
    std::string list;
    for (const long value : values) list += (list.empty() ? "" : ",") + std::to_string(value);
    return list;
}

DrawnProblem drawGreatestCommonFactor(Draws& draws) {
    std::vector<long> values;
    const long factor = draws.between(1, 12);
    for (int i = draws.between(1, 5); i > 0; --i) {
        values.push_back(draws.chance(4) ? 0 : factor * std::atol(draws.number(2).c_str()));
    }
    DrawnProblem drawn{{"Greatest Common Factors", listOf(values)}, {}};
    long answer = values.front();
    bool zero = false;
    for (const long value : values) {
        answer = std::gcd(answer, value);
        zero = zero || value == 0;
    }
    // A zero anywhere makes the answer 0.
    drawn.wanted.line = std::to_string(zero ? 0 : answer);
    return drawn;
}

DrawnProblem drawLeastCommonMultiple(Draws& draws) {
    std::vector<long> values;
    for (int i = draws.between(1, 5); i > 0; --i) {
        values.push_back(draws.chance(3) ? 0 : std::atol(draws.number(3).c_str()));
    }
    DrawnProblem drawn{{"Least Common Multiples", listOf(values)}, {}};
    long answer = 1;
    for (const long value : values) answer = std::lcm(answer, value);
    if (answer > 2147483647) {
        drawn.wanted.message = "Overflow!";
    } else {
        drawn.wanted.line = std::to_string(answer);
    }
    return drawn;
}

DrawnProblem drawSimplifying(Draws& draws) {
    const long a = edgeOrNumber(draws, 3);
    const long b = edgeOrNumber(draws, 3);
    DrawnProblem drawn{{"Simplifying Fractions", textOfFraction(a, b)}, {}};
    if (b == 0) {
        drawn.wanted.line = "This is not valid because division by 0 is illegal.";
        return drawn;
    }
    const long common = std::gcd(a, b);
    if (a % b == 0) {
        drawn.wanted.line = std::to_string(a / b);
    } else {
        drawn.wanted.line = common == 1 ? "Already simplified." : drawnFraction(a / common, b / common);
    }
    return drawn;
}

DrawnProblem drawMixedToFraction(Draws& draws) {
    const long whole = std::atol(draws.number(2).c_str());
    const long n = edgeOrNumber(draws, 1);
    const long d = draws.below(10);
    DrawnProblem drawn{{"Mixed To Fraction Notation", std::to_string(whole) + "+" + textOfFraction(n, d)}, {}};
    if (d == 0) {
        drawn.wanted.line = "This is not valid because division by 0 is not allowed.";
        return drawn;
    }
    const long above = whole * d + n;
    const long common = std::gcd(above, d);
    drawn.wanted.line = above % d == 0 ? std::to_string(above / d) : drawnFraction(above / common, d / common);
    return drawn;
}

DrawnProblem drawFractionToMixed(Draws& draws) {
    const long n = edgeOrNumber(draws, 3);
    const long d = edgeOrNumber(draws, 2);
    DrawnProblem drawn{{"Fraction To Mixed Notation", textOfFraction(n, d)}, {}};
    if (d == 0) {
        drawn.wanted.line = "This fraction isn't valid because division by zero is illegal.";
    } else if (n == d) {
        drawn.wanted.line = drawnFraction(n, n) + " = 1";
    } else if (n < d) {
        drawn.wanted.line = "The numerator must be greater than the denominator to convert to mixed notation.";
    } else if (n % d == 0) {
        drawn.wanted.line = std::to_string(n / d);
    } else {
        drawn.wanted.line = std::to_string(n / d) + " " + drawnFraction(n % d, d);
    }
    return drawn;
}

DrawnProblem drawRatio(Draws& draws) {
    const std::string a = draws.number(3);
    const std::string b = draws.number(3);
    DrawnProblem drawn{{"Ratios", a + ":" + b}, {}};
    drawn.wanted.line = "#" + a + "/" + b + "#";
    return drawn;
}

// a/b = c/d in the boxes 1 to 4, one of them left empty for x.
DrawnProblem drawProportion(Draws& draws) {
    DrawnProblem drawn{{"Proportions", ""}, {}};
    const int places = placesFor(draws, drawn.problem);
    const int missing = draws.between(1, 4);
    double v[5] = {};
    for (int box = 1; box <= 4; ++box) {
        if (box == missing) continue;
        const std::string text = draws.chance(5) ? "0" : draws.number(2);
        drawn.problem.boxes[box] = text;
        v[box] = valueText(text);
    }
    if ((missing != 2 && v[2] == 0) || (missing != 4 && v[4] == 0)) {
        drawn.wanted.line = "Division by 0 is not allowed.";
        return drawn;
    }
    const double products[] = {0, v[2] * v[3], v[1] * v[4], v[1] * v[4], v[2] * v[3]};
    const double divisors[] = {0, v[4], v[3], v[2], v[1]};
    if (divisors[missing] == 0) {
        drawn.wanted.message = "Division by 0!";
        return drawn;
    }
    // The last line is the proportion with the value in the place of x.
    const double x = products[missing] / divisors[missing];
    drawn.wanted.places = places;
    if (missing == 1) drawn.wanted.first = x;
    if (missing == 4) drawn.wanted.last = x;
    if (missing == 2 || missing == 3) drawn.wanted.part = missing == 2 ? "# = #" + drawn.problem.boxes[3] : "# = #";
    return drawn;
}

DrawnProblem drawFractionToDecimal(Draws& draws) {
    const long a = edgeOrNumber(draws, 3);
    const long b = edgeOrNumber(draws, 3);
    DrawnProblem drawn{{"Fraction To Decimal Notation", textOfFraction(a, b)}, {}};
    drawn.wanted.places = placesFor(draws, drawn.problem);
    if (b == 0) {
        drawn.wanted.line = "This fraction isn't valid because division by zero is illegal.";
    } else {
        drawn.wanted.last = static_cast<double>(a) / static_cast<double>(b);
    }
    return drawn;
}

DrawnProblem drawDecimalToFraction(Draws& draws) {
    const long hundredths = draws.between(1, 9999);
    std::string text = std::to_string(hundredths / 100) + "." + std::to_string(100 + hundredths % 100).substr(1);
    if (draws.chance(10) && hundredths < 100) text.erase(0, 1);
    DrawnProblem drawn{{"Decimal To Fraction Notation", text}, {}};
    const long common = std::gcd(hundredths, 100L);
    if (hundredths % 100 == 0) {
        drawn.wanted.line = std::to_string(hundredths / 100);
    } else {
        drawn.wanted.line = drawnFraction(hundredths / common, 100 / common);
    }
    return drawn;
}

DrawnProblem drawExpanded(Draws& draws) {
    const std::string digits = draws.number(9);
    DrawnProblem drawn{{"Expanded Notation", digits}, {}};
    drawn.wanted.part = digits.back() == '1' ? "1 one" : std::string(1, digits.back()) + " ones";
    return drawn;
}

DrawnProblem drawComparing(Draws& draws) {
    const auto signedNumber = [&] { return (draws.chance(30) ? "-" : "") + draws.number(3); };
    const std::string a = signedNumber();
    const std::string b = draws.chance(15) ? a : signedNumber();
    DrawnProblem drawn{{"Comparing Values", a + "," + b}, {}};
    const double difference = valueText(a) - valueText(b);
    drawn.wanted.line = a + (difference < 0 ? " < " : difference == 0 ? " = " : " > ") + b;
    return drawn;
}

// Places 1000, 100, 10 and, from the fourth on, decimals 0 to 3; a half rounds up.
DrawnProblem drawRounding(Draws& draws) {
    std::string text = draws.number(5);
    const int choice = draws.below(7);
    const bool decimals = draws.chance(60);
    const int hundredths = decimals ? draws.below(100) : 0;
    if (decimals) text += "." + std::to_string(100 + hundredths).substr(1);
    DrawnProblem drawn{{"Rounding", text}, {}};
    drawn.problem.combos[3] = choice;
    const long long whole = std::atoll(text.c_str());
    const long long value = whole * 100 + hundredths;  // in hundredths
    if (choice >= 3) {
        const long long unit = choice == 3 ? 100 : choice == 4 ? 10 : 1;
        drawn.wanted.last = static_cast<double>((value + unit / 2) / unit * unit) / 100;
        return drawn;
    }
    // Whole tens look at the digits of the number rounded to a whole one, an exact half to the even.
    const long long unit = choice == 0 ? 1000 : choice == 1 ? 100 : 10;
    const long long n = whole + (hundredths > 50 || (hundredths == 50 && whole % 2 == 1) ? 1 : 0);
    if (unit >= n) {
        drawn.wanted.line = value * 2 < unit * 100 ? "0" : std::to_string(unit);
    } else {
        drawn.wanted.line = std::to_string((n + unit / 2) / unit * unit);
    }
    return drawn;
}

}  // namespace

std::vector<TopicGenerator> numberGenerators() {
    return {drawMultiples,
            drawFactors,
            drawPrimeOrComposite,
            drawPrimeFactorization,
            drawReciprocal,
            drawSimplifying,
            drawGreatestCommonFactor,
            drawLeastCommonMultiple,
            drawMixedToFraction,
            drawFractionToMixed,
            drawRatio,
            drawProportion,
            drawFractionToDecimal,
            drawDecimalToFraction,
            drawExpanded,
            drawComparing,
            drawRounding};
}

}  // namespace ordwise::test
