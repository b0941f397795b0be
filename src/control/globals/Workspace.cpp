#include "Workspace.hpp"

namespace ordwise {

Workspace ws;

Workspace::Workspace() {
    StepClassOf.fill(noStepClass);
}

void ResetEngine(bool withSteps) {
    ws.InputTokens.clear();
    ws.CanonTokens.clear();
    ws.TokenBuffer.clear();
    ws.GraphValues.clear();

    ws.ReductionStable = true;
    ws.InputLast = 0;
    ws.TokenLast = 0;
    ws.CanonLast = 0;
    ws.ParenDepth = 0;
    ws.VarCount = 0;
    ws.EqualsTyped = false;
    ws.ExponentOpen = false;
    ws.FractionOpen = false;
    ws.RootOpen = false;
    ws.BarOpen = false;
    ws.CurrentSide = 0;

    for (int level = 0; level <= lastLevel; ++level) {
        ws.ParenTable[0][level] = false;
        ws.ParenTable[1][level] = false;
        ws.VarNames[level].clear();
        ws.LeadingTermHintShown[level] = false;
    }
    if (withSteps) {
        ws.StepCount = 1;
        for (int step = 0; step <= lastStep; ++step) {
            ws.StepLines[step].clear();
            ws.StepNotes[step].clear();
            ws.StepClassOf[step] = noStepClass;
        }
    }
    ResetStore(true);
}

void clearExplain() {
    for (std::string& note : ws.StepNotes) note.clear();
}

void ClearInput() {
    ws.InputTokens.clear();
    ws.InputLast = 0;
}

}  // namespace ordwise
