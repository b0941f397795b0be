// Files on the disk: whole or not at all.
#include "DiskFiles.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ordwise::test {
namespace {

namespace fs = std::filesystem;

// Everything holds on a disk that knows files without a name and on one that does not.
class Disk : public testing::TestWithParam<bool> {
protected:
    DiskFiles files{GetParam()};
    fs::path directory;

    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "ordwise-disk.XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        directory = pattern;
    }
    void TearDown() override {
        fs::permissions(directory, fs::perms::owner_all);
        fs::remove_all(directory);
    }

    std::string path(const char* name) const { return (directory / name).string(); }
    std::ptrdiff_t count() const { return std::distance(fs::directory_iterator(directory), fs::directory_iterator()); }
};

TEST_P(Disk, KeepsAnyBytesAndTheRightsOfTheFile) {
    const std::string bytes = std::string("a\0b\r\n\xff", 6);
    ASSERT_EQ(files.write(path("a"), "old"), "");
    fs::permissions(path("a"), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    ASSERT_EQ(files.write(path("a"), bytes), "");
    EXPECT_EQ(files.read(path("a")), bytes);
    EXPECT_EQ(fs::status(path("a")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(count(), 1) << "nothing is left beside the file";
}

TEST_P(Disk, ReplacesWhatALinkPointsTo) {
    ASSERT_EQ(files.write(path("real"), "old"), "");
    fs::create_symlink(path("real"), path("link"));
    ASSERT_EQ(files.write(path("link"), "new"), "");
    EXPECT_TRUE(fs::is_symlink(path("link")));
    EXPECT_EQ(files.read(path("real")), "new");
}

TEST_P(Disk, ReplacesNothingButRegularFilesThatMayBeWritten) {
    ASSERT_EQ(files.write(path("read-only"), "old"), "");
    fs::permissions(path("read-only"), fs::perms::owner_read);
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/null", path("device"));
    fs::create_symlink(path("none"), path("nowhere"));
    for (const auto& [name, reason] : {std::pair{"read-only", "It is read-only."},
                                       {"pipe", "It is no regular file."},
                                       {"device", "It is no regular file."},
                                       {"nowhere", "It is a link that leads nowhere."}})
        EXPECT_EQ(files.write(path(name), "new"), "\"" + path(name) + "\" could not be written: " + reason);
    EXPECT_EQ(files.read(path("read-only")), "old");
    EXPECT_TRUE(fs::is_fifo(path("pipe")));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(count(), 4) << "nothing is made where the link leads";
}

TEST_P(Disk, SaysWhyItCouldNotWrite) {
    EXPECT_EQ(files.write(path("none/a"), "x"),
              "\"" + path("none/a") + "\" could not be written: No such file or directory.");
    fs::create_directory(path("directory"));
    EXPECT_NE(files.write(path("directory"), "x"), "");
    EXPECT_EQ(count(), 1);
}

TEST_P(Disk, ReadsPlainFilesOfOurSizeOnly) {
    EXPECT_EQ(files.read(path("none")), std::nullopt);
    EXPECT_EQ(files.read(directory.string()), std::nullopt);
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(files.read(path("pipe")), std::nullopt);
    std::ofstream(path("large")).close();
    fs::resize_file(path("large"), DiskFiles::largest + 1);
    EXPECT_EQ(files.read(path("large")), std::nullopt);
    fs::resize_file(path("large"), DiskFiles::largest);
    EXPECT_TRUE(files.read(path("large")).has_value());
}

// A disk that is full half way through, as a limit on the size of files makes it.
TEST_P(Disk, LeavesTheOldFileWholeWhenTheDiskIsFull) {
    const std::string old(100, 'o');
    ASSERT_EQ(files.write(path("a"), old), "");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        prepareProcess();
        const rlimit limit{8192, 8192};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::_exit(files.write(path("a"), std::string(100000, 'n')).empty() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "the write went well on a full disk";
    EXPECT_EQ(files.read(path("a")), old);
    EXPECT_EQ(count(), 1);
}

TEST_P(Disk, LeavesTheOldOrTheNewFileWholeWhenKilled) {
    const std::string contents[] = {std::string(200000, 'a'), std::string(300000, 'b')};
    ASSERT_EQ(files.write(path("a"), contents[0]), "");
    int newer = 0;
    for (int round = 0; round < 40; ++round) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int i = 0;; ++i) (void)files.write(path("a"), contents[(i + 1) % 2]);
        }
        ::usleep(static_cast<useconds_t>(300 + 137 * round));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        const std::string found = files.read(path("a")).value_or("nothing");
        ASSERT_TRUE(found == contents[0] || found == contents[1]) << "a part of a file, " << found.size() << " bytes";
        newer += found == contents[1] ? 1 : 0;
    }
    EXPECT_GT(newer, 0) << "no write ever came to its end";
    ASSERT_EQ(files.write(path("a"), "last"), "");
    EXPECT_EQ(count(), 1) << "what the kills left is gone with the next save";
}

INSTANTIATE_TEST_SUITE_P(Named, Disk, testing::Values(false));
INSTANTIATE_TEST_SUITE_P(Unnamed, Disk, testing::Values(true));

TEST(UserFolders, FollowTheConventionOfTheDesktop) {
    const auto foldersOf = [](std::map<std::string, std::string> environment) {
        return userFolders([=](const char* name) {
            const auto found = environment.find(name);
            return found == environment.end() ? std::string() : found->second;
        });
    };
    const UserFolders home = foldersOf({{"HOME", "/home/ann"}});
    EXPECT_EQ(home.settingsFile, "/home/ann/.config/ordwise/settings.ini");
    EXPECT_EQ(home.savedProblems, "/home/ann/.local/share/ordwise/Saved Problems");
    const UserFolders moved = foldersOf({{"HOME", "/h"}, {"XDG_CONFIG_HOME", "/c"}, {"XDG_DATA_HOME", "relative"}});
    EXPECT_EQ(moved.settingsFile, "/c/ordwise/settings.ini");
    EXPECT_EQ(moved.savedProblems, "/h/.local/share/ordwise/Saved Problems");
    EXPECT_EQ(foldersOf({}).settingsFile, "");
}

}  // namespace
}  // namespace ordwise::test
