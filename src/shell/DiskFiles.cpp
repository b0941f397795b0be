#include "DiskFiles.hpp"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ordwise {
namespace {

// Closes a file however its use ends.
class OpenFile {
public:
    explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { (void)close(); }

    [[nodiscard]] bool valid() const { return descriptor_ >= 0; }
    [[nodiscard]] int descriptor() const { return descriptor_; }
    // False if closing tells of an error, as a full network disk may only then.
    bool close() {
        if (descriptor_ < 0) return true;
        const bool closed = ::close(descriptor_) == 0;
        descriptor_ = -1;
        return closed;
    }

private:
    int descriptor_;
};

std::string sentence(const std::string& path, int error) {
    return "\"" + path + "\" could not be written: " + std::strerror(error) + ".";
}

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// The rights of the file that is replaced; a new file gets what the user's mask leaves.
mode_t modeFor(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return status.st_mode & 07777U;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

// A link is followed, so that what it points to is replaced and the link stays.
std::string placeOf(const std::string& path) {
    std::error_code trouble;
    const std::filesystem::path real = std::filesystem::canonical(path, trouble);
    return trouble ? path : real.string();
}

// A new name is lost with the power unless the directory has come to the disk, too.
void syncDirectoryOf(const std::string& path) {
    const std::string directory = std::filesystem::path(path).parent_path().string();
    const OpenFile opened(::open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.valid()) (void)::fsync(opened.descriptor());
}

}  // namespace

std::optional<std::string> DiskFiles::read(const std::string& path) {
    // Opening a pipe that nobody writes to would wait for ever.
    const OpenFile file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.valid() || ::fstat(file.descriptor(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::string bytes;
    char buffer[4096];
    for (;;) {
        const ssize_t count = ::read(file.descriptor(), buffer, sizeof buffer);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) return bytes;
        bytes.append(buffer, static_cast<std::size_t>(count));
        if (bytes.size() > largest) return std::nullopt;
    }
}

std::string DiskFiles::write(const std::string& path, std::string_view bytes) {
    const std::string place = placeOf(path);
    std::string beside = place + ".XXXXXX";
    const mode_t mode = modeFor(place);
    OpenFile file(::mkostemp(beside.data(), O_CLOEXEC));
    if (!file.valid()) return sentence(path, errno);
    const bool written = writeAll(file.descriptor(), bytes) && ::fchmod(file.descriptor(), mode) == 0 &&
                         ::fsync(file.descriptor()) == 0 && file.close() &&
                         ::rename(beside.c_str(), place.c_str()) == 0;
    if (!written) {
        const int error = errno;
        (void)::unlink(beside.c_str());
        return sentence(path, error);
    }
    syncDirectoryOf(place);
    return "";
}

bool DiskFiles::createDirectory(const std::string& path) {
    std::error_code trouble;
    std::filesystem::create_directories(path, trouble);
    return std::filesystem::is_directory(path, trouble);
}

std::string environmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

UserFolders userFolders(const Environment& environment) {
    const std::string home = environment("HOME");
    // A path that is not absolute is no valid value of these variables.
    const auto base = [&](const char* name, const char* inHome) -> std::string {
        const std::string value = environment(name);
        if (value.starts_with('/')) return value;
        return home.starts_with('/') ? home + inHome : "";
    };
    const std::string config = base("XDG_CONFIG_HOME", "/.config");
    const std::string data = base("XDG_DATA_HOME", "/.local/share");
    const std::string state = base("XDG_STATE_HOME", "/.local/state");
    return {config.empty() ? "" : config + "/ordwise/settings.ini",
            data.empty() ? "" : data + "/ordwise/Saved Problems", state.empty() ? "" : state + "/ordwise"};
}

}  // namespace ordwise
