// Solving an equation by the moves that a student writes down: reduce both sides, move the terms
// with the variable to the left and the others to the right, divide by the coefficient. A square or
// a higher power is set to zero and factored.
//
// The store describes the side that was parsed last, so every routine that needs a side goes there
// first with onSide. Marks in a line: "[-3]" and "[+3]" are put on both sides, "/[2]" divides both,
// "$" is the sign of inequality.
#include "CanonicalRewrite.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFactoring.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ordwise {
namespace {

// --- the sides ---------------------------------------------------------------------------------

// The store describes this side from here on.
void onSide(int side) {
    ws.CurrentSide = side;
    CommitStep({.silent = true});
}

int termCount() {
    return ws.TermLast[0][0];
}

// The terms of the side in use, from index 0.
std::vector<ExprTerm> termsOfSide() {
    std::vector<ExprTerm> terms;
    for (int t = 1; t <= termCount(); ++t) terms.push_back(termOf(0, 0, t));
    return terms;
}

std::vector<ExprTerm> termsOf(int side) {
    onSide(side);
    return termsOfSide();
}

// The tokens of a side, without the highlight of an earlier move. e.g. +2x+3=+7, side 1 -> "+7"
std::string sideText(int side) {
    const int equals = FindEquals();
    const std::string text = side == 0 ? tokensText(0, equals - 1) : tokensText(equals + 1, ws.TokenLast);
    return replaced(replaced(text, "[", ""), "]", "");
}

bool holds(const ExprTerm& term, const std::string& variable) {
    return contains(term.numText, variable) || contains(term.denText, variable);
}

bool textHolds(const std::string& text, const std::string& variable) {
    return !variable.empty() && contains(text, variable);
}

// The highest power of a variable on either side. e.g. x^2=5x-6 -> 2
int degreeOf(const std::string& variable) {
    double degree = 0;
    for (const int side : {1, 0}) {
        for (const ExprTerm& term : termsOf(side)) degree = std::max(degree, exponentOf(term.numText, variable));
    }
    return static_cast<int>(degree);
}

// Side 0 without steps, then the other with them: a student sees the side that the answer is on.
void reduceSides() {
    onSide(0);
    ReduceExpression(0, true);
    onSide(1);
    ReduceExpression(0);
    onSide(0);
    ReduceExpression(0);
}

// --- moving terms ------------------------------------------------------------------------------

// What a move writes behind a term on its own side and behind the other side. e.g. +3 -> "[-3]"
std::string oppositeMark(const ExprTerm& term) {
    Monomial factor = monomialOf(term);
    factor.numerator = -factor.numerator;
    return "[" + signedText(factor) + "]";
}

struct Moves {
    std::string kept;   // the side with the marks in it
    std::string marks;  // for the other side
};

// Marks every term of the side in use that is to go. A lone 0 has nothing to move.
template <class Goes>
Moves markMoves(Goes goes) {
    Moves moves;
    for (const ExprTerm& term : termsOfSide()) {
        if (term.numerator == 0 && termCount() > 1) continue;
        moves.kept += signedText(monomialOf(term));
        if (term.numerator == 0 || !goes(term)) continue;
        moves.kept += oppositeMark(term);
        moves.marks += oppositeMark(term);
    }
    return moves;
}

// Written anew from the terms, so that -0=x becomes x=0.
void swapSides(const std::string& note) {
    std::string text;
    for (const ExprTerm& term : termsOf(1)) text += signedText(monomialOf(term));
    text += "=";
    for (const ExprTerm& term : termsOf(0)) text += signedText(monomialOf(term));
    ExplodeTokens(text);
    ws.CurrentNote = note;
}

// --- dividing ----------------------------------------------------------------------------------

// e.g. +2x by 2 -> "+#2x/[2]#"; a term that is a fraction itself goes up in parentheses
std::string divisionMark(const ExprTerm& term, float coefficient) {
    const Monomial factor = monomialOf(term);
    std::string top = markupOf(unsignedText(factor));
    if (contains(top, "/")) top = "(" + replaced(top, "#", "") + ")";
    return (factor.numerator < 0 ? "-#" : "+#") + top + "/[" + textOf(coefficient) + "]#";
}

bool isWhole(float value) {
    return std::floor(value) == value;
}

// e.g. 6 by 4 -> "3/2"; the denominators of both are taken in
std::string quotientText(const Monomial& term, const Monomial& coefficient) {
    const float above = std::fabs(term.numerator) * coefficient.denominator;
    const float below = term.denominator * std::fabs(coefficient.numerator);
    if (ws.UseFractions && isWhole(above) && isWhole(below)) return CommonFactorText(above, below);
    return FractionText(above / below);
}

// e.g. -2x by 3 -> "-2x/3"; "" for what is 0, or rounds to it
std::string dividedTerm(const ExprTerm& term, const Monomial& coefficient) {
    const Monomial factor = monomialOf(term);
    const std::vector<std::string> value = split(quotientText(factor, coefficient), '/');
    if (value[0] == "0") return "";
    std::string text = ((factor.numerator < 0) != (coefficient.numerator < 0) ? "-" : "+") + value[0] + factor.numText;
    if (value.size() > 1 || !factor.denText.empty()) text += "/" + (value.size() > 1 ? value[1] : "") + factor.denText;
    return text;
}

std::string dividedSide(const std::vector<ExprTerm>& terms, const Monomial& coefficient) {
    std::string text;
    for (const ExprTerm& term : terms) text += dividedTerm(term, coefficient);
    return text.empty() ? "+0" : text;
}

// --- the ends ----------------------------------------------------------------------------------

std::string simplifyNote(const std::string& variable) {
    return "Simplify the fractions to solve for [" + variable + "].";
}

// A value as a sentence names it. e.g. "-3", "#1/2#"
std::string valueText(const ExprTerm& term) {
    return markupOf(plainText(monomialOf(term)));
}

// Overwrites the last step; a problem that took none gets one of its own.
void concludeLastStep(const std::string& line, const std::string& note) {
    if (ws.StepCount < 3) ws.StepCount = 3;
    ws.StepLines[ws.StepCount - 1] = line;
    ws.StepNotes[ws.StepCount - 1] = note;
    ws.CurrentNote = note;
}

// Two numbers are left: the same, and any value solves, or not, and none does.
// e.g. 0=0 "Since 0 equals 0 then x ..."; 1=2 -> 1$2
bool settleNumbers(const std::string& variable) {
    const ExprTerm right = termsOf(1).at(0);
    const ExprTerm left = termsOf(0).at(0);
    const std::string leftText = valueText(left);
    const std::string rightText = valueText(right);
    if (left.numerator * right.denominator != right.numerator * left.denominator) {
        concludeLastStep(leftText + "$" + rightText,
                         "Since " + leftText + " does not equal " + rightText + ", this equation has no solutions.");
        return false;
    }
    CommitStep();
    const std::string equal = "Since " + leftText + " equals " + rightText;
    if (variable.empty()) {
        // A problem of numbers alone says so of itself.
        ws.CurrentNote = equal + " the equation is true.";
        ws.StepNotes[ws.StepCount - 1] = ws.CurrentNote;
    } else {
        concludeLastStep(leftText + "=" + rightText, equal + " then " + variable + " can be any real number.");
    }
    return false;
}

// The variable is gone but another one stands. The sentence joins the step in which it went.
// e.g. y=3, asked for x: "This cannot be solved for x because ..."
bool solveForOther(const std::string& variable, const std::string& other) {
    const std::string sentence = "This cannot be solved for " + variable +
                                 " because it has been cancelled out of the equation. Instead we will solve for " +
                                 other + ".";
    std::string& note = ws.StepNotes[ws.StepCount - 1];
    note += (note.empty() ? "" : " ") + sentence;
    ExpandBothSides();
    return SolveEquation(other);
}

// The line holds what the last step's line holds, in another order: a rearrangement that no step
// has shown yet. e.g. y=-3+2x and y=2x-3
bool onlyReordered() {
    std::string before = outlineOf(ws.LastLine);
    std::string now = outlineOf(CanonicalLine());
    if (before == now) return false;
    std::sort(before.begin(), before.end());
    std::sort(now.begin(), now.end());
    return before == now;
}

// A number times the variable stands on the left, a value on the right.
bool divideOut(const std::string& variable) {
    ws.CurrentNote = onlyReordered() ? leadingTermHint : "Remove cancelled terms from both sides.";
    CommitStep();
    DivideBothSides(variable);
    for (const int side : {0, 1}) {
        onSide(side);
        ReduceExpression(0, true);
    }
    ws.CurrentNote = simplifyNote(variable);
    CommitStep();
    return true;
}

// --- higher degrees ----------------------------------------------------------------------------

// Takes out the common factor, then splits squares, until nothing more comes apart.
// e.g. x^3-5x^2+6x=0 -> x(x^2-5x+6)=0 -> x(x-3)(x-2)=0
bool solveByFactoring(int degree) {
    SetPolynomialToZero();
    onSide(0);
    const ExprTerm first = termOf(0, 0, 1);
    if (first.numerator < 0) NegateBothSides();
    for (int round = 0; round <= degree; ++round) {
        const std::string before = ImplodeTokens();
        for (const bool commonFactor : {true, false}) {
            if (Factor(ws.MaxDepth, 0, commonFactor)) return false;
            CommitStep();
        }
        if (tokensSpell(before)) break;
    }
    return false;
}

}  // namespace

// --- both sides --------------------------------------------------------------------------------

void ExpandBothSides() {
    for (const int side : {0, 1}) {
        ws.CurrentSide = side;
        ws.PlainSum ? ReduceAllGroups() : ExpandPolynomial();
    }
    ws.CurrentSide = 0;
    CommitStep();
}

void SetPolynomialToZero() {
    ws.StepClass = 2;
    if (!SolveForRight(ws.VarNames[1], true)) return;
    ws.CurrentNote = "Set the polynomial equal to zero.";
    CommitStep();
    onSide(1);
    ReduceExpression(0, true);
    onSide(0);
    ReduceExpression(0);
    // Where the left side was only put in order, no step has shown it yet.
    ws.CurrentNote = "Remove cancelled terms from both sides.";
    CommitStep();
}

void MultiplyByNegative() {
    ws.StepClass = 3;
    const std::string inside = "-(" + sideText(ws.CurrentSide) + ")";
    ExplodeTokens(ws.CurrentSide == 0 ? inside + "=" + sideText(1) : sideText(0) + "=" + inside);
    ws.CurrentNote = "Solve for " + ws.VarNames[1] + " by multiplying both sides of the equation by a negative one.";
}

void NegateBothSides() {
    onSide(0);
    MultiplyByNegative();
    onSide(1);
    MultiplyByNegative();
    ws.CurrentSide = 0;
    CommitStep();
    for (const int side : {0, 1}) {
        onSide(side);
        DistributeFactor(ws.MaxDepth, 0);
    }
    ws.CurrentSide = 0;
    CommitStep();
}

bool SolveForLeft(const std::string& variable) {
    ws.StepClass = 2;
    const std::vector<ExprTerm> right = termsOf(1);
    const std::vector<ExprTerm> left = termsOf(0);
    if (right.size() == 1 && holds(right[0], variable) && left.size() == 1 && isBareNumber(left[0])) {
        swapSides("Reorder the equation so the " + variable +
                  " is on the left hand side.  This step is not required but make the answer easier to see.");
        return true;
    }
    const Moves moves = markMoves([&](const ExprTerm& term) { return !holds(term, variable); });
    if (moves.marks.empty()) return false;
    ExplodeTokens(moves.kept + "=" + sideText(1) + moves.marks);
    ws.CurrentNote = "Solve the left-hand side of the equation for [" + variable +
                     "] by moving all terms not containing [" + variable + "] to the right-hand side.";
    return true;
}

bool SolveForRight(const std::string& variable, bool all) {
    ws.StepClass = 2;
    const std::vector<ExprTerm> left = termsOf(0);
    onSide(1);
    if (!all && left.size() == 1 && !holds(left[0], variable) && contains(sideText(1), variable)) {
        swapSides("Reorder the equation so that the " + variable + " is on the left hand side.");
        return true;
    }
    ws.StepClass = 3;
    const Moves moves = markMoves([&](const ExprTerm& term) { return all || holds(term, variable); });
    if (moves.marks.empty()) return false;
    ExplodeTokens(sideText(0) + moves.marks + "=" + moves.kept);
    ws.CurrentNote = "Solve the right-hand side of the equation for [" + variable +
                     "] by moving all terms containing [" + variable + "] to the left-hand side.";
    return true;
}

void DivideBothSides(const std::string& variable) {
    ws.StepClass = 3;
    const std::vector<ExprTerm> right = termsOf(1);
    const std::vector<ExprTerm> left = termsOf(0);
    const Monomial coefficient = monomialOf(left.at(0));
    const float value = coefficient.numerator / coefficient.denominator;
    if (value == 1) return;
    std::string division;
    for (const ExprTerm& term : left) division += divisionMark(term, value);
    division += "=";
    for (const ExprTerm& term : right) division += divisionMark(term, value);
    if (division[0] == '+') division.erase(0, 1);
    writeStep(replaced(division, "=+", "="),
              "Solve for " + variable + " by dividing both sides of the equation by " + textOf(std::fabs(value)) + ".");
    ExplodeTokens(dividedSide(left, coefficient) + "=" + dividedSide(right, coefficient));
    ws.CurrentNote = simplifyNote(variable);
    CommitStep();
}

void writeStep(const std::string& line, const std::string& note) {
    ws.StepLines[ws.StepCount] = line;
    ws.StepNotes[ws.StepCount] = note;
    ws.StepClassOf[ws.StepCount] = ws.StepClass;
    ws.StepCount += 1;
    ws.CurrentNote = note;
}

// --- the equation ------------------------------------------------------------------------------

bool SolveEquation(const std::string& variable) {
    if (ws.VarCount < 2) return settleNumbers(variable);
    if (const int degree = degreeOf(variable); degree >= 2) return solveByFactoring(degree);
    if (SolveForRight(variable, false)) {
        CommitStep();
        reduceSides();
    }
    if (textHolds(ImplodeTokens(), variable) && SolveForLeft(variable)) {
        CommitStep();
        reduceSides();
    }
    const ExprTerm left = termsOf(0).at(0);
    const std::string text = ImplodeTokens();
    if (textHolds(text, variable) && left.numerator != 0) return divideOut(variable);
    const std::string other = variable == ws.VarNames[1] ? ws.VarNames[2] : ws.VarNames[1];
    if (textHolds(text, other)) return solveForOther(variable, other);
    return settleNumbers(variable);
}

}  // namespace ordwise
