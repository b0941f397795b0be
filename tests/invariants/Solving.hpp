// A problem, its solution, and the book that is kept of many of them.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace ordwise::test {

// e.g. {"Arithmetic", "2+3*4"} or {"Volume of a Sphere", "", {{2, "3"}}}
struct Problem {
    std::string topic;
    std::string typed;
    std::map<int, std::string> boxes = {};
    std::map<int, int> combos = {};
    std::vector<std::string> answers = {};
    std::map<std::string, std::string> settings = {};
    bool dropRefused = false;

    // The command line that solves it, to be tried by hand.
    // e.g. solve "Arithmetic" "2+3*4" --set use_fraction=0
    [[nodiscard]] std::string command() const;
};

[[nodiscard]] std::vector<std::string> allTopics();

struct Step {
    std::string line;
    std::string note;
};

struct Solution {
    std::string error;  // the request could not be read
    std::string typed;
    std::vector<std::string> boxes;
    bool canSolve = false;
    std::vector<std::string> refused;     // reasons
    std::vector<std::string> messages;    // captions of the message boxes
    std::vector<Step> steps;              // from the restated problem on
    std::map<char, std::string> answers;  // by letter, to the questions for a value
    bool graphed = false;                 // something was handed to the graph window
    double milliseconds = 0;

    [[nodiscard]] const std::string& last() const;  // the last line, "" where there is none
};

[[nodiscard]] Solution solve(const Problem& problem);
// An example that the program makes up and solves; the problem is filled in with what it typed.
[[nodiscard]] Solution solveExample(Problem& problem, bool complex, int seed);

// What is wrong with a solution. `kind` gathers like complaints, `detail` tells this one.
struct Complaint {
    std::string kind;
    std::string detail;
};
using Complaints = std::vector<Complaint>;

// What must hold for every solution of every topic: nothing refused, solved without a message box,
// all lines and notes well-formed and filled in, no line twice in a row, no note empty but the first.
[[nodiscard]] Complaints commonComplaints(const Problem& problem, const Solution& solution);

// Counts solutions by topic and keeps, for every kind of complaint, the smallest problem that shows it.
class Survey {
public:
    void add(const Problem& problem, const Solution& solution, const Complaints& complaints);
    // Prints a line a topic, and fails the running test for every kind of complaint and for every topic
    // whose slowest problem takes more than `milliseconds` when it is solved again by itself.
    void report(const std::string& heading, double milliseconds = 50) const;

private:
    struct Tally {
        int problems = 0;
        int right = 0;
        double slowest = 0;
        Problem slowestProblem;
    };
    struct Example {
        int count = 0;
        std::size_t size = 0;
        std::string text;
    };
    std::map<std::string, Tally> topics_;
    std::map<std::pair<std::string, std::string>, Example> complaints_;  // by topic and kind
};

}  // namespace ordwise::test
