#include "HelpWindow.hpp"

namespace ordwise {

HelpWindow frmHelp;

}  // namespace ordwise
