#include "SolveReadiness.hpp"

#include "NumberText.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

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

bool isUnfinished(const RewriteFacts& facts) {
    const std::string& last = cellFromEnd(facts, 0);
    return facts.cells == 0 || IsOperator(last) || last == "," || (last == "~" && ws.RootOpen) ||
           facts.openParentheses > 0 || ws.BarDepth >= 1;
}

// What only some topics ask for.
bool lacksPartOfTopic(const RewriteFacts& facts) {
    switch (ws.ProblemType) {
        case 78:  // a ratio is a number, ":" and a number
            return facts.cells < 3;
        case 90:  // two values, a point
        case 107:
        case 108: return facts.commas < 1;
        case 106:  // two points
            return facts.commas < 2;
        case 101:  // equations
        case 105: return !ws.EqualsTyped || cellFromEnd(facts, 0) == "=";
        default: return false;
    }
}

}  // namespace

bool solveIsReady(const RewriteFacts& facts) {
    if (ws.ProblemType == 74) return isMixedNumber(facts);
    return !isUnfinished(facts) && !lacksPartOfTopic(facts);
}

}  // namespace ordwise
