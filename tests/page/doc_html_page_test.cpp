#include "page/doc_html_page.h"

#include <gtest/gtest.h>

#include <optional>

#include "page/html_head.h"
#include "page/links/links.h"
#include "support/capturing_exception_log.h"
#include "support/capturing_trace.h"
#include "support/failing_file_system.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

const std::string head = htmlHead("", "", "");
const std::string end = "\n</HTML>\n";

class Page : public ::testing::Test {
protected:
    Page() {
        files.makeDirectories("C:\\out");
        page.setFileName("C:\\out\\p.htm");
    }
    std::string closed() {
        page.close();
        return written();
    }
    [[nodiscard]] std::string written() const {
        return files.content("C:\\out\\p.htm").value_or("(none)");
    }
    /// The marks as lines "name line:column sequence markup".
    [[nodiscard]] std::string marks() const {
        std::string all;
        for (const auto& [name, mark] : page.marks()) {
            all += name.str() + " " + std::to_string(mark.line) + ":" +
                   std::to_string(mark.column) + " " + std::to_string(mark.sequence) + " " +
                   mark.markup.str() + "\n";
        }
        return all;
    }

    MemoryFileSystem files;
    InstalledFileSystem installed{files};
    CapturingExceptionLog exceptions;
    CapturingTrace trace;
    DocHtmlPage page;
};

TEST_F(Page, IsWrittenHeadTopLinesTailEnd) {
    page.appendTail("<tail");
    page.appendTail(">");
    page.append("one\n");
    page.append("two");
    page.appendTop("<to");
    page.appendTop("p>");
    EXPECT_EQ(closed(), head + "<top>one\ntwo<tail>" + end);
}

TEST_F(Page, ShowsItsTitleStyleSheetAndHeadText) {
    page.setTitle("A <T>");
    page.setStyleSheet("x/y.css");
    page.appendHead("<S>");
    page.appendHead("</S>\n");
    page.append("");
    EXPECT_EQ(closed(), htmlHead("A <T>", "x/y.css", "<S></S>\n") + end);
}

TEST_F(Page, WithoutALineIsEmptyAndWritesNothing) {
    page.appendTop("top");
    page.appendTail("tail");
    page.setTitle("title");
    EXPECT_TRUE(page.isEmpty());
    EXPECT_EQ(closed(), "(none)");
    page.append("x");
    EXPECT_EQ(closed(), htmlHead("title", "", "") + "topxtail" + end) << "it was left as it is";
}

TEST_F(Page, CountsALineForEveryTextWithALineFeed) {
    EXPECT_EQ(page.getLineCount(), 0);
    page.append("a");
    EXPECT_EQ(page.getLineCount(), 1);
    page.append("b\nc");
    EXPECT_EQ(page.getLineCount(), 2);
    page.append("d\n\n\n");
    EXPECT_EQ(page.getLineCount(), 3);
    EXPECT_EQ(closed(), head + "ab\ncd\n\n\n" + end);
}

TEST_F(Page, HasALineAfterAnEmptyText) {
    page.append("");
    EXPECT_FALSE(page.isEmpty());
    EXPECT_EQ(page.getLineCount(), 1);
}

TEST_F(Page, IsEmptiedByClosingButKeepsItsStyleSheet) {
    page.setTitle("title");
    page.setStyleSheet("a.css");
    page.appendTop("top");
    page.appendTail("tail");
    page.appendHead("head");
    page.append("x\n");
    page.addMark("m", "");
    page.close();
    EXPECT_TRUE(page.isEmpty());
    EXPECT_EQ(page.getLineCount(), 0);
    EXPECT_FALSE(page.hasMarks());
    EXPECT_EQ(page.getFileName(), "");
    page.setFileName("C:\\out\\q.htm");
    page.append("y");
    page.close();
    EXPECT_EQ(files.content("C:\\out\\q.htm"), htmlHead("", "a.css", "") + "y" + end);
}

TEST_F(Page, IsClosedByItsDestructor) {
    {
        DocHtmlPage other;
        other.setFileName("C:\\out\\p.htm");
        other.append("x");
    }
    EXPECT_EQ(written(), head + "x" + end);
}

TEST_F(Page, IsCopiedWhole) {
    page.append("a");
    page.addMark("m", "");
    page.append("b");
    DocHtmlPage copy(page);
    copy.setFileName("C:\\out\\copy.htm");
    copy.resolveMarks("m", "x");
    page.removeMarks("m");
    copy.close();
    EXPECT_EQ(files.content("C:\\out\\copy.htm"), head + "aHREF=\"x\"b" + end);
    EXPECT_EQ(closed(), head + "ab" + end);
}

TEST_F(Page, IsReplacedByAnAssignedPage) {
    DocHtmlPage other;
    other.append("old");
    other = page;
    EXPECT_TRUE(other.isEmpty());
    EXPECT_FALSE(other.differs(page));
    const DocHtmlPage& same = other;
    other = same;
    EXPECT_EQ(other.getFileName(), "C:\\out\\p.htm");
}

TEST_F(Page, DiffersByItsFileName) {
    DocHtmlPage other;
    EXPECT_TRUE(page.differs(other));
    other.setFileName("C:\\out\\p.htm");
    other.append("x");
    EXPECT_FALSE(page.differs(other));
    other.setFileName("C:\\out\\q.htm");
}

TEST_F(Page, LinksFromADirectory) {
    EXPECT_EQ(DocHtmlPage::relativeLink("C:\\out\\pix\\a.gif", "C:\\out"), "pix/a.gif");
    EXPECT_EQ(DocHtmlPage::relativeLink("D:\\pix\\a.gif", "C:\\out"), "D|/pix/a.gif");
}

TEST_F(Page, LinksFromTheDefaultDirectoryWithoutABase) {
    const OrxString before = links::defaultBase();
    links::setDefaultBase("C:\\out\\sub");
    EXPECT_EQ(DocHtmlPage::relativeLink("C:\\out\\a.gif", ""), "../a.gif");
    links::setDefaultBase(before);
}

class Marks : public Page {};

TEST_F(Marks, ArePlacedAtTheEndOfTheLine) {
    page.append("abc\n");
    page.append("de");
    page.addMark("b", "<A b>");
    page.append("f");
    page.addMark("a", "");
    page.addMark("b", "</A>");
    EXPECT_EQ(marks(), "a 2:4 2 \nb 2:3 1 <A b>\nb 2:4 3 </A>\n");
    EXPECT_EQ(page.getMarkCount(), 3U);
}

TEST_F(Marks, GiveAnEmptyPageOneLine) {
    page.addMark("a", "");
    EXPECT_FALSE(page.isEmpty());
    EXPECT_EQ(page.getLineCount(), 1);
    EXPECT_EQ(marks(), "a 1:1 1 \n");
}

TEST_F(Marks, AreFilledByTheKindOfTheirMarkup) {
    page.addMark("n", "");
    page.append(" ");
    page.addMark("n", "<A n>");
    page.append("text");
    page.addMark("n", "</A>");
    page.resolveMarks("n", "p.htm#n");
    EXPECT_FALSE(page.hasMarks());
    EXPECT_EQ(closed(), head + "HREF=\"p.htm#n\" <A HREF=\"p.htm#n\">text</A>" + end);
}

TEST_F(Marks, AreFilledAtTheFirstOccurrenceOfTheirNameInTheMarkup) {
    page.addMark("A", "<A A>");
    page.addMark("A", "</A>");
    page.resolveMarks("A", "r");
    EXPECT_EQ(closed(), head + "<HREF=\"r\" A></HREF=\"r\">" + end);
}

TEST_F(Marks, MoveWithTextInsertedBeforeThem) {
    page.addMark("a", "");
    page.append("x");
    page.addMark("b", "");
    page.append("\n");
    page.addMark("c", "");
    page.resolveMarks("a", "12");
    EXPECT_EQ(marks(), "b 1:11 2 \nc 2:1 3 \n");
}

TEST_F(Marks, AtOnePositionAreFilledInTheOrderOfTheirCreation) {
    page.addMark("one", "1");
    page.addMark("two", "2");
    page.addMark("three", "3");
    page.resolveMarks("two", "");
    page.resolveMarks("three", "");
    page.resolveMarks("one", "");
    EXPECT_EQ(closed(), head + "123" + end);
}

TEST_F(Marks, WithEqualSequencesStayBeforeInsertedText) {
    page.addMark("one", "1");
    page.addMark("two", "2");
    page.removeMarks("one");
    page.addMark("three", "3");
    EXPECT_EQ(marks(), "three 1:1 2 3\ntwo 1:1 2 2\n");
    page.resolveMarks("two", "");
    page.resolveMarks("three", "");
    EXPECT_EQ(closed(), head + "32" + end);
}

TEST_F(Marks, WithASmallerSequenceStayBeforeItToo) {
    page.addMark("one", "1");
    page.addMark("two", "2");
    page.addMark("three", "3");
    page.removeMarks("one");
    page.removeMarks("two");
    page.addMark("four", "4");
    EXPECT_EQ(marks(), "four 1:1 2 4\nthree 1:1 3 3\n");
    page.resolveMarks("three", "");
    page.resolveMarks("four", "");
    EXPECT_EQ(closed(), head + "43" + end);
}

TEST_F(Marks, AcceptTextAtThem) {
    page.append("a");
    page.addMark("m", "");
    page.append("b");
    ASSERT_TRUE(page.setInsertPoint("m"));
    page.append("1");
    page.append("2\n");
    page.clearInsertPoint();
    page.append("c");
    EXPECT_EQ(page.getLineCount(), 1) << "a text put in ends no line";
    ASSERT_EQ(page.getMarkCount(), 1U) << "the mark stays open";
    page.removeMarks("m");
    EXPECT_EQ(closed(), head + "a12\nbc" + end);
}

TEST_F(Marks, AcceptTextAtTheFirstOfTheirName) {
    page.addMark("m", "");
    page.append("a");
    page.addMark("m", "");
    ASSERT_TRUE(page.setInsertPoint("m"));
    page.append("x");
    page.clearInsertPoint();
    page.removeMarks("m");
    EXPECT_EQ(closed(), head + "xa" + end);
}

TEST_F(Marks, AcceptNoTextIfThereIsNone) {
    EXPECT_FALSE(page.setInsertPoint("m"));
    page.append("a");
    EXPECT_EQ(closed(), head + "a" + end);
}

TEST_F(Marks, ThatAreRemovedEndTheInsertionPoint) {
    page.addMark("m", "");
    page.append("a");
    ASSERT_TRUE(page.setInsertPoint("m"));
    page.removeMarks("m");
    page.append("b");
    EXPECT_EQ(closed(), head + "ab" + end);
}

TEST_F(Marks, ThatAreFilledEndTheInsertionPoint) {
    page.addMark("m", "");
    page.addMark("n", "");
    ASSERT_TRUE(page.setInsertPoint("m"));
    page.resolveMarks("n", "r");
    page.append("b");
    page.removeMarks("m");
    EXPECT_EQ(closed(), head + "HREF=\"r\"b" + end);
}

TEST_F(Marks, StillOpenAreReportedInNameOrder) {
    page.append("a\n");
    page.addMark("b", "<A b>");
    page.addMark("a", "");
    page.append("c\n");
    page.addMark("b", "</A>");
    page.close();
    EXPECT_EQ(trace.text(),
              "Unresolved references on page C:\\out\\p.htm\n"
              "  a near line 2\n"
              "  b near line 2 <A b>\n"
              "  b near line 3 </A>\n");
    EXPECT_EQ(written(), head + "a\nc\n" + end);
}

TEST_F(Marks, AreReportedAtTheLevelOfReportsOnly) {
    const CapturingTrace calls(Trace::calls);
    page.addMark("a", "");
    page.close();
    EXPECT_EQ(calls.text(), "");
}

class PageFailures : public Page {
protected:
    using Operation = FailingFileSystem::Operation;
    FailingFileSystem failing{files};
    InstalledFileSystem failingInForce{failing};
};

TEST_F(PageFailures, ToOpenAreLoggedAndEmptyThePage) {
    failing.failAt(Operation::openForWriting, 1);
    page.append("x");
    page.addMark("m", "");
    page.close();
    EXPECT_EQ(exceptions.messages(),
              (std::vector<std::string>{"Exception throw: Error opening file: C:\\out\\p.htm\n",
                                        "Exception catch: Error opening file: C:\\out\\p.htm\n"}));
    EXPECT_EQ(trace.text(), "Unresolved references on page C:\\out\\p.htm\n  m near line 1\n");
    EXPECT_TRUE(page.isEmpty());
    EXPECT_EQ(written(), "(none)");
}

TEST_F(PageFailures, ToWriteAreLoggedAndEmptyThePage) {
    failing.fillDiskAfter(100);
    page.append("x");
    page.close();
    EXPECT_EQ(
        exceptions.messages(),
        (std::vector<std::string>{"Exception throw: Error writing to file: C:\\out\\p.htm\n",
                                  "Exception catch: Error writing to file: C:\\out\\p.htm\n"}));
    EXPECT_TRUE(page.isEmpty());
    EXPECT_EQ(written(), "(none)");
}

TEST_F(PageFailures, ToCloseAreFailuresToWrite) {
    failing.failAt(Operation::close, 1);
    page.append("x");
    page.close();
    EXPECT_EQ(exceptions.messages().size(), 2U);
    EXPECT_EQ(exceptions.messages().front(),
              "Exception throw: Error writing to file: C:\\out\\p.htm\n");
}

TEST_F(PageFailures, OfADestructorAreLogged) {
    failing.failAll(Operation::openForWriting);
    {
        DocHtmlPage other;
        other.setFileName("C:\\out\\q.htm");
        other.append("x");
    }
    EXPECT_EQ(exceptions.messages().back(),
              "Exception catch: Error opening file: C:\\out\\q.htm\n");
}

TEST_F(PageFailures, OfAPageWithoutAFileNameAreLogged) {
    DocHtmlPage other;
    other.append("x");
    other.close();
    EXPECT_EQ(exceptions.messages(),
              (std::vector<std::string>{"Exception throw: Error opening file: \n",
                                        "Exception catch: Error opening file: \n"}));
}

}  // namespace
}  // namespace quillmark
