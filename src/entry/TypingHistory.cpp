#include "TypingHistory.hpp"

#include "DroppedKeys.hpp"
#include "GuidedInput.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "Workspace.hpp"

#include <string>
#include <utility>
#include <vector>

namespace ordwise {
namespace {

TypedMoment momentNow() {
    TypedMoment moment;
    for (int i = 0; i < ws.InputLast; ++i) moment.Keys += ws.InputTokens[i];
    moment.Syntax = ws;
    for (int number = 1; number <= 6; ++number)
        moment.Boxes[static_cast<std::size_t>(number - 1)] = frmPaper.box(number).Text;
    return moment;
}

void bringBackPaper(const TypedMoment& moment) {
    ClearInput();
    for (const char key : moment.Keys) {
        ws.InputTokens.set(ws.InputLast, std::string(1, key));
        ws.InputLast += 1;
    }
    static_cast<SyntaxState&>(ws) = moment.Syntax;
}

// The number of the box that differs, 0 if none does.
int bringBackBoxes(const TypedMoment& moment) {
    int changed = 0;
    for (int number = 1; number <= 6; ++number) {
        const std::string& text = moment.Boxes[static_cast<std::size_t>(number - 1)];
        if (frmPaper.box(number).Text == text) continue;
        setBoxText(number, text);
        forgetKeysGoneBackOver(number);
        changed = number;
    }
    return changed;
}

// Both commands are offered as long as there is a moment to go to and the problem is open.
void offerHistory() {
    frmMain.mnuUndo.Enabled = ws.InputOpen && !ws.UndoMoments.empty();
    frmMain.mnuRedo.Enabled = ws.InputOpen && !ws.RedoMoments.empty();
}

// One moment from the one list, and the moment as it is now onto the other.
void goTo(std::vector<TypedMoment>& from, std::vector<TypedMoment>& onto) {
    if (from.empty() || !ws.InputOpen) return;
    onto.push_back(momentNow());
    const TypedMoment moment = std::move(from.back());
    from.pop_back();
    bringBackPaper(moment);
    const int box = bringBackBoxes(moment);
    showTypedAgain();
    if (box != 0) frmPaper.KeyboardBox = box;
    offerHistory();
}

}  // namespace

void rememberMoment() {
    constexpr std::size_t mostMoments = 1000;
    constexpr long forgotten = 250;  // at once, so that hardly any key has to move the others
    if (ws.UndoMoments.size() == mostMoments)
        ws.UndoMoments.erase(ws.UndoMoments.begin(), ws.UndoMoments.begin() + forgotten);
    ws.UndoMoments.push_back(momentNow());
}

void keepMoment(bool changed) {
    if (!changed) {
        ws.UndoMoments.pop_back();
    } else {
        ws.RedoMoments.clear();
    }
    offerHistory();
}

void forgetHistory() {
    ws.UndoMoments.clear();
    ws.RedoMoments.clear();
    offerHistory();
}

void undoKey() {
    goTo(ws.UndoMoments, ws.RedoMoments);
    forgetKeysGoneBackOver();
    markDroppedKeys();
}

void redoKey() {
    goTo(ws.RedoMoments, ws.UndoMoments);
    markDroppedKeys();
}

}  // namespace ordwise
