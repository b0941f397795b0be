// Multiplying what the store describes: groups side by side, a group under an exponent, letter
// parts; and the lowest form of one term.
//
// Like terms are not gathered here. The product of two groups is one group with all products side
// by side, so that the student sees the expansion before the simplifier gathers it.
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <cmath>

namespace ordwise {
namespace {

// --- letter parts ------------------------------------------------------------------------------

// By index in VarNames; slot 0 holds the exponent of a bare number.
using Exponents = BoundedArray<float, lastVarSlot>;

// Adds the exponents of a letter part, or takes them off for letters below the bar.
// e.g. "x^2y" -> 2 for x, 1 for y
//
// One character of an exponent is read, so x^12 counts as x^1. That stays: typed exponents have one
// digit, and the products of school problems stay below 10.
void addExponents(const std::string& part, float direction, Exponents& exponents) {
    std::size_t at = 0;
    while (at < part.size()) {
        std::string letter;
        if (part[at] != '^') letter = part[at++];
        if (at >= part.size() || part[at] != '^') {
            if (IsLetter(letter)) exponents[FindVariable(letter)] += direction;
            continue;
        }
        ++at;
        const bool negative = at < part.size() && part[at] == '-';
        if (negative) ++at;
        const float value = at < part.size() ? static_cast<float>(lenientValueOf(part.substr(at, 1))) : 0.0F;
        exponents[FindVariable(letter)] += negative ? -direction * value : direction * value;
        ++at;
    }
}

// The letters whose exponent has the sign asked for, in the order of VarNames, each with |exponent|.
// e.g. x 2, y -1, sign 1 -> "x^2"
std::string lettersWith(const Exponents& exponents, float sign) {
    std::string text;
    for (int letter = 1; letter < ws.VarCount; ++letter) {
        const float exponent = sign * exponents[letter];
        if (exponent > 0) text += ws.VarNames[letter] + "^" + textOf(exponent);
    }
    return text;
}

// The value under a root sign; a part without a root counts as 1. e.g. "~8" -> 8
double radicandOf(const std::string& part) {
    return contains(part, "~") ? lenientValueOf(replaced(part, "~", "")) : 1.0;
}

// e.g. "~2", "~8" -> "~16"
std::string rootProduct(const std::string& a, const std::string& b) {
    ws.CurrentNote = rootProductNote;
    return "~" + textOf(radicandOf(a) * radicandOf(b));
}

// --- the notes of a product --------------------------------------------------------------------

Monomial firstFactor(int depth, int group) {
    return monomialOf(termOf(depth, group, 1));
}

// e.g. (x+1)(x+2) "Multiply the polynomials together ..."; (3)(4) "Multiply the 3 by 4 to form ..."
std::string multiplicationNote(int depth, int groupA, int groupB) {
    const bool oneInA = ws.TermLast[depth][groupA] == 1;
    const bool oneInB = ws.TermLast[depth][groupB] == 1;
    if (!oneInA && !oneInB) {
        return "Multiply the polynomials together by multiplying each term of the first by every term in the second.";
    }
    const Monomial a = firstFactor(depth, groupA);
    const Monomial b = firstFactor(depth, groupB);
    if (!oneInA || !oneInB) {
        return "Multiply the polynomial inside the parenthesis by " + markupOf(plainText(oneInA ? a : b)) + ".";
    }
    const std::string first = markupOf(plainText(a));
    const std::string second = markupOf(plainText(b));
    if (!a.numText.empty() || !b.numText.empty()) {
        return "Multiply " + first + " by " + second + " using the order of operations.";
    }
    return "Multiply the " + first + " by " + second + " to form the new term (" + markupOf(plainText(product(a, b))) +
           ").";
}

// --- powers of a group -------------------------------------------------------------------------

bool isWhole(float value) {
    return std::floor(value) == value;
}

// A number under a negative exponent, turned over. e.g. (2)^-2 -> "(+1/4)"; "" for any other group
std::string turnedOver(int depth, int group) {
    const ExprTerm& term = termOf(depth, group, 1);
    const float power = groupOf(depth, group).power;
    if (ws.TermLast[depth][group] != 1 || !isBareNumber(term) || !isWhole(power)) return "";
    if (term.numerator == 0) raise(FaultNumber::DivisionByZero);
    const float top = std::pow(term.denominator, -power);
    const float bottom = std::pow(term.numerator, -power);
    return "(" + signedText({bottom < 0 ? -top : top, std::fabs(bottom), "", ""}) + ")";
}

// What stands for a group under its exponent; "" when the exponent is left alone.
// e.g. (a+1)^3 -> "(a+1)(a+1)(a+1)", (a+1)^0 -> "(+1)"
std::string factorsOfPower(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    if (record.power == 0) {
        ws.CurrentNote = "Any number raised to the 0th power is 1.";
        return "(+1)";
    }
    if (record.power < 0) {
        ws.CurrentNote =
            "Remove exponents by multiplying the number by itself the same number of times as the exponent.";
        return turnedOver(depth, group);
    }
    if (record.power <= 1 || !isWhole(record.power)) return "";
    std::string factors;
    for (float times = 0; times < record.power; ++times) factors += tokensText(record.openIndex, record.closeIndex);
    return factors;
}

}  // namespace

// --- factors -----------------------------------------------------------------------------------

Monomial monomialOf(const ExprTerm& term) {
    return {term.numerator, term.denominator, withoutExponentOne(term.numText), withoutExponentOne(term.denText)};
}

namespace {

// The product of two numbers as they print: the single nearest to 8.1 is a little more, and times 85
// it would print 688.5001.
float timesAsPrinted(float a, float b) {
    return static_cast<float>(inRange(valueOf(textOf(a)) * valueOf(textOf(b))));
}

}  // namespace

Monomial product(const Monomial& a, const Monomial& b) {
    return {timesAsPrinted(a.numerator, b.numerator), timesAsPrinted(a.denominator, b.denominator),
            MultiplyLetterParts(a.numText, b.numText), MultiplyLetterParts(a.denText, b.denText)};
}

std::string plainText(const Monomial& factor) {
    if (factor.numerator == 0) return "0";
    std::string text = textOf(factor.numerator) + factor.numText;
    if (factor.denominator != 1 || !factor.denText.empty()) text += "/" + textOf(factor.denominator) + factor.denText;
    return text;
}

std::string unsignedText(Monomial factor) {
    factor.numerator = std::fabs(factor.numerator);
    return plainText(factor);
}

std::string signedText(const Monomial& factor) {
    return (factor.numerator < 0 ? "-" : "+") + unsignedText(factor);
}

bool isBareNumber(const ExprTerm& term) {
    return withoutExponentOne(term.numText).empty() && withoutExponentOne(term.denText).empty();
}

NumberPower numberPowerOf(const std::string& numText) {
    if (numText.empty() || numText[0] != '^') return {1.0F, numText};
    std::size_t end = 1;
    if (end < numText.size() && numText[end] == '-') ++end;
    while (end < numText.size() && !IsLetter(numText.substr(end, 1)) && numText[end] != '~') ++end;
    return {static_cast<float>(lenientValueOf(numText.substr(1, end - 1))), numText.substr(end)};
}

std::string writtenOutPower(const Monomial& base, const std::string& fractionText) {
    const auto [exponent, letters] = numberPowerOf(base.numText);
    const float top = std::fabs(base.numerator);
    const bool wholeFraction = !fractionText.empty();
    if (exponent > 0 && (wholeFraction || (base.denominator == 1 && base.denText.empty()))) {
        const std::string number = wholeFraction ? fractionText : textOf(top);
        std::string text = number;
        for (float times = 1; times < exponent; ++times) text += "*" + number;
        return text + letters;
    }
    if (exponent < 0 && top == 0) raise(FaultNumber::DivisionByZero);
    const float size = std::fabs(exponent);
    const float raised = std::pow(top, size);
    const float below = wholeFraction ? std::pow(base.denominator, size) : 1.0F;
    const float kept = wholeFraction ? 1.0F : base.denominator;
    if (exponent < 0) return unsignedText({below, raised * kept, letters, base.denText});
    return unsignedText({raised, below * kept, letters, base.denText});
}

std::string withoutExponentOne(const std::string& text) {
    if (!contains(text, "^1")) return text;
    std::string kept;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool exponentOne = text.compare(at, 2, "^1") == 0;
        const char behind = at + 2 < text.size() ? text[at + 2] : ' ';
        const bool number = (behind >= '0' && behind <= '9') || behind == '.';
        if (exponentOne && !number) {
            ++at;
        } else {
            kept += text[at];
        }
    }
    return kept;
}

std::string markupOf(const std::string& tokenText) {
    std::string plain = withoutExponentOne(tokenText);
    if (plain.ends_with("^")) plain.pop_back();  // an exponent that was left out
    std::string closed;
    char open = 0;
    for (std::size_t at = 0; at < plain.size(); ++at) {
        const char c = plain[at];
        const char before = at > 0 ? plain[at - 1] : '+';
        const bool insideMark = (c >= '0' && c <= '9') || c == '.' || (c == '-' && before == '^');
        if (open != 0 && !insideMark) {
            closed += open;
            open = 0;
        }
        if (c == '^' || c == '~') open = c;
        const char behind = at + 1 < plain.size() ? plain[at + 1] : ' ';
        // The E of 1E+07 is no letter of the problem, all of which are small.
        const bool needlessOne = c == '1' && open == 0 && (before == '+' || before == '-') &&
                                 ((behind >= 'a' && behind <= 'z') || behind == '~');
        if (!needlessOne) closed += c;
    }
    if (open != 0) closed += open;
    return contains(closed, "/") ? "#" + closed + "#" : closed;
}

// --- the routines ------------------------------------------------------------------------------

std::string MultiplyLetterParts(const std::string& a, const std::string& b) {
    ws.StepClass = 2;
    if (a.starts_with("~") || b.starts_with("~")) return rootProduct(a, b);
    Exponents exponents;
    addExponents(a, 1, exponents);
    addExponents(b, 1, exponents);
    std::string text;
    for (int letter = 1; letter < ws.VarCount; ++letter) {
        if (exponents[letter] != 0) text += ws.VarNames[letter] + "^" + textOf(exponents[letter]);
    }
    return text;
}

void MultiplyGroups(int depth, int groupA, int groupB) {
    ws.StepClass = 2;
    ws.CurrentNote = multiplicationNote(depth, groupA, groupB);
    BoundedArray<Monomial, lastTerm> products;  // from slot 1
    int count = 0;
    for (int i = 1; i <= ws.TermLast[depth][groupA]; ++i) {
        for (int j = 1; j <= ws.TermLast[depth][groupB]; ++j) {
            products[++count] = product(monomialOf(termOf(depth, groupA, i)), monomialOf(termOf(depth, groupB, j)));
        }
    }
    std::string text = tokensText(0, groupOf(depth, groupA).openIndex);
    for (int k = 1; k <= count; ++k) {
        if (products[k].numerator != 0) text += signedText(products[k]);
    }
    text += tokensText(groupOf(depth, groupB).closeIndex, ws.TokenLast);
    ExplodeTokens(replaced(text, "()", "(+0)"));
}

bool ExpandPower(int depth, int group) {
    ws.StepClass = 2;
    ws.CurrentNote =
        "Expand the term out by replacing it with the same number of factors as the power it is raised to.";
    const ExprGroup& record = groupOf(depth, group);
    const std::string factors = factorsOfPower(depth, group);
    if (factors.empty()) return false;
    ExplodeTokens(tokensText(0, record.openIndex - 1) + factors + tokensText(record.powerIndex, ws.TokenLast));
    return true;
}

namespace {

// The number of a term in lowest form, "top/bottom" with "1" for a whole one. e.g. 9, 6 -> "3/2"
std::string lowestNumber(float numerator, float denominator) {
    const float top = std::fabs(numerator);
    const float bottom = std::fabs(denominator);
    const bool whole = isWhole(top) && isWhole(bottom);
    const std::string text =
        ws.UseFractions && whole ? CommonFactorText(top, bottom) : NumberToText(top / bottom, 0, false, top, bottom);
    return contains(text, "/") ? text : text + "/1";
}

}  // namespace

std::string NegativeExponentText(const std::string& numText, float numerator, const std::string& denText,
                                 float denominator) {
    ws.StepClass = 2;
    if (contains(numText, "~") || ws.RadicalMode) return textOf(std::fabs(numerator)) + numText;
    const std::vector<std::string> number = split(lowestNumber(numerator, denominator), '/');
    Exponents exponents;
    addExponents(numText, 1, exponents);
    addExponents(denText, -1, exponents);
    std::string top = number[0];
    if (exponents[0] != 0) top += "^" + textOf(exponents[0]);
    const std::string lettersAbove = lettersWith(exponents, 1);
    const std::string lettersBelow = lettersWith(exponents, -1);
    const std::string bottom = (number[1] == "1" ? "" : number[1]) + lettersBelow;
    // A number without letters carries an exponent of 1, as every term does in the simplifier.
    if (lettersAbove.empty() && lettersBelow.empty() && exponents[0] == 0) top += "^1";
    top += lettersAbove;
    return bottom.empty() ? top : top + "/" + bottom;
}

}  // namespace ordwise
