#include "settings_ui/tool/settings_tool.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace quillmark {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// The tool with an INI file that belongs to the test.
class SettingsToolTest : public testing::Test {
protected:
    SettingsToolTest() { std::filesystem::create_directories(directory_); }
    ~SettingsToolTest() override { std::filesystem::remove_all(directory_); }

    int run(std::vector<std::string> arguments, const std::string& input = {}) {
        arguments.insert(arguments.begin(), {"--settings", store()});
        return runBare(arguments, input);
    }
    int runBare(const std::vector<std::string>& arguments, const std::string& input = {}) {
        std::istringstream in(input);
        std::ostringstream outStream;
        std::ostringstream errorStream;
        const ToolStatus status = runSettingsTool(
            arguments, {in, outStream, errorStream, (directory_ / "bin/tool").string()});
        out = outStream.str();
        errors = errorStream.str();
        return static_cast<int>(status);
    }
    void keep(const std::string& text) const { std::ofstream(store(), std::ios::binary) << text; }
    [[nodiscard]] std::string kept() const {
        std::ifstream in(store(), std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(in), {}};
        std::erase(text, '\r');
        return text;
    }
    [[nodiscard]] std::string store() const { return (directory_ / "settings.ini").string(); }
    [[nodiscard]] std::filesystem::path directory() const { return directory_; }

    std::string out;
    std::string errors;

private:
    static std::string uniqueName() {
        return std::string("quillmark_settings_tool_") +
               testing::UnitTest::GetInstance()->current_test_info()->name();
    }
    std::filesystem::path directory_ = std::filesystem::temp_directory_path() / uniqueName();
};

TEST_F(SettingsToolTest, ListShowsEverySettingWithValueDefaultAndMeaning) {
    keep("[Html]\nTOCLevel=7\n");
    EXPECT_EQ(run({"list"}), 0);
    EXPECT_THAT(out, StartsWith("Html.HtmlPixDir=pix\n"
                                "    default \"pix\", text\n"
                                "    Directory for pictures, relative to the output directory; "
                                "made when missing\n"));
    EXPECT_THAT(out, HasSubstr("Html.TOCLevel=7\n    default \"50\", integer\n"));
    EXPECT_THAT(out, HasSubstr("Settings.TestLevel=\n    default \"\", integer\n"));
    EXPECT_THAT(out, HasSubstr("Log.LogName=\n"));
    EXPECT_EQ(std::ranges::count(out, '\n'), 63);
    EXPECT_EQ(errors, "");
}

TEST_F(SettingsToolTest, GetShowsTheStoredValueOrTheDefault) {
    keep("[Html]\nHtmlPixDir=images\n");
    EXPECT_EQ(run({"get", "HtmlPixDir"}), 0);
    EXPECT_EQ(out, "images\n");
    EXPECT_EQ(run({"get", "html.tocLEVEL"}), 0);
    EXPECT_EQ(out, "50\n");
}

TEST_F(SettingsToolTest, InstalledSupportFilesReplaceAMissingInstallationDirectory) {
    EXPECT_EQ(run({"get", "StyleSheet"}), 0);
    EXPECT_EQ(out, "default.css\n");
    std::filesystem::create_directories(directory() / "share/dochtml");
    EXPECT_EQ(run({"get", "StyleSheet"}), 0);
    EXPECT_THAT(out, HasSubstr("share\\dochtml\\default.css\n"));
    keep("[Settings]\nInstallDir=C:\\inst\n");
    EXPECT_EQ(run({"get", "StyleSheet"}), 0);
    EXPECT_EQ(out, "C:\\inst\\default.css\n");
}

TEST_F(SettingsToolTest, SetWritesTheSettingsNamedAndNoOthers) {
    EXPECT_EQ(run({"set", "Log.LogName=trace.txt", "TOCLevel=9", "Html.ShowIcons=no"}), 0);
    EXPECT_EQ(kept(), "[Html]\nShowIcons=false\nTOCLevel=9\n[Log]\nLogName=trace.txt\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(errors, "");
}

TEST_F(SettingsToolTest, SetKeepsTheRestOfTheFile) {
    keep("; mine\n[Other]\na=b\n[Html]\nTOCLevel=5\n");
    EXPECT_EQ(run({"set", "TOCLevel=6"}), 0);
    EXPECT_EQ(kept(), "; mine\n[Other]\na=b\n[Html]\nTOCLevel=6\n");
}

TEST_F(SettingsToolTest, TextsAreUtf8) {
    EXPECT_EQ(run({"set", "HtmlPixDir=caf\xC3\xA9"}), 0);
    EXPECT_EQ(kept(), "[Html]\nHtmlPixDir=caf\xC3\xA9\n");
    EXPECT_EQ(run({"get", "HtmlPixDir"}), 0);
    EXPECT_EQ(out, "caf\xC3\xA9\n");
}

TEST_F(SettingsToolTest, SetRefusesLettersThatTheCodePageCannotRepresent) {
    keep("[Html]\nBodyTags=old\n");
    EXPECT_EQ(run({"set", "TOCLevel=4", "BodyTags=\xE6\x97\xA5\xE6\x9C\xAC"}), 2);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: the driver's 8-bit code page cannot hold "
                                   "\"\xE6\x97\xA5\xE6\x9C\xAC\"\n"));
    EXPECT_EQ(run({"set", "BodyTags=a\xFF"}), 2);
    EXPECT_EQ(kept(), "[Html]\nBodyTags=old\n");
}

TEST_F(SettingsToolTest, SetRefusesAValueOfSeveralLines) {
    keep("[Html]\nBodyTags=old\n");
    for (const char* const lineEnd : {"\n", "\r", "\r\n"}) {
        EXPECT_EQ(run({"set", "TOCLevel=4", std::string("BodyTags=a") + lineEnd + "b"}), 2);
        EXPECT_THAT(errors, StartsWith("dochtml-settings: Html.BodyTags must be a single line\n"));
    }
    EXPECT_EQ(kept(), "[Html]\nBodyTags=old\n");
}

TEST_F(SettingsToolTest, SetRefusesByTheRulesAndInTheOrderOfThePage) {
    EXPECT_EQ(run({"set", "TOCLevel=51", "UseRelative=false", "Navig=0"}), 1);
    EXPECT_EQ(errors, "Invalid Value: You must select at least one navigation method.\n");
    EXPECT_EQ(kept(), "");
    EXPECT_EQ(run({"set", "HtmlPixDir=p", "TOCLevel=51", "UseRelative=false", "Navig=2"}), 1);
    EXPECT_EQ(errors, "Invalid Value: Heading level must fall between 0 and 50.\n");
    EXPECT_EQ(kept(), "[Html]\nNavig=2\nUseRelative=false\n");
}

TEST_F(SettingsToolTest, AMissingStyleSheetIsRefusedWithTheMessageOfThePage) {
    EXPECT_EQ(run({"set", "StyleSheet=nowhere.css", "BodyTags=class=x"}), 1);
    EXPECT_EQ(errors,
              "Invalid Value: nowhere.css\nFile Not Found.\n"
              "Please verify the correct style sheet name was given.\n");
    EXPECT_EQ(kept(), "");
}

TEST_F(SettingsToolTest, AHeadingLevelWithoutDigitsIsZero) {
    EXPECT_EQ(run({"set", "TOCLevel=abc"}), 0);
    EXPECT_EQ(kept(), "[Html]\nTOCLevel=0\n");
}

TEST_F(SettingsToolTest, DiagramTypeAndNavigationTakeTheirNumbersOnly) {
    EXPECT_EQ(run({"set", "DiagramType=1", "Navig=3"}), 0);
    EXPECT_EQ(kept(), "[Html]\nNavig=3\nDiagramType=1\n");
    EXPECT_EQ(run({"set", "Navig=4"}), 2);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: Html.Navig takes a number from 0 to 3, "
                                   "not \"4\"\n"));
    EXPECT_EQ(run({"set", "DiagramType=2"}), 2);
    EXPECT_EQ(kept(), "[Html]\nNavig=3\nDiagramType=1\n");
}

TEST_F(SettingsToolTest, BadUsageChangesNothing) {
    EXPECT_EQ(run({"set", "TOCLevel=4", "UseRelative=maybe"}), 2);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: Html.UseRelative takes true or false, "
                                   "not \"maybe\"\n"));
    EXPECT_EQ(run({"set", "TOCLevel=4", "Unknown=1"}), 2);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: unknown setting \"Unknown\"\n"));
    EXPECT_EQ(run({"set", "TOCLevel"}), 2);
    EXPECT_EQ(run({"set"}), 2);
    EXPECT_EQ(run({"get"}), 2);
    EXPECT_EQ(run({"get", "Settings.TOCLevel"}), 2);
    EXPECT_EQ(run({"list", "all"}), 2);
    EXPECT_EQ(run({"lost"}), 2);
    EXPECT_EQ(run({}), 2);
    EXPECT_EQ(run({"--colour", "list"}), 2);
    EXPECT_EQ(runBare({"list", "--settings"}), 2);
    EXPECT_EQ(run({"--drive", "C", "list"}), 2);
    EXPECT_EQ(kept(), "");
}

TEST_F(SettingsToolTest, HelpAndVersionAreShown) {
    EXPECT_EQ(runBare({"--help"}), 0);
    EXPECT_THAT(out, StartsWith("Usage: dochtml-settings [OPTIONS] COMMAND\n"));
    EXPECT_EQ(runBare({"--version"}), 0);
    EXPECT_EQ(out, "dochtml-settings 2.1.0\n");
}

TEST_F(SettingsToolTest, ADamagedStoreIsReportedAndKept) {
    const std::string damaged = "[Html]\nTOCLevel=5\nwhat is this\n";
    keep(damaged);
    EXPECT_EQ(run({"set", "TOCLevel=6"}), 1);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: Line 3 of the settings file "));
    EXPECT_EQ(run({"list"}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(run({"edit"}, "images\n"), 1);
    EXPECT_EQ(kept(), damaged);
}

TEST_F(SettingsToolTest, AStoreThatCannotBeWrittenIsReported) {
    keep("");
    const std::string below = store() + "/inner.ini";
    EXPECT_EQ(runBare({"--settings", below, "set", "TOCLevel=6"}), 1);
    EXPECT_EQ(errors, "dochtml-settings: cannot write Html.TOCLevel to " + below + "\n");
}

TEST_F(SettingsToolTest, EditAsksForTheFieldsInTabOrder) {
    EXPECT_EQ(run({"edit"}, std::string(12, '\n')), 0);
    EXPECT_EQ(out, "HTML Settings, kept in " + store() +
                       "\nEnter keeps a value, \"\" empties it, the end of the input keeps the "
                       "rest.\n\n"
                       "Images directory [pix]: "
                       "External documents directory [docs]: "
                       "Style sheet [default.css]: "
                       "Use relative directory paths [yes]: "
                       "Pass through HTML [no]: "
                       "Support older browsers [no]: "
                       "\nNavigation\n"
                       "Table of contents [yes]: "
                       "Back/next arrows [no]: "
                       "\nTable of contents\n"
                       "Show icons [yes]: "
                       "Heading level [50]: "
                       "Customized icon file []: "
                       "Support locate in browser [yes]: "
                       "\nNothing changed.\n");
    EXPECT_EQ(kept(), "");
}

TEST_F(SettingsToolTest, EditAppliesTheWholePage) {
    EXPECT_EQ(run({"edit"}, "images\r\n\n\"\"\nno\nx\nyes\n"), 0);
    EXPECT_THAT(out, HasSubstr("Please answer yes or no.\nPass through HTML [no]: "));
    EXPECT_THAT(out, testing::EndsWith("\nSaved.\n"));
    EXPECT_EQ(kept(),
              "[Html]\nNavig=1\nDiagramType=0\nUseRelative=false\nPassThrough=true\n"
              "SupportOld=false\nLocateInBrowser=true\nShowIcons=true\nTOCLevel=50\n"
              "HtmlPixDir=images\nExternalDocDir=docs\nStyleSheet=\nIconFile=\n");
}

TEST_F(SettingsToolTest, EditSavesTheDocumentsDirectoryToo) {
    keep("[Html]\nStyleSheet=\n");
    EXPECT_EQ(run({"edit"}, "\npapers\n"), 0);
    EXPECT_THAT(kept(), HasSubstr("\nExternalDocDir=papers\n"));
}

TEST_F(SettingsToolTest, EditStepsTheHeadingLevelAndTakesDigitsOnly) {
    keep("[Html]\nStyleSheet=\n");
    EXPECT_EQ(run({"edit"}, std::string(9, '\n') + "deep\n+\n"), 0);
    EXPECT_THAT(out, HasSubstr("Please give digits only, or + or - for a step.\n"));
    EXPECT_THAT(kept(), HasSubstr("\nTOCLevel=0\n"));
    EXPECT_EQ(run({"edit"}, std::string(9, '\n') + "-\n"), 0);
    EXPECT_THAT(kept(), HasSubstr("\nTOCLevel=50\n"));
}

TEST_F(SettingsToolTest, EditAsksAgainAfterARefusalWhileThereIsInput) {
    keep("[Html]\nStyleSheet=\n");
    EXPECT_EQ(run({"edit"}, std::string(9, '\n') + "51\n"), 1);
    EXPECT_EQ(errors, "Invalid Value: Heading level must fall between 0 and 50.\n");
    EXPECT_THAT(kept(), testing::Not(HasSubstr("TOCLevel")));
    EXPECT_EQ(run({"edit"}, std::string(9, '\n') + "51\n\n\n" + std::string(9, '\n') + "4\n"), 0);
    EXPECT_THAT(out, HasSubstr("Heading level [51]: "));
    EXPECT_THAT(kept(), HasSubstr("\nTOCLevel=4\n"));
}

}  // namespace

}  // namespace quillmark
