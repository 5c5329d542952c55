#include "contents/contents_pages.h"

#include <gtest/gtest.h>

#include "contents/contents_fixture.h"
#include "foundation/orx_exception.h"
#include "support/capturing_exception_log.h"
#include "support/capturing_trace.h"
#include "support/failing_file_system.h"

namespace quillmark {
namespace {

using Names = std::vector<std::string>;

/// Passes everything on and notes, in order, what is written, copied and entered.
class OrderNotingFileSystem final : public FailingFileSystem {
public:
    using FailingFileSystem::FailingFileSystem;
    bool copyFile(const OrxString& source, const OrxString& target) override {
        notes.push_back("copy " + source.str());
        return FailingFileSystem::copyFile(source, target);
    }
    bool deleteFile(const OrxString& name) override {
        notes.push_back("delete " + name.str());
        return FailingFileSystem::deleteFile(name);
    }
    bool setCurrentDirectory(const OrxString& name) override {
        notes.push_back("enter " + name.str());
        return FailingFileSystem::setCurrentDirectory(name);
    }
    std::unique_ptr<OutputFile> openForReplacing(const OrxString& name) override {
        notes.push_back("write " + name.str());
        return FailingFileSystem::openForReplacing(name);
    }

    Names notes;
};

class ContentsPages : public testing::ContentsTest {
protected:
    ContentsPages() {
        entries.add({.href = "rep_dtl.htm#toc1", .text = "Intro", .level = 1, .gif = "Class.gif"});
    }

    CapturingTrace lines;
    FailingFileSystem failing{files};
    InstalledFileSystem failingInForce{failing};
};

TEST_F(ContentsPages, AreTreeContentsAndStartPage) {
    writeContentsPages(context);
    EXPECT_EQ(files.fileNames(),
              (Names{"C:\\out\\rep.htm", "C:\\out\\rep_cnt.htm", "C:\\out\\rep_toc.dat"}));
    EXPECT_EQ(files.currentDirectory(), "C:\\out");
}

TEST_F(ContentsPages, IncludeTheFrameSetsForOldBrowsers) {
    context.supportOld = true;
    writeContentsPages(context);
    EXPECT_EQ(files.fileNames(),
              (Names{"C:\\out\\rep.htm", "C:\\out\\rep_cnt.htm", "C:\\out\\rep_fcnt.htm",
                     "C:\\out\\rep_ffrm.htm", "C:\\out\\rep_scnt.htm", "C:\\out\\rep_sfrm.htm",
                     "C:\\out\\rep_toc.dat"}));
}

TEST_F(ContentsPages, AreWrittenInTheirOrder) {
    OrderNotingFileSystem noting(files);
    const InstalledFileSystem notingInForce(noting);
    files.put("C:\\inst\\toc2.jar", "");
    files.put("C:\\inst\\icons.zip", "");
    context.supportOld = true;
    writeContentsPages(context);
    EXPECT_EQ(noting.notes,
              (Names{"copy C:\\inst\\toc2.jar", "copy C:\\inst\\icons.zip", "enter C:\\out",
                     "write C:\\out\\rep_toc.dat", "delete C:\\out\\rep_toc.dat.zip",
                     "write C:\\out\\rep_cnt.htm", "write C:\\out\\rep_fcnt.htm",
                     "write C:\\out\\rep_ffrm.htm", "write C:\\out\\rep_scnt.htm",
                     "write C:\\out\\rep_sfrm.htm", "write C:\\out\\rep.htm"}));
}

TEST_F(ContentsPages, NameThePlainTreeWhenThereIsNoArchiver) {
    writeContentsPages(context);
    EXPECT_NE(body("rep_cnt.htm").find("<PARAM NAME=TOCFILE VALUE='rep_toc.dat'>"),
              std::string::npos);
    EXPECT_EQ(lines.text(), "ERR: running C:\\inst\\zip.exe\n");
}

TEST_F(ContentsPages, LeaveIconsOutOfTheTreeWhenTheyAreNotShown) {
    writeContentsPages(context);
    EXPECT_NE(written("rep_toc.dat").find("Class.gif"), std::string::npos);
    context.showIcons = false;
    writeContentsPages(context);
    EXPECT_EQ(written("rep_toc.dat").find("Class.gif"), std::string::npos);
}

TEST_F(ContentsPages, AreNotWrittenWhenTheTreeCannotBeWritten) {
    failing.failAt(FailingFileSystem::Operation::openForWriting, 1);
    try {
        writeContentsPages(context);
        FAIL() << "the tree was written";
    } catch (const OrxException& problem) {
        EXPECT_EQ(problem.reasonText(), "Error opening file: C:\\out\\rep_toc.dat");
    }
    EXPECT_EQ(files.fileNames(), Names{});
}

TEST_F(ContentsPages, AreWrittenAndLoggedWhenOneOfThemCannotBeWritten) {
    const CapturingExceptionLog log;
    failing.failAt(FailingFileSystem::Operation::openForWriting, 2);
    writeContentsPages(context);
    EXPECT_EQ(log.messages(),
              (Names{"Exception throw: Error opening file: C:\\out\\rep_cnt.htm\n",
                     "Exception catch: Error opening file: C:\\out\\rep_cnt.htm\n"}));
    EXPECT_EQ(files.fileNames(), (Names{"C:\\out\\rep.htm", "C:\\out\\rep_toc.dat"}));
}

TEST_F(ContentsPages, AreWrittenWhenTheDirectoryCannotBeEntered) {
    failing.failAll(FailingFileSystem::Operation::setCurrentDirectory);
    writeContentsPages(context);
    EXPECT_EQ(files.fileNames(),
              (Names{"C:\\out\\rep.htm", "C:\\out\\rep_cnt.htm", "C:\\out\\rep_toc.dat"}));
}

}  // namespace
}  // namespace quillmark
