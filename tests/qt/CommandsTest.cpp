// Every command of the menus and the toolbar, in an empty frame and with an open, a solved and an
// erased problem: whether it is offered, and what it opens.
#include "DeskFixture.hpp"

#include "Catalogue.hpp"
#include "DeskView.hpp"
#include "FrameMenus.hpp"
#include "FreshProgram.hpp"
#include "GuidedInput.hpp"
#include "PlainPlatform.hpp"
#include "PopUpMenu.hpp"
#include "SolveDriver.hpp"
#include "Stage.hpp"
#include "WorksheetErase.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include <set>

namespace ordwise::test {
namespace {

enum State { Empty, Open, Solved, Erased };
constexpr State states[] = {Empty, Open, Solved, Erased};
constexpr const char* stateNames[] = {"empty frame", "open problem", "solved problem", "erased problem"};

struct CommandRow {
    const Control* menu;     // null for a button
    int button;              // of the toolbar, 0 for a menu command
    const char* offered;     // a letter a state: "x" offered, "." grey
    const char* opens = "";  // the window, dialog or page, "" for none
};

// clang-format off
const CommandRow commands[] = {
    {&frmMain.mnuNew,            0, "xxxx", "frmSelect"},
    {&frmMain.mnuPrint,          0, "..x.", "frmPrintSetup"},
    {&frmMain.mnuPrintSetup,     0, "..x.", "printer"},
    {&frmMain.mnuSave,           0, "..x.", "QFileDialog"},
    {&frmMain.mnuLoad,           0, "xxxx", "QFileDialog"},
    {&frmMain.mnuClose,          0, ".xxx"},
    {&frmMain.mnuExit,           0, "xxxx"},
    {&frmMain.mnuUndo,           0, "...."},
    {&frmMain.mnuRedo,           0, "...."},
    {&frmMain.mnuSolve,          0, "...."},
    {&frmMain.mnuExample,        0, ".xxx"},
    {&frmMain.mnuErase,          0, ".xxx", "QMessageBox"},
    {&frmMain.mnuGraph,          0, "..x.", "frmGraph"},
    {&frmMain.mnuPracticeTest,   0, "xxxx", "frmPracticeTest"},
    {&frmMain.mnuExp,            0, ".xxx", "frmExplain"},
    {&frmMain.mnuSquareRoot,     0, "...."},
    {&frmMain.mnuExponet,        0, "...."},
    {&frmMain.mnuAbsValue,       0, "...."},
    {&frmMain.mnuAddition,       0, ".xxx"},
    {&frmMain.mnuSubtraction,    0, ".xxx"},
    {&frmMain.mnuMultiplication, 0, "...."},
    {&frmMain.mnuDivision,       0, "...."},
    {&frmMain.mnuConvertDF,      0, "xxxx"},
    {&frmMain.mnuPencil,         0, "xxxx"},
    {&frmMain.mnuShowStep,       0, "xxxx"},
    {&frmMain.mnuHideWiz,        0, "xxxx"},
    {&frmMain.mnuShowLight,      0, "xxxx"},
    {&frmMain.mnuChange,         0, "xxxx", "frmOptions"},
    {&frmMain.mnuHelpTopics,     0, "xxxx", "frmHelp"},
    {&frmMain.mnuShortcuts,      0, "xxxx", "frmShortcuts"},
    {&frmMain.mnuAlgSol,         0, "xxxx", "https://www.halvern.example/ordwise/"},
    {&frmMain.mnuHomePage,       0, "xxxx", "https://www.halvern.example/"},
    {&frmMain.mnuOnlineSupport,  0, "xxxx", "https://www.halvern.example/ordwise/support/"},
    {&frmMain.mnuAbout,          0, "xxxx", "frmAbout"},
    {nullptr, MainWindow::buttonNew,      "xxxx", "frmSelect"},
    {nullptr, MainWindow::buttonSave,     "..x.", "QFileDialog"},
    {nullptr, MainWindow::buttonOpen,     "xxxx", "QFileDialog"},
    {nullptr, MainWindow::buttonPrint,    "..x.", "frmPrintSetup"},
    {nullptr, MainWindow::buttonPractice, "xxxx", "frmPracticeTest"},
    {nullptr, MainWindow::buttonGraph,    "..x.", "frmGraph"},
    {nullptr, MainWindow::buttonSolve,    "...."},
    {nullptr, MainWindow::buttonExample,  ".xxx"},
    {nullptr, MainWindow::buttonClear,    ".xxx", "QMessageBox"},
    {nullptr, MainWindow::buttonRoot,     "...."},
    {nullptr, MainWindow::buttonPower,    "...."},
    {nullptr, MainWindow::buttonFracdec,  "xxxx"},
    {nullptr, MainWindow::buttonWeb,      "xxxx", "https://www.halvern.example/"},
};
// clang-format on

class Commands : public DeskTest {
protected:
    Commands() {
        platform.browser = &browser_;
        platform.printer = &printer_;
        child<QAction>("steadySignals").setChecked(true);
        QObject::connect(&closer_, &QTimer::timeout, frame.get(), [this] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) return;
            const QString name = dialog->objectName();
            opened_ = name.startsWith(QStringLiteral("frm")) ? name.toStdString() : dialog->metaObject()->className();
            dialog->close();
        });
        closer_.start(1);
    }

    // A topic whose signs are few and that offers a graph without opening it.
    void prepare(State state, const char* topic = "Calculating A Point's Quadrant", std::string_view keys = "(3,4)") {
        if (frmPaper.Loaded) platform.windows->unload("frmPaper");
        startFreshProgram();
        if (state != Empty) {
            TreeViewSelect(topic);
            platform.windows->show("frmPaper");
        }
        if (state == Solved || state == Erased) {
            for (const char key : keys) Form_KeyPress(std::string(1, key));
            EXPECT_TRUE(frmMain.mnuSolve.Enabled);
            compute_Click();
        }
        if (state == Erased) eraseWorksheet();
        frame->showChanges();
    }

    QAction* actionOf(const CommandRow& row) const {
        return row.menu != nullptr ? frame->actionOf(*row.menu) : frame->toolbarAction(row.button);
    }

    // What the action opens; it is closed again.
    std::string openedBy(QAction& action) {
        opened_.clear();
        browser_.addresses.clear();
        printer_.setups = 0;
        action.trigger();
        if (!frame->isVisible()) frame->show();  // Exit
        for (const char* window : {"frmGraph", "frmHelp", "frmShortcuts", "frmExplain"}) {
            const QWidget* shown = frame->findChild<QWidget*>(QString::fromLatin1(window));
            if (shown != nullptr && shown->isVisible()) opened_ = window;
            platform.windows->unload(window);
        }
        if (!browser_.addresses.empty()) opened_ = browser_.addresses.front();
        if (printer_.setups > 0) opened_ = "printer";
        return opened_;
    }

private:
    PlainBrowser browser_;
    PlainPrinter printer_;
    QTimer closer_;
    std::string opened_;
};

std::string nameOf(const CommandRow& row) {
    return row.menu != nullptr ? row.menu->Text : "button " + frmMain.Toolbar1[row.button].Key;
}

TEST_F(Commands, AreOfferedAndOpenTheirWindowsInEveryStateOfTheDesk) {
    for (const State state : states) {
        for (const CommandRow& row : commands) {
            SCOPED_TRACE(std::string(stateNames[state]) + ", " + nameOf(row));
            prepare(state);
            QAction* action = actionOf(row);
            ASSERT_NE(action, nullptr);
            EXPECT_EQ(action->isEnabled(), row.offered[state] == 'x');
            EXPECT_FALSE(action->toolTip().isEmpty());
            if (!action->isEnabled()) continue;
            EXPECT_EQ(openedBy(*action), row.opens);
        }
    }
}

// Every action below a menu, those of menus within it included; recent files are no commands.
void collect(const QMenu& menu, std::set<QAction*>& found) {
    for (QAction* action : menu.actions()) {
        if (action->menu() != nullptr) {
            if (action->menu()->objectName() == QStringLiteral("mnuRecent")) continue;
            collect(*action->menu(), found);
        } else if (!action->isSeparator()) {
            found.insert(action);
        }
    }
}

TEST_F(Commands, OfTheTableAreAllThatThereAre) {
    std::set<QAction*> found;
    for (QAction* menu : frame->menuBar()->actions()) {
        const bool ownMenu = menu->text() == QStringLiteral("&View");
        if (!ownMenu) collect(*menu->menu(), found);
    }
    for (const ToolRow& row : toolbarRows()) found.insert(frame->toolbarAction(row.button));
    for (const CommandRow& row : commands) {
        EXPECT_EQ(found.erase(actionOf(row)), 1U) << nameOf(row);
    }
    EXPECT_TRUE(found.empty()) << (*found.begin())->text().toStdString();
}

struct SignRow {
    const Control* menu;
    int button;
    const char* topic;
    const char* typed;
    const char* problem;  // on the paper after the command
};

TEST_F(Commands, OfFunctionsAreKeysTyped) {
    const SignRow rows[] = {
        {&frmMain.mnuSquareRoot, 0, "Calculating Roots", "3", "3~"},
        {nullptr, MainWindow::buttonRoot, "Calculating Roots", "3", "3~"},
        {&frmMain.mnuExponet, 0, "Calculating With Exponents", "3", "3^"},
        {nullptr, MainWindow::buttonPower, "Calculating With Exponents", "3", "3^"},
        {&frmMain.mnuAbsValue, 0, "Absolute Values", "", "|"},
        {&frmMain.mnuAddition, 0, "Arithmetic", "3", "3+"},
        {&frmMain.mnuSubtraction, 0, "Arithmetic", "3", "3-"},
        {&frmMain.mnuMultiplication, 0, "Arithmetic", "3", "3*"},
        {&frmMain.mnuDivision, 0, "Arithmetic", "3", "3/"},
    };
    for (const SignRow& row : rows) {
        SCOPED_TRACE(row.problem);
        prepare(Open, row.topic);
        for (const char key : std::string_view(row.typed)) Form_KeyPress(std::string(1, key));
        (row.menu != nullptr ? frame->actionOf(*row.menu) : frame->toolbarAction(row.button))->trigger();
        EXPECT_EQ(frmPaper.Light.Image, "light2") << ws.ExplainOverrideText;
        EXPECT_EQ(ImplodeInput(), row.problem);
    }
}

TEST_F(Commands, OfThePopUpMenusChangeWhatTheyName) {
    prepare(Open);
    const auto choose = [this](const MenuTable& table, const QString& entry) {
        Stage stage;
        showPopUp(table, frame->desk(), stage, QPoint(40, 40));
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions()) {
            if (action->text() == entry) action->trigger();
        }
        menu->close();
    };
    choose(lightPopUp(), QStringLiteral("&Hide Guided Input Light"));
    EXPECT_FALSE(frmPaper.Light.Visible);
    EXPECT_FALSE(frmMain.mnuShowLight.Checked);
    choose(pencilPopUp(), QStringLiteral("Use &Pencil"));
    EXPECT_FALSE(frmMain.mnuPencil.Checked);
    EXPECT_FALSE(frmMain.mnuUsePencil.Checked);
    choose(assistantPopUp(), QStringLiteral("&Hide"));
    EXPECT_FALSE(frmMain.mnuHideWiz.Checked);
}

}  // namespace
}  // namespace ordwise::test
