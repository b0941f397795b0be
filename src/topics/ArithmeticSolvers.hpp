// Topic solvers of place value, rounding and comparing.
//
// Every solver takes its numbers as the student typed them, expects StepCount at the next free
// step, adds its steps and ends with ShowSteps. Text that spells no number is fault 13; the steps
// added before it stay.
#pragma once

#include <string>

namespace ordwise {

// e.g. "205" -> 2 hundreds, 0 tens, 5 ones
void ExpandedNotation(const std::string& number);

// `unit` is "10", "100" or "1000". Fault 6 for a number beyond 32 bits.
// e.g. "1250", "100" -> 1300
void RoundWhole(const std::string& number, const std::string& unit);

// `name` is "whole number", "tenth", "hundredth" or "thousandth", `places` its count of decimals.
// e.g. "2.45", "tenth", "1" -> 2.5
void RoundDecimal(const std::string& number, const std::string& name, const std::string& places);

// e.g. -3, 4 -> -3 < 4, with both on a number line above the steps
void CompareNumbers(double a, double b);

// Draws both numbers on a line through zero on sheet 0, in their order and on their sides of zero
// but not to scale, and moves the pen below it.
void DrawNumberLine(double a, double b);

}  // namespace ordwise
