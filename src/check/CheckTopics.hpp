// Which topics can be worked line by line, and how their lines are compared.
#pragma once

namespace ordwise {

enum class LineKind {
    Expression,  // every line is worth the same
    Equation,    // every line has the same solutions
    Evaluation,  // numbers are put in for letters, one letter after the other
    Answer,      // a scripted topic: the answer alone is looked at
    Drawing,     // answered by a drawing; there is no line
};

// The form in which the work is done.
enum class EndForm { Number, Roots, PrimePowers, Primes, Polynomial, Solved, Answer };

struct CheckTopic {
    int type;
    LineKind kind;
    EndForm end;
};

// e.g. 101 -> Equation, Solved
[[nodiscard]] CheckTopic checkTopicOf(int type);

}  // namespace ordwise
