#include "PictureFile.hpp"

#include "Art.hpp"
#include "DiskFiles.hpp"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace ordwise {
namespace {

constexpr double gap = 16;  // between pages in one picture

QSizeF sizeOfAll(const PictureSource& source) {
    return {source.pageSize.width(), source.pageSize.height() * source.pages + gap * (source.pages - 1)};
}

void paintAll(const PictureSource& source, QPainter& painter) {
    for (int page = 0; page < source.pages; ++page) {
        painter.save();
        source.paint(painter, page);
        painter.restore();
        painter.translate(0, source.pageSize.height() + gap);
    }
}

QByteArray pngOf(const PictureSource& source) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    imageOf(source).save(&bytes, "PNG");
    return bytes.data();
}

QByteArray svgOf(const PictureSource& source) {
    QBuffer bytes;
    QSvgGenerator svg;
    svg.setOutputDevice(&bytes);
    svg.setSize(sizeOfAll(source).toSize());
    svg.setViewBox(QRectF(QPointF(), sizeOfAll(source)));
    svg.setTitle(source.title);
    QPainter painter(&svg);
    paintAll(source, painter);
    painter.end();
    return bytes.data();
}

QByteArray pdfOf(const PictureSource& source) {
    constexpr int resolution = 288;
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&bytes);
    pdf.setPageSize(QPageSize(source.pageSize, QPageSize::Point));
    pdf.setPageMargins(QMarginsF());
    pdf.setResolution(resolution);
    pdf.setTitle(source.title);
    QPainter painter(&pdf);
    painter.scale(resolution / 72.0, resolution / 72.0);
    for (int page = 0; page < source.pages; ++page) {
        if (page > 0) pdf.newPage();
        painter.save();
        source.paint(painter, page);
        painter.restore();
    }
    painter.end();
    return bytes.data();
}

}  // namespace

QImage imageOf(const PictureSource& source, double scale) {
    QImage image((sizeOfAll(source) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintAll(source, painter);
    return image;
}

QByteArray pictureBytes(const PictureSource& source, const QString& ending) {
    if (ending == QStringLiteral("png")) return pngOf(source);
    if (ending == QStringLiteral("svg")) return svgOf(source);
    if (ending == QStringLiteral("pdf")) return pdfOf(source);
    return {};
}

QString writePicture(const PictureSource& source, const QString& file) {
    const QByteArray bytes = pictureBytes(source, QFileInfo(file).suffix().toLower());
    if (bytes.isEmpty()) return QStringLiteral("'%1' must end in .png, .svg or .pdf.").arg(file);
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return qstringOf(DiskFiles().write(QFile::encodeName(file).toStdString(), content));
}

}  // namespace ordwise
