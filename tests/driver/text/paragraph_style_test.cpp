#include "driver/document_fixture.h"

namespace quillmark {
namespace {

/// Styles without contents entries; other tests cover the anchors.
class Styles : public testing::DocumentTest {
protected:
    Styles() {
        html("TOCLevel", "0");
        open();
    }
    /// What setting that style, then a text, then "Normal" writes.
    std::string styled(std::u16string_view name) {
        renew();
        open();
        doc().setStyle(name);
        doc().insertText(u"x");
        doc().setStyle(u"Normal");
        return written();
    }
};

TEST_F(Styles, OpenAndCloseHeadingsOfTheirLevel) {
    EXPECT_EQ(styled(u"Heading 1"), "<H1>x</H1>\n");
    EXPECT_EQ(styled(u"Heading 3"), "<H3>x</H3>\n");
    EXPECT_EQ(styled(u"Heading 6"), "<H6>x</H6>\n");
}

TEST_F(Styles, MakeDeepHeadingsClasses) {
    EXPECT_EQ(styled(u"Heading 7"), "<DIV CLASS=H7>x</DIV>\n");
    EXPECT_EQ(styled(u"Heading 8"), "<DIV CLASS=H8>x</DIV>\n");
    EXPECT_EQ(styled(u"Heading 9"), "<DIV CLASS=H9>x</DIV>\n");
    EXPECT_EQ(styled(u"Heading 10"), "<DIV CLASS=H9>x</DIV>\n");
    EXPECT_EQ(styled(u"Heading 14"), "<DIV CLASS=H9>x</DIV>\n");
}

TEST_F(Styles, ReadTheLevelAfterAsManyCharactersAsThePrefixHas) {
    EXPECT_EQ(styled(u"Heading"), "<H1>x</H1>\n");
    EXPECT_EQ(styled(u"Heading2"), "<H1>x</H1>\n");
    EXPECT_EQ(styled(u"Heading23"), "<H3>x</H3>\n");
    EXPECT_EQ(styled(u"Heading x"), "<H1>x</H1>\n");
    EXPECT_EQ(styled(u"Heading 0"), "<H1>x</H1>\n");
    EXPECT_EQ(styled(u"Heading   4"), "<H4>x</H4>\n");
    EXPECT_EQ(styled(u"Heading +2"), "<H2>x</H2>\n");
    EXPECT_EQ(styled(u"Heading 5b6"), "<H5>x</H5>\n");
    EXPECT_EQ(styled(u"Headings of 3"), "<H1>x</H1>\n");
}

TEST_F(Styles, UseANegativeLevelUnchanged) {
    EXPECT_EQ(styled(u"Heading -2"), "<H-2>x</H-2>\n");
    EXPECT_EQ(styled(u"List Number -2"), "<LI>x");
}

TEST_F(Styles, RepeatTheTagsOfANumberedList) {
    EXPECT_EQ(styled(u"List Number"), "<OL><LI>x</OL>\n");
    EXPECT_EQ(styled(u"List Number 2"), "<OL><OL><LI>x</OL>\n</OL>\n");
    EXPECT_EQ(styled(u"List Number2"), "<OL><LI>x</OL>\n");
}

TEST_F(Styles, NeverCloseABulletedList) {
    EXPECT_EQ(styled(u"List Bullet"), "<UL><LI>x");
    EXPECT_EQ(styled(u"List Bullet 2"), "<UL><UL><LI>x");
}

TEST_F(Styles, GiveAnyOtherListItsItemsOnly) {
    EXPECT_EQ(styled(u"List"), "<LI>x");
    EXPECT_EQ(styled(u"List Continue 2"), "<LI>x");
    EXPECT_EQ(styled(u"Listing"), "<LI>x");
}

TEST_F(Styles, ArePlainWhenUnknown) {
    EXPECT_EQ(styled(u"Body Text"), "x");
    EXPECT_EQ(styled(u""), "x");
    EXPECT_EQ(styled(u"heading 1"), "x");
    EXPECT_EQ(styled(u"HEADING 1"), "x");
    EXPECT_EQ(styled(u" Heading 1"), "x");
    EXPECT_EQ(styled(u"list number"), "x");
}

TEST_F(Styles, WriteOnlyTheFontsEndWhenSetAgain) {
    doc().setStyle(u"Heading 2");
    doc().setFontSize(10);
    doc().setStyle(u"Heading 2");
    doc().setStyle(u"Heading 2");
    EXPECT_EQ(written(), "<H2><BASEFONT SIZE = 2></BASEFONT>");
}

TEST_F(Styles, AreClosedBySettingAnother) {
    doc().setStyle(u"Heading 2");
    doc().insertText(u"a");
    doc().setStyle(u"Heading 3");
    doc().insertText(u"b");
    EXPECT_EQ(body(), "<H2>a</H2>\n<H3>b</H3>\n");
}

TEST_F(Styles, StartAsNormal) {
    doc().setStyle(u"Normal");
    EXPECT_EQ(body(), "");
}

TEST_F(Styles, LeaveAWildListLevelWithinTheMemory) {
    doc().setStyle(u"List Number 2000000000");
    EXPECT_LT(body().size(), 10U * 65536U);
}

class ListItems : public Styles {};

TEST_F(ListItems, BeginWithTheFirstTextOfALine) {
    doc().setStyle(u"List Number 2");
    doc().insertText(u"a");
    doc().insertText(u"b");
    doc().insertEndl();
    doc().insertText(u"c");
    EXPECT_EQ(body(), "<OL><OL><LI>ab<BR>\n<LI>c</OL>\n</OL>\n");
}

TEST_F(ListItems, BeginWithAnEmptyTextToo) {
    doc().setStyle(u"List Bullet");
    doc().insertText(u"");
    doc().insertText(u"a");
    EXPECT_EQ(body(), "<UL><LI>a");
}

TEST_F(ListItems, BeginAnewWithAListStyle) {
    doc().setStyle(u"List Bullet");
    doc().insertText(u"a");
    doc().setStyle(u"List Number");
    doc().insertText(u"b");
    EXPECT_EQ(body(), "<UL><LI>a<OL><LI>b</OL>\n");
}

TEST_F(ListItems, GoOnInAListStyleWithoutABlank) {
    doc().setStyle(u"List Bullet");
    doc().insertText(u"a");
    doc().setStyle(u"List");
    doc().insertText(u"b");
    doc().setStyle(u"Listing");
    doc().insertText(u"c");
    EXPECT_EQ(body(), "<UL><LI>abc");
}

TEST_F(ListItems, StayOpenOverAPlainStyle) {
    doc().setStyle(u"List");
    doc().insertText(u"a");
    doc().setStyle(u"Normal");
    doc().insertText(u"b");
    doc().setStyle(u"List");
    doc().insertText(u"c");
    EXPECT_EQ(body(), "<LI>abc");
}

TEST_F(ListItems, BeginAfterALineEndInAnyStyle) {
    doc().setStyle(u"List");
    doc().insertText(u"a");
    doc().setStyle(u"Normal");
    doc().insertEndl();
    doc().setStyle(u"List");
    doc().insertText(u"b");
    EXPECT_EQ(body(), "<LI>a<BR>\n<LI>b");
}

TEST_F(ListItems, AreOpenedBetweenALinksTagAndItsText) {
    doc().setStyle(u"List");
    doc().insertXref(u"x", u"http://example.org/");
    EXPECT_EQ(body(), "<A HREF=\"http://example.org/\"><LI>x</A>");
}

TEST_F(ListItems, DoNotBeginWithAField) {
    doc().setStyle(u"List");
    doc().insertField(4);
    doc().insertText(u"a");
    EXPECT_EQ(body(), "1<LI>a");
}

TEST_F(ListItems, AreNotWrittenInAHeader) {
    doc().startHeader();
    doc().setStyle(u"List Number");
    doc().insertText(u"a");
    doc().endHeader();
    EXPECT_EQ(header(), "<OL>a</OL>\n");
}

TEST_F(ListItems, SurviveALineEndOfTheHeader) {
    doc().setStyle(u"List");
    doc().insertText(u"a");
    doc().startHeader();
    doc().insertEndl();
    doc().endHeader();
    doc().insertText(u"b");
    EXPECT_EQ(body(), "<LI>ab");
}

TEST_F(ListItems, AreNoneInAContentsEntry) {
    doc().setStyle(u"List");
    doc().startTOCEntry();
    doc().insertText(u"a");
    doc().endTOCEntry();
    doc().insertText(u"b");
    EXPECT_EQ(body(), "<a name=\"toc1\"></a>a<LI>b");
}

class StyleTrace : public testing::OpenDocumentTest {};

TEST_F(StyleTrace, HoldsStylesAndAlignments) {
    doc().setStyle(u"Heading 1");
    doc().setTextAlign(-1);
    EXPECT_EQ(traced(), "dochtml->setStyle(\"Heading 1\");\ndochtml->setTextAlign(-1);\n");
}

}  // namespace
}  // namespace quillmark
