#include "HelpBrowser.hpp"

#include "Art.hpp"
#include "DisplayListPainter.hpp"
#include "DrawingSurface.hpp"
#include "basFPrint.hpp"

#include <QBitmap>
#include <QEvent>
#include <QFile>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace ordwise {
namespace {

// A line as it stands on the sheet, from the margin on; it breaks where a page of the usual width ends.
SurfaceOffsets helpOffsets() {
    SurfaceOffsets offsets = worksheetOffsets;
    offsets.indentBlanks = 0;
    offsets.breakAt = 720;
    offsets.breakX = 24;
    return offsets;
}

// A line of the sheet is this much of its size beside letters of the usual points.
constexpr double lineScale = 0.78;
constexpr double usualPoints = 10;

QString colourName(const QPalette& palette, QPalette::ColorRole role) {
    return palette.color(role).name();
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("HelpPage"));
    setAccessibleName(QStringLiteral("Help page"));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(16);
    applyStyle();
}

// Worked examples stand on paper, which stays light on a dark desktop; all else follows the palette.
void HelpBrowser::applyStyle() {
    const QString style =
        QStringLiteral(
            "h1 { color: %1; } h2 { color: %1; margin-top: 20px; } a { color: %2; }"
            "table { margin-top: 6px; margin-bottom: 6px; } li { margin-bottom: 3px; } code { font-family: monospace; }"
            "table.steps { background-color: #fffdf3; margin-top: 6px; margin-bottom: 10px; }"
            "p.line { margin-left: 14px; margin-top: 12px; margin-bottom: 3px; color: #000000; }"
            "p.note { margin-left: 44px; margin-top: 1px; margin-bottom: 4px; color: #1c3f94; }")
            .arg(colourName(palette(), QPalette::Text), colourName(palette(), QPalette::Link));
    document()->setDefaultStyleSheet(style);
}

void HelpBrowser::setZoom(double zoom) {
    zoom_ = std::clamp(zoom, 0.6, 3.0);
    const QScrollBar* bar = verticalScrollBar();
    const double place = bar->maximum() == 0 ? 0 : static_cast<double>(bar->value()) / bar->maximum();
    QFont letters = parentWidget()->font();
    letters.setPointSizeF(QFontInfo(letters).pointSizeF() * zoom_);
    setFont(letters);
    reload();
    verticalScrollBar()->setValue(static_cast<int>(place * verticalScrollBar()->maximum()));
}

QString HelpBrowser::pageText(const QString& file) {
    QFile page(QStringLiteral(":/help/") + file);
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

double HelpBrowser::letterScale() const {
    return QFontInfo(font()).pointSizeF() / usualPoints;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::HtmlResource) return pageText(name.fileName());
    if (name.scheme() == QStringLiteral("line")) return pictureOfLine(name.path(QUrl::FullyDecoded).toStdString());
    if (name.scheme() == QStringLiteral("art")) return pictureOfArt(name.path().toStdString(), name.query().toInt());
    return QImage(QStringLiteral(":/help/") + name.fileName());
}

QImage HelpBrowser::pictureOfArt(std::string_view key, int height) const {
    const QSizeF size = artSize(key) * (height * letterScale() / std::max(artSize(key).height(), 1.0));
    return artPixmap(key, size, devicePixelRatioF()).toImage();
}

QImage HelpBrowser::pictureOfLine(std::string_view markup) const {
    DrawingSurface surface;
    const SurfaceOffsets offsets = helpOffsets();
    MathLineRenderer renderer(surface, offsets, black, [&surface](bool) -> DrawingSurface& { return surface; });
    renderer.line(markup);
    QRectF extent;
    for (const DrawOperation& operation : surface.drawn()) extent |= extentOf(operation);
    const double pixels = lineScale * letterScale() * devicePixelRatioF();
    QImage image((extent.size() * pixels).toSize() + QSize(1, 1), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels, pixels);
    painter.translate(-extent.topLeft());
    replay(surface.drawn(), painter);
    painter.end();
    image = image.copy(QRegion(QBitmap::fromImage(image.createAlphaMask())).boundingRect());
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

void HelpBrowser::printOn(QPagedPaintDevice& device) {
    const int place = verticalScrollBar()->value();
    setPalette(QPalette(Qt::lightGray));  // reloads the page where that changes anything
    print(&device);
    setPalette(QPalette());
    verticalScrollBar()->setValue(place);
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    applyStyle();
    reload();
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    setZoom(zoom_ * std::pow(1.1, event->angleDelta().y() / 120.0));
    event->accept();
}

}  // namespace ordwise
