#include "SolveReadiness.hpp"

#include "NumberText.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <iterator>
#include <vector>

namespace ordwise {

namespace {

// The cell `back` places before the last one. e.g. 0 is the last
const std::string& cellFromEnd(const RewriteFacts& facts, int back) {
    static const std::string none;
    const int number = facts.cells - back;
    return number >= 1 ? ws.CanonIn[4 * number] : none;
}

// A mixed number: a number, a sign, a fraction. e.g. "2", "+", "1/2"
bool isMixedNumber(const RewriteFacts& facts) {
    return facts.cells >= 3 && IsNumeric(cellFromEnd(facts, 2)) && IsSign(cellFromEnd(facts, 1)) &&
           IsFractionToken(cellFromEnd(facts, 0));
}

// Why the problem is not finished: a test, and what a student is told where it holds. Solve is ready
// where none of them does.
struct Want {
    bool (*missing)(const RewriteFacts&);
    std::string (*words)(const RewriteFacts&);
};

bool isTopic(int type) {
    return ws.ProblemType == type;
}

bool takesMixedNumber() {
    return isTopic(74);
}

bool takesEquation() {
    return isTopic(101) || isTopic(105);
}

std::string openParentheses(const RewriteFacts& facts) {
    if (facts.openParentheses == 1) return "a parenthesis is still open";
    return textOf(facts.openParentheses) + " parentheses are still open";
}

std::string behindLast(const RewriteFacts& facts) {
    const char* const what = ws.EquationMode > 0 ? "a number or a letter" : "a number";
    return std::string("there must be ") + what + " behind the '" + cellFromEnd(facts, 0) + "'";
}

// clang-format off
const Want wants[] = {
    {[](const RewriteFacts& facts) { return facts.cells == 0; },
     [](const RewriteFacts&) { return std::string("nothing has been typed yet"); }},
    {[](const RewriteFacts& facts) { return takesMixedNumber() && facts.cells > 0 && !isMixedNumber(facts); },
     [](const RewriteFacts&) { return std::string("it must be a number, a sign and a fraction, such as 2+1/2"); }},
    {[](const RewriteFacts& facts) {
         const std::string& last = cellFromEnd(facts, 0);
         return !takesMixedNumber() && (IsOperator(last) || last == ",");
     }, behindLast},
    {[](const RewriteFacts& facts) { return !takesMixedNumber() && cellFromEnd(facts, 0) == "~" && ws.RootOpen; },
     [](const RewriteFacts&) { return std::string("there must be a number under the root"); }},
    {[](const RewriteFacts& facts) { return !takesMixedNumber() && facts.openParentheses > 0; }, openParentheses},
    {[](const RewriteFacts&) { return !takesMixedNumber() && ws.BarDepth >= 1; },
     [](const RewriteFacts&) { return std::string("an absolute value bar (|) is still open"); }},
    // What only some topics ask for.
    {[](const RewriteFacts& facts) { return isTopic(78) && facts.cells > 0 && facts.cells < 3; },
     [](const RewriteFacts&) { return std::string("a ratio is two numbers with a colon between them, such as 1:2"); }},
    {[](const RewriteFacts& facts) { return isTopic(90) && facts.cells > 0 && facts.commas < 1; },
     [](const RewriteFacts&) { return std::string("a comma and a second number are still to come"); }},
    {[](const RewriteFacts& facts) { return (isTopic(107) || isTopic(108)) && facts.cells > 0 && facts.commas < 1; },
     [](const RewriteFacts&) { return std::string("a point is two numbers with a comma between them, such as (4,8)"); }},
    {[](const RewriteFacts& facts) { return isTopic(106) && facts.cells > 0 && facts.commas < 2; },
     [](const RewriteFacts&) { return std::string("two points are needed, such as (4,8)-(2,3)"); }},
    {[](const RewriteFacts& facts) { return takesEquation() && facts.cells > 0 && !ws.EqualsTyped; },
     [](const RewriteFacts&) { return std::string("the equal sign (=) is still to come"); }},
    {[](const RewriteFacts& facts) { return takesEquation() && cellFromEnd(facts, 0) == "="; },
     [](const RewriteFacts&) { return std::string("the right-hand side of the equation is still to come"); }},
};
// clang-format on

}  // namespace

bool solveIsReady(const RewriteFacts& facts) {
    return std::none_of(std::begin(wants), std::end(wants), [&](const Want& want) { return want.missing(facts); });
}

std::string whatIsMissing(const RewriteFacts& facts) {
    std::vector<std::string> parts;
    for (const Want& want : wants) {
        if (want.missing(facts)) parts.push_back(want.words(facts));
    }
    if (parts.empty()) return "";
    return "The problem is not finished: " + joined(parts, ", and ") + ".";
}

}  // namespace ordwise
