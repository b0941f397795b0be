// What each ProblemType does when it is solved, as a table.
#pragma once

#include <string>

namespace ordwise {

// Runs the branch of a problem type. A type without a branch solves nothing and says nothing.
void solveByType(int problemType);

// The branches that hand values to the graph window.
void solvePointsOfLine(const std::string& problem);     // 106
void solveQuadrantOfPoint(const std::string& problem);  // 107
void solvePoint(const std::string& problem);            // 108

}  // namespace ordwise
