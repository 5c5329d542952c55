#include "settings/settings_store.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/files/drive_table.h"
#include "support/failing_file_system.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

using Operation = FailingFileSystem::Operation;

class IniStore : public testing::Test {
protected:
    void put(const std::string& text) { memory.put(place, text); }
    [[nodiscard]] std::string text() const { return memory.content(place).value_or("(none)"); }

    const OrxString place = "C:\\conf\\quillmark\\settings.ini";
    MemoryFileSystem memory;
    FailingFileSystem files{memory};
    std::shared_ptr<SettingsStore> store = makeIniSettingsStore(place);

private:
    InstalledFileSystem installed_{files};
};

TEST_F(IniStore, KnowsNothingWhileItsFileIsMissing) {
    EXPECT_EQ(store->read("Html", "Navig"), std::nullopt);
    EXPECT_EQ(store->problem(), "");
}

TEST_F(IniStore, CreatesItsFileAndDirectoryWithTheFirstValue) {
    EXPECT_TRUE(store->write("Html", "Navig", "3"));
    EXPECT_EQ(text(), "[Html]\nNavig=3\n");
    EXPECT_EQ(store->read("html", "NAVIG"), "3");
}

TEST_F(IniStore, LeavesNoOtherFile) {
    EXPECT_TRUE(store->write("Html", "Navig", "3"));
    EXPECT_TRUE(store->write("Html", "Navig", "2"));
    EXPECT_EQ(memory.fileNames(), std::vector<std::string>{place.str()});
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(IniStore, KeepsEverythingElseInTheFile) {
    put("; by hand\n[Settings]\nInstallDir=C:\\q\n\n[Html]\nodd\nNavig=1\n");
    EXPECT_TRUE(store->write("Html", "Navig", "3"));
    EXPECT_EQ(text(), "; by hand\n[Settings]\nInstallDir=C:\\q\n\n[Html]\nodd\nNavig=3\n");
}

TEST_F(IniStore, KeepsEveryCharacterInUtf8) {
    put("[Html]\nHtmlPixDir=f\xC3\xBCr \xE2\x82\xAC\n");
    EXPECT_EQ(store->read("Html", "HtmlPixDir"), "f\xC3\xBCr \xE2\x82\xAC");
    EXPECT_TRUE(store->write("Html", "IconFile", "\xE6\x97\xA5"));
    EXPECT_EQ(text(), "[Html]\nHtmlPixDir=f\xC3\xBCr \xE2\x82\xAC\nIconFile=\xE6\x97\xA5\n");
}

TEST_F(IniStore, SkipsAByteOrderMarkAndKeepsIt) {
    put("\xEF\xBB\xBF[Html]\nNavig=2\n");
    EXPECT_EQ(store->read("Html", "Navig"), "2");
    EXPECT_TRUE(store->write("Html", "Navig", "3"));
    EXPECT_EQ(text(), "\xEF\xBB\xBF[Html]\nNavig=3\n");
}

TEST_F(IniStore, SeesWhatAnotherProcessChanged) {
    put("[Html]\nNavig=1\n");
    EXPECT_EQ(store->read("Html", "Navig"), "1");
    put("[Html]\nNavig=2\n");
    EXPECT_EQ(store->read("Html", "Navig"), "2");
    EXPECT_TRUE(memory.deleteFile(place));
    EXPECT_EQ(store->read("Html", "Navig"), std::nullopt);
}

TEST_F(IniStore, ReadsItsFileOnceWhileItStays) {
    put("[Html]\nNavig=1\n");
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(store->read("Html", "Navig"), "1");
    }
    EXPECT_EQ(files.count(Operation::openForReading), 1U);
}

TEST_F(IniStore, KeepsTheOldValueWhenTheNewOneCannotBeWritten) {
    put("[Html]\nNavig=1\n");
    for (const Operation failing :
         {Operation::openForWriting, Operation::write, Operation::close, Operation::replaceFile}) {
        files.failAt(failing, 1);
        EXPECT_FALSE(store->write("Html", "Navig", "3"));
        EXPECT_EQ(store->read("Html", "Navig"), "1");
        EXPECT_EQ(text(), "[Html]\nNavig=1\n");
        EXPECT_EQ(memory.fileNames().size(), 1U);
    }
}

TEST_F(IniStore, ReportsThatItsDirectoryCannotBeCreated) {
    files.failAll(Operation::makeDirectories);
    EXPECT_FALSE(store->write("Html", "Navig", "3"));
}

TEST_F(IniStore, RejectsAValueThatAnIniFileCannotHold) {
    put("[Html]\nNavig=1\n");
    EXPECT_FALSE(store->write("Html", "BodyTags", "a\nb"));
    EXPECT_EQ(text(), "[Html]\nNavig=1\n");
}

TEST_F(IniStore, ReportsTheDamagedLine) {
    put("[Html]\nNavig=1\n\x01\x02garbage\n");
    EXPECT_EQ(store->problem(), "Line 3 of the settings file " + nativePath(place) +
                                    " is neither a section nor a setting");
    EXPECT_EQ(store->read("Html", "Navig"), "1");
}

TEST_F(IniStore, ReportsThatItsFileCannotBeReadAndDoesNotOverwriteIt) {
    put("[Html]\nNavig=1\n");
    files.failAll(Operation::openForReading);
    EXPECT_EQ(store->problem(), "Cannot read the settings file " + nativePath(place));
    EXPECT_EQ(store->read("Html", "Navig"), std::nullopt);
    EXPECT_FALSE(store->write("Html", "Navig", "3"));
    EXPECT_EQ(text(), "[Html]\nNavig=1\n");
    files.heal();
    EXPECT_EQ(store->read("Html", "Navig"), "1");
    EXPECT_EQ(store->problem(), "");
}

TEST_F(IniStore, DoesNotMistakeHalfAFileForAllOfIt) {
    const std::string whole = "[Html]\nNavig=1\n; " + std::string(5000, 'x') + "\nTOCLevel=4\n";
    put(whole);
    files.failAt(Operation::read, 2);
    EXPECT_FALSE(store->write("Html", "Navig", "3"));
    EXPECT_EQ(text(), whole);
    EXPECT_TRUE(store->write("Html", "TOCLevel", "5"));
    files.failAt(Operation::read, 2);
    put(whole);
    EXPECT_EQ(store->problem(), "Cannot read the settings file " + nativePath(place));
    EXPECT_EQ(store->problem(), "");
}

TEST_F(IniStore, ReportsADirectoryInItsPlace) {
    memory.makeDirectories(place);
    EXPECT_EQ(store->problem(), "Cannot read the settings file " + nativePath(place));
    EXPECT_FALSE(store->write("Html", "Navig", "3"));
}

TEST(IniStoreOnDisk, KeepsValuesBetweenTwoStores) {
    const TempDir dir;
    const OrxString place = dir.file("sub\\settings.ini");
    EXPECT_TRUE(makeIniSettingsStore(place)->write("Log", "LogName", "C:\\l.txt"));
    EXPECT_EQ(makeIniSettingsStore(place)->read("Log", "LogName"), "C:\\l.txt");
    EXPECT_EQ(dir.content("sub\\settings.ini"), "[Log]\nLogName=C:\\l.txt\n");
}

TEST(IniStoreOnDisk, SeesAChangeOfTheSameLength) {
    const TempDir dir;
    const OrxString place = dir.file("settings.ini");
    const auto one = makeIniSettingsStore(place);
    const auto other = makeIniSettingsStore(place);
    for (const char* const text : {"1", "2", "3", "4"}) {
        EXPECT_TRUE(one->write("Html", "Navig", text));
        EXPECT_EQ(other->read("Html", "Navig"), text);
    }
}

}  // namespace
}  // namespace quillmark
