// What each ProblemType does when it is solved, as a table.
#pragma once

#include <string>

namespace ordwise {

// Runs the branch of a problem type. A type without a branch solves nothing and says nothing.
void solveByType(int problemType);

// The branches that the engine solves.
void expandAndShow();             // 81, 91, 120, 121
void simplifyPolynomial();        // 102
void solveNegativeExponents();    // 150
void solveEquations();            // 101, 122
void evaluatePolynomials();       // 103
void solveExponentialNotation();  // 83
void solveRoots();                // 82
void solveFractionArithmetic();   // 76

// The branches that hand values to the graph window.
void solveLinearEquationForGraph();                     // 105
void solvePointsOfLine(const std::string& problem);     // 106
void solveQuadrantOfPoint(const std::string& problem);  // 107
void solvePoint(const std::string& problem);            // 108

}  // namespace ordwise
