// The forms that a request asks for beside each line.
#pragma once

#include "JsonText.hpp"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace ordwise {

class WantedForms {
public:
    WantedForms() = default;
    // By name; throws BadRequest for a name that there is not. "latex,spoken" counts as two names.
    explicit WantedForms(const std::vector<std::string>& names);

    // Adds "forms" of a line, and "noteForms" of its note where there is one, to the object that is
    // being written; nothing where no form is wanted.
    void write(JsonText& answer, int problemType, std::string_view line, std::string_view note) const;

private:
    std::array<bool, 4> wanted_{};  // in the order of `forms`
};

}  // namespace ordwise
