// The solver at work on any line, without a trace on the desk.
#pragma once

#include "FlatProblem.hpp"

#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace ordwise {

// What the student has been asked for: values of letters, and the letter to solve for.
struct GivenAnswers {
    std::map<char, std::string> values;  // e.g. x -> "2"
    char letter = 0;
};

struct SolverStep {
    std::string line;
    std::string note;
};

struct SolverRun {
    bool done = false;              // it came to its end, without a message box
    std::vector<SolverStep> steps;  // the restated problem first
};

// A question of the solve that the answers do not hold.
class UnansweredQuestion : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Solves the problem that stands on the desk, which stays as it is, and asks `answers` in turn; what
// was answered is kept in `given`. Throws UnansweredQuestion.
[[nodiscard]] SolverRun solveDesk(std::deque<std::string> answers, GivenAnswers& given);

// Solves a line as if it were the problem of the topic. Not done where a key of it is refused, a
// question has no answer or the solver ends in a message box.
[[nodiscard]] SolverRun solveLine(const std::vector<ProblemKey>& keys, const GivenAnswers& given);
// The same as a problem of another topic, which knows more kinds of lines. e.g. 121 for 76
[[nodiscard]] SolverRun solveLineAs(int type, const std::vector<ProblemKey>& keys, const GivenAnswers& given);

// Empties the paper and types a line on it, undrawn, with the limits of a line. Expects a DeskKeeper to
// stand by. The index of the first refused key, or -1.
int typeWorkedLine(const std::vector<ProblemKey>& keys);

}  // namespace ordwise
