#include "settings/settings_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace quillmark {

namespace {

std::string described(const SettingDescription& setting) {
    return std::string(setting.group) + "." + setting.name + " " +
           std::string(typeName(setting.type)) + " \"" + setting.defaultText + "\"";
}

TEST(SettingsTable, HoldsEverySettingWithItsTypeAndDefault) {
    std::string all;
    for (const SettingDescription& setting : allSettings()) {
        all += described(setting) + "\n";
    }
    EXPECT_EQ(all,
              "Html.HtmlPixDir text \"pix\"\n"
              "Html.ExternalDocDir text \"docs\"\n"
              "Html.UseRelative boolean \"true\"\n"
              "Html.ShowIcons boolean \"true\"\n"
              "Html.IconFile text \"\"\n"
              "Html.SupportOld boolean \"false\"\n"
              "Html.BodyTags text \"\"\n"
              "Html.SuppressImageMaps boolean \"false\"\n"
              "Html.Navig short \"1\"\n"
              "Html.TOCLevel integer \"50\"\n"
              "Html.DontCopy text \"\"\n"
              "Html.StyleSheet text \"default.css\"\n"
              "Html.PassThrough boolean \"false\"\n"
              "Html.LocateInBrowser boolean \"true\"\n"
              "Html.ScriptNavigator boolean \"false\"\n"
              "Html.CharSet text \"\"\n"
              "Html.DiagramType short \"0\"\n"
              "Settings.InstallDir text \"\"\n"
              "Settings.TestLevel integer \"\"\n"
              "Settings.UserFilesDir text \"\"\n"
              "Settings.HelpFile text \"\"\n"
              "Log.LogName text \"\"\n");
}

TEST(SettingsTable, FindsASettingInAnyCase) {
    ASSERT_NE(findSetting("html", "TOCLEVEL"), nullptr);
    EXPECT_STREQ(findSetting("html", "TOCLEVEL")->name, "TOCLevel");
}

TEST(SettingsTable, DoesNotFindANameInAnotherGroup) {
    EXPECT_EQ(findSetting("Settings", "TOCLevel"), nullptr);
    EXPECT_EQ(findSetting("Html", "TOCLeve"), nullptr);
    EXPECT_EQ(findSetting("Html", ""), nullptr);
}

TEST(SettingsTable, GivesEveryOtherAddressAnEmptyDefault) {
    EXPECT_EQ(defaultValue("Html", "Unknown").asString(), "");
}

TEST(SettingsTable, DescribesEverySettingInOneLineOfItsOwn) {
    std::set<std::string> meanings;
    for (const SettingDescription& setting : allSettings()) {
        const std::string meaning = setting.meaning;
        EXPECT_NE(meaning, "") << setting.name;
        EXPECT_EQ(meaning.find('\n'), std::string::npos) << setting.name;
        EXPECT_FALSE(meaning.ends_with('.')) << setting.name;
        EXPECT_TRUE(meanings.insert(meaning).second) << setting.name << ": " << meaning;
    }
}

}  // namespace

}  // namespace quillmark
