// Runs the cases of tests/cases/keys: keys as typed, and what a student sees.
#include "KeyDesk.hpp"
#include "PlainPlatform.hpp"
#include "TextTools.hpp"

#include <gtest/gtest.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace ordwise::test {
namespace {

namespace fs = std::filesystem;

struct KeyCase {
    int line;
    std::string topic;
    std::string keys;
    std::string expected;
};

bool isRemark(const std::string& line) {
    return trimmed(line).empty() || line == "#" || line.rfind("# ", 0) == 0;
}

// Two lines a case; ADD_FAILURE for a line that fits no case.
std::vector<KeyCase> casesOf(const fs::path& file) {
    std::vector<KeyCase> cases;
    std::ifstream in(file);
    std::string line;
    bool complete = true;
    for (int number = 1; std::getline(in, line); ++number) {
        if (isRemark(line)) continue;
        if (line[0] == ' ' && !complete) {
            cases.back().expected = trimmed(line);
            complete = true;
            continue;
        }
        const std::size_t gap = line.find("  ");
        if (gap == std::string::npos || gap == 0 || !complete) {
            ADD_FAILURE() << file << ":" << number << " is no case: " << line;
            return {};
        }
        cases.push_back({number, line.substr(0, gap), line.substr(gap + 2), ""});
        complete = false;
    }
    if (!complete) ADD_FAILURE() << file << " ends in a case without its result";
    return cases;
}

std::vector<fs::path> caseFiles() {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(ORDWISE_CASES) / "keys")) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string testName(const testing::TestParamInfo<fs::path>& file) {
    return file.param.stem().string();
}

class KeyCases : public testing::TestWithParam<fs::path> {};

TEST_P(KeyCases, ShowWhatAStudentSees) {
    const PlainPlatform platform;
    const std::vector<KeyCase> cases = casesOf(GetParam());
    EXPECT_FALSE(cases.empty());
    for (const KeyCase& one : cases) {
        EXPECT_EQ(afterKeys(one.topic, one.keys), one.expected)
            << GetParam().filename() << ":" << one.line << "  " << one.topic << "  " << one.keys;
    }
}

INSTANTIATE_TEST_SUITE_P(Files, KeyCases, testing::ValuesIn(caseFiles()), testName);

}  // namespace
}  // namespace ordwise::test
