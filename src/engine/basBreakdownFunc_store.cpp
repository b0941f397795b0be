// Reading the store: short names for what every rule asks of it.
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

namespace ordwise {

const ExprTerm& termOf(int depth, int group, int term) {
    return ws.TermTable[ws.CurrentSide][depth][group][term];
}

const ExprGroup& groupOf(int depth, int group) {
    return ws.GroupTable[depth][group];
}

std::string groupText(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    return tokensText(record.openIndex + 1, record.closeIndex - 1);
}

std::string textBefore(const ExprGroup& group) {
    return tokensText(0, group.openIndex);
}

std::string textFrom(const ExprGroup& group) {
    return tokensText(group.closeIndex, ws.TokenLast);
}

}  // namespace ordwise
