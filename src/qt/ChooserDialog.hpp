// frmSelect: the chooser of problem types, a search box over a tree and a list.
#pragma once

#include "TopicTree.hpp"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

class QLabel;
class QPushButton;

namespace ordwise {

class ChooserDialog : public QDialog {
public:
    explicit ChooserDialog(QWidget* parent);

    // Shows frmSelect as the logic has it.
    void showChanges();

    [[nodiscard]] QLineEdit& searchBox() const { return *text_; }
    [[nodiscard]] TopicTree& tree() const { return *tree_; }
    [[nodiscard]] QListWidget& list() const { return *list_; }
    [[nodiscard]] QTabWidget& tabs() const { return *tabs_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] QWidget* buttons();
    void showList();
    bool keyPressed(QObject* watched, QKeyEvent& event);
    bool finishIfChosen();

    QLineEdit* text_;
    QTabWidget* tabs_;
    TopicTree* tree_;
    QListWidget* list_;
    QLabel* news_;
    QPushButton* ok_;
};

}  // namespace ordwise
