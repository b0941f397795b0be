#include "KeyText.hpp"

#include "GuidedInput.hpp"

#include <QKeyEvent>

namespace ordwise {

std::string keyTextOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return std::string(enterKey);
        case Qt::Key_Backspace: return std::string(backspaceKey);
        default: break;
    }
    const bool command = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    // AltGr, with which some keyboards type "|" and "~", comes as Ctrl and Alt together or as neither.
    const bool altGr = (event.modifiers() & Qt::ControlModifier) != 0 && (event.modifiers() & Qt::AltModifier) != 0;
    const QString text = event.text();
    if ((command && !altGr) || text.isEmpty() || !text.at(0).isPrint() || text == QStringLiteral(" ")) return "";
    return text.toStdString();
}

}  // namespace ordwise
