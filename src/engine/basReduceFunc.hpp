// The rules of the simplifier: numbers as text, like terms, fractions, roots and powers.
//
// Each rule sets CurrentNote, writes a text and commits, or says that it has nothing to do. Depth
// is MaxDepth throughout, and a group is an index at that depth.
#pragma once

#include <string>

namespace ordwise {

// --- numbers: basReduceFunc_numbers.cpp

// The text in which a student sees a number: a decimal, a fraction or a root, by UseFractions,
// RoundPlaces and RadicalSeen. numerator and denominator are the form that the value is written in
// now; a fraction that is no simpler gives that form back. A searchLimit of 0 is computed.
// e.g. 0.5 -> "1/2" with fractions, "0.5" without; 3 -> "3", with forceFraction "3/1"
[[nodiscard]] std::string NumberToText(float value, int searchLimit, bool forceFraction, float numerator,
                                       float denominator);
// The same of |value|, trimmed. e.g. -0.75 -> "3/4"
[[nodiscard]] std::string FractionText(float value, float numerator, float denominator);
// Without a form to compare with.
[[nodiscard]] std::string FractionText(float value);
// The same with the sign. e.g. -2 -> "-2"
[[nodiscard]] std::string DecimalText(float value, float numerator, float denominator);
[[nodiscard]] std::string DecimalText(float value);

// A fraction in lowest terms, cut to whole numbers. Fault 6 beyond 32 bits, fault 11 for a zero
// below. e.g. 4, 6 -> "2/3"; 6, 3 -> "2"; 0, 6 -> "0"
[[nodiscard]] std::string CommonFactorText(double numerator, double denominator);
// The primes of a whole number, ascending. e.g. "12" -> "2*2*3", "1" -> "1"
[[nodiscard]] std::string PrimeFactorsText(const std::string& number);
// The least common multiple of numbers separated by ",". Fault 6 beyond 32 bits.
// e.g. "4,6" -> "12"; a "0" among them -> "0"
[[nodiscard]] std::string LeastCommonMultipleText(const std::string& list);

// --- terms and rebuild: basReduceFunc_terms.cpp, basReduceFunc_rebuild.cpp

// One pass over the terms of a group: at most one rewrite, whose note waits in CurrentNote for the
// caller's commit. stopFlag leaves the negative exponents alone. e.g. 3x+2x -> 5x
void ReduceGroup(int group, bool silent, bool stopFlag);
// The note of a line that was put in decreasing order, its blank at the end included.
inline const std::string leadingTermHint =
    "Polynomials are written in decreasing order of terms. The largest term or the term with the highest exponent in "
    "the polynomial is usually written first. The first term in a polynomial is called the leading term. ";
// The whole text with the group's terms in decreasing order of exponent; changes nothing.
// e.g. 3+x^2 -> "+x^2+3"
[[nodiscard]] std::string OrderedPolynomialText(int group);

// --- fractions: basReduceFunc_fractions.cpp

// Finishes a group whose terms are number fractions. e.g. 1/2+1/3 -> 5/6 in four steps
void FractionArithmetic(int group);
// Adds fractions of one denominator, a step each pair. e.g. 3/4-1/4 -> 2/4 -> 1/2
void CombineLikeDenominators(int group);
// The method of the least common denominator.
void CombineByCommonDenominator(int group);

// --- radicals, exponents, absolute value: basReduceFunc_radicals.cpp

// Perfect squares out from under the roots of depth 0, a step each, two where a number stands in
// front. Fault 6 for a radicand beyond 32 bits, fault 9 for a prime above 200000.
// e.g. ~12 -> 2~3, 3~4 -> 3*2 -> 6
void SimplifyRadicals();
// "outer~inner" of a root's value in the roots topic, RadicalMode true; otherwise the text of a
// whole root or "". e.g. sqrt(12) -> "2~3", sqrt(7) -> "1~7", 4 -> "4"
[[nodiscard]] std::string RadicalText(float value);
// The powers of numbers of a group written out and committed. Fault 11 for a negative power of 0.
// e.g. 2^3+1 -> 2*2*2+1, 5^0 -> 1
void ExpandPowers(int group);
// The same, and the products worked out; false if no number has a power. A factor in front waits
// until the group is reduced. e.g. 2(3^2+x) -> 2(3*3+x) -> 2(9+x)
bool ExpandIfPowers(int group);
// A bar group of one number; false, and nothing done, for any other. e.g. |-5| -> 5
bool AbsoluteValueStep(int group);
// The rewrite alone. e.g. 2|-5| -> 2*5
void TakeAbsoluteValue(int depth, int group);

}  // namespace ordwise
