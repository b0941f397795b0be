// Every scripted topic against plain arithmetic, and the examples that the program makes up itself.
#include "EngineChecks.hpp"
#include "Sanitized.hpp"
#include "TopicProblems.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace ordwise::test {
namespace {

TEST(TopicInvariant, EveryScriptedTopicGivesTheAnswerOfPlainArithmetic) {
    Survey book;
    for (const auto& generate : topicGenerators()) {
        Draws draws(seedOfRun());
        for (int i = 0; i < rounds(120); ++i) {
            const DrawnProblem drawn = generate(draws);
            const Solution solution = solve(drawn.problem);
            Complaints found = scriptedComplaints(drawn.problem, solution, drawn.wanted.message);
            if (found.empty()) found = answerComplaints(drawn.wanted, solution);
            book.add(drawn.problem, solution, found);
        }
    }
    book.report("Scripted topics", 10);
}

// A search number by number would crawl here.
TEST(TopicInvariant, TheLargestNumbersAreAnsweredAtOnce) {
    Survey book;
    for (const Problem& problem :
         {Problem{"Greatest Common Factors", "9998,9999,9997"}, Problem{"Greatest Common Factors", "9999,9999"},
          Problem{"Least Common Multiples", "9999,9998"}, Problem{"Least Common Multiples", "9973,9967,13"},
          Problem{"Least Common Multiples", "9973,9967,9949"}, Problem{"Prime/Composite", "9973"},
          Problem{"Prime Factorization", "9973"}, Problem{"Factoring", "9999"},
          Problem{"Simplifying Fractions", "9999/9998"}, Problem{"Exponential Notation", "9999991"},
          Problem{"Converting Scientific To Regular Notation", "", {{1, "1"}, {2, "-999999999"}}}}) {
        for (int i = 0; i < 3; ++i) book.add(problem, solve(problem), {});
    }
    book.report("Largest numbers", 10);
}

// The problems that the Example command makes up: two hundred of every topic in both difficulties.
TEST(ExampleInvariant, EveryExampleIsTypedAndSolvedRightLineByLine) {
    constexpr int examplesEach = rounds(200);
    Survey book;
    for (const auto& topic : allTopics()) {
        for (int i = 0; i < 2 * examplesEach; ++i) {
            Problem problem{topic, ""};
            const Solution solution = solveExample(problem, i % 2 == 0, i / 2);
            book.add(
                problem, solution,
                isEngineTopic(topic) ? engineComplaints(problem, solution) : scriptedComplaints(problem, solution));
        }
    }
    book.report("Examples");
}

}  // namespace
}  // namespace ordwise::test
