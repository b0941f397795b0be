// Factoring: the greatest common factor out of a polynomial, a quadratic into two linear factors,
// and the quadratic formula where the roots are no whole fractions.
#pragma once

#include <string>
#include <vector>

namespace ordwise {

// The exponent of a letter in a letter part. e.g. "x^2y", "y" -> 1; "x^2", "z" -> 0
[[nodiscard]] double exponentOf(const std::string& letters, const std::string& letter);

// --- basFactoring_factor.cpp

// Rewrites a group in factors without a commit: the common factor if `verbose` is set or the group
// is no quadratic, else two linear factors. True if it ended otherwise, with imaginary roots or
// with the quadratic formula. A group that does not come apart is left as it stands.
// e.g. 2x^2+4x -> 2x(x+2) with verbose; x^2-5x+6 -> (x-3)(x-2) without
bool Factor(int depth, int group, bool verbose);
// The greatest number that divides all. e.g. "4 6 10" -> "2"
[[nodiscard]] std::string GcfOfList(const std::string& list);

// --- basFactoring_quadratic.cpp

// Coefficients of a quadratic in the first variable, by degree.
struct Quadratic {
    double a = 0;
    double b = 0;
    double c = 0;

    [[nodiscard]] double discriminant() const { return b * b - 4 * a * c; }
};

// e.g. 2x^2-3 -> 2, 0, -3
[[nodiscard]] Quadratic quadraticOf(int depth, int group);
// The two linear factors, "" when the roots are no fractions of whole numbers or a is not above 0.
// e.g. 2, -5, -3 -> "(+1x-3)(+2x+1)"
[[nodiscard]] std::string linearFactors(const Quadratic& quadratic, const std::string& variable);
// The formula and the two roots, to 5 places, as steps: x^2-2=0 -> (x-1.41421)(x+1.41421)=0 ->
// x=1.41421,-1.41421. Returns the roots; none when they are imaginary, which is said in a step.
// Fault 11 for a = 0.
std::vector<double> QuadraticFormula(const Quadratic& quadratic, const std::string& variable);
// e.g. "x has imaginary solutions...cannot factor." as a step of its own
void writeImaginary(const std::string& variable);

}  // namespace ordwise
