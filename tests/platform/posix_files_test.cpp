// The behaviour of files and file names on POSIX systems.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>

#include "platform/files/file_system.h"
#include "platform/files/read_whole.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "settings/settings_store.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

/// The memory of the process is a file whose first bytes cannot be read.
constexpr const char* unreadable = "/proc/self/mem";

TEST(FileOnPosix, DistinguishesAFailedReadFromTheEnd) {
    const auto file = FileSystem::native().openForReading(unreadable);
    ASSERT_NE(file, nullptr);
    std::array<char, 4> buffer{};
    EXPECT_EQ(file->read(buffer), 0U);
    EXPECT_TRUE(file->failed());
    EXPECT_EQ(readWhole(unreadable), std::nullopt);
}

TEST(FileOnPosix, IsNotCopiedFromADevice) {
    const TempDir dir;
    EXPECT_FALSE(SysFile::copy("/dev/null", dir.file("copy")));
    EXPECT_FALSE(dir.content("copy"));
    EXPECT_TRUE(SysFile::exists("/dev/null"));
}

TEST(FileOnPosix, IsNotCopiedFromAPipeThatNobodyWritesTo) {
    const TempDir dir;
    ASSERT_EQ(mkfifo(dir.nativeFile("pipe").c_str(), 0600), 0);
    // In a separate process, which ends even if the copy waits for the pipe.
    const pid_t child = fork();
    if (child == 0) {
        constexpr unsigned seconds = 10;
        alarm(seconds);
        _exit(SysFile::copy(dir.file("pipe"), dir.file("copy")) ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(dir.content("copy"));
}

mode_t permissionsOf(const TempDir& dir, const OrxString& name) {
    struct stat status {};
    EXPECT_EQ(stat(dir.nativeFile(name).c_str(), &status), 0);
    constexpr mode_t permissions = 07777;
    return status.st_mode & permissions;
}

TEST(ReplacedFile, StaysALinkWhoseTargetGetsTheBytes) {
    const TempDir dir;
    ASSERT_TRUE(SysDirectory::create(dir.file("real")));
    dir.put("real\\a.ini", "old");
    dir.put("new.tmp", "new");
    ASSERT_EQ(symlink("real/a.ini", dir.nativeFile("middle").c_str()), 0);
    ASSERT_EQ(symlink("middle", dir.nativeFile("a.ini").c_str()), 0);
    EXPECT_TRUE(FileSystem::native().replaceFile(dir.file("new.tmp"), dir.file("a.ini")));
    EXPECT_TRUE(std::filesystem::is_symlink(dir.nativeFile("a.ini")));
    EXPECT_TRUE(std::filesystem::is_symlink(dir.nativeFile("middle")));
    EXPECT_EQ(dir.content("real\\a.ini"), "new");
    EXPECT_FALSE(dir.content("new.tmp"));
}

TEST(ReplacedFile, TakesThePlaceOfALinkThatLeadsNowhere) {
    const TempDir dir;
    dir.put("new.tmp", "new");
    ASSERT_EQ(symlink("none/a.ini", dir.nativeFile("a.ini").c_str()), 0);
    EXPECT_TRUE(FileSystem::native().replaceFile(dir.file("new.tmp"), dir.file("a.ini")));
    EXPECT_FALSE(std::filesystem::is_symlink(dir.nativeFile("a.ini")));
    EXPECT_EQ(dir.content("a.ini"), "new");
}

TEST(ReplacedFile, KeepsItsPermissions) {
    const TempDir dir;
    dir.put("a.ini", "old");
    for (const mode_t permissions : {0600U, 0640U, 0664U}) {
        dir.put("new.tmp", "new");
        ASSERT_EQ(chmod(dir.nativeFile("new.tmp").c_str(), 0644), 0);
        ASSERT_EQ(chmod(dir.nativeFile("a.ini").c_str(), permissions), 0);
        EXPECT_TRUE(FileSystem::native().replaceFile(dir.file("new.tmp"), dir.file("a.ini")));
        EXPECT_EQ(permissionsOf(dir, "a.ini"), permissions);
    }
}

TEST(ReplacedFile, HasThePermissionsOfTheNewOneWhereNoneWas) {
    const TempDir dir;
    dir.put("new.tmp", "new");
    ASSERT_EQ(chmod(dir.nativeFile("new.tmp").c_str(), 0640), 0);
    EXPECT_TRUE(FileSystem::native().replaceFile(dir.file("new.tmp"), dir.file("a.ini")));
    EXPECT_EQ(permissionsOf(dir, "a.ini"), 0640U);
}

TEST(IniStoreOnPosix, StaysALinkAndPrivateWhenItIsWritten) {
    const TempDir dir;
    dir.put("mine.ini", "[Html]\nNavig=1\n");
    ASSERT_EQ(chmod(dir.nativeFile("mine.ini").c_str(), 0600), 0);
    ASSERT_EQ(symlink("mine.ini", dir.nativeFile("settings.ini").c_str()), 0);
    const auto store = makeIniSettingsStore(dir.file("settings.ini"));
    EXPECT_TRUE(store->write("Html", "Navig", "3"));
    EXPECT_TRUE(std::filesystem::is_symlink(dir.nativeFile("settings.ini")));
    EXPECT_EQ(dir.content("mine.ini"), "[Html]\nNavig=3\n");
    EXPECT_EQ(permissionsOf(dir, "mine.ini"), 0600U);
    EXPECT_EQ(store->read("Html", "Navig"), "3");
}

}  // namespace
}  // namespace quillmark

#endif
