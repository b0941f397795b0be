// Mistakes by name. A rule makes, from a line that was right, the lines that a classic slip would make
// of it; a student's line that says the same as one of these is told the slip. A mistake is added by a
// row in Mistakes.cpp and its rule in Mistakes_rules.cpp.
#pragma once

#include "LineVerdict.hpp"
#include "Slip.hpp"

#include <vector>

namespace ordwise {

// The mistake that leads from the line before to this one; nothing where none is known. Expects a line
// that was judged not to follow.
[[nodiscard]] std::optional<Slip> recognisedSlip(const std::string& before, const std::string& line,
                                                 const LineRules& rules);

namespace slips {

using Trees = std::vector<exact::Tree>;
using Equations = std::vector<exact::SidesTree>;

// What a slip makes of one piece of a line; nothing where it does not apply. e.g. onlyFirstMultiplied of
// 2(x+3) -> 2x+3
Trees onlyFirstMultiplied(const exact::Tree& piece);
Trees minusNotCarried(const exact::Tree& piece);           // -(x+3) -> -x+3
Trees unlikeTermsAdded(const exact::Tree& piece);          // 3x+2 -> 5x
Trees exponentsAddedInSum(const exact::Tree& piece);       // 2x^2^+3x^2^ -> 5x^4^
Trees fractionsAddedAcross(const exact::Tree& piece);      // #1/2#+#1/3# -> #2/5#
Trees onlyNumeratorConverted(const exact::Tree& piece);    // #1/2#+#1/3# -> #3/2#+#2/3#
Trees onlyDenominatorConverted(const exact::Tree& piece);  // #1/2#+#1/3# -> #1/6#+#1/6#
Trees cancelledAcrossSum(const exact::Tree& piece);        // #(x+6)/3# -> x+2
Trees powerOfSumSplit(const exact::Tree& piece);           // (x+3)^2^ -> x^2^+3^2^
Trees exponentsMultiplied(const exact::Tree& piece);       // 2^3^*2^2^ -> 2^6^
Trees exponentsAdded(const exact::Tree& piece);            // (x^2^)^3^ -> x^5^
Trees negativeExponentAsNumber(const exact::Tree& piece);  // 2^-3^ -> -2^3^
Trees baseTimesExponent(const exact::Tree& piece);         // 2^3^ -> 2*3
Trees leftToRight(const exact::Tree& piece);               // 2+3*4 -> (2+3)*4
Trees rootOfSumSplit(const exact::Tree& piece);            // ~(9+16)~ -> ~9~+~16~
Trees rootsJoined(const exact::Tree& piece);               // ~9~+~16~ -> ~(9+16)~
Trees barsDropped(const exact::Tree& piece);               // |-5| -> -5

// The same for an equation as a whole.
Equations signKeptWhenMoved(const exact::SidesTree& line);     // x+3=7 -> x=7+3
Equations movedOnOneSideOnly(const exact::SidesTree& line);    // x+3=7 -> x=7
Equations onlyOneSideDivided(const exact::SidesTree& line);    // 2x=8 -> x=8
Equations dividedByNegative(const exact::SidesTree& line);     // 2x=8 -> x=-4
Equations dividedByWrongNumber(const exact::SidesTree& line);  // 2x=8 -> x=16, x=6 or x=#1/4#

// Whether a number in it is 1 or 10 from what it should be. e.g. 2+12 against 15
[[nodiscard]] bool isNearMiss(const exact::Tree& before, const exact::Tree& line);

}  // namespace slips

}  // namespace ordwise
