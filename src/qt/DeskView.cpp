#include "DeskView.hpp"

#include "Art.hpp"
#include "AssistantLogic.hpp"
#include "BoxEdit.hpp"
#include "DeskEvents.hpp"
#include "ExplanationPopup.hpp"
#include "FrameMenus.hpp"
#include "GuidedInput.hpp"
#include "KeyText.hpp"
#include "NotesView.hpp"
#include "PictureButton.hpp"
#include "PopUpMenu.hpp"
#include "SheetPainter.hpp"
#include "SheetView.hpp"
#include "ShownLines.hpp"
#include "SpokenRoles.hpp"
#include "Stage.hpp"
#include "StepDisplay.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

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
    // True where the picture itself is, and not only the paper around it.
    [[nodiscard]] bool covers(const QPoint& place) const {
        if (!isVisible() || !geometry().contains(place)) return false;
        return qAlpha(artPixmap(key_, size(), 1).toImage().pixel(place - pos())) > 0;
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

struct Tick {
    TimerControl PaperWindow::*control;
    void (*routine)();
};
constexpr std::array<Tick, 5> ticks{{{&PaperWindow::Timer1, Timer1_Timer},
                                     {&PaperWindow::Timer2, Timer2_Timer},
                                     {&PaperWindow::clickMe, clickMe_Timer},
                                     {&PaperWindow::wizIn, wizIn_Timer},
                                     {&PaperWindow::WizOut, WizOut_Timer}}};

void follow(QTimer& timer, const TimerControl& control, bool allowed) {
    const bool runs = control.Enabled && allowed;
    if (runs == timer.isActive()) return;
    if (runs) {
        timer.start(control.Interval);
    } else {
        timer.stop();
    }
}

std::optional<DeskKey> deskKeyOf(const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != 0) return std::nullopt;
    switch (event.key()) {
        case Qt::Key_Up: return DeskKey::Up;
        case Qt::Key_Down: return DeskKey::Down;
        case Qt::Key_Home: return DeskKey::Home;
        case Qt::Key_End: return DeskKey::End;
        case Qt::Key_Escape: return DeskKey::Escape;
        case Qt::Key_PageUp: return DeskKey::PageUp;
        case Qt::Key_PageDown: return DeskKey::PageDown;
        default: return std::nullopt;
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
      notes_(nullptr),
      explanation_(nullptr) {
    setObjectName(QStringLiteral("frmPaper"));
    giveSpokenRoles();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setPalette(QPalette(QColor(0xef, 0xef, 0xef)));  // paper stays light, also on a dark desktop
    for (int number = 0; number <= PaperWindow::lastSheet; ++number)
        sheets_[static_cast<std::size_t>(number)] = new SheetView(this, stage, number);
    notes_ = new NotesView(this, stage);
    explanation_ = new ExplanationPopup(this, stage);
    light_->setObjectName(QStringLiteral("Light"));
    wizard_->setObjectName(QStringLiteral("Wizard"));
    click_->setObjectName(QStringLiteral("Click"));
    connectPictures();
    for (std::size_t i = 0; i < timers_.size(); ++i)
        QObject::connect(&timers_[i], &QTimer::timeout, this, [this, i] { stage_.tick(ticks[i].routine); });
}

void DeskView::connectPictures() {
    for (PictureButton* picture : {light_, wizard_, click_}) picture->installEventFilter(this);
    const auto onClick = [this](PictureButton& picture, void (*routine)()) {
        QObject::connect(&picture, &QAbstractButton::clicked, this, [this, routine] { stage_.perform(routine); });
    };
    onClick(*light_, [] { Light_MouseUp(MouseButton::Left); });
    onClick(*wizard_, Wizard_Click);
    onClick(*click_, [] { Click_MouseUp(MouseButton::Left); });
}

void DeskView::setSteady(bool steady) {
    steady_ = steady;
    showChanges();
}

void DeskView::setNotes(bool wanted) {
    notesWanted_ = wanted;
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
    constexpr double sheetsTop = 40;
    constexpr double step = 25;
    int last = 0;
    for (int number = 0; number <= PaperWindow::lastSheet; ++number) {
        if (frmPaper.Loaded && frmPaper.Paper[number].Visible) last = number;
    }
    // The light and the assistant stand beside the topmost sheet.
    return {deskWidth + last * step, std::max(deskHeight, sheetsTop + last * step + paperHeight() + SheetView::shadow)};
}

double DeskView::fittingScale(const QSizeF& desk) const {
    const double fit = std::min(viewport_.width() / desk.width(), viewport_.height() / desk.height());
    return std::clamp(fit * zoom_, smallestScale, largestScale);
}

void DeskView::fitScale() {
    scale_ = fittingScale(deskSize());
}

// Whether notes have room beside the sheets is asked of a desk with one sheet: where they stand changes
// how many sheets there are, and the answer must not change with it. A pile leaves more room, not less.
void DeskView::findRoomForNotes() {
    constexpr double gap = 12;
    const double onOne = viewport_.width() / fittingScale({deskWidth, deskHeight}) - deskWidth - gap;
    const QSizeF desk = deskSize();
    const double room = viewport_.width() / fittingScale(desk) - desk.width() - gap;
    // On a small desk the letters are larger, so that they can be read.
    const double wanted = usualNotesWidth * std::clamp(0.85 / fittingScale(desk), 1.0, 1.4);
    placeNotes(notesWanted_ && frmPaper.Loaded, desk.width(), onOne < leastNotesWidth ? 0 : std::min(room, wanted));
}

void DeskView::showChanges() {
    if (steady_) finishAnimations();
    const NotesPlace before = frmPaper.Notes;
    findRoomForNotes();
    if (frmPaper.Notes != before) findRoomForNotes();  // there may be more sheets now, or fewer
    fitScale();
    growToSheets();
    for (SheetView* sheet : sheets_) sheet->showChanges(scale_, steady_);
    if (!frmPaper.Loaded) {
        for (SheetView* sheet : sheets_) sheet->hide();
    }
    showPictures();
    notes_->showChanges(scale_);
    explanation_->showChanges(scale_);
    stackWindows();
    runTimers();
    giveKeyboard();
    announce();
}

void DeskView::giveKeyboard() {
    if (frmPaper.KeyboardBox == 0) return;
    sheet(0).figure()->box(frmPaper.KeyboardBox).setFocus(Qt::OtherFocusReason);
    frmPaper.KeyboardBox = 0;
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

int DeskView::sheetsEnd() const {
    int end = 0;
    for (const SheetView* sheet : sheets_) {
        if (sheet->isVisible()) end = std::max(end, sheet->mapToGlobal(sheet->rect().topRight()).x());
    }
    return end;
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
    notes_->raise();
    light_->raise();
    wizard_->raise();
    click_->raise();
    explanation_->raise();
}

void DeskView::runTimers() {
    for (std::size_t i = 0; i < timers_.size(); ++i) {
        const TimerControl& control = frmPaper.*ticks[i].control;
        const bool seen = &control != &frmPaper.clickMe || frmPaper.Wizard.Visible;
        follow(timers_[i], control, seen && !steady_);
    }
}

// Tells a screen reader what changed on the paper.
void DeskView::announce() {
    const QString name = qstringOf(spokenDeskName());
    const QString line = qstringOf(spokenDesk());
    const auto tell = [this](QAccessible::Event what) {
        QAccessibleEvent event(this, what);
        QAccessible::updateAccessibility(&event);
    };
    const bool renamed = name != accessibleName();
    const bool changed = line != accessibleDescription();
    setAccessibleName(name);
    setAccessibleDescription(line);
    for (int number = 0; number <= PaperWindow::lastSheet; ++number)
        sheet(number).setAccessibleDescription(number == ws.CurrentSheet ? line : QString());
    if (renamed) tell(QAccessible::NameChanged);
    if (changed) tell(QAccessible::DescriptionChanged);
}

void DeskView::takeKeys() {
    const std::vector<int> boxes = boxesAsRead();
    if (boxes.empty()) return setFocus(Qt::OtherFocusReason);
    sheet(0).figure()->box(boxes.front()).setFocus(Qt::OtherFocusReason);
}

void DeskView::orderTabs() {
    QWidget* last = this;
    const auto add = [&last](QWidget& next) {
        setTabOrder(last, &next);
        last = &next;
    };
    const FigureView& figure = *sheet(0).figure();
    for (const int number : boxesAsRead()) add(figure.box(number));
    add(figure.combo(1));
    add(figure.combo(2));
    add(*sheet(0).roundingList());
    for (const SheetView* sheet : sheets_) add(sheet->blinker());
    for (PictureButton* picture : {light_, wizard_, click_}) add(*picture);
}

void DeskView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, artPixmap("desk", size(), devicePixelRatioF()));
}

void DeskView::keyPressEvent(QKeyEvent* event) {
    if (const std::optional<DeskKey> deskKey = deskKeyOf(*event)) {
        bool done = false;
        stage_.perform([&] { done = Desk_KeyDown(*deskKey); });
        if (!done) QWidget::keyPressEvent(event);
        return;
    }
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

// The pencil lets presses through to the sheet, so whoever lies below passes a right click on to here.
void DeskView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton) return;
    const QPoint place = mapFromGlobal(event->globalPosition().toPoint());
    for (StillPicture* pencil : {pencil_, deskPencil_}) {
        if (pencil->covers(place)) askForMenu(pencil, event->globalPosition().toPoint());
    }
}

void DeskView::letSeeWriting() {
    if (!steady_ && isVisible()) writing_.letSee(stage_);
}

void DeskView::popUp(std::string_view menu) {
    const MenuTable table = menu == "mnuHidden"    ? assistantPopUp()
                            : menu == "mnuHidden2" ? pencilPopUp()
                                                   : lightPopUp();
    showPopUp(table, *this, stage_, menuPlace_);
}

void DeskView::askForMenu(QObject* of, const QPoint& place) {
    menuPlace_ = place;
    stage_.perform([this, of] {
        if (of == wizard_) return Wizard_MouseUp(MouseButton::Right, width() / scale_, height() / scale_);
        if (of == click_) return Click_MouseUp(MouseButton::Right);
        if (of == light_) return Light_MouseUp(MouseButton::Right);
        Pencil_MouseUp(MouseButton::Right);
    });
}

bool DeskView::eventFilter(QObject* watched, QEvent* event) {
    return rightClick(watched, *event) || pictureEnter(*event) || (watched == wizard_ && wizardMouse(*event));
}

// Enter solves or steps from a picture, too; it presses the picture only where there is nothing to run.
bool DeskView::pictureEnter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    bool run = false;
    stage_.perform([&run] { run = Picture_Enter(); });
    return run;
}

// The right button, and the key for menus while the picture has the keyboard.
bool DeskView::rightClick(QObject* watched, QEvent& event) {
    if (event.type() == QEvent::ContextMenu) {
        const auto& asked = static_cast<QContextMenuEvent&>(event);
        if (asked.reason() == QContextMenuEvent::Keyboard) askForMenu(watched, asked.globalPos());
        return true;
    }
    if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseButtonRelease) return false;
    const auto& mouse = static_cast<QMouseEvent&>(event);
    if (mouse.button() != Qt::RightButton) return false;
    if (event.type() == QEvent::MouseButtonRelease) askForMenu(watched, mouse.globalPosition().toPoint());
    return true;
}

QPointF DeskView::onDesk(const QPointF& global) const {
    return mapFromGlobal(global) / scale_;
}

// The assistant is dragged by its picture; a click is a short drag, and the logic says how short.
bool DeskView::wizardMouse(const QEvent& event) {
    const QEvent::Type type = event.type();
    const bool ours = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
                      type == QEvent::MouseMove || type == QEvent::MouseButtonRelease;
    if (!ours) return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    const QPointF at = onDesk(mouse.globalPosition()) - QPointF(frmPaper.Wizard.Left, frmPaper.Wizard.Top);
    if (type == QEvent::MouseMove) {
        if (dragged_) stage_.tick([&] { Wizard_MouseMove(at.x(), at.y()); });
    } else if (mouse.button() == Qt::LeftButton) {
        const bool released = type == QEvent::MouseButtonRelease;
        if (released && dragged_)
            stage_.perform([this] { Wizard_MouseUp(MouseButton::Left, width() / scale_, height() / scale_); });
        if (!released) Wizard_MouseDown(at.x(), at.y());
        dragged_ = !released;
    }
    return true;
}

}  // namespace ordwise
