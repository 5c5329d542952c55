#include "driver/document_fixture.h"

namespace quillmark {
namespace {

class Alignment : public testing::DocumentTest {
protected:
    Alignment() {
        html("TOCLevel", "0");
        open();
    }
    std::string tagOf(std::int16_t code) {
        renew();
        open();
        doc().setTextAlign(code);
        return written();
    }
};

TEST_F(Alignment, OpensABlock) {
    EXPECT_EQ(tagOf(0), "");
    EXPECT_EQ(tagOf(1), "<DIV align=left>");
    EXPECT_EQ(tagOf(2), "<DIV align=center>");
    EXPECT_EQ(tagOf(3), "<DIV align=right>");
    EXPECT_EQ(tagOf(4), "<DIV align=left>");
    EXPECT_EQ(tagOf(7), "<DIV align=left>");
    EXPECT_EQ(tagOf(-1), "<DIV align=left>");
}

TEST_F(Alignment, IsClosedByNone) {
    doc().setTextAlign(2);
    doc().insertText(u"x");
    doc().setTextAlign(0);
    doc().setTextAlign(0);
    EXPECT_EQ(written(), "<DIV align=center>x</DIV>\n");
}

TEST_F(Alignment, IsClosedAndOpenedBySettingItAgain) {
    doc().setTextAlign(3);
    doc().setTextAlign(3);
    EXPECT_EQ(written(), "<DIV align=right></DIV>\n<DIV align=right>");
}

TEST_F(Alignment, ClosesBeforeTheStyleAndOpensAfterIt) {
    doc().setStyle(u"Heading 1");
    doc().setTextAlign(2);
    doc().insertText(u"x");
    doc().setStyle(u"Heading 2");
    EXPECT_EQ(written(),
              "<H1><DIV align=center>x</DIV>\n"
              "</H1>\n<H2><DIV align=center>");
}

TEST_F(Alignment, ClosesBeforeTheFontAtAChangeOfStyle) {
    doc().setTextAlign(2);
    doc().setFontAttribute(1, true);
    doc().setStyle(u"Heading 2");
    EXPECT_EQ(written(), "<DIV align=center><B></DIV>\n</B><H2><DIV align=center>");
}

TEST_F(Alignment, StaysWhenTheSameStyleIsSet) {
    doc().setTextAlign(2);
    doc().setStyle(u"Normal");
    EXPECT_EQ(written(), "<DIV align=center>");
}

TEST_F(Alignment, ClosesLastAtThePagesEnd) {
    doc().setStyle(u"Heading 1");
    doc().setTextAlign(2);
    doc().setFontAttribute(1, true);
    EXPECT_EQ(pageEnd(), "</B></H1>\n</DIV>\n");
}

TEST_F(Alignment, IsNotOpenedOnTheNextPage) {
    doc().setTextAlign(2);
    doc().insertPageBreak();
    doc().insertText(u"x");
    doc().setStyle(u"Heading 1");
    doc().close();
    EXPECT_EQ(bodyOf("rep2.htm", 2), "x<H1></H1>\n");
}

TEST_F(Alignment, OfAHeaderEndsWithIt) {
    doc().setTextAlign(3);
    doc().startHeader();
    doc().setTextAlign(2);
    doc().insertText(u"h");
    doc().endHeader();
    EXPECT_EQ(body(), "<DIV align=right></DIV>\n");
    EXPECT_EQ(header(), "<DIV align=center>h</DIV>\n");
}

}  // namespace
}  // namespace quillmark
