// Fixed arrays whose bounds are part of the program's behaviour: a subscript outside is fault 9.
#pragma once

#include "Fault.hpp"

#include <array>
#include <cstddef>

namespace ordwise {

// Slots 0 to Last, both included. e.g. BoundedArray<std::string, 200> StepLines;
template <class T, int Last>
class BoundedArray {
public:
    static constexpr int last = Last;

    [[nodiscard]] T& operator[](int index) { return slots_[place(index)]; }
    [[nodiscard]] const T& operator[](int index) const { return slots_[place(index)]; }

    void fill(const T& value) { slots_.fill(value); }

    [[nodiscard]] auto begin() noexcept { return slots_.begin(); }
    [[nodiscard]] auto end() noexcept { return slots_.end(); }
    [[nodiscard]] auto begin() const noexcept { return slots_.begin(); }
    [[nodiscard]] auto end() const noexcept { return slots_.end(); }

private:
    [[nodiscard]] static constexpr std::size_t place(int index) {
        if (index < 0 || index > Last) raise(FaultNumber::Subscript);
        return static_cast<std::size_t>(index);
    }

    std::array<T, static_cast<std::size_t>(Last) + 1> slots_{};
};

}  // namespace ordwise
