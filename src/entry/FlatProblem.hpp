// A problem, or a line of a solution, as a text: flat, as a student types it, or as the paper draws it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

struct ProblemKey {
    int at;           // index of the character in the text, from 0
    std::string key;  // what is typed for it
};

// The keys that type `problem`. Blanks, "#" and the closing marks of exponents and roots are no
// keys, and the drawn division sign is typed as "/". e.g. "#3/4#+x^2^" -> 3 / 4 + x ^ 2
//
// A second "^" or "~" closes only where the drawn form can have it: behind the digits of an
// exponent or the content of a root, and not before something that would go on with it. Any other
// is a key and meets the check.
[[nodiscard]] std::vector<ProblemKey> keysOf(std::string_view problem);

}  // namespace ordwise
