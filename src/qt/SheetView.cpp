#include "SheetView.hpp"

#include "Art.hpp"
#include "BoxEdit.hpp"
#include "BoxNames.hpp"
#include "DeskEvents.hpp"
#include "DisplayListPainter.hpp"
#include "GuidedInput.hpp"
#include "PictureButton.hpp"
#include "SheetPainter.hpp"
#include "Stage.hpp"
#include "StepDisplay.hpp"
#include "WorksheetBoxes.hpp"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace ordwise {
namespace {

constexpr double boxFontUnits = 17;
constexpr double listFontUnits = 14;

QFont unitFont(double units, double scale) {
    QFont font(QStringLiteral("TeX Gyre Schola"));
    font.setStyleHint(QFont::Serif);
    font.setPixelSize(std::max(6, qRound(units * scale)));
    return font;
}

// Where the one list differs from the other, which it becomes.
QRectF takeOver(DisplayList& shown, const DisplayList& now) {
    const auto [old, fresh] = std::mismatch(shown.begin(), shown.end(), now.begin(), now.end());
    QRectF changed;
    for (auto operation = old; operation != shown.end(); ++operation) changed |= extentOf(*operation);
    for (auto operation = fresh; operation != now.end(); ++operation) changed |= extentOf(*operation);
    if (!changed.isEmpty()) shown = now;
    return changed;
}

}  // namespace

void showCombo(QComboBox& widget, const ComboControl& combo, double scale) {
    widget.setVisible(combo.Visible);
    if (!combo.Visible) return;
    widget.setGeometry(placeOf(combo, scale));
    widget.setFont(unitFont(listFontUnits, scale));
    QStringList list;
    for (const std::string& entry : combo.List) list << qstringOf(entry);
    QStringList shown;
    for (int i = 0; i < widget.count(); ++i) shown << widget.itemText(i);
    if (list != shown) {
        widget.clear();
        widget.addItems(list);
    }
    widget.setCurrentIndex(combo.ListIndex);
}

FigureView::FigureView(QWidget* parent, Stage& stage) : QWidget(parent) {
    for (int number = 1; number <= 6; ++number) {
        auto* box = new BoxEdit(this, [&stage, number](std::string_view key) {
            stage.perform([&] {
                if (key == enterKey) {
                    Form_KeyPress(key);
                } else {
                    Box_KeyPress(number, key);
                }
            });
        });
        box->setObjectName(QStringLiteral("Text%1").arg(number));
        boxes_[static_cast<std::size_t>(number - 1)] = box;
    }
    for (int number = 1; number <= 2; ++number) {
        auto* combo = new QComboBox(this);
        combo->setObjectName(QStringLiteral("Combo%1").arg(number));
        combo->setAccessibleName(number == 1 ? QStringLiteral("Convert from") : QStringLiteral("Convert to"));
        QObject::connect(combo, &QComboBox::activated, this,
                         [&stage, number](int index) { stage.perform([&] { selectInCombo(number, index); }); });
        combos_[static_cast<std::size_t>(number - 1)] = combo;
    }
}

void FigureView::showChanges(double scale) {
    setVisible(frmPaper.Picture3.Visible);
    if (!frmPaper.Picture3.Visible) return;
    scale_ = scale;
    setGeometry(placeOf(frmPaper.Picture3, scale)
                    .translated(QPointF(SheetView::shadow * scale, SheetView::shadow * scale).toPoint()));
    for (int number = 1; number <= 6; ++number) {
        const Control& control = frmPaper.box(number);
        BoxEdit& edit = box(number);
        edit.setGeometry(placeOf(control, scale));
        edit.setFont(unitFont(boxFontUnits, scale));
        edit.setAccessibleName(qstringOf(boxName(number)));
        edit.showText(qstringOf(control.Text));
        edit.setVisible(control.Visible);
    }
    showCombo(combo(1), frmPaper.Combo1, scale);
    showCombo(combo(2), frmPaper.Combo2, scale);
    update();
}

void FigureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.scale(scale_, scale_);
    paintFigure(painter);
    replay(frmPaper.BoxMarks, painter);
}

// A press beside the boxes takes hold of the sheet.
void FigureView::mousePressEvent(QMouseEvent* event) {
    event->ignore();
}

SheetView::SheetView(QWidget* parent, Stage& stage, int number)
    : QWidget(parent), stage_(stage), number_(number), blinker_(new PictureButton(this)) {
    setObjectName(QStringLiteral("Paper%1").arg(number));
    blinker_->setObjectName(QStringLiteral("blinker%1").arg(number));
    QObject::connect(blinker_, &QAbstractButton::clicked, this, [this] { stage_.perform(blinker_Click); });
    if (number != 0) return;
    figure_ = new FigureView(this, stage);
    figure_->setObjectName(QStringLiteral("Picture3"));
    figure_->setAccessibleName(QStringLiteral("Boxes of the problem"));
    rounding_ = new QComboBox(this);
    rounding_->setObjectName(QStringLiteral("Combo3"));
    rounding_->setAccessibleName(QStringLiteral("Rounding"));
    QObject::connect(rounding_, &QComboBox::activated, this,
                     [this](int index) { stage_.perform([index] { selectInCombo(3, index); }); });
}

void SheetView::showChanges(double scale, bool steady) {
    const Sheet& sheet = frmPaper.Paper[number_];
    setVisible(sheet.Visible);
    if (!sheet.Visible) return;
    const QString title = qstringOf(sheet.Label6.Text + frmPaper.Label7.Text);
    if (scale != scale_ || title != shownTitle_) {
        scale_ = scale;
        shownTitle_ = title;
        background_ = QPixmap();
        update();
    }
    setGeometry(QRectF((sheet.Left - shadow) * scale, (sheet.Top - shadow) * scale, (sheet.Width + 2 * shadow) * scale,
                       (paperHeight() + 2 * shadow) * scale)
                    .toRect());
    showLines();
    setAccessibleName(QStringLiteral("Sheet %1, %2").arg(number_ + 1).arg(qstringOf(sheet.Label6.Text)));
    showBlinker(scale, steady);
    if (figure_ != nullptr) figure_->showChanges(scale);
    if (rounding_ != nullptr) {
        ComboControl combo = frmPaper.Combo3;
        combo.Left += shadow;
        combo.Top += shadow;
        showCombo(*rounding_, combo, scale);
    }
}

// Paints anew only where drawing and marks differ from those shown before.
void SheetView::showLines() {
    const Sheet& sheet = frmPaper.Paper[number_];
    const QRectF changed = takeOver(shown_, sheet.drawn()) | takeOver(shownMarks_, sheet.Marks);
    if (changed.isEmpty()) return;
    repaintPart(changed);
}

void SheetView::repaintPart(QRectF changed) {
    changed.translate(shadow, shadow);
    update(QRectF(changed.topLeft() * scale_, changed.size() * scale_).toAlignedRect().adjusted(-1, -1, 1, 1));
}

// A button behind a line that ends at the border of the sheet goes below the line.
void SheetView::showBlinker(double scale, bool steady) {
    const Sheet& sheet = frmPaper.Paper[number_];
    Control button = sheet.blinker;
    const double room = sheet.Width - button.Width - 6;
    if (button.Left > room) {
        button.Left = room;
        button.Top += 42;
    }
    button.Left += shadow;
    button.Top += shadow;
    if (steady || button.Image.empty()) button.Image = "arrow1";
    blinker_->showControl(button, scale, QStringLiteral("Next Step"));
}

const QPixmap& SheetView::background() {
    const QSize pixels = size() * devicePixelRatioF();
    if (background_.size() == pixels) return background_;
    background_ = QPixmap(pixels);
    background_.setDevicePixelRatio(devicePixelRatioF());
    background_.fill(Qt::transparent);
    QPainter painter(&background_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale_, scale_);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 15, 0, 10));
    const double width = frmPaper.Paper[number_].Width;
    for (int i = 0; i < 8; ++i) {  // soft: each layer darkens what the smaller ones leave
        const double out = shadow - i;
        painter.drawRoundedRect(
            QRectF(shadow - out + 3, shadow - out + 4, width + 2 * out - 4, paperHeight() + 2 * out - 4), out, out);
    }
    painter.translate(shadow, shadow);
    paintPaper(painter, number_);
    return background_;
}

void SheetView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, background());
    painter.scale(scale_, scale_);
    painter.translate(shadow, shadow);
    replay(frmPaper.Paper[number_].Marks, painter);
    replay(frmPaper.Paper[number_].drawn(), painter);
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    parentWidget()->setFocus(Qt::MouseFocusReason);
    grab_ = event->globalPosition();
    pressed_ = true;
    dragged_ = false;
    stage_.perform([this] { Paper_MouseDown(number_); });
}

void SheetView::mouseMoveEvent(QMouseEvent* event) {
    if (!pressed_) return;
    const QPointF moved = event->globalPosition() - grab_;
    dragged_ = dragged_ || moved.manhattanLength() >= QApplication::startDragDistance();
    if (!dragged_) return;
    const QPointF by = (event->globalPosition() - grab_) / scale_;
    grab_ = event->globalPosition();
    stage_.perform([&] { Paper_MouseMove(number_, by.x(), by.y()); });
}

void SheetView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    const bool clicked = pressed_ && !dragged_;
    pressed_ = false;
    if (clicked) stage_.perform([&] { Paper_Click(number_, event->position().y() / scale_ - shadow); });
}

}  // namespace ordwise
