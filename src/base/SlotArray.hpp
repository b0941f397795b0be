// A long array of which a problem uses a short beginning, such as the 2001 token slots.
//
// It behaves as an array of empty values with fixed bounds, yet clearing and copying cost what was
// used: the slots are made up to the highest one ever asked for, and a read beyond them answers
// with an empty value. A subscript outside the bounds is fault 9, used or not.
#pragma once

#include "Fault.hpp"

#include <cstddef>
#include <vector>

namespace ordwise {

template <class T, int Last>
class SlotArray {
public:
    static constexpr int last = Last;

    // For writing: makes the slot. A reference holds until the next write to a higher slot.
    [[nodiscard]] T& slot(int index) {
        const std::size_t place = checked(index);
        if (place >= slots_.size()) slots_.resize(place + 1);
        return slots_[place];
    }

    // For reading: never makes a slot.
    [[nodiscard]] const T& operator[](int index) const {
        const std::size_t place = checked(index);
        return place < slots_.size() ? slots_[place] : empty();
    }

    void set(int index, T value) { slot(index) = std::move(value); }

    // All slots become empty.
    void clear() noexcept { slots_.clear(); }

    // Slots from `first` to `to`, both included, become empty; bounds are checked as for a loop
    // over them.
    void clear(int first, int to) {
        if (to < first) return;
        const std::size_t begin = checked(first);
        const std::size_t end = checked(to) + 1;
        for (std::size_t i = begin; i < end && i < slots_.size(); ++i) slots_[i] = T{};
    }

    // One past the highest slot that was ever written since the last clear(); all beyond is empty.
    [[nodiscard]] int used() const noexcept { return static_cast<int>(slots_.size()); }

private:
    static std::size_t checked(int index) {
        if (index < 0 || index > Last) raise(FaultNumber::Subscript);
        return static_cast<std::size_t>(index);
    }
    static const T& empty() {
        static const T value{};
        return value;
    }

    std::vector<T> slots_;
};

}  // namespace ordwise
