// What a question bank takes as the right answer to a problem.
#pragma once

#include "Documents.hpp"

#include <string>
#include <vector>

namespace ordwise {

enum class BankAnswer {
    Number,  // any way of writing it counts
    Text,    // one of the spellings
    Essay,   // a drawing, which nobody but a teacher can look at
};

struct AnswerSpellings {
    BankAnswer kind = BankAnswer::Text;
    std::vector<std::string> spellings;  // the first is the one to be shown; of a number the only one
    std::string tolerance = "0";         // of a number: half of its last decimal place
};

// e.g. Volume = 84.82 -> number 84.82 within 0.005
//      x=#3/4#        -> "3/4", "0.75", "#3/4#", each also with "x=" and "x = "
//      3^2^*5         -> "3^2*5", "3^2 * 5", "3^2^*5"
[[nodiscard]] AnswerSpellings spellingsOf(const DocumentProblem& problem);

}  // namespace ordwise
