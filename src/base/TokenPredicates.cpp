#include "TokenPredicates.hpp"

namespace ordwise {

bool IsFractionToken(std::string_view s) {
    if (IsOperator(s)) return false;
    for (std::size_t i = 1; i < s.size(); ++i) {
        if (s[i] == '/' && s[i - 1] >= '0' && s[i - 1] <= '9') return true;
    }
    return false;
}

}  // namespace ordwise
