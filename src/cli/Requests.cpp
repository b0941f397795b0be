#include "Requests.hpp"

#include "CanonicalRewrite.hpp"
#include "Catalogue.hpp"
#include "DiskFiles.hpp"
#include "Examples.hpp"
#include "FreshProgram.hpp"
#include "JsonText.hpp"
#include "NumberText.hpp"
#include "PlainPlatform.hpp"
#include "RandomDraws.hpp"
#include "RequestDesk.hpp"
#include "SavedProblems.hpp"
#include "SolveDriver.hpp"
#include "StepDisplay.hpp"
#include "TextTools.hpp"
#include "WantedForms.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "WorksheetLayout.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

#include <optional>
#include <random>
#include <string>

namespace ordwise {
namespace {

using Json = nlohmann::ordered_json;

// --- the parts of an answer

void writeBoxes(JsonText& answer) {
    answer.member("boxes").array([&] {
        for (int number = 1; number <= 6; ++number) answer.string(frmPaper.box(number).Text);
    });
    answer.member("combos").array([&] {
        for (int number = 1; number <= 3; ++number) answer.number(frmPaper.combo(number).ListIndex);
    });
}

// The worksheet as it stands.
void writeWorksheet(JsonText& answer, const std::string& markup, const std::vector<RefusedKey>& refused,
                    bool canSolve) {
    answer.member("topic").string(ws.TopicName);
    answer.member("type").number(ws.ProblemType);
    answer.member("typed").string(ImplodeInput());
    answer.member("markup").string(markup);
    writeRefused(answer, refused);
    answer.member("canSolve").flag(canSolve);
    writeBoxes(answer);
}

void writeSteps(JsonText& answer, bool run, const WantedForms& forms) {
    const int last = run ? lastShownStep() : 0;
    answer.member("steps").array([&] {
        for (int i = 1; i <= last; ++i) {
            answer.object([&] {
                answer.member("index").number(i);
                answer.member("line").string(ws.StepLines[i]);
                answer.member("note").string(ws.StepNotes[i]);
                forms.write(answer, ws.ProblemType, ws.StepLines[i], ws.StepNotes[i]);
            });
        }
    });
}

void writeDialogs(JsonText& answer, const PlainPlatform& outside) {
    answer.member("messages").array([&] {
        for (const ShownMessage& message : outside.dialogs.messages) {
            answer.object([&] {
                answer.member("caption").string(message.caption);
                answer.member("text").string(message.text);
            });
        }
    });
    answer.member("prompts").array([&] {
        for (const ShownPrompt& prompt : outside.dialogs.prompts) {
            answer.object([&] {
                answer.member("caption").string(prompt.caption);
                answer.member("text").string(prompt.text);
                answer.member("answer").string(prompt.answer);
            });
        }
    });
}

// What was handed over to the graph window; nothing without a run.
void writeGraph(JsonText& answer, bool run) {
    answer.member("graph");
    const int kind = run ? static_cast<int>(ws.GraphKind) : 0;
    if (kind < 1 || kind > 3) return answer.null();
    answer.object([&] {
        answer.member("kind").number(kind);
        if (kind == 3) {
            answer.member("values").array([&] {
                for (int i = 0; i < ws.GraphValues.used(); ++i) answer.string(ws.GraphValues[i]);
            });
            return;
        }
        answer.member("x1").number(ws.GraphX1);
        answer.member("y1").number(ws.GraphY1);
        if (kind == 1) return;
        answer.member("x2").number(ws.GraphX2);
        answer.member("y2").number(ws.GraphY2);
    });
}

void writeSolution(JsonText& answer, bool run, const PlainPlatform& outside, const WantedForms& forms) {
    writeSteps(answer, run, forms);
    writeDialogs(answer, outside);
    writeGraph(answer, run);
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

std::string solveAnswer(const SolveRequest& request) {
    const WantedForms forms(request.forms);
    PlainPlatform outside;
    outside.dialogs.answers.assign(request.answers.begin(), request.answers.end());
    const std::vector<RefusedKey> refused = putOnWorksheet(request);
    const bool canSolve = solveEnabled();
    const bool run = canSolve && (refused.empty() || request.dropRefused);
    JsonText answer;
    answer.object([&] {
        // As it stands before the run: a solve may rewrite boxes and engine text.
        writeWorksheet(answer, ImplodeCanon(), refused, canSolve);
        if (run) {
            withAnswers(compute_Click);
            if (!request.saveTo.empty()) saveProblem(request.saveTo);
        }
        writeSolution(answer, run, outside, forms);
    });
    return std::move(answer).take();
}

std::string loadAnswer(const LoadRequest& request) {
    const WantedForms forms(request.forms);
    PlainPlatform outside;
    UnseenWindows windows;
    platform.windows = &windows;
    outside.dialogs.answers.assign(request.answers.begin(), request.answers.end());
    startProgram(request.settings);
    const SavedProblem problem = problemInFile(request.file);
    const std::vector<RefusedKey> refused = withAnswers([&] { return openProblem(problem); });
    const bool run = !ws.InputOpen;
    const bool canSolve = run || solveEnabled();
    JsonText answer;
    answer.object([&] {
        writeWorksheet(answer, markupOfInput(), refused, canSolve);
        writeSolution(answer, run, outside, forms);
    });
    return std::move(answer).take();
}

std::string exampleAnswer(const ExampleRequest& request) {
    const WantedForms forms(request.forms);
    PlainPlatform outside;
    openWorksheet(request.topic, request.settings);
    if (request.complex) ws.ComplexExamples = complexLevel;
    seedExample(ws.ProblemType, ws.ComplexExamples, request.seed);
    // A polynomial is evaluated at values that are asked for, one a letter.
    for (int letter = 0; letter < ws.EquationMode; ++letter) outside.dialogs.answers.push_back(textOf(RandInt2to9()));
    example_Click();
    const bool run = !ws.InputOpen;
    JsonText answer;
    answer.object([&] {
        writeWorksheet(answer, markupOfInput(), {}, run);
        writeSolution(answer, run, outside, forms);
    });
    return std::move(answer).take();
}

std::string keysAnswer(const KeysRequest& request) {
    PlainPlatform outside;
    openWorksheet(request.topic, {});
    JsonText answer;
    answer.object([&] {
        answer.member("topic").string(request.topic);
        answer.member("type").number(ws.ProblemType);
        answer.member("keys").array([&] {
            for (const std::string& key : characters(request.text)) {
                const KeyResult result = press(key);
                answer.object([&] {
                    answer.member("key").string(key);
                    answer.member("accepted").flag(result.accepted);
                    answer.member("reason").string(result.reason);
                    answer.member("typed").string(ImplodeInput());
                    answer.member("markup").string(ImplodeCanon());
                    answer.member("canSolve").flag(solveEnabled());
                });
            }
        });
    });
    return std::move(answer).take();
}

Json answerSolve(const SolveRequest& request) {
    return Json::parse(solveAnswer(request));
}

Json answerLoad(const LoadRequest& request) {
    return Json::parse(loadAnswer(request));
}

Json answerExample(const ExampleRequest& request) {
    return Json::parse(exampleAnswer(request));
}

Json answerKeys(const KeysRequest& request) {
    return Json::parse(keysAnswer(request));
}

std::uint64_t freshSeed() {
    static std::uint64_t next = std::random_device()() % 1000000;
    return next++;
}

bool wasSolved(const Json& answer) {
    return answer.at("canSolve").get<bool>() && answer.at("messages").empty() &&
           !(answer.at("steps").empty() && answer.at("graph").is_null());
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
