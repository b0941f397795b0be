// Underlined letters that no two commands of one menu or window share.
#pragma once

class QWidget;

namespace ordwise {

// Gives the actions of a menu bar or a menu captions with letters of their own.
void giveOwnMnemonics(QWidget& menu);

}  // namespace ordwise
