// Variables: as many different ones as the topic allows, each once in a term.
#include "NumberText.hpp"
#include "SyntaxCheck.hpp"
#include "TokenPredicates.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

namespace ordwise {

namespace {

// The letter stands in the term being typed, which began behind an operator, "(" or "=".
bool stoodInTerm(const std::string& letter) {
    for (int i = ws.InputLast - 1; i >= 0; --i) {
        const std::string& typed = ws.InputTokens[i];
        if (IsOperator(typed) || typed == "(" || typed == "=") return false;
        if (typed == letter) return true;
    }
    return false;
}

// VarCount is one above the number of letters, so that the last letter allowed still passes.
bool isAmongAllowed(const std::string& letter) {
    return ws.VarCount <= ws.EquationMode || FindVariable(letter) > 0;
}

std::string tooManyVariables() {
    if (ws.EquationMode == 1) return "Only one different variable is allowed in '" + ws.TopicName + "'.";
    return "Only " + signedTextOf(ws.EquationMode - 1) + "different variables are allowed in '" + ws.TopicName + "'.";
}

}  // namespace

Verdict checkLetter(const TypedKey& key) {
    if (key.startsExponent()) return Verdict::refuse("You can't have a variable in an exponent.");
    // e.g. 19/2x^2, where an exponent was negative
    const bool belowBar = ws.LineWorked && ws.ProblemType == 150;
    if (ws.FractionOpen && !belowBar) {
        return Verdict::refuse("You can't have a variable in the denominator of a fraction in Ordwise");
    }
    if (key.p == key.ch) {
        return Verdict::refuse("You can't type the same variable twice in a row in '" + ws.TopicName + "'.");
    }
    const bool lettersMayMeet = ws.EquationMode == 3;
    if (!isAmongAllowed(key.ch) || (IsLetter(key.p) && !lettersMayMeet) || (key.p == ")" && !ws.LineWorked) ||
        ws.BarOpen) {
        return Verdict::refuse(tooManyVariables());
    }
    if (stoodInTerm(key.ch)) return Verdict::refuse();

    ws.ExponentOpen = false;
    return Verdict::accept();
}

}  // namespace ordwise
