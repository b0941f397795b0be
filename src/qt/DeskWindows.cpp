#include "DeskWindows.hpp"

#include "AboutDialog.hpp"
#include "ChooserDialog.hpp"
#include "DeskView.hpp"
#include "FrameWindow.hpp"
#include "GraphView.hpp"
#include "GraphWindow.hpp"
#include "HelpDialog.hpp"
#include "OptionsDialog.hpp"
#include "PracticeTestDialog.hpp"
#include "PrintPreviewDialog.hpp"
#include "PrintSetupDialog.hpp"
#include "ShortcutsDialog.hpp"
#include "SplashCard.hpp"
#include "Stage.hpp"
#include "WindowRoutines.hpp"

#include <QApplication>
#include <QDialog>
#include <QShortcut>

#include <algorithm>
#include <iterator>

namespace ordwise {
namespace {

// A dialog may be opened from another one, which then stands behind it.
template <class Dialog>
QWidget* makeDialog(FrameWindow& frame, Stage& stage) {
    QWidget* const inFront = QApplication::activeModalWidget();
    return new Dialog(inFront == nullptr ? &frame : inFront, stage);
}

// Every window closes by the key that closes windows.
void closeByKey(QWidget& window) {
    if (!window.isWindow()) return;
    auto* shortcut = new QShortcut(QKeySequence::Close, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, &QWidget::close);
}

}  // namespace

struct DeskWindows::Row {
    std::string_view name;
    bool modal;
    QWidget* (*make)(FrameWindow& frame, Stage& stage);
};

const DeskWindows::Row DeskWindows::rows[] = {
    {"frmSelect", true, [](FrameWindow& frame, Stage&) -> QWidget* { return new ChooserDialog(&frame); }},
    {"frmOptions", true, makeDialog<OptionsDialog>},
    {"frmPrintSetup", true, makeDialog<PrintSetupDialog>},
    {"frmPrintPreview", true, makeDialog<PrintPreviewDialog>},
    {"frmPracticeTest", true, makeDialog<PracticeTestDialog>},
    {"frmGraph", false, [](FrameWindow& frame, Stage& stage) -> QWidget* { return new GraphView(frame, stage); }},
    {"frmAbout", true, makeDialog<AboutDialog>},
    {"frmHelp", false, [](FrameWindow& frame, Stage& stage) -> QWidget* { return new HelpDialog(&frame, stage); }},
    {"frmShortcuts", false,
     [](FrameWindow& frame, Stage& stage) -> QWidget* { return new ShortcutsDialog(&frame, stage); }},
    {"frmLogo", false, [](FrameWindow& frame, Stage& stage) -> QWidget* { return new SplashCard(&frame, stage); }},
};

void DeskWindows::show(std::string_view name) {
    loadWindow(name);
    if (name == "frmPaper") frame_.showFreshSheets();
    const auto* const row =
        std::find_if(std::begin(rows), std::end(rows), [name](const Row& candidate) { return candidate.name == name; });
    if (row == std::end(rows)) return;
    if (row->modal) {
        runModal(*row);
    } else {
        showBeside(*row);
    }
}

void DeskWindows::runModal(const Row& row) {
    stage_.show();
    const QPointer<QWidget> widget = row.make(frame_, stage_);
    closeByKey(*widget);
    open_[std::string(row.name)] = widget;
    auto* dialog = qobject_cast<QDialog*>(widget);
    Q_ASSERT(dialog != nullptr);
    stage_.runDialog([dialog] { dialog->exec(); });
    open_.erase(std::string(row.name));
    delete widget;
    unloadWindow(row.name);
}

void DeskWindows::showBeside(const Row& row) {
    QPointer<QWidget>& widget = open_[std::string(row.name)];
    if (widget.isNull()) {
        widget = row.make(frame_, stage_);
        closeByKey(*widget);
    }
    widget->setWindowState(widget->windowState() & ~Qt::WindowMinimized);
    // A graph that a solve opens leaves the keyboard to the paper.
    const bool takesKeys = row.name != "frmGraph" || frmGraph.AskedFor;
    const bool atFrame = frame_.isActiveWindow();
    widget->setAttribute(Qt::WA_ShowWithoutActivating, !takesKeys);
    widget->show();
    widget->raise();
    if (takesKeys) {
        widget->activateWindow();
    } else if (atFrame) {
        frame_.activateWindow();  // a window manager may have thought otherwise
        widget->raise();          // and brings what it activates to the front
    }
}

// A modal widget only hides: whoever runs it still holds it.
void DeskWindows::unload(std::string_view name) {
    unloadWindow(name);
    QWidget* const widget = open(name);
    if (widget == nullptr) return;
    if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr && dialog->isModal()) {
        dialog->done(QDialog::Rejected);
    } else {
        open_.erase(std::string(name));
        widget->hide();
        widget->deleteLater();
    }
}

void DeskWindows::redraw(std::string_view name) {
    stage_.show();
    if (name == "frmPaper") frame_.desk().letSeeWriting();
}

void DeskWindows::popUp(std::string_view menu) {
    frame_.desk().popUp(menu);
}

void DeskWindows::showChanges() const {
    for (const auto& [name, widget] : open_) {
        if (auto* view = dynamic_cast<WindowView*>(widget.data())) view->showChanges();
    }
}

QWidget* DeskWindows::open(std::string_view name) const {
    const auto found = open_.find(name);
    return found == open_.end() ? nullptr : found->second.data();
}

}  // namespace ordwise
