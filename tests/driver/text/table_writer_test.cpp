#include <gmock/gmock.h>

#include "driver/document_fixture.h"

namespace quillmark {
namespace {

const std::string tableStart = "<TABLE BORDER=1 CELLSPACING=0 CELLPADDING=2>";

class Tables : public testing::DocumentTest {
protected:
    Tables() {
        html("TOCLevel", "0");
        open();
        trace.clear();
    }
    void startCell() {
        doc().startTable();
        doc().addRow();
        doc().addCell();
    }
};

TEST_F(Tables, CloseEachCellWhenTheNextOneComes) {
    startCell();
    doc().insertText(u"a");
    doc().addCell();
    doc().endTable();
    EXPECT_EQ(body(), tableStart + "<TR>\n<TD>a</TD><TD>&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, CloseTheCellAndNotTheRowInFrontOfARow) {
    startCell();
    doc().insertText(u"a");
    doc().addRow();
    doc().addCell();
    doc().insertText(u"b");
    doc().endTable();
    EXPECT_EQ(body(), tableStart + "<TR>\n<TD>a</TD><TR>\n<TD>b</TD></TABLE>\n");
}

TEST_F(Tables, WriteNothingUntilACellComes) {
    doc().startTable();
    doc().startTable();
    doc().addRow();
    doc().addRow();
    EXPECT_EQ(written(), "");
}

TEST_F(Tables, AreOneWhenStartedTwice) {
    doc().startTable();
    startCell();
    doc().endTable();
    EXPECT_EQ(body(), tableStart + "<TR>\n<TD>&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, MayBeginWithoutARow) {
    doc().startTable();
    doc().addCell();
    doc().endTable();
    EXPECT_EQ(body(), tableStart + "<TD>&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, FillACellThatGotOnlyAnEmptyText) {
    startCell();
    doc().insertText(u"");
    doc().endTable();
    EXPECT_EQ(body(), tableStart + "<TR>\n<TD>&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, FillACellThatGotMarkupButNoText) {
    startCell();
    doc().insertField(4);
    doc().insertEndl();
    doc().endTable();
    EXPECT_EQ(body(), tableStart + "<TR>\n<TD>1<BR>\n&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, OpenTheStyleInEveryCell) {
    doc().setStyle(u"Heading 2");
    startCell();
    doc().insertText(u"a");
    doc().addCell();
    doc().endTable();
    EXPECT_EQ(body(), "<H2>" + tableStart +
                          "<TR>\n<TD><H2>a</H2>\n</TD><TD><H2></H2>\n&nbsp;</TD></TABLE>\n"
                          "</H2>\n");
}

TEST_F(Tables, OpenTheFontInEveryCell) {
    doc().setFontAttribute(1, true);
    doc().setFontSize(-4);
    startCell();
    doc().insertText(u"a");
    doc().addCell();
    doc().insertText(u"b");
    doc().endTable();
    EXPECT_EQ(body(), "<B><BASEFONT SIZE = 1>" + tableStart +
                          "<TR>\n<TD><BASEFONT SIZE = 1><B>a</BASEFONT></B></TD>"
                          "<TD><BASEFONT SIZE = 1><B>b</BASEFONT></B></TD></TABLE>\n"
                          "</BASEFONT></B>");
}

TEST_F(Tables, OpenAlignStyleFontAndCloseFontStyleAlign) {
    doc().setStyle(u"Heading 2");
    doc().setTextAlign(2);
    doc().setFontAttribute(2, true);
    doc().startTable();
    doc().addCell();
    doc().addCell();
    doc().endTable();
    const std::string cell = "<TD><DIV align=center><H2><I></I></H2>\n</DIV>\n&nbsp;</TD>";
    EXPECT_EQ(body(), "<H2><DIV align=center><I>" + tableStart + cell + cell +
                          "</TABLE>\n</I></H2>\n</DIV>\n");
}

TEST_F(Tables, KeepAStyleThatACellSet) {
    startCell();
    doc().setStyle(u"Heading 3");
    doc().insertText(u"a");
    doc().addCell();
    doc().insertText(u"b");
    doc().endTable();
    EXPECT_EQ(body(),
              tableStart + "<TR>\n<TD><H3>a</H3>\n</TD><TD><H3>b</H3>\n</TD></TABLE>\n</H3>\n");
}

TEST_F(Tables, OpenBulletsInEveryCellAndCloseNone) {
    doc().setStyle(u"List Bullet");
    startCell();
    doc().insertText(u"a");
    doc().addCell();
    doc().insertText(u"b");
    doc().endTable();
    EXPECT_EQ(body(), "<UL>" + tableStart + "<TR>\n<TD><UL><LI>a</TD><TD><UL>b</TD></TABLE>\n");
}

TEST_F(Tables, NestFiveDeep) {
    for (int depth = 1; depth <= 6; ++depth) {
        doc().startTable();
        doc().addCell();
    }
    doc().insertText(u"x");
    for (int depth = 6; depth >= 1; --depth) {
        doc().endTable();
    }
    const std::string open = tableStart + "<TD>";
    // The innermost table that counts holds the text; a cell that only held a table is filled
    // when text came to it since its inner cell began.
    EXPECT_EQ(body(), open + open + open + open + open +
                          "x</TD></TABLE>\n</TD></TABLE>\n</TD></TABLE>\n</TD></TABLE>\n"
                          "</TD></TABLE>\n");
}

TEST_F(Tables, IgnoreRowsAndCellsOfASixthTable) {
    for (int depth = 1; depth <= 5; ++depth) {
        doc().startTable();
        doc().addCell();
    }
    doc().insertText(u"a");
    doc().startTable();
    doc().addRow();
    doc().addCell();
    doc().insertText(u"b");
    doc().addCell();
    doc().startTable();
    doc().addCell();
    doc().endTable();
    doc().endTable();
    doc().insertText(u"c");
    doc().addCell();
    const std::string open = tableStart + "<TD>";
    EXPECT_EQ(written(), open + open + open + open + open + "abc</TD><TD>");
}

TEST_F(Tables, WriteTheEndOfATableThatNeverGotACell) {
    doc().startTable();
    doc().endTable();
    EXPECT_EQ(written(), "</TABLE>\n");
}

TEST_F(Tables, StayPendingAfterAnEndWithoutACell) {
    doc().startTable();
    doc().endTable();
    doc().addCell();  // opens the table, at a depth that does not count its cells
    doc().addCell();
    EXPECT_EQ(written(), "</TABLE>\n" + tableStart + "<TD><TD>");
}

TEST_F(Tables, AreBalancedAgainAfterTheNextWholeTable) {
    startCell();
    doc().startTable();
    doc().endTable();  // never got a cell: the outer table counts as closed
    doc().insertText(u"x");
    doc().endTable();  // and this one goes below nothing
    EXPECT_EQ(body(), tableStart + "<TR>\n<TD></TABLE>\nx</TABLE>\n");
}

TEST_F(Tables, CarryAPendingRowIntoTheNextTable) {
    doc().startTable();
    doc().addCell();
    doc().addRow();
    doc().endTable();
    doc().startTable();
    doc().addCell();
    doc().endTable();
    EXPECT_EQ(body(), tableStart + "<TD>&nbsp;</TD></TABLE>\n" + tableStart +
                          "<TR>\n<TD>&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, WriteABareCellOutsideAnyTable) {
    doc().addCell();
    doc().insertText(u"a");
    doc().addRow();
    doc().addCell();
    EXPECT_EQ(body(), "<TD>a<TR>\n<TD>");
}

TEST_F(Tables, AreEndedWithTheirPage) {
    startCell();
    doc().insertText(u"a");
    startCell();
    traced();
    doc().insertPageBreak();
    EXPECT_THAT(traced(), ::testing::StartsWith("dochtml->insertPageBreak();\n\n"
                                                "dochtml->endTable();\n"
                                                "dochtml->endTable();\n"
                                                "created bookmark:"))
        << "each end is a call of its own";
    doc().insertText(u"b");
    doc().close();
    EXPECT_EQ(bodyOf("rep.htm"), tableStart + "<TR>\n<TD>a" + tableStart +
                                     "<TR>\n<TD>&nbsp;</TD></TABLE>\n&nbsp;</TD></TABLE>\n");
    EXPECT_EQ(bodyOf("rep2.htm", 2), "b");
}

TEST_F(Tables, AreNotEndedTwiceWhenOnlyAnIgnoredOneIsOpen) {
    for (int depth = 1; depth <= 6; ++depth) {
        doc().startTable();
        doc().addCell();
    }
    doc().close();
    // Five ends for five tables; the first of them ends the ignored one.
    const std::string open = tableStart + "<TD>";
    EXPECT_EQ(bodyOf("rep.htm"),
              open + open + open + open + open +
                  "&nbsp;</TD></TABLE>\n&nbsp;</TD></TABLE>\n&nbsp;</TD></TABLE>\n"
                  "&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, GoToTheSectionThatIsOpen) {
    doc().startHeader();
    startCell();
    doc().insertText(u"h");
    doc().endTable();
    doc().endHeader();
    EXPECT_EQ(header(), tableStart + "<TR>\n<TD>h&nbsp;</TD></TABLE>\n");
}

TEST_F(Tables, HaveNoRowHeight) {
    startCell();
    traced();
    EXPECT_EQ(doc().setTableRowHeight(20), 0);
    EXPECT_EQ(doc().setTableRowHeight(-2147483647), 0);
    EXPECT_EQ(traced(), "");
    EXPECT_EQ(written(), tableStart + "<TR>\n<TD>");
}

TEST_F(Tables, AreTraced) {
    startCell();
    doc().endTable();
    EXPECT_EQ(traced(),
              "dochtml->startTable();\ndochtml->addRow();\ndochtml->addCell();\n"
              "dochtml->endTable();\n");
}

class DirectoriesInTables : public Tables {};

TEST_F(DirectoriesInTables, DoNotChange) {
    doc().startTable();
    doc().pushDirectory(u"sub");
    doc().endTable();
    doc().close();
    EXPECT_TRUE(isWritten("C:\\out\\rep.htm"));
    EXPECT_FALSE(files.directoryExists("C:\\out\\sub"));
}

TEST_F(DirectoriesInTables, AreNotLeft) {
    doc().pushDirectory(u"sub");
    startCell();
    doc().popDirectory();
    doc().endTable();
    doc().insertPageBreak();
    doc().close();
    EXPECT_TRUE(isWritten("C:\\out\\sub\\rep2.htm"));
}

TEST_F(DirectoriesInTables, ChangeAgainOnceAnyTableEnded) {
    startCell();
    startCell();
    doc().endTable();
    doc().pushDirectory(u"sub");  // the outer table is still open
    doc().close();
    EXPECT_TRUE(files.directoryExists("C:\\out\\sub"));
}

}  // namespace
}  // namespace quillmark
