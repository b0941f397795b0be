// What must be true of every solution of the engine, whatever the problem.
#pragma once

#include "Solving.hpp"

namespace ordwise::test {

// Every line has the value of the line before, for all letters. Where a line holds numbers beyond the
// seven digits of a single, to within a single's precision; `tolerance` is for decimals mode.
[[nodiscard]] Complaints valueComplaints(const Solution& solution, long double tolerance = 0);
// Every line has the solutions of the line before.
[[nodiscard]] Complaints equationComplaints(const Solution& solution);
// Every line has the value of the line before where the letters have the values answered.
[[nodiscard]] Complaints evaluationComplaints(const Solution& solution);

// No note names a number that neither its line nor the one before shows, but for what a note brings
// along by itself, such as the factor by which a fraction is reduced.
[[nodiscard]] Complaints noteComplaints(const Solution& solution);

// The last line is a number in simplest form: "5", "-#7/2#".
[[nodiscard]] Complaints simplestNumberComplaints(const Solution& solution);
// The last line is one decimal number.
[[nodiscard]] Complaints decimalComplaints(const Solution& solution);
// The last line is a sum of roots, each of another number without a square factor.
[[nodiscard]] Complaints simplestRootComplaints(const Solution& solution);
// The last line is a product of powers of different primes.
[[nodiscard]] Complaints primePowerComplaints(const Solution& solution);
// The terms of the last line stand in decreasing order of exponent.
[[nodiscard]] Complaints orderedComplaints(const Solution& solution);
// The last line is expanded, like terms gathered, fractions reduced, the terms in order.
[[nodiscard]] Complaints simplestPolynomialComplaints(const Solution& solution);
// The last line is "letter=number", an identity "c=c" or a contradiction "a$b".
[[nodiscard]] Complaints solvedEquationComplaints(const Solution& solution);

using Check = Complaints (*)(const Solution&);

// All that must hold for a simplified sum: the common complaints, every line equal to the line before,
// and `simplest` of the last one. A typed division by zero ends in its message box, and so may numbers
// past a documented limit.
[[nodiscard]] Complaints sumComplaints(const Problem& problem, const Solution& solution, Check simplest,
                                       long double tolerance = 0);

// All that must hold for a solution of the topic that the problem names, in fractions mode.
[[nodiscard]] bool isEngineTopic(const std::string& topic);
[[nodiscard]] Complaints engineComplaints(const Problem& problem, const Solution& solution);

// What must hold in decimals mode, where rounding tells the values of two lines apart.
[[nodiscard]] Complaints decimalsComplaints(const Problem& problem, const Solution& solution);

// Whether the first line can be read as mathematics: what the keys let stand need not be, e.g. x^.
[[nodiscard]] bool isMathematics(const Solution& solution);

}  // namespace ordwise::test
