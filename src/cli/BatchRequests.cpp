// Reading requests from JSON: every field may be missing, wrong or of another type.
#include "JsonText.hpp"
#include "NumberText.hpp"
#include "Requests.hpp"

#include <exception>
#include <functional>
#include <new>

namespace ordwise {
namespace {

using Json = nlohmann::ordered_json;

const nlohmann::json* member(const nlohmann::json& object, const char* name) {
    const auto found = object.find(name);
    return found == object.end() || found->is_null() ? nullptr : &*found;
}

std::string textMember(const nlohmann::json& request, const char* name, bool needed = false) {
    const nlohmann::json* value = member(request, name);
    if (value == nullptr) {
        if (needed) throw BadRequest("The request has no \"" + std::string(name) + "\".");
        return {};
    }
    if (!value->is_string()) throw BadRequest("\"" + std::string(name) + "\" must be a text.");
    return value->get<std::string>();
}

bool flagMember(const nlohmann::json& request, const char* name) {
    const nlohmann::json* value = member(request, name);
    if (value == nullptr) return false;
    if (!value->is_boolean()) throw BadRequest("\"" + std::string(name) + "\" must be true or false.");
    return value->get<bool>();
}

// Numbers and booleans count as the text that they would be written as.
std::string plainText(const nlohmann::json& value, const std::string& name) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_boolean()) return value.get<bool>() ? "True" : "False";
    if (value.is_number()) return textOf(value.get<double>());
    throw BadRequest("\"" + name + "\" must be a text or a number.");
}

int wholeNumber(const std::string& text, const std::string& name) {
    if (text.empty() || text.size() > 4 || text.find_first_not_of("0123456789") != std::string::npos)
        throw BadRequest("\"" + name + "\" must be a whole number, not \"" + text + "\".");
    return std::stoi(text);
}

// A list of texts, or of what can be read as one.
std::vector<std::string> listMember(const nlohmann::json& request, const char* name) {
    std::vector<std::string> texts;
    const nlohmann::json* list = member(request, name);
    if (list == nullptr) return texts;
    if (!list->is_array()) throw BadRequest("\"" + std::string(name) + "\" must be an array.");
    for (const nlohmann::json& text : *list) texts.push_back(plainText(text, name));
    return texts;
}

void eachMember(const nlohmann::json& request, const char* name,
                const std::function<void(const std::string& key, const std::string& value)>& take) {
    const nlohmann::json* object = member(request, name);
    if (object == nullptr) return;
    if (!object->is_object()) throw BadRequest("\"" + std::string(name) + "\" must be an object.");
    for (const auto& [key, value] : object->items()) take(key, plainText(value, key));
}

void readProblem(const nlohmann::json& request, SolveRequest& result) {
    result.topic = textMember(request, "topic", true);
    result.problem = textMember(request, "problem");
    result.dropRefused = flagMember(request, "dropRefused");
    eachMember(request, "boxes", [&](const std::string& key, const std::string& value) {
        result.boxes[wholeNumber(key, "boxes")] = value;
    });
    eachMember(request, "combos", [&](const std::string& key, const std::string& value) {
        result.combos[wholeNumber(key, "combos")] = wholeNumber(value, "combos");
    });
    eachMember(request, "settings",
               [&](const std::string& key, const std::string& value) { result.settings[key] = value; });
    result.answers = listMember(request, "answers");
    result.forms = listMember(request, "forms");
}

SolveRequest solveRequest(const nlohmann::json& request) {
    SolveRequest result;
    readProblem(request, result);
    return result;
}

CheckRequest checkRequest(const nlohmann::json& request) {
    CheckRequest result;
    readProblem(request, result);
    if (member(request, "lines") == nullptr) throw BadRequest("The request has no \"lines\".");
    result.lines = listMember(request, "lines");
    return result;
}

ExampleRequest exampleRequest(const nlohmann::json& request) {
    ExampleRequest result;
    result.topic = textMember(request, "topic", true);
    result.complex = flagMember(request, "complex");
    result.seed = freshSeed();
    if (const nlohmann::json* seed = member(request, "seed")) {
        if (!seed->is_number_unsigned()) throw BadRequest("\"seed\" must be a whole number from 0 on.");
        result.seed = seed->get<std::uint64_t>();
    }
    eachMember(request, "settings",
               [&](const std::string& key, const std::string& value) { result.settings[key] = value; });
    result.forms = listMember(request, "forms");
    return result;
}

std::string dispatch(const nlohmann::json& request) {
    if (!request.is_object()) throw BadRequest("A request must be a JSON object.");
    const std::string op = textMember(request, "op", true);
    if (op == "solve") return solveAnswer(solveRequest(request));
    if (op == "keys") return keysAnswer({textMember(request, "topic", true), textMember(request, "text", true)});
    if (op == "example") return exampleAnswer(exampleRequest(request));
    if (op == "check") return checkAnswer(checkRequest(request));
    throw BadRequest("There is no op \"" + op + "\"; it is solve, check, keys or example.");
}

std::string errorAnswer(const char* sentence) {
    JsonText answer;
    answer.object([&] { answer.member("error").string(sentence); });
    return std::move(answer).take();
}

// The answer, or the error that keeps it from being given.
template <class Answer>
std::string answerOrError(Answer answer) {
    try {
        return answer();
    } catch (const std::bad_alloc&) {
        return errorAnswer("There is not enough memory to answer this request.");
    } catch (const std::exception& trouble) {
        return errorAnswer(trouble.what());
    }
}

}  // namespace

std::string answerTextOf(const nlohmann::json& request) {
    return answerOrError([&] { return dispatch(request); });
}

std::string answerTextOfLine(std::string_view line) {
    return answerOrError([&] {
        const nlohmann::json request = nlohmann::json::parse(line, nullptr, false);
        if (request.is_discarded()) throw BadRequest("The line is no valid JSON.");
        return dispatch(request);
    });
}

std::string answerTextOfLongLine() {
    return errorAnswer("The line is longer than 1 MiB.");
}

Json answerRequest(const nlohmann::json& request) {
    return Json::parse(answerTextOf(request));
}

Json answerLine(const std::string& line) {
    return Json::parse(answerTextOfLine(line));
}

}  // namespace ordwise
