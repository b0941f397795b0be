// The branches of the graphing topics.
#include "SolveDispatch.hpp"

#include "NumberText.hpp"
#include "Platform.hpp"
#include "StatisticsSolvers.hpp"
#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "TokenPredicates.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basSolveOrders.hpp"

#include <string>
#include <vector>

namespace ordwise {
namespace {

struct Variables {
    std::string solveFor;
    std::string other;
};

void enableGraph() {
    frmMain.Toolbar1[MainWindow::buttonGraph].Enabled = true;
    frmMain.mnuGraph.Enabled = true;
}

// "(3,4)-(5,6)" -> "3", "4", "5", "6". Fault 9 for fewer values than asked for.
std::vector<std::string> coordinates(std::string problem, std::size_t count) {
    problem = replaced(problem, ")-(", ",");
    problem = replaced(replaced(problem, "(", ""), ")", "");
    std::vector<std::string> values = split(problem, ',');
    if (values.size() < count) raise(FaultNumber::Subscript);
    return values;
}

// y is solved for where the problem has x and y; otherwise the student says which of two.
Variables chooseVariable() {
    const std::string v1 = ws.VarNames[1];
    const std::string v2 = ws.VarNames[2];
    if (v1 == "x" && v2 == "y") return {"y", "x"};
    if (v1 == "y" && (v2.empty() || v2 == "x")) return {"y", v2};
    if (v2.empty()) return {v1, ""};
    std::string answer;
    do {
        answer = platform.dialogs->inputBox("Which variable do you want to solve for?", "Ordwise");
    } while (FindVariable(answer) < 1);
    return {answer, answer == v1 ? v2 : v1};
}

// The solved equation in x and y, whatever its letters were: the graph window knows only these.
// e.g. "+1/1b=+2/1a", solved for b -> "+1/1y^+1=+2/1x"
std::string inGraphLetters(std::string equation, const Variables& variables) {
    if (variables.solveFor.empty()) return equation;  // e.g. 3=8
    if (!contains(equation, variables.solveFor)) {
        if (!variables.other.empty()) equation = replaced(equation, variables.other, "X");
    } else if (variables.solveFor != "y" && variables.other.empty()) {
        equation = replaced(equation, variables.solveFor, "X");
    } else {
        equation = replaced(equation, variables.solveFor, "Y");
        if (!variables.other.empty()) equation = replaced(equation, variables.other, "X");
    }
    equation = replaced(replaced(equation, "X", "x"), "Y", "y");
    return replaced(replaced(equation, "x=", "x^+1="), "y=", "y^+1=");
}

bool isNumberToken(const std::string& token) {
    return IsNumeric(token) || IsFractionToken(token);
}

// The tokens as cells of GraphValues: one number, fraction, sign or letter a cell.
void handOverTokens() {
    ws.GraphValues.clear();
    int cell = -1;
    for (int i = 0; i <= ws.TokenLast; ++i) {
        const std::string token = ws.TokenBuffer[i];
        if (token.empty()) continue;
        const std::string before = i > 0 ? ws.TokenBuffer[i - 1] : "";
        const bool goesOn = (isNumberToken(before) || before == "/") && (IsNumeric(token) || token == "/");
        if (cell >= 0 && goesOn) {
            ws.GraphValues.slot(cell) += token;
        } else {
            ws.GraphValues.set(++cell, token);
        }
    }
}

}  // namespace

void solveLinearEquationForGraph() {
    enableGraph();
    CanonToTokens();
    const Variables variables = chooseVariable();
    NormaliseSigns();
    CommitStep();
    ws.PlainSum = true;
    ExpandBothSides();
    SolveEquation(variables.solveFor);
    const std::string equation = EquationText();
    ws.CurrentNote = "Simplify the fractions to solve for [" + variables.solveFor + "].";
    CommitStep();
    ExplodeTokens(inGraphLetters(equation, variables));
    MergeNumbers();
    handOverTokens();
    ws.GraphKind = 3;
    ShowSteps();
}

void solvePointsOfLine(const std::string& problem) {
    enableGraph();
    const std::vector<std::string> values = coordinates(problem, 4);
    ws.GraphX1 = valueOf(values[0]);
    ws.GraphY1 = valueOf(values[1]);
    ws.GraphX2 = valueOf(values[2]);
    ws.GraphY2 = valueOf(values[3]);
    ws.GraphKind = 2;
    platform.windows->show("frmGraph");
}

void solveQuadrantOfPoint(const std::string& problem) {
    enableGraph();
    const std::vector<std::string> values = coordinates(problem, 2);
    ws.GraphX1 = valueOf(values[0]);
    ws.GraphY1 = valueOf(values[1]);
    ws.GraphKind = 1;
    Quadrant(values[0], values[1]);
}

void solvePoint(const std::string& problem) {
    enableGraph();
    const std::vector<std::string> values = coordinates(problem, 2);
    ws.GraphX1 = valueOf(values[0]);
    ws.GraphY1 = valueOf(values[1]);
    ws.GraphKind = 1;
    platform.windows->show("frmGraph");
}

}  // namespace ordwise
