#include <gmock/gmock.h>

#include "settings_ui/page_fixture.h"

namespace quillmark {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PageEventsTest : public PageTest {
protected:
    PageEventsTest() {
        load();
        store->reads.clear();
    }
};

class RoutedText : public PageEventsTest, public testing::WithParamInterface<int> {};

TEST_P(RoutedText, AChangeMakesThePageDirty) {
    controls.setText(GetParam(), "1");
    EXPECT_TRUE(page.isDirty());
    EXPECT_THAT(host.dirtyReports, ElementsAre(true));
}

INSTANTIATE_TEST_SUITE_P(Boxes, RoutedText, testing::Values(5601, 5205, 5202, 5215));

class RoutedClick : public PageEventsTest, public testing::WithParamInterface<int> {};

TEST_P(RoutedClick, AClickMakesThePageDirty) {
    controls.click(GetParam());
    EXPECT_TRUE(page.isDirty());
    EXPECT_THAT(host.dirtyReports, ElementsAre(true));
}

INSTANTIATE_TEST_SUITE_P(Boxes, RoutedClick,
                         testing::Values(5207, 5208, 5213, 5214, 5217, 5218, 5219, 5220, 5222));

TEST_F(PageEventsTest, TheDocumentsDirectoryIsNotRouted) {
    EXPECT_FALSE(page.handle(5211, ControlEvent::textChanged));
    controls.setText(5211, "elsewhere");
    EXPECT_FALSE(page.isDirty());
    EXPECT_THAT(host.dirtyReports, IsEmpty());
}

TEST_F(PageEventsTest, OnlyTheEventsOfTheTableAreRouted) {
    EXPECT_FALSE(page.handle(5205, ControlEvent::focused));
    EXPECT_FALSE(page.handle(5601, ControlEvent::clicked));
    EXPECT_FALSE(page.handle(5213, ControlEvent::textChanged));
    EXPECT_FALSE(page.handle(5204, ControlEvent::clicked));
    EXPECT_FALSE(page.handle(1, ControlEvent::clicked));
    EXPECT_FALSE(page.handle(control::none, ControlEvent::clicked));
    EXPECT_FALSE(page.isDirty());
}

TEST_F(PageEventsTest, ADirtyPageReportsItOnce) {
    controls.click(5213);
    controls.click(5213);
    controls.setText(5205, "x.css");
    EXPECT_THAT(host.dirtyReports, ElementsAre(true));
}

TEST_F(PageEventsTest, AnImagesDirectoryThatIsPickedReplacesTheText) {
    host.answer = "D:\\pictures";
    controls.click(5602);
    EXPECT_THAT(host.asked, ElementsAre("Select the image directory."));
    EXPECT_THAT(store->reads, ElementsAre("Html.HtmlPixDir"));
    EXPECT_EQ(shown(5601), "D:\\pictures");
    EXPECT_TRUE(page.isDirty());
}

TEST_F(PageEventsTest, ADocumentsDirectoryThatIsPickedReplacesTheTextAndLeavesThePageClean) {
    host.answer = "D:\\papers";
    controls.click(5212);
    EXPECT_THAT(host.asked, ElementsAre("Select the external documents directory."));
    EXPECT_THAT(store->reads, ElementsAre("Html.ExternalDocDir"));
    EXPECT_EQ(shown(5211), "D:\\papers");
    EXPECT_FALSE(page.isDirty());
}

TEST_F(PageEventsTest, AStyleSheetIsPickedStartingFromTheStoredOne) {
    put("Html", "StyleSheet", "C:\\stored.css");
    controls.setText(5205, "typed.css");
    host.answer = "C:\\picked.css";
    controls.click(5206);
    EXPECT_THAT(host.asked, ElementsAre("Select Html Style Sheet|Html Style Sheets (*.css)|*.css|"
                                        "C:\\stored.css"));
    EXPECT_EQ(shown(5205), "C:\\picked.css");
}

TEST_F(PageEventsTest, AStyleSheetThatIsNotStoredIsPickedStartingFromTheInstalledOne) {
    put("Settings", "InstallDir", "C:\\inst\\");
    controls.click(5206);
    EXPECT_THAT(host.asked, ElementsAre("Select Html Style Sheet|Html Style Sheets (*.css)|*.css|"
                                        "C:\\inst\\default.css"));
}

TEST_F(PageEventsTest, AnIconFileIsPickedStartingFromTheTextInTheBox) {
    put("Html", "IconFile", "C:\\stored.zip");
    controls.setText(5215, "typed.zip");
    host.answer = "C:\\picked.zip";
    controls.click(5216);
    EXPECT_THAT(host.asked, ElementsAre("Select Icon Zip File|Icon Zip File (*.zip)|*.zip|"
                                        "typed.zip"));
    EXPECT_THAT(store->reads, IsEmpty());
    EXPECT_EQ(shown(5215), "C:\\picked.zip");
}

TEST_F(PageEventsTest, APickThatIsCancelledChangesNothing) {
    for (const int button : {5602, 5212, 5206, 5216}) {
        controls.click(button);
    }
    EXPECT_EQ(shown(5601), "pix");
    EXPECT_EQ(shown(5211), "docs");
    EXPECT_EQ(shown(5205), "default.css");
    EXPECT_EQ(shown(5215), "");
    EXPECT_FALSE(page.isDirty());
}

TEST_F(PageEventsTest, HelpOpensTheHelpFileOfTheSettings) {
    put("Settings", "HelpFile", "C:\\help\\quillmark.hlp");
    controls.click(5223);
    EXPECT_THAT(host.asked, ElementsAre("help C:\\help\\quillmark.hlp 332903"));
}

}  // namespace

}  // namespace quillmark
