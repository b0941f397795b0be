// The term rules: one pass over a group's terms that ends at the first term it can rewrite, so that
// each pass is one visible step.
//
// The rules and the order in which they are tried stand in `rules` below. A rule that takes a term
// has copied it, gathered it in a bin or rewritten it; only a rewrite sets `changed` and a note.
// Notes are markup, the pass's text is token text.
#include "NumberText.hpp"
#include "TermPass.hpp"
#include "TermText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <cmath>
#include <cstdlib>
#include <numeric>

namespace ordwise {
namespace {

const std::string zeroNote = "0 divided by any number equals 0.";
const std::string toFractionNote = "Convert the decimal number to a fraction.";

// A decimal of more places has no fraction of 32-bit numbers.
constexpr int mostPlaces = 9;

bool isWhole(double value) {
    return value == std::nearbyint(value) && std::fabs(value) < 1e9;
}

// --- terms and their texts

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

// The numerator of a simplest form, which tells the common factor. e.g. 4 of 4/6 -> "2/3" -> "2"
std::string commonFactor(const ExprTerm& term, const std::string& simplest) {
    const double above = lenientValueOf(simplest);
    const TermNumbers written = valuesOf(term);
    return textOf(std::fabs(above == 0.0 ? written.below : written.above / above));
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
    const std::string above = withLetters(signedAbove(term), markupOf(lettersOf(term)));
    const std::string fraction = above + "/" + numbersOf(term).below;
    const std::string note = "Convert #" + fraction +
                             "# to decimal notation by dividing the numerator by the denominator" +
                             (closed ? ". (" : " (") + (decimal == "0" ? "" : sign) + decimal + ").";
    return replaced(note, "()", "(0)");
}

// e.g. "Reduce #4/6# by dividing the numerator and denominator by 2"
std::string reduceNote(const ExprTerm& term, const std::string& numerator, const std::string& factor) {
    return "Reduce #" + withLetters(numerator, markupOf(lettersOf(term))) + "/" + numbersOf(term).below +
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
        note = reduceNote(term, numbersOf(term).above, commonFactor(term, simplest)) + ".";
    }
    rewrite(pass, term, simplest, note);
    return true;
}

// The first half of the sentence about two terms. e.g. -2, "x" -> "Subtract 2x from "
std::string addOrSubtract(const ExprTerm& term) {
    const auto letters = lettersOf(term);
    const TermNumbers numbers = valuesOf(term);
    const std::string size =
        namedTerm(std::fabs(numbers.above), numbers.below, isConstantPower(term) ? "" : letters, lettersBelow(term));
    return term.lead == "-" ? "Subtract " + size + " from " : "Add " + size + " and ";
}

// What two terms make. e.g. 5/6, "x" -> "#5x/6#"; 0 -> "0"
std::string namedSum(const LikeBin& bin) {
    const double sum = bin.num / bin.den;
    if (sum == 0.0) return "0";
    return markupOf((sum < 0 ? "-" : "") + sizeText(bin));
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
        const std::string both = addOrSubtract(term) + namedTerm(bin.num, bin.den, letters, below);
        bin.add(valuesOf(term).above, valuesOf(term).below);
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
        const std::string written = signedAbove(term) + "/" + numbersOf(term).below;
        const std::string sign = term.numerator < 0 ? "-" : "";
        note = reduceNote(term, signedAbove(term), factor) + ". ( #" + written + "# = #" + sign + factor + "*" + above +
               "/" + factor + "*" + (bar == std::string::npos ? "1" : simplest.substr(bar + 1)) + "# )";
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
        const std::string first = namedTerm(numbers.num, numbers.den, "", "");
        numbers.add(num, den);
        ExprTerm second = term;
        second.numerator = static_cast<float>(num);
        const std::string sentence =
            addOrSubtract(second) + first + " to form the new term (" + namedSum(numbers) + ").";
        markChanged(pass, note.empty() ? sentence : note);
    }
    pass.numberTerms += 1;
}

// A fraction among letters is a number to be added. e.g. 4x+576-3/4 -> 4x+2301/4
bool countFraction(TermPass& pass, const ExprTerm& term) {
    if (term.fractionText.empty() || isConstantPower(term)) return false;
    if (!ws.UseFractions || !pass.holdsVariable || !lettersBelow(term).empty()) return false;
    countNumber(pass, term, valuesOf(term).above, valuesOf(term).below, "Combine fractions using fraction arithmetic.");
    return true;
}

// Among numbers alone it waits for fraction arithmetic. e.g. the 1/2 of 1/2+3
bool keepFraction(TermPass& pass, const ExprTerm& term) {
    if (term.fractionText.empty()) return false;
    copy(pass, term);
    return true;
}

// A number with an exponent is left to the rule that writes powers out: added at once, its value
// would stand in the note and in no line. e.g. 2^3, 2^-2
bool keepConstantPower(TermPass& pass, const ExprTerm& term) {
    if (!isPlainNumber(term) || !isConstantPower(term)) return false;
    copy(pass, term);
    return true;
}

// e.g. 2.5+1 -> 5/2+1, 0.035937 -> 35937/1000000
bool convertDecimal(TermPass& pass, const ExprTerm& term) {
    if (!ws.UseFractions || !isPlainNumber(term) || isConstantPower(term)) return false;
    if (term.denominator != 1.0F || isWhole(static_cast<double>(term.numerator))) return false;
    const std::string written = textOf(std::fabs(term.numerator));
    const std::size_t point = written.find('.');
    if (point == std::string::npos || contains(written, "E") || written.size() - point - 1 > mostPlaces) return false;
    rewrite(pass, term, simplestText(term), toFractionNote);
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
    rewrite(pass, term, result,
            places >= 0 && places <= 3 ? notes[places] : "Round to " + textOf(places) + " decimal places.");
    return true;
}

// e.g. 14-5 -> 9
bool addNumber(TermPass& pass, const ExprTerm& term) {
    if (!isPlainNumber(term)) return false;
    countNumber(pass, term, valuesOf(term).above, valuesOf(term).below, "");
    return true;
}

// The coefficient of a letter term. e.g. 4x/6 -> 2x/3, 3x/1 -> 3x; in decimals x/2 -> 0.5x. Under an
// exponent of its own the number waits: 8^3x/10 is not 4^3x/5.
bool simplifyCoefficient(TermPass& pass, const ExprTerm& term) {
    const bool overOne = term.denominator == 1.0F && contains(term.termText, "/") && lettersBelow(term).empty();
    if ((term.denominator == 1.0F && !overOne) || isConstantPower(term)) return false;
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
    bin.num = valuesOf(term).above;
    bin.den = valuesOf(term).below;
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
        namedTerm(valuesOf(other).above, valuesOf(other).below, lettersOf(other), lettersBelow(other));
    const ExprTerm& zero = termAt(pass, index);
    const std::string verb = zero.lead == "-" ? "Subtract " : "Add ";
    const std::string size = "0" + markupOf(lettersOf(zero));
    pass.dropsZero = true;
    markChanged(pass,
                verb + size + (zero.lead == "-" ? " from " : " and ") + name + " to form the new term (" + name + ").");
}

bool dropZeroTerm(TermPass& pass, const ExprTerm& term) {
    const std::string letters = lettersOf(term);
    if (term.numerator != 0.0F || letters.empty() || isConstantPower(term)) return false;
    if (termCount(pass) > 1) {
        dropZero(pass, pass.lastTermRead);
    } else {
        markChanged(pass, "Multiply 0 by " + markupOf(letters) + " using the order of operations.");
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
    countFraction,        // among letters a fraction is a number
    keepFraction,         // what is left of the written fractions
    keepConstantPower,    // before plain numbers, which a power would look like
    convertDecimal,       // before numbers are added: fractions are added by their own method
    roundResult,          // a single number has nothing to be added to
    addNumber,            // what is left of the numbers
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
