// Runs one topic solver as the worksheet does, on a fresh desk, and gives what a student would see.
#pragma once

#include "MarkupValue.hpp"
#include "PlainPlatform.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

namespace ordwise::test {

struct TopicStep {
    std::string line;
    std::string note;
};

// The steps, the restated problem first. Fails the test when a line or note is not well formed,
// holds a value that is no number, or could not be drawn.
template <class Solver>
std::vector<TopicStep> stepsOf(Solver solver, int roundPlaces = 2) {
    PlainPlatform plain;
    ResetWindows();
    ws = Workspace();
    ws.RoundPlaces = roundPlaces;
    solver();

    static const std::regex noNumber("(^|[^a-z])-?(nan|inf)([^a-z]|$)");
    std::vector<TopicStep> steps;
    for (int i = 1; i < ws.StepCount; ++i) {
        steps.push_back({ws.StepLines[i], ws.StepNotes[i]});
        for (const std::string& markup : {ws.StepLines[i], ws.StepNotes[i]}) {
            std::string why;
            EXPECT_TRUE(wellFormed(markup, &why)) << markup << ": " << why;
            EXPECT_FALSE(std::regex_search(markup, noNumber)) << markup;
        }
        EXPECT_FALSE(ws.StepLines[i].empty()) << "step " << i;
    }
    EXPECT_TRUE(plain.dialogs.messages.empty());
    return steps;
}

// The whole solution as text: each line, and its note indented below it.
template <class Solver>
std::string solutionOf(Solver solver, int roundPlaces = 2) {
    std::string solution = "\n";
    for (const TopicStep& step : stepsOf(solver, roundPlaces)) {
        solution += step.line + "\n";
        if (!step.note.empty()) solution += "    " + step.note + "\n";
    }
    return solution;
}

// The line in which the solution ends: the answer or the complaint.
template <class Solver>
std::string answerOf(Solver solver, int roundPlaces = 2) {
    const std::vector<TopicStep> steps = stepsOf(solver, roundPlaces);
    return steps.empty() ? "" : steps.back().line;
}

}  // namespace ordwise::test
