#include "FreshProgram.hpp"

#include "RandomDraws.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

namespace ordwise {

void startFreshProgram() {
    // Assigning keeps the memory of texts and arrays, which the next problem will need again.
    static const Workspace asStarted;
    ws = asStarted;
    ResetWindows();
    unseedDraws();
}

}  // namespace ordwise
