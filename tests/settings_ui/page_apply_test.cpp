#include <gmock/gmock.h>
#include <ostream>

#include "settings_ui/page_fixture.h"

namespace quillmark {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Loaded from a store in which everything is acceptable.
class PageApplyTest : public PageTest {
protected:
    PageApplyTest() {
        put("Html", "StyleSheet", "");
        load();
        controls.click(5213);
        controls.click(5213);
    }
    void expectRefusal(const std::string& message) {
        EXPECT_FALSE(page.apply());
        EXPECT_THAT(host.messages, ElementsAre("[Invalid Value] " + message));
        EXPECT_TRUE(page.isDirty());
        EXPECT_THAT(host.dirtyReports, ElementsAre(true));
    }
};

TEST_F(PageApplyTest, EverySettingIsWrittenInOrderAndThePageIsCleanAgain) {
    EXPECT_TRUE(page.apply());
    EXPECT_THAT(
        store->writes,
        ElementsAre("Html.Navig=1", "Html.DiagramType=0", "Html.UseRelative=true",
                    "Html.PassThrough=false", "Html.SupportOld=false", "Html.LocateInBrowser=true",
                    "Html.ShowIcons=true", "Html.TOCLevel=50", "Html.HtmlPixDir=pix",
                    "Html.ExternalDocDir=docs", "Html.StyleSheet=", "Html.IconFile="));
    EXPECT_THAT(host.messages, IsEmpty());
    EXPECT_FALSE(page.isDirty());
    EXPECT_THAT(host.dirtyReports, ElementsAre(true, false));
}

TEST_F(PageApplyTest, EditedValuesAreWritten) {
    const std::string pictures = makeDirectory("pictures");
    const std::string sheet = makeFile("a.css");
    const std::string icons = makeFile("i.zip");
    controls.setText(5601, pictures);
    controls.setText(5211, "papers");
    controls.setText(5205, sheet);
    controls.setText(5215, icons);
    controls.setText(5202, "3");
    for (const int box : {5207, 5208, 5213, 5219, 5222, 5214, 5220, 5217}) {
        controls.click(box);
    }
    EXPECT_TRUE(page.apply());
    EXPECT_THAT(store->writes,
                ElementsAre("Html.Navig=2", "Html.DiagramType=1", "Html.UseRelative=false",
                            "Html.PassThrough=true", "Html.SupportOld=true",
                            "Html.LocateInBrowser=false", "Html.ShowIcons=false", "Html.TOCLevel=3",
                            "Html.HtmlPixDir=" + pictures, "Html.ExternalDocDir=papers",
                            "Html.StyleSheet=" + sheet, "Html.IconFile=" + icons));
}

TEST_F(PageApplyTest, BothNavigationMethodsAreWrittenAsThree) {
    controls.click(5207);
    EXPECT_TRUE(page.apply());
    EXPECT_EQ(kept("Navig"), "3");
}

TEST_F(PageApplyTest, WithoutANavigationMethodNothingIsWritten) {
    controls.click(5208);
    expectRefusal("You must select at least one navigation method.");
    EXPECT_THAT(store->writes, IsEmpty());
}

TEST_F(PageApplyTest, WithNeitherRadioButtonTheDiagramTypeIsOne) {
    controls.setChecked(5218, false);
    EXPECT_TRUE(page.apply());
    EXPECT_EQ(kept("DiagramType"), "1");
}

TEST_F(PageApplyTest, ARefusedHeadingLevelLeavesTheChecksWritten) {
    controls.click(5219);
    controls.setText(5202, "51");
    controls.setText(5601, "never written");
    expectRefusal("Heading level must fall between 0 and 50.");
    EXPECT_THAT(store->writes,
                ElementsAre("Html.Navig=1", "Html.DiagramType=0", "Html.UseRelative=true",
                            "Html.PassThrough=true", "Html.SupportOld=false",
                            "Html.LocateInBrowser=true", "Html.ShowIcons=true"));
}

struct LevelCase {
    std::string text;
    std::string stored;  ///< empty: refused

    friend void PrintTo(const LevelCase& level, std::ostream* out) {
        *out << testing::PrintToString(level.text);
    }
};

class HeadingLevel : public PageApplyTest, public testing::WithParamInterface<LevelCase> {};

TEST_P(HeadingLevel, IsReadAsADecimalInteger) {
    controls.setText(5202, GetParam().text);
    EXPECT_EQ(page.apply(), !GetParam().stored.empty());
    EXPECT_EQ(kept("TOCLevel"), GetParam().stored.empty() ? "(nothing)" : GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(Texts, HeadingLevel,
                         testing::Values(LevelCase{"0", "0"}, LevelCase{"50", "50"},
                                         LevelCase{"51", ""}, LevelCase{"-1", ""},
                                         LevelCase{"abc", "0"}, LevelCase{"", "0"},
                                         LevelCase{"7th", "7"}, LevelCase{" 12", "12"},
                                         LevelCase{"+9", "9"}, LevelCase{"4294967296", ""},
                                         LevelCase{"99999999999999999999", ""},
                                         // 256 characters are read: not the last two of these.
                                         LevelCase{std::string(256, '0') + "51", "0"},
                                         LevelCase{std::string(254, '0') + "51", ""}));

TEST_F(PageApplyTest, ARelativeImagesDirectoryIsWrittenWithoutACheck) {
    controls.setText(5601, "no\\such\\directory");
    EXPECT_TRUE(page.apply());
    EXPECT_EQ(kept("HtmlPixDir"), "no\\such\\directory");
}

TEST_F(PageApplyTest, ADirectoryThatBeginsWithASeparatorIsWrittenWithoutACheck) {
    controls.setText(5601, "\\\\server\\none");
    EXPECT_TRUE(page.apply());
    EXPECT_EQ(kept("HtmlPixDir"), "\\\\server\\none");
}

TEST_F(PageApplyTest, ADriveQualifiedImagesDirectoryMustExist) {
    controls.setText(5601, named("none"));
    controls.setText(5202, "4");
    expectRefusal(named("none") +
                  "\nDirectory Not Found.\n"
                  "Please verify the correct images directory name was given.");
    EXPECT_EQ(kept("TOCLevel"), "4");
    EXPECT_EQ(kept("HtmlPixDir"), "(nothing)");
    EXPECT_EQ(kept("ExternalDocDir"), "(nothing)");
}

TEST_F(PageApplyTest, AFileIsNotAnImagesDirectory) {
    controls.setText(5601, makeFile("plain"));
    EXPECT_FALSE(page.apply());
}

TEST_F(PageApplyTest, ADriveQualifiedDocumentsDirectoryMustExist) {
    controls.setText(5211, named("none"));
    expectRefusal(named("none") +
                  "\nDirectory Not Found.\n"
                  "Please verify the correct external documents directory name was given.");
    EXPECT_EQ(kept("HtmlPixDir"), "pix");
    EXPECT_EQ(kept("ExternalDocDir"), "(nothing)");
}

TEST_F(PageApplyTest, AStyleSheetMustExist) {
    controls.setText(5205, "nowhere.css");
    expectRefusal(
        "nowhere.css\nFile Not Found.\n"
        "Please verify the correct style sheet name was given.");
    EXPECT_EQ(kept("ExternalDocDir"), "docs");
    EXPECT_EQ(kept("StyleSheet"), "");
    EXPECT_EQ(kept("IconFile"), "(nothing)");
}

TEST_F(PageApplyTest, ADirectoryIsNotAStyleSheet) {
    controls.setText(5205, makeDirectory("d.css"));
    EXPECT_FALSE(page.apply());
}

TEST_F(PageApplyTest, AnIconFileMustExist) {
    const std::string sheet = makeFile("a.css");
    controls.setText(5205, sheet);
    controls.setText(5215, named("none.zip"));
    expectRefusal(named("none.zip") +
                  "\nFile Not Found.\n"
                  "Please verify the correct icon file name was given.");
    EXPECT_EQ(kept("StyleSheet"), sheet);
    EXPECT_EQ(kept("IconFile"), "(nothing)");
}

TEST_F(PageApplyTest, ARefusedPageCanBeCorrectedAndApplied) {
    controls.setText(5202, "51");
    EXPECT_FALSE(page.apply());
    controls.setText(5202, "5");
    EXPECT_TRUE(page.apply());
    EXPECT_EQ(kept("TOCLevel"), "5");
    EXPECT_FALSE(page.isDirty());
}

TEST_F(PageApplyTest, ASelectionIsValidatedAndWrittenAlone) {
    controls.click(5208);
    controls.setText(5202, "6");
    controls.setText(5215, "nowhere.zip");
    constexpr std::array<std::string_view, 2> wanted{"TOCLevel", "ShowIcons"};
    EXPECT_TRUE(page.applyOnly(wanted));
    EXPECT_THAT(store->writes, ElementsAre("Html.ShowIcons=true", "Html.TOCLevel=6"));
    EXPECT_TRUE(page.isDirty());
}

}  // namespace

}  // namespace quillmark
