#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <utility>

#include "settings/register_dynamic.h"
#include "settings/settings_store.h"
#include "settings_ui/windows/frame_driver.h"
#include "settings_ui/windows/screenshot.h"
#include "settings_ui/windows/user_settings.h"

// This needs the types of windows_api.h above it.
#include <commctrl.h>

namespace quillmark {

namespace {

/// A user of the frame, with a registry in which every value is valid.
class PropertyFrameTest : public testing::Test {
protected:
    PropertyFrameTest() {
        removeUserSettings();
        put("StyleSheet", "");
    }

    static void put(const char* name, const char* value) {
        RegisterDynamic().write("Html", name, RegEntry::ofString(value));
    }
    static std::string kept(const char* name) {
        const auto value = makeUserSettingsStore()->read("Html", name);
        return value ? value->str() : "(nothing)";
    }
    static void expectRefusal(const FrameDriver& driver, const std::string& message) {
        const MessageBoxSeen seen = driver.pressApply();
        EXPECT_EQ(seen.title, "Invalid Value");
        EXPECT_EQ(seen.text, message);
        EXPECT_TRUE(seen.hasExclamation);
        EXPECT_TRUE(driver.isOpen());
        EXPECT_TRUE(driver.applyIsEnabled());
        // The page does not move the focus: the button that was pressed has it.
        EXPECT_EQ(driver.focused(), applyButton);
    }
    static void expectAccepted(const FrameDriver& driver) {
        EXPECT_EQ(driver.pressApply().text, "");
        EXPECT_FALSE(driver.applyIsEnabled());
        EXPECT_TRUE(driver.isOpen());
    }
};

TEST_F(PropertyFrameTest, LoadsWhenTheFirstBoxGetsTheFocusAndLeavesApplyDisabled) {
    put("HtmlPixDir", "images");
    put("TOCLevel", "7");
    put("Navig", "3");
    put("ShowIcons", "false");
    put("DiagramType", "1");
    const FrameDriver driver;
    EXPECT_EQ(driver.focused(), 5601);
    EXPECT_EQ(driver.text(5601), "images");
    EXPECT_EQ(driver.text(5211), "docs");
    EXPECT_EQ(driver.text(5205), "");
    EXPECT_EQ(driver.text(5202), "7");
    EXPECT_TRUE(driver.isChecked(5208));
    EXPECT_TRUE(driver.isChecked(5207));
    EXPECT_FALSE(driver.isChecked(5214));
    EXPECT_TRUE(driver.isChecked(5220));
    EXPECT_TRUE(driver.isChecked(5217));
    EXPECT_FALSE(driver.isChecked(5218));
    EXPECT_FALSE(driver.applyIsEnabled());
}

TEST_F(PropertyFrameTest, TheTabShowsTheTitleWithoutItsAccessMark) {
    const FrameDriver driver;
    const HWND tabs = GetDlgItem(driver.frame(), 0x3020);
    std::array<char, 64> title{};
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = title.data();
    item.cchTextMax = static_cast<int>(title.size());
    EXPECT_NE(SendMessageA(tabs, TCM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item)), 0);
    EXPECT_STREQ(item.pszText, "&HTML");
}

TEST_F(PropertyFrameTest, AFrameCreatesThePageFromItsRegisteredClass) {
    put("HtmlPixDir", "images");
    const FrameDriver driver(settingsPageClass);
    EXPECT_EQ(driver.focused(), 5601);
    EXPECT_EQ(driver.text(5601), "images");
    EXPECT_TRUE(driver.isChecked(5208));
}

class FrameClick : public PropertyFrameTest, public testing::WithParamInterface<int> {};

TEST_P(FrameClick, EnablesApply) {
    const FrameDriver driver;
    const bool before = driver.isChecked(GetParam());
    driver.click(GetParam());
    EXPECT_EQ(driver.isChecked(GetParam()), !before);
    EXPECT_TRUE(driver.applyIsEnabled());
}

INSTANTIATE_TEST_SUITE_P(Boxes, FrameClick,
                         testing::Values(5207, 5208, 5213, 5214, 5219, 5220, 5222));

class FrameTyping : public PropertyFrameTest, public testing::WithParamInterface<int> {};

TEST_P(FrameTyping, EnablesApply) {
    const FrameDriver driver;
    driver.type(GetParam(), "12");
    EXPECT_EQ(driver.text(GetParam()), "12");
    EXPECT_TRUE(driver.applyIsEnabled());
}

INSTANTIATE_TEST_SUITE_P(Boxes, FrameTyping, testing::Values(5601, 5205, 5202, 5215));

TEST_F(PropertyFrameTest, EditingTheDocumentsDirectoryAloneLeavesApplyDisabled) {
    const FrameDriver driver;
    driver.type(5211, "papers");
    EXPECT_EQ(driver.text(5211), "papers");
    EXPECT_FALSE(driver.applyIsEnabled());
    driver.click(5213);
    EXPECT_TRUE(driver.applyIsEnabled());
    expectAccepted(driver);
    EXPECT_EQ(kept("ExternalDocDir"), "papers");
}

TEST_F(PropertyFrameTest, ApplyWritesWhatThePageShows) {
    const FrameDriver driver;
    driver.type(5601, "pictures");
    driver.type(5202, "3");
    for (const int box : {5207, 5213, 5219, 5222, 5214, 5220}) {
        driver.click(box);
    }
    expectAccepted(driver);
    EXPECT_EQ(kept("HtmlPixDir"), "pictures");
    EXPECT_EQ(kept("ExternalDocDir"), "docs");
    EXPECT_EQ(kept("TOCLevel"), "3");
    EXPECT_EQ(kept("Navig"), "3");
    EXPECT_EQ(kept("UseRelative"), "false");
    EXPECT_EQ(kept("PassThrough"), "true");
    EXPECT_EQ(kept("SupportOld"), "true");
    EXPECT_EQ(kept("ShowIcons"), "false");
    EXPECT_EQ(kept("LocateInBrowser"), "false");
    EXPECT_EQ(kept("DiagramType"), "0");
    EXPECT_EQ(kept("StyleSheet"), "");
    EXPECT_EQ(kept("IconFile"), "");
}

TEST_F(PropertyFrameTest, WithoutANavigationMethodApplyIsRefusedAndNothingIsWritten) {
    const FrameDriver driver;
    driver.click(5208);
    expectRefusal(driver, "You must select at least one navigation method.");
    EXPECT_EQ(kept("Navig"), "(nothing)");
    EXPECT_EQ(kept("UseRelative"), "(nothing)");
}

TEST_F(PropertyFrameTest, AHeadingLevelOutsideItsRangeIsRefusedAfterTheChecks) {
    const FrameDriver driver;
    driver.click(5219);
    driver.type(5202, "51");
    expectRefusal(driver, "Heading level must fall between 0 and 50.");
    EXPECT_EQ(kept("Navig"), "1");
    EXPECT_EQ(kept("PassThrough"), "true");
    EXPECT_EQ(kept("TOCLevel"), "(nothing)");
    driver.paste(5202, "-1");
    expectRefusal(driver, "Heading level must fall between 0 and 50.");
    driver.paste(5202, "abc");
    expectAccepted(driver);
    EXPECT_EQ(kept("TOCLevel"), "0");
}

TEST_F(PropertyFrameTest, TheHeadingLevelTakesDigitsOnly) {
    const FrameDriver driver;
    driver.type(5202, "1a2-");
    EXPECT_EQ(driver.text(5202), "12");
}

TEST_F(PropertyFrameTest, TheHeadingLevelWrapsAroundAtBothEnds) {
    const FrameDriver driver;
    driver.giveFocus(5202);
    driver.press(VK_UP);
    EXPECT_EQ(driver.text(5202), "0");
    driver.press(VK_DOWN);
    EXPECT_EQ(driver.text(5202), "50");
    driver.press(VK_DOWN);
    EXPECT_EQ(driver.text(5202), "49");
    EXPECT_TRUE(driver.applyIsEnabled());
}

TEST_F(PropertyFrameTest, DirectoriesAndFilesThatDoNotExistAreRefused) {
    const FrameDriver driver;
    driver.type(5601, "C:\\no such");
    expectRefusal(driver,
                  "C:\\no such\nDirectory Not Found.\n"
                  "Please verify the correct images directory name was given.");
    EXPECT_EQ(kept("TOCLevel"), "50");
    EXPECT_EQ(kept("HtmlPixDir"), "(nothing)");
    driver.type(5601, "no\\such");
    driver.type(5211, "C:\\none");
    expectRefusal(driver,
                  "C:\\none\nDirectory Not Found.\n"
                  "Please verify the correct external documents directory name was given.");
    EXPECT_EQ(kept("HtmlPixDir"), "no\\such");
    driver.type(5211, "C:\\windows");
    driver.type(5205, "C:\\none.css");
    expectRefusal(driver,
                  "C:\\none.css\nFile Not Found.\n"
                  "Please verify the correct style sheet name was given.");
    EXPECT_EQ(kept("ExternalDocDir"), "C:\\windows");
    driver.type(5205, "");
    driver.type(5215, "C:\\none.zip");
    expectRefusal(driver,
                  "C:\\none.zip\nFile Not Found.\n"
                  "Please verify the correct icon file name was given.");
    EXPECT_EQ(kept("StyleSheet"), "");
    EXPECT_EQ(kept("IconFile"), "(nothing)");
}

TEST_F(PropertyFrameTest, AFrameThatIsOpenedAgainShowsWhatWasSaved) {
    {
        FrameDriver driver;
        driver.type(5601, "kept pictures");
        driver.type(5202, "9");
        driver.click(5207);
        driver.click(5214);
        driver.pressOk();
    }
    const FrameDriver driver;
    EXPECT_EQ(driver.text(5601), "kept pictures");
    EXPECT_EQ(driver.text(5202), "9");
    EXPECT_TRUE(driver.isChecked(5207));
    EXPECT_FALSE(driver.isChecked(5214));
}

TEST_F(PropertyFrameTest, CancelWritesNothing) {
    FrameDriver driver;
    driver.type(5601, "never");
    driver.pressCancel();
    EXPECT_EQ(kept("HtmlPixDir"), "(nothing)");
}

TEST_F(PropertyFrameTest, ASecondFocusOfTheFirstBoxLoadsNothing) {
    const FrameDriver driver;
    driver.type(5205, "mine.css");
    put("StyleSheet", "other.css");
    driver.giveFocus(5601);
    EXPECT_EQ(driver.text(5205), "mine.css");
}

TEST_F(PropertyFrameTest, TabGoesThroughTheControlsInOrder) {
    const FrameDriver driver;
    std::vector<int> order{driver.focused()};
    for (int i = 0; i < 15; ++i) {
        driver.press(VK_TAB);
        order.push_back(driver.focused());
    }
    EXPECT_THAT(order, testing::ElementsAre(5601, 5602, 5211, 5212, 5205, 5206, 5213, 5219, 5222,
                                            5208, 5207, 5214, 5202, 5215, 5216, 5220));
}

TEST_F(PropertyFrameTest, BrowsingForADirectoryCanBeCancelled) {
    const FrameDriver driver;
    driver.withDialog(5602, "Browse",
                      [](HWND dialog) { PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(driver.text(5601), "pix");
    EXPECT_FALSE(driver.applyIsEnabled());
}

TEST_F(PropertyFrameTest, ReturnOpensTheDialogOfTheButtonThatHasTheFocus) {
    const FrameDriver driver;
    const auto cancel = [](HWND dialog) { PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0); };
    const std::array<std::pair<int, const char*>, 4> dialogs{{{5602, "Browse"},
                                                              {5212, "Browse"},
                                                              {5206, "Select Html Style Sheet"},
                                                              {5216, "Select Icon Zip File"}}};
    for (const auto& [button, title] : dialogs) {
        driver.giveFocus(button);
        driver.press(VK_RETURN);
        driver.playDialog(title, cancel);
        EXPECT_TRUE(driver.isOpen()) << button;
        EXPECT_EQ(driver.focused(), button);
    }
}

TEST_F(PropertyFrameTest, ReturnElsewhereIsForTheFrame) {
    put("HtmlPixDir", "images");
    const FrameDriver driver;
    driver.giveFocus(5601);
    driver.press(VK_RETURN);
    waitFor("the frame to go", [&] { return !driver.isOpen(); });
}

TEST_F(PropertyFrameTest, AStyleSheetCanBePicked) {
    const std::filesystem::path sheet = std::filesystem::temp_directory_path() / "picked.css";
    std::ofstream(sheet) << "x";
    const FrameDriver driver;
    driver.withDialog(5206, "Select Html Style Sheet", [&](HWND dialog) {
        // The name box is an edit or, with the newer look, a combo box.
        const HWND edit = GetDlgItem(dialog, 0x480);
        const HWND box = edit != nullptr ? edit : GetDlgItem(dialog, 0x47C);
        SendMessageA(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(sheet.string().c_str()));
        PostMessageA(GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0);
    });
    EXPECT_EQ(driver.text(5205), sheet.string());
    EXPECT_TRUE(driver.applyIsEnabled());
}

TEST_F(PropertyFrameTest, IsSavedAsAPicture) {
    put("Navig", "3");
    const FrameDriver driver;
    // An edit box would show a blinking caret.
    driver.giveFocus(5213);
    saveScreenshot(driver.frame(), "settings-page.bmp");
    EXPECT_GT(std::filesystem::file_size("settings-page.bmp"), 100000U);
}

}  // namespace

}  // namespace quillmark
