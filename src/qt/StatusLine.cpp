#include "StatusLine.hpp"

#include "Art.hpp"

#include <QAccessible>
#include <QPainter>
#include <QResizeEvent>
#include <QTextOption>

#include <algorithm>

namespace ordwise {

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("StatusLine"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAttribute(Qt::WA_OpaquePaintEvent);  // else the bar and the frame below are painted at every key, too
}

QSize StatusLine::sizeHint() const {
    return {200, rows_ * fontMetrics().lineSpacing() + 6};
}

void StatusLine::startAfresh() {
    makeRoom(1);
}

void StatusLine::showSentence(const QString& sentence, bool refusal) {
    if (sentence == sentence_ && refusal == refusal_) return;
    sentence_ = sentence;
    refusal_ = refusal;
    setToolTip(sentence);
    setAccessibleName(refusal ? QStringLiteral("Refused: ") + sentence : sentence);
    QAccessibleEvent event(this, refusal ? QAccessible::Alert : QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
    makeRoom(rows_);
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

// Laid out once: while a problem is typed, the same two sentences take turns at every key.
const StatusLine::LaidOut& StatusLine::laidOut() {
    const QString key = (refusal_ ? QLatin1Char('!') : QLatin1Char(' ')) + sentence_;
    if (const LaidOut* kept = laidOut_.object(key)) return *kept;
    const int width = room().width();
    const QFontMetrics metrics(sentenceFont());
    const int height = metrics.boundingRect(QRect(0, 0, width, 10000), Qt::TextWordWrap, sentence_).height();
    auto* fresh = new LaidOut;
    fresh->rows = (height + metrics.height() - 1) / metrics.height();
    const auto layOut = [&](QStaticText& into, const QString& text) {
        into.setTextFormat(Qt::PlainText);
        into.setTextOption(QTextOption(Qt::AlignLeft));
        into.setTextWidth(width);
        into.setText(text);
        into.prepare({}, sentenceFont());
    };
    layOut(fresh->whole, sentence_);
    layOut(fresh->onOneRow, metrics.elidedText(sentence_, Qt::ElideRight, width));
    laidOut_.insert(key, fresh);
    return *fresh;
}

// The whole frame is laid out anew when the line changes its height, so only then.
void StatusLine::makeRoom(int atLeast) {
    constexpr int mostRows = 3;
    const int rows = std::clamp(laidOut().rows, atLeast, mostRows);
    if (rows == rows_) return;
    rows_ = rows;
    updateGeometry();
}

void StatusLine::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) forgetLayout();
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    if (event->oldSize().width() != width()) forgetLayout();
}

void StatusLine::forgetLayout() {
    laidOut_.clear();
    startAfresh();
}

void StatusLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setFont(sentenceFont());
    if (refusal_) {
        const int side = fontMetrics().height() + 2;
        painter.drawPixmap(6, (height() - side) / 2, artPixmap("light3", QSizeF(side, side), devicePixelRatioF()));
    }
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect place = room();
    painter.setClipRect(place);
    const QStaticText& shown = rows_ == 1 ? laidOut().onOneRow : laidOut().whole;
    painter.drawStaticText(QPointF(place.left(), std::max(0.0, (place.height() - shown.size().height()) / 2)), shown);
}

}  // namespace ordwise
