#include "replay/input/call_stream_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reading.h"

namespace quillmark::replay {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Reading readStream(const std::string& text) {
    return readText<CallStreamReader>(text);
}

std::string problemOf(const std::string& text) {
    return readStream(text).problem;
}

TEST(CallStreamReader, ReadsOneCallPerLine) {
    const Reading reading = readStream(
        "[\"create\",\"C:\\\\out\\\\rep.htm\"]\n"
        "[\"insertText\",\"Hello\"]\n"
        "[\"setFontAttribute\",1,true]\n"
        "[\"insertMark\",5,false]\n"
        "[\"close\"]\n");
    EXPECT_THAT(reading.calls,
                ElementsAre("create(\"C:\\out\\rep.htm\")", "insertText(\"Hello\")",
                            "setFontAttribute(1,true)", "insertMark(5,false)", "close()"));
    EXPECT_THAT(reading.lines, ElementsAre(1, 2, 3, 4, 5));
    EXPECT_EQ(reading.problem, "");
}

TEST(CallStreamReader, SkipsBlankLinesAndAcceptsCarriageReturns) {
    const Reading reading = readStream("\r\n\n  \t\n[\"start\"]\r\n\r\n [ \"stop\" ] \r\n");
    EXPECT_THAT(reading.calls, ElementsAre("start()", "stop()"));
    EXPECT_THAT(reading.lines, ElementsAre(4, 6));
}

TEST(CallStreamReader, NeedsNoLineEndAfterTheLastCall) {
    EXPECT_THAT(readStream("[\"start\"]\n[\"stop\"]").calls, ElementsAre("start()", "stop()"));
}

TEST(CallStreamReader, SkipsAByteOrderMark) {
    EXPECT_THAT(readStream("\xEF\xBB\xBF[\"start\"]\n").calls, ElementsAre("start()"));
}

TEST(CallStreamReader, FindsNothingInAnEmptyInput) {
    EXPECT_THAT(readStream("").calls, IsEmpty());
    EXPECT_THAT(readStream(" \n\t\r\n").calls, IsEmpty());
    EXPECT_EQ(problemOf(" \n"), "");
}

/// The values of a call as one line, with `blank` around each of them.
std::string lineOf(const std::vector<std::string>& values, const std::string& blank) {
    std::string line = "[";
    for (const std::string& value : values) {
        line += (line.size() > 1 ? "," : "") + blank + value + blank;
    }
    return line + "]\n";
}

TEST(CallStreamReader, ReadsALineWithoutBlanksLikeOneWithBlanks) {
    const std::vector<std::vector<std::string>> calls = {
        {R"("insertText")", R"("a text")"},
        {R"("insertText")", R"("")"},
        {R"("insertText")", R"("brackets [] and, commas")"},
        {R"("insertText")", R"("an \"escape\"")"},
        {R"("insertText")", "\"\xC3\xA9 \xE2\x82\xAC\""},
        {R"("insertXref")", R"("text")", R"("tag")"},
        {R"("overrideRegistry")", R"("Html")", R"("Navig")", R"("2")", "1"},
        {R"("insertEndl")"},
        {R"("new")"},
        // Mistakes.
        {R"("insertText")"},
        {R"("insertText")", R"("one")", R"("two")"},
        {R"("insertField")", R"("not a number")"},
        {R"("insertSpace")", R"("unknown")"},
        {R"("")"},
        {R"("insertText")", R"("a"b")"},
        {R"("insertText")", R"("a""b")"},
        {R"("insertText")", R"("a" "b")"},
        {R"("insertText")", R"("a"x"b")"},
        {R"("insertText")", R"("no end)"},
        {R"("insertText")", R"(")"},
        {R"("insertText")", "\"a control code \x01\""},
        {R"("insertText")", "\"not UTF-8 \xFF\""},
        {R"("insertText")", "\"half a pair \xED\xA0\x80\""},
    };
    for (const std::vector<std::string>& values : calls) {
        const Reading plain = readStream(lineOf(values, ""));
        const Reading spaced = readStream(lineOf(values, " "));
        EXPECT_EQ(plain.calls, spaced.calls) << lineOf(values, "");
        EXPECT_EQ(plain.problem, spaced.problem) << lineOf(values, "");
        EXPECT_NE(plain.calls.empty(), plain.problem.empty()) << lineOf(values, "");
    }
}

TEST(CallStreamReader, KnowsWhichCallsAreAscii) {
    std::istringstream stream(
        "[\"insertXref\",\"a\",\"b\"]\n[\"insertXref\",\"\xC3\xA9\",\"b\"]\n"
        "[\"insertXref\", \"a\", \"\\u00E9\"]\n[\"insertEndl\"]\n");
    InputBuffer input(stream);
    CallStreamReader reader(input);
    Call call;
    for (const bool expected : {true, false, false, true}) {
        ASSERT_EQ(reader.next(call), ReadResult::call);
        EXPECT_EQ(call.isAscii, expected);
    }
}

TEST(CallStreamReader, ReadsEveryKindOfEscape) {
    EXPECT_THAT(readStream(R"(["insertText","a\"b\\c\/d\te\u00e9\uD83D\uDE00"])").calls,
                ElementsAre("insertText(\"a\"b\\c/d\te\xC3\xA9\xF0\x9F\x98\x80\")"));
}

TEST(CallStreamReader, ReadsUtf8) {
    EXPECT_THAT(readStream("[\"insertText\",\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\"]").calls,
                ElementsAre("insertText(\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\")"));
}

TEST(CallStreamReader, KeepsAZeroInsideAText) {
    EXPECT_THAT(readStream(R"(["insertText","a\u0000b"])").calls,
                ElementsAre(std::string("insertText(\"a\0b\")", 17)));
}

TEST(CallStreamReader, KeepsALoneSurrogate) {
    std::istringstream stream(R"(["insertText","\\ud800\uD800\udc00\ud800x\udC01"])");
    InputBuffer input(stream);
    CallStreamReader reader(input);
    Call call;
    ASSERT_EQ(reader.next(call), ReadResult::call);
    const std::u16string expected = {u'\\',  u'u',   u'd',   u'8', u'0',  u'0',
                                     0xD800, 0xDC00, 0xD800, u'x', 0xDC01};
    EXPECT_EQ(std::get<WideText>(call.arguments[0]), expected);
}

TEST(CallStreamReader, AcceptsIntegersAsBooleans) {
    EXPECT_THAT(readStream("[\"setFontAttribute\",1,0]\n[\"setFontAttribute\",2,-1]\n").calls,
                ElementsAre("setFontAttribute(1,false)", "setFontAttribute(2,true)"));
}

TEST(CallStreamReader, RefusesIntegersOutsideTheirTypes) {
    EXPECT_THAT(readStream("[\"setFontSize\",-32768]\n[\"setFontSize\",32767]\n").calls,
                ElementsAre("setFontSize(-32768)", "setFontSize(32767)"));
    const std::string wanted =
        "1: setFontSize: argument 1 (size) must be an integer from -32768 to 32767";
    EXPECT_EQ(problemOf("[\"setFontSize\",32768]"), wanted);
    EXPECT_EQ(problemOf("[\"setFontSize\",-32769]"), wanted);
    EXPECT_EQ(problemOf("[\"setFontSize\",18446744073709551615]"), wanted);
    EXPECT_EQ(problemOf("[\"setFontSize\",123456789012345678901234567890]"), wanted);
    EXPECT_EQ(problemOf("[\"setFontSize\",1.0]"), wanted);
    EXPECT_EQ(problemOf("[\"setFontSize\",\"1\"]"), wanted);
    EXPECT_EQ(problemOf("[\"setFontSize\",true]"), wanted);
    EXPECT_EQ(problemOf("[\"setFontSize\",null]"), wanted);
    EXPECT_EQ(problemOf("[\"setTableRowHeight\",2147483648]"),
              "1: setTableRowHeight: argument 1 (points) must be an integer from -2147483648 to "
              "2147483647");
}

TEST(CallStreamReader, AcceptsTheHalfOfAModelHandleAsUnsignedToo) {
    EXPECT_THAT(readStream("[\"insertMark\",4294967295,true]\n[\"insertMark\",2147483648,0]\n"
                           "[\"insertMark\",-2147483648,0]\n[\"insertMark\",2147483647,0]\n")
                    .calls,
                ElementsAre("insertMark(-1,true)", "insertMark(-2147483648,false)",
                            "insertMark(-2147483648,false)", "insertMark(2147483647,false)"));
    EXPECT_EQ(problemOf("[\"insertMark\",4294967296,true]"),
              "1: insertMark: argument 1 (ptr) must be an integer from -2147483648 to 4294967295");
    EXPECT_EQ(problemOf("[\"insertDiagram\",4294967295,1,1]"),
              "1: insertDiagram: argument 1 (ptr) must be an integer from -2147483648 to "
              "2147483647");
}

TEST(CallStreamReader, RefusesArgumentsOfAWrongKind) {
    EXPECT_EQ(problemOf("[\"insertText\",5]"), "1: insertText: argument 1 (text) must be a string");
    EXPECT_EQ(problemOf("[\"setFontAttribute\",1,\"yes\"]"),
              "1: setFontAttribute: argument 2 (value) must be true, false or an integer");
    EXPECT_EQ(problemOf("[\"insertText\",[\"a\"]]"),
              "1: insertText: argument 1 (text) must be a string");
    EXPECT_EQ(problemOf("[\"insertText\",{\"a\":1}]"),
              "1: insertText: argument 1 (text) must be a string");
}

TEST(CallStreamReader, RefusesAWrongNumberOfArguments) {
    EXPECT_EQ(problemOf("[\"insertText\"]"), "1: insertText takes 1 argument, not 0");
    EXPECT_EQ(problemOf("[\"insertText\",\"a\",\"b\"]"), "1: insertText takes 1 argument, not 2");
    EXPECT_EQ(problemOf("[\"insertText\",\"a\",\"b\",1,true,7]"),
              "1: insertText takes 1 argument, not 5");
    EXPECT_EQ(problemOf("[\"close\",1]"), "1: close takes no argument, not 1");
    EXPECT_EQ(problemOf("[\"setOption\",\"title\"]"), "1: setOption takes 2 arguments, not 1");
    EXPECT_EQ(problemOf("[\"close\",[]]"),
              "1: argument 1 must be a string, an integer or a boolean");
}

TEST(CallStreamReader, OmitsOutArguments) {
    EXPECT_THAT(readStream("[\"getDocType\"]\n[\"getPropPages\"]\n").calls,
                ElementsAre("getDocType()", "getPropPages()"));
    EXPECT_EQ(problemOf("[\"getDocType\",\"x\"]"), "1: getDocType takes no argument, not 1");
}

TEST(CallStreamReader, ReadsTheRequestForANewObject) {
    EXPECT_THAT(readStream("[\"new\"]\n").calls, ElementsAre("new"));
    EXPECT_EQ(problemOf("[\"new\",1]"), "1: new takes no argument, not 1");
}

TEST(CallStreamReader, KnowsOperationsExactly) {
    EXPECT_EQ(problemOf("[\"InsertText\",\"a\"]"), "1: unknown operation \"InsertText\"");
    EXPECT_EQ(problemOf("[\"\"]"), "1: unknown operation \"\"");
    EXPECT_EQ(problemOf("[]"), "1: not a call: the first value must be the name of an operation");
    EXPECT_EQ(problemOf("[5]"), "1: not a call: the first value must be the name of an operation");
    EXPECT_EQ(problemOf("[[\"close\"]]"),
              "1: not a call: the first value must be the name of an operation");
}

TEST(CallStreamReader, ReportsTheLineOfMalformedJson) {
    EXPECT_EQ(problemOf("[\"start\"]\n\n[\"insertText\",\"a]\n[\"stop\"]\n"),
              "3: malformed JSON: Missing a closing quotation mark in string");
    EXPECT_EQ(problemOf("[\"start\""),
              "1: malformed JSON: Missing a comma or ']' after an array element");
    EXPECT_EQ(problemOf("[\"start\"] [\"stop\"]"),
              "1: malformed JSON: The document root must not be followed by other values");
    EXPECT_EQ(problemOf("[\"insertText\",\"\\x\"]"),
              "1: malformed JSON: Invalid escape character in string");
}

TEST(CallStreamReader, AcceptsOnlyArrays) {
    const std::string wanted =
        "2: not a call: each line must be an array of the operation's name and its arguments";
    EXPECT_EQ(problemOf("[\"start\"]\n{\"start\":1}\n"), wanted);
    EXPECT_EQ(problemOf("[\"start\"]\n\"start\"\n"), wanted);
    EXPECT_EQ(problemOf("[\"start\"]\n17\n"), wanted);
    EXPECT_EQ(problemOf("[\"start\"]\ntrue\n"), wanted);
    EXPECT_EQ(problemOf("[\"start\"]\nnull\n"), wanted);
}

TEST(CallStreamReader, RefusesBytesThatAreNotUtf8) {
    EXPECT_EQ(problemOf("[\"insertText\",\"\xE4\"]"), "1: the text is not UTF-8");
    EXPECT_EQ(problemOf("[\"insertText\",\"\xED\xA0\x80\"]"), "1: the text is not UTF-8");
    EXPECT_EQ(problemOf("[\"insertText\",\"\xC0\x80\"]"), "1: the text is not UTF-8");
    EXPECT_EQ(problemOf("[\"insertText\",\"\xF4\x90\x80\x80\"]"), "1: the text is not UTF-8");
}

TEST(CallStreamReader, RefusesAZeroByte) {
    EXPECT_EQ(problemOf(std::string("[\"start\"]\0[\"stop\"]", 18)),
              "1: malformed JSON: a zero byte");
}

TEST(CallStreamReader, SurvivesDeepNesting) {
    EXPECT_EQ(problemOf(std::string(1000000, '[')),
              "1: not a call: the first value must be the name of an operation");
}

TEST(CallStreamReader, ReadsCallsHoweverTheirBytesArrive) {
    std::string text;
    std::vector<std::string> expected;
    for (int i = 0; i < 200; ++i) {
        const std::string value(static_cast<std::size_t>(i), 'x');
        text += "[\"insertText\",\"" + value + "\"]\n";
        expected.push_back("insertText(\"" + value + "\")");
    }
    for (const std::size_t piece : {1U, 2U, 7U, 1000U}) {
        TricklingText trickle(text, piece);
        std::istream stream(&trickle);
        EXPECT_EQ(readFrom<CallStreamReader>(stream).calls, expected);
    }
}

TEST(CallStreamReader, ReadsATextLargerThanItsBuffer) {
    const std::string value(3U << 20U, 'y');
    EXPECT_THAT(readStream("[\"start\"]\n[\"insertText\",\"" + value + "\"]\n[\"stop\"]\n").calls,
                ElementsAre("start()", "insertText(\"" + value + "\")", "stop()"));
}

}  // namespace
}  // namespace quillmark::replay
