#include "ExplanationPopup.hpp"

#include "Art.hpp"
#include "DisplayListPainter.hpp"
#include "ExplainWindow.hpp"
#include "KeyText.hpp"
#include "Stage.hpp"
#include "WindowRoutines.hpp"
#include "Workspace.hpp"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ordwise {
namespace {

// Around the text, in units of the desk. The head holds the caption; the window's height has room
// for it.
constexpr double side = 16;
constexpr double head = 34;

// The head of the assistant as a medal. All figures have theirs at the same place of the picture.
void paintHead(QPainter& painter, const QRectF& place) {
    constexpr double middleX = 55;
    constexpr double middleY = 58;
    constexpr double across = 66;
    QPainterPath medal;
    medal.addEllipse(place);
    painter.fillPath(medal, QColor(0xff, 0xff, 0xff));
    painter.save();
    painter.setClipPath(medal);
    const double scale = place.width() / across;
    const QPointF corner = place.center() - QPointF(middleX, middleY) * scale;
    paintArt(painter, ws.AssistantKey,
             QRectF(corner, QSizeF(PaperWindow::fullWizardWidth, PaperWindow::fullWizardHeight) * scale));
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(place);
}

}  // namespace

ExplanationPopup::ExplanationPopup(QWidget* desk, Stage& stage) : QWidget(desk), stage_(stage) {
    setObjectName(QStringLiteral("frmExplain"));
    setFocusPolicy(Qt::StrongFocus);
    hide();
}

void ExplanationPopup::showChanges(double scale) {
    scale_ = scale;
    if (!frmExplain.Loaded) {
        const bool hadFocus = hasFocus();
        hide();
        if (hadFocus) parentWidget()->setFocus(Qt::OtherFocusReason);
        return;
    }
    const QSize size = (QSizeF(frmExplain.Width + 2 * side, frmExplain.Height) * scale).toSize();
    QPoint place = (QPointF(frmExplain.Left, frmExplain.Top) * scale).toPoint();
    // Kept within the part of the desk that can be seen.
    const QRect seen = parentWidget()->visibleRegion().boundingRect();
    if (!seen.isEmpty()) {
        place.setX(std::max(seen.left(), std::min(place.x(), seen.right() - size.width() - 4)));
        place.setY(std::max(seen.top(), std::min(place.y(), seen.bottom() - size.height() - 4)));
    }
    setGeometry(QRect(place, size));
    setAccessibleName(qstringOf(frmExplain.Caption));
    setAccessibleDescription(qstringOf(frmExplain.Spoken));
    update();
    if (isVisible()) return;
    show();
    setFocus(Qt::OtherFocusReason);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void ExplanationPopup::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale_, scale_);
    const QRectF frame(0.75, 0.75, width() / scale_ - 1.5, height() / scale_ - 1.5);
    painter.setPen(QPen(QColor(0x8a, 0x6d, 0x2f), 1.5));
    painter.setBrush(QColor(0xff, 0xfb, 0xe4));
    painter.drawRoundedRect(frame, 10, 10);
    paintHead(painter, QRectF(12, 5, 25, 25));
    paintText(painter, frmExplain.Caption, 44, 8, Face::Explanation, 11, Colour{0x6b, 0x4e, 0x12});
    painter.setPen(QPen(QColor(0xe0, 0xcf, 0x9c), 1));
    painter.drawLine(QPointF(side, head), QPointF(frame.right() - side, head));
    painter.translate(side, head + 4);
    replay(frmExplain.drawn(), painter);
}

void ExplanationPopup::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && frmExplain.Loaded) close();
}

// Keys that choose another line or fetch another sheet.
bool isForDesk(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

// Esc and Enter only close; a typed key goes on to the paper, where it was meant for, and so do the
// keys of the desk.
void ExplanationPopup::keyPressEvent(QKeyEvent* event) {
    const bool modifierAlone = event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control ||
                               event->key() == Qt::Key_Alt || event->key() == Qt::Key_Meta;
    if (modifierAlone) return;
    const bool typed = event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter && !keyTextOf(*event).empty();
    close();
    if (typed || isForDesk(event->key())) QCoreApplication::sendEvent(parentWidget(), event);
}

void ExplanationPopup::close() {
    stage_.perform([] { unloadWindow("frmExplain"); });
}

}  // namespace ordwise
