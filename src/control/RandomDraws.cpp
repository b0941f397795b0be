#include "RandomDraws.hpp"

#include "Platform.hpp"

namespace ordwise {
namespace {

struct Draws {
    std::uint64_t state = 0;
    bool seeded = false;
};

Draws draws;

// SplitMix64 (Steele, Lea and Flood, "Fast splittable pseudorandom number generators", 2014).
std::uint64_t next() {
    draws.state += 0x9E3779B97F4A7C15U;
    std::uint64_t z = draws.state;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
}

void mixInTime() {
    if (draws.seeded || platform.clock == nullptr) return;
    draws.state ^= static_cast<std::uint64_t>(platform.clock->minuteAndSecond()) << 17U;
}

}  // namespace

int drawBelow(int count) {
    return static_cast<int>(next() % static_cast<std::uint64_t>(count));
}

int RandInt() {
    mixInTime();
    return drawBelow(9) + 1;
}

int RandInt2to9() {
    mixInTime();
    return drawBelow(8) + 2;
}

void seedDraws(std::uint64_t seed) {
    draws = Draws{seed, true};
}

void unseedDraws() {
    draws = Draws{};
}

SeededDraws::SeededDraws(std::uint64_t seed) : stateBefore_(draws.state), seededBefore_(draws.seeded) {
    seedDraws(seed);
}

SeededDraws::~SeededDraws() {
    draws = Draws{stateBefore_, seededBefore_};
}

}  // namespace ordwise
