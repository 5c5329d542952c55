#include "driver/document_fixture.h"

namespace quillmark {
namespace {

const std::string createdTarget = "created bookmark:target as rep.htm#target\n";

class Tags : public testing::OpenDocumentTest {};

TEST_F(Tags, WriteAnAnchor) {
    doc().insertTag(u"target");
    EXPECT_EQ(traced(), "dochtml->insertTag(\"target\");\n" + createdTarget);
    EXPECT_EQ(body(), "<a name=\"target\"></a>");
}

TEST_F(Tags, DoNotEscapeTheirName) {
    doc().insertTag(u"a  \"b\" <c>");
    EXPECT_EQ(body(), "<a name=\"a  \"b\" <c>\"></a>");
}

TEST_F(Tags, DoNothingWithoutAName) {
    EXPECT_EQ(doc().insertTag(u""), 0);
    EXPECT_EQ(traced(), "dochtml->insertTag(\"\");\n");
    EXPECT_EQ(body(), "");
}

TEST_F(Tags, DefineANameOnce) {
    doc().insertTag(u"target");
    traced();
    doc().insertTag(u"target");
    EXPECT_EQ(traced(),
              "dochtml->insertTag(\"target\");\n"
              "WARNING: bookmark \"target\" already exists as rep.htm#target\n");
    EXPECT_EQ(body(), "<a name=\"target\"></a>");
}

TEST_F(Tags, KeepTheFirstPlaceOfAName) {
    doc().insertTag(u"target");
    doc().insertPageBreak();
    doc().insertTag(u"target");
    doc().insertXref(u"x", u"target");
    doc().close();
    EXPECT_EQ(bodyOf("rep2.htm", 2), "<A HREF=\"rep.htm#target\">x</A>");
}

TEST_F(Tags, AreCaseSensitive) {
    doc().insertTag(u"target");
    doc().insertTag(u"Target");
    EXPECT_EQ(body(), "<a name=\"target\"></a><a name=\"Target\"></a>");
}

TEST_F(Tags, GoToThePageWhileTheHeaderIsOpen) {
    doc().startHeader();
    doc().insertTag(u"target");
    doc().insertText(u"h");
    doc().endHeader();
    EXPECT_EQ(body(), "<a name=\"target\"></a>");
    EXPECT_EQ(header(), "h");
}

TEST_F(Tags, WarnAtLevelOneOnly) {
    Trace::setListener(nullptr);
    {
        CapturingTrace errorsOnly(Trace::errors);
        doc().insertTag(u"target");
        doc().insertTag(u"target");
        EXPECT_EQ(errorsOnly.text(),
                  "WARNING: bookmark \"target\" already exists as rep.htm#target\n");
    }
    {
        CapturingTrace callsOnly(Trace::calls);
        doc().insertTag(u"toc1");
        callsOnly.clear();
        doc().startTOCEntry();  // the driver's own anchor: traced at the level of reports
        EXPECT_EQ(callsOnly.text(), "dochtml->startTOCEntry();\n");
    }
    Trace::setListener(&trace);
}

class References : public testing::OpenDocumentTest {};

TEST_F(References, AreWrittenAtOnceWhenTheirTargetIsKnown) {
    doc().insertTag(u"target");
    doc().insertXref(u"see  it", u"target");
    EXPECT_EQ(written(), "<a name=\"target\"></a><A HREF=\"rep.htm#target\">see&nbsp; it</A>");
}

TEST_F(References, AreFilledOnTheSamePage) {
    doc().insertXref(u"x", u"target");
    doc().insertText(u" and ");
    doc().insertTag(u"target");
    EXPECT_EQ(body(), "<A HREF=\"rep.htm#target\">x</A> and <a name=\"target\"></a>");
}

TEST_F(References, HoldTheirPageBackUntilTheTagArrives) {
    doc().insertXref(u"x", u"target");
    doc().insertPageBreak();
    EXPECT_FALSE(isWritten("C:\\out\\rep.htm"));
    doc().insertTag(u"target");
    ASSERT_TRUE(isWritten("C:\\out\\rep.htm"));
    EXPECT_EQ(bodyOf("rep.htm"), "<A HREF=\"rep2.htm#target\">x</A>");
}

TEST_F(References, HoldTheirPageBackUntilTheLastTagArrives) {
    doc().insertXref(u"x", u"one");
    doc().insertXref(u"y", u"two");
    doc().insertPageBreak();
    doc().insertTag(u"two");
    EXPECT_FALSE(isWritten("C:\\out\\rep.htm"));
    doc().insertTag(u"one");
    EXPECT_EQ(bodyOf("rep.htm"), "<A HREF=\"rep2.htm#one\">x</A><A HREF=\"rep2.htm#two\">y</A>");
}

TEST_F(References, AreFilledOnEveryPageThatWaits) {
    doc().insertXref(u"x", u"target");
    doc().insertPageBreak();
    doc().insertXref(u"y", u"target");
    doc().insertPageBreak();
    doc().insertXref(u"z", u"target");
    doc().insertTag(u"target");
    EXPECT_EQ(bodyOf("rep.htm"), "<A HREF=\"rep3.htm#target\">x</A>");
    EXPECT_EQ(bodyOf("rep2.htm", 2), "<A HREF=\"rep3.htm#target\">y</A>");
    EXPECT_FALSE(isWritten("C:\\out\\rep3.htm")) << "the current page is not finished";
}

TEST_F(References, ReportWhatWasNeverDefined) {
    doc().insertText(u"\n\n");
    doc().insertXref(u"x", u"nowhere");
    doc().insertXref(u"y", u"Nobody");
    traced();
    doc().close();
    EXPECT_EQ(traced(),
              "dochtml->close();\n"
              "created bookmark:toc1 as rep.htm#toc1\n"
              "Unresolved references on page C:\\out\\rep.htm\n"
              "  Nobody near line 2 <A Nobody>\n"
              "  Nobody near line 2 </A>\n"
              "  nowhere near line 2 <A nowhere>\n"
              "  nowhere near line 2 </A>\n");
    EXPECT_EQ(bodyOf("rep.htm"), "<BR>\n<BR>\nxy");
}

TEST_F(References, AreNotReportedOnceTheirListingIsWritten) {
    doc().insertTOC();
    traced();
    doc().close();
    EXPECT_EQ(traced(), "dochtml->close();\ncreated bookmark:toc1 as rep.htm#toc1\n");
}

TEST_F(References, WithoutANameCloseTheirTagAlone) {
    doc().insertXref(u"x", u"");
    traced();
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), "x</A>");
    EXPECT_EQ(traced(),
              "dochtml->close();\n"
              "created bookmark:toc1 as rep.htm#toc1\n"
              "Unresolved references on page C:\\out\\rep.htm\n"
              "   near line 1 <A >\n");
}

TEST_F(References, WithoutATextKeepTheirOrder) {
    doc().insertXref(u"", u"one");
    doc().insertXref(u"", u"two");
    doc().insertTag(u"two");
    doc().insertTag(u"one");
    EXPECT_EQ(body(),
              "<A HREF=\"rep.htm#one\"></A><A HREF=\"rep.htm#two\"></A>"
              "<a name=\"two\"></a><a name=\"one\"></a>");
}

TEST_F(References, PutTheLinkWhereTheNameFirstOccursInTheTag) {
    doc().insertXref(u"x", u"A");
    doc().insertTag(u"A");
    doc().insertXref(u"y", u"A");
    const std::string link = "<HREF=\"rep.htm#A\" A>";
    const std::string end = "</HREF=\"rep.htm#A\">";
    EXPECT_EQ(body(), link + "x" + end + "<a name=\"A\"></a>" + link + "y" + end);
}

TEST_F(References, LeadToPagesByNumber) {
    doc().insertXref(u"x", u"Page 2");
    doc().insertXref(u"y", u"Page 1");
    doc().insertPageBreak();
    EXPECT_EQ(bodyOf("rep.htm"),
              "<A HREF=\"rep2.htm#Page 2\">x</A><A HREF=\"rep.htm#Page 1\">y</A>");
}

TEST_F(References, LeadToContentsAnchors) {
    doc().insertXref(u"x", u"toc1");
    doc().startTOCEntry();
    EXPECT_EQ(written(), "<A HREF=\"rep.htm#toc1\">x</A><a name=\"toc1\"></a>");
}

TEST_F(References, LeadAcrossDirectories) {
    doc().insertTag(u"home");
    doc().insertXref(u"x", u"far");
    doc().insertText(u"\n");
    doc().pushDirectory(u"a\\b");
    doc().insertTag(u"far");
    doc().insertXref(u"y", u"home");
    doc().insertText(u"\n");
    doc().pushDirectory(u"a\\c");
    doc().insertXref(u"z", u"far");
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), "<a name=\"home\"></a><A HREF=\"a/b/rep2.htm#far\">x</A><BR>\n");
    EXPECT_EQ(bodyOf("a\\b\\rep2.htm", 2),
              "<a name=\"far\"></a><A HREF=\"../../rep.htm#home\">y</A><BR>\n");
    EXPECT_EQ(bodyOf("a\\c\\rep3.htm", 3), "<A HREF=\"../b/rep2.htm#far\">z</A>");
}

TEST_F(References, KeepTheNameOfAPageThatWasRenamed) {
    // The anchor of a page is written when it begins; a change of directory on a page of one
    // line moves the page and not what is known of it.
    doc().pushDirectory(u"sub");
    doc().insertXref(u"x", u"Page 1");
    doc().close();
    EXPECT_EQ(bodyOf("sub\\rep.htm"), "<A HREF=\"../rep.htm#Page 1\">x</A>");
}

TEST_F(References, InAHeaderWaitInThePage) {
    doc().insertText(u"a");
    doc().startHeader();
    doc().insertXref(u"h", u"target");
    doc().endHeader();
    doc().insertText(u"b");
    doc().insertTag(u"target");
    EXPECT_EQ(body(), "a<A HREF=\"rep.htm#target\"></A>b<a name=\"target\"></a>");
    EXPECT_EQ(header(), "h");
}

TEST_F(References, InAHeaderAreWrittenThereWhenKnown) {
    doc().insertTag(u"target");
    doc().startHeader();
    doc().insertXref(u"h", u"target");
    doc().endHeader();
    EXPECT_EQ(header(), "<A HREF=\"rep.htm#target\">h</A>");
}

TEST_F(References, LeaveTheListingsPlaceAloneWhenNobodyWaitsForItsName) {
    doc().insertTOC();
    doc().insertTag(u"TOC");
    EXPECT_EQ(body(),
              "<BASE TARGET=\"main\">\n<H2>Table of Contents</H2>\n"
              "<A HREF=\"rep.htm#Page 1\">Page 1</a><BR>\n<a name=\"TOC\"></a>");
}

TEST_F(References, OfTheListingsNameTakeItsPlaceAlong) {
    doc().insertXref(u"x", u"TOC");
    doc().insertTOC();
    doc().insertTag(u"TOC");
    EXPECT_EQ(body(), "<A HREF=\"rep.htm#TOC\">x</A>HREF=\"rep.htm#TOC\"<a name=\"TOC\"></a>");
}

TEST_F(References, OfTheTopsNameAreReleasedWithIt) {
    doc().insertXref(u"x", u"TOPOFPAGE");
    traced();
    doc().insertPageBreak();
    EXPECT_TRUE(isWritten("C:\\out\\rep.htm"));
    EXPECT_EQ(traced().find("Unresolved"), std::string::npos);
    doc().insertTag(u"TOPOFPAGE");
    EXPECT_EQ(bodyOf("rep.htm"), "x");
}

TEST_F(References, OfTheTopsNameFillTheTopAsWell) {
    doc().insertXref(u"x", u"TOPOFPAGE");
    doc().insertTag(u"TOPOFPAGE");
    doc().close();
    EXPECT_NE(out("rep.htm").find("<BODY  >\nHREF=\"rep.htm#TOPOFPAGE\"<a name=\"Page 1\"></a>"
                                  "<A HREF=\"rep.htm#TOPOFPAGE\">x</A>"),
              std::string::npos);
}

TEST_F(References, CountALineForANameWithALineFeed) {
    doc().insertTag(u"a\nb");         // ends line 1
    doc().insertXref(u"x", u"a\nb");  // the reference ends line 2
    doc().insertXref(u"y", u"none");
    traced();
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), "<a name=\"a\nb\"></a><A HREF=\"rep.htm#a\nb\">x</A>y");
    EXPECT_NE(traced().find("  none near line 3 <A none>\n"), std::string::npos);
}

TEST_F(References, AreAllForgottenWithTheDocument) {
    doc().insertTag(u"target");
    doc().close();
    open(u"C:\\out\\other.htm");
    doc().insertXref(u"x", u"target");
    doc().close();
    EXPECT_EQ(bodyOf("other.htm"), "x");
}

TEST_F(References, AreTraced) {
    EXPECT_EQ(doc().insertXref(u"a\"b", u"c\nd"), 0);
    EXPECT_EQ(traced(), "dochtml->insertXref(\"a\"b\",\"c\nd\");\n");
}

TEST_F(References, ByTheThousandToOnePlaceAreFilled) {
    std::string expected;
    for (int i = 0; i < 20000; ++i) {
        doc().insertXref(u"x", u"target");
        expected += "<A HREF=\"rep2.htm#target\">x</A>";
    }
    doc().insertPageBreak();
    doc().insertTag(u"target");
    EXPECT_EQ(bodyOf("rep.htm"), expected);
}

}  // namespace
}  // namespace quillmark
