// Fractions, mixed numbers, ratios, proportions and decimals.
//
// The parts of a fraction print as the student typed them ("04/8"); what is worked out prints as a
// number.
#include "FractionSolvers.hpp"

#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "basOrdwise.hpp"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace ordwise {

// ---- Simplifying

namespace {

// The largest whole number above 1 that divides both evenly, 0 if there is none.
double largestDivisor(double a, double b) {
    if (a != std::trunc(a) || b != std::trunc(b)) return 0;
    a = std::abs(a);
    b = std::abs(b);
    while (b != 0) a = std::exchange(b, std::fmod(a, b));
    return a > 1 ? a : 0;
}

}  // namespace

std::string SimplifyFractionText(const std::string& fraction) {
    const auto [numerator, denominator] = halves(fraction, '/');
    const double top = valueOf(numerator);
    const double bottom = valueOf(denominator);
    ws.LargestCommonDivisor = bottom == 0 ? -1 : 0;
    if (bottom == 0) return "";
    if (std::fmod(top, bottom) == 0) return text(top / bottom);

    ws.LargestCommonDivisor = longOf(largestDivisor(top, bottom));
    if (ws.LargestCommonDivisor == 0) return text(top, "/", bottom);
    return text(top / ws.LargestCommonDivisor, "/", bottom / ws.LargestCommonDivisor);
}

namespace {

// `result` and `divisor` are those of SimplifyFractionText.
void addSimplified(const std::string& fraction, const std::string& result, std::int32_t divisor) {
    if (divisor != 0) {
        AddStep(
            text(divisor, " can be divided evenly into the numerator and denominator:"),
            text(divisor, " is the largest whole number that divides evenly into both the numerator and denominator."));
    }
    if (IsNumeric(result)) {
        AddStep(result, "The numerator divided evenly into the denominator.");
    } else if (result != fraction) {
        AddStep(text("#", result, "#"), text("#", fraction, "# simplified: #", result, "#"));
    } else {
        AddStep("Already simplified.",
                "There is no whole number that divides evenly into the numerator and denominator.");
    }
}

}  // namespace

void SimplifyFraction(const std::string& fraction, bool standalone) {
    if (standalone) AddStep(text("#", fraction, "#"));

    AddStep(text("#", fraction, "# simplified:"),
            "To simplify a fraction, divide the numerator and denominator by the largest number that divides evenly "
            "into both.");
    const std::string result = SimplifyFractionText(fraction);
    if (ws.LargestCommonDivisor == -1) {
        AddStep("This is not valid because division by 0 is illegal.", "It is impossible to divide any number by 0.");
    } else {
        addSimplified(fraction, result, ws.LargestCommonDivisor);
    }
    if (standalone) ShowSteps();
}

// ---- Mixed numbers

std::string MixedToImproperText(const std::string& whole, const std::string& fraction) {
    const auto [n, d] = halves(fraction, '/');
    return text(valueOf(whole) * valueOf(d) + valueOf(n), "/", d);
}

void MixedToImproper(const std::string& whole, const std::string& fraction) {
    AddStep(text(whole, "#", fraction, "#"));
    const auto [n, d] = halves(fraction, '/');
    if (valueOf(d) == 0) {
        return complain("This is not valid because division by 0 is not allowed.",
                        "It is mathematically impossible to divide any number by 0.");
    }

    const double product = valueOf(whole) * valueOf(d);
    const std::string result = MixedToImproperText(whole, fraction);
    AddStep(text("To convert ", whole, "#", fraction, "# from a mixed number to fractional notation:"),
            text(whole, "#", fraction, "# is the same as writing ", whole, " + #", fraction, "#."));
    AddStep("Multiply the whole number by the denominator of the fraction:",
            "The whole number is the number on the left (without a denominator), and the fraction portion is on the "
            "right.");
    AddStep(text(whole, " * ", d, " = ", product), "Multiply.");
    AddStep("Add the numerator of the fraction to the result:", "The numerator is the number on top in a fraction.");
    AddStep(text(product, " + ", n, " = ", product + valueOf(n)), "Add.");
    AddStep("Keep the denominator of the original fraction:",
            "The original fraction is the fraction in the original mixed number.");
    AddStep(text("#", result, "#"), "This is mixed notation.");
    if (SimplifyFractionText(result) != result) SimplifyFraction(result, false);
    ShowSteps();
}

namespace {

struct Division {
    double quotient;
    double remainder;
};

// e.g. 7, 3 -> 2 with a remainder of 1
Division division(const std::string& n, const std::string& d) {
    return {std::trunc(divided(valueOf(n), valueOf(d))), std::fmod(valueOf(n), valueOf(d))};
}

}  // namespace

std::string ImproperToMixedText(const std::string& fraction) {
    const auto [n, d] = halves(fraction, '/');
    if (valueOf(d) == 0 || valueOf(n) < valueOf(d)) return "";
    if (valueOf(n) == valueOf(d)) return "1";
    const auto [q, r] = division(n, d);
    return text(q, " #", r, "/", d, "#");
}

void ImproperToMixed(const std::string& fraction) {
    AddStep(text("#", fraction, "#"));
    const auto [n, d] = halves(fraction, '/');

    AddStep(text("To convert #", fraction, "# from fractional notation to a mixed number:"),
            "A mixed number is a whole number, followed by a fraction.");
    if (valueOf(d) == 0) {
        return complain("This fraction isn't valid because division by zero is illegal.",
                        "It is mathematically impossible to divide any number by 0.");
    }
    if (valueOf(n) == valueOf(d)) {
        AddStep("A number other than 0 divided by itself equals 1.");
        AddStep(text("#", n, "/", n, "# = 1"));
        return ShowSteps();
    }
    if (valueOf(n) < valueOf(d)) {
        return complain("The numerator must be greater than the denominator to convert to mixed notation.",
                        "If the numerator is not greater than the denominator, then the denominator can't divide into "
                        "the numerator to form a whole number.");
    }

    const auto [q, r] = division(n, d);
    AddStep(text("The numerator divides evenly into the denominator ", q, " times."),
            text("#", n, "/", d, "# = ", q, " with a remainder of ", r, "."));
    AddStep(text(q, " becomes the whole number."),
            "The remainder of the division will become the numerator of the fraction portion of the mixed number.");
    AddStep("The remainder of that division becomes the numerator of the fraction:",
            text("#", n, "/", d, "# = ", q, " with a remainder of ", r, "."));
    AddStep(text(q, " #", r, "/?#"), "Mixed number format.");
    if (r != 0) {
        AddStep("Keep the denominator of the original fraction:",
                "The denominator is the number on the bottom of a fraction.");
        AddStep(ImproperToMixedText(fraction), "Mixed number format.");
    } else {
        AddStep("Since the numerator is 0, the fraction portion is not necessary.",
                "The fraction portion equals 0, since 0 divided by any number (other than 0) equals 0.");
        AddStep(text(q), "Whole number format.");
    }
    ShowSteps();
}

// ---- Ratios and proportions

void RatioToFraction(const std::string& ratio) {
    AddStep(ratio);
    const auto [a, b] = halves(ratio, ':');

    AddStep("The proper notation for ratios:", "A ratio is written as a fraction.");
    AddStep(text("The first number (", a, ") becomes the numerator:"),
            "The number to the left of the ':' becomes the top number in the fraction.");
    AddStep(text("The second number (", b, ") becomes the denominator:"),
            "The number to the right of the ':' becomes the bottom number in the fraction.");
    AddStep(text("#", a, "/", b, "#"), text("#", a, "/", b, "# is a ", a, " to ", b, " ratio."));
    ShowSteps();
}

namespace {

bool isZero(const std::string& term) {
    return term != "x" && valueOf(term) == 0;
}

std::string proportion(const std::string& a, const std::string& b, const std::string& c, const std::string& d) {
    return text("#", a, "/", b, "# = #", c, "/", d, "#");
}

// x is to be found from the cross products a * d = b * c.
struct CrossProduct {
    std::string withX;    // e.g. "x * 8"
    std::string divisor;  // what x is multiplied by, e.g. "8"
    double known;         // the other product
    bool xLeft;
};

CrossProduct crossProduct(const std::string& a, const std::string& b, const std::string& c, const std::string& d) {
    const auto product = [](const std::string& m, const std::string& n) { return valueOf(m) * valueOf(n); };
    if (a == "x") return {text(a, " * ", d), d, product(b, c), true};
    if (b == "x") return {text(b, " * ", c), c, product(a, d), true};
    if (c == "x") return {text(b, " * ", c), b, product(a, d), false};
    return {text(a, " * ", d), a, product(b, c), false};
}

// Adds the steps that free x and returns it.
std::string solveForX(const CrossProduct& cross) {
    const std::string& k = cross.divisor;
    const std::string left = cross.xLeft ? cross.withX : text(cross.known);
    const std::string right = cross.xLeft ? text(cross.known) : cross.withX;
    AddStep(text("#", left, "/[", k, "]# = #", right, "/[", k, "]#"), text("Divide both sides by ", k, "."));
    const std::string x = text(rounded(divided(cross.known, valueOf(k))));
    AddStep(cross.xLeft ? text("x = ", x) : text(x, " = x"), "Solve for x.");
    return x;
}

}  // namespace

void Proportion(const std::string& a, const std::string& b, const std::string& c, const std::string& d) {
    AddStep(proportion(a, b, c, d));
    startLinesAt(belowFormula);
    if (isZero(b) || isZero(d)) {
        return complain("Division by 0 is not allowed.", "It is impossible to divide any number by 0.");
    }

    AddStep("Two fractions (ratios) are proportional if the cross products are equal.",
            "To find out if the cross products are equal, multiply the numerator of the first fraction by the "
            "denominator of the second fraction and determine if that amount is equal to multiplying the denominator "
            "of the first fraction by the numerator of the second fraction.");
    AddStep(proportion(a, b, c, d), "Substitute known values.");
    AddStep(text(a, " * ", d, " = ", b, " * ", c), "Cross multiply.");
    const std::string x = solveForX(crossProduct(a, b, c, d));
    const auto known = [&x](const std::string& term) { return term == "x" ? x : term; };
    AddStep(proportion(known(a), known(b), known(c), known(d)),
            "Replace the value of x into the fraction to show the correct proportion.");
    ShowSteps();
}

// ---- Decimals

std::string DecimalToFractionText(const std::string& decimal) {
    const std::size_t point = decimal.find('.');
    if (point == std::string::npos) return text(decimal, "/1");
    const std::size_t decimals = decimal.size() - point - 1;
    const std::string digits = decimal.substr(0, point) + decimal.substr(point + 1);
    return text(valueOf(digits), "/", std::pow(10.0, static_cast<double>(decimals)));
}

void DecimalToFraction(const std::string& decimal, bool standalone) {
    if (standalone) AddStep(decimal);

    AddStep(text("The fractional notation of ", decimal, " is:"),
            "Fractional notation is shown as: #numerator/denominator#");
    AddStep("Move the decimal to the far right and divide by 10^number of times decimal moved^:",
            "For every position the place value moves to the right, divide by 10.");
    const std::string fraction = DecimalToFractionText(decimal);
    AddStep(text("#", fraction, "#"), text(decimal, " written as a fraction."));
    if (SimplifyFractionText(fraction) != fraction) SimplifyFraction(fraction, false);
    if (standalone) ShowSteps();
}

std::string FractionToDecimalText(const std::string& fraction) {
    if (!contains(fraction, "/")) return fraction;
    const auto [a, b] = halves(fraction, '/');
    return valueOf(b) == 0 ? "" : text(rounded(divided(valueOf(a), valueOf(b))));
}

void FractionToDecimal(const std::string& fraction) {
    AddStep(text("#", fraction, "#"));

    AddStep(text("#", fraction, "# converted to decimal:"),
            "To convert to decimal notation, the division symbol must be eliminated.");
    const std::string decimal = FractionToDecimalText(fraction);
    if (decimal.empty()) {
        return complain("This fraction isn't valid because division by zero is illegal.",
                        "It is mathematically impossible to divide any number by 0.");
    }
    if (!contains(fraction, "/")) {
        AddStep(text("#", fraction, "# is already in decimal form."),
                "No division symbol was in the original fraction.");
    } else {
        AddStep("Divide the numerator by the denominator:",
                "Divide the number above the division symbol by the number below the division symbol.");
        AddStep(decimal, text("#", fraction, "# in decimal form."));
    }
    ShowSteps();
}

}  // namespace ordwise
