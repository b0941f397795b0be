// The chains of rules: reduce an expression, expand a polynomial, solve an equation.
#pragma once

#include <string>

namespace ordwise {

// --- reduction: basSolveOrders_reduce.cpp

// Simplest form of one group of MaxDepth, one visible step at a time. silent records no ordinary
// step; stopFlag is handed to ReduceGroup. e.g. 2+12-5 -> 14-5 -> 9
void ReduceExpression(int group, bool silent = false, bool stopFlag = false);
// The walk over all groups, deepest first, for the sides of an equation.
// e.g. 2x+(3+4)=5 -> 2x+(7)=5 -> 2x+7=5
void ReduceAllGroups();

// --- polynomials: basSolveOrders_polynomial.cpp

// The top of simplifying: powers, products, parentheses and like terms until nothing changes.
// e.g. 3(x+2)-2(x-1) -> x+8
void ExpandPolynomial();
// The last line in decreasing order where it does not stand so: a step of its own, with the leading
// term hint if it has not been given. e.g. 4x+3+2x^2 -> 2x^2+4x+3
void OrderLastLine();
// The roots topic. e.g. 3~4+2~9 -> 12
void ReduceFinalRadicals();
// The topic "Exponential Notation". e.g. 12 -> 2*2*3 -> 2^2*3
void FindPrimeFactors();
// The topic "Evaluating Polynomials": simplified if it has one variable, then values, then reduced.
void EvaluateProblem();
// Asks for the value of each variable and puts it in; the text is left for the caller to commit.
// An answer that is no number brings a message and the question again, one that is too large the
// question alone. e.g. 4xy with 2, 3 -> 4[(2)]y -> 4[(2)][(3)] -> 4(2)(3)
void EvaluatePolynomial();

// --- equations: basSolveOrders_equations.cpp

// Both sides reduced: group by group when PlainSum is set, else as polynomials. e.g. x+2+3=7 -> x+5=7
void ExpandBothSides();
// Solves the equation in the TokenBuffer for a variable. True if it came down to that variable on
// the left; false for an identity, a contradiction and a polynomial that was factored.
// e.g. 2x+3=7 -> x=2; x+1=x+2 -> 1$2
bool SolveEquation(const std::string& variable);
// Everything to the left side. e.g. x^2=5x-6 -> x^2-5x+6=0
void SetPolynomialToZero();
// e.g. -x^2+4=0 -> x^2-4=0
void NegateBothSides();
// The side in use into "-( )"; no commit. e.g. -x^2+4=0 -> -(-x^2+4)=0
void MultiplyByNegative();
// Terms without the variable off the left side, terms with it (or all) off the right side, shown on
// both sides; the sides are swapped when that is all there is to do. False if there was nothing to
// move; no commit. e.g. 2x+3=7 -> 2x+3[-3]=7[-3]; 3=x -> x=3
bool SolveForLeft(const std::string& variable);
bool SolveForRight(const std::string& variable, bool all);
// Divides by the coefficient of the left side's first term: the division as a step, and its result.
// e.g. 2x=4 -> #2x/[2]#=#4/[2]# -> x=2
void DivideBothSides(const std::string& variable);
// Records a line that is no form of the TokenBuffer, such as the division itself. Fault 9 at step 201.
void writeStep(const std::string& line, const std::string& note);

}  // namespace ordwise
