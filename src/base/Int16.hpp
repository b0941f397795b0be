// A 16-bit signed integer that faults when it runs over: every counter and index of the Workspace.
//
// It reads as a plain int, so arithmetic between counters is done in int and is checked when the
// result is stored: `StepCount = StepCount + 1` at 32767 is the overflow fault.
#pragma once

#include "Fault.hpp"

#include <cstdint>

namespace ordwise {

class Int16 {
public:
    constexpr Int16() noexcept = default;
    // Implicit on purpose: assigning an int is the place of the check.
    constexpr Int16(int value) : value_(checked(value)) {}

    constexpr operator int() const noexcept { return value_; }

    constexpr Int16& operator+=(int other) { return *this = Int16(value_ + other); }
    constexpr Int16& operator-=(int other) { return *this = Int16(value_ - other); }
    constexpr Int16& operator++() { return *this += 1; }
    constexpr Int16& operator--() { return *this -= 1; }
    constexpr int operator++(int) {
        const int before = value_;
        *this += 1;
        return before;
    }
    constexpr int operator--(int) {
        const int before = value_;
        *this -= 1;
        return before;
    }

private:
    static constexpr std::int16_t checked(int value) {
        if (value < INT16_MIN || value > INT16_MAX) raise(FaultNumber::Overflow);
        return static_cast<std::int16_t>(value);
    }

    std::int16_t value_ = 0;
};

}  // namespace ordwise
