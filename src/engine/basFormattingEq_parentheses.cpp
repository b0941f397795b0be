// Getting rid of parentheses, one rewrite at a time, at the deepest level of the store: they are
// resolved inside out.
//
// In this file o is the slot of a group's "(" and c that of its ")". A group's factor is what
// stands directly in front of it: the 3x of 3x(x+1), the minus of -(x+1). It begins at prefixStart,
// with a sign or a star.
#include "NumberText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <cmath>

namespace ordwise {
namespace {

const std::string& token(int slot) {
    return ws.TokenBuffer[slot];
}

bool beginsFactor(const std::string& t) {
    return IsLetter(t) || (!t.empty() && (t[0] == '.' || t[0] == '~' || (t[0] >= '0' && t[0] <= '9')));
}

// The number in front of the group has an exponent. e.g. 2^3(x+1)
bool holdsPower(const ExprGroup& record) {
    return numberPowerOf(record.prefixText).exponent != 1;
}

// --- freeing a group ---------------------------------------------------------------------------

// Nothing multiplies, divides or raises the group as a whole, or it has one term and does not mind.
// e.g. 2+(x+1), 3*(4); not -(x+1), 3*(x+1), 3*(-4), (x+1)^2, (x+1)(x+2)
bool canBeFreed(const ExprGroup& record, int terms) {
    const int o = record.openIndex;
    const std::string& before = token(o - 1);
    const std::string& after = token(record.closeIndex + 1);
    if (record.isAbsolute || record.nextGroup != -1 || record.power != 1 || record.prefixCoef != 1) return false;
    if (!IsOperator(before) && before != "(") return false;
    if (after == "(" || beginsFactor(after)) return false;
    const bool severalTerms = terms >= 2;
    if (severalTerms && (before == "*" || before == "/" || after == "*" || after == "/" || after == "^")) return false;
    return before != "*" || token(o + 1) != "-";
}

// The text without the parenthesis. A plus in front gives way to the sign of the first inner term.
// e.g. 2+(-x+1) -> "+2-x+1"
std::string freedText(const ExprGroup& record) {
    const int o = record.openIndex;
    const std::string& before = token(o - 1);
    const bool innerSign = IsSign(before);
    std::string text = tokensText(0, o - 2) + (innerSign ? token(o + 1) : before);
    if (before == "(") text += token(o + 1);
    return text + tokensText(o + 2, record.closeIndex - 1) + tokensText(record.closeIndex + 1, ws.TokenLast);
}

// One positive term behind a number fraction: the fraction multiplies it. e.g. 3/4(x)
bool followsFraction(const ExprGroup& record, int terms) {
    const int o = record.openIndex;
    return terms == 1 && !record.isAbsolute && record.power == 1 && record.nextGroup == -1 &&
           IsFractionToken(token(o - 1)) && token(o + 1) == "+" && !beginsFactor(token(record.closeIndex + 1));
}

// e.g. 3/4(x) -> "+3/4*x"
std::string starredText(const ExprGroup& record) {
    const int o = record.openIndex;
    return tokensText(0, o - 1) + "*" + tokensText(o + 2, record.closeIndex - 1) +
           tokensText(record.closeIndex + 1, ws.TokenLast);
}

// --- the factor in front -----------------------------------------------------------------------

Monomial factorInFront(const ExprGroup& record) {
    return {std::fabs(record.prefixNumerator), record.prefixDenominator, withoutExponentOne(record.prefixText),
            withoutExponentOne(record.prefixDenText)};
}

// The factor in lowest form, as a step of its own. A negative exponent stays where it is: multiplied
// in, it can still cancel against the letters of the terms. e.g. 4/2(x+1) -> 2(x+1)
void reduceFactor(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    const Monomial factor = factorInFront(record);
    const bool onlySign = record.openIndex - record.prefixStart == 1;
    if (onlySign || factor.numerator == 0 || contains(factor.numText, "^-")) return;
    const std::string lowest =
        withoutExponentOne(NegativeExponentText(factor.numText, factor.numerator, factor.denText, factor.denominator));
    if (lowest == plainText(factor)) return;
    ExplodeTokens(tokensText(0, record.prefixStart) + lowest + tokensText(record.openIndex, ws.TokenLast));
    ws.CurrentNote = "Reduce the term in front of the parenthesis before multiplying.";
    CommitStep();
}

// e.g. "Multiply the 3 by each one of the terms inside the parenthesis."
std::string distributionNote(const Monomial& factor, int terms) {
    return "Multiply the " + markupOf(plainText(factor)) + " by " +
           (terms == 1 ? "the term inside the parenthesis." : "each one of the terms inside the parenthesis.");
}

// The whole text with the factor multiplied into the terms. e.g. +3(+x-2) -> "+(+3x-6)"
std::string distributedText(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    Monomial factor = factorInFront(record);
    if (record.prefixCoef < 0) factor.numerator = -factor.numerator;
    const std::string& opening = token(record.prefixStart);
    std::string text = tokensText(0, record.prefixStart - 1) + (IsSign(opening) ? "+" : opening) + "(";
    for (int term = 1; term <= ws.TermLast[depth][group]; ++term) {
        text += signedText(product(factor, monomialOf(termOf(depth, group, term))));
    }
    return text + tokensText(record.closeIndex, ws.TokenLast);
}

}  // namespace

bool hasFactorInFront(int depth, int group) {
    const ExprGroup& record = groupOf(depth, group);
    const std::string& before = token(record.openIndex - 1);
    if (before == "-") return true;
    if (record.isAbsolute || IsOperator(before)) return false;
    for (int slot = record.prefixStart + 1; slot < record.openIndex; ++slot) {
        const std::string& t = token(slot);
        if (t == "(" || t == ")" || t == "|" || t == "[" || t == "]" || t == "=") return false;
    }
    return record.openIndex - record.prefixStart > 1;
}

void dropStarInFront(int depth, int group) {
    const int o = groupOf(depth, group).openIndex;
    ExplodeTokens(tokensText(0, o - 2) + tokensText(o, ws.TokenLast));
    CommitStep({.silent = true});
}

bool RemoveParentheses(bool silent) {
    ws.CurrentNote = "Remove the parenthesis.";
    ws.StepClass = 2;
    const int depth = ws.MaxDepth;
    if (depth == 0) return false;
    if (!tokensHold('(')) {
        AbsoluteValueStep(0);
        return false;
    }
    for (int group = 0; group <= ws.GroupTable[depth].lastGroup; ++group) {
        const ExprGroup& record = groupOf(depth, group);
        const int terms = ws.TermLast[depth][group];
        if (canBeFreed(record, terms)) {
            ExplodeTokens(freedText(record));
            return true;
        }
        if (!silent && followsFraction(record, terms)) {
            ExplodeTokens(starredText(record));
            return true;
        }
    }
    return true;
}

void DistributeFactor(int depth, int group, bool stopWhenStable) {
    if (holdsPower(groupOf(depth, group))) {
        ExpandPrefixPower(group);
        return;
    }
    if (!stopWhenStable) reduceFactor(depth, group);
    ws.StepClass = 2;
    ws.CurrentNote = distributionNote(factorInFront(groupOf(depth, group)), ws.TermLast[depth][group]);
    ExplodeTokens(distributedText(depth, group));
    CommitStep();
    RemoveParentheses();
    CommitStep();
}

bool ExpandPrefixPower(int group) {
    const int depth = ws.MaxDepth;
    if (depth == 0) return false;
    const ExprGroup& record = groupOf(depth, group);
    if (!holdsPower(record) || !hasFactorInFront(depth, group)) return false;
    ws.StepClass = 3;
    const int start = record.prefixStart;
    const std::string& base = token(start + 1);
    const bool zeroth = numberPowerOf(record.prefixText).exponent == 0;
    const std::string written = writtenOutPower(factorInFront(record), IsFractionToken(base) ? base : "");
    ExplodeTokens(tokensText(0, start) + written + tokensText(record.openIndex, ws.TokenLast));
    ws.CurrentNote =
        zeroth ? "Any variable or number raised to the 0th power is 1."
               : "Remove exponents by multiplying the number by itself the same number of times as the exponent.";
    CommitStep();
    while (multiplyFirstPair(start + 1, groupOf(depth, group).openIndex - 1)) {
    }
    return true;
}

}  // namespace ordwise
