#include "replay/play/exception_monitor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "replay/play/document_counts.h"
#include "replay/play/trace_monitor.h"
#include "replay/services/settings_overlay.h"
#include "replay/tool/messages.h"
#include "support/memory_settings_store.h"

namespace quillmark::replay {
namespace {

using ::testing::ElementsAre;

TEST(TraceMonitor, CountsErrorLinesAndKeepsCallLines) {
    TraceMonitor trace(true);
    trace.line(1, "ERR File not found: a\n");
    trace.line(1, "ERR: running zip.exe\n");
    trace.line(10, "dochtml->insertPageBreak();\n\n");
    trace.line(10, "WARNING: bookmark\n");
    trace.line(11, "created bookmark:dochtml->\n");
    EXPECT_EQ(trace.warnings(), 1U);
    ASSERT_EQ(trace.calls().size(), 1U);
    EXPECT_EQ(trace.calls()[0], "dochtml->insertPageBreak();");
    trace.forgetCalls();
    EXPECT_EQ(trace.calls().size(), 0U);
}

TEST(ExceptionMonitor, ReportsEachFailureThatWasCaught) {
    std::vector<std::string> told;
    ExceptionMonitor log([&](std::string_view reason) { told.emplace_back(reason); }, {});
    EXPECT_TRUE(log.records("Catch"));
    EXPECT_FALSE(log.records("Throw"));
    log.write("Exception catch: no disk\n");
    EXPECT_THAT(told, ElementsAre("no disk"));
    EXPECT_EQ(log.caught(), 1U);
}

TEST(ExceptionMonitor, RecordsBothCategoriesOnRequest) {
    std::vector<std::string> told;
    std::string written;
    ExceptionMonitor log([&](std::string_view reason) { told.emplace_back(reason); },
                         [&](std::string_view message) { written += message; });
    EXPECT_TRUE(log.records("Throw"));
    log.write("Exception throw: no disk\n");
    log.write("Exception catch: no disk\n");
    EXPECT_EQ(written, "Exception throw: no disk\nException catch: no disk\n");
    EXPECT_THAT(told, ElementsAre("no disk"));
}

TEST(DocumentCounts, CountTheEventsOfDocuments) {
    DocumentCounts counts;
    DocumentObserver& observer = counts;
    observer.pageWritten("a.htm");
    observer.pageWritten("b.htm");
    observer.fileCopied("a.gif");
    observer.contentsEntryAdded();
    observer.unresolvedReferences("a.htm", 3);
    observer.unresolvedReferences("b.htm", 4);
    EXPECT_EQ(counts.pages, 2U);
    EXPECT_EQ(counts.files, 1U);
    EXPECT_EQ(counts.contentsEntries, 1U);
    EXPECT_EQ(counts.unresolved, 7U);
}

TEST(Messages, AreOneLineEach) {
    std::ostringstream stream;
    Messages messages(stream, false);
    messages.write("a\nb\x1B[31m\x7F\xC3\xA4");
    EXPECT_EQ(stream.str(), "a b?[31m?\xC3\xA4\n");
}

TEST(Messages, ShowNoProgressOfAShortRun) {
    std::ostringstream stream;
    Messages messages(stream, true);
    messages.progress(1000, 10);
    messages.clearProgress();
    EXPECT_EQ(stream.str(), "");
}

TEST(Messages, CountInWords) {
    EXPECT_EQ(counted(0, "page"), "0 pages");
    EXPECT_EQ(counted(1, "page"), "1 page");
    EXPECT_EQ(counted(2, "page"), "2 pages");
    EXPECT_EQ(counted(1, "contents entry", "contents entries"), "1 contents entry");
    EXPECT_EQ(counted(5, "contents entry", "contents entries"), "5 contents entries");
}

class SettingsOverlayTest : public ::testing::Test {
protected:
    std::shared_ptr<MemorySettingsStore> store_ = std::make_shared<MemorySettingsStore>();
    SettingsOverlay settings_{store_};
};

TEST_F(SettingsOverlayTest, TakesPrecedenceOverTheStore) {
    ASSERT_TRUE(store_->write("Html", "Navig", "1"));
    EXPECT_EQ(settings_.read("Html", "Navig"), OrxString("1"));
    settings_.set("html", "NAVIG", "2");
    settings_.set("Html", "Navig", "3");
    EXPECT_EQ(settings_.read("HTML", "navig"), OrxString("3"));
    EXPECT_EQ(store_->read("Html", "Navig"), OrxString("1"));
}

TEST_F(SettingsOverlayTest, AcceptsAnEmptyText) {
    ASSERT_TRUE(store_->write("Html", "StyleSheet", "a.css"));
    settings_.set("Html", "StyleSheet", "");
    EXPECT_EQ(settings_.read("Html", "StyleSheet"), OrxString(""));
}

TEST_F(SettingsOverlayTest, WritesToTheStore) {
    EXPECT_TRUE(settings_.write("Html", "Navig", "2"));
    EXPECT_EQ(store_->read("Html", "Navig"), OrxString("2"));
}

}  // namespace
}  // namespace quillmark::replay
