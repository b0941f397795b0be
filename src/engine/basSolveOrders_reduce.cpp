// The reduction chain: one visible step a pass until a pass changes nothing.
//
// Depth is MaxDepth as it stands; it is read again after each commit, since every rewrite may change
// it. ReduceGroup's term rules and its rebuild stand in basReduceFunc.
#include "NumberText.hpp"
#include "TermPass.hpp"
#include "TermText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

#include <cmath>
#include <utility>

namespace ordwise {
namespace {

constexpr int calculatingRoots = 82;
constexpr int passLimit = 30;

// --- the driver

int termCount(int group) {
    return ws.TermLast[ws.MaxDepth][group];
}

int fractionTokens() {
    int count = 0;
    for (int i = 0; i <= ws.TokenLast; ++i) count += contains(ws.TokenBuffer[i], "/") ? 1 : 0;
    return count;
}

// The roots topic records a pass only if it has brought terms together.
void reduceRoots(int group, bool silent, bool stopFlag) {
    const int before = ws.TermLast[0][0];
    ReduceGroup(group, silent, stopFlag);
    CommitStep({.silent = true});
    if (ws.TermLast[0][0] != before) CommitStep();
}

// What stands beside a group that has just been freed has not been looked at, and its powers come
// before its products. e.g. (3)*4+7^2 -> 3*4+7^2 -> 3*4+7*7
void freeGroups(int group) {
    const int depth = ws.MaxDepth;
    RemoveParentheses();
    CommitStep();
    if (ws.MaxDepth < depth && group <= ws.GroupTable[ws.MaxDepth].lastGroup) ExpandIfPowers(group);
}

void reducePass(int group, bool silent, bool stopFlag) {
    if (!tokensHold('|') && ws.MaxDepth >= 1) freeGroups(group);
    if (!tokensHold('~') && ws.GroupProduct[ws.MaxDepth][group]) OrderPolynomial(group);
    if (group > ws.GroupTable[ws.MaxDepth].lastGroup) return;
    if (ws.ProblemType == calculatingRoots) {
        reduceRoots(group, silent, stopFlag);
    } else {
        ReduceGroup(group, silent, stopFlag);
        CommitStep({.silent = silent});
    }
}

bool betweenBars() {
    return ws.MaxDepth == 1 && tokensHold('|');
}

bool holdsConstantPower(int group) {
    for (int t = 1; t <= termCount(group); ++t) {
        const ExprTerm& term = termOf(ws.MaxDepth, group, t);
        if (term.varExp[1] != 1.0F && (term.numText.substr(0, 1) == "^" || term.denText.substr(0, 1) == "^"))
            return true;
    }
    return false;
}

// Numbers with a fraction among them, no decimals: e.g. 1/2+3, and any fractions between bars. An
// expression whose variable has been replaced counts as numbers. Where results are decimals, the
// passes convert the fractions one by one.
bool wantsFractionArithmetic(int group) {
    if (!ws.UseFractions || termCount(group) < 2) return false;
    const std::string own = groupText(ws.MaxDepth, group);
    if (!contains(own, "/") || contains(own, ".")) return false;
    if (holdsConstantPower(group)) return false;  // fractions are read without exponents
    const std::string& variable = ws.VarNames[1];
    const bool enough = fractionTokens() >= termCount(group) - 1 && variable.empty() && ws.MaxDepth == 0;
    const bool replacedVariable = !variable.empty() && !contains(ImplodeTokens(), variable);
    return betweenBars() || enough || replacedVariable;
}

// What the passes have left apart: numbers without a variable, or anything between bars.
bool wantsLastFractionArithmetic(int group) {
    if (!ws.UseFractions || termCount(group) < 2 || tokensHold('.')) return false;
    const bool plain = ws.VarNames[1].empty() && ws.MaxDepth == 0 && !holdsConstantPower(group);
    const bool fewFractions = fractionTokens() < termCount(group) - 1;
    return betweenBars() || (plain && !fewFractions);
}

}  // namespace

void ReduceExpression(int group, bool silent, bool stopFlag) {
    ws.ReductionStable = false;
    ws.StepClass = 2;
    std::string before;
    // A pass is the last one when it leaves the text as it was. A stable line alone is no end: the
    // pre-pass may have recorded its step, and the pass behind it found nothing more to do.
    for (int pass = 0; pass < passLimit && !tokensSpell(before); ++pass) {
        before = ImplodeTokens();
        reducePass(group, silent, stopFlag);
        if (!wantsFractionArithmetic(group)) continue;
        FractionArithmetic(group);
        break;
    }
    if (wantsLastFractionArithmetic(group)) {
        ReduceGroup(group, false, stopFlag);
        CommitStep();
        FractionArithmetic(group);
    }
    ws.StepClass = 1;
    if (ws.ProblemType != calculatingRoots) CommitStep({.silent = silent, .stopWhenStable = true});
}

void ReduceAllGroups() {
    ws.StepClass = 1;
    CommitStep({.silent = true});
    const int depth = ws.MaxDepth;
    for (int group = 0; ws.MaxDepth == depth && group <= ws.GroupTable[depth].lastGroup; ++group) {
        if (ws.GroupProduct[depth][group]) OrderPolynomial(group);
        ReduceExpression(group);
    }
    for (int level = ws.MaxDepth; level > 0; --level) {
        for (int group = 0; group <= ws.GroupTable[level].lastGroup; ++group) {
            if (groupOf(level, group).isAbsolute) {
                AbsoluteValueStep(group);
            } else {
                RemoveParentheses();
                CommitStep();
            }
        }
    }
    ReduceExpression(0);
}

// --- ReduceGroup: its opening

namespace {

const std::string rootNote = "Simplfy the square roots by removing any perfect squares from under the radical.";

// "Any constant ..." when the first exponent of the text is greater than 1.
std::string powerNote(const std::string& text) {
    const std::size_t caret = text.find('^');
    if (caret == std::string::npos || caret == 0 || lenientValueOf(text.substr(caret + 1)) <= 1) return reorderNote;
    return "Any constant that is raised to a power like " + text.substr(caret - 1, 3) +
           "^ should be expanded out by multiplying. Ex( 3^2^ = 9 )";
}

// The note of a pre-pass, by what the line shows; a decimal without a fraction leaves it as it is.
void choosePrePassNote(const std::string& text, const std::string& line) {
    if (contains(text, "^-")) ws.CurrentNote = "Remove negative exponents from all terms in polynomial.";
    if (contains(line, "^-")) {
        ws.CurrentNote = "Remove negative exponents moving the term to the denominator.";
    } else if (contains(line, ".")) {
        if (contains(line, "#")) ws.CurrentNote = "Divide to find decimal answers.";
    } else if (contains(line, "#")) {
        ws.CurrentNote = "Remove common factors from fractions.";
    } else if (contains(line, "~")) {
        ws.CurrentNote = rootNote;
    } else if (!ws.VarNames[1].empty()) {
        ws.CurrentNote = "Combine like terms.";
    } else {
        ws.CurrentNote = powerNote(text);
    }
}

// e.g. x^-2: "... (ex. x^-2^=#1/x^2^#)."
std::string movedNote(const ExprTerm& term) {
    const std::string name(term.varName[1] == 0 ? 0 : 1, term.varName[1]);
    const float exponent = term.varExp[2];
    return "Remove the negative exponent by moving the term to the denominator (ex. " + name + "^" + textOf(exponent) +
           "^=#1/" + name + "^" + textOf(std::fabs(exponent)) + "^#).";
}

// A term of the pre-pass. Only the first one with a negative exponent is moved below the bar; those
// behind it wait for the next pass. Numbers and powers of numbers stay.
std::string prePassTerm(const ExprTerm& term, bool& moved) {
    const std::string letters = lettersOf(term);
    const bool number = letters.empty() && lettersBelow(term).empty();
    if (number || letters.substr(0, 1) == "^" || moved || term.numerator == 0.0F) return termAsWritten(term);
    if (contains(letters, "^-")) {
        moved = true;
        ws.CurrentNote = movedNote(term);
    }
    return term.lead +
           NegativeExponentText(letters, std::fabs(term.numerator), lettersBelow(term), std::fabs(term.denominator));
}

// Negative exponents go below the bar, and the fractions of an equation into lowest terms.
// e.g. 19x^-2/2 -> 19/2x^2
void prePass(int group, bool silent) {
    if (ws.MaxDepth != 0) return;
    const std::string text = ImplodeTokens();
    const std::string& variable = ws.VarNames[1];
    const bool equation = !variable.empty() && contains(text, "=") && contains(text, "/") && !contains(text, "[");
    if (!contains(text, "^-") && !equation) return;
    choosePrePassNote(text, ImplodeCanon());
    bool moved = false;
    std::string terms;
    for (int t = 1; t <= termCount(group); ++t) terms += prePassTerm(termOf(0, group, t), moved);
    ExplodeTokens(textBefore(groupOf(0, group)) + terms + textFrom(groupOf(0, group)));
    CommitStep({.silent = silent});
}

}  // namespace

void ReduceGroup(int group, bool silent, bool stopFlag) {
    ws.KeepReducing = false;
    if (!stopFlag) prePass(group, silent);
    TermPass pass;
    pass.group = group;
    pass.textBefore = ImplodeTokens();
    pass.variable = ws.VarNames[1];
    pass.holdsVariable = !pass.variable.empty() && contains(pass.textBefore, pass.variable);
    const std::string looked = termCount(group) != 1 ? ImplodeCanon() : pass.textBefore;
    ws.CurrentNote = contains(looked, "~") ? rootNote : reorderNote;
    runTermRules(pass);
    commitRebuilt(pass, rebuiltText(pass), silent);
}

}  // namespace ordwise
