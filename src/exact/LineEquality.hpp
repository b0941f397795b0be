// Whether one line says the same as another, decided exactly or not at all.
#pragma once

#include "RoundedValues.hpp"

namespace ordwise::exact {

enum class Relation {
    Same,       // equal in value for all letters; the same solutions
    Rounded,    // the same but for rounding as the setting says
    Different,  // not the same, and of equations neither of the next two
    Fewer,      // the second equation has some solutions of the first, and no others
    More,       // the second equation has the solutions of the first, and others
    NoValue,    // the second line has no value
    Unknown,
};

// What proves that two lines differ: values of the letters, and what the lines are there.
struct Evidence {
    std::map<char, std::string> at;
    std::string before;  // of an expression: its value; of an equation empty
    std::string line;
    bool beforeHolds = false;  // of an equation: whether the values solve it
    bool lineHolds = false;

    bool operator==(const Evidence&) const = default;
};

struct Comparison {
    Relation relation = Relation::Unknown;
    std::string because;  // of Unknown: the end of a sentence. e.g. "there is a letter under a root"
    std::optional<Evidence> evidence;
};

// Two lines without "=".
[[nodiscard]] Comparison compareExpressions(const Tree& before, const Tree& line, const Rounding& rounding);
// Two equations.
[[nodiscard]] Comparison compareEquations(const SidesTree& before, const SidesTree& line, const Rounding& rounding);

// The exact answer alone, which is what most callers want. Nothing where it is not decided or a line
// has no value.
[[nodiscard]] std::optional<bool> areEqual(const Tree& a, const Tree& b);
// The value of a tree without letters.
[[nodiscard]] std::optional<RootSum> numberOf(const Tree& tree);

// The solutions of an equation in one letter, if they are all rational numbers or there are none. An
// equation that every number solves has nothing.
[[nodiscard]] std::optional<std::vector<Rational>> rationalSolutions(const SidesTree& equation);

}  // namespace ordwise::exact
