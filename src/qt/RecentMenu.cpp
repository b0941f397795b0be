#include "RecentMenu.hpp"

#include "Art.hpp"
#include "RecentProblems.hpp"
#include "Stage.hpp"
#include "Windows.hpp"

#include <QFileInfo>

namespace ordwise {

RecentMenu::RecentMenu(QWidget* parent, Stage& stage)
    : QMenu(qstringOf(frmMain.mnuRecent.Text), parent), stage_(stage) {
    setObjectName(QStringLiteral("mnuRecent"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    fill();
}

void RecentMenu::fill() {
    clear();
    int number = 0;
    for (const std::string& path : frmMain.RecentProblems) {
        QString name = QFileInfo(qstringOf(path)).fileName();
        name.replace(QLatin1Char('&'), QStringLiteral("&&"));
        addFile(QStringLiteral("&%1  %2").arg(++number).arg(name), path);
    }
    if (const std::string last = lastProblemFile(); !last.empty()) {
        addSeparator();
        addFile(QStringLiteral("&Last Problem (Not Saved)"), last);
    }
    if (isEmpty()) {
        addAction(QStringLiteral("No Saved Problems Yet"))->setEnabled(false);
        return;
    }
    addSeparator();
    addAction(QStringLiteral("&Clear List"), this, [this] { stage_.perform(mnuClearRecent_Click); });
}

void RecentMenu::addFile(const QString& text, const std::string& path) {
    QAction* action = addAction(text, this, [this, path] { stage_.perform([&path] { openProblemFile(path); }); });
    action->setToolTip(qstringOf(path));
}

}  // namespace ordwise
