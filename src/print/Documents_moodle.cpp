// A question bank in the XML that Moodle and other platforms import. Mathematics stands between "\(" and
// "\)", which those platforms typeset; their cleaning of texts would take MathML away.
#include "AnswerSpellings.hpp"
#include "Documents.hpp"
#include "LatexForm.hpp"
#include "MathMLForm.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"

#include <vector>

namespace ordwise {
namespace {

std::string element(std::string_view tag, const std::string& content, std::string_view attributes = "") {
    return "<" + std::string(tag) + (attributes.empty() ? "" : " ") + std::string(attributes) + ">" + content + "</" +
           std::string(tag) + ">\n";
}

std::string text(std::string_view content) {
    return element("text", escapedForXml(content));
}

// Content that is HTML itself; it holds no "]]>".
std::string html(std::string_view tag, const std::string& content) {
    return element(tag, element("text", "<![CDATA[" + content + "]]>"), "format=\"html\"");
}

std::string formula(std::string_view markup, int type) {
    return "\\(" + escapedForXml(latexOf(readMarkup(markup, lettersOf(type)))) + "\\)";
}

std::string noteOf(std::string_view note, int type) {
    std::string out;
    for (const NotePart& part : readNote(note, lettersOf(type)))
        out += part.formula ? "\\(" + escapedForXml(latexOf(part.row)) + "\\)" : escapedForXml(part.text);
    return out;
}

std::string feedbackOf(const DocumentProblem& problem) {
    std::string steps;
    for (const DocumentStep& step : problem.steps) {
        std::string item = step.line.empty() ? "" : formula(step.line, problem.type);
        if (!step.note.empty()) item += "<br><em>" + noteOf(step.note, problem.type) + "</em>";
        steps += "<li>" + item + "</li>";
    }
    if (steps.empty()) return "<p>" + formula(problem.answer, problem.type) + "</p>";
    return "<ol>" + steps + "</ol>";
}

// A "*" is a joker in a short answer.
std::string answerOf(const std::string& spelling, const std::string& more = "") {
    return element("answer", text(replaced(spelling, "*", "\\*")) + more, "fraction=\"100\" format=\"plain_text\"");
}

std::string answersOf(const AnswerSpellings& answer) {
    std::string answers;
    for (const std::string& spelling : answer.spellings) answers += answerOf(spelling);
    return answers;
}

std::string_view typeOf(BankAnswer kind) {
    if (kind == BankAnswer::Essay) return "type=\"essay\"";
    return kind == BankAnswer::Number ? "type=\"numerical\"" : "type=\"shortanswer\"";
}

std::string kindFields(const AnswerSpellings& answer) {
    if (answer.kind == BankAnswer::Essay)
        return "<responseformat>editor</responseformat>\n<responserequired>0</responserequired>\n"
               "<responsefieldlines>10</responsefieldlines>\n<attachments>1</attachments>\n"
               "<attachmentsrequired>0</attachmentsrequired>\n" +
               element("graderinfo", text(""), "format=\"html\"") +
               element("responsetemplate", text(""), "format=\"html\"");
    if (answer.kind == BankAnswer::Number)
        return answerOf(answer.spellings.front(), element("tolerance", answer.tolerance)) +
               "<unitgradingtype>0</unitgradingtype>\n<unitpenalty>0.1</unitpenalty>\n<showunits>3</showunits>\n"
               "<unitsleft>0</unitsleft>\n";
    return "<usecase>0</usecase>\n" + answersOf(answer);
}

std::string questionOf(const DocumentSection& section, const DocumentProblem& problem) {
    const AnswerSpellings answer = spellingsOf(problem);
    const std::string asked = section.heading.empty() ? "" : "<p>" + escapedForXml(section.heading) + "</p>";
    const std::string question = asked + "<p>" + formula(problem.text, problem.type) + "</p>";
    const std::string grade = answer.kind == BankAnswer::Essay ? "0" : "0.3333333";
    return element("question",
                   "\n" + element("name", text(problem.topic + " " + textOf(problem.number))) +
                       html("questiontext", question) + html("generalfeedback", feedbackOf(problem)) +
                       "<defaultgrade>1</defaultgrade>\n" + element("penalty", grade) + "<hidden>0</hidden>\n" +
                       kindFields(answer),
                   typeOf(answer.kind));
}

// A slash parts a category from the one above it; doubled it is a slash.
std::string categoryOf(const std::string& topic) {
    const std::string path = "$course$/top/Ordwise/" + replaced(topic, "/", "//");
    return element("question", "\n" + element("category", text(path)), "type=\"category\"");
}

}  // namespace

std::string moodleOf(const Document& document) {
    std::string questions;
    for (const DocumentTest& test : document.tests) {
        for (const DocumentSection& section : test.sections) {
            std::string topic;
            for (const DocumentProblem& problem : section.problems) {
                if (problem.topic != topic) questions += categoryOf(problem.topic);
                topic = problem.topic;
                questions += questionOf(section, problem);
            }
        }
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + element("quiz", "\n" + questions);
}

}  // namespace ordwise
