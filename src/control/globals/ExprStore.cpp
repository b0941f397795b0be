#include "ExprStore.hpp"

#include "Workspace.hpp"

namespace ordwise {
namespace {

// A parse looks at this many groups beyond the last one in use.
constexpr int groupMargin = 5;

// Groups, counts and flags of one depth, as far as they were used.
void resetLevel(int depth) {
    GroupLevel& level = ws.GroupTable[depth];
    const int used = level.used();
    level.clear();
    level.lastGroup = 0;
    for (int group = 0; group < used; ++group) {
        ws.GroupProduct[depth][group] = false;
        if (group <= lastTermGroup) ws.TermLast[depth][group] = 0;
    }
    // Depth 0 group 0 is no token's group: its marks are set without a group record.
    ws.GroupProduct[depth][0] = false;
    ws.TermLast[depth][0] = 0;
}

void resetTerms(TermSide& side) {
    for (int depth = 0; depth < side.used(); ++depth) {
        TermLevel& level = side.slot(depth);
        for (int group = 0; group < level.used(); ++group) level.slot(group).clear();
    }
}

}  // namespace

bool isPastTheTables() {
    for (int depth = 0; depth <= lastDepth; ++depth) {
        if (ws.GroupTable[depth].lastGroup + groupMargin > lastTermGroup) return true;
    }
    return false;
}

void ResetStore(bool deep) {
    const bool pastTheTables = isPastTheTables();
    ws.StoreSource.forget();
    for (KnownText& source : ws.CommitSources) source.forget();
    ws.MaxDepth = 0;
    ws.CurrentDepth = 0;
    ws.CurrentGroup = 0;
    for (int depth = 0; depth <= lastDepth; ++depth) resetLevel(depth);
    resetTerms(ws.TermTable[ws.CurrentSide]);
    if (pastTheTables && !deep) raise(FaultNumber::Subscript);
}

}  // namespace ordwise
