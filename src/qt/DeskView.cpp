#include "DeskView.hpp"

#include "Art.hpp"
#include "BoxEdit.hpp"
#include "DeskEvents.hpp"
#include "ExplanationPopup.hpp"
#include "GuidedInput.hpp"
#include "KeyText.hpp"
#include "PictureButton.hpp"
#include "SheetPainter.hpp"
#include "SheetView.hpp"
#include "Stage.hpp"
#include "StepDisplay.hpp"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ordwise {

// A picture that is only looked at: presses go through it to what lies below.
class StillPicture : public QWidget {
public:
    explicit StillPicture(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

    void showControl(const Control& control, double scale) {
        setGeometry(placeOf(control, scale));
        setVisible(control.Visible);
        if (key_ == control.Image) return;
        key_ = control.Image;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.drawPixmap(0, 0, artPixmap(key_, size(), devicePixelRatioF()));
    }

private:
    std::string key_;
};

namespace {

constexpr double smallestScale = 0.4;
constexpr double largestScale = 4;
// A drag shorter than this, along and across, is a click.
constexpr double clickSlack = 10;

void follow(QTimer& timer, const TimerControl& control, bool allowed) {
    const bool runs = control.Enabled && allowed;
    if (runs == timer.isActive()) return;
    if (runs) {
        timer.start(control.Interval);
    } else {
        timer.stop();
    }
}

QString lightName() {
    const std::string& key = frmPaper.Light.Image;
    if (key == "light2") return QStringLiteral("Input light: correct");
    if (key == "light3") return QStringLiteral("Input light: refused, press for the reason");
    return QStringLiteral("Input light: ready");
}

}  // namespace

DeskView::DeskView(QWidget* parent, Stage& stage)
    : QWidget(parent),
      stage_(stage),
      light_(new PictureButton(this)),
      wizard_(new PictureButton(this)),
      click_(new PictureButton(this)),
      pencil_(new StillPicture(this)),
      deskPencil_(new StillPicture(this)),
      explanation_(nullptr) {
    setObjectName(QStringLiteral("frmPaper"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setPalette(QPalette(QColor(0xef, 0xef, 0xef)));  // paper stays light, also on a dark desktop
    for (int number = 0; number <= PaperWindow::lastSheet; ++number)
        sheets_[static_cast<std::size_t>(number)] = new SheetView(this, stage, number);
    explanation_ = new ExplanationPopup(this, stage);
    light_->setObjectName(QStringLiteral("Light"));
    wizard_->setObjectName(QStringLiteral("Wizard"));
    click_->setObjectName(QStringLiteral("Click"));
    wizard_->installEventFilter(this);
    QObject::connect(light_, &QAbstractButton::clicked, this, [this] { stage_.perform(Light_MouseUp); });
    QObject::connect(wizard_, &QAbstractButton::clicked, this, [this] {
        if (draggedBy_ < clickSlack) stage_.perform(Wizard_Click);
    });
    QObject::connect(click_, &QAbstractButton::clicked, this, [this] { stage_.perform(Click_MouseUp); });
    QObject::connect(&blink_, &QTimer::timeout, this, [this] { stage_.tick(Timer2_Timer); });
    QObject::connect(&signal_, &QTimer::timeout, this, [this] { stage_.tick(clickMe_Timer); });
}

void DeskView::setSteady(bool steady) {
    steady_ = steady;
    showChanges();
}

void DeskView::setZoom(double zoom) {
    zoom_ = std::clamp(zoom, 0.5, 3.0);
    showChanges();
}

void DeskView::setViewport(QSize size) {
    if (viewport_ == size) return;
    viewport_ = size;
    showChanges();
}

// Room for every sheet at the place where it was laid down. Where a sheet was dragged to does not
// count: the desk would shrink under the hand.
QSizeF DeskView::deskSize() {
    constexpr double sheetsLeft = 60;
    constexpr double sheetsTop = 40;
    constexpr double step = 25;
    int last = 0;
    for (int number = 0; number <= PaperWindow::lastSheet; ++number) {
        if (frmPaper.Loaded && frmPaper.Paper[number].Visible) last = number;
    }
    const Sheet& first = frmPaper.Paper[0];
    return {std::max(deskWidth, sheetsLeft + last * step + first.Width + SheetView::shadow),
            std::max(deskHeight, sheetsTop + last * step + paperHeight() + SheetView::shadow)};
}

void DeskView::fitScale() {
    const QSizeF desk = deskSize();
    const double fit = std::min(viewport_.width() / desk.width(), viewport_.height() / desk.height());
    scale_ = std::clamp(fit * zoom_, smallestScale, largestScale);
}

void DeskView::showChanges() {
    fitScale();
    growToSheets();
    for (SheetView* sheet : sheets_) sheet->showChanges(scale_, steady_);
    if (!frmPaper.Loaded) {
        for (SheetView* sheet : sheets_) sheet->hide();
    }
    showPictures();
    explanation_->showChanges(scale_);
    stackWindows();
    runTimers();
    announce();
}

void DeskView::growToSheets() {
    double width = deskSize().width();
    double height = deskSize().height();
    for (int number = 0; number <= PaperWindow::lastSheet; ++number) {
        const Sheet& sheet = frmPaper.Paper[number];
        if (!frmPaper.Loaded || !sheet.Visible) continue;
        width = std::max(width, sheet.Left + sheet.Width + SheetView::shadow);
        height = std::max(height, sheet.Top + paperHeight() + SheetView::shadow);
    }
    const QSize needed(static_cast<int>(std::floor(width * scale_)), static_cast<int>(std::floor(height * scale_)));
    if (size() != needed.expandedTo(viewport_)) {
        resize(needed.expandedTo(viewport_));
        update();
    }
}

void DeskView::showPictures() {
    const auto shown = [](Control control) {
        control.Visible = control.Visible && frmPaper.Loaded;
        return control;
    };
    light_->showControl(shown(frmPaper.Light), scale_, lightName());
    wizard_->showControl(shown(frmPaper.Wizard), scale_, QStringLiteral("Assistant Wiz"));
    Control signal = shown(frmPaper.Click);
    signal.Image = "click";
    signal.ToolTip = frmPaper.Wizard.ToolTip;
    if (steady_ && frmPaper.clickMe.Enabled) signal.Visible = frmPaper.Wizard.Visible;
    click_->showControl(signal, scale_, QStringLiteral("An explanation is offered"));
    pencil_->showControl(shown(frmPaper.Pencil), scale_);
    deskPencil_->showControl(shown(frmPaper.deskPencil), scale_);
}

// Sheets by their order, then what lies on them: the pencil belongs to the first sheet, the light
// and the assistant stand before all. Restacking paints everything anew, so it waits for a change.
void DeskView::stackWindows() {
    std::array<int, PaperWindow::lastSheet + 1> order{};
    for (int i = 0; i <= PaperWindow::lastSheet; ++i) order[static_cast<std::size_t>(i)] = i;
    std::stable_sort(order.begin(), order.end(),
                     [](int a, int b) { return frmPaper.Paper[a].Order < frmPaper.Paper[b].Order; });
    if (order == stacked_) return;
    stacked_ = order;
    deskPencil_->raise();
    for (const int number : order) {
        sheet(number).raise();
        if (number == 0) pencil_->raise();
    }
    light_->raise();
    wizard_->raise();
    click_->raise();
    explanation_->raise();
}

void DeskView::runTimers() {
    follow(blink_, frmPaper.Timer2, !steady_);
    follow(signal_, frmPaper.clickMe, !steady_ && frmPaper.Wizard.Visible);
}

// Tells a screen reader what changed on the paper.
void DeskView::announce() {
    const QString line = frmPaper.Loaded ? qstringOf(spokenLineInView()) : QString();
    if (line == announced_) return;
    announced_ = line;
    setAccessibleName(frmPaper.Loaded ? QStringLiteral("Worksheet") : QStringLiteral("Empty desk"));
    setAccessibleDescription(line);
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void DeskView::takeKeys() {
    if (frmPaper.Picture3.Visible) {
        for (int number = 1; number <= 6; ++number) {
            if (!frmPaper.box(number).Visible) continue;
            sheet(0).figure()->box(number).setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    setFocus(Qt::OtherFocusReason);
}

void DeskView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, artPixmap("desk", size(), devicePixelRatioF()));
}

void DeskView::keyPressEvent(QKeyEvent* event) {
    const std::string key = keyTextOf(*event);
    if (key.empty() || !frmPaper.Loaded) {
        QWidget::keyPressEvent(event);
        return;
    }
    stage_.perform([&] { Form_KeyPress(key); });
}

void DeskView::mousePressEvent(QMouseEvent*) {
    setFocus(Qt::MouseFocusReason);
}

// The assistant is dragged by its picture.
bool DeskView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != wizard_) return false;
    if (event->type() == QEvent::MouseButtonPress) {
        grab_ = static_cast<QMouseEvent*>(event)->globalPosition();
        pressed_ = true;
        draggedBy_ = 0;
    } else if (event->type() == QEvent::MouseMove && pressed_) {
        const QPointF at = static_cast<QMouseEvent*>(event)->globalPosition();
        const QPointF by = (at - grab_) / scale_;
        grab_ = at;
        draggedBy_ = std::max({draggedBy_, std::abs(by.x()), std::abs(by.y())});
        stage_.perform([&] { Wizard_MouseMove(by.x(), by.y()); });
    } else if (event->type() == QEvent::MouseButtonRelease && pressed_) {
        pressed_ = false;
        stage_.perform([this] { Wizard_MouseUp(width() / scale_, height() / scale_); });
    }
    return false;
}

}  // namespace ordwise
