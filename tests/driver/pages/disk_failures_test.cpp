#include <algorithm>
#include <ostream>

#include "driver/document_fixture.h"
#include "support/failing_file_system.h"

namespace quillmark {
namespace {

class DiskFailures : public testing::DocumentTest {
protected:
    using Operation = FailingFileSystem::Operation;

    /// Two pages with everything that touches the disk.
    void writeDocument() {
        files.put("C:\\pics\\a.gif", "gif");
        files.put("C:\\pics\\a.txt", "one\ntwo\n");
        doc().create(u"C:\\out\\rep.htm");
        doc().insertImage(u"C:\\pics\\a.gif", u"");
        doc().insertFile(u"C:\\pics\\a.txt", 3);
        doc().insertXref(u"doc", u"C:\\pics\\a.txt");
        doc().insertXref(u"later", u"later");
        doc().insertLocate();
        doc().pushDirectory(u"sub");
        doc().insertTag(u"later");
        doc().insertText(u"second page");
        doc().close();
    }
    [[nodiscard]] bool logged(const std::string& message) const {
        const std::vector<std::string> all = exceptions.messages();
        return std::find(all.begin(), all.end(), message) != all.end();
    }

    FailingFileSystem failing{files};
    InstalledFileSystem failingInForce{failing};
};

TEST_F(DiskFailures, OfOnePageLeaveTheOthers) {
    failing.failAt(Operation::openForWriting, 1);
    writeDocument();
    EXPECT_EQ(
        exceptions.messages(),
        (std::vector<std::string>{"Exception throw: Error opening file: C:\\out\\rep.htm\n",
                                  "Exception catch: Error opening file: C:\\out\\rep.htm\n"}));
    EXPECT_FALSE(isWritten("C:\\out\\rep.htm"));
    EXPECT_NE(out("sub\\rep2.htm").find("second page"), std::string::npos);
}

TEST_F(DiskFailures, OfAFullDiskWriteWhatFits) {
    open();
    doc().insertText(u"a");
    doc().insertPageBreak();
    failing.fillDiskAfter(20);
    doc().insertText(u"b");
    doc().close();
    EXPECT_NE(out("rep.htm").find("a\n\n</BODY>\n</HTML>\n"), std::string::npos);
    EXPECT_EQ(out("rep2.htm"), "<!DOCTYPE HTML PUBLI");
    EXPECT_EQ(
        exceptions.messages(),
        (std::vector<std::string>{"Exception throw: Error writing to file: C:\\out\\rep2.htm\n",
                                  "Exception catch: Error writing to file: C:\\out\\rep2.htm\n"}));
}

TEST_F(DiskFailures, OfAnOutputDirectoryThatCannotBeMadeAreTold) {
    files.put("C:\\out", "a file");
    open();
    doc().insertText(u"a");
    doc().close();
    EXPECT_EQ(
        exceptions.messages(),
        (std::vector<std::string>{"Exception throw: Error opening file: C:\\out\\rep.htm\n",
                                  "Exception catch: Error opening file: C:\\out\\rep.htm\n"}));
    EXPECT_NE(traced().find("ERR Could not copy file C:\\inst\\default.css to directory C:\\out\n"),
              std::string::npos);
}

TEST_F(DiskFailures, OfASubdirectoryThatCannotBeMadeAreTold) {
    open();
    files.put("C:\\out\\sub", "a file");
    doc().pushDirectory(u"sub");
    doc().insertText(u"a");
    doc().insertPageBreak();
    doc().popDirectory();
    doc().insertPageBreak();
    doc().insertText(u"b");
    doc().close();
    EXPECT_TRUE(logged("Exception catch: Error opening file: C:\\out\\sub\\rep.htm\n"));
    EXPECT_EQ(bodyOf("rep3.htm", 3), "b");
}

TEST_F(DiskFailures, OfTheStyleSheetLinkTheSource) {
    failing.failAt(Operation::copyFile, 1);
    open();
    EXPECT_NE(traced().find("ERR Could not copy file C:\\inst\\default.css to directory C:\\out\n"),
              std::string::npos);
    doc().close();
    EXPECT_NE(out("rep.htm").find("HREF=\"../inst/default.css\""), std::string::npos);
}

TEST_F(DiskFailures, InADestructorAreLogged) {
    open();
    doc().insertText(u"a");
    failing.failAll(Operation::openForWriting);
    renew();
    EXPECT_TRUE(logged("Exception catch: Error opening file: C:\\out\\rep.htm\n"));
}

TEST_F(DiskFailures, OfContentsInADestructorAreLogged) {
    html("Navig", "1");
    open();
    doc().insertText(u"a");
    failing.failAll(Operation::openForWriting);
    renew();  // the tree data file cannot be written either: that throws, but not from here
    EXPECT_TRUE(logged("Exception catch: Error opening file: C:\\out\\rep_dtl.htm\n"));
}

TEST_F(DiskFailures, AreOnlyAskedForWhenTheLogWantsThem) {
    const CapturingExceptionLog catches(CapturingExceptionLog::Records::catchesOnly);
    open();
    failing.failAll(Operation::openForWriting);
    doc().close();
    EXPECT_EQ(
        catches.messages(),
        (std::vector<std::string>{"Exception catch: Error opening file: C:\\out\\rep.htm\n"}));
}

struct FailingOperation {
    FailingFileSystem::Operation operation;
    const char* name;

    friend void PrintTo(const FailingOperation& failing, std::ostream* out) {
        *out << failing.name;
    }
};

/// One failure at a time, at every place where one can come.
class EveryFailure : public DiskFailures, public ::testing::WithParamInterface<FailingOperation> {};

TEST_P(EveryFailure, LeavesAnObjectThatWritesTheNextDocument) {
    html("Navig", "3");
    for (std::size_t number = 1; number <= 30; ++number) {
        failing.failAt(GetParam().operation, number);
        try {
            writeDocument();
        } catch (const OrxException& problem) {
            EXPECT_NE(problem.reasonText(), "");  // the tree data file
        }
        EXPECT_EQ(files.openFiles(), 0);
        failing.heal();
        renew();
        open(u"C:\\next\\rep.htm");
        doc().insertText(u"next");
        doc().close();
        EXPECT_NE(bytes("C:\\next\\rep_dtl.htm").find("next"), std::string::npos);
        renew();
    }
}

using Kind = FailingFileSystem::Operation;
INSTANTIATE_TEST_SUITE_P(
    OfEveryKind, EveryFailure,
    ::testing::Values(FailingOperation{Kind::openForReading, "openForReading"},
                      FailingOperation{Kind::openForWriting, "openForWriting"},
                      FailingOperation{Kind::read, "read"}, FailingOperation{Kind::write, "write"},
                      FailingOperation{Kind::close, "close"},
                      FailingOperation{Kind::makeDirectories, "makeDirectories"},
                      FailingOperation{Kind::copyFile, "copyFile"},
                      FailingOperation{Kind::deleteFile, "deleteFile"},
                      FailingOperation{Kind::replaceFile, "replaceFile"},
                      FailingOperation{Kind::setCurrentDirectory, "setCurrentDirectory"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(DiskFailures, OfADiskThatFillsAnywhereAreSurvived) {
    html("Navig", "3");
    for (std::uint64_t room = 0; room < 4000; room += 7) {
        failing.fillDiskAfter(room);
        try {
            writeDocument();
        } catch (const OrxException& problem) {
            EXPECT_NE(problem.reasonText(), "");
        }
        renew();
        failing.heal();
    }
    EXPECT_EQ(files.openFiles(), 0);
}

}  // namespace
}  // namespace quillmark
