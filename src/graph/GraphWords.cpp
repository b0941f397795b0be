#include "GraphWords.hpp"

#include "NumberText.hpp"

#include <cmath>

namespace ordwise {
namespace {

std::string ratio(double over, double under) {
    return under == 1 ? textOf(over) : textOf(over) + "/" + textOf(under);
}

std::string sumWords(const std::vector<GraphTerm>& terms);

std::string baseWords(const GraphTerm& term) {
    switch (term.base) {
        case GraphTerm::Base::X: return "x";
        case GraphTerm::Base::Y: return "y";
        case GraphTerm::Base::Group: return "(" + sumWords(term.inside) + ")";
        case GraphTerm::Base::Bars: return "|" + sumWords(term.inside) + "|";
        case GraphTerm::Base::One: break;
    }
    return "";
}

std::string powerWords(const GraphTerm& term) {
    if (term.base == GraphTerm::Base::One || term.exponent == term.exponentRoot) return "";
    const std::string exponent = ratio(term.exponent, term.exponentRoot);
    const bool plain = term.exponent >= 0 && term.exponentRoot == 1;
    return plain ? "^" + exponent : "^(" + exponent + ")";
}

// Without its sign. e.g. -2/3x -> 2x/3
std::string termWords(const GraphTerm& term) {
    const std::string letters = baseWords(term) + powerWords(term);
    const std::string over = textOf(std::abs(term.numerator));
    const std::string under = term.denominator == 1 ? "" : "/" + textOf(term.denominator);
    return (over == "1" && !letters.empty() ? "" : over) + letters + under;
}

std::string sumWords(const std::vector<GraphTerm>& terms) {
    std::string words;
    for (const GraphTerm& term : terms) {
        const bool minus = term.numerator < 0;
        if (words.empty()) {
            words = minus ? "-" : "";
        } else {
            words += minus ? " - " : " + ";
        }
        words += termWords(term);
    }
    return words;
}

std::string pointWords(double x, double y) {
    return "(" + textOf(x) + ", " + textOf(y) + ")";
}

}  // namespace

std::string equationWords(const GraphEquation& equation) {
    return sumWords({equation.left}) + " = " + sumWords(equation.right);
}

std::string graphTitle(const GraphWindow& window) {
    const GraphSubject& subject = window.subject;
    const std::string first = pointWords(subject.x1, subject.y1);
    if (subject.kind == 1) return first;
    if (subject.kind == 2) return first + " to " + pointWords(subject.x2, subject.y2);
    return window.equationTerms ? equationWords(*window.equationTerms) : "";
}

std::string graphDescription(const GraphWindow& window) {
    const std::string title = graphTitle(window);
    const std::string bounds = " on axes from " + textOf(window.xMin) + " to " + textOf(window.xMax) + ".";
    if (title.empty()) return "No graph" + bounds;
    if (window.subject.kind == 1) return "The point " + title + bounds;
    if (window.subject.kind == 2) return "The line from " + title + bounds;
    return "The graph of " + title + bounds;
}

}  // namespace ordwise
