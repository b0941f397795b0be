// Roots, powers of numbers and absolute values.
//
// A root stands in numText as "~" and the radicand; the numerator is what stands in front of it. In
// the text of a root's value "outer~inner" is that number times the root, and "1~inner" the root
// alone. The closing marks of roots and exponents exist in lines and notes only.
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"
#include "basSolveOrders.hpp"

#include <cmath>
#include <map>

namespace ordwise {
namespace {

constexpr int calculatingRoots = 82;
// Primes up to here are counted; a radicand with a higher one is past the tables.
constexpr std::int64_t highestPrime = 200000;

// --- roots -------------------------------------------------------------------------------------

// What a root simplifies to. e.g. 12 -> 2 outside, 3 inside; 16 -> 4 outside, 1 inside
struct Root {
    std::int64_t outer = 1;
    std::int64_t inner = 1;
};

Root simplified(std::int64_t radicand) {
    std::map<std::int64_t, int> counts;
    for (const std::string& prime : split(PrimeFactorsText(textOf(radicand)), '*')) counts[longOf(prime)] += 1;
    Root root;
    for (const auto& [prime, count] : counts) {
        if (prime > highestPrime) raise(FaultNumber::Subscript);
        for (int pair = 0; pair < count / 2; ++pair) root.outer *= prime;
        if (count % 2 == 1) root.inner *= prime;
    }
    return root;
}

// The radicand of a term, 0 for a term without a root. e.g. numText "~12" -> 12
std::int64_t radicandOf(const ExprTerm& term) {
    return term.numText.starts_with("~") ? longOf(lenientValueOf(term.numText.substr(1))) : 0;
}

std::string termText(const ExprTerm& term) {
    return term.lead + unsignedText(monomialOf(term));
}

// A rewritten root: the term with the factor outside still to be multiplied, and the term with the
// product in its place. They are the same when nothing stood in front. e.g. 5~18 -> "+5*3~2", "+15~2"
struct RewrittenRoot {
    std::string outside;
    std::string multiplied;
    std::string simplifyNote;
    std::string multiplyNote;
};

// e.g. 0~5 -> 0
RewrittenRoot zeroTimesRoot(const ExprTerm& term) {
    const std::string zero = term.lead + "0";
    return {zero, zero, "Multiply the 0 by the " + term.numText + "~ using the order of operations.", ""};
}

std::string perfectSquareNote(const std::string& numText, const Root& root) {
    return "Simplify the square root by removing any perfect squares from under the radical (" + numText +
           "~=" + textOf(root.outer) + ").";
}

// e.g. "... In this problem (12=4*3) there is a perfect square factor (4) ..."
std::string squareFactorNote(std::int64_t radicand, const Root& root) {
    const std::string square = textOf(root.outer * root.outer);
    return "Simplify the square root by removing any perfect square factors from under the radical.  In this problem "
           "(" +
           textOf(radicand) + "=" + square + "*" + textOf(root.inner) + ") there is a perfect square factor (" +
           square + ") that can be moved outside the radical (~" + square + "~ = " + textOf(root.outer) + ").";
}

// True if the term's root gives up a factor; then `rewritten` holds how.
// e.g. ~16 -> 4, ~12 -> 2~3, 3~4 -> 3*2 -> 6; ~7 stays
bool rewriteRoot(const ExprTerm& term, RewrittenRoot& rewritten) {
    if (!contains(term.numText, "~")) return false;
    if (term.numerator == 0) {
        rewritten = zeroTimesRoot(term);
        return true;
    }
    const std::int64_t radicand = radicandOf(term);
    const Root root = radicand == 0 ? Root{0, 1} : simplified(radicand);
    if (root.outer == 1 && root.inner != 1) return false;
    const std::string inside = root.inner == 1 ? "" : "~" + textOf(root.inner);
    const float outer = static_cast<float>(root.outer);
    const float front = std::fabs(term.numerator);
    rewritten.multiplied = term.lead + unsignedText({outer * front, term.denominator, inside, term.denText});
    rewritten.simplifyNote = root.inner == 1 ? perfectSquareNote(term.numText, root) : squareFactorNote(radicand, root);
    if (front == 1) {
        rewritten.outside = rewritten.multiplied;
        return true;
    }
    const std::string moved = unsignedText({outer, term.denominator, inside, term.denText});
    rewritten.outside = term.lead + textOf(front) + "*" + moved;
    rewritten.multiplyNote = "Multiply " + textOf(front) + " by " + markupOf(moved) + " using the order of operations.";
    return true;
}

// Side 0 with one of its terms rewritten.
std::string withTerm(int rewritten, const std::string& newTerm) {
    std::string text = textBefore(groupOf(0, 0));
    for (int t = 1; t <= ws.TermLast[0][0]; ++t) text += t == rewritten ? newTerm : termText(termOf(0, 0, t));
    return text + textFrom(groupOf(0, 0));
}

void commitText(const std::string& text, const std::string& note) {
    ExplodeTokens(text);
    ws.CurrentNote = note;
    CommitStep();
}

// The first root that gives up a factor, in one step or in two. e.g. 5~18 -> 5*3~2 -> 15~2
bool simplifyOneRoot() {
    RewrittenRoot rewritten;
    for (int t = 1; t <= ws.TermLast[0][0]; ++t) {
        if (!rewriteRoot(termOf(0, 0, t), rewritten)) continue;
        const std::string outside = withTerm(t, rewritten.outside);
        const std::string multiplied = withTerm(t, rewritten.multiplied);
        commitText(outside, rewritten.simplifyNote);
        if (!rewritten.multiplyNote.empty()) commitText(multiplied, rewritten.multiplyNote);
        return true;
    }
    return false;
}

// --- powers ------------------------------------------------------------------------------------

// e.g. true for 2^3 and 2^3x, false for 2, 2^1 and x^3
bool hasNumberPower(const ExprTerm& term) {
    return numberPowerOf(term.numText).exponent != 1;
}

// Powers of numbers need whole exponents to be written out.
bool canWriteOut(const ExprTerm& term) {
    const float exponent = numberPowerOf(term.numText).exponent;
    return exponent != 1 && std::floor(exponent) == exponent;
}

}  // namespace

// --- roots -------------------------------------------------------------------------------------

void SimplifyRadicals() {
    while (simplifyOneRoot()) {
    }
}

std::string RadicalText(float value) {
    ws.RadicalMode = false;
    if (ws.ProblemType != calculatingRoots) return "";
    // A root of seven digits names its radicand up to this share.
    constexpr double share = 3e-7;
    const double square = Round(static_cast<double>(value) * static_cast<double>(value), 6);
    const double whole = std::round(square);
    if (std::fabs(square - whole) > share * whole) return "";
    const double root = std::sqrt(square);
    if (root == std::floor(root)) return textOf(root);
    const Root pieces = simplified(longOf(whole));
    ws.RadicalMode = true;
    ws.RootValue = textOf(value);
    ws.RootText = textOf(pieces.outer) + "~" + textOf(pieces.inner);
    return ws.RootText;
}

// --- powers ------------------------------------------------------------------------------------

void ExpandPowers(int group) {
    ws.StepClass = 2;
    const int depth = ws.MaxDepth;
    const ExprGroup& record = groupOf(depth, group);
    std::string text = textBefore(record);
    bool zeroPower = false;
    for (int t = 1; t <= ws.TermLast[depth][group]; ++t) {
        const ExprTerm& term = termOf(depth, group, t);
        if (!canWriteOut(term)) {
            text += termText(term);
            continue;
        }
        zeroPower = zeroPower || numberPowerOf(term.numText).exponent == 0;
        text += term.lead + writtenOutPower(monomialOf(term), term.fractionText);
    }
    ExplodeTokens(text + textFrom(record));
    ws.CurrentNote =
        zeroPower ? "Any number raised to the 0th power is 1."
                  : "Remove exponents by multiplying the number by itself the same number of times as the exponent.";
    CommitStep();
}

bool ExpandIfPowers(int group) {
    const int depth = ws.MaxDepth;
    bool powers = false;
    for (int t = 1; t <= ws.TermLast[depth][group]; ++t) powers = powers || hasNumberPower(termOf(depth, group, t));
    if (!powers) return false;
    ExpandPowers(group);
    OrderPolynomial(group);
    return true;
}

// --- absolute value ----------------------------------------------------------------------------

bool AbsoluteValueStep(int group) {
    const int depth = ws.MaxDepth;
    const ExprTerm& term = termOf(depth, group, 1);
    if (!groupOf(depth, group).isAbsolute || ws.TermLast[depth][group] != 1 || !isBareNumber(term)) return false;
    const float value = term.numerator;
    const std::string size = markupOf(unsignedText(monomialOf(term)));
    TakeAbsoluteValue(depth, group);
    if (value == 0) {
        ws.CurrentNote = "The absolute value of 0 is 0.";
    } else if (value < 0) {
        ws.CurrentNote = "Since -" + size + " < 0, the absolute value of -" + size + " is " + size + ".";
    } else {
        ws.CurrentNote = "Since " + size + " > 0, the absolute value of " + size + " is " + size + ".";
    }
    CommitStep();
    return true;
}

void TakeAbsoluteValue(int depth, int group) {
    ws.StepClass = 2;
    const ExprGroup& record = groupOf(depth, group);
    const std::string& before = ws.TokenBuffer[record.openIndex - 1];
    const std::string& after = ws.TokenBuffer[record.closeIndex + 1];
    // A number beside the bars multiplies: written next to the value it would become a part of it.
    const bool factorBefore = !before.empty() && !IsOperator(before) && before != "(" && before != "=";
    const bool factorBehind = !after.empty() && after[0] >= '0' && after[0] <= '9';
    std::string front = tokensText(0, record.openIndex - 1);
    // Where the bars are all there is, nobody writes a minus before their zero.
    if (front == "-" && after.empty() && termOf(depth, group, 1).numerator == 0) front = "+";
    ExplodeTokens(front + (factorBefore ? "*" : "") + unsignedText(monomialOf(termOf(depth, group, 1))) +
                  (factorBehind ? "*" : "") + tokensText(record.closeIndex + 1, ws.TokenLast));
}

}  // namespace ordwise
