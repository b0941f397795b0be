// frmAbout: the program's name and version, its licence, and on request the notices of what is compiled
// in, or what there is to tell of this machine.
#pragma once

#include "DeskWindows.hpp"

#include <QDialog>

class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;

namespace ordwise {

class Stage;

class AboutDialog : public QDialog, public WindowView {
public:
    AboutDialog(QWidget* parent, Stage& stage);

    void showChanges() override;

private:
    void addHead(QVBoxLayout& layout);
    void addButtons(QVBoxLayout& layout);

    Stage& stage_;
    QWidget* scroll_ = nullptr;  // around all that is told
    QPlainTextEdit* facts_;
    bool noticesShown_ = false;  // in the place of the system's information
    QPushButton* copy_ = nullptr;
};

}  // namespace ordwise
