// What leaves the tutor means what stands on the paper, in every form, for every topic.
#include "Catalogue.hpp"
#include "FormReaders.hpp"
#include "LatexForm.hpp"
#include "MathMLForm.hpp"
#include "Sanitized.hpp"
#include "Solving.hpp"
#include "SpokenForm.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace ordwise::test {
namespace {

// The parts of a note put together again; the words of MathML are escaped, its formulas elements.
std::string noteOfLatex(std::string latex) {
    std::string markup;
    for (std::size_t open = latex.find("\\("); open != std::string::npos; open = latex.find("\\(")) {
        const std::size_t close = latex.find("\\)", open);
        markup += markupOfLatex("\\text{" + latex.substr(0, open) + "}") +
                  markupOfLatex(latex.substr(open + 2, close - open - 2));
        latex.erase(0, close + 2);
    }
    return markup + markupOfLatex("\\text{" + latex + "}");
}

std::string noteOfMathml(std::string mathml) {
    std::string markup;
    for (std::size_t open = mathml.find("<math"); open != std::string::npos; open = mathml.find("<math")) {
        const std::size_t close = mathml.find("</math>", open) + 7;
        markup += markupOfMathml("<mtext>" + mathml.substr(0, open) + "</mtext>") +
                  markupOfMathml(mathml.substr(open, close - open));
        mathml.erase(0, close);
    }
    return markup + markupOfMathml("<mtext>" + mathml + "</mtext>");
}

TEST(Forms, OfEveryLineAndNoteCanBeReadBack) {
    constexpr int eachTopic = 40;
    std::map<std::string, std::string> sounds;
    int read = 0;
    for (const std::string& topic : allTopics()) {
        const Letters letters = lettersOf(findTopic(topic)->code);
        for (int i = 0; i < rounds(eachTopic); ++i) {
            Problem problem{topic, ""};
            for (const auto& [line, note] : solveExample(problem, i % 2 == 1, i).steps) {
                const std::string bare = bareMarkup(line);
                const Row row = readMarkup(line, letters);
                ASSERT_EQ(markupOfLatex(latexOf(row)), bare) << line;
                ASSERT_EQ(markupOfMathml(mathmlOf(row)), bare) << line;
                const auto [heard, first] = sounds.emplace(spokenOf(row), bare);
                ASSERT_EQ(heard->second, bare) << "sounds like another line: " << heard->first;
                ASSERT_EQ(noteOfLatex(latexOf(readNote(note, letters))), bareMarkup(note)) << note;
                ASSERT_EQ(noteOfMathml(mathmlOf(readNote(note, letters))), bareMarkup(note)) << note;
                ++read;
            }
        }
    }
    EXPECT_GT(read, rounds(eachTopic) * 300);
}

}  // namespace
}  // namespace ordwise::test
