#include <algorithm>
#include <cstdint>
#include <map>
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
    using Contents = std::map<std::string, std::string>;

    /// Every file of the output directory with its bytes.
    [[nodiscard]] Contents output() const {
        Contents all;
        for (const std::string& name : files.fileNames()) {
            if (name.starts_with("C:\\out\\")) {
                all.emplace(name, bytes(name));
            }
        }
        return all;
    }
    [[nodiscard]] static bool holds(const CapturingExceptionLog& log, const std::string& message) {
        const std::vector<std::string> all = log.messages();
        return std::find(all.begin(), all.end(), message) != all.end();
    }
    [[nodiscard]] bool logged(const std::string& message) const {
        return holds(exceptions, message);
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

TEST_F(DiskFailures, OfAFullDiskLeaveNoPageThatIsCut) {
    open();
    doc().insertText(u"a");
    doc().insertPageBreak();
    failing.fillDiskAfter(20);
    doc().insertText(u"b");
    doc().close();
    EXPECT_NE(out("rep.htm").find("a\n\n</BODY>\n</HTML>\n"), std::string::npos);
    EXPECT_FALSE(isWritten("C:\\out\\rep2.htm"));
    EXPECT_EQ(
        exceptions.messages(),
        (std::vector<std::string>{"Exception throw: Error writing to file: C:\\out\\rep2.htm\n",
                                  "Exception catch: Error writing to file: C:\\out\\rep2.htm\n"}));
}

TEST_F(DiskFailures, OfAnOutputDirectoryThatCannotBeMadeAreReported) {
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

TEST_F(DiskFailures, OfASubdirectoryThatCannotBeMadeAreReported) {
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

TEST_F(DiskFailures, AreRecordedOnlyWhenTheLogWantsThem) {
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
    writeDocument();
    renew();
    const std::size_t made = failing.count(GetParam().operation);
    ASSERT_GT(made, 0U);
    for (std::size_t number = 1; number <= made; ++number) {
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

TEST_P(EveryFailure, IsReportedAndLeavesNoFileThatIsCut) {
    html("Navig", "3");
    html("ScriptNavigator", "true");
    files.put("C:\\inst\\navigator\\order.txt", "a.js\n");
    files.put("C:\\inst\\navigator\\a.js", "script");
    failing.giveReason(1);
    writeDocument();
    renew();
    const Contents whole = output();
    const std::size_t made = failing.count(GetParam().operation);
    for (std::size_t number = 1; number <= made; ++number) {
        for (const auto& [name, content] : output()) {
            files.deleteFile(name);
        }
        const CapturingExceptionLog log;
        static_cast<void>(traced());
        failing.failAt(GetParam().operation, number);
        try {
            writeDocument();
        } catch (const OrxException&) {
            // The tree data file. The log has it.
        }
        renew();
        failing.heal();
        const Contents written = output();
        const bool isReported = !log.messages().empty() ||
                                traced().find("ERR The system reports: ") != std::string::npos;
        EXPECT_TRUE(written == whole || isReported) << GetParam().name << ' ' << number;
        for (const auto& [name, content] : written) {
            const auto found = whole.find(name);
            EXPECT_TRUE((found != whole.end() && content == found->second) ||
                        content.ends_with("\n"))
                << name;
        }
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
                      FailingOperation{Kind::lookUp, "lookUp"},
                      FailingOperation{Kind::setCurrentDirectory, "setCurrentDirectory"}),
    [](const auto& test) { return std::string(test.param.name); });

class FullDisk : public DiskFailures {
protected:
    FullDisk() { html("Navig", "3"); }

    [[nodiscard]] static std::uint64_t sizeOf(const Contents& contents) {
        std::uint64_t size = 0;
        for (const auto& [name, content] : contents) {
            size += content.size();
        }
        return size;
    }
    /// Writes the document again on a disk with that much room.
    Contents outputWith(std::uint64_t room) {
        for (const auto& [name, content] : output()) {
            files.deleteFile(name);
        }
        failing.fillDiskAfter(room);
        try {
            writeDocument();
        } catch (const OrxException&) {
            // The tree data file did not fit. The log has it.
        }
        renew();
        failing.heal();
        return output();
    }
    [[nodiscard]] static bool isReported(const CapturingExceptionLog& log,
                                         const std::string& name) {
        return holds(log, "Exception throw: Error writing to file: " + name + "\n");
    }
};

TEST_F(FullDisk, HoldsOnlyWholeFilesAndTheLogNamesEveryFileThatIsMissing) {
    writeDocument();
    renew();
    const Contents whole = output();
    const std::uint64_t copies = std::string("P { }\ngifone\ntwo\n").size();
    ASSERT_GT(sizeOf(whole), 4000U);
    for (std::uint64_t room = copies; room < sizeOf(whole); room += 23) {
        const CapturingExceptionLog log;
        const Contents written = outputWith(room);
        EXPECT_LE(sizeOf(written), room);
        for (const auto& [name, content] : whole) {
            const auto found = written.find(name);
            EXPECT_TRUE(found == written.end() || found->second == content) << name;
            // Without its tree data file the document has no contents pages.
            EXPECT_EQ(isReported(log, name) ||
                          (found == written.end() && isReported(log, "C:\\out\\rep_toc.dat")),
                      found == written.end())
                << name << " at " << room;
        }
    }
    EXPECT_EQ(outputWith(sizeOf(whole)), whole);
    EXPECT_EQ(files.openFiles(), 0);
}

TEST_F(FullDisk, LeavesTheOlderVersionOfWhatDoesNotFit) {
    writeDocument();
    renew();
    const Contents whole = output();
    for (std::uint64_t room = 0; room < sizeOf(whole); room += 97) {
        for (const auto& [name, content] : whole) {
            files.put(name, "older");
        }
        failing.fillDiskAfter(room);
        try {
            writeDocument();
        } catch (const OrxException&) {
            // The tree data file did not fit. The log has it.
        }
        renew();
        failing.heal();
        std::size_t older = 0;
        for (const auto& [name, content] : output()) {
            older += content == "older" ? 1 : 0;
            EXPECT_TRUE(content == "older" || content.ends_with("\n") || whole.at(name) == content)
                << name << ": " << content;
        }
        EXPECT_GT(older, 0U);
    }
}

TEST_F(FullDisk, WithoutRoomForACopyIsReported) {
    for (std::uint64_t room = 0; room < 17; ++room) {
        const CapturingExceptionLog log;
        EXPECT_LE(sizeOf(outputWith(room)), room);
        EXPECT_TRUE(isReported(log, "C:\\out\\rep_dtl.htm"));
    }
    EXPECT_EQ(files.openFiles(), 0);
}

}  // namespace
}  // namespace quillmark
