#include "page/file_copier.h"

#include <gtest/gtest.h>

#include <vector>

#include "host/document_observer.h"
#include "support/capturing_trace.h"
#include "support/failing_file_system.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

class Copies : public ::testing::Test {
protected:
    using Operation = FailingFileSystem::Operation;

    Copies() { files.put("C:\\src\\a.doc", "doc"); }
    std::string copied(const OrxString& source, const OrxString& targetName = "") {
        return copier.copyToDir(source, "C:\\out\\docs", targetName, trace).str();
    }
    [[nodiscard]] std::string bytes(const OrxString& name) const {
        return files.content(name).value_or("(none)");
    }

    MemoryFileSystem files;
    FailingFileSystem failing{files};
    InstalledFileSystem installed{failing};
    CapturingTrace heard;
    Trace trace;
    FileCopier copier;
};

TEST_F(Copies, AreInTheDirectoryUnderTheirOwnName) {
    EXPECT_EQ(copied("C:\\src\\a.doc"), "C:\\out\\docs\\a.doc");
    EXPECT_EQ(bytes("C:\\out\\docs\\a.doc"), "doc");
    EXPECT_EQ(heard.text(), "");
}

TEST_F(Copies, AreInTheDirectoryUnderANewName) {
    EXPECT_EQ(copied("C:\\src\\a.doc", "b.txt"), "C:\\out\\docs\\b.txt");
    EXPECT_EQ(bytes("C:\\out\\docs\\b.txt"), "doc");
    EXPECT_EQ(bytes("C:\\out\\docs\\a.doc"), "(none)");
}

TEST_F(Copies, ReplaceWhatIsThere) {
    files.put("C:\\out\\docs\\a.doc", "an older and longer one");
    EXPECT_EQ(copied("C:\\src\\a.doc"), "C:\\out\\docs\\a.doc");
    EXPECT_EQ(bytes("C:\\out\\docs\\a.doc"), "doc");
}

TEST_F(Copies, AreNotMadeOfAMissingFile) {
    EXPECT_EQ(copied("C:\\src\\gone.doc"), "C:\\src\\gone.doc");
    EXPECT_EQ(copied(""), "");
    EXPECT_FALSE(files.directoryExists("C:\\out\\docs"));
    EXPECT_EQ(heard.text(), "");
}

TEST_F(Copies, AreNotMadeOfAListedExtension) {
    copier = FileCopier(".pdf;.docx");
    files.put("C:\\src\\b.pd", "");
    files.put("C:\\src\\b.DOC", "");
    files.put("C:\\src\\b", "");
    EXPECT_EQ(copied("C:\\src\\a.doc"), "C:\\src\\a.doc") << "inside a longer one";
    EXPECT_EQ(copied("C:\\src\\b.pd"), "C:\\src\\b.pd");
    EXPECT_EQ(copied("C:\\src\\b.DOC"), "C:\\out\\docs\\b.DOC") << "case counts";
    EXPECT_EQ(copied("C:\\src\\b"), "C:\\out\\docs\\b") << "no extension is never listed";
}

TEST_F(Copies, ThatFailFallBackToTheSource) {
    failing.failAll(Operation::copyFile);
    EXPECT_EQ(copied("C:\\src\\a.doc"), "C:\\src\\a.doc");
    EXPECT_EQ(heard.text(), "ERR Could not copy file C:\\src\\a.doc to directory C:\\out\\docs\n");
}

TEST_F(Copies, ThatFailLeaveAnOlderCopyInUse) {
    files.put("C:\\out\\docs\\a.doc", "old");
    failing.failAll(Operation::copyFile);
    EXPECT_EQ(copied("C:\\src\\a.doc"), "C:\\out\\docs\\a.doc");
    EXPECT_EQ(heard.text(), "ERR Could not copy file C:\\src\\a.doc to directory C:\\out\\docs\n");
}

TEST_F(Copies, ThatFailAreTracedAsErrors) {
    failing.failAll(Operation::copyFile);
    {
        const CapturingTrace nobody(0);
        copied("C:\\src\\a.doc");
        EXPECT_EQ(nobody.text(), "");
    }
    const CapturingTrace errors(Trace::errors);
    copied("C:\\src\\a.doc");
    EXPECT_NE(errors.text(), "");
}

TEST_F(Copies, FailWithoutTheirDirectory) {
    files.put("C:\\out", "a file");
    EXPECT_EQ(copied("C:\\src\\a.doc"), "C:\\src\\a.doc");
    EXPECT_EQ(heard.text(), "ERR Could not copy file C:\\src\\a.doc to directory C:\\out\\docs\n");
}

TEST_F(Copies, OntoThemselvesSucceed) {
    files.put("C:\\out\\docs\\a.doc", "same");
    EXPECT_EQ(copied("C:\\out\\docs\\a.doc"), "C:\\out\\docs\\a.doc");
    EXPECT_EQ(bytes("C:\\out\\docs\\a.doc"), "same");
    EXPECT_EQ(heard.text(), "");
}

/// Counts the copies that are reported to it.
class CopyObserver : public DocumentObserver {
public:
    CopyObserver() : before_(install(this)) {}
    ~CopyObserver() override { install(before_); }
    CopyObserver(const CopyObserver&) = delete;
    CopyObserver& operator=(const CopyObserver&) = delete;
    void fileCopied(const OrxString& target) override { targets.push_back(target); }

    std::vector<OrxString> targets;

private:
    DocumentObserver* before_;
};

TEST_F(Copies, AreReportedToTheObserverWhenTheySucceed) {
    const CopyObserver observer;
    copied("C:\\src\\gone.doc");
    copied("C:\\src\\a.doc");
    failing.failAll(Operation::copyFile);
    copied("C:\\src\\a.doc");
    EXPECT_EQ(observer.targets, (std::vector<OrxString>{"C:\\out\\docs\\a.doc"}));
}

}  // namespace
}  // namespace quillmark
