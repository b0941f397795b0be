// frmPrintPreview: the pages of a practice test or a solution, one at a time, as the paper gets them.
#pragma once

#include "DeskWindows.hpp"
#include "PageView.hpp"

#include <QDialog>

class QComboBox;
class QLabel;
class QSpinBox;
class QToolButton;

namespace ordwise {

class Stage;
class StatusLine;

class PrintPreviewDialog : public QDialog, public WindowView {
public:
    PrintPreviewDialog(QWidget* parent, Stage& stage);

    void showChanges() override;
    void reject() override;

    [[nodiscard]] PageView& page() const { return *page_; }

private:
    void addTools();
    void addShortcuts();
    void addButtons();
    QToolButton& addTurn(const char* name, const QString& caption, int icon, void (*turn)());
    void chooseZoom(int entry);
    void zoomBy(double factor);
    void showZoom();

    Stage& stage_;
    PageView* page_;
    QToolButton* back_;
    QToolButton* forward_;
    QSpinBox* number_;
    QLabel* count_;
    QComboBox* zoom_;
    QLabel* device_;
    StatusLine* news_;
    int shownPage_ = -1;
};

}  // namespace ordwise
