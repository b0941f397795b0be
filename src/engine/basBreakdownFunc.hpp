// From text to tokens to the store: the language that all rules of the engine read and write.
//
// The TokenBuffer holds the expression, one token a slot:
//
//   12  2.5  3.5E+12   a number                    +  -       a sign; every parsed term has one
//   3/4                a numeric fraction          *          a product, opens a term
//   5~18  ~8           coefficient and root        /          a bar: what follows goes below it
//   x                  a letter                    ^          the next token, or "-" and the one
//   (  )  |            groups                                 behind it, is the exponent
//   [  ]               highlight, no meaning       =          between the sides
//
// There is no closing mark of an exponent, a root or a fraction; those exist on paper only.
// After NormaliseSigns slot 0 is empty and the text begins at slot 1.
//
// A typed problem enters by CanonToTokens and NormaliseSigns; a rule writes a new text with
// ExplodeTokens; CommitStep merges and parses. After an ExplodeTokens the tokens are single
// characters from slot 0 on, and the store is stale until the next commit.
#pragma once

#include "ExprStore.hpp"
#include "TokenPredicates.hpp"

#include <string>
#include <string_view>

namespace ordwise {

// --- tokens: basBreakdownFunc_tokens.cpp

// The slot of the first "=", TokenLast without one. e.g. x=3 in slots 1 to 3 -> 2
[[nodiscard]] int FindEquals();
// The slot of a letter in VarNames, 0 if it is not there. e.g. "y" of "x+y" -> 2
[[nodiscard]] int FindVariable(std::string_view letter);
// Fills VarNames from slot 1 with the distinct letters of InputTokens, and VarCount.
void CollectVariables();

// The text into the TokenBuffer, a character a slot from slot 0, blanks left out. TokenLast becomes
// its length and 1. A text that outgrows TokenLast + 100 is cut there and TokenLast stays.
void ExplodeTokens(std::string_view text);
// The text of the TokenBuffer, up to TokenLast and a margin. e.g. "+2x=+4"
[[nodiscard]] std::string ImplodeTokens();
// Some token of that text has the character in it. e.g. '/' -> true for +3/4+x
[[nodiscard]] bool tokensHold(char c);
// The text of ImplodeTokens is this one; without making it.
[[nodiscard]] bool tokensSpell(std::string_view text);
// The same of all of InputTokens, and of CanonTokens up to CanonLast.
[[nodiscard]] std::string ImplodeInput();
[[nodiscard]] std::string ImplodeCanon();
// The tokens of slots `first` to `last` joined; none when last is below first. e.g. 1, 3 -> "+2x"
[[nodiscard]] std::string tokensText(int first, int last);
// TokenLast becomes the first empty slot from 1 on, if there is one up to it.
void TrimTokenLast();

// Joins digits, points, bars between numbers, roots and E notation into number tokens.
// e.g. 3 / 4 + 1 2 -> 3/4 + 12; the bar of 3/4x, 3/x and (a+1)/2 stays a token
void MergeNumbers();
// Gives every term a sign and moves the text to slot 1. e.g. x=3 -> "" + x = + 3; drops the star
// of 3*(x).
void NormaliseSigns();
// Fault 11 for a typed division by zero. e.g. CanonTokens of 3/4-x -> + 3/4 - x, PlainSum false
void CanonToTokens();

// E notation worked out; the sign behind the "E" is not read. e.g. "2E+3" -> "2000", "7" -> "7"
[[nodiscard]] std::string ExpandExponential(const std::string& token);
// The value of a token a/b; anything else, and a zero denominator, unchanged. e.g. "3/4" -> "0.75"
[[nodiscard]] std::string FractionToDecimal(const std::string& token, bool rounded);
// A string of "0" and "1" as a binary number, the leftmost highest. e.g. "00000000000101" -> 5
[[nodiscard]] Int16 MaskValue(std::string_view digits);

// --- store: basBreakdownFunc_store.cpp

// The records of the side in use, for reading. e.g. termOf(ws.MaxDepth, group, 1).numText
[[nodiscard]] const ExprTerm& termOf(int depth, int group, int term);
[[nodiscard]] const ExprGroup& groupOf(int depth, int group);
// The tokens strictly inside a group. e.g. 3(x+1) -> "+x+1"
[[nodiscard]] std::string groupText(int depth, int group);
// The tokens in front of a group's terms, "" when there are none, and those behind them. The
// opening and the closing token are with them. e.g. 3(x+1)=2 -> "+3(" and ")=+2"
[[nodiscard]] std::string textBefore(const ExprGroup& group);
[[nodiscard]] std::string textFrom(const ExprGroup& group);

// --- parser: basBreakdownFunc_parser.cpp

// Reads the TokenBuffer for CurrentSide into the store. Unbalanced text and text beyond the tables
// is fault 9. e.g. +x/2 -> term 1: numText "x", denominator 2, quotient 0.5
void ParseExpression();
// Both sides as signed fractions, for the graph. Leaves CurrentSide at 1.
// e.g. y=2x-1 -> "+1/1y=+2/1x-1/1"
[[nodiscard]] std::string EquationText();

}  // namespace ordwise
