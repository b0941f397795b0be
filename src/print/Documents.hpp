// Tests and solutions as documents for other programs: a page of HTML, a LaTeX document, a question
// bank. A document knows nothing of paper: who opens it lays it out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

struct DocumentStep {
    std::string line;  // markup
    std::string note;  // "" for none
};

struct DocumentProblem {
    std::string topic;
    int type = 0;                     // ProblemType
    int number = 0;                   // within its test, from 1
    std::string text;                 // as a test prints it behind the number, markup
    std::vector<DocumentStep> steps;  // from the restated problem on
    std::string answer;               // markup
};

struct DocumentSection {
    std::string heading;  // "" for none
    std::vector<DocumentProblem> problems;
};

struct DocumentTest {
    std::string version;  // "A", "B", "C"; "" for the only one
    std::uint64_t seed = 0;
    std::vector<DocumentSection> sections;
};

// A key of the answers alone, or with the steps that lead to them.
enum class AnswerKey { None, Answers, Steps };

struct Document {
    std::vector<std::string> heading;  // the first line is the title
    AnswerKey key = AnswerKey::None;
    bool nameLine = false;  // for name, date and class
    int space = 0;          // lines to work in below each problem
    std::vector<DocumentTest> tests;
};

// One page that stands alone: no address in it, mathematics as MathML, the key folded behind a button
// on the screen and on pages of its own on paper.
[[nodiscard]] std::string htmlOf(const Document& document);
// A document that compiles as it is, with no package beyond amsmath, xcolor and geometry.
[[nodiscard]] std::string latexDocumentOf(const Document& document);
// A question bank in Moodle XML: a category a topic, a question a problem, each solved.
[[nodiscard]] std::string moodleOf(const Document& document);

// One solved problem, with the note of each step below its line.
[[nodiscard]] std::string htmlOf(const DocumentProblem& solution);
[[nodiscard]] std::string latexDocumentOf(const DocumentProblem& solution);

}  // namespace ordwise
