// Pictures as files and for the clipboard: whatever can be painted becomes PNG, SVG or PDF.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;

namespace ordwise {

// What is painted: pages of one size in pixels of an ordinary screen, numbered from 0.
struct PictureSource {
    QString title;
    QSizeF pageSize;
    int pages = 1;
    std::function<void(QPainter& painter, int page)> paint;
};

// All pages on white, one below the other; `scale` pixels for each of the source.
[[nodiscard]] QImage imageOf(const PictureSource& source, double scale = 2);

// The bytes of a file whose name ends in ".png", ".svg" or ".pdf". A PDF has its pages one by one, a
// picture has them one below the other. Empty for any other ending.
[[nodiscard]] QByteArray pictureBytes(const PictureSource& source, const QString& ending);

// Writes the file in the form that its name asks for. Empty when it went well, otherwise one sentence
// that says why not; a file that was there stays whole.
[[nodiscard]] QString writePicture(const PictureSource& source, const QString& file);

}  // namespace ordwise
