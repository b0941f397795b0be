#include "ExplainWindow.hpp"

namespace ordwise {

ExplainWindow frmExplain;

}  // namespace ordwise
