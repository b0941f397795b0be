#include "DeskEvents.hpp"

#include "DroppedKeys.hpp"
#include "FrameCommands.hpp"
#include "GuidedInput.hpp"
#include "Platform.hpp"
#include "ShownLines.hpp"
#include "SpokenForm.hpp"
#include "StartWindows.hpp"
#include "TypingHistory.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

namespace ordwise {
namespace {

bool lightIsRed() {
    return frmPaper.Light.Image == "light3";
}

bool tellsDroppedKey() {
    return std::any_of(frmPaper.DroppedKeys.begin(), frmPaper.DroppedKeys.end(),
                       [](const DroppedKey& key) { return key.Reason == ws.ExplainOverrideText; });
}

// A hint as it is typed: nobody types a closing mark or a "#".
// e.g. "Example: #1/2# + 3~4~" -> "Example: 1/2 + 3~4"
std::string asTyped(std::string_view markup) {
    std::string keys;
    bool closes = false;
    for (const char c : markup) {
        if (c == '#') continue;
        if (c == '^' || c == '~') {
            closes = !closes;
            if (!closes) continue;
        }
        keys += c;
    }
    return keys;
}

// The sheet before or behind the one in front, if it lies on the desk.
bool fetchSheet(int by) {
    const int sheet = sheetInFront() + by;
    if (!frmPaper.Loaded || sheet < 0 || sheet > PaperWindow::lastSheet || !frmPaper.Paper[sheet].Visible) return false;
    Paper_MouseDown(sheet);
    return true;
}

}  // namespace

void Paper_MouseDown(int sheet) {
    frmPaper.Paper[sheet].Order = ++frmPaper.FrontOrder;
}

void Paper_MouseMove(int sheet, double byX, double byY) {
    Sheet& moved = frmPaper.Paper[sheet];
    moved.Left += byX;
    moved.Top += byY;
    if (sheet != 0) return;
    frmPaper.Pencil.Left += byX;
    frmPaper.Pencil.Top += byY;
}

void Paper_Click(int sheet, double y) {
    const int line = lineAt(sheet, y);
    if (line >= 0 && line == frmPaper.ChosenLine) return mnuExp_Click();
    chooseLine(line);
}

bool Desk_KeyDown(DeskKey key) {
    const int lines = static_cast<int>(frmPaper.Lines.size());
    switch (key) {
        case DeskKey::Up: return moveChoice(-1);
        case DeskKey::Down: return moveChoice(1);
        case DeskKey::Home:
        case DeskKey::End:
            if (lines == 0) return false;
            chooseLine(key == DeskKey::Home ? 0 : lines - 1);
            return true;
        case DeskKey::Escape:
            if (frmPaper.ChosenLine < 0) return false;
            chooseLine(-1);
            return true;
        case DeskKey::PageUp: return fetchSheet(-1);
        case DeskKey::PageDown: return fetchSheet(1);
    }
    return false;
}

bool Picture_Enter() {
    const bool runs = frmMain.mnuSolve.Enabled || (frmPaper.Loaded && frmPaper.Paper[ws.CurrentSheet].blinker.Visible);
    if (runs) Form_KeyPress(enterKey);
    return runs;
}

void Box_KeyPress(int number, std::string_view key) {
    const bool open = ws.InputOpen;
    const std::string before = frmPaper.box(number).Text;
    rememberMoment();
    const bool accepted = Text_KeyPress(number, key);
    keepMoment(frmPaper.box(number).Text != before);
    if (key == backspaceKey) forgetKeysGoneBackOver(number);
    if (!accepted && open) rememberDroppedKey(key, number);
    markDroppedKeys();
    frmPaper.Light.Image = accepted ? "light2" : "light3";
    frmPaper.Light.ToolTip = accepted ? "Correct Input." : "Incorrect input.";
}

std::string statusLine() {
    if (!frmMain.StatusText.empty()) return frmMain.StatusText;
    if (!frmPaper.Loaded) return "Press Ctrl+N or choose New Problem to begin.";
    // What Enter misses, for one, was no key of the problem.
    if (lightIsRed() && !tellsDroppedKey()) return ws.ExplainOverrideText;
    if (!frmPaper.DroppedKeys.empty()) return droppedKeysSentence();
    if (ws.InputOpen && frmMain.mnuSolve.Enabled) return "Ready to solve: press Enter or F5, or go on typing.";
    if (ws.InputOpen) return asTyped(ws.HintText);
    if (frmPaper.ChosenLine >= 0)
        return noteInView().empty() ? "This line needs no explanation."
                                    : "Press F2, or click the line again, to read why.";
    if (frmPaper.Paper[ws.CurrentSheet].blinker.Visible) return "Press Enter or click Next Step to go on.";
    const std::string next = "Erase the problem to enter another one, or choose New Problem.";
    return frmPaper.Lines.empty() ? next : "Click a line, or press Up and Down, and F2 tells why.  " + next;
}

bool statusIsRefusal() {
    return frmMain.StatusText.empty() && frmPaper.Loaded && (lightIsRed() || !frmPaper.DroppedKeys.empty());
}

std::string spokenLineInView() {
    const auto letters = lettersOf(ws.ProblemType);
    if (ws.InputOpen) return spokenLine(ImplodeCanon(), letters);
    if (frmPaper.ChosenLine >= 0)
        return spokenLine(frmPaper.Lines[static_cast<std::size_t>(frmPaper.ChosenLine)].Line, letters);
    return spokenLine(ws.LineInView.empty() ? ws.StepLines[1] : ws.LineInView, letters);
}

bool waysToBeginAreOffered() {
    return !frmPaper.Loaded && !frmLogo.Loaded;
}

std::string spokenDeskName() {
    return frmPaper.Loaded ? "Worksheet: " + ws.TopicName : "Empty desk";
}

std::string spokenDesk() {
    if (!frmPaper.Loaded) return "";
    const std::string line = spokenLineInView();
    return line.empty() ? asTyped(ws.HintText) : line;
}

}  // namespace ordwise
