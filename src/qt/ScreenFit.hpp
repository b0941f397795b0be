// Windows on small screens: none is larger than its screen, and what then has no room scrolls. The
// buttons at the foot of a window stay in view.
#pragma once

#include <QScrollArea>

namespace ordwise {

// A part of a window that asks for all the room of its content, and scrolls where it gets less. What
// has the keyboard is scrolled into view.
class RoomyScroll : public QScrollArea {
public:
    // Takes the content over.
    RoomyScroll(QWidget* content, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

// What a window may take of the screen that it opens on, with the frame around it left out.
[[nodiscard]] QSize roomOnScreen(const QWidget& window);
// Gives the window its size before it opens.
void fitToScreen(QWidget& window, QSize wanted);

}  // namespace ordwise
