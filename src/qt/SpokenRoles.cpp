#include "SpokenRoles.hpp"

#include "DeskView.hpp"
#include "SheetView.hpp"
#include "StatusLine.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

namespace ordwise {
namespace {

// Qt's own answers with the role that the widget plays. These classes carry no Q_OBJECT, so they are
// told apart by what they are and not by the name that Qt hands over.
QAccessibleInterface* spokenAs(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    const auto as = [widget](QAccessible::Role role) { return new QAccessibleWidget(widget, role); };
    if (dynamic_cast<DeskView*>(widget) != nullptr) return as(QAccessible::Document);
    if (dynamic_cast<SheetView*>(widget) != nullptr) return as(QAccessible::StaticText);
    if (dynamic_cast<StatusLine*>(widget) != nullptr) return as(QAccessible::StaticText);
    if (dynamic_cast<FigureView*>(widget) != nullptr) return as(QAccessible::Grouping);
    return nullptr;
}

}  // namespace

void giveSpokenRoles() {
    QAccessible::installFactory(spokenAs);
}

}  // namespace ordwise
