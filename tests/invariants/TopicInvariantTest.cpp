// Every scripted topic against plain arithmetic, over random problems.
#include "TopicProblems.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace ordwise::test {
namespace {

// Complaints that say no more than that the solve ended as it had to.
void dropForeseen(Complaints& found, const Wanted& wanted) {
    std::erase_if(found, [&](const Complaint& one) {
        return !wanted.message.empty() && one.kind == "message box: " + wanted.message;
    });
}

// A heading that explains itself stands without a note in these topics.
bool mayStandWithoutNote(const Problem& problem, const Complaint& complaint) {
    if (complaint.kind != "a note is empty") return false;
    if (problem.topic == "Multiples") return complaint.detail.rfind("The first ten multiples", 0) == 0;
    if (problem.topic != "Fraction To Mixed Notation") return false;
    return complaint.detail.find("= 1") != std::string::npos || complaint.detail.find("equals 1") != std::string::npos;
}

// The mean of one number repeats its fraction: there is nothing to add.
bool mayStandTwice(const Problem& problem, const Complaint& complaint) {
    const bool oneNumber = problem.typed.find(',') == std::string::npos;
    return complaint.kind == "a line stands twice" && oneNumber && complaint.detail.rfind("Average = ", 0) == 0;
}

TEST(TopicInvariant, EveryScriptedTopicGivesTheAnswerOfPlainArithmetic) {
    Survey book;
    for (const auto& generate : topicGenerators()) {
        Draws draws(seedOfRun());
        for (int i = 0; i < 120; ++i) {
            const DrawnProblem drawn = generate(draws);
            const Solution solution = solve(drawn.problem);
            Complaints found = commonComplaints(drawn.problem, solution);
            dropForeseen(found, drawn.wanted);
            std::erase_if(found, [&](const Complaint& one) {
                return mayStandWithoutNote(drawn.problem, one) || mayStandTwice(drawn.problem, one);
            });
            if (found.empty()) found = answerComplaints(drawn.wanted, solution);
            book.add(drawn.problem, solution, found);
        }
    }
    book.report("Scripted topics");
}

}  // namespace
}  // namespace ordwise::test
