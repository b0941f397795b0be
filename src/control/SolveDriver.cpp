#include "SolveDriver.hpp"

#include "Fault.hpp"
#include "Platform.hpp"
#include "ShownLines.hpp"
#include "SolveDispatch.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <string>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

constexpr int hourglass = 11;

// Whatever follows, once Solve has run there is something to print and save.
void enablePrintAndSave() {
    frmMain.Toolbar1[MainWindow::buttonPrint].Enabled = true;
    frmMain.Toolbar1[MainWindow::buttonSave].Enabled = true;
    frmMain.mnuPrint.Enabled = true;
    frmMain.mnuPrintSetup.Enabled = true;
    frmMain.mnuSave.Enabled = true;
}

// A key that was not taken is missing in what is solved; that is said once more, and then it is past.
void tellDroppedKeys() {
    const std::vector<DroppedKey>& keys = frmPaper.DroppedKeys;
    if (keys.empty()) return;
    std::string words;
    for (const DroppedKey& key : keys) words += (words.empty() ? "'" : ", '") + key.Key + "'";
    frmMain.StatusText = keys.size() == 1 ? "Solved without the key that was not taken: " + words + "."
                                          : "Solved without the keys that were not taken: " + words + ".";
    frmPaper.DroppedKeys.clear();
    frmPaper.Paper[0].Marks.clear();
    frmPaper.BoxMarks.clear();
}

void beginRun() {
    frmMain.MousePointer = hourglass;
    tellDroppedKeys();
    frmMain.mnuUndo.Enabled = false;
    frmMain.mnuRedo.Enabled = false;
    enablePrintAndSave();
    frmPaper.Light.Image = "light1";
    frmPaper.Light.ToolTip = "Click the red light for incorrect input details.";
    ws.InputOpen = false;
    frmPaper.Pencil.Image = "pencil1";
    platform.windows->unload("frmGraph");
    forgetLines();
    ws.StepCount = 1;
    // What the problem before has left would stand at the first line, or keep it from being recorded.
    ws.CurrentNote.clear();
    ws.LastLine.clear();
    for (std::string& line : ws.StepLines) line.clear();
    ws.ShownStep = frmMain.mnuShowStep.Checked ? 2 : 0;
    ws.LineInView.clear();
    ws.GraphKind = 0;
}

void tell(FaultNumber fault) {
    switch (fault) {
        case FaultNumber::Overflow:
            platform.dialogs->messageBox(
                "The entered problem caused a data overflow.  Click the 'Erase' button and try again.", "Overflow!",
                MessageButtons::Ok);
            break;
        case FaultNumber::DivisionByZero:
            platform.dialogs->messageBox(
                "The problem entered caused division by 0 (which is not mathematically "
                "possible).  Click the 'Erase' button and try again.",
                "Division by 0!", MessageButtons::Ok);
            break;
        default:
            platform.dialogs->messageBox(
                "The format of the entered problem was not recognized.  Click the 'Erase' "
                "button and try again.",
                "Ordwise", MessageButtons::Ok);
            break;
    }
}

// The pointer comes back however the run ends.
class PointerGuard {
public:
    PointerGuard() = default;
    PointerGuard(const PointerGuard&) = delete;
    PointerGuard& operator=(const PointerGuard&) = delete;
    ~PointerGuard() { frmMain.MousePointer = ws.NormalPointer; }
};

}  // namespace

void compute_Click() {
    const PointerGuard guard;
    try {
        beginRun();
        solveByType(ws.ProblemType);
        StepThinning();
        setSolveEnabled(false);
    } catch (const RunTimeFault& fault) {
        tell(fault.number());
    }
}

void StepThinning() {
    if (ws.StepClassOf[2] >= noStepClass) return;
    struct Step {
        std::string line;
        std::string note;
    };
    std::vector<Step> kept;
    const int last = ws.StepCount - 1;
    if (last < 2) return;
    for (int i = 2; i < last; ++i) {
        if (i % ws.StepDetail == 0) kept.push_back({ws.StepLines[i], ws.StepNotes[i]});
    }
    const bool onlyTheLast = kept.empty();
    kept.push_back({ws.StepLines[last], ws.StepNotes[last]});
    // The display has gone through the steps as they were, or is at the first of them. So the last one
    // keeps its note, which the assistant may be standing at, and where it is all that is left to draw
    // also its line.
    if (!onlyTheLast) ws.StepLines[last].clear();
    for (int i = 2; i < last; ++i) {
        ws.StepLines[i].clear();
        ws.StepNotes[i].clear();
    }
    int place = 2;
    for (Step& step : kept) {
        ws.StepLines[place] = std::move(step.line);
        ws.StepNotes[place] = std::move(step.note);
        ++place;
    }
    // With nothing kept before it, the count ends one short of the last line; see lastShownStep.
    ws.StepCount = onlyTheLast ? 2 : place;
}

void showResultsAsFractions(bool fractions) {
    ws.UseFractions = fractions;
    ws.UseDecimals = !fractions;
    frmMain.Toolbar1[MainWindow::buttonFracdec].Image = fractions ? "fracdec" : "fracdec2";
}

}  // namespace ordwise
