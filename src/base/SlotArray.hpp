// A long array of which a problem uses a short beginning, such as the 2001 token slots.
//
// It behaves as an array of empty values with fixed bounds, yet clearing and copying cost what was
// used: the slots are made up to the highest one ever asked for, and a read beyond them answers
// with an empty value. A subscript outside the bounds is fault 9, used or not.
//
// Clearing keeps the slots and their memory for the next text; what is in them is emptied when a
// slot is made again. So an array that is cleared and filled a thousand times allocates a few times.
#pragma once

#include "Fault.hpp"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace ordwise {

template <class T, int Last>
class SlotArray {
public:
    static constexpr int last = Last;

    SlotArray() = default;
    ~SlotArray() = default;
    SlotArray(const SlotArray& other) : slots_(other.slots_.begin(), other.end()), used_(other.used_) {}
    SlotArray(SlotArray&& other) noexcept : slots_(std::move(other.slots_)), used_(std::exchange(other.used_, 0)) {}
    SlotArray& operator=(const SlotArray& other) {
        if (this == &other) return *this;
        if (slots_.size() < other.used_) slots_.resize(other.used_);
        std::copy(other.slots_.begin(), other.end(), slots_.begin());
        used_ = other.used_;
        return *this;
    }
    SlotArray& operator=(SlotArray&& other) noexcept {
        slots_ = std::move(other.slots_);
        used_ = std::exchange(other.used_, 0);
        return *this;
    }

    // For writing: makes the slot. A reference holds until the next write to a higher slot.
    [[nodiscard]] T& slot(int index) {
        const std::size_t place = checked(index);
        if (place >= used_) makeUpTo(place + 1);
        return slots_[place];
    }

    // For reading: never makes a slot.
    [[nodiscard]] const T& operator[](int index) const {
        const std::size_t place = checked(index);
        return place < used_ ? slots_[place] : empty();
    }

    // For reading: the slots from `first` to `to`, both included, as far as they were made; bounds are
    // checked as for a loop over them.
    [[nodiscard]] std::span<const T> slots(int first, int to) const {
        if (to < first) return {};
        const std::size_t begin = std::min(checked(first), used_);
        return {slots_.data() + begin, std::min(checked(to) + 1, used_) - begin};
    }

    void set(int index, T value) { slot(index) = std::move(value); }

    // All slots become empty.
    void clear() noexcept { used_ = 0; }

    // Slots from `first` to `to`, both included, become empty; bounds are checked as for a loop
    // over them.
    void clear(int first, int to) {
        if (to < first) return;
        const std::size_t begin = checked(first);
        const std::size_t end = checked(to) + 1;
        for (std::size_t i = begin; i < end && i < used_; ++i) makeEmpty(slots_[i]);
    }

    // The same slots made, with equal values in them.
    [[nodiscard]] friend bool operator==(const SlotArray& a, const SlotArray& b) {
        return a.used_ == b.used_ && std::equal(a.slots_.begin(), a.end(), b.slots_.begin(), isEqual);
    }

    // One past the highest slot that was ever written since the last clear(); all beyond is empty.
    [[nodiscard]] int used() const noexcept { return static_cast<int>(used_); }

private:
    static std::size_t checked(int index) {
        if (index < 0 || index > Last) raise(FaultNumber::Subscript);
        return static_cast<std::size_t>(index);
    }
    auto end() const { return slots_.begin() + used(); }
    // Most texts in an array are one character long, which needs no call.
    static bool isEqual(const T& a, const T& b) {
        if constexpr (requires { a.size() == 1 && a[0] == b[0]; }) {
            if (a.size() == 1) return b.size() == 1 && a[0] == b[0];
        }
        return a == b;
    }
    static const T& empty() {
        static const T value{};
        return value;
    }
    // Texts and arrays keep their memory; a record becomes a fresh one.
    static void makeEmpty(T& slot) {
        if constexpr (requires { slot.clear(); }) {
            slot.clear();
        } else {
            slot = T{};
        }
    }
    void makeUpTo(std::size_t count) {
        const std::size_t kept = std::min(count, slots_.size());
        for (; used_ < kept; ++used_) makeEmpty(slots_[used_]);
        if (count > slots_.size()) slots_.resize(count);
        used_ = count;
    }

    std::vector<T> slots_;  // those from used_ on hold what a clear() has left behind
    std::size_t used_ = 0;
};

}  // namespace ordwise
