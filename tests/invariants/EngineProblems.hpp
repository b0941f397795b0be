// Random problems of the topics that the engine solves, each legal key by key.
//
// They are school problems, made from a grammar of what the check lets through, mostly small and now
// and then as large and odd as it allows.
#pragma once

#include "Draws.hpp"
#include "Solving.hpp"

namespace ordwise::test {

[[nodiscard]] Problem arithmeticProblem(Draws& draws);           // e.g. 2+3*4-1/2
[[nodiscard]] Problem fractionProblem(Draws& draws);             // e.g. 1/2+1/3
[[nodiscard]] Problem exponentProblem(Draws& draws);             // e.g. 3^2+4
[[nodiscard]] Problem rootProblem(Draws& draws);                 // e.g. 3~4+2~9
[[nodiscard]] Problem exponentialNotationProblem(Draws& draws);  // e.g. 35*9*4^3
[[nodiscard]] Problem equationProblem(Draws& draws);             // e.g. 2x+3=7
[[nodiscard]] Problem polynomialProblem(Draws& draws);           // e.g. 3(x+2)-2(x-1)
[[nodiscard]] Problem evaluationProblem(Draws& draws);           // e.g. 4xy+9x, with answers
[[nodiscard]] Problem linearGraphProblem(Draws& draws);          // e.g. 2x+3y=6
[[nodiscard]] Problem absoluteValueProblem(Draws& draws);        // e.g. |-5|+3
[[nodiscard]] Problem complexArithmeticProblem(Draws& draws);    // e.g. (4-2)+3^2
[[nodiscard]] Problem negativeExponentProblem(Draws& draws);     // e.g. 9x^-2/6+8x^-2

// Keys at random, as someone leaning on the keyboard: what the check refuses is left out.
[[nodiscard]] Problem mashedProblem(Draws& draws, const std::string& topic, const std::string& keys);

}  // namespace ordwise::test
