#include <gmock/gmock.h>

#include <filesystem>

#include "command_line/bad_usage.h"
#include "command_line/default_install_dir.h"
#include "command_line/installed_files.h"
#include "command_line/option_parser.h"
#include "command_line/scoped_drives.h"
#include "platform/files/drive_table.h"
#include "support/memory_settings_store.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

using ::testing::ElementsAre;

/// A parser with an option of each kind, and what it found.
class OptionParserTest : public ::testing::Test {
protected:
    OptionParserTest() {
        parser_.addOption("-f,--file", "FILE", "a file",
                          [this](const std::string& value) { values_.push_back("file=" + value); });
        parser_.addOption("--text", "TEXT", "a text",
                          [this](const std::string& value) { values_.push_back("text=" + value); });
        parser_.addFlag("-q,--quiet", "a flag", quiet_);
    }
    std::vector<std::string> parse(const std::vector<std::string>& arguments) {
        return parser_.parse(arguments);
    }
    std::string refusal(const std::vector<std::string>& arguments) {
        try {
            static_cast<void>(parse(arguments));
        } catch (const BadUsage& usage) {
            return usage.what();
        }
        return "accepted";
    }

    OptionParser parser_;
    std::vector<std::string> values_;
    bool quiet_ = false;
};

TEST_F(OptionParserTest, HandlesValuesInTheOrderOfTheCommandLine) {
    EXPECT_THAT(parse({"--text", "1", "--file=2", "-f", "3", "a", "--text=4", "-f5"}),
                ElementsAre("a"));
    EXPECT_THAT(values_, ElementsAre("text=1", "file=2", "file=3", "text=4", "file=5"));
}

TEST_F(OptionParserTest, TakesTextsAsTheyAre) {
    EXPECT_THAT(parse({"[a,b]", "-", "/q", "--text", "[c,d]", "--text", "-1", "--text", "--quiet",
                       "--text", "", "--", "-q", "--", "--none"}),
                ElementsAre("[a,b]", "-", "/q", "-q", "--", "--none"));
    EXPECT_THAT(values_, ElementsAre("text=[c,d]", "text=-1", "text=--quiet", "text="));
    EXPECT_FALSE(quiet_);
}

TEST_F(OptionParserTest, TakesLettersTogether) {
    EXPECT_THAT(parse({"-qf", "x"}), ElementsAre());
    EXPECT_THAT(values_, ElementsAre("file=x"));
    EXPECT_TRUE(quiet_);
}

TEST_F(OptionParserTest, RefusesUnknownOptions) {
    EXPECT_EQ(refusal({"--none"}), "unknown option --none");
}

TEST_F(OptionParserTest, RefusesPartsOfNames) {
    EXPECT_EQ(refusal({"a", "--fil=x"}), "unknown option --fil");
}

TEST_F(OptionParserTest, RefusesUnknownLetters) {
    EXPECT_EQ(refusal({"-x"}), "unknown option -x");
}

TEST_F(OptionParserTest, RefusesMissingValues) {
    EXPECT_EQ(refusal({"a", "--text"}), "option --text needs a value: TEXT");
}

TEST_F(OptionParserTest, RefusesMissingValuesOfLetters) {
    EXPECT_EQ(refusal({"a", "-f"}), "option --file needs a value: FILE");
}

TEST_F(OptionParserTest, RefusesEmptyNamesOfFiles) {
    EXPECT_EQ(refusal({"--file", "", "a"}), "option --file needs a value: FILE");
}

TEST_F(OptionParserTest, DoesNotTakeTheNextArgumentForAnEmptyValue) {
    EXPECT_EQ(refusal({"--file=", "a"}), "option --file needs a value: FILE");
}

TEST_F(OptionParserTest, RefusesValuesOfFlags) {
    EXPECT_EQ(refusal({"--quiet=yes"}), "option --quiet takes no value");
}

TEST_F(OptionParserTest, ListsItsOptions) {
    EXPECT_EQ(parser_.help(),
              "\nOptions:\n"
              "  -f, --file FILE             a file\n"
              "  --text TEXT                 a text\n"
              "  -q, --quiet                 a flag\n");
}

TEST(InstalledFiles, AreFoundNextToTheProgram) {
    const TempDir dir;
    const std::string program = dir.nativeFile("bin/tool");
    EXPECT_EQ(installedSupportFiles(program), std::nullopt);
    EXPECT_EQ(installedLibrary(program, "lib"), std::nullopt);
    std::filesystem::create_directories(dir.nativeFile("share/dochtml"));
    std::filesystem::create_directories(dir.nativeFile("lib/dochtml"));
    std::filesystem::create_directories(dir.nativeFile("bin"));
    EXPECT_EQ(installedSupportFiles(program), dir.nativeFile("share/dochtml"));
    dir.put("lib/lib", "");
    EXPECT_EQ(installedLibrary(program, "lib"), std::nullopt);
    dir.put("lib/dochtml/lib", "");
    EXPECT_EQ(installedLibrary(program, "lib"), dir.nativeFile("lib/dochtml/lib"));
    dir.put("bin/lib", "");
    EXPECT_EQ(installedLibrary(program, "lib"), dir.nativeFile("bin/lib"));
}

TEST(DefaultInstallDir, AppliesToASettingThatIsMissingOrEmpty) {
    const TempDir dir;
    std::filesystem::create_directories(dir.nativeFile("share/dochtml"));
    const auto store = std::make_shared<MemorySettingsStore>();
    DefaultInstallDir settings(store, dir.nativeFile("bin/tool"));
    const OrxString directory = driverPath(dir.nativeFile("share/dochtml"));
    EXPECT_EQ(settings.directory(), directory);
    EXPECT_EQ(settings.read("Settings", "installdir"), directory);
    ASSERT_TRUE(settings.write("Settings", "InstallDir", ""));
    EXPECT_EQ(settings.read("Settings", "InstallDir"), directory);
    ASSERT_TRUE(settings.write("Settings", "InstallDir", "own"));
    EXPECT_EQ(settings.read("Settings", "InstallDir"), OrxString("own"));
    EXPECT_EQ(settings.read("Settings", "HelpFile"), std::nullopt);
}

TEST(DefaultInstallDir, DoesNothingWithoutInstalledFiles) {
    const TempDir dir;
    const DefaultInstallDir settings(std::make_shared<MemorySettingsStore>(),
                                     dir.nativeFile("bin/tool"));
    EXPECT_EQ(settings.read("Settings", "InstallDir"), std::nullopt);
}

TEST(ScopedDrives, AreInTheTableForTheirLifeOnly) {
    {
        const ScopedDrives drives({{'C', "/first"}, {'D', "/other"}, {'c', "/second"}});
        EXPECT_EQ(DriveTable::find('C'), "/second");
        EXPECT_EQ(DriveTable::find('D'), "/other");
    }
    EXPECT_EQ(DriveTable::find('C'), std::nullopt);
    EXPECT_EQ(DriveTable::find('D'), std::nullopt);
}

}  // namespace
}  // namespace quillmark
