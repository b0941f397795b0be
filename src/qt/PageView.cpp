#include "PageView.hpp"

#include "PagePainter.hpp"
#include "PrintWindows.hpp"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace ordwise {
namespace {

constexpr int around = 14;  // room for the shadow, in pixels
constexpr double smallest = 0.2;
constexpr double largest = 4;

}  // namespace

PageView::PageView(QWidget* parent) : QScrollArea(parent), page_(new QWidget) {
    setWidget(page_);
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Dark);
    setAccessibleName(QStringLiteral("Page"));
    page_->installEventFilter(this);
}

void PageView::setFit(Fit fit) {
    fit_ = fit;
    layOut();
    if (scaleChanged) scaleChanged();
}

void PageView::setScale(double scale) {
    fit_ = Fit::None;
    scale_ = std::clamp(scale, smallest, largest);
    layOut();
    if (scaleChanged) scaleChanged();
}

void PageView::showPage() {
    layOut();
    page_->update();
}

void PageView::layOut() {
    const PaperSize& paper = frmPrintPreview.Paper;
    const QSizeF room = maximumViewportSize() - QSize(2 * around, 2 * around);
    const double bar = verticalScrollBar()->sizeHint().width();
    if (fit_ == Fit::Page) scale_ = std::min(room.width() / paper.width, room.height() / paper.height);
    if (fit_ == Fit::Width) scale_ = (room.width() - bar) / paper.width;
    scale_ = std::clamp(scale_, smallest, largest);
    page_->resize((QSizeF(paper.width, paper.height) * scale_).toSize() + QSize(2 * around, 2 * around));
}

bool PageView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == page_ && event->type() == QEvent::Paint) paintPaper();
    return QScrollArea::eventFilter(watched, event);
}

// The paper is white in a dark room, too.
void PageView::paintPaper() {
    QPainter painter(page_);
    const QRect sheet = page_->rect().adjusted(around, around, -around, -around);
    painter.fillRect(sheet.translated(3, 4), QColor(0, 0, 0, 60));
    painter.fillRect(sheet, Qt::white);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.drawRect(sheet.adjusted(-1, -1, 0, 0));
    painter.setClipRect(sheet);
    painter.translate(around, around);
    painter.scale(scale_, scale_);
    paintPage(painter, frmPrintPreview.Paper, frmPrintPreview.Picture1.drawn());
}

void PageView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    layOut();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        setScale(scale_ * std::pow(1.2, event->angleDelta().y() / 120.0));
        event->accept();
        return;
    }
    constexpr int notch = 120;
    const int delta = event->angleDelta().y();
    const QScrollBar& bar = *verticalScrollBar();
    const bool atEnd = bar.value() == (delta < 0 ? bar.maximum() : bar.minimum());
    beyond_ = atEnd ? beyond_ + delta : 0;
    if (!atEnd) return QScrollArea::wheelEvent(event);
    event->accept();
    if (std::abs(beyond_) < notch) return;
    if (turned) turned(beyond_ < 0 ? 1 : -1);
    beyond_ = 0;
}

}  // namespace ordwise
