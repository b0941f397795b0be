// The term rules: one pass over a group's terms that ends at the first term it can rewrite, so that
// each pass is one visible step.
//
// The rules and the order in which they are tried stand in `rules` below. A rule that takes a term
// has copied it, gathered it in a bin or rewritten it; only a rewrite sets `changed` and a note.
// Notes are markup, the pass's text is token text.
#include "NumberText.hpp"
#include "TermPass.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace ordwise {
namespace {

const std::string zeroNote = "0 divided by any number equals 0.";
const std::string toFractionNote = "Convert the decimal number to a fraction.";

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

bool isWhole(double value) {
    return value == std::nearbyint(value) && std::fabs(value) < 1e9;
}

// The number that a single prints as: 0.1, not 0.100000001.
double asPrinted(float value) {
    return lenientValueOf(textOf(value));
}

// --- terms and their texts

std::string lettersOf(const ExprTerm& term) {
    return withoutExponentOne(term.numText);
}
std::string lettersBelow(const ExprTerm& term) {
    return withoutExponentOne(term.denText);
}

// e.g. the "^3" of 2^3
bool isConstantPower(const ExprTerm& term) {
    return lettersOf(term).substr(0, 1) == "^";
}

// e.g. 5, 2.5, 2^3; not x, 2^3x, 3/x, 1/2
bool isPlainNumber(const ExprTerm& term) {
    const bool noLetters = numberPowerOf(lettersOf(term)).letters.empty();
    return term.fractionText.empty() && noLetters && lettersBelow(term).empty() && !term.inDenominator;
}

int termCount(const TermPass& pass) {
    return ws.TermLast[ws.MaxDepth][pass.group];
}
const ExprTerm& termAt(const TermPass& pass, int index) {
    return termOf(ws.MaxDepth, pass.group, index);
}

// Letters as a note shows them: every exponent and root closed. e.g. "x^2y" -> "x^2^y", "~3" -> "~3~"
std::string shown(const std::string& letters) {
    if (contains(letters, "~")) return letters + "~";
    std::string text;
    bool raised = false;
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const bool inside = isDigit(letters[i]) || letters[i] == '.' || (letters[i] == '-' && letters[i - 1] == '^');
        if (raised && !inside) text += '^';
        raised = letters[i] == '^' || (raised && inside);
        text += letters[i];
    }
    return raised ? text + '^' : text;
}

// A number and its letters, a 1 in front of letters not written. e.g. "1", "x" -> "x"; "-1" -> "-x"
std::string withLetters(const std::string& number, const std::string& letters) {
    if (letters.empty() || letters[0] == '^') return number + letters;
    if (number == "1" || number == "-1") return number.substr(0, number.size() - 1) + letters;
    return number + letters;
}

// A term as a note names it. e.g. 2, 1, "x" -> "2x"; 1, 3, "x" -> "#x/3#"
std::string named(double num, double den, const std::string& letters, const std::string& below) {
    const std::string above = withLetters(textOf(static_cast<float>(num)), shown(letters));
    if (den == 1.0 && below.empty()) return above;
    return "#" + above + "/" + withLetters(textOf(static_cast<float>(den)), shown(below)) + "#";
}

// |numerator / denominator| in simplest form by the settings. A written fraction is reduced on its
// digits, not by a search: 1234/5678 must not become its neighbour of seven digits.
// e.g. 4/6 -> "2/3", 2.5/3 -> "5/6"; in decimals 1/2 -> "0.5"
std::string simplestText(const ExprTerm& term) {
    if (!ws.UseFractions) return FractionText(term.numerator / term.denominator, term.numerator, term.denominator);
    double above = std::fabs(asPrinted(term.numerator));
    double below = asPrinted(term.denominator);
    for (int places = 0; places < 7 && !(isWhole(above) && isWhole(below)); ++places) {
        above = Round(above * 10, 6);
        below = Round(below * 10, 6);
    }
    return CommonFactorText(above, below);
}

// The numerator of a simplest form, which tells the common factor. e.g. 4 of 4/6 -> "2/3" -> "2"
std::string commonFactor(const ExprTerm& term, const std::string& simplest) {
    const double above = lenientValueOf(simplest);
    const double factor = above == 0.0 ? static_cast<double>(term.denominator) : term.numerator / above;
    return textOf(static_cast<float>(std::fabs(factor)));
}

// --- what a rule leaves

void copy(TermPass& pass, const ExprTerm& term) {
    pass.pieces.push_back({noBin, termAsWritten(term)});
}

void markChanged(TermPass& pass, const std::string& note) {
    pass.changed = true;
    ws.KeepReducing = true;
    ws.CurrentNote = note;
}

// The term with a new coefficient. e.g. lead "+", "3/2", x^-2 -> "+3x^-2/2"
void rewrite(TermPass& pass, const ExprTerm& term, const std::string& coefficient, const std::string& note) {
    const std::size_t bar = coefficient.find('/');
    const std::string below = lettersBelow(term);
    std::string text = term.lead + withLetters(coefficient.substr(0, bar), lettersOf(term));
    if (bar != std::string::npos) {
        text += "/" + coefficient.substr(bar + 1) + below;
    } else if (!below.empty()) {
        text += "/" + below;
    }
    pass.pieces.push_back({noBin, text});
    markChanged(pass, note);
}

// e.g. "Convert #1/2# to decimal notation by dividing the numerator by the denominator. (0.5)."
// A fraction of whole numbers on its own closes the sentence before the parenthesis.
std::string convertNote(const ExprTerm& term, const std::string& decimal, bool closed) {
    const std::string sign = term.numerator < 0 ? "-" : "";
    const std::string fraction = textOf(term.numerator) + shown(lettersOf(term)) + "/" + textOf(term.denominator);
    const std::string note = "Convert #" + fraction +
                             "# to decimal notation by dividing the numerator by the denominator" +
                             (closed ? ". (" : " (") + (decimal == "0" ? "" : sign) + decimal + ").";
    return replaced(note, "()", "(0)");
}

// e.g. "Reduce #4/6# by dividing the numerator and denominator by 2"
std::string reduceNote(const ExprTerm& term, const std::string& numerator, const std::string& factor) {
    return "Reduce #" + numerator + shown(lettersOf(term)) + "/" + textOf(term.denominator) +
           "# by dividing the numerator and denominator by " + factor;
}

// --- the rules

// The factors of a product are no terms of a sum. e.g. both terms of 2*3
bool keepFactor(TermPass& pass, const ExprTerm& term) {
    const int next = pass.lastTermRead + 1;
    const bool multiplied = next <= termCount(pass) && termAt(pass, next).lead == "*";
    if (term.lead != "*" && !multiplied) return false;
    copy(pass, term);
    return true;
}

// A term 0 with letters. e.g. 0x -> 0, and 0x+3 -> 3
bool dropZeroTerm(TermPass& pass, const ExprTerm& term);

// A written fraction behind letter terms, not in simplest form. e.g. x+4/6 -> x+2/3, in decimals
// x+1/2 -> x+0.5
bool reduceBehindLetters(TermPass& pass, const ExprTerm& term) {
    if (pass.binNext < 2 || term.fractionText.empty() || isConstantPower(term)) return false;
    const std::string simplest = simplestText(term);
    if (simplest == term.fractionText) return false;
    std::string note = zeroNote;
    if (!ws.UseFractions) {
        note = convertNote(term, simplest, false);
    } else if (lenientValueOf(simplest) != 0.0) {
        note = reduceNote(term, textOf(std::fabs(term.numerator)), commonFactor(term, simplest)) + ".";
    }
    rewrite(pass, term, simplest, note);
    return true;
}

// The first half of the sentence about two terms. e.g. -2, "x" -> "Subtract 2x from "
std::string addOrSubtract(const ExprTerm& term) {
    const auto letters = lettersOf(term);
    const std::string size = named(std::fabs(asPrinted(term.numerator)), asPrinted(term.denominator),
                                   isConstantPower(term) ? "" : letters, lettersBelow(term));
    return term.numerator < 0 ? "Subtract " + size + " from " : "Add " + size + " and ";
}

// What two terms make. e.g. 5/6, "x" -> "#5x/6#"; 0 -> "0"
std::string namedSum(const LikeBin& bin) {
    const double sum = bin.num / bin.den;
    if (sum == 0.0) return "0";
    LikeBin display = bin;
    display.numKey = shown(bin.numKey);
    display.denKey = shown(bin.denKey);
    const std::string size = (sum < 0 ? "-" : "") + sizeText(display);
    return contains(size, "/") ? "#" + size + "#" : size;
}

// A term like an earlier one. e.g. 3x+2x -> 5x, 2~3-~3 -> ~3
bool combineLikeTerms(TermPass& pass, const ExprTerm& term) {
    if (!term.fractionText.empty() || isConstantPower(term)) return false;
    const std::string letters = lettersOf(term);
    const std::string below = lettersBelow(term);
    if (letters.empty() && below.empty()) return false;
    for (int b = 1; b < pass.binNext; ++b) {
        LikeBin& bin = pass.bins[b];
        if (bin.numKey != letters || bin.denKey != below) continue;
        const std::string both = addOrSubtract(term) + named(bin.num, bin.den, letters, below);
        bin.add(asPrinted(term.numerator), asPrinted(term.denominator));
        markChanged(pass, both + " to form the new term (" + namedSum(bin) + ").");
        return true;
    }
    return false;
}

// e.g. 3x^0y -> 3y, 5^0 -> 1
bool zerothPower(TermPass& pass, const ExprTerm& term) {
    const std::string letters = lettersOf(term);
    const std::size_t caret = letters.find("^0");
    if (caret == std::string::npos) return false;
    ExprTerm left = term;
    const std::size_t base = caret == 0 ? 0 : caret - 1;
    left.numText = letters.substr(0, base) + letters.substr(caret + 2);
    const std::string coefficient = caret == 0 ? "1" : textOf(std::fabs(term.numerator));
    const std::string bar = term.denominator == 1.0F ? "" : "/" + textOf(term.denominator);
    rewrite(pass, left, coefficient + bar, "Any variable or number raised to the 0th power is 1.");
    return true;
}

// A fraction on its own, not in simplest form. e.g. 4/6 -> 2/3, 2.5/3 -> 5/6; in decimals 1/2 -> 0.5
bool simplifyFraction(TermPass& pass, const ExprTerm& term) {
    if (term.fractionText.empty() || isConstantPower(term)) return false;
    const std::string simplest = simplestText(term);
    if (simplest == term.fractionText) return false;
    const bool decimals = contains(term.fractionText, ".");
    const std::size_t bar = simplest.find('/');
    const std::string above = simplest.substr(0, bar);
    std::string note;
    if (!ws.UseFractions) {
        note = convertNote(term, simplest, !decimals);
    } else if (decimals) {
        note = toFractionNote;
    } else if (above == "0") {
        note = zeroNote;
    } else {
        const std::string factor = commonFactor(term, simplest);
        const std::string written = textOf(term.numerator) + "/" + textOf(term.denominator);
        const std::string sign = term.numerator < 0 ? "-" : "";
        note = reduceNote(term, textOf(term.numerator), factor) + ". ( #" + written + "# = #" + sign + factor + "*" +
               above + "/" + factor + "*" + (bar == std::string::npos ? "1" : simplest.substr(bar + 1)) + "# )";
    }
    rewrite(pass, term, simplest, note);
    return true;
}

// Number and fraction meet in bin 0; the second one is added to the first.
void countNumber(TermPass& pass, const ExprTerm& term, double num, double den, const std::string& note) {
    LikeBin& numbers = pass.bins[0];
    if (pass.numberTerms == 0) {
        pass.pieces.push_back({0, ""});
        pass.numberTerm = pass.lastTermRead;
        numbers.written = termAsWritten(term);
        numbers.num = num;
        numbers.den = den;
    } else {
        const std::string first = named(numbers.num, numbers.den, "", "");
        numbers.add(num, den);
        LikeBin worth = numbers;
        ExprTerm second = term;
        second.numerator = static_cast<float>(num);
        const std::string sentence = addOrSubtract(second) + first + " to form the new term (" + namedSum(worth) + ").";
        markChanged(pass, note.empty() ? sentence : note);
    }
    pass.numberTerms += 1;
}

// A fraction among letters is a number to be added. e.g. 4x+576-3/4 -> 4x+2301/4
bool countFraction(TermPass& pass, const ExprTerm& term) {
    if (term.fractionText.empty() || isConstantPower(term)) return false;
    if (!ws.UseFractions || !pass.holdsVariable || !lettersBelow(term).empty()) return false;
    countNumber(pass, term, asPrinted(term.numerator), asPrinted(term.denominator),
                "Combine fractions using fraction arithmetic.");
    return true;
}

// Among numbers alone it waits for fraction arithmetic. e.g. the 1/2 of 1/2+3
bool keepFraction(TermPass& pass, const ExprTerm& term) {
    if (term.fractionText.empty()) return false;
    copy(pass, term);
    return true;
}

// A number with an exponent that is no positive whole one is left to the rule that writes powers
// out. e.g. 2^-2
bool keepConstantPower(TermPass& pass, const ExprTerm& term) {
    if (!isPlainNumber(term) || !isConstantPower(term)) return false;
    const double exponent = static_cast<double>(term.varExp[1]);
    if (exponent > 0 && isWhole(exponent) && term.denominator == 1.0F) return false;
    copy(pass, term);
    return true;
}

// Significant digits of a decimal. e.g. "0.0250" -> 3, "0.3333333" -> 7
int digitCount(const std::string& decimal) {
    const std::size_t first = decimal.find_first_of("123456789");
    if (first == std::string::npos) return 0;
    return static_cast<int>(
        std::count_if(decimal.begin() + static_cast<std::ptrdiff_t>(first), decimal.end(), isDigit));
}

// The fraction that a decimal spells. One of all seven digits of a single is taken for a fraction
// that was cut off, and searched. e.g. 2.5 -> "5/2", 0.035937 -> "35937/1000000", 0.3333333 -> "1/3"
std::string fractionOfDecimal(const ExprTerm& term) {
    constexpr int digitsOfSingle = 7;
    return digitCount(textOf(term.numerator)) < digitsOfSingle ? simplestText(term) : FractionText(term.numerator);
}

// e.g. 2.5+1 -> 5/2+1
bool convertDecimal(TermPass& pass, const ExprTerm& term) {
    if (!ws.UseFractions || !isPlainNumber(term) || isConstantPower(term)) return false;
    if (term.denominator != 1.0F || isWhole(static_cast<double>(term.numerator))) return false;
    const std::string fraction = fractionOfDecimal(term);
    if (fraction == textOf(std::fabs(term.numerator))) return false;
    rewrite(pass, term, fraction, toFractionNote);
    return true;
}

// In decimals the result alone is rounded, so that the terms of a sum keep their digits.
// e.g. 0.0625 -> 0.06
bool roundResult(TermPass& pass, const ExprTerm& term) {
    static const char* const notes[] = {"Round to the nearest whole number (no decimal places).",
                                        "Round to the nearest tenth (one digit after the decimal point).",
                                        "Round to the nearest hundredth (two digits after the decimal point).",
                                        "Round to the nearest thousandth (three digits after the decimal point)."};
    if (ws.UseFractions || ws.MaxDepth != 0 || termCount(pass) != 1) return false;
    if (!isPlainNumber(term) || isConstantPower(term) || term.denominator != 1.0F) return false;
    const std::string result = FractionText(term.numerator);
    if (result == textOf(std::fabs(term.numerator))) return false;
    const int places = ws.RoundPlaces;
    rewrite(pass, term, result, places <= 3 ? notes[places] : "Round to " + textOf(places) + " decimal places.");
    return true;
}

// e.g. 14-5 -> 9, 2^3+1 -> 9
bool addNumber(TermPass& pass, const ExprTerm& term) {
    if (!isPlainNumber(term)) return false;
    const double size = std::pow(std::fabs(asPrinted(term.numerator)), static_cast<double>(term.varExp[1]));
    countNumber(pass, term, term.numerator < 0 ? -size : size, asPrinted(term.denominator), "");
    return true;
}

// The coefficient of a letter term. e.g. 4x/6 -> 2x/3; in decimals x/2 -> 0.5x. Under an exponent of
// its own the number waits: 8^3x/10 is not 4^3x/5.
bool simplifyCoefficient(TermPass& pass, const ExprTerm& term) {
    if (term.denominator == 1.0F || isConstantPower(term)) return false;
    const std::string simplest = simplestText(term);
    if (simplest == textOf(std::fabs(term.numerator)) + "/" + textOf(term.denominator)) return false;
    const std::string note = ws.UseFractions ? "Reduce fraction by dividing the numerator and denominator by " +
                                                   commonFactor(term, simplest) + "."
                                             : convertNote(term, simplest, false);
    rewrite(pass, term, simplest, note);
    return true;
}

// The first term of its shape. e.g. 3x opens the bin of x
bool openBin(TermPass& pass, const ExprTerm& term) {
    LikeBin& bin = pass.bins[pass.binNext];
    bin.num = asPrinted(term.numerator);
    bin.den = asPrinted(term.denominator);
    bin.numKey = lettersOf(term);
    bin.denKey = lettersBelow(term);
    bin.written = termAsWritten(term);
    pass.pieces.push_back({pass.binNext, ""});
    pass.binNext += 1;
    return true;
}

// The other term of the sentence about a term 0: the one before it, or behind the first.
const ExprTerm& neighbour(const TermPass& pass, int index) {
    return termAt(pass, index > 1 ? index - 1 : index + 1);
}

// e.g. "Subtract 0 from #27/5# to form the new term (#27/5#)."
void dropZero(TermPass& pass, int index) {
    const ExprTerm& other = neighbour(pass, index);
    const std::string name =
        named(asPrinted(other.numerator), asPrinted(other.denominator), lettersOf(other), lettersBelow(other));
    const ExprTerm& zero = termAt(pass, index);
    const std::string verb = zero.lead == "-" ? "Subtract " : "Add ";
    const std::string size = "0" + shown(lettersOf(zero));
    markChanged(pass,
                verb + size + (zero.lead == "-" ? " from " : " and ") + name + " to form the new term (" + name + ").");
}

bool dropZeroTerm(TermPass& pass, const ExprTerm& term) {
    const std::string letters = lettersOf(term);
    if (term.numerator != 0.0F || letters.empty() || isConstantPower(term)) return false;
    if (termCount(pass) > 1) {
        dropZero(pass, pass.lastTermRead);
    } else {
        markChanged(pass, "Multiply 0 by " + shown(letters) + " using the order of operations.");
    }
    return true;
}

// In the order in which they are tried; the first that takes the term ends the search.
using Rule = bool (*)(TermPass&, const ExprTerm&);
constexpr Rule rules[] = {
    keepFactor,           // first of all: none of the rules below may touch a product
    dropZeroTerm,         // a 0 has no coefficient to reduce and nothing to combine
    reduceBehindLetters,  // before fractions are counted, so that they are added in simplest form
    combineLikeTerms,     // before coefficients are reduced: 1/2x+1/2x is x at once
    zerothPower,          // before powers of numbers, which it would look like
    simplifyFraction,     // before a fraction is counted or kept
    countFraction,        //
    keepFraction,         // what is left of the written fractions
    keepConstantPower,    // before plain numbers, which a positive power is
    convertDecimal,       // before numbers are added: fractions are added by their own method
    roundResult,          // a single number has nothing to be added to
    addNumber,            //
    simplifyCoefficient,  // letter terms only from here on
    openBin               // what no rule has taken
};

// A 0 that found no number to be added to goes, unless it is all there is.
void dropLoneZero(TermPass& pass) {
    const LikeBin& numbers = pass.bins[0];
    if (pass.changed || pass.numberTerms != 1 || numbers.num != 0.0 || termCount(pass) < 2) return;
    dropZero(pass, pass.numberTerm);
    std::erase_if(pass.pieces, [](const TermPiece& piece) { return piece.bin == 0; });
}

}  // namespace

void LikeBin::add(double numerator, double denominator) {
    written.clear();
    num = den == denominator ? num + numerator : num * denominator + numerator * den;
    den = den == denominator ? den : den * denominator;
    if (!isWhole(num) || !isWhole(den)) return;
    const auto factor = static_cast<double>(std::gcd(std::llabs(std::llround(num)), std::llround(den)));
    num /= factor;
    den /= factor;
}

std::string termAsWritten(const ExprTerm& term) {
    const std::string letters = lettersOf(term);
    const std::string below = lettersBelow(term);
    if (!term.fractionText.empty()) return term.lead + term.fractionText + letters + below;
    std::string text = term.lead + withLetters(textOf(std::fabs(term.numerator)), letters);
    if (term.denominator != 1.0F || !below.empty()) text += "/" + withLetters(textOf(term.denominator), below);
    return text;
}

std::string sizeText(const LikeBin& bin) {
    const bool fraction = ws.UseFractions && isWhole(bin.num) && isWhole(bin.den) && bin.den != 1.0;
    const std::string number = fraction ? CommonFactorText(std::fabs(bin.num), bin.den) : FractionText(bin.sum());
    const std::size_t bar = number.find('/');
    std::string text = withLetters(number.substr(0, bar), bin.numKey);
    if (bar != std::string::npos) {
        text += "/" + number.substr(bar + 1) + bin.denKey;
    } else if (!bin.denKey.empty()) {
        text += "/" + bin.denKey;
    }
    return text;
}

void runTermRules(TermPass& pass) {
    for (int t = 1; t <= termCount(pass) && !pass.changed && pass.numberTerms < 2; ++t) {
        pass.lastTermRead = t;
        ws.KeepReducing = false;
        const ExprTerm& term = termAt(pass, t);
        for (const Rule rule : rules) {
            if (rule(pass, term)) break;
        }
    }
    dropLoneZero(pass);
}

}  // namespace ordwise
