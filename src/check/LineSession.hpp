// A problem that the student works himself, line by line.
#pragma once

#include "Examples.hpp"
#include "LineVerdict.hpp"
#include "Slip.hpp"

#include <optional>
#include <string>
#include <vector>

namespace ordwise {

struct WorkedLine {
    std::string typed;
    std::string markup;
    std::vector<RefusedKey> refused;
    Judgement judgement;
    bool finished = false;  // nothing is left to do
    std::optional<Slip> slip;
    std::optional<SolverStep> next;  // what the solver would do, from the last line that was right
};

struct LineSession {
    CheckTopic topic{};
    LineRules rules;
    std::string problem;    // its markup
    std::string lastRight;  // the markup of the last line that was right, the problem at first
    std::vector<ProblemKey> lastRightKeys;
    std::vector<SolverStep> solution;  // of the problem, the restated problem first; none without an end
    std::vector<WorkedLine> lines;
    bool finished = false;  // the last line judged right was an answer
};

// Begins with the problem that stands on the desk, whole and ready to be solved. `answers` are those to
// the questions of the solve, in order. Expects a topic with lines; throws UnansweredQuestion.
[[nodiscard]] LineSession beginLines(const std::vector<std::string>& answers);

// Types the student's next line, flat or as the paper draws it, and judges it. The desk stays as it is.
const WorkedLine& addLine(LineSession& session, const std::string& text);

// Whether a markup is an answer of the topic.
[[nodiscard]] bool isFinishedLine(const LineSession& session, const std::string& markup,
                                  const std::vector<ProblemKey>& keys);

}  // namespace ordwise
