// frmShortcuts: the list of all keys, in a window beside the desk.
#pragma once

#include "DeskWindows.hpp"

#include <QDialog>

namespace ordwise {

class Stage;

class ShortcutsDialog : public QDialog, public WindowView {
public:
    ShortcutsDialog(QWidget* frame, Stage& stage);

    void showChanges() override {}

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Stage& stage_;
};

}  // namespace ordwise
