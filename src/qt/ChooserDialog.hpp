// frmSelect: the chooser of problem types, a search box over a tree and an alphabetical list.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTreeWidget>

namespace ordwise {

class ChooserDialog : public QDialog {
public:
    explicit ChooserDialog(QWidget* parent);

    // Shows frmSelect as the logic has it.
    void showChanges();

    [[nodiscard]] QLineEdit& searchBox() const { return *text_; }
    [[nodiscard]] QTreeWidget& tree() const { return *tree_; }
    [[nodiscard]] QListWidget& list() const { return *list_; }
    [[nodiscard]] QTabWidget& tabs() const { return *tabs_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildTree();
    void revealInTree(const QString& name);
    bool keyPressed(QObject* watched, QKeyEvent& event);
    bool finishIfChosen();

    QLineEdit* text_;
    QTabWidget* tabs_;
    QTreeWidget* tree_;
    QListWidget* list_;
};

}  // namespace ordwise
