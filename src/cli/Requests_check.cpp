// The student's own lines as requests.
#include "AnswerCheck.hpp"
#include "LineSession.hpp"
#include "PlainPlatform.hpp"
#include "RequestDesk.hpp"
#include "WantedForms.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"

namespace ordwise {
namespace {

void writeText(JsonText& answer, const char* name, const std::string& text) {
    answer.member(name).string(text);
}

void writeEvidence(JsonText& answer, const exact::Evidence& evidence) {
    answer.object([&] {
        answer.member("at").object([&] {
            for (const auto& [letter, value] : evidence.at) writeText(answer, std::string(1, letter).c_str(), value);
        });
        if (!evidence.before.empty()) {
            writeText(answer, "before", evidence.before);
            return writeText(answer, "line", evidence.line);
        }
        answer.member("before").flag(evidence.beforeHolds);
        answer.member("line").flag(evidence.lineHolds);
    });
}

void writeSlip(JsonText& answer, const Slip& slip) {
    answer.object([&] {
        writeText(answer, "name", slip.name);
        writeText(answer, "reason", slip.reason);
    });
}

void writeNext(JsonText& answer, const SolverStep& step) {
    answer.object([&] {
        writeText(answer, "note", step.note);
        writeText(answer, "line", step.line);
    });
}

template <class Value, class Write>
void writeOptional(JsonText& answer, const char* name, const std::optional<Value>& value, Write write) {
    answer.member(name);
    if (value) {
        write(answer, *value);
    } else {
        answer.null();
    }
}

void writeLine(JsonText& answer, const WorkedLine& line, const WantedForms& forms) {
    answer.object([&] {
        writeText(answer, "typed", line.typed);
        writeText(answer, "markup", line.markup);
        writeRefused(answer, line.refused);
        answer.member("verdict").string(nameOf(line.judgement.verdict));
        answer.member("finished").flag(line.finished);
        writeText(answer, "reason", line.judgement.reason);
        writeOptional(answer, "slip", line.slip, writeSlip);
        writeOptional(answer, "evidence", line.judgement.evidence, writeEvidence);
        writeOptional(answer, "next", line.next, writeNext);
        forms.write(answer, ws.ProblemType, line.markup, "");
    });
}

LineSession sessionOf(const CheckRequest& request) {
    try {
        LineSession session = beginLines(request.answers);
        for (const std::string& line : request.lines) {
            if (session.topic.kind == LineKind::Answer) {
                (void)addAnswer(session, line);
            } else {
                (void)addLine(session, line);
            }
        }
        return session;
    } catch (const UnansweredQuestion& question) {
        throw AnswersUsedUp("The solve asks \"" + std::string(question.what()) +
                            "\" and there is no answer left (--answer TEXT).");
    }
}

}  // namespace

std::string checkAnswer(const CheckRequest& request) {
    const WantedForms forms(request.forms);
    PlainPlatform outside;
    const std::vector<RefusedKey> refused = putOnWorksheet(request);
    if (checkTopicOf(ws.ProblemType).kind == LineKind::Drawing)
        throw BadRequest("\"" + request.topic + "\" is answered by a drawing, so there is no line to check.");
    const bool canSolve = solveEnabled();
    JsonText answer;
    answer.object([&] {
        writeText(answer, "topic", ws.TopicName);
        answer.member("type").number(ws.ProblemType);
        writeText(answer, "typed", ImplodeInput());
        writeText(answer, "markup", ImplodeCanon());
        writeRefused(answer, refused);
        answer.member("canSolve").flag(canSolve);
        LineSession session;
        if (canSolve && (refused.empty() || request.dropRefused)) session = sessionOf(request);
        answer.member("lines").array([&] {
            for (const WorkedLine& line : session.lines) writeLine(answer, line, forms);
        });
        answer.member("finished").flag(session.finished);
    });
    return std::move(answer).take();
}

nlohmann::ordered_json answerCheck(const CheckRequest& request) {
    return nlohmann::ordered_json::parse(checkAnswer(request));
}

bool lastLineIsAnswer(const nlohmann::ordered_json& answer) {
    return !answer.at("lines").empty() && answer.at("lines").back().at("finished").get<bool>();
}

}  // namespace ordwise
