// The branches that the expression engine solves.
#include "SolveDispatch.hpp"

#include "SolveDriver.hpp"
#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

namespace ordwise {
namespace {

// The typed problem in normal form becomes the first step; every branch begins so.
void prepareEngine() {
    CanonToTokens();
    NormaliseSigns();
    CommitStep();
}

}  // namespace

void expandAndShow() {
    prepareEngine();
    ExpandPolynomial();
    ShowSteps();
}

void simplifyPolynomial() {
    prepareEngine();
    ExpandPolynomial();
    OrderLastLine();
    ShowSteps();
}

void solveNegativeExponents() {
    prepareEngine();
    ReduceExpression(0, false, true);
    ExpandPolynomial();
    OrderLastLine();
    ShowSteps();
}

void solveEquations() {
    prepareEngine();
    ws.PlainSum = true;
    ExpandBothSides();
    SolveEquation(ws.VarNames[1]);
    ShowSteps();
}

void evaluatePolynomials() {
    prepareEngine();
    EvaluateProblem();
    ShowSteps();
}

void solveExponentialNotation() {
    prepareEngine();
    FindPrimeFactors();
    ShowSteps();
}

void solveRoots() {
    prepareEngine();
    ReduceFinalRadicals();
    ShowSteps();
}

// Fractions stay fractions in this topic, and from here on: the setting is turned on for good.
void solveFractionArithmetic() {
    CanonToTokens();
    NormaliseSigns();
    showResultsAsFractions(true);
    CommitStep();
    int bars = 0;
    for (int i = 0; i <= ws.TokenLast; ++i) {
        if (contains(ws.TokenBuffer[i], "/")) ++bars;
    }
    const int group = ws.GroupTable[ws.MaxDepth].lastGroup;
    if (ws.TermLast[ws.MaxDepth][group] > 1 || bars >= 2) FractionArithmetic(group);
    ShowSteps();
}

}  // namespace ordwise
