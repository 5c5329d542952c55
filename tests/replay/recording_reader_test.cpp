#include "replay/input/recording_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reading.h"

namespace quillmark::replay {
namespace {

using ::testing::ElementsAre;

Reading read(const std::string& text) {
    return readText<RecordingReader>(text);
}

TEST(RecordingReader, ReadsEveryCallThatATraceRecords) {
    const Reading reading = read(
        "dochtml->create(\"C:\\out\\rep.htm\");\n"
        "dochtml->setOption(\"title\",\"Report\");\n"
        "dochtml->startHeader();\n"
        "dochtml->endHeader();\n"
        "dochtml->startFooter();\n"
        "dochtml->endFooter();\n"
        "dochtml->setStyle(\"Heading 1\");\n"
        "dochtml->insertText(\"Hello\");\n"
        "dochtml->insertEndl();\n"
        "dochtml->insertField(4);\n"
        "dochtml->setFontName(\"Arial\");\n"
        "dochtml->setFontSize(-12);\n"
        "dochtml->setTextAlign(2);\n"
        "dochtml->insertFile(\"a.txt\",3);\n"
        "dochtml->startTable();\n"
        "dochtml->addRow();\n"
        "dochtml->addCell();\n"
        "dochtml->endTable();\n"
        "dochtml->startTOCEntry();\n"
        "dochtml->endTOCEntry();\n"
        "dochtml->insertTOC();\n"
        "dochtml->insertImage(\"a.gif\",\"http://b\");\n"
        "dochtml->insertTag(\"A\");\n"
        "dochtml->insertXref(\"see A\",\"A\");\n"
        "dochtml->insertPageBreak();\n\n"
        "dochtml->close();\n");
    EXPECT_THAT(
        reading.calls,
        ElementsAre("create(\"C:\\out\\rep.htm\")", "setOption(\"title\",\"Report\")",
                    "startHeader()", "endHeader()", "startFooter()", "endFooter()",
                    "setStyle(\"Heading 1\")", "insertText(\"Hello\")", "insertEndl()",
                    "insertField(4)", "setFontName(\"Arial\")", "setFontSize(-12)",
                    "setTextAlign(2)", "insertFile(\"a.txt\",3)", "startTable()", "addRow()",
                    "addCell()", "endTable()", "startTOCEntry()", "endTOCEntry()", "insertTOC()",
                    "insertImage(\"a.gif\",\"http://b\")", "insertTag(\"A\")",
                    "insertXref(\"see A\",\"A\")", "insertPageBreak()", "close()"));
    EXPECT_EQ(reading.lines.back(), 27U);
    EXPECT_EQ(reading.problem, "");
}

TEST(RecordingReader, ReadsTheWordsOfFontAttributes) {
    EXPECT_THAT(read("dochtml->setFontAttribute(DocBold,TRUE);\n"
                     "dochtml->setFontAttribute(DocItalic,FALSE);\n"
                     "dochtml->setFontAttribute(DocUnderline,TRUE);\n"
                     "dochtml->setFontAttribute(DocStrike,FALSE);\n")
                    .calls,
                ElementsAre("setFontAttribute(1,true)", "setFontAttribute(2,false)",
                            "setFontAttribute(4,true)", "setFontAttribute(8,false)"));
}

TEST(RecordingReader, ReadsAnUnknownFontAttributeAsZero) {
    EXPECT_THAT(read("dochtml->setFontAttribute(TRUE);\ndochtml->setFontAttribute(FALSE);\n").calls,
                ElementsAre("setFontAttribute(0,true)", "setFontAttribute(0,false)"));
}

TEST(RecordingReader, KeepsTheCallLinesAsTheyAre) {
    EXPECT_THAT(read("dochtml->insertText(\"a\nb\");\ndochtml->insertPageBreak();\n\n").recorded,
                ElementsAre("dochtml->insertText(\"a\nb\");", "dochtml->insertPageBreak();"));
}

TEST(RecordingReader, TakesQuotesAndLineEndsAsPartOfAText) {
    const Reading reading = read(
        "dochtml->insertText(\"say \"hi\" twice\");\n"
        "dochtml->insertText(\"one\ntwo\n\nfour\");\n"
        "dochtml->insertText(\"\"\");\n"
        "dochtml->insertText(\"\");\n"
        "dochtml->insertText(\"f(\"x\"); g(\"y\");z\");\n"
        "dochtml->close();\n");
    EXPECT_THAT(reading.calls,
                ElementsAre("insertText(\"say \"hi\" twice\")", "insertText(\"one\ntwo\n\nfour\")",
                            "insertText(\"\"\")", "insertText(\"\")",
                            "insertText(\"f(\"x\"); g(\"y\");z\")", "close()"));
    EXPECT_THAT(reading.lines, ElementsAre(1, 2, 6, 7, 8, 9));
}

TEST(RecordingReader, ContinuesATextThatOnlyLooksClosed) {
    EXPECT_THAT(read("dochtml->insertText(\"f(\"x\");\ng(\"y\");\n\nend\");\n"
                     "dochtml->close();\n")
                    .calls,
                ElementsAre("insertText(\"f(\"x\");\ng(\"y\");\n\nend\")", "close()"));
}

TEST(RecordingReader, ClosesATextAtTheFirstPlaceWhenThereIsNoOther) {
    const Reading reading = read("dochtml->insertText(\"a\");\nstray\ndochtml->close();\n");
    EXPECT_THAT(reading.calls, ElementsAre("insertText(\"a\")"));
    EXPECT_EQ(reading.problem, "2: not a line of a recorded trace");
}

TEST(RecordingReader, TakesCallLinesInATextAsText) {
    EXPECT_THAT(read("dochtml->insertText(\"a\ndochtml->insertEndl();\nb\");\n").calls,
                ElementsAre("insertText(\"a\ndochtml->insertEndl();\nb\")"));
}

TEST(RecordingReader, SplitsTwoTextsAtTheLikelierPlace) {
    EXPECT_THAT(read("dochtml->insertXref(\"a\",\"b\",\"tag\");\n"
                     "dochtml->setOption(\"title\",\"a\",\"b\");\n"
                     "dochtml->insertImage(\"\",\"\");\n"
                     "dochtml->insertXref(\"\",\"x\ny\");\n")
                    .calls,
                ElementsAre("insertXref(\"a\",\"b\",\"tag\")", "setOption(\"title\",\"a\",\"b\")",
                            "insertImage(\"\",\"\")", "insertXref(\"\",\"x\ny\")"));
}

TEST(RecordingReader, SplitsACrossReferenceBeforeItsTag) {
    std::istringstream stream("dochtml->insertXref(\"a\",\"b\",\"tag\");\n");
    InputBuffer input(stream);
    RecordingReader reader(input);
    Call call;
    ASSERT_EQ(reader.next(call), ReadResult::call);
    EXPECT_EQ(std::get<WideText>(call.arguments[0]), u"a\",\"b");
    EXPECT_EQ(std::get<WideText>(call.arguments[1]), u"tag");
}

TEST(RecordingReader, SplitsAnOptionAfterItsName) {
    std::istringstream stream("dochtml->setOption(\"title\",\"a\",\"b\");\n");
    InputBuffer input(stream);
    RecordingReader reader(input);
    Call call;
    ASSERT_EQ(reader.next(call), ReadResult::call);
    EXPECT_EQ(std::get<WideText>(call.arguments[0]), u"title");
    EXPECT_EQ(std::get<WideText>(call.arguments[1]), u"a\",\"b");
}

TEST(RecordingReader, EndsAFileNameBeforeItsNumber) {
    EXPECT_THAT(read("dochtml->insertFile(\"a\",1);b\",-3);\n"
                     "dochtml->insertFile(\"x\");\ny\",2);\n"
                     "dochtml->insertFile(\"\",0);\n")
                    .calls,
                ElementsAre("insertFile(\"a\",1);b\",-3)", "insertFile(\"x\");\ny\",2)",
                            "insertFile(\"\",0)"));
}

TEST(RecordingReader, SkipsTheReportsOfATrace) {
    const Reading reading = read(
        "ERR File not found: a.gif\n"
        "dochtml->insertTag(\"A\");\n"
        "created bookmark:A as rep.htm#A\n"
        "dochtml->insertTag(\"A\");\n"
        "WARNING: bookmark \"A\" already exists as rep.htm#A\n"
        "dochtml->insertPageBreak();\n\n"
        "Unresolved references on page C:\\out\\rep.htm\n"
        "  B near line 3 <A B>\n"
        "  C near line 4\n"
        "dochtml->close();\n"
        "ERR: running C:\\inst\\zip.exe\n");
    EXPECT_THAT(reading.calls, ElementsAre("insertTag(\"A\")", "insertTag(\"A\")",
                                           "insertPageBreak()", "close()"));
    EXPECT_EQ(reading.problem, "");
}

TEST(RecordingReader, SkipsTheRestOfAReportThatContainsLineEnds) {
    const Reading reading = read(
        "dochtml->insertTag(\"A\nB\");\n"
        "created bookmark:A\nB as rep.htm#A\nB\n"
        "dochtml->close();\n");
    EXPECT_THAT(reading.calls, ElementsAre("insertTag(\"A\nB\")", "close()"));
}

TEST(RecordingReader, ReadsARecordingWithCarriageReturns) {
    const Reading reading = read(
        "dochtml->insertText(\"a\r\nb\");\r\n"
        "dochtml->insertText(\"c\r\r\nd\");\r\n"
        "dochtml->insertPageBreak();\r\n\r\n"
        "dochtml->insertText(\"e\r\nf\");");
    EXPECT_THAT(reading.calls, ElementsAre("insertText(\"a\nb\")", "insertText(\"c\r\nd\")",
                                           "insertPageBreak()", "insertText(\"e\nf\")"));
    EXPECT_EQ(reading.recorded.front(), "dochtml->insertText(\"a\nb\");");
    EXPECT_THAT(reading.lines, ElementsAre(1, 3, 5, 7));
}

TEST(RecordingReader, KeepsCarriageReturnsThatBelongToTheText) {
    EXPECT_THAT(read("dochtml->insertText(\"a\r\nb\r\");\ndochtml->close();\n").calls,
                ElementsAre("insertText(\"a\r\nb\r\")", "close()"));
}

TEST(RecordingReader, ReadsTextsInTheCodePage) {
    EXPECT_THAT(read("dochtml->insertText(\"\xE4\x80\");\n").calls,
                ElementsAre("insertText(\"\xC3\xA4\xE2\x82\xAC\")"));
}

TEST(RecordingReader, RefusesALineThatIsNotACall) {
    EXPECT_EQ(read("<HTML>\n").problem, "1: not a line of a recorded trace");
    EXPECT_EQ(read("dochtml->close();\n\ndochtml->fly();\n").problem,
              "3: not a line of a recorded trace");
    EXPECT_EQ(read("dochtml->insertMark(1,TRUE);\n").problem, "1: not a line of a recorded trace");
    EXPECT_EQ(read("created bookmark:x\ndochtml->fly();\n").problem,
              "2: not a line of a recorded trace");
}

TEST(RecordingReader, RefusesWrongArguments) {
    EXPECT_EQ(read("dochtml->setFontSize(x);\n").problem, "1: wrong arguments for setFontSize");
    EXPECT_EQ(read("dochtml->setFontSize();\n").problem, "1: wrong arguments for setFontSize");
    EXPECT_EQ(read("dochtml->setFontSize(32768);\n").problem, "1: wrong arguments for setFontSize");
    EXPECT_EQ(read("dochtml->close(1);\n").problem, "1: wrong arguments for close");
    EXPECT_EQ(read("dochtml->insertText(a);\n").problem, "1: wrong arguments for insertText");
    EXPECT_EQ(read("dochtml->setFontAttribute(DocLoud,TRUE);\n").problem,
              "1: wrong arguments for setFontAttribute");
    EXPECT_EQ(read("dochtml->setFontAttribute(DocBold,MAYBE);\n").problem,
              "1: wrong arguments for setFontAttribute");
    EXPECT_EQ(read("dochtml->insertFile(\"a\",99999);\n").problem,
              "1: wrong arguments for insertFile");
}

TEST(RecordingReader, RefusesACallThatIsCutOff) {
    EXPECT_EQ(read("dochtml->start").problem, "1: not a line of a recorded trace");
    EXPECT_EQ(read("dochtml->insertText(\"a").problem, "1: the call of insertText is not complete");
    EXPECT_EQ(read("dochtml->insertText(\");\n").problem,
              "1: the call of insertText is not complete");
    EXPECT_EQ(read("dochtml->insertXref(\"a\");\n").problem,
              "1: the call of insertXref is not complete");
    EXPECT_EQ(read("dochtml->insertXref(\",\"b\");\n").problem,
              "1: the call of insertXref is not complete");
    EXPECT_EQ(read("dochtml->insertFile(\"a\");\n").problem,
              "1: the call of insertFile is not complete");
    EXPECT_EQ(read("dochtml->insertFile(\",1);\n").problem,
              "1: the call of insertFile is not complete");
    EXPECT_EQ(read("dochtml->insertEndl()\n").problem, "1: the call of insertEndl is not complete");
}

TEST(RecordingReader, NeedsNoLineEndAfterTheLastCall) {
    EXPECT_THAT(read("dochtml->insertText(\"a\");\ndochtml->close();").calls,
                ElementsAre("insertText(\"a\")", "close()"));
    EXPECT_THAT(read("dochtml->insertText(\"a\");").calls, ElementsAre("insertText(\"a\")"));
}

TEST(RecordingReader, EndsWithATextThatLooksClosedOnEveryLine) {
    std::string text;
    for (int i = 0; i < 200000; ++i) {
        text += "x\");\n";
    }
    EXPECT_EQ(read("dochtml->insertXref(\"" + text).problem,
              "1: the call of insertXref is not complete");
    EXPECT_THAT(read("dochtml->insertXref(\"" + text + "\",\"y\");\ndochtml->close();\n").calls,
                ElementsAre("insertXref(\"" + text + "\",\"y\")", "close()"));
}

TEST(RecordingReader, SkipsAReportLargerThanItsBuffer) {
    EXPECT_THAT(read("ERR " + std::string(3U << 20U, 'x') + "\ndochtml->close();\n").calls,
                ElementsAre("close()"));
}

TEST(RecordingReader, ReadsATextLargerThanItsBuffer) {
    const std::string value(3U << 20U, 'y');
    EXPECT_THAT(read("dochtml->insertText(\"" + value + "\");\ndochtml->close();\n").calls,
                ElementsAre("insertText(\"" + value + "\")", "close()"));
}

}  // namespace
}  // namespace quillmark::replay
