// Committing a rewritten text, and the rewrites of products and parentheses.
//
// A rule sets CurrentNote, writes a text with ExplodeTokens and commits it; the commit alone
// decides whether a step is recorded. Texts are token text (see basBreakdownFunc.hpp), notes are
// markup.
#pragma once

#include <string>

namespace ordwise {

// --- commit: basFormattingEq_commit.cpp

struct CommitOptions {
    bool silent = false;          // bring the store up to date, record nothing
    bool stopWhenStable = false;  // an unchanged number of terms counts as no progress
};

// Tokens, store and line of the text in the TokenBuffer; records the line with CurrentNote unless
// it is the line of the last step. ReductionStable says that nothing changed. Fault 9 at step 201.
// e.g. CommitStep(); CommitStep({.silent = true});
void CommitStep(CommitOptions options = {});

// --- products: basFormattingEq_products.cpp

// Replaces the groups a and b, that stand side by side, by one group of all products.
// e.g. (x+1)(x+2) -> (x^2+2x+1x+2)
void MultiplyGroups(int depth, int groupA, int groupB);
// A group under an exponent as that many factors; true if the text was rewritten.
// e.g. (x+1)^2 -> (x+1)(x+1)
bool ExpandPower(int depth, int group);
// The product of two letter parts. e.g. "x^2", "x" -> "x^3"; "~2", "~8" -> "~16"
[[nodiscard]] std::string MultiplyLetterParts(const std::string& a, const std::string& b);
// Coefficient and letters in lowest form, "top/bottom" or "top", without a sign.
// e.g. "x^-2", 9, "", 6 -> "3/2x^2"
[[nodiscard]] std::string NegativeExponentText(const std::string& numText, float numerator, const std::string& denText,
                                               float denominator);

// --- parentheses: basFormattingEq_parentheses.cpp

// Frees the first group of MaxDepth that can go without a multiplication; no commit. True if the
// groups were gone through. e.g. 2+(x+1) -> 2+x+1
bool RemoveParentheses(bool silent = false);
// Multiplies the factor in front of a group into its terms. e.g. 3(x+2) -> (3x+6) -> 3x+6
void DistributeFactor(int depth, int group, bool stopWhenStable = false);
// A factor with an exponent in front of a group, written out. e.g. 2^3(x+1) -> 8(x+1)
bool ExpandPrefixPower(int group);

// --- order: basFormattingEq_order.cpp

// Works out the products of a group, a visible step each. e.g. 2+3*4 -> 2+12
void OrderPolynomial(int group);
// Makes a group of the factor that stands behind a group. e.g. (a+b)3x -> (a+b)*(+3x)
void WrapFactorBehind(int group);
// The first product of a group, its factors as "a,b". e.g. 2+3*4-5 -> "3,4"
[[nodiscard]] std::string ProductPair(int depth, int group);

}  // namespace ordwise
