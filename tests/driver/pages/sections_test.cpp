#include "driver/document_fixture.h"
#include "support/environment_variable.h"

namespace quillmark {
namespace {

using testing::between;

class Sections : public testing::OpenDocumentTest {
protected:
    [[nodiscard]] std::string headerOf(const OrxString& name) const {
        return between(out(name), "<BODY  >\n", "<HR>\n");
    }
    [[nodiscard]] std::string footerOf(const OrxString& name) const {
        const std::string page = out(name);
        const std::size_t rule = page.rfind("\n<HR>");
        return rule == std::string::npos ? "no footer in: " + page
                                         : between(page.substr(rule), "<HR>", "\n</BODY>");
    }
    void footer(std::u16string_view text) {
        doc().startFooter();
        doc().insertText(text);
        doc().endFooter();
    }
    void headerBlock(std::u16string_view text) {
        doc().startHeader();
        doc().insertText(text);
        doc().endHeader();
    }
};

TEST_F(Sections, FrameEveryPage) {
    headerBlock(u"top");
    footer(u"bottom");
    doc().insertText(u"a");
    doc().insertPageBreak();
    doc().insertText(u"b");
    doc().close();
    const std::string front = "</HEAD>\n\n<BODY  >\ntop<HR>\n";
    const std::string end = "\n<HR>bottom\n</BODY>\n</HTML>\n";
    EXPECT_NE(out("rep.htm").find(front), std::string::npos);
    EXPECT_TRUE(out("rep.htm").ends_with("a" + end));
    EXPECT_NE(out("rep2.htm").find(front), std::string::npos);
    EXPECT_TRUE(out("rep2.htm").ends_with("b" + end));
}

TEST_F(Sections, AreOnPagesBegunBeforeThem) {
    doc().insertText(u"a");
    headerBlock(u"top");
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "top");
}

TEST_F(Sections, ShowTheirRuleWithoutAText) {
    doc().startHeader();
    doc().endHeader();
    doc().startFooter();
    doc().endFooter();
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "");
    EXPECT_EQ(footerOf("rep.htm"), "");
}

TEST_F(Sections, FillThePagesNumberAndFile) {
    doc().startHeader();
    doc().insertText(u"p ");
    doc().insertField(4);
    doc().insertText(u" of ");
    doc().insertField(3);
    doc().endHeader();
    doc().pushDirectory(u"sub");
    doc().insertPageBreak();
    doc().close();
    EXPECT_EQ(headerOf("sub\\rep.htm"), "p 1 of rep.htm");
    EXPECT_EQ(headerOf("sub\\rep2.htm"), "p 2 of rep2.htm");
}

TEST_F(Sections, FillEachTokenOnce) {
    doc().startFooter();
    doc().insertField(4);
    doc().insertField(4);
    doc().insertField(3);
    doc().insertText(u"<FILE>");
    doc().endFooter();
    doc().close();
    EXPECT_EQ(footerOf("rep.htm"), "1<PAGE>rep.htm<FILE>");
}

TEST_F(Sections, TakeATokenFromATextAsWell) {
    headerBlock(u"<PAGE>");
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "1");
}

TEST_F(Sections, ShowTheTimeOfTheirInsertion) {
    {
        const EnvironmentVariable clock("SOURCE_DATE_EPOCH", "1718281845");
        doc().startHeader();
        doc().insertField(1);
        doc().insertText(u" ");
        doc().insertField(2);
        doc().insertField(9);
        doc().endHeader();
    }
    const EnvironmentVariable later("SOURCE_DATE_EPOCH", "1818281845");
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "06/13/24 12:30:45");
}

TEST_F(Sections, FreezeDateAndTimeAtATestLevel) {
    setting("Settings", "TestLevel", "-1");
    open();
    doc().startHeader();
    doc().insertField(1);
    doc().insertField(2);
    doc().endHeader();
    doc().insertPageBreak();
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "XX/XX/XXXX:XX:XX");
    EXPECT_EQ(headerOf("rep2.htm"), "XX/XX/XXXX:XX:XX");
}

TEST_F(Sections, ReplaceTheBlockBefore) {
    headerBlock(u"one");
    doc().insertPageBreak();
    headerBlock(u"two");
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "one");
    EXPECT_EQ(headerOf("rep2.htm"), "two");
}

TEST_F(Sections, HaveAStyleOfTheirOwn) {
    doc().setStyle(u"List");
    doc().startHeader();
    doc().insertText(u"a");
    doc().setStyle(u"Heading 2");
    doc().insertText(u"b");
    doc().endHeader();
    doc().insertText(u"c");
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "a<H2>b</H2>\n");
}

TEST_F(Sections, CloseFontStyleAndAlignmentInThisOrder) {
    doc().startFooter();
    doc().setStyle(u"Heading 2");
    doc().setTextAlign(2);
    doc().setFontAttribute(1, true);
    doc().endFooter();
    doc().close();
    EXPECT_EQ(footerOf("rep.htm"), "<H2><DIV align=center><B></B></H2>\n</DIV>\n");
}

TEST_F(Sections, AreNotEndedByAHeadersEndInTheBody) {
    doc().setFontAttribute(1, true);
    doc().endHeader();
    EXPECT_EQ(written(), "<B>");
}

TEST_F(Sections, AreNotEndedByAHeadersEndInTheFooter) {
    doc().startFooter();
    doc().setFontAttribute(1, true);
    doc().endHeader();
    doc().insertText(u"f");
    doc().endFooter();
    doc().close();
    EXPECT_EQ(footerOf("rep.htm"), "<B>f</B>");
}

TEST_F(Sections, LetAFootersEndCloseTheBodysTags) {
    doc().setStyle(u"List Number");
    doc().setFontAttribute(1, true);
    doc().endFooter();
    doc().insertText(u"x");
    // The style is forgotten, so no item begins; the level of the style last opened is not.
    EXPECT_EQ(written(), "<OL><B></B></OL>\n<a name=\"toc1\"></a>x");
}

TEST_F(Sections, LetAFootersEndCloseTheHeader) {
    doc().startHeader();
    doc().setFontAttribute(1, true);
    doc().insertText(u"h");
    doc().endFooter();
    doc().insertText(u"b");
    EXPECT_EQ(body(), "b");
    EXPECT_EQ(headerOf("rep.htm"), "<B>h</B>");
}

TEST_F(Sections, StayOpenOverAPageBreak) {
    doc().startHeader();
    doc().insertText(u"a");
    doc().insertPageBreak();
    doc().insertText(u"b");
    doc().endHeader();
    doc().close();
    EXPECT_EQ(headerOf("rep.htm"), "a");
    EXPECT_EQ(headerOf("rep2.htm"), "ab");
}

TEST_F(Sections, AreTraced) {
    doc().startHeader();
    doc().endHeader();
    doc().startFooter();
    doc().endFooter();
    EXPECT_EQ(traced(),
              "dochtml->startHeader();\ndochtml->endHeader();\n"
              "dochtml->startFooter();\ndochtml->endFooter();\n");
}

/// A section's font is still open at a page's end only when the host never ended the section.
class OpenSectionFonts : public Sections {
protected:
    /// Closes the document; the body of a page that has a footer without text.
    std::string framedBody(const OrxString& name, int number) {
        doc().close();
        return between(out(name), "<a name=\"Page " + std::to_string(number) + "\"></a>",
                       "\n<HR>\n</BODY>");
    }
    void leaveBoldHeaderOpen() {
        doc().startHeader();
        doc().setFontAttribute(1, true);
        doc().insertText(u"h");
        doc().startFooter();
        doc().endFooter();
    }
};

TEST_F(OpenSectionFonts, BecomeTheBodysAndAreOpenedTwice) {
    leaveBoldHeaderOpen();
    doc().insertText(u"x");
    EXPECT_EQ(framedBody("rep.htm", 1), "x<B></B><B></B>");
    EXPECT_EQ(headerOf("rep.htm"), "<B>h");
}

TEST_F(OpenSectionFonts, CloseTheBodysOwnFontFirst) {
    leaveBoldHeaderOpen();
    doc().setFontAttribute(2, true);
    EXPECT_EQ(framedBody("rep.htm", 1), "<I></I><B></B><B></B>");
}

TEST_F(OpenSectionFonts, GoOnOnTheNextPage) {
    leaveBoldHeaderOpen();
    doc().insertText(u"x");
    doc().insertPageBreak();
    doc().insertText(u"y");
    doc().setFontName(u"Arial");
    EXPECT_EQ(framedBody("rep2.htm", 2), "<B>y</B><B></B><B></B>");
}

TEST_F(OpenSectionFonts, OfAFooterStayOpenAtThePagesEnd) {
    doc().startFooter();
    doc().setFontAttribute(1, true);
    doc().insertText(u"f");
    doc().startHeader();
    doc().endHeader();
    doc().insertText(u"x");
    doc().insertPageBreak();
    doc().insertText(u"y");
    doc().setFontName(u"Arial");
    doc().insertText(u"z");
    doc().close();
    EXPECT_NE(out("rep.htm").find("x<B></B><B>\n<HR><B>f\n</BODY>"), std::string::npos)
        << out("rep.htm");
    // The state of the body was kept before the footer's font became the body's. That font is
    // open all the same, and ends when the next page takes up its style.
    EXPECT_NE(out("rep2.htm").find("<a name=\"Page 2\"></a></B>yz"), std::string::npos)
        << out("rep2.htm");
}

}  // namespace
}  // namespace quillmark
