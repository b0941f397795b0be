#include "TermText.hpp"

#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <algorithm>
#include <cmath>

namespace ordwise {
namespace {

// A decimal as its digits and where the point stands. e.g. "2.50" -> 250, 2
struct Digits {
    double value;
    int places;
};
Digits digitsOf(const std::string& number) {
    const std::size_t point = number.find('.');
    if (point == std::string::npos || contains(number, "E")) return {lenientValueOf(number), 0};
    return {lenientValueOf(replaced(number, ".", "")), static_cast<int>(number.size() - point - 1)};
}

// Whole and short, and no negative zero: then its text says the same as the number.
bool isAsWritten(float number) {
    return std::fabs(number) < 1e7F && number == std::trunc(number) && !(number == 0.0F && std::signbit(number));
}

}  // namespace

std::string lettersOf(const ExprTerm& term) {
    return withoutExponentOne(term.numText);
}

std::string lettersBelow(const ExprTerm& term) {
    return withoutExponentOne(term.denText);
}

bool isConstantPower(const ExprTerm& term) {
    return term.numText.starts_with('^') && lettersOf(term).starts_with('^');
}

WrittenNumbers numbersOf(const ExprTerm& term) {
    const std::size_t bar = term.fractionText.find('/');
    if (bar == std::string::npos) return {textOf(std::fabs(term.numerator)), textOf(term.denominator)};
    return {term.fractionText.substr(0, bar), term.fractionText.substr(bar + 1)};
}

TermNumbers valuesOf(const ExprTerm& term) {
    if (term.fractionText.empty() && isAsWritten(term.numerator) && isAsWritten(term.denominator))
        return {static_cast<double>(term.numerator), static_cast<double>(term.denominator)};
    const WrittenNumbers written = numbersOf(term);
    const double size = lenientValueOf(written.above);
    return {term.numerator < 0 ? -size : size, lenientValueOf(written.below)};
}

std::string signedAbove(const ExprTerm& term) {
    return (term.numerator < 0 ? "-" : "") + numbersOf(term).above;
}

std::string withLetters(const std::string& number, const std::string& letters) {
    const bool alone = (number == "1" || number == "-1") && !letters.empty() && letters[0] != '^';
    return (alone ? number.substr(0, number.size() - 1) : number) + letters;
}

std::string termAsWritten(const ExprTerm& term) {
    const std::string letters = lettersOf(term);
    const std::string below = lettersBelow(term);
    if (!term.fractionText.empty()) return term.lead + term.fractionText + letters + below;
    std::string text = term.lead + withLetters(textOf(std::fabs(term.numerator)), letters);
    if (term.denominator != 1.0F || !below.empty()) text += "/" + withLetters(textOf(term.denominator), below);
    return text;
}

std::string simplestText(const ExprTerm& term) {
    if (!ws.UseFractions) return FractionText(term.numerator / term.denominator, term.numerator, term.denominator);
    const WrittenNumbers written = numbersOf(term);
    const Digits above = digitsOf(written.above);
    const Digits below = digitsOf(written.below);
    const int places = std::max(above.places, below.places);
    return CommonFactorText(above.value * std::pow(10.0, places - above.places),
                            below.value * std::pow(10.0, places - below.places));
}

std::string namedTerm(double num, double den, const std::string& letters, const std::string& below) {
    std::string text = withLetters(textOf(static_cast<float>(num)), letters);
    if (den != 1.0 || !below.empty()) text += "/" + withLetters(textOf(static_cast<float>(den)), below);
    return markupOf(text);
}

}  // namespace ordwise
