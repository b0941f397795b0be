#include "FrameWindow.hpp"

#include "Art.hpp"
#include "ChooserDialog.hpp"
#include "DeskEvents.hpp"
#include "DeskView.hpp"
#include "FrameCommands.hpp"
#include "Motion.hpp"
#include "SavedProblems.hpp"
#include "SheetView.hpp"
#include "StatusLine.hpp"
#include "WindowRoutines.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>

namespace ordwise {
namespace {

using Routine = void (*)();

// A menu entry: its control, what it runs, its keys. Without a routine it is not there yet, and its
// tool tip says so; without a control it separates.
struct MenuRow {
    const Control* control;
    Routine routine;
    QKeySequence keys;
};

struct ToolRow {
    int button;
    Routine routine;
};

constexpr const char* notYet = "This command is not part of this version yet.";

template <char character>
void insertKey() {
    constexpr char text[] = {character, '\0'};
    insertCharacter(text);
}

std::vector<MenuRow> fileMenu() {
    return {{&frmMain.mnuNew, mnuNew_Click, QKeySequence::New},
            {},
            {&frmMain.mnuPrint, nullptr, QKeySequence::Print},
            {&frmMain.mnuPrintSetup, nullptr, {}},
            {},
            {&frmMain.mnuSave, mnuSave_Click, QKeySequence::Save},
            {&frmMain.mnuLoad, mnuLoad_Click, QKeySequence::Open},
            {}};
}

std::vector<MenuRow> toolsMenu() {
    return {{&frmMain.mnuSolve, mnuSolve_Click, Qt::Key_F5},
            {&frmMain.mnuExample, mnuExample_Click, Qt::Key_F6},
            {&frmMain.mnuErase, mnuErase_Click, QKeySequence(Qt::CTRL | Qt::Key_Delete)},
            {},
            {&frmMain.mnuGraph, nullptr, {}},
            {&frmMain.mnuPracticeTest, nullptr, {}},
            {},
            {&frmMain.mnuExp, mnuExp_Click, Qt::Key_F2}};
}

std::vector<MenuRow> functionsMenu() {
    return {{&frmMain.mnuSquareRoot, insertKey<'~'>, QKeySequence(Qt::CTRL | Qt::Key_R)},
            {&frmMain.mnuExponet, insertKey<'^'>, QKeySequence(Qt::CTRL | Qt::Key_E)},
            {&frmMain.mnuAbsValue, insertKey<'|'>, {}},
            {},
            {&frmMain.mnuAddition, insertKey<'+'>, {}},
            {&frmMain.mnuSubtraction, insertKey<'-'>, {}},
            {&frmMain.mnuMultiplication, insertKey<'*'>, {}},
            {&frmMain.mnuDivision, insertKey<'/'>, {}},
            {},
            {&frmMain.mnuConvertDF, mnuConvertDF_Click, {}}};
}

std::vector<MenuRow> optionsMenu() {
    return {{&frmMain.mnuPencil, mnuPencil_Click, {}},
            {&frmMain.mnuShowStep, mnuShowStep_Click, {}},
            {&frmMain.mnuHideWiz, mnuHideWiz_Click, {}},
            {&frmMain.mnuShowLight, mnuShowLight_Click, {}},
            {},
            {&frmMain.mnuChange, nullptr, {}}};
}

bool isCheckable(const Control& menu) {
    return &menu == &frmMain.mnuPencil || &menu == &frmMain.mnuShowStep || &menu == &frmMain.mnuHideWiz ||
           &menu == &frmMain.mnuShowLight;
}

const ToolRow toolRows[] = {{MainWindow::buttonNew, mnuNew_Click},     {MainWindow::buttonSave, mnuSave_Click},
                            {MainWindow::buttonOpen, mnuLoad_Click},   {MainWindow::buttonPrint, nullptr},
                            {MainWindow::buttonPractice, nullptr},     {MainWindow::buttonGraph, nullptr},
                            {MainWindow::buttonSolve, mnuSolve_Click}, {MainWindow::buttonExample, mnuExample_Click},
                            {MainWindow::buttonClear, mnuErase_Click}, {MainWindow::buttonRoot, insertKey<'~'>},
                            {MainWindow::buttonPower, insertKey<'^'>}, {MainWindow::buttonFracdec, mnuConvertDF_Click},
                            {MainWindow::buttonWeb, nullptr}};

bool landed(int button) {
    for (const ToolRow& row : toolRows) {
        if (row.button == button) return row.routine != nullptr;
    }
    return false;
}

}  // namespace

FrameWindow::FrameWindow()
    : before_(platform), desk_(nullptr), scroll_(new QScrollArea(this)), status_(new StatusLine(this)) {
    platform = Platform{};
    platform.dialogs = &dialogs_;
    platform.windows = &windows_;
    platform.clock = &clock_;
    platform.files = &files_;
    platform.fileDialogs = &fileDialogs_;
    platform.folders = userFolders(environmentValue);
    dialogs_.parent = this;
    fileDialogs_.parent = this;
    dialogs_.beforeDialog = [this] { stage_.show(); };
    stage_.showChanges = [this] { showChanges(); };
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(qstringOf(frmMain.Caption));
    setWindowIcon(artIcon("ordwise"));
    desk_ = new DeskView(nullptr, stage_);
    desk_->setSteady(reducedMotionWanted());
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(desk_);
    scroll_->viewport()->installEventFilter(this);
    setCentralWidget(scroll_);
    statusBar()->addWidget(status_, 1);
    addMenus();
    addToolbar();
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(1120, 930).boundedTo(screen * 0.95));
    showChanges();
    desk_->setFocus();
}

FrameWindow::~FrameWindow() {
    stage_.showChanges = nullptr;
    dialogs_.beforeDialog = nullptr;
    platform = before_;
}

void FrameWindow::addMenus() {
    const std::pair<const Control*, std::vector<MenuRow>> menus[] = {{&frmMain.mnuFile, fileMenu()},
                                                                     {&frmMain.mnuCreate, toolsMenu()},
                                                                     {&frmMain.mnuSpecial, functionsMenu()},
                                                                     {&frmMain.mnuOptions, optionsMenu()}};
    for (const auto& [title, rows] : menus) {
        QMenu* menu = menuBar()->addMenu(qstringOf(title->Text));
        menu->setToolTipsVisible(true);
        for (const MenuRow& row : rows) {
            if (row.control == nullptr) {
                menu->addSeparator();
                continue;
            }
            QAction* action = menu->addAction(qstringOf(row.control->Text));
            action->setShortcut(row.keys);
            action->setCheckable(isCheckable(*row.control));
            action->setData(row.routine != nullptr);
            if (const Routine routine = row.routine)
                connect(action, &QAction::triggered, this, [this, routine] { stage_.perform(routine); });
            menuActions_.emplace_back(row.control, action);
        }
        if (title == &frmMain.mnuFile) {
            QAction* exit = menu->addAction(qstringOf(frmMain.mnuExit.Text), QKeySequence::Quit, this, &QWidget::close);
            exit->setData(true);
            menuActions_.emplace_back(&frmMain.mnuExit, exit);
        }
    }
    addViewMenu();
    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    help->setToolTipsVisible(true);
    for (const char* entry : {"Help Topics", "&About Ordwise"}) {
        QAction* action = help->addAction(QString::fromLatin1(entry));
        action->setEnabled(false);
        action->setToolTip(QString::fromLatin1(notYet));
    }
}

void FrameWindow::addViewMenu() {
    QMenu* view = menuBar()->addMenu(QStringLiteral("&View"));
    QAction* larger = view->addAction(QStringLiteral("Zoom &In"), this, [this] { zoomBy(1.2); });
    larger->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    view->addAction(QStringLiteral("Zoom &Out"), QKeySequence(Qt::CTRL | Qt::Key_Minus), this,
                    [this] { zoomBy(1 / 1.2); });
    view->addAction(QStringLiteral("&Fit to Window"), QKeySequence(Qt::CTRL | Qt::Key_0), this,
                    [this] { desk_->setZoom(1); });
    view->addSeparator();
    QAction* steady = view->addAction(QStringLiteral("&Steady Signals"));
    steady->setCheckable(true);
    steady->setChecked(desk_->steady());
    steady->setObjectName(QStringLiteral("steadySignals"));
    connect(steady, &QAction::toggled, this, [this](bool on) { desk_->setSteady(on); });
}

void FrameWindow::zoomBy(double factor) {
    desk_->setZoom(desk_->zoom() * factor);
    followLine();
}

void FrameWindow::addToolbar() {
    toolbar_ = addToolBar(QStringLiteral("Toolbar"));
    toolbar_->setObjectName(QStringLiteral("Toolbar1"));
    toolbar_->setMovable(false);
    toolbar_->setIconSize(QSize(32, 32));
    int last = 0;
    for (const ToolRow& row : toolRows) {
        if (last != 0 && row.button > last + 1) toolbar_->addSeparator();
        last = row.button;
        const ToolbarButton& button = frmMain.Toolbar1[row.button];
        QAction* action = toolbar_->addAction(artIcon(button.Image), qstringOf(button.ToolTip));
        action->setObjectName(qstringOf(button.Key));
        action->setProperty("image", qstringOf(button.Image));
        if (const Routine routine = row.routine)
            connect(action, &QAction::triggered, this, [this, routine] { stage_.perform(routine); });
        toolActions_.emplace_back(row.button, action);
    }
}

QAction* FrameWindow::actionOf(const Control& menu) const {
    for (const auto& [control, action] : menuActions_) {
        if (control == &menu) return action;
    }
    return nullptr;
}

QAction* FrameWindow::toolbarAction(int button) const {
    for (const auto& [index, action] : toolActions_) {
        if (index == button) return action;
    }
    return nullptr;
}

void FrameWindow::showAction(QAction& action, bool enabled, const QString& tip, bool isLanded) {
    action.setEnabled(enabled && isLanded);
    action.setToolTip(isLanded ? tip : tip + QStringLiteral("\n") + QString::fromLatin1(notYet));
}

void FrameWindow::showChanges() {
    setWindowTitle(qstringOf(frmPaper.Loaded ? ws.TopicName + " - " + frmMain.Caption : frmMain.Caption));
    for (const auto& [control, action] : menuActions_) {
        QString tip = action->text();
        tip.remove(QLatin1Char('&'));
        showAction(*action, control->Enabled, tip, action->data().toBool());
        if (action->isCheckable()) action->setChecked(control->Checked);
    }
    for (const auto& [index, action] : toolActions_) {
        const ToolbarButton& button = frmMain.Toolbar1[index];
        showAction(*action, button.Enabled, qstringOf(button.ToolTip), landed(index));
        if (action->property("image").toString() == qstringOf(button.Image)) continue;
        action->setProperty("image", qstringOf(button.Image));
        action->setIcon(artIcon(button.Image));
    }
    const bool refused = frmPaper.Loaded && frmPaper.Light.Image == "light3";
    status_->showSentence(qstringOf(ordwise::statusLine()), refused);
    desk_->showChanges();
    if (frmPaper.Loaded && sheetInView_ != ws.CurrentSheet) {
        sheetInView_ = ws.CurrentSheet;
        followLine();
    }
}

// The end of the last line stays in view when the desk is larger than the window.
void FrameWindow::followLine() {
    if (!frmPaper.Loaded) return;
    const Sheet& sheet = frmPaper.Paper[ws.CurrentSheet];
    const double scale = desk_->scale();
    scroll_->ensureVisible(static_cast<int>((sheet.Left + ws.LineEndX) * scale),
                           static_cast<int>((sheet.Top + ws.LineEndY) * scale), 160, 120);
}

bool FrameWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == scroll_->viewport() && event->type() == QEvent::Resize)
        desk_->setViewport(scroll_->maximumViewportSize());
    return QMainWindow::eventFilter(watched, event);
}

void FrameWindow::Windows::show(std::string_view name) {
    loadWindow(name);
    if (name == "frmSelect") frame_.runChooser();
    if (name == "frmPaper") {
        frame_.sheetInView_ = 0;
        frame_.stage_.show();
        frame_.desk_->takeKeys();
    }
}

void FrameWindow::Windows::unload(std::string_view name) {
    unloadWindow(name);
}

void FrameWindow::runChooser() {
    ChooserDialog dialog(this);
    chooser_ = &dialog;
    dialog.exec();
    chooser_ = nullptr;
    unloadWindow("frmSelect");
}

}  // namespace ordwise
