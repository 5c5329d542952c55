// Rewriting a file that belongs to a user, on POSIX systems.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/files/file_system.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

class RewrittenFile : public testing::Test {
protected:
    [[nodiscard]] bool rewrite(const OrxString& name, const char* text) const {
        return FileSystem::native().rewriteFile(dir.file(name), text);
    }
    [[nodiscard]] mode_t modeOf(const OrxString& name) const {
        return statusOf(name).st_mode & 07777;
    }
    [[nodiscard]] struct stat statusOf(const OrxString& name) const {
        struct stat status {};
        EXPECT_EQ(lstat(dir.nativeFile(name).c_str(), &status), 0);
        return status;
    }
    [[nodiscard]] std::ptrdiff_t files() const {
        return std::distance(std::filesystem::directory_iterator(dir.native()), {});
    }

    const TempDir dir;
};

TEST_F(RewrittenFile, KeepsItsPermissions) {
    for (const mode_t mode : {0600U, 0640U, 0644U, 0444U, 0660U, 0666U}) {
        dir.put("a.ini", "old");
        ASSERT_EQ(chmod(dir.nativeFile("a.ini").c_str(), mode), 0);
        EXPECT_TRUE(rewrite("a.ini", "new"));
        EXPECT_EQ(dir.content("a.ini"), "new");
        EXPECT_EQ(modeOf("a.ini"), mode);
        std::filesystem::remove(dir.nativeFile("a.ini"));
    }
}

TEST_F(RewrittenFile, ThatIsNewHasThePermissionsThatTheUserWants) {
    const mode_t before = umask(027);
    EXPECT_TRUE(rewrite("new.ini", "text"));
    umask(before);
    EXPECT_EQ(modeOf("new.ini"), 0640U);
}

TEST_F(RewrittenFile, KeepsItsOwner) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can give files away";
    }
    dir.put("a.ini", "old");
    ASSERT_EQ(chown(dir.nativeFile("a.ini").c_str(), 12345, 23456), 0);
    ASSERT_EQ(chmod(dir.nativeFile("a.ini").c_str(), 0640), 0);
    EXPECT_TRUE(rewrite("a.ini", "new"));
    EXPECT_EQ(dir.content("a.ini"), "new");
    EXPECT_EQ(statusOf("a.ini").st_uid, 12345U);
    EXPECT_EQ(statusOf("a.ini").st_gid, 23456U);
    EXPECT_EQ(modeOf("a.ini"), 0640U);
}

TEST_F(RewrittenFile, OfAnotherOwnerStaysAsItIsIfTheOwnerCannotBeKept) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs a second user";
    }
    dir.put("a.ini", "old");
    ASSERT_EQ(chmod(dir.native().c_str(), 0777), 0);
    ASSERT_EQ(chmod(dir.nativeFile("a.ini").c_str(), 0666), 0);
    const pid_t child = fork();
    if (child == 0) {
        const bool other = setgid(23456) == 0 && setuid(12345) == 0;
        _exit(other && !rewrite("a.ini", "new") ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(dir.content("a.ini"), "old");
    EXPECT_EQ(statusOf("a.ini").st_uid, 0U);
    EXPECT_EQ(files(), 1);
}

TEST_F(RewrittenFile, IsFoundThroughLinks) {
    std::filesystem::create_directory(dir.nativeFile("real"));
    dir.put("real\\a.ini", "old");
    std::filesystem::create_symlink("real/a.ini", dir.nativeFile("one"));
    std::filesystem::create_symlink(dir.nativeFile("one"), dir.nativeFile("two"));
    EXPECT_TRUE(rewrite("two", "new"));
    EXPECT_EQ(dir.content("real\\a.ini"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(dir.nativeFile("one")));
    EXPECT_TRUE(std::filesystem::is_symlink(dir.nativeFile("two")));
    EXPECT_EQ(files(), 3);
}

TEST_F(RewrittenFile, IsCreatedWhereALinkLeads) {
    std::filesystem::create_directory(dir.nativeFile("real"));
    std::filesystem::create_symlink("real/a.ini", dir.nativeFile("link"));
    EXPECT_TRUE(rewrite("link", "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(dir.nativeFile("link")));
    EXPECT_EQ(dir.content("real\\a.ini"), "new");
}

TEST_F(RewrittenFile, IsRefusedBehindACircleOfLinks) {
    std::filesystem::create_symlink("two", dir.nativeFile("one"));
    std::filesystem::create_symlink("one", dir.nativeFile("two"));
    EXPECT_FALSE(rewrite("one", "new"));
    EXPECT_EQ(FileSystem::native().lockForChange(dir.file("one")), nullptr);
}

TEST_F(RewrittenFile, MustBeAFile) {
    ASSERT_EQ(mkfifo(dir.nativeFile("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(rewrite("pipe", "new"));
    EXPECT_FALSE(rewrite("", "new"));
    EXPECT_TRUE(std::filesystem::is_fifo(dir.nativeFile("pipe")));
    EXPECT_EQ(files(), 1);
}

TEST_F(RewrittenFile, IsNeverMoreReadableThanTheOldOne) {
    dir.put("a.ini", "old");
    ASSERT_EQ(chmod(dir.nativeFile("a.ini").c_str(), 0400), 0);
    std::atomic<bool> done = false;
    std::atomic<mode_t> seen = 0;
    std::thread observer([&] {
        do {
            std::error_code ignored;
            for (const auto& entry : std::filesystem::directory_iterator(dir.native(), ignored)) {
                struct stat status {};
                if (lstat(entry.path().c_str(), &status) == 0) {
                    seen |= status.st_mode & 07777U;
                }
            }
        } while (!done);
    });
    const std::string large(1 << 20, 'x');
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(rewrite("a.ini", large.c_str()));
    }
    done = true;
    observer.join();
    EXPECT_EQ(seen, 0400U);
}

TEST_F(RewrittenFile, IsLockedForOneAtATime) {
    auto held = FileSystem::native().lockForChange(dir.file("a.ini"));
    ASSERT_NE(held, nullptr);
    std::atomic<bool> taken = false;
    std::thread second([&] {
        const auto next = FileSystem::native().lockForChange(dir.file("a.ini"));
        taken = next != nullptr;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(taken);
    held.reset();
    second.join();
    EXPECT_TRUE(taken);
    EXPECT_EQ(files(), 0);
}

TEST_F(RewrittenFile, CannotBeLockedWithoutItsDirectory) {
    EXPECT_EQ(FileSystem::native().lockForChange(dir.file("none\\a.ini")), nullptr);
}

}  // namespace
}  // namespace quillmark

#endif
