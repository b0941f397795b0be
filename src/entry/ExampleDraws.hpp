// How a problem of each topic is drawn, for GenerateExample.
//
//   ExampleDraws_boxes.cpp    topics of boxes: six numbers, and the line that a test prints of them
//   ExampleDraws_numbers.cpp  topics of the paper whose problem is a form filled with numbers
//   ExampleDraws_typing.cpp   expressions and equations, typed operand by operand
//
// Numbers are made of the digits of RandInt and so hold no 0: one digit, at the complex level two,
// unless a topic needs more for a problem that is worth solving.
#pragma once

#include "Examples.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace ordwise {

// What is asked of a draw. `favoured` asks for the kind of problem that shows most where a topic has
// two: a list with a mode, a mean that is a whole number, a composite number.
struct ExampleWish {
    int type;
    bool complex;
    bool favoured;
};

// Boxes, lists and line of a topic of boxes.
[[nodiscard]] Example drawBoxes(const ExampleWish& wish);

// The keys of a number topic; none if the topic is none. Rounding also selects in Combo3.
// e.g. 75 -> "17/5"
[[nodiscard]] std::optional<Example> drawNumbers(const ExampleWish& wish);

// A topic whose problems are typed operand by operand and follow no form. e.g. 101
[[nodiscard]] bool isExpressionTopic(int type);

// Types an expression or equation on an empty paper, without drawing it: the keys are then in
// InputTokens. False if it is not worth solving, such as x+2=x+5, and wants to be drawn anew on an
// empty paper. Expects an expression topic.
[[nodiscard]] bool typeExpression(const ExampleWish& wish);

// A number of so many digits 1 to 9. e.g. 2 -> "47"
[[nodiscard]] std::string drawDigits(int count);
// True with the chance `part` of `whole`.
[[nodiscard]] bool drawChance(int part, int whole);
// Keys through the filter of guided typing, undrawn. False if any was refused.
bool typeQuietly(std::string_view keys);

}  // namespace ordwise
