// The second half of ReduceGroup: the text after a pass, and the polynomial in decreasing order.
#include "TermPass.hpp"
#include "TermText.hpp"
#include "TextTools.hpp"
#include "Workspace.hpp"
#include "basBreakdownFunc.hpp"
#include "basFormattingEq.hpp"
#include "basReduceFunc.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ordwise {
namespace {

// A bin that cancelled writes nothing.
std::string pieceText(const TermPass& pass, const TermPiece& piece) {
    if (piece.bin == noBin) return piece.text;
    const LikeBin& bin = pass.bins[piece.bin];
    if (!bin.written.empty()) return bin.written;
    const float sum = bin.sum();
    return sum == 0.0F ? "" : (sum < 0 ? "-" : "+") + sizeText(bin);
}

// The terms behind the one where the rules stopped.
std::string termsNotReached(const TermPass& pass) {
    std::string text;
    for (int t = pass.lastTermRead + 1; t <= ws.TermLast[ws.MaxDepth][pass.group]; ++t)
        text += termAsWritten(termOf(ws.MaxDepth, pass.group, t));
    return text;
}

// The degree by which a term is placed: the whole part of its exponent, 0 for what goes behind.
int degreeOf(const ExprTerm& term) {
    const std::string letters = lettersOf(term);
    if (letters.empty() || letters[0] == '^') return 0;
    return std::max(0, static_cast<int>(term.varExp[2]));
}

// A text as far as order goes: without marks, exponents 1 and coefficients 1.
// e.g. "+1x[-2]" -> "+x-2"
std::string bare(const std::string& text) {
    const std::string plain = withoutExponentOne(replaced(replaced(text, "[", ""), "]", ""));
    std::string out;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const bool alone = i == 0 || IsSign(plain.substr(i - 1, 1)) || plain[i - 1] == '=';
        const bool one = plain[i] == '1' && alone && i + 1 < plain.size() && IsLetter(plain.substr(i + 1, 1));
        if (!one) out += plain[i];
    }
    return out;
}

// The hint is given once in a problem, when order alone changes a polynomial without parentheses:
// the ordered text if it is due, "" if it is not.
std::string orderToTell(const TermPass& pass) {
    if (pass.variable.empty() || ws.MaxDepth != 0 || ws.LeadingTermHintShown[ws.MaxDepth]) return "";
    std::string ordered = OrderedPolynomialText(pass.group);
    if (!contains(ordered, pass.variable) || contains(ordered, "*")) return "";
    return bare(ordered) > bare(pass.textBefore) ? ordered : "";
}

void commitText(const std::string& text, bool silent) {
    ExplodeTokens(text);
    CommitStep({.silent = silent});
}

// The ordered polynomial with the hint, as a step of its own.
void commitHint(const std::string& ordered) {
    const std::string noteKept = ws.CurrentNote;
    ws.LeadingTermHintShown[ws.MaxDepth] = true;
    ws.CurrentNote = leadingTermHint;
    commitText(ordered, false);
    ws.CurrentNote = noteKept;
}

}  // namespace

// In a polynomial the gathered letter terms come first, then the terms not reached, then the rest;
// numbers alone keep their places.
std::string rebuiltText(const TermPass& pass) {
    std::string letters;
    std::string rest;
    for (const TermPiece& piece : pass.pieces)
        (pass.holdsVariable && piece.bin > 0 ? letters : rest) += pieceText(pass, piece);
    const std::string behind = termsNotReached(pass);
    std::string terms = pass.holdsVariable ? letters + behind + rest : rest + behind;
    // What cancels leaves a 0, which is a term like any other; in front it has no minus.
    if (terms.empty()) terms = "+0";
    const bool minusZero = terms == "-0" || (terms.size() > 2 && terms.starts_with("-0") && IsSign(terms.substr(2, 1)));
    if (minusZero) terms[0] = '+';
    const ExprGroup& group = groupOf(ws.MaxDepth, pass.group);
    return textBefore(group) + terms + textFrom(group);
}

void commitRebuilt(const TermPass& pass, const std::string& newText, bool silent) {
    const std::string ordered = silent ? "" : orderToTell(pass);
    if (!ordered.empty() && !pass.dropsZero) {
        commitHint(ordered);
        commitText(newText, true);
        commitText(OrderedPolynomialText(pass.group), true);
        return;
    }
    commitText(newText, true);
    // A zero goes before the hint: what is left may stand in order. e.g. y=0-x -> y=-x
    if (!ordered.empty()) return;
    if (!pass.variable.empty() && contains(newText, pass.variable) && !contains(newText, "*"))
        ExplodeTokens(OrderedPolynomialText(pass.group));
}

std::string OrderedPolynomialText(int group) {
    const int count = ws.TermLast[ws.MaxDepth][group];
    std::vector<const ExprTerm*> terms;
    for (int t = 1; t <= count; ++t) terms.push_back(&termOf(ws.MaxDepth, group, t));
    // Terms of equal degree keep the order in which they stand.
    std::stable_sort(terms.begin(), terms.end(),
                     [](const ExprTerm* a, const ExprTerm* b) { return degreeOf(*a) > degreeOf(*b); });
    std::string text = textBefore(groupOf(ws.MaxDepth, group));
    for (const ExprTerm* term : terms) text += termAsWritten(*term);
    return text + textFrom(groupOf(ws.MaxDepth, group));
}

}  // namespace ordwise
