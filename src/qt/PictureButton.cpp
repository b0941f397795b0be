#include "PictureButton.hpp"

#include "Art.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace ordwise {

QRect placeOf(const Control& control, double scale) {
    return QRectF(control.Left * scale, control.Top * scale, control.Width * scale, control.Height * scale).toRect();
}

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void PictureButton::showControl(const Control& control, double scale, const QString& spokenName) {
    setGeometry(placeOf(control, scale));
    setText(qstringOf(control.Text));
    setToolTip(qstringOf(control.ToolTip));
    setAccessibleName(spokenName);
    setAccessibleDescription(toolTip());
    setVisible(control.Visible);
    if (key_ != control.Image) {
        key_ = control.Image;
        update();
    }
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!text().isEmpty()) {
        paintCaption(painter);
    } else {
        painter.drawPixmap(0, 0, artPixmap(key_, size(), devicePixelRatioF()));
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(QColor(0x1f, 0x5f, 0xc0), 2, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
}

// A captioned button: the picture at its left, the words beside it.
void PictureButton::paintCaption(QPainter& painter) {
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(QColor(0x2d, 0x62, 0x3a), 1.2));
    painter.setBrush(isDown() ? QColor(0xb8, 0xdf, 0xbd) : QColor(0xdf, 0xf3, 0xe0));
    painter.drawRoundedRect(frame, frame.height() / 3, frame.height() / 3);
    const double side = frame.height() * 0.7;
    const QRectF picture(frame.left() + side * 0.3, frame.center().y() - side / 2, side, side);
    paintArt(painter, key_, picture);
    QFont captionFont = font();
    captionFont.setPixelSize(std::max(7, static_cast<int>(frame.height() * 0.46)));
    captionFont.setBold(true);
    painter.setFont(captionFont);
    painter.setPen(QColor(0x1d, 0x40, 0x26));
    painter.drawText(frame.adjusted(side * 1.4, 0, -2, 0), Qt::AlignCenter, text());
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else if (event->key() == Qt::Key_Space) {
        QAbstractButton::keyPressEvent(event);
    } else {
        event->ignore();  // typing goes on to the paper
    }
}

}  // namespace ordwise
