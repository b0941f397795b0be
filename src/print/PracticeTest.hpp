// Practice tests: up to ten sections, each of one topic, made up by the generator of the examples.
//
// A test holds problems only. Its key is made by the solver that teaches the same topic, so the two
// cannot disagree. The seed makes the same test again; the versions A, B and C of one outline are
// the tests of the seeds that follow one another. Whatever stands on the worksheet stays as it is.
#pragma once

#include "Documents.hpp"
#include "Examples.hpp"
#include "PrintWindows.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

inline constexpr int mostSections = 10;
inline constexpr int mostVersions = 3;
inline constexpr int mostSpace = 20;  // lines below a problem: with more, a page has no room for it
inline constexpr int mostColumns = 2;

struct TestSection {
    std::string topic;
    int count = 1;
    bool complex = false;
};

struct TestPlan {
    std::array<std::string, 3> heading;
    std::vector<TestSection> sections;
    AnswerKey key = AnswerKey::None;
    int versions = 1;
    std::uint64_t seed = 0;
    bool nameLine = true;  // above the heading of each test
    int space = 0;         // lines to work in below each problem
    int columns = 1;       // of problems, in sections of short ones
    bool solved = false;   // each problem with its solution, for a document
};

// One version of a test.
struct MadeTest {
    std::uint64_t seed = 0;
    std::string version;                         // "A", "B", "C"; "" for the only one
    std::vector<std::string> lines;              // blank lines, headings and numbered problems
    std::vector<std::string> key;                // the same with answers; empty if none is wanted
    std::vector<DocumentSection> sections = {};  // the same solved, if that is wanted
};

// Prepares a section: the topic's type, mask and limits, TestHeading and TestSuffix. Returns the type.
// Fault 9 for a topic that no test has.
int TestTopicRow(std::string_view topic);

// Makes all versions. Leaves the lines of the first in TestProblems. Fault 9 for a test of more than
// 200 lines.
[[nodiscard]] std::vector<MadeTest> makeTests(const TestPlan& plan);

// The pages to be previewed and printed: each version, and behind it its key.
[[nodiscard]] std::vector<PrintSheet> sheetsOf(const TestPlan& plan, const std::vector<MadeTest>& tests);

// The same as a document for another program. Expects tests that were made solved.
[[nodiscard]] Document documentOf(const TestPlan& plan, const std::vector<MadeTest>& tests);

// The answer to the problem that has just been solved on the worksheet, or all of its lines.
// e.g. Solving Equations, x+3=12 -> "x=9"
[[nodiscard]] std::string answerOnDesk();
[[nodiscard]] std::vector<std::string> stepsOnDesk();

}  // namespace ordwise
