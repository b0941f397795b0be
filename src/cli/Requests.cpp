#include "Requests.hpp"

#include "CanonicalRewrite.hpp"
#include "Catalogue.hpp"
#include "DiskFiles.hpp"
#include "Examples.hpp"
#include "FlatProblem.hpp"
#include "FreshProgram.hpp"
#include "GuidedInput.hpp"
#include "NearestNames.hpp"
#include "NumberText.hpp"
#include "PlainPlatform.hpp"
#include "RandomDraws.hpp"
#include "SavedProblems.hpp"
#include "SettingsTable.hpp"
#include "SolveDriver.hpp"
#include "TextTools.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetBoxes.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <optional>
#include <random>
#include <string>

namespace ordwise {
namespace {

using Json = nlohmann::ordered_json;

bool solveEnabled() {
    return frmMain.mnuSolve.Enabled;
}

// A fresh program with the settings of the request.
void startProgram(const std::map<std::string, std::string>& settings) {
    startFreshProgram();
    frmMain.mnuShowStep.Checked = false;
    for (const auto& [key, value] : settings) {
        std::string reason;
        if (!applySetting(key, value, reason)) throw BadRequest(reason);
    }
}

// The same with the worksheet of the topic open.
void openWorksheet(const std::string& topic, const std::map<std::string, std::string>& settings) {
    if (findTopic(topic) == nullptr) throw BadRequest(unknownTopicSentence(topic));
    startProgram(settings);
    TreeViewSelect(topic);
    Form_Load();
}

struct KeyResult {
    bool accepted = false;
    std::string reason;
};

// A key that is dropped was not even looked at and has no reason.
// Enter is no character of a problem, and here it is no command either.
KeyResult press(const std::string& key) {
    if (key == enterKey) return {};
    switch (Form_KeyPress(key)) {
        case KeyOutcome::Accepted: return {true, ""};
        case KeyOutcome::Refused: return {false, ws.ExplainOverrideText};
        default: return {false, ""};
    }
}

Json refusal(int at, const std::string& key, const std::string& reason) {
    return Json{{"at", at}, {"key", key}, {"reason", reason}};
}

// Types the problem; a refused key ends it unless refused keys are to be dropped.
Json typeProblem(const SolveRequest& request) {
    Json refused = Json::array();
    for (const ProblemKey& typed : keysOf(request.problem)) {
        const KeyResult result = press(typed.key);
        if (result.accepted) continue;
        refused.push_back(refusal(typed.at, typed.key, result.reason));
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

// Fills the boxes through their key rule; the first text that a box refuses ends it.
Json fillBoxes(const std::map<int, std::string>& boxes) {
    Json refused = Json::array();
    for (const auto& [number, content] : boxes) {
        const std::string name = "Text" + textOf(number);
        if (number < 1 || number > 6) throw BadRequest("There is no " + name + "; the boxes are Text1 to Text6.");
        if (!frmPaper.box(number).Visible) throw BadRequest("\"" + ws.TopicName + "\" has no " + name + ".");
        if (typeIntoBox(number, content)) continue;
        const int at = static_cast<int>(frmPaper.box(number).Text.size());
        refused.push_back(refusal(at, characters(content)[static_cast<std::size_t>(at)], ws.ExplainOverrideText));
        break;
    }
    return refused;
}

Json stepsTaken() {
    Json steps = Json::array();
    const auto add = [&](int i) {
        steps.push_back(Json{{"index", i}, {"line", ws.StepLines[i]}, {"note", ws.StepNotes[i]}});
    };
    for (int i = 1; i < ws.StepCount; ++i) add(i);
    // A thinned solution of one step ends one short of its line.
    if (ws.StepCount <= lastStep && !ws.StepLines[ws.StepCount].empty()) add(ws.StepCount);
    return steps;
}

Json graphHandedOver() {
    switch (static_cast<int>(ws.GraphKind)) {
        case 1: return Json{{"kind", 1}, {"x1", ws.GraphX1}, {"y1", ws.GraphY1}};
        case 2:
            return Json{{"kind", 2}, {"x1", ws.GraphX1}, {"y1", ws.GraphY1}, {"x2", ws.GraphX2}, {"y2", ws.GraphY2}};
        case 3: {
            Json values = Json::array();
            for (int i = 0; i < ws.GraphValues.used(); ++i) values.push_back(ws.GraphValues[i]);
            return Json{{"kind", 3}, {"values", values}};
        }
        default: return nullptr;
    }
}

Json messagesShown(const PlainPlatform& outside) {
    Json messages = Json::array();
    for (const ShownMessage& m : outside.dialogs.messages)
        messages.push_back(Json{{"caption", m.caption}, {"text", m.text}});
    return messages;
}

Json promptsShown(const PlainPlatform& outside) {
    Json prompts = Json::array();
    for (const ShownPrompt& p : outside.dialogs.prompts)
        prompts.push_back(Json{{"caption", p.caption}, {"text", p.text}, {"answer", p.answer}});
    return prompts;
}

Json boxesAsTheyStand() {
    Json boxes = Json::array();
    for (int number = 1; number <= 6; ++number) boxes.push_back(frmPaper.box(number).Text);
    return boxes;
}

Json combosAsTheyStand() {
    Json combos = Json::array();
    for (int number = 1; number <= 3; ++number) combos.push_back(frmPaper.combo(number).ListIndex);
    return combos;
}

// What stands on the worksheet, and its solution if `run`: the object of every command that solves.
Json worksheetAnswer(const Json& refused, bool canSolve, bool run, const PlainPlatform& outside) {
    return Json{{"topic", ws.TopicName},
                {"type", static_cast<int>(ws.ProblemType)},
                {"typed", ImplodeInput()},
                {"markup", ImplodeCanon()},
                {"refused", refused},
                {"canSolve", canSolve},
                {"boxes", boxesAsTheyStand()},
                {"combos", combosAsTheyStand()},
                {"steps", run ? stepsTaken() : Json::array()},
                {"messages", messagesShown(outside)},
                {"prompts", promptsShown(outside)},
                {"graph", run ? graphHandedOver() : Json(nullptr)}};
}

// Runs what may solve a problem.
template <class Solve>
auto withAnswers(Solve solve) {
    try {
        return solve();
    } catch (const NoAnswerLeft& question) {
        throw AnswersUsedUp("The solve asks \"" + std::string(question.what()) +
                            "\" and there is no answer left (--answer TEXT).");
    }
}

void saveProblem(const std::string& file) {
    const std::string trouble = DiskFiles().write(file, textOfProblem(problemOnDesk()));
    if (!trouble.empty()) throw BadRequest(trouble);
}

SavedProblem problemInFile(const std::string& file) {
    const std::optional<std::string> text = DiskFiles().read(file);
    if (!text) throw BadRequest("\"" + file + "\" can't be read.");
    const std::optional<SavedProblem> problem = problemOfText(*text);
    if (!problem) throw BadRequest("\"" + file + "\" holds no problem of Ordwise.");
    return *problem;
}

// The engine uses the cells of the rewrite for its own lines, so they are made again.
std::string markupOfInput() {
    GroupInput();
    return RewriteAll();
}

}  // namespace

Json answerSolve(const SolveRequest& request) {
    PlainPlatform outside;
    outside.dialogs.answers.assign(request.answers.begin(), request.answers.end());
    openWorksheet(request.topic, request.settings);
    if (!request.problem.empty() && ws.ProblemType < firstPaperTopic)
        throw BadRequest("\"" + request.topic +
                         "\" takes its numbers in boxes (--box N=TEXT), not as a typed problem.");
    selectCombos(request.combos);
    Json refused = typeProblem(request);
    for (Json& box : fillBoxes(request.boxes)) refused.push_back(std::move(box));

    const bool canSolve = solveEnabled();
    const bool run = canSolve && (refused.empty() || request.dropRefused);
    // As it stands before the run: a solve may rewrite boxes and engine text.
    Json answer = worksheetAnswer(refused, canSolve, false, outside);
    if (run) {
        withAnswers(compute_Click);
        if (!request.saveTo.empty()) saveProblem(request.saveTo);
    }
    answer["steps"] = run ? stepsTaken() : Json::array();
    answer["messages"] = messagesShown(outside);
    answer["prompts"] = promptsShown(outside);
    answer["graph"] = run ? graphHandedOver() : Json(nullptr);
    return answer;
}

Json answerLoad(const LoadRequest& request) {
    PlainPlatform outside;
    UnseenWindows windows;
    platform.windows = &windows;
    outside.dialogs.answers.assign(request.answers.begin(), request.answers.end());
    startProgram(request.settings);
    const SavedProblem problem = problemInFile(request.file);
    Json refused = Json::array();
    const std::vector<RefusedKey> keys = withAnswers([&] { return openProblem(problem); });
    for (const RefusedKey& key : keys) refused.push_back(refusal(key.at, key.key, key.reason));
    const bool run = !ws.InputOpen;
    Json answer = worksheetAnswer(refused, run || solveEnabled(), run, outside);
    answer["markup"] = markupOfInput();
    return answer;
}

Json answerExample(const ExampleRequest& request) {
    PlainPlatform outside;
    openWorksheet(request.topic, request.settings);
    if (request.complex) ws.ComplexExamples = complexLevel;
    seedExample(ws.ProblemType, ws.ComplexExamples, request.seed);
    // A polynomial is evaluated at values that are asked for, one a letter.
    for (int letter = 0; letter < ws.EquationMode; ++letter) outside.dialogs.answers.push_back(textOf(RandInt2to9()));
    example_Click();
    const bool run = !ws.InputOpen;
    Json answer = worksheetAnswer(Json::array(), run, run, outside);
    answer["markup"] = markupOfInput();
    return answer;
}

std::uint64_t freshSeed() {
    static std::uint64_t next = std::random_device()() % 1000000;
    return next++;
}

bool wasSolved(const Json& answer) {
    return answer.at("canSolve").get<bool>() && answer.at("messages").empty() &&
           !(answer.at("steps").empty() && answer.at("graph").is_null());
}

Json answerKeys(const KeysRequest& request) {
    PlainPlatform outside;
    openWorksheet(request.topic, {});
    Json keys = Json::array();
    for (const std::string& key : characters(request.text)) {
        const KeyResult result = press(key);
        keys.push_back(Json{{"key", key},
                            {"accepted", result.accepted},
                            {"reason", result.reason},
                            {"typed", ImplodeInput()},
                            {"markup", ImplodeCanon()},
                            {"canSolve", solveEnabled()}});
    }
    return Json{{"topic", request.topic}, {"type", static_cast<int>(ws.ProblemType)}, {"keys", keys}};
}

Json answerTopics() {
    PlainPlatform outside;
    startFreshProgram();
    Json topics = Json::array();
    for (const std::string_view name : topicNames()) {
        const TopicRow& row = *findTopic(name);
        topics.push_back(Json{{"name", row.name},
                              {"type", row.code},
                              {"mask", row.mask.empty() ? Json(nullptr) : Json(row.mask)},
                              {"maxDigits", row.maxDigits},
                              {"equationMode", row.equationMode},
                              {"hint", hintOf(row.code)}});
    }
    return topics;
}

}  // namespace ordwise
