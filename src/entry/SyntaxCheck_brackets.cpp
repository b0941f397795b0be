// Parentheses and absolute value bars.
#include "SyntaxCheck.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

namespace ordwise {

Verdict checkOpenParenthesis(const TypedKey& key) {
    const bool startsTogether = key.p == "(" || key.p2 == "(";
    const bool multiplies = key.p == ")" && ws.LineWorked;  // e.g. 4(2)(3)
    if ((key.p == ")" && !multiplies) || (ws.ParenDepth > 1 && !startsTogether)) {
        return Verdict::refuse("Close the last parenthesis before opening a new one.");
    }
    if (key.startsExponent() || ws.FractionOpen || ws.ParenDepth >= lastLevel) return Verdict::refuse();
    ws.ExponentOpen = false;
    noteParenthesisOpened();
    return Verdict::accept();
}

Verdict checkCloseParenthesis(const TypedKey& key) {
    if (IsOperator(key.p)) return Verdict::refuse("You can't type a ) after a " + key.p + ".");
    if (key.p == "(") {
        return Verdict::refuse("You must have at least one term inside the parenthesis before it can be closed.");
    }
    if (key.p == "^") return Verdict::refuse();
    if (ws.ParenDepth <= 0) return Verdict::refuse("The ')' is not allowed because there are no open parenthesis.");
    ws.ExponentOpen = false;
    if (IsFractionToken(key.cell)) ws.FractionOpen = false;
    noteParenthesisClosed();
    return Verdict::accept();
}

Verdict checkBar(const TypedKey& key) {
    if (ws.BarOpen) {
        if (IsOperator(key.p) || key.p == "|") return Verdict::refuse();
        ws.BarOpen = false;
        ws.BarDepth -= 1;
        return Verdict::accept();
    }
    if (!key.first() && !IsSign(key.p)) return Verdict::refuse();
    ws.BarOpen = true;
    ws.BarDepth += 1;
    return Verdict::accept();
}

}  // namespace ordwise
