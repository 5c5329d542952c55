#include "driver/boundary/operation_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "support/recording_document.h"

namespace quillmark {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RecordingDocument;

const char* letterOf(ParameterKind kind) {
    switch (kind) {
        case ParameterKind::string:
            return "string";
        case ParameterKind::shortInteger:
            return "short";
        case ParameterKind::longInteger:
            return "long";
        case ParameterKind::boolean:
            return "boolean";
        case ParameterKind::outString:
            return "out string";
    }
    return "";
}

std::string describe(const Operation& row) {
    std::string text = std::to_string(row.dispatchId) + " " + row.name;
    for (const Parameter& parameter : row.parameters) {
        text += std::string(", ") + letterOf(parameter.kind) + " " + parameter.name;
    }
    return text;
}

int idOf(const char* name) {
    const Operation* const row = findOperation(name);
    return row != nullptr ? row->dispatchId : 0;
}

struct InvokeOutcome {
    InvokeStatus status;
    std::size_t badArgument;
    std::vector<std::string> calls;
};

InvokeOutcome invoked(int id, std::initializer_list<Argument> arguments) {
    RecordingDocument document;
    InvokeOutcome outcome{InvokeStatus::done, 99, {}};
    outcome.status =
        invoke(document, id, {arguments.begin(), arguments.size()}, &outcome.badArgument);
    outcome.calls = document.calls;
    return outcome;
}

TEST(OperationTable, ListsAllOperationsInTheOrderOfTheirIdentifiers) {
    std::vector<std::string> rows;
    for (const Operation& row : operations()) {
        rows.push_back(describe(row));
    }
    EXPECT_THAT(
        rows,
        ElementsAre("1 create, string fileName", "2 close", "3 insertText, string text",
                    "4 insertEndl", "5 insertDiagram, long ptr, short width, short height",
                    "6 insertPageBreak", "7 insertField, short field", "8 startHeader",
                    "9 endHeader", "10 startFooter", "11 endFooter", "12 setStyle, string style",
                    "13 setFontName, string name", "14 setOption, string option, string value",
                    "15 trace, short level", "16 getPropPages, out string bstrCLSID", "17 start",
                    "18 stop", "19 showLast", "20 setFontSize, short size",
                    "21 setFontAttribute, short att, boolean value",
                    "22 setTextAlign, short textAlign",
                    "23 insertFile, string fileName, short insertAsType",
                    "24 getDocType, out string docType",
                    "25 overrideRegistry, string group, string name, string value, short valueType",
                    "26 insertTOC", "27 startTable", "28 endTable", "29 addCell", "30 addRow",
                    "31 insertMark, long ptr, boolean isPrimary", "32 startTOCEntry",
                    "33 endTOCEntry", "34 insertImage, string imageFileName, string fileOrUrl",
                    "35 setOrientation, short docorient", "36 setTableRowHeight, long points",
                    "37 insertTag, string tagName", "38 insertXref, string text, string tagName",
                    "39 startFile, string fileName", "40 insertLocate",
                    "41 pushDirectory, string directoryName", "42 popDirectory"));
}

TEST(OperationTable, FindsEveryOperationByNameAndByIdentifier) {
    for (const Operation& row : operations()) {
        EXPECT_EQ(findOperation(row.name), &row) << row.name;
        EXPECT_EQ(findOperation(row.dispatchId), &row) << row.name;
    }
}

TEST(OperationTable, KnowsNamesExactly) {
    EXPECT_EQ(findOperation("inserttext"), nullptr);
    EXPECT_EQ(findOperation("insertText "), nullptr);
    EXPECT_EQ(findOperation("insertTex"), nullptr);
    EXPECT_EQ(findOperation(""), nullptr);
    EXPECT_EQ(findOperation(std::string_view("close\0", 6)), nullptr);
    EXPECT_EQ(findOperation("new"), nullptr);
}

TEST(OperationTable, KnowsNoIdentifierOutsideItsRows) {
    EXPECT_EQ(findOperation(0), nullptr);
    EXPECT_EQ(findOperation(43), nullptr);
    EXPECT_EQ(findOperation(-1), nullptr);
    EXPECT_EQ(invoked(0, {}).status, InvokeStatus::unknownOperation);
    EXPECT_EQ(invoked(43, {}).status, InvokeStatus::unknownOperation);
}

TEST(OperationTable, CallsEachOperationWithArgumentsInTheirOrder) {
    std::u16string out;
    RecordingDocument document;
    for (const Operation& row : operations()) {
        std::vector<Argument> arguments;
        std::int64_t number = 100;
        for (const Parameter& parameter : row.parameters) {
            switch (parameter.kind) {
                case ParameterKind::string:
                    arguments.emplace_back(number++ == 100 ? WideText(u"a") : WideText(u"b"));
                    break;
                case ParameterKind::boolean:
                    arguments.emplace_back(true);
                    break;
                case ParameterKind::outString:
                    arguments.emplace_back(&out);
                    break;
                default:
                    arguments.emplace_back(number++);
            }
        }
        ASSERT_EQ(invoke(document, row.dispatchId, arguments), InvokeStatus::done) << row.name;
    }
    EXPECT_THAT(
        document.calls,
        ElementsAre("create(\"a\")", "close()", "insertText(\"a\")", "insertEndl()",
                    "insertDiagram(100,101,102)", "insertPageBreak()", "insertField(100)",
                    "startHeader()", "endHeader()", "startFooter()", "endFooter()",
                    "setStyle(\"a\")", "setFontName(\"a\")", "setOption(\"a\",\"b\")", "trace(100)",
                    "getPropPages()", "start()", "stop()", "showLast()", "setFontSize(100)",
                    "setFontAttribute(100,true)", "setTextAlign(100)", "insertFile(\"a\",101)",
                    "getDocType()", "overrideRegistry(\"a\",\"b\",\"b\",103)", "insertTOC()",
                    "startTable()", "endTable()", "addCell()", "addRow()", "insertMark(100,true)",
                    "startTOCEntry()", "endTOCEntry()", "insertImage(\"a\",\"b\")",
                    "setOrientation(100)", "setTableRowHeight(100)", "insertTag(\"a\")",
                    "insertXref(\"a\",\"b\")", "startFile(\"a\")", "insertLocate()",
                    "pushDirectory(\"a\")", "popDirectory()"));
    EXPECT_EQ(out, u"Recording");
}

TEST(OperationTable, RefusesAWrongNumberOfArguments) {
    const InvokeOutcome missing = invoked(idOf("insertText"), {});
    EXPECT_EQ(missing.status, InvokeStatus::wrongArgumentCount);
    EXPECT_THAT(missing.calls, IsEmpty());
    EXPECT_EQ(invoked(idOf("insertText"), {WideText(u"a"), WideText(u"b")}).status,
              InvokeStatus::wrongArgumentCount);
    EXPECT_EQ(invoked(idOf("close"), {std::int64_t{1}}).status, InvokeStatus::wrongArgumentCount);
}

TEST(OperationTable, ReportsWhichArgumentIsOfAWrongKind) {
    const InvokeOutcome outcome =
        invoked(idOf("overrideRegistry"), {WideText(u"Html"), std::int64_t{3}, true, WideText()});
    EXPECT_EQ(outcome.status, InvokeStatus::wrongArgumentKind);
    EXPECT_EQ(outcome.badArgument, 1U);
    EXPECT_THAT(outcome.calls, IsEmpty());
}

TEST(OperationTable, TakesIntegersThatTheParameterCanHold) {
    const int size = idOf("setFontSize");
    EXPECT_THAT(invoked(size, {std::int64_t{-32768}}).calls, ElementsAre("setFontSize(-32768)"));
    EXPECT_THAT(invoked(size, {std::int64_t{32767}}).calls, ElementsAre("setFontSize(32767)"));
    EXPECT_EQ(invoked(size, {std::int64_t{32768}}).status, InvokeStatus::wrongArgumentKind);
    EXPECT_EQ(invoked(size, {std::int64_t{-32769}}).status, InvokeStatus::wrongArgumentKind);

    const int height = idOf("setTableRowHeight");
    EXPECT_THAT(invoked(height, {std::int64_t{-2147483648LL}}).calls,
                ElementsAre("setTableRowHeight(-2147483648)"));
    EXPECT_THAT(invoked(height, {std::int64_t{2147483647}}).calls,
                ElementsAre("setTableRowHeight(2147483647)"));
    EXPECT_EQ(invoked(height, {std::int64_t{2147483648LL}}).status,
              InvokeStatus::wrongArgumentKind);
    EXPECT_EQ(invoked(height, {std::int64_t{-2147483649LL}}).status,
              InvokeStatus::wrongArgumentKind);
}

TEST(OperationTable, TakesAnyNonZeroIntegerAsTrue) {
    const int attribute = idOf("setFontAttribute");
    EXPECT_THAT(invoked(attribute, {std::int64_t{1}, std::int64_t{-1}}).calls,
                ElementsAre("setFontAttribute(1,true)"));
    EXPECT_THAT(invoked(attribute, {std::int64_t{1}, std::int64_t{4294967296LL}}).calls,
                ElementsAre("setFontAttribute(1,true)"));
    EXPECT_THAT(invoked(attribute, {std::int64_t{1}, std::int64_t{0}}).calls,
                ElementsAre("setFontAttribute(1,false)"));
}

TEST(OperationTable, TakesABooleanForABooleanOnly) {
    EXPECT_EQ(invoked(idOf("setFontSize"), {true}).status, InvokeStatus::wrongArgumentKind);
    EXPECT_EQ(invoked(idOf("insertText"), {true}).status, InvokeStatus::wrongArgumentKind);
}

TEST(OperationTable, AsksForAPlaceToPutAnAnswer) {
    EXPECT_EQ(invoked(idOf("getDocType"), {static_cast<std::u16string*>(nullptr)}).status,
              InvokeStatus::wrongArgumentKind);
    EXPECT_EQ(invoked(idOf("getDocType"), {WideText()}).status, InvokeStatus::wrongArgumentKind);
    std::u16string answer;
    EXPECT_EQ(invoked(idOf("getPropPages"), {&answer}).status, InvokeStatus::done);
    EXPECT_EQ(answer, u"{a property page}");
}

}  // namespace
}  // namespace quillmark
