// A mistake that was recognised.
#pragma once

#include <string>

namespace ordwise {

struct Slip {
    std::string name;    // e.g. "sign-kept-when-moved"
    std::string reason;  // two sentences: what seems to have happened, and what is so
};

}  // namespace ordwise
