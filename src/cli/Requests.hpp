// Requests and their answers, as the terminal, a script or a worksheet server makes them. Each is
// answered as a freshly started program would answer it.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

// A request that cannot be read; the text is one sentence for whoever made it.
class BadRequest : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The questions of a solve were more than the answers given. One sentence.
class AnswersUsedUp : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct SolveRequest {
    std::string topic;
    std::string problem;                          // flat, or as the paper draws it
    std::map<int, std::string> boxes;             // by number, 1 to 6
    std::map<int, int> combos;                    // by number, 1 to 3: the index selected
    std::vector<std::string> answers;             // to the input boxes, in order
    std::map<std::string, std::string> settings;  // by key of the per-user store
    bool dropRefused = false;                     // type on without the refused keys
    std::string saveTo;                           // the file that the problem is saved to once solved
    std::vector<std::string> forms;               // by name, in which each line is wanted as well
};

struct LoadRequest {
    std::string file;
    std::vector<std::string> answers;
    std::map<std::string, std::string> settings;
    std::vector<std::string> forms;
};

// Lines of the student's own, as ordwise-cli check judges them.
struct CheckRequest : SolveRequest {
    std::vector<std::string> lines;  // flat, or as the paper draws them
};

// A practice test, as ordwise-cli test makes it.
struct TestRequest {
    std::vector<std::string> sections;  // TOPIC:COUNT or TOPIC:COUNT:complex
    std::vector<std::string> heading;   // up to three lines; without any the usual ones
    std::string key = "none";           // or "answers", "steps"
    int versions = 1;                   // up to three: A, B, C
    std::uint64_t seed = 0;
    bool noNameLine = false;  // no room for name, date and class above the heading
    int space = 0;            // lines to work in below each problem
    int columns = 1;          // or two, where the problems of a section are short
};

// The forms of a test beside text and JSON.
enum class TestFormat { Html, Latex, Moodle };

struct KeysRequest {
    std::string topic;
    std::string text;  // every character a key; a backspace is U+0008
};

struct ExampleRequest {
    std::string topic;
    bool complex = false;
    std::uint64_t seed = 0;  // the same seed makes up the same problem
    std::map<std::string, std::string> settings;
    std::vector<std::string> forms;
};

// A seed for a request that names none, different from the ones before. Small enough to be typed.
[[nodiscard]] std::uint64_t freshSeed();

// The answers as JSON text, keys in the documented order. They throw BadRequest for an unknown topic
// (naming the nearest ones), a box, combo or setting that there is not and a file that cannot be read
// or written, and AnswersUsedUp.
[[nodiscard]] std::string solveAnswer(const SolveRequest& request);
[[nodiscard]] std::string loadAnswer(const LoadRequest& request);
[[nodiscard]] std::string exampleAnswer(const ExampleRequest& request);
[[nodiscard]] std::string keysAnswer(const KeysRequest& request);
[[nodiscard]] std::string checkAnswer(const CheckRequest& request);
// The same as objects, for whoever reads in them.
[[nodiscard]] nlohmann::ordered_json answerSolve(const SolveRequest& request);
[[nodiscard]] nlohmann::ordered_json answerLoad(const LoadRequest& request);
[[nodiscard]] nlohmann::ordered_json answerExample(const ExampleRequest& request);
// Its heading and the lines of its first version. With a key or several versions also "versions":
// version, seed, lines and key of each.
[[nodiscard]] nlohmann::ordered_json answerTest(const TestRequest& request);
// The test as a document for another program.
[[nodiscard]] std::string testDocument(const TestRequest& request, TestFormat format);
[[nodiscard]] nlohmann::ordered_json answerKeys(const KeysRequest& request);
[[nodiscard]] nlohmann::ordered_json answerCheck(const CheckRequest& request);
[[nodiscard]] nlohmann::ordered_json answerTopics();

// A request of a batch: {"op": "solve", "check", "keys" or "example", "topic": ..., ...}. Never throws for bad input:
// a request that cannot be read is answered with {"error": "..."}.
[[nodiscard]] nlohmann::ordered_json answerRequest(const nlohmann::json& request);
// The same as text.
[[nodiscard]] std::string answerTextOf(const nlohmann::json& request);
// The same for one line of text, and for one that was too long to be kept.
[[nodiscard]] std::string answerTextOfLine(std::string_view line);
[[nodiscard]] std::string answerTextOfLongLine();
[[nodiscard]] nlohmann::ordered_json answerLine(const std::string& line);

// Whether a solve came to its end: no key or box refused, Solve enabled, no message box.
[[nodiscard]] bool wasSolved(const nlohmann::ordered_json& answer);
// Whether the last line of a check was right, and an answer.
[[nodiscard]] bool lastLineIsAnswer(const nlohmann::ordered_json& answer);

}  // namespace ordwise
