#include "replay/play/run_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "platform/drive_table.h"
#include "replay/services/drives_in_force.h"
#include "replay/services/registered_services.h"
#include "replay/services/run_settings.h"
#include "replay/tool/messages.h"
#include "support/memory_settings_store.h"

namespace quillmark::replay {
namespace {

using ::testing::ElementsAre;

TEST(HeardTrace, countsErrorLinesAndKeepsCallLines) {
    HeardTrace trace(true);
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

TEST(HeardExceptions, tellsEachFailureThatWasCaught) {
    std::vector<std::string> told;
    HeardExceptions log([&](std::string_view reason) { told.emplace_back(reason); }, {});
    EXPECT_TRUE(log.records("Catch"));
    EXPECT_FALSE(log.records("Throw"));
    log.write("Exception catch: no disk\n");
    EXPECT_THAT(told, ElementsAre("no disk"));
    EXPECT_EQ(log.caught(), 1U);
}

TEST(HeardExceptions, writesBothCategoriesDownWhenAsked) {
    std::vector<std::string> told;
    std::string written;
    HeardExceptions log([&](std::string_view reason) { told.emplace_back(reason); },
                        [&](std::string_view message) { written += message; });
    EXPECT_TRUE(log.records("Throw"));
    log.write("Exception throw: no disk\n");
    log.write("Exception catch: no disk\n");
    EXPECT_EQ(written, "Exception throw: no disk\nException catch: no disk\n");
    EXPECT_THAT(told, ElementsAre("no disk"));
}

TEST(RunCounts, countsWhatBecameOfTheDocuments) {
    RunCounts counts;
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

TEST(Messages, areOneLineEach) {
    std::ostringstream stream;
    Messages messages(stream, false);
    messages.tell("a\nb\x1B[31m\x7F\xC3\xA4");
    EXPECT_EQ(stream.str(), "a b?[31m?\xC3\xA4\n");
}

TEST(Messages, showNoProgressOfAShortRun) {
    std::ostringstream stream;
    Messages messages(stream, true);
    messages.progress(1000, 10);
    messages.clearProgress();
    EXPECT_EQ(stream.str(), "");
}

TEST(Messages, countInWords) {
    EXPECT_EQ(counted(0, "page"), "0 pages");
    EXPECT_EQ(counted(1, "page"), "1 page");
    EXPECT_EQ(counted(2, "page"), "2 pages");
    EXPECT_EQ(counted(1, "contents entry", "contents entries"), "1 contents entry");
    EXPECT_EQ(counted(5, "contents entry", "contents entries"), "5 contents entries");
}

class RunSettingsTest : public ::testing::Test {
protected:
    std::shared_ptr<MemorySettingsStore> store_ = std::make_shared<MemorySettingsStore>();
    RunSettings settings_{store_};
};

TEST_F(RunSettingsTest, standOverTheStore) {
    ASSERT_TRUE(store_->write("Html", "Navig", "1"));
    EXPECT_EQ(settings_.read("Html", "Navig"), OrxString("1"));
    settings_.set("html", "NAVIG", "2");
    settings_.set("Html", "Navig", "3");
    EXPECT_EQ(settings_.read("HTML", "navig"), OrxString("3"));
    EXPECT_EQ(store_->read("Html", "Navig"), OrxString("1"));
}

TEST_F(RunSettingsTest, mayBeSetToAnEmptyText) {
    ASSERT_TRUE(store_->write("Html", "StyleSheet", "a.css"));
    settings_.set("Html", "StyleSheet", "");
    EXPECT_EQ(settings_.read("Html", "StyleSheet"), OrxString(""));
}

TEST_F(RunSettingsTest, supplyWhatTheStoreDoesNotHave) {
    settings_.supply("Settings", "InstallDir", "inst");
    EXPECT_EQ(settings_.read("Settings", "installdir"), OrxString("inst"));
    ASSERT_TRUE(store_->write("Settings", "InstallDir", ""));
    EXPECT_EQ(settings_.read("Settings", "InstallDir"), OrxString("inst"));
    ASSERT_TRUE(store_->write("Settings", "InstallDir", "own"));
    EXPECT_EQ(settings_.read("Settings", "InstallDir"), OrxString("own"));
    EXPECT_EQ(settings_.read("Settings", "HelpFile"), std::nullopt);
}

TEST_F(RunSettingsTest, writeToTheStore) {
    EXPECT_TRUE(settings_.write("Html", "Navig", "2"));
    EXPECT_EQ(store_->read("Html", "Navig"), OrxString("2"));
}

TEST(DrivesInForce, areInTheTableForTheirLifeOnly) {
    {
        const DrivesInForce drives({{'C', "/first"}, {'D', "/other"}, {'c', "/second"}});
        EXPECT_EQ(DriveTable::find('C'), "/second");
        EXPECT_EQ(DriveTable::find('D'), "/other");
    }
    EXPECT_EQ(DriveTable::find('C'), std::nullopt);
    EXPECT_EQ(DriveTable::find('D'), std::nullopt);
}

TEST(RegisteredServices, areInForceForTheirLifeOnly) {
    OrxExceptionLog* const earlierLog = OrxException::getLog();
    HeardExceptions log([](std::string_view) {}, {});
    RunCounts counts;
    HostServices services;
    services.settings = std::make_shared<MemorySettingsStore>();
    services.profilePath = "my.ini";
    services.exceptionLog = &log;
    services.observer = &counts;
    {
        const RegisteredServices registered(services);
        EXPECT_EQ(OrxException::getLog(), &log);
        EXPECT_EQ(&DocumentObserver::current(), &counts);
        ASSERT_NE(AppProfileInterface::getInterface(), nullptr);
        EXPECT_EQ(AppProfileInterface::getInterface()->profilePath(), "my.ini");
    }
    EXPECT_EQ(OrxException::getLog(), earlierLog);
    EXPECT_NE(&DocumentObserver::current(), &counts);
    EXPECT_EQ(AppProfileInterface::getInterface(), nullptr);
}

}  // namespace
}  // namespace quillmark::replay
