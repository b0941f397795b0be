// frmLogo: a card in the middle of the frame while the program is new on the screen. It takes no key
// and no click, goes at the first of either, and nothing waits for it.
#pragma once

#include "DeskWindows.hpp"

#include <QTimer>
#include <QWidget>

namespace ordwise {

class Stage;

class SplashCard : public QWidget, public WindowView {
public:
    SplashCard(QWidget* frame, Stage& stage);

    void showChanges() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void centre();

    Stage& stage_;
    QTimer logotime_;
};

}  // namespace ordwise
