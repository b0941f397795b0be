// write_seeds CASES FOLDER: the problems of the tests as first inputs of the fuzzers, a folder a fuzzer.
//
// From a problem that a person would type, a mutation gets farther than from bytes by chance. The cases
// of single keys are written in another way and stay out.
#include "CaseFile.hpp"
#include "FuzzedTopic.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>

namespace {

using ordwise::test::Case;

// The value of a key of the request, "" where it has none.
std::string valueOf(const Case& one, std::string_view key) {
    for (const auto& [name, value] : one.requests) {
        if (name == key) return value;
    }
    return "";
}

// What is typed: a problem, or the texts of boxes 1 to 6 with blanks between.
std::string typedText(const Case& one) {
    if (const std::string problem = valueOf(one, "problem"); !problem.empty()) return problem;
    std::string boxes;
    for (int number = 1; number <= 6; ++number) boxes += valueOf(one, "box " + std::to_string(number)) + ' ';
    return boxes;
}

// "(topic)3/4+x" as the fuzzer of keys takes it, and with more bytes behind the topic that of solves; "" for
// a topic that there is not.
std::string behindItsTopic(const Case& one, const std::string& between = "") {
    const auto& names = ordwise::fuzz::topics();
    const auto topic = std::find(names.begin(), names.end(), valueOf(one, "topic"));
    if (topic == names.end()) return "";
    return static_cast<char>(topic - names.begin()) + between + typedText(one);
}

std::string requestLine(const Case& one) {
    nlohmann::ordered_json request{{"op", "solve"}, {"topic", valueOf(one, "topic")}};
    if (const std::string problem = valueOf(one, "problem"); !problem.empty()) request["problem"] = problem;
    for (int number = 1; number <= 6; ++number) {
        const std::string box = valueOf(one, "box " + std::to_string(number));
        if (!box.empty()) request["boxes"][std::to_string(number)] = box;
    }
    return request.dump();
}

// The same as a command line.
std::string argumentLines(const Case& one) {
    std::string lines = "solve\n" + valueOf(one, "topic");
    if (const std::string problem = valueOf(one, "problem"); !problem.empty()) lines += "\n" + problem;
    for (int number = 1; number <= 6; ++number) {
        const std::string box = valueOf(one, "box " + std::to_string(number));
        if (!box.empty()) lines += "\n--box\n" + std::to_string(number) + "=" + box;
    }
    return lines;
}

// At the desk: choose the n-th topic, have an example written, look at its graph, print, and save it.
std::string sitting(int n) {
    const std::string nobodyRefuses(4, 1);
    return nobodyRefuses +
           std::string{17, 0, static_cast<char>(n % 256), static_cast<char>(n / 256), 23, 26, 41, 42, 20, 6, 18, 0};
}

class Seeds {
public:
    explicit Seeds(std::filesystem::path folder) : folder_(std::move(folder)) {
        for (const char* fuzzer : {"keys", "solve", "batch", "markup", "desk", "command_line"})
            create_directories(folder_ / fuzzer);
    }
    void add(const char* fuzzer, const std::string& bytes) {
        if (!bytes.empty()) std::ofstream(folder_ / fuzzer / std::to_string(++count_), std::ios::binary) << bytes;
    }
    [[nodiscard]] int count() const { return count_; }

private:
    std::filesystem::path folder_;
    int count_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    Seeds seeds(argv[2]);
    for (const Case& one : ordwise::test::casesIn(argv[1], {"keys"})) {
        seeds.add("keys", behindItsTopic(one));
        seeds.add("solve", behindItsTopic(one, std::string(2, '\0')));
        seeds.add("command_line", argumentLines(one));
        seeds.add("batch", requestLine(one));
        for (const std::string& line : one.wanted) {
            if (line.starts_with("> ")) seeds.add("markup", line.substr(2));
        }
    }
    for (const std::string& topic : ordwise::fuzz::topics()) {
        seeds.add("command_line", "test\n--section\n" + topic + ":2\n--key\nsteps");
        seeds.add("command_line", "example\n" + topic + "\n--seed\n7");
    }
    constexpr int mostTopics = 150;
    for (int n = 0; n < mostTopics; ++n) seeds.add("desk", sitting(n));
    std::cout << seeds.count() << " first inputs\n";
    return seeds.count() > 0 ? 0 : 1;
}
