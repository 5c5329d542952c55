#include "settings_ui/tool/settings_tool.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "settings_ui/settings_tool_fixture.h"

namespace quillmark {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(SettingsToolTest, ListShowsEverySettingWithValueDefaultAndMeaning) {
    keep("[Html]\nTOCLevel=7\n");
    EXPECT_EQ(run({"list"}), 0);
    EXPECT_THAT(out, StartsWith("Kept in " + store() +
                                "\n"
                                "Html.HtmlPixDir=pix\n"
                                "    default \"pix\", text\n"
                                "    Directory for pictures, relative to the output directory; "
                                "made when missing\n"));
    EXPECT_THAT(out, HasSubstr("Html.TOCLevel=7\n    default \"50\", integer\n"));
    EXPECT_THAT(out, HasSubstr("Settings.TestLevel=\n    default \"\", integer\n"));
    EXPECT_THAT(out, HasSubstr("Log.LogName=\n"));
    EXPECT_EQ(std::ranges::count(out, '\n'), 67);
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

TEST_F(SettingsToolTest, KeepsLettersThatTheCodePageCannotRepresent) {
    EXPECT_EQ(run({"set", "BodyTags=\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80"}), 0);
    EXPECT_EQ(kept(), "[Html]\nBodyTags=\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80\n");
    EXPECT_EQ(run({"get", "BodyTags"}), 0);
    EXPECT_EQ(out, "\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80\n");
}

TEST_F(SettingsToolTest, SetRefusesWhatIsNotUtf8) {
    keep("[Html]\nBodyTags=old\n");
    EXPECT_EQ(run({"set", "BodyTags=a\xFF"}), 2);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: \"a\xFF\" is not in UTF-8\n"));
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

TEST_F(SettingsToolTest, ANumberThatIsNoneIsRefused) {
    for (const char* const wrong : {"abc", "7th", "", "-", "1.5", " 7"}) {
        EXPECT_EQ(run({"set", std::string("TOCLevel=") + wrong}), 2);
        EXPECT_THAT(errors, StartsWith(std::string("dochtml-settings: Html.TOCLevel takes a "
                                                   "number, not \"") +
                                       wrong + "\"\n"));
    }
    EXPECT_EQ(run({"set", "TestLevel=on"}), 2);
    EXPECT_EQ(run({"set", "TOCLevel=-1"}), 1);
    EXPECT_EQ(errors, "Invalid Value: Heading level must fall between 0 and 50.\n");
    EXPECT_EQ(kept(), "");
}

TEST_F(SettingsToolTest, ANumberWhoseDefaultIsEmptyCanBeEmptiedAgain) {
    EXPECT_EQ(run({"set", "TestLevel=1"}), 0);
    EXPECT_EQ(run({"set", "TestLevel="}), 0);
    EXPECT_EQ(kept(), "[Settings]\nTestLevel=\n");
}

TEST_F(SettingsToolTest, BooleansAreStoredAlikeOnThePageAndOffIt) {
    EXPECT_EQ(run({"set", "SuppressImageMaps=yes", "ScriptNavigator=ON", "ShowIcons=0"}), 0);
    EXPECT_EQ(kept(), "[Html]\nShowIcons=false\nSuppressImageMaps=true\nScriptNavigator=true\n");
}

TEST_F(SettingsToolTest, DiagramTypeAndNavigationTakeTheirNumbersOnly) {
    EXPECT_EQ(run({"set", "DiagramType=1", "Navig=3"}), 0);
    EXPECT_EQ(kept(), "[Html]\nNavig=3\nDiagramType=1\n");
    EXPECT_EQ(run({"set", "Navig=4"}), 2);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: Html.Navig takes a number from 1 to 3, "
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
    EXPECT_THAT(out, HasSubstr("\nThe settings are kept in "));
    EXPECT_EQ(run({"--help"}), 0);
    EXPECT_THAT(out, HasSubstr("\nThe settings are kept in " + store() + "\n"));
    EXPECT_EQ(runBare({"--version"}), 0);
    EXPECT_EQ(out, "dochtml-settings 2.1.0\n");
}

TEST_F(SettingsToolTest, ADamagedStoreIsReportedAndKept) {
    const std::string damaged = "[Html]\nTOCLevel=5\nwhat is this\n";
    keep(damaged);
    EXPECT_EQ(run({"set", "TOCLevel=6"}), 1);
    EXPECT_EQ(errors, "dochtml-settings: Line 3 of the settings file " + store() +
                          " is neither a section nor a setting\n");
    EXPECT_EQ(run({"list"}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(run({"edit"}, "images\n"), 1);
    EXPECT_EQ(kept(), damaged);
}

TEST_F(SettingsToolTest, AStoreThatCannotBeWrittenIsReported) {
    keep("");
    const std::string below = store() + "/inner.ini";
    EXPECT_EQ(runBare({"--settings", below, "set", "TOCLevel=6"}), 1);
    EXPECT_THAT(errors, StartsWith("dochtml-settings: cannot write Html.TOCLevel to " + below));
#ifndef _WIN32
    EXPECT_THAT(errors, EndsWith(": Not a directory\n"));
    EXPECT_EQ(runBare({"--settings", "/dev/null", "set", "TOCLevel=6"}), 1);
    EXPECT_EQ(errors,
              "dochtml-settings: Cannot read the settings file /dev/null: Not a regular file\n");
#endif
}

}  // namespace

}  // namespace quillmark
