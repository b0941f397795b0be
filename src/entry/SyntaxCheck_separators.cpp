// What stands between or behind numbers: the colon of a ratio, commas of a list, a percent sign.
#include "SyntaxCheck.hpp"
#include "Workspace.hpp"

namespace ordwise {

Verdict checkColon(const TypedKey& key) {
    if (!key.followsNumber() || countTyped(":") > 0) return Verdict::refuse();
    ws.FractionOpen = false;
    return Verdict::accept();
}

Verdict checkComma(const TypedKey& key) {
    return Verdict::acceptIf(key.followsNumber());
}

Verdict checkPercent(const TypedKey& key) {
    return Verdict::acceptIf(key.followsNumber());
}

}  // namespace ordwise
