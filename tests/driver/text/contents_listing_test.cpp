#include "driver/document_fixture.h"
#include "driver/text/contents_entry.h"

namespace quillmark {
namespace {

class PageEntries : public testing::OpenDocumentTest {};

TEST_F(PageEntries, AreAddedForPagesWithoutAny) {
    doc().insertText(u"a");
    doc().insertPageBreak();
    doc().insertText(u"b");
    EXPECT_EQ(contents("rep2.htm"),
              entry("rep.htm#Page 1", "Page 1") + entry("rep2.htm#Page 2", "Page 2"));
}

TEST_F(PageEntries, OpenAnAnchorAtTheTop) {
    doc().insertText(u"a");
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY  >\n<a name=\"toc1\"></a><a name=\"Page 1\"></a>a"),
              std::string::npos);
}

TEST_F(PageEntries, LeaveTheirAnchorToTheNextHeading) {
    doc().insertText(u"a");
    doc().insertPageBreak();
    doc().setStyle(u"Heading 1");
    doc().insertText(u"One");
    doc().setStyle(u"Normal");
    EXPECT_EQ(contents("rep2.htm"),
              entry("rep.htm#Page 1", "Page 1") + entry("rep2.htm#toc1", "One"));
    EXPECT_EQ(out("rep2.htm").find("<a name=\"toc"), std::string::npos);
}

TEST_F(PageEntries, AreNotMadeBesideOthers) {
    doc().startTOCEntry();
    doc().insertText(u"a");
    doc().endTOCEntry();
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY  >\n<a name=\"Page 1\"></a><a name=\"toc1\"></a>a"),
              std::string::npos);
    EXPECT_EQ(out("rep.htm").find("toc2"), std::string::npos);
}

TEST_F(PageEntries, ComeForEveryPageAnew) {
    doc().startTOCEntry();
    doc().insertText(u"a");
    doc().endTOCEntry();
    doc().insertPageBreak();
    EXPECT_EQ(contents("rep2.htm"),
              entry("rep.htm#toc1", "a") + entry("rep2.htm#Page 2", "Page 2"));
}

class Listing : public testing::OpenDocumentTest {};

TEST_F(Listing, IsWhereItWasInserted) {
    doc().insertText(u"a");
    doc().insertTOC();
    doc().insertText(u"b");
    EXPECT_EQ(body(),
              "a<BASE TARGET=\"main\">\n<H2>Table of Contents</H2>\n"
              "<A HREF=\"rep.htm#Page 1\">Page 1</a><BR>\nb");
}

TEST_F(Listing, WaitsForTheEntriesOfLaterPages) {
    doc().insertTOC();
    doc().insertPageBreak();
    EXPECT_FALSE(isWritten("C:\\out\\rep.htm"));
    doc().startTOCEntry();
    doc().insertText(u"Later");
    doc().endTOCEntry();
    doc().insertPageBreak();
    EXPECT_FALSE(isWritten("C:\\out\\rep.htm"));
    EXPECT_TRUE(isWritten("C:\\out\\rep2.htm"));
    EXPECT_EQ(body(), "<BASE TARGET=\"main\">\n<H2>Table of Contents</H2>\n" +
                          entry("rep.htm#Page 1", "Page 1") + entry("rep2.htm#toc2", "Later") +
                          entry("rep3.htm#Page 3", "Page 3"));
}

TEST_F(Listing, IsIgnoredInATable) {
    doc().startTable();
    doc().addCell();
    traced();
    doc().insertTOC();
    EXPECT_EQ(traced(), "dochtml->insertTOC();\n");
    doc().insertText(u"x");
    doc().endTable();
    EXPECT_EQ(body(), "<TABLE BORDER=1 CELLSPACING=0 CELLPADDING=2><TD>x</TD></TABLE>\n");
}

TEST_F(Listing, IsAllowedWhileATableIsOnlyPending) {
    doc().startTable();
    doc().insertTOC();
    EXPECT_NE(body().find("<H2>Table of Contents</H2>"), std::string::npos);
}

TEST_F(Listing, IsOnceOnAPageAtTheFirstPlace) {
    doc().insertText(u"a");
    doc().insertTOC();
    doc().insertText(u"b");
    doc().insertTOC();
    doc().insertText(u"c");
    EXPECT_EQ(body(),
              "a<BASE TARGET=\"main\">\n<H2>Table of Contents</H2>\n"
              "<A HREF=\"rep.htm#Page 1\">Page 1</a><BR>\nbc");
    EXPECT_EQ(traced().find("Unresolved"), std::string::npos);
}

TEST_F(Listing, IsOnEveryPageThatAsks) {
    doc().insertTOC();
    doc().insertPageBreak();
    doc().insertTOC();
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), bodyOf("rep2.htm", 2));
}

TEST_F(Listing, OpenedInAHeaderGoesToThePage) {
    doc().insertText(u"a");
    doc().startHeader();
    doc().insertTOC();
    doc().insertText(u"h");
    doc().endHeader();
    EXPECT_EQ(header(), "h");
    EXPECT_NE(bodyOf("rep.htm").find("a<BASE TARGET=\"main\">\n"), std::string::npos);
}

TEST_F(Listing, MeansTheEntriesOfTheLastDocumentOnly) {
    doc().insertText(u"a");
    doc().close();
    open(u"C:\\out\\other.htm");
    EXPECT_EQ(contents("other.htm"), entry("other.htm#Page 1", "Page 1"));
}

}  // namespace
}  // namespace quillmark
