// Printed pages as they lie on the paper: on a printer, in a PDF and in the preview they are the same
// drawing.
#pragma once

#include "Platform.hpp"

#include <QByteArray>
#include <QPageLayout>

#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace ordwise {

// Draws a page of a job. The painter's origin is the corner of the paper and its unit a 96th of an
// inch, whatever the resolution behind it.
void paintPage(QPainter& painter, const PaperSize& paper, const DisplayList& page);

// Paints all pages on the device, a printer or a PDF, whose paper is that of the jobs. False if it did
// not take them.
[[nodiscard]] bool paintPages(QPagedPaintDevice& device, const std::vector<PrintJob>& jobs);

// The jobs one behind the other as a PDF: letters as letters of embedded fonts, lines as lines.
[[nodiscard]] QByteArray pagesAsPdf(const std::vector<PrintJob>& jobs);

// The paper in a printer, with the widest of its four margins all around.
[[nodiscard]] PaperSize paperOf(const QPageLayout& layout);
// Letter or A4, as it is usual where the user lives, with half an inch of margin.
[[nodiscard]] QPageLayout localPaper();

}  // namespace ordwise
