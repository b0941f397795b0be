// frmPrintSetup: what of the solved problem is printed, under which heading and where.
#pragma once

#include "DeskWindows.hpp"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;

namespace ordwise {

struct Control;
class Stage;
class StatusLine;

class PrintSetupDialog : public QDialog, public WindowView {
public:
    PrintSetupDialog(QWidget* parent, Stage& stage);

    void showChanges() override;
    void reject() override;

private:
    QCheckBox& addCheck(Control& control, const char* name, const QString& caption, void (*click)());

    Stage& stage_;
    QCheckBox* graph_;
    QCheckBox* problem_;
    QCheckBox* explanation_;
    QLabel* device_;
    QPushButton* ok_;
    QPushButton* preview_;
    StatusLine* news_;  // why nothing was printed
};

}  // namespace ordwise
