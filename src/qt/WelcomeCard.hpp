// What lies on the desk before the first sheet: the ways to begin, so that nobody has to look for them
// in the menus.
#pragma once

#include <QWidget>

class QAction;

namespace ordwise {

class WelcomeCard : public QWidget {
public:
    // Lies in the middle of `desk` and gives the commands of these actions, which have to outlive it.
    WelcomeCard(QWidget* desk, QAction* newProblem, QAction* load, QAction* practiceTest, QAction* help);

    // There as long as no worksheet is.
    void showChanges();
    // The first way has the keyboard.
    void takeKeys();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addWay(QAction* action, const char* image, const char* description);
    void centre();
};

}  // namespace ordwise
