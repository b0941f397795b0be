// Scientific notation, work, distance and the classing of an angle.
#pragma once

#include <string>

namespace ordwise {

// Exponents are whole numbers. The topics that take boxes start their lines below the boxes.
// e.g. "2.5", "3" -> "2500". A result beyond a double is fault 6.
void ScientificToRegular(const std::string& base, const std::string& exponent);
// e.g. "0.05" -> "5 * 10^-2^". Zero and numbers below it never reach a digit before the point: the
// counter or the double runs over, fault 6.
void RegularToScientific(const std::string& number);
// a * 10^p by b * 10^q. e.g. "2", "3", "4", "5" -> "8 * 10^8^"
void ScientificMultiply(const std::string& a, const std::string& p, const std::string& b, const std::string& q);
void ScientificDivide(const std::string& a, const std::string& p, const std::string& b, const std::string& q);

// One of the three arguments is its own word, "work", "distance", "rate", "speed" or "time": the
// unknown. e.g. "work", "3", "4" -> "work = 12"
void WorkFormula(const std::string& work, const std::string& rate, const std::string& time);
void DistanceFormula(const std::string& distance, const std::string& speed, const std::string& time);

// Draws the two arms of an angle above 0 and up to 180 degrees, then names its class.
// e.g. "90" -> "90^o^ (degrees) forms a RIGHT angle."
void ClassifyAngle(const std::string& degrees);

}  // namespace ordwise
