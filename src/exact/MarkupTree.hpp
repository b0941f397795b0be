// A line of markup as a tree, read as a person reads it.
//
//     expression := ["+"|"-"] term { ("+"|"-") term }
//     term       := factor { ["*"|"{"|"/"] factor }
//     factor     := base { "^" whole "^" }
//     base       := number | letter | "(" expression ")" | "|" expression "|" | "~" expression "~"
//                 | "#" expression "/" expression "#"
//
// "[" and "]" are colour and are passed over, blanks too; a factor behind another one multiplies.
#pragma once

#include "ExactNumber.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ordwise::exact {

enum class Kind {
    Number,    // 2.5
    Letter,    // x
    Sum,       // children added
    Negated,   // one child
    Product,   // children multiplied
    Fraction,  // first over second, drawn with a bar
    Divided,   // first divided by second, written in a row
    Power,     // one child, to `exponent`
    Root,      // one child
    Bars,      // one child
    Group,     // one child in parentheses
};

struct Tree {
    Kind kind = Kind::Number;
    Rational number = 0;
    char letter = 0;
    int exponent = 1;
    std::vector<Tree> children;

    bool operator==(const Tree&) const = default;
};

// e.g. treeOf(Kind::Sum, {a, b})
[[nodiscard]] Tree treeOf(Kind kind, std::vector<Tree> children);
[[nodiscard]] Tree numberTree(const Rational& r);  // a negative one as Negated
[[nodiscard]] Tree powerTree(Tree base, int exponent);

// Nothing when the line cannot be read as it stands. e.g. "x+" or "(x"
[[nodiscard]] std::optional<Tree> readExpression(std::string_view markup);

// A line with one "=", or "$", the sign that says the sides differ.
struct SidesTree {
    Tree left;
    Tree right;
    bool denied = false;
};
[[nodiscard]] std::optional<SidesTree> readEquation(std::string_view markup);

// The line without colour and blanks.
[[nodiscard]] std::string bareMarkup(std::string_view markup);
// The letters of a line, each once, in alphabetical order. e.g. "4xy+9x" -> "xy"
[[nodiscard]] std::string lettersOf(std::string_view markup);
[[nodiscard]] std::string lettersIn(const Tree& tree);

// The child of a group, however many parentheses are around it.
[[nodiscard]] const Tree& ungrouped(const Tree& tree);

}  // namespace ordwise::exact
