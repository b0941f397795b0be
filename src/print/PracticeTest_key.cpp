// The answer to a problem, read off its solution. In most topics it is the last line; the rows below
// are the others.
#include "PracticeTest.hpp"

#include "Catalogue.hpp"
#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>

namespace ordwise {
namespace {

using Lines = std::vector<std::string>;

// The ten products. e.g. "7, 14, 21, ..."
std::string multiples(const Lines& lines) {
    Lines products;
    for (const std::string& line : lines) {
        const std::size_t equals = line.rfind(" = ");
        if (equals != std::string::npos) products.push_back(line.substr(equals + 3));
    }
    return joined(products, ", ");
}

// A long number fills two lines, the first of which ends in a comma and a blank.
std::string allBehindTheFirst(const Lines& lines) {
    return joined(Lines(lines.begin() + 1, lines.end()), "");
}

// Of the second triangle's sides the one that was asked for; the solver works out more.
std::string sideAskedFor(const Lines& lines) {
    const std::string name = frmPaper.Text4.Text.empty() ? "a2" : frmPaper.Text6.Text.empty() ? "b2" : "c2";
    const auto found = std::find_if(lines.rbegin(), lines.rend(),
                                    [&](const std::string& line) { return line.starts_with(name + " = "); });
    return found == lines.rend() ? lines.back() : *found;
}

std::string graph(const Lines&) {
    return "The graph of " + ws.ProblemText;
}

struct AnswerRow {
    int type;
    std::string (*answer)(const Lines& lines);
};

constexpr AnswerRow rows[] = {
    {89, multiples}, {99, allBehindTheFirst}, {11, sideAskedFor}, {106, graph}, {108, graph},
};

// Highlights are for the screen.
std::string plainLine(const std::string& line) {
    return replaced(replaced(line, "[", ""), "]", "");
}

}  // namespace

std::vector<std::string> stepsOnDesk() {
    Lines lines;
    for (int i = 1; i <= lastShownStep(); ++i) lines.push_back(plainLine(ws.StepLines[i]));
    if (lines.empty()) lines.push_back(answerOnDesk());
    return lines;
}

std::string answerOnDesk() {
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [](const AnswerRow& each) { return each.type == ws.ProblemType; });
    const bool hasSteps = ws.StepCount > 1;
    const Lines lines = hasSteps ? stepsOnDesk() : Lines{"not solved"};
    return row == std::end(rows) ? lines.back() : row->answer(lines);
}

}  // namespace ordwise
