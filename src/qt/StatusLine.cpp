#include "StatusLine.hpp"

#include "Art.hpp"

#include <QAccessible>
#include <QPainter>

namespace ordwise {

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("StatusLine"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize StatusLine::sizeHint() const {
    return {200, fontMetrics().height() + 6};
}

void StatusLine::showSentence(const QString& sentence, bool refusal) {
    if (sentence == sentence_ && refusal == refusal_) return;
    sentence_ = sentence;
    refusal_ = refusal;
    setToolTip(sentence);
    setAccessibleName(refusal ? QStringLiteral("Refused: ") + sentence : sentence);
    QAccessibleEvent event(this, refusal ? QAccessible::Alert : QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    update();
}

void StatusLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect room = rect().adjusted(6, 0, -6, 0);
    QFont sentenceFont = font();
    sentenceFont.setBold(refusal_);
    painter.setFont(sentenceFont);
    if (refusal_) {
        const int side = room.height() - 4;
        painter.drawPixmap(room.left(), room.top() + 2, artPixmap("light3", QSizeF(side, side), devicePixelRatioF()));
        room.adjust(side + 6, 0, 0, 0);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    const QFontMetrics metrics(sentenceFont);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     metrics.elidedText(sentence_, Qt::ElideRight, room.width()));
}

}  // namespace ordwise
