#include "RequestDesk.hpp"

#include "Catalogue.hpp"
#include "FlatProblem.hpp"
#include "FreshProgram.hpp"
#include "GuidedInput.hpp"
#include "NearestNames.hpp"
#include "NumberText.hpp"
#include "SettingsTable.hpp"
#include "TextTools.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"

namespace ordwise {

bool solveEnabled() {
    return frmMain.mnuSolve.Enabled;
}

void startProgram(const std::map<std::string, std::string>& settings) {
    startFreshProgram();
    frmMain.mnuShowStep.Checked = false;
    for (const auto& [key, value] : settings) {
        std::string reason;
        if (!applySetting(key, value, reason)) throw BadRequest(reason);
    }
}

void openWorksheet(const std::string& topic, const std::map<std::string, std::string>& settings) {
    if (findTopic(topic) == nullptr) throw BadRequest(unknownTopicSentence(topic));
    startProgram(settings);
    TreeViewSelect(topic);
    Form_Load();
}

KeyResult press(const std::string& key) {
    if (key == enterKey) return {};
    switch (Form_KeyPress(key)) {
        case KeyOutcome::Accepted: return {true, ""};
        case KeyOutcome::Refused: return {false, ws.ExplainOverrideText};
        default: return {false, ""};
    }
}

std::vector<RefusedKey> typeProblem(const SolveRequest& request) {
    std::vector<RefusedKey> refused;
    for (const ProblemKey& typed : keysOf(request.problem)) {
        const KeyResult result = press(typed.key);
        if (result.accepted) continue;
        refused.push_back({typed.at, typed.key, result.reason});
        if (!request.dropRefused) break;
    }
    return refused;
}

void selectCombos(const std::map<int, int>& combos) {
    for (const auto& [number, index] : combos) {
        const std::string name = "Combo" + textOf(number);
        if (number < 1 || number > 3) throw BadRequest("There is no " + name + "; the lists are Combo1 to Combo3.");
        ComboControl& combo = frmPaper.combo(number);
        if (!combo.Visible) throw BadRequest("\"" + ws.TopicName + "\" has no " + name + ".");
        const int count = static_cast<int>(combo.List.size());
        if (index < 0 || index >= count)
            throw BadRequest(name + " has the entries 0 to " + textOf(count - 1) + ", not " + textOf(index) + ".");
        combo.ListIndex = index;
    }
}

void fillBoxes(const std::map<int, std::string>& boxes, std::vector<RefusedKey>& refused) {
    for (const auto& [number, content] : boxes) {
        const std::string name = "Text" + textOf(number);
        if (number < 1 || number > 6) throw BadRequest("There is no " + name + "; the boxes are Text1 to Text6.");
        if (!frmPaper.box(number).Visible) throw BadRequest("\"" + ws.TopicName + "\" has no " + name + ".");
        if (typeIntoBox(number, content)) continue;
        const int at = static_cast<int>(frmPaper.box(number).Text.size());
        refused.push_back({at, characters(content)[static_cast<std::size_t>(at)], ws.ExplainOverrideText});
        break;
    }
}

std::vector<RefusedKey> putOnWorksheet(const SolveRequest& request) {
    openWorksheet(request.topic, request.settings);
    if (!request.problem.empty() && !isOnPaper(ws.ProblemType))
        throw BadRequest("\"" + request.topic +
                         "\" takes its numbers in boxes (--box N=TEXT), not as a typed problem.");
    selectCombos(request.combos);
    std::vector<RefusedKey> refused = typeProblem(request);
    fillBoxes(request.boxes, refused);
    return refused;
}

void writeRefused(JsonText& answer, const std::vector<RefusedKey>& refused) {
    answer.member("refused").array([&] {
        for (const RefusedKey& key : refused) {
            answer.object([&] {
                answer.member("at").number(key.at);
                answer.member("key").string(key.key);
                answer.member("reason").string(key.reason);
            });
        }
    });
}

}  // namespace ordwise
