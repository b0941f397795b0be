#include "SheetExport.hpp"

#include "SheetPainter.hpp"
#include "Windows.hpp"

#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace ordwise {
namespace {

constexpr double pngScale = 2;
constexpr double gap = 16;  // between sheets in one picture

int sheetCount() {
    int count = 0;
    while (count <= PaperWindow::lastSheet && frmPaper.Paper[count].Visible) ++count;
    return count;
}

void paintWhole(QPainter& painter, int number) {
    painter.save();
    paintSheet(painter, number);
    if (number == 0) paintList(painter, frmPaper.Combo3);
    if (number == 0 && frmPaper.Picture3.Visible) {
        painter.translate(frmPaper.Picture3.Left, frmPaper.Picture3.Top);
        paintFigure(painter);
        paintBoxes(painter);
    }
    painter.restore();
}

QSizeF sizeOfAll() {
    const Sheet& first = frmPaper.Paper[0];
    const int count = sheetCount();
    return {first.Width, paperHeight() * count + gap * (count - 1)};
}

void paintAll(QPainter& painter) {
    for (int number = 0; number < sheetCount(); ++number) {
        paintWhole(painter, number);
        painter.translate(0, paperHeight() + gap);
    }
}

bool writePng(const QString& file) {
    QImage image((sizeOfAll() * pngScale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pngScale, pngScale);
    paintAll(painter);
    painter.end();
    return image.save(file, "PNG");
}

bool writeSvg(const QString& file) {
    QSvgGenerator svg;
    svg.setFileName(file);
    svg.setSize(sizeOfAll().toSize());
    svg.setViewBox(QRectF(QPointF(), sizeOfAll()));
    svg.setTitle(QString::fromStdString(frmPaper.Paper[0].Label6.Text));
    QPainter painter;
    if (!painter.begin(&svg)) return false;
    paintAll(painter);
    return painter.end();
}

bool writePdf(const QString& file) {
    QPdfWriter pdf(file);
    const Sheet& first = frmPaper.Paper[0];
    pdf.setPageSize(QPageSize(QSizeF(first.Width, paperHeight()), QPageSize::Point));
    pdf.setPageMargins(QMarginsF());
    pdf.setResolution(288);
    pdf.setTitle(QString::fromStdString(first.Label6.Text));
    QPainter painter;
    if (!painter.begin(&pdf)) return false;
    painter.scale(288.0 / 72, 288.0 / 72);
    for (int number = 0; number < sheetCount(); ++number) {
        if (number > 0 && !pdf.newPage()) return false;
        paintWhole(painter, number);
    }
    return painter.end();
}

}  // namespace

bool exportSheets(const QString& file, QString& reason) {
    const QString ending = QFileInfo(file).suffix().toLower();
    bool written = false;
    if (ending == QStringLiteral("png")) {
        written = writePng(file);
    } else if (ending == QStringLiteral("svg")) {
        written = writeSvg(file);
    } else if (ending == QStringLiteral("pdf")) {
        written = writePdf(file);
    } else {
        reason = QStringLiteral("'%1' must end in .png, .svg or .pdf.").arg(file);
        return false;
    }
    if (!written) reason = QStringLiteral("'%1' could not be written.").arg(file);
    return written;
}

}  // namespace ordwise
