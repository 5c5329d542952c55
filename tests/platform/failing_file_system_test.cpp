#include "support/failing_file_system.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/file_failure.h"
#include "platform/files/read_whole.h"
#include "platform/files/sys_file.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

using Operation = FailingFileSystem::Operation;

class FailingFiles : public testing::Test {
protected:
    WriteResult write(const OrxString& name, std::string_view text) {
        return SysFile::writeWhole(name, std::array{text});
    }

    MemoryFileSystem memory;
    FailingFileSystem files{memory};

private:
    InstalledFileSystem installed_{files};
};

TEST_F(FailingFiles, FailTheWriteThatTheTestChose) {
    files.failAt(Operation::write, 2);
    EXPECT_EQ(write("a", "1"), WriteResult::done);
    EXPECT_EQ(write("b", "2"), WriteResult::writeFailed);
    EXPECT_EQ(write("c", "3"), WriteResult::done);
    EXPECT_EQ(files.count(Operation::write), 3U);
}

TEST_F(FailingFiles, CanRefuseToOpenOrToClose) {
    files.failAt(Operation::openForWriting, 1);
    EXPECT_EQ(write("a", "1"), WriteResult::openFailed);
    files.failAt(Operation::close, 1);
    EXPECT_EQ(write("a", "1"), WriteResult::writeFailed);
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(FailingFiles, LeaveTheOldFileOrNone) {
    memory.put("a", "old");
    for (const Operation operation : {Operation::write, Operation::close}) {
        for (const char* const name : {"a", "b"}) {
            files.failAt(operation, 1);
            EXPECT_EQ(write(name, "new"), WriteResult::writeFailed);
        }
    }
    files.fillDiskAfter(2);
    EXPECT_EQ(write("a", "new"), WriteResult::writeFailed);
    EXPECT_EQ(memory.content("a"), "old");
    EXPECT_EQ(memory.content("b"), std::nullopt);
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(FailingFiles, GiveTheReasonThatTheTestChose) {
    files.failAt(Operation::lookUp, 1);
    EXPECT_FALSE(files.fileExists("a"));
    EXPECT_FALSE(FileFailure::isNoted());
    files.giveReason(13);
    files.failAt(Operation::lookUp, 1);
    EXPECT_FALSE(files.fileExists("a"));
    EXPECT_TRUE(FileFailure::isNoted());
    EXPECT_FALSE(FileFailure::reason().empty());
    FileFailure::forget();
    EXPECT_EQ(FileFailure::reason(), "");
}

TEST_F(FailingFiles, EndAFileAtAFailedReadAndReportIt) {
    memory.put("a", "123");
    files.failAt(Operation::read, 2);
    const auto file = files.openForReading("a");
    std::array<char, 2> two{};
    EXPECT_EQ(file->read(two), 2U);
    EXPECT_FALSE(file->failed());
    EXPECT_EQ(file->read(two), 0U);
    EXPECT_TRUE(file->failed());
    EXPECT_EQ(file->read(two), 0U);
}

TEST_F(FailingFiles, AreReadCompletelyOrNotAtAll) {
    memory.put("a", std::string(10000, 'x'));
    files.failAt(Operation::read, 2);
    EXPECT_EQ(readWhole("a"), std::nullopt);
    EXPECT_EQ(readWhole("a"), std::string(10000, 'x'));
}

TEST_F(FailingFiles, FailEveryTimeUntilHealed) {
    files.failAll(Operation::makeDirectories);
    EXPECT_FALSE(files.makeDirectories("\\a"));
    EXPECT_FALSE(files.makeDirectories("\\a"));
    files.heal();
    EXPECT_TRUE(files.makeDirectories("\\a"));
}

TEST_F(FailingFiles, KeepWhatWasClosedBeforeTheDiskWasFull) {
    files.fillDiskAfter(4);
    EXPECT_EQ(write("a", "123"), WriteResult::done);
    EXPECT_EQ(write("b", "456"), WriteResult::writeFailed);
    EXPECT_EQ(memory.content("a"), "123");
    EXPECT_EQ(memory.content("b"), std::nullopt);
    files.heal();
    EXPECT_EQ(write("b", "456"), WriteResult::done);
}

TEST_F(FailingFiles, DoNotCopyOntoAFullDisk) {
    memory.put("a", "12345");
    files.fillDiskAfter(4);
    EXPECT_FALSE(SysFile::copy("a", "b"));
    EXPECT_FALSE(memory.fileExists("b"));
}

}  // namespace
}  // namespace quillmark
