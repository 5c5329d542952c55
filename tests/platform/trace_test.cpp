#include "platform/trace.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/files/sys_directory.h"
#include "platform/line_end.h"
#include "platform/system_facts.h"
#include "support/capturing_trace.h"
#include "support/failing_file_system.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

/// A text with the line ends of a log.
std::string lines(std::string_view text) {
    return OrxString(text).replaceStr("\n", systemLineEnd()).str();
}

class TraceLog : public testing::Test {
protected:
    /// A name that no other test of the process has used, for effects that happen once per process.
    static OrxString freshName() {
        static int counter = 0;
        return "C:\\logs\\" + std::to_string(++counter) + ".log";
    }
    [[nodiscard]] std::optional<std::string> logged() const { return memory.content(name); }

    MemoryFileSystem memory;
    FailingFileSystem files{memory};
    const OrxString name = freshName();

private:
    InstalledFileSystem installed_{files};

protected:
    TraceLog() { memory.makeDirectories("C:\\logs"); }
};

Trace openTrace(const OrxString& name, int level) {
    Trace trace;
    trace.open(name);
    trace.setLevel(level);
    return trace;
}

TEST_F(TraceLog, TakesLinesUpToItsLevel) {
    Trace trace = openTrace(name, Trace::calls);
    EXPECT_TRUE(trace.isTrace(Trace::errors));
    EXPECT_TRUE(trace.isTrace(Trace::calls));
    EXPECT_FALSE(trace.isTrace(Trace::reports));
    trace.write(Trace::errors, "ERR a\n");
    trace.write(Trace::calls, "call\n");
    trace.write(Trace::reports, "report\n");
    EXPECT_EQ(logged(), lines("ERR a\ncall\n"));
}

TEST_F(TraceLog, IsSilentFromTheStart) {
    Trace trace;
    EXPECT_FALSE(trace.isTrace(Trace::errors));
    trace.setLevel(Trace::reports);
    EXPECT_FALSE(trace.isTrace(Trace::errors));
    trace.write(Trace::errors, "ERR a\n");
    EXPECT_TRUE(memory.fileNames().empty());
}

TEST_F(TraceLog, IsCreatedByItsFirstLine) {
    Trace trace = openTrace(name, Trace::calls);
    EXPECT_EQ(logged(), std::nullopt);
    trace.write(Trace::calls, "a\n");
    EXPECT_EQ(logged(), lines("a\n"));
}

TEST_F(TraceLog, IsUpToDateAfterEveryWrite) {
    Trace trace = openTrace(name, Trace::calls);
    trace.write(Trace::calls, "a");
    EXPECT_EQ(logged(), "a");
    trace.write(Trace::calls, "b\n\n");
    EXPECT_EQ(logged(), lines("ab\n\n"));
}

TEST_F(TraceLog, KeepsWhatWasInIt) {
    memory.put(name, "before,");
    openTrace(name, Trace::calls).write(Trace::calls, "after\n");
    EXPECT_EQ(logged(), lines("before,after\n"));
}

TEST_F(TraceLog, IsSharedByCopiesWithTheirOwnLevels) {
    Trace document = openTrace(name, Trace::errors);
    Trace page = document;
    document.setLevel(Trace::calls);
    document.write(Trace::calls, "document\n");
    page.write(Trace::calls, "not wanted\n");
    page.write(Trace::errors, "page\n");
    document.write(Trace::calls, "document again\n");
    EXPECT_EQ(logged(), lines("document\npage\ndocument again\n"));
}

TEST_F(TraceLog, IsClosedForTheCopiesWhenTheOriginalCloses) {
    Trace document = openTrace(name, Trace::calls);
    Trace page = document;
    document.write(Trace::calls, "before\n");
    document.close();
    document.write(Trace::calls, "not wanted\n");
    page.write(Trace::calls, "not wanted either\n");
    EXPECT_FALSE(document.isTrace(Trace::errors));
    EXPECT_FALSE(page.isTrace(Trace::errors));
    EXPECT_EQ(memory.openFiles(), 0);
    EXPECT_EQ(logged(), lines("before\n"));
}

TEST_F(TraceLog, IsTakenUpAgainForTheCopiesToo) {
    Trace document = openTrace(name, Trace::calls);
    const Trace page = document;
    document.close();
    document.open(name);
    document.setLevel(Trace::errors);
    page.write(Trace::calls, "page\n");
    EXPECT_EQ(logged(), lines("page\n"));
}

TEST_F(TraceLog, IsExchangedForTheCopiesToo) {
    const OrxString next = freshName();
    Trace document = openTrace(name, Trace::calls);
    const Trace page = document;
    document.write(Trace::calls, "before\n");
    document.open(next);
    page.write(Trace::calls, "page\n");
    EXPECT_EQ(logged(), lines("before\n"));
    EXPECT_EQ(memory.content(next), lines("page\n"));
    EXPECT_EQ(memory.openFiles(), 1);
}

TEST_F(TraceLog, StaysOpenForAnotherDocumentThatTracesIntoIt) {
    Trace one = openTrace(name, Trace::calls);
    Trace other = openTrace(name, Trace::calls);
    one.close();
    other.write(Trace::calls, "other\n");
    EXPECT_EQ(logged(), lines("other\n"));
}

TEST_F(TraceLog, IsOneForTwoTracesOfTheSameName) {
    Trace one = openTrace(name, Trace::calls);
    Trace other = openTrace(OrxString(name).replaceStr("\\", "/"), Trace::calls);
    one.write(Trace::calls, "1\n");
    other.write(Trace::calls, "2\n");
    one.write(Trace::calls, "3\n");
    EXPECT_EQ(logged(), lines("1\n2\n3\n"));
    EXPECT_EQ(files.count(FailingFileSystem::Operation::openForAppending), 1U);
}

TEST_F(TraceLog, IsClosedWhenItsLastTraceGoes) {
    {
        Trace trace = openTrace(name, Trace::calls);
        const Trace copy = trace;
        trace.write(Trace::calls, "a\n");
        EXPECT_EQ(memory.openFiles(), 1);
    }
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(TraceLog, StaysTheSameFileWhenTheCurrentDirectoryChanges) {
    memory.makeDirectories("C:\\other");
    ASSERT_TRUE(SysDirectory::setCurrentDir("C:\\logs"));
    Trace trace = openTrace("relative.log", Trace::calls);
    ASSERT_TRUE(SysDirectory::setCurrentDir("C:\\other"));
    trace.write(Trace::calls, "a\n");
    EXPECT_EQ(memory.content("C:\\logs\\relative.log"), lines("a\n"));
}

TEST_F(TraceLog, IsInTheTemporaryDirectoryIfItHasNoName) {
    const OrxString directory = system_facts::temporaryDirectory();
    memory.makeDirectories(directory);
    openTrace("", Trace::calls).write(Trace::calls, "a\n");
    EXPECT_EQ(memory.content(directory + "\\dochtml.log"), lines("a\n"));
}

TEST_F(TraceLog, IsSilentWhenItCannotBeOpened) {
    Trace trace = openTrace("C:\\none\\a.log", Trace::calls);
    trace.write(Trace::calls, "lost\n");
    EXPECT_FALSE(trace.isTrace(Trace::calls));
    memory.makeDirectories("C:\\none");
    trace.write(Trace::calls, "lost too\n");
    trace.open("C:\\none\\a.log");
    trace.write(Trace::calls, "kept\n");
    EXPECT_EQ(memory.content("C:\\none\\a.log"), lines("kept\n"));
}

TEST_F(TraceLog, GoesSilentWhenTheDiskIsFull) {
    Trace trace = openTrace(name, Trace::calls);
    files.fillDiskAfter(2);
    trace.write(Trace::calls, "abc");
    EXPECT_FALSE(trace.isTrace(Trace::calls));
    files.heal();
    trace.write(Trace::calls, "lost");
    EXPECT_EQ(logged(), "ab");
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(TraceLog, LosesTheLinesOfAnEarlierProcessWithAPurge) {
    memory.put(name, "of an earlier process\n");
    Trace trace;
    trace.purgeBefore(name);
    EXPECT_EQ(logged(), "");
    trace.open(name);
    trace.setLevel(Trace::calls);
    trace.write(Trace::calls, "mine\n");
    trace.purgeBefore(name);
    EXPECT_EQ(logged(), lines("mine\n"));
}

TEST_F(TraceLog, IsNotCreatedByAPurge) {
    Trace().purgeBefore(name);
    EXPECT_EQ(logged(), std::nullopt);
}

TEST_F(TraceLog, KeepsTheLinesOfThisProcessDespiteAPurge) {
    openTrace(name, Trace::calls).write(Trace::calls, "mine\n");
    Trace().purgeBefore(name);
    EXPECT_EQ(logged(), lines("mine\n"));
}

TEST_F(TraceLog, CanBeListenedToWithoutAFile) {
    CapturingTrace listener(Trace::calls);
    Trace trace;
    EXPECT_TRUE(trace.isTrace(Trace::calls));
    EXPECT_FALSE(trace.isTrace(Trace::reports));
    trace.write(Trace::calls, "a\n");
    trace.write(Trace::reports, "b\n");
    EXPECT_EQ(listener.text(), "a\n");
    EXPECT_TRUE(memory.fileNames().empty());
}

TEST_F(TraceLog, AndItsListenerHaveTheirOwnLevels) {
    CapturingTrace listener(Trace::errors);
    Trace trace = openTrace(name, Trace::calls);
    trace.write(Trace::errors, "ERR\n");
    trace.write(Trace::calls, "call\n");
    EXPECT_EQ(listener.text(), "ERR\n");
    EXPECT_EQ(logged(), lines("ERR\ncall\n"));
}

TEST_F(TraceLog, ListenersAreReplaced) {
    CapturingTrace outer;
    {
        CapturingTrace inner;
        Trace().write(Trace::calls, "in\n");
        EXPECT_EQ(inner.text(), "in\n");
    }
    Trace().write(Trace::calls, "out\n");
    EXPECT_EQ(outer.text(), "out\n");
}

}  // namespace
}  // namespace quillmark
