// Committing a rewritten text, and the rewrites of products and parentheses.
//
// A rule sets CurrentNote, writes a text with ExplodeTokens and commits it; the commit alone
// decides whether a step is recorded. Texts are token text (see basBreakdownFunc.hpp), notes are
// markup.
#pragma once

#include "ExprStore.hpp"

#include <string>

namespace ordwise {

// --- commit: basFormattingEq_commit.cpp

struct CommitOptions {
    bool silent = false;          // bring the store up to date, record nothing
    bool stopWhenStable = false;  // an unchanged number of terms counts as no progress
    bool reordered = false;       // the rearrangement is the step itself, and is recorded as one
};

// Tokens, store and line of the text in the TokenBuffer; records the line with CurrentNote unless
// it is the line of the last step. ReductionStable says that nothing changed. Fault 9 at step 201.
// e.g. CommitStep(); CommitStep({.silent = true});
void CommitStep(CommitOptions options = {});

// --- factors: basFormattingEq_products.cpp

// One factor of a product: coefficient, letters above and below the bar, as in an ExprTerm.
struct Monomial {
    float numerator = 1.0F;  // signed
    float denominator = 1.0F;
    std::string numText;
    std::string denText;
};

[[nodiscard]] Monomial monomialOf(const ExprTerm& term);
// e.g. 3, "x" times -2, "x" -> -6, "x^2"
[[nodiscard]] Monomial product(const Monomial& a, const Monomial& b);
// A factor in token text: a minus only, no sign, a sign always. e.g. -3, "x", 4 below -> "-3x/4",
// "3x/4", "-3x/4"; a coefficient of 0 leaves the number alone
[[nodiscard]] std::string plainText(const Monomial& factor);
[[nodiscard]] std::string unsignedText(Monomial factor);
[[nodiscard]] std::string signedText(const Monomial& factor);
// Neither letters nor root nor an exponent other than 1. e.g. 3/4
[[nodiscard]] bool isBareNumber(const ExprTerm& term);

// The exponent on the number itself, and the letters behind it. e.g. "^3x" -> 3, "x"; "x^3" -> 1, "x^3"
struct NumberPower {
    float exponent;
    std::string letters;
};
[[nodiscard]] NumberPower numberPowerOf(const std::string& numText);
// A number with an exponent as a product of itself, or as its value where that product would stand
// in a fraction; fractionText is the token a/b if that is what is raised. No sign.
// e.g. 2, "^3" -> "2*2*2"; 2, "^3", 4 below -> "8/4"; 2, "^-2" -> "1/4"; "3/2", "^2" -> "3/2*3/2"
[[nodiscard]] std::string writtenOutPower(const Monomial& base, const std::string& fractionText);

// Without exponents of 1. e.g. "3x^1" -> "3x", "x^12" stays
[[nodiscard]] std::string withoutExponentOne(const std::string& text);
// Token text of one factor as a note writes it, all marks closed. e.g. "3x^2/4" -> "#3x^2^/4#",
// "5~3" -> "5~3~", "1x" -> "x"
[[nodiscard]] std::string markupOf(const std::string& tokenText);

// --- products: basFormattingEq_products.cpp

// Replaces the groups A and B, that stand side by side, by one group of all products; no commit.
// Fault 9 past 100 products. e.g. (x+1)(x+2) -> (x^2+2x+1x+2)
void MultiplyGroups(int depth, int groupA, int groupB);
// A group under an exponent as that many factors; no commit. False, and the text as it was, for an
// exponent that cannot be written out. e.g. (x+1)^2 -> (x+1)(x+1), (x+1)^0 -> (1), (2)^-2 -> (1/4)
bool ExpandPower(int depth, int group);
// The product of two letter parts. e.g. "x^2", "x" -> "x^3"; "~2", "~8" -> "~16"
[[nodiscard]] std::string MultiplyLetterParts(const std::string& a, const std::string& b);
// The note of a product of two roots.
inline const std::string rootProductNote =
    "When multiplying square roots multiply values under radical to form the new square root.";
// Coefficient and letters in lowest form, "top/bottom" or "top", without a sign. A number without
// letters ends in "^1". e.g. "x^-2", 9, "", 6 -> "3/2x^2"; "", 4, "", 2 -> "2^1"
[[nodiscard]] std::string NegativeExponentText(const std::string& numText, float numerator, const std::string& denText,
                                               float denominator);

// --- parentheses: basFormattingEq_parentheses.cpp

// Frees the first group of MaxDepth that can go without a multiplication; no commit, but bars that
// stand alone are resolved and committed. False if there was no parenthesis to look at. `silent`
// leaves the star of 3/4(x) -> 3/4*x to the caller. e.g. 2+(x+1) -> 2+x+1
bool RemoveParentheses(bool silent = false);
// Multiplies the factor in front of a group into its terms. e.g. 3(x+2) -> (3x+6) -> 3x+6
void DistributeFactor(int depth, int group, bool stopWhenStable = false);
// A number with an exponent in front of a group, written out. e.g. 2^3(x+1) -> 2*2*2(x+1) -> 8(x+1)
bool ExpandPrefixPower(int group);
// A factor, or a minus, stands directly in front of the group. e.g. 3(x), -(x); not 2+(x), 3*(x)
[[nodiscard]] bool hasFactorInFront(int depth, int group);
// Takes the star in front of a group away without a step. e.g. 3/4*(x+1) -> 3/4(x+1)
void dropStarInFront(int depth, int group);

// --- order: basFormattingEq_order.cpp

// The note of a text that was only rearranged.
inline const std::string reorderNote = "Reorder the polynomial.";
// The letters of a line's terms with their exponents, a "+" in front of each term, without numbers: it
// tells in which order the terms stand. e.g. "3-2x^2^" -> "++x^2^", "y=2x-3" -> "+y=+x+"
[[nodiscard]] std::string outlineOf(const std::string& line);
// The terms of a line without parentheses stand in decreasing order of exponent; what has none above
// the bar, or a negative one, goes behind. e.g. true for "x^2^+3+#1/x#", false for "5+3x"
[[nodiscard]] bool standsInOrder(const std::string& line);
// Works out the products of a group, a visible step each. e.g. 2+3*4 -> 2+12
void OrderPolynomial(int group);
// Makes a group of the factor that stands behind a group, with no step. e.g. (a+b)3x -> (a+b)(+3x)
void WrapFactorBehind(int group);
// Works out the first product of a group without a commit; its factors as "a,b", "" without one.
// e.g. 2+3*4-5 -> "3,4", the text becomes +2+12-5
std::string ProductPair(int depth, int group);
// The first product between two slots as a step of its own; false without one.
// e.g. 2*2*2(x+1) -> 4*2(x+1)
bool multiplyFirstPair(int first, int last);

}  // namespace ordwise
