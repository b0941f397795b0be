// Turns flat text into markup: what the student types ("3/4+x^2") and what the engine writes into
// its tokens both become the line that is drawn ("#3/4#+x^2^"). It supplies every closing mark that
// nobody types.
//
// A cell is one string: a number, a numeric fraction, a letter, a sign. In CanonTokens the cells
// stand in slots 4, 8, 12 and so on; the marks stand in the three gap slots between them:
//
//     slot  1   2   3  [4]  5   6   7  [8]  ...
//           ^   #   ~  cell ^   #   ~  cell
//
// An opening "#" stands in the second gap slot before its cell. Behind a cell the exponent closes
// in the first gap slot, then the inner one of fraction and root, then the outer one. Whoever reads
// only every fourth slot sees the text without marks.
#pragma once

#include <string>

namespace ordwise {

// InputTokens to cells in CanonTokens, from slot 1; CanonLast becomes their number.
// e.g. "1","2","/","5","+","x" -> "12/5", "+", "x"
void GroupInput();

// What a rewrite has learned about the text, besides its marks.
struct RewriteFacts {
    int cells = 0;            // they stand in CanonIn, at every fourth slot from 4 on
    int openParentheses = 0;  // below 0 when more were closed than opened
    int commas = 0;
};

// The cells of CanonTokens, from slot 1, to cells and marks in CanonTokens, from slot 4. CanonLast
// becomes the slot one cell behind the last one. Fault 9 for more than 499 cells.
RewriteFacts rewriteCells();
// The same for cells that stand in CanonIn already, at every fourth slot from 4 on.
RewriteFacts rewriteSpaced(int cells);

// rewriteCells for the paper: it decides whether Solve is enabled as well.
void RewritePass();

// The markup of what was typed, after GroupInput. e.g. cells "3/4", "+", "x" -> "#3/4#+x"
[[nodiscard]] std::string RewriteAll();

// The markup of the engine's text in TokenBuffer; it leaves the cells in CanonTokens. What the
// engine needs and a student does not write is left out: a leading "+", a 1 before a letter, an
// exponent 1. e.g. "+","1","x","^","2","+","3" -> "x^2^+3"
// A text whose line is still in CanonTokens is not written again. The reference holds until the next
// call.
[[nodiscard]] const std::string& CanonicalLine();

}  // namespace ordwise
