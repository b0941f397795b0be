#include "ShortcutsDialog.hpp"

#include "Art.hpp"
#include "ShortcutsWindow.hpp"
#include "Stage.hpp"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace ordwise {
namespace {

QString listed() {
    QString page;
    std::string section;
    for (const ShortcutLine& line : frmShortcuts.Lines) {
        if (line.Section != section) {
            page += section.empty() ? QString() : QStringLiteral("</table>");
            page += QStringLiteral("<h3>%1</h3><table cellspacing=\"0\" cellpadding=\"3\">")
                        .arg(qstringOf(line.Section).toHtmlEscaped());
            section = line.Section;
        }
        page += QStringLiteral("<tr><td width=\"170\"><b>%1</b></td><td>%2</td></tr>")
                    .arg(qstringOf(line.Keys).toHtmlEscaped(), qstringOf(line.Words).toHtmlEscaped());
    }
    return page + QStringLiteral("</table>");
}

}  // namespace

ShortcutsDialog::ShortcutsDialog(QWidget* frame, Stage& stage) : QDialog(frame), stage_(stage) {
    setObjectName(QStringLiteral("frmShortcuts"));
    setWindowTitle(qstringOf(frmShortcuts.Caption));
    auto* list = new QTextBrowser(this);
    list->setObjectName(QStringLiteral("Lines"));
    list->setAccessibleName(windowTitle());
    list->setHtml(listed());
    setLayout(new QVBoxLayout);
    layout()->addWidget(list);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(620, 760).boundedTo(screen * 0.9));
}

void ShortcutsDialog::closeEvent(QCloseEvent* event) {
    event->accept();
    stage_.perform([] { platform.windows->unload("frmShortcuts"); });
}

void ShortcutsDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QDialog::keyPressEvent(event);
    close();
}

}  // namespace ordwise
