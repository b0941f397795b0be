// The analysis of the expression's text: by side of the "=", depth of parenthesis, group and term.
//
// The text in the TokenBuffer is the master. A rule reads the store, writes a new text and has the
// store rebuilt from it by CommitStep; nobody edits the store to change the expression. Side 0 is
// left of the equals sign, and a text without one is all side 0. Depth 0 group 0 is the side
// itself; each "(" or opening "|" goes one deeper, and groups of one depth are counted from 0 along
// the text. A term is what a sign or a "*" opens, counted from 1; slot 0 of a group stays empty.
//
//   e.g. +3x(+2x+1)-4   depth 0 group 0: term 1 is -4
//                       depth 1 group 0: terms +2x and +1; the group's prefix is 3 with letter x
//
// Only the terms have a side: groups and counts describe the side that was parsed last, while the
// terms of the other side stay readable until it is parsed again.
//
// StoreSource is what the store was made from. A text that is committed again, as most are, is found
// in it and costs no parse.
//
// Read with brackets, ws.TermTable[side][depth][group][term]: a record that was never written reads
// as a fresh one. Write through slot(). A subscript past a bound is fault 9 either way. Records are
// made when they are first written, so the tables cost what the problem uses.
#pragma once

#include "BoundedArray.hpp"
#include "Int16.hpp"
#include "SlotArray.hpp"

#include <array>
#include <string>

namespace ordwise {

inline constexpr int lastSide = 1;
inline constexpr int lastDepth = 20;
inline constexpr int lastTableGroup = 100;  // of GroupTable
inline constexpr int lastTermGroup = 50;    // of TermTable and TermLast
inline constexpr int lastTerm = 100;
inline constexpr int lastVarSlot = 10;
inline constexpr int lastToken = 2000;  // the highest slot of a token array

using TokenArray = SlotArray<std::string, lastToken>;

// The tokens that something was made from, to find out cheaply that it need not be made again:
// comparing a text costs a hundredth of parsing it.
struct KnownText {
    static constexpr int unknown = -1;

    TokenArray tokens;
    int last = unknown;  // the TokenLast that belongs to them
    int reading = 0;     // what else the maker went by: a side, a topic

    [[nodiscard]] bool is(const TokenArray& now, int nowLast, int nowReading) const {
        return last == nowLast && reading == nowReading && tokens == now;
    }
    void remember(const TokenArray& now, int nowLast, int nowReading) {
        tokens = now;
        last = nowLast;
        reading = nowReading;
    }
    [[nodiscard]] bool isKnown() const { return last != unknown; }
    void forget() { last = unknown; }
};

// A term: coefficient, letters above and letters below the fraction bar.
//   e.g. -3x^2/4y  numerator -3, denominator 4, numText "x^2", denText "y"
//   e.g. +3/4      numerator 3, denominator 4, fractionText "3/4"
//   e.g. +2~5      numerator 2, numText "~5"
//   e.g. +2^3      numerator 2, numText "^3", varExp 3 in slot 1
struct ExprTerm {
    float numerator = 1.0F;       // signed: the sign of the term is here
    float denominator = 1.0F;     // positive as parsed
    float quotient = 1.0F;        // numerator / denominator where a denominator was parsed
    bool inDenominator = false;   // a "/" was read and what follows belongs under it
    bool hasFractionBar = false;  // a "/" stood directly behind letters or a number of this term
    Int16 nextVar = 1;            // the next free slot of varName
    // The letters in order of appearance, from slot 1; 0 in a slot that holds none.
    BoundedArray<char, lastVarSlot> varName;
    // An exponent stands one slot behind its letter until the next letter comes, and that of a bare
    // number in slot 1; numText is the field to read exponents from.
    BoundedArray<float, lastVarSlot> varExp = firstExponents();
    std::string termText;      // letters, "/" and "^n" in order, no number before the first letter
    std::string numText;       // letters of the numerator with "^n" as typed, or "~r" for a root
    std::string denText;       // letters of the denominator with "^n"
    std::string fractionText;  // the token "a/b" when the number was written as a fraction
    std::string lead;          // the token that opened the term: "+", "-" or "*"

private:
    static BoundedArray<float, lastVarSlot> firstExponents() {
        BoundedArray<float, lastVarSlot> exponents;
        for (int slot = 0; slot <= 2; ++slot) exponents[slot] = 1.0F;
        return exponents;
    }
};

// A parenthesised or bar group and the factor directly in front of it.
//   e.g. 3x/2(x+1)^2   prefixNumerator 3, prefixText "x", prefixDenominator 2, power 2
struct ExprGroup {
    float prefixCoef = 1.0F;       // signed number in front of the group; -1 for -(x+1)
    Int16 prefixStart = 1;         // slot of the sign or "*" that opens the factor in front
    Int16 openIndex;               // slot of "(" or "|"; of depth 0 the slot before the side's first token
    Int16 closeIndex;              // slot of ")" or "|"; of depth 0 the "=" or TokenLast
    Int16 powerIndex;              // slot behind the group's exponent
    float prefixExp = 1.0F;        // exponent of the factor in front
    float power = 1.0F;            // exponent behind the closing token
    Int16 nextGroup = -1;          // the group that follows with nothing between, as in (a)(b)
    bool isAbsolute = false;       // the group stands between bars
    bool inDenominator = false;    // a "/" directly before a "(" was met in this group
    bool hasFractionBar = false;   // a "/" directly behind this group was met
    float prefixNumerator = 1.0F;  // of the term in front of the group, signed
    float prefixDenominator = 1.0F;
    std::string prefixText;     // its letters above the bar
    std::string prefixDenText;  // and below
};

// The groups of one depth.
struct GroupLevel : SlotArray<ExprGroup, lastTableGroup> {
    Int16 lastGroup;  // the last one in use
};

using TermRow = SlotArray<ExprTerm, lastTerm>;        // the terms of a group
using TermLevel = SlotArray<TermRow, lastTermGroup>;  // the groups of a depth
using TermSide = SlotArray<TermLevel, lastDepth>;     // the depths of a side

struct ExprStore {
    BoundedArray<GroupLevel, lastDepth> GroupTable;
    BoundedArray<TermSide, lastSide> TermTable;
    // By depth and group: the number of terms, which is the index of the last one.
    BoundedArray<BoundedArray<Int16, 50>, 50> TermLast;
    // By depth and group: a "*" was read in the group.
    BoundedArray<BoundedArray<bool, 100>, 100> GroupProduct;

    Int16 MaxDepth;  // the deepest depth that the last parse reached
    Int16 CurrentSide;
    Int16 CurrentDepth;  // where the parse stands or ended
    Int16 CurrentGroup;

    // The tokens and the side that the last parse has read. Forgotten by a reset, so by a parse that
    // faults, and not remembered by one that leaves the store past its tables.
    KnownText StoreSource;
    // The texts that CommitStep has merged and parsed into just this store: as a rule wrote it, and as
    // the commit left it. Forgotten with StoreSource.
    std::array<KnownText, 2> CommitSources;
};

// A depth whose lastGroup is above 45: the reset before the next parse is fault 9.
[[nodiscard]] bool isPastTheTables();

// Empties groups, counts and StoreSource, and the terms of CurrentSide. Shallow at the start of each parse: then
// a store past its tables is fault 9, raised when all is empty, so that the next problem finds a
// clean store. Deep at the reset of a problem, and never faults.
void ResetStore(bool deep);

}  // namespace ordwise
