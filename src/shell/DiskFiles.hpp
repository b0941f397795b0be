// The files of the disk, for both front ends, and where a user's files lie.
#pragma once

#include "Platform.hpp"

#include <functional>

namespace ordwise {

// A file is written beside its place under another name, brought to the disk and then renamed over
// the old one. A full disk or a kill on the way leaves the old file whole.
class DiskFiles : public Files {
public:
    // Larger files are none of ours.
    static constexpr std::size_t largest = 1U << 20U;

    [[nodiscard]] std::optional<std::string> read(const std::string& path) override;
    [[nodiscard]] std::string write(const std::string& path, std::string_view bytes) override;
    bool createDirectory(const std::string& path) override;
};

// The value of a variable of the environment, "" for one that is not set.
using Environment = std::function<std::string(const char* name)>;
[[nodiscard]] std::string environmentValue(const char* name);

// The user's folders after the XDG base directory convention: settings below XDG_CONFIG_HOME, saved
// problems below XDG_DATA_HOME, what the program remembers by itself below XDG_STATE_HOME, in the home
// directory's .config, .local/share and .local/state where these are not set. Without any home there
// is no place for them.
// e.g. HOME=/home/ann -> /home/ann/.config/ordwise/settings.ini
[[nodiscard]] UserFolders userFolders(const Environment& environment);

}  // namespace ordwise
