#include "NotesView.hpp"

#include "DisplayListPainter.hpp"
#include "ShownLines.hpp"
#include "Stage.hpp"
#include "Windows.hpp"

#include <QMouseEvent>
#include <QPainter>

namespace ordwise {
namespace {

constexpr double around = 3;  // room for the frame of a slip, in units of the desk

QRectF placeOf(const NoteSlip& slip) {
    return {slip.Left, slip.Top, slip.Width, slip.Height};
}

}  // namespace

NotesView::NotesView(QWidget* desk, Stage& stage) : QWidget(desk), stage_(stage) {
    setObjectName(QStringLiteral("Notes"));
    setAccessibleName(QStringLiteral("Explanations"));
    hide();
}

void NotesView::showChanges(double scale) {
    scale_ = scale;
    setVisible(!frmPaper.Slips.empty());
    if (frmPaper.Slips.empty()) return;
    QRectF all;
    for (const NoteSlip& slip : frmPaper.Slips) all |= placeOf(slip);
    all.adjust(-around, -around, around, around);
    setGeometry(QRectF(all.topLeft() * scale, all.size() * scale).toAlignedRect());
    update();
}

void NotesView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-QPointF(pos()));
    painter.scale(scale_, scale_);
    for (const NoteSlip& slip : frmPaper.Slips) {
        const bool chosen = slip.Line == frmPaper.ChosenLine;
        painter.setPen(QPen(chosen ? QColor(0x1f, 0x5f, 0xc0) : QColor(0x8a, 0x6d, 0x2f), chosen ? 2.5 : 1));
        painter.setBrush(QColor(0xff, 0xfb, 0xe4));
        painter.drawRoundedRect(placeOf(slip), 6, 6);
        painter.save();
        painter.translate(slip.Left + 8, slip.Top + 2);
        replay(slip.drawn(), painter);
        painter.restore();
    }
}

void NotesView::mousePressEvent(QMouseEvent* event) {
    const QPointF at = (QPointF(pos()) + event->position()) / scale_;
    for (const NoteSlip& slip : frmPaper.Slips) {
        if (!placeOf(slip).contains(at)) continue;
        return stage_.perform([line = slip.Line] { chooseLine(line); });
    }
    event->ignore();
}

}  // namespace ordwise
