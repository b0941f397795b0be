#include "Stage.hpp"

namespace ordwise {

void Stage::perform(const std::function<void()>& routine) {
    struct Depth {
        int& count;
        explicit Depth(int& c) : count(c) { ++count; }
        ~Depth() { --count; }
        Depth(const Depth&) = delete;
        Depth& operator=(const Depth&) = delete;
    };
    {
        const Depth depth(depth_);
        routine();
    }
    if (depth_ == 0) show();
}

}  // namespace ordwise
