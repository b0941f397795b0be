// frmPracticeTest: the topics to choose from on tabs at the left, the outline of the test always in
// view at the right, and below it how the test is headed, answered and varied.
#pragma once

#include "DeskWindows.hpp"
#include "PracticeWindow.hpp"

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;

namespace ordwise {

class Stage;
class TopicTree;

class PracticeTestDialog : public QDialog, public WindowView {
public:
    PracticeTestDialog(QWidget* parent, Stage& stage);

    void showChanges() override;
    void reject() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A line of the outline.
    struct Section {
        QLineEdit* topic;
        QComboBox* count;
        QCheckBox* complex;
        QPushButton* clear;
    };

    [[nodiscard]] QWidget* topics();
    [[nodiscard]] QWidget* outline();
    [[nodiscard]] QWidget* variants();
    void addSection(int number, QGridLayout& grid);
    void fillList();
    void connectTopics();
    [[nodiscard]] bool keyInTopics(QObject* watched, int key);
    void showOutline();

    Stage& stage_;
    QLineEdit* search_;
    QTabWidget* tabs_;
    TopicTree* tree_;
    QListWidget* list_;
    QLabel* news_;
    std::array<Section, PracticeTestWindow::lastSection + 1> sections_{};
    QLabel* summary_;
    bool boxClicked_ = false;  // the click on the list was one on the check box
};

}  // namespace ordwise
