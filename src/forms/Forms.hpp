// The forms in which a line or a note can be taken elsewhere, by name. A new one is a file and a row.
#pragma once

#include "MarkupReader.hpp"

#include <array>
#include <string>
#include <string_view>

namespace ordwise {

struct Form {
    std::string_view name;
    std::string (*ofLine)(std::string_view markup, Letters letters);
    std::string (*ofNote)(std::string_view note, Letters letters);
};

// latex, mathml, spoken, plain
extern const std::array<Form, 4> forms;

// The form of this name; nothing for a name that there is not.
[[nodiscard]] const Form* findForm(std::string_view name);

}  // namespace ordwise
