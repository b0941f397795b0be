#include "Art.hpp"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <map>
#include <memory>

namespace ordwise {
namespace {

// Null for a key without a picture.
QSvgRenderer* rendererOf(std::string_view key) {
    static std::map<std::string, std::unique_ptr<QSvgRenderer>, std::less<>> renderers;
    const auto known = renderers.find(key);
    if (known != renderers.end()) return known->second.get();
    const QString path = QStringLiteral(":/art/") + qstringOf(key) + QStringLiteral(".svg");
    auto renderer = QFile::exists(path) ? std::make_unique<QSvgRenderer>(path) : nullptr;
    return renderers.emplace(key, std::move(renderer)).first->second.get();
}

}  // namespace

QString qstringOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void paintArt(QPainter& painter, std::string_view key, const QRectF& place) {
    if (QSvgRenderer* renderer = rendererOf(key)) renderer->render(&painter, place);
}

QPixmap artPixmap(std::string_view key, QSizeF size, double devicePixelRatio) {
    // The desk of a large screen alone is past the limit that Qt starts with.
    constexpr int cacheKilobytes = 128 * 1024;
    if (QPixmapCache::cacheLimit() < cacheKilobytes) QPixmapCache::setCacheLimit(cacheKilobytes);
    const QSize pixels = (size * devicePixelRatio).toSize();
    const QString name = QStringLiteral("%1 %2x%3").arg(qstringOf(key)).arg(pixels.width()).arg(pixels.height());
    QPixmap pixmap;
    if (!QPixmapCache::find(name, &pixmap)) {
        pixmap = QPixmap(pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintArt(painter, key, QRectF(QPointF(), QSizeF(pixels)));
        painter.end();
        QPixmapCache::insert(name, pixmap);
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QSizeF artSize(std::string_view key) {
    const QSvgRenderer* renderer = rendererOf(key);
    return renderer == nullptr ? QSizeF() : renderer->viewBoxF().size();
}

QIcon artIcon(std::string_view key) {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64}) icon.addPixmap(artPixmap(key, QSizeF(side, side), 1));
    return icon;
}

}  // namespace ordwise
