// Reads files of cases.
#include "CaseFile.hpp"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <ostream>
#include <stdexcept>
#include <string_view>

namespace ordwise::test {

namespace {

// What begins a wanted line: a step, its note, a message box, a prompt, a refused key.
constexpr std::string_view wantedMarks = "> !?x";

std::string withoutBlanksAtEnd(std::string line) {
    line.erase(std::find_if(line.rbegin(), line.rend(), [](char c) { return c != ' ' && c != '\r'; }).base(),
               line.end());
    return line;
}

bool isWanted(const std::string& line) {
    if (line.front() == '>') return true;
    return line.size() > 1 && line[1] == ' ' && wantedMarks.find(line.front()) != std::string_view::npos;
}

// "key: value", the value as it stands behind one blank. e.g. "box 1: 3" -> {"box 1", "3"}
std::pair<std::string, std::string> requestOf(const std::string& line, const std::string& place) {
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) throw std::runtime_error(place + ": neither a request nor a wanted line");
    std::size_t value = colon + 1;
    if (value < line.size() && line[value] == ' ') ++value;
    return {line.substr(0, colon), line.substr(value)};
}

void finish(Case& one, std::vector<Case>& cases) {
    // A topic alone is a heading.
    if (one.requests.size() > 1 || !one.wanted.empty()) cases.push_back(one);
    one.requests.resize(std::min<std::size_t>(one.requests.size(), 1));
    one.wanted.clear();
    one.line = 0;
}

void take(const std::string& line, int number, Case& one) {
    const std::string place = one.file + ".txt:" + std::to_string(number);
    if (one.line == 0) one.line = number;
    if (isWanted(line)) {
        if (one.requests.empty()) throw std::runtime_error(place + ": no topic is named");
        one.wanted.push_back(line);
        return;
    }
    auto request = requestOf(line, place);
    if (!one.wanted.empty()) throw std::runtime_error(place + ": a request behind a wanted line");
    if (request.first == "topic") {
        one.requests.assign(1, std::move(request));
    } else {
        if (one.requests.empty()) throw std::runtime_error(place + ": no topic is named");
        one.requests.push_back(std::move(request));
    }
}

}  // namespace

std::string Case::name() const {
    std::string name = file + "_" + std::to_string(line);
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

std::ostream& operator<<(std::ostream& out, const Case& one) {
    return out << one.file << ".txt:" << one.line;
}

std::vector<Case> casesOf(std::istream& in, const std::string& file) {
    std::vector<Case> cases;
    Case one;
    one.file = file;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        line = withoutBlanksAtEnd(line);
        if (line.empty()) {
            finish(one, cases);
        } else if (line.front() != '#') {
            take(line, number, one);
        }
    }
    finish(one, cases);
    return cases;
}

std::vector<Case> casesIn(const std::filesystem::path& folder, const std::vector<std::string>& without) {
    std::vector<std::filesystem::path> files;
    for (auto entry = std::filesystem::recursive_directory_iterator(folder); entry != end(entry); ++entry) {
        const std::string name = entry->path().filename().string();
        if (entry->is_directory() && std::find(without.begin(), without.end(), name) != without.end()) {
            entry.disable_recursion_pending();
        }
        if (entry->path().extension() == ".txt") files.push_back(entry->path());
    }
    std::sort(files.begin(), files.end());
    std::vector<Case> cases;
    for (const auto& path : files) {
        std::ifstream in(path);
        for (auto& one : casesOf(in, path.stem().string())) cases.push_back(std::move(one));
    }
    return cases;
}

}  // namespace ordwise::test
