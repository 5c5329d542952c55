// Files that are written whole or not at all, on POSIX systems.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <iterator>
#include <memory>
#include <string>

#include "platform/files/confinement.h"
#include "platform/files/file_failure.h"
#include "platform/files/file_system.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "support/installed_file_system.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

namespace fs = std::filesystem;

/// A directory with an old page and tools to look at it as the system does.
class WholePage : public ::testing::Test {
protected:
    WholePage() { dir.put("a.htm", "old"); }

    WriteResult write(const OrxString& name, std::string_view text) const {
        return SysFile::writeWhole(dir.file(name), std::array{text});
    }
    [[nodiscard]] struct stat status(const OrxString& name) const {
        struct stat result {};
        EXPECT_EQ(lstat(dir.nativeFile(name).c_str(), &result), 0) << name.str();
        return result;
    }
    [[nodiscard]] unsigned permissions(const OrxString& name) const {
        constexpr unsigned all = 07777;
        return status(name).st_mode & all;
    }
    [[nodiscard]] std::ptrdiff_t countOfFiles() const {
        return std::distance(fs::directory_iterator(dir.native()), {});
    }
    /// Runs `body` in a process that may not write files beyond that size.
    [[nodiscard]] static int statusWithLimit(rlim_t bytes, const std::function<bool()>& body) {
        const pid_t child = fork();
        if (child == 0) {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {bytes, bytes};
            setrlimit(RLIMIT_FSIZE, &limit);
            _exit(body() ? 0 : 1);
        }
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }

    /// Runs `body` as a user who owns "a.htm" and the directory, and may only write the file.
    [[nodiscard]] int statusOfAnOrdinaryUser(const std::function<bool()>& body) const {
        constexpr uid_t ordinaryUser = 65534;
        const bool isRoot = geteuid() == 0;
        for (const std::string& name : {dir.native(), dir.nativeFile("a.htm")}) {
            EXPECT_TRUE(!isRoot || chown(name.c_str(), ordinaryUser, ordinaryUser) == 0);
        }
        EXPECT_EQ(chmod(dir.nativeFile("a.htm").c_str(), 0200), 0);
        const pid_t child = fork();
        if (child == 0) {
            const bool isOrdinary =
                !isRoot || (setegid(ordinaryUser) == 0 && seteuid(ordinaryUser) == 0);
            _exit(isOrdinary && body() ? 0 : 1);
        }
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }

    TempDir dir;
};

/// A small old file is overwritten, a large one replaced.
class OldPage : public WholePage, public ::testing::WithParamInterface<std::size_t> {
protected:
    OldPage() { dir.put("a.htm", old); }
    const std::string old = std::string(GetParam(), 'o');
};

INSTANTIATE_TEST_SUITE_P(OfEverySize, OldPage, ::testing::Values(0, 3, 9000, 300000));

TEST_P(OldPage, IsReplacedByALongerAndAShorterOne) {
    for (const std::size_t size : {400000U, 10U, 0U}) {
        EXPECT_EQ(write("a.htm", std::string(size, 'n')), WriteResult::done);
        EXPECT_EQ(dir.content("a.htm"), std::string(size, 'n'));
    }
    EXPECT_EQ(countOfFiles(), 1);
}

TEST_P(OldPage, KeepsItsPermissions) {
    for (const mode_t mode : {0600U, 0640U, 0666U}) {
        ASSERT_EQ(chmod(dir.nativeFile("a.htm").c_str(), mode), 0);
        EXPECT_EQ(write("a.htm", "new"), WriteResult::done);
        EXPECT_EQ(permissions("a.htm"), mode);
        dir.put("a.htm", old);
    }
}

TEST_P(OldPage, KeepsItsLinksAndNames) {
    ASSERT_EQ(symlink("a.htm", dir.nativeFile("soft.htm").c_str()), 0);
    EXPECT_EQ(write("soft.htm", "new"), WriteResult::done);
    EXPECT_TRUE(fs::is_symlink(dir.nativeFile("soft.htm")));
    EXPECT_EQ(dir.content("a.htm"), "new");
    dir.put("a.htm", old);
    ASSERT_EQ(link(dir.nativeFile("a.htm").c_str(), dir.nativeFile("hard.htm").c_str()), 0);
    EXPECT_EQ(write("hard.htm", "again"), WriteResult::done);
    EXPECT_EQ(dir.content("a.htm"), "again");
    EXPECT_EQ(status("a.htm").st_nlink, 2U);
}

TEST_P(OldPage, StaysWhenTheNewOneDoesNotFit) {
    const std::string text(500000, 'n');
    constexpr rlim_t limit = 400000;
    ASSERT_EQ(symlink("a.htm", dir.nativeFile("soft.htm").c_str()), 0);
    EXPECT_EQ(statusWithLimit(limit,
                              [&] {
                                  return write("a.htm", text) == WriteResult::writeFailed &&
                                         write("soft.htm", text) == WriteResult::writeFailed;
                              }),
              0);
    EXPECT_EQ(dir.content("a.htm"), old);
    EXPECT_EQ(countOfFiles(), 2);
}

TEST_P(OldPage, StaysWhenTheCopyDoesNotFit) {
    dir.put("large", std::string(500000, 'n'));
    constexpr rlim_t limit = 400000;
    EXPECT_EQ(statusWithLimit(limit,
                              [&] { return !SysFile::copy(dir.file("large"), dir.file("a.htm")); }),
              0);
    EXPECT_EQ(dir.content("a.htm"), old);
    EXPECT_EQ(countOfFiles(), 2);
}

TEST_P(OldPage, IsItsOwnCopyAndStaysAsItIs) {
    ASSERT_EQ(symlink("a.htm", dir.nativeFile("link").c_str()), 0);
    ASSERT_EQ(link(dir.nativeFile("a.htm").c_str(), dir.nativeFile("second").c_str()), 0);
    for (const char* const name : {"a.htm", "link", "second"}) {
        EXPECT_TRUE(SysFile::copy(dir.file("a.htm"), dir.file(name)));
        EXPECT_TRUE(SysFile::copy(dir.file(name), dir.file("a.htm")));
        EXPECT_EQ(dir.content("a.htm"), old);
    }
}

TEST_P(OldPage, IsOverwrittenInADirectoryThatTakesNoNewFile) {
    ASSERT_EQ(chmod(dir.native().c_str(), 0500), 0);
    EXPECT_EQ(write("a.htm", "new"), WriteResult::done);
    ASSERT_EQ(chmod(dir.native().c_str(), 0700), 0);
    EXPECT_EQ(dir.content("a.htm"), "new");
}

TEST_P(OldPage, IsReplacedWhenItMayBeWrittenButNotRead) {
    EXPECT_EQ(statusOfAnOrdinaryUser([&] { return write("a.htm", "new") == WriteResult::done; }),
              0);
    EXPECT_EQ(dir.content("a.htm"), "new");
    EXPECT_EQ(permissions("a.htm"), 0200U);
    EXPECT_EQ(countOfFiles(), 1);
}

/// A page in the reach of a confined file system.
class ConfinedPage : public OldPage {
protected:
    std::unique_ptr<FileSystem> files =
        makeConfinedFileSystem({{dir.native()}, {dir.native()}, {}});
    InstalledFileSystem installed_{*files};
};

INSTANTIATE_TEST_SUITE_P(OfEverySize, ConfinedPage, ::testing::Values(0, 3, 9000, 300000));

TEST_P(ConfinedPage, IsReplacedAndKeepsItsPermissions) {
    ASSERT_EQ(chmod(dir.nativeFile("a.htm").c_str(), 0640), 0);
    for (const std::size_t size : {400000U, 10U, 0U}) {
        EXPECT_EQ(write("a.htm", std::string(size, 'n')), WriteResult::done);
        EXPECT_EQ(dir.content("a.htm"), std::string(size, 'n'));
    }
    EXPECT_EQ(permissions("a.htm"), 0640U);
    EXPECT_EQ(countOfFiles(), 1);
}

TEST_P(ConfinedPage, StaysWhenThePageOrTheCopyDoesNotFit) {
    const std::string text(500000, 'n');
    dir.put("large", text);
    constexpr rlim_t limit = 400000;
    EXPECT_EQ(statusWithLimit(limit,
                              [&] {
                                  return write("a.htm", text) == WriteResult::writeFailed &&
                                         FileFailure::reason() == "File too large" &&
                                         write("b.htm", text) == WriteResult::writeFailed;
                              }),
              0);
    EXPECT_EQ(statusWithLimit(limit,
                              [&] {
                                  return !SysFile::copy(dir.file("large"), dir.file("a.htm")) &&
                                         FileFailure::reason() == "File too large";
                              }),
              0);
    EXPECT_EQ(dir.content("a.htm"), old);
    EXPECT_EQ(countOfFiles(), 2);
}

TEST_P(ConfinedPage, IsItsOwnCopyAndStaysAsItIs) {
    ASSERT_EQ(link(dir.nativeFile("a.htm").c_str(), dir.nativeFile("second").c_str()), 0);
    EXPECT_TRUE(SysFile::copy(dir.file("a.htm"), dir.file("second")));
    EXPECT_EQ(dir.content("a.htm"), old);
    // A page with two names is overwritten.
    EXPECT_EQ(write("second", "new"), WriteResult::done);
    EXPECT_EQ(dir.content("a.htm"), "new");
}

TEST_P(ConfinedPage, IsNotWrittenThroughALink) {
    ASSERT_EQ(symlink("a.htm", dir.nativeFile("link").c_str()), 0);
    EXPECT_EQ(write("link", "new"), WriteResult::openFailed);
    EXPECT_EQ(FileFailure::reason(), "Refused");
    EXPECT_FALSE(SysFile::copy(dir.file("a.htm"), dir.file("link")));
    EXPECT_EQ(FileFailure::reason(), "Refused");
    EXPECT_EQ(dir.content("a.htm"), old);
}

TEST_P(ConfinedPage, HasAReasonWhenItCannotBeWritten) {
    EXPECT_EQ(write("none\\a.htm", "new"), WriteResult::openFailed);
    EXPECT_EQ(FileFailure::reason(), "No such file or directory");
    ASSERT_EQ(mkfifo(dir.nativeFile("pipe").c_str(), 0600), 0);
    EXPECT_EQ(write("pipe", "new"), WriteResult::openFailed);
    EXPECT_EQ(FileFailure::reason(), "Not a regular file");
    FileFailure::forget();
    EXPECT_FALSE(SysDirectory::create(dir.file("a.htm\\below")));
    EXPECT_EQ(FileFailure::reason(), "Not a directory");
}

TEST_F(WholePage, HasThePermissionsThatTheUserGivesNewFiles) {
    const mode_t before = umask(027);
    EXPECT_EQ(write("b.htm", "new"), WriteResult::done);
    umask(before);
    EXPECT_EQ(permissions("b.htm"), 0640U);
}

TEST_F(WholePage, IsWrittenThroughALink) {
    ASSERT_TRUE(SysDirectory::create(dir.file("real")));
    dir.put("real\\b.htm", "old");
    ASSERT_EQ(symlink("real/b.htm", dir.nativeFile("b.htm").c_str()), 0);
    EXPECT_EQ(write("b.htm", "new"), WriteResult::done);
    EXPECT_TRUE(fs::is_symlink(dir.nativeFile("b.htm")));
    EXPECT_EQ(dir.content("real\\b.htm"), "new");
}

TEST_F(WholePage, IsCreatedThroughALinkThatLeadsNowhere) {
    ASSERT_EQ(symlink("c.htm", dir.nativeFile("b.htm").c_str()), 0);
    EXPECT_EQ(write("b.htm", "new"), WriteResult::done);
    EXPECT_TRUE(fs::is_symlink(dir.nativeFile("b.htm")));
    EXPECT_EQ(dir.content("c.htm"), "new");
}

TEST_F(WholePage, ThatMayNotBeWrittenStaysAsItIs) {
    ASSERT_EQ(chmod(dir.nativeFile("a.htm").c_str(), 0400), 0);
    if (geteuid() != 0) {
        EXPECT_EQ(write("a.htm", "new"), WriteResult::openFailed);
        EXPECT_EQ(FileFailure::reason(), "Permission denied");
        EXPECT_EQ(dir.content("a.htm"), "old");
    }
}

TEST_F(WholePage, ThatDoesNotFitLeavesTheOldOneAndNothingElse) {
    const std::string text(5000, 'x');
    EXPECT_EQ(
        statusWithLimit(4096, [&] { return write("a.htm", text) == WriteResult::writeFailed; }), 0);
    EXPECT_EQ(
        statusWithLimit(4096, [&] { return write("b.htm", text) == WriteResult::writeFailed; }), 0);
    EXPECT_EQ(dir.content("a.htm"), "old");
    EXPECT_EQ(countOfFiles(), 1);
}

TEST_F(WholePage, IsNotWrittenToADeviceAPipeOrADirectory) {
    ASSERT_EQ(mkfifo(dir.nativeFile("pipe").c_str(), 0600), 0);
    ASSERT_TRUE(SysDirectory::create(dir.file("dir")));
    for (const OrxString& name : {dir.file("pipe"), dir.file("dir"), OrxString("/dev/null")}) {
        EXPECT_EQ(SysFile::writeWhole(name, {}), WriteResult::openFailed);
        EXPECT_EQ(FileFailure::reason(), "Not a regular file");
        EXPECT_FALSE(SysFile::copy(dir.file("a.htm"), name));
        EXPECT_EQ(FileFailure::reason(), "Not a regular file");
        EXPECT_EQ(FileSystem::native().openForReading(name), nullptr);
        EXPECT_FALSE(FileSystem::native().replaceFile(dir.file("a.htm"), name));
    }
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(dir.content("a.htm"), "old");
}

TEST_F(WholePage, CopiedKeepsWhatTheOldCopyWas) {
    dir.put("b.css", "old copy");
    ASSERT_EQ(chmod(dir.nativeFile("b.css").c_str(), 0640), 0);
    ASSERT_EQ(symlink("b.css", dir.nativeFile("link.css").c_str()), 0);
    EXPECT_TRUE(SysFile::copy(dir.file("a.htm"), dir.file("link.css")));
    EXPECT_EQ(dir.content("b.css"), "old");
    EXPECT_EQ(permissions("b.css"), 0640U);
    EXPECT_TRUE(fs::is_symlink(dir.nativeFile("link.css")));
}

TEST_F(WholePage, LookUpsThatFailHaveAReasonUnlessTheNameIsMissing) {
    ASSERT_EQ(symlink("loop", dir.nativeFile("loop").c_str()), 0);
    FileFailure::forget();
    EXPECT_FALSE(SysFile::exists(dir.file("none")));
    EXPECT_FALSE(SysFile::exists(dir.file("a.htm\\none")));
    EXPECT_FALSE(SysFile::exists(OrxString(std::string(5000, 'a'))));
    EXPECT_FALSE(FileFailure::isNoted());
    EXPECT_FALSE(SysFile::exists(dir.file("loop")));
    EXPECT_EQ(FileFailure::reason(), "Too many levels of symbolic links");
}

}  // namespace
}  // namespace quillmark

#endif
