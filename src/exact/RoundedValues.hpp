// What a line can be worth to someone who rounds as he goes.
#pragma once

#include "TreeValue.hpp"

namespace ordwise::exact {

// How results are rounded: in decimals mode every result may be rounded to so many places; a result
// of more digits than a single carries may be what the single prints, in either mode.
struct Rounding {
    bool decimals = false;
    int places = 2;

    bool operator==(const Rounding&) const = default;
};

// The values that the tree can have when some results on the way are rounded and some are not, the
// exact one first; a few dozen at most. A coefficient that is no rational number is never rounded.
// e.g. #1/3#+#1/3# to two places -> 2/3, 0.67, 0.33+1/3, 0.66
[[nodiscard]] std::vector<Quotient> roundedValues(const Tree& tree, const Rounding& rounding, const Letters& letters,
                                                  Effort& effort);

// Whether `written` is `exact`, or what it is rounded to: coefficient by coefficient.
[[nodiscard]] bool isRounded(const Quotient& exact, const Quotient& written, const Rounding& rounding, Effort& effort);

}  // namespace ordwise::exact
