// Random problems of the scripted topics, each with the answer that plain arithmetic gives.
//
// The arithmetic here is written from school mathematics and the program's own unit factors, not from
// its solvers; where the program rounds, the answer is wanted to within half of the last place.
#pragma once

#include "Draws.hpp"
#include "Solving.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ordwise::test {

// What the last line must say. Every part that is set must hold.
struct Wanted {
    std::optional<double> first;  // the first number in the line
    std::optional<double> last;   // the last number in the line
    double places = 15;           // to which `first` and `last` are rounded
    double slack = 0;             // what the rounding of an earlier stage may have moved
    std::string line;             // the whole line
    std::string part;             // a piece of it
    std::string message;          // the caption of the message box that ends the solve
};

struct DrawnProblem {
    Problem problem;
    Wanted wanted;
};

using TopicGenerator = std::function<DrawnProblem(Draws&)>;

// One generator a topic, for all topics that are solved by a script.
[[nodiscard]] std::vector<TopicGenerator> topicGenerators();

// The numbers in a line, in order. e.g. "b2 = -3.5" -> 2, -3.5
[[nodiscard]] std::vector<double> numbersIn(const std::string& line);

// The common complaints of a solution, less those that are as they should be: the message box that is
// foreseen, a heading that needs no note, the mean of one number.
[[nodiscard]] Complaints scriptedComplaints(const Problem& problem, const Solution& solution,
                                            const std::string& foreseenMessage = "");

// What is wrong with the last line of a solution.
[[nodiscard]] Complaints answerComplaints(const Wanted& wanted, const Solution& solution);

}  // namespace ordwise::test
