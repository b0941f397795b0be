// frmExplain: what the assistant says, in a bubble on the desk beside the end of the line. It goes
// when it loses the focus, or with any key.
#pragma once

#include <QWidget>

namespace ordwise {

class Stage;

class ExplanationPopup : public QWidget {
public:
    ExplanationPopup(QWidget* desk, Stage& stage);

    void showChanges(double scale);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void close();

    Stage& stage_;
    double scale_ = 1;
};

}  // namespace ordwise
