// frmMain: the frame with its menus, its toolbar and its status bar around the desk.
#pragma once

#include "DeskWindows.hpp"
#include "DiskFiles.hpp"
#include "FrameMemory.hpp"
#include "QtPlatform.hpp"
#include "QtPrinter.hpp"
#include "QtSystemReport.hpp"
#include "Stage.hpp"
#include "Windows.hpp"

#include <QMainWindow>

#include <array>
#include <utility>
#include <vector>

class QAction;
class QMenu;
class QScrollArea;
class QToolBar;

namespace ordwise {

class DeskView;
class StatusLine;
class WelcomeCard;
struct MenuRow;

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
    [[nodiscard]] const DeskWindows& windows() const { return windows_; }

    void showChanges();
    // After a worksheet was laid out afresh: shows it and gives it the keyboard.
    void showFreshSheets();

protected:
    // A problem file that is dropped on the frame is opened.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takePlace();
    void addMenus();
    void giveMnemonics();
    void addMenuRows(QMenu& menu, const std::vector<MenuRow>& rows);
    void addMenuRow(QMenu& menu, const MenuRow& row);
    void addViewMenu();
    void addToolbar();
    void wearLook(std::size_t look);
    void fitToolbar();
    [[nodiscard]] QAction* commandOf(int button) const;
    void zoomBy(double factor);
    void followLine();
    void followChoice();

    Stage stage_;
    QtDialogs dialogs_;
    QtClock clock_;
    QtBrowser browser_;
    QtSystemReport systemReport_;
    QtColours colours_;
    QtFileDialogs fileDialogs_;
    DiskFiles files_;
    QtPrinter printer_;
    DeskWindows windows_{*this, stage_};
    Platform before_;
    FrameMemory memory_{QString()};
    DeskView* desk_;
    QScrollArea* scroll_;
    StatusLine* status_;
    QToolBar* toolbar_ = nullptr;
    QAction* words_ = nullptr;
    std::array<int, 3> lookWidths_{};  // of the toolbar, from the largest look to the smallest
    WelcomeCard* welcome_ = nullptr;
    std::vector<std::pair<const Control*, QAction*>> menuActions_;
    std::vector<std::pair<int, QAction*>> toolActions_;
    int sheetInView_ = 0;
    int frontInView_ = 0;
    int chosenInView_ = -1;
};

}  // namespace ordwise
