// One pass of ReduceGroup over the terms of a group: what the term rules leave for the rebuild.
//
// Only the parts of ReduceGroup include this. Texts are token text without "^1".
#pragma once

#include "BoundedArray.hpp"
#include "ExprStore.hpp"
#include "Int16.hpp"

#include <string>
#include <vector>

namespace ordwise {

inline constexpr int lastBin = 15;
inline constexpr int noBin = -1;

// The terms of one shape, gathered. Bin 0 is that of the plain numbers.
//   e.g. 3x+2x   numKey "x", value 5/1
struct LikeBin {
    double num = 0;  // the value is num / den, in lowest terms when both are whole
    double den = 1;
    std::string numKey;   // letters above the bar, "~r" for a root
    std::string denKey;   // letters below
    std::string written;  // the only term so far as it stands in the text, "" once one was added

    [[nodiscard]] float sum() const { return static_cast<float>(num / den); }
    void add(double numerator, double denominator);
};

// A term of the rebuilt text: one that was copied or rewritten, or all terms of a bin.
struct TermPiece {
    int bin = noBin;
    std::string text;
};

struct TermPass {
    int group = 0;
    std::string textBefore;
    std::string variable;        // the first variable of the problem, "" if there is none
    bool holdsVariable = false;  // it occurs in textBefore

    BoundedArray<LikeBin, lastBin> bins;
    Int16 binNext = 1;
    bool changed = false;    // the pass has made its rewrite
    bool dropsZero = false;  // which takes a term 0 out
    Int16 numberTerms;       // plain numbers met; the second one is added to the first
    int numberTerm = 0;      // the first of them
    int lastTermRead = 0;
    std::vector<TermPiece> pieces;  // the terms read, in their order
};

// The term rules, in basReduceFunc_terms.cpp.
void runTermRules(TermPass& pass);
// Bins, copied terms and terms not reached as one text, in basReduceFunc_rebuild.cpp.
[[nodiscard]] std::string rebuiltText(const TermPass& pass);
// Brings the rebuilt text into the TokenBuffer in order, with the leading term hint when it is due.
void commitRebuilt(const TermPass& pass, const std::string& newText, bool silent);

// The term of a bin, without a sign. e.g. -5/6 and "x" -> "5x/6"
[[nodiscard]] std::string sizeText(const LikeBin& bin);

}  // namespace ordwise
