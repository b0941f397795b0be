// What must be true of every solution of the engine, whatever the problem.
#pragma once

#include "Solving.hpp"

namespace ordwise::test {

// Every line has the value of the line before, for all letters. Where a line holds numbers beyond the
// seven digits of a single, to within a single's precision; `tolerance` is for decimals mode.
[[nodiscard]] Complaints valueComplaints(const Solution& solution, long double tolerance = 0);
// Every line has the solutions of the line before.
[[nodiscard]] Complaints equationComplaints(const Solution& solution);

// The last line is a number in simplest form: "5", "-#7/2#".
[[nodiscard]] Complaints simplestNumberComplaints(const Solution& solution);
// The last line is a sum of roots, each of another number without a square factor.
[[nodiscard]] Complaints simplestRootComplaints(const Solution& solution);
// The last line is a product of powers of different primes.
[[nodiscard]] Complaints primePowerComplaints(const Solution& solution);
// The last line is expanded, like terms gathered, fractions reduced. Its order is not looked at: a sum
// that is only out of order is left as it was typed.
[[nodiscard]] Complaints simplestPolynomialComplaints(const Solution& solution);
// The last line is "letter=number", an identity "c=c" or a contradiction "a$b".
[[nodiscard]] Complaints solvedEquationComplaints(const Solution& solution);

// Whether the first line asks for something that does not exist: a division by zero.
[[nodiscard]] bool dividesByZero(const Solution& solution);

// Whether the solution had come to numbers whose sum may pass 16 bits, where fractions of one
// denominator are documented to overflow.
[[nodiscard]] bool reachesLargeNumbers(const Solution& solution);

}  // namespace ordwise::test
