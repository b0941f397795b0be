// Runs the cases of this folder: a problem goes in as the terminal program takes it, and the whole
// solution must come out, every line, note, message box, prompt and refused key.
//
// Requests:  problem: TEXT    box N: TEXT    combo N: INDEX    answer: TEXT    set KEY: VALUE
//            drop refused: yes
//            text: TEXT, in place of a problem, for what the key check refuses
// Wanted:    > a line         (indented) its note
//            ! caption: text  a message box
//            ? caption: text  a prompt
//            x 3 q: reason    a refused key, its place in the problem counted from 0
// A wanted "graph: {...}" is a request that the hand-over to the graph window be this.
#include "CaseFile.hpp"
#include "Requests.hpp"
#include "UncheckedProblem.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace ordwise::test {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

bool begins(const std::string& text, const std::string& start) {
    return text.rfind(start, 0) == 0;
}

// A setting is a number where it spells one.
json settingOf(const std::string& value) {
    const json read = json::parse(value, nullptr, false);
    return read.is_number() ? read : json(value);
}

void addToRequest(json& request, const std::string& key, const std::string& value) {
    if (key == "topic" || key == "problem") {
        request[key] = value;
    } else if (begins(key, "box ")) {
        request["boxes"][key.substr(4)] = value;
    } else if (begins(key, "combo ")) {
        request["combos"][key.substr(6)] = std::stoi(value);
    } else if (key == "answer") {
        request["answers"].push_back(value);
    } else if (begins(key, "set ")) {
        request["settings"][key.substr(4)] = settingOf(value);
    } else if (key == "drop refused") {
        request["dropRefused"] = value == "yes";
    } else if (key != "graph" && key != "text") {
        ADD_FAILURE() << "no such request: " << key;
    }
}

const std::string* valueOf(const Case& one, const std::string& key) {
    for (const auto& request : one.requests) {
        if (request.first == key) return &request.second;
    }
    return nullptr;
}

ordered_json answerOf(const Case& one) {
    json request{{"op", "solve"}, {"answers", json::array()}};
    for (const auto& [key, value] : one.requests) addToRequest(request, key, value);
    const std::string* text = valueOf(one, "text");
    if (text != nullptr) return answerUnchecked(request["topic"], *text, request["answers"]);
    return answerRequest(request);
}

void write(std::ostream& out, const std::string& mark, std::string text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == '\n')) text.pop_back();
    std::string line;
    std::istringstream lines(text);
    for (bool first = true; std::getline(lines, line); first = false) out << (first ? mark : "    ") << line << '\n';
}

// The answer in the form of a case, so that a difference can be read, and copied where it is right.
std::string rendered(const ordered_json& answer) {
    std::ostringstream out;
    if (answer.contains("error")) out << "error: " << answer["error"].get<std::string>() << '\n';
    if (!answer.contains("steps")) return out.str();
    for (const auto& refusal : answer["refused"]) {
        out << "x " << refusal["at"] << ' ' << refusal["key"].get<std::string>() << ": "
            << refusal["reason"].get<std::string>() << '\n';
    }
    for (const auto& prompt : answer["prompts"]) {
        const auto caption = prompt["caption"].is_string() ? prompt["caption"].get<std::string>() : "";
        out << "? " << caption << ": " << prompt["text"].get<std::string>() << '\n';
    }
    for (const auto& step : answer["steps"]) {
        const auto line = step["line"].get<std::string>();
        line.empty() ? void(out << ">\n") : write(out, "> ", line);
        write(out, "    ", step["note"].get<std::string>());
    }
    for (const auto& message : answer["messages"]) {
        out << "! " << message["caption"].get<std::string>() << ": " << message["text"].get<std::string>() << '\n';
    }
    return out.str();
}

class Solution : public testing::TestWithParam<Case> {};

TEST_P(Solution, StandsAsWritten) {
    const Case& one = GetParam();
    const ordered_json answer = answerOf(one);
    std::string wanted;
    for (const auto& line : one.wanted) wanted += line + '\n';
    EXPECT_EQ(rendered(answer), wanted) << one << ", topic " << one.requests.front().second;
    const std::string* graph = valueOf(one, "graph");
    if (graph != nullptr) {
        EXPECT_EQ(answer["graph"], ordered_json::parse(*graph));
    }
}

std::string nameOf(const testing::TestParamInfo<Case>& info) {
    return info.param.name();
}

INSTANTIATE_TEST_SUITE_P(Cases, Solution, testing::ValuesIn(casesIn(ORDWISE_CASES, {"check", "keys"})), nameOf);

}  // namespace
}  // namespace ordwise::test
