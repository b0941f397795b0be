// Which widget answers when the logic opens or closes one of its windows by name.
//
// A window's data are loaded before its widget is made and unloaded when it is gone, however it was
// closed; in between showChanges lets it show what the logic changed. A new window is a widget of its
// own and one row in DeskWindows.cpp.
#pragma once

#include "Platform.hpp"

#include <QPointer>

#include <map>
#include <string>
#include <string_view>

class QWidget;

namespace ordwise {

class FrameWindow;
class Stage;

// A widget that shows one of the logic's windows.
class WindowView {
public:
    WindowView() = default;
    WindowView(const WindowView&) = delete;
    WindowView& operator=(const WindowView&) = delete;
    virtual ~WindowView() = default;
    // Shows the window's data as the logic has them.
    virtual void showChanges() = 0;
};

class DeskWindows : public WindowOpener {
public:
    DeskWindows(FrameWindow& frame, Stage& stage) : frame_(frame), stage_(stage) {}

    // Opens the window; a modal one is gone again when this returns.
    void show(std::string_view name) override;
    void unload(std::string_view name) override;
    void redraw(std::string_view name) override;
    void popUp(std::string_view menu) override;

    // Every open window shows what has changed.
    void showChanges() const;
    // The open widget of that name, else null. e.g. open("frmGraph")
    [[nodiscard]] QWidget* open(std::string_view name) const;

private:
    struct Row;
    static const Row rows[];

    void runModal(const Row& row);
    void showBeside(const Row& row);

    FrameWindow& frame_;
    Stage& stage_;
    std::map<std::string, QPointer<QWidget>, std::less<>> open_;
};

}  // namespace ordwise
