#include "Documents.hpp"

#include "LatexForm.hpp"
#include "NumberText.hpp"

namespace ordwise {
namespace {

constexpr std::string_view preamble = R"(\documentclass[12pt]{article}
\usepackage[a4paper,margin=2.2cm]{geometry}
\usepackage{amsmath}
\usepackage{xcolor}
\setlength{\parindent}{0pt}
\newcommand{\problem}[2]{\par\medskip\noindent\makebox[2.2em][l]{#1)}\parbox[t]{\dimexpr\linewidth-2.2em}{\raggedright #2}\par}
\newcommand{\note}[1]{\par\hspace*{1.5em}\parbox[t]{\dimexpr\linewidth-1.5em}{\raggedright\small\leavevmode\color{blue}#1}\par}
)";

// A line breaks at its signs where it is too long for the paper.
std::string lineOf(std::string_view markup, int type) {
    return "$" + latexOf(readMarkup(markup, lettersOf(type))) + "$";
}

std::string stepsOf(const DocumentProblem& problem) {
    std::string steps;
    for (const DocumentStep& step : problem.steps) {
        if (!steps.empty()) steps += "\\par\\smallskip\n";
        steps += lineOf(step.line, problem.type);
        if (!step.note.empty()) steps += "\\note{" + latexOf(readNote(step.note, lettersOf(problem.type))) + "}";
    }
    return steps;
}

std::string problemOf(const DocumentProblem& problem, const std::string& content) {
    return "\\problem{" + textOf(problem.number) + "}{" + content + "}\n";
}

std::string sectionOf(const DocumentSection& section) {
    return section.heading.empty() ? "\\bigskip\n" : "\\bigskip\\textbf{" + latexText(section.heading) + "}\n";
}

std::string headingOf(const Document& document, const std::string& addition) {
    std::string lines;
    for (const std::string& line : document.heading) {
        if (!line.empty()) lines += (lines.empty() ? "{\\Large " : "{") + latexText(line) + "\\par}\n";
    }
    if (!addition.empty()) lines += "{\\large " + addition + "\\par}\n";
    return "\\begin{center}\n" + lines + "\\end{center}\n";
}

std::string versionOf(const DocumentTest& test) {
    return test.version.empty() ? "" : "Version " + test.version;
}

std::string testOf(const Document& document, const DocumentTest& test) {
    std::string text;
    if (document.nameLine) text += "Name \\hrulefill\\ Date \\hrulefill\\ Class \\hrulefill\\par\n";
    text += headingOf(document, versionOf(test));
    for (const DocumentSection& section : test.sections) {
        text += sectionOf(section);
        for (const DocumentProblem& problem : section.problems) {
            text += problemOf(problem, lineOf(problem.text, problem.type));
            if (document.space > 0) text += "\\vspace{" + textOf(document.space) + "\\baselineskip}\n";
        }
    }
    return text;
}

std::string keyOf(const Document& document, const DocumentTest& test) {
    const std::string version = versionOf(test);
    std::string text = headingOf(document, version + (version.empty() ? "" : ", ") + "Answer Key");
    for (const DocumentSection& section : test.sections) {
        text += sectionOf(section);
        for (const DocumentProblem& problem : section.problems) {
            const bool steps = document.key == AnswerKey::Steps && !problem.steps.empty();
            text += problemOf(problem, steps ? stepsOf(problem) : lineOf(problem.answer, problem.type));
        }
    }
    return text;
}

std::string documentOf(const std::string& body) {
    return std::string(preamble) + "\\begin{document}\n" + body + "\\end{document}\n";
}

}  // namespace

std::string latexDocumentOf(const Document& document) {
    std::string body;
    for (const DocumentTest& test : document.tests) {
        if (!body.empty()) body += "\\newpage\n";
        const std::string foot = "\\vfill{\\footnotesize Seed " + textOf(test.seed) + "}\n";
        body += testOf(document, test) + foot;
        if (document.key != AnswerKey::None) body += "\\newpage\n" + keyOf(document, test) + foot;
    }
    return documentOf(body);
}

std::string latexDocumentOf(const DocumentProblem& solution) {
    const std::string heading = "\\begin{center}\n{\\Large " + latexText(solution.topic) + "\\par}\n\\end{center}\n";
    return documentOf(heading + stepsOf(solution) + "\n");
}

}  // namespace ordwise
