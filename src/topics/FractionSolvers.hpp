// Topic solvers of fractions, mixed numbers, decimals, ratios and proportions.
//
// A fraction arrives as the text "a/b". Every solver expects StepCount at the next free step, adds
// its steps and ends with ShowSteps. A zero denominator ends the solution with a complaint. Text
// that spells no number, and a missing "/" where one is needed, is fault 13 or 9; the steps added
// before it stay.
//
// A solver with `standalone` is also a stage of others: with false it neither restates the problem
// nor shows the steps. A routine named ...Text returns the result and adds no step.
#pragma once

#include <string>

namespace ordwise {

// Leaves the divisor in LargestCommonDivisor: 0 when there was none to divide by, -1 for a zero
// denominator, whose result is empty. e.g. "4/6" -> "2/3", "6/3" -> "2"
[[nodiscard]] std::string SimplifyFractionText(const std::string& fraction);
void SimplifyFraction(const std::string& fraction, bool standalone);

[[nodiscard]] std::string MixedToImproperText(const std::string& whole, const std::string& fraction);
void MixedToImproper(const std::string& whole, const std::string& fraction);  // e.g. "2", "1/3" -> #7/3#

// Empty for a zero denominator or a fraction below 1. e.g. "7/3" -> "2 #1/3#"
[[nodiscard]] std::string ImproperToMixedText(const std::string& fraction);
void ImproperToMixed(const std::string& fraction);

void RatioToFraction(const std::string& ratio);  // e.g. "1:2" -> #1/2#

// #a/b# = #c/d#, one of the four being "x". Fault 11 when x would have to be divided by zero.
// e.g. "x", "4", "6", "8" -> x = 3
void Proportion(const std::string& a, const std::string& b, const std::string& c, const std::string& d);

// e.g. ".5" -> "5/10", "7" -> "7/1"
[[nodiscard]] std::string DecimalToFractionText(const std::string& decimal);
void DecimalToFraction(const std::string& decimal, bool standalone);

// Empty for a zero denominator; text without "/" as it is. e.g. "1/8" -> "0.12"
[[nodiscard]] std::string FractionToDecimalText(const std::string& fraction);
void FractionToDecimal(const std::string& fraction);

}  // namespace ordwise
