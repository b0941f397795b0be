// What the desktop can tell of the machine, for someone who asks for help.
#pragma once

#include "Platform.hpp"

namespace ordwise {

class QtSystemReport : public SystemReport {
public:
    [[nodiscard]] std::string text() const override;
};

}  // namespace ordwise
