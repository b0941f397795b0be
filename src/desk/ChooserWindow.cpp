#include "ChooserWindow.hpp"

namespace ordwise {

ChooserWindow frmSelect;

}  // namespace ordwise
