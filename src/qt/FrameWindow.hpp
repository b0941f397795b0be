// frmMain: the frame with its menus, its toolbar and its status bar around the desk.
#pragma once

#include "DiskFiles.hpp"
#include "QtPlatform.hpp"
#include "Stage.hpp"
#include "Windows.hpp"

#include <QMainWindow>

#include <utility>
#include <vector>

class QAction;
class QScrollArea;
class QToolBar;

namespace ordwise {

class ChooserDialog;
class DeskView;
class StatusLine;

class FrameWindow : public QMainWindow {
public:
    // Makes itself the platform of the process for as long as it lives.
    FrameWindow();
    ~FrameWindow() override;

    [[nodiscard]] DeskView& desk() const { return *desk_; }
    [[nodiscard]] StatusLine& statusLine() const { return *status_; }
    // The action of a menu command, e.g. actionOf(frmMain.mnuSolve); null for one that is no command.
    [[nodiscard]] QAction* actionOf(const Control& menu) const;
    [[nodiscard]] QAction* toolbarAction(int button) const;
    // The chooser while it is open, else null.
    [[nodiscard]] ChooserDialog* chooser() const { return chooser_; }

    void showChanges();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Opens and closes windows by the names that the logic gives them.
    class Windows : public WindowOpener {
    public:
        explicit Windows(FrameWindow& frame) : frame_(frame) {}
        void show(std::string_view name) override;
        void unload(std::string_view name) override;

    private:
        FrameWindow& frame_;
    };

    void addMenus();
    void addViewMenu();
    void addToolbar();
    void zoomBy(double factor);
    void showAction(QAction& action, bool enabled, const QString& tip, bool landed);
    void runChooser();
    void followLine();

    Stage stage_;
    QtDialogs dialogs_;
    QtClock clock_;
    QtFileDialogs fileDialogs_;
    DiskFiles files_;
    Windows windows_{*this};
    Platform before_;
    DeskView* desk_;
    QScrollArea* scroll_;
    StatusLine* status_;
    QToolBar* toolbar_ = nullptr;
    ChooserDialog* chooser_ = nullptr;
    std::vector<std::pair<const Control*, QAction*>> menuActions_;
    std::vector<std::pair<int, QAction*>> toolActions_;
    int sheetInView_ = 0;
};

}  // namespace ordwise
