// The command "edit" of the settings tool: the page as a form.
#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "settings_ui/settings_tool_fixture.h"

namespace quillmark {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

using SettingsEdit = SettingsToolTest;

/// Enter at so many questions.
std::string enter(int times) {
    return std::string(static_cast<std::size_t>(times), '\n');
}

TEST_F(SettingsEdit, AsksForTheFieldsInTabOrder) {
    EXPECT_EQ(run({"edit"}, enter(12)), 0);
    EXPECT_EQ(out,
              "HTML Settings. Ctrl+C cancels: nothing is saved before the last answer.\n"
              "Kept in " +
                  store() +
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

TEST_F(SettingsEdit, WritesWhatChangedAndNothingElse) {
    EXPECT_EQ(run({"edit"}, "images\r\n\n\"\"\nno\nx\nyes\n"), 0);
    EXPECT_THAT(out, HasSubstr("Please answer yes or no.\nPass through HTML [no]: "));
    EXPECT_THAT(out, EndsWith("\nSaved.\n"));
    EXPECT_EQ(kept(),
              "[Html]\nUseRelative=false\nPassThrough=true\nHtmlPixDir=images\nStyleSheet=\n");
}

TEST_F(SettingsEdit, WritesNoAnswerThatEqualsTheValue) {
    keep("[Html]\nTOCLevel=7th\n");
    EXPECT_EQ(run({"edit"}, "pix\ndocs\n\nyes\nno\nno\nyes\nno\nyes\n7\n\nyes\n"), 0);
    EXPECT_THAT(out, EndsWith("\nNothing changed.\n"));
    EXPECT_EQ(kept(), "[Html]\nTOCLevel=7th\n");
}

TEST_F(SettingsEdit, DoesNotPinThePathOfTheInstallation) {
    std::filesystem::create_directories(directory() / "share/dochtml");
    EXPECT_EQ(run({"edit"}, "images\n"), 0);
    EXPECT_EQ(kept(), "[Html]\nHtmlPixDir=images\n");
}

TEST_F(SettingsEdit, SavesTheDocumentsDirectoryToo) {
    EXPECT_EQ(run({"edit"}, "\npapers\n"), 0);
    EXPECT_EQ(kept(), "[Html]\nExternalDocDir=papers\n");
}

TEST_F(SettingsEdit, GoesBackToADefaultWhenAnotherValueIsStored) {
    keep("[Html]\nTOCLevel=7\n");
    EXPECT_EQ(run({"edit"}, enter(9) + "50\n"), 0);
    EXPECT_EQ(kept(), "[Html]\nTOCLevel=50\n");
}

TEST_F(SettingsEdit, KeepsAStoredValueThatTheCodePageCannotHold) {
    const std::string before = "[Html]\nHtmlPixDir=\xE6\x97\xA5\xE6\x9C\xAC\n";
    keep(before);
    EXPECT_EQ(run({"edit"}, "\npapers\n"), 0);
    EXPECT_EQ(kept(), before + "ExternalDocDir=papers\n");
}

TEST_F(SettingsEdit, TakesAnAnswerThatTheCodePageCannotHold) {
    EXPECT_EQ(run({"edit"}, "\xE6\x97\xA5\xE6\x9C\xAC\n"), 0);
    EXPECT_EQ(kept(), "[Html]\nHtmlPixDir=\xE6\x97\xA5\xE6\x9C\xAC\n");
}

TEST_F(SettingsEdit, RefusesAnAnswerThatIsNotUtf8) {
    EXPECT_EQ(run({"edit"}, "a\xFF\nimages\n"), 0);
    EXPECT_THAT(out, HasSubstr("Images directory [pix]: \"a\xFF\" is not in UTF-8.\n"
                               "Images directory [pix]: "));
    EXPECT_EQ(kept(), "[Html]\nHtmlPixDir=images\n");
}

TEST_F(SettingsEdit, StepsTheHeadingLevelAndTakesDigitsOnly) {
    EXPECT_EQ(run({"edit"}, enter(9) + "deep\n\"\"\n+\n"), 0);
    EXPECT_THAT(out, HasSubstr("Please give digits only, or + or - for a step.\n"));
    EXPECT_EQ(kept(), "[Html]\nTOCLevel=0\n");
    EXPECT_EQ(run({"edit"}, enter(9) + "-\n"), 0);
    EXPECT_EQ(kept(), "[Html]\nTOCLevel=50\n");
}

TEST_F(SettingsEdit, ChecksEachAnswerAtOnce) {
    EXPECT_EQ(run({"edit"}, enter(2) + "nowhere.css\n" + enter(7) + "51\n4\nnone.zip\n\n"), 0);
    EXPECT_EQ(errors,
              "Invalid Value: nowhere.css\nFile Not Found.\n"
              "Please verify the correct style sheet name was given.\n"
              "Invalid Value: Heading level must fall between 0 and 50.\n"
              "Invalid Value: none.zip\nFile Not Found.\n"
              "Please verify the correct icon file name was given.\n");
    EXPECT_THAT(out, HasSubstr("Style sheet [default.css]: Style sheet [default.css]: "));
    EXPECT_THAT(out, HasSubstr("Heading level [50]: Heading level [50]: Customized"));
    EXPECT_EQ(kept(), "[Html]\nTOCLevel=4\n");
}

TEST_F(SettingsEdit, AsksForBothNavigationsAgainWhenNoneIsLeft) {
    EXPECT_EQ(run({"edit"}, enter(6) + "no\nno\nno\nyes\n"), 0);
    EXPECT_EQ(errors, "Invalid Value: You must select at least one navigation method.\n");
    EXPECT_THAT(out, HasSubstr("Table of contents [yes]: Back/next arrows [no]: "
                               "Table of contents [yes]: Back/next arrows [no]: "));
    EXPECT_EQ(kept(), "[Html]\nNavig=2\n");
}

TEST_F(SettingsEdit, LeavesAStoredValueAloneThatItWouldRefuse) {
    keep("[Html]\nNavig=4\nStyleSheet=gone.css\n");
    EXPECT_EQ(run({"edit"}, "images\n" + enter(11)), 0);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(kept(), "[Html]\nNavig=4\nStyleSheet=gone.css\nHtmlPixDir=images\n");
}

TEST_F(SettingsEdit, ChangesNothingWhenTheInputEndsAfterARefusal) {
    EXPECT_EQ(run({"edit"}, "images\n" + enter(8) + "51\n"), 1);
    EXPECT_THAT(errors, EndsWith("The input ended after an answer that was refused. "
                                 "Nothing changed.\n"));
    EXPECT_EQ(kept(), "");
    EXPECT_THAT(out, Not(HasSubstr("Saved")));
}

}  // namespace

}  // namespace quillmark
