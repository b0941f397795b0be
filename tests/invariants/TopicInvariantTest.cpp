// Every scripted topic against plain arithmetic, and the examples that the program makes up itself.
#include "EngineChecks.hpp"
#include "TopicProblems.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace ordwise::test {
namespace {

TEST(TopicInvariant, EveryScriptedTopicGivesTheAnswerOfPlainArithmetic) {
    Survey book;
    for (const auto& generate : topicGenerators()) {
        Draws draws(seedOfRun());
        for (int i = 0; i < 120; ++i) {
            const DrawnProblem drawn = generate(draws);
            const Solution solution = solve(drawn.problem);
            Complaints found = scriptedComplaints(drawn.problem, solution, drawn.wanted.message);
            if (found.empty()) found = answerComplaints(drawn.wanted, solution);
            book.add(drawn.problem, solution, found);
        }
    }
    book.report("Scripted topics");
}

// The problems that the Example command makes up, of every topic and in both difficulties.
TEST(ExampleInvariant, EveryExampleIsSolvedRightLineByLine) {
    Survey book;
    for (const auto& topic : allTopics()) {
        for (int seed = 1; seed <= 60; ++seed) {
            Problem problem{topic, ""};
            const Solution solution = solveExample(problem, seed % 2 == 0, seed);
            book.add(
                problem, solution,
                isEngineTopic(topic) ? engineComplaints(problem, solution) : scriptedComplaints(problem, solution));
        }
    }
    book.report("Examples");
}

}  // namespace
}  // namespace ordwise::test
