// Any bytes typed as a problem, refused keys left out, in boxes where the topic has boxes, and solved with
// settings and answers of their own. What the engine solves in fractions is held against an evaluator
// that shares nothing with it: each line has the value, or the solutions, of the one before.
#include "EngineChecks.hpp"
#include "FuzzedTopic.hpp"
#include "MarkupValue.hpp"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>

namespace ordwise::fuzz {
namespace {

using test::Problem;

// The letters of a problem have values that an evaluator need not round.
constexpr const char* answers[] = {"2", "-1", "3", "0", "0.5", "x", "y", "-7", "12", ""};
constexpr const char* places[] = {"0", "1", "2", "4", "15"};

// "3 4 5" -> boxes 1 to 3
std::map<int, std::string> boxesOf(const std::string& text) {
    std::map<int, std::string> boxes;
    std::size_t begin = 0;
    for (int number = 1; number <= 6 && begin <= text.size(); ++number) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        boxes[number] = text.substr(begin, end - begin);
        begin = end + 1;
    }
    return boxes;
}

// The settings and the answers by two bytes behind that of the topic; 0 for the usual ones.
void vary(Problem& problem, unsigned settings, unsigned from) {
    if ((settings & 1U) != 0) problem.settings["use_fraction"] = "0";
    if ((settings & 2U) != 0) problem.settings["detail"] = (settings & 4U) != 0 ? "2" : "3";
    if ((settings & 8U) != 0) problem.settings["ExpDetail"] = (settings & 16U) != 0 ? "2" : "1";
    if ((settings & 32U) != 0) problem.settings["RoundVar"] = places[(settings >> 6U) % std::size(places)];
    for (unsigned i = 0; i < 5; ++i)
        problem.answers.emplace_back(answers[(from + i * (1 + from / 16)) % std::size(answers)]);
}

// Numbers that the engine's single precision and the evaluator's whole numbers hold in every step.
bool isSmall(const std::string& typed) {
    int run = 0;
    for (const char c : typed) {
        run = (c >= '0' && c <= '9') || c == '.' ? run + 1 : 0;
        if (run > 3 || c == '.') return false;
    }
    return true;
}

// What each line is held against the line before by; nothing where that cannot be judged: rounded lines
// are not equal, of a solution that ended in a message nothing stands, and not all that the keys let
// stand is mathematics.
test::Check checkFor(const Problem& problem, const test::Solution& solution) {
    const bool judged = test::isEngineTopic(problem.topic) && problem.settings.count("use_fraction") == 0 &&
                        solution.messages.empty() && !solution.steps.empty() && isSmall(solution.typed);
    if (!judged) return nullptr;
    const std::string& first = solution.steps.front().line;
    if (problem.topic == "Evaluating Polynomials")
        return test::isMathematics(solution) ? test::evaluationComplaints : nullptr;
    if (first.find('=') != std::string::npos)
        return test::sameEquation(first, first) ? test::equationComplaints : nullptr;
    if (!test::isMathematics(solution) || !test::sameExpression(first, first)) return nullptr;
    return [](const test::Solution& one) { return test::valueComplaints(one); };
}

void judge(const Problem& problem, const test::Solution& solution) {
    const test::Check check = checkFor(problem, solution);
    if (check == nullptr) return;
    for (const test::Complaint& one : check(solution)) {
        std::cerr << one.kind << ": " << one.detail << '\n' << problem.command() << '\n';
        std::abort();
    }
}

void solve(const std::uint8_t* data, std::size_t size) {
    const std::size_t chosen = std::min<std::size_t>(size, 3);
    const auto byte = [&](std::size_t i) { return i < chosen ? data[i] : 0U; };
    Problem problem;
    problem.topic = topics()[byte(0) % topics().size()];
    vary(problem, byte(1), byte(2));
    problem.dropRefused = true;
    problem.typed = std::string(data + chosen, data + size);
    test::Solution solution = test::solve(problem);
    if (!solution.error.empty()) {  // a topic of boxes
        problem.boxes = boxesOf(problem.typed);
        problem.typed.clear();
        solution = test::solve(problem);
    }
    if (solution.error.empty()) judge(problem, solution);
}

}  // namespace
}  // namespace ordwise::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ordwise::fuzz::solve(data, size);
    return 0;
}
