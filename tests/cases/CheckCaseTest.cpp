// Runs the cases of tests/cases/check: a problem, and the lines that a student writes below it, with what
// he is told about each.
//
// Requests: as for a solution (SolutionCaseTest.cpp). Wanted:
//
//     > 2x=4
//         right: This line has the same solutions as the line before.
//     > x=3                          (a line, as it is typed)
//         wrong: x = 2 solves ...    (its verdict, "right, finished" where nothing is left to do)
//         slip NAME: It looks as if ...
//         next 2x=4: Subtract ...    (looked at where it is written)
#include "CaseFile.hpp"
#include "Requests.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace ordwise::test {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

json requestOf(const Case& one) {
    json request{{"op", "check"}, {"lines", json::array()}, {"answers", json::array()}};
    for (const auto& [key, value] : one.requests) {
        if (key.starts_with("box ")) {
            request["boxes"][key.substr(4)] = value;
        } else if (key.starts_with("combo ")) {
            request["combos"][key.substr(6)] = std::stoi(value);
        } else if (key.starts_with("set ")) {
            request["settings"][key.substr(4)] = value;
        } else if (key == "answer") {
            request["answers"].push_back(value);
        } else {
            request[key] = value;
        }
    }
    for (const std::string& line : one.wanted) {
        if (line.starts_with(">")) request["lines"].push_back(line.size() > 2 ? line.substr(2) : "");
    }
    return request;
}

std::string rendered(const ordered_json& answer, const Case& one) {
    std::ostringstream out;
    if (answer.contains("error")) return "error: " + answer["error"].get<std::string>() + "\n";
    const auto text = [](const ordered_json& object, const char* name) { return object[name].get<std::string>(); };
    std::size_t i = 0;
    for (const std::string& wanted : one.wanted) {
        if (wanted.starts_with("    next ")) {
            const auto& next = answer["lines"][i - 1]["next"];
            if (next.is_null()) continue;
            std::string note = text(next, "note");
            note.erase(note.find_last_not_of(' ') + 1);
            out << "    next " << text(next, "line") << ": " << note << '\n';
        }
        if (!wanted.starts_with(">") || i >= answer["lines"].size()) continue;
        const auto& line = answer["lines"][i++];
        out << wanted << "\n    " << text(line, "verdict") << (line["finished"].get<bool>() ? ", finished" : "") << ": "
            << text(line, "reason") << '\n';
        if (!line["slip"].is_null())
            out << "    slip " << text(line["slip"], "name") << ": " << text(line["slip"], "reason") << '\n';
    }
    return out.str();
}

class WorkedLines : public testing::TestWithParam<Case> {};

TEST_P(WorkedLines, AreJudgedAsWritten) {
    const Case& one = GetParam();
    std::string wanted;
    for (const auto& line : one.wanted) wanted += line + '\n';
    EXPECT_EQ(rendered(answerRequest(requestOf(one)), one), wanted) << one;
}

std::string nameOf(const testing::TestParamInfo<Case>& info) {
    return info.param.name();
}

INSTANTIATE_TEST_SUITE_P(Cases, WorkedLines, testing::ValuesIn(casesIn(ORDWISE_CASES "/check")), nameOf);

}  // namespace
}  // namespace ordwise::test
