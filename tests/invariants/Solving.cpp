// Solves through the routine of the terminal program, and keeps the book.
#include "Solving.hpp"

#include "MarkupValue.hpp"
#include "Requests.hpp"
#include "Sanitized.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <sstream>
#include <string_view>

namespace ordwise::test {

namespace {

nlohmann::json requestOf(const Problem& problem) {
    nlohmann::json request{{"op", "solve"}, {"topic", problem.topic}, {"problem", problem.typed}};
    for (const auto& [number, text] : problem.boxes) request["boxes"][std::to_string(number)] = text;
    for (const auto& [number, index] : problem.combos) request["combos"][std::to_string(number)] = index;
    for (const auto& answer : problem.answers) request["answers"].push_back(answer);
    for (const auto& [key, value] : problem.settings) request["settings"][key] = std::stoi(value);
    if (problem.dropRefused) request["dropRefused"] = true;
    return request;
}

// Pieces that no line may hold: numbers that are none, and marks that scripts use on the way.
constexpr std::string_view unfilled[] = {"nan", "inf", "NaN", "XXX", ", X", "NA"};

Complaints lineComplaints(const std::string& line, const std::string& what) {
    Complaints found;
    std::string why;
    if (!wellFormed(line, &why)) found.push_back({"a " + what + " is not well-formed", why + ": " + line});
    for (const auto piece : unfilled) {
        // Whole words only: "finding" and "infinite" hold "inf" rightly.
        const std::size_t at = line.find(piece);
        if (at == std::string::npos) continue;
        const auto isWord = [&](std::size_t i) {
            return i < line.size() && std::isalpha(static_cast<unsigned char>(line[i]));
        };
        if (!isWord(at - 1) && !isWord(at + piece.size())) found.push_back({"a " + what + " is not filled in", line});
    }
    return found;
}

void append(Complaints& all, Complaints more) {
    for (auto& one : more) all.push_back(std::move(one));
}

// The best of a few times: what else the machine does counts for nothing.
double bestTime(const Problem& problem) {
    double best = solve(problem).milliseconds;
    for (int i = 0; i < 5; ++i) best = std::min(best, solve(problem).milliseconds);
    return best;
}

void readDialogs(const nlohmann::ordered_json& answer, Solution& solution) {
    for (const auto& message : answer["messages"]) {
        solution.messages.push_back(message["caption"].get<std::string>());
    }
    // "Enter a value for x"
    for (const auto& prompt : answer["prompts"]) {
        solution.answers[prompt["text"].get<std::string>().back()] = prompt["answer"].get<std::string>();
    }
}

Solution solutionOf(const nlohmann::json& request) {
    const auto begin = std::chrono::steady_clock::now();
    const auto answer = answerRequest(request);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    Solution solution;
    solution.milliseconds = time.count();
    if (answer.contains("error")) {
        solution.error = answer["error"].get<std::string>();
        return solution;
    }
    if (answer["typed"].is_string()) solution.typed = answer["typed"].get<std::string>();
    solution.boxes = answer["boxes"].get<std::vector<std::string>>();
    solution.canSolve = answer["canSolve"].get<bool>();
    solution.graphed = !answer["graph"].is_null();
    for (const auto& refusal : answer["refused"]) solution.refused.push_back(refusal["reason"].get<std::string>());
    for (const auto& step : answer["steps"]) {
        solution.steps.push_back({step["line"].get<std::string>(), step["note"].get<std::string>()});
    }
    readDialogs(answer, solution);
    return solution;
}

}  // namespace

std::string Problem::command() const {
    std::ostringstream out;
    out << "solve \"" << topic << '"';
    if (!typed.empty()) out << " \"" << typed << '"';
    for (const auto& [number, text] : boxes) out << " --box " << number << '=' << text;
    for (const auto& [number, index] : combos) out << " --combo " << number << '=' << index;
    for (const auto& answer : answers) out << " --answer " << answer;
    for (const auto& [key, value] : settings) out << " --set " << key << '=' << value;
    if (dropRefused) out << " --drop-refused";
    return out.str();
}

std::vector<std::string> allTopics() {
    std::vector<std::string> names;
    for (const auto& topic : answerTopics()) names.push_back(topic["name"].get<std::string>());
    return names;
}

const std::string& Solution::last() const {
    static const std::string nothing;
    return steps.empty() ? nothing : steps.back().line;
}

Solution solve(const Problem& problem) {
    return solutionOf(requestOf(problem));
}

Solution solveExample(Problem& problem, bool complex, int seed) {
    const Solution solution = solutionOf(
        {{"op", "example"}, {"topic", problem.topic}, {"complex", complex}, {"seed", static_cast<unsigned>(seed)}});
    problem.typed = solution.typed;
    for (std::size_t i = 0; i < solution.boxes.size(); ++i) {
        if (!solution.boxes[i].empty()) problem.boxes[static_cast<int>(i) + 1] = solution.boxes[i];
    }
    for (const auto& entry : solution.answers) problem.answers.push_back(entry.second);
    return solution;
}

Complaints commonComplaints(const Problem& problem, const Solution& solution) {
    if (!solution.error.empty()) return {{"the request is not answered", solution.error}};
    if (!solution.refused.empty() && !problem.dropRefused) return {{"a key is refused", solution.refused.front()}};
    if (!solution.canSolve) return {{"Solve is not enabled", solution.typed}};
    Complaints found;
    for (const auto& caption : solution.messages) found.push_back({"message box: " + caption, ""});
    if (solution.steps.empty() && !solution.graphed && found.empty()) found.push_back({"there is no step", ""});
    for (std::size_t i = 0; i < solution.steps.size(); ++i) {
        const Step& step = solution.steps[i];
        append(found, lineComplaints(step.line, "line"));
        append(found, lineComplaints(step.note, "note"));
        if (i == 0) continue;
        if (step.line == solution.steps[i - 1].line) found.push_back({"a line stands twice", step.line});
        if (step.note.empty()) found.push_back({"a note is empty", step.line});
    }
    return found;
}

void Survey::add(const Problem& problem, const Solution& solution, const Complaints& complaints) {
    Tally& tally = topics_[problem.topic];
    ++tally.problems;
    if (complaints.empty()) ++tally.right;
    if (solution.milliseconds > tally.slowest) {
        tally.slowest = solution.milliseconds;
        tally.slowestProblem = problem;
    }
    for (const auto& complaint : complaints) {
        Example& example = complaints_[{problem.topic, complaint.kind}];
        const std::string command = problem.command();
        ++example.count;
        if (!example.text.empty() && example.size <= command.size()) continue;
        std::ostringstream out;
        out << command << "\n    " << complaint.detail << '\n';
        for (const auto& step : solution.steps) out << "    > " << step.line << "\n          " << step.note << '\n';
        for (const auto& caption : solution.messages) out << "    ! " << caption << '\n';
        example.size = command.size();
        example.text = out.str();
    }
}

void Survey::report(const std::string& heading, double milliseconds) const {
    std::cout << heading << '\n';
    for (const auto& [topic, tally] : topics_) {
        std::cout << "  " << topic << ": " << tally.right << " of " << tally.problems << " right, slowest "
                  << tally.slowest << " ms\n";
        if (tally.slowest > allowed(milliseconds)) {
            EXPECT_LT(bestTime(tally.slowestProblem), allowed(milliseconds)) << tally.slowestProblem.command();
        }
    }
    for (const auto& [key, example] : complaints_) {
        ADD_FAILURE() << key.first << ": " << key.second << ", " << example.count << " times, the smallest:\n"
                      << example.text;
    }
}

}  // namespace ordwise::test
