#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "replay/tool_fixture.h"

namespace quillmark::replay {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

TEST_F(ReplayTool, CountsWarningsWithoutFailing) {
    const ToolResult result = run({"-"},
                                  "[\"create\",\"rep.htm\"]\n"
                                  "[\"insertImage\",\"none.gif\",\"\"]\n"
                                  "[\"insertXref\",\"x\",\"nowhere\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, HasSubstr("2 unresolved references, 0 errors, 1 warning\n"));
}

TEST_F(ReplayTool, NamesTheFirstThreeFindingsAndAllWhenVerbose) {
    std::string calls = "[\"create\",\"rep.htm\"]\n";
    for (const char* const name : {"1", "2", "3", "4"}) {
        calls += std::string("[\"insertImage\",\"") + name + ".gif\",\"\"]\n" +
                 "[\"insertXref\",\"x\",\"to" + name + "\"]\n[\"insertText\",\"\u4e2d" + name +
                 "\"]\n[\"insertPageBreak\"]\n";
    }
    dir_.put("calls", calls + "[\"close\"]\n");
    const std::string few = run({"calls"}).errors;
    EXPECT_THAT(few, HasSubstr("8 unresolved references, 0 errors, 4 warnings, 4 characters lost "
                               "(--set Html.CharSet=UTF-8 keeps them)\n"
                               "dochtml-replay: warning: File not found: 1.gif\n"
                               "dochtml-replay: warning: File not found: 2.gif\n"
                               "dochtml-replay: warning: File not found: 3.gif\n"
                               "dochtml-replay: unresolved reference: rep_dtl.htm, line 1: to1\n"
                               "dochtml-replay: unresolved reference: rep_dtl2.htm, line 1: to2\n"
                               "dochtml-replay: unresolved reference: rep_dtl3.htm, line 1: to3\n"
                               "dochtml-replay: characters lost: calls:4: \xE4\xB8\xAD\n"
                               "dochtml-replay: characters lost: calls:8: \xE4\xB8\xAD\n"
                               "dochtml-replay: characters lost: calls:12: \xE4\xB8\xAD\n"
                               "dochtml-replay: these are the first ones; --verbose names all\n"));
    const std::string all = run({"--verbose", "calls"}).errors;
    EXPECT_THAT(all, HasSubstr("warning: File not found: 4.gif\n"));
    EXPECT_THAT(all, HasSubstr("unresolved reference: rep_dtl4.htm, line 1: to4\n"));
    EXPECT_THAT(all, HasSubstr("characters lost: calls:16: \xE4\xB8\xAD\n"));
    EXPECT_THAT(all, Not(HasSubstr("--verbose")));
}

TEST_F(ReplayTool, FailsForWarningsAndUnresolvedReferencesWhenStrict) {
    const std::string start = "[\"create\",\"rep.htm\"]\n[\"insertText\",\"x\"]\n";
    const std::string end = "[\"close\"]\n";
    EXPECT_EQ(run({"-q", "--strict", "-"}, start + end).status, 0);
    const ToolResult warned =
        run({"-q", "--strict", "-"}, start + "[\"insertImage\",\"none.gif\",\"\"]\n" + end);
    EXPECT_EQ(warned.status, 1);
    EXPECT_EQ(warned.errors, "dochtml-replay: warning: File not found: none.gif\n");
    const ToolResult unresolved =
        run({"-q", "--strict", "-"}, start + "[\"insertXref\",\"x\",\"nowhere\"]\n" + end);
    EXPECT_EQ(unresolved.status, 1);
    EXPECT_EQ(unresolved.errors,
              "dochtml-replay: unresolved reference: rep_dtl.htm, line 1: nowhere\n");
    EXPECT_EQ(run({"-q", "--strict", "--set", "Html.None=1", "-"}, start + end).status, 1);
}

TEST_F(ReplayTool, FailsWhenAFileThatExistsCannotBeCopied) {
    // A directory in the place of the copy stops it for every user.
    makeDirectory("default.css");
    const ToolResult result = run({"-q", "-"}, "[\"create\",\"rep.htm\"]\n[\"close\"]\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, StartsWith("dochtml-replay: Could not copy file "));
    EXPECT_THAT(result.errors, HasSubstr("/default.css to directory "));
    EXPECT_THAT(result.errors, HasSubstr(": "));
}

}  // namespace
}  // namespace quillmark::replay
