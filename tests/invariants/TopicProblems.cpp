// How an answer is held against the last line, and the list of all generators.
#include "TopicProblems.hpp"

#include "TopicFamilies.hpp"

#include <cctype>
#include <cmath>
#include <cstdlib>

namespace ordwise::test {

namespace {

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// A "-" belongs to a number where nothing stands before it that it could be subtracted from.
bool isSignAt(const std::string& line, std::size_t i) {
    if (line[i] != '-') return false;
    return i == 0 || line[i - 1] == ' ' || line[i - 1] == '(' || line[i - 1] == '^' || line[i - 1] == '#';
}

bool near(double got, double number, const Wanted& wanted) {
    const double half = 0.5 * std::pow(10.0, -wanted.places);
    return std::fabs(got - number) <= half * (1 + 1e-6) + 1e-12 * std::fabs(number) + wanted.slack;
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

}  // namespace

Complaints scriptedComplaints(const Problem& problem, const Solution& solution, const std::string& foreseenMessage) {
    Complaints found = commonComplaints(problem, solution);
    std::erase_if(found, [&](const Complaint& one) {
        const bool foreseen = !foreseenMessage.empty() && one.kind == "message box: " + foreseenMessage;
        return foreseen || mayStandWithoutNote(problem, one) || mayStandTwice(problem, one);
    });
    return found;
}

std::vector<double> numbersIn(const std::string& line) {
    std::vector<double> numbers;
    for (std::size_t i = 0; i < line.size();) {
        const bool begins = isDigit(line[i]) || (line[i] == '.' && i + 1 < line.size() && isDigit(line[i + 1]));
        const std::size_t from = i + (isSignAt(line, i) ? 1 : 0);
        const bool behindSign = from > i && from < line.size() && (isDigit(line[from]) || line[from] == '.');
        if (!begins && !behindSign) {
            ++i;
            continue;
        }
        char* end = nullptr;
        numbers.push_back(std::strtod(line.c_str() + i, &end));
        i = std::max(i + 1, static_cast<std::size_t>(end - line.c_str()));
    }
    return numbers;
}

Complaints answerComplaints(const Wanted& wanted, const Solution& solution) {
    Complaints found;
    if (!wanted.message.empty()) {
        if (solution.messages == std::vector<std::string>{wanted.message}) return {};
        return {{"the message box is missing", wanted.message}};
    }
    const std::string& line = solution.last();
    const auto numbers = numbersIn(line);
    const auto hold = [&](const std::optional<double>& number, double got) {
        if (number && !near(got, *number, wanted)) {
            found.push_back({"the answer is wrong", line + ", wanted " + std::to_string(*number)});
        }
    };
    if ((wanted.first || wanted.last) && numbers.empty()) return {{"the last line holds no answer", line}};
    if (!numbers.empty()) {
        hold(wanted.first, numbers.front());
        hold(wanted.last, numbers.back());
    }
    if (!wanted.line.empty() && line != wanted.line) {
        found.push_back({"the last line is another", line + ", wanted " + wanted.line});
    }
    if (line.find(wanted.part) == std::string::npos) {
        found.push_back({"the last line lacks a piece", line + ", wanted " + wanted.part});
    }
    return found;
}

std::vector<TopicGenerator> topicGenerators() {
    std::vector<TopicGenerator> all;
    for (const auto& family : {geometryGenerators(), numberGenerators(), listGenerators(), percentGenerators(),
                               conversionGenerators(), scienceGenerators()}) {
        all.insert(all.end(), family.begin(), family.end());
    }
    return all;
}

}  // namespace ordwise::test
