// The outside while answers are worked out for a key: nothing is shown and nobody is asked.
#pragma once

#include "Platform.hpp"

#include <string>
#include <utility>
#include <vector>

namespace ordwise {

// Stands in for the dialogs and windows of the platform as long as it lives. An input box, which asks
// for the value of a letter, is answered with a digit 2 to 9.
class SilentOutside : public Dialogs, public WindowOpener {
public:
    SilentOutside();
    ~SilentOutside() override;
    SilentOutside(const SilentOutside&) = delete;
    SilentOutside& operator=(const SilentOutside&) = delete;

    std::vector<std::pair<std::string, std::string>> answered;  // caption of an input box, its answer

    MessageAnswer messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) override;
    std::string inputBox(std::string_view prompt, std::string_view caption) override;
    void show(std::string_view name) override;
    void unload(std::string_view name) override;

private:
    Platform before_;
};

}  // namespace ordwise
