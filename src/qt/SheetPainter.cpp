#include "SheetPainter.hpp"

#include "Art.hpp"
#include "DisplayListPainter.hpp"
#include "HalvernShapes.hpp"
#include "WorksheetLayout.hpp"

#include <QPainter>

namespace ordwise {
namespace {

constexpr Colour inkBlue{38, 70, 120};
const QColor paperColour(0xfe, 0xfd, 0xf8);
const QColor paperEdge(0xd8, 0xd2, 0xc2);
const QColor marginRed(0xe3, 0xa0, 0x9a);
const QColor ruleBlue(0xb9, 0xcd, 0xe2);
const QColor tagColour(255, 255, 255, 215);
const QColor boxFrame(0x7a, 0x8a, 0x99);

constexpr double marginX = 50;
constexpr double headY = 54;
constexpr double titlePoints = 14;
// The paper goes on below the lines, so that a denominator on the last one is whole.
constexpr double footRoom = 24;
constexpr double boxPoints = 15;

void paintEmptyPaper(QPainter& painter, const Sheet& sheet) {
    painter.setPen(QPen(paperEdge, 1));
    painter.setBrush(paperColour);
    painter.drawRect(QRectF(0.5, 0.5, sheet.Width - 1, paperHeight() - 1));
    painter.setPen(QPen(ruleBlue, 1.2));
    painter.drawLine(QPointF(0, headY), QPointF(sheet.Width, headY));
    painter.setPen(QPen(marginRed, 1.2));
    painter.drawLine(QPointF(marginX, 0), QPointF(marginX, paperHeight()));
}

// The room that a sign has as an operator is none beside a box.
double captionLeft(const Control& label, double points) {
    if (label.Text.empty()) return label.Left;
    const auto air = [points](char sign) { return signAir(Face::Halvern, sign, points); };
    if (!label.AlignRight) return label.Left - air(label.Text.front());
    return label.Left + label.Width + air(label.Text.back()) - textWidth(Face::Halvern, label.Text, points);
}

// The text stands in the middle of the control's height, and so does a bar, which is drawn lower.
void paintCaption(QPainter& painter, const Control& label, double points, Colour colour) {
    const double x = captionLeft(label, points);
    const double middle = label.Top + label.Height / 2;
    const bool bar = !label.Text.empty() && label.Text.front() == '_';
    const double barDown = ascentOf(Face::Halvern, points) + barMiddle / 1000 * emOf(Face::Halvern, points);
    const double y = middle - (bar ? barDown : lineHeightOf(Face::Halvern, points) / 2);
    paintText(painter, label.Text, x, y, Face::Halvern, points, colour);
}

// A light ground under a caption, so that no line of the figure runs through its letters.
void paintTag(QPainter& painter, const Control& label) {
    const double width = textWidth(Face::Halvern, label.Text, labelPoints);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tagColour);
    painter.drawRoundedRect(QRectF(captionLeft(label, labelPoints) - 4, label.Top + 2, width + 6, label.Height - 4), 4,
                            4);
}

void paintBox(QPainter& painter, const Control& box, std::string_view text) {
    painter.setPen(QPen(boxFrame, 1));
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(box.Left, box.Top, box.Width, box.Height));
    const double y = box.Top + (box.Height - lineHeightOf(Face::Halvern, boxPoints)) / 2;
    paintText(painter, text, box.Left + 5, y, Face::Halvern, boxPoints);
}

}  // namespace

void paintPaper(QPainter& painter, int number) {
    const Sheet& sheet = frmPaper.Paper[number];
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    paintEmptyPaper(painter, sheet);
    paintCaption(painter, sheet.Label6, titlePoints, inkBlue);
    if (number == 0) paintCaption(painter, frmPaper.Label7, titlePoints, inkBlue);
    painter.restore();
}

void paintSheet(QPainter& painter, int number) {
    paintPaper(painter, number);
    replay(frmPaper.Paper[number].drawn(), painter);
}

double paperHeight() {
    return frmPaper.Paper[0].Height + footRoom;
}

void paintFigure(QPainter& painter) {
    const Control& picture = frmPaper.Picture3;
    painter.setRenderHint(QPainter::Antialiasing);
    paintArt(painter, picture.Image, QRectF(0, 0, picture.Width, picture.Height));
    for (const Control* label :
         {&frmPaper.Label1, &frmPaper.Label2, &frmPaper.Label3, &frmPaper.Label4, &frmPaper.Label5, &frmPaper.Label8}) {
        if (!label->Visible) continue;
        if (!picture.Image.empty()) paintTag(painter, *label);
        paintCaption(painter, *label, labelPoints, black);
    }
}

void paintList(QPainter& painter, const ComboControl& combo) {
    if (!combo.Visible || combo.ListIndex < 0 || combo.ListIndex >= static_cast<int>(combo.List.size())) return;
    paintBox(painter, combo, combo.List[static_cast<std::size_t>(combo.ListIndex)]);
}

void paintBoxes(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (int number = 1; number <= 6; ++number) {
        const Control& box = frmPaper.box(number);
        if (box.Visible) paintBox(painter, box, box.Text);
    }
    paintList(painter, frmPaper.Combo1);
    paintList(painter, frmPaper.Combo2);
}

}  // namespace ordwise
