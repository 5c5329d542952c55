#include <gtest/gtest.h>

#include <string>

#include "settings/settings_store.h"
#include "settings_ui/windows/programs.h"
#include "settings_ui/windows/user_settings.h"

namespace quillmark {

namespace {

TEST(SettingsToolOnWindows, KeepsTheSettingsInTheUsersRegistry) {
    removeUserSettings();
    EXPECT_EQ(runProgram(programs().settings, "set TOCLevel=4 Log.LogName=C:\\t.log"), 0U);
    const auto store = makeUserSettingsStore();
    EXPECT_EQ(store->read("Html", "TOCLevel"), OrxString("4"));
    EXPECT_EQ(store->read("Log", "LogName"), OrxString("C:\\t.log"));
}

TEST(SettingsToolOnWindows, ShowsTheValuesOfTheRegistry) {
    removeUserSettings();
    EXPECT_TRUE(makeUserSettingsStore()->write("Html", "HtmlPixDir", "caf\xC3\xA9"));
    std::string output;
    EXPECT_EQ(runProgram(programs().settings, "get HtmlPixDir", &output), 0U);
    EXPECT_EQ(output.substr(0, 5), "caf\xC3\xA9");
}

TEST(SettingsToolOnWindows, RefusesByTheRulesOfThePage) {
    removeUserSettings();
    EXPECT_EQ(runProgram(programs().settings, "set TOCLevel=51"), 1U);
    EXPECT_EQ(runProgram(programs().settings, "set UseRelative=maybe"), 2U);
}

}  // namespace

}  // namespace quillmark
