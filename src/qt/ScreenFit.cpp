#include "ScreenFit.hpp"

#include <QApplication>
#include <QScreen>
#include <QStyle>

namespace ordwise {
namespace {

// The frame of a window is known only once it has one; this is as much as usual ones take.
constexpr QSize usualFrame(12, 36);

constexpr QSize leastRoom(160, 72);

}  // namespace

RoomyScroll::RoomyScroll(QWidget* content, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) ensureWidgetVisible(now);
    });
}

QSize RoomyScroll::sizeHint() const {
    QSize hint = widget()->sizeHint();
    if (widget()->hasHeightForWidth()) hint.setHeight(widget()->heightForWidth(hint.width()));
    return hint;
}

QSize RoomyScroll::minimumSizeHint() const {
    return leastRoom.boundedTo(sizeHint());
}

QSize roomOnScreen(const QWidget& window) {
    const QWidget* owner = window.parentWidget();
    return (owner == nullptr ? window : *owner).screen()->availableSize() - usualFrame;
}

void fitToScreen(QWidget& window, QSize wanted) {
    const QSize room = roomOnScreen(window);
    const bool scrolls = wanted.height() > room.height();
    const int bar = scrolls ? window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window) + 4 : 0;
    window.resize((wanted + QSize(bar, 0)).boundedTo(room));
}

}  // namespace ordwise
