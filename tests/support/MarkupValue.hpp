// What a line of markup is worth, read by the tests' own reader.
//
// It shares no code with the program: it reads the line as a person does, so that "every line is
// equal to the line before" means something. Letters take the values that a test gives them; "[" and
// "]" are colour and are passed over; "{" divides; a number, letter, root, bar or parenthesis behind
// another factor multiplies.
#pragma once

#include "ExactValue.hpp"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise::test {

using Bindings = std::map<char, ExactValue>;

// True when every construct of the line is closed, every fraction has a bar and two halves that are
// not empty, no raised text is empty, and no half, radicand or line is longer than can be drawn.
// Else `why` says what is wrong. Holds for sentences as well as for mathematics.
// e.g. "x^2" -> false, "a raised text is left open"
[[nodiscard]] bool wellFormed(std::string_view line, std::string* why = nullptr);

// The value of a line without "=". Nothing when it cannot be read as mathematics or holds a letter
// without a value; an undefined value when it divides by zero.
// e.g. "#1/2#+3" -> 7/2, "[#1/2#]*#3/3#" -> 1/2, "2~3~" -> 2*sqrt(3)
[[nodiscard]] std::optional<ExactValue> valueOfMarkup(std::string_view line, const Bindings& bindings = {});

// The letters of a line, each once, in alphabetical order. e.g. "4xy+9x" -> "xy"
[[nodiscard]] std::string lettersOf(std::string_view line);

// True when both lines can be read and have the same value for all letters (tried at several
// rational points, at least two of which must be defined for both).
// e.g. "3(x+2)" and "3x+6"
[[nodiscard]] bool sameExpression(std::string_view a, std::string_view b, long double tolerance = 0);

// The solutions of a linear equation: a*x + b*y + ... + c = 0 with the first coefficient that is not 0
// made 1. Without letters it is true ("0=0": everything) or false ("1=2", and "1$2", the line that
// says so: nothing).
struct SolutionSet {
    enum class Kind { Everything, Nothing, Line } kind = Kind::Everything;
    std::map<char, ExactValue> coefficients;  // without the zeros
    ExactValue constant;
};

// Nothing when the line is no equation of sums that are linear in their letters.
// e.g. "2x+3=7" and "x=2" have the same one
[[nodiscard]] std::optional<SolutionSet> solutionSetOf(std::string_view line);
[[nodiscard]] bool same(const SolutionSet& a, const SolutionSet& b, long double tolerance = 0);
[[nodiscard]] bool sameEquation(std::string_view a, std::string_view b, long double tolerance = 0);

}  // namespace ordwise::test
