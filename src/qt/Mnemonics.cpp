#include "Mnemonics.hpp"

#include "Art.hpp"
#include "Shortcuts.hpp"

#include <QAction>
#include <QWidget>

namespace ordwise {

void giveOwnMnemonics(QWidget& menu) {
    std::vector<std::string> captions;
    QList<QAction*> actions;
    for (QAction* action : menu.actions()) {
        if (action->isSeparator()) continue;
        actions << action;
        captions.push_back(action->text().toStdString());
    }
    const std::vector<std::string> own = withOwnMnemonics(captions);
    for (qsizetype i = 0; i < actions.size(); ++i) actions[i]->setText(qstringOf(own[static_cast<std::size_t>(i)]));
}

}  // namespace ordwise
