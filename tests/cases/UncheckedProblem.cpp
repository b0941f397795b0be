// Solves what cannot be typed.
#include "UncheckedProblem.hpp"

#include "CanonicalRewrite.hpp"
#include "Catalogue.hpp"
#include "FreshProgram.hpp"
#include "PlainPlatform.hpp"
#include "SolveDriver.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

namespace ordwise::test {

namespace {

using Json = nlohmann::ordered_json;

void putOnPaper(const std::string& text) {
    int slot = 0;
    for (const char c : text) ws.InputTokens.set(slot++, std::string(1, c));
    ws.InputLast = slot;
    CollectVariables();
    GroupInput();
    (void)RewriteAll();
    ws.ProblemText = text;
}

Json stepsTaken() {
    Json steps = Json::array();
    for (int i = 1; i <= ws.StepCount && i <= lastStep; ++i) {
        if (i == ws.StepCount && ws.StepLines[i].empty()) break;
        steps.push_back({{"index", i}, {"line", ws.StepLines[i]}, {"note", ws.StepNotes[i]}});
    }
    return steps;
}

}  // namespace

Json answerUnchecked(const std::string& topic, const std::string& text, const std::vector<std::string>& answers) {
    PlainPlatform outside;
    outside.dialogs.answers.assign(answers.begin(), answers.end());
    startFreshProgram();
    frmMain.mnuShowStep.Checked = false;
    TreeViewSelect(topic);
    Form_Load();
    putOnPaper(text);
    compute_Click();
    Json messages = Json::array();
    for (const auto& message : outside.dialogs.messages) {
        messages.push_back({{"caption", message.caption}, {"text", message.text}});
    }
    Json prompts = Json::array();
    for (const auto& prompt : outside.dialogs.prompts) {
        prompts.push_back({{"caption", prompt.caption}, {"text", prompt.text}});
    }
    return {{"refused", Json::array()}, {"steps", stepsTaken()}, {"messages", messages}, {"prompts", prompts}};
}

}  // namespace ordwise::test
