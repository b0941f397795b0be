// The outside while answers are worked out for a key: nothing is shown and nobody is asked.
#pragma once

#include "Platform.hpp"

#include <map>
#include <string>

namespace ordwise {

// Stands in for the dialogs and windows of the platform as long as it lives. An input box, which asks
// for the value of a letter, is answered with the value that the letter has in the problem.
class SilentOutside : public Dialogs, public WindowOpener {
public:
    explicit SilentOutside(std::map<std::string, std::string> values);
    ~SilentOutside() override;
    SilentOutside(const SilentOutside&) = delete;
    SilentOutside& operator=(const SilentOutside&) = delete;

    MessageAnswer messageBox(std::string_view text, std::string_view caption, MessageButtons buttons) override;
    std::string inputBox(std::string_view prompt, std::string_view caption) override;
    void show(std::string_view name) override;
    void unload(std::string_view name) override;

private:
    std::map<std::string, std::string> values_;
    Platform before_;
};

}  // namespace ordwise
