// A control that is a picture and can be pressed: the light, the assistant, its signal, Next Step.
#pragma once

#include "Windows.hpp"

#include <QAbstractButton>

#include <string>

namespace ordwise {

class PictureButton : public QAbstractButton {
public:
    explicit PictureButton(QWidget* parent);

    // Takes place, picture, caption, tool tip and visibility of the control. `spokenName` is what a
    // screen reader calls it.
    void showControl(const Control& control, double scale, const QString& spokenName);

    [[nodiscard]] const std::string& imageKey() const { return key_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void paintCaption(QPainter& painter);

    std::string key_;
};

// From the units of the desk to the pixels of the screen.
[[nodiscard]] QRect placeOf(const Control& control, double scale);

}  // namespace ordwise
