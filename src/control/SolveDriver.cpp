#include "SolveDriver.hpp"

#include "Fault.hpp"
#include "Platform.hpp"
#include "SolveDispatch.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <string>
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

void beginRun() {
    frmMain.MousePointer = hourglass;
    enablePrintAndSave();
    frmPaper.Light.Image = "light1";
    frmPaper.Light.ToolTip = "light1";
    ws.InputOpen = false;
    frmPaper.Pencil.Image = "pencil1";
    platform.windows->unload("frmGraph");
    ws.StepCount = 1;
    ws.CurrentNote.clear();  // the last rule's of the problem before would stand at the first line
    for (std::string& line : ws.StepLines) line.clear();
    ws.ShownStep = frmMain.mnuShowStep.Checked ? 2 : 0;
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
    for (int i = 2; i < last; ++i) {
        if (i % ws.StepDetail == 0) kept.push_back({ws.StepLines[i], ws.StepNotes[i]});
    }
    const bool onlyTheLast = kept.empty();
    kept.push_back({ws.StepLines[last], ws.StepNotes[last]});
    for (int i = 2; i <= last; ++i) {
        const std::size_t place = static_cast<std::size_t>(i) - 2;
        const Step step = place < kept.size() ? kept[place] : Step{};
        ws.StepLines[i] = step.line;
        ws.StepNotes[i] = step.note;
    }
    // With nothing kept before it, the count ends one short of the last line. It stays so: the
    // display has been drawn by then, and a saved or printed solution looks one line further.
    ws.StepCount = onlyTheLast ? 2 : 2 + static_cast<int>(kept.size());
}

}  // namespace ordwise
