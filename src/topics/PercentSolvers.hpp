// Amount, percent and base, and the conversions between percents, decimals and fractions.
//
// Percents arrive with their "%" ("42%"), all else as plain numbers.
#pragma once

#include <string>

namespace ordwise {

// amount = n% of base. One of the three is its own word, "amount", "N" or "base": the unknown.
// Lines start below the boxes. e.g. "amount", "20", "50" -> "10 = amount"
void PercentProblem(const std::string& amount, const std::string& n, const std::string& base);

void PercentToDecimal(const std::string& percent);    // e.g. "50%" -> "0.5"
void FractionToPercent(const std::string& fraction);  // e.g. "1/3" -> "0.33", "33%"
void PercentToFraction(const std::string& percent);   // e.g. "42%" -> "0.42", then as a fraction

// With `standalone` it restates the problem and shows the steps; without, it is a stage of another
// solver. e.g. "0.5" -> "50%"
void DecimalToPercent(const std::string& decimal, bool standalone);

}  // namespace ordwise
