#include "GraphEquation.hpp"

#include "Fault.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

namespace ordwise {
namespace {

constexpr int lastRead = 100;

struct Ratio {
    double over = 1;
    double under = 1;
};

// Reads the tokens from left to right. What is no equation sets `failed` and ends the reading.
class TokenReader {
public:
    explicit TokenReader(const TokenArray& tokens) : tokens_(tokens) {}

    std::optional<GraphEquation> equation() {
        GraphEquation read;
        const std::vector<GraphTerm> left = sum("=");
        if (!take("=")) return std::nullopt;
        read.right = sum("");
        if (failed_ || left.size() != 1 || read.right.empty()) return std::nullopt;
        read.left = left.front();
        if (read.left.base != GraphTerm::Base::X && read.left.base != GraphTerm::Base::Y) return std::nullopt;
        // Solved means that the letter on the left comes nowhere else, and a y stands nowhere but there.
        const bool solved = !holds(read.right, GraphTerm::Base::Y) && !holds(read.right, read.left.base);
        return solved ? std::optional(read) : std::nullopt;
    }

private:
    static bool holds(const std::vector<GraphTerm>& terms, GraphTerm::Base base) {
        return std::any_of(terms.begin(), terms.end(),
                           [base](const GraphTerm& term) { return term.base == base || holds(term.inside, base); });
    }

    const std::string& token() const {
        static const std::string none;
        return at_ <= lastRead ? tokens_[at_] : none;
    }

    bool take(std::string_view expected) {
        if (token() != expected || expected.empty()) return false;
        ++at_;
        return true;
    }

    // -1 for an odd number of minus signs at this place.
    double signs() {
        double sign = 1;
        while (token() == "+" || token() == "-") {
            if (token() == "-") sign = -sign;
            ++at_;
        }
        return sign;
    }

    // "3", "-2/3": whether there was one.
    bool number(Ratio& ratio) {
        const std::vector<std::string> parts = split(token(), '/');
        if (parts.size() > 2 || !std::all_of(parts.begin(), parts.end(), IsNumeric)) return false;
        ratio.over = valueOf(parts[0]);
        ratio.under = parts.size() == 2 ? valueOf(parts[1]) : 1;
        ++at_;
        return true;
    }

    // The terms up to the closing token, which stays.
    std::vector<GraphTerm> sum(std::string_view closing) {
        std::vector<GraphTerm> terms;
        while (!failed_ && !token().empty() && token() != closing) terms.push_back(term());
        return terms;
    }

    GraphTerm term() {
        GraphTerm term;
        const double sign = signs();
        Ratio coefficient;
        const bool hasNumber = number(coefficient);
        term.numerator = sign * coefficient.over;
        term.denominator = coefficient.under;
        if (!base(term) && !hasNumber) failed_ = true;
        if (take("^")) {
            const double direction = signs();
            Ratio exponent;
            if (!number(exponent)) failed_ = true;
            term.exponent = direction * exponent.over;
            term.exponentRoot = exponent.under;
            reduceExponent(term);
        }
        return term;
    }

    bool base(GraphTerm& term) {
        const std::string letter = lowered(token());
        if (letter == "x" || letter == "y") {
            ++at_;
            term.base = letter == "x" ? GraphTerm::Base::X : GraphTerm::Base::Y;
            return true;
        }
        if (take("(")) {
            term.base = GraphTerm::Base::Group;
            term.inside = sum(")");
            if (!take(")")) failed_ = true;
            return true;
        }
        // One pair of bars can be open at a time, so a bar within bars closes them.
        if (barOpen_ || !take("|")) return false;
        barOpen_ = true;
        term.base = GraphTerm::Base::Bars;
        term.inside = sum("|");
        if (!take("|")) failed_ = true;
        barOpen_ = false;
        return true;
    }

    // 2/4 is the same power as 1/2, and only in lowest terms the root tells where it exists.
    static void reduceExponent(GraphTerm& term) {
        const double common = wholeDivisor(std::abs(term.exponent), term.exponentRoot);
        term.exponent /= common;
        term.exponentRoot /= common;
    }

    static double wholeDivisor(double a, double b) {
        constexpr double largest = 1e9;
        if (a != std::floor(a) || b != std::floor(b) || b <= 0 || a > largest || b > largest) return 1;
        return static_cast<double>(std::gcd(static_cast<long long>(a), static_cast<long long>(b)));
    }

    const TokenArray& tokens_;
    int at_ = 0;
    bool barOpen_ = false;
    bool failed_ = false;
};

bool isEven(double whole) {
    return std::fmod(whole, 2) == 0;
}

// base ^ (exponent / root). A negative base has a power for whole exponents and under odd roots.
double power(double base, double exponent, double root) {
    const double value = inRange(std::pow(std::abs(base), divided(exponent, root)));
    if (base >= 0) return value;
    const bool fraction = exponent != std::floor(exponent) || root != std::floor(root);
    if (fraction || isEven(root)) raise(FaultNumber::Overflow);
    return isEven(exponent) ? value : -value;
}

double sumOf(const std::vector<GraphTerm>& terms, double x);

double baseOf(const GraphTerm& term, double x) {
    switch (term.base) {
        case GraphTerm::Base::X: return x;
        case GraphTerm::Base::Group: return sumOf(term.inside, x);
        case GraphTerm::Base::Bars: return std::abs(sumOf(term.inside, x));
        default: return 1;
    }
}

double sumOf(const std::vector<GraphTerm>& terms, double x) {
    double sum = 0;
    for (const GraphTerm& term : terms) {
        sum += divided(term.numerator, term.denominator) * power(baseOf(term, x), term.exponent, term.exponentRoot);
    }
    return inRange(sum);
}

// The right side by the coefficient of the left.
double quotientAt(const GraphEquation& equation, double x) {
    const double coefficient = divided(equation.left.numerator, equation.left.denominator);
    return divided(sumOf(equation.right, x), coefficient);
}

}  // namespace

std::optional<GraphEquation> readEquation(const TokenArray& tokens) {
    return TokenReader(tokens).equation();
}

bool isVertical(const GraphEquation& equation) {
    return equation.left.base == GraphTerm::Base::X;
}

bool isStraight(const GraphEquation& equation) {
    const auto straight = [](const GraphTerm& term) {
        if (term.base == GraphTerm::Base::One) return true;
        return term.base == GraphTerm::Base::X && term.exponent == term.exponentRoot;
    };
    return equation.left.exponent == equation.left.exponentRoot &&
           std::all_of(equation.right.begin(), equation.right.end(), straight);
}

bool isBrokenAtZero(const GraphEquation& equation) {
    return std::any_of(equation.right.begin(), equation.right.end(),
                       [](const GraphTerm& term) { return term.exponent < 0; });
}

bool hasTwoBranches(const GraphEquation& equation) {
    return isEven(equation.left.exponent) && equation.left.exponent != 0;
}

double valueAt(const GraphEquation& equation, double x, bool lowerBranch) {
    const double value = quotientAt(equation, x);
    if (equation.left.exponent == equation.left.exponentRoot) return value;
    const double root = power(value, equation.left.exponentRoot, equation.left.exponent);
    return lowerBranch ? -root : root;
}

double placeOfVertical(const GraphEquation& equation) {
    return quotientAt(equation, 0);
}

}  // namespace ordwise
