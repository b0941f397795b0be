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

}  // namespace ordwise
