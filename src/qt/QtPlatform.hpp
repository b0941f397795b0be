// The outside of the desktop: real message boxes and windows, the machine's clock.
#pragma once

#include "Platform.hpp"

#include <functional>

class QWidget;

namespace ordwise {

// A dialog belongs to the window from which it was asked for, which need not be the frame.
[[nodiscard]] QWidget* windowInUse(QWidget* frame);

class QtDialogs : public Dialogs {
public:
    QWidget* parent = nullptr;
    std::function<void()> beforeDialog;  // lets the desk show what has happened so far

    MessageAnswer messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) override;
    std::string inputBox(std::string_view prompt, std::string_view caption) override;
};

class QtFileDialogs : public FileDialogs {
public:
    QWidget* parent = nullptr;

    std::optional<std::string> fileToSave(const FileQuestion& question) override;
    std::optional<std::string> fileToOpen(const FileQuestion& question) override;
};

// The browser that the desktop has chosen for web pages.
class QtBrowser : public Browser {
public:
    bool open(const std::string& address) override;
};

class QtColours : public ColourDialog {
public:
    std::optional<Colour> chooseColour(Colour current) override;
};

class QtClock : public Clock {
public:
    [[nodiscard]] int minuteAndSecond() const override;
    [[nodiscard]] std::string today() const override;
    [[nodiscard]] std::string todayForPrograms() const override;
    [[nodiscard]] std::string todayForFile() const override;
};

}  // namespace ordwise
