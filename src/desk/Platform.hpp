// The outside, as a few narrow interfaces. The folder plain/ answers them without a window for the
// terminal and the tests; the desktop answers them with real dialogs, files and printers.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ordwise {

class DrawingSurface;

enum class MessageButtons { Ok, OkCancel };
enum class MessageAnswer { Ok, Cancel };

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual MessageAnswer messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) = 0;
    // The answer typed by the student; empty when the box was cancelled.
    virtual std::string inputBox(std::string_view prompt, std::string_view caption) = 0;
};

// Opening and closing of windows is asked for, not called. `name` is the window's name, "frmGraph".
class WindowOpener {
public:
    virtual ~WindowOpener() = default;
    virtual void show(std::string_view name) = 0;
    virtual void unload(std::string_view name) = 0;
    // A chance for a window to show what has changed in the middle of a command, such as a problem
    // being written key by key.
    virtual void redraw(std::string_view /*name*/) {}
};

class Clock {
public:
    virtual ~Clock() = default;
    // Minute and second of the local time as one number, "mmss": 0 to 5959.
    [[nodiscard]] virtual int minuteAndSecond() const = 0;
    // Today's date in the form of the user's locale, e.g. "11/22/2026".
    [[nodiscard]] virtual std::string today() const = 0;
};

// The outside that the program is running in. All pointers are set before any routine of the logic
// runs and stay valid while it does; the platform owns nothing.
struct Platform {
    Dialogs* dialogs = nullptr;
    WindowOpener* windows = nullptr;
    Clock* clock = nullptr;
};

extern Platform platform;

}  // namespace ordwise
