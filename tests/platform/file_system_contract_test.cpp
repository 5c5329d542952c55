#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "platform/file_system_subjects.h"
#include "platform/files/file_system.h"
#include "platform/files/read_whole.h"
#include "platform/files/sys_file.h"
#include "support/installed_file_system.h"

namespace quillmark {
namespace {

using SubjectMaker = std::function<std::unique_ptr<Subject>()>;
struct NamedMaker {
    const char* name;
    SubjectMaker make;

    friend void PrintTo(const NamedMaker& maker, std::ostream* out) { *out << maker.name; }
};

class FileSystemContract : public testing::TestWithParam<NamedMaker> {
protected:
    FileSystemContract()
        : subject_(GetParam().make()), files(subject_->files()), installed_(files) {}

    [[nodiscard]] OrxString at(const OrxString& name) const {
        return SysFile::appendToDir(subject_->directory(), name);
    }
    void put(const OrxString& name, std::string_view bytes) const {
        EXPECT_EQ(SysFile::writeWhole(at(name), std::array{bytes}), WriteResult::done);
    }
    [[nodiscard]] std::string content(const OrxString& name) const {
        return readWhole(at(name)).value_or("(not there)");
    }

private:
    std::unique_ptr<Subject> subject_;

protected:
    FileSystem& files;

private:
    InstalledFileSystem installed_;
};

bool write(OutputFile& file, std::string_view text) {
    return file.write(std::array{text});
}

TEST_P(FileSystemContract, AFileThatWasWrittenCanBeReadByteForByte) {
    const std::string bytes("a\r\n\n\0\x80\xFF", 7);
    put("a.txt", bytes);
    EXPECT_EQ(content("a.txt"), bytes);
}

TEST_P(FileSystemContract, PiecesAreWrittenOneAfterTheOther) {
    const std::array<std::string_view, 4> pieces = {"one", "", "two", "three"};
    EXPECT_EQ(SysFile::writeWhole(at("a.txt"), pieces), WriteResult::done);
    EXPECT_EQ(content("a.txt"), "onetwothree");
}

TEST_P(FileSystemContract, ThousandsOfPiecesAreWrittenInOrder) {
    std::string all;
    std::vector<std::string> texts;
    for (int i = 0; i < 5000; ++i) {
        texts.push_back(std::to_string(i) + (i % 7 == 0 ? "" : "\n"));
        all += texts.back();
    }
    const std::vector<std::string_view> pieces(texts.begin(), texts.end());
    EXPECT_EQ(SysFile::writeWhole(at("a.txt"), pieces), WriteResult::done);
    EXPECT_EQ(content("a.txt"), all);
}

TEST_P(FileSystemContract, WritingNothingCreatesAnEmptyFile) {
    EXPECT_EQ(SysFile::writeWhole(at("a.txt"), {}), WriteResult::done);
    EXPECT_TRUE(files.fileExists(at("a.txt")));
    EXPECT_EQ(content("a.txt"), "");
}

TEST_P(FileSystemContract, OpeningForWritingEmptiesTheFile) {
    put("a.txt", "long old text");
    put("a.txt", "new");
    EXPECT_EQ(content("a.txt"), "new");
}

TEST_P(FileSystemContract, AReplacedContentIsThereWhenTheFileIsClosed) {
    put("a.htm", "the old page");
    for (const char* const name : {"a.htm", "new.htm"}) {
        const auto file = files.openForReplacing(at(name));
        ASSERT_NE(file, nullptr);
        EXPECT_TRUE(write(*file, "new"));
        EXPECT_TRUE(write(*file, " page"));
        EXPECT_TRUE(file->close());
        EXPECT_EQ(content(name), "new page");
    }
}

TEST_P(FileSystemContract, AContentThatIsNotClosedLeavesWhatWasThere) {
    files.makeDirectories(at("dir"));
    put("dir\\a.htm", "the old page");
    for (const char* const name : {"dir\\a.htm", "dir\\new.htm"}) {
        const auto file = files.openForReplacing(at(name));
        ASSERT_NE(file, nullptr);
        EXPECT_TRUE(write(*file, "new"));
    }
    EXPECT_EQ(content("dir\\a.htm"), "the old page");
    EXPECT_FALSE(files.fileExists(at("dir\\new.htm")));
}

TEST_P(FileSystemContract, NothingIsReplacedInAMissingDirectoryOrUnderTheNameOfOne) {
    files.makeDirectories(at("dir"));
    EXPECT_EQ(files.openForReplacing(at("none\\a.htm")), nullptr);
    EXPECT_EQ(files.openForReplacing(at("dir")), nullptr);
    EXPECT_EQ(files.openForReplacing(""), nullptr);
    EXPECT_EQ(files.openForReplacing(at(std::string("b.txt\0y", 7))), nullptr);
}

TEST_P(FileSystemContract, OpeningForAppendingKeepsTheFile) {
    put("a.txt", "old,");
    const auto file = files.openForAppending(at("a.txt"));
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(write(*file, "new"));
    EXPECT_TRUE(file->close());
    EXPECT_EQ(content("a.txt"), "old,new");
}

TEST_P(FileSystemContract, OpeningForAppendingCreatesAMissingFile) {
    EXPECT_NE(files.openForAppending(at("a.txt")), nullptr);
    EXPECT_EQ(content("a.txt"), "");
}

TEST_P(FileSystemContract, TwoThatAppendDoNotOverwriteEachOther) {
    const auto one = files.openForAppending(at("a.txt"));
    const auto other = files.openForAppending(at("a.txt"));
    EXPECT_TRUE(write(*one, "1"));
    EXPECT_TRUE(write(*other, "2"));
    EXPECT_TRUE(write(*one, "3"));
    EXPECT_EQ(content("a.txt"), "123");
}

TEST_P(FileSystemContract, OthersCanReadAndWriteAFileThatIsOpen) {
    const auto file = files.openForWriting(at("a.txt"));
    EXPECT_TRUE(write(*file, "begun"));
    EXPECT_EQ(content("a.txt"), "begun");
    EXPECT_NE(files.openForWriting(at("a.txt")), nullptr);
}

TEST_P(FileSystemContract, NothingIsOpenedInAMissingDirectory) {
    EXPECT_EQ(files.openForWriting(at("none\\a.txt")), nullptr);
    EXPECT_EQ(files.openForAppending(at("none\\a.txt")), nullptr);
    EXPECT_EQ(files.openForReading(at("none\\a.txt")), nullptr);
    EXPECT_EQ(SysFile::writeWhole(at("none\\a.txt"), {}), WriteResult::openFailed);
}

TEST_P(FileSystemContract, ADirectoryIsNotOpenedAsAFile) {
    files.makeDirectories(at("dir"));
    EXPECT_EQ(files.openForReading(at("dir")), nullptr);
    EXPECT_EQ(files.openForWriting(at("dir")), nullptr);
    EXPECT_EQ(files.openForAppending(at("dir")), nullptr);
}

TEST_P(FileSystemContract, AnEmptyNameNeverExists) {
    EXPECT_FALSE(files.fileExists(""));
    EXPECT_FALSE(files.directoryExists(""));
    EXPECT_FALSE(files.makeDirectories(""));
    EXPECT_FALSE(files.setCurrentDirectory(""));
    EXPECT_FALSE(files.deleteFile(""));
    EXPECT_EQ(files.stamp(""), std::nullopt);
    EXPECT_EQ(files.openForReading(""), nullptr);
    EXPECT_EQ(files.openForWriting(""), nullptr);
    EXPECT_FALSE(files.copyFile("", at("a.txt")));
}

TEST_P(FileSystemContract, ANameWithAZeroIsNotTheNameBeforeIt) {
    put("a.txt", "x");
    const OrxString cut = at(std::string("a.txt\0y", 7));
    EXPECT_FALSE(files.fileExists(cut));
    EXPECT_EQ(files.stamp(cut), std::nullopt);
    EXPECT_EQ(files.openForReading(cut), nullptr);
    EXPECT_FALSE(files.deleteFile(cut));
    EXPECT_FALSE(files.copyFile(cut, at("b.txt")));
    EXPECT_FALSE(files.replaceFile(cut, at("b.txt")));
    const OrxString cutDirectory = at(std::string("\0y", 2));
    EXPECT_FALSE(files.directoryExists(cutDirectory));
    EXPECT_FALSE(files.setCurrentDirectory(cutDirectory));
    EXPECT_EQ(content("a.txt"), "x");
}

TEST_P(FileSystemContract, NothingIsCreatedUnderANameWithAZero) {
    put("a.txt", "x");
    const OrxString cut = at(std::string("b.txt\0y", 7));
    EXPECT_EQ(files.openForWriting(cut), nullptr);
    EXPECT_EQ(files.openForAppending(cut), nullptr);
    EXPECT_FALSE(files.copyFile(at("a.txt"), cut));
    EXPECT_FALSE(files.replaceFile(at("a.txt"), cut));
    EXPECT_FALSE(files.makeDirectories(cut));
    EXPECT_FALSE(files.fileExists(at("b.txt")));
    EXPECT_FALSE(files.directoryExists(at("b.txt")));
    EXPECT_EQ(content("a.txt"), "x");
}

TEST_P(FileSystemContract, ReadingContinuesWhereItStopped) {
    put("a.txt", "abcde");
    const auto file = files.openForReading(at("a.txt"));
    std::array<char, 2> two{};
    EXPECT_EQ(file->read(two), 2U);
    EXPECT_EQ(file->read(two), 2U);
    EXPECT_EQ(two[1], 'd');
    EXPECT_EQ(file->read(two), 1U);
    EXPECT_EQ(file->read(two), 0U);
    EXPECT_EQ(file->read(two), 0U);
    EXPECT_FALSE(file->failed());
}

TEST_P(FileSystemContract, FilesAndDirectoriesAreDistinguished) {
    put("a.txt", "");
    files.makeDirectories(at("dir"));
    EXPECT_TRUE(files.fileExists(at("a.txt")));
    EXPECT_FALSE(files.directoryExists(at("a.txt")));
    EXPECT_FALSE(files.fileExists(at("dir")));
    EXPECT_TRUE(files.directoryExists(at("dir")));
    EXPECT_FALSE(files.fileExists(at("none")));
    EXPECT_FALSE(files.directoryExists(at("none")));
}

TEST_P(FileSystemContract, BothSeparatorsAreTheSame) {
    files.makeDirectories(at("a/b"));
    EXPECT_TRUE(files.directoryExists(at("a\\b")));
    put("a/b\\c.txt", "x");
    EXPECT_EQ(content("a\\b/c.txt"), "x");
}

TEST_P(FileSystemContract, NamesHoldLettersOfTheCodePage) {
    put("caf\xE9 \x80.txt", "x");
    EXPECT_TRUE(files.fileExists(at("caf\xE9 \x80.txt")));
    EXPECT_FALSE(files.fileExists(at("cafe \x80.txt")));
}

TEST_P(FileSystemContract, DirectoriesAreCreatedWithTheirParents) {
    EXPECT_TRUE(files.makeDirectories(at("a\\b\\c")));
    EXPECT_TRUE(files.directoryExists(at("a")));
    EXPECT_TRUE(files.directoryExists(at("a\\b\\c")));
}

TEST_P(FileSystemContract, CreatingAnExistingDirectorySucceeds) {
    EXPECT_TRUE(files.makeDirectories(at("a\\b")));
    EXPECT_TRUE(files.makeDirectories(at("a\\b")));
    EXPECT_TRUE(files.makeDirectories(at("a\\b\\")));
}

TEST_P(FileSystemContract, ADirectoryIsNotCreatedOverOrBelowAFile) {
    put("a", "x");
    EXPECT_FALSE(files.makeDirectories(at("a")));
    EXPECT_FALSE(files.makeDirectories(at("a\\b\\c")));
    EXPECT_EQ(content("a"), "x");
}

TEST_P(FileSystemContract, ACopyHasTheSameBytes) {
    const std::string bytes(300000, '\xAB');
    put("a.gif", bytes);
    EXPECT_TRUE(files.copyFile(at("a.gif"), at("b.gif")));
    EXPECT_EQ(content("b.gif"), bytes);
    EXPECT_EQ(content("a.gif"), bytes);
}

TEST_P(FileSystemContract, AnEmptyFileIsCopied) {
    put("a.gif", "");
    EXPECT_TRUE(files.copyFile(at("a.gif"), at("b.gif")));
    EXPECT_EQ(content("b.gif"), "");
}

TEST_P(FileSystemContract, ACopyReplacesALongerTarget) {
    put("a.gif", "new");
    put("b.gif", "much older");
    EXPECT_TRUE(files.copyFile(at("a.gif"), at("b.gif")));
    EXPECT_EQ(content("b.gif"), "new");
}

TEST_P(FileSystemContract, AFileCopiedOntoItselfIsLeftUntouched) {
    put("a.gif", "bytes");
    EXPECT_TRUE(files.copyFile(at("a.gif"), at("a.gif")));
    EXPECT_TRUE(files.copyFile(at("a.gif"), at(".\\a.gif")));
    EXPECT_EQ(content("a.gif"), "bytes");
}

TEST_P(FileSystemContract, AMissingSourceOrADirectoryIsNotCopied) {
    files.makeDirectories(at("dir"));
    put("a.gif", "bytes");
    EXPECT_FALSE(files.copyFile(at("none.gif"), at("b.gif")));
    EXPECT_FALSE(files.copyFile(at("dir"), at("b.gif")));
    EXPECT_FALSE(files.copyFile(at("a.gif"), at("dir")));
    EXPECT_FALSE(files.copyFile(at("a.gif"), at("none\\b.gif")));
    EXPECT_FALSE(files.fileExists(at("b.gif")));
    EXPECT_EQ(content("a.gif"), "bytes");
}

TEST_P(FileSystemContract, ADeletedFileIsGone) {
    put("a.txt", "x");
    EXPECT_TRUE(files.deleteFile(at("a.txt")));
    EXPECT_FALSE(files.fileExists(at("a.txt")));
    EXPECT_FALSE(files.deleteFile(at("a.txt")));
}

TEST_P(FileSystemContract, ADirectoryIsNotDeletedAsAFile) {
    files.makeDirectories(at("dir"));
    EXPECT_FALSE(files.deleteFile(at("dir")));
    EXPECT_TRUE(files.directoryExists(at("dir")));
}

TEST_P(FileSystemContract, AReplacedFileHoldsWhatTheSourceHeld) {
    put("new.tmp", "new");
    put("a.ini", "old and long");
    EXPECT_TRUE(files.replaceFile(at("new.tmp"), at("a.ini")));
    EXPECT_EQ(content("a.ini"), "new");
    EXPECT_FALSE(files.fileExists(at("new.tmp")));
}

TEST_P(FileSystemContract, AMissingTargetIsReplacedToo) {
    put("new.tmp", "new");
    EXPECT_TRUE(files.replaceFile(at("new.tmp"), at("a.ini")));
    EXPECT_EQ(content("a.ini"), "new");
}

TEST_P(FileSystemContract, AFailedReplacementLeavesBothAsTheyWere) {
    put("new.tmp", "new");
    put("a.ini", "old");
    files.makeDirectories(at("dir"));
    EXPECT_FALSE(files.replaceFile(at("new.tmp"), at("dir")));
    EXPECT_FALSE(files.replaceFile(at("none.tmp"), at("a.ini")));
    EXPECT_FALSE(files.replaceFile(at("dir"), at("a.ini")));
    EXPECT_FALSE(files.replaceFile(at("new.tmp"), at("none\\a.ini")));
    EXPECT_EQ(content("new.tmp"), "new");
    EXPECT_EQ(content("a.ini"), "old");
}

TEST_P(FileSystemContract, RelativeNamesCountFromTheCurrentDirectory) {
    const OrxString before = files.currentDirectory();
    files.makeDirectories(at("sub"));
    ASSERT_TRUE(files.setCurrentDirectory(at("sub")));
    EXPECT_EQ(SysFile::writeWhole("a.txt", {}), WriteResult::done);
    EXPECT_TRUE(files.fileExists(".\\a.txt"));
    EXPECT_TRUE(files.fileExists("..\\sub\\a.txt"));
    EXPECT_EQ(SysFile::stripDir(files.currentDirectory()), "sub");
    ASSERT_TRUE(files.setCurrentDirectory(before));
    EXPECT_TRUE(files.fileExists(at("sub\\a.txt")));
}

TEST_P(FileSystemContract, AMissingDirectoryOrAFileDoesNotBecomeTheCurrentOne) {
    const OrxString before = files.currentDirectory();
    put("a.txt", "");
    EXPECT_FALSE(files.setCurrentDirectory(at("none")));
    EXPECT_FALSE(files.setCurrentDirectory(at("a.txt")));
    EXPECT_EQ(files.currentDirectory(), before);
}

TEST_P(FileSystemContract, AStampIsStableWhileTheFileIsUnchanged) {
    put("a.ini", "one");
    const auto first = files.stamp(at("a.ini"));
    ASSERT_TRUE(first);
    EXPECT_EQ(first->size, 3U);
    EXPECT_EQ(content("a.ini"), "one");
    EXPECT_EQ(files.stamp(at("a.ini")), first);
}

TEST_P(FileSystemContract, AStampRevealsAReplacedFile) {
    put("a.ini", "one");
    const auto first = files.stamp(at("a.ini"));
    put("new.tmp", "two");
    ASSERT_TRUE(files.replaceFile(at("new.tmp"), at("a.ini")));
    EXPECT_NE(files.stamp(at("a.ini")), first);
}

TEST_P(FileSystemContract, OnlyAFileHasAStamp) {
    files.makeDirectories(at("dir"));
    EXPECT_EQ(files.stamp(at("dir")), std::nullopt);
    EXPECT_EQ(files.stamp(at("none")), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    All, FileSystemContract,
    testing::Values(NamedMaker{"Native", [] { return std::make_unique<NativeSubject>(); }},
                    NamedMaker{"Memory", [] { return std::make_unique<MemorySubject>(); }},
                    NamedMaker{"NotFailing", [] { return std::make_unique<FailingSubject>(); }}),
    [](const auto& subject) { return std::string(subject.param.name); });

#ifndef _WIN32
INSTANTIATE_TEST_SUITE_P(OfPosix, FileSystemContract,
                         testing::Values(NamedMaker{
                             "Confined", [] { return std::make_unique<ConfinedSubject>(); }}),
                         [](const auto& subject) { return std::string(subject.param.name); });
#endif

}  // namespace
}  // namespace quillmark
