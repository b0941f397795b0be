// One sheet of paper on the desk: its drawing, its Next Step button, and on the first sheet the
// figure with the boxes.
#pragma once

#include "DisplayList.hpp"
#include "Windows.hpp"

#include <QComboBox>
#include <QPixmap>
#include <QWidget>

#include <array>
#include <functional>

namespace ordwise {

class BoxEdit;
class PictureButton;
class Stage;

// Picture3: the figure of a box topic with real boxes and lists on it.
class FigureView : public QWidget {
public:
    FigureView(QWidget* parent, Stage& stage);
    void showChanges(double scale);
    [[nodiscard]] BoxEdit& box(int number) const { return *boxes_[static_cast<std::size_t>(number - 1)]; }
    [[nodiscard]] QComboBox& combo(int number) const { return *combos_[static_cast<std::size_t>(number - 1)]; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::array<BoxEdit*, 6> boxes_{};
    std::array<QComboBox*, 2> combos_{};
    double scale_ = 1;
};

class SheetView : public QWidget {
public:
    // Room around the paper for its shadow, in units of the desk.
    static constexpr double shadow = 10;

    SheetView(QWidget* parent, Stage& stage, int number);

    // Shows the sheet as the logic has it. `steady` keeps Next Step from blinking.
    void showChanges(double scale, bool steady);
    [[nodiscard]] PictureButton& blinker() const { return *blinker_; }
    [[nodiscard]] FigureView* figure() const { return figure_; }
    [[nodiscard]] QComboBox* roundingList() const { return rounding_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void showBlinker(double scale, bool steady);
    void showLines();
    void repaintPart(QRectF changed);
    [[nodiscard]] const QPixmap& background();

    Stage& stage_;
    int number_;
    double scale_ = 1;
    DisplayList shown_;
    DisplayList shownMarks_;
    QString shownTitle_;
    QPixmap background_;  // the empty paper with its shadow, as long as size and title stay
    PictureButton* blinker_;
    FigureView* figure_ = nullptr;   // on the first sheet
    QComboBox* rounding_ = nullptr;  // on the first sheet
    QPointF grab_;
    bool pressed_ = false;
    bool dragged_ = false;  // a press that has moved less is a click
};

// A list as the logic has it, at its place.
void showCombo(QComboBox& widget, const ComboControl& combo, double scale);

}  // namespace ordwise
