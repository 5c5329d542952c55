#include "driver/document_fixture.h"

namespace quillmark {
namespace {

class Calls : public testing::DocumentTest {};

TEST_F(Calls, ReadLikeTheirSource) {
    files.put("C:\\a.txt", "");
    files.put("C:\\a.png", "");
    open();
    EXPECT_EQ(traced(),
              "dochtml->create(\"C:\\out\\rep.htm\");\n"
              "created bookmark:Page 1 as rep.htm#Page 1\n");
    doc().insertText(u"a \"b\"");
    doc().insertEndl();
    doc().insertField(4);
    doc().setOption(u"title", u"T");
    doc().insertFile(u"C:\\a.txt", 3);
    doc().insertFile(u"", -7);
    doc().insertImage(u"C:\\a.png", u"");
    doc().insertXref(u"t", u"http://x");
    EXPECT_EQ(traced(),
              "dochtml->insertText(\"a \"b\"\");\n"
              "dochtml->insertEndl();\n"
              "dochtml->insertField(4);\n"
              "dochtml->setOption(\"title\",\"T\");\n"
              "dochtml->insertFile(\"C:\\a.txt\",3);\n"
              "dochtml->insertFile(\"\",-7);\n"
              "dochtml->insertImage(\"C:\\a.png\",\"\");\n"
              "dochtml->insertXref(\"t\",\"http://x\");\n");
    doc().insertPageBreak();
    EXPECT_EQ(traced().substr(0, 29), "dochtml->insertPageBreak();\n\n");
    doc().close();
    EXPECT_EQ(traced().substr(0, 18), "dochtml->close();\n");
}

TEST_F(Calls, OfTheOtherOperationsLeaveNoLine) {
    open();
    traced();
    std::u16string text;
    doc().insertDiagram(0, 0, 0);
    doc().trace(-1);
    doc().getPropPages(text);
    doc().start();
    doc().stop();
    doc().getDocType(text);
    doc().overrideRegistry(u"a", u"b", u"c", 1);
    doc().insertMark(1, false);
    doc().insertMark(1, true);
    doc().setOrientation(1);
    doc().setTableRowHeight(1);
    doc().startFile(u"a");
    doc().insertLocate();
    doc().pushDirectory(u"a");
    doc().popDirectory();
    EXPECT_EQ(traced(), "");
}

TEST_F(Calls, AreHeardFromTheirLevelOn) {
    const CapturingTrace errors(9);
    open();
    doc().insertText(u"a");
    EXPECT_EQ(errors.text(), "");
}

/// Traces into logs; nobody listens besides.
class Logs : public testing::DocumentTest {
protected:
    /// The process remembers logs by name, so every test has a log of its own.
    Logs() : name_("C:\\log\\" + std::string(testInfo()->name()) + ".log") {
        files.makeDirectories("C:\\log");
        setting("Log", "LogName", name_);
    }
    static const ::testing::TestInfo* testInfo() {
        return ::testing::UnitTest::GetInstance()->current_test_info();
    }
    /// What the log holds, with plain line feeds.
    [[nodiscard]] std::string logged() const {
        OrxString text = bytes(name_);
        return text.replaceStr("\r\n", "\n").str();
    }

    const std::string name_;
    CapturingTrace nobody_{0};
};

TEST_F(Logs, HoldTheCallsFromTheTraceOn) {
    open();
    doc().insertText(u"before");
    EXPECT_EQ(doc().trace(10), 0);
    doc().insertText(u"a");
    doc().insertEndl();
    EXPECT_EQ(logged(), "dochtml->insertText(\"a\");\ndochtml->insertEndl();\n");
}

TEST_F(Logs, HoldNoCallsAtALowerLevel) {
    open();
    doc().trace(9);
    doc().insertText(u"a");
    doc().insertImage(u"gone.png", u"");
    EXPECT_EQ(logged(), "ERR File not found: gone.png\n");
}

TEST_F(Logs, EndAtLevelZero) {
    open();
    doc().trace(10);
    doc().insertText(u"a");
    doc().trace(0);
    doc().insertText(u"b");
    doc().close();
    EXPECT_EQ(logged(), "dochtml->insertText(\"a\");\n");
}

TEST_F(Logs, AreTakenUpAgain) {
    open();
    doc().trace(10);
    doc().insertText(u"a");
    doc().trace(0);
    doc().insertText(u"b");
    doc().trace(11);
    doc().insertText(u"c");
    EXPECT_EQ(logged(), "dochtml->insertText(\"a\");\ndochtml->insertText(\"c\");\n");
}

TEST_F(Logs, AreLeftAsTheyAreByANegativeLevel) {
    open();
    doc().trace(10);
    doc().trace(-5);
    doc().insertText(u"a");
    EXPECT_EQ(logged(), "dochtml->insertText(\"a\");\n");
}

TEST_F(Logs, OfAnEarlierProcessAreDropped) {
    files.put(name_, "yesterday\n");
    open();
    doc().trace(10);
    doc().insertText(u"a");
    EXPECT_EQ(logged(), "dochtml->insertText(\"a\");\n");
}

TEST_F(Logs, OfAnEarlierProcessAreDroppedByANegativeLevelToo) {
    files.put(name_, "yesterday\n");
    open();
    doc().trace(-1);
    EXPECT_EQ(logged(), "");
}

TEST_F(Logs, MayBeNamedByAnOverride) {
    doc().overrideRegistry(u"Log", u"LogName", testing::wide(name_ + "2"), 2);
    doc().trace(10);
    doc().insertText(u"a");
    EXPECT_FALSE(isWritten(name_));
    EXPECT_TRUE(isWritten(name_ + "2"));
}

TEST_F(Logs, HearTheReportsOfTheCurrentPage) {
    open();
    doc().insertXref(u"x", u"gone");
    doc().trace(11);
    doc().close();
    EXPECT_NE(logged().find("Unresolved references on page C:\\out\\rep.htm\n"), std::string::npos);
}

TEST_F(Logs, HearNoReportsOfPagesHeldBackBeforeThem) {
    open();
    doc().insertXref(u"x", u"gone");
    doc().insertPageBreak();
    doc().trace(11);
    doc().insertXref(u"y", u"gone");
    doc().close();
    EXPECT_EQ(logged().find("page C:\\out\\rep.htm\n"), std::string::npos);
    EXPECT_NE(logged().find("page C:\\out\\rep2.htm\n"), std::string::npos);
}

TEST_F(Logs, HearReportsOfHeldPagesAfterTheyWereClosedAndTakenUpAgain) {
    open();
    doc().trace(11);
    doc().insertXref(u"x", u"gone");
    doc().insertPageBreak();
    doc().trace(0);
    doc().trace(11);
    doc().close();
    EXPECT_NE(logged().find("Unresolved references on page C:\\out\\rep.htm\n"
                            "  gone near line 1 <A gone>\n  gone near line 1 </A>\n"),
              std::string::npos)
        << logged();
}

TEST_F(Logs, HearReportsOfPagesThatWereHeldBackUnderAnotherName) {
    open();
    doc().trace(11);
    doc().insertXref(u"x", u"gone");
    doc().insertPageBreak();
    doc().overrideRegistry(u"Log", u"LogName", testing::wide(name_ + "2"), 2);
    doc().trace(11);
    doc().close();
    EXPECT_EQ(logged().find("Unresolved"), std::string::npos);
    EXPECT_NE(bytes(name_ + "2").find("Unresolved references on page C:\\out\\rep.htm"),
              std::string::npos);
}

TEST_F(Logs, HearNoReportsOfHeldPagesWhileTheyAreClosed) {
    open();
    doc().trace(11);
    doc().insertXref(u"x", u"gone");
    doc().insertPageBreak();
    doc().trace(0);
    doc().close();
    EXPECT_EQ(logged().find("Unresolved"), std::string::npos);
}

TEST_F(Logs, HearReportsAtTheLevelOfReportsOnly) {
    open();
    doc().trace(10);
    doc().insertXref(u"x", u"gone");
    doc().close();
    EXPECT_EQ(logged().find("Unresolved"), std::string::npos);
}

TEST_F(Logs, ThatCannotBeOpenedStopNothing) {
    setting("Log", "LogName", "C:\\no\\such\\" + testing::between(name_, "log\\", ".") + ".log");
    open();
    EXPECT_EQ(doc().trace(10), 0);
    doc().insertText(u"a");
    EXPECT_EQ(body(), "a");
}

}  // namespace
}  // namespace quillmark
