// Runs one topic solver as the solve driver does and keeps what a student would see.
#pragma once

#include "FaultOf.hpp"
#include "MarkupValue.hpp"
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

// What is true of every solution, whatever its topic: it ends without a fault or a message, shows its
// last step, every line can be drawn, every step but the first says why, and no piece is missing.
inline void expectSound(const Solution& solution, const std::string& problem) {
    SCOPED_TRACE(problem);
    EXPECT_EQ(solution.fault, 0);
    EXPECT_TRUE(solution.messages.empty());
    ASSERT_GE(solution.lines.size(), 2U);
    EXPECT_EQ(ws.ShownStep, static_cast<int>(solution.lines.size()));
    EXPECT_EQ(solution.notes.front(), "");
    for (std::size_t i = 0; i < solution.lines.size(); ++i) {
        std::string why;
        EXPECT_TRUE(wellFormed(solution.lines[i], &why)) << solution.lines[i] << ": " << why;
        EXPECT_TRUE(i == 0 || wellFormed(solution.notes[i], &why)) << solution.notes[i] << ": " << why;
        EXPECT_NE(solution.lines[i], "");
        EXPECT_TRUE(i == 0 || !solution.notes[i].empty()) << solution.lines[i];
        for (const char* trace : {"nan", "inf"}) {
            EXPECT_EQ(solution.lines[i].find(trace), std::string::npos) << solution.lines[i];
            EXPECT_EQ(solution.notes[i].find(trace), std::string::npos) << solution.notes[i];
        }
    }
}

// The line in which a sound solution ends: the answer or the complaint.
template <class Solver>
std::string answerOf(Solver solve, int roundPlaces = 2) {
    const Solution solution = solutionOf(solve, roundPlaces);
    expectSound(solution, solution.lines.empty() ? "nothing" : solution.lines[0]);
    return solution.last();
}

}  // namespace ordwise::test
