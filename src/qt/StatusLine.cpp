#include "StatusLine.hpp"

#include "Art.hpp"

#include <QAccessible>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace ordwise {

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("StatusLine"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize StatusLine::sizeHint() const {
    return {200, rows_ * fontMetrics().lineSpacing() + 6};
}

void StatusLine::startAfresh() {
    rows_ = 1;
    makeRoom();
}

void StatusLine::showSentence(const QString& sentence, bool refusal) {
    if (sentence == sentence_ && refusal == refusal_) return;
    sentence_ = sentence;
    refusal_ = refusal;
    setToolTip(sentence);
    setAccessibleName(refusal ? QStringLiteral("Refused: ") + sentence : sentence);
    QAccessibleEvent event(this, refusal ? QAccessible::Alert : QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    makeRoom();
    update();
}

QFont StatusLine::sentenceFont() const {
    QFont face = font();
    face.setBold(refusal_);
    return face;
}

// Behind the picture of a refusal.
QRect StatusLine::room() const {
    const int picture = refusal_ ? fontMetrics().height() + 8 : 0;
    return rect().adjusted(6 + picture, 0, -6, 0);
}

void StatusLine::makeRoom() {
    constexpr int mostRows = 3;
    const QFontMetrics metrics(sentenceFont());
    const QRect wrapped = metrics.boundingRect(QRect(0, 0, room().width(), 10000), Qt::TextWordWrap, sentence_);
    const int needed = (wrapped.height() + metrics.height() - 1) / metrics.height();
    rows_ = std::clamp(needed, rows_, mostRows);
    updateGeometry();
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    if (event->oldSize().width() == width()) return;
    startAfresh();
}

void StatusLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(sentenceFont());
    const QRect place = room();
    if (refusal_) {
        const int side = fontMetrics().height() + 2;
        painter.drawPixmap(6, (height() - side) / 2, artPixmap("light3", QSizeF(side, side), devicePixelRatioF()));
    }
    painter.setPen(palette().color(QPalette::WindowText));
    const QString shown =
        rows_ == 1 ? painter.fontMetrics().elidedText(sentence_, Qt::ElideRight, place.width()) : sentence_;
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, shown);
}

}  // namespace ordwise
