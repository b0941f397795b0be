// Solving an equation by the moves that a student writes down.
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

namespace ordwise {

void ReduceAllGroups() {
    ws.StepClass = 1;
    CommitStep({.silent = true});
    const int depth = ws.MaxDepth;
    for (int group = 0; ws.MaxDepth == depth && group <= ws.GroupTable[depth].lastGroup; ++group) {
        if (ws.GroupProduct[depth][group]) OrderPolynomial(group);
        ReduceExpression(group);
    }
    for (int level = ws.MaxDepth; level > 0; --level) {
        for (int group = 0; ws.MaxDepth == level && group <= ws.GroupTable[level].lastGroup; ++group) {
            if (groupOf(level, group).isAbsolute) {
                AbsoluteValueStep(group);
            } else {
                RemoveParentheses();
                CommitStep();
            }
        }
    }
    ReduceExpression(0);
}

}  // namespace ordwise
