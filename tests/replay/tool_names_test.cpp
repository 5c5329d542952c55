#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "replay/tool_fixture.h"

namespace quillmark::replay {
namespace {

using ::testing::_;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Key;
using ::testing::Not;
using ::testing::Pair;
using ::testing::StartsWith;

TEST_F(ReplayTool, RefusesDocumentNamesThatTheCodePageCannotRepresent) {
    dir_.put("calls",
             "[\"create\",\"\u4e2d\u6587.htm\"]\n[\"insertText\",\"first\"]\n[\"close\"]\n"
             "[\"create\",\"\u65e5/a.htm\"]\n[\"insertText\",\"second\"]\n[\"close\"]\n");
    const ToolResult result = run({"calls"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "calls:1: create: the driver's 8-bit code page (Windows-1252) cannot hold the name "
              "\"\u4e2d\u6587.htm\"; all calls up to the next create or new are skipped "
              "(with --set Html.CharSet=UTF-8 it keeps its name)\n"
              "calls:4: create: the driver's 8-bit code page (Windows-1252) cannot hold the name "
              "\"\u65e5/a.htm\"; all calls up to the next create or new are skipped "
              "(with --set Html.CharSet=UTF-8 it keeps its name)\n"
              "dochtml-replay: 0 pages written, 0 contents entries, 0 files copied, "
              "0 unresolved references, 2 errors\n");
    EXPECT_THAT(filesIn("."), ElementsAre(Pair("calls", _)));
}

TEST_F(ReplayTool, CreatesTheDocumentsAroundOneThatItRefuses) {
    const ToolResult result =
        run({"-q", "-"},
            "[\"create\",\"a.htm\"]\n[\"insertText\",\"one\"]\n[\"close\"]\n[\"new\"]\n"
            "[\"create\",\"\u4e2d.htm\"]\n[\"insertText\",\"lost\"]\n[\"close\"]\n[\"new\"]\n"
            "[\"create\",\"b.htm\"]\n[\"insertText\",\"two\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, StartsWith("-:5: create: "));
    EXPECT_THAT(content("a_dtl.htm"), HasSubstr(">one"));
    EXPECT_THAT(content("b_dtl.htm"), HasSubstr(">two"));
    EXPECT_THAT(filesIn("."), Each(Key(Not(HasSubstr("?")))));
}

TEST_F(ReplayTool, CountsTheCharactersThatPagesLose) {
    const ToolResult result = run({"-"},
                                  "[\"create\",\"rep.htm\"]\n"
                                  "[\"insertText\",\"\u4e2d\u20ac\U0001F600\"]\n"
                                  "[\"insertXref\",\"\u0100\",\"\u0100\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, HasSubstr(" unresolved references, 0 errors, 4 characters lost "
                                         "(--set Html.CharSet=UTF-8 keeps them)\n"));
    EXPECT_THAT(content("rep_dtl.htm"), HasSubstr("?\x80??"));
}

TEST_F(ReplayTool, NamesTheSettingOnlyForCharactersThatItKeeps) {
    const std::string calls =
        "[\"create\",\"rep.htm\"]\n[\"insertText\",\"\u4e2d\\ud800\"]\n[\"close\"]\n";
    EXPECT_THAT(run({"-"}, calls).errors,
                HasSubstr("2 characters lost (--set Html.CharSet=UTF-8 keeps all but 1)\n"));
    EXPECT_THAT(run({"--set", "Html.CharSet=UTF-8", "-"}, calls).errors,
                HasSubstr("1 character lost\n"));
    EXPECT_THAT(content("rep_dtl.htm"), HasSubstr("\xE4\xB8\xAD\xEF\xBF\xBD"));
}

}  // namespace
}  // namespace quillmark::replay
