#include "Mistakes.hpp"

namespace ordwise {

std::optional<Slip> recognisedSlip(const std::string&, const std::string&, const LineRules&) {
    return std::nullopt;
}

}  // namespace ordwise
