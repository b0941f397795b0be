// The engine alone, without worksheet and key check: a text goes in as the driver hands it over.
//
//   startText(102, "3(x+2)");          a fresh engine, the first step recorded
//   solveText(102, "3(x+2)").lines();  the whole topic
#pragma once

#include "CanonicalRewrite.hpp"
#include "PlainPlatform.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

#include <string>
#include <vector>

namespace ordwise::test {

// The recorded steps, the restated problem first.
struct Recorded {
    std::vector<std::string> lines;
    std::vector<std::string> notes;

    [[nodiscard]] const std::string& last() const { return lines.back(); }
};

// A fresh workspace of a topic with a text on its paper, as if every key had been accepted, in the
// TokenBuffer and committed.
inline void startText(int problemType, const std::string& text) {
    ws = Workspace();
    ws.ProblemType = problemType;
    int slot = 0;
    for (const char c : text) ws.InputTokens.set(slot++, std::string(1, c));
    ws.InputLast = slot;
    GroupInput();
    (void)RewriteAll();
    CanonToTokens();
    NormaliseSigns();
    CommitStep();
}

inline Recorded recorded() {
    Recorded steps;
    for (int i = 1; i < ws.StepCount; ++i) {
        steps.lines.push_back(ws.StepLines[i]);
        steps.notes.push_back(ws.StepNotes[i]);
    }
    return steps;
}

// What the driver runs for a topic of the engine.
inline void runTopic(int problemType) {
    switch (problemType) {
        case 82: ReduceFinalRadicals(); break;
        case 83: FindPrimeFactors(); break;
        case 101:
        case 105:
            ws.PlainSum = true;
            ExpandBothSides();
            SolveEquation(problemType == 105 && FindVariable("y") > 0 ? "y" : ws.VarNames[1]);
            break;
        case 103: EvaluateProblem(); break;
        case 150:
            ReduceExpression(0, false, true);
            ExpandPolynomial();
            break;
        case 76:
            ws.UseFractions = true;
            FractionArithmetic(ws.GroupTable[ws.MaxDepth].lastGroup);
            break;
        default: ExpandPolynomial();
    }
}

inline Recorded solveText(int problemType, const std::string& text, const std::vector<std::string>& answers = {}) {
    PlainPlatform outside;
    outside.dialogs.answers.assign(answers.begin(), answers.end());
    startText(problemType, text);
    runTopic(problemType);
    return recorded();
}

}  // namespace ordwise::test
