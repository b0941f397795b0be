// The number of the fault that an action ends in, 0 if it ends in none.
// e.g. EXPECT_EQ(faultOf([&] { lines[201] = "x"; }), 9)
#pragma once

#include "Fault.hpp"

namespace ordwise {

template <class Action>
int faultOf(Action action) {
    try {
        action();
    } catch (const RunTimeFault& fault) {
        return static_cast<int>(fault.number());
    }
    return 0;
}

}  // namespace ordwise
