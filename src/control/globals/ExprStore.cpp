#include "ExprStore.hpp"

#include "Workspace.hpp"

namespace ordwise {

void ResetStore(bool) {
    ws.MaxDepth = 0;
    ws.CurrentDepth = 0;
    ws.CurrentGroup = 0;
}

}  // namespace ordwise
