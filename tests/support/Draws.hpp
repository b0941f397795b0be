// Random draws that are the same on every machine for the same seed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <random>
#include <string>

namespace ordwise::test {

// The seed of the random runs: ORDWISE_SEED in the environment, to hunt further, or always the same.
inline std::uint64_t seedOfRun() {
    const char* wish = std::getenv("ORDWISE_SEED");
    return wish != nullptr ? std::strtoull(wish, nullptr, 10) : 20260722;
}

class Draws {
public:
    explicit Draws(std::uint64_t seed) : engine_(seed) {}

    // 0 to n - 1. The slight favour that a remainder gives to small numbers does no harm here.
    int below(int n) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(n)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool chance(int percent) { return below(100) < percent; }

    template <class T>
    T oneOf(std::initializer_list<T> choices) {
        return *(choices.begin() + below(static_cast<int>(choices.size())));
    }
    char charOf(const std::string& choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }

    // A whole number as a student types it: mostly one digit, at most `most`, no zero in front.
    std::string number(int most = 3) {
        const int digits = chance(60) ? 1 : between(1, most);
        std::string text(1, charOf("123456789"));
        while (static_cast<int>(text.size()) < digits) text += charOf("0123456789");
        return text;
    }

private:
    std::mt19937_64 engine_;
};

}  // namespace ordwise::test
