#include "GuidedInput.hpp"

#include "CanonicalRewrite.hpp"
#include "Catalogue.hpp"
#include "DroppedKeys.hpp"
#include "Fault.hpp"
#include "InputMaskCheck.hpp"
#include "SolveDriver.hpp"
#include "SolveReadiness.hpp"
#include "StepDisplay.hpp"
#include "SyntaxCheck.hpp"
#include "TextTools.hpp"
#include "TypedRoom.hpp"
#include "TypingHistory.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFPrint.hpp"

#include <cmath>

namespace ordwise {

namespace {

constexpr double fullLineX = 730;
// A line that is drawn over several rows begins each anew and never reaches fullLineX. Far more
// keys than a paper holds, and few enough for the cells of the rewrite.
constexpr int mostKeys = 300;

bool lineIsFull() {
    return ws.TypedEndX >= fullLineX || ws.InputLast >= mostKeys;
}

// Undoes what the removed character did to the syntax state. What else it had closed, an exponent
// or a fraction, is not opened again.
void rollBack(const std::string& removed) {
    if (removed == "~") ws.RootOpen = false;
    if (removed == "=") ws.EqualsTyped = false;
    if (removed == "^") ws.ExponentOpen = false;
    if (removed == ")") ws.ParenDepth += 1;
    if (removed == "(") ws.ParenDepth -= 1;
    if (removed == "|") {
        ws.BarOpen = !ws.BarOpen;
        ws.BarDepth += ws.BarOpen ? 1 : -1;
    }
    if (removed == "/") {
        ws.FractionOpen = false;
        ws.ParenSide = 0;
    }
}

void removeLast() {
    ws.InputLast -= 1;
    rollBack(ws.InputTokens[ws.InputLast]);
    ws.InputTokens.set(ws.InputLast, "");
}

// An exponent's mark goes with its digit. False on an empty paper.
bool eraseOne() {
    if (ws.InputLast == 0) {
        ws.ExplainOverrideText = "Problem has already been erased.";
        return false;
    }
    removeLast();
    if (ws.InputLast > 0 && ws.InputTokens[ws.InputLast - 1] == "^") removeLast();
    return true;
}

bool typeOne(std::string_view key) {
    if (std::optional<std::string> reason = maskRefusal(key)) {
        ws.ExplainOverrideText = std::move(*reason);
        return false;
    }
    CollectVariables();
    const std::string ch = lowered(key);
    if (!SyntaxCheck(ch)) return false;
    ws.InputTokens.set(ws.InputLast, ch);
    ws.InputLast += 1;
    return true;
}

void showAccepted() {
    frmPaper.Light.Image = "light2";
    frmPaper.Light.ToolTip = "Correct Input.";
    const Sheet& paper = frmPaper.Paper[0];
    frmPaper.Pencil.Left = ws.LineEndsInFraction ? ws.DenominatorEndX + paper.Left - 11 : ws.LineEndX + paper.Left - 9;
    constexpr double rowHeight = 46;
    const double rows = std::floor((ws.LineEndY - sheetTopY) / rowHeight);  // below the first, of a broken line
    frmPaper.Pencil.Top = paper.Top - 122 + rows * rowHeight;
}

void showRefused() {
    frmPaper.Light.Image = "light3";
    frmPaper.Light.ToolTip = "Incorrect input.";
}

void clearPaper() {
    frmPaper.Paper[0].cls();
    frmPaper.Paper[0].CurrentY = sheetTopY;
}

// Enter where there is nothing to run yet.
KeyOutcome refuseUnfinished() {
    if (isOnPaper(ws.ProblemType)) {
        GroupInput();
        ws.ExplainOverrideText = whatIsMissing(rewriteCells());
    } else {
        ws.ExplainOverrideText = whatBoxesMiss();
    }
    showRefused();
    return KeyOutcome::Refused;
}

// A key that is not looked at does not vanish unseen either.
KeyOutcome drop(std::string_view key) {
    if (key == enterKey || ws.ProblemType == 0) return KeyOutcome::Dropped;
    if (!ws.InputOpen) {
        frmMain.StatusText = "The problem has been solved.  Erase it to enter another one.";
    } else if (!isOnPaper(ws.ProblemType)) {
        frmMain.StatusText = "Type into the boxes.  Tab goes from one to the next.";
    } else {
        frmMain.StatusText = "The line is full.  Solve the problem, or take keys back with Backspace.";
    }
    return KeyOutcome::Dropped;
}

// Enter runs what can be run; false if there is nothing.
bool command() {
    if (frmMain.Toolbar1[MainWindow::buttonSolve].Enabled) {
        compute_Click();
        return true;
    }
    if (frmPaper.Paper[ws.CurrentSheet].blinker.Visible) {
        blinker_Click();
        return true;
    }
    return false;
}

}  // namespace

KeyOutcome Form_KeyPress(std::string_view key) {
    ws.CharAccepted = false;
    if (key == enterKey && command()) return KeyOutcome::Commanded;
    if (key == enterKey && ws.InputOpen) return refuseUnfinished();
    const bool erases = key == backspaceKey;
    const bool hasRoom = erases || !lineIsFull();
    if (!hasRoom || !isOnPaper(ws.ProblemType) || !ws.InputOpen) return drop(key);

    rememberMoment();
    clearPaper();
    FormFilter(key, false);
    ws.ProblemText = replaced(ImplodeInput(), " ", "");
    keepMoment(ws.CharAccepted);

    if (erases) forgetKeysGoneBackOver();
    if (!ws.CharAccepted && !erases) rememberDroppedKey(key);
    if (!frmPaper.DroppedKeys.empty() || !frmPaper.Paper[0].Marks.empty()) markDroppedKeys();
    if (!ws.CharAccepted) {
        showRefused();
        return KeyOutcome::Refused;
    }
    showAccepted();
    return KeyOutcome::Accepted;
}

bool hasRoomFor(std::string_view line) {
    const std::optional<double> end = typedEnd(line, TypedRows::One);
    if (!end) raise(FaultNumber::Subscript);
    return *end < fullLineX;
}

void showTypedAgain() {
    if (isOnPaper(ws.ProblemType)) {
        clearPaper();
        GroupInput();
        PrintMathLine(RewriteAll(), false);
        ws.ProblemText = replaced(ImplodeInput(), " ", "");
    }
    showAccepted();
}

void FormFilter(std::string_view key, bool quiet) {
    const bool erases = key == backspaceKey;
    ws.CharAccepted = erases ? eraseOne() : typeOne(key);
    if (!quiet && ws.CharAccepted) {
        frmPaper.Pencil.Image = erases ? "pencil2" : "pencil1";
        frmPaper.Timer1.Enabled = frmMain.mnuPencil.Checked;
    }

    GroupInput();
    const std::string markup = RewriteAll();
    if (quiet) return;
    PrintMathLine(markup, false);
    ws.TypedEndX = typedEnd(markup).value_or(ws.TypedEndX);
}

}  // namespace ordwise
