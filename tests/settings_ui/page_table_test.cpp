#include "settings_ui/page_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "settings/settings_table.h"
#include "settings_ui/page_fixture.h"

namespace quillmark {

namespace {

const char* kindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::label:
            return "label";
        case ControlKind::groupBox:
            return "group";
        case ControlKind::edit:
            return "edit";
        case ControlKind::numberEdit:
            return "number";
        case ControlKind::upDown:
            return "up-down";
        case ControlKind::button:
            return "button";
        case ControlKind::checkBox:
            return "check";
        case ControlKind::radioButton:
            return "radio";
        case ControlKind::command:
            return "command";
    }
    return "?";
}

TEST(PageTable, ContainsTheControlsInTabOrder) {
    std::string all;
    for (const PageControl& row : pageControls()) {
        all += std::to_string(row.id) + " " + kindName(row.kind) + " " + row.text + " " +
               (row.setting == nullptr ? "-" : row.setting) + (row.hidden ? " hidden\n" : "\n");
    }
    EXPECT_EQ(all,
              "-1 label Images &directory -\n"
              "5601 edit  HtmlPixDir\n"
              "5602 button ... -\n"
              "-1 label &External documents directory -\n"
              "5211 edit  ExternalDocDir\n"
              "5212 button ... -\n"
              "-1 label &Style sheet -\n"
              "5205 edit  StyleSheet\n"
              "5206 button ... -\n"
              "5213 check &Use relative directory paths UseRelative\n"
              "5219 check &Pass through HTML PassThrough\n"
              "5222 check Support &older browsers SupportOld\n"
              "-1 group Navigation -\n"
              "5208 check &Table of contents Navig\n"
              "5207 check &Back/next arrows Navig\n"
              "-1 group Table of contents -\n"
              "5214 check Show &icons ShowIcons\n"
              "-1 label Heading le&vel -\n"
              "5202 number  TOCLevel\n"
              "5204 up-down Spin1 -\n"
              "-1 label &Customized icon file -\n"
              "5215 edit  IconFile\n"
              "5216 button ... -\n"
              "-1 group Diagram file type - hidden\n"
              "5218 radio &JPEG DiagramType hidden\n"
              "5217 radio &GIF DiagramType hidden\n"
              "5220 check Support &locate in browser LocateInBrowser\n"
              "5223 command  -\n");
}

TEST(PageTable, GivesNoIdentifierTwice) {
    std::set<int> seen;
    for (const PageControl& row : pageControls()) {
        if (row.id != control::none) {
            EXPECT_TRUE(seen.insert(row.id).second) << row.id;
        }
    }
}

TEST(PageTable, NamesOnlyKnownSettings) {
    for (const PageControl& row : pageControls()) {
        if (row.setting != nullptr) {
            EXPECT_NE(findSetting(htmlGroup, row.setting), nullptr) << row.setting;
        }
    }
}

TEST(PageTable, GivesEveryVisibleControlAnAccessKeyOfItsOwn) {
    std::set<char> keys;
    for (const PageControl& row : pageControls()) {
        const std::string text = row.text;
        const std::size_t mark = text.find('&');
        if (mark != std::string::npos) {
            EXPECT_TRUE(keys.insert(static_cast<char>(text[mark + 1] | 0x20)).second) << text;
        }
    }
}

TEST(PageTable, ALabelHasNoRowOfItsOwn) {
    EXPECT_EQ(findControl(control::none), nullptr);
    EXPECT_EQ(settingOf(control::none), "");
    EXPECT_EQ(settingOf(control::browseImages), "");
    EXPECT_EQ(settingOf(control::gif), "DiagramType");
}

using DefaultTest = PageTest;

TEST_F(DefaultTest, OfTheStyleSheetIsInTheInstallationDirectory) {
    put("Settings", "InstallDir", "C:\\inst");
    EXPECT_EQ(defaultValue("Html", "StyleSheet").asString(), "C:\\inst\\default.css");
    put("Settings", "InstallDir", "C:\\inst\\");
    EXPECT_EQ(defaultValue("Html", "StyleSheet").asString(), "C:\\inst\\default.css");
    EXPECT_EQ(defaultValue("Html", "TOCLevel").asInt(), 50);
}

}  // namespace

}  // namespace quillmark
