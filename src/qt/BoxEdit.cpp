#include "BoxEdit.hpp"

#include "KeyText.hpp"

#include <QKeyEvent>

namespace ordwise {

BoxEdit::BoxEdit(QWidget* parent, std::function<void(std::string_view key)> onKey)
    : QLineEdit(parent), onKey_(std::move(onKey)) {
    setContextMenuPolicy(Qt::NoContextMenu);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAcceptDrops(false);
}

void BoxEdit::showText(const QString& text) {
    if (this->text() != text) setText(text);
    if (!hasFocus()) end(false);
}

// Undo and redo are the frame's: they go over all boxes.
bool BoxEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void BoxEdit::keyPressEvent(QKeyEvent* event) {
    const std::string key = keyTextOf(*event);
    if (!key.empty()) {
        onKey_(key);
        end(false);
    } else if (event->key() == Qt::Key_Delete || event->matches(QKeySequence::Cut) ||
               event->matches(QKeySequence::Paste) || event->matches(QKeySequence::Undo) ||
               event->matches(QKeySequence::Redo)) {
        event->accept();  // the box is changed key by key only
    } else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down || event->key() == Qt::Key_Escape) {
        event->ignore();  // the desk chooses lines by them
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void BoxEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    end(false);
}

}  // namespace ordwise
