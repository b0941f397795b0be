// The files of the disk, for both front ends, and where a user's files lie.
#pragma once

#include "Platform.hpp"

#include <functional>

namespace ordwise {

// A file is written beside its place without a name, brought to the disk, and given its name only then,
// over that of the old one. A full disk or a kill on the way leaves the old file whole.
//
// Replaced are regular files that may be written, also through a link, and nothing else: no pipe, no
// device, not what a link leads to that leads nowhere.
class DiskFiles : public Files {
public:
    // With `unnamed` false files get a name from the beginning, as on a disk that knows none without.
    explicit DiskFiles(bool unnamed = true) : unnamed_(unnamed) {}

    // Larger files are none of ours.
    static constexpr std::size_t largest = 1U << 20U;

    [[nodiscard]] std::optional<std::string> read(const std::string& path) override;
    [[nodiscard]] std::string write(const std::string& path, std::string_view bytes) override;
    bool createDirectory(const std::string& path) override;

private:
    bool unnamed_;
};

// What a program does before all else, so that its files cannot hurt it: a file that outgrows a limit
// is a write that fails and no signal, and a standard stream that was closed beforehand fails where the
// next file to be opened would take its place.
void prepareProcess();

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
