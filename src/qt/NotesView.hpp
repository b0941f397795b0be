// The slips with the notes beside the lines, on the desk to the right of the sheets.
#pragma once

#include <QWidget>

namespace ordwise {

class Stage;

class NotesView : public QWidget {
public:
    NotesView(QWidget* desk, Stage& stage);

    void showChanges(double scale);

protected:
    void paintEvent(QPaintEvent* event) override;
    // A press on a slip chooses its line.
    void mousePressEvent(QMouseEvent* event) override;

private:
    Stage& stage_;
    double scale_ = 1;
};

}  // namespace ordwise
