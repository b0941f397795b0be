// The draws that make up problems and examples.
#pragma once

#include <cstdint>

namespace ordwise {

// Integers 1 to 9 and 2 to 9. Each call first mixes the minute and second of the clock into the
// generator, so that a program started at another time draws otherwise; draws within one second
// differ all the same, because the state goes on.
[[nodiscard]] int RandInt();
[[nodiscard]] int RandInt2to9();

// A draw from 0 to count - 1, without a look at the clock. count is above 0.
[[nodiscard]] int drawBelow(int count);

// From now on the draws follow from the seed alone and the clock is left out of them, so that a
// test or a teacher gets the same problems again.
void seedDraws(std::uint64_t seed);
// Back to the draws of a freshly started program.
void unseedDraws();

// Seeded draws for a while: afterwards the draws go on where they were.
class SeededDraws {
public:
    explicit SeededDraws(std::uint64_t seed);
    SeededDraws(const SeededDraws&) = delete;
    SeededDraws& operator=(const SeededDraws&) = delete;
    ~SeededDraws();

private:
    std::uint64_t stateBefore_;
    bool seededBefore_;
};

}  // namespace ordwise
