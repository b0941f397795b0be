#include "GraphView.hpp"

#include "Art.hpp"
#include "DeskView.hpp"
#include "DisplayListPainter.hpp"
#include "FrameWindow.hpp"
#include "GraphCommands.hpp"
#include "GraphPlace.hpp"
#include "GraphWords.hpp"
#include "PictureFile.hpp"
#include "Printing.hpp"
#include "ScreenFit.hpp"
#include "Stage.hpp"
#include "StatusLine.hpp"
#include "Windows.hpp"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStandardPaths>
#include <QStatusBar>
#include <QWheelEvent>

#include <algorithm>

namespace ordwise {
namespace {

constexpr int wheelNotch = 120;

QColor colourOf(Colour colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

QSize wantedSize() {
    return QSizeF(frmGraph.Width, frmGraph.Height).toSize();
}

}  // namespace

void CoordinateRows::showRows(const std::vector<std::string>& rows) {
    if (rows == rows_) return;
    beginResetModel();
    rows_ = rows;
    endResetModel();
}

int CoordinateRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant CoordinateRows::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid()) return {};
    return qstringOf(rows_[static_cast<std::size_t>(index.row())]);
}

GraphCanvas::GraphCanvas(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Plot"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setMinimumSize(160, 160);
}

QSize GraphCanvas::sizeHint() const {
    return wantedSize();
}

void GraphCanvas::showChanges() {
    if (shown_ == frmGraph.drawn() && background_ == frmGraph.BackColor) return;
    shown_ = frmGraph.drawn();
    background_ = frmGraph.BackColor;
    setAccessibleName(qstringOf(graphDescription(frmGraph)));
    update();
}

void GraphCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), colourOf(background_));
    replay(shown_, painter);
    if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
    painter.setPen(QPen(palette().highlight(), 2));  // a style's own focus frame may tint the picture
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

GraphView::GraphView(FrameWindow& frame, Stage& stage)
    : QMainWindow(&frame),
      stage_(stage),
      canvas_(new GraphCanvas(this)),
      strip_(new QWidget(this)),
      list_(new QListView(strip_)),
      rows_(new CoordinateRows(this)),
      zoomIn_(new QPushButton(strip_)),
      zoomOut_(new QPushButton(strip_)),
      status_(new StatusLine(this)),
      coordinates_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmGraph"));
    setWindowIcon(artIcon("graph"));
    auto* centre = new QWidget(this);
    auto* row = new QHBoxLayout(centre);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(canvas_, 1);
    row->addWidget(strip_);
    setCentralWidget(centre);
    addStrip();
    addMenus();
    coordinates_->setObjectName(QStringLiteral("Coordinates"));
    statusBar()->addWidget(status_, 1);
    statusBar()->addPermanentWidget(coordinates_);
    setTabOrder(canvas_, list_);
    setTabOrder(list_, zoomIn_);
    setTabOrder(zoomIn_, zoomOut_);
    canvas_->installEventFilter(this);
    showControls();
    canvas_->setFocus();
    placeBeside(frame);
}

void GraphView::addStrip() {
    auto* column = new QVBoxLayout(strip_);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(list_, 1);
    column->addWidget(zoomIn_);
    column->addWidget(zoomOut_);
    list_->setObjectName(QStringLiteral("List1"));
    list_->setAccessibleName(QStringLiteral("Coordinates"));
    list_->setModel(rows_);
    list_->setUniformItemSizes(true);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int widest = list_->fontMetrics().horizontalAdvance(QStringLiteral("x=-81920  y=-81920.25"));
    list_->setFixedWidth(widest + list_->verticalScrollBar()->sizeHint().width() + 12);
    const std::tuple<QPushButton*, const Control*, const char*, void (*)()> buttons[] = {
        {zoomIn_, &frmGraph.Command1, "Zoom in (+)", mnuGraphZoomIn_Click},
        {zoomOut_, &frmGraph.Command2, "Zoom out (-)", mnuGraphZoomOut_Click}};
    for (const auto& [button, control, tip, routine] : buttons) {
        button->setText(qstringOf(control->Text));
        button->setToolTip(QString::fromLatin1(tip));
        connect(button, &QPushButton::clicked, this, [this, routine = routine] { run(routine); });
    }
}

void GraphView::addMenus() {
    addFileMenu();
    addEditMenu();
    addViewMenu();
    QMenu* quality = menuBar()->addMenu(QStringLiteral("&Quality"));
    addChecked(*quality, frmGraph.mnuGraphHighQuality, mnuGraphHighQuality_Click);
    addChecked(*quality, frmGraph.mnuGraphHighSpeed, mnuGraphHighSpeed_Click);
    QMenu* colors = menuBar()->addMenu(QStringLiteral("&Colors"));
    add(*colors, frmGraph.mnuGraphColor, mnuGraphColor_Click);
    add(*colors, frmGraph.mnuGraphGridColor, mnuGraphGridColor_Click);
    colors->addSeparator();
    add(*colors, frmGraph.mnuGraphDefault, mnuGraphDefault_Click);
    QMenu* size = menuBar()->addMenu(QStringLiteral("&Size"));
    add(*size, frmGraph.mnuGraphSmall, [this] { takeSize(mnuGraphSmall_Click); });
    add(*size, frmGraph.mnuGraphNormal, [this] { takeSize(mnuGraphNormal_Click); });
    add(*size, frmGraph.mnuGraphMax, [this] { takeSize(mnuGraphMax_Click); });
}

void GraphView::addFileMenu() {
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("Sa&ve Picture..."), QKeySequence::Save, this,
                    [this] { run([this] { savePicture(); }); });
    file->addSeparator();
    add(*file, frmGraph.mnuGraphPrint, [this] { print(); }, {QKeySequence::Print});
    add(*file, frmGraph.mnuGraphPrintSetup, mnuGraphPrintSetup_Click);
    file->addSeparator();
    add(*file, frmGraph.mnuGraphExit, mnuGraphExit_Click, {Qt::Key_Escape, QKeySequence::Close});
}

void GraphView::addEditMenu() {
    QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
    edit->addAction(QStringLiteral("&Copy Picture"), QKeySequence::Copy, this,
                    [this] { run([this] { copyPicture(); }); });
    edit->addAction(QStringLiteral("Copy C&oordinates"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), this,
                    [this] { run([this] { copyCoordinates(); }); });
}

void GraphView::addViewMenu() {
    QMenu* view = menuBar()->addMenu(QStringLiteral("&View"));
    add(*view, frmGraph.mnuGraphZoomIn, mnuGraphZoomIn_Click, {Qt::Key_Plus, Qt::Key_Equal, QKeySequence::ZoomIn});
    add(*view, frmGraph.mnuGraphZoomOut, mnuGraphZoomOut_Click, {Qt::Key_Minus, QKeySequence::ZoomOut});
    view->addSeparator();
    addChecked(*view, frmGraph.mnuGraphQuadrant, mnuGraphQuadrant_Click);
    addChecked(*view, frmGraph.mnuToggleCoordinates, mnuToggleCoordinates_Click);
    addChecked(*view, frmGraph.mnuToggleZoomButtons, mnuToggleZoomButtons_Click);
}

QAction* GraphView::add(QMenu& menu, const Control& control, std::function<void()> routine, const Keys& keys) {
    QAction* action = menu.addAction(qstringOf(control.Text));
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, [this, routine = std::move(routine)] { run(routine); });
    actions_.emplace_back(&control, action);
    return action;
}

void GraphView::addChecked(QMenu& menu, const Control& control, void (*routine)()) {
    add(menu, control, routine)->setCheckable(true);
}

void GraphView::placeBeside(const FrameWindow& frame) {
    const auto placeOn = [](const QRect& rect) {
        return WindowPlace{double(rect.x()), double(rect.y()), double(rect.width()), double(rect.height())};
    };
    const QSize around = frame.screen()->availableSize() - roomOnScreen(*this);
    const QRect wanted(QPoint(), sizeHint() + around);
    const int strip = strip_->isHidden() ? 0 : strip_->sizeHint().width();
    const WindowPlace place = placeOfGraph(placeOn(frame.screen()->availableGeometry()), placeOn(frame.frameGeometry()),
                                           frame.desk().sheetsEnd(), placeOn(wanted), strip + around.width());
    resize(QSizeF(place.width, place.height).toSize() - around);
    move(QPointF(place.left, place.top).toPoint());
}

QAction& GraphView::actionOf(const Control& menu) const {
    const auto found =
        std::find_if(actions_.begin(), actions_.end(), [&menu](const auto& entry) { return entry.first == &menu; });
    Q_ASSERT(found != actions_.end());
    return *found->second;
}

QPushButton& GraphView::button(const Control& control) const {
    return &control == &frmGraph.Command1 ? *zoomIn_ : *zoomOut_;
}

void GraphView::run(const std::function<void()>& routine) {
    stage_.perform(routine);
}

// Both windows tell the news of a command; a complaint stands out in the one that was asked.
void GraphView::tell(const QString& sentence, bool complaint) {
    frmMain.StatusText = sentence.toStdString();
    complaint_ = complaint ? frmMain.StatusText : std::string();
}

void GraphView::print() {
    if (!PrintTheGraph()) complaint_ = frmMain.StatusText;
}

// The picture that fills the screen has what the window's own parts leave of it.
void GraphView::takeSize(void (*routine)()) {
    if (isMaximized() || isFullScreen()) showNormal();
    const QSize around = frameGeometry().size() - canvas_->size();
    const QSize room = screen()->availableGeometry().size() - around;
    frmGraph.ScreenWidth = room.width();
    frmGraph.ScreenHeight = room.height();
    routine();
}

PictureSource GraphView::picture() const {
    const QSizeF size(frmGraph.Width, frmGraph.Height);
    return {qstringOf(graphTitle(frmGraph)), size, 1, [size](QPainter& painter, int) {
                painter.setClipRect(QRectF(QPointF(), size));
                painter.fillRect(QRectF(QPointF(), size), colourOf(frmGraph.BackColor));
                replay(frmGraph.drawn(), painter);
            }};
}

// As pixels and as shapes: the program that takes it chooses.
void GraphView::copyPicture() {
    auto* copied = new QMimeData;
    copied->setImageData(imageOf(picture()));
    copied->setData(QStringLiteral("image/svg+xml"), pictureBytes(picture(), QStringLiteral("svg")));
    QApplication::clipboard()->setMimeData(copied);
    tell(QStringLiteral("The picture is on the clipboard."), false);
}

// The lines chosen in the list, or all of them.
void GraphView::copyCoordinates() {
    QModelIndexList chosen = list_->selectionModel()->selectedIndexes();
    std::sort(chosen.begin(), chosen.end());
    QStringList lines;
    for (const QModelIndex& index : chosen) lines << index.data().toString();
    if (lines.isEmpty()) {
        for (const std::string& line : frmGraph.List1.List) lines << qstringOf(line);
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    tell(QStringLiteral("The coordinates are on the clipboard."), false);
}

void GraphView::savePicture() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const std::optional<std::string> file = platform.fileDialogs->fileToSave(
        {"Save Picture", "Pictures (.png, .svg, .pdf)|*.png *.svg *.pdf", "png", folder.toStdString(), "graph.png"});
    if (!file) return;
    const QString path = QFile::decodeName(QByteArray::fromStdString(*file));
    const QString trouble = writePicture(picture(), path);
    tell(trouble.isEmpty() ? QStringLiteral("The picture is in '%1'.").arg(path) : trouble, !trouble.isEmpty());
}

void GraphView::showChanges() {
    showControls();
    if (isVisible()) fitPicture();
    canvas_->showChanges();
    rows_->showRows(frmGraph.List1.List);
    const QString title = qstringOf(graphTitle(frmGraph));
    setWindowTitle(title.isEmpty() ? QStringLiteral("Graph") : title + QStringLiteral(" - Graph"));
    const std::string& news = frmMain.StatusText;
    status_->showSentence(qstringOf(news.empty() ? graphDescription(frmGraph) : news),
                          !news.empty() && news == complaint_);
}

void GraphView::showControls() {
    list_->setVisible(frmGraph.List1.Visible);
    zoomIn_->setVisible(frmGraph.Command1.Visible);
    zoomOut_->setVisible(frmGraph.Command2.Visible);
    strip_->setVisible(frmGraph.StripWidth > 0);
    for (const auto& [control, action] : actions_) {
        action->setEnabled(control->Enabled);
        action->setChecked(control->Checked);
    }
    actionOf(frmGraph.mnuToggleCoordinates).setChecked(frmGraph.List1.Visible);
    actionOf(frmGraph.mnuToggleZoomButtons).setChecked(frmGraph.Command1.Visible);
}

// The window takes the size that the picture has in the data; where the screen does not let it, the
// picture takes the size of the window.
void GraphView::fitPicture() {
    fitting_ = true;
    strip_->layout()->activate();  // it may have become narrower
    centralWidget()->layout()->activate();
    if (!isMaximized() && !isFullScreen() && canvas_->size() != wantedSize()) {
        const QSize around = frameGeometry().size() - size();
        resize((size() + wantedSize() - canvas_->size()).boundedTo(screen()->availableSize() - around));
        keepOnScreen();
    }
    fitting_ = false;
    if (canvas_->size() != wantedSize()) writeSize();
}

void GraphView::writeSize() {
    frmGraph.Width = canvas_->width();
    frmGraph.Height = canvas_->height();
    frmGraph_Resize();
}

void GraphView::keepOnScreen() {
    const QRect room = screen()->availableGeometry();
    const QRect place = frameGeometry();
    const QPoint corner(std::max(room.left(), std::min(place.left(), room.right() + 1 - place.width())),
                        std::max(room.top(), std::min(place.top(), room.bottom() + 1 - place.height())));
    if (corner != place.topLeft()) move(corner);
}

void GraphView::turnWheel(int turned) {
    wheel_ += turned;
    for (; wheel_ >= wheelNotch; wheel_ -= wheelNotch) run(mnuGraphZoomIn_Click);
    for (; wheel_ <= -wheelNotch; wheel_ += wheelNotch) run(mnuGraphZoomOut_Click);
}

bool GraphView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != canvas_) return QMainWindow::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::Resize:
            if (!fitting_ && frmGraph.Loaded) stage_.tick([this] { writeSize(); });
            break;
        case QEvent::Wheel: turnWheel(static_cast<QWheelEvent*>(event)->angleDelta().y()); return true;
        case QEvent::MouseMove: {
            // Nothing else changes by it, so the desk is not shown anew at every pixel.
            const QPointF at = static_cast<QMouseEvent*>(event)->position();
            frmGraph_MouseMove(at.x(), at.y());
            coordinates_->setText(qstringOf(frmGraph.StatusText));
            break;
        }
        case QEvent::Leave: coordinates_->clear(); break;
        default: break;
    }
    return false;
}

void GraphView::closeEvent(QCloseEvent* event) {
    if (frmGraph.Loaded) stage_.perform(mnuGraphExit_Click);
    event->accept();
}

}  // namespace ordwise
