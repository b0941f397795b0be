#include "DiskFiles.hpp"

#include "NumberText.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ordwise {
namespace {

// Closes a file however its use ends. What a disk of a network has to tell, it tells the sync before.
class OpenFile {
public:
    explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (valid()) (void)::close(descriptor_);
    }

    [[nodiscard]] bool valid() const { return descriptor_ >= 0; }
    [[nodiscard]] int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

std::string sentence(const std::string& path, const std::string& reason) {
    return "\"" + path + "\" could not be written: " + reason + ".";
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

// Where a file is to be written, and what was there before.
struct Place {
    std::string path;
    std::string refused = {};  // why nothing may be written there; "" where it may
    bool taken = false;        // a file is there, to be replaced
    struct stat old {};
};

// Root may write a read-only file all the same, but whoever made it one meant otherwise.
bool mayBeWritten(const Place& place) {
    return (place.old.st_mode & 0222U) != 0 && ::faccessat(AT_FDCWD, place.path.c_str(), W_OK, AT_EACCESS) == 0;
}

Place placeOf(const std::string& path) {
    Place place{path};
    place.taken = ::lstat(path.c_str(), &place.old) == 0;
    if (!place.taken) {
        if (errno != ENOENT) place.refused = std::strerror(errno);
        return place;
    }
    // A link is followed, so that what it points to is replaced and the link stays.
    std::error_code trouble;
    if (S_ISLNK(place.old.st_mode)) place.path = std::filesystem::canonical(path, trouble).string();
    if (trouble || ::stat(place.path.c_str(), &place.old) != 0) {
        place.refused = "It is a link that leads nowhere";
    } else if (S_ISDIR(place.old.st_mode)) {
        place.refused = std::strerror(EISDIR);
    } else if (!S_ISREG(place.old.st_mode)) {
        place.refused = "It is no regular file";
    } else if (!mayBeWritten(place)) {
        place.refused = "It is read-only";
    }
    return place;
}

std::string directoryOf(const std::string& path) {
    const std::string directory = std::filesystem::path(path).parent_path().string();
    return directory.empty() ? "." : directory;
}

// The name of a file on its way to its place. There is one for each file, so that what a kill has left
// there is taken away by the next save.
std::string nameOnTheWay(const std::string& path) {
    const std::filesystem::path place(path);
    return (place.parent_path() / ("." + place.filename().string() + "~new")).string();
}

// The rights and the owner of the file that is replaced; a new file gets what the user's mask leaves.
bool takeRights(int descriptor, const Place& place) {
    if (!place.taken) {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return ::fchmod(descriptor, 0666U & ~mask) == 0;
    }
    // Only root can give a file away; for anybody else it becomes his own.
    [[maybe_unused]] const int given = ::fchown(descriptor, place.old.st_uid, place.old.st_gid);
    return ::fchmod(descriptor, place.old.st_mode & 07777U) == 0;
}

bool fill(int descriptor, std::string_view bytes, const Place& place) {
    return writeAll(descriptor, bytes) && takeRights(descriptor, place) && ::fsync(descriptor) == 0;
}

// Moves a whole file over the old one.
bool moveIntoPlace(const std::string& beside, const Place& place) {
    if (::rename(beside.c_str(), place.path.c_str()) == 0) return true;
    const int error = errno == ENOENT ? EEXIST : errno;  // moved or taken away by another save
    if (error != EEXIST) (void)::unlink(beside.c_str());
    errno = error;
    return false;
}

// Gives a whole file without a name the name of its place. A link cannot be made over another file, so
// there it takes a name on the way, where another save of the same file may be as well.
bool nameFile(const OpenFile& file, const Place& place) {
    const std::string self = "/proc/self/fd/" + textOf(file.descriptor());
    const auto link = [&](const std::string& name) {
        return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
    };
    if (!place.taken) return link(place.path);
    const std::string beside = nameOnTheWay(place.path);
    bool linked = link(beside);
    if (!linked && errno == EEXIST) {
        (void)::unlink(beside.c_str());  // left by a kill, or by another save, which then begins anew
        linked = link(beside);
    }
    return linked && moveIntoPlace(beside, place);
}

bool writeUnnamed(const Place& place, std::string_view bytes) {
    const OpenFile file(::open(directoryOf(place.path).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
    return file.valid() && fill(file.descriptor(), bytes, place) && nameFile(file, place);
}

// The file on its way is locked while it is written, so one that is there unlocked was left by a kill.
// False as well when another save has moved it away meanwhile.
bool lockOnTheWay(const OpenFile& file, const std::string& beside) {
    if (::flock(file.descriptor(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
    struct stat opened {};
    struct stat named {};
    const bool same = ::fstat(file.descriptor(), &opened) == 0 && ::lstat(beside.c_str(), &named) == 0 &&
                      opened.st_ino == named.st_ino && S_ISREG(opened.st_mode) && opened.st_uid == ::geteuid();
    if (!same) errno = EEXIST;
    return same;
}

// Where files without a name cannot be had, as on many disks of a network.
bool writeNamed(const Place& place, std::string_view bytes) {
    const std::string beside = nameOnTheWay(place.path);
    const OpenFile file(::open(beside.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
    if (!file.valid() || !lockOnTheWay(file, beside)) return false;
    if (::ftruncate(file.descriptor(), 0) != 0 || !fill(file.descriptor(), bytes, place)) {
        const int error = errno;
        (void)::unlink(beside.c_str());
        errno = error;
        return false;
    }
    return moveIntoPlace(beside, place);
}

// A new name is lost with the power unless the directory has come to the disk, too.
void syncDirectoryOf(const std::string& path) {
    const OpenFile opened(::open(directoryOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
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
    constexpr int mostTries = 20;
    for (int tries = 1;; ++tries) {
        const Place place = placeOf(path);
        if (!place.refused.empty()) return sentence(path, place.refused);
        errno = 0;
        if ((unnamed_ && writeUnnamed(place, bytes)) || (errno != EEXIST && writeNamed(place, bytes))) {
            syncDirectoryOf(place.path);
            return "";
        }
        // Another save has come between: what it has left is looked at like anything that was there before.
        if (errno != EEXIST || tries == mostTries) return sentence(path, std::strerror(errno));
    }
}

bool DiskFiles::createDirectory(const std::string& path) {
    std::error_code trouble;
    std::filesystem::create_directories(path, trouble);
    return std::filesystem::is_directory(path, trouble);
}

void prepareProcess() {
    std::signal(SIGXFSZ, SIG_IGN);
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        // Opened the wrong way round, it fails as a closed one does. The lowest free number is given.
        if (::fcntl(descriptor, F_GETFD) < 0)
            (void)::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
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
