// The bridge between the toolkit and the windows as data: an event runs a routine of the logic, and
// then everything shows what it changed.
#pragma once

#include <functional>

namespace ordwise {

class Stage {
public:
    // Runs the routine of a user's event; showChanges follows, once, when the outermost routine has
    // ended. The news in the status bar about the event before is old by now.
    void perform(const std::function<void()>& routine);
    // The same for a timer, which nobody has asked for anything.
    void tick(const std::function<void()>& routine);
    // Runs a modal dialog from within a routine: the events in it are outermost ones again.
    void runDialog(const std::function<void()>& dialog);
    // Shows at once what has changed, also within a routine: before a dialog takes over.
    void show() const {
        if (showChanges) showChanges();
    }

    std::function<void()> showChanges;

private:
    int depth_ = 0;
};

}  // namespace ordwise
