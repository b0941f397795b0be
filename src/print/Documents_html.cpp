// The page stands alone, so style and script are in it; what it looks like is at the top.
#include "Documents.hpp"

#include "MathMLForm.hpp"
#include "NumberText.hpp"
#include "TextTools.hpp"

namespace ordwise {
namespace {

constexpr std::string_view style = R"(
:root { color-scheme: light dark; --ink: #1a1a1a; --paper: #fff; --note: #1c3f94; --mark: #c00000; --rule: #8a8a8a; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #ececec; --paper: #17191c; --note: #a9c1ff; --mark: #ff8a80; --rule: #7d8288; }
}
body { color: var(--ink); background: var(--paper); font: 1.1rem/1.6 Georgia, "Times New Roman", serif;
  max-width: 46rem; margin: 2rem auto; padding: 0 1rem; }
h1 { font-size: 1.7rem; margin: 0; }
h2 { font-size: 1.35rem; margin-top: 2.2rem; }
h3 { font-size: 1.1rem; margin: 1.6rem 0 .4rem; }
math { font-size: 1.1em; }
math [mathcolor] { color: var(--mark); }
ol { list-style: none; padding: 0; margin: 0; }
li { break-inside: avoid; }
.problem { display: flex; gap: .7rem; margin: .7rem 0; }
.number { min-width: 2rem; }
.names { display: flex; gap: 1.5rem; margin-bottom: 1.6rem; }
.names span { flex: 1; border-bottom: 1px solid var(--rule); }
.steps > li { margin: .35rem 0; }
.note { color: var(--note); font-size: .92rem; margin: 0 0 0 1.6rem; }
.seed { color: var(--rule); font-size: .85rem; margin-top: 2rem; }
button { font: inherit; padding: .4rem 1rem; margin-top: 1.6rem; cursor: pointer; }
@media print {
  :root { --ink: #000; --paper: #fff; --note: #0000c8; --mark: #c00000; --rule: #555; }
  body { margin: 0; max-width: none; font-size: 11pt; }
  button { display: none; }
  .test + .test, .key { break-before: page; }
  .key[hidden] { display: block !important; }
  h2, h3 { break-after: avoid; }
}
)";

constexpr std::string_view script = R"(
for (const button of document.querySelectorAll("button[aria-controls]")) {
  const key = document.getElementById(button.getAttribute("aria-controls"));
  key.hidden = true;
  button.hidden = false;
  button.addEventListener("click", () => {
    key.hidden = !key.hidden;
    button.setAttribute("aria-expanded", String(!key.hidden));
    button.textContent = key.hidden ? "Show the answer key" : "Hide the answer key";
  });
}
)";

std::string element(std::string_view tag, const std::string& content, std::string_view attributes = "") {
    std::string text = "<" + std::string(tag);
    if (!attributes.empty()) text += " " + std::string(attributes);
    return text + ">" + content + "</" + std::string(tag) + ">\n";
}

// In a page of HTML an element needs no name space, which would be an address.
std::string withoutNameSpace(const std::string& mathml) {
    return replaced(mathml, " xmlns=\"http://www.w3.org/1998/Math/MathML\"", "");
}

std::string mathOf(std::string_view markup, int type) {
    return withoutNameSpace(mathmlOf(readMarkup(markup, lettersOf(type))));
}

std::string noteOf(std::string_view note, int type) {
    return withoutNameSpace(mathmlOf(readNote(note, lettersOf(type))));
}

std::string stepsOf(const DocumentProblem& problem) {
    std::string steps;
    for (const DocumentStep& step : problem.steps) {
        std::string item = mathOf(step.line, problem.type);
        if (!step.note.empty()) item += element("p", noteOf(step.note, problem.type), "class=\"note\"");
        steps += element("li", item);
    }
    return element("ol", steps, "class=\"steps\"");
}

std::string numbered(const DocumentProblem& problem, const std::string& content) {
    return element("li", "<span class=\"number\">" + textOf(problem.number) + ")</span>" + element("div", content),
                   "class=\"problem\"");
}

std::string problemsOf(const DocumentSection& section, int space) {
    std::string items;
    for (const DocumentProblem& problem : section.problems) {
        std::string content = mathOf(problem.text, problem.type);
        if (space > 0) content += element("div", "", "style=\"height:" + textOf(space * 1.6) + "em\"");
        items += numbered(problem, content);
    }
    return element("ol", items);
}

std::string answersOf(const DocumentSection& section, AnswerKey key) {
    std::string items;
    for (const DocumentProblem& problem : section.problems) {
        const bool steps = key == AnswerKey::Steps && !problem.steps.empty();
        items += numbered(problem, steps ? stepsOf(problem) : mathOf(problem.answer, problem.type));
    }
    return element("ol", items);
}

std::string headingsOf(const DocumentSection& section) {
    return section.heading.empty() ? "" : element("h3", escapedForXml(section.heading));
}

// Without a script the key is there to be read; the script folds it.
std::string keyOf(const DocumentTest& test, AnswerKey key) {
    const std::string name = "key" + test.version;
    const std::string version = test.version.empty() ? "" : ", Version " + test.version;
    std::string content = element("h2", "Answer Key" + version);
    for (const DocumentSection& section : test.sections) content += headingsOf(section) + answersOf(section, key);
    const std::string button = element("button", "Show the answer key",
                                       "type=\"button\" hidden aria-expanded=\"false\" aria-controls=\"" + name + "\"");
    return button + element("section", content, "class=\"key\" id=\"" + name + "\"");
}

std::string testOf(const Document& document, const DocumentTest& test) {
    std::string content;
    if (document.nameLine)
        content += element("div", "<span>Name</span><span>Date</span><span>Class</span>", "class=\"names\"");
    if (!test.version.empty()) content += element("h2", "Version " + test.version);
    if (test.version.empty()) content += element("h2", "Problems");
    for (const DocumentSection& section : test.sections)
        content += headingsOf(section) + problemsOf(section, document.space);
    if (document.key != AnswerKey::None) content += keyOf(test, document.key);
    content += element("p", "Seed " + textOf(test.seed), "class=\"seed\"");
    return element("div", content, "class=\"test\"");
}

std::string page(const std::string& title, const std::string& body, bool folds) {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"generator\" content=\"Ordwise\">\n" +
           element("title", escapedForXml(title)) + element("style", std::string(style)) + "</head>\n<body>\n" +
           element("main", body) + (folds ? element("script", std::string(script)) : "") + "</body>\n</html>\n";
}

std::string headingOf(const Document& document) {
    std::string lines;
    for (std::size_t i = 0; i < document.heading.size(); ++i) {
        const std::string text = escapedForXml(document.heading[i]);
        if (!text.empty()) lines += lines.empty() ? element("h1", text) : element("p", text);
    }
    return element("header", lines.empty() ? element("h1", "Practice Test") : lines);
}

std::string titleOf(const Document& document) {
    std::vector<std::string> lines;
    for (const std::string& line : document.heading) {
        if (!line.empty()) lines.push_back(line);
    }
    return lines.empty() ? "Practice Test" : joined(lines, ", ");
}

}  // namespace

std::string htmlOf(const Document& document) {
    std::string body = headingOf(document);
    for (const DocumentTest& test : document.tests) body += testOf(document, test);
    return page(titleOf(document), body, document.key != AnswerKey::None);
}

std::string htmlOf(const DocumentProblem& solution) {
    const std::string heading = element("h1", escapedForXml(solution.topic));
    return page(solution.topic + " - Ordwise", element("header", heading) + stepsOf(solution), false);
}

}  // namespace ordwise
