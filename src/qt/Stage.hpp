// The bridge between the toolkit and the windows as data: an event runs a routine of the logic, and
// then everything shows what it changed.
#pragma once

#include <functional>

namespace ordwise {

class Stage {
public:
    // Runs the routine; showChanges follows, once, when the outermost routine has ended.
    void perform(const std::function<void()>& routine);
    // Shows at once what has changed, also within a routine: before a dialog takes over.
    void show() const {
        if (showChanges) showChanges();
    }

    std::function<void()> showChanges;

private:
    int depth_ = 0;
};

}  // namespace ordwise
