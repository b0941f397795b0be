#include "PeopleOutput.hpp"

#include "PlainForm.hpp"
#include "Requests.hpp"

#include <iomanip>
#include <ostream>
#include <string>

namespace ordwise {
namespace {

std::string textIn(const nlohmann::ordered_json& object, const char* name) {
    return object.at(name).get<std::string>();
}

constexpr std::size_t lineWidth = 78;

// Words in lines of a terminal's width, each line indented.
void printWrapped(const std::string& text, const std::string& indent, std::ostream& out) {
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = start + lineWidth - indent.size();
        if (end >= text.size()) {
            end = text.size();
        } else {
            const std::size_t blank = text.rfind(' ', end);
            if (blank != std::string::npos && blank > start) end = blank;
        }
        out << indent << text.substr(start, end - start) << '\n';
        start = text.find_first_not_of(' ', end);
        if (start == std::string::npos) break;
    }
}

// Each form of a line that was asked for, under its name, in one piece: it is to be copied.
void printForms(const nlohmann::ordered_json& step, const char* member, std::ostream& out) {
    if (!step.contains(member)) return;
    for (const auto& [name, text] : step.at(member).items())
        out << "    " << name << ": " << text.get<std::string>() << '\n';
}

}  // namespace

void printSolution(const nlohmann::ordered_json& answer, std::ostream& out) {
    const auto& steps = answer.at("steps");
    for (const auto& step : steps) {
        out << plainText(textIn(step, "line")) << '\n';
        printForms(step, "forms", out);
        printWrapped(plainText(textIn(step, "note")), "    ", out);
        printForms(step, "noteForms", out);
    }
    const auto& graph = answer.at("graph");
    if (!graph.is_null() && steps.empty()) out << "The graph window shows the problem.\n";
    for (const auto& message : answer.at("messages"))
        out << textIn(message, "caption") << ": " << textIn(message, "text") << '\n';
    if (!wasSolved(answer)) return;
    const std::size_t count = steps.empty() ? 0 : steps.size() - 1;
    out << "Solved in " << count << (count == 1 ? " step.\n" : " steps.\n");
}

void printCheck(const nlohmann::ordered_json& answer, std::ostream& out) {
    if (!textIn(answer, "markup").empty()) out << plainText(textIn(answer, "markup")) << '\n';
    const auto& lines = answer.at("lines");
    for (const auto& line : lines) {
        out << std::left << std::setw(24) << plainText(textIn(line, "markup")) << "  " << textIn(line, "verdict")
            << '\n';
        printForms(line, "forms", out);
        printWrapped(textIn(line, "reason"), "    ", out);
        if (!line.at("slip").is_null()) printWrapped(plainText(textIn(line.at("slip"), "reason")), "    ", out);
    }
    if (lastLineIsAnswer(answer)) {
        out << "Finished.\n";
    } else if (!lines.empty() && !lines.back().at("next").is_null()) {
        printWrapped("Next: " + plainText(textIn(lines.back().at("next"), "note")), "", out);
    }
}

std::string checkFailureSentence(const nlohmann::ordered_json& answer) {
    if (!answer.at("refused").empty() || !answer.at("canSolve").get<bool>()) return failureSentence(answer);
    return "The last line is not an answer that is right and finished.";
}

void printKeys(const nlohmann::ordered_json& answer, std::ostream& out) {
    for (const auto& key : answer.at("keys")) {
        const bool accepted = key.at("accepted").get<bool>();
        out << textIn(key, "key") << "  " << (accepted ? "accepted" : "refused ") << "  " << std::left << std::setw(24)
            << textIn(key, "markup") << (key.at("canSolve").get<bool>() ? "Solve" : "") << '\n';
        if (!accepted) printWrapped(textIn(key, "reason"), "    ", out);
    }
}

void printTest(const nlohmann::ordered_json& answer, std::uint64_t seed, std::ostream& out) {
    const auto printLines = [&](const nlohmann::ordered_json& lines) {
        for (const auto& line : lines) out << plainText(line.get<std::string>()) << '\n';
    };
    if (!answer.contains("versions")) {
        printLines(answer.at("heading"));
        printLines(answer.at("lines"));
        out << "\nSeed " << seed << '\n';
        return;
    }
    for (const auto& test : answer.at("versions")) {
        const std::string version = textIn(test, "version");
        printLines(answer.at("heading"));
        if (!version.empty()) out << "Version " << version << '\n';
        printLines(test.at("lines"));
        if (!test.at("key").empty()) out << "\nAnswer Key\n\n";
        printLines(test.at("key"));
        out << "\nSeed " << test.at("seed") << "\n\n";
    }
}

void printTopics(const nlohmann::ordered_json& answer, std::ostream& out) {
    for (const auto& topic : answer)
        out << std::right << std::setw(3) << topic.at("type").get<int>() << "  " << textIn(topic, "name") << '\n';
}

std::string failureSentence(const nlohmann::ordered_json& answer) {
    if (!answer.at("refused").empty()) {
        const auto& first = answer.at("refused").front();
        const std::string reason = textIn(first, "reason");
        return "The key \"" + textIn(first, "key") + "\" at " + std::to_string(first.at("at").get<int>()) +
               " was refused: " + (reason.empty() ? "the line is full." : reason);
    }
    if (!answer.at("canSolve").get<bool>()) return "The problem is not complete yet, so it can't be solved.";
    if (!answer.at("messages").empty()) return textIn(answer.at("messages").front(), "text");
    return "Nothing was solved.";
}

}  // namespace ordwise
