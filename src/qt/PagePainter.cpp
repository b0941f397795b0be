#include "PagePainter.hpp"

#include "Art.hpp"
#include "DisplayListPainter.hpp"
#include "PdfProperties.hpp"

#include <QBuffer>
#include <QLocale>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace ordwise {
namespace {

constexpr double unitsOfInch = 96;
constexpr double pointsOfInch = 72;

// All others write on A4.
constexpr QLocale::Territory letterTerritories[] = {
    QLocale::Belize,      QLocale::Canada,     QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica,
    QLocale::ElSalvador,  QLocale::Guatemala,  QLocale::Mexico,       QLocale::Nicaragua, QLocale::Panama,
    QLocale::Philippines, QLocale::PuertoRico, QLocale::UnitedStates, QLocale::Venezuela};

QPageSize pageSizeOf(const PaperSize& paper) {
    const double points = pointsOfInch / unitsOfInch;
    return QPageSize(QSizeF(paper.width, paper.height) * points, QPageSize::Point);
}

void paintReadablePage(QPainter& painter, const PaperSize& paper, const PrintedPage& page) {
    painter.save();
    painter.translate(paper.margin, paper.margin);
    replayReadable(page.drawing, page.texts, painter);
    painter.restore();
}

}  // namespace

void paintPage(QPainter& painter, const PaperSize& paper, const DisplayList& page) {
    painter.save();
    painter.translate(paper.margin, paper.margin);
    replay(page, painter);
    painter.restore();
}

bool paintPages(QPagedPaintDevice& device, const std::vector<PrintJob>& jobs) {
    QPageLayout layout = device.pageLayout();
    layout.setMode(QPageLayout::FullPageMode);
    QPainter painter;
    if (!device.setPageLayout(layout) || !painter.begin(&device)) return false;
    painter.scale(device.logicalDpiX() / unitsOfInch, device.logicalDpiY() / unitsOfInch);
    bool fresh = true;
    for (const PrintJob& job : jobs) {
        for (const PrintedPage& page : job.pages) {
            if (!fresh && !device.newPage()) return false;
            fresh = false;
            if (painter.paintEngine()->type() == QPaintEngine::Pdf) {
                paintReadablePage(painter, job.paper, page);
            } else {
                paintPage(painter, job.paper, page.drawing);
            }
        }
    }
    return painter.end();
}

QByteArray pagesAsPdf(const std::vector<PrintJob>& jobs) {
    constexpr int resolution = 1200;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setResolution(resolution);
    pdf.setCreator(QStringLiteral("Ordwise"));
    if (!jobs.empty()) {
        pdf.setTitle(qstringOf(jobs.front().title));
        pdf.setPageSize(pageSizeOf(jobs.front().paper));
    }
    (void)paintPages(pdf, jobs);  // memory takes everything
    buffer.close();
    return withProperties(bytes, "Ordwise", "en");
}

PaperSize paperOf(const QPageLayout& layout) {
    const QSizeF size = layout.fullRect(QPageLayout::Inch).size() * unitsOfInch;
    const QMarginsF margins = layout.margins(QPageLayout::Inch) * unitsOfInch;
    const double widest = std::max({margins.left(), margins.top(), margins.right(), margins.bottom()});
    return {size.width(), size.height(), std::min(widest, std::min(size.width(), size.height()) / 4)};
}

QPageLayout localPaper() {
    const QLocale::Territory here = QLocale().territory();
    const bool letter =
        std::find(std::begin(letterTerritories), std::end(letterTerritories), here) != std::end(letterTerritories);
    constexpr double margin = 0.5;
    return QPageLayout(QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
                       QMarginsF(margin, margin, margin, margin), QPageLayout::Inch);
}

}  // namespace ordwise
