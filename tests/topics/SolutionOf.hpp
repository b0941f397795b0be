// Runs one topic solver as the solve driver does and keeps what a student would see.
#pragma once

#include "FaultOf.hpp"
#include "PlainPlatform.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ordwise::test {

using Lines = std::vector<std::string>;

struct Solution {
    Lines lines;  // the first restates the problem
    Lines notes;
    Lines messages;  // message boxes of the drawing
    int fault = 0;

    [[nodiscard]] std::string last() const { return lines.empty() ? "" : lines.back(); }
};

template <class Solver>
Solution solutionOf(Solver solve, int roundPlaces = 2) {
    PlainPlatform outside;
    ws = Workspace{};
    ResetWindows();
    ws.RoundPlaces = roundPlaces;
    Solution solution;
    solution.fault = faultOf(solve);
    for (int step = 1; step < ws.StepCount; ++step) {
        solution.lines.push_back(ws.StepLines[step]);
        solution.notes.push_back(ws.StepNotes[step]);
    }
    for (const ShownMessage& message : outside.dialogs.messages) solution.messages.push_back(message.text);
    return solution;
}

// The line in which a solution without a fault ends: the answer or the complaint.
template <class Solver>
std::string answerOf(Solver solve, int roundPlaces = 2) {
    const Solution solution = solutionOf(solve, roundPlaces);
    EXPECT_EQ(solution.fault, 0);
    EXPECT_TRUE(solution.messages.empty());
    return solution.last();
}

}  // namespace ordwise::test
