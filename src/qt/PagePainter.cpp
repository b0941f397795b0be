#include "PagePainter.hpp"

#include "Art.hpp"
#include "DisplayListPainter.hpp"

#include <QBuffer>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace ordwise {
namespace {

constexpr double unitsOfInch = 96;
constexpr double pointsOfInch = 72;
constexpr int pdfResolution = 1200;

// All others write on A4.
constexpr QLocale::Territory letterTerritories[] = {
    QLocale::Belize,      QLocale::Canada,     QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica,
    QLocale::ElSalvador,  QLocale::Guatemala,  QLocale::Mexico,       QLocale::Nicaragua, QLocale::Panama,
    QLocale::Philippines, QLocale::PuertoRico, QLocale::UnitedStates, QLocale::Venezuela};

QPageSize pageSizeOf(const PaperSize& paper) {
    const double points = pointsOfInch / unitsOfInch;
    return QPageSize(QSizeF(paper.width, paper.height) * points, QPageSize::Point);
}

}  // namespace

void paintPage(QPainter& painter, const PaperSize& paper, const DisplayList& page) {
    painter.save();
    painter.translate(paper.margin, paper.margin);
    replay(page, painter);
    painter.restore();
}

QByteArray pagesAsPdf(const std::vector<PrintJob>& jobs) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setResolution(pdfResolution);
    pdf.setCreator(QStringLiteral("Ordwise"));
    if (!jobs.empty()) pdf.setTitle(qstringOf(jobs.front().title));
    QPainter painter;
    for (const PrintJob& job : jobs) {
        pdf.setPageSize(pageSizeOf(job.paper));
        pdf.setPageMargins(QMarginsF());
        for (const DisplayList& page : job.pages) {
            if (painter.isActive()) {
                pdf.newPage();
            } else {
                painter.begin(&pdf);
                painter.scale(pdfResolution / unitsOfInch, pdfResolution / unitsOfInch);
            }
            paintPage(painter, job.paper, page);
        }
    }
    painter.end();
    return bytes;
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
