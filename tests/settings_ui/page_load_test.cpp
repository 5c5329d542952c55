#include <gmock/gmock.h>

#include "settings_ui/page_fixture.h"

namespace quillmark {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using PageLoadTest = PageTest;

TEST_F(PageLoadTest, NothingIsReadBeforeTheFirstBoxGetsTheFocus) {
    controls.focus(control::styleSheet);
    controls.focus(control::documentsDirectory);
    EXPECT_THAT(store->reads, IsEmpty());
    EXPECT_FALSE(page.isLoaded());
}

TEST_F(PageLoadTest, TheFirstFocusReadsEverySettingInOrder) {
    load();
    EXPECT_TRUE(page.isLoaded());
    EXPECT_THAT(store->reads, ElementsAre("Html.HtmlPixDir", "Html.ExternalDocDir", "Html.TOCLevel",
                                          "Settings.InstallDir", "Html.StyleSheet", "Html.Navig",
                                          "Html.UseRelative", "Html.PassThrough", "Html.SupportOld",
                                          "Html.LocateInBrowser", "Html.ShowIcons", "Html.IconFile",
                                          "Html.DiagramType"));
    EXPECT_THAT(store->writes, IsEmpty());
}

TEST_F(PageLoadTest, AnEmptyStoreShowsTheDefaults) {
    put("Settings", "InstallDir", "C:\\Quillmark\\html");
    load();
    EXPECT_EQ(shown(control::imagesDirectory), "pix");
    EXPECT_EQ(shown(control::documentsDirectory), "docs");
    EXPECT_EQ(shown(control::headingLevel), "50");
    EXPECT_EQ(shown(control::styleSheet), "C:\\Quillmark\\html\\default.css");
    EXPECT_EQ(shown(control::iconFile), "");
    EXPECT_TRUE(controls.isChecked(control::contents));
    EXPECT_FALSE(controls.isChecked(control::arrows));
    EXPECT_TRUE(controls.isChecked(control::relativePaths));
    EXPECT_FALSE(controls.isChecked(control::passThrough));
    EXPECT_FALSE(controls.isChecked(control::olderBrowsers));
    EXPECT_TRUE(controls.isChecked(control::locate));
    EXPECT_TRUE(controls.isChecked(control::showIcons));
    EXPECT_TRUE(controls.isChecked(control::jpeg));
    EXPECT_FALSE(controls.isChecked(control::gif));
}

TEST_F(PageLoadTest, WithoutAnInstallationDirectoryTheStyleSheetIsTheBareName) {
    load();
    EXPECT_EQ(shown(control::styleSheet), "default.css");
}

TEST_F(PageLoadTest, StoredValuesAreShown) {
    put("Html", "HtmlPixDir", "images");
    put("Html", "ExternalDocDir", "C:\\ext");
    put("Html", "TOCLevel", "7");
    put("Html", "StyleSheet", "");
    put("Html", "Navig", "2");
    put("Html", "UseRelative", "false");
    put("Html", "PassThrough", "1");
    put("Html", "SupportOld", "TRUE");
    put("Html", "LocateInBrowser", "0");
    put("Html", "ShowIcons", "no");
    put("Html", "IconFile", "C:\\i.zip");
    put("Html", "DiagramType", "1");
    load();
    EXPECT_EQ(shown(control::imagesDirectory), "images");
    EXPECT_EQ(shown(control::documentsDirectory), "C:\\ext");
    EXPECT_EQ(shown(control::headingLevel), "7");
    EXPECT_EQ(shown(control::styleSheet), "");
    EXPECT_FALSE(controls.isChecked(control::contents));
    EXPECT_TRUE(controls.isChecked(control::arrows));
    EXPECT_FALSE(controls.isChecked(control::relativePaths));
    EXPECT_TRUE(controls.isChecked(control::passThrough));
    EXPECT_TRUE(controls.isChecked(control::olderBrowsers));
    EXPECT_FALSE(controls.isChecked(control::locate));
    EXPECT_FALSE(controls.isChecked(control::showIcons));
    EXPECT_EQ(shown(control::iconFile), "C:\\i.zip");
    EXPECT_FALSE(controls.isChecked(control::jpeg));
    EXPECT_TRUE(controls.isChecked(control::gif));
}

TEST_F(PageLoadTest, AStoredNavigationOfZeroIsTakenAsOne) {
    put("Html", "Navig", "0");
    load();
    EXPECT_TRUE(controls.isChecked(control::contents));
    EXPECT_FALSE(controls.isChecked(control::arrows));
}

TEST_F(PageLoadTest, BothNavigationBitsCheckBothBoxes) {
    put("Html", "Navig", "3");
    load();
    EXPECT_TRUE(controls.isChecked(control::contents));
    EXPECT_TRUE(controls.isChecked(control::arrows));
}

TEST_F(PageLoadTest, ANavigationOfOtherBitsChecksNeitherBox) {
    put("Html", "Navig", "4");
    load();
    EXPECT_FALSE(controls.isChecked(control::contents));
    EXPECT_FALSE(controls.isChecked(control::arrows));
}

TEST_F(PageLoadTest, AnyDiagramTypeButZeroIsGif) {
    put("Html", "DiagramType", "-3");
    load();
    EXPECT_TRUE(controls.isChecked(control::gif));
    EXPECT_FALSE(controls.isChecked(control::jpeg));
}

TEST_F(PageLoadTest, TheHeadingLevelIsShownAsASignedNumberEvenOutsideItsRange) {
    put("Html", "TOCLevel", "-4");
    load();
    EXPECT_EQ(shown(control::headingLevel), "-4");
}

TEST_F(PageLoadTest, AHeadingLevelThatIsNotANumberIsShownAsZero) {
    put("Html", "TOCLevel", "deep");
    load();
    EXPECT_EQ(shown(control::headingLevel), "0");
}

TEST_F(PageLoadTest, ALaterFocusReadsNothingAndKeepsTheEdits) {
    load();
    controls.setText(control::styleSheet, "mine.css");
    put("Html", "StyleSheet", "other.css");
    store->reads.clear();
    load();
    EXPECT_THAT(store->reads, IsEmpty());
    EXPECT_EQ(shown(control::styleSheet), "mine.css");
}

TEST_F(PageLoadTest, LoadingDoesNotMakeThePageDirty) {
    load();
    EXPECT_FALSE(page.isDirty());
    EXPECT_THAT(host.dirtyReports, IsEmpty());
}

TEST_F(PageLoadTest, TheUpDownControlGetsTheRangeZeroToFiftyAndWraps) {
    put("Html", "TOCLevel", "50");
    load();
    controls.spin(1);
    EXPECT_EQ(shown(control::headingLevel), "0");
    controls.spin(-1);
    EXPECT_EQ(shown(control::headingLevel), "50");
    controls.spin(-1);
    EXPECT_EQ(shown(control::headingLevel), "49");
}

}  // namespace

}  // namespace quillmark
