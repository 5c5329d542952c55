#include "driver/document_fixture.h"
#include "driver/text/contents_entry.h"

namespace quillmark {
namespace {

const std::string indent = "&nbsp;&nbsp;&nbsp;";

class Headings : public testing::OpenDocumentTest {
protected:
    void heading(std::u16string_view style, std::u16string_view text) {
        doc().setStyle(style);
        doc().insertText(text);
        doc().setStyle(u"Normal");
    }
};

TEST_F(Headings, GetAnAnchorInFrontOfTheirFirstText) {
    doc().setStyle(u"Heading 2");
    doc().insertText(u"In");
    doc().insertText(u"tro");
    doc().setStyle(u"Normal");
    EXPECT_EQ(written(), "<H2><a name=\"toc1\"></a>Intro</H2>\n");
}

TEST_F(Headings, BecomeEntriesOfTheirLevel) {
    heading(u"Heading 1", u"One");
    heading(u"Heading 3", u"Two");
    heading(u"Heading 12", u"Three");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "One") + indent + indent +
                              entry("rep.htm#toc2", "Two") + indent + indent + indent + indent +
                              indent + indent + indent + indent + indent + indent + indent +
                              entry("rep.htm#toc3", "Three"));
}

TEST_F(Headings, EnterDownToTheContentsLevel) {
    html("TOCLevel", "2");
    open();
    heading(u"Heading 2", u"In");
    heading(u"Heading 3", u"Out");
    EXPECT_EQ(contents(), indent + entry("rep.htm#toc1", "In"));
}

TEST_F(Headings, StayOutBelowTheContentsLevel) {
    html("TOCLevel", "1");
    open();
    heading(u"Heading 2", u"Out");
    EXPECT_EQ(contents(), entry("rep.htm#Page 1", "Page 1"));
}

TEST_F(Headings, AllStayOutAtLevelZero) {
    html("TOCLevel", "0");
    open();
    doc().setStyle(u"Heading 1");
    doc().insertText(u"a");
    doc().insertEndl();
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#Page 1", "Page 1"));
}

TEST_F(Headings, KeepTheMarkupOfTheirText) {
    doc().setStyle(u"Heading 1");
    doc().insertText(u"a  b\nc");
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "a&nbsp; b<BR>\nc"));
}

TEST_F(Headings, EndTheirEntryWithALine) {
    doc().setStyle(u"Heading 1");
    doc().insertText(u"One");
    doc().insertEndl();
    doc().insertText(u"Two");
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "One") + entry("rep.htm#toc2", "Two"));
}

TEST_F(Headings, EndTheirEntryWithAnAlignment) {
    doc().setStyle(u"Heading 1");
    doc().setTextAlign(2);
    doc().insertText(u"One");
    doc().setTextAlign(3);
    doc().insertText(u"Two");
    doc().setTextAlign(0);
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "One") + entry("rep.htm#toc2", "Two"));
}

TEST_F(Headings, DoNotEndTheirEntryWithTheFirstAlignment) {
    doc().setStyle(u"Heading 1");
    doc().insertText(u"One");
    doc().setTextAlign(2);
    doc().insertText(u"Two");
    doc().setStyle(u"Normal");
    doc().setTextAlign(0);
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "OneTwo"));
}

TEST_F(Headings, EndTheirEntryWithThePage) {
    doc().setStyle(u"Heading 2");
    doc().insertText(u"One");
    doc().insertPageBreak();
    doc().setStyle(u"Normal");
    doc().insertText(u"x");
    EXPECT_EQ(contents("rep2.htm"),
              indent + entry("rep.htm#toc1", "One") + entry("rep2.htm#Page 2", "Page 2"));
}

TEST_F(Headings, FollowedByAnotherHeadingEndTheirEntry) {
    doc().setStyle(u"Heading 1");
    doc().insertText(u"One");
    heading(u"Heading 2", u"Two");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "One") + indent + entry("rep.htm#toc2", "Two"));
}

TEST_F(Headings, SetAgainGoOn) {
    doc().setStyle(u"Heading 1");
    doc().insertText(u"One");
    doc().setStyle(u"Heading 1");
    doc().insertText(u"Two");
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "OneTwo"));
}

TEST_F(Headings, GetTheirAnchorBeforeALink) {
    doc().setStyle(u"Heading 1");
    doc().insertXref(u"x", u"http://example.org/");
    doc().setStyle(u"Normal");
    EXPECT_EQ(written(), "<H1><a name=\"toc1\"></a><A HREF=\"http://example.org/\">x</A></H1>\n");
}

TEST_F(Headings, CollectTheTextOfALinkAndNotItsTags) {
    doc().setStyle(u"Heading 1");
    doc().insertXref(u"x", u"http://example.org/");
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "x"));
}

TEST_F(Headings, WithoutATextLeaveTheirAnchorToTheNext) {
    heading(u"Heading 1", u"");
    heading(u"Heading 2", u"Two");
    EXPECT_EQ(contents(), indent + entry("rep.htm#toc1", "Two"));
    EXPECT_EQ(out("rep.htm").find("toc2"), std::string::npos);
}

TEST_F(Headings, InATableAreWrittenAndNotCollected) {
    doc().setStyle(u"Heading 1");
    doc().startTable();
    doc().addCell();
    doc().insertText(u"x");
    doc().endTable();
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#Page 1", "Page 1"));
    EXPECT_NE(out("rep.htm").find("<TD><H1><a name=\"toc1\"></a>x</H1>\n</TD>"), std::string::npos);
}

TEST_F(Headings, MakeNoEntryAtALineEndInATable) {
    doc().setStyle(u"Heading 1");
    doc().insertText(u"One");
    doc().startTable();
    doc().addCell();
    doc().insertEndl();
    doc().endTable();
    doc().insertText(u"Two");
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "OneTwo"));
}

TEST_F(Headings, CollectAgainOutsideATableThatNeverGotACell) {
    doc().startTable();
    doc().endTable();  // the depth is below 0 now
    heading(u"Heading 1", u"One");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "One"));
}

TEST_F(Headings, FindTheAnchorOfAListTakenForTheirs) {
    doc().setStyle(u"List Number");
    doc().insertText(u"item");
    heading(u"Heading 1", u"One");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "One"));
    EXPECT_NE(out("rep.htm").find("<OL><a name=\"toc1\"></a><LI>item</OL>\n<H1>One</H1>\n"),
              std::string::npos);
}

TEST_F(Headings, OfABulletDeeperThanTheContentsLevelGetNoAnchor) {
    html("TOCLevel", "1");
    open();
    doc().setStyle(u"List Bullet 2");
    doc().insertText(u"item");
    EXPECT_EQ(written(), "<UL><UL><LI>item");
}

TEST_F(Headings, AreNotCollectedInAHeader) {
    doc().startHeader();
    doc().setStyle(u"Heading 1");
    doc().insertText(u"h");
    doc().endHeader();
    // The style set in the header still counts as the heading level of the next text.
    doc().insertText(u"b");
    EXPECT_EQ(contents(), entry("rep.htm#Page 1", "Page 1"));
    EXPECT_EQ(header(), "<H1>h</H1>\n");
}

TEST_F(Headings, WithANegativeLevelStayOut) {
    heading(u"Heading -2", u"x");
    EXPECT_EQ(contents(), entry("rep.htm#Page 1", "Page 1"));
}

class Entries : public testing::OpenDocumentTest {
protected:
    void entryOf(std::u16string_view text) {
        doc().startTOCEntry();
        doc().insertText(text);
        doc().endTOCEntry();
    }
};

TEST_F(Entries, HaveLevelOneInANormalStyle) {
    entryOf(u"Intro");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "Intro"));
}

TEST_F(Entries, FollowTheirAnchor) {
    entryOf(u"Intro");
    EXPECT_EQ(written(), "<a name=\"toc1\"></a>Intro");
}

TEST_F(Entries, HaveTheContentsLevelWithoutAStyle) {
    html("TOCLevel", "3");
    open();
    doc().setStyle(u"");
    entryOf(u"Intro");
    EXPECT_EQ(contents(), indent + indent + entry("rep.htm#toc1", "Intro"));
}

TEST_F(Entries, HaveTheDeepestLevelWithoutAStyleByDefault) {
    doc().setStyle(u"");
    entryOf(u"Intro");
    std::string indents;
    for (int level = 1; level < 50; ++level) {
        indents += indent;
    }
    EXPECT_EQ(contents(), indents + entry("rep.htm#toc1", "Intro"));
}

TEST_F(Entries, ReadTheirLevelAfterEightCharactersOfAnyStyle) {
    doc().setStyle(u"Anything3");
    entryOf(u"a");
    doc().setStyle(u"List Bullet 4");
    entryOf(u"b");
    doc().setStyle(u"Chapter 2");
    entryOf(u"c");
    EXPECT_EQ(contents(), indent + indent + entry("rep.htm#toc1", "a") +
                              entry("rep.htm#toc2", "b") + indent + entry("rep.htm#toc3", "c"));
}

TEST_F(Entries, WorkAtContentsLevelZero) {
    html("TOCLevel", "0");
    open();
    entryOf(u"Intro");
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "Intro"));
}

TEST_F(Entries, WithoutATextAreDropped) {
    doc().startTOCEntry();
    doc().endTOCEntry();
    EXPECT_EQ(contents(), entry("rep.htm#Page 1", "Page 1"));
}

TEST_F(Entries, StartedTwiceTakeTheSecondAnchor) {
    doc().startTOCEntry();
    doc().insertText(u"a");
    entryOf(u"b");
    EXPECT_EQ(contents(), entry("rep.htm#toc2", "b"));
}

TEST_F(Entries, EndedTwiceAreOne) {
    entryOf(u"a");
    doc().endTOCEntry();
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "a"));
}

TEST_F(Entries, InAHeadingSwallowItsEntry) {
    doc().setStyle(u"Heading 2");
    entryOf(u"a");
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents(), indent + entry("rep.htm#toc1", "a"));
}

TEST_F(Entries, EndWithALine) {
    doc().startTOCEntry();
    doc().insertText(u"a");
    doc().insertEndl();
    doc().insertText(u"b");
    doc().endTOCEntry();
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "a"));
}

TEST_F(Entries, AreTraced) {
    doc().startTOCEntry();
    doc().endTOCEntry();
    doc().insertTOC();
    EXPECT_EQ(traced(),
              "dochtml->startTOCEntry();\ncreated bookmark:toc1 as rep.htm#toc1\n"
              "dochtml->endTOCEntry();\ndochtml->insertTOC();\n");
}

TEST_F(Entries, WarnOfAnAnchorThatIsTaken) {
    doc().insertTag(u"toc1");
    traced();
    doc().startTOCEntry();
    EXPECT_EQ(traced(),
              "dochtml->startTOCEntry();\n"
              "WARNING: bookmark \"toc1\" already exists as rep.htm#toc1\n");
    doc().insertText(u"a");
    doc().endTOCEntry();
    EXPECT_EQ(contents(), entry("rep.htm#toc1", "a"));
}

TEST_F(Entries, LeadFromTheOutputDirectoryIntoSubdirectories) {
    doc().pushDirectory(u"a\\b");
    entryOf(u"Intro");
    doc().close();
    EXPECT_TRUE(isWritten("C:\\out\\a\\b\\rep.htm"));
    renew();
    open();
    doc().insertTOC();
    doc().insertText(u"\n\n");
    doc().pushDirectory(u"a\\b");
    entryOf(u"Intro");
    doc().close();
    EXPECT_NE(out("rep.htm").find(entry("a/b/rep2.htm#toc2", "Intro")), std::string::npos);
}

}  // namespace
}  // namespace quillmark
