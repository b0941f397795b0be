#include "ShortcutsWindow.hpp"

namespace ordwise {

ShortcutsWindow frmShortcuts;

}  // namespace ordwise
