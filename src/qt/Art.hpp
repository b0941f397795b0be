// The pictures of the program by their keys. They are drawings, so they are sharp at every size.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QRectF>
#include <QString>

#include <string_view>

class QPainter;

namespace ordwise {

// Draws the picture into the rectangle, as shapes; nothing for an unknown key or "".
void paintArt(QPainter& painter, std::string_view key, const QRectF& place);
// The picture as pixels, kept for the next time. `size` is in device-independent pixels.
[[nodiscard]] QPixmap artPixmap(std::string_view key, QSizeF size, double devicePixelRatio);
// The size at which the picture was drawn; empty for an unknown key.
[[nodiscard]] QSizeF artSize(std::string_view key);
// The picture for a button or a menu, in the sizes that they use.
[[nodiscard]] QIcon artIcon(std::string_view key);

[[nodiscard]] QString qstringOf(std::string_view text);

}  // namespace ordwise
