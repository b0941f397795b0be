// Topic solvers of multiples, factors, primes and reciprocals.
//
// Every solver takes its numbers as the student typed them, a list separated by ",", expects
// StepCount at the next free step, adds its steps and ends with ShowSteps. Text that spells no
// number is fault 13; the steps added before it stay.
#pragma once

#include <string>

namespace ordwise {

// The ten steps 1 * n to 10 * n.
void Multiples(const std::string& n);

// One step for each pair of factors and one for all of them. Sets IsPrimeResult when 1 and n are
// the only pair. With `standalone` false the problem is not restated and nothing is shown, so that
// another solver can go on. Nothing is found for n = 0.
// e.g. "16" -> Factors of 16: 1, 2, 4, 8, 16
void Factors(const std::string& n, bool standalone);

// e.g. "7" -> 7 is PRIME because 7 has exactly two different factors.
void PrimeOrComposite(const std::string& n);

// e.g. "12" -> 2*6, then 2*2*3
void PrimeFactorization(const std::string& n);

// e.g. "3/4" -> #4/3#, "5" -> #1/5#
void Reciprocal(const std::string& number);

// e.g. "12,18" -> 6
void GreatestCommonFactor(const std::string& list);

// Fault 6 for a multiple beyond 32 bits.
// e.g. "4,6" -> 12
void LeastCommonMultiple(const std::string& list);

}  // namespace ordwise
