#include "PopUpMenu.hpp"

#include "Art.hpp"
#include "FrameMenus.hpp"
#include "Stage.hpp"

#include <QMenu>

namespace ordwise {

void showPopUp(const MenuTable& table, QWidget& parent, Stage& stage, const QPoint& place) {
    auto* menu = new QMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuRow& row : table.rows) {
        if (row.control == nullptr) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(qstringOf(row.control->Text));
        action->setEnabled(row.control->Enabled);
        action->setCheckable(row.checkable);
        action->setChecked(row.control->Checked);
        QObject::connect(action, &QAction::triggered, &parent,
                         [&stage, routine = row.routine] { stage.perform(routine); });
    }
    menu->popup(place);
}

}  // namespace ordwise
