#include "SheetExport.hpp"

#include "Art.hpp"
#include "PictureFile.hpp"
#include "SheetPainter.hpp"
#include "Windows.hpp"

#include <QPainter>

namespace ordwise {
namespace {

int sheetCount() {
    int count = 0;
    while (count <= PaperWindow::lastSheet && frmPaper.Paper[count].Visible) ++count;
    return count;
}

void paintWhole(QPainter& painter, int number) {
    paintSheet(painter, number);
    if (number == 0) paintList(painter, frmPaper.Combo3);
    if (number == 0 && frmPaper.Picture3.Visible) {
        painter.translate(frmPaper.Picture3.Left, frmPaper.Picture3.Top);
        paintFigure(painter);
        paintBoxes(painter);
    }
}

}  // namespace

bool exportSheets(const QString& file, QString& reason) {
    const Sheet& first = frmPaper.Paper[0];
    reason = writePicture({qstringOf(first.Label6.Text), {first.Width, paperHeight()}, sheetCount(), paintWhole}, file);
    return reason.isEmpty();
}

}  // namespace ordwise
