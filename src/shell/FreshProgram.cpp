#include "FreshProgram.hpp"

#include "RandomDraws.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

namespace ordwise {

void startFreshProgram() {
    ws = Workspace{};
    ResetWindows();
    unseedDraws();
}

}  // namespace ordwise
