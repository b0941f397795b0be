// An answer as plain text, read as a teacher would: a name and "=" may stand before it, a unit behind.
#pragma once

#include "ExactNumber.hpp"

#include <optional>
#include <string>
#include <vector>

namespace ordwise {

enum class NumberForm { Decimal, Fraction, Mixed, Scientific };

struct AnswerNumber {
    exact::Rational value = 0;
    NumberForm form = NumberForm::Decimal;
    bool lowest = true;    // of a fraction: in lowest terms, and no whole number over 1
    bool proper = true;    // of a mixed number: its fraction is below 1
    bool oneDigit = true;  // of scientific notation: one digit before the point
    std::string word;      // what stands behind it in small letters. e.g. "oz", "%"
};

// Nothing where the text holds no number in one of these forms. A thousands comma may stand in it.
// e.g. "Volume = 12.57" -> 12.57; "28 g = 0.99 oz" -> 0.99 with "oz"; "1 4/8", "1 #4/8#" -> 3/2, mixed
[[nodiscard]] std::optional<AnswerNumber> readAnswerNumber(const std::string& text);

// The numbers of a list, in order of size; nothing where something else stands in it.
// e.g. "1, 2 and 3" -> 1, 2, 3
[[nodiscard]] std::optional<std::vector<exact::Rational>> readAnswerList(const std::string& text);

// The words of a text in small letters, marks left out. e.g. "Quadrant I." -> "quadrant", "i"
[[nodiscard]] std::vector<std::string> answerWords(const std::string& text);

// The plain name of a unit, "" for a word that is none. e.g. "lbs", "pounds" -> "lb"
[[nodiscard]] std::string unitOf(const std::string& word);

}  // namespace ordwise
