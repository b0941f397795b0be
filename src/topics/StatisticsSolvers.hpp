// Mean, median, range and mode of a list of numbers, and the quadrant of a point.
//
// A list arrives as it was typed, values separated by ","; a list of one value is solved like any
// other. A value that spells no number is fault 13, as is an empty list.
#pragma once

#include <string>

namespace ordwise {

void Mean(const std::string& list);    // e.g. "2,4" -> "Average = 3"
void Median(const std::string& list);  // e.g. "4,1,3,2" -> "The median is 2.5"
void Range(const std::string& list);   // e.g. "-2,5" -> "5 - (-2)", "The range is 7."

// Values are told apart as text: "1" and "1.0" are two values. Where all values occur equally
// often there is no mode. e.g. "1,1,2" -> "Mode: 1"
void Mode(const std::string& list);

// e.g. "-3", "4" -> "... Quadrant II."
void Quadrant(const std::string& x, const std::string& y);

}  // namespace ordwise
