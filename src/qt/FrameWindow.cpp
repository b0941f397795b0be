#include "FrameWindow.hpp"

#include "Art.hpp"
#include "DeskEvents.hpp"
#include "DeskView.hpp"
#include "FrameCommands.hpp"
#include "FrameMenus.hpp"
#include "Mnemonics.hpp"
#include "Motion.hpp"
#include "RecentMenu.hpp"
#include "RecentProblems.hpp"
#include "SheetView.hpp"
#include "Shortcuts.hpp"
#include "ShownLines.hpp"
#include "StatusLine.hpp"
#include "WelcomeCard.hpp"
#include "Workspace.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMimeData>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

namespace ordwise {
namespace {

// e.g. "homework.hvx - Solving Equations - Ordwise"
QString titleOfDesk() {
    QStringList parts;
    const QString file = qstringOf(problemFileOnDesk());
    if (!file.isEmpty()) parts << QFileInfo(file).fileName();
    if (frmPaper.Loaded) parts << qstringOf(ws.TopicName);
    parts << qstringOf(frmMain.Caption);
    return parts.join(QStringLiteral(" - "));
}

// From the largest to the smallest.
struct ToolLook {
    bool words;
    int iconSide;
};
constexpr ToolLook toolLooks[] = {{true, 32}, {false, 32}, {false, 22}};

// e.g. ("Solve!", F5) -> "Solve! (F5)"
QString withShortcut(const QString& tip, const QAction* command) {
    const QString keys = command == nullptr ? QString() : command->shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? tip : tip + QStringLiteral(" (") + keys + QLatin1Char(')');
}

// The one file that is dragged, "" for anything else.
QString draggedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

}  // namespace

FrameWindow::FrameWindow()
    : before_(platform), desk_(nullptr), scroll_(new QScrollArea(this)), status_(new StatusLine(this)) {
    platform = Platform{};
    platform.dialogs = &dialogs_;
    platform.windows = &windows_;
    platform.clock = &clock_;
    platform.browser = &browser_;
    platform.systemReport = &systemReport_;
    platform.colours = &colours_;
    platform.files = &files_;
    platform.printer = &printer_;
    platform.fileDialogs = &fileDialogs_;
    platform.folders = userFolders(environmentValue);
    memory_ = FrameMemory(qstringOf(platform.folders.state));
    dialogs_.parent = this;
    fileDialogs_.parent = this;
    printer_.parent = this;
    dialogs_.beforeDialog = [this] { stage_.show(); };
    stage_.showChanges = [this] {
        showChanges();
        windows_.showChanges();
    };
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(qstringOf(frmMain.Caption));
    setWindowIcon(artIcon("ordwise"));
    desk_ = new DeskView(nullptr, stage_);
    desk_->setSteady(memory_.steadySignals().value_or(reducedMotionWanted()));
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(desk_);
    scroll_->viewport()->installEventFilter(this);
    setCentralWidget(scroll_);
    statusBar()->addWidget(status_, 1);
    addMenus();
    giveMnemonics();
    addToolbar();
    welcome_ = new WelcomeCard(desk_, actionOf(frmMain.mnuNew), actionOf(frmMain.mnuLoad),
                               actionOf(frmMain.mnuPracticeTest), actionOf(frmMain.mnuHelpTopics));
    setAcceptDrops(true);
    takePlace();
    showChanges();
    welcome_->takeKeys();
}

void FrameWindow::takePlace() {
    if (memory_.restorePlace(*this)) return;
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(1120, 930).boundedTo(screen * 0.95));
}

FrameWindow::~FrameWindow() {
    stage_.showChanges = nullptr;
    dialogs_.beforeDialog = nullptr;
    platform = before_;
}

void FrameWindow::addMenus() {
    for (const MenuTable& table : frameMenus()) {
        if (table.title == &frmMain.mnuHelp) addViewMenu();  // Help stands last
        addMenuRows(*menuBar()->addMenu(qstringOf(table.title->Text)), table.rows);
    }
}

// Within the bar and within each menu no two commands share their letter.
void FrameWindow::giveMnemonics() {
    giveOwnMnemonics(*menuBar());
    for (QAction* menu : menuBar()->actions()) giveOwnMnemonics(*menu->menu());
}

void FrameWindow::addMenuRows(QMenu& menu, const std::vector<MenuRow>& rows) {
    menu.setToolTipsVisible(true);
    for (const MenuRow& row : rows) addMenuRow(menu, row);
}

void FrameWindow::addMenuRow(QMenu& menu, const MenuRow& row) {
    if (row.control == nullptr) {
        menu.addSeparator();
        return;
    }
    if (!row.below.empty()) {
        addMenuRows(*menu.addMenu(qstringOf(row.control->Text)), row.below);
        return;
    }
    if (row.control == &frmMain.mnuRecent) {
        menu.addMenu(new RecentMenu(&menu, stage_));
        return;
    }
    QAction* action = menu.addAction(qstringOf(row.control->Text));
    action->setShortcut(QKeySequence(qstringOf(keysOf(*row.control))));
    action->setToolTip(qstringOf(row.control->Text).remove(QLatin1Char('&')));
    action->setCheckable(row.checkable);
    if (row.control == &frmMain.mnuExit) {
        connect(action, &QAction::triggered, this, &QWidget::close);
    } else {
        connect(action, &QAction::triggered, this, [this, row] { stage_.perform(row.routine); });
    }
    menuActions_.emplace_back(row.control, action);
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
    connect(steady, &QAction::toggled, this, [this](bool on) {
        desk_->setSteady(on);
        memory_.keepSteadySignals(on);
    });
    words_ = view->addAction(QStringLiteral("&Words on Buttons"));
    words_->setCheckable(true);
    words_->setChecked(memory_.wordsOnButtons().value_or(true));
    words_->setObjectName(QStringLiteral("wordsOnButtons"));
    connect(words_, &QAction::toggled, this, [this](bool on) {
        memory_.keepWordsOnButtons(on);
        fitToolbar();
    });
    desk_->setNotes(memory_.notesBesideLines());
    QAction* notes = view->addAction(QStringLiteral("Explanations Beside the &Lines"));
    notes->setCheckable(true);
    notes->setChecked(desk_->notes());
    notes->setObjectName(QStringLiteral("notesBesideLines"));
    connect(notes, &QAction::toggled, this, [this](bool on) {
        desk_->setNotes(on);
        memory_.keepNotesBesideLines(on);
        stage_.perform([on] { notesWished(on); });
    });
}

void FrameWindow::zoomBy(double factor) {
    desk_->setZoom(desk_->zoom() * factor);
    followLine();
}

void FrameWindow::addToolbar() {
    toolbar_ = addToolBar(QStringLiteral("Toolbar"));
    toolbar_->setObjectName(QStringLiteral("Toolbar1"));
    toolbar_->setMovable(false);
    toolbar_->setContextMenuPolicy(Qt::PreventContextMenu);  // it would offer to hide it for good
    int last = 0;
    for (const ToolRow& row : toolbarRows()) {
        if (last != 0 && row.button > last + 1) toolbar_->addSeparator();
        last = row.button;
        const ToolbarButton& button = frmMain.Toolbar1[row.button];
        QAction* action = toolbar_->addAction(artIcon(button.Image), qstringOf(button.ToolTip));
        action->setObjectName(qstringOf(button.Key));
        action->setIconText(qstringOf(button.Caption));
        action->setProperty("image", qstringOf(button.Image));
        connect(action, &QAction::triggered, this, [this, row] { stage_.perform(row.routine); });
        toolActions_.emplace_back(row.button, action);
    }
    for (std::size_t look = 0; look < std::size(toolLooks); ++look) {
        wearLook(look);
        lookWidths_[look] = toolbar_->sizeHint().width();
    }
}

void FrameWindow::wearLook(std::size_t look) {
    toolbar_->setToolButtonStyle(toolLooks[look].words ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    toolbar_->setIconSize(QSize(toolLooks[look].iconSide, toolLooks[look].iconSide));
}

// Every button in view: words where they are wanted and there is room for them.
void FrameWindow::fitToolbar() {
    std::size_t look = words_->isChecked() ? 0 : 1;
    while (look + 1 < std::size(toolLooks) && lookWidths_[look] > width()) ++look;
    wearLook(look);
}

void FrameWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    fitToolbar();
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

// The menu command that does what the button does.
QAction* FrameWindow::commandOf(int button) const {
    const Control* control = commandOfButton(button);
    return control == nullptr ? nullptr : actionOf(*control);
}

void FrameWindow::showChanges() {
    setWindowTitle(titleOfDesk());
    for (const auto& [control, action] : menuActions_) {
        action->setEnabled(control->Enabled);
        if (action->isCheckable()) action->setChecked(control->Checked);
    }
    for (const auto& [index, action] : toolActions_) {
        const ToolbarButton& button = frmMain.Toolbar1[index];
        action->setEnabled(button.Enabled);
        const QString tip = qstringOf(button.ToolTip);
        if (action->property("tip").toString() != tip) {  // to name the shortcut is dear at every key
            action->setProperty("tip", tip);
            action->setToolTip(withShortcut(tip, commandOf(index)));
        }
        if (action->property("image").toString() == qstringOf(button.Image)) continue;
        action->setProperty("image", qstringOf(button.Image));
        action->setIcon(artIcon(button.Image));
    }
    status_->showSentence(qstringOf(ordwise::statusLine()), statusIsRefusal());
    desk_->showChanges();
    welcome_->showChanges();
    if (frmPaper.Loaded && sheetInView_ != ws.CurrentSheet) {
        sheetInView_ = ws.CurrentSheet;
        followLine();
    }
    followChoice();
}

// The same for a line that was chosen, and for a sheet that was fetched.
void FrameWindow::followChoice() {
    const int front = sheetInFront();
    const bool chosen = frmPaper.ChosenLine != chosenInView_ && frmPaper.ChosenLine >= 0;
    const bool fetched = front != frontInView_;
    chosenInView_ = frmPaper.ChosenLine;
    frontInView_ = front;
    const double scale = desk_->scale();
    const Sheet& sheet = frmPaper.Paper[front];
    if (chosen) {
        const ShownLine& line = frmPaper.Lines[static_cast<std::size_t>(frmPaper.ChosenLine)];
        scroll_->ensureVisible(static_cast<int>((sheet.Left + 54) * scale),
                               static_cast<int>((sheet.Top + line.Bottom) * scale), 60, 60);
        scroll_->ensureVisible(static_cast<int>((sheet.Left + 54) * scale),
                               static_cast<int>((sheet.Top + line.Top) * scale), 60, 60);
    } else if (fetched && frmPaper.Loaded) {
        scroll_->ensureVisible(static_cast<int>(sheet.Left * scale), static_cast<int>(sheet.Top * scale), 20, 20);
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

void FrameWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

// The file manager that the file comes from waits until the drop has been answered, so the problem is
// solved after that.
void FrameWindow::dropEvent(QDropEvent* event) {
    const std::string path = QFile::encodeName(draggedFile(*event->mimeData())).toStdString();
    event->setDropAction(Qt::CopyAction);  // whoever moves a file deletes it once it was taken
    event->accept();
    QTimer::singleShot(0, this, [this, path] { stage_.perform([&path] { openProblemFile(path); }); });
}

void FrameWindow::closeEvent(QCloseEvent* event) {
    memory_.keepPlace(*this);
    QMainWindow::closeEvent(event);
}

bool FrameWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == scroll_->viewport() && event->type() == QEvent::Resize)
        desk_->setViewport(scroll_->maximumViewportSize());
    return QMainWindow::eventFilter(watched, event);
}

void FrameWindow::showFreshSheets() {
    sheetInView_ = 0;
    stage_.show();
    status_->startAfresh();
    desk_->orderTabs();
    desk_->takeKeys();
}

}  // namespace ordwise
