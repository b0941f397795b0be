// Operators, the bar of a fraction, "=", and the marks of exponent and root.
#include "SyntaxCheck.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"

namespace ordwise {

namespace {

bool isListOfNumbers() {
    return ws.ProblemType >= 59 && ws.ProblemType <= 62;
}

// A sign that is part of what follows it: "(-3", "x^-2", and in a line of a solution "-2x/-2".
bool isLeadingMinus(const TypedKey& key) {
    return key.ch == "-" && (key.p == "(" || key.p == "^" || (key.p == "/" && ws.LineWorked));
}

bool mayOperate(const TypedKey& key) {
    if (isListOfNumbers()) return key.ch == "-" && (key.first() || key.p == ",");
    if (isLeadingMinus(key)) return true;
    if (key.ch == "+" && key.first()) return false;
    if (key.ch == "*" && (key.first() || key.p == "|")) return false;
    return key.p != "~" && key.p != "^" && key.p != "(" && !IsOperator(key.p);
}

}  // namespace

Verdict checkOperator(const TypedKey& key) {
    if (!mayOperate(key)) return Verdict::refuse();
    ws.RootOpen = false;
    if (isLeadingMinus(key)) return Verdict::accept();
    ws.FractionOpen = false;
    ws.ExponentOpen = false;
    return Verdict::accept();
}

Verdict checkDivision(const TypedKey& key) {
    if (ws.ProblemType == 76 && IsFractionToken(key.cell)) {  // between two fractions
        ws.FractionOpen = false;
        return Verdict::accept();
    }
    const bool behindParenthesis = key.p == ")" && !ws.LineWorked;  // of a solution e.g. (3+2)/6
    const bool nothingToDivide = key.first() || key.p == "(" || key.p == "^" || key.p == "." || behindParenthesis ||
                                 key.p == "|" || IsOperator(key.p);
    if (nothingToDivide || ws.FractionOpen) return Verdict::refuse("You can't type a / after a " + key.p + ".");

    ws.FractionOpen = true;
    ws.FractionDepth = ws.ParenDepth;
    ws.SavedParenSide = ws.ParenSide != 0;
    ws.ParenSide = 1;
    ws.ExponentOpen = false;
    return Verdict::accept();
}

// The two sentences are told the wrong way round; they stay so.
Verdict checkEquals(const TypedKey& key) {
    const bool sideIsUnfinished = key.first() || key.p == "(" || (IsOperator(key.p) && key.p != "-");
    if (sideIsUnfinished || ws.EqualsTyped || ws.ParenDepth != 0) {
        return Verdict::refuse(ws.ParenDepth > 0 ? "You can't type a = after a " + key.p + "."
                                                 : "You must close the parenthesis before typing the equal sign (=).");
    }
    ws.EqualsTyped = true;
    ws.ExponentOpen = false;
    if (ws.FractionDepth == ws.ParenDepth) ws.FractionOpen = false;
    return Verdict::accept();
}

Verdict checkExponent(const TypedKey& key) {
    if (ws.ExponentOpen) return Verdict::refuse("You can't type another exponent inside an exponent.");
    const bool raised = IsLetter(key.p) || key.followsNumber() || (key.p == ")" && ws.LineWorked);
    const bool belowBar = ws.LineWorked && ws.ProblemType == 150;
    if ((ws.FractionOpen && !belowBar) || !raised) {
        return Verdict::refuse("You can't type a ^ inside an exponent in this problem.");
    }
    ws.ExponentOpen = true;
    return Verdict::accept();
}

Verdict checkRoot(const TypedKey& key) {
    const bool mayStart = key.first() || (!ws.RootOpen && (key.followsNumber() || IsSign(key.p)));
    if (!mayStart) return Verdict::refuse("You can't type a ~~ after a " + key.p + ". ");
    ws.RootOpen = true;
    return Verdict::accept();
}

}  // namespace ordwise
