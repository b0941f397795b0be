#include "SheetPainter.hpp"

#include "Art.hpp"
#include "DisplayListPainter.hpp"

#include <QPainter>

namespace ordwise {
namespace {

constexpr Colour inkBlue{38, 70, 120};
const QColor paperColour(0xfe, 0xfd, 0xf8);
const QColor paperEdge(0xd8, 0xd2, 0xc2);
const QColor marginRed(0xe3, 0xa0, 0x9a);
const QColor ruleBlue(0xb9, 0xcd, 0xe2);
const QColor boxFrame(0x7a, 0x8a, 0x99);

constexpr double marginX = 50;
constexpr double headY = 54;
constexpr double captionPoints = 14;
constexpr double captionGap = 3;  // between a caption and its box
constexpr double boxPoints = 15;

void paintPaper(QPainter& painter, const Sheet& sheet) {
    painter.setPen(QPen(paperEdge, 1));
    painter.setBrush(paperColour);
    painter.drawRect(QRectF(0.5, 0.5, sheet.Width - 1, sheet.Height - 1));
    painter.setPen(QPen(ruleBlue, 1.2));
    painter.drawLine(QPointF(0, headY), QPointF(sheet.Width, headY));
    painter.setPen(QPen(marginRed, 1.2));
    painter.drawLine(QPointF(marginX, 0), QPointF(marginX, sheet.Height));
}

// The text stands in the middle of the control's height.
void paintCaption(QPainter& painter, const Control& label, double points, Colour colour) {
    const double width = textWidth(Face::Halvern, label.Text, points);
    const double x = label.AlignRight ? label.Left + label.Width - width - captionGap : label.Left;
    const double y = label.Top + (label.Height - lineHeightOf(Face::Halvern, points)) / 2;
    paintText(painter, label.Text, x, y, Face::Halvern, points, colour);
}

void paintBox(QPainter& painter, const Control& box, std::string_view text) {
    painter.setPen(QPen(boxFrame, 1));
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(box.Left, box.Top, box.Width, box.Height));
    const double y = box.Top + (box.Height - lineHeightOf(Face::Halvern, boxPoints)) / 2;
    paintText(painter, text, box.Left + 5, y, Face::Halvern, boxPoints);
}

void paintCombo(QPainter& painter, const ComboControl& combo) {
    if (!combo.Visible || combo.ListIndex < 0 || combo.ListIndex >= static_cast<int>(combo.List.size())) return;
    paintBox(painter, combo, combo.List[static_cast<std::size_t>(combo.ListIndex)]);
}

}  // namespace

void paintSheet(QPainter& painter, int number) {
    const Sheet& sheet = frmPaper.Paper[number];
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    paintPaper(painter, sheet);
    paintCaption(painter, sheet.Label6, captionPoints, inkBlue);
    if (number == 0) paintCaption(painter, frmPaper.Label7, captionPoints, inkBlue);
    replay(sheet.drawn(), painter);
    painter.restore();
}

void paintFigure(QPainter& painter) {
    const Control& picture = frmPaper.Picture3;
    painter.setRenderHint(QPainter::Antialiasing);
    paintArt(painter, picture.Image, QRectF(0, 0, picture.Width, picture.Height));
    for (const Control* label :
         {&frmPaper.Label1, &frmPaper.Label2, &frmPaper.Label3, &frmPaper.Label4, &frmPaper.Label5, &frmPaper.Label8}) {
        if (label->Visible) paintCaption(painter, *label, captionPoints, black);
    }
}

void paintBoxes(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (int number = 1; number <= 6; ++number) {
        const Control& box = frmPaper.box(number);
        if (box.Visible) paintBox(painter, box, box.Text);
    }
    paintCombo(painter, frmPaper.Combo1);
    paintCombo(painter, frmPaper.Combo2);
}

}  // namespace ordwise
