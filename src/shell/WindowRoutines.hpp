// Which routine answers when a window is opened or closed: the logic asks for a window by name, and
// the platform calls these before it shows the window and when it takes it away.
#pragma once

#include "Platform.hpp"

#include <string_view>

namespace ordwise {

// Fills the window's data. A name that no routine answers to is left to the platform.
void loadWindow(std::string_view name);
// Runs the window's own farewell; nothing for a window that is not open.
void unloadWindow(std::string_view name);

// Windows that nobody sees: opening one runs its routine and closing it its farewell. Where there is no
// screen a worksheet is laid out by these.
class UnseenWindows : public WindowOpener {
public:
    void show(std::string_view name) override { loadWindow(name); }
    void unload(std::string_view name) override { unloadWindow(name); }
};

}  // namespace ordwise
