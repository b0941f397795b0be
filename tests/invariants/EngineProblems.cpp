// Random problems of the topics that the engine solves.
#include "EngineProblems.hpp"

namespace ordwise::test {

namespace {

// A line on the paper is full at some fifty characters; a longer problem is drawn anew.
constexpr std::size_t longestProblem = 40;

template <class Make>
std::string shortEnough(Make make) {
    std::string typed = make();
    while (typed.size() > longestProblem) typed = make();
    return typed;
}

// How many terms: mostly a few, so that the smallest example of a fault is small. The common
// denominator of six terms can make a line grow by more than the hundred characters at which it is cut.
int fewTerms(Draws& draws) {
    return draws.chance(70) ? draws.between(1, 3) : draws.between(1, 5);
}

// A sum of `terms` terms, each made by `term`; a first minus now and then.
template <class Term>
std::string sumOf(Draws& draws, int terms, Term term) {
    std::string sum = draws.chance(15) ? "-" : "";
    for (int i = 0; i < terms; ++i) {
        if (i > 0) sum += draws.charOf("+-");
        sum += term();
    }
    return sum;
}

std::string decimal(Draws& draws) {
    std::string text = draws.number(3) + ".";
    const int places = draws.between(1, 2);
    for (int i = 0; i < places; ++i) text += draws.charOf("0123456789");
    return text;
}

std::string plainFraction(Draws& draws) {
    return draws.number(2) + "/" + draws.number(2);
}

std::string arithmeticFactor(Draws& draws) {
    if (draws.chance(15)) return decimal(draws);
    if (draws.chance(25)) return plainFraction(draws);
    if (draws.chance(3)) return "0";
    return draws.number(4);
}

std::string arithmeticTerm(Draws& draws) {
    std::string term = arithmeticFactor(draws);
    while (draws.chance(25)) term += "*" + arithmeticFactor(draws);
    return term;
}

// A number with an exponent, e.g. "3^2"; the powers stay below the seven digits of a single.
std::string powerOf(Draws& draws, bool negative) {
    const int base = draws.between(1, 12);
    const int exponent = draws.between(0, base > 4 ? 3 : 5);
    const bool minus = negative && exponent > 0 && exponent < 4 && draws.chance(15);
    return std::to_string(base) + (minus ? "^-" : "^") + std::to_string(exponent);
}

std::string exponentFactor(Draws& draws) {
    return draws.chance(55) ? powerOf(draws, true) : draws.number(2);
}

std::string exponentTerm(Draws& draws) {
    std::string term = exponentFactor(draws);
    if (draws.chance(10)) term = draws.number(2) + "/" + draws.number(2);
    while (draws.chance(20)) term += "*" + exponentFactor(draws);
    return term;
}

// e.g. "3~12", "~16", "7"
std::string rootTerm(Draws& draws) {
    const std::string root = "~" + draws.number(3);
    if (draws.chance(10)) return draws.number(3);
    if (draws.chance(10)) return draws.number(1) + "*" + draws.number(1) + root;
    return (draws.chance(60) ? draws.number(1) : "") + root;
}

// A coefficient before a letter: "" is 1.
std::string coefficient(Draws& draws) {
    return draws.chance(30) ? "" : draws.number(2);
}

std::string equationSide(Draws& draws, char letter, int terms) {
    return sumOf(draws, terms, [&] {
        return draws.chance(50) ? coefficient(draws) + letter : (draws.chance(5) ? "0" : draws.number(2));
    });
}

// e.g. "3x^2", "5", "4x", "x/2", "3x*2x"
std::string polynomialTerm(Draws& draws, bool division) {
    std::string term;
    if (draws.chance(65)) {
        term = coefficient(draws) + "x";
        if (draws.chance(30)) term += "^" + std::to_string(draws.between(0, 4));
    } else if (draws.chance(15)) {
        term = powerOf(draws, false);
    } else {
        term = draws.number(2);
    }
    if (division && draws.chance(12)) return term + "/" + draws.number(1);
    if (draws.chance(12)) return term + "*" + coefficient(draws) + "x";
    return term;
}

std::string polynomialGroup(Draws& draws, int depth);

// A term or a group with what may stand around it, e.g. "3(x+2)", "(x+1)*(x+2)".
std::string polynomialPart(Draws& draws, int depth) {
    if (depth == 0 || draws.chance(60)) return polynomialTerm(draws, depth > 0);
    std::string part = draws.chance(60) ? coefficient(draws) : "";
    part += polynomialGroup(draws, depth - 1);
    if (draws.chance(25)) part += "*" + (draws.chance(60) ? polynomialGroup(draws, depth - 1) : draws.number(1));
    return part;
}

std::string polynomialGroup(Draws& draws, int depth) {
    return "(" + sumOf(draws, draws.between(1, 3), [&] { return polynomialPart(draws, depth); }) + ")";
}

// Letters side by side, each once, e.g. "4xy", "z^2".
std::string evaluationTerm(Draws& draws, const std::string& letters) {
    std::string term = draws.chance(50) ? draws.number(1) : "";
    bool any = false;
    for (const char letter : letters) {
        if (!draws.chance(55)) continue;
        term += letter;
        any = true;
        if (draws.chance(20)) term += "^" + std::to_string(draws.between(1, 3));
    }
    if (!any && term.empty()) term = draws.number(2);
    return term;
}

std::string numberGroup(Draws& draws, int depth);

std::string complexFactor(Draws& draws) {
    if (draws.chance(25)) return powerOf(draws, false);
    if (draws.chance(10)) return plainFraction(draws);
    return draws.number(2);
}

std::string complexPart(Draws& draws, int depth) {
    if (depth == 0 || draws.chance(60)) {
        std::string term = complexFactor(draws);
        while (draws.chance(15)) term += "*" + complexFactor(draws);
        return term;
    }
    std::string part = draws.chance(50) ? draws.number(1) : "";
    part += numberGroup(draws, depth - 1);
    if (draws.chance(30)) part += "*" + (draws.chance(50) ? numberGroup(draws, depth - 1) : draws.number(1));
    return part;
}

std::string numberGroup(Draws& draws, int depth) {
    return "(" + sumOf(draws, draws.between(1, 3), [&] { return complexPart(draws, depth); }) + ")";
}

// Bars open only at the start or behind a sign, and no factor may follow them.
std::string absoluteTerm(Draws& draws) {
    if (draws.chance(45)) return arithmeticTerm(draws);
    return "|" +
           sumOf(draws, draws.between(1, 3),
                 [&] { return draws.chance(80) ? draws.number(2) : arithmeticTerm(draws); }) +
           "|";
}

std::string negativeExponentTerm(Draws& draws) {
    if (draws.chance(15)) return draws.number(2);
    if (draws.chance(12)) return powerOf(draws, true) + (draws.chance(50) ? "x" : "");
    std::string term = (draws.chance(70) ? draws.number(1) : "") + "x";
    if (draws.chance(85)) term += (draws.chance(75) ? "^-" : "^") + std::to_string(draws.between(1, 5));
    if (draws.chance(20)) term += "/" + draws.number(1);
    return term;
}

}  // namespace

Problem arithmeticProblem(Draws& draws) {
    const auto make = [&] { return sumOf(draws, fewTerms(draws), [&] { return arithmeticTerm(draws); }); };
    return {"Arithmetic", shortEnough(make)};
}

Problem fractionProblem(Draws& draws) {
    std::string typed = draws.chance(10) ? "-" : "";
    const int count = draws.chance(60) ? 2 : draws.between(1, 4);
    for (int i = 0; i < count; ++i) {
        const bool whole = draws.chance(12);
        // A fraction bar is read before a division sign, so a whole number is only added.
        if (i > 0) typed += whole ? draws.charOf("+-") : draws.charOf("++--*/");
        if (whole && i > 0 && typed.back() == '/') typed.back() = '+';
        typed += whole ? draws.number(2) + (i + 1 < count ? "+" + plainFraction(draws) : "") : plainFraction(draws);
    }
    return {"Fraction Arithmetic", typed};
}

Problem exponentProblem(Draws& draws) {
    const auto make = [&] { return sumOf(draws, fewTerms(draws), [&] { return exponentTerm(draws); }); };
    return {"Calculating With Exponents", shortEnough(make)};
}

Problem rootProblem(Draws& draws) {
    const auto make = [&] { return sumOf(draws, fewTerms(draws), [&] { return rootTerm(draws); }); };
    return {"Calculating Roots", shortEnough(make)};
}

Problem exponentialNotationProblem(Draws& draws) {
    std::string typed;
    const int count = draws.between(1, 4);
    for (int i = 0; i < count; ++i) {
        if (i > 0) typed += "*";
        typed += draws.chance(25) ? powerOf(draws, false) : draws.number(3);
    }
    return {"Exponential Notation", typed};
}

Problem equationProblem(Draws& draws) {
    const char letter = draws.charOf("xxxxyna");
    const std::string left = equationSide(draws, letter, draws.between(1, 3));
    const std::string right = equationSide(draws, letter, draws.between(1, 3));
    return {"Solving Equations", left + "=" + right};
}

Problem polynomialProblem(Draws& draws) {
    const int depth = draws.chance(40) ? 0 : draws.between(1, 2);
    const auto make = [&] { return sumOf(draws, fewTerms(draws), [&] { return polynomialPart(draws, depth); }); };
    return {"Simplifying Polynomials", shortEnough(make)};
}

Problem evaluationProblem(Draws& draws) {
    const std::string letters = draws.oneOf<const char*>({"x", "xy", "xyz"});
    Problem problem{"Evaluating Polynomials", ""};
    problem.typed = sumOf(draws, draws.between(1, 3), [&] {
        std::string term = evaluationTerm(draws, letters);
        if (draws.chance(15)) term += "*" + evaluationTerm(draws, letters);
        return term;
    });
    for (std::size_t i = 0; i < letters.size(); ++i) {
        problem.answers.push_back(draws.chance(15) ? "-" + draws.number(1) : draws.number(1));
    }
    return problem;
}

Problem linearGraphProblem(Draws& draws) {
    const auto side = [&] {
        return sumOf(draws, draws.between(1, 3), [&] {
            const int which = draws.below(3);
            return which == 2 ? draws.number(1) : coefficient(draws) + (which == 0 ? "x" : "y");
        });
    };
    const std::string left = side();
    return {"Graphing A Linear Equation", left + "=" + side()};
}

Problem absoluteValueProblem(Draws& draws) {
    const auto make = [&] { return sumOf(draws, draws.between(1, 3), [&] { return absoluteTerm(draws); }); };
    return {"Absolute Values", shortEnough(make)};
}

Problem complexArithmeticProblem(Draws& draws) {
    const int depth = draws.between(0, 2);
    const auto make = [&] { return sumOf(draws, fewTerms(draws), [&] { return complexPart(draws, depth); }); };
    return {"Complex Arithmetic Expressions", shortEnough(make)};
}

Problem negativeExponentProblem(Draws& draws) {
    const auto make = [&] { return sumOf(draws, draws.between(1, 3), [&] { return negativeExponentTerm(draws); }); };
    return {"Negative Exponents", shortEnough(make)};
}

Problem mashedProblem(Draws& draws, const std::string& topic, const std::string& keys) {
    Problem problem{topic, ""};
    const int length = draws.between(2, 16);
    for (int i = 0; i < length; ++i) problem.typed += draws.charOf(keys);
    problem.dropRefused = true;
    return problem;
}

}  // namespace ordwise::test
