#include "Stage.hpp"

#include "Windows.hpp"

namespace ordwise {

namespace {

// Sets the depth for as long as it lives.
class DepthGuard {
public:
    DepthGuard(int& depth, int now) : depth_(depth), before_(depth) { depth = now; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;
    ~DepthGuard() { depth_ = before_; }

private:
    int& depth_;
    int before_;
};

}  // namespace

void Stage::perform(const std::function<void()>& routine) {
    if (depth_ == 0) frmMain.StatusText.clear();
    tick(routine);
}

void Stage::tick(const std::function<void()>& routine) {
    {
        const DepthGuard guard(depth_, depth_ + 1);
        routine();
    }
    if (depth_ == 0) show();
}

void Stage::runDialog(const std::function<void()>& dialog) {
    const DepthGuard guard(depth_, 0);
    dialog();
}

}  // namespace ordwise
