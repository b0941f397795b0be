// The texts of terms: in the token text that rules write and in the markup of their notes.
//
// Letters are numText or denText without "^1". Numbers are taken as they are written, not as a
// single holds them: a fraction of eight digits stays what it is.
#pragma once

#include "ExprStore.hpp"

#include <string>

namespace ordwise {

[[nodiscard]] std::string lettersOf(const ExprTerm& term);     // e.g. "x^2" of 3x^2/4
[[nodiscard]] std::string lettersBelow(const ExprTerm& term);  // e.g. "x" of 3/x
// e.g. the term 2^3, whose letters are "^3"
[[nodiscard]] bool isConstantPower(const ExprTerm& term);

// The numbers of a term as written, without its sign. e.g. -4/6 -> "4", "6"; 2.5x -> "2.5", "1"
struct WrittenNumbers {
    std::string above;
    std::string below;
};
[[nodiscard]] WrittenNumbers numbersOf(const ExprTerm& term);
// The same as values, the first with the sign. e.g. -4/6 -> -4, 6
struct TermNumbers {
    double above;
    double below;
};
[[nodiscard]] TermNumbers valuesOf(const ExprTerm& term);
// The first with its sign as text. e.g. -4/6 -> "-4"
[[nodiscard]] std::string signedAbove(const ExprTerm& term);

// A number and its letters, a 1 in front of letters not written.
// e.g. "1", "x" -> "x"; "-1", "x" -> "-x"; "2", "^3" -> "2^3"
[[nodiscard]] std::string withLetters(const std::string& number, const std::string& letters);
// A term as it stands in token text. e.g. "-3x^2/4", "+1/2", "*5"
[[nodiscard]] std::string termAsWritten(const ExprTerm& term);

// The size of a term's number in simplest form by the settings: a fraction reduced on its digits,
// or a rounded decimal. e.g. 4/6 -> "2/3", 2.5/3 -> "5/6"; in decimals 1/2 -> "0.5"
[[nodiscard]] std::string simplestText(const ExprTerm& term);

// A term as a note names it. e.g. 2, 1, "x" -> "2x"; 1, 3, "x" -> "#x/3#"
[[nodiscard]] std::string namedTerm(double num, double den, const std::string& letters, const std::string& below);

}  // namespace ordwise
