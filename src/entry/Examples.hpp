// Example problems: the Example command makes up a problem of the current topic, writes it on the
// worksheet and solves it; the practice test collects such problems as lines.
//
// Every example is legal because it is made by the check itself: problems of the paper are typed,
// without drawing, through the filter of guided typing, and only what it lets through stays.
// How a problem of each topic is drawn stands in ExampleDraws.hpp.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// The level that draws harder examples; any other draws plain ones.
inline constexpr int complexLevel = 2;

// A problem that has been made up and stands nowhere yet.
struct Example {
    std::array<std::string, 6> boxes;                // Text1 to Text6, "" for a box that stays empty
    std::array<int, 3> combos = {0, 0, 0};           // the entries selected in Combo1 to Combo3
    std::string keys;                                // what is typed on the paper, e.g. "3/4+x^2"
    std::string line;                                // as a test prints it, e.g. "#3/4#+x^2^"
    std::string suffix;                              // stands behind the line of a test, e.g. the rounding
    std::map<std::string, std::string> values = {};  // of the letters of a test's polynomial, told in the suffix

    bool operator==(const Example&) const = default;
};

// A key of the problem that the paper did not take.
struct RefusedKey {
    int at;  // index of the key in the text, from 0
    std::string key;
    std::string reason;  // empty for a key that found no room
};

// Every capital letter replaced by a digit 2 to 9, the same letter by the same digit.
// e.g. "Ax+B=A" -> "7x+3=7"
[[nodiscard]] std::string create_example(std::string_view pattern);

// Makes up a problem of `type`, which is the topic chosen, at ComplexExamples' `level`, and hands it
// to ExampleChop: the line for a test, otherwise the keys, after the boxes and lists have been
// filled. Returns what was made up. Leaves input and engine empty for a test. A polynomial to be
// evaluated gets its values with the problem on a test: ", when x = 4 and y = 5".
Example GenerateExample(int type, bool forTest, int level);

// Seeds the draws for one example. Neighbouring seeds are the problems of one run, so that fifty of
// them are as varied as fifty examples on the desk. Expects the topic to be chosen.
void seedExample(int type, int level, std::uint64_t seed);

// For a test: the numbered line goes to TestProblems. Otherwise types the text on the paper, a topic
// of boxes has none, and solves the problem. A refused key ends the typing, and nothing is solved:
// the rest of the text would be another problem. Returns the keys refused, one at most.
// e.g. ("x=3", true) as the first problem -> "1) x=3"
std::vector<RefusedKey> ExampleChop(std::string_view text, bool forTest);

// The Example command: an empty sheet, a new problem on it, solved.
Example example_Click();

// The first key of a text that the paper of the topic would not take, tried undrawn. Input and engine
// are empty afterwards. e.g. Arithmetic, "2+q" -> the "q" at 2
[[nodiscard]] std::optional<RefusedKey> firstRefusedKey(std::string_view text);

// Fills the boxes and selects in the lists of the worksheet as an example or a saved problem says.
void fillWorksheet(const std::array<std::string, 6>& boxes, const std::array<int, 3>& combos);

}  // namespace ordwise
